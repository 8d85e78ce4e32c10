// The rules of events: who runs handlers, who gets the focus and when.
#pragma once

#include <QPointer>
#include <QWidget>
#include <exception>
#include <functional>
#include <list>
#include <new>
#include <utility>
#include <vector>

#include "platform/RunTimeError.h"

namespace sorvane::forms {

class Control;
class Window;

// Owned by the Application. Single-threaded, like Qt's windows.
class Runtime {
    // One for each modal window or box, and one at the bottom for what runs before any window is shown.
    struct Level {
        QPointer<QWidget> window;               // null: a box, or a window that was left
        QPointer<QWidget> active;               // the control that has the focus, as the handlers know it
        QPointer<QWidget> lost;                 // the widget that had to give the focus up
        std::vector<QPointer<QWidget>> wanted;  // focus asked for by handlers
        int depth = 0;                          // handlers running on this level
        bool moving = false;                    // a LostFocus is running
        QPointer<QWidget> tabbedFrom;           // Tab is on its way forward from here
        int hold = 0;                           // moves of the focus are kept
        bool held = false;                      // one was kept
    };

  public:
    Runtime() { levels_.emplace_back(); }
    Runtime(const Runtime&) = delete;
    Runtime& operator=(const Runtime&) = delete;

    // The runtime of the application that is running.
    static Runtime& Current();

    // Runs a handler. What it throws ends it and is shown in a box; nothing passes on. When the outermost
    // handler has ended, the focus goes where it was asked to go.
    template <class Handler>
    void Handle(Handler handler) {
        Level& level = levels_.back();
        ++level.depth;
        if (const int number = Caught(handler)) ShowUnhandled(number);
        if (--level.depth == 0) GiveWanted(level);
    }

    // Control::SetFocus.
    void SetFocus(QWidget& widget);
    // Hides or disables a widget by `change`. If the focus is on it or in it, the focus goes nowhere until
    // the handler in hand has ended, then to Window::SetFallbackFocus unless a handler asked for another
    // place.
    void WithoutFocus(QWidget& widget, const std::function<void()>& change);
    // Qt has moved the focus.
    void FocusChanged(QWidget* now);
    // Moves the focus on by `move`, as the Tab key does on `from`. When leaving it opens a stop that lies
    // nearer than the one that was found, that nearer one gets the focus.
    bool TabOn(QWidget& from, const std::function<bool()>& move);
    // Fires LostFocus and GotFocus for the moves since the last call.
    void Settle();

    // What F1 does, with the window in front that got it; returns what it did before. Boxes, calendars and
    // lists that have dropped down keep the key for themselves.
    std::function<void(Window&)> OnHelp(std::function<void(Window&)> handler) {
        return std::exchange(help_, std::move(handler));
    }
    void Help(Window& front);

    // While one of these lives, moves of the focus are kept; the last one to go settles them.
    class Hold {
      public:
        Hold();
        ~Hold();
        Hold(const Hold&) = delete;
        Hold& operator=(const Hold&) = delete;
        // Settles now if this is the outermost.
        void Release();

      private:
        Level& level_;
        bool released_ = false;
    };

    // Stands around every box, system dialog and shown window: its own focus, its own handlers.
    class Modal {
      public:
        explicit Modal(QWidget* window = nullptr);
        // Reactivates the window below.
        ~Modal();
        Modal(const Modal&) = delete;
        Modal& operator=(const Modal&) = delete;
        // The window is left: no events of focus any more.
        void Detach();
        // The window is shown again.
        void Attach(QWidget& window) { level_->window = &window; }

      private:
        std::list<Level>::iterator level_;
        bool suspendedBusyPointer_ = false;
    };

    // The window in front, null when there is none.
    QWidget* Front() const;
    // Whether this window takes input: nothing else has been shown over it.
    bool IsInFront(const QWidget& window) const { return levels_.back().window == &window; }
    // How many boxes and windows have been shown so far; when it has grown, something was shown meanwhile.
    int Shown() const { return shown_; }
    // Whether the press that is being delivered is for this widget (and may just have brought it the focus).
    bool IsPressed(const QWidget& widget) const;

  private:
    friend class Application;
    // A press of the mouse on its way.
    struct Press {
        QWidget* receiver;
        int shown;
    };
    template <class Handler>
    static int Caught(Handler& handler) {
        try {
            handler();
            return 0;
        } catch (const RunTimeError& error) {
            return error.Number();
        } catch (const std::bad_alloc&) {
            return ErrorNumber::OutOfMemory;
        } catch (const std::exception&) {
            return InternalError;
        }
    }
    static constexpr int InternalError = 51;
    static void ShowUnhandled(int number);
    void GiveWanted(Level& level);

    std::list<Level> levels_;
    std::function<void(Window&)> help_;
    int shown_ = 0;
    Press* press_ = nullptr;
};

}  // namespace sorvane::forms

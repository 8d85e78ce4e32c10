// What all controls have in common.
#pragma once

#include <QWidget>
#include <functional>
#include <string>
#include <string_view>

namespace sorvane::forms {

// The second base of every control class; the first is the Qt class that does the work.
//
// Controls are members of their window or tab. Members are destroyed in reverse order, so a container
// (window, tab strip, page, frame) is declared before its contents. Each event has one handler; attaching
// another replaces it. All handlers run through Runtime::Handle: a run-time error ends the handler, shows its
// box, and the program goes on.
class Control {
  public:
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    // The name given, also Qt's objectName: "cmdSave", "chkNumb(0)".
    std::string Name() const;

    // The control's own wish: true unless it was hidden itself, whatever its containers do.
    bool Visible() const;
    // A control that is hidden while it has the focus passes it on (Window::SetFallbackFocus).
    void SetVisible(bool visible);

    // The control's own wish: true unless it was disabled itself.
    bool Enabled() const;
    // A control that is disabled while it (or a control in it) has the focus passes it on, as above.
    void SetEnabled(bool enabled);

    // Asks for the focus. It is given when the handler in hand has ended, to the last control that asked and
    // can take it then: shown, enabled, on the tab in front of the window in front. Else nothing happens.
    void SetFocus();
    // Whether the focus of its window is on this control now; a wish of the handler in hand does not count
    // yet.
    bool HasFocus() const;

    // GotFocus and LostFocus: the focus has moved between two controls of one window. Boxes, lists of combo
    // boxes, calendars, other windows and a closing window cause neither.
    void OnGotFocus(std::function<void()> handler) { gotFocus_ = std::move(handler); }
    void OnLostFocus(std::function<void()> handler) { lostFocus_ = std::move(handler); }

    // The name a screen reader speaks; without one it is the caption or the label.
    void SetAccessibleName(std::string_view text);
    // Whether the Tab key stops here.
    void SetTabStop(bool stop);

    QWidget& Widget() { return widget_; }
    const QWidget& Widget() const { return widget_; }

    // The control that this widget is or belongs to; null when there is none.
    static Control* Of(QWidget* widget);

  protected:
    Control(QWidget& widget, std::string_view name);
    virtual ~Control() = default;

    // Runs a handler, if there is one.
    static void Fire(const std::function<void()>& handler);

  private:
    friend class Runtime;
    // Called when the focus has left, before LostFocus: the place for what leaving itself completes.
    virtual void Leave() {}

    QWidget& widget_;
    std::function<void()> gotFocus_, lostFocus_;
};

}  // namespace sorvane::forms

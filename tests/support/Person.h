// A person at the screen: real events on real windows, and answers to the boxes that come up.
#pragma once

#include <QObject>
#include <QPoint>
#include <QPointer>
#include <QWidget>
#include <deque>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Services.h"

class QAbstractItemView;
class QMessageBox;
class QWindow;

namespace sorvane::test {

// There is one person in a test. Every event goes to the window in front, as from a real mouse and keyboard.
// Touching a widget that is hidden or behind a modal window fails the test. A disabled widget can be touched,
// and nothing happens.
//
// Say before an action which boxes and windows it will bring up, in their order. An unexpected one fails the
// test and is closed; an expected one that never comes fails the test at its end.
class Person : public QObject {
  public:
    Person();
    ~Person() override;

    // The window in front: the one that is modal, or the main window.
    QWidget& Front() const;

    // From now on the person uses only the keyboard: to click is to reach the widget by Tab, the arrows or
    // its access key, and to press it if it is a button. Any other use of the mouse fails the test, and so
    // does a focus that can't be seen.
    void PutMouseAway() { mouseIsAway_ = true; }

    // A click in the middle of a widget, or at a point of it.
    void Click(QWidget& widget) { Click(widget, widget.rect().center()); }
    void Click(QWidget& widget, QPoint at);
    void Press(QWidget& widget) { Press(widget, widget.rect().center()); }
    void Press(QWidget& widget, QPoint at);
    // Releases the mouse where it was pressed. If a box or window has come up since then, the mouse was
    // released there.
    void Release();
    void DoubleClick(QWidget& widget) { DoubleClick(widget, widget.rect().center()); }
    void DoubleClick(QWidget& widget, QPoint at);
    // Moves the mouse, pressed or not.
    void MoveTo(QWidget& widget, QPoint at);
    // A click, or a double-click, on a row of a list, and on a tab.
    void ClickRow(QAbstractItemView& list, int row);
    void DoubleClickRow(QAbstractItemView& list, int row);
    void ClickTab(std::string_view captionStart);
    // The close box of the window's frame.
    void Close(QWidget& window);

    // Keys go to the widget that has the focus in the window in front.
    void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void Tab() { Key(Qt::Key_Tab); }
    void BackTab() { Key(Qt::Key_Backtab, Qt::ShiftModifier); }
    void Enter() { Key(Qt::Key_Return); }
    void AccessKey(char letter);
    void Type(std::string_view text);
    // Clicks the widget, then types.
    void Type(QWidget& widget, std::string_view text);
    // Text that an input method commits.
    void Commit(std::string_view text);

    // A message box that will come: answered by a click on its button. `meanwhile` runs while it is up.
    void Expect(std::string_view title, std::string_view text, Answer answer = Answer::Ok,
                int style = BoxStyle::Ok, std::function<void()> meanwhile = nullptr);
    // A message box that will come, answered by this key.
    void ExpectKey(std::string_view title, std::string_view text, Qt::Key key, int style = BoxStyle::Ok);
    // A message box that will come, closed by the close box of its frame.
    void ExpectClosing(std::string_view title, std::string_view text, int style = BoxStyle::Ok);
    // A modal window of ours that will come; `act` uses it and has to leave it.
    void ExpectWindow(std::string_view name, std::function<void(QWidget&)> act);
    // A message box with the stop icon that may come at any time and any number of times: `seen` runs while
    // it is up, then Ok is clicked.
    void Bear(std::string_view title, std::string_view text, std::function<void()> seen);
    // From now on any box or window may come: `use` gets it and has to leave it.
    void MeetAll(std::function<void(QWidget&)> use) { meet_ = std::move(use); }
    // How many of the expected ones have not come yet.
    int Awaited() const { return static_cast<int>(awaited_.size()); }

    // The widget of this Qt class and name in the window in front; a failure when there is none.
    template <class Class>
    Class& Find(std::string_view name) const {
        return static_cast<Class&>(*FindIn(Front(), Class::staticMetaObject, name));
    }
    template <class Class>
    static Class& FindIn(const QWidget& window, std::string_view name) {
        return static_cast<Class&>(*FindIn(window, Class::staticMetaObject, name));
    }

    // Waits until the window can take keys, as a person would.
    static void Await(QWidget& window);
    // Handles all events that are waiting.
    static void Settle();

    bool eventFilter(QObject* receiver, QEvent* event) override;

  private:
    struct Event {
        std::string title, text;
        Answer answer = Answer::Ok;
        int style = BoxStyle::Ok;
        bool close = false;
        Qt::Key key = Qt::Key_unknown;
        std::function<void()> meanwhile;
        std::string window;  // not empty: a window of ours
        std::function<void(QWidget&)> act;
    };
    static QObject* FindIn(const QWidget& window, const QMetaObject& type, std::string_view name);
    void Appeared(QWidget& modal);
    void AnswerBox(QMessageBox& box, const Event& event);
    void UseWindow(QWidget& window, const Event& event);
    bool IsBorne(QMessageBox& box);
    void Unexpected(QWidget& modal);
    // The system's window of a widget that can be touched now.
    QWindow* Handle(QWidget& widget, QPoint at) const;
    void UseByKeys(QWidget& widget);
    // Moves the focus to it, the shorter way round.
    void Reach(QWidget& widget);
    void ExpectFocusToBeSeen() const;

    std::deque<Event> awaited_;
    std::vector<Event> borne_;
    std::function<void(QWidget&)> meet_;
    QPointer<QWidget> pressed_;
    QPoint pressedAt_;
    int unexpected_ = 0;
    bool mouseIsAway_ = false;
};

}  // namespace sorvane::test

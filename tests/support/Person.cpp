#include "support/Person.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QDialog>
#include <QInputMethodEvent>
#include <QLabel>
#include <QMessageBox>
#include <QRadioButton>
#include <QScrollArea>
#include <QTabBar>
#include <QTest>
#include <QWindow>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <stdexcept>
#include <utility>

#include "forms/Control.h"
#include "forms/NumberBall.h"
#include "forms/Runtime.h"
#include "forms/Utf8.h"
#include "forms/Window.h"

namespace sorvane::test {

namespace {

using forms::ToQt;
using forms::ToUtf8;

// A loop that shows boxes without end would never let the test end.
constexpr int MostUnexpected = 50;
// Milliseconds that a window manager may take to put a window in place.
constexpr int MostWaiting = 5000;
constexpr int Patience = 500;

std::string OneKindOfBreak(std::string_view text) { return ToUtf8(ToQt(text).replace("\r\n", "\n")); }

QMessageBox::StandardButton ButtonOf(Answer answer) {
    switch (answer) {
        case Answer::Cancel:
            return QMessageBox::Cancel;
        case Answer::Yes:
            return QMessageBox::Yes;
        case Answer::No:
            return QMessageBox::No;
        default:
            return QMessageBox::Ok;
    }
}

int StyleOf(const QMessageBox& box) {
    const auto buttons = box.standardButtons();
    int style = BoxStyle::Ok;
    if (buttons == (QMessageBox::Ok | QMessageBox::Cancel)) style = BoxStyle::OkCancel;
    if (buttons == (QMessageBox::Yes | QMessageBox::No)) style = BoxStyle::YesNo;
    if (buttons == (QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel)) style = BoxStyle::YesNoCancel;
    if (box.icon() == QMessageBox::Critical) style |= BoxStyle::Stop;
    if (box.icon() == QMessageBox::Warning) style |= BoxStyle::Exclamation;
    return style;
}

std::string Describe(const QWidget& modal) {
    std::string text =
        modal.objectName().isEmpty() ? modal.metaObject()->className() : ToUtf8(modal.objectName());
    text += " \"" + ToUtf8(modal.windowTitle()) + "\"";
    if (const auto* box = qobject_cast<const QMessageBox*>(&modal)) text += ": " + ToUtf8(box->text());
    return text;
}

// Scrolls it into sight, as a person would with the wheel.
void ScrollTo(QWidget& widget) {
    for (QWidget* parent = widget.parentWidget(); parent; parent = parent->parentWidget())
        if (auto* page = qobject_cast<QScrollArea*>(parent)) page->ensureWidgetVisible(&widget);
    Person::Settle();
}

// The key that clicks a button.
QKeySequence AccessKeyOf(const QWidget& widget) {
    const auto* button = qobject_cast<const QAbstractButton*>(&widget);
    return button ? QKeySequence::mnemonic(button->text()) : QKeySequence();
}

// Whether the key only moves the focus, because several controls have it.
bool IsShared(const QKeySequence& key, const QWidget& window) {
    int owners = 0;
    for (const auto* widget : window.findChildren<QWidget*>()) {
        const auto* label = qobject_cast<const QLabel*>(widget);
        const bool owns = AccessKeyOf(*widget) == key ||
                          (label && label->buddy() && QKeySequence::mnemonic(label->text()) == key);
        owners += owns && widget->isVisible() && widget->isEnabled();
    }
    return owners > 1;
}

// Moves from one number of the play slip towards another, or from one option to the next.
std::optional<Qt::Key> ArrowTo(const QWidget* focus, const QWidget& target) {
    const auto both = [&](auto is) { return is(focus) && is(&target); };
    const bool balls =
        both([](const QWidget* widget) { return dynamic_cast<const forms::NumberBall*>(widget); });
    const bool options =
        both([](const QWidget* widget) { return qobject_cast<const QRadioButton*>(widget) != nullptr; }) &&
        focus->parentWidget() == target.parentWidget();
    if (!balls && !options) return std::nullopt;
    const QPoint way = target.geometry().center() - focus->geometry().center();
    if (way.x() != 0) return way.x() > 0 ? Qt::Key_Right : Qt::Key_Left;
    return way.y() > 0 ? Qt::Key_Down : Qt::Key_Up;
}

// Whether the Tab key leads there in fewer steps than the Tab key with Shift.
bool IsAhead(const QWidget* focus, const QWidget& target) {
    if (!focus) return true;
    int steps[] = {0, 0};
    const QWidget* const ends[] = {focus, &target};
    for (const int way : {0, 1})
        for (const QWidget* at = ends[way]; at != ends[1 - way] && at; at = at->nextInFocusChain())
            steps[way] += at->isVisible() && at->isEnabled() && (at->focusPolicy() & Qt::TabFocus);
    return steps[0] <= steps[1];
}

}  // namespace

Person::Person() { qApp->installEventFilter(this); }

Person::~Person() {
    Settle();
    for (const Event& event : awaited_)
        ADD_FAILURE() << "never came: "
                      << (event.window.empty() ? "\"" + event.title + "\": " + event.text : event.window);
}

QWidget& Person::Front() const {
    QWidget* front = QApplication::activeModalWidget();
    if (!front) front = forms::Runtime::Current().Front();
    if (!front) throw std::runtime_error("no window is shown");
    return *front;
}

void Person::Settle() {
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
}

void Person::Await(QWidget& window) {
    if (QApplication::activePopupWidget()) return;
    const auto active = [&] {
        return window.isActiveWindow() && QGuiApplication::focusWindow() == window.windowHandle();
    };
    if (QTest::qWaitFor(active, Patience)) return;
    // A window that is left before the screen has given it the focus (no person is that quick) may still
    // count as the one that has it. Then Qt's other windows decide.
    if (!QTest::qWaitFor([&] { return window.isActiveWindow(); }, MostWaiting))
        ADD_FAILURE() << "never became active: " << Describe(window);
}

QWindow* Person::Handle(QWidget& widget, QPoint at) const {
    Settle();  // layouts that wait move things
    ScrollTo(widget);
    QWidget* window = widget.window();
    const QWidget* front = QApplication::activePopupWidget();
    if (!front) front = &Front();
    if (mouseIsAway_) ADD_FAILURE() << "there is no mouse to touch " << Describe(widget);
    else if (window != front) ADD_FAILURE() << Describe(widget) << " is behind " << Describe(*front);
    else if (!widget.visibleRegion().contains(at)) ADD_FAILURE() << Describe(widget) << " can't be seen";
    else return window->windowHandle();
    return nullptr;
}

void Person::Press(QWidget& widget, QPoint at) {
    QWindow* handle = Handle(widget, at);
    if (!handle) return;
    Await(*widget.window());
    pressed_ = widget.window();
    pressedAt_ = widget.mapTo(widget.window(), at);
    QTest::mousePress(handle, Qt::LeftButton, Qt::NoModifier, pressedAt_);
}

void Person::Release() {
    if (QWidget* window = std::exchange(pressed_, nullptr))
        QTest::mouseRelease(window->windowHandle(), Qt::LeftButton, Qt::NoModifier, pressedAt_);
    Settle();
}

void Person::Click(QWidget& widget, QPoint at) {
    if (mouseIsAway_) return UseByKeys(widget);
    Press(widget, at);
    Release();
}

void Person::UseByKeys(QWidget& widget) {
    if (!widget.isVisible() || !widget.isEnabled()) {
        ADD_FAILURE() << Describe(widget) << " can't be used";
        return;
    }
    const auto* button = qobject_cast<QAbstractButton*>(&widget);
    const bool atOnce = dynamic_cast<forms::Control*>(&widget);  // a box shows the press for a while first
    if (const QKeySequence key = AccessKeyOf(widget); atOnce && !key.isEmpty() && !IsShared(key, Front()))
        return AccessKey(static_cast<char>(key[0].key()));
    Reach(widget);
    if (button) Key(button->isCheckable() ? Qt::Key_Space : Qt::Key_Return);
}

void Person::Reach(QWidget& widget) {
    constexpr int MostSteps = 300;
    for (int step = 0; step < MostSteps; ++step) {
        QWidget* focus = Front().focusWidget();
        if (focus == &widget) return;
        Await(Front());
        if (const auto arrow = ArrowTo(focus, widget)) Key(*arrow);
        else if (IsAhead(focus, widget)) Tab();
        else BackTab();
        ExpectFocusToBeSeen();
    }
    ADD_FAILURE() << Describe(widget) << " can't be reached by keys";
}

void Person::ExpectFocusToBeSeen() const {
    const QWidget* focus = Front().focusWidget();
    if (!focus) ADD_FAILURE() << "nothing has the focus";
    else if (focus->visibleRegion().boundingRect() != focus->rect())
        ADD_FAILURE() << Describe(*focus) << " has the focus and isn't seen whole";
}

void Person::DoubleClick(QWidget& widget, QPoint at) {
    QWindow* handle = Handle(widget, at);
    if (!handle) return;
    Await(*widget.window());
    QTest::mouseDClick(handle, Qt::LeftButton, Qt::NoModifier, widget.mapTo(widget.window(), at));
    Settle();
}

void Person::MoveTo(QWidget& widget, QPoint at) {
    if (QWindow* handle = Handle(widget, at)) QTest::mouseMove(handle, widget.mapTo(widget.window(), at));
    Settle();
}

void Person::ClickRow(QAbstractItemView& list, int row) {
    Click(*list.viewport(), list.visualRect(list.model()->index(row, 0)).center());
}

void Person::DoubleClickRow(QAbstractItemView& list, int row) {
    DoubleClick(*list.viewport(), list.visualRect(list.model()->index(row, 0)).center());
}

void Person::ClickTab(std::string_view captionStart) {
    for (auto* bar : Front().findChildren<QTabBar*>())
        for (int i = 0; i < bar->count(); ++i) {
            if (!bar->tabText(i).startsWith(ToQt(captionStart))) continue;
            if (!mouseIsAway_) return Click(*bar, bar->tabRect(i).center());
            for (int step = 0; step < bar->count() && bar->currentIndex() != i; ++step)
                Key(Qt::Key_Tab, Qt::ControlModifier);
            return;
        }
    ADD_FAILURE() << "no tab " << captionStart;
}

void Person::Close(QWidget& window) {
    window.windowHandle()->close();
    Settle();
}

void Person::Key(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    Await(Front());
    QTest::keyClick(Front().windowHandle(), key, modifiers);
    Settle();
}

void Person::AccessKey(char letter) {
    Await(Front());
    QTest::keyClick(Front().windowHandle(), letter, Qt::AltModifier);
    Settle();
}

void Person::Type(std::string_view text) {
    for (const char letter : text) {
        Await(Front());
        QTest::keyClick(Front().windowHandle(), letter);
    }
    Settle();
}

void Person::Type(QWidget& widget, std::string_view text) {
    Click(widget);
    Type(text);
}

void Person::Commit(std::string_view text) {
    QInputMethodEvent event;
    event.setCommitString(ToQt(text));
    QCoreApplication::sendEvent(Front().focusWidget(), &event);
    Settle();
}

void Person::Expect(std::string_view title, std::string_view text, Answer answer, int style,
                    std::function<void()> meanwhile) {
    Event event;
    event.title = title;
    event.text = OneKindOfBreak(text);
    event.answer = answer;
    event.style = style;
    event.meanwhile = std::move(meanwhile);
    awaited_.push_back(std::move(event));
}

void Person::ExpectClosing(std::string_view title, std::string_view text, int style) {
    Expect(title, text, Answer::Ok, style);
    awaited_.back().close = true;
}

void Person::ExpectKey(std::string_view title, std::string_view text, Qt::Key key, int style) {
    Expect(title, text, Answer::Ok, style);
    awaited_.back().key = key;
}

void Person::ExpectWindow(std::string_view name, std::function<void(QWidget&)> act) {
    Event event;
    event.window = name;
    event.act = std::move(act);
    awaited_.push_back(std::move(event));
}

void Person::Bear(std::string_view title, std::string_view text, std::function<void()> seen) {
    Expect(title, text, Answer::Ok, BoxStyle::Stop, std::move(seen));
    borne_.push_back(std::move(awaited_.back()));
    awaited_.pop_back();
}

bool Person::eventFilter(QObject* receiver, QEvent* event) {
    if (event->type() != QEvent::Show || !receiver->isWidgetType()) return false;
    auto* window = static_cast<QWidget*>(receiver);
    if (!window->isWindow() || !window->isModal()) return false;
    // Called later, when the window's own loop runs.
    QMetaObject::invokeMethod(
        this,
        [this, modal = QPointer<QWidget>(window)] {
            if (modal && modal->isVisible()) Appeared(*modal);
        },
        Qt::QueuedConnection);
    return false;
}

void Person::Appeared(QWidget& modal) {
    // A mouse button that is still down is released here.
    if (std::exchange(pressed_, nullptr))
        QTest::mouseRelease(modal.windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(0, 0));
    Await(modal);
    if (meet_) return meet_(modal);
    auto* box = qobject_cast<QMessageBox*>(&modal);
    if (box && IsBorne(*box)) return;
    if (awaited_.empty() || awaited_.front().window.empty() != (box != nullptr)) return Unexpected(modal);
    const Event event = std::move(awaited_.front());
    awaited_.pop_front();
    if (box) AnswerBox(*box, event);
    else UseWindow(modal, event);
}

bool Person::IsBorne(QMessageBox& box) {
    for (const Event& event : borne_) {
        if (ToUtf8(box.windowTitle()) != event.title || OneKindOfBreak(ToUtf8(box.text())) != event.text)
            continue;
        AnswerBox(box, event);
        return true;
    }
    return false;
}

void Person::AnswerBox(QMessageBox& box, const Event& event) {
    EXPECT_EQ(event.title, ToUtf8(box.windowTitle())) << Describe(box);
    EXPECT_EQ(event.text, OneKindOfBreak(ToUtf8(box.text())));
    EXPECT_EQ(event.style, StyleOf(box)) << Describe(box);
    EXPECT_EQ(Qt::PlainText, box.textFormat());
    if (event.meanwhile) event.meanwhile();
    QAbstractButton* button = box.button(ButtonOf(event.answer));
    if (!button && !event.close && event.key == Qt::Key_unknown) return Unexpected(box);
    const QPointer<QWidget> guard(&box);
    if (event.close) Close(box);
    else if (event.key != Qt::Key_unknown) Key(event.key);
    else Click(*button);
    if (guard && guard->isVisible()) Unexpected(box);
}

void Person::UseWindow(QWidget& window, const Event& event) {
    EXPECT_EQ(event.window, ToUtf8(window.objectName()));
    const QPointer<QWidget> guard(&window);
    event.act(window);
    if (guard && guard->isVisible()) Unexpected(window);
}

void Person::Unexpected(QWidget& modal) {
    ADD_FAILURE() << "nobody expected " << Describe(modal)
                  << (awaited_.empty() ? "" : ", but " + awaited_.front().title + awaited_.front().window);
    if (++unexpected_ > MostUnexpected) {
        std::fprintf(stderr, "Boxes without end: %s\n", Describe(modal).c_str());
        std::abort();
    }
    if (auto* dialog = qobject_cast<QDialog*>(&modal)) dialog->reject();
    else if (auto* window = dynamic_cast<forms::Window*>(&modal)) window->Unload();
}

QObject* Person::FindIn(const QWidget& window, const QMetaObject& type, std::string_view name) {
    QObject* found = nullptr;
    for (auto* object : window.findChildren<QObject*>(ToQt(name))) {
        if (!object->metaObject()->inherits(&type)) continue;
        found = object;
        // The same name may occur on several tabs; the one in front is meant.
        if (object->isWidgetType() && static_cast<QWidget*>(object)->isVisible()) break;
    }
    if (!found)
        throw std::runtime_error(std::string("no ") + type.className() + " named " + std::string(name));
    return found;
}

}  // namespace sorvane::test

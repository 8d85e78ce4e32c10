#include "forms/Runtime.h"

#include <QApplication>

#include "forms/Application.h"
#include "forms/Control.h"
#include "forms/MessageBoxes.h"
#include "forms/Window.h"

namespace sorvane::forms {

namespace {

bool CanTakeFocus(const QWidget& widget, const QWidget& window) {
    return widget.window() == &window && widget.isEnabled() && widget.isVisible() &&
           widget.focusPolicy() != Qt::NoFocus;
}

// The first stop of the Tab key behind `from` that lies before `target`; null when there is none.
QWidget* StopBefore(const QWidget& target, QWidget& from, const QWidget& window) {
    for (QWidget* next = from.nextInFocusChain(); next != &target && next != &from;
         next = next->nextInFocusChain())
        if (CanTakeFocus(*next, window) && (next->focusPolicy() & Qt::TabFocus) && !next->focusProxy())
            return next;
    return nullptr;
}

}  // namespace

Runtime& Runtime::Current() { return static_cast<Application*>(QCoreApplication::instance())->Events(); }

void Runtime::ShowUnhandled(int number) {
    const auto text = "Run-time error '" + std::to_string(number) + "':\n\n" + std::string(Sentence(number));
    MessageBoxes().MsgBox(text, BoxStyle::Stop, ProgramName);
}

void Runtime::SetFocus(QWidget& widget) {
    Level& level = levels_.back();
    level.wanted.emplace_back(&widget);
    if (level.depth == 0) GiveWanted(level);
}

void Runtime::GiveWanted(Level& level) {
    const auto wanted = std::exchange(level.wanted, {});
    const QPointer<QWidget> lost = std::exchange(level.lost, {});
    QWidget* window = level.window;
    if (!window || !window->isVisible()) return;
    for (auto widget = wanted.rbegin(); widget != wanted.rend(); ++widget)
        if (*widget && CanTakeFocus(**widget, *window)) return (*widget)->setFocus();
    if (QWidget* focus = window->focusWidget(); focus && focus != window) return;
    auto* own = dynamic_cast<Window*>(window);
    if (QWidget* next = own ? own->Fallback(lost) : nullptr) next->setFocus();
}

void Runtime::WithoutFocus(QWidget& widget, const std::function<void()>& change) {
    QWidget* window = widget.window();
    QWidget* focus = window->focusWidget();
    if (window == &widget || !focus || !(focus == &widget || widget.isAncestorOf(focus))) return change();
    Handle([&] {
        // The window itself keeps the focus meanwhile: left to Qt it would go to the next field, which may
        // object to being left again, and with no focus at all Qt would choose one when the window is
        // activated.
        window->setFocus();
        levels_.back().lost = focus;
        change();
    });
}

void Runtime::FocusChanged(QWidget* now) {
    Level& level = levels_.back();
    if (!now || level.moving) return;
    if (level.hold > 0) level.held = true;
    else Settle();
}

bool Runtime::TabOn(QWidget& from, const std::function<bool()>& move) {
    Level& level = levels_.back();
    level.tabbedFrom = &from;
    const bool moved = move();
    level.tabbedFrom = nullptr;
    return moved;
}

void Runtime::Settle() {
    Level& level = levels_.back();
    if (!level.window) return;
    const QPointer<QWidget> target = level.window->focusWidget();
    const Control* now = Control::Of(target);
    if (!now || &now->Widget() == level.active) return;
    Control* left = Control::Of(std::exchange(level.active, {}));
    const QPointer<QWidget> tabbedFrom = std::exchange(level.tabbedFrom, {});
    const int depth = std::exchange(level.depth, 0);
    level.moving = true;
    if (left)
        Handle([left] {
            left->Leave();
            if (left->lostFocus_) left->lostFocus_();
        });
    // Only now is it known where Tab leads: leaving the control may have opened nearer ones.
    if (left && tabbedFrom && target && level.window && level.window->focusWidget() == target)
        if (QWidget* nearer = StopBefore(*target, *tabbedFrom, *level.window)) nearer->setFocus();
    level.moving = false;
    level.depth = depth;
    if (!level.window) return;  // the handler left the window
    // Only the control that has the focus in the end has got it.
    if (Control* got = Control::Of(level.window->focusWidget())) {
        level.active = &got->Widget();
        Control::Fire(got->gotFocus_);
    }
}

void Runtime::Help(Window& front) {
    if (help_ && IsInFront(front) && !QApplication::activePopupWidget()) Handle([&] { help_(front); });
}

QWidget* Runtime::Front() const {
    for (auto level = levels_.rbegin(); level != levels_.rend(); ++level)
        if (level->window && level->window->isVisible()) return level->window;
    return nullptr;
}

bool Runtime::IsPressed(const QWidget& widget) const { return press_ && press_->receiver == &widget; }

Runtime::Hold::Hold() : level_(Current().levels_.back()) { ++level_.hold; }

Runtime::Hold::~Hold() { Release(); }

void Runtime::Hold::Release() {
    if (std::exchange(released_, true) || --level_.hold > 0) return;
    if (std::exchange(level_.held, false)) Current().Settle();
}

Runtime::Modal::Modal(QWidget* window) {
    Runtime& runtime = Current();
    ++runtime.shown_;
    runtime.levels_.emplace_back();
    level_ = std::prev(runtime.levels_.end());
    level_->window = window;
    suspendedBusyPointer_ = QApplication::overrideCursor() != nullptr;
    if (suspendedBusyPointer_) QApplication::changeOverrideCursor(Qt::ArrowCursor);
}

Runtime::Modal::~Modal() {
    Runtime& runtime = Current();
    runtime.levels_.erase(level_);
    if (suspendedBusyPointer_) QApplication::changeOverrideCursor(Qt::WaitCursor);
    QWidget* below = runtime.levels_.back().window;
    if (!below || !below->isVisible() || below->isActiveWindow()) return;
    below->activateWindow();
    QApplication::setActiveWindow(below);
}

void Runtime::Modal::Detach() {
    level_->window = nullptr;
    level_->active = nullptr;
    level_->wanted.clear();
}

}  // namespace sorvane::forms

#include "forms/Window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QEventLoop>
#include <QLayout>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QWindow>
#include <algorithm>
#include <utility>

#include "forms/Placement.h"
#include "forms/Utf8.h"

namespace sorvane::forms {

namespace {

bool CanTakeFocus(const QWidget& widget) { return widget.isEnabled() && widget.isVisible(); }

bool IsFieldForText(QWidget& widget) {
    return qobject_cast<QLineEdit*>(&widget) || qobject_cast<QPlainTextEdit*>(&widget);
}

}  // namespace

Window::Window(std::string_view name, Kind kind)
    : QWidget(nullptr, kind == Kind::Main ? Qt::Window : Qt::Dialog) {
    setObjectName(ToQt(name));
}

Window::~Window() { Unload(); }

std::string Window::Name() const { return ToUtf8(objectName()); }
std::string Window::Caption() const { return ToUtf8(windowTitle()); }

void Window::SetCaption(std::string_view caption) {
    setWindowTitle(ToQt(caption));
    TitleToSystem();
}

// Without a title Qt would show the name of the application; a space without width shows nothing.
void Window::TitleToSystem() {
    if (windowTitle().isEmpty() && windowHandle()) windowHandle()->setTitle(QString(QChar(0x200B)));
}

void Window::ShowModal() {
    if (loop_ || IsShown()) return;
    QEventLoop loop;
    loop_ = &loop;
    Appear(Qt::ApplicationModal);
    loop.exec();
    loop_ = nullptr;
    level_.reset();
}

void Window::Show() {
    if (!IsShown()) Appear(Qt::NonModal);
}

void Window::Appear(Qt::WindowModality modality) {
    const QWidget* below = Runtime::Current().Front();
    if (level_) level_->Attach(*this);
    else level_ = std::make_unique<Runtime::Modal>(this);
    setWindowModality(modality);
    if (!testAttribute(Qt::WA_Resized)) TakeSize();
    Centre(*this);
    create();
    KeepOnScreen(*this);
    windowHandle()->setTransientParent(below ? below->windowHandle() : nullptr);
    if (focusWidget() == this) clearFocus();  // the control that had it was hidden or disabled meanwhile
    if (firstFocus_ && firstFocus_->isEnabledTo(this) && firstFocus_->isVisibleTo(this))
        firstFocus_->setFocus();
    show();
    activateWindow();
    QApplication::setActiveWindow(this);
}

// As large as its content asks for, as far as the screen has room for it. Qt would take two thirds of the
// screen at most.
void Window::TakeSize() {
    ensurePolished();
    // Captions that were set a moment ago have not reached the layouts yet.
    for (auto* widget : findChildren<QWidget*>()) widget->updateGeometry();
    QSize asked = sizeHint();
    if (QWidget* menu = layout() ? layout()->menuBar() : nullptr) {
        menu->ensurePolished();
        asked.setWidth(std::max(asked.width(), menu->sizeHint().width()));
    }
    resize(asked.boundedTo(RoomFor(*this)));
}

void Window::Unload() {
    if (level_) level_->Detach();
    hide();
    if (loop_) loop_->quit();
}

QWidget* Window::Fallback(QWidget* lost) {
    for (Control* control : fallback_)
        if (CanTakeFocus(control->Widget())) return &control->Widget();
    QWidget* const start = lost ? lost : this;
    for (QWidget* next = start->nextInFocusChain(); next != start; next = next->nextInFocusChain())
        if (next != this && CanTakeFocus(*next) && (next->focusPolicy() & Qt::TabFocus) &&
            !next->focusProxy() && !IsFieldForText(*next))
            return next;
    return nullptr;
}

void Window::closeEvent(QCloseEvent* event) {
    event->ignore();
    if (!Runtime::Current().IsInFront(*this)) return;
    if (!closeButton_) Unload();
    else closeButton_->click();  // does nothing while it is disabled
}

void Window::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape && escapeButton_) escapeButton_->click();
    else if (event->key() == Qt::Key_F1 && event->modifiers() == Qt::NoModifier)
        Runtime::Current().Help(*this);
    else QWidget::keyPressEvent(event);
}

bool Window::focusNextPrevChild(bool next) {
    const auto move = [&] { return QWidget::focusNextPrevChild(next); };
    QWidget* from = focusWidget();
    return next && from ? Runtime::Current().TabOn(*from, move) : move();
}

void Window::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    TitleToSystem();
}

void SetTabOrder(const std::vector<QWidget*>& order) {
    for (std::size_t i = 1; i < order.size(); ++i) QWidget::setTabOrder(order[i - 1], order[i]);
}

}  // namespace sorvane::forms

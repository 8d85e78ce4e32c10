#include "forms/Application.h"

#include <QAccessibleWidget>
#include <QMouseEvent>
#include <QWidget>
#include <utility>

#include "forms/Look.h"
#ifdef SORVANE_PORTAL
#include "forms/Portal.h"
#endif
#include "forms/Style.h"
#include "forms/Window.h"

namespace sorvane::forms {

namespace {

bool IsPress(const QObject& receiver, const QEvent& event) {
    return receiver.isWidgetType() &&
           (event.type() == QEvent::MouseButtonPress || event.type() == QEvent::MouseButtonDblClick);
}

// To Qt our windows are widgets like any other, which a screen reader would pass over.
QAccessibleInterface* TellWindow(const QString&, QObject* object) {
    auto* window = dynamic_cast<Window*>(object);
    if (!window) return nullptr;
    return new QAccessibleWidget(
        window, window->windowType() == Qt::Dialog ? QAccessible::Dialog : QAccessible::Window);
}

}  // namespace

// The style is set first, so that the application makes none of its own.
Application::Application(int& argc, char** argv) : QApplication((setStyle(new Style), argc), argv) {
    style()->setParent(this);  // so that it goes when another one comes
    setQuitOnLastWindowClosed(false);
    QAccessible::installFactory(TellWindow);
    installEventFilter(this);
    connect(this, &QApplication::focusChanged, this, [this](QWidget* before, QWidget* now) {
        // The focus ring is drawn on the frame, and lists and fields of several lines would not repaint
        // theirs.
        for (QWidget* widget : {before, now})
            if (widget) widget->update();
        runtime_.FocusChanged(now);
    });
}

void Application::FollowDesktop() {
#ifdef SORVANE_PORTAL
    new Portal(*this, [this](bool dark) { PreferDark(dark); });
#endif
}

void Application::PreferDark(bool dark) {
    setPalette(QPalette());
    if (dark && Look::IsLight(palette())) setPalette(Look::Legible(Look::Dark(palette())));
}

// Qt gives the focus inside notify, before the widget gets the press.
bool Application::notify(QObject* receiver, QEvent* event) {
    if (!IsPress(*receiver, *event)) return QApplication::notify(receiver, event);
    Runtime::Press press{static_cast<QWidget*>(receiver), runtime_.shown_};
    Runtime::Press* outer = std::exchange(runtime_.press_, &press);
    const bool done = QApplication::notify(receiver, event);
    runtime_.press_ = outer;
    return done;
}

bool Application::eventFilter(QObject* receiver, QEvent* event) {
    return IsPress(*receiver, *event) && runtime_.press_ && runtime_.press_->shown != runtime_.shown_;
}

}  // namespace sorvane::forms

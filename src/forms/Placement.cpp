#include "forms/Placement.h"

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>
#include <QWindow>
#include <algorithm>
#include <utility>

#include "forms/Look.h"

namespace sorvane::forms {

namespace {

const QString KeeperName = QStringLiteral("keeper");

bool PlacesItsWindows() { return !QGuiApplication::platformName().startsWith(QLatin1String("wayland")); }

const QScreen& ScreenInUse(const QWidget& window) {
    const QScreen* screen = PlacesItsWindows() ? QGuiApplication::screenAt(QCursor::pos()) : nullptr;
    return screen ? *screen : *window.screen();
}

// About what the desktop will put around the window, which is known only when it is shown.
QSize FrameOf(const QWidget& window) {
    const int bar = Look::TitleBar(window);
    return {bar / 2, bar};
}

// Moves the window into these bounds, and makes it no larger than they are.
void MoveInto(QWidget& window, const QRect& bounds) {
    if (window.windowState() & (Qt::WindowMaximized | Qt::WindowFullScreen)) return;
    const QSize frame = window.frameGeometry().size() - window.size();
    const QSize size = window.size().boundedTo(bounds.size() - frame);
    if (size != window.size()) window.resize(size);
    const QRect place = window.frameGeometry();
    const QPoint inside(std::max(bounds.left(), std::min(place.left(), bounds.right() + 1 - place.width())),
                        std::max(bounds.top(), std::min(place.top(), bounds.bottom() + 1 - place.height())));
    if (inside != place.topLeft() && PlacesItsWindows()) window.move(inside);
}

// Lives as long as the system's window.
class Keeper final : public QObject {
  public:
    explicit Keeper(QWidget& window) : QObject(window.windowHandle()), window_(window) {
        setObjectName(KeeperName);
        connect(window.windowHandle(), &QWindow::screenChanged, this, &Keeper::Watch);
        Watch(window.windowHandle()->screen());
    }

  private:
    void Watch(QScreen* screen) {
        disconnect(watching_);
        const QScreen* before = std::exchange(screen_, screen);
        if (!screen) return;
        watching_ = connect(screen, &QScreen::availableGeometryChanged, this,
                            [this](const QRect& bounds) { MoveInto(window_, bounds); });
        // A window that was dragged to another screen is left alone.
        const bool isGone = before && !QGuiApplication::screens().contains(before);
        if (isGone) MoveInto(window_, screen->availableGeometry());
    }

    QWidget& window_;
    QScreen* screen_ = nullptr;
    QMetaObject::Connection watching_;
};

}  // namespace

QSize RoomFor(const QWidget& window) {
    return ScreenInUse(window).availableGeometry().size() - FrameOf(window);
}

void Centre(QWidget& window) {
    window.resize(window.size().boundedTo(RoomFor(window)));
    if (!PlacesItsWindows()) return;
    const QRect bounds = ScreenInUse(window).availableGeometry();
    const QSize left = bounds.size() - window.size() - FrameOf(window);
    window.move(bounds.topLeft() + QPoint(std::max(0, left.width() / 2), std::max(0, left.height() / 2)));
}

void KeepOnScreen(QWidget& window) {
    if (!window.windowHandle()->findChild<QObject*>(KeeperName, Qt::FindDirectChildrenOnly))
        new Keeper(window);
}

}  // namespace sorvane::forms

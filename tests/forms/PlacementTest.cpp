// Where windows open, and what becomes of them when the screen shrinks.
#include <QApplication>
#include <QCursor>
#include <QScreen>
#include <QTest>

#include "Fixture.h"
#include "forms/Look.h"
#include "forms/Placement.h"

namespace sorvane::test {
namespace {

using namespace forms;

class Wish : public QWidget {
  public:
    explicit Wish(QSize size) : size_(size) {}
    QSize sizeHint() const override { return size_; }
    QSize minimumSizeHint() const override { return {100, 50}; }

  private:
    QSize size_;
};

class Placed : public LoggingWindow {
  public:
    explicit Placed(QSize wish, std::string_view name = "frmTest") : LoggingWindow(name) {
        layout()->setContentsMargins(0, 0, 0, 0);
        layout()->addWidget(new Wish(wish));
    }
};

class Placement : public ::testing::Test {
  public:
    ~Placement() override { QCursor::setPos(QGuiApplication::primaryScreen()->geometry().center()); }

    static void PutMouseOn(const QScreen& screen) {
        QCursor::setPos(screen.geometry().center() + QPoint(3, 4));
        Person::Settle();
    }
    static void ExpectInTheMiddleOf(const QScreen& screen, const QWidget& window) {
        const QRect bounds = screen.availableGeometry(), place = window.geometry();
        EXPECT_TRUE(bounds.contains(place)) << qPrintable(screen.name());
        const QPoint off = place.center() - bounds.center();
        EXPECT_LE(off.manhattanLength(), 2 * Look::TitleBar(window)) << off.x() << ", " << off.y();
    }
};

TEST_F(Placement, WindowsOpenInTheMiddleOfTheScreenOfTheMouse) {
    for (const QScreen* screen : QGuiApplication::screens()) {
        PutMouseOn(*screen);
        Placed window({400, 200});
        Open(window);
        EXPECT_EQ(window.size(), QSize(400, 200));
        ExpectInTheMiddleOf(*screen, window);
    }
}

TEST_F(Placement, NoWindowOpensLargerThanItsScreen) {
    for (const QScreen* screen : QGuiApplication::screens()) {
        PutMouseOn(*screen);
        Placed window({5000, 4000});
        Open(window);
        ExpectInTheMiddleOf(*screen, window);
        EXPECT_LE(window.height() + Look::TitleBar(window), screen->availableSize().height());
        EXPECT_GE(window.height(), screen->availableSize().height() * 9 / 10);
    }
}

TEST_F(Placement, AWindowThatOpensAgainRemembersNoPlace) {
    const QScreen& screen = *QGuiApplication::screens().last();
    Placed window({400, 200});
    Open(window);
    window.setGeometry(7, 40, 3000, 2000);
    Person::Settle();
    window.Unload();
    PutMouseOn(screen);
    Open(window);
    ExpectInTheMiddleOf(screen, window);
}

// The screen says that there is less room now.
TEST_F(Placement, WindowsMoveBackOntoAScreenThatShrinks) {
    QScreen& screen = *QGuiApplication::primaryScreen();
    PutMouseOn(screen);
    Placed window({800, 500}), small({300, 150}, "frmSmall");
    Open(window);
    Open(small);
    window.move(screen.availableGeometry().bottomRight() - QPoint(820, 560));
    small.move(screen.availableGeometry().bottomRight() - QPoint(320, 210));
    Person::Settle();
    const QRect less(screen.availableGeometry().topLeft(), QSize(640, 400));
    const auto isInside = [&](const QWidget& one) { return less.contains(one.frameGeometry()); };
    ASSERT_FALSE(isInside(window));
    ASSERT_FALSE(isInside(small));
    emit screen.availableGeometryChanged(less);
    EXPECT_TRUE(QTest::qWaitFor([&] { return isInside(window) && isInside(small); }));
    EXPECT_EQ(small.size(), QSize(300, 150));
    const QRect place = small.geometry();
    emit screen.availableGeometryChanged(less);
    Person::Settle();
    EXPECT_EQ(small.geometry(), place);
}

TEST_F(Placement, WhatHasRoomStaysWhereItIs) {
    QScreen& screen = *QGuiApplication::primaryScreen();
    PutMouseOn(screen);
    Placed window({300, 150});
    Open(window);
    window.move(screen.availableGeometry().topLeft() + QPoint(31, 57));
    Person::Settle();
    const QRect place = window.geometry();
    emit screen.availableGeometryChanged(QRect(screen.availableGeometry().topLeft(), QSize(640, 400)));
    Person::Settle();
    EXPECT_EQ(window.geometry(), place);
}

// To the pixel, with room for what the desktop puts around it; and one too large begins at the corner.
TEST_F(Placement, TheMiddleLeavesRoomForTheFrame) {
    for (const QScreen* screen : QGuiApplication::screens()) {
        PutMouseOn(*screen);
        const QRect bounds = screen->availableGeometry();
        QWidget window;
        const int bar = 2 * window.fontMetrics().height();
        EXPECT_EQ(RoomFor(window), bounds.size() - QSize(bar / 2, bar));
        window.resize(400, 200);
        Centre(window);
        EXPECT_EQ(window.size(), QSize(400, 200));
        EXPECT_EQ(window.pos(), bounds.topLeft() + QPoint((bounds.width() - 400 - bar / 2) / 2,
                                                          (bounds.height() - 200 - bar) / 2));
        window.setMinimumSize(9000, 7000);
        Centre(window);
        EXPECT_EQ(window.pos(), bounds.topLeft());
    }
}

// The desktop itself fits it into the screen.
TEST_F(Placement, AWindowThatFillsItsScreenIsLeftAlone) {
    QScreen& screen = *QGuiApplication::primaryScreen();
    PutMouseOn(screen);
    for (const Qt::WindowState state : {Qt::WindowMaximized, Qt::WindowFullScreen}) {
        Placed window({300, 150});
        Open(window);
        window.setWindowState(state);
        EXPECT_TRUE(QTest::qWaitFor([&] { return window.width() > 1000; }));
        Person::Settle();
        const QRect place = window.geometry();
        emit screen.availableGeometryChanged(QRect(screen.availableGeometry().topLeft(), QSize(640, 400)));
        Person::Settle();
        EXPECT_EQ(window.geometry(), place) << state;
    }
}

TEST_F(Placement, AWindowThatMovesBackEndsWhereTheScreenEnds) {
    QScreen& screen = *QGuiApplication::primaryScreen();
    PutMouseOn(screen);
    Placed window({300, 150});
    Open(window);
    window.move(screen.availableGeometry().bottomRight() - QPoint(320, 210));
    Person::Settle();
    const QRect less(screen.availableGeometry().topLeft(), QSize(640, 400));
    ASSERT_FALSE(less.contains(window.frameGeometry()));
    emit screen.availableGeometryChanged(less);
    EXPECT_TRUE(QTest::qWaitFor([&] { return window.frameGeometry().bottomRight() == less.bottomRight(); }));
}

}  // namespace
}  // namespace sorvane::test

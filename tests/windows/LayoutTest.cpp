// Nothing is clipped, nothing lies on something else, and every window has room on a screen of 1366 x 768,
// with small fonts and large ones.
#include <QComboBox>
#include <QDateEdit>
#include <QGroupBox>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QToolButton>

#include "forms/Look.h"
#include "windows/EveryWindow.h"

namespace sorvane::test {
namespace {

const QSize Screen(1366, 768);

std::string Describe(const QWidget& widget) {
    return forms::ToUtf8(widget.objectName()) + " (" + widget.metaObject()->className() + ")";
}

bool HoldsText(const QWidget& widget) {
    return qobject_cast<const QLabel*>(&widget) || qobject_cast<const QAbstractButton*>(&widget) ||
           qobject_cast<const QLineEdit*>(&widget) || qobject_cast<const QComboBox*>(&widget) ||
           qobject_cast<const QDateEdit*>(&widget) || qobject_cast<const QGroupBox*>(&widget);
}

// What stands in the frames.
std::vector<QWidget*> ContentsOf(const QWidget& window) {
    std::vector<QWidget*> controls = ControlsIn(window);
    std::erase_if(controls, [](const QWidget* control) {
        return qobject_cast<const QGroupBox*>(control) || dynamic_cast<const forms::TabStrip*>(control);
    });
    return controls;
}

void ExpectNothingClipped(const QWidget& window, const std::string& what) {
    for (const QWidget* widget : ControlsIn(window)) {
        if (!HoldsText(*widget)) continue;
        const QSize least = widget->minimumSizeHint();
        EXPECT_GE(widget->width(), least.width()) << what << ": " << Describe(*widget);
        EXPECT_GE(widget->height(), least.height()) << what << ": " << Describe(*widget);
        EXPECT_TRUE(widget->parentWidget()->rect().contains(widget->geometry()))
            << what << ": " << Describe(*widget) << " leaves its place";
    }
}

void ExpectNothingOverlaps(const QWidget& window, const std::string& what) {
    const std::vector<QWidget*> controls = ContentsOf(window);
    const auto place = [&](const QWidget* widget) {
        return QRect(widget->mapTo(&window, QPoint()), widget->size());
    };
    for (const QWidget* one : controls)
        for (const QWidget* other : controls)
            if (one < other && !one->isAncestorOf(other) && !other->isAncestorOf(one)) {
                EXPECT_FALSE(place(one).intersects(place(other)))
                    << what << ": " << Describe(*one) << " and " << Describe(*other);
            }
}

void ExpectRoom(const QWidget& window, const std::string& what) {
    EXPECT_LE(window.width(), Screen.width()) << what;
    EXPECT_LE(window.height() + forms::Look::TitleBar(window), Screen.height()) << what;
}

// How far the page in front can be scrolled.
QSize Scrolls(const QWidget& window) {
    for (auto* area : window.findChildren<QScrollArea*>())
        if (area->isVisible())
            return {area->horizontalScrollBar()->maximum(), area->verticalScrollBar()->maximum()};
    return {};
}

class LayoutOfGames : public WindowWorld, public ::testing::WithParamInterface<std::string_view> {};

TEST_P(LayoutOfGames, ShowsAllAtOnceInASmallFont) {
    const FontOf font(Small);
    SeeTabsOf(*this, GetParam(), [](GameWindow& window, const std::string& what) {
        ExpectRoom(window, what);
        ExpectNothingClipped(window, what);
        ExpectNothingOverlaps(window, what);
        EXPECT_EQ(Scrolls(window).width(), 0) << what;
        EXPECT_EQ(Scrolls(window).height(), 0) << what;
    });
}

// Then a page may be higher than the screen, never wider.
TEST_P(LayoutOfGames, HasRoomForLargeLetters) {
    const FontOf font(Large);
    SeeTabsOf(*this, GetParam(), [](GameWindow& window, const std::string& what) {
        ExpectRoom(window, what);
        ExpectNothingClipped(window, what);
        ExpectNothingOverlaps(window, what);
        EXPECT_EQ(Scrolls(window).width(), 0) << what;
    });
}

TEST_P(LayoutOfGames, LeavesTheSlipWhereItIsWhenTheAddOnAppears) {
    QRect before;
    SeeTabsOf(*this, GetParam(), [&](GameWindow& window, const std::string& what) {
        if (window.SSTab1.Tab() != Tab::Enter) return;
        if (before.isNull()) before = window.Enter.fraTicketNumber.geometry();
        EXPECT_EQ(window.Enter.fraTicketNumber.geometry(), before) << what;
    });
}

INSTANTIATE_TEST_SUITE_P(AllGames, LayoutOfGames, ::testing::ValuesIn(EveryGame()),
                         [](const auto& menu) { return std::string(menu.param); });

class LayoutOfWindows : public MainWindow, public ::testing::WithParamInterface<int> {};

TEST_P(LayoutOfWindows, HasRoom) {
    const FontOf font(GetParam());
    SeeOtherWindows(*this, [](forms::Window& window) {
        ExpectRoom(window, window.Name());
        ExpectNothingClipped(window, window.Name());
        ExpectNothingOverlaps(window, window.Name());
        for (const auto* rest : window.findChildren<QToolButton*>("qt_menubar_ext_button"))
            EXPECT_FALSE(rest->isVisible()) << "menus are hidden behind an arrow: " << window.width()
                                            << " for " << window.layout()->menuBar()->sizeHint().width();
    });
}

INSTANTIATE_TEST_SUITE_P(Fonts, LayoutOfWindows, ::testing::Values(Small, Large),
                         [](const auto& points) { return std::to_string(points.param) + "Points"; });

// What has the focus in a window that is too small for its page is brought to be seen.
class SmallWindow : public WindowWorld {};

TEST_F(SmallWindow, ScrollsToTheFocus) {
    GameWindow& window = Show("mnuCANONTKENO");
    window.resize(400, 300);
    Person::Settle();
    EXPECT_GT(Scrolls(window).height(), 0);
    for (QWidget* control : {&window.cmdExit(0).Widget(), &window.dtpEnterTickets(0).Widget()}) {
        EXPECT_LT(control->visibleRegion().boundingRect().height(), control->height());
        control->setFocus();
        Person::Settle();
        EXPECT_EQ(control->visibleRegion().boundingRect(), control->rect());
    }
}

}  // namespace
}  // namespace sorvane::test

// What a game window tells somebody who opens it for the first time, and what it does with more room.
#include <QApplication>
#include <QLabel>
#include <QPaintEvent>
#include <tuple>

#include "forms/Chart.h"
#include "forms/LabelFrame.h"
#include "forms/Look.h"
#include "windows/EveryWindow.h"
#include "windows/Slip.h"

namespace sorvane::test {
namespace {

class FirstLook : public SlipWorld {
  public:
    // What stands beside the title of the ticket: painted, and told to a screen reader.
    std::string Beside() {
        Person::Settle();
        const QWidget& frame = Find("fraTicketNumber");
        const QString told = frame.accessibleDescription();
        EXPECT_NE(PaintedBeside(), WithoutHint()) << told.toStdString();
        return told.toStdString();
    }
    // The line of advice that is seen, "" for none.
    std::string Advice() {
        Person::Settle();
        std::string seen;
        for (const auto* label : Window().findChildren<QLabel*>())
            if (label->isVisible() && label->text().startsWith("Not played?"))
                seen += label->text().replace('\n', ' ').toStdString();
        return seen;
    }
    // Whole, and right beside the field; the number of a box stands between.
    void ExpectAdvice(std::string_view field, const std::string& advice) {
        EXPECT_EQ(Advice(), advice);
        const QWidget& advised = Find(field == "chkEncore" ? "txtEncore" : field);
        for (const auto* label : Window().findChildren<QLabel*>()) {
            if (!label->isVisible() || !label->text().startsWith("Not played?")) continue;
            EXPECT_GE(label->width(), label->sizeHint().width()) << advice;
            EXPECT_GE(label->height(), label->sizeHint().height()) << advice;
            EXPECT_LE(label->x() - advised.geometry().right(), 2 * forms::Look::Gap(advised)) << advice;
            EXPECT_LE(std::abs(label->geometry().center().y() - advised.geometry().center().y()), 2);
        }
        EXPECT_EQ(Find(field).toolTip().toStdString(), advice);
        EXPECT_EQ(Find(field).accessibleDescription().toStdString(), advice);
    }

    // The title and what stands beside it do not touch.
    void ExpectApartFromTitle() {
        QWidget& frame = Find("fraTicketNumber");
        QFont heavy = frame.font();
        heavy.setBold(true);
        const int title =
            QFontMetrics(heavy).horizontalAdvance(QString::fromStdString(CaptionOf("fraTicketNumber")));
        const int gap = forms::Look::Gap(frame);
        QImage between =
            frame.grab(QRect(title + gap / 4, 0, gap / 2, forms::Look::Heading(frame))).toImage();
        QImage empty = between;
        empty.fill(between.pixelColor(0, 0));
        EXPECT_EQ(between, empty);
    }

  private:
    QImage PaintedBeside() {
        QWidget& frame = Find("fraTicketNumber");
        const QRect heading(frame.width() / 2, 0, frame.width() / 2, forms::Look::Heading(frame));
        return frame.grab(heading).toImage();
    }
    QImage WithoutHint() {
        QImage empty = PaintedBeside();
        empty.fill(empty.pixelColor(0, 0));
        return empty;
    }
};

TEST_F(FirstLook, AShutSlipSaysWhatToDoUntilTheCountIsGiven) {
    for (const char* menu : {"mnuCANBCBC49", "mnuCANONTSuper7", "mnuCANONTLOTTARIO"}) {
        Show(menu);
        EXPECT_EQ(Beside(), "Type how many tickets, then press Tab") << menu;
        Count("1");
        EXPECT_EQ(Beside().find("Type how"), std::string::npos) << menu;
    }
}

TEST_F(FirstLook, ProgressIsToldAsItIsPaintedOnEverySheetAndCountsTheAddOnNumbersInTheirPhase) {
    Show("mnuCANONTLotto649");
    SeveralSheets(2, 2);
    EXPECT_EQ(Beside(), "Numbers 0 of 6, tickets filled 0 of 1");
    Put("txtNoOfExtra", "2");
    PickFrom(1, 6);
    EXPECT_EQ(Beside(), "Numbers 6 of 6, tickets filled 1 of 1");
    Click("cmdNext_Ticket");
    EXPECT_EQ(Beside(), "Add-on number 1 of 2");
    Put("txtEncore", "123456");
    Click("cmdNext_Ticket");
    EXPECT_EQ(Beside(), "Add-on number 2 of 2");
    Put("txtEncore", "654321");
    SaveSheet(false);
    EXPECT_EQ(CaptionOf("fraTicketNumber"), "Ticket #1 - Sheet 2 of 2");
    Pick({1, 2});
    EXPECT_EQ(Beside(), "Numbers 2 of 6, tickets filled 0 of 1");
}

TEST_F(FirstLook, ProgressStaysWhileTheSlipIsOpen) {
    Show("mnuCANONTSuper7");
    OneSheet(1);
    PickFrom(1, 7);
    Click("cmdCorrection");
    EXPECT_EQ(Beside(), "Numbers 0 of 7, tickets filled 0 of 3");
    Show("mnuCANBCBC49");
    OneSheet(2);
    PickFrom(1, 6);
    Click("cmdNext_Ticket");
    person.ClickTab("&Quick Pick");
    person.ClickTab("&Enter Tickets");
    EXPECT_EQ(Beside(), "Numbers 0 of 6, tickets filled 1 of 2");
    person.Expect("CONFIRM", "Are you sure you wish to start over?", Answer::Yes, BoxStyle::YesNo);
    Click("cmdCancel");
    EXPECT_EQ(Beside(), "Type how many tickets, then press Tab");
}

TEST_F(FirstLook, ACountOfQuickPicksIsNoneOfTheEntry) {
    Show("mnuCANBCBC49");
    person.ClickTab("&Quick Pick");
    Put("txtNoOfTickets(1)", "1");
    person.ClickTab("&Enter Tickets");
    EXPECT_EQ(Beside(), "Type how many tickets, then press Tab");
}

// What a widget was asked to paint.
class Repainted : public QObject {
  public:
    explicit Repainted(QWidget& widget) : widget_(widget) { widget.installEventFilter(this); }
    const QRegion& Region() const { return region_; }

  protected:
    bool eventFilter(QObject* receiver, QEvent* event) override {
        if (receiver == &widget_ && event->type() == QEvent::Paint)
            region_ += static_cast<QPaintEvent*>(event)->region();
        return false;
    }

  private:
    QWidget& widget_;
    QRegion region_;
};

TEST_F(FirstLook, EachMarkPaintsTheProgressAnew) {
    for (const char* menu : {"mnuCANONTLotto649", "mnuCANONTSuper7", "mnuCANONTLOTTARIO"}) {
        Show(menu);
        OneSheet(1);
        QWidget& frame = Find("fraTicketNumber");
        for (const int number : {1, 2, 1}) {
            Person::Settle();
            const Repainted painted(frame);
            Find(Ball(number)).setFocus();
            Click(Ball(number));
            Person::Settle();
            EXPECT_TRUE(painted.Region().contains({frame.width() - 2, forms::Look::Heading(frame) / 2}))
                << menu << number;
        }
    }
}

// Leaves the field by Tab; whether what stands beside the title was painted anew.
class FirstLookAtAField : public FirstLook {
  public:
    bool LeavingPaintsTheProgress() {
        const QWidget& frame = Find("fraTicketNumber");
        Person::Settle();
        const Repainted painted(Find("fraTicketNumber"));
        person.Tab();
        Person::Settle();
        return painted.Region().contains({frame.width() - 2, forms::Look::Heading(frame) / 2});
    }
};

TEST_F(FirstLookAtAField, ATicketOfDigitsPaintsTheProgressAnew) {
    Show("mnuCANONTPICK3");
    OneSheet(2);
    Choose("cboNumber(2)", "5");
    EXPECT_TRUE(LeavingPaintsTheProgress());
}

TEST_F(FirstLookAtAField, AChoiceOfBallsPaintsTheProgressAnew) {
    Show("mnuCANONTKENO");
    OneSheet(1);
    Type("cboNoOfBallsPerTicket", "5");
    EXPECT_TRUE(LeavingPaintsTheProgress());
}

TEST_F(FirstLook, ProgressCountsTheFourNumbersOfAnExtraAsOne) {
    Show("mnuCANBCBC49");
    OneSheet(2);
    Put("txtNoOfExtra", "2");
    PickFrom(1, 6);
    Click("cmdNext_Ticket");
    PickFrom(7, 6);
    Click("cmdNext_Ticket");
    EXPECT_EQ(Beside(), "Add-on number 1 of 2");
    for (const char* number : {"10", "20", "30", "40"}) {
        person.Type(number);
        person.Tab();
    }
    Click("cmdNext_Ticket");
    EXPECT_EQ(Beside(), "Add-on number 2 of 2");
}

TEST_F(FirstLook, TheCountOfEncoresSaysThatItHasToBeVisitedOnce) {
    for (const char* menu : {"mnuCANONTLotto649", "mnuCANONTKENO", "mnuCANONTPICK3"}) {
        global.AddOnTickets = {};
        Show(menu);
        ExpectAdvice("txtNoOfExtra", "Not played? Visit this field once.");
        Click("txtNoOfExtra");
        Click("txtDollars");
        ExpectAdvice("txtNoOfExtra", "");
    }
    Show("mnuCANONTSuper7");
    ExpectAdvice("txtNoOfExtra", "");
}

TEST_F(FirstLook, TheBoxOfAnAddOnSaysThatItHasToBeTickedOnce) {
    for (const char* menu : {"mnuCANWESTLotto649", "mnuCANQCSuper7"}) {
        global.AddOnTickets = {};
        Show(menu);
        const QRect slip = Find("fraTicketNumber").geometry();
        ExpectAdvice("chkEncore", "Not played? Tick once and untick.");
        Click("chkEncore");
        ExpectAdvice("chkEncore", "");
        EXPECT_EQ(Find("fraTicketNumber").geometry(), slip);
        Click("chkEncore");
        ExpectAdvice("chkEncore", "");
    }
}

TEST_F(FirstLook, LargeLettersLeaveHintProgressAndAdviceWhole) {
    const FontOf font(Large);
    for (const char* menu : {"mnuCANONTLotto649", "mnuCANATLSuper7", "mnuCANONTLOTTARIO"}) {
        global.AddOnTickets = {};
        Show(menu);
        EXPECT_EQ(Beside(), "Type how many tickets, then press Tab") << menu;
        ExpectApartFromTitle();
        const bool counted = IsShown("txtNoOfExtra");
        ExpectAdvice(counted ? "txtNoOfExtra" : "chkEncore",
                     counted ? "Not played? Visit this field once." : "Not played? Tick once and untick.");
        Count("1");
        EXPECT_NE(Beside().find("tickets filled 0 of"), std::string::npos) << menu;
        ExpectApartFromTitle();
    }
}

TEST_F(FirstLook, NoAdviceWhereTheFirstSaveDoesNotFail) {
    for (const char* menu : {"mnuCANBCBC49", "mnuCANBCSuper7", "mnuUSFLAPlay4"}) {
        Show(menu);
        EXPECT_EQ(Advice(), "") << menu;
    }
}

TEST_F(FirstLook, ButtonsThatDoNothingSaySo) {
    const QString nothing = "This button does nothing";
    for (const char* menu : {"mnuCANONTLotto649", "mnuCANONTLOTTARIO", "mnuUSFLAPlay4"}) {
        const GameWindow& window = Show(menu);
        const auto tip = [&](std::string_view name) {
            return Person::FindIn<QWidget>(window, name).toolTip();
        };
        for (const char* button : {"cmdRegular", "cmdUse", "cmdHelp"})
            EXPECT_EQ(tip(button), nothing) << button;
        EXPECT_EQ(tip("cmdPrintReport") == nothing, window.Which != Family::frm645);
        EXPECT_EQ(tip("cmdSave"), "");
    }
}

TEST_F(FirstLook, TheNumberButtonsOfAKenoOfEightySayThatNothingComes) {
    Show(Family::frmKeno80, "PrairieKeno", "");
    EXPECT_EQ(Find("cmdNumberFrequency").toolTip(), "There is no chart of the numbers of this game");
    EXPECT_EQ(Find("cmdReport").toolTip(), "This button does nothing");
    Show(Family::frmKeno70, "ONTKeno", "Encore");
    for (const char* button : {"cmdNumberFrequency", "cmdReport"}) EXPECT_EQ(Find(button).toolTip(), "");
}

TEST_F(FirstLook, TheEmptyListsOfACheckSayWhatComesIntoThem) {
    for (const char* menu : {"mnuCANONTLotto649", "mnuCANONTSuper7", "mnuCANONTKENO", "mnuCANONTPICK3"}) {
        Show(menu);
        person.ClickTab("&Check");
        EXPECT_EQ(Find("lstEncorePlayed").accessibleDescription(), "Their add-on numbers") << menu;
    }
}

// Who sees no colours tells the balls of the picture by their lightness.
TEST(SplashPicture, BallsTwoAndFourDifferInLightness) {
    QImage picture(":/pictures/splash.svg");
    ASSERT_FALSE(picture.isNull());
    const auto lightness = [&](QPoint ball) {
        long sum = 0;
        int pixels = 0;
        for (int y = -28; y <= 28; ++y)
            for (int x = -28; x <= 28; ++x)
                if (x * x + y * y <= 28 * 28 && x * x + y * y >= 22 * 22) {
                    sum += picture.pixelColor(ball + QPoint(x, y)).lightness();
                    ++pixels;
                }
        return static_cast<double>(sum) / pixels;
    };
    EXPECT_GE(std::abs(lightness({390, 221}) - lightness({526, 192})), 20);
}

TEST_F(FirstLook, APlusSignStandsBeforeTheBonusBox) {
    const std::tuple<const char*, std::string, int> games[] = {{"mnuCANONTLotto649", "txtWin6", 6},
                                                               {"mnuCANONTSuper7", "txtWin7", 7},
                                                               {"mnuCANONTLOTTARIO", "txtWin6", 6},
                                                               {"mnuCANONTKENO", "", 0}};
    for (const auto& [menu, stem, bonus] : games) {
        Show(menu);
        person.ClickTab("&Check");
        std::vector<QLabel*> signs;
        for (auto* label : Window().findChildren<QLabel*>())
            if (label->isVisible() && label->text() == "+") signs.push_back(label);
        ASSERT_EQ(signs.size(), bonus ? 1u : 0u) << menu;
        if (!bonus) continue;
        const auto box = [&, &stem = stem](int i) {
            return Find(stem + "(" + std::to_string(i) + ")").geometry();
        };
        EXPECT_GT(signs[0]->x(), box(bonus - 1).right());
        EXPECT_LT(signs[0]->geometry().right(), box(bonus).x());
        EXPECT_EQ(signs[0]->geometry().center().y(), box(bonus).center().y());
    }
}

class MoreRoom : public SlipWorld {};

TEST_F(MoreRoom, BallsGrowWithTheSlipUpToDoubleAndStayTogether) {
    for (const char* menu : {"mnuCANONTLotto649", "mnuCANONTSuper7", "mnuCANONTLOTTARIO"}) {
        GameWindow& window = Show(menu);
        const QWidget &first = Find("chkNumb(0)"), &second = Find("chkNumb(1)"), &below = Find("chkNumb(10)");
        const int usual = forms::Look::BallSize(first), before = first.width();
        EXPECT_GE(before, forms::Look::SmallestBall(first));
        window.resize(1900, 1000);
        Person::Settle();
        EXPECT_GT(first.width(), before) << menu;
        EXPECT_GT(first.width(), usual * 5 / 4) << menu;
        window.resize(3800, 2000);
        Person::Settle();
        EXPECT_EQ(first.width(), 2 * usual) << menu;
        EXPECT_EQ(first.height(), 2 * usual) << menu;
        EXPECT_LE(second.x() - first.x(), 3 * usual + 1) << menu;
        EXPECT_LE(below.y() - first.y(), 3 * usual + 1) << menu;
        EXPECT_EQ(first.y(), second.y());
    }
}

TEST_F(MoreRoom, ListsAndChartsTakeTheRest) {
    GameWindow& window = Show("mnuCANONTLotto649");
    const std::pair<std::string_view, const char*> views[] = {
        {"&Check", "lstMessage"}, {"&Reports", "mscNumberFrequency"}, {"&Quick", "lstDisplay"}};
    const QSize before = window.size();
    for (const auto& [tab, view] : views) {
        person.ClickTab(tab);
        const QSize small = Find(view).size();
        window.resize(before + QSize(600, 400));
        Person::Settle();
        EXPECT_GE(Find(view).height(), small.height() + 380) << view;
        EXPECT_GE(Find(view).width(), small.width() + 250) << view;
        window.resize(before);
        Person::Settle();
    }
}

}  // namespace
}  // namespace sorvane::test

// The first tab of the game window: what it shows at load, its filters, the money, the tabs and the ways out.
#include <QAccessible>
#include <QDialog>
#include <tuple>

#include "support/Games.h"
#include "windows/Slip.h"

namespace sorvane::test {
namespace {

class EnterTickets : public SlipWorld {};

TEST_F(EnterTickets, OpensWithNothingEnteredAndTheCountInHand) {
    Show("mnuCANONTLotto649");
    EXPECT_EQ(Focus(), "txtNoOfTickets(0)");
    EXPECT_EQ(TextOf("txtNoOfTickets(0)"), "0");
    EXPECT_EQ(TextOf("txtDollars"), "0.00");
    EXPECT_EQ(CaptionOf("fraTicketNumber"), "Ticket #1 - Sheet 0 of 0");
    for (const char* button : {"cmdNext_Ticket", "cmdCorrection", "cmdSave"})
        EXPECT_FALSE(IsEnabled(button)) << button;
    for (const char* live :
         {"cmdCancel", "cmdExit(0)", "cmdRegular", "chkRegular", "txtDollars", "txtNoOfExtra"})
        EXPECT_TRUE(IsEnabled(live)) << live;
    for (int number = 1; number <= 49; ++number) EXPECT_FALSE(IsEnabled(Ball(number))) << number;
    EXPECT_EQ(Window().dtpEnterTickets(0).Value().ToText(), Today);
}

TEST_F(EnterTickets, EveryFamilyOpensWithNothingEntered) {
    const PerFamily<const char*> keys{
        {"Lotto649", "Super 7", "Lottario", "ONTKeno", "PrairieKeno", "ONTPick3", "FLAPlay4"}};
    const PerFamily<int> balls{{49, 49, 45, 70, 80, 0, 0}};
    for (const Family family : AllFamilies) {
        Show(family, keys[family], "Encore");
        EXPECT_EQ(TextOf("txtNoOfTickets(0)"), "0") << NameOf(family);
        EXPECT_EQ(TextOf("txtDollars"), "0.00") << NameOf(family);
        EXPECT_EQ(CaptionOf("fraTicketNumber"), "Ticket #1 - Sheet 0 of 0") << NameOf(family);
        EXPECT_EQ(CaptionOf("cmdNext_Ticket"), "&Next Ticket") << NameOf(family);
        EXPECT_FALSE(IsTicked("chkRegular")) << NameOf(family);
        for (const char* closed : {"cmdNext_Ticket", "cmdCorrection", "cmdSave"})
            EXPECT_FALSE(IsEnabled(closed)) << NameOf(family) << ' ' << closed;
        for (int number = 1; number <= balls[family]; ++number)
            EXPECT_FALSE(IsEnabled(Ball(number))) << NameOf(family) << ' ' << number;
        Click("cmdRegular");  // a button without a purpose
        EXPECT_FALSE(IsTicked("chkRegular")) << NameOf(family);
        Window().Leave();
    }
}

TEST_F(EnterTickets, AWindowIsMadeClosedBeforeItIsLoaded) {
    for (const Family family : AllFamilies) {
        const GameWindow window(family, session, windows);
        EXPECT_EQ(window.txtNoOfTickets(0).Text(), "0") << NameOf(family);
        EXPECT_EQ(window.Enter.txtDollars.Text(), "0.00") << NameOf(family);
        for (const auto* button :
             {&window.Enter.cmdNext_Ticket, &window.Enter.cmdCorrection, &window.Enter.cmdSave})
            EXPECT_FALSE(button->Enabled()) << NameOf(family) << ' ' << button->Name();
        if (IsPick(family)) continue;
        const auto* ball = window.findChild<QWidget*>("chkNumb(0)");
        ASSERT_TRUE(ball);
        EXPECT_FALSE(ball->isEnabled()) << NameOf(family);
    }
}

TEST_F(EnterTickets, HasFourTabsAndStandsOnTheFirst) {
    Show("mnuCANONTLotto649");
    EXPECT_EQ(Window().SSTab1.Tab(), 0);
    EXPECT_EQ(Window().SSTab1.Caption(), "&Enter Tickets");
    constexpr std::string_view captions[] = {"&Enter Tickets", "&Check Tickets", "&Reports", "&Quick Pick"};
    for (int tab = 0; tab < 4; ++tab) {
        Window().SSTab1.SetTab(tab);
        EXPECT_EQ(Window().SSTab1.Caption(), captions[tab]);
    }
}

TEST_F(EnterTickets, EveryFamilyHasTheControlsItShouldAndLacksTheOthers) {
    const PerFamily<std::vector<const char*>> has{{
        {"lblNoTickets", "lblDollars", "txtPlay4(3)", "chkNumb(48)", "txtEncore", "chkEncore", "lblExtra"},
        {"Label1", "txtPlay4(3)", "chkNumb(48)", "txtEncore", "chkEncore", "lblExtra"},
        {"lblNoTickets", "lblDollars", "chkNumb(44)", "chkEarlybird", "txtEncore", "chkEncore", "lblExtra"},
        {"lblNoTickets", "lblDollars", "chkNumb(69)", "cboNoOfBallsPerTicket", "cboWager", "cboNoOfQPs",
         "txtEncore"},
        {"lblNoTickets", "lblDollars", "chkNumb(79)", "cboNoOfBallsPerTicket", "cboWager", "txtNoOfExtra"},
        {"Label1", "cboNumber(2)", "fraWayPlayed", "optPlayOpt(3)", "fraWager", "optTenDollars", "txtEncore"},
        {"Label1", "cboNumber(3)", "fraWayPlayed", "optPlayOpt(3)", "fraWager", "optTenDollars",
         "txtNoOfTickets(2)"},
    }};
    const PerFamily<std::vector<const char*>> lacks{{
        {"Label1", "chkNumb(49)", "chkEarlybird", "cboWager", "cboNumber(0)"},
        {"lblNoTickets", "lblDollars", "chkNumb(49)", "chkEarlybird"},
        {"Label1", "chkNumb(45)", "txtPlay4(0)"},
        {"chkNumb(70)", "txtPlay4(0)", "chkEarlybird"},
        {"chkNumb(80)", "txtEncore", "chkEncore", "lblExtra", "txtPlay4(0)", "lstEncorePlayed"},
        {"lblNoTickets", "lblDollars", "chkNumb(0)", "txtPlay4(0)", "cboNumber(3)", "fraWheel"},
        {"lblNoTickets", "lblDollars", "chkNumb(0)", "txtEncore", "chkEncore", "lblExtra", "txtNoOfExtra",
         "fraWheel"},
    }};
    const PerFamily<const char*> keys{
        {"Lotto649", "Super 7", "Lottario", "ONTKeno", "PrairieKeno", "ONTPick3", "FLAPlay4"}};
    for (const Family family : AllFamilies) {
        Show(family, keys[family], family == Family::frmPick4 ? "FLAPlay4" : "Encore");
        for (const char* control :
             {"dtpEnterTickets(0)", "dtpEnterTickets(1)", "dtpEnterTickets(2)", "cmdExit(0)", "cmdExit(1)",
              "cmdExit(2)", "cmdExit(3)", "txtNoOfTickets(0)", "txtNoOfTickets(1)", "lblDrawDate",
              "lblDollarsSpent", "fraTickets", "lblInfo", "cmdUse", "cmdHelp"})
            EXPECT_TRUE(Exists(control)) << NameOf(family) << ' ' << control;
        for (const char* control : has[family])
            EXPECT_TRUE(Exists(control)) << NameOf(family) << ' ' << control;
        for (const char* control : lacks[family])
            EXPECT_FALSE(Exists(control)) << NameOf(family) << ' ' << control;
        Window().Leave();
    }
}

TEST_F(EnterTickets, ButtonsWithoutAPurposeDoNothingAndRaiseNoError) {
    Show("mnuCANONTLotto649");
    Click("cmdRegular");
    EXPECT_EQ(TextOf("txtNoOfTickets(0)"), "0");
    EXPECT_FALSE(IsTicked("chkRegular"));
    Window().SSTab1.SetTab(Tab::QuickPick);
    Click("cmdUse");
    Click("cmdHelp");
    EXPECT_TRUE(Window().IsShown());
}

TEST_F(EnterTickets, ALetterInTheCountEmptiesIt) {
    Show("mnuCANONTLotto649");
    Type("txtNoOfTickets(0)", "12");
    ExpectBadNumber();
    person.Type("x");
    EXPECT_EQ(TextOf("txtNoOfTickets(0)"), "");
    EXPECT_EQ(Focus(), "txtNoOfTickets(0)");
    person.Type("1");
    EXPECT_EQ(TextOf("txtNoOfTickets(0)"), "1");
}

TEST_F(EnterTickets, LeavingTheCountEmptyAsksForItAndPutsANought) {
    Show("mnuCANONTLotto649");
    Type("txtNoOfTickets(0)", "");
    person.Expect("# of Tickets required", "# of Tickets required. Please enter a number.");
    person.Tab();
    EXPECT_EQ(TextOf("txtNoOfTickets(0)"), "0");
    EXPECT_EQ(Focus(), "txtNoOfTickets(0)");
}

TEST_F(EnterTickets, TheReportsTabDoesNotAskForTheCount) {
    Show("mnuCANONTLotto649");
    Type("txtNoOfTickets(0)", "");
    person.ClickTab("&Reports");
    EXPECT_EQ(Window().SSTab1.Tab(), Tab::Reports);
    // The later steps follow all the same.
    EXPECT_EQ(Window().State.CurrentSheet, 1);
    EXPECT_EQ(TextOf("txtDollars"), "0.00");
}

TEST_F(EnterTickets, EnterInTheCountLeadsWhereItsFamilySays) {
    const PerFamily<const char*> keys{
        {"Lotto649", "Super 7", "Lottario", "ONTKeno", "PrairieKeno", "ONTPick3", "FLAPlay4"}};
    for (const Family family : AllFamilies) {
        Show(family, keys[family], "Encore");
        Type("txtNoOfTickets(0)", "1");
        person.Enter();
        EXPECT_EQ(Focus(), family == Family::frm649 ? "txtNoOfExtra" : "txtNoOfTickets(0)") << NameOf(family);
        Window().Leave();
    }
}

TEST_F(EnterTickets, EnterInTheAddOnCountLeadsToTheGridOnceItIsOpen) {
    Show("mnuCANONTLotto649");
    Click("txtNoOfExtra");
    person.Enter();
    EXPECT_EQ(Focus(), "txtNoOfExtra");
    OneSheet(1);
    EXPECT_EQ(Focus(), "txtNoOfExtra");
    person.Enter();
    EXPECT_EQ(Focus(), "chkNumb(0)");
}

TEST_F(EnterTickets, ALetterInTheMoneyPutsItBackToNought) {
    Show("mnuCANONTLotto649");
    Type("txtDollars", "12.5");
    person.Expect("Error!", "Please enter a valid dollar amount. (Even if it is 0.00)", Answer::Ok,
                  BoxStyle::Exclamation);
    person.Type("x");
    EXPECT_EQ(TextOf("txtDollars"), "0.00");
    EXPECT_EQ(global.Dollars, "0");
    EXPECT_EQ(Focus(), "txtDollars");
    person.Type("7");  // before the nought
    EXPECT_EQ(TextOf("txtDollars"), "70.00");
}

TEST_F(EnterTickets, MoneyEmptiedByHandIsNoughtAtOnce) {
    Show("mnuCANONTLotto649");
    Type("txtDollars", "");
    EXPECT_EQ(TextOf("txtDollars"), "0.00");
    EXPECT_EQ(global.Dollars, "0");
    EXPECT_EQ(Focus(), "txtDollars");
    person.Type("7");  // before the nought
    EXPECT_EQ(TextOf("txtDollars"), "70.00");
}

TEST_F(EnterTickets, TwoPointsInTheMoneyGiveTheirMessageOnce) {
    Show("mnuCANONTLotto649");
    Type("txtDollars", "1.2.3");
    person.Expect("ERROR",
                  "Only one decimal point may be used in this field.\r\nPlease enter a valid Dollar amount.");
    person.Tab();
    EXPECT_EQ(TextOf("txtDollars"), "0.00");
    EXPECT_EQ(Focus(), "txtDollars");
    EXPECT_EQ(global.Dollars, "0.00");
}

TEST_F(EnterTickets, MoneyThatStartsWithAPointBecomesNoughtWithTheMessage) {
    Show("mnuCANONTLotto649");
    Type("txtDollars", ".50");
    person.Expect("ERROR",
                  "Only one decimal point may be used in this field.\r\nPlease enter a valid Dollar amount.",
                  Answer::Ok, BoxStyle::Ok, [this] { EXPECT_EQ(Window().Enter.txtDollars.Text(), "0.00"); });
    person.Tab();
    EXPECT_EQ(TextOf("txtDollars"), "0.00");
}

TEST_F(EnterTickets, ThePointsOfTheMoneyAreCountedWhenItIsLeft) {
    Show("mnuCANONTLotto649");
    const Integer& points = Window().State.DecimalCount;
    EXPECT_EQ(points, 0);
    OneSheet(1);
    EXPECT_EQ(points, 1) << "the default amount has one";
    Put("txtDollars", "5");
    EXPECT_EQ(points, 0);
    Put("txtDollars", "5.00");
    EXPECT_EQ(points, 1);
    Put("txtDollars", "5");
    Type("txtDollars", "1");
    person.Expect("Error!", "Please enter a valid dollar amount. (Even if it is 0.00)", Answer::Ok,
                  BoxStyle::Exclamation);
    person.Type("x");
    EXPECT_EQ(points, 1) << "the nought that takes the place of a refused amount has one";
    Type("txtDollars", "1.2.3");
    person.Expect("ERROR",
                  "Only one decimal point may be used in this field.\r\nPlease enter a valid Dollar amount.",
                  Answer::Ok, BoxStyle::Ok, [&] { EXPECT_EQ(points, 2); });
    person.Tab();
}

TEST_F(EnterTickets, AWindowKnowsHowManyNumbersItsTicketsHave) {
    constexpr PerFamily<int> Numbers{{6, 7, 6, 20, 20, 3, 4}};
    const PerFamily<const char*> keys{
        {"Lotto649", "Super 7", "Lottario", "ONTKeno", "PrairieKeno", "ONTPick3", "FLAPlay4"}};
    for (const Family family : AllFamilies) {
        Show(family, keys[family], "Encore");
        EXPECT_EQ(Window().State.NumbersPerTicket, Numbers[family]) << NameOf(family);
        Window().Leave();
    }
}

TEST_F(EnterTickets, AfterACancelAWindowKnowsAnewHowManyNumbersItsTicketsHave) {
    constexpr PerFamily<int> Numbers{{6, 7, 6, 20, 20, 3, 4}};
    const PerFamily<const char*> keys{
        {"Lotto649", "Super 7", "Lottario", "ONTKeno", "PrairieKeno", "ONTPick3", "FLAPlay4"}};
    for (const Family family : AllFamilies) {
        Show(family, keys[family], "Encore");
        Window().State.NumbersPerTicket = 1;
        StartOver();
        EXPECT_EQ(Window().State.NumbersPerTicket, Numbers[family]) << NameOf(family);
        Window().Leave();
    }
}

TEST_F(EnterTickets, AWindowOpensWithoutTheAmountOfTheOneBefore) {
    global.Dollars = "7.00";
    Show("mnuCANONTLotto649");
    EXPECT_EQ(global.Dollars, "0.00");
}

TEST_F(EnterTickets, AWindowKnowsItsIndexAndItsField) {
    Show("mnuCANONTLotto649");
    WindowState& state = Window().State;
    EXPECT_EQ(state.IndexName, "ID1");
    EXPECT_EQ(state.FieldName, "Date");
    state.IndexName = state.FieldName = "";
    StartOver();
    EXPECT_EQ(state.IndexName, "ID1");
    EXPECT_EQ(state.FieldName, "Date");
}

TEST_F(EnterTickets, AWindowIsSavingWhileASheetIsWritten) {
    Show("mnuCANONTLotto649");
    bool& saving = Window().State.SavingSheet;
    SeveralSheets(2, 2);
    PickFrom(1, 6);
    person.Expect("CONFIRM", "Save this sheet of tickets?", Answer::Yes, BoxStyle::YesNo,
                  [&] { EXPECT_FALSE(saving); });
    person.Expect("CONFIRMED", "Tickets Saved - Enter Next Sheet", Answer::Ok, BoxStyle::Ok,
                  [&] { EXPECT_TRUE(saving); });
    Click("cmdSave");
    EXPECT_FALSE(saving);
}

TEST_F(EnterTickets, NoWindowIsSavingAfterACancelOrALoad) {
    Show("mnuCANONTLotto649");
    bool& saving = Window().State.SavingSheet;
    saving = true;
    StartOver();
    EXPECT_FALSE(saving);
    saving = true;
    Window().Form_Load();
    EXPECT_FALSE(saving);
}

TEST_F(EnterTickets, ATicketBearsTheDrawDateAtWhichItWasStored) {
    const Date day = Date::FromYmd(2006, 3, 11);
    const auto store = [&](const std::string& menu, int numbers) {
        Show(menu);
        Window().dtpEnterTickets(0).SetValue(day);
        OneSheet(2);
        PickFrom(1, numbers);
        Click("cmdNext_Ticket");
    };
    store("mnuCANONTLotto649", 6);
    EXPECT_EQ(global.Lotto6Tickets(0).DrawDate, day);
    store("mnuCANBCSuper7", 7);
    EXPECT_EQ(global.Lotto7Tickets(0).DrawDate, day);
    store("mnuCANONTLOTTARIO", 6);
    EXPECT_EQ(global.Lotto6Tickets(0).DrawDate, day);
}

TEST_F(EnterTickets, AnAssistiveToolThatEmptiesTheAmountBringsTheFocusToIt) {
    Show("mnuCANBCBC49");
    OneSheet(1);
    ASSERT_EQ(TextOf("txtDollars"), "0.50");
    ASSERT_NE(Focus(), "txtDollars");
    QAccessibleInterface* field = QAccessible::queryAccessibleInterface(&Find("txtDollars"));
    ASSERT_TRUE(field && field->editableTextInterface());
    field->editableTextInterface()->deleteText(0, 4);
    EXPECT_EQ(TextOf("txtDollars"), "0.00");
    EXPECT_EQ(global.Dollars, "0");
    EXPECT_EQ(Focus(), "txtDollars");
}

TEST_F(EnterTickets, MoneyTypedIsTheAmountOfTheEntry) {
    Show("mnuCANONTLotto649");
    Put("txtDollars", "12.50");
    EXPECT_EQ(global.Dollars, "12.50");
}

TEST_F(EnterTickets, TheMoneysWholeTextIsSelectedAlsoByMouse) {
    Show("mnuCANONTLotto649");
    Click("txtDollars");
    person.Type("7");
    EXPECT_EQ(TextOf("txtDollars"), "7");
}

TEST_F(EnterTickets, TheQuickPickTabPutsItsCountToNoughtAndTakesTheFocus) {
    Show("mnuCANONTLotto649");
    person.ClickTab("&Quick Pick");
    EXPECT_EQ(Focus(), "txtNoOfTickets(1)");
    EXPECT_EQ(TextOf("txtNoOfTickets(1)"), "0");
    person.Type("3");
    EXPECT_EQ(TextOf("txtNoOfTickets(1)"), "3");
}

TEST_F(EnterTickets, AnyDrawDateGoesIntoTheEntrysDate) {
    Show("mnuCANONTLotto649");
    EXPECT_EQ(global.DrawDate.ToText(), Today);
    for (const int picker : {0, 1, 2}) {
        const Date day = Date::FromYmd(2006, 3, 1 + picker);
        Window().dtpEnterTickets(picker).SetValue(day);
        EXPECT_EQ(global.DrawDate, day);
    }
    Click("dtpEnterTickets(0)");
    person.Tab();
    EXPECT_EQ(global.DrawDate, Window().dtpEnterTickets(0).Value());
}

TEST_F(EnterTickets, TheDateStandsBeforeTheCount) {
    Show("mnuCANONTLotto649");
    person.BackTab();
    EXPECT_EQ(Focus(), "dtpEnterTickets(0)");
}

TEST_F(EnterTickets, TabWalksOverTheCountsAndTheTicketToTheMoney) {
    Show("mnuCANONTLotto649");
    EXPECT_EQ(Focus(), "txtNoOfTickets(0)");
    person.Type("1");
    person.Tab();
    EXPECT_EQ(Focus(), "txtNoOfExtra");
    person.Tab();
    EXPECT_EQ(Focus(), "chkNumb(0)");
    for (int i = 1; i < 49; ++i) person.Tab();
    EXPECT_EQ(Focus(), "chkNumb(48)");
    person.Tab();
    EXPECT_EQ(Focus(), "chkRegular");
    while (Focus() != "txtDollars" && Focus() != "cmdExit(0)") person.Tab();
    EXPECT_EQ(Focus(), "txtDollars");
}

TEST_F(EnterTickets, OnceAcceptedTheCountIsLeftOutOfTheTabOrder) {
    Show("mnuCANONTLotto649");
    OneSheet(1);
    Click("dtpEnterTickets(0)");
    while (Focus() == "dtpEnterTickets(0)") person.Tab();
    EXPECT_EQ(Focus(), "txtNoOfExtra");
}

TEST_F(EnterTickets, ACountLeftEmptyOnTheReportsTabBecomesNoughtInSuperSevenAlone) {
    for (const char* menu :
         {"mnuCANONTSuper7", "mnuCANONTLotto649", "mnuCANONTLOTTARIO", "mnuCANONTKENO", "mnuCANONTPICK3"}) {
        Show(menu);
        Type("txtNoOfTickets(0)", "");
        person.ClickTab("&Reports");
        EXPECT_EQ(Window().txtNoOfTickets(0).Text(), Window().Which == Family::frm749 ? "0" : "") << menu;
        Window().Leave();
    }
}

TEST_F(EnterTickets, OnTheReportsTabTheAmountFollowsTheFieldThoughNoTicketIsAccepted) {
    Show("mnuCANONTLotto649");
    Type("txtNoOfTickets(0)", "5");
    person.ClickTab("&Reports");
    EXPECT_EQ(global.NoOfTickets, 0);
    EXPECT_EQ(global.Dollars, "5.00");
    EXPECT_EQ(Window().State.CurrentSheet, 1);
    person.ClickTab("&Enter Tickets");
    EXPECT_TRUE(IsEnabled("chkNumb(0)"));
    EXPECT_EQ(CaptionOf("fraTicketNumber"), "Ticket #1 - Sheet 1 of 0");
    EXPECT_FALSE(Find("txtNoOfTickets(0)").focusPolicy() & Qt::TabFocus);
}

TEST_F(EnterTickets, MarksCountsAndChoicesAreLiveFromTheStart) {
    const std::pair<const char*, Texts> games[] = {
        {"mnuCANATLLotto649", {"chkEncore"}},
        {"mnuCANONTLOTTARIO", {"txtNoOfExtra", "chkEarlybird"}},
        {"mnuCANONTKENO", {"txtNoOfExtra", "cboNoOfBallsPerTicket", "cboWager"}},
        {"mnuUSFLACash3", {"cboNumber(0)", "cboNumber(2)", "optPlayOpt(0)", "optOneDollar"}},
        {"mnuUSFLAPlay4", {"cboNumber(3)", "optPlayOpt(1)", "optTwoDollars"}}};
    for (const auto& [menu, live] : games) {
        Show(menu);
        for (const std::string& control : live) EXPECT_TRUE(IsEnabled(control)) << menu << ' ' << control;
        EXPECT_TRUE(IsEnabled("chkRegular")) << menu;
        for (const char* button : {"cmdNext_Ticket", "cmdCorrection", "cmdSave"})
            EXPECT_FALSE(IsEnabled(button)) << menu << ' ' << button;
        Window().Leave();
    }
}

TEST_F(EnterTickets, OfTheTwoLabelsOfTheMoneyOneIsSeen) {
    for (const GameTold& game : GamesTold) {
        Show(game.menu);
        const bool other = Exists("lblDollars") && IsShown("lblDollars");
        EXPECT_NE(IsShown("lblDollarsSpent"), other) << game.menu;
        Window().Leave();
    }
}

TEST_F(EnterTickets, TheCloseBoxIsTheExitOfTheTabInFront) {
    for (const int tab : {0, 1, 2, 3})
        ShowModal("mnuCANONTLotto649", [&](GameWindow& window) {
            window.SSTab1.SetTab(tab);
            person.Close(window);
            EXPECT_FALSE(window.IsShown());
        });
    EXPECT_FALSE(windows.IsLoaded(Family::frm649));
}

TEST_F(EnterTickets, TheProgressOfTicketAndSheetIsPaintedBesideTheTitle) {
    GameWindow& window = Show("mnuCANONTSuper7");
    const auto heading = [&] { return window.Enter.fraTicketNumber.grab(QRect(200, 0, 400, 16)).toImage(); };
    const QImage before = heading();
    EXPECT_EQ(window.Enter.Progress(), "Type how many tickets, then press Tab");
    OneSheet(2);
    EXPECT_EQ(window.Enter.Progress(), "Numbers 0 of 7, tickets filled 0 of 6");
    const QImage open = heading();
    EXPECT_NE(before, open);
    Pick({4, 9});
    EXPECT_EQ(window.Enter.Progress(), "Numbers 2 of 7, tickets filled 0 of 6");
    EXPECT_NE(open, heading());
    EXPECT_EQ(window.Enter.fraTicketNumber.accessibleDescription(), "Numbers 2 of 7, tickets filled 0 of 6");
    Pick({11, 12, 13, 14, 15});
    EXPECT_EQ(window.Enter.Progress(), "Numbers 7 of 7, tickets filled 1 of 6");
    EXPECT_EQ(CaptionOf("fraTicketNumber"), "Ticket #1 - Sheet 1 of 1");
}

TEST_F(EnterTickets, TheProgressOfDigitGamesCountsTicketsAlone) {
    GameWindow& window = Show("mnuCANQC3");
    EXPECT_EQ(window.Enter.Progress(), "");
    OneSheet(2);
    EXPECT_EQ(window.Enter.Progress(), "Tickets filled 0 of 2");
    Visit("cboNumber(2)");
    EXPECT_EQ(window.Enter.Progress(), "Tickets filled 1 of 2");
}

TEST_F(EnterTickets, EscapeDoesNothingInAGameWindow) {
    Show("mnuCANONTLotto649");
    person.Key(Qt::Key_Escape);
    EXPECT_TRUE(Window().IsShown());
}

TEST_F(EnterTickets, ACountBeyondSixteenBitsIsTheOverflowBox) {
    Show("mnuCANONTLotto649");
    Type("txtNoOfTickets(0)", "40000");
    person.Expect("Sorvane", "Run-time error '6':\n\nOverflow", Answer::Ok, BoxStyle::Stop);
    person.Tab();
    EXPECT_TRUE(Window().IsShown());
    EXPECT_EQ(global.NoOfTickets, 0);
}

TEST_F(EnterTickets, LettersPastedIntoTheCountAreATypeMismatch) {
    Show("mnuCANONTLotto649");
    Paste("txtNoOfTickets(0)", "abc");
    person.Expect("Sorvane", "Run-time error '13':\n\nType mismatch", Answer::Ok, BoxStyle::Stop);
    person.Tab();
    EXPECT_TRUE(Window().IsShown());
}

// Some fields on the pages have keys of their own.
class TabKeys : public WindowWorld, public ::testing::WithParamInterface<std::string_view> {};
INSTANTIATE_TEST_SUITE_P(Families, TabKeys,
                         ::testing::Values("mnuCANONTLotto649", "mnuCANONTSuper7", "mnuCANONTLOTTARIO",
                                           "mnuCANONTKENO", "mnuCANONTPICK3", "mnuUSFLAPlay4"),
                         [](const auto& menu) { return std::string(menu.param); });

TEST_P(TabKeys, NextTabAndTheOneBeforeFromEveryControlOfEveryPage) {
    GameWindow& window = Show(GetParam());
    const std::tuple<Qt::Key, Qt::KeyboardModifiers, int> keys[] = {
        {Qt::Key_Tab, Qt::ControlModifier, 1},
        {Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier, 3},
        {Qt::Key_PageDown, Qt::ControlModifier, 1},
        {Qt::Key_PageUp, Qt::ControlModifier, 3}};
    // What refuses to be left is no matter of these keys.
    person.MeetAll([](QWidget& box) { static_cast<QDialog&>(box).reject(); });
    int controls = 0;
    for (int page = 0; page < 4; ++page)
        for (auto* widget : window.Pages[static_cast<std::size_t>(page)].findChildren<QWidget*>())
            for (const auto& [key, modifiers, step] : keys) {
                if (window.SSTab1.Tab() != page) window.SSTab1.SetTab(page);
                auto* control = dynamic_cast<forms::Control*>(widget);
                if (!control || !widget->isVisible() || !(widget->focusPolicy() & Qt::TabFocus)) continue;
                control->SetFocus();
                if (!control->HasFocus()) continue;
                ++controls;
                person.Key(key, modifiers);
                EXPECT_EQ(window.SSTab1.Tab(), (page + step) % 4) << control->Name() << ", key " << key;
            }
    EXPECT_GT(controls, 4 * 20);
}

}  // namespace
}  // namespace sorvane::test

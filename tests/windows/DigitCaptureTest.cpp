#include "windows/Slip.h"

namespace sorvane::test {
namespace {

class DigitWindow : public SlipWorld {
  protected:
    // The digits of a ticket; the last list is left, which ends the ticket.
    void PutDigits(std::initializer_list<int> digits) {
        int i = 0;
        for (const int digit : digits)
            Choose("cboNumber(" + std::to_string(i++) + ")", std::to_string(digit));
        person.Tab();
    }
    // A Pick 3 ticket, and its Encore number typed into the field.
    void TypeTheEncoreOfATicket() {
        Show("mnuCANONTPICK3");
        OneSheet(1);
        Put("txtNoOfExtra", "1");
        PutDigits({1, 2, 3});
        Click("cmdNext_Ticket");
        person.Type("123456");
    }
    void ExpectCancel() {
        person.Expect("CONFIRM", "Are you sure you wish to start over?", Answer::Yes, BoxStyle::YesNo);
    }
    Texts Tickets(std::string_view table) {
        return Rows("SELECT Ball_1, Ball_2, Ball_3, \"Way Played\", Regular FROM " + std::string(table) +
                    " ORDER BY ID1");
    }
};

TEST_F(DigitWindow, EachListHoldsTheDigitsAndShowsZeroFromTheStart) {
    Show("mnuCANONTPICK3");
    for (const auto* list : {"cboNumber(0)", "cboNumber(1)", "cboNumber(2)"}) {
        EXPECT_EQ(ListOf(list), (Texts{"0", "1", "2", "3", "4", "5", "6", "7", "8", "9"}));
        EXPECT_EQ(TextOf(list), "0");
        EXPECT_TRUE(IsEnabled(list));
    }
    Enter("cboNumber(0)");
    person.Type("x");
    EXPECT_EQ(TextOf("cboNumber(0)"), "0") << "what is no entry cannot be typed";
    EXPECT_FALSE(Exists("cboNumber(3)"));
    EXPECT_EQ(CaptionOf("lblNumber(0)"), "1st");
    EXPECT_EQ(CaptionOf("lblNumber(1)"), "2nd");
    EXPECT_EQ(CaptionOf("lblNumber(2)"), "3rd");
    EXPECT_EQ(Window().State.NumbersPerTicket, 3);
}

TEST_F(DigitWindow, TheFourthPlaceIsSpelled4rth) {
    Show("mnuUSFLAPlay4");
    EXPECT_EQ(CaptionOf("lblNumber(3)"), "4rth");
    EXPECT_EQ(TextOf("cboNumber(3)"), "0");
    EXPECT_EQ(Window().State.NumbersPerTicket, 4);
}

TEST_F(DigitWindow, Play4OpensWithoutATitleAndWithACountThatNobodySees) {
    Show("mnuUSFLAPlay4");
    EXPECT_EQ(Window().Caption(), "");
    EXPECT_EQ(windows.Load(Family::frmPick3).Caption(), "Play 4");
    EXPECT_TRUE(Exists("txtNoOfTickets(2)"));
    EXPECT_FALSE(IsShown("txtNoOfTickets(2)"));
}

TEST_F(DigitWindow, NoWayAndNoWagerIsOnAndWaysTheGameLacksAreHidden) {
    const struct {
        const char* menu;
        int ways;
    } games[] = {{"mnuCANONTPICK3", 2}, {"mnuCANBCDAILY3", 3}, {"mnuCANWESTPICK3", 3},
                 {"mnuCANQC3", 3},      {"mnuUSFLACash3", 4},  {"mnuUSFLAPlay4", 2}};
    for (const auto& game : games) {
        Show(game.menu);
        for (int i = 0; i < 4; ++i) {
            const std::string way = "optPlayOpt(" + std::to_string(i) + ")";
            EXPECT_EQ(IsShown(way), i < game.ways) << game.menu << way;
            EXPECT_FALSE(IsTicked(way));
        }
        for (const auto* wager : {"optOneDollar", "optTwoDollars", "optFiveDollars", "optTenDollars"})
            EXPECT_FALSE(IsTicked(wager));
        Window().Leave();
    }
}

TEST_F(DigitWindow, CaptionsOfWaysAndWagersBeforeAnyDressing) {
    Show(Family::frmPick3, "Quote3", "QCQuote3");
    EXPECT_EQ(CaptionOf("optPlayOpt(0)"), "Straight");
    EXPECT_EQ(CaptionOf("optPlayOpt(1)"), "Box");
    EXPECT_EQ(CaptionOf("optPlayOpt(2)"), "Straight && Scramble");
    EXPECT_EQ(CaptionOf("optPlayOpt(3)"), "Straight && Scramble");
    EXPECT_EQ(CaptionOf("fraWayPlayed"), "Way Played");
    EXPECT_EQ(CaptionOf("fraWager"), "Wager");
    EXPECT_EQ(CaptionOf("optOneDollar"), "$1.00");
    EXPECT_EQ(CaptionOf("optTwoDollars"), "$2.00");
    EXPECT_EQ(CaptionOf("optFiveDollars"), "$5.00");
    EXPECT_EQ(CaptionOf("optTenDollars"), "$10.00");
    EXPECT_EQ(CaptionOf("Label1"), "# of Tickets Played:");
    EXPECT_FALSE(Exists("lblDollars"));
    EXPECT_FALSE(Exists("chkNumb(0)"));
}

TEST_F(DigitWindow, EachGameHasItsOwnNamesForTheWays) {
    const struct {
        const char* menu;
        Texts names;
    } games[] = {{"mnuCANONTPICK3", {"Straight", "Box"}},
                 {"mnuCANBCDAILY3", {"Straight", "Scramble", "Straight & Scramble"}},
                 {"mnuCANWESTPICK3", {"Straight", "Box", "Straight & Scramble"}},
                 {"mnuCANQC3", {"Straight", "Box", "Straight & Scramble"}},
                 {"mnuUSFLACash3", {"Straight", "Box", "StraightBox", "Combo"}},
                 {"mnuUSFLAPlay4", {"Straight", "Box"}}};
    for (const auto& game : games) {
        Show(game.menu);
        EXPECT_EQ(global.PlayOption, "");
        for (std::size_t i = 0; i < game.names.size(); ++i) {
            Click("optPlayOpt(" + std::to_string(i) + ")");
            EXPECT_EQ(global.PlayOption, game.names[i]) << game.menu;
        }
        Window().Leave();
    }
}

TEST_F(DigitWindow, OtherFourDigitGamesLeaveTheWayEmpty) {
    Show(Family::frmPick4, "Quote4", "QCQuote4");
    Click("optPlayOpt(1)");
    EXPECT_EQ(global.PlayOption, "");
}

TEST_F(DigitWindow, WagersOfTheFloridaGamesAreHalfOfWhatTheOptionSays) {
    Show("mnuUSFLACash3");
    OneSheet(5);
    EXPECT_EQ(TextOf("txtDollars"), "0.00");
    Click("optOneDollar");
    EXPECT_EQ(TextOf("txtDollars"), "2.50");
    EXPECT_EQ(global.Dollars, "2.50");
    Click("optTwoDollars");
    EXPECT_EQ(TextOf("txtDollars"), "5.00");
}

TEST_F(DigitWindow, WagersOfTheOtherGamesMultiplyTheTickets) {
    Show("mnuCANONTPICK3");
    OneSheet(5);
    EXPECT_EQ(TextOf("txtDollars"), "5.00");
    const struct {
        const char* wager;
        const char* amount;
    } wagers[] = {{"optTwoDollars", "10.00"},
                  {"optFiveDollars", "25.00"},
                  {"optTenDollars", "50.00"},
                  {"optOneDollar", "5.00"}};
    for (const auto& [wager, amount] : wagers) {
        Click(wager);
        EXPECT_EQ(TextOf("txtDollars"), amount);
        EXPECT_EQ(global.Dollars, amount);
    }
}

TEST_F(DigitWindow, AWagerOfPastedLettersForACountIsARunTimeError) {
    Show("mnuCANONTPICK3");
    Paste("txtNoOfTickets(0)", "two");
    ExpectRunTimeError(13);
    Click("txtDollars");
    ExpectRunTimeError(13);
    Click("optOneDollar");
    EXPECT_EQ(TextOf("txtDollars"), "0.00");
}

TEST_F(DigitWindow, TheCountOfAFloridaGameTakesTheSmallWagersAlone) {
    Show("mnuUSFLACash3");
    Click("optOneDollar");
    OneSheet(5);
    EXPECT_EQ(TextOf("txtDollars"), "2.50");
    Click("optTwoDollars");
    OneSheet(7);
    EXPECT_EQ(TextOf("txtDollars"), "7.00");
    Window().Leave();
    Show(Family::frmPick4, "FLAPlay4", "FLAPlay4");  // undressed: the large wagers are to be seen
    OneSheet(3);
    Click("optFiveDollars");
    EXPECT_EQ(TextOf("txtDollars"), "15.00");
    OneSheet(4);
    EXPECT_EQ(TextOf("txtDollars"), "15.00");
}

TEST_F(DigitWindow, TheCountOfTheOtherGamesIgnoresTheWager) {
    Show("mnuCANONTPICK3");
    Click("optTenDollars");
    OneSheet(4);
    EXPECT_EQ(TextOf("txtDollars"), "4.00");
}

TEST_F(DigitWindow, AHalfDollarShowsNoZeroAndBecomesZeroWhenTheFieldIsLeft) {
    for (const auto* menu : {"mnuUSFLACash3", "mnuUSFLAPlay4"}) {
        Show(menu);
        OneSheet(1);
        Click("optOneDollar");
        EXPECT_EQ(TextOf("txtDollars"), ".50") << menu;
        Click("txtDollars");
        person.Expect("ERROR",
                      "Only one decimal point may be used in this field.\r\nPlease enter a valid Dollar "
                      "amount.");
        person.Tab();
        EXPECT_EQ(TextOf("txtDollars"), "0.00") << menu;
        Window().Leave();
    }
}

TEST_F(DigitWindow, StraightBoxMovesTheWagerToTwoUnits) {
    Show("mnuUSFLACash3");
    OneSheet(5);
    Click("optOneDollar");
    Click("optPlayOpt(2)");
    EXPECT_FALSE(IsTicked("optOneDollar"));
    EXPECT_TRUE(IsTicked("optTwoDollars"));
    EXPECT_EQ(TextOf("txtDollars"), "5.00");
    EXPECT_EQ(global.PlayOption, "StraightBox");
}

TEST_F(DigitWindow, TheOtherWaysLeaveTheSmallWagerAndStraightBoxChoosesNoneOfItsOwn) {
    Show("mnuUSFLACash3");
    OneSheet(5);
    Click("optPlayOpt(2)");
    EXPECT_FALSE(IsTicked("optTwoDollars"));
    Click("optOneDollar");
    for (const auto* way : {"optPlayOpt(0)", "optPlayOpt(1)", "optPlayOpt(3)"}) {
        Click(way);
        EXPECT_TRUE(IsTicked("optOneDollar")) << way;
        EXPECT_EQ(TextOf("txtDollars"), "2.50") << way;
    }
}

TEST_F(DigitWindow, TheSmallWagerTakesStraightBoxBackButNotItsName) {
    Show("mnuUSFLACash3");
    OneSheet(5);
    Click("optPlayOpt(2)");
    Click("optOneDollar");
    EXPECT_FALSE(IsTicked("optPlayOpt(2)"));
    EXPECT_TRUE(IsTicked("optOneDollar"));
    EXPECT_EQ(TextOf("txtDollars"), "2.50");
    EXPECT_EQ(global.PlayOption, "StraightBox");
}

TEST_F(DigitWindow, OtherGamesKeepTheirThirdWayWithTheSmallWager) {
    Show("mnuCANQC3");
    OneSheet(1);
    Click("optPlayOpt(2)");
    Click("optOneDollar");
    EXPECT_TRUE(IsTicked("optPlayOpt(2)"));
}

TEST_F(DigitWindow, LeavingTheLastListEndsTheTicket) {
    Show("mnuCANQC3");
    OneSheet(2);
    Choose("cboNumber(0)", "4");
    Choose("cboNumber(1)", "0");
    EXPECT_EQ(global.TicketNo, 0);
    Choose("cboNumber(2)", "9");
    EXPECT_FALSE(IsEnabled("cmdNext_Ticket"));
    person.Tab();
    EXPECT_EQ(global.TicketNo, 1);
    EXPECT_TRUE(IsEnabled("cmdNext_Ticket"));
    EXPECT_TRUE(IsEnabled("cmdCorrection"));
    EXPECT_FALSE(IsEnabled("cmdSave"));
    EXPECT_EQ(Focus(), "cmdNext_Ticket");
}

TEST_F(DigitWindow, ThreeDigitsEndNoTicketOfFour) {
    Show("mnuUSFLAPlay4");
    OneSheet(1);
    Visit("cboNumber(2)");
    EXPECT_EQ(global.TicketNo, 0);
    Visit("cboNumber(3)");
    EXPECT_EQ(global.TicketNo, 1);
    EXPECT_EQ(Focus(), "cmdSave");
}

TEST_F(DigitWindow, LeavingTheLastListTwiceCountsTheTicketTwice) {
    Show("mnuCANQC3");
    OneSheet(3);
    Visit("cboNumber(2)");
    Visit("cboNumber(2)");
    EXPECT_EQ(global.TicketNo, 2);
}

TEST_F(DigitWindow, TicketsAreWrittenWithTheirDigitsAndTheWay) {
    Show("mnuCANQC3");
    OneSheet(2);
    Click("optPlayOpt(1)");
    PutDigits({4, 0, 9});
    Click("cmdNext_Ticket");
    EXPECT_EQ(CaptionOf("fraTicketNumber"), "Ticket #2 - Sheet 1 of 1");
    EXPECT_EQ(TextOf("cboNumber(0)"), "0");
    EXPECT_EQ(TextOf("cboNumber(2)"), "0");
    EXPECT_EQ(Focus(), "cboNumber(0)");
    EXPECT_FALSE(IsEnabled("cmdNext_Ticket"));
    EXPECT_FALSE(IsEnabled("cmdCorrection"));
    PutDigits({0, 0, 7});
    EXPECT_FALSE(IsEnabled("cmdNext_Ticket"));
    EXPECT_EQ(Focus(), "cmdSave");
    SaveSheet(true);
    EXPECT_EQ(Tickets("PlayedQuote3"), (Texts{"4|0|9|Box|0", "0|0|7|Box|0"}));
    EXPECT_EQ(Rows("SELECT Lottoflag FROM PlayedQuote3"), (Texts{"Quote3", "Quote3"}));
    EXPECT_FALSE(windows.IsLoaded(Family::frmPick3));
}

TEST_F(DigitWindow, TheEncoresOfASheetAreCountedFromNought) {
    Show("mnuCANONTPICK3");
    OneSheet(1);
    Put("txtNoOfExtra", "1");
    PutDigits({1, 2, 3});
    global.ExtraNo = 5;
    Click("cmdNext_Ticket");
    EXPECT_EQ(global.ExtraNo, 0);
}

TEST_F(DigitWindow, AWholeNumberOfAnyAddOnLeadsToSave) {
    TypeTheEncoreOfATicket();
    global.ExtraFlag = "QCExtra";  // no game of three digits has it, and the window doesn't ask
    person.Tab();
    EXPECT_TRUE(IsEnabled("cmdSave"));
    EXPECT_EQ(Focus(), "cmdSave");
}

TEST_F(DigitWindow, TheWayIsFixedAfterTheFirstTicket) {
    Show("mnuCANQC3");
    OneSheet(2);
    PutDigits({1, 2, 3});
    EXPECT_TRUE(IsEnabled("optPlayOpt(0)"));
    Click("cmdNext_Ticket");
    EXPECT_FALSE(IsEnabled("fraWayPlayed"));
    EXPECT_TRUE(IsEnabled("optOneDollar"));
    ExpectCancel();
    Click("cmdCancel");
    EXPECT_TRUE(IsEnabled("fraWayPlayed"));
}

TEST_F(DigitWindow, WithoutAWayTheFieldIsWrittenEmpty) {
    Show("mnuCANQC3");
    OneSheet(1);
    PutDigits({1, 2, 3});
    SaveSheet(true);
    EXPECT_EQ(Tickets("PlayedQuote3"), Texts{"1|2|3||0"});
}

TEST_F(DigitWindow, RegularMarksItsOwnTicketOnly) {
    Show("mnuCANQC3");
    OneSheet(2);
    Click("chkRegular");
    PutDigits({1, 2, 3});
    Click("cmdNext_Ticket");
    Click("chkRegular");
    PutDigits({4, 5, 6});
    SaveSheet(true);
    EXPECT_EQ(Rows("SELECT Regular FROM PlayedQuote3 ORDER BY ID1"), (Texts{"1", "0"}));
}

TEST_F(DigitWindow, ARegularMarkStaysInItsSlotForLaterSheets) {
    Show("mnuCANQC3");
    SeveralSheets(2, 2);
    Click("chkRegular");
    PutDigits({1, 2, 3});
    SaveSheet(false);
    Click("chkRegular");
    PutDigits({4, 5, 6});
    SaveSheet(true);
    EXPECT_EQ(Rows("SELECT Regular FROM PlayedQuote3 ORDER BY ID1"), (Texts{"1", "1"}));
}

TEST_F(DigitWindow, ReentryEmptiesTheLists) {
    Show("mnuCANQC3");
    OneSheet(1);
    PutDigits({1, 2, 3});
    Click("cmdCorrection");
    EXPECT_EQ(global.TicketNo, 0);
    EXPECT_EQ(global.Correcting, 1);
    EXPECT_EQ(TextOf("cboNumber(0)"), "0");
    EXPECT_EQ(TextOf("cboNumber(2)"), "0");
    EXPECT_FALSE(IsEnabled("cmdSave"));
    EXPECT_EQ(Focus(), "cboNumber(0)");
    PutDigits({7, 8, 9});
    EXPECT_EQ(global.Correcting, 0);
    SaveSheet(true);
    EXPECT_EQ(Tickets("PlayedQuote3"), Texts{"7|8|9||0"});
}

TEST_F(DigitWindow, ReentryStopsAtNoTickets) {
    Show("mnuCANQC3");
    OneSheet(1);
    PutDigits({1, 2, 3});
    global.TicketNo = 0;
    Click("cmdCorrection");
    EXPECT_EQ(global.TicketNo, 0);
}

TEST_F(DigitWindow, EncoreNumbersFollowTheLastTicket) {
    Show("mnuCANONTPICK3");
    OneSheet(1);
    Put("txtNoOfExtra", "2");
    Click("optPlayOpt(0)");
    PutDigits({1, 2, 3});
    EXPECT_EQ(CaptionOf("cmdNext_Ticket"), "&Enter Encore");
    EXPECT_TRUE(IsEnabled("cmdNext_Ticket"));
    EXPECT_FALSE(IsEnabled("cmdSave"));
    EXPECT_EQ(Focus(), "cmdNext_Ticket");
    EXPECT_EQ(CaptionOf("fraTicketNumber"), "Ticket #1 - Sheet 1 of 1");

    Click("cmdNext_Ticket");
    EXPECT_EQ(CaptionOf("cmdNext_Ticket"), "&Next Encore");
    EXPECT_EQ(CaptionOf("fraTicketNumber"), "Encore Ticket #1 - Sheet 1 of 1");
    for (const auto* control : {"cboNumber(0)", "cboNumber(2)", "chkRegular", "cmdNext_Ticket"})
        EXPECT_FALSE(IsEnabled(control)) << control;
    EXPECT_TRUE(IsShown("lblExtra"));
    EXPECT_EQ(Focus(), "txtEncore");
    EXPECT_EQ(global.EnteringAddOns, 0);

    person.Type("123456");
    person.Tab();
    Click("cmdNext_Ticket");
    EXPECT_EQ(CaptionOf("fraTicketNumber"), "Encore Ticket #2 - Sheet 1 of 1");  // raised before it is shown
    EXPECT_EQ(TextOf("txtEncore"), "");
    EXPECT_EQ(Focus(), "txtEncore");
    person.Type("654321");
    person.Tab();
    EXPECT_EQ(Focus(), "cmdSave");
    SaveSheet(true);
    EXPECT_EQ(Tickets("PlayedONTPick3"), Texts{"1|2|3|Straight|0"});
    EXPECT_EQ(Rows("SELECT Lottoflag, \"Number 1\", \"Number 6\" FROM PlayedEncore ORDER BY ID1"),
              (Texts{"ONTPick3|1|6", "ONTPick3|6|1"}));
}

TEST_F(DigitWindow, NoClickGetsPastAShortEncore) {
    Show("mnuCANONTPICK3");
    OneSheet(1);
    Put("txtNoOfExtra", "1");
    PutDigits({1, 2, 3});
    Click("cmdNext_Ticket");
    person.Type("12345");
    for (const auto* button : {"cmdCancel", "cmdExit(0)", "cmdRegular"}) {
        ExpectShortEncore();
        Click(button);
        EXPECT_EQ(Focus(), "txtEncore");
    }
    EXPECT_TRUE(Window().IsShown());
}

TEST_F(DigitWindow, WithoutEncoreTheTicketIsReadyToBeSaved) {
    Show("mnuCANONTPICK3");
    OneSheet(1);
    Put("txtNoOfExtra", "0");
    PutDigits({1, 2, 3});
    EXPECT_EQ(CaptionOf("cmdNext_Ticket"), "&Next Ticket");
    SaveSheet(true);
    EXPECT_EQ(CountOf("PlayedEncore"), "0");
}

TEST_F(DigitWindow, AnEncoreCountNeverLeftFailsBehindTheTickets) {
    Show("mnuCANONTPICK3");
    Type("txtNoOfTickets(0)", "1");
    Click("chkRegular");
    PutDigits({1, 2, 3});
    ExpectSaveQuestion(Answer::Yes);
    ExpectRunTimeError(9);
    Click("cmdSave");
    EXPECT_EQ(CountOf("PlayedONTPick3"), "1");
    EXPECT_EQ(CountOf("Spent"), "0");
    EXPECT_TRUE(IsEnabled("cmdSave"));
    EXPECT_TRUE(Window().IsShown());
}

TEST_F(DigitWindow, EnterInTheEncoreCountLeadsToTheFirstDigit) {
    Show("mnuCANONTPICK3");
    Click("txtNoOfExtra");
    person.Enter();
    EXPECT_EQ(Focus(), "cboNumber(0)");
}

TEST_F(DigitWindow, TheEncoreCountSelectsItselfOnlyWhenItIsZero) {
    Show("mnuCANONTPICK3");
    Put("txtNoOfExtra", "2");
    Click("txtNoOfExtra");
    person.Type("1");
    EXPECT_EQ(TextOf("txtNoOfExtra"), "21");
    Put("txtNoOfExtra", "0");
    Click("txtNoOfExtra");
    person.Type("1");
    EXPECT_EQ(TextOf("txtNoOfExtra"), "1");
}

TEST_F(DigitWindow, ASheetIsStoredBeforeTheQuestionAndTheAmountBehindTheLastBox) {
    Show("mnuCANQC3");
    OneSheet(1);
    PutDigits({1, 2, 3});
    person.Expect("CONFIRM", "Save this sheet of tickets?", Answer::Yes, BoxStyle::YesNo, [this] {
        EXPECT_EQ(global.Pick3Tickets(0).Numbers(2), 3);
        EXPECT_EQ(CountOf("PlayedQuote3"), "0");
    });
    person.Expect("CONFIRMED", "Tickets Saved", Answer::Ok, BoxStyle::Ok, [this] {
        EXPECT_EQ(CountOf("PlayedQuote3"), "1");
        EXPECT_EQ(CountOf("Spent"), "0");
    });
    Click("cmdSave");
    EXPECT_EQ(Rows("SELECT Lottoflag, Spent FROM Spent"), Texts{"Quote3|1"});
}

TEST_F(DigitWindow, NoEmptiesTheWayWhileItsOptionStillLooksChosen) {
    Show("mnuCANQC3");
    OneSheet(2);
    Click("optPlayOpt(1)");
    PutDigits({1, 2, 3});
    Click("cmdNext_Ticket");
    EXPECT_FALSE(IsEnabled("fraWayPlayed"));
    PutDigits({1, 2, 3});
    RefuseToSave();
    EXPECT_EQ(global.PlayOption, "");
    EXPECT_TRUE(IsTicked("optPlayOpt(1)"));
    EXPECT_TRUE(IsEnabled("fraWayPlayed"));
    EXPECT_EQ(global.TicketNo, 0);
    EXPECT_EQ(TextOf("cboNumber(2)"), "0");
    EXPECT_EQ(CountOf("PlayedQuote3"), "0");
    EXPECT_EQ(Focus(), "txtNoOfTickets(0)");
}

TEST_F(DigitWindow, NoInTheEncorePhaseOpensTheListsAgain) {
    TypeTheEncoreOfATicket();
    person.Tab();
    EXPECT_FALSE(IsEnabled("cboNumber(0)"));
    RefuseToSave();
    for (const auto* list : {"cboNumber(0)", "cboNumber(1)", "cboNumber(2)"}) EXPECT_TRUE(IsEnabled(list));
    EXPECT_EQ(CountOf("PlayedONTPick3"), "0");
}

TEST_F(DigitWindow, NoLeavesTheFourDigitWindowAsItIs) {
    Show("mnuUSFLAPlay4");
    OneSheet(1);
    Click("optPlayOpt(1)");
    PutDigits({1, 2, 3, 4});
    RefuseToSave();
    EXPECT_EQ(global.PlayOption, "Box");
    EXPECT_EQ(global.TicketNo, 1);
    EXPECT_EQ(TextOf("cboNumber(3)"), "4");
    EXPECT_EQ(global.TicketsSaved, 0);
    EXPECT_TRUE(IsEnabled("cmdSave"));
    EXPECT_FALSE(IsEnabled("cmdCorrection"));  // storing took it away
    SaveSheet(true);
    EXPECT_EQ(Rows("SELECT Lottoflag, Ball_1, Ball_4, \"Way Played\" FROM PlayedFLAPlay4"),
              Texts{"FLAPlay4|1|4|Box"});
}

TEST_F(DigitWindow, CancelKeepsTheWayAsItLooks) {
    Show("mnuCANQC3");
    OneSheet(1);
    Click("optPlayOpt(1)");
    ExpectCancel();
    Click("cmdCancel");
    EXPECT_EQ(global.PlayOption, "Box");
    EXPECT_TRUE(IsTicked("optPlayOpt(1)"));
}

TEST_F(DigitWindow, CancelOutOfTheEncorePhaseOpensTheLists) {
    TypeTheEncoreOfATicket();
    ExpectCancel();
    Click("cmdCancel");
    for (const auto* list : {"cboNumber(0)", "cboNumber(1)", "cboNumber(2)"}) {
        EXPECT_TRUE(IsEnabled(list));
        EXPECT_EQ(TextOf(list), "0");
    }
    EXPECT_EQ(CaptionOf("cmdNext_Ticket"), "&Next Ticket");
    EXPECT_EQ(CaptionOf("fraTicketNumber"), "Ticket #1 - Sheet 0 of 0");
}

TEST_F(DigitWindow, AFurtherSheetStartsWithEmptyListsAndTheSameWay) {
    Show("mnuCANONTPICK3");
    SeveralSheets(3, 2, 1);
    Put("txtNoOfExtra", "1");
    Click("optPlayOpt(0)");
    PutDigits({1, 2, 3});
    Click("cmdNext_Ticket");
    person.Type("123456");
    person.Tab();
    SaveSheet(false);
    for (const auto* list : {"cboNumber(0)", "cboNumber(1)", "cboNumber(2)"}) {
        EXPECT_TRUE(IsEnabled(list));
        EXPECT_EQ(TextOf(list), "0");
    }
    EXPECT_FALSE(IsShown("txtEncore"));
    EXPECT_FALSE(IsShown("lblExtra"));
    EXPECT_TRUE(IsEnabled("chkRegular"));
    EXPECT_EQ(global.TicketNo, 0);
    EXPECT_EQ(global.PlayOption, "Straight");
    EXPECT_EQ(Focus(), "cboNumber(0)");
    EXPECT_EQ(CaptionOf("fraTicketNumber"), "Ticket #1 - Sheet 2 of 2");
    EXPECT_EQ(CaptionOf("cmdNext_Ticket"), "&Next Ticket");
    EXPECT_EQ(CountOf("PlayedEncore"), "1");
}

TEST_F(DigitWindow, TheWayStaysFixedOnAFurtherSheet) {
    Show("mnuCANQC3");
    SeveralSheets(3, 2, 2);
    PutDigits({1, 2, 3});
    Click("cmdNext_Ticket");
    PutDigits({4, 5, 6});
    SaveSheet(false);
    EXPECT_FALSE(IsEnabled("fraWayPlayed"));
}

TEST_F(DigitWindow, AtlanticPik4IsSavedUnderOneNameAndCleanedUpUnderAnother) {
    Show(Family::frmPick4, "ATLPik4", "ATLPik4");
    EXPECT_EQ(Window().State.TableName, "PlayedAtlanticPik4");
    SeveralSheets(2, 2);
    PutDigits({1, 2, 3, 4});
    SaveSheet(false);  // makes its table, which nothing has made before
    EXPECT_EQ(CountOf("PlayedATLPik4"), "1");
    person.Expect("Exiting before completion...", CleanUpText, Answer::Yes, BoxStyle::YesNoCancel);
    ExpectMissingTable("PlayedAtlanticPik4");
    person.Expect("Database Cleaned", "Database cleaned!");
    Click("cmdExit(0)");
    EXPECT_EQ(CountOf("PlayedATLPik4"), "1");
}

TEST_F(DigitWindow, AWindowLeftHiddenByPlay4HasNoTablesForTheNextGameUntilItIsSavedOnce) {
    Show("mnuUSFLAPlay4");
    Click("optPlayOpt(1)");
    Click("cmdExit(0)");
    Show("mnuCANBCDAILY3");  // loaded by Play 4: no load event now
    EXPECT_EQ(global.PlayOption, "Box");
    EXPECT_EQ(Rows("SELECT name FROM sqlite_schema WHERE name = 'PlayedBCDaily3'"), Texts{});
    OneSheet(1);
    PutDigits({1, 2, 3});
    ExpectSaveQuestion(Answer::Yes);
    ExpectMissingTable("PlayedBCDaily3");
    person.Expect("CONFIRMED", "Tickets Saved");
    Click("cmdSave");
    EXPECT_EQ(Rows("SELECT Lottoflag FROM Spent"), Texts{"BCDaily3"});
    EXPECT_EQ(CountOf("PlayedBCDaily3"), "0");
    Show("mnuCANBCDAILY3");
    OneSheet(1);
    PutDigits({1, 2, 3});
    SaveSheet(true);
    EXPECT_EQ(CountOf("PlayedBCDaily3"), "1");
}

TEST_F(DigitWindow, AWindowLeftHiddenByPlay4GoesOnFromWhatPlay4Left) {
    Show("mnuUSFLAPlay4");
    OneSheet(1);
    Click("optTwoDollars");
    PutDigits({1, 2, 3, 4});
    Click("cmdExit(0)");
    Show("mnuCANBCDAILY3");
    EXPECT_EQ(global.TicketNo, 1);
    EXPECT_EQ(global.Dollars, "1.00");
    EXPECT_EQ(CaptionOf("fraTicketNumber"), "Ticket #1 - Sheet 0 of 0");
    OneSheet(1);
    EXPECT_EQ(CaptionOf("fraTicketNumber"), "Ticket #2 - Sheet 1 of 1");
    PutDigits({1, 2, 3});
    EXPECT_EQ(global.TicketNo, 2);
    EXPECT_FALSE(IsEnabled("cmdSave"));
}

TEST_F(DigitWindow, AWayThatTheGameHasNoNameForLeavesTheWayAlone) {
    for (const char* game : {"Quote4", "ATLPik4"}) {
        Show(Family::frmPick4, game, game);
        global.PlayOption = "Box";
        Click("optPlayOpt(0)");
        EXPECT_EQ(global.PlayOption, "Box") << game;
        Window().Leave();
    }
    // A way that is no way of this game, as an option that its dressing hides.
    Show("mnuCANONTPICK3");
    global.PlayOption = "Box";
    for (const int hidden : {2, 3}) {
        auto& way = dynamic_cast<forms::OptionButton&>(Find("optPlayOpt(" + std::to_string(hidden) + ")"));
        way.SetValue(true);
        EXPECT_EQ(global.PlayOption, "Box") << hidden;
    }
}

}  // namespace
}  // namespace sorvane::test

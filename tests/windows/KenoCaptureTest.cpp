#include "windows/Slip.h"

namespace sorvane::test {
namespace {

const std::string TicketRow =
    "SELECT Ball_1, Ball_2, Ball_3, Ball_4, Ball_5, Ball_6, Ball_7, Ball_8, Ball_9, Ball_10, Wager, "
    "\"# of Balls\", Regular FROM PlayedONTKeno ORDER BY ID1";

class KenoWindow : public SlipWorld {
  protected:
    void ShowKeno() { Show("mnuCANONTKENO"); }
    // A sheet of one ticket with an Encore number, of several.
    void SaveSheetWithEncore() {
        Put("txtNoOfExtra", "1");
        PutChoices("2", "1.00");
        Pick({1, 2});
        Click("cmdNext_Ticket");
        person.Type("123456");
        person.Tab();
        SaveSheet(false);
    }
    void ShowKeno80() { Show(Family::frmKeno80, "PrairieKeno", "PrairieKeno"); }
    // The balls and the wager of the ticket in hand; the balls last, because leaving them opens the grid.
    void PutChoices(std::string_view balls, std::string_view wager) {
        Put("cboWager", wager);
        Put("cboNoOfBallsPerTicket", balls);
    }
    // The balls alone: backwards out of the list, because the wager behind it would ask for itself.
    void PutBalls(std::string_view balls) {
        Type("cboNoOfBallsPerTicket", balls);
        person.BackTab();
    }
    void ExpectMissingWager() {
        person.Expect("Please Select Wager...",
                      "Please select a valid Wager from the options provided and try again.");
    }
};

TEST_F(KenoWindow, ListsHoldTheBallsAndTheWagersInTheirOrders) {
    ShowKeno();
    const Texts balls{"10", "9", "8", "7", "6", "5", "4", "3", "2"};
    EXPECT_EQ(ListOf("cboNoOfBallsPerTicket"), balls);
    EXPECT_EQ(ListOf("cboNoOfQPs"), balls);
    EXPECT_EQ(ListOf("cboWager"), (Texts{"10.00", "5.00", "2.00", "1.00"}));
    EXPECT_EQ(TextOf("cboNoOfBallsPerTicket"), "");
    EXPECT_EQ(TextOf("cboWager"), "");
    EXPECT_EQ(CaptionOf("lblNoOfBalls"), "# Of Balls Played on this Ticket:");
    EXPECT_EQ(CaptionOf("lblWager"), "Wager:  $");
}

TEST_F(KenoWindow, CancelFillsTheListsAnewAndEmptiesTheirFields) {
    ShowKeno();
    PutChoices("4", "2.00");
    person.Expect("CONFIRM", "Are you sure you wish to start over?", Answer::Yes, BoxStyle::YesNo);
    Click("cmdCancel");
    EXPECT_EQ(ListOf("cboNoOfBallsPerTicket").size(), 9U);
    EXPECT_EQ(ListOf("cboNoOfQPs").size(), 9U);
    EXPECT_EQ(ListOf("cboWager").size(), 4U);
    EXPECT_EQ(TextOf("cboNoOfBallsPerTicket"), "");
    EXPECT_EQ(TextOf("cboWager"), "");
}

TEST_F(KenoWindow, CancelKeepsTheChoicesThatItsListDoesNotName) {
    ShowKeno();
    PutChoices("4", "2.00");
    person.Expect("CONFIRM", "Are you sure you wish to start over?", Answer::Yes, BoxStyle::YesNo);
    Click("cmdCancel");
    EXPECT_EQ(global.Wager, 2);
    EXPECT_EQ(global.NoOfBallsPerTicket, 4);
    EXPECT_FALSE(IsEnabled("chkNumb(0)"));
    EXPECT_EQ(Focus(), "txtNoOfTickets(0)");
}

TEST_F(KenoWindow, AtlanticChoiceHasTheListsAndBancoHasNone) {
    Show(Family::frmKeno70, "ATLChoice", "Tag");
    EXPECT_EQ(ListOf("cboNoOfBallsPerTicket").size(), 9U);
    EXPECT_EQ(ListOf("cboWager").size(), 4U);
    Click("cmdExit(0)");
    Show(Family::frmKeno70, "QCBanco", "QCExtra");
    EXPECT_EQ(ListOf("cboNoOfBallsPerTicket"), Texts{});
    EXPECT_EQ(ListOf("cboWager"), Texts{});
    EXPECT_EQ(ListOf("cboNoOfQPs"), Texts{});
}

TEST_F(KenoWindow, LoadForgetsTheChoicesOfAnEarlierWindow) {
    global.Wager = 5;
    global.NoOfBallsPerTicket = 7;
    ShowKeno();
    EXPECT_EQ(global.Wager, 0);
    EXPECT_EQ(global.NoOfBallsPerTicket, 0);
    EXPECT_EQ(Window().State.NumbersPerTicket, 20);
}

TEST_F(KenoWindow, TheGridStandsForTheSlip) {
    ShowKeno();
    EXPECT_EQ(CaptionOf("chkNumb(0)"), "1");
    EXPECT_EQ(CaptionOf("chkNumb(69)"), "70");
    EXPECT_FALSE(Exists("chkNumb(70)"));
    Click("cmdExit(0)");
    ShowKeno80();
    EXPECT_EQ(CaptionOf("chkNumb(79)"), "80");
    EXPECT_FALSE(Exists("chkNumb(80)"));
}

TEST_F(KenoWindow, WhatThisFamilyLacksIsNotThere) {
    ShowKeno();
    EXPECT_FALSE(Exists("txtPlay4(0)"));
    EXPECT_FALSE(IsShown("chkEncore"));
    EXPECT_EQ(CaptionOf("lblNoOfExtra"), "# of Encore Played this Sheet:");
    EXPECT_EQ(CaptionOf("lblExtra"), "Extra Numbers:");
    Click("cmdExit(0)");
    ShowKeno80();
    for (const auto* name : {"txtEncore", "chkEncore", "lblExtra", "txtPlay4(0)"}) EXPECT_FALSE(Exists(name));
    for (const auto* name : {"txtNoOfExtra", "cboNoOfBallsPerTicket", "cboWager", "txtDollars"})
        EXPECT_TRUE(IsShown(name)) << name;
}

TEST_F(KenoWindow, TheCountLeavesTheGridClosedAndPutsTheAmountWithALeadingBlank) {
    ShowKeno();
    OneSheet(3);
    EXPECT_FALSE(IsEnabled("chkNumb(0)"));
    EXPECT_EQ(TextOf("txtDollars"), " 3.00");
    EXPECT_EQ(global.Dollars, " 3.00");
}

TEST_F(KenoWindow, BallsLeftEmptyBecomeTwoAndOpenTheGridWithoutAWager) {
    ShowKeno();
    OneSheet(1);
    Put("cboNoOfBallsPerTicket", "");
    EXPECT_EQ(TextOf("cboNoOfBallsPerTicket"), "2");
    EXPECT_EQ(global.NoOfBallsPerTicket, 2);
    EXPECT_TRUE(IsEnabled("chkNumb(0)"));
    EXPECT_TRUE(IsEnabled("chkNumb(69)"));
    EXPECT_EQ(global.Wager, 0);
}

TEST_F(KenoWindow, TheBallsAreSelectedWhenTheirListGetsTheFocus) {
    ShowKeno();
    OneSheet(1);
    PutBalls("10");
    Click("cboNoOfBallsPerTicket");
    person.Type("3");
    person.BackTab();
    EXPECT_EQ(global.NoOfBallsPerTicket, 3);
}

TEST_F(KenoWindow, LettersAndTooManyBallsAreRunTimeErrorsThatTheProgramSurvives) {
    ShowKeno();
    OneSheet(1);
    Type("cboNoOfBallsPerTicket", "four");
    ExpectRunTimeError(13);
    person.BackTab();
    EXPECT_FALSE(IsEnabled("chkNumb(0)"));
    Type("cboNoOfBallsPerTicket", "40000");
    ExpectRunTimeError(6);
    person.BackTab();
    PutBalls("4");
    EXPECT_TRUE(IsEnabled("chkNumb(0)"));
}

TEST_F(KenoWindow, AWagerOfLettersIsARunTimeErrorThatTheProgramSurvives) {
    ShowKeno();
    OneSheet(1);
    Type("cboWager", "two");
    ExpectRunTimeError(13);
    person.Tab();
    Put("cboWager", "2.00");
    EXPECT_EQ(global.Wager, 2);
}

TEST_F(KenoWindow, ASixthBallOfFiveCannotBeTaken) {
    ShowKeno();
    OneSheet(1);
    PutChoices("5", "1.00");
    Pick({1, 2, 3, 4, 5});
    EXPECT_FALSE(IsEnabled("chkNumb(5)"));
    EXPECT_FALSE(IsEnabled("chkNumb(0)"));
    Pick({6});
    EXPECT_EQ(Ticked(), (std::vector{1, 2, 3, 4, 5}));
    EXPECT_EQ(global.TicketNo, 1);
    EXPECT_TRUE(IsEnabled("cmdSave"));
    EXPECT_TRUE(IsEnabled("cmdCorrection"));
    EXPECT_FALSE(IsEnabled("cmdNext_Ticket"));
}

TEST_F(KenoWindow, ANumberClickedAgainIsGivenBack) {
    ShowKeno();
    OneSheet(1);
    PutChoices("2", "1.00");
    Pick({7, 7});
    EXPECT_EQ(global.NumbersPicked, 0);
    Pick({9, 8});
    EXPECT_EQ(global.TicketNo, 1);
    EXPECT_EQ(Ticked(), (std::vector{8, 9}));
}

TEST_F(KenoWindow, NoTicketIsCompleteWithoutANumber) {
    ShowKeno();
    OneSheet(1);
    PutChoices("0", "1.00");
    Pick({7, 7});
    EXPECT_EQ(global.TicketNo, 0);
    EXPECT_FALSE(IsEnabled("cmdSave"));
}

TEST_F(KenoWindow, ATicketOfFourLeavesTheOtherBallsZeroAndStandsInAscendingOrder) {
    ShowKeno();
    OneSheet(1);
    PutChoices("4", "5.00");
    Pick({70, 3, 41, 12});
    SaveSheet(true);
    EXPECT_EQ(Rows(TicketRow), Texts{"3|12|41|70|0|0|0|0|0|0|5|4|0"});
    EXPECT_EQ(Rows("SELECT ID1, Lottoflag FROM PlayedONTKeno"), Texts{"1|ONTKeno"});
    EXPECT_EQ(Rows("SELECT Spent FROM Spent"), Texts{"5"});
    EXPECT_FALSE(windows.IsLoaded(Family::frmKeno70));
}

TEST_F(KenoWindow, EachTicketKeepsItsOwnBallsAndWagerWhileTheAmountStays) {
    ShowKeno();
    OneSheet(2);
    PutChoices("4", "2.00");
    EXPECT_EQ(TextOf("txtDollars"), "4.00");
    Pick({1, 2, 3, 4});
    EXPECT_TRUE(IsEnabled("cmdNext_Ticket"));
    EXPECT_FALSE(IsEnabled("cmdSave"));
    Click("cmdNext_Ticket");
    EXPECT_EQ(Focus(), "cboWager");
    EXPECT_EQ(CaptionOf("fraTicketNumber"), "Ticket #2 - Sheet 1 of 1");
    EXPECT_EQ(Ticked(), std::vector<int>{});
    EXPECT_TRUE(IsEnabled("chkNumb(0)"));
    PutChoices("6", "1.00");
    EXPECT_EQ(global.Wager, 1);
    EXPECT_EQ(TextOf("txtDollars"), "4.00");
    Pick({11, 12, 13, 14, 15, 16});
    SaveSheet(true);
    EXPECT_EQ(Rows(TicketRow), (Texts{"1|2|3|4|0|0|0|0|0|0|2|4|0", "11|12|13|14|15|16|0|0|0|0|1|6|0"}));
    EXPECT_EQ(Rows("SELECT Spent FROM Spent"), Texts{"4"});
}

TEST_F(KenoWindow, TheWagerSetsTheAmountUntilTheFirstTicketIsStored) {
    ShowKeno();
    OneSheet(2);
    PutChoices("2", "2.00");
    EXPECT_EQ(TextOf("txtDollars"), "4.00");
    Pick({1, 2});
    Put("cboWager", "10.00");  // complete, but not stored yet
    EXPECT_EQ(TextOf("txtDollars"), "20.00");
    EXPECT_EQ(global.Dollars, "20.00");
}

TEST_F(KenoWindow, TheAmountIsNeverClosedOnTheWay) {
    ShowKeno();
    const auto expectOpen = [this](const char* step) { EXPECT_TRUE(IsEnabled("txtDollars")) << step; };
    expectOpen("load");
    SeveralSheets(3, 2, 2);
    Put("txtNoOfExtra", "1");
    PutChoices("2", "2.00");
    expectOpen("choices");
    Pick({1, 2});
    expectOpen("ticket");
    Click("cmdNext_Ticket");
    expectOpen("next ticket");
    Click("chkNumb(0)");
    Pick({4});
    Click("cmdNext_Ticket");
    expectOpen("encore");
    person.Type("123456");
    person.Tab();
    SaveSheet(false);
    expectOpen("next sheet");
    // What is typed there is what the entry costs.
    Put("txtDollars", "7.25");
    Pick({5, 6});
    SaveSheet(true);
    EXPECT_EQ(Rows("SELECT Spent FROM Spent"), Texts{"7.25"});
}

TEST_F(KenoWindow, AfterCancelTheWagerSetsTheAmountAgain) {
    ShowKeno();
    OneSheet(2);
    PutChoices("2", "2.00");
    Pick({1, 2});
    Click("cmdNext_Ticket");
    person.Expect("CONFIRM", "Are you sure you wish to start over?", Answer::Yes, BoxStyle::YesNo);
    Click("cmdCancel");
    OneSheet(1);
    PutChoices("2", "5.00");
    EXPECT_EQ(TextOf("txtDollars"), "5.00");
}

TEST_F(KenoWindow, ADisabledAmountLeavesTheWagerAlone) {
    ShowKeno();
    OneSheet(1);
    Window().Enter.txtDollars.SetEnabled(false);
    Put("cboWager", "5.00");
    EXPECT_EQ(global.Wager, 5);
    EXPECT_EQ(TextOf("txtDollars"), " 1.00");
    Window().State.CurrentSheet = 2;  // and the stop of later sheets does not stand then
    Put("cboWager", "2.00");
    EXPECT_EQ(global.Wager, 2);
}

TEST_F(KenoWindow, OnTheSecondSheetTheWagerTouchesNothing) {
    ShowKeno();
    SeveralSheets(3, 2, 1);
    PutChoices("2", "2.00");
    EXPECT_EQ(TextOf("txtDollars"), "6.00");
    Pick({1, 2});
    SaveSheet(false);
    PutChoices("2", "10.00");
    EXPECT_EQ(TextOf("txtDollars"), "6.00");
    EXPECT_EQ(global.Wager, 2);
}

TEST_F(KenoWindow, AnEmptyWagerIsAskedForAndNoClickGetsPast) {
    ShowKeno();
    OneSheet(1);
    Click("cboWager");
    ExpectMissingWager();
    Click("cboNoOfBallsPerTicket");
    EXPECT_EQ(Focus(), "cboWager");
    ExpectMissingWager();
    Click("cmdCancel");
    EXPECT_EQ(Focus(), "cboWager");
    person.Type("1");
    person.Tab();
    EXPECT_EQ(global.Wager, 1);
}

TEST_F(KenoWindow, ATicketWithoutAWagerIsSavedWithZero) {
    ShowKeno();
    OneSheet(1);
    PutBalls("2");
    Pick({1, 2});
    SaveSheet(true);
    EXPECT_EQ(Rows("SELECT Wager FROM PlayedONTKeno"), Texts{"0"});
}

TEST_F(KenoWindow, BallsTypedBeyondTenAreKeptAsTypedButTenAreWritten) {
    ShowKeno();
    OneSheet(1);
    PutChoices("12", "1.00");
    Pick({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12});
    SaveSheet(true);
    EXPECT_EQ(Rows(TicketRow), Texts{"1|2|3|4|5|6|7|8|9|10|1|12|0"});
}

TEST_F(KenoWindow, RegularIsWrittenForItsOwnTicketOnly) {
    ShowKeno();
    OneSheet(2);
    PutChoices("2", "1.00");
    Pick({1, 2});
    Click("chkRegular");
    Click("cmdNext_Ticket");
    Click("chkNumb(2)");
    Click("chkRegular");
    Pick({4});
    SaveSheet(true);
    EXPECT_EQ(Rows("SELECT Regular FROM PlayedONTKeno ORDER BY ID1"), (Texts{"1", "0"}));
}

TEST_F(KenoWindow, AReenteredTicketOfFewerBallsLeavesNoOldOnes) {
    ShowKeno();
    OneSheet(1);
    PutChoices("4", "1.00");
    Pick({1, 2, 3, 4});
    Click("cmdCorrection");
    EXPECT_EQ(global.TicketNo, 0);
    EXPECT_EQ(Ticked(), std::vector<int>{});
    EXPECT_EQ(Focus(), "chkNumb(0)");
    EXPECT_EQ(CaptionOf("fraTicketNumber"), "Ticket #1 - Sheet 1 of 1");
    Put("cboNoOfBallsPerTicket", "2");
    Pick({60, 50});
    SaveSheet(true);
    EXPECT_EQ(Rows(TicketRow), Texts{"50|60|0|0|0|0|0|0|0|0|1|2|0"});
}

TEST_F(KenoWindow, SlotsOfAnEarlierSheetDoNotShineThrough) {
    ShowKeno();
    SeveralSheets(2, 2);
    PutChoices("4", "1.00");
    Pick({1, 2, 3, 4});
    SaveSheet(false);
    Put("cboNoOfBallsPerTicket", "2");
    Pick({5, 6});
    SaveSheet(true);
    EXPECT_EQ(Rows(TicketRow), (Texts{"1|2|3|4|0|0|0|0|0|0|1|4|0", "5|6|0|0|0|0|0|0|0|0|1|2|0"}));
}

TEST_F(KenoWindow, ATicketThatWasReenteredIsNotOfferedForReentryAgain) {
    ShowKeno();
    OneSheet(1);
    PutChoices("2", "1.00");
    Pick({1, 2});
    Click("cmdCorrection");
    EXPECT_EQ(global.Correcting, 1);
    EXPECT_FALSE(IsEnabled("cmdSave"));
    Pick({3, 4});
    EXPECT_EQ(global.Correcting, 0);
    EXPECT_FALSE(IsEnabled("cmdCorrection"));
    EXPECT_TRUE(IsEnabled("cmdSave"));
}

TEST_F(KenoWindow, ReentryLowersTheCountOfTicketsWithoutATestForZero) {
    ShowKeno();
    OneSheet(1);
    PutChoices("2", "1.00");
    Pick({1, 2});
    global.TicketNo = 0;
    Click("cmdCorrection");
    EXPECT_EQ(global.TicketNo, -1);
}

TEST_F(KenoWindow, AChangeOfBallsAfterTheTicketCompletesNoOther) {
    ShowKeno();
    OneSheet(2);
    PutChoices("4", "1.00");
    Pick({1, 2, 3, 4});
    Put("cboNoOfBallsPerTicket", "2");
    Click("cmdNext_Ticket");
    EXPECT_EQ(global.TicketNo, 1);
    EXPECT_EQ(CaptionOf("fraTicketNumber"), "Ticket #2 - Sheet 1 of 1");
}

TEST_F(KenoWindow, BoxesClearedByALoadCompleteNoTicket) {
    ShowKeno();
    OneSheet(2);
    PutChoices("4", "1.00");
    Pick({1, 2, 3});
    Window().Form_Load();
    EXPECT_TRUE(Ticked().empty());
    EXPECT_EQ(global.TicketNo, 0);
    EXPECT_FALSE(IsEnabled("cmdNext_Ticket"));
    EXPECT_FALSE(IsEnabled("cmdCorrection"));
}

TEST_F(KenoWindow, EncoreNumbersFollowTheLastTicket) {
    ShowKeno();
    OneSheet(1);
    Put("txtNoOfExtra", "2");
    PutChoices("2", "1.00");
    Pick({1, 2});
    EXPECT_EQ(CaptionOf("cmdNext_Ticket"), "&Enter Encore");
    EXPECT_TRUE(IsEnabled("cmdNext_Ticket"));
    EXPECT_FALSE(IsEnabled("cmdSave"));

    Click("cmdNext_Ticket");
    EXPECT_EQ(CaptionOf("cmdNext_Ticket"), "&Next Encore");
    EXPECT_FALSE(IsEnabled("cmdNext_Ticket"));
    EXPECT_EQ(CaptionOf("fraTicketNumber"), "Ticket #2 - Sheet 1 of 1");  // the title counts tickets on
    EXPECT_EQ(CaptionOf("lblExtra"), "Encore Numbers");
    EXPECT_TRUE(IsShown("lblExtra"));
    EXPECT_EQ(Focus(), "txtEncore");
    EXPECT_EQ(global.EnteringAddOns, 0);

    person.Type("123456");
    person.Tab();
    EXPECT_EQ(Focus(), "cmdNext_Ticket");
    Click("cmdNext_Ticket");
    EXPECT_EQ(CaptionOf("cmdNext_Ticket"), "&Next Encore");
    EXPECT_EQ(TextOf("txtEncore"), "");
    EXPECT_EQ(Focus(), "txtEncore");
    EXPECT_EQ(global.ExtraNo, 1);

    person.Type("654321");
    person.Tab();
    EXPECT_EQ(Focus(), "cmdSave");
    SaveSheet(true);
    EXPECT_EQ(Rows("SELECT \"Number 1\", \"Number 6\", Lottoflag FROM PlayedEncore ORDER BY ID1"),
              (Texts{"1|6|ONTKeno", "6|1|ONTKeno"}));
    // Stored again at each of these clicks with no box ticked: the numbers stay.
    EXPECT_EQ(Rows(TicketRow), Texts{"1|2|0|0|0|0|0|0|0|0|1|2|0"});
}

TEST_F(KenoWindow, StoringAgainWithoutNumbersWritesTheOtherFields) {
    ShowKeno();
    OneSheet(1);
    Put("txtNoOfExtra", "1");
    PutChoices("2", "1.00");
    Pick({1, 2});
    Click("cmdNext_Ticket");
    person.Type("123456");
    Click("chkRegular");
    EXPECT_EQ(Focus(), "cmdSave");
    Put("cboNoOfBallsPerTicket", "3");
    SaveSheet(true);
    EXPECT_EQ(Rows(TicketRow), Texts{"1|2|0|0|0|0|0|0|0|0|1|3|1"});
}

TEST_F(KenoWindow, AShortEncoreHoldsEveryClick) {
    ShowKeno();
    OneSheet(1);
    Put("txtNoOfExtra", "1");
    PutChoices("2", "1.00");
    Pick({1, 2});
    Click("cmdNext_Ticket");
    person.Type("12345");
    ExpectShortEncore();
    Click("cmdCancel");
    ExpectShortEncore(Answer::Cancel);
    Click("cmdExit(0)");
    EXPECT_EQ(Focus(), "txtEncore");
    EXPECT_TRUE(Window().IsShown());
    EXPECT_FALSE(IsEnabled("cmdSave"));
}

TEST_F(KenoWindow, AtlanticChoiceOpensNoEncoreField) {
    Show(Family::frmKeno70, "ATLChoice", "Encore");
    OneSheet(1);
    Put("txtNoOfExtra", "1");
    PutChoices("2", "1.00");
    Pick({1, 2});
    Click("cmdNext_Ticket");
    EXPECT_EQ(CaptionOf("cmdNext_Ticket"), "&Next Encore");
    EXPECT_FALSE(IsShown("txtEncore"));
    EXPECT_EQ(Focus(), "cboWager");
}

TEST_F(KenoWindow, EnterInTheEncoreCountLeadsToTheGridWhenItIsOpen) {
    ShowKeno();
    OneSheet(1);
    Click("txtNoOfExtra");
    person.Enter();
    EXPECT_EQ(Focus(), "txtNoOfExtra");
    PutBalls("2");
    Click("txtNoOfExtra");
    person.Enter();
    EXPECT_EQ(Focus(), "chkNumb(0)");
}

TEST_F(KenoWindow, EnterInTheCountAsksForAButtonOnAnotherTabAndStays) {
    ShowKeno();
    Type("txtNoOfTickets(0)", "1");
    person.Enter();
    EXPECT_EQ(Focus(), "txtNoOfTickets(0)");
}

TEST_F(KenoWindow, AFurtherSheetStartsWithEmptyEncoreFields) {
    ShowKeno();
    SeveralSheets(3, 2, 1);
    SaveSheetWithEncore();
    EXPECT_EQ(CaptionOf("fraTicketNumber"), "Ticket #1 - Sheet 2 of 2");
    EXPECT_EQ(CaptionOf("cmdNext_Ticket"), "&Next Ticket");
    EXPECT_EQ(TextOf("txtNoOfExtra"), "0");
    EXPECT_EQ(TextOf("txtEncore"), "0");
    EXPECT_FALSE(IsShown("txtEncore"));
    EXPECT_FALSE(IsShown("lblExtra"));
    EXPECT_FALSE(IsEnabled("cmdSave"));
    EXPECT_TRUE(IsEnabled("chkNumb(0)"));
    EXPECT_EQ(Focus(), "txtNoOfExtra");
    EXPECT_EQ(global.ExtraNo, 0);
    EXPECT_EQ(global.TicketNo, 0);
    EXPECT_EQ(global.NoOfTicketsOnSheet, 2);  // the last sheet takes all that is left
}

TEST_F(KenoWindow, EverySheetCountsItsEncoresFromTheFirst) {
    ShowKeno();
    SeveralSheets(2, 2);
    const std::pair<const char*, const char*> sheets[] = {{"123456", "234567"}, {"345678", "456789"}};
    for (const auto& [first, second] : sheets) {
        const bool last = std::string(first) == "345678";
        Put("txtNoOfExtra", "2");
        PutChoices("2", "1.00");
        Pick({1, 2});
        Click("cmdNext_Ticket");
        Put("txtEncore", first);
        EXPECT_FALSE(IsEnabled("cmdSave")) << first;
        Click("cmdNext_Ticket");
        Put("txtEncore", second);
        SaveSheet(last);
    }
    EXPECT_EQ(Rows("SELECT [Number 1] FROM PlayedEncore ORDER BY ID1"), (Texts{"1", "2", "3", "4"}));
}

TEST_F(KenoWindow, NoThrowsTheEntryAwayAndTheWindowIsIdle) {
    ShowKeno();
    OneSheet(1);
    PutChoices("3", "2.00");
    Pick({1, 2, 3});
    RefuseToSave();
    EXPECT_EQ(global.TicketNo, 0);
    EXPECT_EQ(global.Wager, 0);
    EXPECT_EQ(global.NoOfBallsPerTicket, 0);
    EXPECT_EQ(global.TicketsSaved, 0);
    EXPECT_EQ(ListOf("cboNoOfBallsPerTicket").size(), 9U);
    EXPECT_EQ(ListOf("cboWager").size(), 4U);
    EXPECT_EQ(Ticked(), std::vector<int>{});
    EXPECT_FALSE(IsEnabled("chkNumb(0)"));
    EXPECT_FALSE(IsEnabled("cmdSave"));
    EXPECT_FALSE(IsEnabled("cmdCorrection"));
    EXPECT_EQ(Rows("SELECT * FROM PlayedONTKeno"), Texts{});
    EXPECT_EQ(Focus(), "txtNoOfTickets(0)");
}

TEST_F(KenoWindow, CancelOffersTheCleanUpUnderItsOwnTitle) {
    ShowKeno();
    SeveralSheets(2, 2);
    SaveSheetWithEncore();
    EXPECT_EQ(Rows("SELECT COUNT(*) FROM PlayedEncore"), Texts{"1"});
    person.Expect("CONFIRM", "Are you sure you wish to start over?", Answer::Yes, BoxStyle::YesNo);
    ExpectCleanUp(Answer::Yes, "Cancelling before completion...");
    Click("cmdCancel");
    EXPECT_EQ(Rows("SELECT COUNT(*) FROM PlayedONTKeno"), Texts{"0"});
    EXPECT_EQ(Rows("SELECT COUNT(*) FROM PlayedEncore"), Texts{"0"});
    EXPECT_EQ(global.TicketsSaved, 0);
    EXPECT_TRUE(Window().IsShown());
}

TEST_F(KenoWindow, EnterLeavesTheSavedSheetsOfAnEntryThatIsCancelled) {
    ShowKeno();
    SeveralSheets(2, 2);
    SaveSheetWithEncore();
    person.Expect("CONFIRM", "Are you sure you wish to start over?", Answer::Yes, BoxStyle::YesNo);
    person.ExpectKey("Cancelling before completion...", CleanUpText, Qt::Key_Return, BoxStyle::YesNoCancel);
    Click("cmdCancel");
    EXPECT_EQ(CountOf("PlayedONTKeno"), "1");
}

TEST_F(KenoWindow, AnAmountThatStartsWithAPointEndsAsZero) {
    ShowKeno();
    OneSheet(1);
    Type("txtDollars", ".50");
    // Behind the box stands nought with the blank that the amount at the count has too.
    person.Expect("ERROR",
                  "Only one decimal point may be used in this field.\r\nPlease enter a valid Dollar amount.",
                  Answer::Ok, BoxStyle::Ok, [this] { EXPECT_EQ(Window().Enter.txtDollars.Text(), " 0.00"); });
    person.Tab();
    EXPECT_EQ(TextOf("txtDollars"), "0.00");
    EXPECT_EQ(global.Dollars, "0.00");
}

TEST_F(KenoWindow, TheEightyGridOpensAtTheCountWithoutBallsOrWager) {
    ShowKeno80();
    EXPECT_FALSE(IsEnabled("chkNumb(0)"));
    OneSheet(1);
    EXPECT_TRUE(IsEnabled("chkNumb(79)"));
    EXPECT_EQ(TextOf("txtDollars"), "1.00");
}

TEST_F(KenoWindow, TheListsOfTheEightyAreOutOfTheFlow) {
    ShowKeno80();
    OneSheet(1);
    Visit("cboWager");
    Visit("cboNoOfBallsPerTicket");
    EXPECT_EQ(TextOf("cboNoOfBallsPerTicket"), "");
    EXPECT_EQ(ListOf("cboWager"), Texts{});
}

TEST_F(KenoWindow, AnEightyTicketHasTwentyNumbersOfWhichTenAreWritten) {
    ShowKeno80();
    OneSheet(2);
    Pick({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19});
    EXPECT_EQ(global.TicketNo, 0);
    Pick({80});
    EXPECT_TRUE(IsEnabled("cmdNext_Ticket"));
    EXPECT_FALSE(IsEnabled("cmdSave"));
    Click("cmdNext_Ticket");
    EXPECT_EQ(CaptionOf("fraTicketNumber"), "Ticket #2 - Sheet 1 of 1");
    EXPECT_EQ(Focus(), "chkNumb(0)");
    Pick({61, 62, 63, 64, 65, 66, 67, 68, 69, 70, 71, 72, 73, 74, 75, 76, 77, 78, 79, 80});
    EXPECT_FALSE(IsEnabled("cmdNext_Ticket"));
    EXPECT_TRUE(IsEnabled("cmdSave"));
    EXPECT_EQ(CaptionOf("cmdNext_Ticket"), "&Next Ticket");
    SaveSheet(true);  // makes its table, which nothing has made before
    EXPECT_EQ(Rows("SELECT Ball_1, Ball_10, Wager, \"# of Balls\" FROM PlayedPrairieKeno ORDER BY ID1"),
              (Texts{"1|10|0|0", "61|70|0|0"}));
}

TEST_F(KenoWindow, TheEightyAsksForTheTicketsOfTheLastSheetTooAndTakesNoAnswer) {
    ShowKeno80();
    SeveralSheets(3, 2, 1);
    PickFrom(1, 20);
    ExpectSaveQuestion(Answer::Yes);
    person.Expect("CONFIRMED", "Tickets Saved - Enter Next Sheet");
    person.ExpectWindow("frmTicketsOnSheet", [this](QWidget&) {
        Type("txtNoOfTicketsOnSheet", "2");
        person.Expect("ERROR!",
                      "You have entered an amount which doesn't allow enough tickets for your last sheet.\r\n"
                      "Please select a new amount and Click on 'OK' again.");
        Click("cmdOk");
        Click("cmdCancel");
    });
    Click("cmdSave");
    EXPECT_EQ(global.NoOfTicketsOnSheet, 2);  // the refused number is the right one
    for (int ticket = 1; ticket <= 2; ++ticket) {
        PickFrom(21, 20);
        if (ticket < 2) Click("cmdNext_Ticket");
    }
    SaveSheet(true);
    EXPECT_EQ(CountOf("PlayedPrairieKeno"), "3");
}

TEST_F(KenoWindow, NoLeavesTheEightyAsItIs) {
    ShowKeno80();
    OneSheet(1);
    Pick({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20});
    RefuseToSave();
    EXPECT_EQ(global.TicketNo, 1);
    EXPECT_EQ(Ticked().size(), 20U);
    EXPECT_TRUE(IsEnabled("cmdSave"));
    EXPECT_EQ(global.TicketsSaved, 0);
    SaveSheet(true);
    EXPECT_EQ(Rows("SELECT COUNT(*) FROM PlayedPrairieKeno"), Texts{"1"});
}

}  // namespace
}  // namespace sorvane::test

// Sheet by sheet: the count, the two questions, saving, cancel, and leaving half-way.
#include "entry/ui/CountDialogs.h"
#include "windows/Slip.h"

namespace sorvane::test {
namespace {

class SheetFlowTest : public SlipWorld {
  protected:
    // Tickets of six, each on numbers of its own.
    void Fill(int tickets) {
        for (int i = 0; i < tickets; ++i) {
            PickFrom(1 + 6 * i, 6);
            if (i + 1 < tickets) Click("cmdNext_Ticket");
        }
    }
};

TEST_F(SheetFlowTest, OneTicketIsOneSheetWithoutADialog) {
    Show("mnuCANBCBC49");
    Count("1");
    EXPECT_EQ(global.NoOfSheets, 1);
    EXPECT_EQ(global.NoOfTicketsOnSheet, 1);
    EXPECT_EQ(CaptionOf("fraTicketNumber"), "Ticket #1 - Sheet 1 of 1");
    EXPECT_TRUE(IsEnabled("chkNumb(0)"));
    EXPECT_EQ(TextOf("txtDollars"), "0.50");
}

TEST_F(SheetFlowTest, TenTicketsOnTenSheetsNeverAskHowTheyAreSpread) {
    Show("mnuCANBCBC49");
    ExpectSheets("10");
    Count("10");
    EXPECT_EQ(global.NoOfTicketsOnSheet, 1);
    for (int sheet = 1; sheet <= 10; ++sheet) {
        PickFrom(sheet, 6);
        SaveSheet(sheet == 10);
    }
    EXPECT_EQ(CountOf("PlayedBC49"), "10");
    EXPECT_EQ(Rows("SELECT Spent FROM Spent"), Texts{"5"});
}

TEST_F(SheetFlowTest, MoreSheetsThanTicketsAreRefused) {
    Show("mnuCANBCBC49");
    person.ExpectWindow("frmHowManySheets", [&](QWidget& dialog) {
        EXPECT_EQ(dialog.windowTitle().toStdString(), "Number of Sheets played for this Draw Date");
        Type("txtNoOfSheets", "4");
        person.Expect("ERROR", "Number of Sheets exceeds Number of Tickets. Please try again.");
        Click("cmdOk");
        EXPECT_EQ(Focus(), "txtNoOfSheets");
        Type("txtNoOfSheets", "");
        person.Expect("ERROR", "Please enter a valid number");
        Click("cmdOk");
        // The refused number stays, and asks how its sheets are filled.
        ExpectCancelled("frmTicketsOnSheet");
        Click("cmdCancel");
    });
    Count("3");
    EXPECT_EQ(global.NoOfSheets, 4);
}

TEST_F(SheetFlowTest, TheDialogsTakeDigitsAloneAndEnterLeadsToOk) {
    Show("mnuCANBCBC49");
    person.ExpectWindow("frmHowManySheets", [&](QWidget&) {
        EXPECT_EQ(Focus(), "txtNoOfSheets");
        ExpectBadNumber();
        person.Type("x");
        EXPECT_EQ(TextOf("txtNoOfSheets"), "");
        person.Type("1");
        person.Enter();
        EXPECT_EQ(Focus(), "cmdOk");
        person.Enter();
    });
    Count("2");
    EXPECT_EQ(global.NoOfTicketsOnSheet, 2);
}

TEST_F(SheetFlowTest, EscapeAndTheCloseBoxCancelTheDialogs) {
    Show("mnuCANBCBC49");
    person.ExpectWindow("frmHowManySheets", [&](QWidget&) { person.Key(Qt::Key_Escape); });
    Count("2");
    EXPECT_EQ(global.NoOfSheets, 0);
    person.ExpectWindow("frmHowManySheets", [&](QWidget& dialog) { person.Close(dialog); });
    Count("2");
    EXPECT_EQ(global.NoOfSheets, 0);
    for (const bool escape : {true, false}) {
        ExpectSheets("2");
        person.ExpectWindow("frmTicketsOnSheet", [&](QWidget& dialog) {
            Type("txtNoOfTicketsOnSheet", "2");
            if (escape) person.Key(Qt::Key_Escape);
            else person.Close(dialog);
        });
        Count("3");
        EXPECT_EQ(global.NoOfTicketsOnSheet, 0);
    }
}

TEST_F(SheetFlowTest, WhatIsPastedIntoTheDialogsIsReadAsAnIntegerAndAnEmptyCountOfTicketsIsNought) {
    Show("mnuCANBCBC49");
    const auto refuse = [&](const std::string& field) {
        for (const auto& [text, error] : {std::pair{"two", 13}, std::pair{"40000", 6}}) {
            Paste(field, text);
            ExpectRunTimeError(error);
            Click("cmdOk");
        }
    };
    person.ExpectWindow("frmHowManySheets", [&](QWidget&) {
        refuse("txtNoOfSheets");
        person.ExpectWindow("frmTicketsOnSheet", [&](QWidget&) {
            refuse("txtNoOfTicketsOnSheet");
            global.NoOfTicketsOnSheet = 9;
            Type("txtNoOfTicketsOnSheet", "");
            Click("cmdOk");
        });
        Type("txtNoOfSheets", "2");
        Click("cmdOk");
    });
    Count("3");
    EXPECT_EQ(global.NoOfTicketsOnSheet, 0);
}

TEST_F(SheetFlowTest, WithoutASheetTheTicketCompletesButNothingFollowsUntilTheCountIsLeftAgain) {
    Show("mnuCANBCBC49");
    ExpectCancelled("frmHowManySheets");
    Count("2");
    EXPECT_EQ(CaptionOf("fraTicketNumber"), "Ticket #1 - Sheet 1 of 0");
    PickFrom(1, 6);
    EXPECT_EQ(global.TicketNo, 1);
    EXPECT_FALSE(IsEnabled("cmdNext_Ticket"));
    EXPECT_FALSE(IsEnabled("cmdSave"));
    Click("cmdCorrection");
    ExpectSheets("0");
    Count("2");
    EXPECT_EQ(global.NoOfSheets, 0);
    EXPECT_EQ(CaptionOf("fraTicketNumber"), "Ticket #1 - Sheet 1 of 0");
    PickFrom(1, 6);
    EXPECT_EQ(global.TicketNo, 1);
    EXPECT_FALSE(IsEnabled("cmdNext_Ticket"));
    EXPECT_FALSE(IsEnabled("cmdSave"));
    Click("cmdCorrection");
    ExpectSheets("1");
    Count("2");
    EXPECT_EQ(global.NoOfTicketsOnSheet, 2);
    PickFrom(1, 6);
    EXPECT_TRUE(IsEnabled("cmdNext_Ticket"));
    Click("cmdNext_Ticket");
    PickFrom(7, 6);
    EXPECT_TRUE(IsEnabled("cmdSave"));
}

TEST_F(SheetFlowTest, TicketsOnASheetThatIsNotTheLastAreTestedInTheirOrder) {
    Show("mnuCANBCBC49");
    ExpectSheets("2");
    const std::string again = "\r\nPlease select a new amount and Click on 'OK' again.";
    person.ExpectWindow("frmTicketsOnSheet", [&](QWidget& dialog) {
        EXPECT_EQ(dialog.windowTitle().toStdString(), "Number of Tickets on this Sheet?");
        const auto refused = [&](const char* tickets, const std::string& message) {
            Type("txtNoOfTicketsOnSheet", tickets);
            person.Expect("ERROR!", message + again);
            Click("cmdOk");
            EXPECT_EQ(Focus(), "txtNoOfTicketsOnSheet");
        };
        refused("5", "You have entered an amount greater than the total number of tickets purchased.");
        refused("4", "You have entered an amount which doesn't allow enough tickets for your last sheet.");
        Type("txtNoOfTicketsOnSheet", "3");
        Click("cmdOk");
    });
    Count("4");
    EXPECT_EQ(global.NoOfTicketsOnSheet, 3);
}

TEST_F(SheetFlowTest, MoreTicketsThanAreLeftAreRefusedOnALaterSheet) {
    Show("mnuCANBCBC49");
    ExpectSheets("3");
    ExpectTicketsOnSheet("2");
    Count("5");
    Fill(2);
    ExpectSaveQuestion(Answer::Yes);
    person.Expect("CONFIRMED", "Tickets Saved - Enter Next Sheet");
    person.ExpectWindow("frmTicketsOnSheet", [&](QWidget&) {
        Type("txtNoOfTicketsOnSheet", "4");
        person.Expect("ERROR!",
                      "You have entered an amount greater than the number of tickets left to enter.\r\n"
                      "Please select a new amount and Click on 'OK' again.");
        Click("cmdOk");
        Type("txtNoOfTicketsOnSheet", "1");
        Click("cmdOk");
    });
    Click("cmdSave");
    EXPECT_EQ(CaptionOf("fraTicketNumber"), "Ticket #1 - Sheet 2 of 3");
    EXPECT_EQ(Focus(), "txtNoOfExtra");
    PickFrom(1, 6);
    SaveSheet(false);
    // The last sheet takes the two that are left, and nobody is asked.
    EXPECT_EQ(global.NoOfTicketsOnSheet, 2);
    Fill(2);
    SaveSheet(true);
    EXPECT_EQ(CountOf("PlayedBC49"), "5");
    EXPECT_EQ(Rows("SELECT ID1, Lottoflag, Spent FROM Spent"), Texts{"1|BC49|2.5"});
}

TEST_F(SheetFlowTest, ASheetThatIsNotTheLastAsksForItsTicketsEvenIfTwoAreLeft) {
    Show("mnuCANBCBC49");
    SeveralSheets(5, 3, 3);
    Fill(3);
    ExpectSaveQuestion(Answer::Yes);
    person.Expect("CONFIRMED", "Tickets Saved - Enter Next Sheet");
    ExpectTicketsOnSheet("1");
    Click("cmdSave");
    EXPECT_EQ(global.NoOfTicketsOnSheet, 1);
}

TEST_F(SheetFlowTest, ACountLeftAtNoughtOpensNoGridAndAsksNothing) {
    Show("mnuCANBCBC49");
    Visit("txtNoOfTickets(0)");
    EXPECT_FALSE(IsEnabled("chkNumb(0)"));
    EXPECT_EQ(Window().Enter.Progress(), "Type how many tickets, then press Tab");
    // A sheet of no known tickets: the hint stays, too.
    ExpectCancelled("frmHowManySheets");
    Count("2");
    EXPECT_TRUE(IsEnabled("chkNumb(0)"));
    EXPECT_EQ(Window().Enter.Progress(), "Type how many tickets, then press Tab");
}

TEST_F(SheetFlowTest, DefaultAmountsFollowTheGame) {
    const std::pair<const char*, const char*> games[] = {
        {"mnuCANBCBC49", "1.50"},  {"mnuCANONTONT49", "1.50"},  {"mnuCANQCQuebec49", "1.50"},
        {"mnuCANWEST649", "3.00"}, {"mnuCANONTSuper7", "6.00"}, {"mnuCANONTLOTTARIO", "3.00"}};
    for (const auto& [menu, amount] : games) {
        Show(menu);
        OneSheet(3);
        EXPECT_EQ(TextOf("txtDollars"), amount) << menu;
        EXPECT_EQ(global.Dollars, amount) << menu;
        Window().Leave();
    }
}

TEST_F(SheetFlowTest, QuebecFortyNinesAddOnBoxIsLiveOnceTheCountIsAccepted) {
    Show("mnuCANQCQuebec49");
    EXPECT_TRUE(IsShown("chkEncore"));
    EXPECT_FALSE(IsEnabled("chkEncore"));
    OneSheet(1);
    EXPECT_TRUE(IsEnabled("chkEncore"));
}

TEST_F(SheetFlowTest, ThreeSheetsAreOneRowOfSpendingWrittenAtTheLast) {
    Show("mnuCANBCBC49");
    ExpectSheets("3");
    Count("3");
    for (int sheet = 1; sheet <= 3; ++sheet) {
        PickFrom(sheet, 6);
        SaveSheet(sheet == 3);
        EXPECT_EQ(CountOf("Spent"), sheet == 3 ? "1" : "0");
    }
}

TEST_F(SheetFlowTest, TheAmountIsWhateverThePlayerLeftThere) {
    Show("mnuCANBCBC49");
    Count("1");
    Put("txtDollars", "1234.56");
    PickFrom(1, 6);
    SaveSheet(true);
    EXPECT_EQ(Rows("SELECT Lottoflag, Spent FROM Spent"), Texts{"BC49|1234.56"});
}

TEST_F(SheetFlowTest, AnAmountOfNoughtIsARowToo) {
    Show("mnuCANBCBC49");
    Count("1");
    Put("txtDollars", "0.00");
    PickFrom(1, 6);
    SaveSheet(true);
    EXPECT_EQ(Rows("SELECT Spent FROM Spent"), Texts{"0"});
}

TEST_F(SheetFlowTest, ABadAmountLeavesTheTicketsSavedWithoutAnyMoney) {
    Show("mnuCANBCBC49");
    Count("1");
    PickFrom(1, 6);
    global.Dollars = ".";
    ExpectSaveQuestion(Answer::Yes);
    person.Expect("ERROR!", "ERROR #3421\r\nPlease enter a valid amount and try again.", Answer::Ok,
                  BoxStyle::Stop);
    person.Expect("CONFIRMED", "Tickets Saved");
    Click("cmdSave");
    EXPECT_EQ(CountOf("PlayedBC49"), "1");
    EXPECT_EQ(CountOf("Spent"), "0");
}

TEST_F(SheetFlowTest, NoThrowsTheWholeEntryAwayButSavedSheetsStay) {
    Show("mnuCANBCBC49");
    ExpectSheets("2");
    Count("2");
    PickFrom(1, 6);
    SaveSheet(false);
    EXPECT_EQ(global.TicketsSaved, True);
    PickFrom(7, 6);
    ExpectSaveQuestion(Answer::No);
    Click("cmdSave");
    EXPECT_EQ(CountOf("PlayedBC49"), "1");
    EXPECT_FALSE(IsEnabled("cmdSave"));
    EXPECT_FALSE(IsEnabled("chkNumb(0)"));
    EXPECT_FALSE(IsTicked("chkNumb(6)"));
    EXPECT_EQ(global.TicketNo, 0);
    EXPECT_EQ(global.TicketsSaved, 0);
    EXPECT_EQ(Focus(), "txtNoOfTickets(0)");
    // What loading does not name stays: the fields, the title and the counts of the entry.
    EXPECT_EQ(TextOf("txtNoOfTickets(0)"), "2");
    EXPECT_EQ(TextOf("txtDollars"), "1.00");
    EXPECT_EQ(CaptionOf("fraTicketNumber"), "Ticket #1 - Sheet 2 of 2");
    EXPECT_EQ(global.NoOfTickets, 1);
    EXPECT_EQ(global.NoOfSheets, 2);
    EXPECT_EQ(global.NoOfTicketsOnSheet, 1);
    EXPECT_EQ(global.SheetTickets, 2);
}

TEST_F(SheetFlowTest, AnIncompleteSheetIsNotWritten) {
    Show("mnuCANBCBC49");
    OneSheet(2);
    PickFrom(1, 6);
    Window().Enter.cmdSave.SetEnabled(true);
    ExpectSaveQuestion(Answer::Yes);
    Click("cmdSave");
    EXPECT_EQ(CountOf("PlayedBC49"), "0");
    EXPECT_EQ(global.TicketsSaved, 0);
    EXPECT_TRUE(Window().IsShown());
}

TEST_F(SheetFlowTest, TheLastSheetUnloadsTheWindow) {
    ShowModal("mnuCANBCBC49", [&](GameWindow& window) {
        Count("1");
        PickFrom(1, 6);
        SaveSheet(true);
        EXPECT_FALSE(window.IsShown());
        EXPECT_FALSE(windows.IsLoaded(Family::frm649));
    });
    EXPECT_EQ(global.NoOfTickets, 0);
    EXPECT_EQ(global.Dollars, "0");
    EXPECT_EQ(global.Msg, "");
}

TEST_F(SheetFlowTest, AFailedSaveStillSaysTicketsSavedAndTheEntryGoesOn) {
    Show("mnuCANBCBC49");
    ExpectSheets("2");
    Count("2");
    Do("INSERT INTO PlayedBC49 (ID1) VALUES (2)");
    PickFrom(1, 6);
    ExpectSaveQuestion(Answer::Yes);
    person.Expect("ERROR!",
                  "ERROR #3022\r\nUnexpected error occurred. Please advise error number to support.",
                  Answer::Ok, BoxStyle::Stop);
    person.Expect("CONFIRMED", "Tickets Saved - Enter Next Sheet");
    Click("cmdSave");
    EXPECT_EQ(CaptionOf("fraTicketNumber"), "Ticket #1 - Sheet 2 of 2");
}

TEST_F(SheetFlowTest, WithoutSheetsTheQuestionForTheTicketsOfOneTakesAllThatAreLeft) {
    global.NoOfTickets = global.TotalTickets = 3;
    for (const int sheets : {2, 0}) {
        global.NoOfSheets = sheets;
        frmTicketsOnSheet question(session);
        person.ExpectWindow("frmTicketsOnSheet", [&](QWidget&) {
            Type("txtNoOfTicketsOnSheet", "3");
            if (sheets > 0)
                person.Expect("ERROR!",
                              "You have entered an amount which doesn't allow enough tickets for your last "
                              "sheet.\r\nPlease select a new amount and Click on 'OK' again.");
            Click("cmdOk");
            if (sheets > 0) Click("cmdCancel");
        });
        windows.ShowModal(question);
        EXPECT_EQ(global.NoOfTicketsOnSheet, 3);
    }
}

TEST_F(SheetFlowTest, EnterSavesASheetAndThrowsNoEntryAway) {
    Show("mnuCANBCBC49");
    SeveralSheets(2, 2);
    PickFrom(1, 6);
    person.ExpectKey("CONFIRM", "Save this sheet of tickets?", Qt::Key_Return, BoxStyle::YesNo);
    person.Expect("CONFIRMED", "Tickets Saved - Enter Next Sheet");
    Click("cmdSave");
    EXPECT_EQ(CountOf("PlayedBC49"), "1");
    Pick({1, 2});
    person.ExpectKey("CONFIRM", "Are you sure you wish to start over?", Qt::Key_Return, BoxStyle::YesNo);
    Click("cmdCancel");
    EXPECT_TRUE(IsTicked("chkNumb(1)"));
    person.ExpectKey("Exiting before completion...", CleanUpText, Qt::Key_Return, BoxStyle::YesNoCancel);
    Click("cmdExit(0)");
    EXPECT_EQ(CountOf("PlayedBC49"), "1");
}

TEST_F(SheetFlowTest, CancelAsksAndStartsOverWithoutTouchingTheStore) {
    Show("mnuCANBCBC49");
    ExpectSheets("2");
    Count("2");
    PickFrom(1, 6);
    SaveSheet(false);
    Pick({1, 2});
    person.Expect("CONFIRM", "Are you sure you wish to start over?", Answer::No, BoxStyle::YesNo);
    Click("cmdCancel");
    EXPECT_TRUE(IsTicked("chkNumb(1)"));
    person.Expect("CONFIRM", "Are you sure you wish to start over?", Answer::Yes, BoxStyle::YesNo);
    Click("cmdCancel");
    EXPECT_FALSE(IsTicked("chkNumb(1)"));
    EXPECT_FALSE(IsEnabled("chkNumb(0)"));
    EXPECT_EQ(CaptionOf("fraTicketNumber"), "Ticket #1 - Sheet 0 of 0");
    EXPECT_EQ(TextOf("txtNoOfTickets(0)"), "0");
    EXPECT_EQ(TextOf("txtDollars"), "0.00");
    EXPECT_EQ(global.Dollars, "0");
    EXPECT_EQ(CaptionOf("cmdNext_Ticket"), "&Next Ticket");
    EXPECT_EQ(Focus(), "txtNoOfTickets(0)");
    EXPECT_EQ(global.TicketsSaved, True);
    EXPECT_EQ(CountOf("PlayedBC49"), "1");
    // Nothing is left to finish, so leaving asks nothing.
    Click("cmdExit(0)");
    EXPECT_FALSE(Window().IsShown());
}

TEST_F(SheetFlowTest, CancelLeavesNothingCountedMarkedOrOpen) {
    Show("mnuCANBCLotto649");
    OneSheet(1);
    Put("txtNoOfExtra", "1");
    PickFrom(1, 6);
    Click("cmdNext_Ticket");
    ASSERT_TRUE(IsShown("txtPlay4(0)"));
    Window().Enter.cmdCorrection.SetEnabled(true);
    global.TicketNo = global.ExtraNo = global.NoOfExtra = global.NumbersPicked = 3;
    ASSERT_EQ(Ticked().size(), 6u);
    StartOver();
    EXPECT_EQ(global.TicketNo, 0);
    EXPECT_EQ(global.ExtraNo, 0);
    EXPECT_EQ(global.NoOfExtra, 0);
    EXPECT_EQ(global.NumbersPicked, 0);
    EXPECT_EQ(Ticked(), std::vector<int>{});
    EXPECT_FALSE(IsEnabled("cmdCorrection"));
    EXPECT_EQ(TextOf("txtNoOfTickets(0)"), "0");
    EXPECT_EQ(TextOf("txtNoOfExtra"), "0");
    EXPECT_FALSE(IsShown("lblExtra"));
    EXPECT_FALSE(IsShown("txtPlay4(3)"));
}

TEST_F(SheetFlowTest, LeavingBeforeAnySheetWasSavedAsksNothing) {
    Show("mnuCANBCBC49");
    OneSheet(2);
    PickFrom(1, 6);
    Click("cmdExit(0)");
    EXPECT_FALSE(Window().IsShown());
}

class HalfSaved : public SheetFlowTest {
  protected:
    // The first of two sheets is saved.
    void Begin(std::string_view menu) {
        Show(menu);
        ExpectSheets("2");
        Count("2");
        PickFrom(1, 6);
        SaveSheet(false);
    }
};

TEST_F(HalfSaved, CancelLeavesTheWindowAllTheSame) {
    Begin("mnuCANBCBC49");
    ExpectCleanUp(Answer::Cancel);
    Click("cmdExit(0)");
    EXPECT_FALSE(Window().IsShown());
    EXPECT_EQ(CountOf("PlayedBC49"), "1");
    EXPECT_EQ(CountOf("Spent"), "0");
}

TEST_F(HalfSaved, NoLeavesTheRowsAndTheWindow) {
    Begin("mnuCANBCBC49");
    ExpectCleanUp(Answer::No);
    Click("cmdExit(0)");
    EXPECT_FALSE(Window().IsShown());
    EXPECT_EQ(CountOf("PlayedBC49"), "1");
    EXPECT_EQ(CountOf("Spent"), "0");
}

TEST_F(HalfSaved, ACountOfNoughtQuickPicksLeavesNothingToCleanUp) {
    Begin("mnuCANBCBC49");
    person.ClickTab("&Quick Pick");
    Put("txtNoOfTickets(1)", "0");
    Click("cmdExit(1)");
    EXPECT_FALSE(Window().IsShown());
    EXPECT_EQ(CountOf("PlayedBC49"), "1");
}

TEST_F(HalfSaved, TheCloseBoxAsksToCleanUpAsTheExitDoesFromAnyTab) {
    Begin("mnuCANBCBC49");
    Window().SSTab1.SetTab(Tab::Check);
    ExpectCleanUp(Answer::Cancel);
    person.Close(Window());
    EXPECT_FALSE(Window().IsShown());
    EXPECT_EQ(CountOf("PlayedBC49"), "1");
}

TEST_F(HalfSaved, KenoCleansNoAddOnTableButEncores) {
    Show(Family::frmKeno70, "ATLChoice", "Extra");
    const std::string day = std::to_string(Date::FromText(Today).Day());
    Do("INSERT INTO PlayedATLChoice (ID1, Date) VALUES (1, " + day + ")");
    Click("txtDollars");
    global.NoOfTickets = global.NoOfSheets = 2;
    global.TicketsSaved = True;
    Window().State.CurrentSheet = 2;
    Window().State.SavedDate = Date::FromText(Today);
    // PlayedExtra does not exist: touching it would show its box.
    ExpectCleanUp(Answer::Yes);
    Click("cmdExit(0)");
    EXPECT_EQ(CountOf("PlayedATLChoice"), "0");
}

TEST_F(HalfSaved, KenoOfEightyCleansEncoresTooAndNoOtherAddOn) {
    const std::string day = std::to_string(Date::FromText(Today).Day());
    Show("mnuCANONTKENO");  // which makes the table of the Encores
    Window().Leave();
    for (const char* addOn : {"Encore", "Extra"}) {
        Do("DELETE FROM PlayedEncore");
        Do("INSERT INTO PlayedEncore (ID1, Date) VALUES (1, " + day + ")");
        Show(Family::frmKeno80, "PrairieKeno", addOn);
        SeveralSheets(2, 2);
        PickFrom(1, 20);
        SaveSheet(false);
        // PlayedExtra does not exist: touching it would show its box.
        ExpectCleanUp(Answer::Yes);
        Click("cmdExit(0)");
        EXPECT_EQ(CountOf("PlayedPrairieKeno"), "0") << addOn;
        EXPECT_EQ(CountOf("PlayedEncore"), std::string(addOn) == "Encore" ? "0" : "1") << addOn;
    }
}

TEST_F(HalfSaved, YesRemovesAllRowsOfTheDateFromBothTablesWhicheverGameTheyCarry) {
    Begin("mnuCANBCBC49");
    const std::string day = std::to_string(Date::FromText(Today).Day());
    Do("INSERT INTO PlayedBC49 (ID1, Date) VALUES (70, " + day + "), (71, 1)");
    Do("INSERT INTO PlayedExtra (ID1, Lottoflag, Date) VALUES (1, 'Super 7', " + day + "), (2, 'BC49', 1)");
    for (const char* ledger : {"Spent", "Winnings"})
        Do("INSERT INTO " + std::string(ledger) + " (ID1, Lottoflag, Date) VALUES (1, 'BC49', " + day + ")");
    ExpectCleanUp(Answer::Yes);
    Click("cmdExit(0)");
    EXPECT_EQ(Rows("SELECT ID1 FROM PlayedBC49"), Texts{"71"});
    EXPECT_EQ(Rows("SELECT ID1 FROM PlayedExtra"), Texts{"2"});
    EXPECT_EQ(CountOf("Spent"), "1");
    EXPECT_EQ(CountOf("Winnings"), "1");
}

TEST_F(HalfSaved, TheDateIsThatOfTheLastSaveEvenIfACheckOrEnterWinningsHasMovedOn) {
    for (const bool winnings : {false, true}) {
        Begin("mnuCANBCBC49");
        Window().SSTab1.SetTab(Tab::Check);
        Window().dtpEnterTickets(2).SetValue(Date::FromText("2006-03-01"));
        if (winnings)
            person.Expect(
                "ERROR!",
                "ERROR #0\r\nNo entry for this Draw Date. Please check the Draw Date\r\nand try again.");
        else person.Expect("ERROR", "Missing Data. Please enter a valid number from 1 to 49 and try again.");
        Click(winnings ? "cmdEnterWinnings" : "cmdCheck");
        EXPECT_EQ(Window().State.WindowDate.ToText(), "2006-03-01");
        ExpectCleanUp(Answer::Yes);
        Click("cmdExit(2)");
        EXPECT_EQ(CountOf("PlayedBC49"), "0");
    }
}

TEST_F(HalfSaved, TheAddOnRowsOfTheLastSaveGoWithItsTicketsAndThoseOfALaterCheckStay) {
    Show("mnuCANBCBC49");
    SeveralSheets(2, 2);
    Put("txtNoOfExtra", "1");
    PickFrom(1, 6);
    Click("cmdNext_Ticket");
    for (int box = 0; box < 4; ++box) Put("txtPlay4(" + std::to_string(box) + ")", "5");
    SaveSheet(false);
    const std::string other = std::to_string(Date::FromText("2006-03-01").Day());
    Do("INSERT INTO PlayedExtra (ID1, Date) VALUES (70, " + other + ")");
    Window().SSTab1.SetTab(Tab::Check);
    Window().dtpEnterTickets(2).SetValue(Date::FromText("2006-03-01"));
    person.Expect("ERROR", "Missing Data. Please enter a valid number from 1 to 49 and try again.");
    Click("cmdCheck");
    ExpectCleanUp(Answer::Yes);
    Click("cmdExit(2)");
    EXPECT_EQ(CountOf("PlayedBC49"), "0");
    EXPECT_EQ(Rows("SELECT ID1 FROM PlayedExtra"), Texts{"70"});
}

TEST_F(HalfSaved, ASheetOfAnotherDateThatWasNotSavedLeavesTheDateOfTheLastSave) {
    Show("mnuUSFLAPlay4");
    SeveralSheets(2, 2);
    Visit("cboNumber(3)");
    SaveSheet(false);
    Window().dtpEnterTickets(0).SetValue(Date::FromText("2006-03-01"));
    Visit("cboNumber(3)");
    RefuseToSave();
    EXPECT_EQ(Window().State.WindowDate.ToText(), "2006-03-01");
    ExpectCleanUp(Answer::Yes);
    Click("cmdExit(0)");
    EXPECT_EQ(CountOf("PlayedFLAPlay4"), "0");
}

TEST_F(HalfSaved, AfterACleanUpOfEarlierRowsEveryLaterSaveMeetsATakenKey) {
    Begin("mnuCANBCBC49");
    Do("INSERT INTO PlayedBC49 (ID1, Date) VALUES (2, 1)");
    ExpectCleanUp(Answer::Yes);
    Click("cmdExit(0)");
    for (int entry = 1; entry <= 2; ++entry) {
        Show("mnuCANBCBC49");
        Count("1");
        PickFrom(1, 6);
        ExpectSaveQuestion(Answer::Yes);
        person.Expect("ERROR!",
                      "ERROR #3022\r\nUnexpected error occurred. Please advise error number to support.",
                      Answer::Ok, BoxStyle::Stop);
        person.Expect("CONFIRMED", "Tickets Saved");
        Click("cmdSave");
        EXPECT_EQ(Rows("SELECT ID1 FROM PlayedBC49"), Texts{"2"});
    }
}

TEST_F(HalfSaved, WesternExtraIsCleanedToo) {
    Show("mnuCANWESTSuper7");
    SeveralSheets(2, 2);
    Click("chkEncore");
    Put("txtEncore", "1234567");
    for (int ticket = 1; ticket <= 3; ++ticket) {
        PickFrom(ticket, 7);
        if (ticket < 3) Click("cmdNext_Ticket");
    }
    SaveSheet(false);
    EXPECT_EQ(CountOf("PlayedSuper7"), "3");
    EXPECT_EQ(CountOf("PlayedWESTExtra"), "1");
    ExpectCleanUp(Answer::Yes);
    Click("cmdExit(0)");
    EXPECT_EQ(CountOf("PlayedSuper7"), "0");
    EXPECT_EQ(CountOf("PlayedWESTExtra"), "0");
}

TEST_F(SheetFlowTest, ADateAlreadyInUseTakesFurtherRows) {
    for (int entry = 1; entry <= 2; ++entry) {
        Show("mnuCANBCBC49");
        Count("1");
        PickFrom(1, 6);
        SaveSheet(true);
    }
    EXPECT_EQ(Rows("SELECT ID1, Date FROM PlayedBC49"), (Texts{"1|38787", "2|38787"}));
    EXPECT_EQ(Rows("SELECT ID1, Spent FROM Spent"), (Texts{"1|0.5", "2|0.5"}));
}

TEST_F(SheetFlowTest, TwoRegionsOfOneGameShareItsTicketsAndOneCleanUpRemovesBoth) {
    global.AddOnTickets.Redim(1);
    Show("mnuCANATLLotto649");
    Count("1");
    PickFrom(1, 6);
    SaveSheet(true);
    Show("mnuCANQCLotto649");
    ExpectSheets("2");
    Count("2");
    PickFrom(7, 6);
    SaveSheet(false);
    EXPECT_EQ(CountOf("PlayedLotto649"), "2");
    ExpectCleanUp(Answer::Yes);
    Click("cmdExit(0)");
    EXPECT_EQ(CountOf("PlayedLotto649"), "0");
}

class EveryEntry : public SlipWorld, public ::testing::WithParamInterface<Family> {
  protected:
    // Three tickets on two sheets, two of them on the first; no add-on game beside them.
    void Begin() {
        const PerFamily<const char*> keys{
            {"Lotto649", "Super 7", "Lottario", "ONTKeno", "PrairieKeno", "ONTPick3", "FLAPlay4"}};
        Show(GetParam(), keys[GetParam()], "");
        SeveralSheets(3, 2, 2);
        if (GetParam() != Family::frmKeno70) return;
        Put("cboWager", "1.00");
        Put("cboNoOfBallsPerTicket", "2");
    }
    void Ticket() {
        if (IsPick(GetParam())) Visit(GetParam() == Family::frmPick3 ? "cboNumber(2)" : "cboNumber(3)");
        else PickFrom(1, PerFamily<int>{{6, 7, 6, 2, 20, 0, 0}}[GetParam()]);
    }
    // All tickets of the sheet, bonus tickets included, on from those that are there.
    void FillSheet() {
        while (!IsEnabled("cmdSave")) {
            if (IsEnabled("cmdNext_Ticket")) Click("cmdNext_Ticket");
            Ticket();
        }
    }
};
INSTANTIATE_TEST_SUITE_P(Families, EveryEntry, ::testing::ValuesIn(AllFamilies),
                         [](const auto& test) { return std::string(NameOf(test.param)); });

TEST_P(EveryEntry, CountsAsSavedOnceASheetWasReallyWritten) {
    Begin();
    Ticket();
    Window().Enter.cmdSave.SetEnabled(true);
    ExpectSaveQuestion(Answer::Yes);
    Click("cmdSave");  // one ticket of two: nothing is written, and nothing is said
    EXPECT_EQ(global.TicketsSaved, Off);
    Window().Enter.cmdSave.SetEnabled(false);
    FillSheet();
    SaveSheet(false);
    EXPECT_EQ(global.TicketsSaved, True);
    Ticket();
    global.NoOfTicketsOnSheet = 5;  // more than are entered
    Window().Enter.cmdSave.SetEnabled(true);
    ExpectSaveQuestion(Answer::Yes);
    Click("cmdSave");
    EXPECT_EQ(global.TicketsSaved, True);
    EXPECT_EQ(CountOf("Spent"), "0");
    // These two stay as they are; the others load again, which forgets what was saved.
    const bool stays = GetParam() == Family::frmKeno80 || GetParam() == Family::frmPick4;
    RefuseToSave();
    EXPECT_EQ(global.TicketsSaved, stays ? True : Off);
}

TEST_P(EveryEntry, MakesLostTablesAgainBehindASaveButKenoOfEighty) {
    Begin();
    FillSheet();
    Do("DROP TABLE Winnings");
    SaveSheet(false);
    const Texts again = Rows("SELECT name FROM sqlite_schema WHERE name = 'Winnings'");
    EXPECT_EQ(again, GetParam() == Family::frmKeno80 ? Texts{} : Texts{"Winnings"});
}

TEST_P(EveryEntry, BeginsAFurtherSheetLikeTheFirst) {
    Begin();
    FillSheet();
    SaveSheet(false);
    for (const char* closed : {"cmdNext_Ticket", "cmdCorrection", "cmdSave"})
        EXPECT_FALSE(IsEnabled(closed)) << closed;
    EXPECT_TRUE(IsEnabled("chkRegular"));
    EXPECT_TRUE(IsEnabled("cmdCancel"));
    EXPECT_EQ(CaptionOf("cmdNext_Ticket"), "&Next Ticket");
    EXPECT_EQ(CaptionOf("fraTicketNumber"), "Ticket #1 - Sheet 2 of 2");
    EXPECT_TRUE(Ticked().empty());
    EXPECT_EQ(global.NumbersPicked, 0);
    EXPECT_EQ(global.TicketNo, 0);
    EXPECT_EQ(global.NoOfTickets, 1);
    EXPECT_EQ(global.NoOfTicketsOnSheet, 1);
    EXPECT_EQ(Window().State.BonusPhase, Off);
}

TEST_P(EveryEntry, EndsWithEmptyFieldsAndClosedButtons) {
    Begin();
    FillSheet();
    SaveSheet(false);
    Ticket();
    FillSheet();
    SaveSheet(true);
    const GameWindow& window = Window();
    EXPECT_FALSE(window.IsShown());
    for (const auto* button : {&window.Enter.cmdSave, &window.Enter.cmdCorrection, &window.Enter.cmdCancel})
        EXPECT_FALSE(button->Enabled()) << button->Name();
    EXPECT_EQ(window.Enter.txtDollars.Text(), "0");
    EXPECT_EQ(window.txtNoOfTickets(0).Text(), "0");
    EXPECT_EQ(global.Dollars, "0");
    EXPECT_EQ(global.NoOfTickets, 0);
    EXPECT_EQ(global.NoOfTicketsOnSheet, 0);
}

TEST_P(EveryEntry, ACorrectionBeforeAnyTicketStopsAtNoughtButInKeno) {
    Begin();
    Window().Enter.cmdCorrection.SetEnabled(true);
    Click("cmdCorrection");
    EXPECT_EQ(global.TicketNo, GetParam() == Family::frmKeno70 || GetParam() == Family::frmKeno80 ? -1 : 0);
}

TEST_P(EveryEntry, LeavesWithoutAQuestionAfterANo) {
    Begin();
    FillSheet();
    RefuseToSave();
    EXPECT_EQ(global.TicketsSaved, Off);
    person.Close(Window());
    EXPECT_FALSE(Window().IsShown());
}

TEST_P(EveryEntry, LoadsWithItsOwnCountersAtNoughtAndLeavesTheOthers) {
    Begin();
    Window().Leave();
    const auto put = [this](int number) {
        for (Integer* counter :
             {&global.NoOfTickets, &global.SheetTickets, &global.NoOfTicketsOnSheet, &global.Correcting,
              &global.TotalTickets, &global.TicketNo, &global.ExtraNo, &global.NoOfExtra,
              &global.NumbersPicked, &global.EnteringAddOns, &global.EntryCounter, &global.EntryCounter2})
            *counter = number;
    };
    put(7);
    windows.Load(GetParam());
    for (const Integer* zero :
         {&global.TotalTickets, &global.TicketNo, &global.ExtraNo, &global.NoOfExtra, &global.NumbersPicked,
          &global.EnteringAddOns, &global.EntryCounter, &global.EntryCounter2, &global.Correcting})
        EXPECT_EQ(*zero, 0);
    for (const Integer* kept : {&global.NoOfTickets, &global.SheetTickets, &global.NoOfTicketsOnSheet})
        EXPECT_EQ(*kept, 7);
}

}  // namespace
}  // namespace sorvane::test

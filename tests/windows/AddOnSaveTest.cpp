// The add-on numbers of a sheet as they are written, and what fails behind the rows of the tickets.
#include "windows/AddOnSlip.h"

namespace sorvane::test {
namespace {

TEST_F(AddOnWindow, PastedLettersInTheEncoreAreARunTimeErrorWhenTheyAreStored) {
    EnterTicket("mnuCANONTLotto649", "1");
    Click("cmdNext_Ticket");
    Paste("txtEncore", "12345x");
    person.Tab();
    EXPECT_EQ(Focus(), "cmdSave");
    SaveFails(13);
    EXPECT_EQ(CountOf("PlayedEncore"), "0");
    EXPECT_TRUE(IsEnabled("cmdSave"));
}

TEST_F(AddOnWindow, AnExtraNumberLeftEmptyFailsWhenItIsStoredAndEachClickWritesTheTicketsAgain) {
    EnterTicket("mnuCANBCLotto649", "1");
    Click("cmdNext_Ticket");
    PutPlay4("1", "", "3", "4");
    SaveFails(13);
    EXPECT_EQ(CountOf("PlayedLotto649"), "1");
    EXPECT_EQ(CountOf("PlayedExtra"), "0");
    EXPECT_EQ(CountOf("Spent"), "0");
    EXPECT_TRUE(IsEnabled("cmdSave"));
    SaveFails(13);
    EXPECT_EQ(CountOf("PlayedLotto649"), "2");
    Put("txtPlay4(1)", "2");
    SaveSheet(true);
    EXPECT_EQ(CountOf("PlayedLotto649"), "3");
    EXPECT_EQ(Rows("SELECT Ball_2 FROM PlayedExtra"), Texts{"2"});
}

TEST_F(AddOnWindow, The649KeepsThePhaseSoASheetWithoutExtraFailsAtItsEmptyBoxes) {
    Show("mnuCANBCLotto649");
    SeveralSheets(2, 2);
    Put("txtNoOfExtra", "1");
    TickSix();
    Click("cmdNext_Ticket");
    PutPlay4("1", "2", "3", "4");
    SaveSheet(false);
    EXPECT_EQ(global.EnteringAddOns, 1);
    Put("txtNoOfExtra", "0");
    TickSix();
    SaveFails(13);
    EXPECT_EQ(CountOf("PlayedLotto649"), "2");
    EXPECT_EQ(CountOf("PlayedExtra"), "1");
}

TEST_F(AddOnWindow, TheEmptyBoxesOfAKeptPhaseFailWhateverTicketTheyWouldHaveBeen) {
    Show("mnuCANBCLotto649");
    SeveralSheets(4, 2, 2);
    Put("txtNoOfExtra", "2");
    for (int ticket = 0; ticket < 2; ++ticket) {
        TickSix();
        Click("cmdNext_Ticket");
    }
    PutPlay4("1", "2", "3", "4");
    Click("cmdNext_Ticket");
    PutPlay4("5", "6", "7", "8");
    SaveSheet(false);
    Put("txtNoOfExtra", "0");
    TickSix();
    Click("cmdNext_Ticket");
    TickSix();
    SaveFails(13);
    EXPECT_EQ(CountOf("PlayedLotto649"), "4");
    EXPECT_EQ(CountOf("PlayedExtra"), "2");
}

TEST_F(AddOnWindow, The749EndsThePhaseAtANewSheet) {
    Show("mnuCANBCSuper7");
    SeveralSheets(2, 2);
    Put("txtNoOfExtra", "1");
    for (int i = 0; i < 3; ++i) {
        Pick({1, 2, 3, 4, 5, 6, 7});
        Click("cmdNext_Ticket");
    }
    EXPECT_EQ(CaptionOf("cmdNext_Ticket"), "&Next Extra");
    PutPlay4("1", "2", "3", "4");
    SaveSheet(false);
    EXPECT_EQ(global.EnteringAddOns, 0);
    EXPECT_EQ(CountOf("PlayedExtra"), "1");
}

TEST_F(AddOnWindow, AWindowLeavesOtherExtrasAlone) {
    Show(Family::frm645, "Lottario", "Tag");
    OneSheet(1);
    TickSix();
    Click("cmdNext_Ticket");
    TickSix();
    SaveSheet(true);
    EXPECT_EQ(CountOf("PlayedLottario"), "2");
}

TEST_F(AddOnWindow, LottarioWritesItsEncoreAfterTheBox) {
    Show("mnuCANONTLOTTARIO");
    OneSheet(1);
    Put("txtNoOfExtra", "1");
    TickSix();
    Click("cmdNext_Ticket");
    TickSix();
    EXPECT_EQ(CaptionOf("fraTicketNumber"), "Encore Ticket #1 - Sheet 1 of 1");
    Click("cmdNext_Ticket");
    person.Type("123456");
    person.Tab();
    ExpectSaveQuestion(Answer::Yes);
    person.Expect("CONFIRMED", "Tickets Saved", Answer::Ok, BoxStyle::Ok,
                  [this] { EXPECT_EQ(CountOf("PlayedEncore"), "0"); });
    Click("cmdSave");
    EXPECT_EQ(Numbers("PlayedEncore"), Texts{"1|2|3|4|5|6|NULL"});
}

TEST_F(AddOnWindow, ASheetWithoutEncoresBehindOneOfTwoWritesNoneAndSaysNothing) {
    Show("mnuCANONTLotto649");
    SeveralSheets(2, 2);
    Put("txtNoOfExtra", "2");
    TickSix();
    Click("cmdNext_Ticket");
    Put("txtEncore", "123456");
    Click("cmdNext_Ticket");
    Put("txtEncore", "654321");
    SaveSheet(false);
    EXPECT_FALSE(IsShown("lblExtra"));
    EXPECT_FALSE(IsShown("txtEncore"));
    EXPECT_EQ(TextOf("txtEncore"), "");
    Put("txtNoOfExtra", "0");
    TickSix();
    SaveSheet(true);
    EXPECT_EQ(Numbers("PlayedEncore"), (Texts{"1|2|3|4|5|6|NULL", "6|5|4|3|2|1|NULL"}));
}

TEST_F(AddOnWindow, FewerEncoresThanWereBegunEndTheSheetAndNextIsClosedOnTheNext) {
    Show("mnuCANONTLotto649");
    SeveralSheets(2, 2);
    Put("txtNoOfExtra", "2");
    TickSix();
    Click("cmdNext_Ticket");
    EXPECT_EQ(Window().Enter.Progress(), "Add-on number 1 of 2");
    Put("txtEncore", "123456");
    ASSERT_TRUE(IsEnabled("cmdNext_Ticket"));
    Put("txtNoOfExtra", "0");
    EXPECT_EQ(Window().Enter.Progress(), "Add-on number 0 of 0");
    Put("txtNoOfExtra", "1");
    Put("txtEncore", "123456");
    ASSERT_TRUE(IsEnabled("cmdSave"));
    ASSERT_TRUE(IsEnabled("cmdNext_Ticket"));
    SaveSheet(false);
    EXPECT_FALSE(IsEnabled("cmdNext_Ticket"));
    EXPECT_EQ(Numbers("PlayedEncore"), Texts{"1|2|3|4|5|6|NULL"});
}

TEST_F(AddOnWindow, OneNumberASheetIsWrittenUnderItsOwnTable) {
    const struct {
        const char* menu;
        const char* table;
    } games[] = {{"mnuCANWESTLotto649", "PlayedThePlus"},
                 {"mnuCANQCLotto649", "PlayedQCExtra"},
                 {"mnuCANATLLotto649", "PlayedTag"}};
    for (const auto& game : games) {
        EnterTicket(game.menu);
        Click("chkEncore");
        Put("txtEncore", "123456");
        SaveSheet(true);
        EXPECT_EQ(Numbers(game.table), Texts{"1|2|3|4|5|6|NULL"}) << game.table;
    }
    EXPECT_EQ(CountOf("PlayedLotto649"), "3");
}

TEST_F(AddOnWindow, OneNumberASheetIsTakenBackForTheNextSheet) {
    Show("mnuCANQCLotto649");
    SeveralSheets(2, 2);
    TickSix();
    Click("chkEncore");
    Put("txtEncore", "123456");
    SaveSheet(false);
    EXPECT_FALSE(IsTicked("chkEncore"));
    EXPECT_EQ(TextOf("txtEncore"), "");
    EXPECT_FALSE(IsShown("txtEncore"));
    EXPECT_EQ(global.NoOfExtra, 0);
    TickSix();
    SaveSheet(true);
    EXPECT_EQ(CountOf("PlayedQCExtra"), "1");
}

TEST_F(AddOnWindow, AfterTheLastSheetTheCountOfExtraTicketsIsNoughtAgain) {
    EnterTicket("mnuCANBCBC49", "1");
    Click("cmdNext_Ticket");
    PutPlay4("1", "2", "3", "4");
    SaveSheet(true);
    const AddOnCapture& addOns = Window().Enter.AddOns;
    EXPECT_EQ(addOns.txtNoOfExtra->Text(), "0");
    EXPECT_EQ(addOns.txtPlay4(0).Text(), "");
}

TEST_F(AddOnWindow, AfterTheLastSheetAnAddOnThatTheWindowDoesNotSaveIsTakenBack) {
    Show(Family::frm649, "Lotto649", "WESTExtra");
    Click("chkEncore");
    OneSheet(1);
    TickSix();
    SaveSheet(true);
    const AddOnCapture& addOns = Window().Enter.AddOns;
    EXPECT_EQ(addOns.chkEncore->Value(), 0);
    EXPECT_EQ(addOns.txtEncore->Text(), "");
    EXPECT_EQ(global.NoOfExtra, 0);
}

TEST_F(AddOnWindow, ACheckTickedAndClearedWritesNoRow) {
    EnterTicket("mnuCANQCLotto649");
    Click("chkEncore");
    Click("chkEncore");
    SaveSheet(true);
    EXPECT_EQ(CountOf("PlayedQCExtra"), "0");
    EXPECT_EQ(CountOf("PlayedLotto649"), "1");
    EXPECT_EQ(global.AddOnTickets(0).Numbers(5), 99);
    EXPECT_EQ(global.AddOnTickets(0).Numbers(6), 0);
}

TEST_F(AddOnWindow, ACheckNeverTickedFailsBehindTheTicketsAtEachClick) {
    for (const auto* menu : {"mnuCANWESTLotto649", "mnuCANQCLotto649", "mnuCANATLLotto649"}) {
        EnterTicket(menu);
        const int before = std::stoi(CountOf("PlayedLotto649"));
        SaveFails(9);
        EXPECT_EQ(CountOf("PlayedLotto649"), std::to_string(before + 1)) << menu;
        EXPECT_EQ(CountOf("Spent"), "0");
        EXPECT_TRUE(IsEnabled("cmdSave"));
        SaveFails(9);
        EXPECT_EQ(CountOf("PlayedLotto649"), std::to_string(before + 2)) << menu;
        EXPECT_TRUE(Window().IsShown());
        Window().Leave();
    }
}

TEST_F(AddOnWindow, ACheckNeverTickedFailsTheSameInSuperSeven) {
    for (const auto* menu : {"mnuCANWESTSuper7", "mnuCANQCSuper7", "mnuCANATLSuper7"}) {
        EnterSuper7(menu);
        Do("DELETE FROM PlayedSuper7");
        for (const char* rows : {"3", "6"}) {
            SaveFails(9);
            EXPECT_EQ(CountOf("PlayedSuper7"), rows) << menu;
            EXPECT_TRUE(IsEnabled("cmdSave")) << menu;
        }
        EXPECT_EQ(CountOf("Spent"), "0") << menu;
        Window().Leave();
    }
}

TEST_F(AddOnWindow, AnEncoreCountNeverLeftFailsTheSame) {
    const struct {
        const char* menu;
        const char* table;
        int numbers, tickets;
    } games[] = {{"mnuCANONTLotto649", "PlayedLotto649", 6, 1},
                 {"mnuCANONTSuper7", "PlayedSuper7", 7, 3},
                 {"mnuCANONTKENO", "PlayedONTKeno", 2, 1}};
    for (const auto& game : games) {
        Show(game.menu);
        Type("txtNoOfTickets(0)", "1");
        Click("chkRegular");
        if (Window().Which == Family::frmKeno70) {
            Type("cboNoOfBallsPerTicket", "2");
            Click("chkRegular");
        }
        for (int ticket = 1; ticket <= game.tickets; ++ticket) {
            if (ticket > 1) Click("cmdNext_Ticket");
            PickFrom(1, game.numbers);
        }
        for (int click = 1; click <= 2; ++click) {
            SaveFails(9);
            EXPECT_EQ(CountOf(game.table), std::to_string(click * game.tickets));
            EXPECT_TRUE(IsEnabled("cmdSave")) << game.menu;
        }
        EXPECT_EQ(CountOf("Spent"), "0");
        Window().Leave();
    }
}

// Its add-on comes last, so the money is written and the box shown each time before the failure.
TEST_F(AddOnWindow, LottariosEncoreCountNeverLeftFailsBehindTheBox) {
    Show("mnuCANONTLOTTARIO");
    Type("txtNoOfTickets(0)", "1");
    Click("chkRegular");
    TickSix();
    Click("cmdNext_Ticket");
    TickSix();
    for (int click = 1; click <= 2; ++click) {
        ExpectSaveQuestion(Answer::Yes);
        person.Expect("CONFIRMED", "Tickets Saved");
        ExpectRunTimeError(9);
        Click("cmdSave");
        EXPECT_EQ(CountOf("PlayedLottario"), std::to_string(2 * click));
        EXPECT_EQ(CountOf("Spent"), std::to_string(click));
        EXPECT_TRUE(IsEnabled("cmdSave"));
        EXPECT_TRUE(Window().IsShown());
    }
}

TEST_F(AddOnWindow, OnceSizedAnywhereInTheRunSheetsWithoutAnAddOnAreSavedSilently) {
    Show("mnuCANONTKENO");
    Visit("txtNoOfExtra");
    Click("cmdExit(0)");
    EnterTicket("mnuCANATLLotto649");
    SaveSheet(true);
    EXPECT_EQ(CountOf("PlayedTag"), "0");
    EXPECT_EQ(CountOf("PlayedLotto649"), "1");
}

TEST_F(AddOnWindow, Ontario49WithItsCheckTickedFailsAtTheHiddenZero) {
    EnterTicket("mnuCANONTONT49");
    Click("chkEncore");
    EXPECT_FALSE(IsShown("txtEncore"));
    for (const char* rows : {"1", "2"}) {
        SaveFails(13);
        EXPECT_EQ(CountOf("PlayedOntario49"), rows);
        EXPECT_TRUE(IsEnabled("cmdSave"));
    }
    EXPECT_EQ(CountOf("Spent"), "0");
}

TEST_F(AddOnWindow, WesternExtraHasSevenDigits) {
    EnterSuper7("mnuCANWESTSuper7");
    Click("chkEncore");
    Put("txtEncore", "1234567");
    SaveSheet(true);
    EXPECT_EQ(Numbers("PlayedWESTExtra"), Texts{"1|2|3|4|5|6|7"});
}

TEST_F(AddOnWindow, WesternExtraWithSixDigitsFailsAtTheSeventh) {
    EnterSuper7("mnuCANWESTSuper7");
    Click("chkEncore");
    Put("txtEncore", "123456");
    for (const char* rows : {"3", "6"}) {
        SaveFails(13);
        EXPECT_EQ(CountOf("PlayedSuper7"), rows);
        EXPECT_TRUE(IsEnabled("cmdSave"));
    }
    EXPECT_EQ(CountOf("PlayedWESTExtra"), "0");
    EXPECT_EQ(CountOf("Spent"), "0");
}

TEST_F(AddOnWindow, WithoutANumberWesternExtraHasTheSentinelInSevenSlots) {
    EnterSuper7("mnuCANWESTSuper7");
    Click("chkEncore");
    Click("chkEncore");
    SaveSheet(true);
    EXPECT_EQ(global.AddOnTickets(0).Numbers(6), 99);
    EXPECT_EQ(CountOf("PlayedWESTExtra"), "0");
}

}  // namespace
}  // namespace sorvane::test

// The add-on numbers of a sheet, typed behind its tickets.
#include "windows/AddOnSlip.h"

namespace sorvane::test {
namespace {

TEST_F(AddOnWindow, TheTitleStaysOneBehindTheAddOnInHand) {
    Show("mnuCANBCLotto649");
    OneSheet(3);
    Put("txtNoOfExtra", "3");
    for (int i = 0; i < 3; ++i) {
        TickSix();
        Click("cmdNext_Ticket");
    }
    for (const auto* title : {"Extra Ticket #1 - Sheet 1 of 1", "Extra Ticket #2 - Sheet 1 of 1"}) {
        PutPlay4("1", "2", "3", "4");
        Click("cmdNext_Ticket");
        EXPECT_EQ(CaptionOf("fraTicketNumber"), title);
    }
    Window().Leave();
    Show("mnuCANONTLotto649");
    OneSheet(3);
    Put("txtNoOfExtra", "3");
    for (int i = 0; i < 2; ++i) {
        TickSix();
        Click("cmdNext_Ticket");
    }
    TickSix();
    Click("cmdNext_Ticket");
    for (const auto* title : {"Encore Ticket #1 - Sheet 1 of 1", "Encore Ticket #2 - Sheet 1 of 1"}) {
        Put("txtEncore", "123456");
        Click("cmdNext_Ticket");
        EXPECT_EQ(CaptionOf("fraTicketNumber"), title);
    }
}

TEST_F(AddOnWindow, OnceTheAddOnsBeginNoTicketIsReEnteredAndNoNumberCounted) {
    for (const auto* menu : {"mnuCANBCLotto649", "mnuCANONTLotto649"}) {
        Show(menu);
        OneSheet(1);
        Put("txtNoOfExtra", "1");
        TickSix();
        ASSERT_TRUE(IsEnabled("cmdCorrection"));
        ASSERT_EQ(global.NumbersPicked, 6);
        Click("cmdNext_Ticket");
        EXPECT_FALSE(IsEnabled("cmdCorrection")) << menu;
        EXPECT_EQ(global.NumbersPicked, 0) << menu;
        Window().Leave();
    }
}

TEST_F(AddOnWindow, AfterTheLastSheetTheFieldsOfExtraAreEmptyThoughNobodyWasLedToThem) {
    AddOnCapture& addOns = Show("mnuCANBCLotto649").Enter.AddOns;
    OneSheet(1);
    TickSix();
    addOns.txtNoOfExtra->SetText("2");
    addOns.txtPlay4(0).SetText("5");
    addOns.txtPlay4(3).SetText("8");
    SaveSheet(true);
    EXPECT_EQ(addOns.txtNoOfExtra->Text(), "0");
    EXPECT_EQ(addOns.txtPlay4(0).Text(), "");
    EXPECT_EQ(addOns.txtPlay4(3).Text(), "");
}

TEST_F(AddOnWindow, ExtraTicketsFollowTheLastTicket) {
    Show("mnuCANBCLotto649");
    OneSheet(2);
    Put("txtNoOfExtra", "2");
    TickSix();
    EXPECT_EQ(CaptionOf("cmdNext_Ticket"), "&Next Ticket");
    Click("cmdNext_Ticket");
    TickSix();
    EXPECT_EQ(CaptionOf("cmdNext_Ticket"), "&Enter Extra");
    EXPECT_EQ(CaptionOf("fraTicketNumber"), "Extra Ticket #1 - Sheet 1 of 1");
    EXPECT_EQ(global.EnteringAddOns, 1);
    EXPECT_FALSE(IsEnabled("cmdSave"));
    EXPECT_FALSE(IsShown("txtPlay4(0)"));

    Click("cmdNext_Ticket");
    EXPECT_EQ(CaptionOf("cmdNext_Ticket"), "&Next Extra");
    EXPECT_FALSE(IsEnabled("cmdNext_Ticket"));
    EXPECT_FALSE(IsEnabled("chkRegular"));
    EXPECT_TRUE(IsShown("lblExtra"));
    for (const auto* box : {"txtPlay4(0)", "txtPlay4(1)", "txtPlay4(2)", "txtPlay4(3)"}) {
        EXPECT_TRUE(IsShown(box));
        EXPECT_TRUE(IsEnabled(box));
    }
    EXPECT_EQ(Focus(), "txtPlay4(0)");

    PutPlay4("5", "99", "1", "42");
    EXPECT_EQ(Focus(), "cmdNext_Ticket");
    EXPECT_FALSE(IsEnabled("cmdSave"));
    Click("cmdNext_Ticket");
    EXPECT_EQ(global.ExtraNo, 1);
    EXPECT_EQ(Window().Enter.Progress(), "Add-on number 2 of 2");
    EXPECT_EQ(TextOf("txtPlay4(3)"), "");
    EXPECT_EQ(Focus(), "txtPlay4(0)");
    PutPlay4("6", "7", "8", "9");
    EXPECT_EQ(Focus(), "cmdSave");
    SaveSheet(true);
    EXPECT_EQ(Rows("SELECT Lottoflag, Ball_1, Ball_2, Ball_3, Ball_4 FROM PlayedExtra ORDER BY ID1"),
              (Texts{"Lotto649|5|99|1|42", "Lotto649|6|7|8|9"}));
}

TEST_F(AddOnWindow, TheTitleOfANextExtraStaysOneBehind) {
    Show("mnuCANBCLotto649");
    OneSheet(2);
    Put("txtNoOfExtra", "2");
    TickSix();
    Click("cmdNext_Ticket");
    TickSix();
    Click("cmdNext_Ticket");
    PutPlay4("1", "2", "3", "4");
    Click("cmdNext_Ticket");
    EXPECT_EQ(CaptionOf("fraTicketNumber"), "Extra Ticket #1 - Sheet 1 of 1");
}

TEST_F(AddOnWindow, EncoreNumbersFollowTheLastTicket) {
    EnterTicket("mnuCANONTLotto649", "2");
    EXPECT_EQ(CaptionOf("cmdNext_Ticket"), "&Enter Encore");
    EXPECT_EQ(CaptionOf("fraTicketNumber"), "Encore Ticket #1 - Sheet 1 of 1");
    EXPECT_EQ(global.EnteringAddOns, 1);
    Click("cmdNext_Ticket");
    EXPECT_EQ(CaptionOf("cmdNext_Ticket"), "&Next Encore");
    EXPECT_FALSE(IsEnabled("cmdNext_Ticket"));
    EXPECT_FALSE(IsEnabled("cmdCorrection"));
    EXPECT_EQ(global.NumbersPicked, 0);
    EXPECT_EQ(Window().Enter.Progress(), "Add-on number 1 of 2");
    EXPECT_FALSE(IsEnabled("chkRegular"));
    EXPECT_TRUE(IsShown("lblExtra"));
    EXPECT_TRUE(IsEnabled("txtEncore"));
    EXPECT_EQ(Focus(), "txtEncore");
    person.Type("012345");  // over the "0", which is selected
    person.Tab();
    EXPECT_EQ(Focus(), "cmdNext_Ticket");
    Click("cmdNext_Ticket");
    EXPECT_EQ(CaptionOf("fraTicketNumber"), "Encore Ticket #1 - Sheet 1 of 1");  // one behind
    EXPECT_EQ(TextOf("txtEncore"), "");
    EXPECT_EQ(Focus(), "txtEncore");
    person.Type("999999");
    person.Tab();
    EXPECT_EQ(Focus(), "cmdSave");
    SaveSheet(true);
    EXPECT_EQ(Numbers("PlayedEncore"), (Texts{"0|1|2|3|4|5|NULL", "9|9|9|9|9|9|NULL"}));
}

TEST_F(AddOnWindow, ACaptionOfNoStepDoesNothing) {
    EnterTicket("mnuCANONTLotto649", "1");
    Window().Enter.cmdNext_Ticket.SetCaption("&Next Bonus");
    Click("cmdNext_Ticket");
    EXPECT_FALSE(IsShown("txtEncore"));
    EXPECT_EQ(CaptionOf("cmdNext_Ticket"), "&Next Bonus");
}

TEST_F(AddOnWindow, ALaterNumberNeedsThePhaseToHaveBegun) {
    EnterTicket("mnuCANONTLotto649", "2");
    Click("cmdNext_Ticket");
    person.Type("123456");
    person.Tab();
    global.EnteringAddOns = 0;
    Click("cmdNext_Ticket");
    EXPECT_EQ(global.ExtraNo, 0);
    EXPECT_EQ(TextOf("txtEncore"), "123456");
}

TEST_F(AddOnWindow, WithoutAddOnTicketsTheSheetIsReadyToBeSaved) {
    for (const auto* menu : {"mnuCANONTLotto649", "mnuCANBCLotto649", "mnuCANATLLotto649"}) {
        EnterTicket(menu);
        EXPECT_TRUE(IsEnabled("cmdSave")) << menu;
        EXPECT_FALSE(IsEnabled("cmdNext_Ticket")) << menu;
        EXPECT_EQ(CaptionOf("cmdNext_Ticket"), "&Next Ticket") << menu;
        Window().Leave();
    }
}

TEST_F(AddOnWindow, LottarioHasNoExtraPhase) {
    Show(Family::frm645, "Lottario", "Extra");
    OneSheet(1);
    Put("txtNoOfExtra", "1");
    TickSix();
    Click("cmdNext_Ticket");
    TickSix();
    EXPECT_TRUE(IsEnabled("cmdSave"));
    EXPECT_EQ(CaptionOf("fraTicketNumber"), "Bonus Ticket #1 - Sheet 1 of 1");
}

TEST_F(AddOnWindow, AShortEncoreIsRefusedAndCancelIsAnsweredLikeOk) {
    EnterTicket("mnuCANONTLotto649", "1");
    Click("cmdNext_Ticket");
    person.Type("12345");
    ExpectShortEncore();
    person.Tab();
    EXPECT_EQ(Focus(), "txtEncore");
    ExpectShortEncore(Answer::Cancel);
    person.Tab();
    EXPECT_EQ(Focus(), "txtEncore");
    EXPECT_FALSE(IsEnabled("cmdSave"));
    person.Key(Qt::Key_End);
    person.Type("6");
    person.Tab();
    EXPECT_TRUE(IsEnabled("cmdSave"));
}

TEST_F(AddOnWindow, NoClickGetsPastAShortEncore) {
    EnterTicket("mnuCANONTLotto649", "1");
    Click("cmdNext_Ticket");
    person.Type("1");
    for (const auto* button : {"cmdCancel", "cmdExit(0)", "cmdRegular"}) {
        ExpectShortEncore();
        Click(button);
        EXPECT_EQ(Focus(), "txtEncore");
    }
    EXPECT_TRUE(Window().IsShown());
}

TEST_F(AddOnWindow, NoClickGetsPastAShortEncoreInTheBonusGamesEither) {
    for (const auto& [menu, numbers] : {std::pair{"mnuCANONTSuper7", 7}, std::pair{"mnuCANONTLOTTARIO", 6}}) {
        Show(menu);
        OneSheet(1);
        Put("txtNoOfExtra", "1");
        while (CaptionOf("cmdNext_Ticket") != "&Enter Encore") {
            if (IsEnabled("cmdNext_Ticket")) Click("cmdNext_Ticket");
            PickFrom(1, numbers);
        }
        Click("cmdNext_Ticket");
        person.Type("12345");
        for (const auto* button : {"cmdCancel", "cmdExit(0)"}) {
            ExpectShortEncore();
            Click(button);
            EXPECT_EQ(Focus(), "txtEncore") << menu;
        }
        EXPECT_TRUE(Window().IsShown());
        Window().Leave();
    }
}

TEST_F(AddOnWindow, OfTwelveDigitsTheFirstSixAreStored) {
    EnterTicket("mnuCANONTLotto649", "1");
    Click("cmdNext_Ticket");
    person.Type("123456789012");
    person.Tab();
    SaveSheet(true);
    EXPECT_EQ(Numbers("PlayedEncore"), Texts{"1|2|3|4|5|6|NULL"});
}

TEST_F(AddOnWindow, ALetterOrEnterInTheEncoreLeavesWhatWasThere) {
    EnterTicket("mnuCANONTLotto649", "1");
    Click("cmdNext_Ticket");
    person.Type("12");
    ExpectBadNumber();
    person.Type("x");
    EXPECT_EQ(TextOf("txtEncore"), "12");
    ExpectBadNumber();
    person.Enter();
    EXPECT_EQ(TextOf("txtEncore"), "12");
    EXPECT_EQ(Focus(), "txtEncore");
    person.Key(Qt::Key_Backspace);
    EXPECT_EQ(TextOf("txtEncore"), "1");
    person.Type("23456");
}

TEST_F(AddOnWindow, ExtraNumbersFromOneToNinetyNinePass) {
    EnterTicket("mnuCANBCLotto649", "1");
    Click("cmdNext_Ticket");
    for (const auto* number : {"100", "0", "99999"}) {
        Type("txtPlay4(1)", number);
        ExpectOutOfRange();
        person.Tab();
        EXPECT_EQ(TextOf("txtPlay4(1)"), "") << number;
        EXPECT_EQ(Focus(), "txtPlay4(1)") << number;
    }
    for (const auto* number : {"1", "99", ""}) {
        Put("txtPlay4(1)", number);
        EXPECT_EQ(Focus(), "txtPlay4(2)") << number;
    }
}

TEST_F(AddOnWindow, ALetterOrEnterInAnExtraNumberLeavesWhatWasThere) {
    EnterTicket("mnuCANBCLotto649", "1");
    Click("cmdNext_Ticket");
    person.Type("4");
    ExpectBadNumber();
    person.Type("x");
    ExpectBadNumber();
    person.Enter();
    EXPECT_EQ(TextOf("txtPlay4(0)"), "4");
}

TEST_F(AddOnWindow, ARefusedLastExtraNumberLeadsNowhere) {
    EnterTicket("mnuCANBCLotto649", "1");
    Click("cmdNext_Ticket");
    PutPlay4("1", "2", "3", "");
    EXPECT_TRUE(IsEnabled("cmdSave"));  // empty is no refusal
    Window().Enter.cmdSave.SetEnabled(false);
    Type("txtPlay4(3)", "100");
    ExpectOutOfRange();
    person.Tab();
    EXPECT_EQ(Focus(), "txtPlay4(3)");
    EXPECT_FALSE(IsEnabled("cmdSave"));
}

TEST_F(AddOnWindow, PastedLettersInAnExtraNumberAreARunTimeError) {
    EnterTicket("mnuCANBCLotto649", "1");
    Click("cmdNext_Ticket");
    Paste("txtPlay4(0)", "ab");
    ExpectRunTimeError(13);
    person.Tab();
    Put("txtPlay4(0)", "4");
    EXPECT_EQ(TextOf("txtPlay4(0)"), "4");
}

TEST_F(AddOnWindow, AfterASheetOfExtraTheirFieldsAreGone) {
    Show("mnuCANBCLotto649");
    SeveralSheets(2, 2);
    Put("txtNoOfExtra", "1");
    TickSix();
    Click("cmdNext_Ticket");
    PutPlay4("1", "2", "3", "4");
    SaveSheet(false);
    EXPECT_FALSE(IsShown("lblExtra"));
    for (const auto* box : {"txtPlay4(0)", "txtPlay4(1)", "txtPlay4(2)", "txtPlay4(3)"}) {
        EXPECT_FALSE(IsShown(box));
        EXPECT_EQ(TextOf(box), "");
    }
    EXPECT_EQ(CaptionOf("cmdNext_Ticket"), "&Next Ticket");
    EXPECT_TRUE(IsEnabled("chkRegular"));
    EXPECT_EQ(Focus(), "txtNoOfExtra");
    EXPECT_EQ(CountOf("PlayedExtra"), "1");
}

TEST_F(AddOnWindow, LeavingACompleteNumberLeadsToSaveInThe749ButNotInThe649) {
    Show("mnuCANQCLotto649");
    OneSheet(1);
    Click("chkEncore");
    Put("txtEncore", "123456");
    EXPECT_FALSE(IsEnabled("cmdSave"));
    Window().Leave();
    Show("mnuCANQCSuper7");
    OneSheet(1);
    Click("chkEncore");
    Put("txtEncore", "123456");
    EXPECT_TRUE(IsEnabled("cmdSave"));
    EXPECT_EQ(Focus(), "cmdSave");
    // Saved before its tickets are complete, the sheet is not written.
    ExpectSaveQuestion(Answer::Yes);
    Click("cmdSave");
    EXPECT_EQ(CountOf("PlayedSuper7"), "0");
    EXPECT_EQ(global.TicketsSaved, 0);
}

TEST_F(AddOnWindow, CancelHidesTheExtraFields) {
    EnterTicket("mnuCANBCLotto649", "1");
    Click("cmdNext_Ticket");
    person.Expect("CONFIRM", "Are you sure you wish to start over?", Answer::Yes, BoxStyle::YesNo);
    Click("cmdCancel");
    EXPECT_FALSE(IsShown("lblExtra"));
    EXPECT_FALSE(IsShown("txtPlay4(0)"));
    EXPECT_EQ(TextOf("txtNoOfExtra"), "0");
    EXPECT_EQ(CaptionOf("cmdNext_Ticket"), "&Next Ticket");
    EXPECT_TRUE(IsEnabled("chkRegular"));
    EXPECT_EQ(global.EnteringAddOns, 0);
}

TEST_F(AddOnWindow, ReenteringTheLastTicketOffersThePhaseAgain) {
    EnterTicket("mnuCANONTLotto649", "1");
    Click("cmdCorrection");
    EXPECT_EQ(global.TicketNo, 0);
    EXPECT_EQ(CaptionOf("fraTicketNumber"), "Encore Ticket #1 - Sheet 1 of 1");  // not written anew
    EXPECT_FALSE(IsEnabled("cmdNext_Ticket"));
    Pick({11, 12, 13, 14, 15, 16});
    EXPECT_EQ(CaptionOf("cmdNext_Ticket"), "&Enter Encore");
    EXPECT_TRUE(IsEnabled("cmdNext_Ticket"));
}

}  // namespace
}  // namespace sorvane::test

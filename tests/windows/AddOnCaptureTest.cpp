#include "windows/Slip.h"

namespace sorvane::test {
namespace {

const std::string PlayedNumbers =
    "\"Number 1\", \"Number 2\", \"Number 3\", \"Number 4\", \"Number 5\", \"Number 6\", \"Number 7\" ";

class AddOnWindow : public SlipWorld {
  protected:
    void TickSix() { Pick({1, 2, 3, 4, 5, 6}); }
    // One ticket, complete but for its add-on.
    void EnterTicket(std::string_view menu, std::string_view count = {}) {
        Show(menu);
        OneSheet(1);
        if (!count.empty()) Put("txtNoOfExtra", count);
        if (Window().Which == Family::frm749) Pick({1, 2, 3, 4, 5, 6, 7});
        else TickSix();
    }
    // Super 7 ends its sheet with two bonus tickets.
    void EnterSuper7(std::string_view menu) {
        EnterTicket(menu);
        for (int i = 0; i < 2; ++i) {
            Click("cmdNext_Ticket");
            Pick({11, 12, 13, 14, 15, 16, 17});
        }
    }
    void ExpectOutOfRange() {
        person.Expect("Error - Number out of Range!", "Please enter a number between 1 and 99.", Answer::Ok,
                      BoxStyle::Exclamation);
    }
    void ExpectTooManyExtra() {
        person.Expect("ERROR!",
                      "Too many Extra tickets entered. Please enter a value less than\r\n"
                      "or equal to the number of Tickets on this sheet.");
    }
    void ExpectTooManyEncore() {
        person.Expect("Too Many Encore Tickets Entered",
                      "Maximum number of 10 Encore Tickets per Sheet. Please try again.");
    }
    void PutPlay4(std::string_view a, std::string_view b, std::string_view c, std::string_view d) {
        int i = 0;
        for (const std::string_view number : {a, b, c, d})
            Put("txtPlay4(" + std::to_string(i++) + ")", number);
    }
    // The click on "&Save Tickets" that ends in an error behind the rows of the tickets.
    void SaveFails(int number) {
        ExpectSaveQuestion(Answer::Yes);
        ExpectRunTimeError(number);
        Click("cmdSave");
    }
    Texts Numbers(std::string_view table) {
        return Rows("SELECT " + PlayedNumbers + "FROM " + std::string(table) + " ORDER BY ID1");
    }
};

TEST_F(AddOnWindow, DesignTimeStateIsKeptWhereADressingDoesNotTouchIt) {
    Show(Family::frm649, "Lotto649", "Encore");
    EXPECT_TRUE(IsShown("chkEncore"));
    EXPECT_TRUE(IsShown("txtNoOfExtra"));
    EXPECT_TRUE(IsShown("lblNoOfExtra"));
    EXPECT_FALSE(IsShown("txtEncore"));
    EXPECT_FALSE(IsEnabled("txtEncore"));
    EXPECT_FALSE(IsShown("lblExtra"));
    EXPECT_FALSE(IsShown("txtPlay4(0)"));
    EXPECT_EQ(TextOf("txtEncore"), "0");
    EXPECT_EQ(TextOf("txtNoOfExtra"), "0");
    EXPECT_EQ(CaptionOf("lblNoOfExtra"), "# of Extra Played this Sheet:");
    EXPECT_EQ(CaptionOf("chkEncore"), "Encore Played");
    EXPECT_EQ(CaptionOf("lblExtra"), "Extra Numbers:");
}

TEST_F(AddOnWindow, EachFamilyShowsItsOwnAddOnControls) {
    Show(Family::frm749, "Super 7", "Encore");
    EXPECT_TRUE(IsShown("chkEncore"));
    EXPECT_TRUE(IsShown("txtNoOfExtra"));
    EXPECT_TRUE(Exists("txtPlay4(3)"));
    Click("cmdExit(0)");
    Show(Family::frm645, "Lottario", "Encore");
    EXPECT_FALSE(IsShown("chkEncore"));
    EXPECT_TRUE(IsShown("txtNoOfExtra"));
    EXPECT_FALSE(Exists("txtPlay4(0)"));
    Click("cmdExit(0)");
    Show(Family::frmPick3, "Quote3", "QCQuote3");
    EXPECT_FALSE(IsShown("chkEncore"));
    EXPECT_FALSE(IsShown("txtNoOfExtra"));
    EXPECT_FALSE(IsShown("lblNoOfExtra"));
    EXPECT_FALSE(Exists("txtPlay4(0)"));
    Click("cmdExit(0)");
    Show(Family::frmPick4, "FLAPlay4", "FLAPlay4");
    for (const auto* name : {"txtNoOfExtra", "txtEncore", "chkEncore", "lblExtra", "txtPlay4(0)"})
        EXPECT_FALSE(Exists(name)) << name;
}

TEST_F(AddOnWindow, ALetterInTheCountEmptiesIt) {
    for (const auto* menu : {"mnuCANONTLotto649", "mnuCANONTSuper7", "mnuCANONTKENO", "mnuCANONTPICK3"}) {
        Show(menu);
        Type("txtNoOfExtra", "12");
        ExpectBadNumber();
        person.Type("x");
        EXPECT_EQ(TextOf("txtNoOfExtra"), "") << menu;
        EXPECT_EQ(Focus(), "txtNoOfExtra") << menu;
        person.Tab();
        EXPECT_EQ(TextOf("txtNoOfExtra"), "0") << menu;
        Window().Leave();
    }
}

TEST_F(AddOnWindow, LottariosCountTakesAnyKeyAndFailsOnLettersWhenItIsLeft) {
    Show("mnuCANONTLOTTARIO");
    Type("txtNoOfExtra", "2x");
    EXPECT_EQ(TextOf("txtNoOfExtra"), "2x");
    ExpectRunTimeError(13);
    person.Tab();
    Put("txtNoOfExtra", "2");
    EXPECT_EQ(global.NoOfExtra, 2);
}

TEST_F(AddOnWindow, EnterInTheCountLeadsToTheOpenGridOfThe649) {
    Show("mnuCANONTLotto649");
    Click("txtNoOfExtra");
    person.Enter();
    EXPECT_EQ(Focus(), "txtNoOfExtra");
    OneSheet(1);
    Click("txtNoOfExtra");
    person.Enter();
    EXPECT_EQ(Focus(), "chkNumb(0)");
}

TEST_F(AddOnWindow, EnterInTheCountDoesNothingInThe749) {
    Show("mnuCANONTSuper7");
    OneSheet(1);
    Click("txtNoOfExtra");
    person.Enter();
    EXPECT_EQ(Focus(), "txtNoOfExtra");
}

TEST_F(AddOnWindow, EnterInTheTicketCountOfThe649LeadsToTheAddOnCount) {
    Show("mnuCANONTLotto649");
    Type("txtNoOfTickets(0)", "1");
    person.Enter();
    EXPECT_EQ(Focus(), "txtNoOfExtra");
}

TEST_F(AddOnWindow, TheCountSelectsItselfAndAnEmptyOneOfThe749BecomesZeroFirst) {
    Show("mnuCANONTSuper7");
    Window().Enter.AddOns.txtNoOfExtra->SetText("");
    Click("txtNoOfExtra");
    EXPECT_EQ(TextOf("txtNoOfExtra"), "0");
    person.Type("4");
    EXPECT_EQ(TextOf("txtNoOfExtra"), "4");
}

TEST_F(AddOnWindow, MoreExtrasThanTicketsOnTheSheetAreRefusedAndTheFieldEndsAtZero) {
    Show("mnuCANBCLotto649");
    OneSheet(2);
    Type("txtNoOfExtra", "3");
    ExpectTooManyExtra();
    person.Tab();
    EXPECT_EQ(TextOf("txtNoOfExtra"), "0");
    EXPECT_EQ(global.NoOfExtra, 0);
    EXPECT_EQ(Focus(), "txtNoOfExtra");
    Put("txtNoOfExtra", "2");
    EXPECT_EQ(global.NoOfExtra, 2);
    EXPECT_FALSE(global.AddOnTickets.Sized());
}

TEST_F(AddOnWindow, AnExtraCountBeyondSixteenBitsIsStillTooMany) {
    Show("mnuCANBCLotto649");
    OneSheet(2);
    Type("txtNoOfExtra", "99999");
    ExpectTooManyExtra();
    person.Tab();
    EXPECT_EQ(TextOf("txtNoOfExtra"), "0");
}

TEST_F(AddOnWindow, EncoresAreNotBoundToTheSheet) {
    Show("mnuCANONTLotto649");
    OneSheet(2);
    Put("txtNoOfExtra", "3");
    EXPECT_EQ(global.NoOfExtra, 3);
    EXPECT_EQ(global.AddOnTickets.UBound(), 3);
    EXPECT_EQ(TextOf("txtNoOfExtra"), "3");
}

TEST_F(AddOnWindow, TheCountMakesTheAddOnTicketsAnew) {
    global.AddOnTickets.Redim(0);
    global.AddOnTickets(0).Numbers(0) = 7;
    Show("mnuCANONTLotto649");
    Put("txtNoOfExtra", "");
    EXPECT_EQ(TextOf("txtNoOfExtra"), "0");
    EXPECT_EQ(global.AddOnTickets.UBound(), 0);
    EXPECT_EQ(global.AddOnTickets(0).Numbers(0), 0);
}

TEST_F(AddOnWindow, AnEncoreCountBeyondSixteenBitsIsARunTimeError) {
    Show("mnuCANONTLotto649");
    Type("txtNoOfExtra", "40000");
    ExpectRunTimeError(6);
    person.Tab();
    EXPECT_EQ(global.NoOfExtra, 0);
}

TEST_F(AddOnWindow, PastedLettersInTheCountAreARunTimeError) {
    Show("mnuCANONTLotto649");
    Paste("txtNoOfExtra", "two");
    ExpectRunTimeError(13);
    person.Tab();
    EXPECT_EQ(global.NoOfExtra, 0);
}

TEST_F(AddOnWindow, LottarioTakesTenEncores) {
    Show("mnuCANONTLOTTARIO");
    Put("txtNoOfExtra", "10");
    EXPECT_EQ(global.NoOfExtra, 10);
    EXPECT_EQ(global.AddOnTickets.UBound(), 10);
}

TEST_F(AddOnWindow, LottarioRefusesElevenEncoresAndKeepsTheOldNumber) {
    Show("mnuCANONTLOTTARIO");
    Put("txtNoOfExtra", "4");
    global.AddOnTickets.Erase();
    Type("txtNoOfExtra", "11");
    ExpectTooManyEncore();
    person.Tab();
    EXPECT_EQ(TextOf("txtNoOfExtra"), "0");
    EXPECT_EQ(global.NoOfExtra, 4);
    EXPECT_EQ(global.AddOnTickets.UBound(), 4);
    EXPECT_EQ(Focus(), "txtNoOfExtra");
    person.Type("3");  // all of it was selected
    EXPECT_EQ(TextOf("txtNoOfExtra"), "3");
}

TEST_F(AddOnWindow, AnotherGameInLottariosWindowHasNoEncoreCount) {
    Show(Family::frm645, "Lotto649", "Encore");
    Put("txtNoOfExtra", "11");
    EXPECT_EQ(global.NoOfExtra, 0);
    EXPECT_EQ(TextOf("txtNoOfExtra"), "11");
}

TEST_F(AddOnWindow, TheCheckTurnsItsNumberOnAndOff) {
    Show("mnuCANQCLotto649");
    EXPECT_FALSE(IsEnabled("txtEncore"));
    Click("chkEncore");
    EXPECT_TRUE(IsEnabled("txtEncore"));
    EXPECT_EQ(global.NoOfExtra, 1);
    EXPECT_EQ(global.AddOnTickets.UBound(), 1);
    Click("chkEncore");
    EXPECT_FALSE(IsEnabled("txtEncore"));
    EXPECT_EQ(global.NoOfExtra, 0);
}

TEST_F(AddOnWindow, TheNumberIsClosedAtLoadInEveryWindowThatHasOne) {
    const std::pair<Family, const char*> games[] = {{Family::frm649, "Lotto649"},
                                                    {Family::frm749, "Super 7"},
                                                    {Family::frm645, "Lottario"},
                                                    {Family::frmKeno70, "ONTKeno"},
                                                    {Family::frmPick3, "ONTPick3"}};
    for (const auto& [family, key] : games) {
        Show(family, key, "Encore");
        EXPECT_FALSE(IsEnabled("txtEncore")) << key;
        EXPECT_FALSE(IsShown("txtEncore")) << key;
        EXPECT_EQ(IsShown("chkEncore"), family == Family::frm649 || family == Family::frm749) << key;
        EXPECT_EQ(IsShown("txtNoOfExtra"), family != Family::frmPick3) << key;
        EXPECT_EQ(IsShown("lblNoOfExtra"), family != Family::frmPick3) << key;
        Window().Leave();
    }
}

TEST_F(AddOnWindow, TheCheckTurnsTheNumberOverWhateverItWas) {
    Show("mnuCANQCLotto649");
    Window().Enter.AddOns.txtEncore->SetEnabled(true);
    Click("chkEncore");
    EXPECT_FALSE(IsEnabled("txtEncore"));
}

TEST_F(AddOnWindow, Quebec49sCheckIsLiveFromTheCountOn) {
    Show("mnuCANQCQuebec49");
    EXPECT_TRUE(IsShown("chkEncore"));
    EXPECT_FALSE(IsEnabled("chkEncore"));
    OneSheet(1);
    EXPECT_TRUE(IsEnabled("chkEncore"));
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

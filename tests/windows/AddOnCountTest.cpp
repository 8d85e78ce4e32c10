// How many add-on tickets a sheet has: the count, or the check box.
#include "windows/AddOnSlip.h"

namespace sorvane::test {
namespace {

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

TEST_F(AddOnWindow, ACountThatIsVisitedAgainStaysAndOutsideOfThe749AnEmptyOneToo) {
    for (const auto* menu : {"mnuCANONTSuper7", "mnuCANONTLotto649"}) {
        Show(menu);
        Put("txtNoOfExtra", "4");
        Click("txtNoOfExtra");
        EXPECT_EQ(TextOf("txtNoOfExtra"), "4") << menu;
        Window().Leave();
    }
    Show("mnuCANONTLotto649");
    Window().Enter.AddOns.txtNoOfExtra->SetText("");
    Click("txtNoOfExtra");
    EXPECT_EQ(TextOf("txtNoOfExtra"), "");
}

TEST_F(AddOnWindow, TheCountIsSelectedWhenItIsReachedButOfThreeDigitsOnlyANought) {
    for (const auto* menu : {"mnuCANONTLotto649", "mnuCANONTPICK3"}) {
        Show(menu);
        for (const auto* count : {"0", "12"}) {
            Put("txtNoOfExtra", count);
            Window().Enter.AddOns.txtNoOfExtra->deselect();
            Click("txtNoOfExtra");
            const bool selects = std::string(count) == "0" || Window().Which == Family::frm649;
            EXPECT_EQ(Window().Enter.AddOns.txtNoOfExtra->selectedText().toStdString(), selects ? count : "")
                << menu;
        }
        Window().Leave();
    }
}

TEST_F(AddOnWindow, ACountLeftEmptyIsNoughtInEveryKindOfGame) {
    for (const auto* menu : {"mnuCANBCLotto649", "mnuCANONTLOTTARIO"}) {
        Show(menu);
        OneSheet(1);
        Put("txtNoOfExtra", "1");
        Put("txtNoOfExtra", "");
        EXPECT_EQ(TextOf("txtNoOfExtra"), "0") << menu;
        EXPECT_EQ(global.NoOfExtra, 0) << menu;
        Window().Leave();
    }
}

TEST_F(AddOnWindow, AnEmptyCountThatWasNeverVisitedAddsNothingToTheSheet) {
    Show("mnuCANBCLotto649");
    OneSheet(1);
    Click("dtpEnterTickets(0)");
    Window().Enter.AddOns.txtNoOfExtra->SetText("");
    TickSix();
    EXPECT_EQ(CaptionOf("cmdNext_Ticket"), "&Next Ticket");
    EXPECT_TRUE(IsEnabled("cmdSave"));
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
    global.AddOnTickets = {};
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

}  // namespace
}  // namespace sorvane::test

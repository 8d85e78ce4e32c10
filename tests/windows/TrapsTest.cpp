// The traps that the player's guide warns of: each happens as it is told there, and what it tells to do
// instead works.
#include "windows/AddOnSlip.h"

namespace sorvane::test {
namespace {

class Traps : public AddOnWindow {};

TEST_F(Traps, TheBoxOfAnAddOnTickedOnAFurtherSheetEndsTheSaveBehindItsTickets) {
    Show("mnuCANQCLotto649");
    SeveralSheets(2, 2);
    Click("chkEncore");
    Click("chkEncore");
    TickSix();
    SaveSheet(false);
    EXPECT_FALSE(IsShown("txtEncore"));
    Click("chkEncore");
    TickSix();
    SaveFails(13);
    EXPECT_EQ(CountOf("PlayedLotto649"), "2");
    EXPECT_EQ(CountOf("Spent"), "0");
}

TEST_F(Traps, EachSheetWithAnAddOnAsAnEntryOfItsOwnIsSaved) {
    for (const char* number : {"123456", "654321"}) {
        EnterTicket("mnuCANQCLotto649");
        Click("chkEncore");
        Put("txtEncore", number);
        SaveSheet(true);
    }
    EXPECT_EQ(CountOf("Spent"), "2");
    EXPECT_EQ(CountOf("PlayedQCExtra"), "2");
}

TEST_F(Traps, LottariosRegularMarkOfTheLastBoughtTicketComesBackInTheNextEntry) {
    const auto open = [this](int tickets) {
        Show("mnuCANONTLOTTARIO");
        OneSheet(tickets);
        Visit("txtNoOfExtra");
    };
    open(1);
    Click("chkRegular");
    TickSix();
    Click("cmdNext_Ticket");
    TickSix();
    SaveSheet(true);
    open(2);
    EXPECT_FALSE(IsTicked("chkRegular"));
    TickSix();
    Click("cmdNext_Ticket");
    EXPECT_TRUE(IsTicked("chkRegular"));
}

TEST_F(Traps, TheCountOfEncoresPassedWhileTheyAreTypedMakesThemNoughts) {
    EnterTicket("mnuCANONTLotto649", "2");
    Click("cmdNext_Ticket");
    Put("txtEncore", "123456");
    Click("cmdNext_Ticket");
    Put("txtEncore", "654321");
    Visit("txtNoOfExtra");
    SaveSheet(true);
    EXPECT_EQ(Numbers("PlayedEncore"), (Texts{"0|0|0|0|0|0|NULL", "6|5|4|3|2|1|NULL"}));
}

TEST_F(Traps, TheCountOfTicketsLeftAgainInMidEntryIsBackAtTheFirstSheet) {
    Show("mnuCANBCBC49");
    SeveralSheets(2, 2);
    TickSix();
    SaveSheet(false);
    Put("txtDollars", "7.00");
    TickSix();
    EXPECT_EQ(CaptionOf("fraTicketNumber"), "Ticket #1 - Sheet 2 of 2");
    EXPECT_FALSE(IsEnabled("chkNumb(0)"));
    ExpectSheets("2");
    Visit("txtNoOfTickets(0)");
    EXPECT_EQ(CaptionOf("fraTicketNumber"), "Ticket #2 - Sheet 1 of 2");
    EXPECT_EQ(TextOf("txtDollars"), "1.00");
    EXPECT_TRUE(IsEnabled("chkNumb(0)"));
}

TEST_F(Traps, Super7sAddOnNumberBeforeTheTicketsTurnsSaveOnAndNothingIsSaved) {
    Show("mnuCANATLSuper7");
    OneSheet(1);
    Click("chkEncore");
    Put("txtEncore", "123456");
    EXPECT_TRUE(IsEnabled("cmdSave"));
    ExpectSaveQuestion(Answer::Yes);
    Click("cmdSave");
    EXPECT_TRUE(Window().IsShown());
    EXPECT_EQ(CountOf("PlayedSuper7"), "0");
    EXPECT_EQ(CountOf("Spent"), "0");
}

}  // namespace
}  // namespace sorvane::test

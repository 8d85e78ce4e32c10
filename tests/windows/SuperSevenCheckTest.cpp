#include "windows/CheckSlip.h"

namespace sorvane::test {
namespace {

class SuperSevenCheck : public CheckTickets {};

TEST_F(SuperSevenCheck, EnterInABoxIsARefusedKey) {
    Open("mnuCANATLSuper7");
    Type("txtWin7(0)", "12");
    ExpectBadNumber();
    person.Enter();
    EXPECT_EQ(TextOf("txtWin7(0)"), "");
    EXPECT_EQ(Focus(), "txtWin7(0)");
}

TEST_F(SuperSevenCheck, UpdateStatsOnlyClosesTheAddOnAndEmptiesTheBoxes) {
    Open("mnuCANBCSuper7");
    Click("chkStatUpdate");
    for (const char* name : {"lblWinEncore", "txtWinEncore", "txtWin4(0)", "txtWin4(3)"})
        EXPECT_FALSE(IsEnabled(name)) << name;
    Draw("txtWin7", {1, 2, 3, 4, 5, 6, 7, 8});
    person.Expect("Database Updated", "Database Updated.");
    Click("cmdCheck");
    EXPECT_EQ(TextOf("txtWin7(0)"), "");
    EXPECT_EQ(TextOf("txtWin7(7)"), "");
    Click("chkStatUpdate");
    for (const char* name : {"lblWinEncore", "txtWinEncore", "txtWin4(0)", "txtWin4(3)"})
        EXPECT_TRUE(IsEnabled(name)) << name;
}

TEST_F(SuperSevenCheck, FortyEightIsAcceptedAndThreeWithTheBonusPayTen) {
    Open("mnuCANATLSuper7");
    Do("INSERT INTO PlayedSuper7 (ID1, Date, Ball_1, Ball_2, Ball_3, Ball_4, Ball_5, Ball_6, Ball_7) VALUES "
       "(1, " +
       Day() + ", 1, 2, 3, 4, 5, 6, 7), (2, " + Day() + ", 1, 2, 3, 43, 44, 45, 46)");
    Draw("txtWin7", {1, 2, 3, 20, 21, 22, 48, 46});
    Type("txtWinEncore", "123456");
    Click("cmdCheck");
    EXPECT_EQ(Messages(),
              (Texts{"Congratulations! You've won a FREE Ticket!", "Congratulations! You've won $10.00!"}));
    EXPECT_EQ(Rows("SELECT Ball_7, Ball_B FROM WinSuper7"), Texts{"48|46"});
}

TEST_F(SuperSevenCheck, LeavingTheAddOnNumberShortIsRefusedAndSixLeadToCheck) {
    Open("mnuCANATLSuper7");
    Type("txtWinEncore", "12345");
    person.Expect("ERROR!", "Encore Number is too short. Please check the number and try again.");
    person.Tab();
    EXPECT_EQ(Focus(), "txtWinEncore");
    person.Type("6");
    person.BackTab();
    EXPECT_EQ(Focus(), "cmdCheck");
}

TEST_F(SuperSevenCheck, ALetterInTheAddOnNumberIsRefusedAndLeavesItAlone) {
    Open("mnuCANATLSuper7");
    Type("txtWinEncore", "123456");
    ExpectBadNumber();
    person.Type("x");
    EXPECT_EQ(TextOf("txtWinEncore"), "123456");
}

TEST_F(SuperSevenCheck, SevenDigitsLeadOnWithTheTabKey) {
    Open("mnuCANWESTSuper7");
    Type("txtWinEncore", "1234567");
    person.Tab();
    EXPECT_EQ(Focus(), "chkStatUpdate");
}

TEST_F(SuperSevenCheck, AShortAddOnNumberLeavesTheListsAlone) {
    Open("mnuCANWESTSuper7");
    Window().Check.lstMessage.AddItem("kept");
    Window().Check.lstEncorePlayed->AddItem("kept");
    Draw("txtWin7", {1, 2, 3, 4, 5, 6, 7, 8});
    Type("txtWinEncore", "123456");
    ExpectMissing("Extra number is too short. Please check the number and try again.");
    Click("cmdCheck");
    EXPECT_EQ(Messages(), Texts{"kept"});
    EXPECT_EQ(AddOn(), Texts{"kept"});
}

TEST_F(SuperSevenCheck, NoClickGetsPastAShortAddOnNumber) {
    Open("mnuCANATLSuper7");
    Type("txtWinEncore", "123");
    person.Expect("ERROR!", "Encore Number is too short. Please check the number and try again.");
    Click("cmdExit(2)");
    EXPECT_TRUE(Window().IsShown());
}

TEST_F(SuperSevenCheck, WesternExtraNeedsSevenDigits) {
    Open("mnuCANWESTSuper7");
    Draw("txtWin7", {1, 2, 3, 4, 5, 6, 7, 8});
    Type("txtWinEncore", "123456");
    ExpectMissing("Extra number is too short. Please check the number and try again.");
    Click("cmdCheck");
}

TEST_F(SuperSevenCheck, TheFourNumbersHaveNoRangeHereAndGoWithTheDate) {
    Open("mnuCANBCSuper7");
    Type("txtWin4(0)", "100");
    person.Tab();
    EXPECT_EQ(TextOf("txtWin4(0)"), "100");
    Window().dtpEnterTickets(2).SetValue(Date::FromText("2006-03-10"));
    EXPECT_EQ(TextOf("txtWin4(0)"), "");
}

}  // namespace
}  // namespace sorvane::test

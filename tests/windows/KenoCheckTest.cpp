#include "store/CreateTables.h"
#include "windows/CheckSlip.h"

namespace sorvane::test {
namespace {

class KenoCheck : public CheckTickets {};

TEST_F(KenoCheck, EnterInABoxIsARefusedKeyAndNumbersEndAtSeventy) {
    Open("mnuCANONTKENO");
    Type("txtWin20(0)", "12");
    ExpectBadNumber();
    person.Enter();
    EXPECT_EQ(TextOf("txtWin20(0)"), "");
    Type("txtWin20(0)", "71");
    person.Expect("Error - Number out of Range!", "Please enter a number between 1 and 70.", Answer::Ok,
                  BoxStyle::Exclamation);
    person.Tab();
    EXPECT_EQ(Focus(), "txtWin20(0)");
}

TEST_F(KenoCheck, AMissingNumberLeavesTheListsAlone) {
    Open("mnuCANONTKENO");
    Window().Check.lstMessage.AddItem("kept");
    Window().Check.lstNumbersPlayed.AddItem("kept");
    Window().Check.lstEncorePlayed->AddItem("kept");
    ExpectMissing("Missing Data. Please enter a valid number from 1 to 70 and try again.");
    Click("cmdCheck");
    Draw("txtWin20", {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20});
    Type("txtWinEncore", "12345");
    ExpectMissing("Encore number is too short. Please check the number and try again.");
    Click("cmdCheck");
    EXPECT_EQ(Messages(), Texts{"kept"});
    EXPECT_EQ(Played(), Texts{"kept"});
    EXPECT_EQ(AddOn(), Texts{"kept"});
}

TEST_F(KenoCheck, BehindATicketWithoutAVerdictTheVerdictsLeadToTheWrongTickets) {
    Open("mnuCANONTKENO");
    Do("INSERT INTO PlayedONTKeno (ID1, Date, Lottoflag, Ball_1, Ball_2, Wager, [# of Balls]) VALUES (1, " +
       Day() + ", 'ONTKeno', 1, 2, 3, 2), (2, " + Day() + ", 'ONTKeno', 1, 2, 1, 2)");
    Draw("txtWin20", {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20});
    Type("txtWinEncore", "123456");
    Click("cmdCheck");
    ASSERT_EQ(Messages(), Texts{"Congratulations! You won $7.00!"});
    person.DoubleClickRow(person.Find<QListView>("lstMessage"), 0);
    EXPECT_EQ(Window().Check.lstNumbersPlayed.ListIndex(), 0);
}

TEST_F(KenoCheck, ACheckBehindOneThatAnErrorEndedGoesAsIfItWereTheFirst) {
    constexpr std::string_view Before = "2006-03-10";
    Open("mnuCANONTKENO");
    int id = 0;
    for (const std::string& day : {Day(), Day(Before)}) {
        ++id;
        Do("INSERT INTO PlayedONTKeno (ID1, Date, Lottoflag, Ball_1, Ball_2, Wager, [# of Balls]) VALUES (" +
           std::to_string(id) + ", " + day + ", 'ONTKeno', 1, 2, 1, 2)");
        Do("INSERT INTO PlayedEncore VALUES (" + std::to_string(id) + ", 'ONTKeno', " + day +
           ", 1, 2, 3, 4, 5, 6, NULL)");
    }
    const auto check = [&](const std::string& encore) {
        Draw("txtWin20", {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20});
        Type("txtWinEncore", encore);
        Click("cmdCheck");
    };
    person.Expect("ERROR!",
                  "ERROR #3421\r\nUnexpected error occurred. Please advise error number to support.",
                  Answer::Ok, BoxStyle::Stop);
    check("x23456");
    EXPECT_EQ(global.EntryCounter, 0);
    Window().dtpEnterTickets(2).SetValue(Date::FromText(Before));
    check("123456");
    EXPECT_EQ(ListOf("lstEncorePlayed"), Texts{"1, 2, 3, 4, 5, 6"});
}

// As an error in the middle of an earlier check leaves it.
TEST_F(KenoCheck, ACountThatWasLeftIsNotAddedTo) {
    Open("mnuCANONTKENO");
    Do("INSERT INTO PlayedONTKeno (ID1, Date, Lottoflag, Ball_1, Ball_2, Wager, [# of Balls]) VALUES (1, " +
       Day() + ", 'ONTKeno', 1, 2, 1, 2)");
    Do("INSERT INTO PlayedEncore VALUES (1, 'ONTKeno', " + Day() + ", 1, 2, 3, 4, 5, 6, NULL)");
    Draw("txtWin20", {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20});
    Type("txtWinEncore", "123456");
    global.EntryCounter = 7;
    global.NoRowForDate = On;
    Click("cmdCheck");
    EXPECT_EQ(ListOf("lstEncorePlayed"), Texts{"1, 2, 3, 4, 5, 6"});
    EXPECT_EQ(global.EntryCounter, 0);
    EXPECT_EQ(global.NoRowForDate, Off);
}

TEST_F(KenoCheck, UpdateStatsOnlyEmptiesTheBoxesAndLeavesTheAddOnOpen) {
    Open("mnuCANONTKENO");
    Click("chkStatUpdate");
    EXPECT_EQ(CaptionOf("cmdCheck"), "&Update");
    EXPECT_TRUE(IsEnabled("txtWinEncore"));
    Draw("txtWin20", {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20});
    person.Expect("Database Updated", "Database Updated.");
    Click("cmdCheck");
    EXPECT_EQ(CountOf("WinONTKeno"), "1");
    EXPECT_EQ(TextOf("txtWin20(0)"), "");
    EXPECT_EQ(TextOf("txtWin20(19)"), "");
}

TEST_F(KenoCheck, KenoEightyJudgesEvenUnderUpdateStatsOnlyAndBehindARefusal) {
    Show(Family::frmKeno80, "PrairieKeno", "");
    std::string table = "PlayedPrairieKeno";
    CreatePlayedKenoTable(session, {Window().State.DbName, table}, "ID1", "Date");
    Do("INSERT INTO PlayedPrairieKeno (ID1, Date, Lottoflag, Ball_1, Ball_2, Wager, [# of Balls]) VALUES "
       "(1, " +
       Day() + ", 'PrairieKeno', 79, 80, 1, 2)");
    Window().SSTab1.SetTab(Tab::Check);
    Click("chkStatUpdate");
    Draw("txtWin20", {61, 62, 63, 64, 65, 66, 67, 68, 69, 70, 71, 72, 73, 74, 75, 76, 77, 78, 79, 80});
    Click("cmdCheck");
    EXPECT_EQ(Played(), Texts{"79, 80"});
    EXPECT_EQ(global.MatchCount, 2);
    EXPECT_EQ(TextOf("txtWin20(0)"), "61");
    Type("txtWin20(18)", "1");
    ExpectCorrection(Answer::No);
    Click("cmdCheck");
    EXPECT_EQ(Rows("SELECT Ball_19 FROM WinPrairieKeno"), Texts{"79"});
    EXPECT_EQ(global.MatchCount, 1);
    EXPECT_TRUE(Messages().empty());
}

TEST_F(KenoCheck, DailyKenoJudgesByBallsAndWager) {
    Open("mnuCANONTKENO");
    Do("INSERT INTO PlayedONTKeno (ID1, Date, Lottoflag, Ball_1, Ball_2, Ball_3, Ball_4, Ball_5, Wager, [# "
       "of Balls]) "
       "VALUES (1, " +
       Day() + ", 'ONTKeno', 1, 2, 3, 4, 70, 2, 5), (2, " + Day() +
       ", 'ONTKeno', 1, 2, 3, 4, 70, 3, 5), (3, " + Day() + ", 'ONTKeno', 1, 2, 3, 4, 70, 0, 5)");
    Draw("txtWin20", {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20});
    Type("txtWinEncore", "123456");
    Click("cmdCheck");
    EXPECT_EQ(Played(), Texts(3, "1, 2, 3, 4, 70"));
    // A wager of three is in no table, nor is one that was never chosen: no row at all.
    EXPECT_EQ(Messages(), Texts{"Congratulations! You won $10.00!"});
}

TEST_F(KenoCheck, KenoEightyTakesEmptyBoxesAndMakesItsWinTable) {
    Show(Family::frmKeno80, "PrairieKeno", "");
    Window().SSTab1.SetTab(Tab::Check);
    Click("chkStatUpdate");
    ExpectMissingTable("PlayedPrairieKeno");
    person.Expect("ERROR!",
                  "ERROR #3421\r\nUnexpected error occurred. Please advise error number to support.",
                  Answer::Ok, BoxStyle::Stop);
    Click("cmdCheck");
    EXPECT_EQ(CountOf("WinPrairieKeno"), "0");
    EXPECT_TRUE(Messages().empty());
}

}  // namespace
}  // namespace sorvane::test

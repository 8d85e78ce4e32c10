#include "windows/CheckSlip.h"

namespace sorvane::test {
namespace {

class LottarioCheck : public CheckTickets {
  protected:
    void OpenWithTickets() {
        Open("mnuCANONTLOTTARIO");
        Do("INSERT INTO PlayedLottario (ID1, Date, Ball_1, Ball_2, Ball_3, Ball_4, Ball_5, Ball_6, "
           "EarlyBird) VALUES "
           "(1, " +
           Day() + ", 1, 2, 3, 4, 5, 6, 1), (2, " + Day() + ", 7, 8, 9, 10, 11, 12, 0)");
    }
};

TEST_F(LottarioCheck, EachTicketHasTwoRowsInBothListsAndTheEarlyBirdRowIsStoredOneFieldLower) {
    OpenWithTickets();
    Draw("txtWin6", {1, 2, 3, 4, 5, 40, 41});
    Draw("txtWin4", {3, 4, 5, 6});
    Type("txtWinEncore", "123456");
    Click("cmdCheck");
    EXPECT_EQ(Played(),
              (Texts{"1, 2, 3, 4, 5, 6", "Earlybird Played", "7, 8, 9, 10, 11, 12", "Earlybird NOT Played"}));
    EXPECT_EQ(Messages(),
              (Texts{"Congratulations! You matched 5 Numbers!", "Congratulations! You Won EARLYBIRD!",
                     std::string(Sorry), "Earlybird NOT Played"}));
    EXPECT_EQ(Window().State.TicketRows, 4);
    EXPECT_EQ(Rows("SELECT * FROM WinEarlyBird"), Texts{"1|2006-03-11|3|4|5|6|NULL"});
}

TEST_F(LottarioCheck, TheEarlyBirdIsStoredInAFullCheckOnly) {
    OpenWithTickets();
    Click("chkStatUpdate");
    EXPECT_FALSE(IsEnabled("txtWin4(0)"));
    EXPECT_FALSE(IsEnabled("lblWinEarlybird"));
    Draw("txtWin6", {1, 2, 3, 4, 5, 40, 41});
    person.Expect("Database Updated", "Database Updated.");
    Click("cmdCheck");
    EXPECT_EQ(CountOf("WinEarlyBird"), "0");
    EXPECT_EQ(CountOf("WinLottario"), "1");
    Click("chkStatUpdate");
    Draw("txtWin6", {1, 2, 3, 4, 5, 40, 41});
    Draw("txtWin4", {3, 4, 5, 6});
    Type("txtWinEncore", "123456");
    ExpectRecheck(Answer::No);
    Click("cmdCheck");
    EXPECT_EQ(CountOf("WinEarlyBird"), "0");
}

TEST_F(LottarioCheck, BothRowsOfBoxesAreRequiredAndTheListsAreClearedBeforeTheEncoreTest) {
    OpenWithTickets();
    Window().Check.lstMessage.AddItem("old");
    Draw("txtWin6", {1, 2, 3, 4, 5, 6});
    ExpectMissing("Missing Data. Please enter a valid number from 1 to 45 and try again.");
    Click("cmdCheck");
    EXPECT_EQ(Focus(), "txtWin6(6)");
    Type("txtWin6(6)", "7");
    ExpectMissing("Missing Data. Please enter a valid number from 1 to 45 and try again.");
    Click("cmdCheck");
    EXPECT_EQ(Focus(), "txtWin4(0)");
    Draw("txtWin4", {1, 2, 3});
    ExpectMissing("Missing Data. Please enter a valid number from 1 to 45 and try again.");
    Click("cmdCheck");
    EXPECT_EQ(Focus(), "txtWin4(3)");
    EXPECT_EQ(Messages(), Texts{"old"});
    Type("txtWin4(3)", "4");
    ExpectMissing("The Encore number is too short. Please check the number and try again.",
                  "Encore Too Short");
    Click("cmdCheck");
    EXPECT_EQ(Focus(), "txtWinEncore");
    EXPECT_TRUE(Messages().empty());
}

TEST_F(LottarioCheck, TheEarlyBirdIsStoredBeforeAnyTicketIsJudged) {
    OpenWithTickets();
    Draw("txtWin6", {1, 2, 3, 4, 5, 40, 41});
    Draw("txtWin4", {3, 4, 5, 6});
    Type("txtWinEncore", "123456");
    Window().Check.txtWin(0).SetText("x");  // no number: the store refuses it, and comparing it fails
    person.Expect("ERROR!",
                  "ERROR #3421\r\nUnexpected error occurred. Please advise error number to support.",
                  Answer::Ok, BoxStyle::Stop);
    ExpectRunTimeError(ErrorNumber::TypeMismatch);
    Click("cmdCheck");
    EXPECT_TRUE(Messages().empty());
    EXPECT_EQ(CountOf("WinEarlyBird"), "1");
}

TEST_F(LottarioCheck, AnotherDateEmptiesTheEarlyBirdNumbersToo) {
    OpenWithTickets();
    Draw("txtWin6", {1, 2, 3, 4, 5, 40, 41});
    Draw("txtWin4", {3, 4, 5, 6});
    Type("txtWinEncore", "123456");
    Window().dtpEnterTickets(2).SetValue(Date::FromText("2006-03-10"));
    for (const char* box : {"txtWin6(0)", "txtWin6(6)", "txtWin4(0)", "txtWin4(3)", "txtWinEncore"})
        EXPECT_EQ(TextOf(box), "") << box;
}

TEST_F(LottarioCheck, EnterMovesFromBoxToBoxAndEndsAtCheck) {
    OpenWithTickets();
    Click("txtWin6(0)");
    for (int i = 1; i <= 6; ++i) {
        person.Type(std::to_string(i));
        person.Enter();
        EXPECT_EQ(Focus(), Box("txtWin6", i));
    }
    person.Type("7");
    person.Enter();
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(Focus(), Box("txtWin4", i));
        person.Type(std::to_string(i + 1));
        person.Enter();
    }
    EXPECT_EQ(Focus(), "cmdCheck");
}

TEST_F(LottarioCheck, ALetterEmptiesABoxButTheEncoreTakesIt) {
    OpenWithTickets();
    for (const char* box : {"txtWin6(0)", "txtWin4(0)"}) {
        Type(box, "12");
        ExpectBadNumber();
        person.Type("x");
        EXPECT_EQ(TextOf(box), "") << box;
    }
    Type("txtWinEncore", "12x");
    EXPECT_EQ(TextOf("txtWinEncore"), "12x");
}

TEST_F(LottarioCheck, NumbersEndAtFortyFive) {
    OpenWithTickets();
    for (const char* box : {"txtWin6(0)", "txtWin4(0)"}) {
        Type(box, "46");
        person.Expect("Error - Number out of Range!", "Please enter a number from 1 to 45.", Answer::Ok,
                      BoxStyle::Exclamation);
        person.Tab();
        EXPECT_EQ(TextOf(box), "");
    }
}

TEST_F(LottarioCheck, TheFirstClickInTheTicketsDoesNothingTheSecondLeadsToTheVerdict) {
    OpenWithTickets();
    Draw("txtWin6", {1, 2, 3, 4, 5, 40, 41});
    Draw("txtWin4", {3, 4, 5, 6});
    Type("txtWinEncore", "123456");
    Click("cmdCheck");
    auto& tickets = person.Find<QListView>("lstNumbersPlayed");
    person.ClickRow(tickets, 2);
    EXPECT_EQ(Window().Check.lstMessage.ListIndex(), -1);
    person.ClickRow(tickets, 2);
    EXPECT_EQ(Window().Check.lstMessage.ListIndex(), 2);
}

TEST_F(LottarioCheck, UpdateStatsOnlyClearsTheListsAllTheSame) {
    OpenWithTickets();
    Window().Check.lstMessage.AddItem("old");
    Click("chkStatUpdate");
    Draw("txtWin6", {1, 2, 3, 4, 5, 40, 41});
    person.Expect("Database Updated", "Database Updated.");
    Click("cmdCheck");
    EXPECT_TRUE(Messages().empty());
}

TEST_F(LottarioCheck, MoreRowsOfTicketsThanSixteenBitsHoldAreAnOverflowBeforeTheAddOn) {
    OpenWithTickets();
    Do("DELETE FROM PlayedLottario");
    // Two rows a ticket.
    Do("INSERT INTO PlayedLottario (ID1, Date, Ball_1, Ball_2, Ball_3, Ball_4, Ball_5, Ball_6, EarlyBird) "
       "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 16384) SELECT i, " +
       Day() + ", 1, 2, 3, 4, 5, 6, 0 FROM n");
    Draw("txtWin6", {1, 2, 3, 4, 5, 40, 41});
    Draw("txtWin4", {3, 4, 5, 6});
    Type("txtWinEncore", "123456");
    ExpectRunTimeError(ErrorNumber::Overflow);
    Click("cmdCheck");
    EXPECT_EQ(Window().Check.lstMessage.ListCount(), 32768);
    EXPECT_EQ(CountOf("WinEncore"), "0");
}

}  // namespace
}  // namespace sorvane::test

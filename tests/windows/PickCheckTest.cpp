#include "windows/CheckSlip.h"

namespace sorvane::test {
namespace {

class PickCheck : public CheckTickets {
  protected:
    void Ticket(int key, const std::string& digits, const std::string& way) {
        Do("INSERT INTO PlayedWESTPick3 (ID1, Lottoflag, Date, Ball_1, Ball_2, Ball_3, [Way Played]) VALUES "
           "(" +
           std::to_string(key) + ", 'WESTPick3', " + Day() + ", " + digits + ", '" + way + "')");
    }
    void CheckTwoTickets() {
        Open("mnuCANWESTPICK3");
        Ticket(1, "1, 2, 3", "Box");
        Ticket(2, "3, 1, 2", "Straight");
        Digits({3, 2, 1});
        Click("cmdCheck");
    }
    static constexpr const char* Winner = "Congratulations! This Ticket is a Winner! ";
};

TEST_F(PickCheck, TheWayOfTheFirstRowRulesTheDate) {
    CheckTwoTickets();
    EXPECT_EQ(Messages(), (Texts{Winner, Winner}));
    EXPECT_EQ(global.PlayOption, "Box");
}

TEST_F(PickCheck, EmptyBoxesAreRefusedUnderTheTitleWithAMark) {
    Open("mnuCANWESTPICK3");
    Window().Check.lstMessage.AddItem("old");
    Digits({3, 2});
    ExpectMissing("Missing data. Please check and try again.", "ERROR!");
    Click("cmdCheck");
    EXPECT_EQ(Focus(), "cboWin3(2)");
    // The lists were cleared before any validation.
    EXPECT_TRUE(Messages().empty());
}

TEST_F(PickCheck, ARefusedRecheckJudgesAgainstTheBoxesAndStaysRefused) {
    Open("mnuCANWESTPICK3");
    Ticket(1, "1, 2, 3", "Straight");
    Digits({3, 2, 1});
    Click("cmdCheck");
    EXPECT_EQ(Messages(), Texts{std::string(Sorry)});
    Digits({1, 2, 3});
    ExpectRecheck(Answer::No);
    Click("cmdCheck");
    EXPECT_EQ(Messages(), Texts{Winner});
    EXPECT_EQ(Rows("SELECT Ball_1 FROM WinWESTPick3"), Texts{"3"});
    EXPECT_EQ(global.RecheckRefused, True);
}

TEST_F(PickCheck, ARefusedCorrectionComesWithoutABox) {
    Open("mnuCANWESTPICK3");
    Click("chkStatUpdate");
    Digits({3, 2, 1});
    person.Expect("Database Updated", "Database Updated.");
    Click("cmdCheck");
    EXPECT_EQ(TextOf("cboWin3(0)"), "3");
    ExpectCorrection(Answer::No);
    Click("cmdCheck");
    EXPECT_EQ(global.RecheckAccepted, True);
}

TEST_F(PickCheck, OntarioAsksForTheEncoreBeforeTheBoxesAndEndsAtOnce) {
    Open("mnuCANONTPICK3");
    global.EntryCounter = 7;
    ExpectMissing("The Encore number is too short. Please check the number and try again.",
                  "Encore Too Short");
    Click("cmdCheck");
    EXPECT_EQ(Focus(), "txtWinEncore");
    EXPECT_EQ(global.EntryCounter, 0);
}

TEST_F(PickCheck, OntariosListOfEncoresIsEmptiedWhereItsNumberIsAskedFor) {
    Open("mnuCANONTPICK3");
    Window().Check.lstEncorePlayed->AddItem("old");
    ExpectMissing("The Encore number is too short. Please check the number and try again.",
                  "Encore Too Short");
    Click("cmdCheck");
    EXPECT_TRUE(AddOn().empty());
}

TEST_F(PickCheck, AWindowWithoutEncoresLeavesTheirListAlone) {
    Open("mnuCANWESTPICK3");
    Window().Check.lstEncorePlayed->AddItem("old");
    Digits({3, 2, 1});
    ExpectMissing("No match for Draw Date selected. Please check the Draw Date and try again.");
    Click("cmdCheck");
    EXPECT_EQ(AddOn(), Texts{"old"});
}

TEST_F(PickCheck, ADoubleClickOnAVerdictLeadsToItsTicket) {
    CheckTwoTickets();
    ASSERT_EQ(Messages().size(), 2u);
    person.DoubleClickRow(person.Find<QListView>("lstMessage"), 1);
    EXPECT_EQ(Window().Check.lstNumbersPlayed.ListIndex(), 1);
}

TEST_F(PickCheck, EveryDigitCanBeChosenAndNoneIsChosenAtFirst) {
    Open("mnuCANWESTPICK3");
    EXPECT_EQ(ListOf("cboWin3(2)"), (Texts{"0", "1", "2", "3", "4", "5", "6", "7", "8", "9"}));
    EXPECT_EQ(TextOf("cboWin3(2)"), "");
}

TEST_F(PickCheck, NoTicketOfTheDateEmptiesTheWayOfPlay) {
    Open("mnuCANWESTPICK3");
    global.PlayOption = "Box";
    Digits({3, 2, 1});
    ExpectMissing("No match for Draw Date selected. Please check the Draw Date and try again.");
    Click("cmdCheck");
    EXPECT_EQ(global.PlayOption, "");
}

TEST_F(PickCheck, TheListsHoldTheDigitsAloneAndShowNothing) {
    const struct {
        const char* menu;
        const char* stem;
        int digits;
    } games[] = {{"mnuCANWESTPICK3", "cboWin3", 3}, {"mnuUSFLAPlay4", "cboWin4", 4}};
    for (const auto& [menu, stem, digits] : games) {
        Open(menu);
        for (int i = 0; i < digits; ++i) {
            EXPECT_EQ(ListOf(Box(stem, i)), (Texts{"0", "1", "2", "3", "4", "5", "6", "7", "8", "9"}));
            EXPECT_EQ(TextOf(Box(stem, i)), "");
            Enter(Box(stem, i));
            person.Type("x");
            EXPECT_EQ(TextOf(Box(stem, i)), "") << "what is no entry cannot be typed";
        }
        EXPECT_FALSE(Exists(Box(stem, digits)));
        Window().Leave();
    }
}

TEST_F(PickCheck, TheListsTakeTheRoomOfAnAddOnListThatIsHidden) {
    Open("mnuCANBCDAILY3");
    const QRect played = Find("lstNumbersPlayed").geometry();
    EXPECT_FALSE(IsShown("lstEncorePlayed"));
    const int gap = Find("lstMessage").x() - played.right();
    EXPECT_GT(gap, 0);
    EXPECT_LT(gap, played.height() / 4);
}

TEST_F(PickCheck, AnAddOnListSaysWhatItIsForButNotWherePlay4ShowsItInVain) {
    Open("mnuCANONTPICK3");
    EXPECT_FALSE(Find("lstEncorePlayed").accessibleDescription().isEmpty());
    Open("mnuUSFLAPlay4");
    EXPECT_TRUE(IsShown("lstEncorePlayed"));
    EXPECT_TRUE(Find("lstEncorePlayed").accessibleDescription().isEmpty());
}

TEST_F(PickCheck, OntariosEncoreIsClosedByUpdateStatsOnlyAndNotAskedFor) {
    Open("mnuCANONTPICK3");
    Window().Check.lstMessage.AddItem("old");
    Window().Check.lstEncorePlayed->AddItem("kept");
    Click("chkStatUpdate");
    EXPECT_FALSE(IsEnabled("lblWinEncore"));
    EXPECT_FALSE(IsEnabled("txtWinEncore"));
    Digits({3, 2, 1});
    person.Expect("Database Updated", "Database Updated.");
    Click("cmdCheck");
    EXPECT_TRUE(Messages().empty());
    EXPECT_EQ(AddOn(), Texts{"kept"});
}

TEST_F(PickCheck, ARefusedRecheckOfADigitGameStopsTheNextCheckOfALottoGame) {
    Open("mnuCANWESTPICK3");
    Ticket(1, "1, 2, 3", "Straight");
    Digits({3, 2, 1});
    Click("cmdCheck");
    ExpectRecheck(Answer::No);
    Click("cmdCheck");
    Window().Leave();
    Open("mnuCANBCBC49");
    Do("INSERT INTO PlayedBC49 (ID1, Date, Ball_1, Ball_2, Ball_3, Ball_4, Ball_5, Ball_6) VALUES (1, " +
       Day() + ", 1, 2, 3, 4, 5, 6)");
    Draw("txtWin6", {1, 2, 3, 4, 5, 6, 7});
    Draw("txtWin4", {1, 2, 3, 4});
    Click("cmdCheck");
    EXPECT_EQ(CountOf("WinBC49"), "1");
    EXPECT_TRUE(Messages().empty());
    EXPECT_EQ(global.RecheckRefused, 0);
}

TEST_F(PickCheck, BehindPlay4DailyThreesTablesAreMissingBoth) {
    Show("mnuUSFLAPlay4");
    Click("cmdExit(0)");
    Open("mnuCANBCDAILY3");
    Digits({1, 2, 3});
    for (const char* table : {"PlayedBCDaily3", "WinBCDaily3"}) ExpectMissingTable(table);
    Click("cmdCheck");
    EXPECT_TRUE(Messages().empty());
}

}  // namespace
}  // namespace sorvane::test

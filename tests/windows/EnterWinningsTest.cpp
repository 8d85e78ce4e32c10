// The amount won, typed beside the check.
#include "windows/CheckSlip.h"

namespace sorvane::test {
namespace {

class Winnings : public CheckTickets {
  protected:
    void Enter(const std::string& amount) {
        Type("txtDollarsWon", amount);
        Click("cmdEnterWinnings");
    }
    void ExpectSaved() { person.Expect("SAVED", "Winning data saved."); }
    static constexpr const char* AmendTitle = "Correct Winnings?";
    static constexpr const char* AmendQuestion =
        "You have already entered a Winning amount for this\r\n"
        "Lottery on this Draw Date. Do you wish to amend your\r\nentry?";
    void ExpectAmendQuestion(Answer answer) {
        person.Expect(AmendTitle, AmendQuestion, answer, BoxStyle::YesNo);
    }
    // The played table of a keno game and the ledger are both missing in turn.
    void ExpectBothTablesMade(const std::string& key) {
        Enter("5");
        EXPECT_EQ(CountOf("Played" + key), "0");
        Do("INSERT INTO Played" + key + " (ID1, Date, Lottoflag) VALUES (1, " + Day() + ", '" + key + "')");
        Do("DROP TABLE Winnings");
        ExpectSaved();
        Enter("5");
        EXPECT_EQ(Rows("SELECT Lottoflag, Winnings FROM Winnings"), Texts{key + "|5"});
    }
    void TicketOfBC49() { Do("INSERT INTO PlayedBC49 (ID1, Date) VALUES (1, " + Day() + ")"); }
};

TEST_F(Winnings, ATypedAmountGoesToTheLedger) {
    Open("mnuCANBCBC49");
    TicketOfBC49();
    ExpectSaved();
    Enter("1,250.75");
    EXPECT_EQ(Rows("SELECT * FROM Winnings"), Texts{"1|BC49|" + Day() + "|1250.75"});
    EXPECT_EQ(global.EnteringWinnings, 1);
}

TEST_F(Winnings, WithAnEmptyTableTheFirstClickEndsWithoutAWord) {
    Open("mnuCANBCBC49");
    Enter("5");
    EXPECT_EQ(CountOf("Winnings"), "0");
}

TEST_F(Winnings, ADateWithoutTicketsIsRefusedWithTheNumberNought) {
    Open("mnuCANBCBC49");
    TicketOfBC49();
    Window().dtpEnterTickets(2).SetValue(Date::FromText("2006-03-10"));
    person.Expect("ERROR!",
                  "ERROR #0\r\nNo entry for this Draw Date. Please check the Draw Date\r\nand try again.");
    Enter("5");
    EXPECT_EQ(CountOf("Winnings"), "0");
}

TEST_F(Winnings, ARefusedEntryForgetsTheTableOpenedBefore) {
    Open("mnuCANBCBC49");
    TicketOfBC49();
    Window().dtpEnterTickets(2).SetValue(Date::FromText("2006-03-10"));
    ASSERT_EQ(global.TableOpened, Off);
    global.TableOpened = On;  // as a report leaves it
    person.Expect("ERROR!",
                  "ERROR #0\r\nNo entry for this Draw Date. Please check the Draw Date\r\nand try again.");
    Enter("5");
    EXPECT_EQ(global.TableOpened, Off);
}

TEST_F(Winnings, LettersOrNothingAreAConversionFailureAndTheBoxComesAllTheSame) {
    Open("mnuCANBCBC49");
    TicketOfBC49();
    for (const char* bad : {"", "abc"}) {
        person.Expect("ERROR!", "ERROR #3421\r\nPlease enter a valid amount and try again.", Answer::Ok,
                      BoxStyle::Stop);
        ExpectSaved();
        Enter(bad);
    }
    EXPECT_EQ(CountOf("Winnings"), "0");
}

TEST_F(Winnings, AnAmendmentCanBeRefusedAndTheBoxComesAllTheSame) {
    Open("mnuCANBCBC49");
    TicketOfBC49();
    ExpectSaved();
    Enter("5");
    ExpectAmendQuestion(Answer::No);
    ExpectSaved();
    Enter("6");
    EXPECT_EQ(Rows("SELECT Winnings FROM Winnings"), Texts{"5"});
    ExpectAmendQuestion(Answer::Yes);
    ExpectSaved();
    Enter("6");
    EXPECT_EQ(Rows("SELECT Winnings FROM Winnings"), Texts{"6"});
}

TEST_F(Winnings, EnterAmendsNothing) {
    Open("mnuCANBCBC49");
    TicketOfBC49();
    ExpectSaved();
    Enter("5");
    person.ExpectKey(AmendTitle, AmendQuestion, Qt::Key_Return, BoxStyle::YesNo);
    ExpectSaved();
    Enter("6");
    EXPECT_EQ(Rows("SELECT Winnings FROM Winnings"), Texts{"5"});
}

TEST_F(Winnings, OnlyACheckEndsTheEnteringOfWinnings) {
    Open("mnuCANBCBC49");
    TicketOfBC49();
    ExpectSaved();
    Enter("5");
    EXPECT_EQ(global.EnteringWinnings, 1);
    ExpectMissing("Missing Data. Please enter a valid number from 1 to 49 and try again.");
    Click("cmdCheck");
    EXPECT_EQ(global.EnteringWinnings, 0);
}

TEST_F(Winnings, BCDailyThreeAsksWhateverTableWasNamedLast) {
    Open("mnuCANBCDAILY3");
    Do("INSERT INTO PlayedBCDaily3 (ID1, Lottoflag, Date) VALUES (1, 'BCDaily3', " + Day() + ")");
    // Straight after opening the window that is the game's own table.
    ExpectSaved();
    Enter("5");
    EXPECT_EQ(Window().State.TableName, "Winnings");
    // From then on it is the ledger itself, which has a row of the date; the tickets have none now.
    Do("UPDATE PlayedBCDaily3 SET Date = 1");
    ExpectAmendQuestion(Answer::No);
    ExpectSaved();
    Enter("6");
}

TEST_F(Winnings, AfterACheckBCDailyThreeAsksItsDraws) {
    Open("mnuCANBCDAILY3");
    Do("INSERT INTO PlayedBCDaily3 (ID1, Lottoflag, Date, Ball_1, Ball_2, Ball_3, [Way Played]) VALUES (1, "
       "'BCDaily3', " +
       Day() + ", 1, 2, 3, 'Box')");
    Digits({1, 2, 3});
    Click("cmdCheck");
    EXPECT_EQ(Window().State.TableName, "WinBCDaily3");
    Do("DELETE FROM PlayedBCDaily3");
    ExpectSaved();
    Enter("5");
    EXPECT_EQ(CountOf("Winnings"), "1");
}

TEST_F(Winnings, AfterACancelBCDailyThreeAsksItsTicketsAgain) {
    Open("mnuCANBCDAILY3");
    Do("INSERT INTO PlayedBCDaily3 (ID1, Lottoflag, Date, Ball_1, Ball_2, Ball_3, [Way Played]) VALUES (1, "
       "'BCDaily3', " +
       Day() + ", 1, 2, 3, 'Box')");
    Digits({1, 2, 3});
    Click("cmdCheck");
    Window().SSTab1.SetTab(Tab::Enter);
    person.Expect("CONFIRM", "Are you sure you wish to start over?", Answer::Yes, BoxStyle::YesNo);
    Click("cmdCancel");
    Window().SSTab1.SetTab(Tab::Check);
    Do("DELETE FROM WinBCDaily3");
    ExpectSaved();
    Enter("5");
    EXPECT_EQ(CountOf("Winnings"), "1");
}

TEST_F(Winnings, AnEntryFromOneRegionsWindowIsAmendedFromTheOthers) {
    Open("mnuCANONTLotto649");
    Do("INSERT INTO PlayedLotto649 (ID1, Date) VALUES (1, " + Day() + ")");
    ExpectSaved();
    Enter("5");
    Window().Leave();
    Open("mnuCANATLLotto649");
    ExpectAmendQuestion(Answer::Yes);
    ExpectSaved();
    Enter("7");
    EXPECT_EQ(Rows("SELECT ID1, Lottoflag, Winnings FROM Winnings"), Texts{"1|Lotto649|7"});
}

TEST_F(Winnings, OneMoneyReportHoldsBothRegionsOfAGame) {
    Open("mnuCANONTLotto649");
    Do("INSERT INTO PlayedLotto649 (ID1, Date) VALUES (1, " + Day() + ")");
    Do("INSERT INTO Spent (ID1, Lottoflag, Date, Spent) VALUES (1, 'Lotto649', " + Day() + ", 2)");
    ExpectSaved();
    Enter("5");
    Window().Leave();
    Open("mnuCANATLLotto649");
    Window().SSTab1.SetTab(Tab::Reports);
    Click("cmdPLReport");
    const std::string report = Window().Reports.txtReport.Text();
    EXPECT_NE(report.find("Total Spent :   $          2.00\r\n"), std::string::npos);
    EXPECT_NE(report.find("Total Won   :   $          5.00\r\n"), std::string::npos);
}

TEST_F(Winnings, AnEmptyTableKeepsTheAnswerOfAnEarlierWindow) {
    Open("mnuCANBCBC49");
    TicketOfBC49();
    ExpectSaved();
    Enter("5");
    Window().Leave();
    Open("mnuCANQCQuebec49");
    ExpectSaved();
    Enter("6");
    EXPECT_EQ(Rows("SELECT Lottoflag, Winnings FROM Winnings"), (Texts{"BC49|5", "Quebec49|6"}));
}

TEST_F(Winnings, DailyKenoMakesItsLostTablesAgain) {
    Open("mnuCANONTKENO");
    Do("DROP TABLE PlayedONTKeno");
    ExpectBothTablesMade("ONTKeno");
}

TEST_F(Winnings, KenoOfEightyMakesTheTablesThatItAsks) {
    Show(Family::frmKeno80, "PrairieKeno", "");
    Window().SSTab1.SetTab(Tab::Check);
    ExpectBothTablesMade("PrairieKeno");
}

TEST_F(Winnings, OnlyLottariosAmountIsSelectedWhenItGetsTheFocus) {
    const std::pair<const char*, std::string> games[] = {{"mnuCANONTLOTTARIO", "12"}, {"mnuCANBCBC49", ""}};
    for (const auto& [menu, selected] : games) {
        Open(menu);
        Window().Check.txtDollarsWon.SetText("12");
        Click("txtDollarsWon");
        EXPECT_EQ(person.Find<QLineEdit>("txtDollarsWon").selectedText().toStdString(), selected) << menu;
        Window().Leave();
    }
}

TEST_F(Winnings, TheKeyDailyThreeNamesATableThatNothingMakes) {
    Show(Family::frmPick3, "Daily3", "Daily3");
    Window().SSTab1.SetTab(Tab::Check);
    ExpectMissingTable("PlayedDaily3");
    Enter("5");
    EXPECT_EQ(CountOf("Winnings"), "0");
}

TEST_F(Winnings, LottariosAmountTakesTheKeysOfAnAmountAloneAndMakesALostTable) {
    Open("mnuCANONTLOTTARIO");
    Click("txtDollarsWon");
    person.Type("1,5.0");
    person.Enter();
    EXPECT_EQ(TextOf("txtDollarsWon"), "1,5.0");
    // This box alone has no icon.
    person.Expect("Error!", "Please enter a valid number greater than or equal to 1.");
    person.Type("x");
    EXPECT_EQ(TextOf("txtDollarsWon"), "1,5.0");
    Do("DROP TABLE PlayedLottario");
    Click("cmdEnterWinnings");
    EXPECT_EQ(CountOf("PlayedLottario"), "0");
}

TEST_F(Winnings, ASaveBetweenEnterWinningsAndACheckMeetsTheAmendingQuestionOnTheSpending) {
    Open("mnuCANBCBC49");
    TicketOfBC49();
    Do("INSERT INTO Spent (ID1, Lottoflag, Date, Spent) VALUES (1, 'BC49', " + Day() + ", 9)");
    ExpectSaved();
    Enter("5");
    Window().SSTab1.SetTab(Tab::Enter);
    Count("1");
    PickFrom(1, 6);
    ExpectSaveQuestion(Answer::Yes);
    ExpectAmendQuestion(Answer::Yes);
    person.Expect("CONFIRMED", "Tickets Saved");
    Click("cmdSave");
    EXPECT_EQ(Rows("SELECT ID1, Spent FROM Spent"), Texts{"1|0.5"});
}

}  // namespace
}  // namespace sorvane::test

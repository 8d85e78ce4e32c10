// The check page: guards in their order, the draw stored, verdicts, lists that follow, entry guards,
// winnings.
#include "store/CreateTables.h"
#include "windows/Slip.h"

namespace sorvane::test {
namespace {

constexpr std::string_view Sorry = "Sorry. This ticket is not a winner.";

class CheckTickets : public SlipWorld {
  protected:
    static std::string Day(std::string_view date = Today) {
        return std::to_string(Date::FromText(date).Day());
    }

    void Open(std::string_view menu) {
        Show(menu);
        Window().SSTab1.SetTab(Tab::Check);
    }
    // Fills boxes of an array from 0 on, as a player types them.
    void Draw(const std::string& stem, std::initializer_list<int> numbers) {
        int i = 0;
        for (const int number : numbers) Type(Box(stem, i++), std::to_string(number));
    }
    // The digits drawn, chosen in the lists of the three-digit window.
    void Digits(std::initializer_list<int> digits) {
        int i = 0;
        for (const int digit : digits) Choose(Box("cboWin3", i++), std::to_string(digit));
    }
    static std::string Box(const std::string& stem, int i) { return stem + "(" + std::to_string(i) + ")"; }
    void ExpectMissing(const std::string& text, const char* title = "ERROR") { person.Expect(title, text); }
    void ExpectCorrection(Answer answer) {
        person.Expect("RECHECK?",
                      "You have already entered a Winning Number on this Draw Date.\r\n"
                      "Would you like to correct this Winning Number?",
                      answer, BoxStyle::YesNo);
    }
    Texts Played() { return ListOf("lstNumbersPlayed"); }
    Texts AddOn() { return ListOf("lstEncorePlayed"); }
    Texts Messages() { return ListOf("lstMessage"); }
};

class SixNumberCheck : public CheckTickets {
  protected:
    void Ticket(int key, const std::string& balls, std::string_view date = Today) {
        Do("INSERT INTO PlayedLotto649 (ID1, Date, Ball_1, Ball_2, Ball_3, Ball_4, Ball_5, Ball_6) VALUES (" +
           std::to_string(key) + ", " + Day(date) + ", " + balls + ")");
    }
    void OpenOntario() {
        Open("mnuCANONTLotto649");
        Type("txtWinEncore", "123456");
    }
};

TEST_F(SixNumberCheck, JudgesEachTicketOfTheDateInTurnAndKeepsTheBoxes) {
    OpenOntario();
    Ticket(1, "1, 2, 3, 4, 5, 6");
    Ticket(2, "1, 2, 3, 4, 5, 40");
    Ticket(3, "1, 2, 3, 41, 42, 43");
    Ticket(4, "1, 2, 40, 41, 42, 43");
    Ticket(5, "1, 2, 3, 4, 5, 6", "2006-03-10");
    Draw("txtWin6", {1, 2, 3, 4, 5, 6, 40});
    Click("cmdCheck");
    EXPECT_EQ(Played(), (Texts{"1, 2, 3, 4, 5, 6", "1, 2, 3, 4, 5, 40", "1, 2, 3, 41, 42, 43",
                               "1, 2, 40, 41, 42, 43"}));
    EXPECT_EQ(Messages(),
              (Texts{"Congratulations! You've hit the JACKPOT!!!", "Congratulations! You've won 2nd Prize!",
                     "Congratulations! You matched 3 Numbers!", std::string(Sorry)}));
    EXPECT_EQ(AddOn(), Texts{"Not Played"});
    EXPECT_EQ(Rows("SELECT ID1, Date, Ball_1, Ball_6, Ball_B FROM WinLotto649"),
              Texts{"1|" + Day() + "|1|6|40"});
    EXPECT_EQ(Rows("SELECT Lottoflag, [Number 1], [Number 6], [Number 7] FROM WinEncore"),
              Texts{"Lotto649|1|6|NULL"});
    EXPECT_EQ(TextOf("txtWin6(0)"), "1");
    EXPECT_TRUE(IsEnabled("cmdCheck"));
    EXPECT_EQ(global.EntryCounter, 0);
    EXPECT_EQ(global.NoRowForDate, 0);
    EXPECT_EQ(Window().State.TicketRows, 4);
}

TEST_F(SixNumberCheck, TomorrowIsRefusedWithNoListTouchedAndTodayPasses) {
    OpenOntario();
    Window().dtpEnterTickets(2).SetValue(Date::FromText("2006-03-12"));
    Window().Check.lstMessage.AddItem("kept");
    person.Expect("ERROR", "This draw hasn't taken place yet. Please check the Draw Date and try again.");
    Click("cmdCheck");
    EXPECT_EQ(Messages(), Texts{"kept"});
}

TEST_F(SixNumberCheck, EachBoxIsRequiredTheBonusLikeTheOthers) {
    OpenOntario();
    Draw("txtWin6", {1, 2, 3, 4, 5, 6});
    ExpectMissing("Missing Data. Please enter a valid number from 1 to 49 and try again.");
    Click("cmdCheck");
    EXPECT_EQ(Focus(), "txtWin6(6)");
    Type("txtWin6(2)", "");
    ExpectMissing("Missing Data. Please enter a valid number from 1 to 49 and try again.");
    Click("cmdCheck");
    EXPECT_EQ(Focus(), "txtWin6(2)");
    EXPECT_EQ(CountOf("WinLotto649"), "0");
}

TEST_F(SixNumberCheck, TheAddOnNumberMustBeLongEnoughEvenIfNoneIsHeld) {
    const std::pair<const char*, const char*> games[] = {{"mnuCANONTLotto649", "Encore number is too short."},
                                                         {"mnuCANQCLotto649", "Extra number is too short."},
                                                         {"mnuCANATLLotto649", "Tag number is too short."},
                                                         {"mnuCANWESTLotto649", " number is too short."}};
    for (const auto& [menu, start] : games) {
        Open(menu);
        Draw("txtWin6", {1, 2, 3, 4, 5, 6, 7});
        Type("txtWinEncore", "12345");
        ExpectMissing(std::string(start) + " Please check the number and try again.");
        Click("cmdCheck");
        EXPECT_EQ(Focus(), "txtWinEncore") << menu;
        Window().Leave();
    }
}

TEST_F(SixNumberCheck, ExtraAsksForItsFourNumbers) {
    Open("mnuCANBCLotto649");
    Draw("txtWin6", {1, 2, 3, 4, 5, 6, 7});
    Draw("txtWin4", {10, 20, 30});
    ExpectMissing("Missing Data. Please enter a valid number from 1 to 99 and try again.");
    Click("cmdCheck");
    EXPECT_EQ(Focus(), "txtWin4(3)");
}

TEST_F(SixNumberCheck, WithoutATicketForTheDateNothingIsStored) {
    OpenOntario();
    Ticket(1, "1, 2, 3, 4, 5, 6", "2006-03-10");
    Draw("txtWin6", {1, 2, 3, 4, 5, 6, 7});
    ExpectMissing("No match for Draw Date selected. Please check the Draw Date and try again.");
    Click("cmdCheck");
    EXPECT_EQ(CountOf("WinLotto649"), "0");
    EXPECT_EQ(CountOf("WinEncore"), "0");
    EXPECT_TRUE(Messages().empty());
}

TEST_F(SixNumberCheck, ARecheckAsksAndYesRewritesTheRowFromTheBoxes) {
    OpenOntario();
    Ticket(1, "1, 2, 3, 4, 5, 6");
    Draw("txtWin6", {1, 2, 3, 4, 5, 6, 7});
    Click("cmdCheck");
    Type("txtWin6(0)", "8");
    ExpectRecheck(Answer::Yes);
    Click("cmdCheck");
    EXPECT_EQ(Rows("SELECT ID1, Ball_1 FROM WinLotto649"), Texts{"1|8"});
    EXPECT_EQ(Messages(), Texts{"Congratulations! You matched 5 Numbers!"});
    EXPECT_EQ(global.RecheckAccepted, True);
}

TEST_F(SixNumberCheck, ARefusedRecheckLeavesTheTicketsListedAndJudgesNone) {
    OpenOntario();
    Ticket(1, "1, 2, 3, 4, 5, 6");
    Draw("txtWin6", {1, 2, 3, 4, 5, 6, 7});
    Click("cmdCheck");
    Type("txtWin6(0)", "8");
    ExpectRecheck(Answer::No);
    Click("cmdCheck");
    EXPECT_EQ(Rows("SELECT Ball_1 FROM WinLotto649"), Texts{"1"});
    EXPECT_EQ(Played(), Texts{"1, 2, 3, 4, 5, 6"});
    EXPECT_TRUE(Messages().empty());
    EXPECT_EQ(global.RecheckRefused, 0);
    EXPECT_EQ(global.RecheckAccepted, True);
}

TEST_F(SixNumberCheck, TheSecondRegionsCheckAsksAboutTheSameRow) {
    OpenOntario();
    Ticket(1, "1, 2, 3, 4, 5, 6");
    Draw("txtWin6", {1, 2, 3, 4, 5, 6, 7});
    Click("cmdCheck");
    Window().Leave();
    Open("mnuCANATLLotto649");
    Draw("txtWin6", {1, 2, 3, 4, 5, 6, 7});
    Type("txtWinEncore", "123456");
    ExpectRecheck(Answer::Yes);
    Click("cmdCheck");
    EXPECT_EQ(CountOf("WinLotto649"), "1");
    EXPECT_EQ(CountOf("WinTag"), "1");
}

TEST_F(SixNumberCheck, UpdateStatsOnlyStoresADrawWithoutTicketsOrAddOn) {
    OpenOntario();
    Click("chkStatUpdate");
    EXPECT_EQ(CaptionOf("cmdCheck"), "&Update");
    EXPECT_FALSE(IsEnabled("txtWinEncore"));
    EXPECT_FALSE(IsEnabled("lblWinEncore"));
    Window().Check.lstMessage.AddItem("kept");
    Draw("txtWin6", {1, 2, 3, 4, 5, 6, 7});
    person.Expect("Database Updated", "Database Updated.");
    Click("cmdCheck");
    EXPECT_EQ(CountOf("WinLotto649"), "1");
    EXPECT_EQ(CountOf("WinEncore"), "0");
    EXPECT_EQ(TextOf("txtWin6(0)"), "");
    EXPECT_EQ(TextOf("txtWin6(6)"), "");
    EXPECT_EQ(Messages(), Texts{"kept"});
    // A correction refused: no box, the row stays.
    Draw("txtWin6", {11, 2, 3, 4, 5, 6, 7});
    ExpectCorrection(Answer::No);
    Click("cmdCheck");
    EXPECT_EQ(Rows("SELECT Ball_1 FROM WinLotto649"), Texts{"1"});
    ExpectCorrection(Answer::Yes);
    person.Expect("Database Updated", "Database Updated.");
    Click("cmdCheck");
    EXPECT_EQ(Rows("SELECT Ball_1 FROM WinLotto649"), Texts{"11"});
    Click("chkStatUpdate");
    EXPECT_EQ(CaptionOf("cmdCheck"), "&Check");
    EXPECT_TRUE(IsEnabled("txtWinEncore"));
}

TEST_F(SixNumberCheck, CancelLeavesUpdateStatsOnlyLookingTicked) {
    OpenOntario();
    Click("chkStatUpdate");
    global.RecheckAccepted = Off;
    Window().SSTab1.SetTab(Tab::Enter);
    person.Expect("CONFIRM", "Are you sure you wish to start over?", Answer::Yes, BoxStyle::YesNo);
    Click("cmdCancel");
    EXPECT_TRUE(Window().Check.chkStatUpdate.Value() == 1);
    EXPECT_EQ(global.StatUpdate, 0);
    EXPECT_EQ(global.RecheckAccepted, True);
}

TEST_F(SixNumberCheck, OpeningAWindowEndsUpdateStatsOnlyAndAnEarlierRefusal) {
    global.StatUpdate = On;
    global.RecheckAccepted = Off;
    OpenOntario();
    EXPECT_EQ(global.StatUpdate, 0);
    EXPECT_EQ(global.RecheckAccepted, True);
}

TEST_F(SixNumberCheck, AnotherDateForgetsTheResultsButKeepsTheFourNumbers) {
    Open("mnuCANBCLotto649");
    Ticket(1, "1, 2, 3, 4, 5, 6");
    Draw("txtWin6", {1, 2, 3, 4, 5, 6, 7});
    Draw("txtWin4", {1, 2, 3, 4});
    Click("cmdCheck");
    EXPECT_EQ(Messages().size(), 1u);
    Window().dtpEnterTickets(2).SetValue(Date::FromText("2006-03-10"));
    EXPECT_TRUE(Messages().empty());
    EXPECT_TRUE(Played().empty());
    EXPECT_TRUE(AddOn().empty());
    EXPECT_EQ(TextOf("txtWin6(0)"), "");
    EXPECT_EQ(TextOf("txtWin4(0)"), "1");
}

TEST_F(SixNumberCheck, ADoubleClickOnAVerdictLeadsToItsTicketOrItsAddOn) {
    OpenOntario();
    Ticket(1, "1, 2, 3, 4, 5, 6");
    Ticket(2, "7, 8, 9, 10, 11, 12");
    Do("INSERT INTO PlayedEncore (ID1, Lottoflag, Date, [Number 1], [Number 2], [Number 3], [Number 4], "
       "[Number 5], "
       "[Number 6]) VALUES (1, 'Lotto649', " +
       Day() + ", 9, 9, 9, 4, 5, 6)");
    Draw("txtWin6", {1, 2, 3, 4, 5, 6, 7});
    Click("cmdCheck");
    EXPECT_EQ(Messages().at(2), "Encore #999456 won $25.00!");
    auto& messages = person.Find<QListView>("lstMessage");
    person.DoubleClickRow(messages, 1);
    EXPECT_EQ(Window().Check.lstNumbersPlayed.ListIndex(), 1);
    EXPECT_EQ(Window().Check.lstEncorePlayed->ListIndex(), -1);
    person.DoubleClickRow(messages, 2);
    EXPECT_EQ(Window().Check.lstEncorePlayed->ListIndex(), 0);
    EXPECT_EQ(Window().Check.lstNumbersPlayed.ListIndex(), -1);
}

TEST_F(SixNumberCheck, AMissingWinTableIsNamedAndTheTicketsAreJudgedAllTheSame) {
    OpenOntario();
    Ticket(1, "1, 2, 3, 4, 5, 6");
    Do("DROP TABLE WinLotto649");
    Draw("txtWin6", {1, 2, 3, 4, 5, 6, 7});
    ExpectMissingTable("WinLotto649");
    Click("cmdCheck");
    EXPECT_EQ(Messages(), Texts{"Congratulations! You've hit the JACKPOT!!!"});
}

TEST_F(SixNumberCheck, KeysInTheWinningBoxesAreGuardedAndEnterIsARefusedKey) {
    OpenOntario();
    Type("txtWin6(0)", "12");
    ExpectBadNumber();
    person.Enter();
    EXPECT_EQ(TextOf("txtWin6(0)"), "");
    EXPECT_EQ(Focus(), "txtWin6(0)");
    ExpectBadNumber();
    person.Type("-");
    Type("txtWin6(0)", "50");
    person.Expect("Error - Number out of Range!", "Please enter a number between 1 and 49.", Answer::Ok,
                  BoxStyle::Exclamation);
    person.Tab();
    EXPECT_EQ(TextOf("txtWin6(0)"), "");
    EXPECT_EQ(Focus(), "txtWin6(0)");
    person.Tab();
    EXPECT_EQ(Focus(), "txtWin6(1)");
}

TEST_F(SixNumberCheck, LettersPastedIntoABoxAreOutOfItsRange) {
    OpenOntario();
    for (const char* text : {"x", "0", "-1"}) {
        Paste("txtWin6(0)", text);
        person.Expect("Error - Number out of Range!", "Please enter a number between 1 and 49.", Answer::Ok,
                      BoxStyle::Exclamation);
        person.Tab();
        EXPECT_EQ(TextOf("txtWin6(0)"), "") << text;
        EXPECT_EQ(Focus(), "txtWin6(0)") << text;
    }
    // A text is a number as far as it begins with one.
    Paste("txtWin6(0)", "7x");
    person.Tab();
    EXPECT_EQ(TextOf("txtWin6(0)"), "7x");
}

TEST_F(SixNumberCheck, WithoutTheAddOnsTableNoneIsListedAsPlayedAndNothingIsSaid) {
    for (const auto& [menu, table] :
         {std::pair{"mnuCANATLLotto649", "PlayedTag"}, std::pair{"mnuCANBCLotto649", "PlayedExtra"}}) {
        Open(menu);
        Do("DELETE FROM PlayedLotto649; DELETE FROM WinLotto649; DROP TABLE " + std::string(table));
        Ticket(1, "1, 2, 3, 4, 5, 6");
        Draw("txtWin6", {1, 2, 3, 4, 5, 6, 7});
        if (IsShown("txtWinEncore")) Type("txtWinEncore", "123456");
        else Draw("txtWin4", {1, 2, 3, 4});
        Click("cmdCheck");
        EXPECT_EQ(AddOn(), Texts{"Not Played"}) << table;
        EXPECT_EQ(Messages(), Texts{"Congratulations! You've hit the JACKPOT!!!"}) << table;
        Window().Leave();
    }
}

TEST_F(SixNumberCheck, RowsOfNinetyNinesReadNotPlayedAndWinNothing) {
    OpenOntario();
    Ticket(1, "1, 2, 3, 4, 5, 6");
    Do("INSERT INTO PlayedEncore (ID1, Lottoflag, Date, [Number 1], [Number 2], [Number 3], [Number 4], "
       "[Number 5], [Number 6]) VALUES (1, 'Lotto649', " +
       Day() + ", 99, 99, 99, 99, 99, 99)");
    Draw("txtWin6", {1, 2, 3, 4, 5, 6, 7});
    Click("cmdCheck");
    EXPECT_EQ(AddOn(), Texts{"Not Played"});
    EXPECT_EQ(Messages(), (Texts{"Congratulations! You've hit the JACKPOT!!!", "Encore Not Played"}));
}

TEST_F(SixNumberCheck, TheFourBoxesKeepTheirTextAtARefusedKeyAndEndAtNinetyNine) {
    Open("mnuCANBCLotto649");
    Type("txtWin4(0)", "12");
    ExpectBadNumber();
    person.Enter();
    EXPECT_EQ(TextOf("txtWin4(0)"), "12");
    Type("txtWin4(0)", "100");
    person.Expect("Error - Number out of Range!", "Please enter a number between 1 and 99.", Answer::Ok,
                  BoxStyle::Exclamation);
    person.Tab();
    EXPECT_EQ(TextOf("txtWin4(0)"), "");
}

TEST_F(SixNumberCheck, BackspaceAndEnterInTheAddOnNumberMoveToCheck) {
    OpenOntario();
    Click("txtWinEncore");
    person.Key(Qt::Key_Backspace);
    EXPECT_EQ(Focus(), "cmdCheck");
    Click("txtWinEncore");
    person.Enter();
    EXPECT_EQ(Focus(), "cmdCheck");
    Click("txtWinEncore");
    ExpectBadNumber();
    person.Type("x");
    EXPECT_EQ(Focus(), "txtWinEncore");
}

TEST_F(SixNumberCheck, ADoubleClickOnAVerdictThatNoListHasARowForLeadsNowhere) {
    OpenOntario();
    Ticket(1, "1, 2, 3, 4, 5, 6");
    Do("INSERT INTO PlayedEncore (ID1, Lottoflag, Date, [Number 1], [Number 2], [Number 3], [Number 4], "
       "[Number 5], [Number 6]) VALUES (1, 'Lotto649', " +
       Day() + ", 1, 1, 1, 1, 1, 1), (2, 'Lotto649', " + Day() + ", NULL, 2, 2, 2, 2, 2)");
    Draw("txtWin6", {1, 2, 3, 4, 5, 6, 7});
    person.Expect("ERROR!", "ERROR #94\r\nUnexpected error occurred. Please advise error number to support.",
                  Answer::Ok, BoxStyle::Stop);
    Click("cmdCheck");
    ASSERT_EQ(AddOn().size(), 1u);
    ASSERT_EQ(Messages().size(), 3u);
    auto& messages = person.Find<QListView>("lstMessage");
    person.DoubleClickRow(messages, 0);
    EXPECT_EQ(Window().Check.lstNumbersPlayed.ListIndex(), 0);
    person.DoubleClickRow(messages, 2);
    EXPECT_EQ(Window().Check.lstNumbersPlayed.ListIndex(), 0);
    EXPECT_EQ(Window().Check.lstEncorePlayed->ListIndex(), -1);
}

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
    CreatePlayedKenoTable(run, Window().State.DbName, table, "ID1", "Date");
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

class PickCheck : public CheckTickets {
  protected:
    void Ticket(int key, const std::string& digits, const std::string& way) {
        Do("INSERT INTO PlayedWESTPick3 (ID1, Lottoflag, Date, Ball_1, Ball_2, Ball_3, [Way Played]) VALUES "
           "(" +
           std::to_string(key) + ", 'WESTPick3', " + Day() + ", " + digits + ", '" + way + "')");
    }
    static constexpr const char* Winner = "Congratulations! This Ticket is a Winner! ";
};

TEST_F(PickCheck, TheWayOfTheFirstRowRulesTheDate) {
    Open("mnuCANWESTPICK3");
    Ticket(1, "1, 2, 3", "Box");
    Ticket(2, "3, 1, 2", "Straight");
    Digits({3, 2, 1});
    Click("cmdCheck");
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
    EXPECT_EQ(global.EntryCounter, 7);
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

class EveryCheck : public CheckTickets {
  protected:
    void FillMain() {
        int number = 1;
        Window().Check.txtWin.ForEach(
            [&](forms::TextBox& box, int) { box.SetText(std::to_string(number++)); });
        Window().Check.cboWin.ForEach([](forms::ComboBox& box, int) { box.SetText("1"); });
    }
    // The box of a game whose add-on number is missing; empty where the check goes on to the tickets.
    static std::pair<std::string, std::string> ShortAddOn(const Game& game) {
        const std::string tooShort = " number is too short. Please check the number and try again.";
        if (!FindAddOn(game.ExtraFlag)) return {};
        if (game.opens == Family::frm645) {
            return {"Missing Data. Please enter a valid number from 1 to 45 and try again.", "ERROR"};
        }
        if (game.opens == Family::frmPick3) return {"The Encore" + tooShort, "Encore Too Short"};
        if (game.ExtraFlag == "Extra")
            return {"Missing Data. Please enter a valid number from 1 to 99 and try again.", "ERROR"};
        if (game.ExtraFlag == "ThePlus") return {tooShort, "ERROR"};
        const bool extra = game.ExtraFlag == "QCExtra" || game.ExtraFlag == "WESTExtra";
        return {(extra ? "Extra" : std::string(game.ExtraFlag)) + tooShort, "ERROR"};
    }
};

TEST_F(EveryCheck, TomorrowIsRefusedWithNoListTouchedAndTodayPassesInEveryFamily) {
    const std::pair<const char*, const char*> games[] = {
        {"mnuCANONTLotto649", "Missing Data. Please enter a valid number from 1 to 49 and try again."},
        {"mnuCANATLSuper7", "Missing Data. Please enter a valid number from 1 to 49 and try again."},
        {"mnuCANONTLOTTARIO", "Missing Data. Please enter a valid number from 1 to 45 and try again."},
        {"mnuCANONTKENO", "Missing Data. Please enter a valid number from 1 to 70 and try again."},
        {"mnuCANWESTPICK3", "Missing data. Please check and try again."},
        {"mnuUSFLAPlay4", "Missing data. Please check and try again."}};
    for (const auto& [menu, missing] : games) {
        Open(menu);
        Window().dtpEnterTickets(2).SetValue(Date::FromText("2006-03-12"));
        for (const char* list : {"lstNumbersPlayed", "lstEncorePlayed", "lstMessage"})
            dynamic_cast<forms::ListBox&>(Find(list)).AddItem("kept");
        person.Expect("ERROR", "This draw hasn't taken place yet. Please check the Draw Date and try again.");
        Click("cmdCheck");
        for (const char* list : {"lstNumbersPlayed", "lstEncorePlayed", "lstMessage"})
            EXPECT_EQ(ListOf(list), Texts{"kept"}) << menu << list;
        Window().dtpEnterTickets(2).SetValue(Date::FromText(Today));
        person.Expect(IsPick(Window().Which) ? "ERROR!" : "ERROR", missing);
        Click("cmdCheck");
        Window().Leave();
    }
}

TEST_F(EveryCheck, TomorrowIsRefusedInTheKenoOfEightyToo) {
    Show(Family::frmKeno80, "PrairieKeno", "");
    Window().SSTab1.SetTab(Tab::Check);
    Window().dtpEnterTickets(2).SetValue(Date::FromText("2006-03-12"));
    Window().Check.lstNumbersPlayed.AddItem("kept");
    Window().Check.lstMessage.AddItem("kept");
    person.Expect("ERROR", "This draw hasn't taken place yet. Please check the Draw Date and try again.");
    Click("cmdCheck");
    EXPECT_EQ(Played(), Texts{"kept"});
    EXPECT_EQ(Messages(), Texts{"kept"});
}

TEST_F(EveryCheck, AnAddOnNumberIsNeededWhereverTheGameHasOneEvenIfNoneIsHeld) {
    for (const Game& game : Games()) {
        SCOPED_TRACE(std::string(game.menu));
        Open(game.menu);
        FillMain();
        auto [text, title] = ShortAddOn(game);
        if (text.empty()) {
            text = "No match for Draw Date selected. Please check the Draw Date and try again.";
            title = "ERROR";
        }
        person.Expect(title, text);
        Click("cmdCheck");
        if (Window().Check.txtWinEncore) Window().Check.txtWinEncore->SetText("123456");
        Window().Leave();
    }
}

TEST_F(EveryCheck, WithoutATicketForTheDateNothingIsStored) {
    for (const Game& game : Games()) {
        SCOPED_TRACE(std::string(game.menu));
        Open(game.menu);
        FillMain();
        Window().Check.txtWin4.ForEach([](forms::TextBox& box, int) { box.SetText("1"); });
        if (Window().Check.txtWinEncore) Window().Check.txtWinEncore->SetText("1234567");
        ExpectMissing("No match for Draw Date selected. Please check the Draw Date and try again.");
        Click("cmdCheck");
        Window().Leave();
    }
    Show(Family::frmKeno80, "PrairieKeno", "");
    std::string played = "PlayedPrairieKeno";
    CreatePlayedKenoTable(run, Window().State.DbName, played, "ID1", "Date");
    Window().SSTab1.SetTab(Tab::Check);
    FillMain();
    ExpectMissing("No match for Draw Date selected. Please check the Draw Date and try again.");
    Click("cmdCheck");
    for (const std::string& table : Plain().Tables())
        if (table.starts_with("Win")) {
            EXPECT_EQ(CountOf(table), "0") << table;
        }
}

class Winnings : public CheckTickets {
  protected:
    void Enter(const std::string& amount) {
        Type("txtDollarsWon", amount);
        Click("cmdEnterWinnings");
    }
    void ExpectSaved() { person.Expect("SAVED", "Winning data saved."); }
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
    const std::string question =
        "You have already entered a Winning amount for this\r\n"
        "Lottery on this Draw Date. Do you wish to amend your\r\nentry?";
    person.Expect("Correct Winnings?", question, Answer::No, BoxStyle::YesNo);
    ExpectSaved();
    Enter("6");
    EXPECT_EQ(Rows("SELECT Winnings FROM Winnings"), Texts{"5"});
    person.Expect("Correct Winnings?", question, Answer::Yes, BoxStyle::YesNo);
    ExpectSaved();
    Enter("6");
    EXPECT_EQ(Rows("SELECT Winnings FROM Winnings"), Texts{"6"});
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
    person.Expect("Correct Winnings?",
                  "You have already entered a Winning amount for this\r\n"
                  "Lottery on this Draw Date. Do you wish to amend your\r\nentry?",
                  Answer::No, BoxStyle::YesNo);
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

TEST_F(Winnings, AnEntryFromOneRegionsWindowIsAmendedFromTheOthers) {
    Open("mnuCANONTLotto649");
    Do("INSERT INTO PlayedLotto649 (ID1, Date) VALUES (1, " + Day() + ")");
    ExpectSaved();
    Enter("5");
    Window().Leave();
    Open("mnuCANATLLotto649");
    person.Expect("Correct Winnings?",
                  "You have already entered a Winning amount for this\r\n"
                  "Lottery on this Draw Date. Do you wish to amend your\r\nentry?",
                  Answer::Yes, BoxStyle::YesNo);
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
    Enter("5");
    EXPECT_EQ(CountOf("PlayedONTKeno"), "0");
    Do("INSERT INTO PlayedONTKeno (ID1, Date, Lottoflag) VALUES (1, " + Day() + ", 'ONTKeno')");
    Do("DROP TABLE Winnings");
    ExpectSaved();
    Enter("5");
    EXPECT_EQ(Rows("SELECT Lottoflag, Winnings FROM Winnings"), Texts{"ONTKeno|5"});
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
    person.Expect("Correct Winnings?",
                  "You have already entered a Winning amount for this\r\n"
                  "Lottery on this Draw Date. Do you wish to amend your\r\nentry?",
                  Answer::Yes, BoxStyle::YesNo);
    person.Expect("CONFIRMED", "Tickets Saved");
    Click("cmdSave");
    EXPECT_EQ(Rows("SELECT ID1, Spent FROM Spent"), Texts{"1|0.5"});
}

}  // namespace
}  // namespace sorvane::test

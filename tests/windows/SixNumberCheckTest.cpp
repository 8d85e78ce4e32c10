// The check of six numbers and a bonus: guards in their order, the draw stored, verdicts, lists that follow.
#include "windows/CheckSlip.h"

namespace sorvane::test {
namespace {

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

TEST_F(SixNumberCheck, EnterDoesNotRewriteTheRow) {
    OpenOntario();
    Ticket(1, "1, 2, 3, 4, 5, 6");
    Draw("txtWin6", {1, 2, 3, 4, 5, 6, 7});
    Click("cmdCheck");
    Type("txtWin6(0)", "8");
    person.ExpectKey("RECHECK?",
                     "You have already performed a search on this Draw Date.\r\n"
                     "Would you like to perform a re-check?",
                     Qt::Key_Return, BoxStyle::YesNo);
    Click("cmdCheck");
    EXPECT_EQ(Rows("SELECT Ball_1 FROM WinLotto649"), Texts{"1"});
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

TEST_F(SixNumberCheck, TheDatesOfTheOtherPagesLeaveTheResultsAlone) {
    OpenOntario();
    Ticket(1, "1, 2, 3, 4, 5, 6");
    Draw("txtWin6", {1, 2, 3, 4, 5, 6, 7});
    Click("cmdCheck");
    for (const int page : {0, 1}) {
        Window().dtpEnterTickets(page).SetValue(Date::FromText("2006-03-10"));
        EXPECT_EQ(Messages(), Texts{"Congratulations! You've hit the JACKPOT!!!"}) << page;
        EXPECT_EQ(Played(), Texts{"1, 2, 3, 4, 5, 6"}) << page;
        EXPECT_EQ(AddOn(), Texts{"Not Played"}) << page;
        EXPECT_EQ(TextOf("txtWin6(0)"), "1") << page;
        EXPECT_EQ(TextOf("txtWinEncore"), "123456") << page;
    }
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

}  // namespace
}  // namespace sorvane::test

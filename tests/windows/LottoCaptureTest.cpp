// Tickets picked on the grid: six numbers, Super 7 with its bonus tickets, Lottario.
#include <QLayout>
#include <memory>

#include "entry/ui/NumberGrid.h"
#include "windows/Slip.h"

namespace sorvane::test {
namespace {

class LottoCaptureTest : public SlipWorld {
  protected:
    std::string Next() const { return CaptionOf("cmdNext_Ticket"); }
    std::string Title() const { return CaptionOf("fraTicketNumber"); }
    bool GridIsOpen() const { return IsEnabled("chkNumb(0)"); }
    // A ticket of `count` numbers on from `first`, and on to the next.
    void TicketAndNext(int first, int count) {
        PickFrom(first, count);
        Click("cmdNext_Ticket");
    }
};

TEST_F(LottoCaptureTest, NumbersAreStoredAscendingWhateverTheOrderOfTheClicks) {
    Show("mnuCANBCBC49");
    Count("1");
    Pick({49, 1, 30, 7, 12, 8});
    SaveSheet(true);
    EXPECT_EQ(Rows("SELECT Ball_1, Ball_2, Ball_3, Ball_4, Ball_5, Ball_6 FROM PlayedBC49"),
              Texts{"1|7|8|12|30|49"});
}

TEST_F(LottoCaptureTest, ANumberTakenBackAtFiveKeepsTheGridOpen) {
    Show("mnuCANBCBC49");
    Count("1");
    Pick({1, 2, 3, 4, 5});
    Pick({5});
    EXPECT_EQ(global.NumbersPicked, 4);
    EXPECT_TRUE(GridIsOpen());
    Pick({6, 7});
    EXPECT_FALSE(GridIsOpen());
    SaveSheet(true);
    EXPECT_EQ(Rows("SELECT Ball_5, Ball_6 FROM PlayedBC49"), Texts{"6|7"});
}

TEST_F(LottoCaptureTest, OnTheSixthEveryBoxGoesDisabledAndStaysTicked) {
    Show("mnuCANBCBC49");
    OneSheet(2);
    PickFrom(1, 6);
    for (int number = 1; number <= 49; ++number) {
        EXPECT_FALSE(IsEnabled(Ball(number)));
        EXPECT_EQ(IsTicked(Ball(number)), number <= 6);
    }
    EXPECT_TRUE(IsEnabled("cmdNext_Ticket"));
    EXPECT_TRUE(IsEnabled("cmdCorrection"));
    EXPECT_FALSE(IsEnabled("cmdSave"));
    Click("cmdNext_Ticket");
    EXPECT_FALSE(IsTicked("chkNumb(0)"));
    EXPECT_TRUE(GridIsOpen());
    EXPECT_EQ(Title(), "Ticket #2 - Sheet 1 of 1");
    EXPECT_EQ(Focus(), "chkNumb(0)");
    EXPECT_FALSE(IsEnabled("cmdNext_Ticket"));
    EXPECT_FALSE(IsEnabled("cmdCorrection"));
}

TEST_F(LottoCaptureTest, AfterTheLastTicketWithoutAddOnsOnlySaveAndReEnterAreOpen) {
    Show("mnuCANBCBC49");
    OneSheet(1);
    PickFrom(1, 6);
    EXPECT_FALSE(IsEnabled("cmdNext_Ticket"));
    EXPECT_TRUE(IsEnabled("cmdSave"));
    EXPECT_TRUE(IsEnabled("cmdCorrection"));
}

TEST_F(LottoCaptureTest, ReEnteringTheFirstTicketTakesItBackAndLeavesTheTitle) {
    Show("mnuCANBCBC49");
    OneSheet(1);
    PickFrom(1, 6);
    Click("cmdCorrection");
    EXPECT_EQ(global.TicketNo, 0);
    EXPECT_EQ(global.Correcting, 1);
    EXPECT_EQ(Title(), "Ticket #1 - Sheet 1 of 1");
    EXPECT_TRUE(GridIsOpen());
    EXPECT_FALSE(IsTicked("chkNumb(0)"));
    EXPECT_FALSE(IsEnabled("cmdSave"));
    EXPECT_EQ(Focus(), "chkNumb(0)");
    PickFrom(40, 6);
    EXPECT_EQ(global.Correcting, 0);
    SaveSheet(true);
    EXPECT_EQ(Rows("SELECT Ball_1 FROM PlayedBC49"), Texts{"40"});
}

TEST_F(LottoCaptureTest, TheLastTicketsGridIsClearedForLotto649AndStaysShownForTheOthers) {
    for (const char* menu : {"mnuCANBCLotto649", "mnuCANBCBC49"}) {
        Show(menu);
        OneSheet(1);
        PickFrom(1, 6);
        SaveSheet(true);
        EXPECT_EQ(Window().Enter.Capture().Slip().findChild<QCheckBox*>("chkNumb(0)")->isChecked(),
                  std::string(menu) == "mnuCANBCBC49");
    }
}

TEST_F(LottoCaptureTest, AMarkSticksInItsSlotForLaterSheetsOfTheSixNumberGames) {
    Show("mnuCANBCBC49");
    ExpectSheets("2");
    ExpectTicketsOnSheet("2");
    Count("4");
    Click("chkRegular");
    TicketAndNext(1, 6);
    Click("chkRegular");
    PickFrom(7, 6);
    SaveSheet(false);
    TicketAndNext(13, 6);
    PickFrom(19, 6);
    SaveSheet(true);
    EXPECT_EQ(Rows("SELECT Regular FROM PlayedBC49"), (Texts{"1", "0", "1", "0"}));
}

TEST_F(LottoCaptureTest, AMarkSticksInItsSlotInSuperSevenToo) {
    Show("mnuCANBCSuper7");
    SeveralSheets(2, 2);
    Click("chkRegular");
    for (int sheet = 1; sheet <= 2; ++sheet) {
        TicketAndNext(1, 7);
        TicketAndNext(2, 7);
        PickFrom(3, 7);
        SaveSheet(sheet == 2);
    }
    EXPECT_EQ(Rows("SELECT Ball_1, Regular FROM PlayedSuper7"),
              (Texts{"1|1", "2|0", "3|0", "1|1", "2|0", "3|0"}));
}

TEST_F(LottoCaptureTest, AMarkIsCutOffWithItsSlotByASmallerSheet) {
    Show("mnuCANBCBC49");
    ExpectSheets("3");
    ExpectTicketsOnSheet("3");
    Count("7");
    TicketAndNext(1, 6);
    TicketAndNext(2, 6);
    Click("chkRegular");
    PickFrom(3, 6);
    ExpectSaveQuestion(Answer::Yes);
    person.Expect("CONFIRMED", "Tickets Saved - Enter Next Sheet");
    ExpectTicketsOnSheet("1");
    Click("cmdSave");
    Click("chkRegular");
    PickFrom(4, 6);
    SaveSheet(false);
    TicketAndNext(5, 6);
    TicketAndNext(6, 6);
    PickFrom(7, 6);
    SaveSheet(true);
    EXPECT_EQ(Rows("SELECT Ball_1 FROM PlayedBC49 WHERE Regular"), Texts{"3"});
}

TEST_F(LottoCaptureTest, ATicketCountedTwiceOnAGridOpenedAgainEndsTheSheet) {
    Show("mnuCANBCBC49");
    OneSheet(2);
    PickFrom(1, 6);
    ASSERT_TRUE(IsEnabled("cmdNext_Ticket"));
    OneSheet(2);  // accepted once more, which opens the grid
    Pick({6});
    Pick({6});
    EXPECT_EQ(global.TicketNo, 2);
    EXPECT_FALSE(IsEnabled("cmdNext_Ticket"));
    EXPECT_TRUE(IsEnabled("cmdSave"));
}

TEST_F(LottoCaptureTest, ASaveThatFailsLeavesNoNumberCounted) {
    Show("mnuCANQCQuebec49");
    OneSheet(1);
    PickFrom(1, 6);
    ExpectSaveQuestion(Answer::Yes);
    ExpectRunTimeError(9);  // the add-on's box was never ticked
    Click("cmdSave");
    EXPECT_EQ(global.NumbersPicked, 0);
    EXPECT_FALSE(IsEnabled("cmdCorrection"));
}

TEST_F(LottoCaptureTest, AFurtherSheetBeginsAtTheGridWhereNoAddOnIsCounted) {
    global.AddOnTickets.Redim(1);
    Show("mnuCANATLLotto649");
    SeveralSheets(2, 2);
    PickFrom(1, 6);
    SaveSheet(false);
    EXPECT_EQ(Focus(), "chkNumb(0)");
}

TEST_F(LottoCaptureTest, AGameWithoutBonusTicketsInTheWindowOfSuperSevenEndsAtItsLastTicket) {
    Show(Family::frm749, "Other", "");
    OneSheet(1);
    Click("chkRegular");
    PickFrom(1, 7);
    EXPECT_EQ(Next(), "&Next Ticket");
    EXPECT_EQ(Window().State.BonusPhase, Off);
    EXPECT_TRUE(IsEnabled("cmdSave"));
    // The last ticket of the entry is corrected like a bonus ticket: meant.
    Click("cmdCorrection");
    EXPECT_EQ(Next(), "&Next Bonus");
    EXPECT_FALSE(IsTicked("chkRegular"));
    EXPECT_FALSE(IsEnabled("chkRegular"));
}

TEST_F(LottoCaptureTest, ACorrectionBeyondTheTicketsOfTheEntryKeepsTheCaption) {
    Show("mnuCANBCSuper7");
    OneSheet(1);
    TicketAndNext(1, 7);
    PickFrom(8, 7);
    ASSERT_EQ(global.TicketNo, 2);
    Click("cmdCorrection");
    EXPECT_EQ(Next(), "Next &Bonus");
}

TEST_F(LottoCaptureTest, ACorrectedTicketWithoutAMarkGetsNoneAndNoTicketsAreNotLoweredFurther) {
    Show("mnuCANBCSuper7");
    OneSheet(2);
    PickFrom(1, 7);
    global.TotalTickets = 0;
    Click("cmdCorrection");
    EXPECT_FALSE(IsTicked("chkRegular"));
    EXPECT_EQ(global.TotalTickets, 0);
}

TEST_F(LottoCaptureTest, SuperSevenOffersNoFortyEightAndNoFortyNineOnceDressed) {
    Show("mnuCANBCSuper7");
    OneSheet(1);
    EXPECT_TRUE(IsShown(Ball(47)));
    EXPECT_FALSE(IsShown(Ball(48)));
    EXPECT_FALSE(IsShown(Ball(49)));
    PickFrom(41, 7);
    EXPECT_EQ(Next(), "&Bonus Tickets");
}

TEST_F(LottoCaptureTest, AClickOnAGridOpenedAgainBeforeTheBonusTicketsTakesTheMarkOutOfReach) {
    Show("mnuCANBCSuper7");
    OneSheet(1);
    PickFrom(1, 7);
    ASSERT_EQ(Next(), "&Bonus Tickets");
    Count("1");  // accepted once more, which opens the grid
    ASSERT_TRUE(GridIsOpen());
    ASSERT_TRUE(IsEnabled("chkRegular"));
    Click(Ball(7));
    EXPECT_FALSE(IsEnabled("chkRegular"));
}

TEST_F(LottoCaptureTest, ACountOnTheQuickPickTabBringsLottariosBonusTicketsForward) {
    Show("mnuCANONTLOTTARIO");
    OneSheet(3);
    person.ClickTab("&Quick");
    Put("txtNoOfTickets(1)", "5");  // of the six tickets of the sheet five count as entered
    person.ClickTab("&Enter");
    PickFrom(1, 6);
    EXPECT_EQ(global.TicketNo, 1);
    EXPECT_EQ(Next(), "&Bonus Tickets");
    EXPECT_EQ(Window().State.BonusPhase, On);
}

TEST_F(LottoCaptureTest, ReEnteringATicketOfTheBonusGamesLowersTheTicketsOfTheEntryAndEndsAtOnce) {
    const std::pair<const char*, int> games[] = {{"mnuCANBCSuper7", 7}, {"mnuCANONTLOTTARIO", 6}};
    for (const auto& [menu, numbers] : games) {
        Show(menu);
        OneSheet(2);
        PickFrom(1, numbers);
        Click("cmdCorrection");
        EXPECT_EQ(global.TotalTickets, 1) << menu;
        EXPECT_EQ(global.TicketNo, 0) << menu;
        EXPECT_EQ(global.NumbersPicked, 0) << menu;
        EXPECT_EQ(global.Correcting, Off) << menu;
        Window().Leave();
    }
}

TEST_F(LottoCaptureTest, WithoutASheetATicketOfTheBonusGamesLeadsNowhereEither) {
    const std::pair<const char*, int> games[] = {{"mnuCANBCSuper7", 7}, {"mnuCANONTLOTTARIO", 6}};
    for (const auto& [menu, numbers] : games) {
        Show(menu);
        ExpectCancelled("frmHowManySheets");
        Count("2");
        PickFrom(1, numbers);
        EXPECT_EQ(global.TicketNo, 1) << menu;
        EXPECT_FALSE(IsEnabled("cmdNext_Ticket")) << menu;
        EXPECT_FALSE(IsEnabled("cmdSave")) << menu;
        EXPECT_TRUE(IsEnabled("cmdCorrection")) << menu;
        Window().Leave();
    }
}

TEST_F(LottoCaptureTest, NoAndCancelInTheBonusPhaseBeginAgainWithBoughtTickets) {
    for (const auto& [menu, cancel] :
         {std::pair{"mnuCANBCSuper7", false}, std::pair{"mnuCANBCSuper7", true},
          std::pair{"mnuCANONTLOTTARIO", false}, std::pair{"mnuCANONTLOTTARIO", true}}) {
        const bool super7 = std::string(menu) == "mnuCANBCSuper7";
        const int numbers = super7 ? 7 : 6;
        Show(menu);
        OneSheet(1);
        for (int ticket = 1; ticket < (super7 ? 3 : 2); ++ticket) TicketAndNext(ticket, numbers);
        PickFrom(3, numbers);
        ASSERT_EQ(Next(), "Next &Bonus");
        ASSERT_FALSE(IsEnabled("chkRegular"));
        if (cancel)
            person.Expect("CONFIRM", "Are you sure you wish to start over?", Answer::Yes, BoxStyle::YesNo);
        else ExpectSaveQuestion(Answer::No);
        Click(cancel ? "cmdCancel" : "cmdSave");
        EXPECT_EQ(Next(), "&Next Ticket");
        EXPECT_EQ(Window().State.BonusPhase, 0);
        EXPECT_TRUE(IsEnabled("chkRegular"));
        EXPECT_EQ(Focus(), "txtNoOfTickets(0)");
        Window().Leave();
    }
}

TEST_F(LottoCaptureTest, ASuperSevenSheetOfTwoTicketsEndsAtTheSixth) {
    Show("mnuCANBCSuper7");
    OneSheet(2);
    EXPECT_EQ(global.SheetTickets, 6);
    PickFrom(1, 7);
    EXPECT_EQ(Next(), "&Next Ticket");
    Click("cmdNext_Ticket");
    EXPECT_EQ(Title(), "Ticket #2 - Sheet 1 of 1");
    Click("chkRegular");
    PickFrom(8, 7);
    EXPECT_EQ(Next(), "&Bonus Tickets");
    EXPECT_EQ(Window().State.BonusPhase, 1);
    Click("cmdNext_Ticket");
    EXPECT_EQ(Title(), "Bonus Ticket #1 - Sheet 1 of 1");
    EXPECT_FALSE(IsTicked("chkRegular"));
    EXPECT_FALSE(IsEnabled("chkRegular"));
    for (int bonus = 1; bonus <= 4; ++bonus) {
        PickFrom(bonus, 7);
        EXPECT_EQ(global.TicketNo, 2 + bonus);
        EXPECT_EQ(Next(), "Next &Bonus");
        EXPECT_EQ(IsEnabled("cmdSave"), bonus == 4);
        if (bonus == 4) break;
        Click("cmdNext_Ticket");
        EXPECT_EQ(Title(), "Bonus Ticket #" + std::to_string(bonus + 1) + " - Sheet 1 of 1");
    }
    SaveSheet(true);
    EXPECT_EQ(Rows("SELECT Ball_1, Regular FROM PlayedSuper7"),
              (Texts{"1|0", "8|1", "1|0", "2|0", "3|0", "4|0"}));
    EXPECT_EQ(Rows("SELECT Lottoflag, Spent FROM Spent"), Texts{"Super 7|4"});
}

TEST_F(LottoCaptureTest, ACorrectionInSuperSevenEndsWithinItsClick) {
    Show("mnuCANBCSuper7");
    OneSheet(2);
    PickFrom(1, 7);
    Click("cmdCorrection");
    EXPECT_EQ(global.Correcting, 0);
    EXPECT_EQ(global.TicketNo, 0);
    EXPECT_EQ(global.TotalTickets, 1);
    EXPECT_EQ(global.NumbersPicked, 0);
    PickFrom(20, 7);
    EXPECT_EQ(global.TicketNo, 1);
    EXPECT_EQ(Next(), "&Next Ticket");
}

// On the only sheet the last bought ticket is also the last of the entry: of the conditions the first one
// counts.
TEST_F(LottoCaptureTest, CorrectingTheLastBoughtTicketTakesTheBonusPhaseBackAndTicksItsMarkAgain) {
    for (const auto& [menu, numbers] : {std::pair{"mnuCANBCSuper7", 7}, std::pair{"mnuCANONTLOTTARIO", 6}}) {
        Show(menu);
        OneSheet(2);
        Click("chkRegular");
        TicketAndNext(1, numbers);
        ASSERT_TRUE(IsTicked("chkRegular"));
        Click("chkRegular");
        PickFrom(8, numbers);
        EXPECT_EQ(Next(), "&Bonus Tickets");
        Click("cmdCorrection");
        EXPECT_EQ(Next(), "&Next Ticket") << menu;
        EXPECT_EQ(Window().State.BonusPhase, 0) << menu;
        EXPECT_TRUE(IsTicked("chkRegular")) << menu;
        EXPECT_TRUE(IsEnabled("chkRegular")) << menu;
        EXPECT_EQ(global.TicketNo, 1) << menu;
        Window().Leave();
    }
}

TEST_F(LottoCaptureTest, ACorrectionAmongTheBonusTicketsWritesACaptionThatNothingLooksFor) {
    Show("mnuCANBCSuper7");
    ExpectSheets("2");
    ExpectTicketsOnSheet("1");
    Count("5");
    TicketAndNext(1, 7);
    PickFrom(8, 7);
    ASSERT_EQ(Next(), "Next &Bonus");
    ASSERT_EQ(global.TicketNo, 2);
    Click("cmdCorrection");
    EXPECT_EQ(Next(), "&Next Bonus");
    EXPECT_FALSE(IsEnabled("chkRegular"));
    // Its click takes no path: nothing is stored, the title stays.
    const std::string title = Title();
    Window().Enter.cmdNext_Ticket.SetEnabled(true);
    Click("cmdNext_Ticket");
    EXPECT_EQ(Next(), "&Next Bonus");
    EXPECT_EQ(Title(), title);
    // The next ticket writes the right caption again.
    PickFrom(15, 7);
    EXPECT_EQ(Next(), "Next &Bonus");
    Click("cmdNext_Ticket");
    EXPECT_EQ(Title(), "Bonus Ticket #2 - Sheet 1 of 2");
}

TEST_F(LottoCaptureTest, ASecondSuperSevenSheetBeginsWithBoughtTickets) {
    Show("mnuCANBCSuper7");
    ExpectSheets("2");
    Count("2");
    TicketAndNext(1, 7);
    TicketAndNext(2, 7);
    PickFrom(3, 7);
    SaveSheet(false);
    EXPECT_EQ(Next(), "&Next Ticket");
    EXPECT_EQ(Window().State.BonusPhase, 0);
    EXPECT_TRUE(IsEnabled("chkRegular"));
    TicketAndNext(4, 7);
    TicketAndNext(5, 7);
    PickFrom(6, 7);
    SaveSheet(true);
    EXPECT_EQ(Rows("SELECT Ball_1 FROM PlayedSuper7"), (Texts{"1", "2", "3", "4", "5", "6"}));
}

class Lottario : public LottoCaptureTest {
  protected:
    void Open(int tickets) {
        Show("mnuCANONTLOTTARIO");
        // The add-on count is visited, as a player does: Encore numbers come into being there.
        if (tickets > 1) ExpectSheets("1");
        Count(std::to_string(tickets));
        Visit("txtNoOfExtra");
    }
};

TEST_F(Lottario, EachBoughtTicketHasOneBonusTicketAndBothMarksAreWritten) {
    Open(2);
    EXPECT_EQ(global.SheetTickets, 4);
    Click("chkEarlybird");
    EXPECT_EQ(global.EarlyBirdPlayed, True);
    TicketAndNext(1, 6);
    Click("chkEarlybird");
    EXPECT_EQ(global.EarlyBirdPlayed, 0);
    PickFrom(2, 6);
    EXPECT_EQ(Next(), "&Bonus Tickets");
    Click("cmdNext_Ticket");
    EXPECT_EQ(Title(), "Bonus Ticket #1 - Sheet 1 of 1");
    PickFrom(3, 6);
    EXPECT_EQ(global.TotalTickets, 3);
    Click("cmdNext_Ticket");
    PickFrom(4, 6);
    EXPECT_TRUE(IsEnabled("cmdSave"));
    SaveSheet(true);
    EXPECT_EQ(Rows("SELECT Ball_1, Regular, EarlyBird FROM PlayedLottario"),
              (Texts{"1|0|1", "2|0|0", "3|0|0", "4|0|0"}));
    EXPECT_EQ(Rows("SELECT Lottoflag, Spent FROM Spent"), Texts{"Lottario|2"});
}

TEST_F(Lottario, ARegularMarkCarriesOverToTheNextBoughtTicket) {
    Open(2);
    Click("chkRegular");
    PickFrom(1, 6);
    Click("cmdNext_Ticket");
    EXPECT_TRUE(IsTicked("chkRegular"));
    EXPECT_EQ(global.RegularMarked, 0);
    PickFrom(2, 6);
    EXPECT_EQ(global.RegularMarked, True);
    Click("cmdNext_Ticket");
    EXPECT_FALSE(IsTicked("chkRegular"));
    EXPECT_FALSE(IsEnabled("chkRegular"));
    EXPECT_EQ(global.RegularMarked, True);
}

TEST_F(Lottario, AMarkThatCarriesOverComesBackIntoReach) {
    Open(2);
    Click("chkRegular");
    PickFrom(1, 6);
    Window().Enter.chkRegular.SetEnabled(false);
    Click("cmdNext_Ticket");
    EXPECT_TRUE(IsTicked("chkRegular"));
    EXPECT_TRUE(IsEnabled("chkRegular"));
}

TEST_F(Lottario, MarksAreWrittenBothWaysOnEveryTicket) {
    Show("mnuCANONTLOTTARIO");
    ExpectSheets("2");
    Count("2");
    Visit("txtNoOfExtra");
    Click("chkRegular");
    Click("chkEarlybird");
    TicketAndNext(1, 6);
    PickFrom(2, 6);
    SaveSheet(false);
    Visit("txtNoOfExtra");
    Click("chkEarlybird");
    TicketAndNext(3, 6);
    PickFrom(4, 6);
    SaveSheet(true);
    EXPECT_EQ(Rows("SELECT Ball_1, Regular, EarlyBird FROM PlayedLottario").at(2), "3|0|0");
}

TEST_F(Lottario, AFullEntryIsNoticedAtABoughtTicketAndNotAtABonusTicket) {
    for (const bool bought : {true, false}) {
        Open(1);
        ASSERT_EQ(global.SheetTickets, 2);
        global.TotalTickets = bought ? 2 : 1;  // a bonus ticket counts itself
        if (!bought) {
            Window().Enter.cmdNext_Ticket.SetCaption("Next &Bonus");
            Window().State.BonusPhase = On;
        }
        PickFrom(1, 6);
        EXPECT_EQ(global.TicketNo, 1);
        EXPECT_EQ(global.TotalTickets, 2);
        EXPECT_EQ(Next(), bought ? "&Next Ticket" : "Next &Bonus");
        EXPECT_EQ(IsEnabled("cmdSave"), bought);
        EXPECT_EQ(IsEnabled("cmdNext_Ticket"), !bought);
        EXPECT_EQ(Window().State.BonusPhase, bought ? Off : On);
        Window().Leave();
    }
}

TEST_F(Lottario, TheGridEndsAtFortyFive) {
    Open(1);
    PickFrom(40, 6);
    EXPECT_EQ(Next(), "&Bonus Tickets");
}

TEST(NumberGrid, GivesItsBallsOutOfItsLayoutOneByOne) {
    NumberGrid grid(4, 2);
    QLayout& balls = *grid.layout();
    EXPECT_EQ(balls.count(), 4);
    for (const int outside : {-1, 4}) {
        EXPECT_EQ(balls.itemAt(outside), nullptr) << outside;
        EXPECT_EQ(balls.takeAt(outside), nullptr) << outside;
    }
    const std::unique_ptr<QLayoutItem> second(balls.takeAt(1));
    ASSERT_NE(second, nullptr);
    EXPECT_EQ(second->widget(), &grid.chkNumb(1));
    ASSERT_EQ(balls.count(), 3);
    EXPECT_EQ(balls.itemAt(0)->widget(), &grid.chkNumb(0));
    EXPECT_EQ(balls.itemAt(1)->widget(), &grid.chkNumb(2));
    EXPECT_EQ(balls.itemAt(2)->widget(), &grid.chkNumb(3));
}

// Once a ticket was being entered anew when a window was left: no button of the next window came on, for the
// rest of the run.
TEST_F(LottoCaptureTest, ATicketReenteredInALeftWindowDoesNotDeafenTheNextOne) {
    Show("mnuCANONTLotto649");
    OneSheet(1);
    PickFrom(1, 6);
    Click("cmdCorrection");
    ASSERT_EQ(global.Correcting, On);
    Click("cmdExit(0)");
    Show("mnuCANONTSuper7");
    EXPECT_EQ(global.Correcting, Off);
    OneSheet(1);
    PickFrom(1, 7);
    EXPECT_EQ(global.TicketNo, 1);
    EXPECT_TRUE(IsEnabled("cmdNext_Ticket"));
}

TEST_F(LottoCaptureTest, CancelEndsAReentryAndWhatAnErrorLeftOfNextTicket) {
    Show("mnuCANONTLOTTARIO");
    OneSheet(1);
    global.Correcting = On;
    global.TableOpened = On;
    Window().State.InNextTicket = On;
    person.Expect("CONFIRM", "Are you sure you wish to start over?", Answer::Yes, BoxStyle::YesNo);
    Click("cmdCancel");
    EXPECT_EQ(global.Correcting, Off);
    EXPECT_EQ(Window().State.InNextTicket, Off);
    EXPECT_EQ(global.TableOpened, Off);
    OneSheet(1);
    PickFrom(1, 6);
    EXPECT_EQ(CaptionOf("cmdNext_Ticket"), "&Bonus Tickets");
}

TEST_F(LottoCaptureTest, ALoadEndsAReentryAndWhatAnErrorLeftOfNextTicket) {
    Show("mnuCANBCSuper7");
    OneSheet(1);
    global.Correcting = On;
    Window().State.InNextTicket = On;
    Window().Form_Load();
    EXPECT_EQ(global.Correcting, Off);
    EXPECT_EQ(Window().State.InNextTicket, Off);
}

}  // namespace
}  // namespace sorvane::test

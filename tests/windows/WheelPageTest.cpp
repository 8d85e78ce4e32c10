// The quick pick page: counts and numbers that are refused, the wheel that Lottario alone turns, and what the
// generator makes in the other windows.
#include "windows/Slip.h"

namespace sorvane::test {
namespace {

class QuickPickPage : public SlipWorld {
  protected:
    void Open(std::string_view menu) {
        Show(menu);
        person.ClickTab("&Quick Pick");
    }
    static std::string Fav(int i) { return "txtFavs(" + std::to_string(i) + ")"; }
    std::string Selected(std::string_view name) {
        return person.Find<QLineEdit>(name).selectedText().toStdString();
    }
    // Clicks Generate, which leaves the field in hand first.
    Texts Generated() {
        Click("cmdGenerate");
        return ListOf("lstDisplay");
    }
};

TEST_F(QuickPickPage, InTheOtherLottoWindowsTheWheelIsIgnoredButItsCountReplacesTheTickets) {
    Open("mnuCANONTLotto649");
    Click("optWheelType(0)");
    Type("txtNoOfTickets(1)", "2");
    Put("txtHowMany", "9");
    EXPECT_EQ(global.NoOfTickets, 9);
    EXPECT_EQ(Focus(), Fav(0));
    EXPECT_TRUE(IsEnabled(Fav(8)));
    EXPECT_FALSE(IsEnabled(Fav(9)));
    person.Type("5");
    EXPECT_EQ(Generated().size(), 9u);
    EXPECT_EQ(Window().State.QuickPicks.UBound(), 9);
}

TEST_F(QuickPickPage, AClickSelectsWhatIsThereSoThatADigitReplacesIt) {
    Open("mnuCANONTLotto649");
    Click("optWheelType(2)");
    Click("txtNoOfTickets(1)");
    person.Type("2");
    EXPECT_EQ(TextOf("txtNoOfTickets(1)"), "2");
    Click("txtHowMany");
    person.Type("7");
    EXPECT_EQ(TextOf("txtHowMany"), "7");
    person.Tab();
    person.Type("5");
    Click(Fav(1));
    person.Type("9");
    Click(Fav(0));
    person.Type("8");
    EXPECT_EQ(TextOf(Fav(0)), "8");
    Click(Fav(1));
    person.Type("7");
    EXPECT_EQ(TextOf(Fav(1)), "7");
}

TEST_F(QuickPickPage, WhicheverCountWasLeftLastDecides) {
    Open("mnuCANONTLotto649");
    Put("txtHowMany", "9");
    person.Type("5");
    Type("txtNoOfTickets(1)", "2");
    EXPECT_EQ(Generated().size(), 2u);
}

TEST_F(QuickPickPage, ANumberAboveTheLimitOfTheGameIsSelectedAgain) {
    const std::pair<const char*, std::string> games[] = {{"mnuCANONTLotto649", "49"},
                                                         {"mnuCANATLSuper7", "49"},
                                                         {"mnuCANONTLOTTARIO", "45"},
                                                         {"mnuCANONTKENO", "70"}};
    for (const auto& [menu, limit] : games) {
        SCOPED_TRACE(menu);
        Open(menu);
        Click("optWheelType(2)");
        Put("txtHowMany", "9");
        const std::string tooHigh = std::to_string(std::stoi(limit) + 1);
        person.Type(tooHigh);
        person.Expect("Number Too High!", "Number cannot be greater than " + limit +
                                              ". Please enter a new number less than or equal to " + limit +
                                              ".");
        person.Tab();
        EXPECT_EQ(Focus(), Fav(0));
        EXPECT_EQ(Selected(Fav(0)), tooHigh);
        person.Type(limit);
        person.Tab();
        EXPECT_EQ(global.Favourites(0), std::stoi(limit));
        person.Type("1");
        Window().Leave();
    }
}

TEST_F(QuickPickPage, AnEmptyNumberIsAskedForButNotByLottario) {
    Open("mnuCANONTLotto649");
    Put("txtHowMany", "9");
    person.Expect("Please Enter a Number", "Please enter a number.");
    person.Tab();
    EXPECT_EQ(Focus(), Fav(0));
    EXPECT_EQ(Selected(Fav(0)), "0");
    Window().Leave();
    Open("mnuCANONTLOTTARIO");
    Click("optWheelType(2)");
    Put("txtHowMany", "9");
    person.Tab();
    EXPECT_EQ(Focus(), Fav(1));
}

TEST_F(QuickPickPage, HowManyIsRefusedByItsBoundsAndSelectedAgain) {
    struct Refusal {
        const char* menu;
        const char* typed;
        const char* title;
        const char* text;
        const char* left;
    };
    const Refusal refusals[] = {
        {"mnuCANONTLotto649", "", "Number of Quick Picks?",
         "Please enter a value for how many Numbers you wish to Wheel.", "0"},
        {"mnuCANONTLotto649", "19", "Too High",
         "Too many numbers to Wheel. Value cannot exceed 18. Please try again.", "19"},
        {"mnuCANONTLotto649", "6", "Number too Low",
         "Value must be greater than 6. Please enter a new value.", "0"},
        {"mnuCANONTLOTTARIO", "6", "Number too Low",
         "Value must be greater than 6. Please enter a new value.", "0"},
        {"mnuCANATLSuper7", "7", "Number too Low", "Value must be greater than 7. Please enter a new value.",
         "0"},
        {"mnuCANONTKENO", "19", "Too High",
         "Too many numbers to Wheel. Value cannot exceed 18. Please try again.", "19"}};
    for (const Refusal& refusal : refusals) {
        SCOPED_TRACE(refusal.text);
        Open(refusal.menu);
        Type("txtHowMany", refusal.typed);
        if (*refusal.typed == 0) person.Key(Qt::Key_Backspace);
        person.Expect(refusal.title, refusal.text);
        person.Tab();
        EXPECT_EQ(Focus(), "txtHowMany");
        EXPECT_EQ(TextOf("txtHowMany"), refusal.left);
        EXPECT_EQ(Selected("txtHowMany"), refusal.left);
        Window().QuickPick.Wheel->txtHowMany.SetText("8");
        Window().Leave();
    }
}

TEST_F(QuickPickPage, TheComparisonWithTheWheelFollowsEvenARefusal) {
    Open("mnuCANONTLotto649");
    Type("txtNoOfTickets(1)", "1001");
    Type("txtHowMany", "19");
    person.Expect("Too High", "Too many numbers to Wheel. Value cannot exceed 18. Please try again.");
    person.Expect("Not Enough Combinations Available!",
                  "Number of Tickets selected exceeds the number of possible combinations. Please either "
                  "increase the\r\nnumber of numbers you wish to Wheel, or decrease the number of Tickets.");
    person.Tab();
    EXPECT_EQ(Focus(), "txtNoOfTickets(1)");
    EXPECT_EQ(Selected("txtNoOfTickets(1)"), "1001");
    EXPECT_EQ(global.WheelSize, 1000);
}

TEST_F(QuickPickPage, KenoKnowsNoLowerBoundAndNoComparison) {
    Open("mnuCANONTKENO");
    Type("txtNoOfTickets(1)", "2000");
    Put("txtHowMany", "1");
    EXPECT_EQ(Focus(), Fav(0));
    EXPECT_EQ(global.NoOfTickets, 1);
    EXPECT_EQ(global.WheelSize, 0);
}

TEST_F(QuickPickPage, ABadKeyInTheWheelLeavesANought) {
    Open("mnuCANONTLOTTARIO");
    Type("txtHowMany", "9");
    ExpectBadNumber();
    person.Type("x");
    EXPECT_EQ(TextOf("txtHowMany"), "0");
    EXPECT_EQ(Selected("txtHowMany"), "");
    EXPECT_EQ(Focus(), "txtHowMany");
    Type("txtHowMany", "9");
}

TEST_F(QuickPickPage, EnterInTheNumbersGoesByTheTicketsEvenForLottario) {
    Open("mnuCANONTLOTTARIO");
    Click("optWheelType(2)");
    Type("txtNoOfTickets(1)", "2");
    Put("txtHowMany", "7");
    person.Type("1");
    person.Enter();
    EXPECT_EQ(Focus(), Fav(1));
    person.Type("2");
    person.Enter();
    EXPECT_EQ(Focus(), "cmdGenerate");
}

TEST_F(QuickPickPage, DailyKenosTicketIsAsLongAsItsListSays) {
    Open("mnuCANONTKENO");
    EXPECT_EQ(ListOf("cboNoOfQPs"), (Texts{"10", "9", "8", "7", "6", "5", "4", "3", "2"}));
    Put("cboNoOfQPs", "1");
    EXPECT_EQ(global.NoOfBallsPerTicket, 1);
    Type("txtNoOfTickets(1)", "3");
    const Texts lines = Generated();
    ASSERT_EQ(lines.size(), 3u);
    EXPECT_EQ(lines[0].find(','), std::string::npos);
    Put("cboNoOfQPs", "");
    EXPECT_EQ(global.NoOfBallsPerTicket, 0);
    EXPECT_EQ(Generated(), (Texts{"", "", ""}));
    Click("cmdPrint");
    EXPECT_EQ(printer.documents.at(0).back().text, "      Ticket #3 - ");
}

TEST_F(QuickPickPage, TheListOfTheEightyTellsNothing) {
    Show(Family::frmKeno80, "PrairieKeno", "");
    person.ClickTab("&Quick Pick");
    global.NoOfBallsPerTicket = 4;
    Put("cboNoOfQPs", "9");
    EXPECT_EQ(global.NoOfBallsPerTicket, 4);
}

class LottarioWheel : public QuickPickPage {
  protected:
    // Draws of 1 to 7, so that these are the hot numbers; of 8 and 9 fewer.
    void Draws(int count) {
        Do("INSERT INTO WinLottario (ID1, Date, Ball_1, Ball_2, Ball_3, Ball_4, Ball_5, Ball_6, Ball_B) WITH "
           "RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < " +
           std::to_string(count) +
           ") SELECT i, 38000 + i, 1, 2, 3, 4, 5, 6, CASE WHEN i % 4 = 0 THEN 8 + i "
           "% 8 / 4 ELSE 7 END FROM n");
    }
    void Open(int draws, const std::string& tickets, const std::string& howMany) {
        QuickPickPage::Open("mnuCANONTLOTTARIO");
        Draws(draws);
        Type("txtNoOfTickets(1)", tickets);
        if (!howMany.empty()) Put("txtHowMany", howMany);
    }
    void ExpectTooLittle() {
        person.Expect("Not Enough Data",
                      "Not enough data to generate Hot Numbers. Please enter additional Winning Number "
                      "history\r\nand try again");
    }
};

TEST_F(LottarioWheel, SevenHotNumbersMakeSevenLinesOfWhichEachLeavesOutAnother) {
    Open(20, "7", "7");
    EXPECT_EQ(Focus(), "cmdGenerate");
    EXPECT_EQ(Generated(),
              (Texts{"1, 2, 3, 4, 5, 6", "2, 3, 4, 5, 6, 7", "1, 3, 4, 5, 6, 7", "1, 2, 4, 5, 6, 7",
                     "1, 2, 3, 5, 6, 7", "1, 2, 3, 4, 6, 7", "1, 2, 3, 4, 5, 7"}));
    EXPECT_EQ(TextOf(Fav(0)), "1");
    EXPECT_EQ(TextOf(Fav(6)), "7");
    EXPECT_TRUE(IsEnabled(Fav(6)));
    EXPECT_FALSE(IsEnabled(Fav(7)));
    EXPECT_EQ(CountOf("Temp"), "0");
    EXPECT_FALSE(global.Generating);
}

TEST_F(LottarioWheel, AnEighthTicketIsWarnedOfAndThenRefusedWithAnEmptyList) {
    QuickPickPage::Open("mnuCANONTLOTTARIO");
    Draws(20);
    Type("txtNoOfTickets(1)", "8");
    Type("txtHowMany", "7");
    person.Expect("Not Enough Combinations Available!",
                  "Number of Tickets selected exceeds the number of possible combinations. Please either "
                  "increase the\r\nnumber of numbers you wish to Wheel, or decrease the number of Tickets.");
    person.Tab();
    EXPECT_EQ(Selected("txtNoOfTickets(1)"), "8");
    person.Expect("Error!",
                  "You have entered a value for the Number of Tickets which exceeds\r\n"
                  "the maximum possible combinations. Please reduce this number.");
    EXPECT_TRUE(Generated().empty());
    EXPECT_EQ(TextOf("txtNoOfTickets(1)"), "0");
    EXPECT_EQ(Focus(), "txtNoOfTickets(1)");
}

TEST_F(LottarioWheel, FavouritesKeepTheTypedOrderInTheirFirstLineAlone) {
    QuickPickPage::Open("mnuCANONTLOTTARIO");
    Click("optWheelType(2)");
    Type("txtNoOfTickets(1)", "2");
    Put("txtHowMany", "7");
    int i = 0;
    for (const int number : {40, 3, 22, 9, 31, 1, 17}) Type(Fav(i++), std::to_string(number));
    EXPECT_EQ(Generated(), (Texts{"40, 3, 22, 9, 31, 1", "1, 3, 9, 17, 22, 31"}));
}

TEST_F(LottarioWheel, AMissingFavouriteIsAskedForAndNoChartIsDrawnUntilTheNextRun) {
    QuickPickPage::Open("mnuCANONTLOTTARIO");
    Draws(1);
    Click("optWheelType(2)");
    Type("txtNoOfTickets(1)", "1");
    Put("txtHowMany", "7");
    person.Type("5");
    person.Expect("Error!",
                  "Please enter your favourite Numbers prior to clicking on the\r\nGenerate Numbers button.");
    EXPECT_TRUE(Generated().empty());
    EXPECT_EQ(Focus(), Fav(1));
    EXPECT_TRUE(global.Generating);
    Window().SSTab1.SetTab(Tab::Reports);
    Click("cmdNumberFrequency");
    forms::Chart& chart = Window().Reports.mscNumberFrequency;
    chart.SetRow(1);
    EXPECT_EQ(chart.Data(), 0);
    person.ClickTab("&Quick Pick");
    Type("txtNoOfTickets(1)", "1");
    Click("optWheelType(3)");
    EXPECT_EQ(Generated().size(), 1u);
    person.ClickTab("&Reports");
    Click("cmdNumberFrequency");
    chart.SetRow(1);
    EXPECT_EQ(chart.Data(), 1);
}

TEST_F(LottarioWheel, NineHotNumbersGiveOneLineAndEmptyOnes) {
    Open(20, "3", "9");
    EXPECT_EQ(Generated(), (Texts{"1, 2, 3, 4, 5, 6", "", ""}));
}

TEST_F(LottarioWheel, EightNumbersCannotBeWheeled) {
    Open(20, "3", "8");
    ExpectRunTimeError(ErrorNumber::SubscriptOutOfRange);
    EXPECT_TRUE(Generated().empty());
}

TEST_F(LottarioWheel, NineteenDrawsAreTooFewForHotAndColdAndTwentyAreNot) {
    Open(19, "1", "7");
    ExpectTooLittle();
    EXPECT_TRUE(Generated().empty());
    Click("optWheelType(1)");
    ExpectTooLittle();
    EXPECT_TRUE(Generated().empty());
    Do("INSERT INTO WinLottario SELECT 20, 39000, Ball_1, Ball_2, Ball_3, Ball_4, Ball_5, Ball_6, Ball_B "
       "FROM "
       "WinLottario WHERE ID1 = 1");
    EXPECT_EQ(Generated(), Texts{"10, 11, 12, 13, 14, 15"});
    Click("optWheelType(0)");
    EXPECT_EQ(Generated(), Texts{"1, 2, 3, 4, 5, 6"});
}

TEST_F(LottarioWheel, BeforeHowManyWasVisitedTheRunFails) {
    Open(20, "1", "");
    ExpectRunTimeError(ErrorNumber::SubscriptOutOfRange);
    EXPECT_TRUE(Generated().empty());
}

TEST_F(LottarioWheel, TheChoiceNamesTheBoxesAndEmptiesThem) {
    Open(20, "7", "7");
    Generated();
    const std::pair<const char*, const char*> choices[] = {
        {"optWheelType(1)", "Cold Numbers"}, {"optWheelType(2)", "Favourites"}, {"optWheelType(3)", ""}};
    for (const auto& [option, caption] : choices) {
        Window().QuickPick.Wheel->txtFavs(0).SetText("4");
        Click(option);
        EXPECT_EQ(CaptionOf("txtEnterFavs"), caption);
        EXPECT_EQ(TextOf(Fav(0)), "");
        EXPECT_EQ(IsEnabled("txtHowMany"), std::string_view(option) != "optWheelType(3)");
        EXPECT_EQ(IsEnabled("lblHowMany"), std::string_view(option) != "optWheelType(3)");
    }
    Click("optWheelType(0)");
    EXPECT_EQ(CaptionOf("txtEnterFavs"), "Hot Numbers");
}

TEST_F(LottarioWheel, PrintingDoesNotFollowTheWheel) {
    Open(20, "2", "7");
    Window().QuickPick.Wheel->optWheelType(3).SetValue(true);
    const Texts drawn = Generated();
    Click("optWheelType(0)");
    EXPECT_NE(Generated(), drawn);
    Click("cmdPrint");
    EXPECT_EQ(printer.documents.at(0).back().text, "      Ticket #2 - " + drawn.at(1));
}

}  // namespace
}  // namespace sorvane::test

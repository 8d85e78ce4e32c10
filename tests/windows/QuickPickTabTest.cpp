
#include <QAbstractItemView>
#include <QApplication>

#include "ReportsWorld.h"

namespace sorvane::test {
namespace {

constexpr std::string_view KeyText = "Please enter a valid number greater than or equal to 1.";

class QuickPickTabTest : public ReportsWorld {
  public:
    Texts Display() const { return ListOf("lstDisplay"); }
    void Generate(std::string_view tickets) {
        Type("txtNoOfTickets(1)", tickets);
        Click("cmdGenerate");
    }
    static std::vector<int> NumbersOf(const std::string& line) {
        std::vector<int> numbers;
        for (std::size_t at = 0; at < line.size(); at = line.find(", ", at)) {
            if (at > 0) at += 2;
            numbers.push_back(std::stoi(line.substr(at)));
        }
        return numbers;
    }
};

class EveryQuickPickTab : public QuickPickTabTest, public ::testing::WithParamInterface<GameCase> {};
INSTANTIATE_TEST_SUITE_P(Families, EveryQuickPickTab, ::testing::ValuesIn(EveryFamily), NameOfCase);

TEST_P(EveryQuickPickTab, HasItsControls) {
    OpenQuickPick(GetParam());
    const bool keno = IsKeno(GetParam().family), digits = IsPick(GetParam().family);
    EXPECT_EQ(Exists("fraWheel"), !digits);
    EXPECT_EQ(Exists("txtFavs(17)"), !digits);
    EXPECT_FALSE(Exists("txtFavs(18)"));
    EXPECT_EQ(Exists("cboNoOfQPs"), keno);
    EXPECT_EQ(Exists("lblNumOfBalls"), keno);
    EXPECT_EQ(CaptionOf("lblNoOfTickets"), "Number of Tickets:");
    EXPECT_EQ(CaptionOf("lblDisplay"), "Number Display:");
    EXPECT_EQ(CaptionOf("lblDrawDate"), "Draw Date:");
    EXPECT_EQ(CaptionOf("cmdGenerate"), "&Generate Numbers");
    EXPECT_EQ(CaptionOf("cmdPrint"), "&Print");
    EXPECT_EQ(CaptionOf("cmdUse"), "&Use These #'s");
    EXPECT_EQ(CaptionOf("cmdHelp"), "&Help");
    EXPECT_EQ(CaptionOf("cmdExit(1)"), "E&xit");
    if (keno) {
        EXPECT_EQ(CaptionOf("lblNumOfBalls"), "Number of Balls:");
    }
}

TEST_P(EveryQuickPickTab, EachVisitStartsWithTheCountAtZeroAndSelected) {
    OpenQuickPick(GetParam());
    EXPECT_EQ(Focus(), "txtNoOfTickets(1)");
    Type("txtNoOfTickets(1)", "12");
    person.ClickTab("&Reports");
    person.ClickTab("&Quick");
    EXPECT_EQ(TextOf("txtNoOfTickets(1)"), "0");
    EXPECT_EQ(Focus(), "txtNoOfTickets(1)");
    person.Type("5");
    EXPECT_EQ(TextOf("txtNoOfTickets(1)"), "5");
}

TEST_P(EveryQuickPickTab, GeneratesAsManyTicketsAsAskedForAndEachRunAnew) {
    OpenQuickPick(GetParam());
    global.NoOfBallsPerTicket = 10;
    if (GetParam().family == Family::frm645)
        person.Expect("Not Enough Data",
                      "Not enough data to generate Hot Numbers. Please enter additional Winning Number "
                      "history\nand try again");
    Generate("12");
    constexpr PerFamily<int> Top{{49, 49, 45, 70, 80, 8, 8}}, Length{{6, 7, 6, 10, 10, 3, 4}};
    if (GetParam().family == Family::frm645) {
        // Hot needs twenty draws.
        EXPECT_EQ(Display(), Texts{});
        Click("optWheelType(3)");
        Click("cmdGenerate");
    }
    const Texts first = Display();
    ASSERT_EQ(first.size(), 12u);
    for (const std::string& line : first) {
        const std::vector<int> numbers = NumbersOf(line);
        ASSERT_EQ(static_cast<int>(numbers.size()), Length[GetParam().family]) << line;
        const bool digits = IsPick(GetParam().family);
        for (std::size_t i = 0; i < numbers.size(); ++i) {
            EXPECT_GE(numbers[i], digits ? 0 : 1) << line;
            EXPECT_LE(numbers[i], Top[GetParam().family]) << line;
            if (!digits && i > 0) {
                EXPECT_LT(numbers[i - 1], numbers[i]) << line;
            }
        }
    }
    Click("cmdGenerate");
    EXPECT_EQ(Display().size(), 12u);
    EXPECT_NE(Display(), first);
}

TEST_P(EveryQuickPickTab, UseAndHelpDoNothing) {
    OpenQuickPick(GetParam());
    Click("cmdUse");
    Click("cmdHelp");
    EXPECT_EQ(Display(), Texts{});
    EXPECT_TRUE(printer.calls.empty());
    EXPECT_TRUE(tools.started.empty());
}

TEST_P(EveryQuickPickTab, EnterInTheCountGoesWhereTheFamilyHasIt) {
    OpenQuickPick(GetParam());
    Type("txtNoOfTickets(1)", "3");
    person.Enter();
    const Family family = GetParam().family;
    // The add-on count of frm649 stands on another tab, so that nothing happens there.
    const bool makes = IsKeno(family) || family == Family::frm645;
    EXPECT_EQ(Focus(), makes ? "cmdGenerate" : "txtNoOfTickets(1)");
    EXPECT_EQ(TextOf("txtNoOfTickets(1)"), "3");
}

TEST_P(EveryQuickPickTab, OtherKeysThanDigitsEmptyTheCount) {
    OpenQuickPick(GetParam());
    Type("txtNoOfTickets(1)", "12");
    person.Expect("Error!", KeyText, Answer::Ok, BoxStyle::Exclamation);
    person.Type("x");
    EXPECT_EQ(TextOf("txtNoOfTickets(1)"), "");
    EXPECT_EQ(Focus(), "txtNoOfTickets(1)");
}

TEST_P(EveryQuickPickTab, AnEmptyCountIsAskedForAndTheClickIsDropped) {
    OpenQuickPick(GetParam());
    Type("txtNoOfTickets(1)", "");
    person.Expect("# of Tickets required", "# of Tickets required. Please enter a number.");
    Click("cmdGenerate");
    EXPECT_EQ(TextOf("txtNoOfTickets(1)"), "0");
    EXPECT_EQ(Focus(), "txtNoOfTickets(1)");
    EXPECT_EQ(Display(), Texts{});
}

TEST_P(EveryQuickPickTab, TheTabKeyGoesFromTheCountToExitPastFieldsThatNobodyNeeds) {
    OpenQuickPick(GetParam());
    const bool wheels = GetParam().family == Family::frm645;
    std::vector<std::string> order;
    for (int i = 0; i < 20 && (order.empty() || order.back() != "cmdExit(1)"); ++i) {
        order.push_back(Focus());
        if (order.back() == "txtHowMany") person.Type("7");
        person.Tab();
    }
    std::vector<std::string> told{"txtNoOfTickets(1)"};
    if (IsKeno(GetParam().family)) told.push_back("cboNoOfQPs");
    if (wheels) told.insert(told.end(), {"optWheelType(0)", "txtHowMany"});
    told.insert(told.end(), {"cmdGenerate", "lstDisplay", "cmdPrint", "cmdUse", "cmdHelp", "cmdExit(1)"});
    EXPECT_EQ(order, told);
}

TEST_P(EveryQuickPickTab, TheWindowFitsTheScreen) {
    OpenQuickPick(GetParam());
    EXPECT_LE(Window().width(), 1366);
    EXPECT_LE(Window().height(), 768);
}

TEST_F(QuickPickTabTest, NoTicketsEmptyTheListAndLeaveOneSlot) {
    OpenQuickPick(SixFortyNine);
    Generate("3");
    random.randomized = 0;
    Generate("0");
    EXPECT_EQ(Display(), Texts{});
    EXPECT_EQ(random.randomized, 0);
    EXPECT_EQ(Window().State.QuickPicks.UBound(), 0);
}

TEST_F(QuickPickTabTest, EachTicketIsKeptForThePrinterAsItIsShown) {
    OpenQuickPick(Pick3);
    Generate("3");
    const Texts display = Display();
    ASSERT_EQ(Window().State.QuickPicks.UBound(), 3);
    for (int i = 0; i < 3; ++i) EXPECT_EQ(Window().State.QuickPicks(i), display[static_cast<std::size_t>(i)]);
    EXPECT_EQ(random.randomized, 3);
}

TEST_F(QuickPickTabTest, OneTicketIsOneSheetAndNoSheetIsAskedFor) {
    OpenQuickPick(SixFortyNine);
    Window().State.CurrentSheet = 7;
    Put("txtNoOfTickets(1)", "1");
    EXPECT_EQ(global.NoOfTickets, 1);
    EXPECT_EQ(global.TotalTickets, 1);
    EXPECT_EQ(global.NoOfSheets, 1);
    EXPECT_EQ(global.NoOfTicketsOnSheet, 1);
    EXPECT_EQ(Window().State.TotalSheets, 1);
    EXPECT_EQ(Window().State.CurrentSheet, 7);
    Put("txtNoOfTickets(1)", "8");
    EXPECT_EQ(global.NoOfTickets, 8);
    EXPECT_EQ(global.TotalTickets, 8);
    EXPECT_EQ(global.NoOfSheets, 1);
}

TEST_F(QuickPickTabTest, LeavingAnEmptyCountForTheReportsAsksNothing) {
    OpenQuickPick(SixFortyNine);
    Window().State.CurrentSheet = 7;
    Type("txtNoOfTickets(1)", "");
    person.ClickTab("&Reports");
    EXPECT_EQ(Window().SSTab1.Caption(), "&Reports");
    EXPECT_EQ(Window().State.CurrentSheet, 7) << "nothing follows for this count";
}

TEST_F(QuickPickTabTest, ACountBeyondSixteenBitsIsAnOverflow) {
    OpenQuickPick(SixFortyNine);
    Type("txtNoOfTickets(1)", "32768");
    ExpectRunTimeError(ErrorNumber::Overflow);
    Click("cmdGenerate");
    EXPECT_EQ(global.NoOfTickets, 0);
    EXPECT_EQ(Display(), Texts{}) << "the click is dropped";
}

TEST_F(QuickPickTabTest, TheLargestCountIsGenerated) {
    OpenQuickPick(DailyKeno);
    global.NoOfBallsPerTicket = 20;
    Type("txtNoOfTickets(1)", "32767");
    person.Tab();
    Click("cmdGenerate");
    EXPECT_EQ(Window().QuickPick.lstDisplay.ListCount(), 32767);
}

TEST_F(QuickPickTabTest, ThePointerIsBusyWhileMoreThanTenThousandTicketsAreMade) {
    for (const bool many : {false, true}) {
        OpenQuickPick(DailyKeno);
        Type("txtNoOfTickets(1)", many ? "10040" : "10000");
        person.Tab();
        bool busy = false;
        const auto* rows = person.Find<QAbstractItemView>("lstDisplay").model();
        QObject::connect(rows, &QAbstractItemModel::rowsInserted, rows,
                         [&] { busy = busy || QApplication::overrideCursor(); });
        Click("cmdGenerate");
        EXPECT_EQ(busy, many);
        EXPECT_EQ(QApplication::overrideCursor(), nullptr);
        Window().Leave();
    }
}

TEST_F(QuickPickTabTest, KenoWithoutBallsShowsAnEmptyLineForEachTicket) {
    OpenQuickPick(DailyKeno);
    Generate("3");
    EXPECT_EQ(Display(), (Texts{"", "", ""}));
}

TEST_F(QuickPickTabTest, LeavingTheNumberOfBallsSetsTheLengthOfAKenoTicket) {
    OpenQuickPick(DailyKeno);
    EXPECT_EQ(ListOf("cboNoOfQPs"), (Texts{"10", "9", "8", "7", "6", "5", "4", "3", "2"}));
    Put("cboNoOfQPs", "5");
    EXPECT_EQ(global.NoOfBallsPerTicket, 5);
    Generate("1");
    EXPECT_EQ(NumbersOf(Display().at(0)).size(), 5u);
    Put("cboNoOfQPs", "");
    EXPECT_EQ(global.NoOfBallsPerTicket, 0);
    Paste("cboNoOfQPs", "many");
    ExpectRunTimeError(ErrorNumber::TypeMismatch);
    person.Tab();
    EXPECT_EQ(global.NoOfBallsPerTicket, 0);
}

TEST_F(QuickPickTabTest, TheNumberOfBallsTellsNothingInKeno80) {
    OpenQuickPick(PrairieKeno);
    global.NoOfBallsPerTicket = 4;
    EXPECT_EQ(ListOf("cboNoOfQPs"), Texts{});
    Put("cboNoOfQPs", "7");
    EXPECT_EQ(global.NoOfBallsPerTicket, 4);
    Generate("1");
    EXPECT_EQ(NumbersOf(Display().at(0)).size(), 4u);
}

TEST_F(QuickPickTabTest, MoreBallsThanTwentyBringTheirZerosToTheFront) {
    OpenQuickPick(DailyKeno);
    Put("cboNoOfQPs", "22");
    Generate("1");
    const std::vector<int> numbers = NumbersOf(Display().at(0));
    ASSERT_EQ(numbers.size(), 22u);
    EXPECT_EQ(numbers[0], 0);
    EXPECT_EQ(numbers[1], 0);
    EXPECT_GT(numbers[2], 0);
}

TEST_F(QuickPickTabTest, TheWesternGameDrawsNothingAndShowsStaleNumbersOrNone) {
    OpenQuickPick({Family::frmPick3, "WESTPick3", "WESTPick3", "", "", 3});
    Generate("2");
    EXPECT_EQ(Display(), Texts{}) << "before any other run there is nothing to show";
    global.Numbers.Redim(3);
    global.Numbers(0) = 7;
    global.Numbers(1) = 1;
    Click("cmdGenerate");
    EXPECT_EQ(Display(), (Texts{"7, 1, 0", "7, 1, 0"}));
}

TEST_F(QuickPickTabTest, TheWheelsChoiceHasNoInfluenceWhereItIsOnlyShown) {
    for (const GameCase& game : {SixFortyNine, Super7, DailyKeno, PrairieKeno}) {
        OpenQuickPick(game);
        for (int type = 0; type < 4; ++type) {
            Click("optWheelType(" + Number(type) + ")");
            EXPECT_EQ(CaptionOf("txtEnterFavs"), "Favourites");
            EXPECT_TRUE(IsEnabled("txtHowMany"));
            Generate("2");
            EXPECT_EQ(Display().size(), 2u);
        }
        EXPECT_FALSE(global.Generating);
        Window().Leave();
    }
}

TEST_F(QuickPickTabTest, PrintsWhatTheGeneratorLeft) {
    OpenQuickPick(SixFortyNine);
    Generate("2");
    Click("cmdPrint");
    ASSERT_EQ(printer.documents.size(), 1u);
    const Texts display = Display();
    EXPECT_EQ(testing::RecordingPrinter::Texts(printer.documents[0]),
              (Texts{"", "", "", "", "", "", "              Sorvane", "",
                     "              Quick Pick Generator - Lotto649",
                     "        ========================================================", "", "",
                     "      Ticket #1 - " + display[0], "      Ticket #2 - " + display[1]}));
    EXPECT_EQ(printer.documents[0][6].fontSize, 12);
}

TEST_F(QuickPickTabTest, ThePointerIsBusyWhileMoreThanTwoAndAHalfThousandTicketsArePrinted) {
    for (const bool many : {false, true}) {
        OpenQuickPick(SixFortyNine);
        Generate(many ? "2510" : "2500");
        printer.FailAt(testing::RecordingPrinter::Verb::ShowPrinter, 1, 484);
        bool busy = !many;
        person.Expect("PRINTER ERROR!", "Printer driver unavailable.", Answer::Ok, BoxStyle::Ok,
                      [&] { busy = QApplication::overrideCursor() != nullptr; });
        Click("cmdPrint");
        EXPECT_EQ(busy, many);
        Window().Leave();
    }
}

TEST_F(QuickPickTabTest, PrintsKenoTicketsWithNothingBehindTheirNumber) {
    OpenQuickPick(DailyKeno);
    Put("cboNoOfQPs", "2");
    Generate("2");
    Click("cmdPrint");
    ASSERT_EQ(printer.documents.size(), 1u);
    EXPECT_EQ(printer.documents[0].back().text, "      Ticket #2 - ");
}

TEST_F(QuickPickTabTest, PrintsAsManyTicketsAsTheCountNowSaysAndEndsSilentlyWhereThereAreNoMore) {
    OpenQuickPick(SixFortyNine);
    Generate("3");
    Type("txtNoOfTickets(1)", "2");
    Click("cmdPrint");
    ASSERT_EQ(printer.documents.size(), 1u);
    EXPECT_EQ(printer.documents[0].size(), 14u);
    Type("txtNoOfTickets(1)", "9");
    Click("cmdPrint");
    ASSERT_EQ(printer.documents.size(), 2u) << "what was sent comes out";
    EXPECT_EQ(printer.documents[1].back().text, "      Ticket #4 - ");
}

TEST_F(QuickPickTabTest, BeforeAnyRunTheHeadAloneIsPrinted) {
    OpenQuickPick(SixFortyNine);
    Click("cmdPrint");
    ASSERT_EQ(printer.documents.size(), 1u);
    EXPECT_EQ(printer.documents[0].size(), 12u);
    Type("txtNoOfTickets(1)", "2");
    Click("cmdPrint");
    ASSERT_EQ(printer.documents.size(), 2u);
    EXPECT_EQ(printer.documents[1].size(), 12u);
}

TEST_F(QuickPickTabTest, EachPrinterErrorHasItsBoxAndThePrintGoesOn) {
    using Verb = testing::RecordingPrinter::Verb;
    OpenQuickPick(SixFortyNine);
    Generate("1");
    const std::pair<int, std::string_view> errors[] = {
        {482, "A Printer Error has occurred. Please check your printer\nand try again."},
        {483, "Printer driver does not support the property."},
        {484, "Printer driver unavailable."}};
    for (const auto& [number, text] : errors) {
        printer.documents.clear();
        printer.FailAt(Verb::ShowPrinter, 1, number);
        person.Expect("PRINTER ERROR!", text);
        Click("cmdPrint");
        EXPECT_EQ(printer.documents.size(), 1u) << "the statement behind the failure runs";
    }
    printer.documents.clear();
    printer.FailAt(Verb::ShowPrinter, 1, ErrorNumber::DialogCancelled);
    Click("cmdPrint");
    EXPECT_TRUE(printer.documents.empty());
}

TEST_F(QuickPickTabTest, TheListSaysWhatItIsForAndTheHintIsNoRow) {
    OpenQuickPick(SixFortyNine);
    EXPECT_EQ(Display(), Texts{});
    EXPECT_FALSE(Window().QuickPick.lstDisplay.accessibleDescription().isEmpty());
}

}  // namespace
}  // namespace sorvane::test

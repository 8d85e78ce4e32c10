#include <QApplication>
#include <QGraphicsScene>
#include <QGraphicsSimpleTextItem>
#include <QGraphicsTextItem>
#include <QGraphicsView>
#include <QLabel>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <chrono>
#include <set>
#include <thread>

#include "ReportsWorld.h"

namespace sorvane::test {
namespace {

class ReportsTabTest : public ReportsWorld {
  public:
    // The sentences over a chart.
    static std::set<std::string> Said(const forms::Chart& chart) {
        std::set<std::string> texts;
        for (const QGraphicsItem* item : chart.findChild<QGraphicsView*>()->scene()->items())
            if (const auto* text = dynamic_cast<const QGraphicsTextItem*>(item))
                texts.insert(text->toPlainText().toStdString());
        return texts;
    }
};

class EveryReportsTab : public ReportsTabTest, public ::testing::WithParamInterface<GameCase> {
  public:
    std::string ReportName() const {
        return GetParam().family == Family::frm645 ? "cmdNFReport" : "cmdReport";
    }
    bool IsKeno80() const { return GetParam().family == Family::frmKeno80; }
    bool IsDigits() const { return IsPick(GetParam().family); }
};
INSTANTIATE_TEST_SUITE_P(Families, EveryReportsTab, ::testing::ValuesIn(EveryFamily), NameOfCase);

TEST_P(EveryReportsTab, OpensWithItsButtonsAndNoReport) {
    OpenReports(GetParam());
    EXPECT_EQ(Seen(), "mscNumberFrequency");
    EXPECT_EQ(CaptionOf(ReportName()), "Number &Frequency");
    EXPECT_NE(Exists("cmdReport"), Exists("cmdNFReport"));
    EXPECT_EQ(CaptionOf("cmdNumberFrequency"), "&Number Frequency");
    EXPECT_EQ(CaptionOf("cmdProfitLoss"), "&Profit/Loss");
    EXPECT_EQ(CaptionOf("cmdPLReport"), "Profit/&Loss");
    EXPECT_EQ(CaptionOf("cmdPrintReport"), "&Print");
    EXPECT_EQ(CaptionOf("cmdExit(3)"), "E&xit");
    EXPECT_FALSE(IsEnabled("cmdPrintReport"));
    for (const std::string& name : {ReportName(), std::string("cmdNumberFrequency"),
                                    std::string("cmdProfitLoss"), std::string("cmdPLReport")})
        EXPECT_TRUE(IsEnabled(name)) << name;
    EXPECT_EQ(Report(), "");
    EXPECT_TRUE(Reports().txtReport.isReadOnly());
}

TEST_P(EveryReportsTab, NumberFrequencyShowsItsChartAndTurnsPrintingOff) {
    OpenReports(GetParam());
    AddMoney("Spent", GetParam().LottoFlag, 0, "1");
    Click("cmdPLReport");
    if (!IsKeno80()) ExpectNoRows();  // the table is there, empty
    Click("cmdNumberFrequency");
    EXPECT_EQ(Seen(), "mscNumberFrequency");
    EXPECT_FALSE(IsEnabled("cmdPrintReport"));
    EXPECT_EQ(Window().State.mode, IsKeno80() ? 1 : 0);
    EXPECT_EQ(Sum(Bars(Reports().mscNumberFrequency)), 0);
}

TEST_P(EveryReportsTab, TheNumberReportTakesTheChartsPlaceAndTurnsPrintingOn) {
    OpenReports(GetParam());
    if (IsDigits()) ExpectReportType(0, "cmdOK");
    if (!IsKeno80()) ExpectNoRows();
    Click(ReportName());
    EXPECT_TRUE(IsEnabled("cmdPrintReport"));
    // Keno 80 has no report: the button turns printing on and that is all.
    EXPECT_EQ(Seen(), IsKeno80() ? "mscNumberFrequency" : "txtReport");
    EXPECT_EQ(Report().empty(), IsKeno80());
    EXPECT_EQ(Window().State.mode, IsKeno80() ? 0 : 1);
}

TEST_P(EveryReportsTab, ProfitLossShowsTheMoneyChartAndLeavesPrintingAsItWas) {
    OpenReports(GetParam());
    AddMoney("Spent", GetParam().LottoFlag, 0, "1200.5");
    AddMoney("Winnings", GetParam().LottoFlag, 0, "10");
    AddMoney("Winnings", GetParam().LottoFlag, 1, "0.25");
    AddMoney("Winnings", "ATLTag", 1, "1000");
    Click("cmdProfitLoss");
    EXPECT_EQ(Seen(), "mscProfitLoss");
    EXPECT_FALSE(IsEnabled("cmdPrintReport"));
    EXPECT_EQ(Bar(Reports().mscProfitLoss, 1, 1), 1200.5);
    EXPECT_EQ(Bar(Reports().mscProfitLoss, 2, 1), 10.25);
    EXPECT_EQ(Legend(Reports().mscProfitLoss, 1), "Spent - $1,200.50");
    EXPECT_EQ(Legend(Reports().mscProfitLoss, 2), "Won   - $10.25");
    EXPECT_EQ(Window().State.TableName, "Spent");
    Click("cmdPLReport");
    EXPECT_EQ(Seen(), "txtReport");
    EXPECT_TRUE(IsEnabled("cmdPrintReport"));
    Click("cmdProfitLoss");
    EXPECT_EQ(Seen(), "mscProfitLoss");
    EXPECT_TRUE(IsEnabled("cmdPrintReport"));
    EXPECT_EQ(Window().State.mode, 0);
}

TEST_P(EveryReportsTab, TheMoneyReportListsTheGameWithItsTotals) {
    OpenReports(GetParam());
    AddMoney("Spent", GetParam().LottoFlag, 1, "0.5");
    AddMoney("Spent", GetParam().LottoFlag, 0, "-3");
    AddMoney("Winnings", GetParam().LottoFlag, 0, "0.5");
    Click("cmdPLReport");
    EXPECT_EQ(Report(),
              "\r\n     Date: 2006-03-11                                      Lotto 6/49\r\n\r\n"
              "                            Profit/Loss Report\r\n"
              "                            ==================\r\n\r\n"
              "              Dollars Spent\r\n"
              "              =============\r\n\r\n"
              "       Date                     Spent\r\n"
              " ----------------------------------------------\r\n\r\n"
              "   2004-01-14              $        (3.00)\r\n"
              "   2004-01-15              $          0.50\r\n"
              "\r\n"
              "                                   Total Spent :   $         -2.50\r\n\r\n\r\n"
              "               Dollars Won\r\n"
              "               ===========\r\n\r\n"
              "       Date                      Won\r\n"
              " ----------------------------------------------\r\n\r\n"
              "   2004-01-14              $           .50\r\n"
              "\r\n"
              "                                   Total Won   :   $          0.50\r\n"
              "                                   ----------------------------------\r\n\r\n"
              "                                   Difference  :   $         (3.00)\r\n");
}

TEST_P(EveryReportsTab, WithoutTicketsTheBoxComesAndTheReportHasHeadingsAndTotals) {
    OpenReports(GetParam());
    ExpectNoTickets();
    Click("cmdPLReport");
    EXPECT_NE(Report().find("Total Spent :   $          0.00\r\n"), std::string::npos);
    EXPECT_NE(Report().find("Difference  :   $          0.00\r\n"), std::string::npos);
    ExpectNoTickets();
    Click("cmdProfitLoss");
    EXPECT_EQ(Legend(Reports().mscProfitLoss, 1), "Spent - $0.00");
    EXPECT_EQ(Legend(Reports().mscProfitLoss, 2), "Won   - $0.00");
}

TEST_P(EveryReportsTab, AButtonThatFoundNothingSaysSoInTheChart) {
    OpenReports(GetParam());
    constexpr auto Start = "Nothing to see yet: press a button beside the chart";
    EXPECT_TRUE(Said(Reports().mscNumberFrequency).contains(Start));
    if (!IsKeno80()) ExpectNoRows();
    Click("cmdNumberFrequency");
    EXPECT_FALSE(Said(Reports().mscNumberFrequency).contains(Start));
    const auto none = IsKeno80() ? "There is no chart of the numbers of this game" : "No winning numbers yet";
    EXPECT_TRUE(Said(Reports().mscNumberFrequency).contains(none));
    EXPECT_EQ(Reports().mscNumberFrequency.accessibleDescription().toStdString(), none);
    ExpectNoTickets();
    Click("cmdProfitLoss");
    EXPECT_TRUE(Said(Reports().mscProfitLoss).contains("No tickets yet"));
    AddMoney("Spent", GetParam().LottoFlag, 0, "0");
    Click("cmdProfitLoss");
    EXPECT_FALSE(Said(Reports().mscProfitLoss).contains("No tickets yet"));
    EXPECT_TRUE(Said(Reports().mscProfitLoss).contains("Nothing spent and nothing won"));
    AddMoney("Spent", GetParam().LottoFlag, 0, "1234.5");
    Click("cmdProfitLoss");
    EXPECT_FALSE(Said(Reports().mscProfitLoss).contains("No tickets yet"));
    EXPECT_EQ(Reports().mscProfitLoss.accessibleDescription().toStdString(), "Spent: $1,234.50; Won: $0.00");
}

TEST_P(EveryReportsTab, CancelEmptiesBothCharts) {
    OpenReports(GetParam());
    AddMoney("Spent", GetParam().LottoFlag, 0, "7");
    Click("cmdProfitLoss");
    if (!IsKeno80()) {
        AddDraws(GetParam(), 1);
        Click("cmdNumberFrequency");
        EXPECT_GT(Sum(Bars(Reports().mscNumberFrequency)), 0);
    }
    person.ClickTab("&Enter");
    person.Expect("CONFIRM", "Are you sure you wish to start over?", Answer::Yes, BoxStyle::YesNo);
    Click("cmdCancel");
    EXPECT_EQ(Sum(Bars(Reports().mscNumberFrequency)), 0);
    EXPECT_EQ(Bar(Reports().mscProfitLoss, 1, 1), 0);
    EXPECT_EQ(Legend(Reports().mscProfitLoss, 1), "Spent");
    EXPECT_EQ(Legend(Reports().mscProfitLoss, 2), GetParam().family == Family::frm749 ? "Won   " : "Won  ");
}

TEST_P(EveryReportsTab, OnlyLottarioPrints) {
    OpenReports(GetParam());
    AddMoney("Spent", GetParam().LottoFlag, 0, "7");
    Click("cmdPLReport");
    Click("cmdPrintReport");
    if (GetParam().family == Family::frm645) {
        ASSERT_EQ(printer.documents.size(), 1u);
        EXPECT_EQ(printer.documents[0][1].text,
                  "     Date: 2006-03-11                                      Lotto 6/49");
        EXPECT_EQ(printer.documents[0][1].fontSize, 10);
        EXPECT_EQ(printer.documents[0][1].leftEdge, 1700);
    } else {
        EXPECT_TRUE(printer.calls.empty());
    }
}

// What is written on the chart, whatever Qt makes the texts of.
std::set<std::string> TextsOn(const forms::Chart& chart) {
    Person::Settle();
    std::set<std::string> texts;
    for (const QGraphicsItem* item : chart.findChild<QGraphicsView*>()->scene()->items()) {
        if (const auto* text = qgraphicsitem_cast<const QGraphicsTextItem*>(item))
            texts.insert(text->toPlainText().toStdString());
        if (const auto* text = qgraphicsitem_cast<const QGraphicsSimpleTextItem*>(item))
            texts.insert(text->text().toStdString());
    }
    return texts;
}

TEST_P(EveryReportsTab, TheNumberChartHasTitleAxesLegendAndABarForEachNumber) {
    OpenReports(GetParam());
    const std::set<std::string> texts = TextsOn(Reports().mscNumberFrequency);
    constexpr PerFamily<int> Rows{{49, 49, 45, 70, 80, 10, 10}}, Columns{{1, 1, 1, 1, 1, 3, 4}};
    EXPECT_EQ(Reports().mscNumberFrequency.Title(),
              IsDigits() ? "Number Frequency by Position" : "Number Frequency");
    EXPECT_EQ(Reports().mscNumberFrequency.RowCount(), Rows[GetParam().family]);
    ASSERT_EQ(Reports().mscNumberFrequency.ColumnCount(), Columns[GetParam().family]);
    std::vector<std::string> told{Reports().mscNumberFrequency.Title(), "Times Drawn",
                                  IsDigits() ? "Numbers" : "Numbers Drawn"};
    for (int column = 1; column <= Columns[GetParam().family]; ++column)
        told.push_back(IsDigits() ? "Ball " + Number(column) : "Frequency");
    for (int row = 0; row < Rows[GetParam().family]; ++row)
        told.push_back(Number(IsDigits() ? row : row + 1));
    for (const std::string& text : told) EXPECT_TRUE(texts.contains(text)) << text;
    for (int column = 1; column <= Columns[GetParam().family]; ++column)
        EXPECT_EQ(Legend(Reports().mscNumberFrequency, column),
                  IsDigits() ? "Ball " + Number(column) : "Frequency");
}

TEST_F(ReportsTabTest, TheDigitsOfAChartBeginAtNoughtAndEndAtNine) {
    for (const GameCase& game : {Pick3, Play4}) {
        OpenReports(game);
        AddDraw(game, std::vector<int>(static_cast<std::size_t>(game.numbers)));
        Click("cmdNumberFrequency");
        EXPECT_EQ(Bar(Reports().mscNumberFrequency, 1, 1), 1);
        const std::set<std::string> texts = TextsOn(Reports().mscNumberFrequency);
        for (const char* digit : {"0", "9"}) EXPECT_TRUE(texts.contains(digit)) << digit;
        EXPECT_FALSE(texts.contains("10"));
        Window().Leave();
    }
}

TEST_P(EveryReportsTab, TheMoneyChartHasTitleAndAxesAndItsAmountsAreNotCutOff) {
    OpenReports(GetParam());
    AddMoney("Spent", GetParam().LottoFlag, 0, "98765.43");
    AddMoney("Winnings", GetParam().LottoFlag, 0, "123456.78");
    Click("cmdProfitLoss");
    const std::set<std::string> texts = TextsOn(Reports().mscProfitLoss);
    const bool lottario = GetParam().family == Family::frm645;
    EXPECT_TRUE(texts.contains(lottario ? "Profit Loss" : "Profit/Loss"));
    EXPECT_TRUE(texts.contains("Dollars"));
    EXPECT_NE(texts.contains("$ Spent"), lottario);
    EXPECT_TRUE(texts.contains("Spent - $98,765.43"));
    EXPECT_TRUE(std::any_of(texts.begin(), texts.end(),
                            [](const std::string& text) { return text.ends_with("- $123,456.78"); }));
}

TEST_P(EveryReportsTab, NoLineOfAReportIsWrappedOrCutOff) {
    OpenReports(GetParam());
    AddMoney("Spent", GetParam().LottoFlag, 0, "7");
    Window().SetCaption("Ontario - Daily Keno");  // the longest title
    Click("cmdPLReport");
    const ReportBox& box = Reports().txtReport;
    EXPECT_EQ(box.lineWrapMode(), QPlainTextEdit::NoWrap);
    const QFontMetrics metrics = box.fontMetrics();
    EXPECT_EQ(metrics.horizontalAdvance("i"), metrics.horizontalAdvance("W"));
    EXPECT_FALSE(box.horizontalScrollBar()->isVisible());
    EXPECT_GE(box.viewport()->width(), metrics.horizontalAdvance(QString(79, 'W')));
}

TEST(ReportBoxTest, ThePointerIsBusyWhileTheTextOfALongReportIsPutIn) {
    ReportBox box("txtReport");
    bool busy = false;
    QObject::connect(&box, &QPlainTextEdit::textChanged,
                     [&] { busy = QApplication::overrideCursor() != nullptr; });
    box.Write([](std::string& text) {
        std::this_thread::sleep_for(std::chrono::milliseconds(300));
        text = "Report";
    });
    EXPECT_TRUE(busy);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_P(EveryReportsTab, HeadingsAreBoldAndTheReportHasAName) {
    OpenReports(GetParam());
    EXPECT_EQ(Reports().txtReport.accessibleName(), "Report");
    int headings = 0;
    for (const auto* label : Window().Pages[Tab::Reports].findChildren<QLabel*>())
        if (label->isVisible()) {
            ++headings;
            EXPECT_TRUE(label->font().bold()) << label->text().toStdString();
        }
    EXPECT_EQ(headings, 2);
}

TEST_P(EveryReportsTab, TabGoesFromChartsToReportsToExit) {
    OpenReports(GetParam());
    AddMoney("Spent", GetParam().LottoFlag, 0, "7");
    Click("cmdPLReport");
    Find("cmdNumberFrequency").setFocus();
    std::vector<std::string> order;
    for (int i = 0; i < 7; ++i) {
        order.push_back(Focus());
        person.Tab();
    }
    EXPECT_EQ(order, (std::vector<std::string>{"cmdNumberFrequency", "cmdProfitLoss", ReportName(),
                                               "cmdPLReport", "cmdPrintReport", "txtReport", "cmdExit(3)"}));
}

TEST_P(EveryReportsTab, TheWindowFitsTheScreen) {
    OpenReports(GetParam());
    EXPECT_LE(Window().width(), 1366);
    EXPECT_LE(Window().height(), 768);
}

TEST_F(ReportsTabTest, EachNumberDrawnRaisesItsBarTheBonusIncluded) {
    OpenReports(SixFortyNine);
    AddDraw(SixFortyNine, {1, 2, 3, 4, 5, 6, 49});
    AddDraw(SixFortyNine, {1, 12, 13, 14, 15, 16, 17});
    Click("cmdNumberFrequency");
    EXPECT_EQ(Bar(Reports().mscNumberFrequency, 1, 1), 2);
    EXPECT_EQ(Bar(Reports().mscNumberFrequency, 1, 49), 1);
    EXPECT_EQ(Bar(Reports().mscNumberFrequency, 1, 48), 0);
    EXPECT_EQ(Sum(Bars(Reports().mscNumberFrequency)), 14);
    EXPECT_EQ(Window().State.TableName, "WinLotto649");
}

TEST_F(ReportsTabTest, ADrawCountsSevenEightOrTwenty) {
    for (const GameCase& game : {SixFortyNine, Super7, Lottario, DailyKeno}) {
        OpenReports(game);
        AddDraws(game, 11);
        Click("cmdNumberFrequency");
        EXPECT_EQ(Sum(Bars(Reports().mscNumberFrequency)), game.numbers) << NameOf(game.family);
        Window().Leave();
    }
}

TEST_F(ReportsTabTest, SevenFortyNineChartsFortyNineNumbersAndReportsFortySeven) {
    OpenReports(Super7);
    AddDraws(Super7, 42);
    Click("cmdNumberFrequency");
    EXPECT_EQ(Bar(Reports().mscNumberFrequency, 1, 49), 1);
    Click("cmdReport");
    EXPECT_NE(Report().find("                  47                            1\r\n"), std::string::npos);
    EXPECT_EQ(Report().find(" 48 "), std::string::npos);
}

TEST_F(ReportsTabTest, TheNumberReportStandsUnderTheTitleOfTheWindow) {
    OpenReports(SixFortyNine);
    AddDraws(SixFortyNine, 8, 12);
    Click("cmdReport");
    EXPECT_TRUE(Report().starts_with(
        "\r\n     Date: 2006-03-11                                      Lotto 6/49\r\n\r\n"
        "                       Number Frequency Report\r\n"
        "                       =======================\r\n\r\n"
        "                 Number                    Times Drawn\r\n"
        "           ================================================\r\n\r\n"
        "                   1                            0\r\n"
        "           -------------------------------------------------\r\n"));
    EXPECT_NE(Report().find("                   9                            12\r\n"), std::string::npos);
    EXPECT_NE(Report().find("                  10                            12\r\n"), std::string::npos);
    EXPECT_TRUE(
        Report().ends_with("                  49                            0\r\n"
                           "           -------------------------------------------------\r\n"));
}

TEST_F(ReportsTabTest, WithoutTheWinTableTheChartButtonShowsItsBoxAndEnds) {
    OpenReports(SixFortyNine);
    AddDraws(SixFortyNine, 1);
    Click("cmdNumberFrequency");
    Do("DROP TABLE WinLotto649");
    ExpectNoTable();
    Click("cmdNumberFrequency");
    EXPECT_EQ(Sum(Bars(Reports().mscNumberFrequency)), 7) << "the chart is untouched";
}

TEST_F(ReportsTabTest, WithoutTheWinTableTheReportIsAllZeros) {
    for (const GameCase& game : {SixFortyNine, Lottario, DailyKeno}) {
        OpenReports(game);
        const auto* button = game.family == Family::frm645 ? "cmdNFReport" : "cmdReport";
        AddDraws(game, 1);
        Click(button);
        Do("DROP TABLE " + std::string(game.win));
        ExpectNoTable();
        Click(button);
        constexpr PerFamily<int> Last{{49, 0, 45, 70, 0, 0, 0}};
        for (int number = 1; number <= Last[game.family]; ++number) {
            const std::string row = std::string(number < 10 ? 19 : 18, ' ') + Number(number);
            EXPECT_NE(Report().find("\n" + row + std::string(28, ' ') + "0\r\n"), std::string::npos) << row;
        }
        Window().Leave();
    }
}

TEST_F(ReportsTabTest, WithoutTheTableOfSuper7AFailureEndsTheReportAndWhatWasWrittenIsShown) {
    OpenReports(Super7);
    Do("DROP TABLE WinSuper7");
    ExpectNoTable();
    ExpectRunTimeError(ErrorNumber::SubscriptOutOfRange);
    Click("cmdReport");
    EXPECT_TRUE(Report().ends_with("           ================================================\r\n\r\n"))
        << Report();
    ExpectNoTickets();
    Click("cmdProfitLoss");
    EXPECT_EQ(Seen(), "mscProfitLoss");
}

TEST_F(ReportsTabTest, ATableWithoutDrawsShowsTheTallysBoxAndAReportOfZeros) {
    OpenReports(SixFortyNine);
    ExpectNoRows();
    Click("cmdReport");
    EXPECT_NE(Report().find("                  49                            0\r\n"), std::string::npos);
}

TEST_F(ReportsTabTest, AReportOverwritesTicketAndFavourites) {
    OpenReports(SixFortyNine);
    AddDraws(SixFortyNine, 1);
    global.Numbers.Redim(6);
    global.Favourites.Redim(7);
    Click("cmdReport");
    EXPECT_EQ(global.Numbers.UBound(), 49);
    EXPECT_EQ(global.Favourites.UBound(), 49);
    EXPECT_EQ(global.Favourites(0), 1);
}

TEST_F(ReportsTabTest, MoneyOfWindowsGoesByTheExactKey) {
    OpenReports(SixFortyNine);
    AddMoney("Spent", "Lotto649", 0, "1");
    AddMoney("Spent", "LOTTO649", 0, "10");
    AddMoney("Spent", "Lottario", 0, "100");
    Click("cmdProfitLoss");
    EXPECT_EQ(Legend(Reports().mscProfitLoss, 1), "Spent - $1.00");
}

TEST_F(ReportsTabTest, WithoutSpentTheReportShowsNoBoxAndTheRowsOfAnEarlierRun) {
    OpenReports(SixFortyNine);
    AddMoney("Spent", "Lotto649", 0, "5");
    Click("cmdPLReport");
    Do("DROP TABLE Spent");
    Click("cmdPLReport");
    EXPECT_NE(Report().find("   2004-01-14              $          5.00\r\n"), std::string::npos);
    EXPECT_NE(Report().find("Total Spent :   $          0.00\r\n"), std::string::npos);
}

TEST_F(ReportsTabTest, CountsOfAChartBehindFewerLinesEndTheReportHalfWay) {
    OpenReports(SixFortyNine);
    AddMoney("Spent", "Lotto649", 0, "5");
    Click("cmdProfitLoss");  // counts the row and keeps no line
    Do("DROP TABLE Spent");
    ExpectRunTimeError(ErrorNumber::SubscriptOutOfRange);
    Click("cmdPLReport");
    EXPECT_TRUE(Report().ends_with(" ----------------------------------------------\r\n\r\n")) << Report();
}

TEST_F(ReportsTabTest, TheMoneyChartLeavesPrintingOnAndTheHiddenTextIsPrinted) {
    OpenReports(Lottario);
    AddDraws(Lottario, 1);
    AddMoney("Spent", "Lottario", 0, "5");
    Click("cmdNFReport");
    Click("cmdProfitLoss");
    ASSERT_TRUE(IsEnabled("cmdPrintReport"));
    Click("cmdPrintReport");
    ASSERT_EQ(printer.documents.size(), 1u);
    EXPECT_EQ(printer.documents[0][3].text, "                       Number Frequency Report");
}

TEST_F(ReportsTabTest, AnEmptyReportPrintsAnEmptyPage) {
    OpenReports(Lottario);
    Reports().cmdPrintReport.SetEnabled(true);  // no button turns it on over an empty text
    Click("cmdPrintReport");
    ASSERT_EQ(printer.documents.size(), 1u);
    EXPECT_EQ(testing::RecordingPrinter::Texts(printer.documents[0]), Texts{""});
}

TEST_F(ReportsTabTest, ACancelledOrFailingPrinterIsARunTimeErrorAndTheWindowGoesOn) {
    using Verb = testing::RecordingPrinter::Verb;
    OpenReports(Lottario);
    AddMoney("Spent", "Lottario", 0, "5");
    Click("cmdPLReport");
    const std::pair<Verb, int> failures[] = {{Verb::ShowPrinter, ErrorNumber::DialogCancelled},
                                             {Verb::ShowPrinter, ErrorNumber::PrinterDriver},
                                             {Verb::FontSize, ErrorNumber::PrinterProperty},
                                             {Verb::Print, ErrorNumber::PrinterError},
                                             {Verb::EndDoc, ErrorNumber::PrinterError}};
    for (const auto& [verb, number] : failures) {
        printer.FailAt(verb, 1, number);
        ExpectRunTimeError(number);
        Click("cmdPrintReport");
        EXPECT_EQ(person.Awaited(), 0);
        EXPECT_TRUE(printer.documents.empty());
    }
    Click("cmdPrintReport");
    EXPECT_EQ(printer.documents.size(), 1u);
}

TEST_F(ReportsTabTest, ThreeDigitsAreChartedByPosition) {
    OpenReports(Pick3);
    AddDraw(Pick3, {0, 9, 9});
    AddDraw(Pick3, {0, 1, 2});
    Click("cmdNumberFrequency");
    Click("cmdNumberFrequency");  // counts anew
    forms::Chart& chart = Reports().mscNumberFrequency;
    EXPECT_EQ(Bars(chart, 1), (std::vector<double>{2, 0, 0, 0, 0, 0, 0, 0, 0, 0}));
    EXPECT_EQ(Bars(chart, 2), (std::vector<double>{0, 1, 0, 0, 0, 0, 0, 0, 0, 1}));
    EXPECT_EQ(Bars(chart, 3), (std::vector<double>{0, 0, 1, 0, 0, 0, 0, 0, 0, 1}));
}

TEST_F(ReportsTabTest, EachTypeOfReportOfThreeDigitsIsWritten) {
    OpenReports(Pick3);
    AddDraw(Pick3, {0, 1, 2});
    const std::string_view titles[] = {"                  Number Frequency Report By Position\r\n",
                                       "                           Triple Match Report\r\n",
                                       "                         Front Pairs Report\r\n",
                                       "                          Back Pairs Report\r\n"};
    const std::string_view rows[] = {"           0           1             0             0\r\n",
                                     "  012       1            112        0            212        0\r\n",
                                     "  01         1             11         0             21         0\r\n",
                                     "  02         0             12         1             22         0\r\n"};
    for (std::size_t type = 0; type < 4; ++type) {
        ExpectReportType(static_cast<int>(type), "cmdOK");
        Click("cmdReport");
        EXPECT_TRUE(Report().starts_with(
            "\r\n     Date: 2006-03-11                                      Lotto 6/49\r\n\r\n" +
            std::string(titles[type])))
            << Report();
        EXPECT_NE(Report().find(rows[type]), std::string::npos) << Report();
    }
}

TEST_F(ReportsTabTest, ACancelledTypeRunsTheTallyAndChangesNoText) {
    OpenReports(Pick3);
    AddDraw(Pick3, {0, 1, 2});
    ExpectReportType(0, "cmdOK");
    Click("cmdReport");
    const std::string before = Report();
    global.ComboCounts = {};
    ExpectReportType(1, "cmdCancel");
    Click("cmdReport");
    EXPECT_EQ(global.ReportType, "");
    EXPECT_EQ(Report(), before);
    EXPECT_EQ(global.ComboCounts.UBound(), 999) << "the tally has run";
    EXPECT_EQ(Seen(), "txtReport");
}

TEST_F(ReportsTabTest, WithoutTheTableNoTypeIsAskedAndTheLastOneIsReported) {
    OpenReports(Pick3);
    Do("DROP TABLE WinONTPick3");
    global.ReportType = "Numbers By Position";
    ExpectNoTable();
    Click("cmdReport");
    EXPECT_NE(Report().find("Number Frequency Report By Position"), std::string::npos);
    EXPECT_EQ(global.Numbers.UBound(), 3);
}

TEST_F(ReportsTabTest, FourDigitsHaveNoTripleMatchToChooseAndWriteNoneWhenItIsLeftFromBefore) {
    OpenReports(Play4);
    AddDraw(Play4, {0, 1, 2, 3});
    person.ExpectWindow("frmReportType", [this](QWidget&) {
        EXPECT_FALSE(IsShown("optReportType(1)"));
        EXPECT_TRUE(IsShown("optReportType(3)"));
        Click("cmdOK");
    });
    global.ReportType = "Triple Match";
    Click("cmdReport");
    EXPECT_EQ(Report(), "");
    ExpectReportType(0, "cmdOK");
    Click("cmdReport");
    EXPECT_NE(Report().find("         Ball #   Position 1   Position 2   Position 3   Position4\r\n"),
              std::string::npos);
}

TEST_F(ReportsTabTest, AWheelThatWasRefusedLeavesTheChartEmptyUntilTheNextRunEnds) {
    OpenReports(Lottario);
    AddDraws(Lottario, 1, 3);
    person.ClickTab("&Quick");
    person.Expect("Not Enough Data",
                  "Not enough data to generate Hot Numbers. Please enter additional Winning Number "
                  "history\nand try again");
    Click("cmdGenerate");
    EXPECT_TRUE(global.Generating);
    person.ClickTab("&Reports");
    Click("cmdNumberFrequency");
    EXPECT_EQ(Sum(Bars(Reports().mscNumberFrequency)), 0);
    EXPECT_TRUE(Said(Reports().mscNumberFrequency).contains("No chart while a wheel is unfinished"));
    person.ClickTab("&Quick");
    Click("optWheelType(3)");
    Click("cmdGenerate");
    EXPECT_FALSE(global.Generating);
    person.ClickTab("&Reports");
    Click("cmdNumberFrequency");
    EXPECT_EQ(Sum(Bars(Reports().mscNumberFrequency)), 21);
}

TEST_F(ReportsTabTest, ALongReportIsShownWholeAndFromItsTop) {
    OpenReports(SixFortyNine);
    Do("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 30000) "
       "INSERT INTO Spent SELECT i, 'Lotto649', 30000 + i, 1 FROM n");
    Click("cmdPLReport");
    const std::string report = Report();
    EXPECT_NE(report.find("Total Spent :   $     30,000.00\r\n"), std::string::npos);
    EXPECT_EQ(std::count(report.begin(), report.end(), '\n'), 30000 + 27);
    EXPECT_EQ(Reports().txtReport.verticalScrollBar()->value(), 0);
}

}  // namespace
}  // namespace sorvane::test

// Both ledgers: readers, charts, reports.
#include <gtest/gtest.h>

#include <random>

#include "reports/Goldens.h"
#include "reports/MoneyReport.h"
#include "reports/ReportWorld.h"

namespace sorvane {

using namespace ReportFacts;
namespace {

using testing::Crlf;
using testing::NoTicketsText;
using testing::ReportWorld;

struct MoneyWorld : ReportWorld {
    using ReportWorld::ReportWorld;
    void Report(const MoneyWindow& window, std::string_view caption = {}) {
        ReportMoney(session, {window, db, TableName, mode, chart}, caption, text);
    }
    std::string ReportOf(const char* key, std::string_view caption) {
        global.LottoFlag = key;
        Report(GameMoney, caption);
        return text;
    }
    void Chart(const MoneyWindow& window) { ChartMoney(session, {window, db, TableName, mode, chart}); }
    // The line of the report that begins so, without its beginning.
    std::string LineAfter(const std::string& beginning) const {
        const std::size_t at = text.find(beginning);
        if (at == std::string::npos) return "no such line";
        const std::size_t from = at + beginning.size();
        return text.substr(from, text.find("\r\n", from) - from);
    }

    std::string db = DbName();
    std::string TableName = "PlayedEncore";
    Integer mode = 7;
    std::string text = "an earlier report";
};

constexpr const char* TotalSpentLine = "                                   Total Spent :   $";
constexpr const char* TotalWonLine = "                                   Total Won   :   $";
constexpr const char* DifferenceLine = "                                   Difference  :   $";

TEST(MoneyReportTest, EachGameIsReportedByItself) {
    MoneyWorld world;
    world.BothLedgers();
    EXPECT_EQ(world.ReportOf("Lotto649", "Lotto 6/49"), Crlf(golden::Lotto649Money));
    EXPECT_EQ(world.ReportOf("Super 7", "Super 7"), Crlf(golden::Super7Money));
    EXPECT_EQ(world.ReportOf("ONTKeno", "Ontario - Daily Keno"), Crlf(golden::ONTKenoMoney));
    EXPECT_EQ(world.TableName, "Spent");
    EXPECT_EQ(world.mode, ReportMode);
    world.ExpectAllClosed();
}

TEST(MoneyReportTest, AllGamesTogetherShowTheirKeys) {
    MoneyWorld world("");
    world.BothLedgers();
    world.Report(AllGamesMoney, AllCaption);
    EXPECT_EQ(world.text, Crlf(golden::AllMoney));
}

TEST(MoneyReportTest, RowsOfAnAddOnUnderItsOwnKeyAreListedLikeAnyOther) {
    MoneyWorld world("");
    world.Spent({{"ATLTag", "2026-01-02", "1"}});
    world.Winnings({});
    world.Report(AllGamesMoney);
    EXPECT_NE(world.text.find("   2026-01-02              $          1.00     ATLTag\r\n"),
              std::string::npos);
    world.global.LottoFlag = "ATLTag";
    world.Report(GameMoney);
    EXPECT_EQ(world.LineAfter(TotalSpentLine), "          1.00");
}

TEST(MoneyReportTest, AGameWithoutTicketsShowsTheBoxAndHeadingsWithTotalsOfZero) {
    MoneyWorld world;
    world.BothLedgers();
    EXPECT_EQ(world.ReportOf("Lotto649", "Lotto 6/49").size(), Crlf(golden::Lotto649Money).size());
    world.ExpectBox(NoTicketsText);
    EXPECT_EQ(world.ReportOf("ONTPick3", "Pick 3"), Crlf(golden::NothingMoney));
}

TEST(MoneyReportTest, NoTicketsAtAllShowTheBoxAndHeadingsWithTotalsOfZeroForAllGames) {
    MoneyWorld world("");
    world.Spent({});
    world.Winnings({});
    world.ExpectBox(NoTicketsText);
    world.Report(AllGamesMoney);
    EXPECT_EQ(world.LineAfter(TotalSpentLine), "          0.00");
    EXPECT_EQ(world.LineAfter(TotalWonLine), "          0.00");
    EXPECT_EQ(world.LineAfter(DifferenceLine), "          0.00");
}

TEST(MoneyReportTest, WithoutAWinTheDifferenceIsWhatWasSpentWithoutParentheses) {
    MoneyWorld world("BC49");
    world.Spent({{"BC49", "2026-01-02", "12.5"}});
    world.Winnings({});
    world.Report(GameMoney);
    EXPECT_EQ(world.LineAfter(TotalWonLine), "          0.00");
    EXPECT_EQ(world.LineAfter(DifferenceLine), "         12.50");
}

TEST(MoneyReportTest, AWinBelowADollarHasNoLeadingZeroButATicketHas) {
    MoneyWorld world("BC49");
    world.Spent({{"BC49", "2026-01-02", "0.5"}});
    world.Winnings({{"BC49", "2026-01-03", "0.5"}, {"BC49", "2026-01-04", "-0.5"}});
    world.Report(GameMoney);
    EXPECT_EQ(world.LineAfter("   2026-01-02"), "              $          0.50");
    EXPECT_EQ(world.LineAfter("   2026-01-03"), "              $           .50");
    EXPECT_EQ(world.LineAfter("   2026-01-04"), "              $         (.50)");
}

TEST(MoneyReportTest, KeysThatDifferInCaseAreDifferentGames) {
    MoneyWorld world("BC49");
    world.Spent({{"bc49", "2026-01-02", "3"}, {"BC49", "2026-01-02", "1"}});
    world.Winnings({{"Bc49", "2026-01-02", "7"}});
    world.Report(GameMoney);
    EXPECT_EQ(world.LineAfter(TotalSpentLine), "          1.00");
    EXPECT_EQ(world.LineAfter(TotalWonLine), "          0.00");
    EXPECT_EQ(world.global.SpentRows, 1);
    EXPECT_EQ(world.global.WonRows, 0);
}

TEST(MoneyReportTest, TheTotalsOfAllGamesAreNotResetSoARunWithoutRowsLeavesTheEarlierValue) {
    MoneyWorld world("");
    world.Spent({});
    world.Winnings({{"BC49", "2026-01-02", "3"}});
    world.global.TotalSpent = Currency::FromInt(44);
    world.global.TotalWon = Currency::FromInt(55);
    world.ExpectBox(NoTicketsText);
    world.Report(AllGamesMoney);
    EXPECT_EQ(world.LineAfter(TotalSpentLine), "         44.00");
    EXPECT_EQ(world.LineAfter(TotalWonLine), "          3.00");
    world.global.LottoFlag = "BC49";
    world.ExpectBox(NoTicketsText);
    world.Report(GameMoney);
    EXPECT_EQ(world.LineAfter(TotalSpentLine), "          0.00");
}

TEST(MoneyReportTest, ANegativeTotalHasASignAndANegativeRowParentheses) {
    MoneyWorld world("BC49");
    world.Spent({{"BC49", "2026-01-02", "-1234.5"}});
    world.Winnings({});
    world.Report(GameMoney);
    EXPECT_EQ(world.LineAfter("   2026-01-02"), "              $    (1,234.50)");
    EXPECT_EQ(world.LineAfter(TotalSpentLine), "     -1,234.50");
    EXPECT_EQ(world.LineAfter(DifferenceLine), "     (1,234.50)");
}

TEST(MoneyReportTest, TheDifferenceHasOneDollarSign) {
    MoneyWorld world("BC49");
    for (const char* won : {"0", "20"}) {
        world.global.TotalSpent = Currency::FromInt(5);
        world.global.TotalWon = Currency::FromText(won);
        WriteMoneyReport(world.session, GameMoney, "BC/49", world.text);
        EXPECT_EQ(world.LineAfter(DifferenceLine).find('$'), std::string::npos);
    }
}

TEST(MoneyReportTest, ADifferenceOfThirteenCharactersStillFits) {
    MoneyWorld world("BC49");
    world.global.TotalWon = Currency::FromText("999999.99");
    WriteMoneyReport(world.session, GameMoney, "BC/49", world.text);
    EXPECT_EQ(world.LineAfter(DifferenceLine), "   (999,999.99)");
}

TEST(MoneyReportTest, WithoutSpentAGameReadsNothingAndReportsTheLeftOverRowsWithTotalsOfZero) {
    MoneyWorld world("Lotto649");
    world.BothLedgers();
    world.Report(GameMoney, "Lotto 6/49");
    world.Plain().Do("DROP TABLE Spent");
    world.Report(GameMoney, "Lotto 6/49");
    EXPECT_EQ(world.global.TableOpened, Off);
    EXPECT_EQ(world.LineAfter("   2026-03-14"), "              $          5.00");
    EXPECT_EQ(world.LineAfter(TotalSpentLine), "          0.00");
    EXPECT_EQ(world.LineAfter(TotalWonLine), "          0.00");
}

TEST(MoneyReportTest, CountsLeftByAChartEndTheReportWhereItsLinesEnd) {
    MoneyWorld world("Lotto649");
    world.BothLedgers();
    world.Chart(GameMoney);
    world.Plain().Do("DROP TABLE Spent");
    EXPECT_EQ(ErrorOf([&] { world.Report(GameMoney, "Lotto 6/49"); }), 9);
    const std::string whole = Crlf(golden::Lotto649Money);
    EXPECT_EQ(world.text, whole.substr(0, whole.find("   2025-12-31")));
}

TEST(MoneyReportTest, WithoutWinningsAGameReadsSpentAllTheSame) {
    MoneyWorld world("Lotto649");
    world.Spent({{"Lotto649", "2026-01-02", "3"}});
    world.ExpectUnexpected(3078);
    world.Report(GameMoney);
    EXPECT_EQ(world.LineAfter(TotalSpentLine), "          3.00");
}

TEST(MoneyReportTest, ForAllGamesEitherLedgerIsEnough) {
    MoneyWorld world("");
    world.Winnings({{"Lotto649", "2026-01-02", "3"}});
    world.ExpectUnexpected(3078);
    world.Report(AllGamesMoney);
    EXPECT_EQ(world.global.TableOpened, On);
    EXPECT_EQ(world.LineAfter(TotalWonLine), "          3.00");

    MoneyWorld spentAlone("");
    spentAlone.Spent({{"Lotto649", "2026-01-02", "4"}});
    spentAlone.ExpectStoreError(3011,
                                "Unable to open Winnings table. Please advise error number to support.");
    spentAlone.Report(AllGamesMoney);
    EXPECT_EQ(spentAlone.LineAfter(TotalSpentLine), "          4.00");
}

TEST(MoneyReportTest, WithoutEitherLedgerNothingIsSaidAndTheHeadingsCome) {
    MoneyWorld world("");
    world.Report(AllGamesMoney);
    EXPECT_EQ(world.LineAfter(DifferenceLine), "          0.00");
    EXPECT_TRUE(world.dialogs.log.empty());
}

TEST(MoneyReportTest, ADatabaseThatCannotBeOpenedShowsABoxForEachProbe) {
    MoneyWorld world("BC49");
    std::filesystem::remove(world.db);
    for (int probe = 0; probe < 2; ++probe) world.ExpectUnexpected(3024);
    world.Report(GameMoney);
    EXPECT_EQ(world.LineAfter(DifferenceLine), "          0.00");
}

TEST(SumTest, ARowThatCannotBeReadEndsTheReadingAndLeavesItsLineEmpty) {
    MoneyWorld world("BC49");
    world.Spent({{"BC49", "2026-01-02", "1"}, {"BC49", "2026-01-03", "NULL"}, {"BC49", "2026-01-04", "1"}});
    world.Winnings({});
    world.ExpectUnexpected(94);
    world.Report(GameMoney);
    EXPECT_EQ(world.global.SpentRows, 3);
    EXPECT_NE(world.text.find("   2026-01-02              $          1.00\r\n      \r\n"), std::string::npos);
    EXPECT_EQ(world.LineAfter(TotalSpentLine), "          0.00");
    world.ExpectAllClosed();
}

TEST(SumTest, EqualDatesKeepTheOrderOfEntry) {
    MoneyWorld world("");
    world.Spent({{"b", "2026-01-02", "1"}, {"a", "2026-01-02", "2"}, {"c", "2026-01-01", "3"}});
    SumSpent(world.session, {world.db, "Spent"}, world.chart, ReportMode);
    const auto& lines = world.global.AllSpentLines;
    EXPECT_EQ(lines(0), "2026-01-01              $          3.00     c\r\n");
    EXPECT_EQ(lines(1), "2026-01-02              $          1.00     b\r\n");
    EXPECT_EQ(lines(2), "2026-01-02              $          2.00     a\r\n");
    EXPECT_EQ(lines.UBound(), 3);
    EXPECT_EQ(lines(3), "");
    EXPECT_EQ(world.global.SpentLines(1), "2026-01-02              $          1.00\r\n");
}

TEST(SumTest, AKeyOfNoGameTakesEveryRow) {
    MoneyWorld world("Atlantis");
    world.BothLedgers();
    SumSpent(world.session, {world.db, "Spent"}, world.chart, ReportMode);
    SumWon(world.session, {world.db, "Winnings"}, world.chart, ReportMode);
    EXPECT_EQ(world.global.SpentRows, 7);
    EXPECT_EQ(world.global.WonRows, 5);
}

TEST(SumTest, EachOfTheTwentyOneKeysTakesItsOwnRows) {
    MoneyWorld world;
    const std::vector<std::string> keys{
        "Lottario",   "Super 7",   "Lotto649",   "Ontario49",   "Quebec49",  "BCDaily3", "BC49",
        "BCClubKeno", "ATLChoice", "ATLPik4",    "ATLTag",      "ONTKeno",   "ONTPick3", "Quote3",
        "Quote4",     "QCBanco",   "Western649", "PrairieKeno", "WESTPick3", "FLACash3", "FLAPlay4"};
    ASSERT_EQ(keys.size(), 21U);
    std::vector<ReportWorld::LedgerRow> rows{{"nobody", "2026-01-01", "1000"}};
    for (const std::string& key : keys) rows.push_back({key, "2026-01-01", std::to_string(rows.size())});
    world.Spent(rows);
    world.Winnings(rows);
    for (std::size_t i = 0; i < keys.size(); ++i) {
        world.global.LottoFlag = keys[i];
        SumSpent(world.session, {world.db, "Spent"}, world.chart, ReportMode);
        SumWon(world.session, {world.db, "Winnings"}, world.chart, ReportMode);
        const Currency expected = Currency::FromInt(static_cast<std::int64_t>(i) + 1);
        EXPECT_EQ(world.global.TotalSpent, expected) << keys[i];
        EXPECT_EQ(world.global.TotalWon, expected) << keys[i];
    }
}

TEST(SumTest, AllWinningsAreReadFromTheTableOfTheCallersName) {
    MoneyWorld world("");
    world.Winnings({});
    world.Ledger(CreateWinningsTable, "Elsewhere", {{"BC49", "2026-01-01", "8"}});
    SumWon(world.session, {world.db, "Elsewhere"}, world.chart, ReportMode);
    EXPECT_EQ(world.global.TotalWon, Currency::FromInt(8));
    world.global.LottoFlag = "BC49";
    SumWon(world.session, {world.db, "Elsewhere"}, world.chart, ReportMode);
    EXPECT_EQ(world.global.WonRows, 0);
}

TEST(SumTest, MoreThan32767RowsOfALedgerAreAnOverflow) {
    MoneyWorld world("");
    world.Spent({});
    world.Winnings({});
    const Global& g = world.global;
    struct Case {
        const char* table;
        decltype(&SumSpent) sum;
        const Integer& rows;
        const Currency& total;
    };
    for (const Case& ledger : {Case{"Spent", SumSpent, g.SpentRows, g.TotalSpent},
                               Case{"Winnings", SumWon, g.WonRows, g.TotalWon}}) {
        const std::string insert = "INSERT INTO " + std::string(ledger.table);
        world.Plain().Do("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 32767) " +
                         insert + " SELECT i, 'BC49', 46000, 1 FROM n");
        ledger.sum(world.session, {world.db, ledger.table}, world.chart, ReportMode);
        EXPECT_EQ(ledger.rows, 32'767);
        EXPECT_EQ(ledger.total, Currency::FromInt(32'767));
        world.Plain().Do(insert + " VALUES (32768, 'BC49', 46000, 1)");
        world.ExpectUnexpected(6);
        ledger.sum(world.session, {world.db, ledger.table}, world.chart, ReportMode);
        EXPECT_EQ(ledger.rows, 32'767);
        world.ExpectAllClosed();
    }
}

TEST(SumTest, TotalsAreExactDecimalSums) {
    constexpr std::uint32_t Seed = 649;
    std::mt19937 random(Seed);
    std::uniform_int_distribution<int> any(-20'000, 3'000'000);
    MoneyWorld world("BC49");
    std::vector<ReportWorld::LedgerRow> rows;
    std::int64_t sum = 0;
    for (int i = 0; i < 3000; ++i) {
        const int amount = any(random);
        sum += amount;
        rows.push_back({"BC49", "2026-01-02", Currency::FromTenThousandths(amount).ToText()});
    }
    world.Spent(rows);
    world.Winnings(rows);
    world.Report(GameMoney);
    EXPECT_EQ(world.global.TotalSpent.TenThousandths(), sum) << "seed " << Seed;
    EXPECT_EQ(world.global.TotalWon.TenThousandths(), sum) << "seed " << Seed;
}

TEST(MoneyChartTest, ThePaddedSumsStandInTwoColumnsTheWonOneFirst) {
    MoneyWorld world("Lotto649");
    world.BothLedgers();
    world.Chart(GameMoney);
    EXPECT_EQ(world.chart.calls,
              (std::vector<std::string>{"Column 2", "Row 1", "Data       2,010.50",
                                        "ColumnLabel Won   - $2,010.50", "Column 1", "Row 1",
                                        "Data       1,236.25", "ColumnLabel Spent - $1,236.25"}));
    EXPECT_EQ(world.mode, ChartMode);
    EXPECT_FALSE(world.global.SpentLines.Sized());
    EXPECT_EQ(world.global.TotalSpent, Currency());
    EXPECT_EQ(world.TableName, "Spent");
}

TEST(MoneyChartTest, ANegativeSumHasASign) {
    MoneyWorld world("Super 7");
    world.BothLedgers();
    world.Chart(GameMoney);
    EXPECT_EQ(world.chart.labels[2], "Won   - $-2.00");
}

TEST(MoneyChartTest, WithoutRowsBothColumnsAreZero) {
    MoneyWorld world("BC49");
    world.BothLedgers();
    world.ExpectBox(NoTicketsText);
    world.Chart(GameMoney);
    EXPECT_EQ((world.chart.cells[{1, 1}]), "          0.00");
    EXPECT_EQ((world.chart.cells[{1, 2}]), "          0.00");
    EXPECT_EQ(world.chart.labels[1], "Spent - $0.00");
    EXPECT_EQ(world.chart.labels[2], "Won   - $0.00");
}

TEST(MoneyChartTest, AReportWithoutRowsDrawsTheSpentZeroAlone) {
    MoneyWorld world("BC49");
    world.BothLedgers();
    world.ExpectBox(NoTicketsText);
    world.Report(GameMoney);
    EXPECT_EQ(world.chart.labels.size(), 1U);
    EXPECT_EQ(world.chart.labels[1], "Spent - $0.00");
}

TEST(MoneyChartTest, AReportWithRowsDrawsNothing) {
    MoneyWorld world("Lotto649");
    world.BothLedgers();
    world.Report(GameMoney);
    EXPECT_TRUE(world.chart.calls.empty());
}

TEST(MoneyChartTest, AnyOtherModeCountsTheRowsAndDoesNoMore) {
    MoneyWorld world("Lotto649");
    world.BothLedgers();
    SumSpent(world.session, {world.db, "Spent"}, world.chart, 2);
    EXPECT_EQ(world.global.SpentRows, 3);
    EXPECT_FALSE(world.global.SpentLines.Sized());
    EXPECT_TRUE(world.chart.calls.empty());
}

TEST(MoneyChartTest, IsToldWhetherThereIsATicketAndNothingOfWins) {
    for (const bool any : {true, false}) {
        MoneyWorld world("Lotto649");
        world.Spent(any ? std::vector<ReportWorld::LedgerRow>{{"Lotto649", "2026-01-02", "3"}}
                        : std::vector<ReportWorld::LedgerRow>{});
        world.Winnings({{"BC49", "2026-01-02", "3"}});
        if (!any) world.ExpectBox(NoTicketsText);
        world.chart.found = !any;
        world.Chart(GameMoney);
        EXPECT_EQ(world.chart.found, any);
    }
}

TEST(MoneyChartTest, OfAGameSpentAloneDecidesWhetherTheLedgersAreRead) {
    MoneyWorld world("Lotto649");
    world.Winnings({{"Lotto649", "2026-01-02", "3"}});
    world.Chart(GameMoney);
    EXPECT_TRUE(world.chart.calls.empty());
    EXPECT_EQ(world.global.TableOpened, Off);
}

}  // namespace
}  // namespace sorvane

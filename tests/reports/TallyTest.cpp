// Counting draws.
#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <random>

#include "reports/DisplayData.h"
#include "reports/ReportTypes.h"
#include "reports/ReportWorld.h"

namespace sorvane {
namespace {

using testing::Draw;
using testing::NoDrawsText;
using testing::RecordingChart;
using testing::ReportWorld;

constexpr int OtherMode = 2;

const std::vector<Draw> TwoSixDraws{{1, 2, 3, 4, 5, 6, 49}, {6, 12, 23, 34, 45, 49, 1}};
const std::vector<Draw> TwoLottarioDraws{{1, 2, 3, 4, 5, 6, 45}, {6, 12, 23, 34, 44, 45, 1}};
const std::vector<Draw> TwoSevenDraws{{1, 8, 15, 22, 29, 47, 48, 49}, {1, 2, 3, 4, 5, 6, 7, 8}};

Draw FirstNumbers(int count) {
    Draw draw(static_cast<std::size_t>(count));
    std::iota(draw.begin(), draw.end(), 1);
    return draw;
}

TEST(SixNumberTallyTest, TheChartGetsARowForEachNumberOfTheGame) {
    ReportWorld world("Lotto649");
    world.SixDraws("WinLotto649", TwoSixDraws);
    TallySixNumberFrequency(world.session, {world.DbName(), "WinLotto649"}, world.chart, ChartMode);
    ASSERT_EQ(world.chart.cells.size(), 49U);
    EXPECT_EQ((world.chart.cells[{1, 1}]), "2");
    EXPECT_EQ((world.chart.cells[{2, 1}]), "1");
    EXPECT_EQ((world.chart.cells[{7, 1}]), "0");
    EXPECT_EQ((world.chart.cells[{49, 1}]), "2");
    EXPECT_EQ(world.chart.calls.front(), "Row 1");
    EXPECT_EQ(world.chart.calls.back(), "Data 2");
    EXPECT_FALSE(world.global.Numbers.Sized());
    world.ExpectAllClosed();
}

TEST(SixNumberTallyTest, TheReportFillsNumbersAndFavouritesWithASpareSlot) {
    ReportWorld world("Lotto649");
    world.SixDraws("WinLotto649", TwoSixDraws);
    TallySixNumberFrequency(world.session, {world.DbName(), "WinLotto649"}, world.chart, ReportMode);
    Global& g = world.global;
    ASSERT_EQ(g.Numbers.UBound(), 49);
    ASSERT_EQ(g.Favourites.UBound(), 49);
    for (int i = 0; i <= 49; ++i) EXPECT_EQ(g.Numbers(i), g.Favourites(i)) << i;
    EXPECT_EQ(g.Numbers(0), 2);
    EXPECT_EQ(g.Numbers(48), 2);
    EXPECT_EQ(g.Numbers(49), 0);
    EXPECT_TRUE(world.chart.calls.empty());
}

TEST(SixNumberTallyTest, ABonusNumberCountsLikeTheOthersSoThatADrawCountsSeven) {
    ReportWorld world("Lotto649");
    world.SixDraws("WinLotto649", {TwoSixDraws.front()});
    TallySixNumberFrequency(world.session, {world.DbName(), "WinLotto649"}, world.chart, ReportMode);
    const std::vector<int> counts = world.Counted();
    EXPECT_EQ(std::accumulate(counts.begin(), counts.end(), 0), 7);
    EXPECT_EQ(world.global.Numbers(48), 1);
}

TEST(SixNumberTallyTest, LottarioHasFortyFiveNumbersAndNoSpareSlot) {
    ReportWorld world("Lottario");
    world.SixDraws("WinLottario", TwoLottarioDraws);
    TallySixNumberFrequency(world.session, {world.DbName(), "WinLottario"}, world.chart, ReportMode);
    EXPECT_EQ(world.global.Numbers.UBound(), 44);
    EXPECT_EQ(world.global.Favourites.UBound(), 44);
    EXPECT_EQ(world.global.Numbers(44), 2);
    EXPECT_FALSE(world.global.BallFrequency.Sized());
    TallySixNumberFrequency(world.session, {world.DbName(), "WinLottario"}, world.chart, ChartMode);
    EXPECT_EQ(world.chart.cells.size(), 45U);
}

TEST(SixNumberTallyTest, WhileGeneratingTheWheelOfLottarioGetsItsFrequenciesAndNoChartIsDrawn) {
    ReportWorld world("Lottario");
    world.SixDraws("WinLottario", TwoLottarioDraws);
    world.global.Generating = true;
    TallySixNumberFrequency(world.session, {world.DbName(), "WinLottario"}, world.chart, ChartMode);
    EXPECT_TRUE(world.chart.calls.empty());
    EXPECT_FALSE(world.global.BallFrequency.Sized());
    TallySixNumberFrequency(world.session, {world.DbName(), "WinLottario"}, world.chart, ReportMode);
    ASSERT_EQ(world.global.BallFrequency.UBound(), 44);
    EXPECT_EQ(world.global.BallFrequency(0), 2);
    EXPECT_EQ(world.global.BallFrequency(6), 0);
}

TEST(SixNumberTallyTest, WhileGeneratingAnotherGameFillsNoFrequenciesForAWheel) {
    ReportWorld world("BC49");
    world.SixDraws("WinBC49", TwoSixDraws);
    world.global.Generating = true;
    TallySixNumberFrequency(world.session, {world.DbName(), "WinBC49"}, world.chart, ReportMode);
    EXPECT_FALSE(world.global.BallFrequency.Sized());
    EXPECT_EQ(world.global.Numbers(0), 2);
}

TEST(SixNumberTallyTest, AZeroInADrawCountsInASlotThatNobodySees) {
    ReportWorld world("Lotto649");
    world.SixDraws("WinLotto649", {{0, 2, 3, 4, 5, 6, 7}});
    TallySixNumberFrequency(world.session, {world.DbName(), "WinLotto649"}, world.chart, ReportMode);
    const std::vector<int> counts = world.Counted();
    EXPECT_EQ(std::accumulate(counts.begin(), counts.end(), 0), 6);
}

TEST(TallyTest, ATableWithoutDrawsSaysSoAndLeavesChartAndArraysAlone) {
    for (const Integer mode : {ChartMode, ReportMode}) {
        ReportWorld world("Lotto649");
        world.SixDraws("WinLotto649", {});
        world.ExpectBox(NoDrawsText);
        TallySixNumberFrequency(world.session, {world.DbName(), "WinLotto649"}, world.chart, mode);
        EXPECT_TRUE(world.chart.calls.empty());
        EXPECT_FALSE(world.global.Numbers.Sized());
        world.ExpectAllClosed();
    }
}

TEST(TallyTest, TheChartIsToldWhetherThereIsADraw) {
    for (const bool any : {true, false}) {
        ReportWorld world("Lotto649");
        world.SixDraws("WinLotto649", any ? std::vector<Draw>{TwoSixDraws.front()} : std::vector<Draw>{});
        if (!any) world.ExpectBox(NoDrawsText);
        world.chart.found = !any;
        TallySixNumberFrequency(world.session, {world.DbName(), "WinLotto649"}, world.chart, ChartMode);
        EXPECT_EQ(world.chart.found, any);
    }
}

TEST(TallyTest, AMissingTableIsNamedInTheBox) {
    ReportWorld world("ONTKeno");
    world.ExpectStoreError(3011, "Unable to open WinONTKeno table. Please advise error number to support.");
    TallyKenoFrequency(world.session, {world.DbName(), "WinONTKeno"}, world.chart, ChartMode);
    world.ExpectAllClosed();
}

TEST(TallyTest, ANumberBeyondTheGameEndsTheTallyWithItsBox) {
    for (const int number : {46, -1}) {
        ReportWorld world("Lottario");
        world.SixDraws("WinLottario", {{1, 2, 3, 4, 5, 6, number}, {1, 2, 3, 4, 5, 6, 7}});
        world.ExpectUnexpected(9);
        TallySixNumberFrequency(world.session, {world.DbName(), "WinLottario"}, world.chart, ReportMode);
        EXPECT_FALSE(world.global.Numbers.Sized());
        world.ExpectAllClosed();
    }
}

TEST(TallyTest, AFieldNeverWrittenIsAnError) {
    ReportWorld world("Lottario");
    world.SixDraws("WinLottario", {});
    world.Plain().Do("INSERT INTO WinLottario (ID1, Date) VALUES (1, 46000)");
    world.ExpectUnexpected(94);
    TallySixNumberFrequency(world.session, {world.DbName(), "WinLottario"}, world.chart, ReportMode);
    world.ExpectAllClosed();
}

TEST(TallyTest, AnyOtherModeGivesNothing) {
    ReportWorld world("Lotto649");
    world.SixDraws("WinLotto649", TwoSixDraws);
    TallySixNumberFrequency(world.session, {world.DbName(), "WinLotto649"}, world.chart, OtherMode);
    EXPECT_TRUE(world.chart.calls.empty());
    EXPECT_FALSE(world.global.Numbers.Sized());
}

TEST(TallyTest, MoreThan32767RowsAreCountedButOneNumberSoOftenIsAnOverflow) {
    ReportWorld world("Lotto649");
    world.SixDraws("WinLotto649", {});
    // Every number by turns: no number comes up more than 32,767 times in 40,000 draws.
    world.Plain().Do(
        "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 40000) "
        "INSERT INTO WinLotto649 SELECT i, 46000, i % 7 + 1, i % 7 + 8, i % 7 + 15, i % 7 + 22, i % 7 + 29, "
        "i % 7 + 36, i % 7 + 43 FROM n");
    TallySixNumberFrequency(world.session, {world.DbName(), "WinLotto649"}, world.chart, ReportMode);
    const std::vector<int> counts = world.Counted();
    EXPECT_EQ(std::accumulate(counts.begin(), counts.end(), 0), 280'000);
    world.Plain().Do("UPDATE WinLotto649 SET Ball_1 = 1 WHERE ID1 <= 32768");
    world.ExpectUnexpected(6);
    TallySixNumberFrequency(world.session, {world.DbName(), "WinLotto649"}, world.chart, ReportMode);
}

TEST(SevenNumberTallyTest, EightFieldsCountAndFortyNineNumbersAreKept) {
    ReportWorld world("Super 7");
    world.SevenDraws(TwoSevenDraws);
    TallySevenNumberFrequency(world.session, {world.DbName(), "WinSuper7"}, world.chart, ReportMode);
    ASSERT_EQ(world.global.Numbers.UBound(), 49);
    const std::vector<int> counts = world.Counted();
    EXPECT_EQ(std::accumulate(counts.begin(), counts.end(), 0), 16);
    EXPECT_EQ(counts[0], 2);
    EXPECT_EQ(counts[47], 1);
    EXPECT_EQ(counts[48], 1);
    EXPECT_FALSE(world.global.Favourites.Sized());
    TallySevenNumberFrequency(world.session, {world.DbName(), "WinSuper7"}, world.chart, ChartMode);
    EXPECT_EQ(world.chart.cells.size(), 49U);
}

TEST(SevenNumberTallyTest, NumbersIsSizedBeforeAnythingElse) {
    for (const Integer mode : {ChartMode, ReportMode}) {
        ReportWorld world("Super 7");
        world.ExpectStoreError(3011,
                               "Unable to open WinSuper7 table. Please advise error number to support.");
        TallySevenNumberFrequency(world.session, {world.DbName(), "WinSuper7"}, world.chart, mode);
        EXPECT_EQ(world.global.Numbers.UBound(), 49);
    }
}

TEST(SevenNumberTallyTest, ForAnotherKeyNumbersIsNotSized) {
    ReportWorld world("super 7");
    world.SevenDraws(TwoSevenDraws);
    world.ExpectUnexpected(9);
    TallySevenNumberFrequency(world.session, {world.DbName(), "WinSuper7"}, world.chart, ReportMode);
    EXPECT_FALSE(world.global.Numbers.Sized());
}

TEST(KenoTallyTest, TwentyNumbersCountWithinTheRangeOfTheGame) {
    struct Case {
        const char* key;
        const char* table;
        int top;
    };
    for (const Case& game : {Case{"ONTKeno", "WinONTKeno", 70}, Case{"QCBanco", "WinQCBanco", 70},
                             Case{"ATLChoice", "WinATLChoice", 70}, Case{"PrairieKeno", "WinPrairieKeno", 80},
                             Case{"BCClubKeno", "WinBCClubKeno", 80}}) {
        SCOPED_TRACE(game.key);
        ReportWorld world(game.key);
        Draw draw = FirstNumbers(20);
        draw.back() = game.top;
        world.KenoDraws(game.table, {draw});
        world.global.Numbers.Redim(game.top);
        TallyKenoFrequency(world.session, {world.DbName(), game.table}, world.chart, ReportMode);
        const std::vector<int> counts = world.Counted();
        EXPECT_EQ(std::accumulate(counts.begin(), counts.end(), 0), 20);
        EXPECT_EQ(world.global.Numbers(game.top - 1), 1);
        TallyKenoFrequency(world.session, {world.DbName(), game.table}, world.chart, ChartMode);
        EXPECT_EQ(static_cast<int>(world.chart.cells.size()), game.top);
        world.AddDraws(game.table, "46001, 'key'", {Draw(20, game.top + 1)});
        world.ExpectUnexpected(9);
        TallyKenoFrequency(world.session, {world.DbName(), game.table}, world.chart, ChartMode);
    }
}

TEST(KenoTallyTest, TheReportNeedsNumbersSizedByItsButton) {
    ReportWorld world("ONTKeno");
    world.KenoDraws("WinONTKeno", {FirstNumbers(20)});
    world.ExpectUnexpected(9);
    TallyKenoFrequency(world.session, {world.DbName(), "WinONTKeno"}, world.chart, ReportMode);
}

TEST(KenoTallyTest, AnUnknownGameHasNoTally) {
    ReportWorld world("Lotto649");
    world.KenoDraws("WinONTKeno", {FirstNumbers(20)});
    world.ExpectUnexpected(9);
    TallyKenoFrequency(world.session, {world.DbName(), "WinONTKeno"}, world.chart, ChartMode);
    EXPECT_TRUE(world.chart.calls.empty());
}

TEST(KenoTallyTest, AnUnknownGameHasNoSlotForANoughtEither) {
    ReportWorld world("Lotto649");
    world.KenoDraws("WinONTKeno", {Draw(20, 0)});
    world.ExpectUnexpected(9);
    TallyKenoFrequency(world.session, {world.DbName(), "WinONTKeno"}, world.chart, ChartMode);
}

// Random draws from a fixed seed, counted once more by a plain loop.
class RecountTest : public ::testing::Test {
  protected:
    static constexpr std::uint32_t Seed = 20261121;
    std::vector<Draw> RandomDraws(int draws, int numbers, int low, int high) {
        std::vector<Draw> all;
        std::uniform_int_distribution<int> any(low, high);
        for (int i = 0; i < draws; ++i) {
            all.emplace_back();
            while (static_cast<int>(all.back().size()) < numbers) all.back().push_back(any(random_));
        }
        return all;
    }
    static std::vector<int> Recount(const std::vector<Draw>& draws, int top, std::size_t slots) {
        std::vector<int> counts(slots);
        for (int n = 1; n <= top; ++n)
            for (const Draw& draw : draws)
                counts[static_cast<std::size_t>(n - 1)] +=
                    static_cast<int>(std::count(draw.begin(), draw.end(), n));
        return counts;
    }
    std::mt19937 random_{Seed};
};

TEST_F(RecountTest, SixSevenAndTwentyNumbersAreCountedAsAPlainLoopCountsThem) {
    ReportWorld world("Lotto649");
    const auto six = RandomDraws(1000, 7, 1, 49);
    world.SixDraws("WinLotto649", six);
    TallySixNumberFrequency(world.session, {world.DbName(), "WinLotto649"}, world.chart, ReportMode);
    EXPECT_EQ(world.Counted(), Recount(six, 49, 50)) << "seed " << Seed;

    world.global.LottoFlag = "Super 7";
    const auto seven = RandomDraws(1000, 8, 1, 49);
    world.SevenDraws(seven);
    TallySevenNumberFrequency(world.session, {world.DbName(), "WinSuper7"}, world.chart, ReportMode);
    EXPECT_EQ(world.Counted(), Recount(seven, 49, 50)) << "seed " << Seed;

    world.global.LottoFlag = "BCClubKeno";
    const auto keno = RandomDraws(500, 20, 1, 80);
    world.KenoDraws("WinBCClubKeno", keno);
    world.global.Numbers.Redim(79);
    TallyKenoFrequency(world.session, {world.DbName(), "WinBCClubKeno"}, world.chart, ReportMode);
    EXPECT_EQ(world.Counted(), Recount(keno, 80, 80)) << "seed " << Seed;
}

TEST_F(RecountTest, DigitsByPositionAndGroupsAreCountedAsAPlainLoopCountsThem) {
    for (const std::size_t digits : {3U, 4U}) {
        ReportWorld world(digits == 3 ? "FLACash3" : "FLAPlay4");
        const std::string table = digits == 3 ? "WinFLACash3" : "WinFLAPlay4";
        const auto tally = digits == 3 ? TallyPick3Digits : TallyPick4Digits;
        std::vector<std::string> draws;
        for (const Draw& draw : RandomDraws(2000, static_cast<int>(digits), 0, 9)) {
            draws.emplace_back();
            for (const int digit : draw) draws.back() += static_cast<char>('0' + digit);
        }
        world.DigitDraws(table, draws);
        tally(world.session, {world.DbName(), table}, world.chart, ChartMode);
        for (int digit = 0; digit <= 9; ++digit)
            for (std::size_t position = 0; position < digits; ++position) {
                const auto expected = std::count_if(draws.begin(), draws.end(), [&](const std::string& draw) {
                    return draw[position] == static_cast<char>('0' + digit);
                });
                EXPECT_EQ((world.chart.cells[{digit + 1, static_cast<int>(position) + 1}]),
                          std::to_string(expected))
                    << "seed " << Seed;
            }
        struct Group {
            std::string_view type;
            std::size_t from, count;
        };
        for (const Group& group :
             {Group{ReportTypes::TripleMatch, 0, 3}, Group{ReportTypes::FrontPairs, 0, 2},
              Group{ReportTypes::BackPairs, digits - 2, 2}}) {
            world.global.ReportType = group.type;
            tally(world.session, {world.DbName(), table}, world.chart, ReportMode);
            std::vector<int> expected(1000);
            for (const std::string& draw : draws)
                ++expected[static_cast<std::size_t>(std::stoi(draw.substr(group.from, group.count)))];
            for (int slot = 0; slot < 1000; ++slot)
                EXPECT_EQ(Val(world.global.ComboCounts(slot)), expected[static_cast<std::size_t>(slot)])
                    << group.type << " " << slot << " seed " << Seed;
        }
    }
}

TEST(DigitTallyTest, TheChartSetsRowColumnAndDataForEachDigitAndPosition) {
    ReportWorld world("ONTPick3");
    world.DigitDraws("WinONTPick3", {"012", "909"});
    TallyPick3Digits(world.session, {world.DbName(), "WinONTPick3"}, world.chart, ChartMode);
    ASSERT_EQ(world.chart.cells.size(), 30U);
    EXPECT_EQ((world.chart.cells[{1, 1}]), "1");
    EXPECT_EQ((world.chart.cells[{1, 2}]), "1");
    EXPECT_EQ((world.chart.cells[{10, 3}]), "1");
    EXPECT_EQ((world.chart.cells[{10, 2}]), "0");
    const std::vector<std::string> first(world.chart.calls.begin(), world.chart.calls.begin() + 3);
    EXPECT_EQ(first, (std::vector<std::string>{"Row 1", "Column 1", "Data 1"}));
    world.ExpectAllClosed();
}

TEST(DigitTallyTest, CountsByPositionGoOnWhereTheyStoodUntilTheButtonZeroesThem) {
    ReportWorld world("ONTPick3");
    world.DigitDraws("WinONTPick3", {"012"});
    for (int i = 0; i < 2; ++i)
        TallyPick3Digits(world.session, {world.DbName(), "WinONTPick3"}, world.chart, ChartMode);
    EXPECT_EQ(world.global.PositionCounts(0)(0), 2);
}

TEST(DigitTallyTest, GroupCountsStartAnewAsTextsAndAPairHasTwoCharacters) {
    ReportWorld world("ONTPick3");
    world.DigitDraws("WinONTPick3", {"012", "012", "912"});
    Global& g = world.global;
    g.ReportType = ReportTypes::BackPairs;
    for (int i = 0; i < 2; ++i)
        TallyPick3Digits(world.session, {world.DbName(), "WinONTPick3"}, world.chart, ReportMode);
    EXPECT_EQ(g.ComboCounts(12), " 3");
    EXPECT_EQ(g.ComboCounts(0), "0");
    EXPECT_EQ(g.ComboCounts(999), "0");
    g.ReportType = ReportTypes::TripleMatch;
    TallyPick3Digits(world.session, {world.DbName(), "WinONTPick3"}, world.chart, ReportMode);
    EXPECT_EQ(g.ComboCounts(12), "2");
    EXPECT_EQ(g.ComboCounts(912), "1");
    EXPECT_EQ(g.PositionCounts(0)(0), 0);
}

TEST(DigitTallyTest, WithoutATypeTheReportCountsNothing) {
    ReportWorld world("ONTPick3");
    world.DigitDraws("WinONTPick3", {"012"});
    TallyPick3Digits(world.session, {world.DbName(), "WinONTPick3"}, world.chart, ReportMode);
    EXPECT_EQ(world.global.ComboCounts(12), "0");
    EXPECT_EQ(world.global.PositionCounts(0)(0), 0);
    EXPECT_TRUE(world.chart.calls.empty());
}

TEST(DigitTallyTest, WithoutDrawsTheGroupsAreZeroAndTheBoxComes) {
    ReportWorld world("FLAPlay4");
    world.Make(CreateWinPick4Table, "WinFLAPlay4");
    world.ExpectBox(NoDrawsText);
    TallyPick4Digits(world.session, {world.DbName(), "WinFLAPlay4"}, world.chart, ChartMode);
    EXPECT_EQ(world.global.ComboCounts(999), "0");
    EXPECT_TRUE(world.chart.calls.empty());
}

TEST(DigitTallyTest, ADigitThatIsNoneIsPassedOverByPositionAndAnErrorInAGroup) {
    ReportWorld world("ONTPick3");
    world.DigitDraws("WinONTPick3", {});
    world.AddDraws("WinONTPick3", "'key', 46000", {{12, 0, 0}});
    TallyPick3Digits(world.session, {world.DbName(), "WinONTPick3"}, world.chart, ChartMode);
    EXPECT_EQ((world.chart.cells[{1, 2}]), "1");
    world.global.ReportType = ReportTypes::TripleMatch;
    world.ExpectUnexpected(9);
    TallyPick3Digits(world.session, {world.DbName(), "WinONTPick3"}, world.chart, ReportMode);
    world.ExpectAllClosed();
}

TEST(TallyByGameShapeTest, TheShapeChoosesTheTally) {
    ReportWorld world("Lotto649");
    world.SixDraws("WinLotto649", TwoSixDraws);
    world.SevenDraws(TwoSevenDraws);
    world.KenoDraws("WinONTKeno", {FirstNumbers(20)});
    const auto charted = [&](int shape, const std::string& table) {
        world.chart = RecordingChart();
        TallyByGameShape(world.session, shape, {world.DbName(), table}, world.chart, ChartMode);
        return world.chart.cells.size();
    };
    EXPECT_EQ(charted(6, "WinLotto649"), 49U);
    EXPECT_EQ(charted(7, "WinSuper7"), 49U);
    EXPECT_EQ(charted(5, "WinLotto649"), 0U);
    world.global.LottoFlag = "ONTKeno";
    EXPECT_EQ(charted(20, "WinONTKeno"), 70U);
    for (const int shape : {0, 3, 4, 1}) {
        world.ExpectBox("An Unexpected Error Occured. The LottoFlag has not been set. Please try again");
        EXPECT_EQ(charted(shape, "WinLotto649"), 0U);
    }
}

TEST(CountDrawRowsTest, RowsAreCountedUpTo32767) {
    ReportWorld world("Lottario");
    world.SixDraws("WinLottario", TwoLottarioDraws);
    EXPECT_EQ(CountDrawRows(world.session, {world.DbName(), "WinLottario"}), 2);
    world.Plain().Do(
        "WITH RECURSIVE n(i) AS (SELECT 3 UNION ALL SELECT i + 1 FROM n WHERE i < 32767) "
        "INSERT INTO WinLottario (ID1, Date) SELECT i, 46000 FROM n");
    EXPECT_EQ(CountDrawRows(world.session, {world.DbName(), "WinLottario"}), 32'767);
    world.Plain().Do("INSERT INTO WinLottario (ID1, Date) VALUES (32768, 46000)");
    world.ExpectUnexpected(6);
    EXPECT_EQ(CountDrawRows(world.session, {world.DbName(), "WinLottario"}), 0);
    world.ExpectAllClosed();
}

TEST(CountDrawRowsTest, AMissingTableCountsNothingAndShowsItsBox) {
    ReportWorld world("Lottario");
    world.ExpectStoreError(3011, "Unable to open WinLottario table. Please advise error number to support.");
    EXPECT_EQ(CountDrawRows(world.session, {world.DbName(), "WinLottario"}), 0);
}

}  // namespace
}  // namespace sorvane

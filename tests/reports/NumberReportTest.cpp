// The number report and its buttons, behind the controls.
#include <gtest/gtest.h>

#include "reports/FrequencyReport.h"
#include "reports/Goldens.h"
#include "reports/ReportWorld.h"

namespace sorvane {

using namespace ReportFacts;
namespace {

using testing::Crlf;
using testing::Draw;
using testing::NoDrawsText;
using testing::NoTableText;
using testing::ReportWorld;

struct NumberWorld : ReportWorld {
    NumberWorld(Family which, std::string_view LottoFlag) : ReportWorld(LottoFlag), family(which) {}
    ReportArgs Args() { return {family, db, TableName, mode}; }
    void Report(std::string_view caption) { ReportFrequency(session, Args(), chart, caption, text); }
    void Chart() { ChartFrequency(session, Args(), chart); }

    Family family;
    std::string db = DbName();
    std::string TableName = "WinEncore";  // whatever the window last named
    Integer mode = 7;
    std::string text = "an earlier report";
};

Draw Twenty(int first) {
    Draw draw;
    for (int i = 0; i < 20; ++i) draw.push_back(first + i);
    return draw;
}

TEST(NumberReportTest, SixFortyNineListsAllNumbers) {
    NumberWorld world(Family::frm649, "Lotto649");
    world.SixDraws("WinLotto649", {{1, 2, 3, 4, 5, 6, 49}, {6, 12, 23, 34, 45, 49, 1}});
    world.Report("Lotto 6/49");
    EXPECT_EQ(world.text, Crlf(golden::Lotto649Numbers));
    EXPECT_EQ(world.TableName, "WinLotto649");
    EXPECT_EQ(world.mode, ReportMode);
}

TEST(NumberReportTest, Super7LeavesFortyEightAndFortyNineOffTheReportButNotOffTheChart) {
    NumberWorld world(Family::frm749, "Super 7");
    world.SevenDraws({{1, 8, 15, 22, 29, 47, 48, 49}, {1, 2, 3, 4, 5, 6, 7, 8}});
    world.Report("Super 7");
    EXPECT_EQ(world.text, Crlf(golden::Super7Numbers));
    EXPECT_EQ(world.global.Numbers(48), 1);
    world.Chart();
    EXPECT_EQ(world.mode, ChartMode);
    EXPECT_EQ((world.chart.cells[{49, 1}]), "1");
}

TEST(NumberReportTest, LottarioListsFortyFive) {
    NumberWorld world(Family::frm645, "Lottario");
    world.SixDraws("WinLottario", {{1, 2, 3, 4, 5, 6, 45}, {6, 12, 23, 34, 44, 45, 1}});
    world.Report("Lottario");
    EXPECT_EQ(world.text, Crlf(golden::LottarioNumbers));
}

TEST(NumberReportTest, KenoListsSeventy) {
    NumberWorld world(Family::frmKeno70, "ONTKeno");
    world.KenoDraws("WinONTKeno", {Twenty(1), Twenty(51)});
    world.Report("Ontario - Daily Keno");
    EXPECT_EQ(world.text, Crlf(golden::ONTKenoNumbers));
}

TEST(NumberReportTest, KenoOfEightyNumbersHasNoChartAndNoReport) {
    NumberWorld world(Family::frmKeno80, "BCClubKeno");
    world.KenoDraws("WinBCClubKeno", {Twenty(1)});
    world.Report("BC Club Keno");
    world.Chart();
    EXPECT_EQ(world.text, "an earlier report");
    EXPECT_TRUE(world.chart.calls.empty());
    EXPECT_EQ(world.TableName, "WinEncore");
}

TEST(NumberReportTest, EveryKeyNamesItsWinTable) {
    struct Case {
        Family family;
        const char* key;
        const char* table;
    };
    for (const Case& game :
         {Case{Family::frm649, "Lotto649", "WinLotto649"}, Case{Family::frm649, "BC49", "WinBC49"},
          Case{Family::frm649, "Western649", "WinWestern649"},
          Case{Family::frm649, "Ontario49", "WinOntario49"}, Case{Family::frm649, "Quebec49", "WinQuebec49"},
          Case{Family::frm749, "Super 7", "WinSuper7"}, Case{Family::frm645, "Lottario", "WinLottario"},
          Case{Family::frmKeno70, "ONTKeno", "WinONTKeno"}, Case{Family::frmKeno70, "QCBanco", "WinQCBanco"},
          Case{Family::frmKeno70, "ATLChoice", "WinATLChoice"}}) {
        NumberWorld world(game.family, game.key);
        world.ExpectBox(NoTableText);
        world.Chart();
        EXPECT_EQ(world.TableName, game.table);
        EXPECT_EQ(world.global.TableOpened, Off);
    }
}

TEST(NumberReportTest, AKeyOfAnotherWindowLeavesTheTableNameAsItWas) {
    NumberWorld world(Family::frm649, "Super 7");
    world.SixDraws("WinEncore", {{1, 2, 3, 4, 5, 6, 7}});
    world.Chart();
    EXPECT_EQ(world.TableName, "WinEncore");
    EXPECT_EQ((world.chart.cells[{7, 1}]), "1");
}

TEST(NumberReportTest, ATableWithoutDrawsShowsTheTallysBoxAndLeavesTheChart) {
    NumberWorld world(Family::frm645, "Lottario");
    world.SixDraws("WinLottario", {});
    world.ExpectBox(NoDrawsText);
    world.Chart();
    EXPECT_TRUE(world.chart.calls.empty());
}

TEST(NumberReportTest, ATableWithoutDrawsIsReportedWithZeros) {
    NumberWorld world(Family::frm645, "Lottario");
    world.SixDraws("WinLottario", {});
    world.global.Numbers.Redim(3);
    world.global.Numbers(0) = 17;
    world.ExpectBox(NoDrawsText);
    world.Report("Lottario");
    EXPECT_EQ(world.text, Crlf(golden::NoNumbers));
}

TEST(NumberReportTest, WithoutATableTheButtonsBoxComesAndTheReportIsZeros) {
    for (const auto& [family, key, last] :
         {std::tuple{Family::frm649, "Quebec49", 49}, std::tuple{Family::frm645, "Lottario", 44},
          std::tuple{Family::frmKeno70, "ONTKeno", 70}}) {
        NumberWorld world(family, key);
        world.global.Numbers.Redim(2);
        world.global.Numbers(0) = 17;
        world.ExpectBox(NoTableText);
        world.Report("Lottario");
        const std::string zeros = Crlf(golden::NoNumbers);
        const bool shorter = family != Family::frm645;
        EXPECT_EQ(shorter ? world.text.substr(0, zeros.size()) : world.text, zeros);
        EXPECT_EQ(world.global.Numbers.UBound(), last);
    }
}

TEST(NumberReportTest, WithoutATableTheReportOfSuper7EndsBehindItsHeadAndKeepsIt) {
    NumberWorld world(Family::frm749, "Super 7");
    world.ExpectBox(NoTableText);
    EXPECT_EQ(ErrorOf([&] { world.Report("Super 7"); }), 9);
    const std::string whole = Crlf(golden::Super7Numbers);
    EXPECT_EQ(world.text, whole.substr(0, whole.find("                   1 ")));
}

TEST(NumberReportTest, WithoutATableTheReportOfSuper7ShowsWhatWasLeftAndEndsWhereThatEnds) {
    NumberWorld world(Family::frm749, "Super 7");
    world.global.Numbers.Redim(1);
    world.global.Numbers(0) = 31;
    world.global.Numbers(1) = 4;
    world.ExpectBox(NoTableText);
    EXPECT_EQ(ErrorOf([&] { world.Report("Super 7"); }), 9);
    EXPECT_EQ(world.text.substr(world.text.find("31")),
              "31\r\n           -------------------------------------------------\r\n"
              "                   2                            4\r\n"
              "           -------------------------------------------------\r\n");
}

TEST(NumberReportTest, AReportOverwritesTicketAndFavourites) {
    NumberWorld world(Family::frm649, "Lotto649");
    world.SixDraws("WinLotto649", {{1, 2, 3, 4, 5, 6, 49}});
    for (Array<Integer>* array : {&world.global.Numbers, &world.global.Favourites}) {
        array->Redim(6);
        (*array)(0) = 33;
    }
    world.Report("Lotto 6/49");
    EXPECT_EQ(world.global.Numbers(0), 1);
    EXPECT_EQ(world.global.Favourites(0), 1);
    EXPECT_EQ(world.global.Favourites.UBound(), 49);
}

TEST(NumberReportTest, WhileARefusedWheelLeftGeneratingOnNoChartIsDrawn) {
    NumberWorld world(Family::frm645, "Lottario");
    world.SixDraws("WinLottario", {{1, 2, 3, 4, 5, 6, 45}});
    world.global.Generating = true;
    world.Chart();
    EXPECT_TRUE(world.chart.calls.empty());
}

TEST(ReportFactsTest, TheOddCellsStandWhereTheyAreMeant) {
    for (const Family family : AllFamilies) {
        EXPECT_EQ(WonLegend[family], family == Family::frm749 ? "Won   " : "Won  ");
        EXPECT_EQ(MoneyChartTitle[family], family == Family::frm645 ? "Profit Loss" : "Profit/Loss");
        EXPECT_EQ(MoneyChartAxis[family], family == Family::frm645 ? "" : "$ Spent");
        EXPECT_EQ(ReportButton[family], family == Family::frm645 ? "cmdNFReport" : "cmdReport");
        EXPECT_EQ(PrintsReport[family], family == Family::frm645);
    }
    EXPECT_EQ(ChartSeries[Family::frmPick3].size(), 3U);
    EXPECT_EQ(ChartSeries[Family::frmPick4].back(), "Ball 4");
    EXPECT_EQ(ChartSeries[Family::frm649].front(), "Frequency");
}

}  // namespace
}  // namespace sorvane

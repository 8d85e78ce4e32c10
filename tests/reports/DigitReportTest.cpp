// The four reports of the digit games and their buttons, behind the controls.
#include <gtest/gtest.h>

#include "reports/DigitReports.h"
#include "reports/Goldens.h"
#include "reports/ReportTypes.h"
#include "reports/ReportWorld.h"

namespace sorvane {
namespace {

using testing::Crlf;
using testing::NoDrawsText;
using testing::NoTableText;
using testing::ReportWorld;

struct DigitWorld : ReportWorld {
    DigitWorld(Family which, std::string_view LottoFlag) : ReportWorld(LottoFlag), family(which) {}
    ReportArgs Args() { return {family, db, TableName, mode}; }
    // The report button, with this choice in frmReportType.
    void Report(std::string_view choice, std::string_view caption = "Pick 3") {
        ReportDigits(
            session, Args(), chart, [&] { ++asked, global.ReportType = choice; }, caption, text);
    }
    std::string ReportOf(std::string_view choice, std::string_view caption = "Pick 3") {
        Report(choice, caption);
        return text;
    }

    Family family;
    std::string db = DbName();
    std::string TableName = "PlayedEncore";
    Integer mode = 7;
    int asked = 0;
    std::string text = "an earlier report";
};

void AddPick3(DigitWorld& world) {
    std::vector<std::string> draws(11, "012");
    draws.insert(draws.end(), {"999", "470", "478"});
    world.DigitDraws("WinONTPick3", draws);
}

void AddPick4(DigitWorld& world) {
    std::vector<std::string> draws(11, "0123");
    draws.insert(draws.end(), {"9999", "4708"});
    world.DigitDraws("WinFLAPlay4", draws);
}

TEST(DigitReportTest, TheFourReportsOfThreeDigits) {
    DigitWorld world(Family::frmPick3, "ONTPick3");
    AddPick3(world);
    EXPECT_EQ(world.ReportOf(ReportTypes::NumbersByPosition), Crlf(golden::Pick3Positions));
    EXPECT_EQ(world.ReportOf(ReportTypes::TripleMatch), Crlf(golden::Pick3Triples));
    EXPECT_EQ(world.ReportOf(ReportTypes::FrontPairs), Crlf(golden::Pick3FrontPairs));
    EXPECT_EQ(world.ReportOf(ReportTypes::BackPairs), Crlf(golden::Pick3BackPairs));
    EXPECT_EQ(world.asked, 4);
    EXPECT_EQ(world.TableName, "WinONTPick3");
    EXPECT_EQ(world.mode, ReportMode);
}

TEST(DigitReportTest, TheThreeReportsOfFourDigits) {
    DigitWorld world(Family::frmPick4, "FLAPlay4");
    AddPick4(world);
    EXPECT_EQ(world.ReportOf(ReportTypes::NumbersByPosition, "Play 4"), Crlf(golden::Pick4Positions));
    EXPECT_EQ(world.ReportOf(ReportTypes::FrontPairs, "Play 4"), Crlf(golden::Pick4FrontPairs));
    EXPECT_EQ(world.ReportOf(ReportTypes::BackPairs, "Play 4"), Crlf(golden::Pick4BackPairs));
}

TEST(DigitReportTest, FourDigitsHaveNoTriplesAndTheTextStays) {
    DigitWorld world(Family::frmPick4, "FLAPlay4");
    AddPick4(world);
    EXPECT_EQ(world.ReportOf(ReportTypes::TripleMatch), "an earlier report");
}

TEST(DigitReportTest, ACancelledChoiceRunsTheTallyAndChangesNoText) {
    DigitWorld world(Family::frmPick3, "ONTPick3");
    AddPick3(world);
    world.global.ComboCounts.Redim(0);
    EXPECT_EQ(world.ReportOf(""), "an earlier report");
    EXPECT_EQ(world.asked, 1);
    EXPECT_EQ(world.global.ComboCounts.UBound(), 999);
}

TEST(DigitReportTest, WithoutDrawsTheBoxComesBehindTheChoiceAndTheReportIsZeros) {
    DigitWorld world(Family::frmPick3, "ONTPick3");
    world.DigitDraws("WinONTPick3", {});
    world.ExpectBox(NoDrawsText);
    world.Report(ReportTypes::NumbersByPosition);
    EXPECT_NE(world.text.find("           9           0             0             0\r\n"), std::string::npos);
}

TEST(DigitReportTest, WhatIsNoDigitIsNotCountedByPosition) {
    DigitWorld world(Family::frmPick3, "ONTPick3");
    world.DigitDraws("WinONTPick3", {"987"});
    world.Plain().Do("UPDATE WinONTPick3 SET Ball_1 = 10, Ball_2 = -1");
    world.Report(ReportTypes::NumbersByPosition);
    int counted = 0;
    for (int digit = 0; digit <= 10; ++digit)
        for (int position = 0; position < 3; ++position)
            counted += int{world.global.PositionCounts(digit)(position)};
    EXPECT_EQ(world.global.PositionCounts(7)(2), 1);
    EXPECT_EQ(counted, 1);
}

TEST(DigitReportTest, WithoutATableNothingIsAskedAndTheLastTypeIsReported) {
    DigitWorld world(Family::frmPick4, "FLAPlay4");
    world.global.ReportType = ReportTypes::NumbersByPosition;
    world.global.PositionCounts(3)(1) = 12;
    world.ExpectBox(NoTableText);
    world.Report(ReportTypes::BackPairs);
    EXPECT_EQ(world.asked, 0);
    EXPECT_EQ(world.global.ReportType, ReportTypes::NumbersByPosition);
    EXPECT_EQ(world.global.Numbers.UBound(), 3);
    EXPECT_NE(world.text.find("           3           0             0             0             0\r\n"),
              std::string::npos);
}

TEST(DigitReportTest, WithoutATableAndBeforeAnyTypeNothingIsWritten) {
    DigitWorld world(Family::frmPick3, "Quote3");
    world.ExpectBox(NoTableText);
    EXPECT_EQ(world.ReportOf(ReportTypes::BackPairs), "an earlier report");
    EXPECT_EQ(world.TableName, "WinQuote3");
}

TEST(DigitReportTest, BothButtonsZeroTheCountsByPosition) {
    DigitWorld world(Family::frmPick3, "ONTPick3");
    AddPick3(world);
    for (int i = 0; i < 2; ++i) {
        ChartDigits(world.session, world.Args(), world.chart);
        EXPECT_EQ((world.chart.cells[{1, 1}]), "11");
        EXPECT_EQ(world.mode, ChartMode);
        EXPECT_EQ(world.ReportOf(ReportTypes::NumbersByPosition), Crlf(golden::Pick3Positions));
    }
}

TEST(DigitReportTest, TheChartButtonWithoutATableShowsItsBoxAlone) {
    DigitWorld world(Family::frmPick3, "BCDaily3");
    world.ExpectBox(NoTableText);
    ChartDigits(world.session, world.Args(), world.chart);
    EXPECT_TRUE(world.chart.calls.empty());
    EXPECT_EQ(world.TableName, "WinBCDaily3");
}

TEST(DigitReportTest, EveryKeyNamesItsWinTableTheWesternOneIncluded) {
    for (const std::string key : {"ONTPick3", "BCDaily3", "WESTPick3", "Quote3", "FLACash3"}) {
        DigitWorld world(Family::frmPick3, key);
        world.DigitDraws("Win" + key, {"012"});
        ChartDigits(world.session, world.Args(), world.chart);
        EXPECT_EQ((world.chart.cells[{1, 1}]), "1") << key;
    }
}

TEST(DigitReportTest, AGroupCountOfMoreThanNinetyNineIsNotAligned) {
    DigitWorld world(Family::frmPick3, "ONTPick3");
    world.DigitDraws("WinONTPick3", std::vector<std::string>(100, "012"));
    world.Report(ReportTypes::FrontPairs);
    EXPECT_NE(world.text.find("  01        100             11         0             21         0\r\n"),
              std::string::npos);
}

TEST(DigitReportTest, AHundredByPositionStandsWithoutABlankAndAThousandToo) {
    DigitWorld world(Family::frmPick3, "ONTPick3");
    world.global.ReportType = ReportTypes::NumbersByPosition;
    world.global.PositionCounts(0)(0) = 9;
    world.global.PositionCounts(0)(1) = 99;
    world.global.PositionCounts(0)(2) = 100;
    WriteDigitReport(world.session, Family::frmPick3, "Pick 3", world.text);
    EXPECT_NE(world.text.find("           0           9             99            100\r\n"),
              std::string::npos);
}

TEST(DigitReportTest, AFailureKeepsWhatWasWritten) {
    DigitWorld world(Family::frmPick3, "ONTPick3");
    world.global.ReportType = ReportTypes::BackPairs;
    EXPECT_EQ(ErrorOf([&] { WriteDigitReport(world.session, Family::frmPick3, "Pick 3", world.text); }), 9);
    const std::string whole = Crlf(golden::Pick3BackPairs);
    EXPECT_EQ(world.text, whole.substr(0, whole.find("  00 ")));
}

}  // namespace
}  // namespace sorvane

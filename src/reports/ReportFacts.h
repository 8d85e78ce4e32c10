// Facts of the families that the reports ask, one line a fact, seven values beside each other; and what
// differs between the money side of a game window and that of the all-lotteries window.
#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>

#include "reports/DisplayData.h"
#include "shell/Family.h"
#include "shell/StoreTable.h"

namespace sorvane::ReportFacts {

using TallyRoutine = void (*)(Session& session, const StoreTable& table, ChartFace& chart,
                              const Integer& mode);

inline constexpr std::array<std::string_view, 1> FrequencySeries{"Frequency"};
inline constexpr std::array<std::string_view, 4> PositionSeries{"Ball 1", "Ball 2", "Ball 3", "Ball 4"};
inline constexpr std::span<const std::string_view> Pick3Series = std::span(PositionSeries).first<3>();

inline constexpr int NotSized = -1;
inline constexpr int NoRow = -1;

// clang-format off
//                                                    649    749    645    K70    K80    P3     P4
inline constexpr PerFamily<TallyRoutine> Tally     {{ TallySixNumberFrequency, TallySevenNumberFrequency, TallySixNumberFrequency, TallyKenoFrequency, nullptr, TallyPick3Digits, TallyPick4Digits }};  // keno 80 has none
inline constexpr PerFamily<int>  LastRow           {{ 48,    46,    44,    69,    NoRow, NoRow, NoRow }};  // of the number report; Super 7 leaves 48 and 49 off
inline constexpr PerFamily<int>  NumbersUpper      {{ 49,    NotSized, 44, 70,    NotSized, 3,  3     }};  // Numbers as cmdReport sizes it; the digit games only when their table is missing
inline constexpr PerFamily<std::string_view> ChartTitle{{ "Number Frequency", "Number Frequency", "Number Frequency", "Number Frequency", "Number Frequency", "Number Frequency by Position", "Number Frequency by Position" }};
inline constexpr PerFamily<std::string_view> ChartAxis {{ "Numbers Drawn", "Numbers Drawn", "Numbers Drawn", "Numbers Drawn", "Numbers Drawn", "Numbers", "Numbers" }};
inline constexpr PerFamily<std::span<const std::string_view>> ChartSeries{{ FrequencySeries, FrequencySeries, FrequencySeries, FrequencySeries, FrequencySeries, Pick3Series, PositionSeries }};
inline constexpr PerFamily<std::string_view> ReportButton       {{ "cmdReport", "cmdReport", "cmdNFReport", "cmdReport", "cmdReport", "cmdReport", "cmdReport" }};
inline constexpr PerFamily<bool> PrintsReport      {{ false, false, true,  false, false, false, false }};  // in the others the button does nothing: meant
inline constexpr PerFamily<std::string_view> WonLegend {{ "Won  ", "Won   ", "Won  ", "Won  ", "Won  ", "Won  ", "Won  " }};
inline constexpr PerFamily<std::string_view> MoneyChartTitle{{ "Profit/Loss", "Profit/Loss", "Profit Loss", "Profit/Loss", "Profit/Loss", "Profit/Loss", "Profit/Loss" }};
inline constexpr PerFamily<std::string_view> MoneyChartAxis {{ "$ Spent", "$ Spent", "", "$ Spent", "$ Spent", "$ Spent", "$ Spent" }};
// clang-format on

inline constexpr std::string_view FrequencyAxis = "Times Drawn";
inline constexpr std::string_view SpentLegend = "Spent";
inline constexpr std::string_view MoneyAxis = "Dollars";
// The all-lotteries window.
inline constexpr std::string_view AllMoneyChartTitle = "Profit Loss";
inline constexpr std::string_view AllWonLegend = "Won  ";
inline constexpr std::string_view AllCaption = "Reports - All Played Lotteries";

// The money side of a window.
struct MoneyWindow {
    bool resetsTotals;        // at the start of a report; else a run without rows leaves the earlier total
    bool eitherLedgerCounts;  // one of the two tables is enough to read both; else `Spent` decides
    bool headHasCaption;
    std::string_view spentHead;
    std::string_view wonHead;
    std::string_view rule;
    Array<std::string> Global::*spentLines;
    Array<std::string> Global::*wonLines;
};
inline constexpr MoneyWindow GameMoney{true,
                                       false,
                                       true,
                                       "       Date                     Spent",
                                       "       Date                      Won",
                                       " ----------------------------------------------",
                                       &Global::SpentLines,
                                       &Global::WonLines};
inline constexpr MoneyWindow AllGamesMoney{false,
                                           true,
                                           false,
                                           "       Date                     Spent        Lottery",
                                           "       Date                    Won           Lottery",
                                           " ----------------------------------------------------",
                                           &Global::AllSpentLines,
                                           &Global::AllWonLines};

}  // namespace sorvane::ReportFacts

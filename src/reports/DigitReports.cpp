#include "reports/DigitReports.h"

#include <algorithm>
#include <array>

#include "platform/Text.h"
#include "reports/ReportTypes.h"

namespace sorvane {

using namespace ReportFacts;

void ChartDigits(Session& session, const ReportArgs& args, ChartFace& chart) {
    session.global.PositionCounts = {};
    args.mode = ChartMode;
    if (FindDraws(session, args)) Tally[args.family](session, args.Table(), chart, args.mode);
}

void ReportDigits(Session& session, const ReportArgs& args, ChartFace& chart,
                  const std::function<void()>& askType, std::string_view caption, std::string& text) {
    session.global.PositionCounts = {};
    args.mode = ReportMode;
    if (FindDraws(session, args)) {
        askType();
        Tally[args.family](session, args.Table(), chart, args.mode);
    } else {
        session.global.Numbers.Redim(NumbersUpper[args.family]);
    }
    WriteDigitReport(session, args.family, caption, text);
}

namespace {

struct PositionReport {
    Family family;
    int positions;
    std::string_view head;
    std::string_view headRule;
    std::string_view rowRule;
};
// The last head of the four lacks a blank: meant.
constexpr auto PositionReports = std::to_array<PositionReport>({
    {Family::frmPick3, 3, "         Ball #     Position 1     Position 2     Position 3",
     "         ===================================================",
     "         ---------------------------------------------------"},
    {Family::frmPick4, 4, "         Ball #   Position 1   Position 2   Position 3   Position4",
     "         =========================================================",
     "         ---------------------------------------------------------"},
});

// One blank at most: three digits fill the column, one digit stands one place to the left.
std::string PositionCount(int count) {
    std::string text = Str(count);
    return text.size() < 3 ? " " + text : text;
}

void WritePositions(const Global& g, const PositionReport& report, std::string& text) {
    const std::string& NL = g.NL;
    text += "                  Number Frequency Report By Position" + NL;
    text += "                  ===================================" + NL + NL;
    text.append(report.head).append(NL);
    text.append(report.headRule).append(NL).append(NL);
    for (int digit = 0; digit <= 9; ++digit) {
        std::string line = std::string(11, ' ') + Str(digit);
        for (int position = 0; position < report.positions; ++position)
            line.append(position == 0 ? 10 : 12, ' ')
                .append(PositionCount(g.PositionCounts(digit)(position)));
        text.append(line).append(NL).append(report.rowRule).append(NL);
    }
}

// A report of digit groups in three columns: blocks of first digits, a line for each of the other digits.
struct GroupReport {
    Family family;
    std::string_view type;
    std::string_view title;
    std::string_view underline;
    std::string_view head;
    std::string_view headRule;
    std::string_view blockRule;  // between the blocks
    int others;                  // how many groups begin with one digit: ten or a hundred
    int gap;                     // blanks before a column but the leftmost
    int countGap;
};
constexpr std::string_view TripleTitle = "                           Triple Match Report";
constexpr std::string_view TripleUnderline = "                           ===================";
constexpr std::string_view FrontTitle = "                         Front Pairs Report";
constexpr std::string_view FrontUnderline = "                         ==================";
constexpr std::string_view BackTitle = "                          Back Pairs Report";
constexpr std::string_view BackUnderline = "                          =================";
constexpr std::string_view TripleHead = "   #     X's Drawn        #     X's Drawn        #     X's Drawn";
constexpr std::string_view PairHead = " Pair   X's Drawn         Pair   X's Drawn        Pair   X's Drawn";
// One blank wider than the other: meant.
constexpr std::string_view WidePairHead =
    " Pair   X's Drawn         Pair   X's Drawn         Pair   X's Drawn";
constexpr std::string_view Rule69 = " =====================================================================";
constexpr std::string_view Rule70 = " ======================================================================";
using namespace ReportTypes;
constexpr auto GroupReports = std::to_array<GroupReport>({
    {Family::frmPick3, TripleMatch, TripleTitle, TripleUnderline, TripleHead, Rule70, Rule69, 100, 12, 7},
    {Family::frmPick3, FrontPairs, FrontTitle, FrontUnderline, PairHead, Rule69, {}, 10, 13, 8},
    {Family::frmPick3, BackPairs, BackTitle, BackUnderline, PairHead, Rule69, {}, 10, 13, 8},
    {Family::frmPick4, FrontPairs, FrontTitle, FrontUnderline, WidePairHead, Rule69, {}, 10, 13, 8},
    {Family::frmPick4, BackPairs, BackTitle, BackUnderline, PairHead, Rule69, {}, 10, 13, 8},
});

constexpr int ColumnsOfGroups = 3;

std::string GroupLine(const Global& g, const GroupReport& report, int firstDigit, int other) {
    std::string line;
    for (int first = firstDigit; first < std::min(firstDigit + ColumnsOfGroups, 10); ++first) {
        const std::string& count = g.ComboCounts(first * report.others + other);
        line.append(first == firstDigit ? 2U : static_cast<std::size_t>(report.gap), ' ');
        line.append(Str(first))
            .append(Str(report.others + other), 1)
            .append(static_cast<std::size_t>(report.countGap), ' ');
        line.append(count == "0" ? " 0" : count);
    }
    return line;
}

void WriteGroups(const Global& g, const GroupReport& report, std::string& text) {
    const std::string& NL = g.NL;
    text.append(report.title).append(NL);
    text.append(report.underline).append(NL).append(NL);
    text.append(report.head).append(NL);
    text.append(report.headRule).append(NL).append(NL);
    for (int firstDigit = 0; firstDigit <= 9; firstDigit += ColumnsOfGroups) {
        if (firstDigit > 0 && !report.blockRule.empty()) text.append(report.blockRule).append(NL);
        for (int other = 0; other < report.others; ++other)
            text.append(GroupLine(g, report, firstDigit, other)).append(NL);
    }
}

}  // namespace

void WriteDigitReport(Session& session, Family family, std::string_view caption, std::string& text) {
    const Global& g = session.global;
    if (g.ReportType == NumbersByPosition) {
        for (const PositionReport& report : PositionReports) {
            if (report.family != family) continue;
            text = ReportHead(session, caption);
            WritePositions(g, report, text);
        }
        return;
    }
    for (const GroupReport& report : GroupReports) {
        if (report.family != family || report.type != g.ReportType) continue;
        text = ReportHead(session, caption);
        WriteGroups(g, report, text);
    }
}

}  // namespace sorvane

#include "reports/MoneyReport.h"

#include "platform/Text.h"
#include "reports/PadAmount.h"
#include "store/CheckTB_DBExists.h"

namespace sorvane {

using namespace ReportFacts;

namespace {

constexpr std::string_view TotalPicture = "###,###,##0.00";

bool Probe(Run& run, const std::string& DbName, std::string& TableName, const char* name) {
    TableName = name;
    run.global.TableOpened = Off;
    ProbeTable(run, DbName, TableName);
    return run.global.TableOpened != Off;
}

void ReadLedgers(Run& run, const MoneyWindow& window, const std::string& DbName, std::string& TableName,
                 const Integer& mode, ChartFace& chart) {
    const bool won = Probe(run, DbName, TableName, "Winnings");
    const bool spent = Probe(run, DbName, TableName, "Spent");
    if (window.eitherLedgerCounts && won) run.global.TableOpened = On;
    if (!spent && run.global.TableOpened == Off) return;
    TableName = "Winnings";
    SumWon(run, DbName, TableName, chart, mode);
    TableName = "Spent";
    SumSpent(run, DbName, TableName, chart, mode);
}

// One half of the report, from its heading to the blank line behind its rows.
struct Half {
    std::string_view heading;
    std::string_view underline;
    std::string_view columnHead;
    const Array<std::string>& lines;
    int rows;
};

void WriteHalf(const Half& half, const std::string& rule, const std::string& NL, std::string& text) {
    text.append(half.heading).append(NL);
    text.append(half.underline).append(NL).append(NL);
    text.append(half.columnHead).append(NL);
    text.append(rule).append(NL).append(NL);
    for (int i = 0; i < half.rows; ++i) {
        const std::string& line = half.lines(i);
        text.append("   ").append(line);
    }
    text.append(NL);
}

std::string Total(Currency amount) { return PadAmount(Format(amount, TotalPicture)); }

// A negative difference is one blank farther from its sign, and takes at least one blank of padding.
std::string Difference(Currency difference) {
    if (difference < Currency())
        return " " + PadAmountAtLeastOnce(Format(difference, "##,###,##0.00;(##,###,##0.00)"));
    return PadAmount(Format(difference, "##,###,##0.00"));
}

}  // namespace

void ChartMoney(Run& run, const MoneyWindow& window, const std::string& DbName, std::string& TableName,
                Integer& mode, ChartFace& chart) {
    mode = ChartMode;
    ReadLedgers(run, window, DbName, TableName, mode, chart);
}

void ReportMoney(Run& run, const MoneyWindow& window, const std::string& DbName, std::string& TableName,
                 Integer& mode, ChartFace& chart, std::string_view caption, std::string& text) {
    if (window.resetsTotals) run.global.TotalWon = run.global.TotalSpent = Currency();
    mode = ReportMode;
    ReadLedgers(run, window, DbName, TableName, mode, chart);
    WriteMoneyReport(run, window, caption, text);
}

void WriteMoneyReport(Run& run, const MoneyWindow& window, std::string_view caption, std::string& text) {
    const Global& g = run.global;
    const std::string& NL = g.NL;
    const std::string rule(window.rule);
    text = ReportHead(run, caption, window.headHasCaption);
    text += "                            Profit/Loss Report" + NL;
    text += "                            ==================" + NL + NL;
    WriteHalf({"              Dollars Spent", "              =============", window.spentHead,
               g.*window.spentLines, g.SpentRows},
              rule, NL, text);
    text += "                                   Total Spent :   $" + Total(g.TotalSpent) + NL + NL + NL;
    WriteHalf({"               Dollars Won", "               ===========", window.wonHead, g.*window.wonLines,
               g.WonRows},
              rule, NL, text);
    text += "                                   Total Won   :   $" + Total(g.TotalWon) + NL;
    text += "                                   ----------------------------------" + NL + NL;
    text +=
        "                                   Difference  :   $" + Difference(g.TotalSpent - g.TotalWon) + NL;
}

}  // namespace sorvane

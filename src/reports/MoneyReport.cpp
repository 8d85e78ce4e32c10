#include "reports/MoneyReport.h"

#include "platform/Text.h"
#include "reports/PadAmount.h"
#include "store/CheckTB_DBExists.h"

namespace sorvane {

using namespace ReportFacts;

namespace {

constexpr std::string_view TotalPicture = "###,###,##0.00";

bool Probe(Session& session, const MoneyArgs& args, const char* name) {
    args.TableName = name;
    session.global.TableOpened = Off;
    ProbeTable(session, args.Table());
    return session.global.TableOpened != Off;
}

void ReadLedgers(Session& session, const MoneyArgs& args) {
    const bool won = Probe(session, args, "Winnings");
    const bool spent = Probe(session, args, "Spent");
    if (args.window.eitherLedgerCounts && won) session.global.TableOpened = On;
    if (!spent && session.global.TableOpened == Off) return;
    args.TableName = "Winnings";
    SumWon(session, args.Table(), args.chart, args.mode);
    args.TableName = "Spent";
    SumSpent(session, args.Table(), args.chart, args.mode);
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

void ChartMoney(Session& session, const MoneyArgs& args) {
    args.mode = ChartMode;
    ReadLedgers(session, args);
}

void ReportMoney(Session& session, const MoneyArgs& args, std::string_view caption, std::string& text) {
    if (args.window.resetsTotals) session.global.TotalWon = session.global.TotalSpent = Currency();
    args.mode = ReportMode;
    ReadLedgers(session, args);
    WriteMoneyReport(session, args.window, caption, text);
}

void WriteMoneyReport(Session& session, const MoneyWindow& window, std::string_view caption,
                      std::string& text) {
    const Global& g = session.global;
    const std::string& NL = g.NL;
    const std::string rule(window.rule);
    text = ReportHead(session, caption, window.headHasCaption);
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

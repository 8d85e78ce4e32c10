#include "reports/FrequencyReport.h"

#include "platform/Text.h"

namespace sorvane {

using namespace ReportFacts;

void ChartFrequency(Session& session, const ReportArgs& args, ChartFace& chart) {
    if (!Tally[args.family]) return;
    args.mode = ChartMode;
    if (FindDraws(session, args)) Tally[args.family](session, args.Table(), chart, args.mode);
}

void ReportFrequency(Session& session, const ReportArgs& args, ChartFace& chart, std::string_view caption,
                     std::string& text) {
    if (!Tally[args.family]) return;
    args.mode = ReportMode;
    const bool found = FindDraws(session, args);
    // In frm749 the tally alone sizes Numbers, so without a table the report shows what was left there.
    if (NumbersUpper[args.family] != NotSized) session.global.Numbers.Redim(NumbersUpper[args.family]);
    if (found) Tally[args.family](session, args.Table(), chart, args.mode);
    WriteFrequencyReport(session, args.family, caption, text);
}

void WriteFrequencyReport(Session& session, Family family, std::string_view caption, std::string& text) {
    const Global& g = session.global;
    const std::string& NL = g.NL;
    const std::string rule = "           -------------------------------------------------" + NL;
    text = ReportHead(session, caption);
    text += "                       Number Frequency Report" + NL;
    text += "                       =======================" + NL + NL;
    text += "                 Number                    Times Drawn" + NL;
    text += "           ================================================" + NL + NL;
    for (int i = 0; i <= LastRow[family]; ++i) {
        std::string line(i < 9 ? 19 : 18, ' ');
        line.append(Str(i + 1)).append(28, ' ').append(Str(g.Numbers(i))).append(NL);
        text.append(line).append(rule);
    }
}

}  // namespace sorvane

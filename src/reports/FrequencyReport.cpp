#include "reports/FrequencyReport.h"

#include "platform/Text.h"

namespace sorvane {

using namespace ReportFacts;

void ChartFrequency(Run& run, const ReportArgs& args, ChartFace& chart) {
    if (!Tally[args.family]) return;
    args.mode = ChartMode;
    if (FindDraws(run, args)) Tally[args.family](run, args.DbName, args.TableName, chart, args.mode);
}

void ReportFrequency(Run& run, const ReportArgs& args, ChartFace& chart, std::string_view caption,
                     std::string& text) {
    if (!Tally[args.family]) return;
    args.mode = ReportMode;
    const bool found = FindDraws(run, args);
    // In frm749 the tally alone sizes Numbers, so without a table the report shows what was left there.
    if (NumbersUpper[args.family] != NotSized) run.global.Numbers.Redim(NumbersUpper[args.family]);
    if (found) Tally[args.family](run, args.DbName, args.TableName, chart, args.mode);
    WriteFrequencyReport(run, args.family, caption, text);
}

void WriteFrequencyReport(Run& run, Family family, std::string_view caption, std::string& text) {
    const Global& g = run.global;
    const std::string& NL = g.NL;
    const std::string rule = "           -------------------------------------------------" + NL;
    text = ReportHead(run, caption);
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

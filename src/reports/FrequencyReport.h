// Chart and text report of how often each number of a lotto or keno game was drawn.
#pragma once

#include "reports/ReportFacts.h"
#include "reports/ReportStart.h"

namespace sorvane {

// What cmdNumberFrequency does behind its control changes: mode 0, then the tally onto the chart, unless the
// win table is missing. Nothing for keno 80, which has no tally.
void ChartFrequency(Session& session, const ReportArgs& args, ChartFace& chart);

// What cmdReport (cmdNFReport) does behind its control changes: mode 1, Numbers sized and filled, then the
// report. A missing win table shows its box; the report is written all the same. Nothing for keno 80.
void ReportFrequency(Session& session, const ReportArgs& args, ChartFace& chart, std::string_view caption,
                     std::string& text);

// The report out of Numbers, a line a number. `text` starts anew; when Numbers is too short (error 9) it
// keeps the lines written before.
void WriteFrequencyReport(Session& session, Family family, std::string_view caption, std::string& text);

}  // namespace sorvane

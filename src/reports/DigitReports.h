// Chart by position and the four text reports of the digit games.
#pragma once

#include <functional>

#include "reports/ReportFacts.h"
#include "reports/ReportStart.h"

namespace sorvane {

// What cmdNumberFrequency does behind its control changes: PositionCounts zeroed, mode 0, then the tally onto
// the chart, unless the win table is missing.
void ChartDigits(Session& session, const ReportArgs& args, ChartFace& chart);

// What cmdReport does behind its control changes: PositionCounts zeroed, mode 1; `askType` shows
// frmReportType, the tally runs, the report is written. A missing win table shows its box, sizes Numbers to
// 0..3 and asks nothing: the report of the last ReportType is written.
void ReportDigits(Session& session, const ReportArgs& args, ChartFace& chart,
                  const std::function<void()>& askType, std::string_view caption, std::string& text);

// The report that ReportType names, out of PositionCounts or ComboCounts. Any other value, and "Triple Match"
// in frmPick4, leaves `text` as it is; else it starts anew, and keeps what was written before a failure.
void WriteDigitReport(Session& session, Family family, std::string_view caption, std::string& text);

}  // namespace sorvane

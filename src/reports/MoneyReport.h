// Chart and text report of money spent and won, of one game or of all.
#pragma once

#include <string>
#include <string_view>

#include "reports/ReportFacts.h"
#include "reports/ReportStart.h"
#include "shell/Global.h"
#include "shell/StoreTable.h"

namespace sorvane {

// What the money chart and the money report have from their window.
struct MoneyArgs {
    const ReportFacts::MoneyWindow& window;
    const std::string& DbName;
    std::string& TableName;
    Integer& mode;
    ChartFace& chart;

    StoreTable Table() const { return {DbName, TableName}; }
};

// What cmdProfitLoss does behind its control changes: mode 0; "Winnings" and "Spent" are probed, then both
// ledgers are read onto the chart, the won side first. TableName ends as "Spent".
void ChartMoney(Session& session, const MoneyArgs& args);

// What cmdPLReport does behind its control changes: mode 1, the same probes and readings, then the report in
// any case. Where the tables are missing there is no box, and counts and lines are those of an earlier run.
void ReportMoney(Session& session, const MoneyArgs& args, std::string_view caption, std::string& text);

// The report out of the lines, counts and totals in Global. The difference is spent minus won: a net loss is
// a plain number, a net gain stands in parentheses. `text` starts anew and keeps what was written before a
// failure (error 9 where there are fewer lines than the count says). Does not return when a total is longer
// than 14 characters, or a difference in parentheses longer than 13.
void WriteMoneyReport(Session& session, const ReportFacts::MoneyWindow& window, std::string_view caption,
                      std::string& text);

}  // namespace sorvane

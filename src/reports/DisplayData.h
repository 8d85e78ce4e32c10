// Counting draws and adding up money, for charts, report texts and wheels.
//
// Every routine opens the database and what it reads, and closes both; an error shows its box, and the caller
// goes on. `mode` is the window's: 0 draws on the chart, 1 fills the global arrays, any other does neither.
#pragma once

#include <string>

#include "platform/Integer.h"
#include "reports/ChartFace.h"
#include "shell/Global.h"
#include "shell/StoreTable.h"

namespace sorvane {

inline constexpr int ChartMode = 0;
inline constexpr int ReportMode = 1;

// How often each number was drawn, counted over all rows of the win table `TableName`; bonus numbers count
// like the others. Without rows shows "No Winning Numbers entered yet..." (title "ERROR!") and leaves chart
// and arrays alone. A number outside the game's range, or a number counted more than 32,767 times, is an
// error.
//
// Mode 0 sets Row n and Data for each number n. Mode 1 puts the count of the number i + 1 into slot i:
// - six numbers: Numbers and Favourites, sized here to 0..49; for "Lottario" to 0..44, and while
//   Generating BallFrequency is filled as well. While Generating, mode 0 draws nothing.
// - seven numbers: slots 0 to 48 of Numbers, which for "Super 7" is sized to 0..49 before anything else.
// - keno: Numbers, as many slots as the game has numbers; the caller has sized it.
void TallySixNumberFrequency(Session& session, const StoreTable& table, ChartFace& chart,
                             const Integer& mode);
void TallySevenNumberFrequency(Session& session, const StoreTable& table, ChartFace& chart,
                               const Integer& mode);
void TallyKenoFrequency(Session& session, const StoreTable& table, ChartFace& chart, const Integer& mode);

// How often each digit stood at each position, and how often digits came together. ComboCounts starts anew as
// 0..999 of "0". Mode 0, and mode 1 with ReportType "Numbers By Position", raise PositionCounts, which the
// caller has zeroed; mode 0 then sets Row digit + 1, Column position + 1 and Data for each. Mode 1 with
// "Triple Match", "Front Pairs" or "Back Pairs" counts in ComboCounts, in the slot that the digits make when
// they are read as a number; a pair's count has at least two characters, a triple's is as short as it is.
void TallyPick3Digits(Session& session, const StoreTable& table, ChartFace& chart, const Integer& mode);
void TallyPick4Digits(Session& session, const StoreTable& table, ChartFace& chart, const Integer& mode);

// The tally of a shape: 6, 7 or 20 numbers; 5 does nothing; any other shows "An Unexpected Error Occured..."
// (title "ERROR!").
void TallyByGameShape(Session& session, const Integer& NumbersPerTicket, const StoreTable& table,
                      ChartFace& chart, const Integer& mode);

// Rows of the table; 0 when it can't be read. More than 32,767 are an error.
Integer CountDrawRows(Session& session, const StoreTable& table);

// The rows of a ledger that belong to LottoFlag; all rows when it is empty or no game's key. SumSpent reads
// "Spent" in the order of its dates, whatever TableName says; SumWon reads "Winnings", or for all rows the
// table TableName, in the order of entry.
//
// The number of rows goes to SpentRows or WonRows. Mode 1 puts a finished line a row into SpentLines and
// AllSpentLines, or WonLines and AllWonLines, then the sum into TotalSpent or TotalWon. Mode 0 sets Data and
// ColumnLabel of column 1 (spent) or 2 (won), row 1. Without rows the totals keep what they held; SumSpent
// shows "No Tickets entered yet..." (title "ERROR!") and sets a zero on the chart in every mode, SumWon shows
// nothing and sets its zero in mode 0. With an amount of more than 14 characters the call never returns, see
// PadAmount.
void SumSpent(Session& session, const StoreTable& table, ChartFace& chart, const Integer& mode);
void SumWon(Session& session, const StoreTable& table, ChartFace& chart, const Integer& mode);

}  // namespace sorvane

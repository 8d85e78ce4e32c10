// Writing the drawn numbers, as they stand in the boxes, into the Win tables: one row a draw date. The store
// converts the texts; one that does not convert, like any error, shows its box, drops the row in hand, and
// the writer returns normally. ID1 is the number of rows plus one.
#pragma once

#include "checking/WinningBoxes.h"
#include "store/StoreRoutine.h"

namespace sorvane {

// Where the date has a row already, these ask "RECHECK?" (in other words while StatUpdate is 1) and keep the
// answer in MsgResult: Yes rewrites the numbers of that row (or adds it anew, if it has gone meanwhile) and
// sets RecheckAccepted True, RecheckRefused 0; No leaves it and sets them 0 and True. A date without a row
// leaves both as they were. StoreKenoWin sets TotalTickets to 0 with a new row.
void StoreLotto6Win(Session& session, const StoreArgs& at, const WinningBoxes& boxes);
void StoreLotto7Win(Session& session, const StoreArgs& at, const WinningBoxes& boxes);
void StoreKenoWin(Session& session, const StoreArgs& at, const WinningBoxes& boxes);
void StorePick3Win(Session& session, const StoreArgs& at, const WinningBoxes& boxes);
void StorePick4Win(Session& session, const StoreArgs& at, const WinningBoxes& boxes);

// The Four boxes, without a question: for "Lottario" one field lower than the table tells (the date as text
// where the game stands, the first number where the date stands); else into the game's row, found by walking
// forward from the first row of the date, later dates included, or a new one.
void StoreExtraWin(Session& session, const StoreArgs& at, const WinningBoxes& boxes);

// The digits of the Encore box, without a question: one row a date for all games that share the add-on, which
// bears the game checked last. A seventh digit is kept for "WESTExtra" alone.
void StoreAddOnWin(Session& session, const StoreArgs& at, const WinningBoxes& boxes);

}  // namespace sorvane

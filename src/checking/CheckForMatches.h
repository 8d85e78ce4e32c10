// Judging tickets against the winning boxes. Each routine judges the ticket in row `Row` of its global array
// and adds one line to lstMessage; nothing is stored and no amount is computed. The line stands in
// Global::Msg too. MatchCount is the working count or tier.
//
// None traps an error: an array that no reader sized raises 9, a box that is compared as a number and holds
// none raises 13, one beyond 16 bits raises 6. Numbers compare by value ("07" is 7).
#pragma once

#include <array>

#include "checking/WinningBoxes.h"
#include "platform/Lines.h"
#include "shell/Global.h"
#include "store/StoreRoutine.h"

namespace sorvane {

// Six of Lotto6Played against the boxes 0 to 5 and the bonus in box 6. MatchCount keeps the count.
void CheckLotto6(Session& session, const WinningBoxes& boxes, int Row, Lines& lstMessage);
// Seven of Lotto7Played against the boxes 0 to 6 and the bonus in box 7. MatchCount ends at 0.
void CheckLotto7(Session& session, const WinningBoxes& boxes, int Row, Lines& lstMessage);

// A row of KenoPlayed against the twenty boxes; sets Wager and NoOfBallsPerTicket from the row. For "ONTKeno"
// a line of the prize table, or none at all when the row's wager or number of balls is not in it. The four
// other keno keys are counted in MatchCount, over all twenty columns, and add no line; any other key is left
// alone.
void CheckKeno(Session& session, const WinningBoxes& boxes, int Row, Lines& lstMessage);

// Digits against the boxes by PlayOption: "Straight" in place; "Box", "StraightBox" and "Combo" in any order,
// alike; any other way never wins. MatchCount is 3 or 4 for a winner.
void CheckPick3(Session& session, const WinningBoxes& boxes, int Row, Lines& lstMessage);
void CheckPick4(Session& session, const WinningBoxes& boxes, int Row, Lines& lstMessage);

// Fill Global::WinPerms with the 6 or 24 orders of the digits, read as numbers, in the lexicographic order of
// the places: abc, acb, bac, bca, cab, cba. Equal digits give equal elements. Raise 6 where the digits
// together are no 16-bit number.
void BuildPick3Perms(Session& session, const std::array<Integer, 3>& digits);
void BuildPick4Perms(Session& session, const std::array<Integer, 4>& digits);

// The digit add-ons: a row of Lotto6Played (WESTExtra: of Lotto7Played) against the text of the Encore box,
// which is at least six (seven) characters long. Positions count from the left as in a six-digit number, so a
// longer drawn text never meets the top tier. Every tier is asked before "Not Played": a row of 99s may win.
// MatchCount ends at 0.
void CheckEncore(Session& session, const WinningBoxes& boxes, int Row, Lines& lstMessage);
void CheckWESTExtra(Session& session, const WinningBoxes& boxes, int Row, Lines& lstMessage);
void CheckQCExtra(Session& session, const WinningBoxes& boxes, int Row, Lines& lstMessage);
void CheckTag(Session& session, const WinningBoxes& boxes, int Row, Lines& lstMessage);
void CheckThePlus(Session& session, const WinningBoxes& boxes, int Row, Lines& lstMessage);

// For "Lottario" the EarlyBird of a row of Lotto6Played against the Four boxes; else, under the add-on
// "Extra", a row of Pick4Played against them; else nothing. More than four matches (a number twice) set no
// text: the line before is added once more. MatchCount ends at 0.
void CheckExtraEarlyBird(Session& session, const WinningBoxes& boxes, int Row, Lines& lstMessage);

// Whether the table in `at` has a row of the date: sets WinningsDrawFound to 1, or shows a box (its
// error number is 0, as no error has happened) and sets 0. An empty table, or an error, which shows its box,
// leaves WinningsDrawFound as it was.
void FindDrawEntry(Session& session, const StoreArgs& at);

}  // namespace sorvane

// The one writer of both ledgers.
#pragma once

#include "store/StoreRoutine.h"

namespace sorvane {

// Adds a row with `Dollars` to the ledger named in `at`. While EnteringWinnings is On and the first row of
// the date belongs to the game, asks whether to amend it instead (title "Correct Winnings?"): Yes amends it,
// or adds the row anew if it has gone meanwhile. An amount that does not convert shows "Please enter a valid
// amount and try again." and writes nothing.
void StoreLedgerAmount(Session& session, const StoreArgs& at);

}  // namespace sorvane

// The writers: the tickets of one sheet from the global arrays into a table.
#pragma once

#include "store/StoreRoutine.h"

namespace sorvane {

// Each opens the table named in `at`, adds its rows under the date in `at`, and closes. `ID1` is the number
// of rows plus one, not the largest key plus one: after a deletion a key can be taken, which shows its box.
// All rows are one commit; those written before an error stay. An error shows its box, and the caller goes
// on.
void SaveLotto6Tickets(Session& session, const StoreArgs& at);  // NoOfTicketsOnSheet rows
void SaveLottarioTickets(Session& session,
                         const StoreArgs& at);  // twice as many for Lottario: bonus tickets are rows too
void SaveLotto7Tickets(Session& session, const StoreArgs& at);  // three times as many for Super 7
void SaveKenoTickets(Session& session,
                     const StoreArgs& at);  // ten balls a row, also of a ticket that has twenty
void SavePick3Tickets(Session& session, const StoreArgs& at);
void SavePick4Tickets(Session& session, const StoreArgs& at);
void SaveAddOnTickets(Session& session,
                      const StoreArgs& at);  // NoOfExtra rows; the seventh digit for "WESTExtra" alone
void SaveExtraTickets(Session& session, const StoreArgs& at);  // NoOfExtra rows

}  // namespace sorvane

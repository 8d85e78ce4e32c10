// Printing the tickets that the generator left.
#pragma once

#include <string>

#include "shell/Global.h"

namespace sorvane {

// Prints a head with the game's key and a line for each of `ticketCount` tickets, numbered from 1. A slot
// that is missing raises 9, a failing printer 482 to 484; what was sent before comes out.
void PrintQuickPicks(Session& session, const Array<std::string>& quickPicks, const Integer& ticketCount);

// What cmdPrint does: the printer's dialog, then the page. The printer errors 482 to 484 show their box
// (title "PRINTER ERROR!") and go on with the next statement; any other, a cancelled dialog included, ends in
// silence.
void PrintTickets(Session& session, const Array<std::string>& quickPicks, const Integer& ticketCount);

}  // namespace sorvane

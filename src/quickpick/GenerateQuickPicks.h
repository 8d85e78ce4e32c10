// Random tickets for every family.
#pragma once

#include <string>

#include "platform/Lines.h"
#include "shell/Global.h"

namespace sorvane {

// Draws `ticketCount` tickets for the game of LottoFlag and adds a line for each to lstDisplay: numbers all
// different and ascending, or for 3 and 4 numbers digits 0 to 8 as they are drawn. `numbersPerTicket` (6, 7,
// 20, 3 or 4) is the shape. quickPicks is sized to 0..ticketCount and gets the same lines, except for keno
// (20), whose slots stay empty. The random source is reseeded once a ticket. Global::Numbers holds the last
// ticket.
//
// A key that the generator does not know draws nothing: each line is what Numbers holds. Shows nothing and
// raises nothing: a statement that fails is left out and the next one runs.
void GenerateQuickPicks(Session& session, const Integer& numbersPerTicket, const Integer& ticketCount,
                        Array<std::string>& quickPicks, Lines& lstDisplay);

}  // namespace sorvane

// The tables a window needs: made on first use, one probing loop a table.
#pragma once

#include "shell/Family.h"
#include "shell/Global.h"
#include "shell/WindowState.h"

namespace sorvane {

// Makes sure that the file, the two ledgers and the tables of the selected game exist, in the family's own
// order. Fills DbName, leaves the last table's name in TableName and the family's shape code in
// NumbersPerTicket, which is borrowed for the add-on tables meanwhile. Where the key is unknown, the name
// in hand stays; its table exists already, so that nothing is made.
void CreateAllTables(Session& session, Family family, WindowState& state);

}  // namespace sorvane

// The tables a window needs: made on first use, one probing loop a table.
#pragma once

#include "shell/Family.h"
#include "shell/Global.h"
#include "shell/WindowState.h"

namespace sorvane {

// Makes sure that the file, the two ledgers and the tables of the selected game exist, in the family's own
// order. Fills DbName, leaves the last table's name in TableName and the family's shape code in
// NumbersPerTicket, which is borrowed for the add-on tables meanwhile. An unknown key keeps the name in hand,
// which is found, and makes nothing.
void CreateAllTables(Run& run, Family family, WindowState& state);

}  // namespace sorvane

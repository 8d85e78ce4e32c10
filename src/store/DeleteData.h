// The only two routines that delete rows. Each is one commit.
#pragma once

#include <string>

#include "shell/Global.h"
#include "shell/StoreTable.h"

namespace sorvane {

// Removes every row of the draw date from the table, whichever game it belongs to. An empty table, or one
// without rows of that date, stays as it is. More than 32,767 rows in the table are an overflow, shown as any
// other error.
void DeleteRowsForDate(Session& session, const StoreTable& table, Date DrawDate);

// Removes all rows of the table.
void DeleteAllRows(Session& session, const StoreTable& table);
// The same within a routine that has the table open.
void DeleteAllRows(Dao::Recordset& Rs);

}  // namespace sorvane

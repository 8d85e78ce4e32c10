// Making the database exist, and finding out whether a table does.
#pragma once

#include <string>

#include "shell/Global.h"
#include "shell/StoreTable.h"

namespace sorvane {

// Makes sure that the file exists: the folder is made silently where it is missing, then the empty file, with
// no table, both for nobody but the user. Shows the general error box when it can't. Raises 75 when even the
// folder can't be made.
void CheckDatabaseExists(Session& session, const std::string& DbName);

// Sets Global::TableOpened to 1 when the table can be opened, else to 0. A missing table shows nothing; any
// other error shows its box.
void ProbeTable(Session& session, const StoreTable& table);

// Probes the table and calls the creator while it is missing, until TableOpened is 1. There is no limit: a
// table that can't be made gives its box again and again, for as long as the cause lasts. The creator may
// change TableName.
template <class Creator>
void MakeSureOf(Session& session, const StoreTable& table, Creator creator) {
    session.global.TableOpened = Off;
    do {
        ProbeTable(session, table);
        if (session.global.TableOpened == Off) creator();
    } while (session.global.TableOpened != On);
}

}  // namespace sorvane

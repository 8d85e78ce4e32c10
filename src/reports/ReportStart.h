// How every report starts: whether there are draws to report on, and the head line.
#pragma once

#include <string>
#include <string_view>

#include "shell/Family.h"
#include "shell/Global.h"
#include "shell/StoreTable.h"

namespace sorvane {

// What a report button has from its window. TableName is the window's: a game's key names the win table,
// where none does it stays what it was.
struct ReportArgs {
    Family family;
    const std::string& DbName;
    std::string& TableName;
    Integer& mode;

    StoreTable Table() const { return {DbName, TableName}; }
};

// Names the win table and probes for it, which sets TableOpened. A missing one shows "No Winning Numbers
// entered yet..." (title "ERROR!") and gives false.
bool FindDraws(Session& session, const ReportArgs& args);

// The head line: a line break, the date of today, the caption behind 38 blanks, two line breaks. Without
// `captioned` neither blanks nor caption.
std::string ReportHead(Session& session, std::string_view caption, bool captioned = true);

}  // namespace sorvane

// Printing the text of a report.
#pragma once

#include <string_view>

#include "platform/Services.h"

namespace sorvane {

// Asks for the printer and prints the whole text, an empty one as an empty page. A cancelled dialog and a
// failing printer go to the caller: there is no handler here, unlike with quick picks.
void PrintReport(Printer& printer, std::string_view text);

}  // namespace sorvane

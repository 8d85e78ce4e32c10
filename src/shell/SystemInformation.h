// The desktop's own tool that tells about the system.
#pragma once

#include "platform/Services.h"

namespace sorvane {

// Starts the first tool found that describes the system, else the first one found that monitors it, and does
// not wait for it. When there is neither, a box says so. A tool that can't be started ends it silently.
void StartSysInfo(Services& services);

}  // namespace sorvane

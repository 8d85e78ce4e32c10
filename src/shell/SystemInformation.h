// The desktop's own tool that tells about the system.
#pragma once

#include "platform/Services.h"

namespace sorvane {

// Starts the first program found that is made to tell about the system, else the first one found that watches
// it, without waiting; with neither a box says so. A program that can't be started ends it without a word.
void StartSysInfo(Services& services);

}  // namespace sorvane

// The command line of sorvane-records.
#pragma once

#include <string>
#include <vector>

#include "records/Outside.h"

namespace sorvane::Records {

// Runs the command that the arguments name (without the program's own name) and gives the exit status: 0
// done, 1 refused or findings, 2 wrong use.
int RunCommand(Outside& outside, const std::vector<std::string>& arguments);

}  // namespace sorvane::Records

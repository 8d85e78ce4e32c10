// The two indexes of a table.
#pragma once

#include <string>

#include "shell/Global.h"

namespace sorvane {

// Makes the primary index and the index over the second field, each named like its field. Opens the database
// for itself; any error shows one box and ends it.
void CreateIndex(Run& run, const std::string& DbName, const std::string& TableName,
                 const std::string& PrimaryField, const std::string& SecondField);

}  // namespace sorvane

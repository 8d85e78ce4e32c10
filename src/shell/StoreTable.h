// A table, and the file it stands in.
#pragma once

#include <string>

namespace sorvane {

// Both belong to the caller; the name may change while a routine works on it, where that routine says so.
struct StoreTable {
    const std::string& DbName;
    const std::string& TableName;
};

}  // namespace sorvane

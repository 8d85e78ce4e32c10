// The two indexes of a table.
#pragma once

#include <string>

#include "store/dao/Dao.h"

namespace sorvane {

// Makes the primary index and the index over the second field, each named like its field. It works in the
// database that its caller has open, because a table and its indexes are one commit. Raises what the engine
// raises; the caller shows it by Tails::CreateIndex.
void CreateIndex(Dao::Database& Db, const std::string& TableName, const std::string& PrimaryField,
                 const std::string& SecondField);

}  // namespace sorvane

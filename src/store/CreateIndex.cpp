#include "store/CreateIndex.h"

namespace sorvane {

void CreateIndex(Dao::Database& Db, const std::string& TableName, const std::string& PrimaryField,
                 const std::string& SecondField) {
    Db.AppendIndex(TableName, PrimaryField, PrimaryField, true);
    Db.AppendIndex(TableName, SecondField, SecondField, false);
}

}  // namespace sorvane

#include "store/CreateIndex.h"

#include "store/StoreRoutine.h"

namespace sorvane {

void CreateIndex(Run& run, const std::string& DbName, const std::string& TableName,
                 const std::string& PrimaryField, const std::string& SecondField) {
    StoreRoutine(run, Tails::CreateIndex, TableName, [&] {
        Dao::Workspace Ws = run.services.engine.Workspaces(0, run.global.Open);
        Dao::Database Db = Ws.OpenDatabase(DbName);
        Db.AppendIndex(TableName, PrimaryField, PrimaryField, true);
        Db.AppendIndex(TableName, SecondField, SecondField, false);
    });
}

}  // namespace sorvane

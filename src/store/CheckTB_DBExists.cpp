#include "store/CheckTB_DBExists.h"

#include <filesystem>

#include "store/StoreRoutine.h"

namespace sorvane {

namespace {

namespace fs = std::filesystem;

// The general sort order.
constexpr std::string_view Locale = ";LANGID=0x0409;CP=1252;COUNTRY=0";

// What is made for one player is the player's alone, as far as the file system knows of rights.
void KeepFromOthers(const fs::path& made, fs::perms rights) {
    std::error_code ignored;
    fs::permissions(made, rights, ignored);
}

void MakeFolder(const fs::path& folder) {
    std::error_code error;
    if (fs::create_directory(folder, error)) return KeepFromOthers(folder, fs::perms::owner_all);
    if (!fs::is_directory(folder, error)) Raise(ErrorNumber::PathFileAccess);
}

void CreateFile(Run& run, const std::string& DbName) {
    Dao::Workspace Ws = run.services.engine.CreateWorkspace(ProgramName, "admin", "", run.global.Open);
    Dao::Database Db = Ws.CreateDatabase(DbName, Locale);
    KeepFromOthers(DbName, fs::perms::owner_read | fs::perms::owner_write);
    Db.Close();
    Ws.Close();
}

}  // namespace

void CheckDatabaseExists(Run& run, const std::string& DbName) {
    const fs::path folder = fs::path(DbName).parent_path();
    std::error_code error;
    if (!fs::is_directory(folder, error)) MakeFolder(folder);
    StoreRoutine(run, Tails::CheckDatabase, {}, [&] {
        if (!fs::is_regular_file(DbName, error)) CreateFile(run, DbName);
    });
}

void ProbeTable(Run& run, const std::string& DbName, const std::string& TableName) {
    const int error = StoreRoutine(run, Tails::Probe, TableName, [&] {
        Dao::Database Db = run.services.engine.OpenDatabase(DbName, run.global.Open);
        Dao::Recordset ProbeRs = Db.OpenTable(TableName);
        run.global.TableOpened = On;
    });
    if (error != 0) run.global.TableOpened = Off;
}

}  // namespace sorvane

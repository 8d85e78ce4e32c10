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

void CreateFile(Session& session, const std::string& DbName) {
    Dao::Workspace Ws =
        session.services.engine.CreateWorkspace(ProgramName, "admin", "", session.global.Open);
    Dao::Database Db = Ws.CreateDatabase(DbName, Locale);
    KeepFromOthers(DbName, fs::perms::owner_read | fs::perms::owner_write);
    Db.Close();
    Ws.Close();
}

}  // namespace

void CheckDatabaseExists(Session& session, const std::string& DbName) {
    const fs::path folder = fs::path(DbName).parent_path();
    std::error_code error;
    if (!fs::is_directory(folder, error)) MakeFolder(folder);
    StoreRoutine(session, Tails::CheckDatabase, {}, [&] {
        if (!fs::is_regular_file(DbName, error)) CreateFile(session, DbName);
    });
}

void ProbeTable(Session& session, const StoreTable& table) {
    const int error = StoreRoutine(session, Tails::Probe, table.TableName, [&] {
        Dao::Database Db = session.services.engine.OpenDatabase(table.DbName, session.global.Open);
        Dao::Recordset ProbeRs = Db.OpenTable(table.TableName);
        session.global.TableOpened = On;
    });
    if (error != 0) session.global.TableOpened = Off;
}

}  // namespace sorvane

// A world for rule tests: a program without windows in a folder of its own.
#pragma once

#include <sqlite3.h>

#include <string>
#include <string_view>
#include <vector>

#include "shell/Global.h"
#include "store/CheckTB_DBExists.h"
#include "store/StoreRoutine.h"
#include "support/Scripted.h"

namespace sorvane::testing {

// Plain SQLite beside the engine: what any other tool sees in the file.
class PlainFile {
  public:
    explicit PlainFile(const std::string& path) {
        if (sqlite3_open_v2(path.c_str(), &db_, SQLITE_OPEN_READWRITE, nullptr) != SQLITE_OK)
            ADD_FAILURE() << "cannot open " << path;
    }
    PlainFile(const PlainFile&) = delete;
    PlainFile& operator=(const PlainFile&) = delete;
    ~PlainFile() { sqlite3_close(db_); }

    // The rows of a query, the columns joined by '|', NULL as "NULL".
    std::vector<std::string> Rows(const std::string& sql) {
        std::vector<std::string> rows;
        sqlite3_stmt* statement = nullptr;
        if (sqlite3_prepare_v2(db_, sql.c_str(), -1, &statement, nullptr) != SQLITE_OK)
            ADD_FAILURE() << sqlite3_errmsg(db_) << ": " << sql;
        while (statement && sqlite3_step(statement) == SQLITE_ROW) {
            std::string row;
            for (int i = 0; i < sqlite3_column_count(statement); ++i) {
                const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, i));
                row.append(i > 0 ? "|" : "").append(text ? text : "NULL");
            }
            rows.push_back(std::move(row));
        }
        sqlite3_finalize(statement);
        return rows;
    }
    std::string One(const std::string& sql) {
        const std::vector<std::string> rows = Rows(sql);
        return rows.empty() ? std::string() : rows.front();
    }
    void Do(const std::string& sql) {
        char* error = nullptr;
        if (sqlite3_exec(db_, sql.c_str(), nullptr, nullptr, &error) != SQLITE_OK)
            ADD_FAILURE() << error << ": " << sql;
        sqlite3_free(error);
    }
    // Names of the tables, sorted.
    std::vector<std::string> Tables() {
        return Rows("SELECT name FROM sqlite_schema WHERE type = 'table' ORDER BY name");
    }
    sqlite3* Handle() { return db_; }

  private:
    sqlite3* db_ = nullptr;
};

// State, scripted services and a real engine in a folder that is deleted after the test. `vfs` is the
// engine's file layer.
struct World {
    explicit World(const std::string& vfs = {}) : engine(vfs) {
        global.NL = "\r\n";
        global.AppPath = folder.Path().string() + "/";
    }
    // The folder and the empty file.
    World& WithDatabase() {
        CheckDatabaseExists(session, DbName());
        return *this;
    }
    std::string DbName() const { return DatabasePath(global.AppPath); }
    PlainFile Plain() const { return PlainFile(DbName()); }
    // The box of a store error: style 16, title "ERROR!".
    World& ExpectStoreError(int number, std::string_view sentence) {
        dialogs.Expect("ERROR!", "ERROR #" + std::to_string(number) + "\r\n" + std::string(sentence),
                       Answer::Ok, BoxStyle::Stop);
        return *this;
    }
    World& ExpectUnexpected(int number) {
        return ExpectStoreError(number, "Unexpected error occurred. Please advise error number to support.");
    }

    TempFolder folder;
    Global global;
    ScriptedDialogs dialogs;
    RecordingPrinter printer;
    FixedClock clock{Date::FromYmd(2026, 3, 14)};
    FixedRandom random;
    RecordingTools tools;
    Dao::Engine engine;
    Services services{dialogs, printer, clock, random, tools, engine};
    Session session{global, services};
};

}  // namespace sorvane::testing

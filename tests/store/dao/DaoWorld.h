// A database file in a folder of its own, and a second pair of eyes on it through SQLite itself.
#pragma once

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <fstream>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "platform/RunTimeError.h"
#include "store/dao/Dao.h"
#include "support/TempFolder.h"

namespace sorvane::Dao {

// What another program would see and do: plain SQLite, answers as text, Null as "NULL".
class PlainTool {
  public:
    explicit PlainTool(const std::string& path, int busyMilliseconds = 2000) {
        EXPECT_EQ(sqlite3_open(path.c_str(), &handle_), SQLITE_OK);
        sqlite3_busy_timeout(handle_, busyMilliseconds);
    }
    PlainTool(const PlainTool&) = delete;
    PlainTool& operator=(const PlainTool&) = delete;
    ~PlainTool() { sqlite3_close(handle_); }

    // Cells of all rows in their order.
    std::vector<std::string> Ask(const std::string& sql) {
        std::vector<std::string> cells;
        char* message = nullptr;
        const int result = sqlite3_exec(
            handle_, sql.c_str(),
            [](void* to, int count, char** texts, char**) {
                for (int i = 0; i < count; ++i)
                    static_cast<std::vector<std::string>*>(to)->emplace_back(texts[i] ? texts[i] : "NULL");
                return 0;
            },
            &cells, &message);
        EXPECT_EQ(result, SQLITE_OK) << sql << ": " << (message ? message : "");
        sqlite3_free(message);
        return cells;
    }
    int Result(const std::string& sql) {
        return sqlite3_exec(handle_, sql.c_str(), nullptr, nullptr, nullptr);
    }
    std::string One(const std::string& sql) {
        const auto cells = Ask(sql);
        return cells.empty() ? "no row" : cells.front();
    }

  private:
    sqlite3* handle_ = nullptr;
};

class DaoWorld : public testing::Test {
  protected:
    using Cells = std::vector<std::string>;
    using Numbers = std::vector<int>;

    Database Open() { return engine_.OpenDatabase(path_, flags_); }
    Database Create() { return engine_.Workspaces(0, flags_).CreateDatabase(path_, ""); }
    PlainTool Plain() { return PlainTool(path_); }

    // A table with every type of field: ID1, Lottoflag, Date, Amount, Ball, Regular; indexes ID1 and Date.
    static TableDef Every(const std::string& name = "Every") {
        TableDef table(name);
        table.AppendField("ID1", FieldType::Long);
        table.AppendField("Lottoflag", FieldType::Text, 30);
        table.AppendField("Date", FieldType::Date);
        table.AppendField("Amount", FieldType::Currency);
        table.AppendField("# of Balls", FieldType::Integer);
        table.AppendField("Regular", FieldType::Boolean);
        return table;
    }
    Database CreateEvery() {
        Database db = Create();
        db.Append(Every());
        db.AppendIndex("Every", "ID1", "ID1", true);
        db.AppendIndex("Every", "Date", "Date", false);
        return db;
    }
    // One row of Every that holds what the test tells and Null elsewhere.
    static void Add(Recordset& rs, int id, double date, int ball = 0) {
        rs.AddNew();
        rs[0] = id;
        rs[2] = Date::FromDays(date);
        rs[4] = ball;
        rs.Update();
    }
    static std::vector<int> Ids(Recordset& rs) {
        std::vector<int> ids;
        while (!rs.AtEOF()) {
            ids.push_back(rs[0].ToInt());
            rs.MoveNext();
        }
        return ids;
    }
    // Every with rows of these days, ID1 from 1 on.
    void CreateWithDays(std::initializer_list<double> days) {
        Database db = CreateEvery();
        Recordset rs = db.OpenTable("Every");
        int id = 0;
        for (const double day : days) Add(rs, ++id, day);
    }
    void WriteBytes(const std::string& bytes) { std::ofstream(path_, std::ios::binary) << bytes; }
    TempFolder folder_;
    std::string path_ = folder_.File("sorvane.mdb");
    OpenFlags flags_;
    Engine engine_;
};

}  // namespace sorvane::Dao

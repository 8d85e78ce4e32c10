// The engine's verbs beside SQLite used directly, over the sizes a player's life may reach.
#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <map>
#include <memory>
#include <string>

#include "store/dao/Dao.h"
#include "support/TempFolder.h"

namespace sorvane::Dao {
namespace {

constexpr int DrawsOfACentury = 36'525;
constexpr int Fields = 9;

// A file with a table "WinLotto649" of that many rows, a draw a day; made once for each size.
const std::string& FileOf(int rows) {
    static std::map<int, std::pair<std::unique_ptr<TempFolder>, std::string>> files;
    auto& [folder, path] = files[rows];
    if (folder) return path;
    folder = std::make_unique<TempFolder>();
    path = folder->File("sorvane.mdb");
    Engine engine;
    OpenFlags flags;
    Database db = engine.Workspaces(0, flags).CreateDatabase(path, "");
    TableDef table("WinLotto649");
    table.AppendField("ID1", FieldType::Long);
    table.AppendField("Date", FieldType::Date);
    for (int i = 1; i <= 6; ++i) table.AppendField("Ball_" + std::to_string(i), FieldType::Integer);
    table.AppendField("Ball_B", FieldType::Integer);
    db.Append(table);
    db.AppendIndex("WinLotto649", "ID1", "ID1", true);
    db.AppendIndex("WinLotto649", "Date", "Date", false);
    db.Close();
    sqlite3* handle = nullptr;
    sqlite3_open(path.c_str(), &handle);
    const std::string fill = "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < " +
                             std::to_string(rows) +
                             ") INSERT INTO WinLotto649 SELECT i, i, i % 49, i % 48, i % 47, i % 46, i % 45, "
                             "i % 44, i % 43 FROM n";
    sqlite3_exec(handle, fill.c_str(), nullptr, nullptr, nullptr);
    sqlite3_close(handle);
    return path;
}

// A connection with the settings of the store's own.
sqlite3* OpenPlain(const std::string& path) {
    sqlite3* handle = nullptr;
    sqlite3_open_v2(path.c_str(), &handle, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr);
    sqlite3_exec(handle, "PRAGMA synchronous = EXTRA", nullptr, nullptr, nullptr);
    return handle;
}

void TallyByVerbs(benchmark::State& state) {
    Engine engine;
    OpenFlags flags;
    Database db = engine.OpenDatabase(FileOf(DrawsOfACentury), flags);
    for (auto _ : state) {
        Recordset rs = db.OpenTable("WinLotto649");
        long sum = 0;
        rs.MoveFirst();
        for (int row = rs.RecordCount(); row > 0; --row) {
            sum += rs[0].ToInt() + rs[1].ToDate().Day();
            for (int i = 2; i < Fields; ++i) sum += rs[i].ToInteger();
            if (!rs.AtEOF()) rs.MoveNext();
        }
        benchmark::DoNotOptimize(sum);
    }
}
BENCHMARK(TallyByVerbs)->Unit(benchmark::kMillisecond);

void TallyByPlainSelect(benchmark::State& state) {
    sqlite3* handle = OpenPlain(FileOf(DrawsOfACentury));
    for (auto _ : state) {
        sqlite3_stmt* rows = nullptr;
        sqlite3_prepare_v2(handle, "SELECT * FROM WinLotto649", -1, &rows, nullptr);
        long sum = 0;
        while (sqlite3_step(rows) == SQLITE_ROW) {
            sum += sqlite3_column_int(rows, 0) + static_cast<long>(sqlite3_column_double(rows, 1));
            for (int i = 2; i < Fields; ++i) sum += sqlite3_column_int(rows, i);
        }
        sqlite3_finalize(rows);
        benchmark::DoNotOptimize(sum);
    }
    sqlite3_close(handle);
}
BENCHMARK(TallyByPlainSelect)->Unit(benchmark::kMillisecond);

void OpenAndClose(benchmark::State& state) {
    Engine engine;
    OpenFlags flags;
    for (auto _ : state) benchmark::DoNotOptimize(engine.OpenDatabase(FileOf(1'000), flags));
}
BENCHMARK(OpenAndClose)->Unit(benchmark::kMillisecond);

// A delete walk enters anew behind each row; that must not walk the rows of the same date again.
void MoveAmongRowsOfOneDate(benchmark::State& state) {
    constexpr int Rows = 30'000;
    const std::string& path = FileOf(Rows);
    sqlite3* handle = OpenPlain(path);
    sqlite3_exec(handle, "UPDATE WinLotto649 SET Date = 1", nullptr, nullptr, nullptr);
    sqlite3_close(handle);
    Engine engine;
    OpenFlags flags;
    Database db = engine.OpenDatabase(path, flags);
    Recordset rs = db.OpenTable("WinLotto649");
    rs.Index("Date");
    rs.MoveFirst();
    for (auto _ : state) {
        rs.AddNew();  // leaves the walk
        rs.MoveNext();
        if (rs.AtEOF()) rs.MoveFirst();
    }
}
BENCHMARK(MoveAmongRowsOfOneDate)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace sorvane::Dao

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

// A file with a table "WinLotto649" of that many rows, a draw a day; made once for each size and place.
const std::string& FileOf(int rows, const std::filesystem::path& place) {
    static std::map<std::pair<int, std::filesystem::path>,
                    std::pair<std::unique_ptr<TempFolder>, std::string>>
        files;
    auto& [folder, path] = files[{rows, place}];
    if (folder) return path;
    folder = std::make_unique<TempFolder>(place);
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

const std::string& FastFileOf(int rows) { return FileOf(rows, TempFolder::FastPlace()); }

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
    Database db = engine.OpenDatabase(FastFileOf(DrawsOfACentury), flags);
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
    sqlite3* handle = OpenPlain(FastFileOf(DrawsOfACentury));
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

// What a store routine does around one row: open, count, seek, append, close.
void AppendOneRow(benchmark::State& state) {
    const auto rows = static_cast<int>(state.range(0));
    const std::string& path = FastFileOf(rows);
    Engine engine;
    OpenFlags flags;
    for (auto _ : state) {
        Database db = engine.OpenDatabase(path, flags);
        Recordset rs = db.OpenTable("WinLotto649");
        const int count = rs.RecordCount();
        rs.Index("Date");
        rs.Seek(rows / 2);
        rs.AddNew();
        rs[0] = count + 1;
        rs[1] = Date::FromDays(count + 1);
        for (int i = 2; i < Fields; ++i) rs[i] = "07";
        rs.Update();
    }
}
BENCHMARK(AppendOneRow)->Arg(1'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond);

void OpenAndClose(benchmark::State& state) {
    Engine engine;
    OpenFlags flags;
    for (auto _ : state) benchmark::DoNotOptimize(engine.OpenDatabase(FastFileOf(1'000), flags));
}
BENCHMARK(OpenAndClose)->Unit(benchmark::kMillisecond);

// A delete walk enters anew behind each row; that must not walk the rows of the same date again.
void MoveAmongRowsOfOneDate(benchmark::State& state) {
    constexpr int Rows = 30'000;
    const std::string& path = FastFileOf(Rows);
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

// Ten rows, each on the disk before the next, at a place that has to be synced.
constexpr int Updates = 10;

void DurableUpdatesByVerbs(benchmark::State& state) {
    const std::string& path = FileOf(1'001, std::filesystem::temp_directory_path());
    Engine engine;
    OpenFlags flags;
    Database db = engine.OpenDatabase(path, flags);
    Recordset rs = db.OpenTable("WinLotto649");
    for (auto _ : state) {
        for (int row = 0; row < Updates; ++row) {
            rs.AddNew();
            rs[0] = rs.RecordCount() + 1;
            rs[1] = Date::FromDays(1);
            for (int i = 2; i < Fields; ++i) rs[i] = i;
            rs.Update();
        }
    }
}
BENCHMARK(DurableUpdatesByVerbs)->Unit(benchmark::kMillisecond)->UseRealTime();

void DurableUpdatesByPlainInsert(benchmark::State& state) {
    sqlite3* handle = OpenPlain(FileOf(1'002, std::filesystem::temp_directory_path()));
    sqlite3_stmt* insert = nullptr;
    sqlite3_prepare_v2(handle, "INSERT INTO WinLotto649 VALUES (?, 1, 2, 3, 4, 5, 6, 7, 8)", -1, &insert,
                       nullptr);
    static int id = 1'002;  // the program runs this more than once over the same file
    for (auto _ : state) {
        for (int row = 0; row < Updates; ++row) {
            sqlite3_bind_int(insert, 1, ++id);
            if (sqlite3_step(insert) != SQLITE_DONE) state.SkipWithError("refused");
            sqlite3_reset(insert);
        }
    }
    sqlite3_finalize(insert);
    sqlite3_close(handle);
}
BENCHMARK(DurableUpdatesByPlainInsert)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
}  // namespace sorvane::Dao

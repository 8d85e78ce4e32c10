// Any bytes at the place of the database: every verb on every table of it, and nothing but a RunTimeError may
// come out. Inputs start from a small sound file.
#include <sqlite3.h>
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "platform/RunTimeError.h"
#include "store/dao/Dao.h"

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t most);

namespace {

using namespace sorvane;

constexpr int MostRows = 100;
constexpr int MostTables = 8;

std::string PlaceOf(const char* name) {
    const std::filesystem::path memory = "/dev/shm";
    const auto folder =
        std::filesystem::is_directory(memory) ? memory : std::filesystem::temp_directory_path();
    return (folder / ("sorvane-fuzz-" + std::to_string(getpid()) + "-" + name)).string();
}

// A sound file with all types of fields, both kinds of indexes, and what strangers add.
std::string SoundFile() {
    const std::string path = PlaceOf("sound");
    std::filesystem::remove(path);
    sqlite3* handle = nullptr;
    sqlite3_open(path.c_str(), &handle);
    sqlite3_exec(handle, R"(
        PRAGMA page_size = 512;
        CREATE TABLE Spent (ID1 LONG, Lottoflag TEXT(30), Date DATETIME, Spent CURRENCY,
                            "# of Balls" INTEGER(16), Regular BOOLEAN);
        CREATE UNIQUE INDEX "Spent.ID1" ON Spent (ID1);
        CREATE INDEX "Spent.Date" ON Spent (Date);
        WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 30)
        INSERT INTO Spent SELECT i, 'BC49', 46000 + i / 3, i * 0.25, i, i % 2 FROM n;
        CREATE TABLE Other (a, b VARCHAR UNIQUE);
        INSERT INTO Other VALUES (1, 'x'), (2.5, NULL), (x'00', 'y');
        CREATE TABLE Flat (k PRIMARY KEY, v) WITHOUT ROWID;
        CREATE TRIGGER t AFTER INSERT ON Spent BEGIN DELETE FROM Other; END;
        CREATE VIEW Seen AS SELECT * FROM Spent;)",
                 nullptr, nullptr, nullptr);
    sqlite3_close(handle);
    std::ifstream file(path, std::ios::binary);
    std::string bytes{std::istreambuf_iterator<char>(file), {}};
    std::filesystem::remove(path);
    return bytes;
}

std::vector<std::string> TablesOf(const std::string& path) {
    std::vector<std::string> names = {"Spent"};
    sqlite3* handle = nullptr;
    sqlite3_open_v2(path.c_str(), &handle, SQLITE_OPEN_READONLY, nullptr);
    sqlite3_exec(
        handle, "SELECT name FROM sqlite_schema WHERE type = 'table'",
        [](void* to, int, char** cells, char**) {
            auto& list = *static_cast<std::vector<std::string>*>(to);
            if (cells[0] != nullptr) list.emplace_back(cells[0]);
            return list.size() > MostTables ? 1 : 0;
        },
        &names, nullptr);
    sqlite3_close(handle);
    return names;
}

void ReadAll(Dao::Recordset& rs) {
    for (int i = 0; i < rs.FieldCount(); ++i) {
        ErrorOf([&] { rs[i].ToInt(); });
        ErrorOf([&] { rs[i].ToCurrency(); });
        ErrorOf([&] { rs[i].ToDate().ToText(); });
        ErrorOf([&] { rs[i].ToBool(); });
        ErrorOf([&] { rs[i].ToText(); });
    }
}

void Walk(Dao::Recordset& rs) {
    ErrorOf([&] {
        rs.MoveFirst();
        for (int row = 0; row < MostRows && !rs.AtEOF(); ++row) {
            ReadAll(rs);
            rs.MoveNext();
        }
    });
}

void Change(Dao::Recordset& rs) {
    ErrorOf([&] {
        rs.MoveLast();
        rs.Edit();
        for (int i = 0; i < rs.FieldCount(); ++i) ErrorOf([&] { rs[i] = i + 40000; });
        rs.Update();
        ReadAll(rs);
    });
    ErrorOf([&] {
        rs.AddNew();
        for (int i = 0; i < rs.FieldCount(); ++i) ErrorOf([&] { rs[i] = "7"; });
        rs.Update();
    });
    ErrorOf([&] {
        rs.MoveFirst();
        for (int row = 0; row < 3 && !rs.AtEOF(); ++row) {
            rs.Delete();
            rs.MoveNext();
        }
    });
    ErrorOf([&] { rs.RecordCount(); });
}

void UseTable(Dao::Database& db, const std::string& name) {
    ErrorOf([&] {
        Dao::Recordset sql = db.OpenSql("SELECT * FROM [" + name + "] ORDER BY [Date] DESC");
        Walk(sql);
    });
    ErrorOf([&] {
        Dao::Recordset rs = db.OpenTable(name);
        ErrorOf([&] { rs.RecordCount(); });
        Walk(rs);
        for (const char* index : {"ID1", "Date"}) {
            ErrorOf([&] {
                rs.Index(index);
                Walk(rs);
                rs.Seek(46003);
                rs.MoveNext();
                ReadAll(rs);
            });
            Change(rs);
        }
        Change(rs);
    });
    ErrorOf([&] { db.AppendIndex(name, "New", "ID1", true); });
}

void Use(const std::string& path) {
    Dao::Engine engine;
    Dao::OpenFlags flags;
    ErrorOf([&] {
        Dao::Database db = engine.OpenDatabase(path, flags);
        for (const std::string& name : TablesOf(path)) UseTable(db, name);
        Dao::TableDef table("New");
        table.AppendField("ID1", Dao::FieldType::Long);
        ErrorOf([&] { db.Append(table); });
        db.Close();
    });
    if (flags.DbOpen != 0 || flags.RsOpen != 0) std::abort();
}

}  // namespace

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t most,
                                               unsigned) {
    static const std::string sound = SoundFile();
    if (size < 100 && sound.size() <= most) {
        std::memcpy(data, sound.data(), sound.size());
        size = sound.size();
    }
    return LLVMFuzzerMutate(data, size, most);
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const std::string path = PlaceOf("file");
    for (const char* tail : {"", "-journal", "-wal", "-shm"}) std::filesystem::remove(path + tail);
    std::ofstream(path, std::ios::binary)
        .write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
    Use(path);
    return 0;
}

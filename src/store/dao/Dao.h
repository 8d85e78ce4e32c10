// The engine's verbs over one SQLite file: workspace, database, table definition, recordset.
//
// Errors are RunTimeErrors with the engine's numbers: 3010 table exists, 3011 table not found (table-type),
// 3015 index not found, 3019 no index set, 3020 Update without AddNew or Edit, 3021 no current record, 3022
// key taken, 3024 file not found, 3026 disk full, 3043 disk or network error, 3051 no permission or not a
// file, 3058 Null in a primary key, 3078 table not found (SQL), 3163 text too long, 3167 record deleted, 3260
// locked by another, 3265 no such field, 3343 not a database or damaged, 3420 verb on a closed object, 3421
// value does not convert, 94 Null read into a value. Any verb may raise the disk, lock and damage numbers.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include "platform/Currency.h"
#include "platform/Date.h"
#include "platform/Integer.h"

namespace sorvane::Dao {

// What is open, as the program's error tails and its exit know it. An object sets its flag to 1 when it opens
// and to 0 when it closes (its destructor closes).
struct OpenFlags {
    Integer DbOpen;
    Integer RsOpen;
    Integer WsOpen;
};

// Numbers of the engine's field types; what stands in the file is the name beside each.
enum class FieldType {
    Other = 0,     // declared by somebody else: holds whatever is stored
    Boolean = 1,   // BOOLEAN, 0 or 1, False when never written
    Integer = 3,   // INTEGER(16)
    Long = 4,      // LONG, 32 bits
    Currency = 5,  // CURRENCY, plain decimal with at most four decimals
    Date = 8,      // DATETIME, days as a double
    Text = 10,     // TEXT(size)
};

// A value on its way into or out of a field. Null until written.
class Value {
  public:
    Value() = default;
    Value(bool value) : held_(value) {}                           // NOLINT(google-explicit-constructor)
    Value(int value) : held_(std::int64_t{value}) {}              // NOLINT(google-explicit-constructor)
    Value(long value) : held_(std::int64_t{value}) {}             // NOLINT(google-explicit-constructor)
    Value(long long value) : held_(std::int64_t{value}) {}        // NOLINT(google-explicit-constructor)
    Value(Integer value) : held_(std::int64_t{int{value}}) {}     // NOLINT(google-explicit-constructor)
    Value(double value) : held_(value) {}                         // NOLINT(google-explicit-constructor)
    Value(Currency value) : held_(value) {}                       // NOLINT(google-explicit-constructor)
    Value(Date value) : held_(value) {}                           // NOLINT(google-explicit-constructor)
    Value(std::string value) : held_(std::move(value)) {}         // NOLINT(google-explicit-constructor)
    Value(std::string_view value) : held_(std::string(value)) {}  // NOLINT(google-explicit-constructor)
    Value(const char* value) : held_(std::string(value)) {}       // NOLINT(google-explicit-constructor)

    bool IsNull() const { return std::holds_alternative<std::monostate>(held_); }

    // Each raises 94 on Null, 13 where the value is nothing of the kind, 6 where it does not fit.
    int ToInt() const;          // 32 bits
    Integer ToInteger() const;  // 16 bits
    bool ToBool() const;
    Currency ToCurrency() const;
    Date ToDate() const;
    std::string ToText() const;  // a number as plain decimal text, a date in the program's short form

    using Held = std::variant<std::monostate, bool, std::int64_t, double, Currency, Date, std::string>;
    const Held& Get() const { return held_; }

  private:
    Held held_;
};

class Recordset;
class RecordsetState;
class DatabaseState;

// A field of the current row: reads from it, and writes to it between AddNew or Edit and Update.
class Field {
  public:
    Field(Recordset& recordset, int ordinal) : recordset_(recordset), ordinal_(ordinal) {}
    // The value converts to the field's type at once, else 3421 (3163 for a text too long). Outside AddNew
    // and Edit raises 3020.
    Field& operator=(const Value& value);
    Field(const Field&) = default;
    Field& operator=(const Field&) = delete;
    operator Value() const;  // NOLINT(google-explicit-constructor)
    bool IsNull() const { return Value(*this).IsNull(); }
    // Whether it holds this text to the letter. A value that is no text never does.
    bool Is(std::string_view text) const;
    int ToInt() const;
    Integer ToInteger() const { return ToInt(); }
    bool ToBool() const { return Value(*this).ToBool(); }
    Currency ToCurrency() const { return Value(*this).ToCurrency(); }
    Date ToDate() const { return Value(*this).ToDate(); }
    std::string ToText() const { return Value(*this).ToText(); }

  private:
    Recordset& recordset_;
    int ordinal_;
};

// Rows of a table in insertion order, or in the order of the index once one is set (equal keys in insertion
// order); or the rows of an SQL SELECT, read whole when it opened, which can't be written (3020), sought
// (3019) or put in the order of an index (3015). Opens on its first row.
//
// A loop of MoveNext and field reads holds a lock that lets nobody else write; any other verb gives it back.
class Recordset {
  public:
    Recordset(Recordset&&) noexcept;
    Recordset& operator=(Recordset&&) = delete;
    ~Recordset();  // closes

    // Exact number of rows, also while others write; needs no move.
    int RecordCount();
    bool BOF() const;
    bool AtEOF() const;  // the name EOF is taken by <cstdio>
    bool NoMatch() const;

    // Selects "ID1" or "Date"; 3015 when the table has no such index. Leaves no current row.
    void Index(std::string_view name);
    // First row with that key in index order, else NoMatch and no current row. 3019 without Index.
    void Seek(const Value& key);

    void MoveFirst();  // 3021 on an empty recordset
    void MoveNext();   // from the last row to AtEOF; at AtEOF raises 3021
    void MoveLast();   // 3021 on an empty recordset

    // By ordinal from 0, or by name; 3265 when there is none. Reading needs a current row (3021; 3167 when it
    // was deleted).
    Field operator[](int ordinal);
    Field operator[](std::string_view name);
    int FieldCount() const;

    void AddNew();
    void Edit();  // 3021 without a current row
    // On the disk when it returns, but under OneCommit; the position is unchanged by AddNew. When it raises,
    // nothing is written and the new or changed row is still there to be mended; a move, AddNew or Edit drops
    // it.
    void Update();
    void Delete();  // the position stays on the deleted row until a move

    void Close();

  private:
    friend class Database;
    friend class Field;
    explicit Recordset(std::unique_ptr<RecordsetState> state);
    RecordsetState& Live() const;
    std::unique_ptr<RecordsetState> state_;
};

// A table under construction. Its verbs append; Database::Append makes it.
class TableDef {
  public:
    struct FieldDef {
        std::string name;
        FieldType type;
        int size;  // of a text
    };
    explicit TableDef(std::string name) : name_(std::move(name)) {}
    void AppendField(std::string name, FieldType type, int size = 0) {
        fields_.push_back({std::move(name), type, size});
    }
    const std::string& Name() const { return name_; }
    const std::vector<FieldDef>& Fields() const { return fields_; }

  private:
    std::string name_;
    std::vector<FieldDef> fields_;
};

// An open file. Closes its recordsets before itself.
class Database {
  public:
    Database(Database&&) noexcept;
    Database& operator=(Database&&) = delete;
    ~Database();  // closes

    Recordset OpenTable(std::string_view name);  // 3011
    // A SELECT whose ? take the values in turn; 3078 when its table is absent. Rows that its ORDER BY leaves
    // equal come in insertion order.
    Recordset OpenSql(std::string_view sql, std::initializer_list<Value> values = {});

    bool HasTable(std::string_view name);
    void Append(const TableDef& table);  // 3010 when it exists
    // Makes the index `name` over one field of a table that exists (3011). A primary one takes no Null (3058)
    // and no key twice (3022). 3010 when the table has an index of that name.
    void AppendIndex(std::string_view table, std::string_view name, std::string_view field, bool primary);

    // From here to the close nobody else writes (3260 when another does for longer than a second), and all
    // that is written is one commit, made by the close. Close raises when that fails: then nothing of it is
    // written, and the database is closed all the same. An error of the disk in between undoes all of it at
    // once: what is written behind it, and the close, raise 3043.
    void OneCommit();

    void Close();

  private:
    friend class Engine;
    explicit Database(std::unique_ptr<DatabaseState> state);
    DatabaseState& Live() const;
    std::unique_ptr<DatabaseState> state_;
};

class Workspace {
  public:
    Workspace(Workspace&&) noexcept;
    Workspace& operator=(Workspace&&) = delete;
    ~Workspace();  // closes

    Database OpenDatabase(const std::string& path);
    // An empty database on disk; a file that exists is left alone (raises 75). 76 when its folder is missing.
    Database CreateDatabase(const std::string& path, std::string_view locale);
    void Close();

  private:
    friend class Engine;
    Workspace(class Engine& engine, OpenFlags& flags);
    class Engine* engine_;
    OpenFlags* flags_;
};

class Engine {
  public:
    // `vfs`: name of the SQLite file layer, empty for the system's (tests pass one that fails on purpose).
    explicit Engine(std::string vfs = {}) : vfs_(std::move(vfs)) {}

    Workspace CreateWorkspace(std::string_view name, std::string_view user, std::string_view password,
                              OpenFlags& flags);
    Workspace Workspaces(int item, OpenFlags& flags);  // item 0, the default one
    // 3024 when there is no file, 3051 when it is a folder or may not be read, 3343 when it is no database or
    // damaged, 3260 when another holds it for longer than a second. A file of no bytes is an empty database.
    Database OpenDatabase(const std::string& path, OpenFlags& flags);

  private:
    friend class Workspace;
    std::string vfs_;
};

}  // namespace sorvane::Dao

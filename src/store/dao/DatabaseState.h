// An open file and what is open on it.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "store/dao/Column.h"
#include "store/dao/Dao.h"
#include "store/dao/Sqlite.h"

namespace sorvane::Dao {

// What a recordset does behind its verbs. It belongs to its Recordset and is known to its database, which may
// close first.
class RecordsetState {
  public:
    explicit RecordsetState(DatabaseState& database) : database_(&database) {}
    RecordsetState(const RecordsetState&) = delete;
    RecordsetState& operator=(const RecordsetState&) = delete;
    virtual ~RecordsetState();

    bool IsOpen() const { return database_ != nullptr; }
    // Lets go of the file for good.
    void Close();

    const std::vector<Column>& Columns() const { return columns_; }
    virtual int RecordCount() = 0;
    virtual bool BOF() = 0;
    virtual bool AtEOF() = 0;
    virtual bool NoMatch() const = 0;
    virtual void Index(std::string_view name) = 0;
    virtual void Seek(const Value& key) = 0;
    virtual void MoveFirst() = 0;
    virtual void MoveNext() = 0;
    virtual void MoveLast() = 0;
    virtual Value Get(int ordinal) = 0;
    virtual int GetInt(int ordinal) { return Get(ordinal).ToInt(); }
    virtual bool Holds(int ordinal, std::string_view text);
    virtual void Set(int ordinal, const Value& value) = 0;
    virtual void AddNew() = 0;
    virtual void Edit() = 0;
    virtual void Update() = 0;
    virtual void Delete() = 0;

    // Keeps the current row in memory and lets go of the lock of a walk.
    virtual void Leave() = 0;

  protected:
    DatabaseState& Database() const { return *database_; }
    void SetColumns(std::vector<Column> columns) { columns_ = std::move(columns); }
    // Called last by a constructor: an opening that fails leaves the flags alone.
    void Opened();
    // Gives back all statements.
    virtual void Release() = 0;

  private:
    DatabaseState* database_;
    std::vector<Column> columns_;
    bool opened_ = false;
};

// An index of a table, as far as a recordset asks about it.
struct KeyIndex {
    std::string name;
    std::string field;  // its first one; empty for an expression
    bool unique;
    bool partial;
};

class DatabaseState {
  public:
    DatabaseState(const std::string& path, const std::string& vfs, OpenFlags& flags);
    DatabaseState(const DatabaseState&) = delete;
    DatabaseState& operator=(const DatabaseState&) = delete;
    ~DatabaseState();

    bool IsOpen() const { return connection_.IsOpen(); }
    // Closes the recordsets, commits what OneCommit held back, and closes the file even if that raises.
    void Close();

    Statement Prepare(std::string_view sql) const { return connection_.Prepare(sql); }

    // The table's name as it stands in the file. Views, virtual tables and SQLite's own don't exist.
    std::optional<std::string> FindTable(std::string_view name) const;
    std::vector<Column> ColumnsOf(std::string_view table) const;
    std::vector<KeyIndex> IndexesOf(std::string_view table) const;
    int CountOf(std::string_view table) const;
    void Append(const TableDef& table);
    void AppendIndex(std::string_view table, std::string_view name, std::string_view field, bool primary);
    void OneCommit();

    // Runs a statement that changes the file; gives the number of rows changed. It is on disk then, but under
    // OneCommit.
    int Write(Statement& statement);
    // Grows with every write through this connection, whatever came of it.
    std::int64_t Writes() const { return writes_; }
    // Whether nobody else can write until the close.
    bool Alone() const { return oneCommit_ && connection_.InTransaction(); }
    // Number of the row added last.
    std::int64_t AddedRow() const { return sqlite3_last_insert_rowid(connection_.Handle()); }
    // Another number after any other connection has committed.
    std::int64_t DataVersion();

  private:
    friend class RecordsetState;
    bool Exists(std::string_view name) const;
    void LeaveAll();

    Connection connection_;
    OpenFlags& flags_;
    std::vector<RecordsetState*> recordsets_;
    Statement dataVersion_;
    std::int64_t writes_ = 0;
    bool oneCommit_ = false;
};

// Name of an index in the file: "PlayedBC49.Date".
std::string IndexName(std::string_view table, std::string_view index);
// The statements that make a table, and an index of that name over one field of it.
std::string TableSql(const TableDef& table);
std::string IndexSql(std::string_view table, std::string_view index, std::string_view field, bool unique);

}  // namespace sorvane::Dao

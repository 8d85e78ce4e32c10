#include "store/dao/DatabaseState.h"

#include <utility>

#include "platform/RunTimeError.h"

namespace sorvane::Dao {

void RecordsetState::Opened() {
    database_->recordsets_.push_back(this);
    database_->flags_.RsOpen = On;
    opened_ = true;
}

bool RecordsetState::Holds(int ordinal, std::string_view text) {
    const Value value = Get(ordinal);
    const auto* held = std::get_if<std::string>(&value.Get());
    return held != nullptr && *held == text;
}

RecordsetState::~RecordsetState() {
    if (!IsOpen() || !opened_) return;
    std::erase(database_->recordsets_, this);
    database_->flags_.RsOpen = Off;
}

void RecordsetState::Close() {
    Release();
    DatabaseState& database = *std::exchange(database_, nullptr);
    std::erase(database.recordsets_, this);
    database.flags_.RsOpen = Off;
}

DatabaseState::DatabaseState(const std::string& path, const std::string& vfs, OpenFlags& flags)
    : connection_(path, vfs, OpenAs::Existing), flags_(flags) {
    flags_.DbOpen = On;
}

DatabaseState::~DatabaseState() {
    // A destructor cannot report a commit that fails. Callers who need to know call Close.
    if (IsOpen()) ErrorOf([this] { Close(); });
}

void DatabaseState::Close() {
    while (!recordsets_.empty()) recordsets_.back()->Close();
    dataVersion_ = {};
    Connection closing = std::move(connection_);
    flags_.DbOpen = Off;
    if (!oneCommit_) return;
    if (!closing.InTransaction()) Raise(ErrorNumber::DiskError);
    closing.Execute("COMMIT");
}

std::optional<std::string> DatabaseState::FindTable(std::string_view name) const {
    Statement find = Prepare(
        "SELECT name FROM sqlite_schema WHERE type = 'table' AND rootpage > 0 "
        "AND name = ?1 COLLATE NOCASE AND name NOT LIKE 'sqlite\\_%' ESCAPE '\\'");
    find.Bind(1, std::string(name));
    if (!find.Step()) return std::nullopt;
    return find.Text(0);
}

bool DatabaseState::Exists(std::string_view name) const {
    Statement find = Prepare("SELECT 1 FROM sqlite_schema WHERE name = ?1 COLLATE NOCASE");
    find.Bind(1, std::string(name));
    return find.Step();
}

std::vector<Column> DatabaseState::ColumnsOf(std::string_view table) const {
    Statement list = Prepare("PRAGMA table_info(" + Quoted(table) + ")");
    std::vector<Column> columns;
    while (list.Step()) columns.push_back(ColumnOf(list.Text(1), list.Text(2)));
    return columns;
}

std::vector<KeyIndex> DatabaseState::IndexesOf(std::string_view table) const {
    Statement list = Prepare("PRAGMA index_list(" + Quoted(table) + ")");
    std::vector<KeyIndex> indexes;
    while (list.Step()) {
        std::string name = list.Text(1);
        Statement fields = Prepare("PRAGMA index_xinfo(" + Quoted(name) + ")");
        fields.Step();
        indexes.push_back({std::move(name), fields.Text(2), list.Int64(2) != 0, list.Int64(4) != 0});
    }
    return indexes;
}

int DatabaseState::CountOf(std::string_view table) const {
    // Counting reads no cell, and checking the cells would take longer than the count itself.
    struct Unchecked {
        explicit Unchecked(const Connection& counted) : connection(counted) { connection.CheckCells(false); }
        Unchecked(const Unchecked&) = delete;
        Unchecked& operator=(const Unchecked&) = delete;
        ~Unchecked() { connection.CheckCells(true); }
        const Connection& connection;
    };
    const Unchecked unchecked(connection_);
    Statement count = Prepare("SELECT count(*) FROM " + Quoted(table));
    count.Step();
    return static_cast<int>(count.Int64(0));
}

void DatabaseState::Append(const TableDef& table) {
    if (Exists(table.Name())) Raise(ErrorNumber::TableExists);
    Statement create = Prepare(TableSql(table));
    Write(create);
}

void DatabaseState::AppendIndex(std::string_view table, std::string_view name, std::string_view field,
                                bool primary) {
    const auto found = FindTable(table);
    if (!found) Raise(ErrorNumber::TableNotFound);
    if (Exists(IndexName(*found, name))) Raise(ErrorNumber::TableExists);
    const std::vector<Column> columns = ColumnsOf(*found);
    const std::string& key = columns[static_cast<std::size_t>(OrdinalOf(columns, field))].name;
    if (primary && Prepare("SELECT 1 FROM " + Quoted(*found) + " WHERE " + Quoted(key) + " IS NULL").Step())
        Raise(ErrorNumber::NullInKey);
    Statement create = Prepare(IndexSql(*found, name, key, primary));
    Write(create);
}

void DatabaseState::OneCommit() {
    LeaveAll();
    connection_.Execute("BEGIN IMMEDIATE");
    oneCommit_ = true;
}

int DatabaseState::Write(Statement& statement) {
    // SQLite has undone the rows before this one; alone it would be a part of the routine.
    if (oneCommit_ && !connection_.InTransaction()) Raise(ErrorNumber::DiskError);
    // With a walk open on this connection, SQLite would not wait for a lock that somebody else holds.
    LeaveAll();
    ++writes_;
    statement.Step();
    return sqlite3_changes(connection_.Handle());
}

std::int64_t DatabaseState::DataVersion() {
    constexpr std::int64_t VersionWhileAlone = -1;
    if (Alone()) return VersionWhileAlone;
    if (!dataVersion_) dataVersion_ = Prepare("PRAGMA data_version");
    dataVersion_.Step();
    const std::int64_t version = dataVersion_.Int64(0);
    dataVersion_.Reset();
    return version;
}

void DatabaseState::LeaveAll() {
    for (RecordsetState* recordset : recordsets_) recordset->Leave();
}

std::string IndexName(std::string_view table, std::string_view index) {
    return std::string(table) + "." + std::string(index);
}

std::string TableSql(const TableDef& table) {
    std::string fields;
    for (const TableDef::FieldDef& field : table.Fields()) {
        if (!fields.empty()) fields += ", ";
        fields += Quoted(field.name) + " " + DeclaredType(field.type, field.size);
    }
    return "CREATE TABLE " + Quoted(table.Name()) + " (" + fields + ")";
}

std::string IndexSql(std::string_view table, std::string_view index, std::string_view field, bool unique) {
    return std::string("CREATE ") + (unique ? "UNIQUE " : "") + "INDEX " + Quoted(IndexName(table, index)) +
           " ON " + Quoted(table) + " (" + Quoted(field) + ")";
}

}  // namespace sorvane::Dao

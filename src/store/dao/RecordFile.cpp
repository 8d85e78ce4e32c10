#include "store/dao/RecordFile.h"

#include <system_error>
#include <utility>

#include "platform/RunTimeError.h"
#include "store/dao/Column.h"
#include "store/dao/DatabaseState.h"
#include "store/dao/Sqlite.h"

namespace sorvane::Dao {

namespace {

namespace fs = std::filesystem;

std::string Utf8(const fs::path& path) {
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

std::unique_ptr<Connection> Open(const fs::path& path, const std::string& vfs, OpenAs as) {
    return std::make_unique<Connection>(Utf8(path), vfs, as);
}

std::unique_ptr<Connection> OpenExisting(const fs::path& path, const std::string& vfs) {
    std::error_code none;
    const fs::file_type type = fs::status(path, none).type();
    if (type == fs::file_type::not_found) Raise(ErrorNumber::StoreFileNotFound);
    if (type != fs::file_type::regular) Raise(ErrorNumber::NoPermission);
    return Open(path, vfs, OpenAs::Existing);
}

std::unique_ptr<Statement> Prepared(const Connection& connection, const std::string& sql) {
    return std::make_unique<Statement>(connection.Prepare(sql));
}

std::string FieldList(const FileTable& table) {
    std::string list;
    for (const FileField& field : table.fields) list += ", " + Quoted(field.name);
    return list;
}

std::vector<FieldType> TypesOf(const FileTable& table) {
    std::vector<FieldType> types;
    for (const FileField& field : table.fields) types.push_back(field.type);
    return types;
}

std::vector<FileField> FieldsOf(const Connection& connection, const std::string& table) {
    Statement list = connection.Prepare("SELECT name, type FROM pragma_table_info(?1) ORDER BY cid");
    list.Bind(1, table);
    std::vector<FileField> fields;
    while (list.Step())
        fields.push_back({list.Text(0), list.Text(1), ColumnOf(list.Text(0), list.Text(1)).type});
    return fields;
}

std::vector<FileIndex> IndexesOf(const Connection& connection, const std::string& table) {
    Statement list = connection.Prepare(
        "SELECT i.name, i.\"unique\", i.partial, count(*), min(x.name) "
        "FROM pragma_index_list(?1) i, pragma_index_info(i.name) x GROUP BY i.name ORDER BY i.seq DESC");
    list.Bind(1, table);
    std::vector<FileIndex> indexes;
    while (list.Step()) {
        const bool plain = list.Int64(2) == 0 && list.Int64(3) == 1;
        indexes.push_back({list.Text(0), plain ? list.Text(4) : std::string(), list.Int64(1) != 0});
    }
    return indexes;
}

void BindAll(Statement& statement, const std::vector<Value>& row) {
    for (std::size_t i = 0; i < row.size(); ++i) Bind(statement, static_cast<int>(i) + 1, row[i]);
}

// Copies by the engine's own means; the parts are small, so that nobody waits long for one.
class PageCopy {
  public:
    PageCopy(const Connection& from, const Connection& to)
        : copy_(sqlite3_backup_init(to.Handle(), "main", from.Handle(), "main")) {
        if (copy_ == nullptr) RaiseResult(sqlite3_extended_errcode(to.Handle()));
    }
    PageCopy(const PageCopy&) = delete;
    PageCopy& operator=(const PageCopy&) = delete;
    ~PageCopy() { sqlite3_backup_finish(copy_); }

    // True once all is copied. Somebody who keeps writing makes the copy begin anew each time; after so many
    // parts the rest is copied in one go.
    bool Step() {
        constexpr int PagesAtOnce = 256;
        constexpr int MostParts = 4096;
        const int result = sqlite3_backup_step(copy_, ++parts_ < MostParts ? PagesAtOnce : -1);
        if (result == SQLITE_DONE) return true;
        if (result != SQLITE_OK) RaiseResult(result);
        return false;
    }
    int Done() const { return InAll() - sqlite3_backup_remaining(copy_); }
    int InAll() const { return sqlite3_backup_pagecount(copy_); }

  private:
    sqlite3_backup* copy_;
    int parts_ = 0;
};

}  // namespace

std::string DeclaredAs(FieldType type, int size) { return DeclaredType(type, size); }

Rows::Rows(std::unique_ptr<Statement> statement, std::vector<FieldType> types)
    : statement_(std::move(statement)), types_(std::move(types)) {}
Rows::Rows(Rows&&) noexcept = default;
Rows::~Rows() = default;

void Rows::Restart(const Value& key) {
    statement_->Reset();
    const int parameters = sqlite3_bind_parameter_count(statement_->Handle());
    if (parameters == 0) return;
    const auto* day = std::get_if<Date>(&key.Get());
    statement_->Bind(1, day != nullptr ? ToCell(static_cast<long long>(day->Day())) : ToCell(key));
    if (parameters > 1) statement_->Bind(2, ToCell(static_cast<long long>(key.ToDate().Day()) + 1));
}

bool Rows::Next() { return statement_->Step(); }
std::int64_t Rows::Number() const { return statement_->Int64(0); }

Value Rows::At(int field) const {
    return ReadValue(statement_->ValueAt(field + 1), types_[static_cast<std::size_t>(field)]);
}

Storage Rows::StoredAs(int field) const {
    switch (sqlite3_value_type(statement_->ValueAt(field + 1))) {
        case SQLITE_INTEGER:
            return Storage::Whole;
        case SQLITE_FLOAT:
            return Storage::Real;
        case SQLITE_TEXT:
            return Storage::Text;
        case SQLITE_BLOB:
            return Storage::Bytes;
        default:
            return Storage::Null;
    }
}

RowWriter::RowWriter(const Connection& connection, std::unique_ptr<Statement> add,
                     std::unique_ptr<Statement> replace)
    : connection_(connection), add_(std::move(add)), replace_(std::move(replace)) {}
RowWriter::RowWriter(RowWriter&&) noexcept = default;
RowWriter::~RowWriter() = default;

bool RowWriter::Add(const std::vector<Value>& row) {
    BindAll(*add_, row);
    add_->Step();
    return sqlite3_changes(connection_.Handle()) == 1;
}

void RowWriter::Replace(std::int64_t number, const std::vector<Value>& row) {
    BindAll(*replace_, row);
    replace_->Bind(static_cast<int>(row.size()) + 1, number);
    replace_->Step();
}

RecordFile::RecordFile(const fs::path& path, const std::string& vfs)
    : vfs_(vfs), connection_(OpenExisting(path, vfs)) {}
RecordFile::~RecordFile() = default;

void RecordFile::Make(const fs::path& path, const std::string& vfs) {
    OpenFlags flags;
    Engine(vfs).Workspaces(0, flags).CreateDatabase(Utf8(path), "").Close();
}

Contents RecordFile::Read() const {
    Contents contents;
    Statement list = connection_->Prepare(
        "SELECT s.name, s.type, coalesce(t.type = 'table' AND NOT t.wr, 0), s.type = 'table' "
        "FROM sqlite_schema s LEFT JOIN pragma_table_list t ON t.schema = 'main' AND t.name = s.name "
        "AND s.type = 'table' WHERE s.type <> 'index' AND s.name NOT LIKE 'sqlite\\_%' ESCAPE '\\' "
        "ORDER BY s.rowid");
    while (list.Step()) {
        const std::string name = list.Text(0);
        if (list.Int64(2) != 0)
            contents.tables.push_back({name, FieldsOf(*connection_, name), IndexesOf(*connection_, name)});
        else contents.others.push_back((list.Int64(3) != 0 ? "unusual table" : list.Text(1)) + " " + name);
    }
    return contents;
}

std::vector<std::string> RecordFile::Damage(int most) const {
    Statement check = connection_->Prepare("PRAGMA integrity_check(" + std::to_string(most) + ")");
    std::vector<std::string> damage;
    while (check.Step()) damage.push_back(check.Text(0));
    if (damage == std::vector<std::string>{"ok"}) damage.clear();
    return damage;
}

int RecordFile::CountRows(const FileTable& table) const {
    Statement count = connection_->Prepare("SELECT count(*) FROM " + Quoted(table.name));
    count.Step();
    return static_cast<int>(count.Int64(0));
}

void RecordFile::Begin(Hold hold) {
    constexpr const char* Begins[] = {"BEGIN", "BEGIN IMMEDIATE", "BEGIN EXCLUSIVE"};
    connection_->Execute(Begins[static_cast<int>(hold)]);
    // A transaction holds nothing before its first look at the file.
    if (hold == Hold::Read) connection_->Execute("SELECT count(*) FROM sqlite_schema");
}

void RecordFile::Commit() {
    const int error = ErrorOf([this] { connection_->Execute("COMMIT"); });
    if (error == 0) return;
    Rollback();
    Raise(error);
}

void RecordFile::Rollback() {
    // A failure of the disk has undone it already.
    if (connection_->InTransaction()) connection_->Execute("ROLLBACK");
}

void RecordFile::Append(const TableDef& table, bool indexed) {
    connection_->Execute(TableSql(table));
    if (!indexed) return;
    connection_->Execute(IndexSql(table.Name(), "ID1", "ID1", true));
    connection_->Execute(IndexSql(table.Name(), "Date", "Date", false));
}

Rows RecordFile::AllRows(const FileTable& table, Order order) const {
    const std::string by = order == Order::ByKey ? Quoted("ID1") + ", rowid" : "rowid";
    return {Prepared(*connection_,
                     "SELECT rowid" + FieldList(table) + " FROM " + Quoted(table.name) + " ORDER BY " + by),
            TypesOf(table)};
}

Rows RecordFile::RowsWhere(const FileTable& table, std::string_view field) const {
    const std::string name = Quoted(field);
    bool date = false;
    for (const FileField& one : table.fields)
        if (one.name == field) date = one.type == FieldType::Date;
    return {Prepared(*connection_,
                     "SELECT rowid" + FieldList(table) + " FROM " + Quoted(table.name) + " WHERE " + name +
                         (date ? " >= ?1 AND " + name + " < ?2" : std::string(" = ?1")) + " ORDER BY rowid"),
            TypesOf(table)};
}

RowWriter RecordFile::Writer(const FileTable& table) const {
    std::string names, marks, sets;
    for (const FileField& field : table.fields) {
        const char* comma = names.empty() ? "" : ", ";
        names += comma + Quoted(field.name);
        marks += std::string(comma) + "?";
        sets += comma + Quoted(field.name) + " = ?";
    }
    const std::string name = Quoted(table.name);
    return {
        *connection_,
        Prepared(*connection_, "INSERT OR IGNORE INTO " + name + " (" + names + ") VALUES (" + marks + ")"),
        Prepared(*connection_, "UPDATE " + name + " SET " + sets + " WHERE rowid = ?")};
}

int RecordFile::CountAnew(const FileTable& table, std::string_view field) const {
    struct Change {
        std::int64_t number, key;
    };
    const std::string name = Quoted(table.name);
    const std::string key = Quoted(field);
    std::vector<Change> changes;
    Statement rows =
        connection_->Prepare("SELECT rowid, " + key + " FROM " + name + " ORDER BY " + key + ", rowid");
    for (std::int64_t next = 1; rows.Step(); ++next) {
        const Cell held = rows.At(1);
        const auto* number = std::get_if<std::int64_t>(&held);
        if (number == nullptr || *number != next) changes.push_back({rows.Int64(0), next});
    }
    // Without a key first, so that no new one meets an old one that is still to change.
    Statement clear = connection_->Prepare("UPDATE " + name + " SET " + key + " = NULL WHERE rowid = ?1");
    for (const Change& change : changes) {
        clear.Bind(1, change.number);
        clear.Step();
    }
    Statement set = connection_->Prepare("UPDATE " + name + " SET " + key + " = ?2 WHERE rowid = ?1");
    for (const Change& change : changes) {
        set.Bind(1, change.number);
        set.Bind(2, change.key);
        set.Step();
    }
    return static_cast<int>(changes.size());
}

void RecordFile::CopyTo(const fs::path& path, const std::function<void(int, int)>& told) const {
    Make(path, vfs_);
    const std::unique_ptr<Connection> to = Open(path, vfs_, OpenAs::Existing);
    PageCopy copy(*connection_, *to);
    while (!copy.Step()) told(copy.Done(), copy.InAll());
    told(copy.InAll(), copy.InAll());
}

}  // namespace sorvane::Dao

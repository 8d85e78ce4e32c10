#include "store/dao/Dao.h"

#include <filesystem>
#include <utility>

#include "platform/RunTimeError.h"
#include "store/dao/DatabaseState.h"
#include "store/dao/SqlRecordset.h"
#include "store/dao/TableRecordset.h"

namespace sorvane::Dao {

namespace {

using std::filesystem::file_type;

std::filesystem::path PathOf(const std::string& utf8) { return std::u8string(utf8.begin(), utf8.end()); }

file_type TypeOf(const std::filesystem::path& path) {
    std::error_code ignored;
    return std::filesystem::status(path, ignored).type();
}

// SQLite has one error for a folder and for a file without permission, and would wait for a pipe forever.
void RefuseNoFile(const std::string& path) {
    const file_type type = TypeOf(PathOf(path));
    if (type == file_type::not_found) Raise(ErrorNumber::StoreFileNotFound);
    if (type != file_type::regular) Raise(ErrorNumber::NoPermission);
    // SQLite takes a file of one byte for an empty one and would write over it.
    std::error_code ignored;
    if (std::filesystem::file_size(PathOf(path), ignored) == 1) Raise(ErrorNumber::NotADatabase);
}

template <class State>
State& Open(const std::unique_ptr<State>& state) {
    if (!state || !state->IsOpen()) Raise(ErrorNumber::ObjectClosed);
    return *state;
}

}  // namespace

Field& Field::operator=(const Value& value) {
    recordset_.Live().Set(ordinal_, value);
    return *this;
}

Field::operator Value() const { return recordset_.Live().Get(ordinal_); }

bool Field::Is(std::string_view text) const { return recordset_.Live().Holds(ordinal_, text); }
int Field::ToInt() const { return recordset_.Live().GetInt(ordinal_); }

Recordset::Recordset(std::unique_ptr<RecordsetState> state) : state_(std::move(state)) {}
Recordset::Recordset(Recordset&&) noexcept = default;
Recordset::~Recordset() = default;
RecordsetState& Recordset::Live() const { return Open(state_); }

int Recordset::RecordCount() { return Live().RecordCount(); }
bool Recordset::BOF() const { return Live().BOF(); }
bool Recordset::AtEOF() const { return Live().AtEOF(); }
bool Recordset::NoMatch() const { return Live().NoMatch(); }
void Recordset::Index(std::string_view name) { Live().Index(name); }
void Recordset::Seek(const Value& key) { Live().Seek(key); }
void Recordset::MoveFirst() { Live().MoveFirst(); }
void Recordset::MoveNext() { Live().MoveNext(); }
void Recordset::MoveLast() { Live().MoveLast(); }
int Recordset::FieldCount() const { return static_cast<int>(Live().Columns().size()); }
void Recordset::AddNew() { Live().AddNew(); }
void Recordset::Edit() { Live().Edit(); }
void Recordset::Update() { Live().Update(); }
void Recordset::Delete() { Live().Delete(); }
void Recordset::Close() { state_.reset(); }

Field Recordset::operator[](int ordinal) {
    if (ordinal < 0 || ordinal >= FieldCount()) Raise(ErrorNumber::NoSuchField);
    return {*this, ordinal};
}

Field Recordset::operator[](std::string_view name) { return {*this, OrdinalOf(Live().Columns(), name)}; }

Database::Database(std::unique_ptr<DatabaseState> state) : state_(std::move(state)) {}
Database::Database(Database&&) noexcept = default;
Database::~Database() = default;
DatabaseState& Database::Live() const { return Open(state_); }

Recordset Database::OpenTable(std::string_view name) {
    auto table = Live().FindTable(name);
    if (!table) Raise(ErrorNumber::TableNotFound);
    return Recordset(std::make_unique<TableRecordset>(Live(), std::move(*table)));
}

Recordset Database::OpenSql(std::string_view sql, std::initializer_list<Value> values) {
    return Recordset(std::make_unique<SqlRecordset>(Live(), sql, values));
}

bool Database::HasTable(std::string_view name) { return Live().FindTable(name).has_value(); }
void Database::Append(const TableDef& table) { Live().Append(table); }
void Database::AppendIndex(std::string_view table, std::string_view name, std::string_view field,
                           bool primary) {
    Live().AppendIndex(table, name, field, primary);
}
void Database::OneCommit() { Live().OneCommit(); }

void Database::Close() {
    if (state_ && state_->IsOpen()) state_->Close();
}

Workspace::Workspace(Engine& engine, OpenFlags& flags) : engine_(&engine), flags_(&flags) {
    flags_->WsOpen = On;
}

Workspace::Workspace(Workspace&& other) noexcept
    : engine_(std::exchange(other.engine_, nullptr)), flags_(other.flags_) {}

Workspace::~Workspace() { Close(); }

void Workspace::Close() {
    if (std::exchange(engine_, nullptr) != nullptr) flags_->WsOpen = Off;
}

Database Workspace::OpenDatabase(const std::string& path) {
    if (engine_ == nullptr) Raise(ErrorNumber::ObjectClosed);
    return engine_->OpenDatabase(path, *flags_);
}

Database Workspace::CreateDatabase(const std::string& path, std::string_view) {
    if (engine_ == nullptr) Raise(ErrorNumber::ObjectClosed);
    const std::filesystem::path file = PathOf(path);
    if (TypeOf(file) != file_type::not_found) Raise(ErrorNumber::PathFileAccess);
    if (file.has_parent_path() && TypeOf(file.parent_path()) != file_type::directory)
        Raise(ErrorNumber::PathNotFound);
    // A first write, since other tools can't tell what an empty file is.
    constexpr const char* MarkAsOurs = "PRAGMA application_id = 0x536F7276";
    Connection(path, engine_->vfs_, OpenAs::New).Execute(MarkAsOurs);
    return engine_->OpenDatabase(path, *flags_);
}

Workspace Engine::CreateWorkspace(std::string_view, std::string_view, std::string_view, OpenFlags& flags) {
    return {*this, flags};
}

Workspace Engine::Workspaces(int item, OpenFlags& flags) {
    if (item != 0) Raise(ErrorNumber::NoSuchField);
    return {*this, flags};
}

Database Engine::OpenDatabase(const std::string& path, OpenFlags& flags) {
    RefuseNoFile(path);
    return Database(std::make_unique<DatabaseState>(path, vfs_, flags));
}

}  // namespace sorvane::Dao

#include "store/dao/Sqlite.h"

#include <chrono>
#include <utility>

#include "platform/RunTimeError.h"

namespace sorvane::Dao {

namespace {

// How long a file that another holds is waited for, and how often it is asked for meanwhile. Often, because
// who saves sheet after sheet gives the file back for a moment only.
constexpr std::chrono::milliseconds LongestWait{1000};
constexpr std::chrono::microseconds BetweenTwoTries{500};

int WaitForTheFile(void* waiting, int tries) {
    auto& wait = *static_cast<Connection::Wait*>(waiting);
    const auto now = std::chrono::steady_clock::now();
    if (tries == 0) wait.since = now;
    // The clock alone would not end the wait of a test, in which it takes no time.
    if (tries >= LongestWait / BetweenTwoTries || now - wait.since >= LongestWait) return 0;
    wait.vfs->xSleep(wait.vfs, static_cast<int>(BetweenTwoTries.count()));
    return 1;
}

int NumberOfConstraint(int result) {
    switch (result) {
        case SQLITE_CONSTRAINT_UNIQUE:
        case SQLITE_CONSTRAINT_PRIMARYKEY:
        case SQLITE_CONSTRAINT_ROWID:
            return ErrorNumber::KeyTaken;
        case SQLITE_CONSTRAINT_NOTNULL:
            return ErrorNumber::NullInKey;
        default:
            return ErrorNumber::Conversion;
    }
}

int NumberOf(int result) {
    if (result == SQLITE_IOERR_NOMEM) return ErrorNumber::OutOfMemory;
    switch (result & 0xff) {
        case SQLITE_NOMEM:
            return ErrorNumber::OutOfMemory;
        case SQLITE_FULL:
            return ErrorNumber::DiskFull;
        case SQLITE_BUSY:
        case SQLITE_LOCKED:
        case SQLITE_PROTOCOL:
            return ErrorNumber::Locked;
        case SQLITE_READONLY:
        case SQLITE_PERM:
        case SQLITE_AUTH:
        case SQLITE_CANTOPEN:
            return ErrorNumber::NoPermission;
        case SQLITE_IOERR:
            return ErrorNumber::DiskError;
        case SQLITE_CONSTRAINT:
            return NumberOfConstraint(result);
        case SQLITE_TOOBIG:
        case SQLITE_MISMATCH:
            return ErrorNumber::Conversion;
        default:
            return ErrorNumber::NotADatabase;
    }
}

}  // namespace

void RaiseResult(int result) { Raise(NumberOf(result)); }

std::string Quoted(std::string_view name) {
    std::string quoted = "\"";
    for (const char letter : name) {
        if (letter == '"') quoted += '"';
        quoted += letter;
    }
    return quoted + '"';
}

Statement::Statement(sqlite3* connection, std::string_view sql) {
    sqlite3_stmt* handle = nullptr;
    const int result =
        sqlite3_prepare_v2(connection, sql.data(), static_cast<int>(sql.size()), &handle, nullptr);
    handle_.reset(handle);
    if (result != SQLITE_OK) RaiseResult(result);
}

void Statement::RaiseUnlessBound(int result) {
    if (result != SQLITE_OK) RaiseResult(result);
}

void Statement::Bind(int parameter, const Cell& cell) {
    std::visit([&](const auto& held) { Bind(parameter, held); }, cell);
}
void Statement::Bind(int parameter, std::monostate) {
    RaiseUnlessBound(sqlite3_bind_null(Handle(), parameter));
}
void Statement::Bind(int parameter, std::int64_t number) {
    RaiseUnlessBound(sqlite3_bind_int64(Handle(), parameter, number));
}
void Statement::Bind(int parameter, double number) {
    RaiseUnlessBound(sqlite3_bind_double(Handle(), parameter, number));
}
void Statement::Bind(int parameter, const std::string& text) {
    RaiseUnlessBound(
        sqlite3_bind_text64(Handle(), parameter, text.data(), text.size(), SQLITE_TRANSIENT, SQLITE_UTF8));
}
void Statement::Bind(int parameter, const Blob& blob) {
    RaiseUnlessBound(
        sqlite3_bind_blob64(Handle(), parameter, blob.bytes.data(), blob.bytes.size(), SQLITE_TRANSIENT));
}

bool Statement::Step() {
    const int result = sqlite3_step(handle_.get());
    if (result == SQLITE_ROW) return true;
    Reset();
    if (result != SQLITE_DONE) RaiseResult(result);
    return false;
}

std::string TextOf(sqlite3_value* value) {
    const auto* bytes = static_cast<const char*>(sqlite3_value_blob(value));
    const auto size = static_cast<std::size_t>(sqlite3_value_bytes(value));
    return bytes == nullptr ? std::string() : std::string(bytes, size);
}

Cell Statement::At(int column) const {
    sqlite3_value* value = ValueAt(column);
    switch (sqlite3_value_type(value)) {
        case SQLITE_INTEGER:
            return sqlite3_value_int64(value);
        case SQLITE_FLOAT:
            return sqlite3_value_double(value);
        case SQLITE_TEXT:
            return TextOf(value);
        case SQLITE_BLOB:
            return Blob{TextOf(value)};
        default:
            return {};
    }
}

Connection::Connection(const std::string& path, const std::string& vfs, OpenAs as) {
    const int flags =
        SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX | (as == OpenAs::New ? SQLITE_OPEN_CREATE : 0);
    sqlite3* handle = nullptr;
    const int result = sqlite3_open_v2(path.c_str(), &handle, flags, vfs.empty() ? nullptr : vfs.c_str());
    handle_.reset(handle);
    if (result != SQLITE_OK) RaiseResult(handle == nullptr ? result : sqlite3_extended_errcode(handle));
    Configure();
}

void Connection::Configure() {
    sqlite3_extended_result_codes(Handle(), 1);
    sqlite3_file_control(Handle(), "main", SQLITE_FCNTL_VFS_POINTER, &wait_->vfs);
    sqlite3_busy_handler(Handle(), WaitForTheFile, wait_.get());
    constexpr std::pair<int, int> Switches[] = {
        {SQLITE_DBCONFIG_DEFENSIVE, 1},   {SQLITE_DBCONFIG_ENABLE_TRIGGER, 0},
        {SQLITE_DBCONFIG_ENABLE_VIEW, 0}, {SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0},
        {SQLITE_DBCONFIG_DQS_DML, 0},     {SQLITE_DBCONFIG_DQS_DDL, 0},
        {SQLITE_DBCONFIG_ENABLE_FKEY, 0},
    };
    for (const auto& [name, value] : Switches) sqlite3_db_config(Handle(), name, value, nullptr);
    CheckCells(true);
    Execute("PRAGMA mmap_size = 0");
    Execute("PRAGMA temp_store = MEMORY");
    Execute("PRAGMA synchronous = EXTRA");
    // Another tool may have left the file with a write-ahead log. Then some rows are in a second file, and
    // the file can't be opened in a folder that may only be read.
    Statement journal = Prepare("PRAGMA journal_mode = DELETE");
    if (!journal.Step() || journal.Text(0) != "delete") Raise(ErrorNumber::Locked);
    CheckLength();
}

void Connection::CheckCells(bool on) const noexcept {
    sqlite3_exec(Handle(), on ? "PRAGMA cell_size_check = ON" : "PRAGMA cell_size_check = OFF", nullptr,
                 nullptr, nullptr);
}

// SQLite reads a last page that is cut off as if zeros followed. The statement holds a lock, so that the
// file's length doesn't change meanwhile.
void Connection::CheckLength() {
    Statement schema = Prepare("SELECT count(*) FROM sqlite_schema");
    schema.Step();
    Statement pages = Prepare("PRAGMA page_count");
    Statement bytesAPage = Prepare("PRAGMA page_size");
    pages.Step();
    bytesAPage.Step();
    sqlite3_file* file = nullptr;
    sqlite3_int64 bytes = 0;
    sqlite3_file_control(Handle(), "main", SQLITE_FCNTL_FILE_POINTER, &file);
    const int result = file->pMethods->xFileSize(file, &bytes);
    if (result != SQLITE_OK) RaiseResult(result);
    if (bytes < pages.Int64(0) * bytesAPage.Int64(0)) Raise(ErrorNumber::NotADatabase);
}

}  // namespace sorvane::Dao

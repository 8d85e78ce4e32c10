// The one place where SQLite's interface is called: handles that close themselves, errors as the engine's
// numbers.
#pragma once

#include <sqlite3.h>

#include <chrono>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <variant>

namespace sorvane::Dao {

struct Blob {
    std::string bytes;
};

// A value as it stands in the file. Monostate is Null.
using Cell = std::variant<std::monostate, std::int64_t, double, std::string, Blob>;

// Throws the engine's number for a result code of SQLite.
[[noreturn]] void RaiseResult(int result);

// The bytes of a text or blob, and of a number its text.
std::string TextOf(sqlite3_value* value);

// A name as SQL takes it, whatever stands in it.
std::string Quoted(std::string_view name);

// A prepared statement, or none.
class Statement {
  public:
    Statement() = default;
    // Raises 3343 for SQL that the file does not answer to.
    Statement(sqlite3* connection, std::string_view sql);

    explicit operator bool() const { return handle_ != nullptr; }
    sqlite3_stmt* Handle() const { return handle_.get(); }

    // Parameters and columns count from 1 and from 0, as SQLite has it.
    void Bind(int parameter, const Cell& cell);
    void Bind(int parameter, std::monostate);
    void Bind(int parameter, std::int64_t number);
    void Bind(int parameter, double number);
    void Bind(int parameter, const std::string& text);
    void Bind(int parameter, const Blob& blob);
    // True on a row. A statement that has ended or failed is reset and holds no lock.
    bool Step();
    void Reset() { sqlite3_reset(handle_.get()); }

    std::int64_t Int64(int column) const { return sqlite3_column_int64(handle_.get(), column); }
    std::string Text(int column) const { return TextOf(ValueAt(column)); }
    Cell At(int column) const;
    // Good until the next step. To be read from where it is needs a connection of one thread, as ours are.
    sqlite3_value* ValueAt(int column) const { return sqlite3_column_value(handle_.get(), column); }

  private:
    struct Finalize {
        void operator()(sqlite3_stmt* handle) const { sqlite3_finalize(handle); }
    };
    static void RaiseUnlessBound(int result);
    std::unique_ptr<sqlite3_stmt, Finalize> handle_;
};

enum class OpenAs { Existing, New };

// An open file, safe against what a stranger may have put into it.
class Connection {
  public:
    // Reads the schema, so that damage shows here.
    Connection(const std::string& path, const std::string& vfs, OpenAs as);

    sqlite3* Handle() const { return handle_.get(); }
    bool IsOpen() const { return handle_ != nullptr; }
    Statement Prepare(std::string_view sql) const { return Statement(handle_.get(), sql); }
    void Execute(std::string_view sql) const { Prepare(sql).Step(); }
    // Whether each page is checked as it is read. Never raises.
    void CheckCells(bool on) const noexcept;
    bool InTransaction() const { return sqlite3_get_autocommit(handle_.get()) == 0; }
    void Close() { handle_.reset(); }

    // A wait for a file that another holds.
    struct Wait {
        sqlite3_vfs* vfs = nullptr;
        std::chrono::steady_clock::time_point since;
    };

  private:
    void Configure();
    void CheckLength();

    struct CloseHandle {
        void operator()(sqlite3* handle) const { sqlite3_close(handle); }
    };
    std::unique_ptr<Wait> wait_ = std::make_unique<Wait>();  // outlives the handle, which asks it
    std::unique_ptr<sqlite3, CloseHandle> handle_;
};

}  // namespace sorvane::Dao

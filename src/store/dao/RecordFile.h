// A file as a whole: what stands in it whoever made it, many rows in one commit, its keys counted anew, and a
// copy of it while others use it. For tools that look after the file; the program's own routines go by the
// verbs of Dao.h. Raises RunTimeErrors with the same numbers.
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "store/dao/Dao.h"

namespace sorvane::Dao {

// How a value is kept, whatever its field was declared as.
enum class Storage { Null, Whole, Real, Text, Bytes };

struct FileField {
    std::string name;
    std::string declared;  // "INTEGER(16)"
    FieldType type;
};

struct FileIndex {
    std::string name;
    std::string field;  // empty unless it goes over one whole field of all rows
    bool unique;
};

struct FileTable {
    std::string name;
    std::vector<FileField> fields;
    std::vector<FileIndex> indexes;
};

// What stands in a file beside its tables: "view Seen", "trigger t".
struct Contents {
    std::vector<FileTable> tables;  // in the order in which they were made
    std::vector<std::string> others;
};

// How a field is declared in a file that the program makes: "TEXT(30)".
std::string DeclaredAs(FieldType type, int size);

class Statement;
class Connection;

// Rows of a table, one after the other. A lock that keeps others from writing is held from the first row to
// the end, unless a transaction of this file holds it anyway.
class Rows {
  public:
    Rows(Rows&&) noexcept;
    ~Rows();

    // Begins anew, with the rows of this key where the rows were asked for by a key.
    void Restart(const Value& key = {});
    bool Next();
    // The row's own number in the file.
    std::int64_t Number() const;
    // As the verbs read it: in the field's type where it fits, else as it is stored.
    Value At(int field) const;
    Storage StoredAs(int field) const;

  private:
    friend class RecordFile;
    Rows(std::unique_ptr<Statement> statement, std::vector<FieldType> types);
    std::unique_ptr<Statement> statement_;
    std::vector<FieldType> types_;
};

// Writes rows into one table. Every field is written; the values are in their fields' types already.
class RowWriter {
  public:
    RowWriter(RowWriter&&) noexcept;
    ~RowWriter();
    // False when the file does not take the row beside those it has: its key is taken. Nothing is written
    // then.
    bool Add(const std::vector<Value>& row);
    void Replace(std::int64_t number, const std::vector<Value>& row);

  private:
    friend class RecordFile;
    RowWriter(const Connection& connection, std::unique_ptr<Statement> add,
              std::unique_ptr<Statement> replace);
    const Connection& connection_;
    std::unique_ptr<Statement> add_;
    std::unique_ptr<Statement> replace_;
};

enum class Order { Inserted, ByKey };

class RecordFile {
  public:
    // The file must exist (3024) and be a file (3051). `vfs` as for Engine.
    explicit RecordFile(const std::filesystem::path& path, const std::string& vfs = {});
    RecordFile(const RecordFile&) = delete;
    RecordFile& operator=(const RecordFile&) = delete;
    // What was not committed is undone.
    ~RecordFile();

    // An empty database; raises 75 when there is a file already.
    static void Make(const std::filesystem::path& path, const std::string& vfs = {});

    Contents Read() const;
    // What is wrong with the file's own structure, one finding a text, `most` at most; empty when it is
    // whole.
    std::vector<std::string> Damage(int most) const;
    int CountRows(const FileTable& table) const;

    // Read: all that is read from here on is of one moment. Write: besides, nobody else writes. Alone:
    // besides, nobody else reads.
    enum class Hold { Read, Write, Alone };
    void Begin(Hold hold);
    // On the disk when it returns. When it raises, nothing of it is in the file.
    void Commit();
    void Rollback();

    // With the two indexes of a table of the program, on "ID1" and "Date", or without.
    void Append(const TableDef& table, bool indexed);
    Rows AllRows(const FileTable& table, Order order) const;
    // The rows whose field has that value, a date whatever its time of day, in insertion order.
    Rows RowsWhere(const FileTable& table, std::string_view field) const;
    RowWriter Writer(const FileTable& table) const;
    // Writes 1 to n into the field, in the order of its values; gives how many rows that changed.
    int CountAnew(const FileTable& table, std::string_view field) const;

    // Copies all of the file as it is at one moment to a new file, a part at a time, so that others can go on
    // writing meanwhile. Tells the parts done and in all.
    void CopyTo(const std::filesystem::path& path, const std::function<void(int, int)>& told) const;

  private:
    std::string vfs_;
    std::unique_ptr<Connection> connection_;
};

}  // namespace sorvane::Dao

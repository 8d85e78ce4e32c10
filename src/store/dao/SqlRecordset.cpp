#include "store/dao/SqlRecordset.h"

#include <string>
#include <utility>

#include "platform/RunTimeError.h"

namespace sorvane::Dao {

namespace {

struct Word {
    std::string text;
    bool quoted = false;
};

bool IsWordLetter(char letter) {
    return (letter >= '0' && letter <= '9') || (letter >= 'A' && letter <= 'Z') ||
           (letter >= 'a' && letter <= 'z') || letter == '_' || static_cast<unsigned char>(letter) >= 0x80;
}

// The words of a statement in their order, quoted names without their quotes; signs and texts are left out.
std::vector<Word> WordsOf(std::string_view sql) {
    std::vector<Word> words;
    std::size_t at = 0;
    while (at < sql.size()) {
        const char letter = sql[at];
        if (IsWordLetter(letter)) {
            std::size_t end = at;
            while (end < sql.size() && IsWordLetter(sql[end])) ++end;
            words.push_back({std::string(sql.substr(at, end - at)), false});
            at = end;
        } else if (letter == '[' || letter == '"' || letter == '`' || letter == '\'') {
            const std::size_t end = sql.find(letter == '[' ? ']' : letter, at + 1);
            if (letter != '\'') words.push_back({std::string(sql.substr(at + 1, end - at - 1)), true});
            at = end == std::string_view::npos ? sql.size() : end + 1;
        } else {
            ++at;
        }
    }
    return words;
}

bool IsKeyword(const Word& word, std::string_view keyword) {
    return !word.quoted &&
           sqlite3_strnicmp(word.text.c_str(), keyword.data(), static_cast<int>(word.text.size()) + 1) == 0;
}

struct Select {
    std::string table;
    bool ordered = false;
};

Select SelectOf(std::string_view sql) {
    Select select;
    const std::vector<Word> words = WordsOf(sql);
    for (std::size_t i = 0; i + 1 < words.size(); ++i) {
        if (IsKeyword(words[i], "FROM") && select.table.empty()) select.table = words[i + 1].text;
        if (IsKeyword(words[i], "ORDER") && IsKeyword(words[i + 1], "BY")) select.ordered = true;
    }
    return select;
}

}  // namespace

SqlRecordset::SqlRecordset(DatabaseState& database, std::string_view sql, std::initializer_list<Value> values)
    : RecordsetState(database) {
    const Select select = SelectOf(sql);
    if (!database.FindTable(select.table)) Raise(ErrorNumber::SqlTableNotFound);
    // Equal rows keep the order in which they came.
    Statement rows = database.Prepare(std::string(sql) + (select.ordered ? ", rowid" : " ORDER BY rowid"));
    if (sqlite3_stmt_readonly(rows.Handle()) == 0) Raise(ErrorNumber::InvalidProcedureCall);
    int parameter = 0;
    for (const Value& value : values) Bind(rows, ++parameter, value);
    std::vector<Column> columns;
    for (int i = 0; i < sqlite3_column_count(rows.Handle()); ++i) {
        const char* declared = sqlite3_column_decltype(rows.Handle(), i);
        columns.push_back(
            ColumnOf(sqlite3_column_name(rows.Handle(), i), declared == nullptr ? "" : declared));
    }
    while (rows.Step()) {
        std::vector<Value>& row = rows_.emplace_back();
        for (const Column& column : columns)
            row.push_back(ReadValue(rows.ValueAt(static_cast<int>(row.size())), column.type));
    }
    SetColumns(std::move(columns));
    Opened();
}

void SqlRecordset::NeedRow() const {
    if (current_ == rows_.size()) Raise(ErrorNumber::NoCurrentRecord);
}

void SqlRecordset::MoveFirst() {
    current_ = 0;
    NeedRow();
}

void SqlRecordset::MoveNext() {
    NeedRow();
    ++current_;
}

void SqlRecordset::MoveLast() {
    current_ = rows_.size();
    if (current_ == 0) Raise(ErrorNumber::NoCurrentRecord);
    --current_;
}

Value SqlRecordset::Get(int ordinal) {
    NeedRow();
    return rows_[current_][static_cast<std::size_t>(ordinal)];
}

void SqlRecordset::Index(std::string_view) { Raise(ErrorNumber::IndexNotFound); }
void SqlRecordset::Seek(const Value&) { Raise(ErrorNumber::NoIndexSet); }
void SqlRecordset::Set(int, const Value&) { Raise(ErrorNumber::UpdateWithoutEdit); }
void SqlRecordset::AddNew() { Raise(ErrorNumber::UpdateWithoutEdit); }
void SqlRecordset::Edit() { Raise(ErrorNumber::UpdateWithoutEdit); }
void SqlRecordset::Update() { Raise(ErrorNumber::UpdateWithoutEdit); }
void SqlRecordset::Delete() { Raise(ErrorNumber::UpdateWithoutEdit); }

}  // namespace sorvane::Dao

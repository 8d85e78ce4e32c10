#include "store/dao/TableRecordset.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "platform/RunTimeError.h"

namespace sorvane::Dao {

namespace {

// A table that another tool made may have fields with these names. It can't use all three and keep its row
// numbers.
std::string RowidOf(const std::vector<Column>& columns) {
    for (const char* name : {"rowid", "_rowid_", "oid"}) {
        if (ErrorOf([&] { OrdinalOf(columns, name); }) != 0) return name;
    }
    Raise(ErrorNumber::NotADatabase);
}

std::string ListOf(const std::vector<Column>& columns) {
    std::string list;
    for (const Column& column : columns) {
        if (!list.empty()) list += ", ";
        list += Quoted(column.name);
    }
    return list;
}

std::size_t At(int ordinal) { return static_cast<std::size_t>(ordinal); }

}  // namespace

TableRecordset::TableRecordset(DatabaseState& database, std::string table)
    : RecordsetState(database), table_(std::move(table)) {
    SetColumns(database.ColumnsOf(table_));
    rowid_ = RowidOf(Columns());
    values_.resize(Columns().size());
    selected_ = "SELECT " + rowid_ + ", " + ListOf(Columns()) + " FROM " + Quoted(table_);
    Prepared(Query::First);
    Opened();
}

void TableRecordset::Release() {
    walk_ = nullptr;
    statements_ = {};
    insert_ = {};
    delete_ = {};
}

// Not written as (key, rowid) > (?, ?): SQLite would then read all rows of the key each time a walk begins.
std::string TableRecordset::TailOf(Query query) const {
    const std::string key = Indexed() ? Quoted(ColumnAt(key_).name) : std::string();
    const std::string order = " ORDER BY " + (Indexed() ? key + ", " : "") + rowid_;
    switch (query) {
        case Query::First:
            return order + " LIMIT 1";
        case Query::Last:
            return " ORDER BY " + (Indexed() ? key + " DESC, " : "") + rowid_ + " DESC LIMIT 1";
        case Query::Behind:
            return " WHERE " + (Indexed() ? key + " IS ?2 AND " : "") + rowid_ + " > ?1 ORDER BY " + rowid_;
        case Query::NextKey:
            return " WHERE " + key + " > ?1" + order;
        case Query::NextKeyBehindNull:
            return " WHERE " + key + " IS NOT NULL" + order;
        case Query::Find:
            return " WHERE " + key + " IS ?1" + order + " LIMIT 1";
        case Query::FindDay:
            return " WHERE " + key + " >= ?1 AND " + key + " < ?2" + order + " LIMIT 1";
        case Query::ByRow:
            return " WHERE " + rowid_ + " = ?1";
    }
    return {};
}

Statement& TableRecordset::Prepared(Query query) {
    Statement& statement = statements_[static_cast<std::size_t>(query)];
    if (!statement) {
        const bool byIndex = Indexed() && query != Query::ByRow;
        statement =
            Database().Prepare(selected_ + (byIndex ? " INDEXED BY " + Quoted(index_) : "") + TailOf(query));
    }
    return statement;
}

// Reads the one row of the query; when there is one it is the current row.
bool TableRecordset::Fetch(Query query, const Cell& first, const Cell& second) {
    Leave();
    Statement& statement = Prepared(query);
    const int parameters = sqlite3_bind_parameter_count(statement.Handle());
    if (parameters > 0) statement.Bind(1, first);
    if (parameters > 1) statement.Bind(2, second);
    if (!statement.Step()) return false;
    Take(statement);
    statement.Reset();
    place_ = Place::Row;
    return true;
}

void TableRecordset::Take(const Statement& row) {
    row_ = row.Int64(0);
    rowKey_ = Indexed() ? row.At(key_ + 1) : Cell();
    for (std::size_t i = 0; i < Columns().size(); ++i)
        values_[i] = ReadValue(row.ValueAt(static_cast<int>(i) + 1), Columns()[i].type);
}

void TableRecordset::Leave() {
    if (walk_ == nullptr) return;
    Statement& walk = *std::exchange(walk_, nullptr);
    Take(walk);
    walk.Reset();
}

void TableRecordset::Settle() {
    if (place_ == Place::Opened && !Fetch(Query::First)) place_ = Place::Empty;
}

void TableRecordset::NeedRow() {
    Settle();
    if (place_ == Place::Deleted) Raise(ErrorNumber::RecordDeleted);
    if (place_ != Place::Row) Raise(ErrorNumber::NoCurrentRecord);
}

int TableRecordset::RecordCount() {
    const std::int64_t version = Database().DataVersion();
    if (!count_ || version != countVersion_ || Database().Writes() != countWrites_) {
        count_ = Database().CountOf(table_);
        countVersion_ = version;
        countWrites_ = Database().Writes();
    }
    return *count_;
}

bool TableRecordset::BOF() {
    Settle();
    return place_ == Place::Empty;
}

bool TableRecordset::AtEOF() {
    Settle();
    return place_ == Place::Empty || place_ == Place::AtEnd;
}

// None for an expression, and for a field that is reckoned from others.
std::optional<int> TableRecordset::FieldOf(const KeyIndex& index) const {
    const auto at = std::find_if(Columns().begin(), Columns().end(),
                                 [&](const Column& column) { return column.name == index.field; });
    if (at == Columns().end()) return std::nullopt;
    return static_cast<int>(at - Columns().begin());
}

void TableRecordset::Index(std::string_view name) {
    Leave();
    pending_.reset();
    const std::string wanted = IndexName(table_, name);
    const auto indexes = Database().IndexesOf(table_);
    const auto found = std::find_if(indexes.begin(), indexes.end(), [&](const KeyIndex& index) {
        return sqlite3_stricmp(index.name.c_str(), wanted.c_str()) == 0 && !index.partial &&
               FieldOf(index).has_value();
    });
    if (found == indexes.end()) Raise(ErrorNumber::IndexNotFound);
    index_ = found->name;
    key_ = *FieldOf(*found);
    end_.reset();
    statements_ = {};
    place_ = Place::Nowhere;
}

void TableRecordset::Seek(const Value& key) {
    if (!Indexed()) Raise(ErrorNumber::NoIndexSet);
    pending_.reset();
    const Column& column = ColumnAt(key_);
    const Value wanted = Converted(key, column);
    bool found = false;
    if (column.type == FieldType::Date && !wanted.IsNull()) {
        const auto day = static_cast<double>(wanted.ToDate().Day());
        found = Fetch(Query::FindDay, day, day + 1);
    } else {
        found = Fetch(Query::Find, ToCell(wanted));
    }
    noMatch_ = !found;
    if (noMatch_) place_ = Place::Nowhere;
}

void TableRecordset::MoveTo(Query end) {
    pending_.reset();
    if (Fetch(end)) return;
    place_ = Place::Empty;
    Raise(ErrorNumber::NoCurrentRecord);
}

void TableRecordset::MoveFirst() { MoveTo(Query::First); }

void TableRecordset::MoveLast() {
    if (MoveToAdded()) return;
    end_.reset();
    MoveTo(Query::Last);
    NoteEnd();
}

// Sheets are saved row by row, with a move to the end before each. While nobody else can write, the end is
// known from the row that was added last.
bool TableRecordset::MoveToAdded() {
    if (!end_ || end_->values.empty() || end_->writes != Database().Writes()) return false;
    pending_.reset();
    Leave();
    row_ = end_->row;
    values_ = std::exchange(end_->values, {});
    place_ = Place::Row;
    return true;
}

void TableRecordset::NoteEnd() {
    if (!Indexed() && Database().Alone()) end_ = End{row_, Database().Writes(), {}};
}

// Begins a walk behind the current row; with an index, among the rows of the same key.
Statement& TableRecordset::Enter() {
    Statement& walk = Prepared(Query::Behind);
    walk.Bind(1, row_);
    if (Indexed()) walk.Bind(2, rowKey_);
    walksKey_ = true;
    return walk;
}

Statement& TableRecordset::EnterNextKey() {
    const bool behindNull = std::holds_alternative<std::monostate>(rowKey_);
    Statement& walk = Prepared(behindNull ? Query::NextKeyBehindNull : Query::NextKey);
    if (!behindNull) walk.Bind(1, rowKey_);
    walksKey_ = false;
    return walk;
}

// In a damaged file a walk may come back to rows it has passed and never end. Row numbers that don't rise
// tell.
bool TableRecordset::StepWalk(Statement& walk) {
    if (!walk.Step()) return false;
    const std::int64_t row = walk.Int64(0);
    if (walksKey_ && row <= row_) {
        walk.Reset();
        Raise(ErrorNumber::NotADatabase);
    }
    row_ = row;
    return true;
}

void TableRecordset::MoveNext() {
    pending_.reset();
    Settle();
    if (place_ != Place::Row && place_ != Place::Deleted) Raise(ErrorNumber::NoCurrentRecord);
    // If the step fails, the row of the walk is lost, unless it is kept in memory.
    if (walk_ != nullptr) place_ = Place::Nowhere;
    Statement* walk = std::exchange(walk_, nullptr);
    if (walk == nullptr) walk = &Enter();
    bool onRow = StepWalk(*walk);
    if (!onRow && Indexed() && walksKey_) {
        walk = &EnterNextKey();
        onRow = StepWalk(*walk);
    }
    place_ = onRow ? Place::Row : Place::AtEnd;
    if (onRow) walk_ = walk;
}

Value TableRecordset::Get(int ordinal) {
    if (pending_) return pending_->values[At(ordinal)];
    if (walk_ != nullptr) return ReadValue(walk_->ValueAt(ordinal + 1), ColumnAt(ordinal).type);
    NeedRow();
    return values_[At(ordinal)];
}

// The tallies read nothing but plain numbers, a hundred thousand at a time. In a walk no row is in hand.
int TableRecordset::GetInt(int ordinal) {
    const FieldType type = ColumnAt(ordinal).type;
    if (walk_ != nullptr && (type == FieldType::Integer || type == FieldType::Long)) {
        sqlite3_value* cell = walk_->ValueAt(ordinal + 1);
        if (sqlite3_value_type(cell) == SQLITE_INTEGER) {
            const std::int64_t number = sqlite3_value_int64(cell);
            if (std::in_range<int>(number)) return static_cast<int>(number);
        }
    }
    return Get(ordinal).ToInt();
}

// Compares the key without copying it: a shared table has many rows to look at.
bool TableRecordset::Holds(int ordinal, std::string_view text) {
    if (walk_ == nullptr) return RecordsetState::Holds(ordinal, text);
    sqlite3_value* cell = walk_->ValueAt(ordinal + 1);
    if (sqlite3_value_type(cell) != SQLITE_TEXT) return RecordsetState::Holds(ordinal, text);
    const auto* bytes = static_cast<const char*>(sqlite3_value_blob(cell));
    return text == std::string_view(bytes, static_cast<std::size_t>(sqlite3_value_bytes(cell)));
}

void TableRecordset::Set(int ordinal, const Value& value) {
    if (!pending_) Raise(ErrorNumber::UpdateWithoutEdit);
    pending_->values[At(ordinal)] = Converted(value, ColumnAt(ordinal));
    pending_->touched[At(ordinal)] = true;
}

void TableRecordset::AddNew() {
    Leave();
    if (blank_.empty())
        for (const Column& column : Columns()) blank_.push_back(Converted({}, column));
    pending_ = Pending{true, blank_, std::vector<bool>(Columns().size(), true)};
}

void TableRecordset::Edit() {
    Leave();
    pending_.reset();
    NeedRow();
    // What another connection wrote into the row since shows now.
    if (!Fetch(Query::ByRow, row_)) {
        place_ = Place::Deleted;
        Raise(ErrorNumber::RecordDeleted);
    }
    pending_ = Pending{false, values_, std::vector<bool>(Columns().size(), false)};
}

Statement& TableRecordset::InsertOf(const Pending& pending) {
    if (!insert_) {
        std::string marks;
        for (std::size_t i = 0; i < Columns().size(); ++i) marks += i == 0 ? "?" : ", ?";
        insert_ = Database().Prepare("INSERT INTO " + Quoted(table_) + " (" + ListOf(Columns()) +
                                     ") VALUES (" + marks + ")");
    }
    for (std::size_t i = 0; i < Columns().size(); ++i)
        Bind(insert_, static_cast<int>(i) + 1, pending.values[i]);
    return insert_;
}

Statement TableRecordset::UpdateOf(const Pending& pending) {
    std::string sets;
    for (std::size_t i = 0; i < Columns().size(); ++i) {
        if (!pending.touched[i]) continue;
        sets += (sets.empty() ? "" : ", ") + Quoted(Columns()[i].name) + " = ?";
    }
    Statement update =
        Database().Prepare("UPDATE " + Quoted(table_) + " SET " + sets + " WHERE " + rowid_ + " = ?");
    int parameter = 0;
    for (std::size_t i = 0; i < Columns().size(); ++i)
        if (pending.touched[i]) Bind(update, ++parameter, pending.values[i]);
    update.Bind(++parameter, row_);
    return update;
}

// SQLite lets any number of Nulls into a unique index.
void TableRecordset::RefuseNullKeys(const Pending& pending) {
    if (!primary_) {
        primary_.emplace();
        for (const KeyIndex& index : Database().IndexesOf(table_)) {
            const auto field = FieldOf(index);
            if (field && index.unique && index.name.starts_with(IndexName(table_, "")))
                primary_->push_back(*field);
        }
    }
    for (const int ordinal : *primary_) {
        if (pending.touched[At(ordinal)] && pending.values[At(ordinal)].IsNull())
            Raise(ErrorNumber::NullInKey);
    }
}

int TableRecordset::Write(Statement& statement, int added) {
    const bool counted = count_ && countWrites_ == Database().Writes();
    const int changed = Database().Write(statement);
    if (counted) {
        *count_ += added * changed;
        countWrites_ = Database().Writes();
    }
    return changed;
}

// A new row is the last one when it has the number after that of the last, which may not be the largest there
// is.
void TableRecordset::Append() {
    Write(InsertOf(*pending_), 1);
    const std::int64_t added = Database().AddedRow();
    if (!end_ || added - 1 != end_->row) return end_.reset();
    end_ = End{added, Database().Writes(), std::move(pending_->values)};
}

void TableRecordset::Update() {
    if (!pending_) Raise(ErrorNumber::UpdateWithoutEdit);
    RefuseNullKeys(*pending_);
    if (pending_->adding) {
        Append();
    } else if (pending_->touched != std::vector<bool>(Columns().size(), false)) {
        Statement update = UpdateOf(*pending_);
        if (Write(update, 0) == 0) Raise(ErrorNumber::RecordDeleted);
        values_ = std::move(pending_->values);
        if (Indexed()) rowKey_ = ToCell(values_[At(key_)]);
    }
    pending_.reset();
}

void TableRecordset::Delete() {
    Leave();
    pending_.reset();
    NeedRow();
    if (!delete_)
        delete_ = Database().Prepare("DELETE FROM " + Quoted(table_) + " WHERE " + rowid_ + " = ?1");
    delete_.Bind(1, row_);
    const int removed = Write(delete_, -1);
    place_ = Place::Deleted;
    if (removed == 0) Raise(ErrorNumber::RecordDeleted);
    // SQLite may give the free number to the next new row, which must then come behind the position.
    if (row_ > std::numeric_limits<std::int64_t>::min()) --row_;
}

}  // namespace sorvane::Dao

// A table-type recordset: a position in an order of rows, and a statement only while rows are walked.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "store/dao/DatabaseState.h"

namespace sorvane::Dao {

class TableRecordset final : public RecordsetState {
  public:
    // `table` is a name that FindTable gave. Raises 3343 for a table whose rows have no number.
    TableRecordset(DatabaseState& database, std::string table);

    int RecordCount() override;
    bool BOF() override;
    bool AtEOF() override;
    bool NoMatch() const override { return noMatch_; }
    void Index(std::string_view name) override;
    void Seek(const Value& key) override;
    void MoveFirst() override;
    void MoveNext() override;
    void MoveLast() override;
    Value Get(int ordinal) override;
    int GetInt(int ordinal) override;
    bool Holds(int ordinal, std::string_view text) override;
    void Set(int ordinal, const Value& value) override;
    void AddNew() override;
    void Edit() override;
    void Update() override;
    void Delete() override;
    void Leave() override;

  protected:
    void Release() override;

  private:
    // Opened: on the first row, which is read when somebody asks for it.
    enum class Place { Opened, Nowhere, Row, Deleted, AtEnd, Empty };
    enum class Query { First, Last, Behind, NextKey, NextKeyBehindNull, Find, FindDay, ByRow };
    static constexpr std::size_t Queries = 8;
    struct Pending {
        bool adding;
        std::vector<Value> values;
        std::vector<bool> touched;
    };

    bool Indexed() const { return key_ >= 0; }
    const Column& ColumnAt(int ordinal) const { return Columns()[static_cast<std::size_t>(ordinal)]; }
    std::optional<int> FieldOf(const KeyIndex& index) const;
    void MoveTo(Query end);
    void Settle();
    void NeedRow();
    Statement& Prepared(Query query);
    std::string TailOf(Query query) const;
    bool Fetch(Query query, const Cell& first = {}, const Cell& second = {});
    void Take(const Statement& row);
    Statement& Enter();
    Statement& EnterNextKey();
    bool StepWalk(Statement& walk);
    Statement& InsertOf(const Pending& pending);
    Statement UpdateOf(const Pending& pending);
    void RefuseNullKeys(const Pending& pending);
    int Write(Statement& statement, int added);
    void NoteEnd();
    void Append();
    bool MoveToAdded();

    const std::string table_;
    std::string selected_;  // "SELECT rowid, fields FROM table"
    std::string rowid_;     // a name for the row's number that no field bears
    std::string index_;
    int key_ = -1;  // ordinal of the index's field
    std::array<Statement, Queries> statements_;
    Statement insert_, delete_;

    Place place_ = Place::Opened;
    bool noMatch_ = false;
    std::int64_t row_ = 0;       // number of the current row
    Cell rowKey_;                // its key, and
    std::vector<Value> values_;  // its fields; both only when no walk is open
    // The statement of the walk under way, if any, which stands on the current row.
    Statement* walk_ = nullptr;
    bool walksKey_ = false;  // through the rows of one key, or of a table without index
    std::optional<Pending> pending_;
    std::vector<Value> blank_;  // the fields of a new row, once one was begun

    // The last row of the table, as far as it is known without asking.
    struct End {
        std::int64_t row;
        std::int64_t writes;        // of the database, when it was the last
        std::vector<Value> values;  // of a row added here; else empty
    };
    std::optional<End> end_;

    std::optional<std::vector<int>> primary_;  // ordinals of the primary fields, once asked for
    std::optional<int> count_;
    std::int64_t countVersion_ = 0;
    std::int64_t countWrites_ = 0;
};

}  // namespace sorvane::Dao

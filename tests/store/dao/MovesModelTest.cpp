#include <algorithm>
#include <optional>
#include <random>

#include "DaoWorld.h"

namespace sorvane::Dao {
namespace {

// A row as the model holds it. Rows are numbered as the file numbers them: one more than the largest.
struct Row {
    std::int64_t number;
    int id;
    std::optional<int> day;
};

// The same table, plainly: a vector in insertion order, a position, and the rules of the moves.
class Model {
  public:
    enum class Place { Nowhere, OnRow, Deleted, AtEnd };

    explicit Model(bool byDate) : place(byDate ? Place::Nowhere : Place::AtEnd), byDate_(byDate) {}

    std::vector<Row> rows;
    Place place;
    Row at{};

    // Rows in the order in which they are walked: without a day first, equal days as they were inserted.
    std::vector<Row> Ordered() const {
        std::vector<Row> ordered = rows;
        if (byDate_) {
            std::stable_sort(ordered.begin(), ordered.end(),
                             [](const Row& a, const Row& b) { return a.day < b.day; });
        }
        return ordered;
    }
    void To(const std::optional<Row>& row, Place otherwise) {
        place = row ? Place::OnRow : otherwise;
        if (row) at = *row;
    }
    std::optional<Row> First() const {
        const auto ordered = Ordered();
        return ordered.empty() ? std::nullopt : std::optional(ordered.front());
    }
    std::optional<Row> Last() const {
        const auto ordered = Ordered();
        return ordered.empty() ? std::nullopt : std::optional(ordered.back());
    }
    std::optional<Row> Behind() const {
        for (const Row& row : Ordered())
            if (IsBehind(row)) return row;
        return std::nullopt;
    }
    std::optional<Row> WithDay(int day) const {
        for (const Row& row : Ordered())
            if (row.day == day) return row;
        return std::nullopt;
    }
    Row& Insert(int id, std::optional<int> day) {
        const std::int64_t number = rows.empty() ? 1 : rows.back().number + 1;
        return rows.emplace_back(Row{number, id, day});
    }
    Row* Find(std::int64_t number) {
        const auto found =
            std::find_if(rows.begin(), rows.end(), [number](const Row& row) { return row.number == number; });
        return found == rows.end() ? nullptr : &*found;
    }
    void Erase(std::int64_t number) {
        std::erase_if(rows, [number](const Row& row) { return row.number == number; });
    }

  private:
    bool IsBehind(const Row& row) const {
        if (byDate_ && row.day != at.day) return row.day > at.day;
        return row.number > at.number || (place == Place::Deleted && row.number == at.number);
    }
    bool byDate_;
};

struct Way {
    std::string name;
    bool byDate;
    bool oneCommit;
};

class Moves : public DaoWorld, public testing::WithParamInterface<Way> {
  protected:
    static constexpr int Days = 6;  // few, so that many rows share one

    void SetUp() override {
        db_.emplace(CreateEvery());
        plain_.emplace(path_);
        if (GetParam().oneCommit) db_->OneCommit();
        rs_.emplace(db_->OpenTable("Every"));
        if (GetParam().byDate) rs_->Index("Date");
        else ASSERT_TRUE(rs_->AtEOF());
    }

    int Draw(int below) { return static_cast<int>(random_() % static_cast<unsigned>(below)); }
    std::optional<int> DrawDay() {
        const int day = Draw(Days + 1);
        return day == 0 ? std::nullopt : std::optional(day);
    }
    static Value AsValue(std::optional<int> day) { return day ? Value(*day) : Value(); }
    static std::string AsSql(std::optional<int> day) { return day ? std::to_string(*day) : "NULL"; }

    void Check(int number) {
        switch (model_.place) {
            case Model::Place::OnRow:
                EXPECT_FALSE(rs_->AtEOF());
                EXPECT_EQ((*rs_)[0].ToInt(), model_.at.id);
                EXPECT_EQ((*rs_)[2].IsNull(), !model_.at.day);
                if (model_.at.day) {
                    EXPECT_EQ((*rs_)[2].ToDate(), Date::FromDays(*model_.at.day));
                }
                break;
            case Model::Place::Deleted:
                EXPECT_FALSE(rs_->AtEOF());
                EXPECT_EQ(ErrorOf([&] { (*rs_)[0].ToInt(); }), ErrorNumber::RecordDeleted);
                break;
            case Model::Place::AtEnd:
            case Model::Place::Nowhere:
                EXPECT_EQ(rs_->AtEOF(), model_.place == Model::Place::AtEnd);
                EXPECT_EQ(ErrorOf([&] { (*rs_)[0].ToInt(); }), ErrorNumber::NoCurrentRecord);
                break;
        }
        EXPECT_EQ(number, 0);
    }

    void MoveToEnd(bool last) {
        const int number = ErrorOf([&] { last ? rs_->MoveLast() : rs_->MoveFirst(); });
        model_.To(last ? model_.Last() : model_.First(), Model::Place::AtEnd);
        Check(number == ErrorNumber::NoCurrentRecord && model_.rows.empty() ? 0 : number);
    }
    void MoveNext() {
        const int number = ErrorOf([&] { rs_->MoveNext(); });
        if (model_.place == Model::Place::AtEnd || model_.place == Model::Place::Nowhere) {
            EXPECT_EQ(number, ErrorNumber::NoCurrentRecord);
            return;
        }
        model_.To(model_.Behind(), Model::Place::AtEnd);
        Check(number);
    }
    void Seek() {
        if (!GetParam().byDate) return;
        const int day = 1 + Draw(Days);
        rs_->Seek(day);
        model_.To(model_.WithDay(day), Model::Place::Nowhere);
        EXPECT_EQ(rs_->NoMatch(), model_.place == Model::Place::Nowhere);
        Check(0);
    }
    void AddRow() {
        const auto day = DrawDay();
        rs_->AddNew();
        (*rs_)[0] = ++lastId_;
        (*rs_)[2] = AsValue(day);
        rs_->Update();
        model_.Insert(lastId_, day);
        Check(0);
    }
    void EditRow() {
        if (model_.place != Model::Place::OnRow) return;
        Row* row = model_.Find(model_.at.number);
        if (row == nullptr) {
            EXPECT_EQ(ErrorOf([&] { rs_->Edit(); }), ErrorNumber::RecordDeleted);
            model_.place = Model::Place::Deleted;
            return;
        }
        row->day = DrawDay();
        rs_->Edit();
        (*rs_)[2] = AsValue(row->day);
        rs_->Update();
        model_.at = *row;
        Check(0);
    }
    void DeleteRow() {
        if (model_.place != Model::Place::OnRow) return;
        const bool there = model_.Find(model_.at.number) != nullptr;
        EXPECT_EQ(ErrorOf([&] { rs_->Delete(); }), there ? 0 : ErrorNumber::RecordDeleted);
        model_.Erase(model_.at.number);
        model_.place = Model::Place::Deleted;
        Check(0);
    }
    // Somebody else writes while no walk is under way. The last row stays: its number would be given again,
    // and nobody could tell the new row from the old.
    void OtherWrites() {
        rs_->AddNew();
        const std::size_t which =
            model_.rows.empty() ? 0 : static_cast<std::size_t>(Draw(1000)) % model_.rows.size();
        const int kind = Draw(3);
        if (kind == 0 || model_.rows.size() < 2 || which + 1 == model_.rows.size()) {
            const auto day = DrawDay();
            OtherInserts(++lastId_, day);
            model_.Insert(lastId_, day);
        } else if (kind == 1) {
            OtherDeletes(model_.rows[which].id);
            model_.Erase(model_.rows[which].number);
        } else {
            model_.rows[which].day = DrawDay();
            OtherUpdates(model_.rows[which].id, model_.rows[which].day);
        }
    }

    // Somebody else is another program, or, while nobody else may write, another recordset of the same file.
    void OtherInserts(int id, std::optional<int> day) {
        if (!GetParam().oneCommit) {
            plain_->Ask("INSERT INTO Every (ID1, Date) VALUES (" + std::to_string(id) + ", " + AsSql(day) +
                        ")");
            return;
        }
        Recordset other = db_->OpenTable("Every");
        other.AddNew();
        other[0] = id;
        other[2] = AsValue(day);
        other.Update();
    }
    void OtherDeletes(int id) {
        if (GetParam().oneCommit) RowOf(id).Delete();
        else plain_->Ask("DELETE FROM Every WHERE ID1 = " + std::to_string(id));
    }
    void OtherUpdates(int id, std::optional<int> day) {
        if (!GetParam().oneCommit) {
            plain_->Ask("UPDATE Every SET Date = " + AsSql(day) + " WHERE ID1 = " + std::to_string(id));
            return;
        }
        Recordset other = RowOf(id);
        other.Edit();
        other[2] = AsValue(day);
        other.Update();
    }
    Recordset RowOf(int id) {
        Recordset other = db_->OpenTable("Every");
        other.Index("ID1");
        other.Seek(id);
        return other;
    }

    std::mt19937 random_{20261121};
    Model model_{GetParam().byDate};
    std::optional<Database> db_;
    std::optional<Recordset> rs_;
    std::optional<PlainTool> plain_;
    int lastId_ = 0;
};

// As a sheet is saved.
TEST_P(Moves, ToTheEndBeforeEachNewRowStayRight) {
    for (int step = 0; step < 300 && !HasFailure(); ++step) {
        SCOPED_TRACE("step " + std::to_string(step));
        AddRow();
        if (Draw(4) == 0) OtherWrites();
        if (Draw(8) == 0) DeleteRow();
        MoveToEnd(true);
        if (Draw(4) == 0) EditRow();
        EXPECT_EQ(rs_->RecordCount(), static_cast<int>(model_.rows.size()));
    }
}

TEST_P(Moves, StayRightWhileRowsComeAndGo) {
    for (int step = 0; step < 6000 && !HasFailure(); ++step) {
        SCOPED_TRACE("step " + std::to_string(step));
        switch (Draw(14)) {
            case 0:
                MoveToEnd(false);
                break;
            case 1:
                MoveToEnd(true);
                break;
            case 2:
                Seek();
                break;
            case 3:
            case 4:
                AddRow();
                break;
            case 5:
                EditRow();
                break;
            case 6:
            case 7:
                DeleteRow();
                break;
            case 8:
            case 9:
                OtherWrites();
                break;
            default:
                MoveNext();
                break;
        }
        EXPECT_EQ(rs_->RecordCount(), static_cast<int>(model_.rows.size()));
    }
    EXPECT_GT(lastId_, 500);
}

INSTANTIATE_TEST_SUITE_P(WithAndWithoutIndex, Moves,
                         testing::Values(Way{"AsInserted", false, false}, Way{"ByDate", true, false},
                                         Way{"AsInsertedInOneCommit", false, true},
                                         Way{"ByDateInOneCommit", true, true}),
                         [](const auto& test) { return test.param.name; });

}  // namespace
}  // namespace sorvane::Dao

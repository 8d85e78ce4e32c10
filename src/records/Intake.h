// The way of rows into the file: all of a command's or none.
#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <unordered_set>
#include <vector>

#include "records/Commands.h"
#include "records/Csv.h"
#include "records/Files.h"
#include "records/Outside.h"
#include "records/Tables.h"
#include "store/dao/RecordFile.h"

namespace sorvane::Records {

// Where a finding stands.
struct Spot {
    long line = 1;
    long column = 1;
};

// Tells what is wrong with a file that comes in, a line each: "draws.csv:7:12: Ball_3 ...".
class Findings {
  public:
    Findings(Outside& outside, Progress& progress) : outside_(outside), progress_(progress) {}
    void Tell(const fs::path& file, Spot spot, const std::string& what);
    long Count() const { return count_; }

  private:
    Outside& outside_;
    Progress& progress_;
    long count_ = 0;
};

// One table that takes rows.
class TableSink {
  public:
    TableSink(Dao::RecordFile& file, const Table& table);

    enum class Outcome { Added, ThereAlready, KeyTaken };
    // Adds a row unless the table had it before this sink opened: under its key, or, where it has none and is
    // to get the next one, with the same values. Each row of the table stands for one row only: what the file
    // holds once more is a new row. A row that is added gets its key.
    Outcome Add(Row& row);
    // Adds it whatever is there.
    Outcome AddAlways(Row& row);

    // The rows of a day, in insertion order.
    struct Found {
        std::int64_t number;
        bool added;  // by this sink
        Row row;
    };
    std::vector<Found> OfDay(Date day);
    void Replace(std::int64_t number, const Row& row) { writer_.Replace(number, row); }

  private:
    using Days = std::vector<bool>;
    void ReadWhatIsThere();
    bool TakeEqual(const Row& row);
    Outcome Compare(const Row& row);
    Date DayOf(const Row& row) const { return row[static_cast<std::size_t>(dayAt_)].ToDate(); }
    static std::size_t Slot(Date day);
    Found Read(const Dao::Rows& rows) const;

    const Table& table_;
    int dayAt_;  // -1 where there is none
    Dao::FileTable shape_;
    Dao::RecordFile& file_;
    Dao::RowWriter writer_;
    std::optional<Dao::Rows> byDay_;
    std::optional<Dao::Rows> byKey_;
    std::int64_t lastBefore_ = 0;  // the number of the last row before this sink opened
    long before_ = 0;
    std::int64_t nextKey_ = 1;
    Days days_;  // with rows, those of this sink included
    // The rows of one day that were there before and that no row met yet, by their values.
    std::optional<long> cachedDay_;
    std::multimap<std::string, std::int64_t> unmet_;
    std::unordered_set<std::int64_t> met_;
};

// The file that rows go into: the player's own, or a new one that takes its place in the end.
class Intake {
  public:
    // From here on nobody else writes.
    Intake(Outside& outside, const Place& place, bool dryRun);
    Intake(const Intake&) = delete;
    Intake& operator=(const Intake&) = delete;

    // Makes the table where it is missing, with its pair. Refuses one that is not as the program makes it.
    TableSink Open(const Table& table);
    // All rows are in the file when it returns; a dry run leaves them out.
    void Finish();

  private:
    void MakeIfMissing(const Table& table);
    const Place& place_;
    bool dryRun_;
    std::optional<NewFile> staged_;
    // Closed, which undoes what is not finished, before the file that is not to stay is removed.
    std::unique_ptr<Dao::RecordFile> file_;
};

// Finishes an intake without findings and says what was `told` of its tables; else says how many there are.
// Gives the exit status.
int Conclude(Outside& outside, Intake& intake, const Findings& findings, const std::vector<std::string>& told,
             bool dryRun);

}  // namespace sorvane::Records

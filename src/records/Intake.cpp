#include "records/Intake.h"

#include <algorithm>
#include <random>
#include <utility>

#include "platform/Text.h"
#include "records/Cells.h"

namespace sorvane::Records {

void Findings::Tell(const fs::path& file, Spot spot, const std::string& what) {
    progress_.Wipe();
    ++count_;
    outside_.words << file.string() << ':' << spot.line << ':' << spot.column << ": " << what << '\n';
}

namespace {

constexpr int KeyAt = 0;

// All values but the key, parted so that no two rows read alike.
std::string TextOf(const Row& row) {
    std::string text;
    for (std::size_t i = KeyAt + 1; i < row.size(); ++i) text += WriteCell(row[i]) + '\x1f';
    return text;
}

}  // namespace

TableSink::TableSink(Dao::RecordFile& file, const Table& table)
    : table_(table),
      dayAt_(table.DayAt()),
      shape_(AsInFile(table)),
      file_(file),
      writer_(file.Writer(shape_)) {
    byKey_.emplace(file.RowsWhere(shape_, PrimaryFieldName));
    if (dayAt_ >= 0) byDay_.emplace(file.RowsWhere(shape_, DateFieldName));
    before_ = file.CountRows(shape_);
    days_.resize(Slot(Date::FromDays(Date::LastDay)) + 1);
    ReadWhatIsThere();
}

std::size_t TableSink::Slot(Date day) { return static_cast<std::size_t>(day.Day() - Date::FirstDay); }

void TableSink::ReadWhatIsThere() {
    nextKey_ = before_ + 1;
    Dao::Rows rows = file_.AllRows(shape_, Dao::Order::Inserted);
    rows.Restart();
    while (rows.Next()) {
        lastBefore_ = std::max(lastBefore_, rows.Number());
        const Dao::Value key = rows.At(KeyAt);
        if (const auto* number = std::get_if<std::int64_t>(&key.Get()))
            nextKey_ = std::max(nextKey_, *number + 1);
        if (dayAt_ < 0) continue;
        const Dao::Value day = rows.At(dayAt_);
        if (const auto* date = std::get_if<Date>(&day.Get())) days_[Slot(*date)] = true;
    }
}

TableSink::Found TableSink::Read(const Dao::Rows& rows) const {
    Found found{rows.Number(), rows.Number() > lastBefore_, {}};
    for (std::size_t i = 0; i < table_.fields.size(); ++i) found.row.push_back(rows.At(static_cast<int>(i)));
    return found;
}

std::vector<TableSink::Found> TableSink::OfDay(Date day) {
    std::vector<Found> found;
    if (!days_[Slot(day)]) return found;
    byDay_->Restart(day);
    while (byDay_->Next()) found.push_back(Read(*byDay_));
    return found;
}

// A row without a key, and an equal one that was there before and was not met yet.
bool TableSink::TakeEqual(const Row& row) {
    const Date day = DayOf(row);
    if (before_ == 0 || !days_[Slot(day)]) return false;
    if (cachedDay_ != day.Day()) {
        cachedDay_ = day.Day();
        unmet_.clear();
        for (const Found& found : OfDay(day))
            if (!found.added && met_.count(found.number) == 0)
                unmet_.emplace(TextOf(found.row), found.number);
    }
    const auto equal = unmet_.find(TextOf(row));
    if (equal == unmet_.end()) return false;
    met_.insert(equal->second);
    unmet_.erase(equal);
    return true;
}

// The key is taken: by this very row or by another.
TableSink::Outcome TableSink::Compare(const Row& row) {
    byKey_->Restart(row[KeyAt]);
    bool same = false;
    while (byKey_->Next()) same = same || TextOf(Read(*byKey_).row) == TextOf(row);
    return same ? Outcome::ThereAlready : Outcome::KeyTaken;
}

TableSink::Outcome TableSink::Add(Row& row) {
    const bool keyed = !row[KeyAt].IsNull();
    if (!keyed && dayAt_ >= 0 && TakeEqual(row)) return Outcome::ThereAlready;
    // No index looks after the keys of the scratch table.
    if (keyed && !table_.creator->indexed && before_ > 0 && Compare(row) == Outcome::ThereAlready)
        return Outcome::ThereAlready;
    return AddAlways(row);
}

TableSink::Outcome TableSink::AddAlways(Row& row) {
    constexpr std::int64_t LastKey = 2'147'483'647;
    const bool keyed = !row[KeyAt].IsNull();
    if (!keyed && nextKey_ > LastKey)
        throw Refusal(table_.name + ": no key is left; \"sorvane-records renumber\" makes room");
    if (!keyed) row[KeyAt] = static_cast<long long>(nextKey_);
    if (!writer_.Add(row)) return Compare(row);
    nextKey_ = std::max(nextKey_, std::get<std::int64_t>(row[KeyAt].Get()) + 1);
    if (dayAt_ >= 0) days_[Slot(DayOf(row))] = true;
    return Outcome::Added;
}

namespace {

// A file that goes with the run stands where nobody looks.
fs::path PlaceOfADryRun() {
    std::random_device random;
    return fs::temp_directory_path() / ("sorvane-records-" + std::to_string(random()) + ".mdb");
}

}  // namespace

Intake::Intake(Outside& outside, const Place& place, bool dryRun) : place_(place), dryRun_(dryRun) {
    fs::path path = place.File();
    if (!fs::exists(path)) {
        if (!dryRun) MakeFolders(place.folder);
        staged_.emplace(dryRun ? PlaceOfADryRun() : path);
        path = staged_->Path();
        Dao::RecordFile::Make(path, outside.vfs);
    }
    file_ = std::make_unique<Dao::RecordFile>(path, outside.vfs);
    file_->Begin(Dao::RecordFile::Hold::Write);
}

void Intake::MakeIfMissing(const Table& table) {
    const Dao::FileTable due = AsInFile(table);
    for (const Dao::FileTable& found : file_->Read().tables) {
        if (!SameWord(found.name, table.name)) continue;
        if (SameShape(found, due)) return;
        throw Refusal(place_.File().string() + ": " + table.name +
                      " is not as Sorvane makes it; \"sorvane-records check\" tells more");
    }
    file_->Append(Define(table), table.creator->indexed);
}

TableSink Intake::Open(const Table& table) {
    MakeIfMissing(table);
    if (!table.pair.empty()) MakeIfMissing(*FindTable(table.pair));
    return {*file_, table};
}

void Intake::Finish() {
    if (dryRun_) return;
    file_->Commit();
    file_.reset();
    if (staged_) staged_->PutIfFree();
}

int Conclude(Outside& outside, Intake& intake, const Findings& findings, const std::vector<std::string>& told,
             bool dryRun) {
    if (findings.Count() > 0) {
        outside.words << Counted(findings.Count(), "finding") << "; nothing was changed\n";
        return Refused;
    }
    intake.Finish();
    for (const std::string& line : told)
        if (!line.empty()) outside.words << line << '\n';
    if (dryRun) outside.words << "a dry run: nothing was changed\n";
    return Done;
}

}  // namespace sorvane::Records

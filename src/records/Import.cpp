#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "platform/Text.h"
#include "records/Cells.h"
#include "records/Commands.h"
#include "records/Csv.h"
#include "records/Intake.h"
#include "records/Tables.h"

namespace sorvane::Records {

namespace {

// What a file may lack: what the program's writers leave to the table, and what the table says itself.
bool MayLack(const Table& table, const Field& field) {
    return field.means == Means::Key || field.means == Means::Mark || field.mayBeNull ||
           (field.means == Means::Game && table.game != nullptr);
}

// One CSV file on its way into one table.
class TableImport {
  public:
    TableImport(const Table& table, const fs::path& path, bool newKeys, Findings& findings)
        : table_(table), path_(path), newKeys_(newKeys), findings_(findings), reader_(path) {}

    void Read(TableSink& sink, Progress& progress, double before, double inAll) {
        try {
            if (!reader_.Next(record_)) return Tell({}, "this file has no line");
            if (!ReadHeader()) return;
            while (reader_.Next(record_)) {
                ReadRecord(sink);
                progress.Tell(before + reader_.Done(), inAll);
            }
        } catch (const CsvReader::Broken& broken) {
            Tell({broken.line, broken.column}, broken.what);
        }
    }

    std::string Told() const {
        return table_.name + ": " + Counted(added_, "row") + " added" +
               (there_ > 0 ? ", " + Str(there_) + " there already" : "");
    }

  private:
    void Tell(Spot spot, const std::string& what) { findings_.Tell(path_, spot, what); }
    static Spot SpotOf(const CsvCell& cell) { return {cell.line, cell.column}; }

    bool ReadHeader() {
        const long before = findings_.Count();
        columnOf_.assign(table_.fields.size(), None);
        for (std::size_t column = 0; column < record_.size(); ++column) {
            const std::string name = EssenceOf(record_[column].text);
            const auto field = std::find_if(table_.fields.begin(), table_.fields.end(),
                                            [&](const Field& one) { return EssenceOf(one.name) == name; });
            if (field == table_.fields.end())
                Tell(SpotOf(record_[column]), table_.name + " has no field \"" + record_[column].text + "\"");
            else if (auto& at = columnOf_[static_cast<std::size_t>(field - table_.fields.begin())];
                     at != None)
                Tell(SpotOf(record_[column]), field->name + " stands in two columns");
            else at = column;
        }
        for (std::size_t i = 0; i < columnOf_.size(); ++i)
            if (columnOf_[i] == None && !MayLack(table_, table_.fields[i]))
                Tell({}, "the column " + table_.fields[i].name + " is missing");
        columns_ = record_.size();
        return findings_.Count() == before;
    }

    void ReadRecord(TableSink& sink) {
        if (record_.size() != columns_)
            return Tell(SpotOf(record_.front()), "this line has " +
                                                     Counted(static_cast<long>(record_.size()), "cell") +
                                                     " instead of " + Str(static_cast<long>(columns_)));
        const long before = findings_.Count();
        Row row(table_.fields.size());
        for (std::size_t i = 0; i < row.size(); ++i) row[i] = ReadField(i);
        if (findings_.Count() != before) return;
        const bool counted = row.front().IsNull();
        if (counted) row.front() = 1;  // some key, to be judged with the rest
        JudgeRow(table_, row, [&](const Field& field, const std::string& what) {
            const auto i = static_cast<std::size_t>(&field - table_.fields.data());
            Tell(Place(i), field.name + " " + what);
        });
        if (findings_.Count() != before) return;
        if (counted) row.front() = {};
        Put(sink, row);
    }

    Spot Place(std::size_t field) const {
        const std::size_t column = columnOf_[field];
        return SpotOf(record_[column == None ? 0 : column]);
    }

    Dao::Value ReadField(std::size_t i) {
        const Field& field = table_.fields[i];
        if (field.means == Means::Key && newKeys_) return {};
        if (columnOf_[i] == None) {
            if (field.means == Means::Mark) return false;
            if (field.means == Means::Game) return std::string(table_.game->LottoFlag);
            return {};
        }
        std::string wrong;
        const auto value = ReadCell(field, record_[columnOf_[i]], wrong);
        if (!value) Tell(Place(i), field.name + " " + wrong);
        return value.value_or(Dao::Value());
    }

    void Put(TableSink& sink, Row& row) {
        switch (sink.Add(row)) {
            case TableSink::Outcome::Added:
                ++added_;
                break;
            case TableSink::Outcome::ThereAlready:
                ++there_;
                break;
            case TableSink::Outcome::KeyTaken:
                Tell(Place(0), "ID1 is taken by another row (--new-keys counts the keys on)");
        }
    }

    static constexpr std::size_t None = static_cast<std::size_t>(-1);
    const Table& table_;
    const fs::path& path_;
    bool newKeys_;
    Findings& findings_;
    CsvReader reader_;
    std::vector<CsvCell> record_;
    std::vector<std::size_t> columnOf_;
    std::size_t columns_ = 0;
    long added_ = 0;
    long there_ = 0;
};

struct Source {
    const Table* table;
    fs::path path;
};

// The CSV files of the folder in the order of the tables.
std::vector<Source> SourcesIn(const fs::path& folder, Findings& findings) {
    std::vector<Source> sources;
    std::error_code error;
    std::vector<fs::path> paths;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder, error))
        if (SameWord(entry.path().extension().string(), ".csv")) paths.push_back(entry.path());
    if (error) throw Refusal(folder.string() + ": this is no folder that can be read");
    if (paths.empty()) throw Refusal(folder.string() + ": there is no CSV file in this folder");
    std::sort(paths.begin(), paths.end());
    for (const fs::path& path : paths) {
        const Table* table = FindTable(path.stem().string());
        if (table == nullptr) findings.Tell(path, {}, "no table of Sorvane bears the name of this file");
        else sources.push_back({table, path});
    }
    std::stable_sort(sources.begin(), sources.end(),
                     [](const Source& a, const Source& b) { return a.table < b.table; });
    return sources;
}

double SizeOf(const std::vector<Source>& sources) {
    double size = 0;
    for (const Source& source : sources) {
        std::error_code error;
        const auto bytes = fs::file_size(source.path, error);
        if (!error) size += static_cast<double>(bytes);
    }
    return size;
}

}  // namespace

int Import(Outside& outside, const Place& place, const ImportWish& wish) {
    Progress progress(outside, "Importing");
    Findings findings(outside, progress);
    const std::vector<Source> sources = SourcesIn(wish.from, findings);
    return Naming(place.File(), [&] {
        Intake intake(outside, place, wish.dryRun);
        const double inAll = SizeOf(sources);
        double before = 0;
        std::vector<std::string> told;
        for (const Source& source : sources) {
            TableSink sink = intake.Open(*source.table);
            Naming(source.path, [&] {
                TableImport import(*source.table, source.path, wish.newKeys, findings);
                import.Read(sink, progress, before, inAll);
                told.push_back(import.Told());
            });
            before += SizeOf({source});
        }
        progress.Wipe();
        return Conclude(outside, intake, findings, told, wish.dryRun);
    });
}

}  // namespace sorvane::Records

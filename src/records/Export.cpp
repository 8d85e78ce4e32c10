#include <fstream>
#include <nlohmann/json.hpp>
#include <optional>
#include <vector>

#include "platform/Text.h"
#include "records/Cells.h"
#include "records/Commands.h"
#include "records/Files.h"
#include "records/Tables.h"
#include "store/dao/RecordFile.h"

namespace sorvane::Records {

namespace {

constexpr std::string_view LineEnd = "\r\n";
constexpr int JsonVersion = 1;

struct Source {
    const Table* table;
    Dao::FileTable found;
};

// The program's tables in the file, in the order of all tables.
std::vector<Source> SourcesIn(const Dao::RecordFile& file, Outside& outside) {
    std::vector<Source> sources;
    const Dao::Contents contents = file.Read();
    for (const Table& table : Tables())
        for (const Dao::FileTable& found : contents.tables) {
            if (!SameWord(found.name, table.name)) continue;
            Dao::FileTable due = AsInFile(table);
            due.indexes.clear();
            if (!SameShape(found, due))
                throw Refusal(found.name +
                              " is not as Sorvane makes it; \"sorvane-records check\" tells more");
            sources.push_back({&table, found});
        }
    for (const Dao::FileTable& found : contents.tables)
        if (FindTable(found.name) == nullptr)
            outside.words << found.name << ": not made by Sorvane, left out\n";
    return sources;
}

// Hands over each row, and the share of all that is done.
class RowsOf {
  public:
    RowsOf(const Dao::RecordFile& file, Outside& outside, const std::vector<Source>& sources)
        : file_(file), progress_(outside, "Exporting") {
        for (const Source& source : sources) inAll_ += file.CountRows(source.found);
    }
    template <class Each>
    long ForEach(const Source& source, Each each) {
        Dao::Rows rows = file_.AllRows(source.found, Dao::Order::Inserted);
        long count = 0;
        rows.Restart();
        for (; rows.Next(); ++count) {
            each(rows);
            progress_.Tell(++done_, inAll_);
        }
        return count;
    }

  private:
    const Dao::RecordFile& file_;
    Progress progress_;
    double done_ = 0;
    double inAll_ = 0;
};

void RefuseFailure(const std::ostream& file) {
    if (!file) Raise(ErrorNumber::DiskFull);
}

void WriteCsv(std::ostream& file, const Source& source, RowsOf& rows) {
    const auto& fields = source.table->fields;
    for (std::size_t i = 0; i < fields.size(); ++i) file << (i == 0 ? "" : ",") << CsvText(fields[i].name);
    file << LineEnd;
    rows.ForEach(source, [&](const Dao::Rows& row) {
        for (std::size_t i = 0; i < fields.size(); ++i)
            file << (i == 0 ? "" : ",") << WriteCell(row.At(static_cast<int>(i)));
        file << LineEnd;
    });
    file.flush();
    RefuseFailure(file);
}

fs::path CsvName(const fs::path& folder, const Source& source) {
    return folder / (source.table->name + ".csv");
}

std::vector<std::unique_ptr<NewFile>> WriteFiles(Outside& outside, const Dao::RecordFile& file,
                                                 const std::vector<Source>& sources, const fs::path& folder) {
    RowsOf rows(file, outside, sources);
    std::vector<std::unique_ptr<NewFile>> files;
    for (const Source& source : sources)
        Naming(CsvName(folder, source), [&] {
            files.push_back(std::make_unique<NewFile>(CsvName(folder, source)));
            std::ofstream text(files.back()->Path(), std::ios::binary);
            if (!text) Raise(ErrorNumber::NoPermission);
            WriteCsv(text, source, rows);
        });
    return files;
}

int ExportFolder(Outside& outside, const Dao::RecordFile& file, const fs::path& folder, bool overwrite) {
    const std::vector<Source> sources = SourcesIn(file, outside);
    for (const Source& source : sources)
        if (fs::exists(CsvName(folder, source)) && !overwrite)
            throw Refusal(CsvName(folder, source).string() +
                          ": this is there already (--force writes over files)");
    Naming(folder, [&] { MakeFolders(folder); });
    // Every file is whole before the first takes its name.
    const std::vector<std::unique_ptr<NewFile>> files = WriteFiles(outside, file, sources, folder);
    for (const auto& one : files) one->Put();
    outside.words << Counted(static_cast<long>(files.size()), "table") << " written to " << folder.string()
                  << '\n';
    return Done;
}

// Amounts are numbers of at most four decimals, which a binary number would not hold as they are.
std::string JsonText(const Dao::Value& value) {
    using nlohmann::json;
    if (value.IsNull()) return "null";
    if (const auto* flag = std::get_if<bool>(&value.Get())) return *flag ? "true" : "false";
    const bool number =
        std::holds_alternative<std::int64_t>(value.Get()) || std::holds_alternative<Currency>(value.Get());
    if (number) return value.ToText();
    return json(value.ToText()).dump(-1, ' ', false, json::error_handler_t::replace);
}

void WriteJson(std::ostream& text, Outside& outside, const Dao::RecordFile& file,
               const std::vector<Source>& sources) {
    using nlohmann::json;
    RowsOf rows(file, outside, sources);
    text << "{\n  \"format\": \"sorvane-records\",\n  \"version\": " << JsonVersion << ",\n  \"tables\": {";
    const char* betweenTables = "";
    for (const Source& source : sources) {
        text << betweenTables << "\n    " << json(source.table->name).dump() << ": [";
        const char* betweenRows = "";
        rows.ForEach(source, [&](const Dao::Rows& row) {
            text << betweenRows << "\n      {";
            for (std::size_t i = 0; i < source.table->fields.size(); ++i)
                text << (i == 0 ? "" : ", ") << json(source.table->fields[i].name).dump() << ": "
                     << JsonText(row.At(static_cast<int>(i)));
            text << "}";
            betweenRows = ",";
        });
        text << (*betweenRows != '\0' ? "\n    ]" : "]");
        betweenTables = ",";
    }
    text << (*betweenTables != '\0' ? "\n  }\n}\n" : "}\n}\n") << std::flush;
    RefuseFailure(text);
}

int ExportJson(Outside& outside, const Dao::RecordFile& file, const fs::path& to, bool overwrite) {
    const std::vector<Source> sources = SourcesIn(file, outside);
    if (to == "-") {
        WriteJson(outside.data, outside, file, sources);
        return Done;
    }
    if (fs::exists(to) && (!overwrite || !fs::is_regular_file(to)))
        throw Refusal(to.string() + ": this is there already (--force writes over a file)");
    return Naming(to, [&] {
        NewFile made(to);
        std::ofstream text(made.Path(), std::ios::binary);
        if (!text) Raise(ErrorNumber::NoPermission);
        WriteJson(text, outside, file, sources);
        text.close();
        made.Put();
        outside.words << Counted(static_cast<long>(sources.size()), "table") << " written to " << to.string()
                      << '\n';
        return Done;
    });
}

}  // namespace

int Export(Outside& outside, const Place& place, const ExportWish& wish) {
    return Naming(place.File(), [&] {
        Dao::RecordFile file(place.File(), outside.vfs);
        file.Begin(Dao::RecordFile::Hold::Read);
        return wish.json ? ExportJson(outside, file, wish.to, wish.overwrite)
                         : ExportFolder(outside, file, wish.to, wish.overwrite);
    });
}

}  // namespace sorvane::Records

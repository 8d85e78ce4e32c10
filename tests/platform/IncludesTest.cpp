// Who may include whom.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace sorvane {
namespace {

namespace fs = std::filesystem;

enum class Place { Platform, Dao, Forms, Rules, Ui, Main, RecordsMain, Unknown };

constexpr std::array<std::string_view, 7> Rooms = {"shell",     "store",   "entry",  "checking",
                                                   "quickpick", "reports", "records"};

// Where a file below the source folder stands.
Place PlaceOf(const std::string& file) {
    const auto in = [&](const std::string& folder) { return file.rfind(folder + "/", 0) == 0; };
    if (file == "main.cpp") return Place::Main;
    if (file == "records_main.cpp") return Place::RecordsMain;
    if (in("platform")) return Place::Platform;
    if (in("store/dao")) return Place::Dao;
    if (in("forms")) return Place::Forms;
    for (const std::string_view room : Rooms) {
        if (in(std::string(room) + "/ui")) return Place::Ui;
        if (in(std::string(room))) return Place::Rules;
    }
    return Place::Unknown;
}

struct Sight {
    Place from;
    std::set<Place> sees;
    bool qt;
};

const std::array<Sight, 7>& Sights() {
    static const std::array<Sight, 7> Table = {{
        {Place::Platform, {Place::Platform}, false},
        {Place::Dao, {Place::Platform, Place::Dao}, false},
        {Place::Forms, {Place::Platform, Place::Forms}, true},
        {Place::Rules, {Place::Platform, Place::Dao, Place::Rules}, false},
        {Place::Ui, {Place::Platform, Place::Dao, Place::Forms, Place::Rules, Place::Ui}, true},
        {Place::Main, {Place::Platform, Place::Dao, Place::Forms, Place::Rules, Place::Ui}, true},
        {Place::RecordsMain, {Place::Platform, Place::Dao, Place::Rules}, false},
    }};
    return Table;
}

// What is wrong with an include between the given quotes; empty when nothing is.
std::string Complaint(const std::string& file, char quote, const std::string& included) {
    const Place from = PlaceOf(file);
    const auto sight =
        std::find_if(Sights().begin(), Sights().end(), [&](const Sight& s) { return s.from == from; });
    if (sight == Sights().end()) return "stands on no floor and in no room";
    if (quote == '"') {
        if (PlaceOf(included) == Place::Unknown) return "isn't written as a path from the source folder";
        return sight->sees.count(PlaceOf(included)) != 0 ? "" : "lies out of sight";
    }
    if (included == "sqlite3.h") return from == Place::Dao ? "" : "only store/dao knows the database engine";
    if (included.front() == 'Q') return sight->qt ? "" : "no Qt on this floor";
    if (included == "CLI/CLI.hpp" || included == "nlohmann/json.hpp")
        return file.starts_with("records/") ? "" : "only the records command reads arguments and writes JSON";
    // Headers of the C++ library bear no ending; all others belong to some system.
    if (included.find('.') != std::string::npos && file != "platform/StartProgram.cpp" &&
        file != "platform/SystemFiles.cpp")
        return "only platform/StartProgram.cpp and SystemFiles.cpp speak to the system itself";
    return "";
}

struct Include {
    std::string file;
    char quote;
    std::string included;
};

// The include that a line states, if it does.
std::optional<Include> ReadInclude(const std::string& file, std::string_view line) {
    const auto passBlanks = [&] { line.remove_prefix(std::min(line.find_first_not_of(" \t"), line.size())); };
    for (const std::string_view word : {"#", "include"}) {
        passBlanks();
        if (!line.starts_with(word)) return std::nullopt;
        line.remove_prefix(word.size());
    }
    passBlanks();
    if (line.empty()) return std::nullopt;
    const char quote = line.front();
    const std::size_t end = line.find(quote == '<' ? '>' : quote, 1);
    if (end == std::string_view::npos) return std::nullopt;
    return Include{file, quote, std::string(line.substr(1, end - 1))};
}

// All includes below the folder, files named from it with forward slashes.
std::vector<Include> ReadIncludes(const fs::path& folder) {
    std::vector<Include> includes;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder)) {
        const std::string ending = entry.path().extension().string();
        if (ending != ".h" && ending != ".cpp") continue;
        const std::string name = fs::relative(entry.path(), folder).generic_string();
        std::ifstream file(entry.path());
        for (std::string line; std::getline(file, line);)
            if (const std::optional<Include> include = ReadInclude(name, line)) includes.push_back(*include);
    }
    return includes;
}

TEST(IncludesTest, EachFileSeesOnlyTheFloorsBelowIt) {
    const fs::path folder = fs::path(SORVANE_SOURCE_FOLDER) / "src";
    const std::vector<Include> includes = ReadIncludes(folder);
    EXPECT_GT(includes.size(), 50U) << "no sources found in " << folder;
    for (const auto& [file, quote, included] : includes) {
        EXPECT_EQ(Complaint(file, quote, included), "") << file << " includes " << included;
        EXPECT_TRUE(quote == '<' || fs::exists(folder / included)) << file << " includes " << included;
    }
}

TEST(IncludesTest, IncludesAreReadHoweverTheyAreSetOut) {
    const auto read = [](std::string_view line) {
        const std::optional<Include> include = ReadInclude("f", line);
        return include ? include->quote + include->included : "";
    };
    EXPECT_EQ(read("#include <vector>"), "<vector");
    EXPECT_EQ(read("  # include \"platform/Text.h\"  // why"), "\"platform/Text.h");
    EXPECT_EQ(read("#include<QString>"), "<QString");
    for (const std::string_view none :
         {"", "#", "#include", "#if 1", "// #include <vector>", "include <vector>"})
        EXPECT_EQ(read(none), "") << none;
}

TEST(IncludesTest, UpwardAndSidewardIncludesAreRefused) {
    const Include Refused[] = {
        {"platform/Text.cpp", '"', "store/dao/Dao.h"},
        {"platform/Text.cpp", '"', "entry/SaveData.h"},
        {"platform/Text.cpp", '<', "QString"},
        {"platform/Text.cpp", '<', "unistd.h"},
        {"platform/Text.cpp", '"', "Decimal.h"},
        {"store/dao/Dao.cpp", '"', "forms/Window.h"},
        {"store/dao/Dao.cpp", '"', "store/Schema.h"},
        {"store/dao/Dao.cpp", '<', "QFile"},
        {"store/dao/Dao.cpp", '<', "sys/stat.h"},
        {"forms/Window.cpp", '"', "store/dao/Dao.h"},
        {"forms/Window.cpp", '"', "shell/Global.h"},
        {"forms/Window.cpp", '<', "sqlite3.h"},
        {"store/Schema.h", '<', "sqlite3.h"},
        {"entry/SaveData.cpp", '"', "forms/Window.h"},
        {"entry/SaveData.cpp", '"', "entry/ui/SheetFlow.h"},
        {"entry/SaveData.cpp", '<', "QWidget"},
        {"shell/ui/frmMain.cpp", '<', "sqlite3.h"},
        {"main.cpp", '<', "sqlite3.h"},
        {"other/File.cpp", '<', "vector"},
        {"records/Check.cpp", '<', "sqlite3.h"},
        {"records/Check.cpp", '<', "unistd.h"},
        {"records/Check.cpp", '"', "entry/ui/SheetFlow.h"},
        {"records_main.cpp", '<', "QApplication"},
        {"entry/SaveData.cpp", '<', "nlohmann/json.hpp"},
        {"store/dao/Dao.cpp", '"', "records/Check.h"},
    };
    for (const auto& [file, quote, included] : Refused)
        EXPECT_NE(Complaint(file, quote, included), "") << file << " includes " << included;
}

TEST(IncludesTest, IncludesOfTheFloorsBelowAreFine) {
    const Include Fine[] = {
        {"platform/StartProgram.cpp", '<', "unistd.h"},
        {"store/dao/Dao.cpp", '<', "sqlite3.h"},
        {"store/dao/Dao.cpp", '"', "platform/Date.h"},
        {"forms/Window.cpp", '<', "QWidget"},
        {"forms/Window.cpp", '"', "platform/Text.h"},
        {"entry/SaveData.cpp", '"', "store/dao/Dao.h"},
        {"entry/SaveData.cpp", '"', "shell/Global.h"},
        {"entry/ui/SheetFlow.cpp", '"', "forms/Window.h"},
        {"entry/ui/SheetFlow.cpp", '"', "shell/ui/Windows.h"},
        {"main.cpp", '<', "QApplication"},
        {"reports/MoneyReport.cpp", '<', "vector"},
        {"records/Show.cpp", '<', "nlohmann/json.hpp"},
        {"records/Check.cpp", '"', "store/dao/RecordFile.h"},
        {"records_main.cpp", '"', "records/CommandLine.h"},
        {"platform/SystemFiles.cpp", '<', "unistd.h"},
    };
    for (const auto& [file, quote, included] : Fine)
        EXPECT_EQ(Complaint(file, quote, included), "") << file << " includes " << included;
}

}  // namespace
}  // namespace sorvane

// Who may include whom.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace sorvane {
namespace {

namespace fs = std::filesystem;

// A floor, or a room with or without its `ui`: "platform", "store/dao", "forms", "entry", "entry/ui", "main".
using Place = std::string;

// Each place and what it sees besides itself, from below upwards.
struct Sight {
    Place from;
    std::set<Place> sees;
};

std::set<Place> With(std::set<Place> places, const std::set<Place>& more) {
    places.insert(more.begin(), more.end());
    return places;
}

const std::vector<Sight>& Sights() {
    static const std::vector<Sight> Table = [] {
        const std::set<Place> Shell = {"platform", "store/dao", "shell"};
        const std::set<Place> Store = With(Shell, {"store"});
        const std::set<Place> Frame = With(Store, {"forms", "shell/ui"});
        return std::vector<Sight>{
            {"platform", {}},
            {"store/dao", {"platform"}},
            {"forms", {"platform"}},
            {"shell", {"platform", "store/dao"}},
            {"store", Shell},
            {"entry", Store},
            {"checking", Store},
            {"reports", Store},
            {"quickpick", With(Store, {"entry", "checking", "reports"})},
            {"records", With(Store, {"entry", "checking", "reports", "quickpick"})},
            {"shell/ui", With(Store, {"forms"})},
            {"checking/ui", With(Frame, {"checking"})},
            {"reports/ui", With(Frame, {"reports"})},
            {"quickpick/ui", With(Frame, {"quickpick", "reports"})},
            {"entry/ui", With(Frame, {"entry", "checking/ui", "reports/ui", "quickpick/ui"})},
            {"main", With(Frame, {"entry/ui", "reports/ui"})},
            {"records main", With(Store, {"records"})},
        };
    }();
    return Table;
}

const Sight* SightOf(const Place& place) {
    const auto found = std::find_if(Sights().begin(), Sights().end(),
                                    [&](const Sight& sight) { return sight.from == place; });
    return found == Sights().end() ? nullptr : &*found;
}

bool KnowsQt(const Place& place) { return place == "forms" || place == "main" || place.ends_with("/ui"); }

// Where a file below the source folder stands; empty: nowhere.
Place PlaceOf(const std::string& file) {
    if (file == "main.cpp") return "main";
    if (file == "records_main.cpp") return "records main";
    Place place = fs::path(file).parent_path().generic_string();
    return SightOf(place) ? place : Place();
}

// What is wrong with an include between the given quotes; empty when nothing is.
std::string Complaint(const std::string& file, char quote, const std::string& included) {
    const Place from = PlaceOf(file);
    if (from.empty()) return "stands on no floor and in no room";
    if (quote == '"') {
        const Place to = PlaceOf(included);
        if (to.empty()) return "isn't written as a path from the source folder";
        return to == from || SightOf(from)->sees.count(to) != 0 ? "" : "lies out of sight";
    }
    if (included == "sqlite3.h") return from == "store/dao" ? "" : "only store/dao knows the database engine";
    if (included.front() == 'Q') return KnowsQt(from) ? "" : "no Qt on this floor";
    if (included == "CLI/CLI.hpp" || included == "nlohmann/json.hpp")
        return from == "records" ? "" : "only the records command reads arguments and writes JSON";
    // Headers of the C++ library bear no ending; all others belong to some system.
    if (included.find('.') != std::string::npos && file != "platform/SystemFiles.cpp")
        return "only platform/SystemFiles.cpp speaks to the system itself";
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

// Who includes whom.
using Graph = std::map<Place, std::set<Place>>;

Graph GraphOf(const std::vector<Include>& includes) {
    Graph graph;
    for (const auto& [file, quote, included] : includes)
        if (quote == '"' && PlaceOf(file) != PlaceOf(included))
            graph[PlaceOf(file)].insert(PlaceOf(included));
    return graph;
}

// A way from the last place of `path` back to a place on it, "a -> b -> a"; empty when there is none.
std::string RingBehind(const Graph& graph, std::vector<Place> path) {
    const auto from = graph.find(path.back());
    if (from == graph.end()) return {};
    for (const Place& next : from->second) {
        const auto start = std::find(path.begin(), path.end(), next);
        if (start != path.end()) {
            std::string ring;
            for (auto place = start; place != path.end(); ++place) ring += *place + " -> ";
            return ring + next;
        }
        path.push_back(next);
        if (std::string ring = RingBehind(graph, path); !ring.empty()) return ring;
        path.pop_back();
    }
    return {};
}

// A ring of places that know each other; empty when there is none.
std::string RingIn(const Graph& graph) {
    for (const auto& [place, sees] : graph)
        if (std::string ring = RingBehind(graph, {place}); !ring.empty()) return ring;
    return {};
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

TEST(IncludesTest, NoRoomsStandInARing) {
    const Graph graph = GraphOf(ReadIncludes(fs::path(SORVANE_SOURCE_FOLDER) / "src"));
    EXPECT_GT(graph.size(), 10U) << "includes of most places are missing";
    EXPECT_EQ(RingIn(graph), "");
}

TEST(IncludesTest, ARingIsFoundHoweverLongItIs) {
    const auto ring = [](std::vector<Include> includes) { return RingIn(GraphOf(includes)); };
    const Include Down = {"entry/ui/SheetFlow.cpp", '"', "shell/ui/Windows.h"};
    EXPECT_EQ(ring({Down, {"shell/ui/Windows.cpp", '"', "entry/ui/GameWindow.h"}}),
              "entry/ui -> shell/ui -> entry/ui");
    EXPECT_EQ(ring({Down,
                    {"shell/ui/frmMain.cpp", '"', "reports/ui/frmReport.h"},
                    {"reports/ui/frmReport.cpp", '"', "entry/ui/GameWindow.h"}}),
              "entry/ui -> shell/ui -> reports/ui -> entry/ui");
    EXPECT_EQ(ring({{"shell/SelectGame.cpp", '"', "store/StoreRoutine.h"},
                    {"store/StoreRoutine.h", '"', "shell/Global.h"}}),
              "shell -> store -> shell");
    EXPECT_EQ(ring({{"main.cpp", '"', "shell/ui/Windows.h"},
                    {"store/CreateTables.cpp", '"', "store/dao/Dao.h"},
                    {"store/dao/Dao.cpp", '"', "store/CreateTables.h"}}),
              "store -> store/dao -> store");
}

// A room and its ui are two: the ui of a room below may know the rules of one above.
TEST(IncludesTest, WhatMerelyMeetsAgainIsNoRing) {
    EXPECT_EQ(RingIn(GraphOf({{"entry/ui/SheetFlow.cpp", '"', "entry/ui/GameWindow.h"},
                              {"entry/ui/SheetFlow.cpp", '"', "shell/ui/Windows.h"},
                              {"entry/ui/SheetFlow.cpp", '"', "checking/ui/CheckTicketsTab.h"},
                              {"checking/ui/CheckTicketsTab.cpp", '"', "shell/ui/Windows.h"},
                              {"shell/ui/frmMain.cpp", '"', "store/CreateTables.h"},
                              {"store/CreateTables.cpp", '"', "shell/Catalogue.h"},
                              {"shell/ui/frmMain.cpp", '<', "QWidget"}})),
              "");
}

TEST(IncludesTest, TheTableAllowsNoRingEither) {
    Graph graph;
    for (const Sight& sight : Sights()) graph[sight.from] = sight.sees;
    EXPECT_EQ(RingIn(graph), "");
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
        {"forms/Window.cpp", '<', "unistd.h"},
        {"forms/Window.cpp", '"', "shell/Global.h"},
        {"forms/Window.cpp", '<', "sqlite3.h"},
        {"store/Schema.h", '<', "sqlite3.h"},
        {"entry/SaveData.cpp", '"', "forms/Window.h"},
        {"entry/SaveData.cpp", '"', "entry/ui/SheetFlow.h"},
        {"entry/SaveData.cpp", '<', "QWidget"},
        {"shell/ui/frmMain.cpp", '<', "sqlite3.h"},
        {"shell/ui/frmMain.cpp", '"', "entry/ui/GameWindow.h"},
        {"shell/ui/frmMain.cpp", '"', "reports/ui/frmReport.h"},
        {"shell/Global.h", '"', "store/StoreRoutine.h"},
        {"store/CreateTables.cpp", '"', "entry/EntryFacts.h"},
        {"checking/StoreData.cpp", '"', "entry/EntryFacts.h"},
        {"reports/MoneyReport.cpp", '"', "quickpick/Wheel.h"},
        {"checking/ui/CheckTicketsTab.cpp", '"', "entry/ui/GameWindow.h"},
        {"checking/ui/CheckTicketsTab.cpp", '"', "entry/EntryFacts.h"},
        {"quickpick/ui/QuickPickTab.cpp", '"', "reports/ui/Charts.h"},
        {"entry/ui/GameWindow.cpp", '"', "main.cpp"},
        {"main.cpp", '<', "sqlite3.h"},
        {"other/File.cpp", '<', "vector"},
        {"records/Check.cpp", '<', "sqlite3.h"},
        {"records/Check.cpp", '<', "unistd.h"},
        {"records/Check.cpp", '"', "entry/ui/SheetFlow.h"},
        {"records_main.cpp", '<', "QApplication"},
        {"entry/SaveData.cpp", '<', "nlohmann/json.hpp"},
        {"store/dao/Dao.cpp", '"', "records/Check.h"},
        {"quickpick/Wheel.cpp", '"', "records/Check.h"},
    };
    for (const auto& [file, quote, included] : Refused)
        EXPECT_NE(Complaint(file, quote, included), "") << file << " includes " << included;
}

TEST(IncludesTest, IncludesOfTheFloorsBelowAreFine) {
    const Include Fine[] = {
        {"store/dao/Dao.cpp", '<', "sqlite3.h"},
        {"store/dao/Dao.cpp", '"', "platform/Date.h"},
        {"forms/Window.cpp", '<', "QWidget"},
        {"forms/Window.cpp", '"', "platform/Text.h"},
        {"entry/SaveData.cpp", '"', "store/dao/Dao.h"},
        {"entry/SaveData.cpp", '"', "shell/Global.h"},
        {"entry/ui/SheetFlow.cpp", '"', "forms/Window.h"},
        {"entry/ui/SheetFlow.cpp", '"', "shell/ui/Windows.h"},
        {"main.cpp", '<', "QApplication"},
        {"main.cpp", '"', "entry/ui/GameWindow.h"},
        {"entry/ui/GameWindow.h", '"', "checking/ui/CheckTicketsTab.h"},
        {"quickpick/Wheel.cpp", '"', "reports/DisplayData.h"},
        {"shell/ui/frmMain.cpp", '"', "store/CreateTables.h"},
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

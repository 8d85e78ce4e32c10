// The program is killed at random moments in the middle of its routines: of each, all rows are there or none.
//     SORVANE_KILLS  how often, 100 when not told
//     SORVANE_SEED   repeats the moments of an earlier run
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <map>
#include <optional>
#include <sstream>

#include "kills/Player.h"
#include "support/TempFolder.h"
#include "support/World.h"

namespace sorvane::test {
namespace {

using testing::PlainFile;
using Texts = std::vector<std::string>;
// The rows of each table: how many a date has, or what stands in its row.
using Records = std::map<std::string, std::map<int, std::string>>;

enum class Kind { Sheet, AddOns, CleanUp, CleanUpOfAddOns, Check, Recheck, Winnings, Amended, Tables };
constexpr std::array Names = {"sheets",   "add-ons",  "clean-ups",  "clean-ups of add-ons", "checks",
                              "rechecks", "winnings", "amendments", "table creations"};
constexpr std::array Tables = {"PlayedLotto649", "PlayedEncore", "PlayedLotto649",
                               "PlayedEncore",   "WinLotto649",  "WinLotto649",
                               "Winnings",       "Winnings",     ""};

// One routine: what it is about, its draw date, and how many tickets, or which number.
struct Step {
    Kind kind;
    int day;
    int number;

    std::string Text() const {
        return std::to_string(static_cast<int>(kind)) + " " + std::to_string(day) + " " +
               std::to_string(number);
    }
    static Step Of(const std::string& text) {
        std::istringstream words(text);
        int kind = 0, day = 0, number = 0;
        words >> kind >> day >> number;
        return {static_cast<Kind>(kind), day, number};
    }
    const char* Table() const { return Tables.at(static_cast<std::size_t>(kind)); }
};

void Do(const Step& step, Program& program, const std::string& home, const Player::Say& say) {
    switch (step.kind) {
        case Kind::Sheet:
            return program.Sheet(step.day, step.number);
        case Kind::AddOns:
            return program.AddOns(step.day, step.number);
        case Kind::CleanUp:
        case Kind::CleanUpOfAddOns:
            return program.CleanUp(step.Table(), step.day);
        case Kind::Check:
        case Kind::Recheck:
            return program.Check(step.day, step.number);
        case Kind::Winnings:
        case Kind::Amended:
            return program.Winnings(step.day, step.number);
        case Kind::Tables: {
            const std::string place = home + "/" + std::to_string(step.day);
            std::filesystem::create_directory(place);
            Program(place, say).Start();
        }
    }
}

// What the step makes of the records.
void Apply(const Step& step, Records& records) {
    if (step.kind == Kind::Tables) return;
    std::map<int, std::string>& rows = records[step.Table()];
    if (step.kind != Kind::CleanUp && step.kind != Kind::CleanUpOfAddOns)
        rows[step.day] = std::to_string(step.number);
    else if (rows.erase(step.day) > 0 && rows.empty()) records.erase(step.Table());
}

// Days grow with every step, so that the newest rows are those cleaned up, as it is with an entry that was
// left.
Step NextStep(std::mt19937& random, int day, const Records& records) {
    constexpr std::array Sizes = {1, 10, 100};
    const int tickets = Sizes.at(random() % Sizes.size());
    const auto kind = static_cast<Kind>(random() % Names.size());
    const Step step{kind, day, tickets};
    const auto newest = [&]() -> std::optional<int> {
        const auto rows = records.find(step.Table());
        if (rows == records.end() || rows->second.empty()) return {};
        return rows->second.rbegin()->first;
    };
    switch (kind) {
        case Kind::CleanUp:
        case Kind::CleanUpOfAddOns:
            if (const auto at = newest()) return {kind, *at, 0};
            return {Kind::Sheet, day, tickets};
        case Kind::Check:
            return {kind, day, 1 + static_cast<int>(random() % 40)};
        case Kind::Recheck:
            if (const auto at = newest()) return {kind, *at, 1 + static_cast<int>(random() % 40)};
            return {Kind::Check, day, 1};
        case Kind::Winnings:
            return {kind, day, 1 + static_cast<int>(random() % 1000)};
        case Kind::Amended:
            if (const auto at = newest()) return {kind, *at, 1 + static_cast<int>(random() % 1000)};
            return {Kind::Winnings, day, 1};
        default:
            return step;
    }
}

[[noreturn]] void PlayOn(const std::string& home, unsigned seed, int day, Records records,
                         const Player::Say& say) {
    std::mt19937 random(seed);
    Program program(home, say);
    for (;; ++day) {
        const Step step = NextStep(random, day, records);
        say(step.Text());
        Do(step, program, home, say);
        say("done");
        Apply(step, records);
    }
}

class Home {
  public:
    std::string Path() const { return folder_.Path().string(); }
    static std::string FileIn(const std::string& home) { return DatabasePath(home); }

    // The records as they stand in the file. Numbers of a draw that don't belong together are told as they
    // are.
    Records Read() const {
        PlainFile file(FileIn(Path()));
        EXPECT_EQ(file.One("PRAGMA integrity_check"), "ok");
        Records records;
        Take(file, records, "PlayedLotto649", "count(*)", " GROUP BY Date");
        Take(file, records, "PlayedEncore", "count(*)", " GROUP BY Date");
        Take(file, records, "WinLotto649",
             "iif(Ball_2 = Ball_1 + 1 AND Ball_3 = Ball_1 + 2 AND Ball_B = Ball_1 + 6, Ball_1, 'mixed')", "");
        Take(file, records, "Winnings", "CAST(Winnings AS INTEGER)", "");
        return records;
    }
    bool InACommit() const { return std::filesystem::exists(FileIn(Path()) + "-journal"); }

    // The tables that a program made or was making at that place: whole ones, and the next start makes the
    // rest.
    static void ExpectWholeTables(const std::string& place) {
        const std::string path = FileIn(place);
        if (std::filesystem::exists(path)) {
            PlainFile file(path);
            EXPECT_EQ(file.One("PRAGMA integrity_check"), "ok");
            const Texts tables = file.Tables();
            for (const std::string& table : tables) {
                if (table != "Temp") {
                    EXPECT_EQ(file.One("SELECT count(*) FROM pragma_index_list('" + table + "')"), "2")
                        << table;
                }
                if (table.rfind("Played", 0) == 0) {
                    EXPECT_EQ(
                        file.Rows("SELECT 1 FROM sqlite_schema WHERE name = 'Win" + table.substr(6) + "'"),
                        Texts{"1"});
                }
            }
        }
        Texts boxes;
        Program(place, [&](const std::string& box) { boxes.push_back(box); }).Start();
        EXPECT_EQ(boxes, Texts{});
        EXPECT_EQ(PlainFile(path).Tables().size(), 7U);
        std::filesystem::remove_all(place);
    }

  private:
    static void Take(PlainFile& file, Records& records, const std::string& table, const std::string& what,
                     const std::string& grouped) {
        for (const std::string& row : file.Rows("SELECT Date, " + what + " FROM " + table + grouped)) {
            const std::size_t bar = row.find('|');
            records[table][std::stoi(row)] = row.substr(bar + 1);
        }
    }

    TempFolder folder_{SORVANE_BINARY_FOLDER};
};

// A home with the records that the players before have left in it.
struct Life {
    Home home;
    Records records;
    int day = 1;

    Life() {
        Program(home.Path(), [](const std::string& box) { ADD_FAILURE() << box; }).Start();
    }

    // Kills a player within so many microseconds. Returns the step that it died in, if it was in one.
    std::optional<Step> KillOne(unsigned seed, int microseconds, int& inACommit) {
        Player player([&](const Player::Say& say) { PlayOn(home.Path(), seed, day, records, say); });
        player.Listen(std::chrono::microseconds(microseconds));
        player.Kill();
        inACommit += home.InACommit() ? 1 : 0;
        std::optional<Step> dying;
        for (const std::string& line : player.lines) {
            if (line == "done") {
                Apply(*dying, records);
                Finished(*std::exchange(dying, std::nullopt));
            } else if (dying) {
                ADD_FAILURE() << line;
            } else {
                dying = Step::Of(line);
                day = std::max(day, dying->day) + 1;
            }
        }
        ++day;
        if (dying) ExpectAllOrNothing(*dying);
        else EXPECT_EQ(home.Read(), records);
        return dying;
    }

    // The next program starts, and its sheet is saved, without a box.
    void ExpectNextSheet() {
        Program next(home.Path(), [](const std::string& box) { ADD_FAILURE() << box; });
        next.Start();
        for (const Step& step : {Step{Kind::Sheet, day, 2}, Step{Kind::AddOns, day, 2}}) {
            Do(step, next, home.Path(), {});
            Apply(step, records);
        }
        ++day;
        EXPECT_EQ(home.Read(), records);
    }

  private:
    std::string PlaceOf(const Step& step) const { return home.Path() + "/" + std::to_string(step.day); }
    void Finished(const Step& step) const {
        if (step.kind == Kind::Tables) Home::ExpectWholeTables(PlaceOf(step));
    }
    void ExpectAllOrNothing(const Step& dying) {
        if (dying.kind == Kind::Tables) {
            if (std::filesystem::exists(PlaceOf(dying))) Home::ExpectWholeTables(PlaceOf(dying));
        }
        const Records now = home.Read();
        Records done = records;
        Apply(dying, done);
        EXPECT_TRUE(now == records || now == done)
            << "a part of one of the " << Names.at(static_cast<std::size_t>(dying.kind));
        records = now;
    }
};

unsigned NumberOf(const char* name, unsigned otherwise) {
    const char* value = std::getenv(name);
    return value ? static_cast<unsigned>(std::stoul(value)) : otherwise;
}

TEST(RoutineKills, LeaveOfEachRoutineAllOfItsRowsOrNoneAndTheNextSheetIsSaved) {
    constexpr int MostMicroseconds = 60'000;
    constexpr unsigned KillsOfALife = 25;
    const unsigned kills = NumberOf("SORVANE_KILLS", 100);
    const unsigned seed = NumberOf("SORVANE_SEED", std::random_device{}());
    std::cout << kills << " kills, seed " << seed << std::endl;
    const ::testing::ScopedTrace trace(__FILE__, __LINE__, "SORVANE_SEED=" + std::to_string(seed));
    std::mt19937 random(seed);
    std::map<std::string, int> died;
    int inACommit = 0;
    std::optional<Life> life;
    for (unsigned i = 0; i < kills && !::testing::Test::HasFailure(); ++i) {
        if (i % KillsOfALife == 0) life.emplace();
        const auto player = static_cast<unsigned>(random());
        const auto dying = life->KillOne(player, static_cast<int>(random() % MostMicroseconds), inACommit);
        ++died[dying ? Names.at(static_cast<std::size_t>(dying->kind)) : "between two"];
        life->ExpectNextSheet();
    }
    for (const auto& [name, times] : died) std::cout << times << " in " << name << "; ";
    std::cout << inACommit << " in the middle of a commit" << std::endl;
}

}  // namespace
}  // namespace sorvane::test

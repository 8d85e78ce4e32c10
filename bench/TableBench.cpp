// What the player waits for, each beside the least that any program would have to do for it, in turns in one
// process, and how both grow with the years.
//     bench_table [ROUNDS [PART OF A NAME]]
#include <sqlite3.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "checking/ReadTableData.h"
#include "checking/StoreData.h"
#include "entry/SaveData.h"
#include "platform/SystemServices.h"
#include "quickpick/GenerateQuickPicks.h"
#include "reports/MoneyReport.h"
#include "store/CreateTables.h"
#include "support/RecordingChart.h"
#include "support/World.h"

namespace {

using namespace sorvane;
using sorvane::testing::RecordingChart;
using sorvane::testing::World;
using Job = std::function<void()>;

constexpr int Day = 40'000;

// A connection with the settings of the store's own.
class Direct {
  public:
    explicit Direct(const std::string& path) {
        sqlite3_open_v2(path.c_str(), &handle_, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr);
        sqlite3_exec(handle_, "PRAGMA synchronous = EXTRA", nullptr, nullptr, nullptr);
    }
    Direct(const Direct&) = delete;
    Direct& operator=(const Direct&) = delete;
    ~Direct() { sqlite3_close(handle_); }

    template <class EachRow>
    void ForEachRow(const std::string& sql, EachRow eachRow) const {
        sqlite3_stmt* statement = nullptr;
        sqlite3_prepare_v2(handle_, sql.c_str(), -1, &statement, nullptr);
        while (sqlite3_step(statement) == SQLITE_ROW) eachRow(statement);
        sqlite3_finalize(statement);
    }
    int Number(const std::string& sql) const {
        int number = 0;
        ForEachRow(sql, [&](sqlite3_stmt* row) { number = sqlite3_column_int(row, 0); });
        return number;
    }
    template <class Use>
    void With(const std::string& sql, Use use) const {
        sqlite3_stmt* statement = nullptr;
        sqlite3_prepare_v2(handle_, sql.c_str(), -1, &statement, nullptr);
        use(statement);
        sqlite3_finalize(statement);
    }
    void Do(const std::string& sql) const {
        if (sqlite3_exec(handle_, sql.c_str(), nullptr, nullptr, nullptr) == SQLITE_OK) return;
        std::fprintf(stderr, "%s: %s\n", sqlite3_errmsg(handle_), sql.c_str());
        std::exit(1);
    }

  private:
    sqlite3* handle_ = nullptr;
};

// A file with one table of so many rows. The fields behind the key come from an SQL text over `i`.
struct Filled : World {
    Filled(const Creator& creator, const char* table, int rows, const std::string& fields)
        : TableName(table) {
        WithDatabase();
        creator(session, {DbName(), TableName}, PrimaryFieldName, DateFieldName);
        Add(rows, fields);
    }
    void Add(int rows, const std::string& fields) const {
        Direct(DbName()).Do("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < " +
                            std::to_string(rows) + ") INSERT INTO " + TableName + " SELECT i, " + fields +
                            " FROM n");
    }
    StoreArgs At() { return {name, TableName, Date::FromDays(Day)}; }

    std::string TableName;
    const std::string name = DbName();
};

// Ours and the floor over a number of rows, and what they share.
struct Pair {
    Job ours, floor;
    std::shared_ptr<Filled> keeps;
};
struct Row {
    const char* name;
    std::vector<int> sizes;  // rows
    std::function<Pair(int size)> make;
    double goal;      // times the floor; 0: none
    double more = 0;  // milliseconds that the largest may take beyond the smallest; 0: as it comes
};

std::string Balls(int count) {
    std::string fields;
    for (int ball = 0; ball < count; ++ball)
        fields += (ball > 0 ? ", i % " : "i % ") + std::to_string(49 - ball) + " + 1";
    return fields;
}
std::string Digits(int count) {
    std::string fields;
    for (int digit = 0; digit < count; ++digit)
        fields += (digit > 0 ? ", i / " : "i / ") + std::to_string(digit + 1) + " % 10";
    return fields;
}

// The rows of one date into numbers and into a list.
using Reader = void (*)(Session&, const StoreArgs&, Lines&);

Pair Check(const Creator& creator, const char* table, const std::string& fields, int size, Reader read,
           std::string_view LottoFlag, std::string_view ExtraFlag, int first, int numbers) {
    auto file = std::make_shared<Filled>(creator, table, size, fields);
    file->global.LottoFlag = LottoFlag;
    file->global.ExtraFlag = ExtraFlag;
    const auto ours = [file, read] {
        LineList list;
        file->global.EntryCounter = 0;
        read(file->session, file->At(), list);
        if (list.items.size() != static_cast<std::size_t>(int{file->global.EntryCounter})) std::exit(1);
    };
    const auto floor = [file, first, numbers] {
        const Direct plain(file->DbName());
        std::vector<std::array<int, 8>> rows;
        std::vector<std::string> list;
        plain.ForEachRow("SELECT * FROM " + file->TableName + " WHERE Date = " + std::to_string(Day),
                         [&](sqlite3_stmt* row) {
                             std::array<int, 8>& values = rows.emplace_back();
                             std::string line;
                             for (int i = 0; i < numbers; ++i) {
                                 values[static_cast<std::size_t>(i)] = sqlite3_column_int(row, first + i);
                                 line.append(i > 0 ? ", " : "")
                                     .append(std::to_string(values[static_cast<std::size_t>(i)]));
                             }
                             list.push_back(std::move(line));
                         });
        if (list.empty()) std::exit(1);
    };
    return {ours, floor, file};
}

const std::string Today = std::to_string(Day);

Pair CheckSix(int size) {
    return Check(CreatePlayed6Table, "PlayedBC49", Today + ", " + Balls(6) + ", 0, 0", size, ReadLotto6Played,
                 "BC49", "Extra", 2, 6);
}
Pair CheckSeven(int size) {
    return Check(CreatePlayed7Table, "PlayedSuper7", Today + ", " + Balls(7) + ", 0", size, ReadLotto7Played,
                 "Super 7", "Tag", 2, 7);
}
Pair CheckThree(int size) {
    return Check(CreatePlayedPick3Table, "PlayedBCDaily3",
                 "'BCDaily3', " + Today + ", " + Digits(3) + ", 'Box', 0", size, ReadPick3Played, "BCDaily3",
                 "BCDaily3", 3, 3);
}
Pair CheckFour(int size) {
    return Check(CreatePlayedPick4Table, "PlayedFLAPlay4",
                 "'FLAPlay4', " + Today + ", " + Digits(4) + ", 'Box', 0", size, ReadPick4Played, "FLAPlay4",
                 "FLAPlay4", 3, 4);
}
Pair CheckAddOn(int size) {
    return Check(CreatePlayedAddOnTable, "PlayedEncore", "'Lotto649', " + Today + ", " + Digits(6) + ", NULL",
                 size, ReadDigitAddOnPlayed, "Lotto649", "Encore", 3, 6);
}
Pair CheckKeno(int size) {
    return Check(CreatePlayedKenoTable, "PlayedONTKeno",
                 Today + ", 'ONTKeno', " + Balls(8) + ", 0, 0, 1, 8, 0", size, ReadKenoPlayed, "ONTKeno",
                 "Encore", 3, 8);
}

// What a draw's writer does: open, count, seek, append, close.
Pair StoreDraw(int size) {
    auto file = std::make_shared<Filled>(CreateWin6Table, "WinBC49", size, "i, " + Balls(7));
    const auto day = std::make_shared<int>(size);
    WinningBoxes boxes;
    for (int i = 1; i <= 7; ++i) boxes.Main.push_back(std::to_string(i));
    const auto ours = [file, day, boxes] {
        const StoreArgs at{file->name, file->TableName, Date::FromDays(++*day)};
        StoreLotto6Win(file->session, at, boxes);
    };
    const auto floor = [file, day] {
        const Direct plain(file->DbName());
        const int count = plain.Number("SELECT count(*) FROM WinBC49");
        const std::string date = std::to_string(++*day);
        if (plain.Number("SELECT count(*) FROM WinBC49 WHERE Date = " + date) > 0) std::exit(1);
        plain.Do("INSERT INTO WinBC49 VALUES (" + std::to_string(count + 1) + ", " + date +
                 ", 1, 2, 3, 4, 5, 6, 7)");
    };
    return {ours, floor, file};
}

Pair Tally(int size) {
    auto file = std::make_shared<Filled>(CreateWin6Table, "WinBC49", size, "i, " + Balls(7));
    file->global.LottoFlag = "BC49";
    const auto ours = [file] {
        RecordingChart chart;
        TallySixNumberFrequency(file->session, {file->name, file->TableName}, chart, ReportMode);
    };
    const auto floor = [file] {
        std::array<int, 50> counts{};
        Direct(file->DbName()).ForEachRow("SELECT * FROM WinBC49", [&](sqlite3_stmt* row) {
            for (int field = 2; field <= 8; ++field)
                ++counts.at(static_cast<std::size_t>(sqlite3_column_int(row, field)));
        });
    };
    return {ours, floor, file};
}

Pair Money(int size) {
    auto file = std::make_shared<Filled>(CreateSpentTable, "Spent", size / 2,
                                         "'BC49', 46000 - i % 3000, i % 977 * 0.25");
    file->TableName = "Winnings";
    CreateWinningsTable(file->session, {file->name, file->TableName}, PrimaryFieldName, DateFieldName);
    file->Add(size / 2, "'BC49', 46000 - i % 3000, i % 977 * 0.25");
    file->global.LottoFlag = "BC49";
    const auto ours = [file] {
        RecordingChart chart;
        std::string TableName, text;
        Integer mode;
        ReportMoney(file->session, {ReportFacts::GameMoney, file->name, TableName, mode, chart}, "BC/49",
                    text);
    };
    const auto floor = [file] {
        const auto text = [](sqlite3_stmt* row, int field) {
            return reinterpret_cast<const char*>(sqlite3_column_text(row, field));
        };
        const Direct plain(file->DbName());
        std::string report;
        for (const char* sql : {"SELECT * FROM Spent WHERE Lottoflag = 'BC49' ORDER BY Date",
                                "SELECT * FROM Winnings WHERE Lottoflag = 'BC49'"})
            plain.ForEachRow(sql, [&](sqlite3_stmt* row) {
                report.append("   ").append(text(row, 2)).append(14, ' ').append("$").append(text(row, 3));
                report.append("     ").append(text(row, 1)).append("\r\n");
            });
    };
    return {ours, floor, file};
}

// The argument is the number of tickets.
Pair QuickPicks(int size, std::string_view LottoFlag, int count, int top) {
    auto file = std::make_shared<Filled>(CreateWin6Table, "WinBC49", 1, "1, " + Balls(7));
    file->global.LottoFlag = LottoFlag;
    file->global.NoOfBallsPerTicket = count;
    const auto random = std::make_shared<SystemRandom>();
    const auto ours = [file, random, size, count] {
        Services services{file->dialogs, file->printer, file->clock, *random, file->tools, file->engine};
        Session session{file->global, services};
        LineList list;
        Array<std::string> picks;
        GenerateQuickPicks(session, count, size, picks, list);
    };
    const auto floor = [random, size, count, top] {
        std::vector<std::string> list, picks;
        for (int ticket = 0; ticket < size; ++ticket) {
            random->Randomize();
            std::vector<int> numbers;
            while (static_cast<int>(numbers.size()) < count) {
                const int number = static_cast<int>(random->Rnd() * top) + 1;
                if (std::find(numbers.begin(), numbers.end(), number) == numbers.end())
                    numbers.push_back(number);
            }
            std::sort(numbers.begin(), numbers.end());
            std::string line;
            for (const int number : numbers)
                line.append(line.empty() ? "" : ", ").append(std::to_string(number));
            if (count == 6) picks.push_back(line);
            list.push_back(std::move(line));
        }
    };
    return {ours, floor, file};
}
Pair PickSix(int size) { return QuickPicks(size, "Lotto649", 6, 49); }
Pair PickTwenty(int size) { return QuickPicks(size, "BCClubKeno", 20, 80); }

const std::vector<int> OneDate = {7'500, 30'000};

const Row Rows[] = {
    {"check, six numbers, one date", OneDate, CheckSix, 1.5},
    {"check, seven numbers", OneDate, CheckSeven, 1.5},
    {"check, keno of eight", OneDate, CheckKeno, 1.5},
    {"check, three digits", OneDate, CheckThree, 1.5},
    {"check, four digits", OneDate, CheckFour, 1.5},
    {"check, six-digit add-on", OneDate, CheckAddOn, 1.5},
    {"a draw: open, count, seek, append", {1'000, 1'000'000}, StoreDraw, 0, 5},
    {"a draw in the records of a life", {100, 10'000}, StoreDraw, 0, 0.5},
    {"frequency of the numbers", {9'000, 36'000}, Tally, 0},
    {"money report", {8'000, 32'000}, Money, 0},
    {"quick picks, six of 49", {8'000, 32'000}, PickSix, 0},
    {"quick picks, twenty of 80", {8'000, 32'000}, PickTwenty, 0},
};

// In milliseconds: what the processor worked for it, which a busy machine does not blur, or where a disk is
// waited for, what passed.
double Time(const Job& job, bool waits) {
    const auto start = std::chrono::steady_clock::now();
    const std::clock_t worked = std::clock();
    job();
    if (!waits) return 1e3 * static_cast<double>(std::clock() - worked) / CLOCKS_PER_SEC;
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

// The least of both, measured in turns: what else the machine did is in the others.
std::pair<double, double> Measure(const Pair& pair, int rounds) {
    Time(pair.ours, false);
    Time(pair.floor, false);
    std::pair<double, double> least(1e9, 1e9);
    for (int round = 0; round < rounds; ++round) {
        least.first = std::min(least.first, Time(pair.ours, false));
        least.second = std::min(least.second, Time(pair.floor, false));
    }
    return least;
}

// A file of its own on a disk that has to be synced, where the system's scratch folder is on one.
std::shared_ptr<Filled> OnDisk(int rows) {
    setenv("SORVANE_TEST_PLACE", std::filesystem::temp_directory_path().c_str(), 1);
    auto file =
        std::make_shared<Filled>(CreatePlayed6Table, "PlayedBC49", rows, "i % 3000, " + Balls(6) + ", 0, 0");
    unsetenv("SORVANE_TEST_PLACE");
    return file;
}

// A sheet of so many tickets, by SQLite alone: one transaction, or a commit a row.
void SaveDirectly(const Filled& file, int tickets, bool rowByRow) {
    const Direct plain(file.DbName());
    if (!rowByRow) plain.Do("BEGIN IMMEDIATE");
    int id = plain.Number("SELECT count(*) FROM PlayedBC49");
    plain.With("INSERT INTO PlayedBC49 VALUES (?, " + Today + ", 1, 2, 3, 4, 5, 6, 0, 0)",
               [&](sqlite3_stmt* insert) {
                   for (int ticket = 0; ticket < tickets; ++ticket) {
                       sqlite3_bind_int(insert, 1, ++id);
                       if (sqlite3_step(insert) != SQLITE_DONE) std::exit(1);
                       sqlite3_reset(insert);
                   }
               });
    if (!rowByRow) plain.Do("COMMIT");
}

// Whether a commit waits for a disk: in memory it takes less than this.
constexpr double LeastOfASync = 0.3;

void MeasureSheets(int rounds) {
    constexpr int RowsBefore = 1'000, MostRowByRow = 100;
    std::printf("\n%-36s %9s %10s %10s %7s %6s %14s %9s\n", "", "tickets", "ours", "floor", "times", "goal",
                "row by row", "quicker");
    bool syncs = true;
    for (const int tickets : {1, 10, 100, 1'000}) {
        const auto ours = OnDisk(RowsBefore), floor = OnDisk(RowsBefore), rows = OnDisk(RowsBefore);
        ours->global.NoOfTicketsOnSheet = tickets;
        ours->global.Lotto6Tickets.Redim(tickets);
        double least[] = {1e9, 1e9, 1e9};
        const auto take = [&](double& kept, const Job& job) { kept = std::min(kept, Time(job, true)); };
        for (int round = 0; round <= rounds; ++round) {
            take(least[0], [&] { SaveLotto6Tickets(ours->session, ours->At()); });
            take(least[1], [&] { SaveDirectly(*floor, tickets, false); });
            if (tickets <= MostRowByRow && round < 5)
                take(least[2], [&] { SaveDirectly(*rows, tickets, true); });
        }
        if (tickets == 1) syncs = least[1] >= LeastOfASync;
        std::printf("%-36s %9d %7.2f ms %7.2f ms %7.2f %6.2f", "a sheet saved", tickets, least[0], least[1],
                    least[0] / least[1], 1.3);
        if (tickets <= MostRowByRow) std::printf(" %11.2f ms %7.1f x", least[2], least[2] / least[0]);
        if (tickets == MostRowByRow) std::printf(" (goal 8)");
        std::printf("\n");
        std::fflush(stdout);
    }
    if (!syncs) std::printf("This disk does not sync: a commit costs next to nothing here.\n");
}

}  // namespace

int main(int argc, char** argv) {
    const int rounds = argc > 1 ? std::atoi(argv[1]) : 15;
    if (rounds < 1) return 2;
    std::printf("%-36s %9s %10s %10s %7s %6s %14s\n", "", "rows", "ours", "floor", "times", "goal",
                "growth (floor)");
    const std::string_view asked = argc > 2 ? argv[2] : "";
    for (const Row& row : Rows) {
        if (std::string_view(row.name).find(asked) == std::string_view::npos) continue;
        std::pair<double, double> before;
        for (std::size_t i = 0; i < row.sizes.size(); ++i) {
            const auto [ours, floor] = Measure(row.make(row.sizes[i]), rounds);
            std::printf("%-36s %9d %7.2f ms %7.2f ms %7.2f", i == 0 ? row.name : "", row.sizes[i], ours,
                        floor, ours / floor);
            if (row.goal > 0) std::printf(" %6.2f", row.goal);
            if (i > 0)
                std::printf("%*s%6.2f (%.2f) for %d times the rows", row.goal > 0 ? 1 : 8, "",
                            ours / before.first, floor / before.second, row.sizes[i] / row.sizes[i - 1]);
            if (i > 0 && row.more > 0) std::printf(", %.2f ms more of %.2f", ours - before.first, row.more);
            std::printf("\n");
            std::fflush(stdout);
            before = {ours, floor};
        }
    }
    if (std::string_view("a sheet saved").find(asked) != std::string_view::npos) MeasureSheets(rounds);
    return 0;
}

// Tallies, the money report and quick picks, each beside the least that any program would have to do.
#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <algorithm>
#include <array>
#include <map>
#include <memory>
#include <string>

#include "platform/SystemServices.h"
#include "quickpick/GenerateQuickPicks.h"
#include "reports/MoneyReport.h"
#include "store/CreateTables.h"
#include "support/RecordingChart.h"
#include "support/World.h"

namespace sorvane {
namespace {

constexpr int DrawsOfACentury = 36'525;

using testing::RecordingChart;
using testing::World;

std::string Rows(int count) {
    return "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < " +
           std::to_string(count) + ") ";
}

// A file with that many draws and that many rows in each ledger; made once for each.
World& WorldOf(int draws, int ledgerRows) {
    static std::map<std::pair<int, int>, std::unique_ptr<World>> worlds;
    auto& world = worlds[{draws, ledgerRows}];
    if (world) return *world;
    world = std::make_unique<World>();
    world->WithDatabase();
    const auto make = [&](const Creator& creator, const char* table) {
        creator(world->run, world->DbName(), table, PrimaryFieldName, DateFieldName);
    };
    make(CreateWin6Table, "WinLotto649");
    make(CreateSpentTable, "Spent");
    make(CreateWinningsTable, "Winnings");
    testing::PlainFile file = world->Plain();
    if (draws > 0)
        file.Do(Rows(draws) +
                "INSERT INTO WinLotto649 SELECT i, i, i % 49 + 1, i % 48 + 1, i % 47 + 1, i % 46 + 1, i % 45 "
                "+ 1, "
                "i % 44 + 1, i % 43 + 1 FROM n");
    if (ledgerRows > 0)
        for (const char* table : {"Spent", "Winnings"})
            file.Do(Rows(ledgerRows) + "INSERT INTO " + table +
                    " SELECT i, 'Lotto649', 46000 - i % 3000, i % 977 * 0.25 FROM n");
    world->global.LottoFlag = "Lotto649";
    return *world;
}

// A connection with the settings of the store's own.
sqlite3* OpenPlain(const std::string& path) {
    sqlite3* handle = nullptr;
    sqlite3_open_v2(path.c_str(), &handle, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr);
    return handle;
}

template <class EachRow>
void ForEachRow(sqlite3* handle, const char* sql, EachRow eachRow) {
    sqlite3_stmt* statement = nullptr;
    sqlite3_prepare_v2(handle, sql, -1, &statement, nullptr);
    while (sqlite3_step(statement) == SQLITE_ROW) eachRow(statement);
    sqlite3_finalize(statement);
}

void FrequencyTally(benchmark::State& state) {
    World& world = WorldOf(DrawsOfACentury, 0);
    RecordingChart chart;
    for (auto _ : state) TallySixNumberFrequency(world.run, world.DbName(), "WinLotto649", chart, ReportMode);
}
BENCHMARK(FrequencyTally)->Unit(benchmark::kMillisecond);

void FrequencyTallyByPlainSelect(benchmark::State& state) {
    const std::string path = WorldOf(DrawsOfACentury, 0).DbName();
    for (auto _ : state) {
        sqlite3* handle = OpenPlain(path);
        std::array<int, 50> counts{};
        ForEachRow(handle, "SELECT * FROM WinLotto649", [&](sqlite3_stmt* row) {
            for (int field = 2; field <= 8; ++field)
                ++counts[static_cast<std::size_t>(sqlite3_column_int(row, field))];
        });
        benchmark::DoNotOptimize(counts);
        sqlite3_close(handle);
    }
}
BENCHMARK(FrequencyTallyByPlainSelect)->Unit(benchmark::kMillisecond);

// The argument is the rows of both ledgers together.
void MoneyReportText(benchmark::State& state) {
    World& world = WorldOf(0, static_cast<int>(state.range(0)) / 2);
    RecordingChart chart;
    const std::string path = world.DbName();
    std::string TableName, text;
    Integer mode;
    for (auto _ : state) {
        ReportMoney(world.run, GameMoney, path, TableName, mode, chart, "Lotto 6/49", text);
        benchmark::DoNotOptimize(text.data());
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(MoneyReportText)
    ->Unit(benchmark::kMillisecond)
    ->RangeMultiplier(2)
    ->Range(1000, 32'000)
    ->Complexity(benchmark::oN);

void MoneyByPlainScanAndJoin(benchmark::State& state) {
    const std::string path = WorldOf(0, static_cast<int>(state.range(0)) / 2).DbName();
    const auto text = [](sqlite3_stmt* row, int field) {
        return reinterpret_cast<const char*>(sqlite3_column_text(row, field));
    };
    for (auto _ : state) {
        sqlite3* handle = OpenPlain(path);
        std::string report;
        for (const char* sql : {"SELECT * FROM Spent WHERE Lottoflag = 'Lotto649' ORDER BY Date",
                                "SELECT * FROM Winnings WHERE Lottoflag = 'Lotto649'"})
            ForEachRow(handle, sql, [&](sqlite3_stmt* row) {
                report.append("   ").append(text(row, 2)).append(14, ' ').append("$").append(text(row, 3));
                report.append("     ").append(text(row, 1)).append("\r\n");
            });
        benchmark::DoNotOptimize(report.data());
        sqlite3_close(handle);
    }
}
BENCHMARK(MoneyByPlainScanAndJoin)->Unit(benchmark::kMillisecond)->Arg(1000)->Arg(32'000);

// The argument is 6, or 20 for keno with twenty numbers of eighty.
void QuickPicks(benchmark::State& state) {
    World world;
    SystemRandom random;
    Services services{world.dialogs, world.printer, world.clock, random, world.tools, world.engine};
    Run run{world.global, services};
    const Integer shape = static_cast<int>(state.range(0)), tickets = 32'767;
    world.global.LottoFlag = shape == 6 ? "Lotto649" : "BCClubKeno";
    world.global.NoOfBallsPerTicket = 20;
    Array<std::string> picks;
    for (auto _ : state) {
        LineList list;
        GenerateQuickPicks(run, shape, tickets, picks, list);
        benchmark::DoNotOptimize(list.items.data());
    }
}
BENCHMARK(QuickPicks)->Unit(benchmark::kMillisecond)->Arg(6)->Arg(20);

// The same tickets by a plain loop: reseeds, draws, sorts, joins, keeps.
void QuickPicksByPlainLoop(benchmark::State& state) {
    SystemRandom random;
    const int count = static_cast<int>(state.range(0)), max = count == 6 ? 49 : 80;
    for (auto _ : state) {
        std::vector<std::string> list, picks;
        for (int ticket = 0; ticket < 32'767; ++ticket) {
            random.Randomize();
            std::vector<int> numbers;
            while (static_cast<int>(numbers.size()) < count) {
                const int number = static_cast<int>(random.Rnd() * max) + 1;
                if (std::find(numbers.begin(), numbers.end(), number) == numbers.end())
                    numbers.push_back(number);
            }
            std::sort(numbers.begin(), numbers.end());
            std::string line;
            for (const int number : numbers)
                line.append(line.empty() ? "" : ", ").append(std::to_string(number));
            if (count == 6) picks.push_back(line);
            list.push_back(line);
        }
        benchmark::DoNotOptimize(list.data());
    }
}
BENCHMARK(QuickPicksByPlainLoop)->Unit(benchmark::kMillisecond)->Arg(6)->Arg(20);

}  // namespace
}  // namespace sorvane

// A hundred thousand draws taken in by sorvane-records, beside SQLite used directly for the same rows already
// parsed; and the memory that a tenth of them takes beside all of them.
//     bench_records [ROUNDS]
#include <sqlite3.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "records/CommandLine.h"
#include "support/TempFolder.h"

namespace {

using namespace sorvane;
namespace fs = std::filesystem;

constexpr int AllDraws = 100'000;
constexpr int Today = 46'347;
constexpr int Numbers = 7;

using Draw = std::array<int, Numbers + 2>;  // key, day, numbers

std::vector<Draw> DrawsOf(int count) {
    std::vector<Draw> draws;
    for (int i = 0; i < count; ++i) {
        Draw draw{i + 1, Today - count + i + 1};
        for (int n = 0; n < Numbers; ++n) draw[static_cast<std::size_t>(n) + 2] = 1 + (i + n * 7) % 49;
        draws.push_back(draw);
    }
    return draws;
}

std::string WriteCsv(const TempFolder& folder, const std::vector<Draw>& draws) {
    const std::string path = folder.File("draws.csv");
    std::ofstream file(path);
    file << "date,1,2,3,4,5,6,bonus\n";
    for (const Draw& draw : draws) {
        file << Date::FromDays(draw[1]).ToText();
        for (int n = 0; n < Numbers; ++n) file << ',' << draw[static_cast<std::size_t>(n) + 2];
        file << '\n';
    }
    return path;
}

void Run(const TempFolder& folder, const std::vector<std::string>& arguments) {
    std::ostringstream data, words;
    Records::Outside outside{data,
                             words,
                             false,
                             [] { return Records::Moment{Date::FromDays(Today)}; },
                             [] { return std::chrono::milliseconds(0); },
                             folder.Path()};
    if (Records::RunCommand(outside, arguments) == 0) return;
    std::fputs(words.str().c_str(), stderr);
    std::exit(1);
}

// A file with the empty tables.
void Begin(const TempFolder& folder) {
    fs::remove_all(folder / "data");
    std::ofstream(folder.File("none.csv")) << "date,numbers,bonus\n";
    Run(folder, {"draws", "BC49", folder.File("none.csv")});
}

void InsertDirectly(const TempFolder& folder, const std::vector<Draw>& draws) {
    sqlite3* handle = nullptr;
    sqlite3_open_v2(folder.File("data/sorvane.mdb").c_str(), &handle,
                    SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr);
    sqlite3_exec(handle, "PRAGMA synchronous = EXTRA; BEGIN IMMEDIATE", nullptr, nullptr, nullptr);
    sqlite3_stmt* insert = nullptr;
    sqlite3_prepare_v2(handle, "INSERT INTO WinBC49 VALUES (?,?,?,?,?,?,?,?,?)", -1, &insert, nullptr);
    for (const Draw& draw : draws) {
        for (std::size_t i = 0; i < draw.size(); ++i)
            sqlite3_bind_int(insert, static_cast<int>(i) + 1, draw[i]);
        sqlite3_step(insert);
        sqlite3_reset(insert);
    }
    sqlite3_finalize(insert);
    sqlite3_exec(handle, "COMMIT", nullptr, nullptr, nullptr);
    sqlite3_close(handle);
}

template <class Work>
double Milliseconds(Work work) {
    const auto begin = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - begin).count();
}

// The most memory that a process of its own needs for so many draws.
long KilobytesFor(const TempFolder& folder, int count) {
    Begin(folder);
    const std::string csv = WriteCsv(folder, DrawsOf(count));
    std::fflush(nullptr);
    const pid_t child = fork();
    if (child == 0) {
        Run(folder, {"draws", "BC49", csv});
        _exit(0);
    }
    int status = 0;
    rusage used{};
    wait4(child, &status, 0, &used);
    return used.ru_maxrss;
}

}  // namespace

int main(int count, char** words) {
    const int rounds = count > 1 ? std::atoi(words[1]) : 7;
    const TempFolder folder;
    // First, while this process is small: a child begins with what its parent has.
    const long few = KilobytesFor(folder, AllDraws / 10), many = KilobytesFor(folder, AllDraws);
    const std::vector<Draw> draws = DrawsOf(AllDraws);
    const std::string csv = WriteCsv(folder, draws);
    double taken = 1e9, direct = 1e9;
    for (int round = 0; round < rounds; ++round) {
        Begin(folder);
        taken = std::min(taken, Milliseconds([&] { Run(folder, {"draws", "BC49", csv}); }));
        Begin(folder);
        direct = std::min(direct, Milliseconds([&] { InsertDirectly(folder, draws); }));
    }
    std::printf("%d draws from a file  %8.1f ms\n", AllDraws, taken);
    std::printf("the same rows by SQLite   %8.1f ms   %.2f x\n", direct, taken / direct);
    std::printf("memory for %d draws    %8ld kB\n", AllDraws / 10, few);
    std::printf("memory for %d draws   %8ld kB   %.2f x\n", AllDraws, many,
                static_cast<double>(many) / static_cast<double>(few));
    return 0;
}

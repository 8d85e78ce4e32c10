// Any text in place of a CSV file that comes in: nothing but an exit status may come out, a refused file
// leaves not a byte changed, and what was taken passes the check. The first bytes choose the command and the
// game.
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

#include "records/CommandLine.h"
#include "records/Tables.h"

namespace {

using namespace sorvane;
namespace fs = std::filesystem;

fs::path Folder() {
    const fs::path memory = "/dev/shm";
    return (fs::is_directory(memory) ? memory : fs::temp_directory_path()) /
           ("sorvane-records-fuzz-" + std::to_string(getpid()));
}

std::string BytesOf(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

void Write(const fs::path& path, const std::string& bytes) { std::ofstream(path, std::ios::binary) << bytes; }

int StatusOf(std::vector<std::string> arguments) {
    std::ostringstream data, words;
    Records::Outside outside{data,
                             words,
                             false,
                             [] { return Records::Moment{Date::FromYmd(2026, 11, 21)}; },
                             [] { return std::chrono::milliseconds(0); },
                             Folder()};
    return Records::RunCommand(outside, arguments);
}

// A file with a few rows, for what is there already.
std::string SoundFile() {
    fs::create_directories(Folder() / "data");
    fs::create_directories(Folder() / "in");
    Write(Folder() / "draws.csv", "date,numbers,bonus\n2026-11-14,1 2 3 4 5 6,7\n2026-11-18,1 2 3 4 5 7,8\n");
    if (StatusOf({"draws", "BC49", (Folder() / "draws.csv").string()}) != 0) std::abort();
    Write(Folder() / "tickets.csv", "date,numbers\n2026-11-14,1 2 3 4 5 6\n2026-11-14,1 2 3 4 5 6\n");
    if (StatusOf({"tickets", "BC49", (Folder() / "tickets.csv").string(), "--spent"}) != 0) std::abort();
    return BytesOf(Folder() / "data/sorvane.mdb");
}

std::vector<std::string> Arguments(std::uint8_t command, std::uint8_t game, const std::string& text) {
    const auto tables = Records::Tables();
    const auto keys = GameKeys();
    constexpr int Commands = 3;
    if (command % Commands == 0) {
        fs::remove_all(Folder() / "in");
        fs::create_directories(Folder() / "in");
        Write(Folder() / "in" / (tables[game % tables.size()].name + ".csv"), text);
        return {"import", (Folder() / "in").string()};
    }
    Write(Folder() / "one.csv", text);
    std::vector<std::string> arguments{command % Commands == 1 ? "draws" : "tickets",
                                       std::string(keys[game % keys.size()].LottoFlag),
                                       (Folder() / "one.csv").string()};
    if (command % Commands == 2) arguments.emplace_back("--spent");
    if (command % 2 == 0)
        arguments.insert(arguments.end(), {"--columns", "date,numbers,bonus,way,wager,price"});
    return arguments;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const std::string sound = SoundFile();
    if (size < 2) return 0;
    const fs::path file = Folder() / "data/sorvane.mdb";
    Write(file, sound);
    const std::string text(reinterpret_cast<const char*>(data) + 2, size - 2);
    const int status = StatusOf(Arguments(data[0], data[1], text));
    if (status == 1 && BytesOf(file) != sound) std::abort();
    if (status == 0 && StatusOf({"check"}) != 0) std::abort();
    if (status != 0 && status != 1) std::abort();
    if (fs::exists(Folder() / "data/sorvane.mdb-journal")) std::abort();
    return 0;
}

// Any text in place of a CSV file that comes in: nothing but an exit status may come out, a refused file
// leaves not a byte changed, and what was taken passes the check once its keys are counted anew. The first
// bytes choose the command and the game; inputs start from files that are taken.
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

#include "records/CommandLine.h"
#include "records/Tables.h"

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t most);

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

enum class Command { Import, Draws, Tickets };

// What the first two bytes choose. Histories come with names of their columns in the file or without.
struct Choice {
    Choice(std::uint8_t first, std::uint8_t second)
        : command(static_cast<Command>(first % 3)),
          named(first % 2 == 0),
          table(Records::Tables()[second % Records::Tables().size()]),
          game(GameKeys()[second % GameKeys().size()]) {}
    Command command;
    bool named;
    const Records::Table& table;
    const GameKey& game;
};

std::string ValueFor(const Records::Table& table, const Records::Field& field, int at) {
    switch (field.means) {
        case Records::Means::Key:
            return "9";
        case Records::Means::Day:
            return "2026-11-21";
        case Records::Means::Game:
            return std::string(table.game != nullptr ? table.game->LottoFlag : "BC49");
        case Records::Means::DayAsText:
            return "2006-03-11";
        case Records::Means::Mark:
            return "true";
        case Records::Means::Way:
            return "\"\"";
        default:
            return std::to_string(std::min(field.high, field.low + at));
    }
}

std::string SampleOf(const Choice& choice) {
    std::string names, values;
    if (choice.command == Command::Import) {
        int at = 0;
        for (const Records::Field& field : choice.table.fields) {
            const char* comma = names.empty() ? "" : ",";
            names += comma + field.name;
            values += comma + ValueFor(choice.table, field, at++);
        }
        return names + "\n" + values + "\n";
    }
    const Records::NumbersOf& numbers = Records::Numbers(choice.game.in);
    const bool draws = choice.command == Command::Draws;
    for (int i = 0; i < (draws ? numbers.drawn : numbers.count); ++i)
        values += " " + std::to_string(numbers.low + i);
    names = choice.named ? "" : "date,numbers,bonus,way,wager,price\n";
    return names + "2026-11-20," + values + "," + (draws && numbers.bonus ? "45" : "") + ",box,2,1.50\n";
}

std::vector<std::string> Arguments(const Choice& choice, const std::string& text) {
    if (choice.command == Command::Import) {
        fs::remove_all(Folder() / "in");
        fs::create_directories(Folder() / "in");
        Write(Folder() / "in" / (choice.table.name + ".csv"), text);
        return {"import", (Folder() / "in").string()};
    }
    Write(Folder() / "one.csv", text);
    const bool draws = choice.command == Command::Draws;
    std::vector<std::string> arguments{draws ? "draws" : "tickets", std::string(choice.game.LottoFlag),
                                       (Folder() / "one.csv").string()};
    if (!draws) arguments.emplace_back("--spent");
    if (choice.named) arguments.insert(arguments.end(), {"--columns", "date,numbers,bonus,way,wager,price"});
    return arguments;
}

}  // namespace

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t most,
                                               unsigned seed) {
    constexpr std::size_t Chosen = 2;
    constexpr unsigned Anew = 100;
    if (size < Chosen || seed % Anew == 0) {
        const std::uint8_t first = static_cast<std::uint8_t>(seed >> 8),
                           second = static_cast<std::uint8_t>(seed >> 16);
        const std::string sample = SampleOf({first, second});
        if (sample.size() + Chosen > most) return LLVMFuzzerMutate(data, size, most);
        data[0] = first;
        data[1] = second;
        std::memcpy(data + Chosen, sample.data(), sample.size());
        size = sample.size() + Chosen;
        // As it is now and then.
        if (seed % (Anew * 2) == 0) return size;
    }
    return LLVMFuzzerMutate(data, size, most);
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const std::string sound = SoundFile();
    if (size < 2) return 0;
    const fs::path file = Folder() / "data/sorvane.mdb";
    Write(file, sound);
    const std::string text(reinterpret_cast<const char*>(data) + 2, size - 2);
    const int status = StatusOf(Arguments({data[0], data[1]}, text));
    if (status == 1 && BytesOf(file) != sound) std::abort();
    if (status == 0 && (StatusOf({"renumber"}) != 0 || StatusOf({"check"}) != 0)) std::abort();
    fs::remove_all(Folder() / "data/backups");
    if (status != 0 && status != 1) std::abort();
    if (fs::exists(Folder() / "data/sorvane.mdb-journal")) std::abort();
    return 0;
}

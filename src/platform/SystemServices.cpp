#include "platform/SystemServices.h"

#include <chrono>
#include <cstdlib>
#include <ctime>
#include <exception>
#include <filesystem>
#include <random>
#include <system_error>

#include "platform/RunTimeError.h"
#include "platform/StartProgram.h"

namespace sorvane {

namespace {

namespace fs = std::filesystem;

// A system without a source of its own leaves it to the clock.
std::uint64_t Entropy() {
    try {
        std::random_device device;
        return (std::uint64_t{device()} << 32) ^ device();
    } catch (const std::exception&) {
        return 0;
    }
}

std::uint64_t ClockTicks() {
    return static_cast<std::uint64_t>(std::chrono::system_clock::now().time_since_epoch().count());
}

bool IsProgram(const fs::path& path) {
    constexpr fs::perms Execute = fs::perms::owner_exec | fs::perms::group_exec | fs::perms::others_exec;
    std::error_code none;
    const fs::file_status status = fs::status(path, none);
    return fs::is_regular_file(status) && (status.permissions() & Execute) != fs::perms::none;
}

}  // namespace

Date SystemClock::Today() const {
    const std::time_t now = std::time(nullptr);
    const std::tm* local = std::localtime(&now);
    if (local == nullptr) Raise(ErrorNumber::InvalidProcedureCall);
    return Date::FromYmd(local->tm_year + 1900, local->tm_mon + 1, local->tm_mday);
}

SystemRandom::SystemRandom() : seeds_(Entropy() ^ ClockTicks()) { Randomize(); }

// The seeds of one object are drawn from a sequence that never repeats a number, so no two are alike however
// fast they follow each other.
void SystemRandom::Randomize() { mix_ = SplitMix(seeds_.Next()); }

std::string DesktopTools::SystemSearchPath() {
    const char* path = std::getenv("PATH");
    return path == nullptr ? std::string() : std::string(path);
}

std::optional<std::string> DesktopTools::Find(std::string_view name) const {
    if (name.empty() || fs::path(name).has_parent_path()) return std::nullopt;
    std::string_view rest = searchPath_;
    while (!rest.empty()) {
        const std::size_t end = rest.find(SearchPathSeparator);
        const fs::path folder(rest.substr(0, end));
        rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
        if (!folder.is_absolute()) continue;
        fs::path program = folder / name;
        program += ProgramSuffix;
        if (IsProgram(program)) return program.string();
    }
    return std::nullopt;
}

void DesktopTools::Start(const std::string& path) {
    if (!StartProgram(path)) Raise(ErrorNumber::FileNotFound);
}

}  // namespace sorvane

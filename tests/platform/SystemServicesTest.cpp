#include "platform/SystemServices.h"

#include <gtest/gtest.h>

#include <array>
#include <cerrno>
#include <cmath>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <optional>
#include <set>
#include <string>

#include "platform/RunTimeError.h"
#include "support/TempFolder.h"

#ifndef _WIN32
#include <sys/stat.h>
#include <sys/wait.h>
#endif

namespace sorvane {
namespace {

namespace fs = std::filesystem;

TEST(SystemClockTest, TodayIsAWholeDayNextToTheWorldsDay) {
    const Date today = SystemClock().Today();
    const double utc = std::floor(static_cast<double>(std::time(nullptr)) / 86'400.0) + 25'569;
    EXPECT_EQ(today.Days(), std::floor(today.Days()));
    EXPECT_LE(std::abs(today.Days() - utc), 1);
}

TEST(SystemRandomTest, NumbersLieFromZeroUpToOneAndFillTheRange) {
    SystemRandom random;
    std::array<int, 49> hits{};
    for (int draw = 0; draw < 100'000; ++draw) {
        const double number = random.Rnd();
        ASSERT_GE(number, 0);
        ASSERT_LT(number, 1);
        ++hits.at(static_cast<std::size_t>(number * 49));
    }
    for (const int hit : hits) EXPECT_NEAR(hit, 100'000 / 49.0, 300);
}

TEST(SystemRandomTest, NoTwoSequencesAreAlikeHoweverFastTheyFollow) {
    std::set<double> firsts;
    constexpr std::size_t Sequences = 10'000;
    SystemRandom one;
    SystemRandom other;
    for (std::size_t i = 0; i < Sequences; ++i) {
        one.Randomize();
        other.Randomize();
        firsts.insert(one.Rnd());
        firsts.insert(other.Rnd());
    }
    EXPECT_EQ(firsts.size(), 2 * Sequences);
}

TEST(SplitMixTest, SeedDeterminesTheSequence) {
    SplitMix a(42);
    SplitMix b(42);
    for (int i = 0; i < 100; ++i) EXPECT_EQ(a.Next(), b.Next());
    EXPECT_NE(SplitMix(1).Next(), SplitMix(2).Next());
    EXPECT_EQ(SplitMix(0).Next(), 0xE220A8397B1DCDAFU) << "sequences stay the same from release to release";
}

#ifndef _WIN32

// Sets the time zone of the process and puts it back.
class TimeZone {
  public:
    explicit TimeZone(const char* zone) {
        if (const char* was = std::getenv("TZ")) was_ = was;
        setenv("TZ", zone, 1);
        tzset();
    }
    ~TimeZone() {
        if (was_) setenv("TZ", was_->c_str(), 1);
        else unsetenv("TZ");
        tzset();
    }
    TimeZone(const TimeZone&) = delete;
    TimeZone& operator=(const TimeZone&) = delete;

  private:
    std::optional<std::string> was_;
};

TEST(SystemClockTest, TodayIsTheLocalDate) {
    const auto todayIn = [](const char* zone) {
        const TimeZone set(zone);
        return SystemClock().Today();
    };
    // More than a day lies between these two places, so they never have the same date.
    EXPECT_GT(todayIn("EAST-14"), todayIn("WEST+12"));
}

// A folder with a program in it that leaves a mark when it runs.
class DesktopToolsTest : public ::testing::Test {
  protected:
    void Write(const fs::path& path, const std::string& text, bool executable) const {
        std::ofstream(path) << text;
        if (executable) fs::permissions(path, fs::perms::owner_exec, fs::perm_options::add);
    }
    TempFolder folder{fs::temp_directory_path()};
};

TEST_F(DesktopToolsTest, FindsTheFirstProgramOnThePath) {
    for (const char* name : {"a", "b"}) {
        fs::create_directory(folder / name);
        Write(folder / name / "tool", "", true);
    }
    const DesktopTools tools("::" + folder.File("missing") + ":" + folder.File("b") + ":" + folder.File("a") +
                             ":");
    EXPECT_EQ(tools.Find("tool"), (folder / "b" / "tool").string());
    EXPECT_EQ(tools.Find("other"), std::nullopt);
}

TEST_F(DesktopToolsTest, PassesOverWhatIsNoProgram) {
    Write(folder / "text", "", false);
    fs::create_directory(folder / "directory");
    const DesktopTools tools(folder.Path().string());
    for (const std::string_view name : {"text", "directory", "", "./text", "../text", "/bin/sh", ".", ".."})
        EXPECT_EQ(tools.Find(name), std::nullopt) << name;
}

TEST_F(DesktopToolsTest, LeavesOutFoldersThatAreNotAbsolute) {
    Write(folder / "tool", "", true);
    const fs::path before = fs::current_path();
    fs::current_path(folder.Path());
    EXPECT_EQ(DesktopTools(".").Find("tool"), std::nullopt);
    EXPECT_EQ(DesktopTools("").Find("tool"), std::nullopt);
    fs::current_path(before);
}

TEST_F(DesktopToolsTest, SearchesThePathOfTheSystem) { EXPECT_TRUE(DesktopTools().Find("sh")); }

TEST_F(DesktopToolsTest, StartRaisesFileNotFoundForWhatCannotRun) {
    DesktopTools tools;
    Write(folder / "text", "", false);
    EXPECT_EQ(ErrorOf([&] { tools.Start(folder.File("missing")); }), 53);
    EXPECT_EQ(ErrorOf([&] { tools.Start(folder.File("text")); }), 53);
    EXPECT_EQ(ErrorOf([&] { tools.Start(folder.Path().string()); }), 53);
    EXPECT_EQ(ErrorOf([&] { tools.Start(""); }), 53);
}

TEST_F(DesktopToolsTest, StartedProgramRunsAndIsNoChildOfOurs) {
    // The program tells its parent through a named pipe, on which the test waits.
    const std::string pipe = folder.File("pipe");
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    Write(folder / "tool", "#!/bin/sh\necho ran $# > '" + pipe + "'\n", true);
    DesktopTools().Start(folder.File("tool"));
    std::string line;
    std::getline(std::ifstream(pipe), line);
    EXPECT_EQ(line, "ran 0");
    EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1) << "a child is left";
    EXPECT_EQ(errno, ECHILD);
}

#endif

}  // namespace
}  // namespace sorvane

#include "platform/SystemServices.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstdlib>
#include <ctime>
#include <optional>
#include <set>
#include <string>

namespace sorvane {
namespace {

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

#endif

}  // namespace
}  // namespace sorvane

// The paddings that never end: each runs in a process of its own until its time is up.
#include <gtest/gtest.h>

#ifdef __linux__
#include <sys/resource.h>
#include <sys/time.h>
#include <unistd.h>

#include <csignal>
#include <fstream>

#include "reports/MoneyReport.h"
#include "reports/PadAmount.h"
#include "reports/ReportWorld.h"

namespace sorvane {
namespace {

using testing::ReportWorld;

// What the process has mapped now, in bytes.
[[maybe_unused]] rlim_t Mapped() {
    rlim_t pages = 0;
    std::ifstream("/proc/self/statm") >> pages;
    return pages * static_cast<rlim_t>(sysconf(_SC_PAGESIZE));
}

// A fifth of a second of processor time, then SIGVTALRM ends the process; one that grows meanwhile ends by
// its failing allocation instead. A sanitizer has all memory reserved and needs no bound.
void BoundThisProcess() {
    const itimerval aFifth{{0, 0}, {0, 200'000}};
    setitimer(ITIMER_VIRTUAL, &aFifth, nullptr);
#if !defined(__SANITIZE_ADDRESS__)
    constexpr rlim_t Room = 32 * 1024 * 1024;
    const rlim_t most = Mapped() + Room;
    const rlimit memory{most, most};
    setrlimit(RLIMIT_AS, &memory);
#endif
}

#define EXPECT_NEVER_ENDS(statement) \
    EXPECT_EXIT(                     \
        {                            \
            BoundThisProcess();      \
            statement;               \
            exit(0);                 \
        },                           \
        ::testing::KilledBySignal(SIGVTALRM), "")

void Write(const char* spent, const char* won) {
    ReportWorld world("BC49");
    world.global.TotalSpent = Currency::FromText(spent);
    world.global.TotalWon = Currency::FromText(won);
    std::string text;
    WriteMoneyReport(world.run, GameMoney, "BC/49", text);
}

TEST(EndlessPaddingTest, FourteenCharactersFit) {
    EXPECT_EQ(PadAmount("100,000,000.00"), "100,000,000.00");
    EXPECT_EQ(PadAmount(""), std::string(14, ' '));
    EXPECT_EQ(PadAmountAtLeastOnce("(999,999.99)"), "  (999,999.99)");
}

TEST(EndlessPaddingTest, FifteenCharactersNeverEnd) { EXPECT_NEVER_ENDS(PadAmount("-100,000,000.00")); }

TEST(EndlessPaddingTest, ATotalOfATenthOfABillionFitsAndTenTimesThatNeverEnds) {
    Write("100000000", "0");
    EXPECT_NEVER_ENDS(Write("1000000000", "0"));
}

TEST(EndlessPaddingTest, ANetGainNeverEndsFromAMillionUpwards) {
    Write("0", "999999.99");
    EXPECT_NEVER_ENDS(Write("0", "1000000"));
    EXPECT_NEVER_ENDS(Write("0", "10000000"));
}

TEST(EndlessPaddingTest, ANetLossOfAMillionFits) { Write("1000000", "0"); }

TEST(EndlessPaddingTest, ARowInParenthesesNeverEndsFromTenMillionUpwards) {
    ReportWorld world("BC49");
    world.Spent({{"BC49", "2026-01-02", "-9999999.99"}});
    SumSpent(world.run, world.DbName(), "Spent", world.chart, ReportMode);
    EXPECT_EQ(world.global.SpentLines(0), "2026-01-02              $(9,999,999.99)\r\n");
    world.Plain().Do("UPDATE Spent SET Spent = -10000000");
    EXPECT_NEVER_ENDS(SumSpent(world.run, world.DbName(), "Spent", world.chart, ReportMode));
}

TEST(EndlessPaddingTest, ASumOnTheChartNeverEndsEither) {
    ReportWorld world("BC49");
    world.Winnings({{"BC49", "2026-01-02", "1000000000"}});
    EXPECT_NEVER_ENDS(SumWon(world.run, world.DbName(), "Winnings", world.chart, ChartMode));
}

}  // namespace
}  // namespace sorvane
#endif

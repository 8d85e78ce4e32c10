// The paddings that never end: each runs in a process of its own until its time is up.
#include <gtest/gtest.h>

#ifdef __linux__
#include <sched.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <fstream>
#include <functional>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

#include "reports/MoneyReport.h"
#include "reports/PadAmount.h"
#include "reports/ReportWorld.h"

namespace sorvane {

using namespace ReportFacts;
namespace {

using testing::ReportWorld;

// Runs something in a process of its own, which ends with this object at the latest.
class Apart {
  public:
    explicit Apart(const std::function<void()>& act) : process_(fork()) {
        if (process_ != 0) return;
        act();
        _exit(0);
    }
    ~Apart() {
        if (process_ > 0) End();
    }
    Apart(const Apart&) = delete;
    Apart& operator=(const Apart&) = delete;

    // Whether it comes to rest without ending; half a second of processor time is what it may take till then.
    bool ComesToRest() const {
        constexpr int Rested = 200;  // this often in a row it was found asleep, and no time was taken
        constexpr long HalfASecond = 50;
        int asleep = 0;
        for (Seen before = Look(); asleep < Rested; sched_yield()) {
            const Seen now = Look();
            if (now.state == 'Z' || now.ticks > HalfASecond) return false;
            asleep = now.state == 'S' && now.ticks == before.ticks ? asleep + 1 : 0;
            before = now;
        }
        return true;
    }
    // Asks it to end; the signal that it ended by, 0 when it ended by itself.
    int End() {
        kill(process_, SIGTERM);
        int status = 0;
        waitpid(std::exchange(process_, 0), &status, 0);
        return WIFSIGNALED(status) ? WTERMSIG(status) : 0;
    }

  private:
    struct Seen {
        char state = 'Z';
        long ticks = 0;  // processor time, in hundredths of a second
    };
    Seen Look() const {
        std::ifstream file("/proc/" + std::to_string(process_) + "/stat");
        const std::string text{std::istreambuf_iterator<char>(file), {}};
        std::istringstream fields(text.substr(text.rfind(')') + 1));
        Seen seen;
        fields >> seen.state;
        std::string skipped;
        for (int i = 0; i < 10; ++i) fields >> skipped;
        long user = 0, system = 0;
        fields >> user >> system;
        seen.ticks = user + system;
        return seen;
    }
    pid_t process_;
};

void ExpectNeverToEnd(const std::function<void()>& act) {
    Apart apart(act);
    EXPECT_TRUE(apart.ComesToRest());
    EXPECT_EQ(apart.End(), SIGTERM);
}
#define EXPECT_NEVER_ENDS(statement) ExpectNeverToEnd([&] { statement; })

void Write(const char* spent, const char* won) {
    ReportWorld world("BC49");
    world.global.TotalSpent = Currency::FromText(spent);
    world.global.TotalWon = Currency::FromText(won);
    std::string text;
    WriteMoneyReport(world.session, GameMoney, "BC/49", text);
}

TEST(EndlessPaddingTest, FourteenCharactersFit) {
    EXPECT_EQ(PadAmount("100,000,000.00"), "100,000,000.00");
    EXPECT_EQ(PadAmount(""), std::string(14, ' '));
    EXPECT_EQ(PadAmountAtLeastOnce("(999,999.99)"), "  (999,999.99)");
    EXPECT_EQ(PadAmountAtLeastOnce("(9999,999.99)"), " (9999,999.99)");
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
    SumSpent(world.session, {world.DbName(), "Spent"}, world.chart, ReportMode);
    EXPECT_EQ(world.global.SpentLines(0), "2026-01-02              $(9,999,999.99)\r\n");
    world.Plain().Do("UPDATE Spent SET Spent = -10000000");
    EXPECT_NEVER_ENDS(SumSpent(world.session, {world.DbName(), "Spent"}, world.chart, ReportMode));
}

TEST(EndlessPaddingTest, ASumOnTheChartNeverEndsEither) {
    ReportWorld world("BC49");
    world.Winnings({{"BC49", "2026-01-02", "1000000000"}});
    EXPECT_NEVER_ENDS(SumWon(world.session, {world.DbName(), "Winnings"}, world.chart, ChartMode));
}

// Each way to the endless padding: rows and sums of one game, and of all games, whose winnings are read
// without a statement of SQL.
TEST(EndlessPaddingTest, HoldsNoLockOnTheFileMeanwhile) {
    for (const char* game : {"BC49", ""}) {
        for (const int mode : {ChartMode, ReportMode}) {
            for (const bool won : {false, true}) {
                SCOPED_TRACE(std::string(game) + (won ? " won " : " spent ") + std::to_string(mode));
                ReportWorld world(game);
                // Not in the first row: a walk begins with the step to the second.
                const std::vector<ReportWorld::LedgerRow> rows{{"BC49", "2026-01-01", "1"},
                                                               {"BC49", "2026-01-02", "-1000000000"},
                                                               {"BC49", "2026-01-03", "2"}};
                world.Spent(rows);
                world.Winnings(rows);
                Apart apart([&] {
                    if (won) SumWon(world.session, {world.DbName(), "Winnings"}, world.chart, mode);
                    else SumSpent(world.session, {world.DbName(), "Spent"}, world.chart, mode);
                });
                ASSERT_TRUE(apart.ComesToRest());
                world.Plain().Do("BEGIN EXCLUSIVE; DELETE FROM Spent; COMMIT");
                EXPECT_EQ(world.Plain().One("SELECT count(*) FROM Spent"), "0");
                EXPECT_EQ(apart.End(), SIGTERM);
            }
        }
    }
}

TEST(EndlessPaddingTest, HoldsNoLockBehindARowThatCannotBeReadEither) {
    ReportWorld world("");
    world.Winnings(
        {{"BC49", "2026-01-01", "1"}, {"BC49", "2026-01-02", "-1000000000"}, {"BC49", "2026-01-03", "2"}});
    world.Plain().Do("UPDATE Winnings SET Winnings = 'lost' WHERE ID1 = 3");
    Apart apart([&] { SumWon(world.session, {world.DbName(), "Winnings"}, world.chart, ReportMode); });
    ASSERT_TRUE(apart.ComesToRest());
    world.Plain().Do("BEGIN EXCLUSIVE; DELETE FROM Winnings; COMMIT");
    EXPECT_EQ(world.Plain().One("SELECT count(*) FROM Winnings"), "0");
}

}  // namespace
}  // namespace sorvane
#endif

// The writer of the ledgers, read back with plain SQLite.
#include "store/StoreLedger.h"

#include <gtest/gtest.h>

#include <functional>
#include <utility>

#include "store/CreateTables.h"
#include "support/World.h"

namespace sorvane {
namespace {

using testing::World;
using Names = std::vector<std::string>;

class LedgerTest : public ::testing::Test {
  protected:
    void SetUp() override {
        world.WithDatabase();
        Make(CreateSpentTable, "Spent");
        Make(CreateWinningsTable, "Winnings");
        g.LottoFlag = "Lotto649";
    }
    void Make(const Creator& creator, const std::string& table) {
        creator(world.session, {world.DbName(), table}, PrimaryFieldName, DateFieldName);
    }
    void Record(std::string_view table, std::string_view amount) {
        std::string TableName(table);
        g.Dollars = amount;
        StoreLedgerAmount(world.session, {world.DbName(), TableName, day});
    }
    Names Spent() { return world.Plain().Rows("SELECT ID1, Lottoflag, Spent FROM Spent ORDER BY rowid"); }
    Names Winnings() {
        return world.Plain().Rows("SELECT ID1, Lottoflag, Winnings FROM Winnings ORDER BY rowid");
    }
    void ExpectQuestion(Answer answer, std::function<void()> meanwhile = {}) {
        world.dialogs.Expect("Correct Winnings?",
                             "You have already entered a Winning amount for this\r\n"
                             "Lottery on this Draw Date. Do you wish to amend your\r\nentry?",
                             answer, BoxStyle::YesNo, std::move(meanwhile));
    }

    World world;
    Global& g = world.global;
    const Date day = Date::FromYmd(2026, 3, 14);
};

TEST_F(LedgerTest, TwoEntriesOfOneDateAreTwoRowsWithDifferentKeys) {
    Record("Spent", "5.00");
    Record("Spent", "2.50");
    EXPECT_EQ(Spent(), (Names{"1|Lotto649|5", "2|Lotto649|2.5"}));
}

TEST_F(LedgerTest, SuperSevenKeepsItsBlank) {
    g.LottoFlag = "Super 7";
    Record("Spent", "2.00");
    EXPECT_EQ(Spent(), Names{"1|Super 7|2"});
}

TEST_F(LedgerTest, AmountsConvertWithBlanksAndCommasAndNothingIsARowToo) {
    Record("Spent", " 5.00");
    Record("Spent", "1,000.50");
    Record("Spent", "0.00");
    EXPECT_EQ(Spent(), (Names{"1|Lotto649|5", "2|Lotto649|1000.5", "3|Lotto649|0"}));
}

TEST_F(LedgerTest, ABadAmountIsRefusedAndWritesNothing) {
    for (const char* bad : {".", "", "12abc", "abc"}) {
        world.ExpectStoreError(3421, "Please enter a valid amount and try again.");
        Record("Spent", bad);
    }
    EXPECT_TRUE(Spent().empty());
}

TEST_F(LedgerTest, WhileWinningsAreEnteredTheFirstRowOfTheDateIsAmendedOnYes) {
    g.EnteringWinnings = On;
    Record("Winnings", "10.00");
    ExpectQuestion(Answer::No);
    Record("Winnings", "25.00");
    EXPECT_EQ(Winnings(), Names{"1|Lotto649|10"});
    ExpectQuestion(Answer::Yes);
    Record("Winnings", "25.00");
    EXPECT_EQ(Winnings(), Names{"1|Lotto649|25"});
}

TEST_F(LedgerTest, AnotherGameOnTheDateIsOnlyFoundWhenItStandsFirst) {
    g.EnteringWinnings = On;
    Record("Winnings", "10.00");
    g.LottoFlag = "Super 7";
    Record("Winnings", "20.00");
    Record("Winnings", "30.00");
    EXPECT_EQ(Winnings(), (Names{"1|Lotto649|10", "2|Super 7|20", "3|Super 7|30"}));
}

TEST_F(LedgerTest, BetweenEnterWinningsAndTheNextCheckSpendingMeetsTheSameQuestion) {
    Record("Spent", "5.00");
    g.EnteringWinnings = On;
    ExpectQuestion(Answer::Yes);
    Record("Spent", "7.00");
    EXPECT_EQ(Spent(), Names{"1|Lotto649|7"});
}

TEST_F(LedgerTest, ABadAmountInAnAmendedRowLeavesTheOldOne) {
    g.EnteringWinnings = On;
    Record("Winnings", "10.00");
    ExpectQuestion(Answer::Yes);
    world.ExpectStoreError(3421, "Please enter a valid amount and try again.");
    Record("Winnings", "ten");
    EXPECT_EQ(Winnings(), Names{"1|Lotto649|10"});
}

TEST_F(LedgerTest, NothingIsOpenAndNothingLockedWhileTheQuestionWaits) {
    g.EnteringWinnings = On;
    Record("Winnings", "10.00");
    ExpectQuestion(Answer::Yes, [&] {
        EXPECT_EQ(g.Open.DbOpen, 0);
        EXPECT_EQ(g.Open.RsOpen, 0);
        world.Plain().Do("BEGIN EXCLUSIVE; UPDATE Winnings SET ID1 = 9; COMMIT");
    });
    Record("Winnings", "25.00");
    EXPECT_EQ(Winnings(), Names{"9|Lotto649|25"});
}

TEST_F(LedgerTest, AnAmountThatHasGoneBehindTheQuestionIsAddedAnewOnYesAndNotOnNo) {
    g.EnteringWinnings = On;
    for (const Answer answer : {Answer::No, Answer::Yes}) {
        Record("Winnings", "10.00");
        ExpectQuestion(answer, [&] { world.Plain().Do("DELETE FROM Winnings"); });
        Record("Winnings", "25.00");
        EXPECT_EQ(Winnings(), answer == Answer::Yes ? Names{"1|Lotto649|25"} : Names{});
    }
}

TEST_F(LedgerTest, ARowOfAnotherGameThatHasComeBehindTheQuestionIsNotAmended) {
    g.EnteringWinnings = On;
    Record("Winnings", "10.00");
    ExpectQuestion(Answer::Yes, [&] { world.Plain().Do("UPDATE Winnings SET Lottoflag = 'BC49'"); });
    Record("Winnings", "25.00");
    EXPECT_EQ(Winnings(), (Names{"1|BC49|10", "2|Lotto649|25"}));
}

TEST_F(LedgerTest, AMissingLedgerIsNamed) {
    world.Plain().Do("DROP TABLE Spent");
    world.ExpectStoreError(3011, "Unable to open Spent table. Please advise error number to support.");
    Record("Spent", "5.00");
}

}  // namespace
}  // namespace sorvane

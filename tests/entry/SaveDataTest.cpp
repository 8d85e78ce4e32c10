// The writers of the sheets, read back with plain SQLite.
#include "entry/SaveData.h"

#include <gtest/gtest.h>

#include <fstream>

#include "entry/CreateAllTables.h"
#include "store/StoreLedger.h"
#include "support/World.h"

namespace sorvane {
namespace {

using testing::PlainFile;
using testing::World;
using Names = std::vector<std::string>;

class WritersTest : public ::testing::Test {
  protected:
    Global& g = world.global;

    void Open(Family family, std::string_view LottoFlag, std::string_view ExtraFlag) {
        g.LottoFlag = LottoFlag;
        g.ExtraFlag = ExtraFlag;
        CreateAllTables(world.session, family, state);
    }
    StoreArgs At(std::string_view table) {
        state.TableName = table;
        state.WindowDate = day;
        return {state.DbName, state.TableName, state.WindowDate};
    }
    Names All(const std::string& table) {
        return world.Plain().Rows("SELECT * FROM [" + table + "] ORDER BY rowid");
    }
    template <class Ticket>
    static void Fill(Ticket& ticket, int first) {
        for (int i = 0; i < decltype(ticket.Numbers)::Count; ++i) ticket.Numbers(i) = first + i;
    }
    std::string Day(const std::string& rest) { return std::to_string(day.Day()) + rest; }

    World world;
    WindowState state;
    const Date day = Date::FromYmd(2026, 3, 14);
};

TEST_F(WritersTest, SixNumberRowsCountTheirKeysFromOneAndCarryTheWindowsDate) {
    Open(Family::frm649, "BC49", "Extra");
    g.NoOfTicketsOnSheet = 3;
    g.Lotto6Tickets.Redim(3);
    for (int i = 0; i < 3; ++i) {
        Fill(g.Lotto6Tickets(i), 1 + 10 * i);
        g.Lotto6Tickets(i).DrawDate = Date::FromYmd(1999, 1, 1);
    }
    g.Lotto6Tickets(1).Regular = True;
    SaveLotto6Tickets(world.session, At("PlayedBC49"));
    EXPECT_EQ(All("PlayedBC49"), (Names{"1|" + Day("|1|2|3|4|5|6|0|0"), "2|" + Day("|11|12|13|14|15|16|1|0"),
                                        "3|" + Day("|21|22|23|24|25|26|0|0")}));
    SaveLotto6Tickets(world.session, At("PlayedBC49"));
    EXPECT_EQ(world.Plain().One("SELECT group_concat(ID1) FROM PlayedBC49"), "1,2,3,4,5,6");
    EXPECT_EQ(g.Open.DbOpen, 0);
    EXPECT_EQ(g.Open.RsOpen, 0);
}

TEST_F(WritersTest, LottarioWritesItsBonusTicketsAndBothMarks) {
    Open(Family::frm645, "Lottario", "Encore");
    g.NoOfTicketsOnSheet = 1;
    g.Lotto6Tickets.Redim(2);
    Fill(g.Lotto6Tickets(0), 1);
    Fill(g.Lotto6Tickets(1), 7);
    g.Lotto6Tickets(0).Regular = True;
    g.Lotto6Tickets(1).EarlyBird = True;
    SaveLottarioTickets(world.session, At("PlayedLottario"));
    EXPECT_EQ(All("PlayedLottario"),
              (Names{"1|" + Day("|1|2|3|4|5|6|1|0"), "2|" + Day("|7|8|9|10|11|12|0|1")}));
}

TEST_F(WritersTest, SuperSevenWritesThreeRowsForATicket) {
    Open(Family::frm749, "Super 7", "Tag");
    g.NoOfTicketsOnSheet = 1;
    g.Lotto7Tickets.Redim(3);
    for (int i = 0; i < 3; ++i) Fill(g.Lotto7Tickets(i), 1 + 7 * i);
    g.Lotto7Tickets(0).Regular = True;
    SaveLotto7Tickets(world.session, At("PlayedSuper7"));
    EXPECT_EQ(All("PlayedSuper7"), (Names{"1|" + Day("|1|2|3|4|5|6|7|1"), "2|" + Day("|8|9|10|11|12|13|14|0"),
                                          "3|" + Day("|15|16|17|18|19|20|21|0")}));
}

TEST_F(WritersTest, AKenoRowHoldsTenBallsOfTheTwentyPicked) {
    Open(Family::frmKeno70, "ONTKeno", "Encore");
    g.NoOfTicketsOnSheet = 1;
    g.KenoTickets.Redim(1);
    KenoTicket& ticket = g.KenoTickets(0);
    Fill(ticket, 1);
    ticket.Wager = 5;
    ticket.NoOfBalls = 20;
    ticket.Regular = True;
    SaveKenoTickets(world.session, At("PlayedONTKeno"));
    EXPECT_EQ(All("PlayedONTKeno"), Names{"1|" + Day("|ONTKeno|1|2|3|4|5|6|7|8|9|10|5|20|1")});
}

TEST_F(WritersTest, DigitRowsPutTheGameBeforeTheDateAndTheWayBehindTheDigits) {
    Open(Family::frmPick3, "WESTPick3", "WESTPick3");
    g.NoOfTicketsOnSheet = 2;
    g.PlayOption = "Box";
    g.Pick3Tickets.Redim(2);
    Fill(g.Pick3Tickets(0), 7);
    g.Pick3Tickets(1).Regular = True;
    SavePick3Tickets(world.session, At("PlayedWESTPick3"));
    EXPECT_EQ(All("PlayedWESTPick3"),
              (Names{"1|WESTPick3|" + Day("|7|8|9|Box|0"), "2|WESTPick3|" + Day("|0|0|0|Box|1")}));
}

TEST_F(WritersTest, AnEmptyWayOfPlayIsWrittenAsAnEmptyText) {
    Open(Family::frmPick4, "FLAPlay4", "FLAPlay4");
    g.NoOfTicketsOnSheet = 1;
    g.Pick4Tickets.Redim(1);
    Fill(g.Pick4Tickets(0), 1);
    SavePick4Tickets(world.session, At("PlayedFLAPlay4"));
    EXPECT_EQ(All("PlayedFLAPlay4"), Names{"1|FLAPlay4|" + Day("|1|2|3|4||0")});
}

TEST_F(WritersTest, AnAddOnNumberGoesDigitByDigitAndItsSeventhForWesternExtraAlone) {
    Open(Family::frm749, "Super 7", "WESTExtra");
    g.NoOfExtra = 2;
    g.AddOnTickets.Redim(2);
    Fill(g.AddOnTickets(0), 1);
    Fill(g.AddOnTickets(1), 2);
    SaveAddOnTickets(world.session, At("PlayedWESTExtra"));
    EXPECT_EQ(All("PlayedWESTExtra"),
              (Names{"1|Super 7|" + Day("|1|2|3|4|5|6|7"), "2|Super 7|" + Day("|2|3|4|5|6|7|8")}));
    Open(Family::frm749, "Super 7", "Tag");
    SaveAddOnTickets(world.session, At("PlayedTag"));
    EXPECT_EQ(All("PlayedTag").at(1), "2|Super 7|" + Day("|2|3|4|5|6|7|NULL"));
}

TEST_F(WritersTest, WithACountOfNoughtNoAddOnRowIsWritten) {
    Open(Family::frm649, "Lotto649", "Encore");
    g.NoOfExtra = 0;
    SaveAddOnTickets(world.session, At("PlayedEncore"));
    EXPECT_TRUE(All("PlayedEncore").empty());
}

TEST_F(WritersTest, ExtraRowsHoldFourNumbersAndNothingBehindThem) {
    Open(Family::frm649, "BC49", "Extra");
    g.NoOfExtra = 1;
    g.ExtraTickets.Redim(1);
    Fill(g.ExtraTickets(0), 96);
    SaveExtraTickets(world.session, At("PlayedExtra"));
    EXPECT_EQ(All("PlayedExtra"), Names{"1|BC49|" + Day("|96|97|98|99|NULL|0")});
}

TEST_F(WritersTest, AKeyTakenAfterACleanUpShowsItsBoxAndTheRowsBeforeItStay) {
    Open(Family::frm649, "BC49", "Extra");
    world.Plain().Do("INSERT INTO PlayedBC49 (ID1) VALUES (3)");
    g.NoOfTicketsOnSheet = 2;
    g.Lotto6Tickets.Redim(2);
    world.ExpectUnexpected(3022);
    SaveLotto6Tickets(world.session, At("PlayedBC49"));
    EXPECT_EQ(world.Plain().One("SELECT group_concat(ID1) FROM PlayedBC49"), "2,3");
}

class OneCommitTest : public WritersTest {
  protected:
    void SetUp() override {
        Open(Family::frm649, "BC49", "Extra");
        g.NoOfTicketsOnSheet = 100;
        g.Lotto6Tickets.Redim(100);
    }
    // The file's own count of commits.
    unsigned Commits() const {
        std::ifstream file(state.DbName, std::ios::binary);
        file.seekg(24);
        unsigned count = 0;
        for (int i = 0; i < 4; ++i) count = count * 256 + static_cast<unsigned>(file.get());
        return count;
    }
    std::string Keys() { return world.Plain().One("SELECT group_concat(ID1) FROM PlayedBC49"); }
    static constexpr const char* Reading = "BEGIN; SELECT * FROM PlayedBC49";
};

TEST_F(OneCommitTest, ASheetOfAHundredTicketsIsOne) {
    const unsigned commits = Commits();
    SaveLotto6Tickets(world.session, At("PlayedBC49"));
    EXPECT_EQ(Commits(), commits + 1);
    EXPECT_EQ(world.Plain().One("SELECT count(*) FROM PlayedBC49"), "100");
}

TEST_F(OneCommitTest, TheRowsBeforeAnErrorAreOnTheDiskWhenItsBoxComesAndTheFileIsFree) {
    world.Plain().Do("INSERT INTO PlayedBC49 (ID1) VALUES (4)");
    const unsigned commits = Commits();
    world.dialogs.Expect("ERROR!",
                         "ERROR #3022\r\nUnexpected error occurred. Please advise error number to support.",
                         Answer::Ok, BoxStyle::Stop, [&] {
                             EXPECT_EQ(Keys(), "2,3,4");
                             EXPECT_EQ(Commits(), commits + 1);
                             EXPECT_EQ(g.Open.DbOpen, 0);
                             world.Plain().Do("BEGIN EXCLUSIVE; COMMIT");
                         });
    SaveLotto6Tickets(world.session, At("PlayedBC49"));
}

TEST_F(OneCommitTest, WhereItFailsNothingOfTheSheetStaysAndItsBoxComes) {
    {
        PlainFile reader = world.Plain();
        reader.Do(Reading);
        world.ExpectUnexpected(3260);
        SaveLotto6Tickets(world.session, At("PlayedBC49"));
        EXPECT_EQ(g.Open.DbOpen, 0);
    }
    EXPECT_EQ(Keys(), "NULL");
    SaveLotto6Tickets(world.session, At("PlayedBC49"));
    EXPECT_EQ(world.Plain().One("SELECT max(ID1) FROM PlayedBC49"), "100");
}

TEST_F(OneCommitTest, WhereItFailsBehindAnErrorNothingStaysAndTheBoxOfTheErrorComes) {
    world.Plain().Do("INSERT INTO PlayedBC49 (ID1) VALUES (4)");
    {
        PlainFile reader = world.Plain();
        reader.Do(Reading);
        world.ExpectUnexpected(3022);
        SaveLotto6Tickets(world.session, At("PlayedBC49"));
    }
    EXPECT_EQ(Keys(), "4");
}

TEST_F(OneCommitTest, WhileAnotherProgramWritesASheetIsRefusedBeforeItCounts) {
    PlainFile writer = world.Plain();
    writer.Do("BEGIN IMMEDIATE; INSERT INTO PlayedBC49 (ID1) VALUES (1)");
    world.ExpectUnexpected(3260);
    SaveLotto6Tickets(world.session, At("PlayedBC49"));
    writer.Do("COMMIT");
    EXPECT_EQ(Keys(), "1");
}

TEST_F(WritersTest, KeysCountOnBeyondSixteenBits) {
    constexpr int Many = 32'768;
    const auto fill = [&](const std::string& table) {
        world.Plain().Do("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < " +
                         std::to_string(Many) + ") INSERT INTO " + table + " (ID1, Date) SELECT i, 1 FROM n");
    };
    Open(Family::frm649, "Lotto649", "Encore");
    g.NoOfTicketsOnSheet = g.NoOfExtra = 2;
    g.Lotto6Tickets.Redim(2);
    g.AddOnTickets.Redim(2);
    g.Dollars = "2.00";
    for (const auto& [table, save] :
         {std::pair{"PlayedLotto649", &SaveLotto6Tickets}, std::pair{"PlayedEncore", &SaveAddOnTickets},
          std::pair{"Spent", &StoreLedgerAmount}}) {
        fill(table);
        save(world.session, At(table));
        const Names keys = world.Plain().Rows("SELECT ID1 FROM " + std::string(table) + " WHERE ID1 > 32768");
        EXPECT_EQ(keys, std::string(table) == "Spent" ? Names{"32769"} : (Names{"32769", "32770"})) << table;
    }
}

TEST_F(WritersTest, AMissingTableIsNamedInTheBox) {
    Open(Family::frm649, "BC49", "Extra");
    g.NoOfTicketsOnSheet = 1;
    world.ExpectStoreError(3011, "Unable to open PlayedPik4 table. Please advise error number to support.");
    SaveLotto6Tickets(world.session, At("PlayedPik4"));
}

TEST_F(WritersTest, AnArrayNeverSizedIsAnUnexpectedErrorInTheBox) {
    Open(Family::frm649, "BC49", "Extra");
    g.NoOfTicketsOnSheet = 1;
    world.ExpectUnexpected(9);
    SaveLotto6Tickets(world.session, At("PlayedBC49"));
    EXPECT_TRUE(All("PlayedBC49").empty());
}

}  // namespace
}  // namespace sorvane

// The file, its tables, the probing loop, the error tails and the two deletion routines.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "shell/Catalogue.h"
#include "store/CheckTB_DBExists.h"
#include "store/CreateIndex.h"
#include "store/CreateTables.h"
#include "store/DeleteData.h"
#include "support/World.h"

namespace sorvane {
namespace {

namespace fs = std::filesystem;
using testing::PlainFile;
using testing::World;
using Names = std::vector<std::string>;

constexpr std::string_view Unexpected = "Unexpected error occurred. Please advise error number to support.";

void Make(World& world, const Creator& creator, const std::string& table) {
    creator(world.session, {world.DbName(), table}, PrimaryFieldName, DateFieldName);
}

Names Columns(PlainFile& file, const std::string& table) {
    return file.Rows("SELECT name || ' ' || type FROM pragma_table_info('" + table + "') ORDER BY cid");
}

TEST(CheckDatabaseExistsTest, AMissingFolderIsMadeAndTheEmptyFileInItWithoutAMessage) {
    World world;
    CheckDatabaseExists(world.session, world.DbName());
    EXPECT_TRUE(fs::is_directory(world.folder / "data"));
    EXPECT_TRUE(world.Plain().Tables().empty());
    EXPECT_EQ(world.global.Open.DbOpen, 0);
    EXPECT_EQ(world.global.Open.WsOpen, 0);
}

fs::perms RightsOf(const fs::path& path) { return fs::status(path).permissions(); }

TEST(CheckDatabaseExistsTest, WhatItMakesIsTheUsersAloneAndWhatIsThereKeepsItsRights) {
    constexpr fs::perms Own = fs::perms::owner_read | fs::perms::owner_write;
    World world;
    const fs::path folder = world.folder / "data";
    CheckDatabaseExists(world.session, world.DbName());
    EXPECT_EQ(RightsOf(folder), fs::perms::owner_all);
    EXPECT_EQ(RightsOf(world.DbName()), Own);
    constexpr fs::perms Shared = fs::perms::owner_all | fs::perms::group_read | fs::perms::group_exec;
    fs::permissions(folder, Shared);
    fs::permissions(world.DbName(), Own | fs::perms::group_read);
    CheckDatabaseExists(world.session, world.DbName());
    EXPECT_EQ(RightsOf(folder), Shared);
    EXPECT_EQ(RightsOf(world.DbName()), Own | fs::perms::group_read);
    fs::remove(world.DbName());
    CheckDatabaseExists(world.session, world.DbName());
    EXPECT_EQ(RightsOf(folder), Shared);
    EXPECT_EQ(RightsOf(world.DbName()), Own);
}

TEST(CheckDatabaseExistsTest, AFileThatIsThereIsLeftAlone) {
    World world;
    world.WithDatabase();
    Make(world, CreateSpentTable, "Spent");
    CheckDatabaseExists(world.session, world.DbName());
    EXPECT_EQ(world.Plain().Tables(), Names{"Spent"});
}

TEST(CheckDatabaseExistsTest, AFolderInThePlaceOfTheFileShowsTheGeneralBox) {
    World world;
    fs::create_directories(world.DbName());
    world.dialogs.Expect("ERROR!", "ERROR #75\r\n" + std::string(Unexpected), Answer::Ok, BoxStyle::Stop);
    CheckDatabaseExists(world.session, world.DbName());
    EXPECT_TRUE(fs::is_directory(world.DbName()));
}

TEST(CheckDatabaseExistsTest, AFolderThatCannotBeMadeRaises75ToTheCaller) {
    World world;
    { std::ofstream(world.folder / "data") << "not a folder"; }
    EXPECT_EQ(ErrorOf([&] { CheckDatabaseExists(world.session, world.DbName()); }), 75);
}

TEST(ProbeTableTest, TellsWhetherATableIsThereAndIsSilentAboutAMissingOne) {
    World world;
    world.WithDatabase();
    world.global.TableOpened = On;
    ProbeTable(world.session, {world.DbName(), "Spent"});
    EXPECT_EQ(world.global.TableOpened, 0);
    Make(world, CreateSpentTable, "Spent");
    ProbeTable(world.session, {world.DbName(), "Spent"});
    EXPECT_EQ(world.global.TableOpened, 1);
    EXPECT_EQ(world.global.Open.DbOpen, 0);
    EXPECT_EQ(world.global.Open.RsOpen, 0);
}

TEST(ProbeTableTest, AnyOtherErrorShowsTheGeneralBox) {
    World world;
    world.ExpectUnexpected(3024);
    ProbeTable(world.session, {world.DbName(), "Spent"});
    EXPECT_EQ(world.global.TableOpened, 0);
}

TEST(ProbeTableTest, AFolderInThePlaceOfTheJournalIsADiskError) {
    World world;
    world.WithDatabase();
    Make(world, CreateSpentTable, "Spent");
    fs::create_directory(world.DbName() + "-journal");
    world.ExpectUnexpected(3043);
    ProbeTable(world.session, {world.DbName(), "Spent"});
    EXPECT_EQ(world.global.TableOpened, 0);
    fs::remove(world.DbName() + "-journal");
    ProbeTable(world.session, {world.DbName(), "Spent"});
    EXPECT_EQ(world.global.TableOpened, 1);
}

TEST(ProbeTableTest, AFileOfOneByteIsNoDatabaseAndStaysAsItIs) {
    World world;
    world.WithDatabase();
    { std::ofstream(world.DbName(), std::ios::trunc) << 'x'; }
    world.ExpectUnexpected(3343);
    ProbeTable(world.session, {world.DbName(), "Spent"});
    CheckDatabaseExists(world.session, world.DbName());
    EXPECT_EQ(fs::file_size(world.DbName()), 1u);
}

// A folder below which the file's whole path has that many characters.
std::string FolderForAPathOf(std::size_t characters, const World& world) {
    const std::size_t behind = world.DbName().size() - world.folder.Path().string().size();
    std::string folder = world.folder.Path().string();
    while (folder.size() + behind < characters) {
        const std::size_t missing = characters - behind - folder.size();
        if (missing == 1) folder.back() = 'y', folder += "x";
        else folder += "/" + std::string(std::min<std::size_t>(missing - 1, missing > 102 ? 100 : 200), 'x');
    }
    fs::create_directories(folder);
    return folder;
}

TEST(CheckDatabaseExistsTest, APathOfFiveHundredCharactersIsTakenAndALongerOneIsNoPermission) {
    for (const std::size_t characters : {std::size_t{500}, std::size_t{505}}) {
        World world;
        world.global.AppPath = FolderForAPathOf(characters, world) + "/";
        ASSERT_EQ(world.DbName().size(), characters);
        const bool taken = characters <= 500;
        if (!taken) world.ExpectUnexpected(3051);
        CheckDatabaseExists(world.session, world.DbName());
        if (!taken) world.ExpectUnexpected(3024);
        ProbeTable(world.session, {world.DbName(), "Spent"});
        EXPECT_EQ(fs::exists(world.DbName()), taken);
    }
}

TEST(ProbingLoopTest, CreatesAMissingTableSilently) {
    World world;
    world.WithDatabase();
    std::string table = "Spent";
    MakeSureOf(world.session, {world.DbName(), table}, [&] { Make(world, CreateSpentTable, table); });
    EXPECT_EQ(world.global.TableOpened, 1);
    EXPECT_EQ(world.Plain().Tables(), Names{"Spent"});
}

TEST(ProbingLoopTest, ADamagedFileGivesBothBoxesOnceAPassUntilTheCauseIsGone) {
    World world;
    world.WithDatabase();
    const fs::path good = world.folder / "good.mdb";
    fs::copy_file(world.DbName(), good);
    { std::ofstream(world.DbName(), std::ios::trunc) << std::string(4096, 'x'); }
    for (int pass = 0; pass < 3; ++pass) {
        world.ExpectUnexpected(3343);
        const bool last = pass == 2;
        world.dialogs.Expect(
            "ERROR!", "ERROR #3343\r\n" + std::string(Unexpected), Answer::Ok, BoxStyle::Stop, [&, last] {
                if (last) fs::copy_file(good, world.DbName(), fs::copy_options::overwrite_existing);
            });
    }
    std::string table = "Spent";
    int passes = 0;
    MakeSureOf(world.session, {world.DbName(), table}, [&] {
        ++passes;
        Make(world, CreateSpentTable, table);
    });
    EXPECT_EQ(passes, 4) << "the last one makes it; none goes by in silence before";
    EXPECT_EQ(world.dialogs.log.size(), 6u);
    EXPECT_EQ(world.Plain().Tables(), Names{"Spent"});
}

TEST(CreatorsTest, EveryShapeHasItsFieldsInOrderWithTheirTypes) {
    const Names id{"ID1 LONG"}, day{"Date DATETIME"}, flag{"Lottoflag TEXT(30)"}, regular{"Regular BOOLEAN"};
    const auto balls = [](int count) {
        Names names;
        for (int i = 1; i <= count; ++i) names.push_back("Ball_" + std::to_string(i) + " INTEGER(16)");
        return names;
    };
    const auto join = [](std::initializer_list<Names> parts) {
        Names all;
        for (const Names& part : parts) all.insert(all.end(), part.begin(), part.end());
        return all;
    };
    const Names bonus{"Ball_B INTEGER(16)"}, way{"Way Played TEXT(30)"};
    Names digits;
    for (int i = 1; i <= 7; ++i) digits.push_back("Number " + std::to_string(i) + " INTEGER(16)");
    struct Expected {
        const Creator& creator;
        Names fields;
    };
    const Expected shapes[] = {
        {CreateSpentTable, join({id, flag, day, {"Spent CURRENCY"}})},
        {CreateWinningsTable, join({id, flag, day, {"Winnings CURRENCY"}})},
        {CreatePlayed6Table, join({id, day, balls(6), regular, {"EarlyBird BOOLEAN"}})},
        {CreateWin6Table, join({id, day, balls(6), bonus})},
        {CreatePlayed7Table, join({id, day, balls(7), regular})},
        {CreateWin7Table, join({id, day, balls(7), bonus})},
        {CreatePlayedPick3Table, join({id, flag, day, balls(3), way, regular})},
        {CreateWinPick3Table, join({id, flag, day, balls(3)})},
        {CreatePlayedPick4Table, join({id, flag, day, balls(4), way, regular})},
        {CreateWinPick4Table, join({id, flag, day, balls(4)})},
        {CreatePlayedAddOnTable, join({id, flag, day, digits})},
        {CreateWinAddOnTable, join({id, flag, day, digits})},
        {CreatePlayedKenoTable,
         join({id, day, flag, balls(10), {"Wager INTEGER(16)", "# of Balls INTEGER(16)"}, regular})},
        {CreateWinKenoTable, join({id, day, flag, balls(20)})},
        {CreateTempTable, join({id, {"Ball_# INTEGER(16)", "Ball_Freq INTEGER(16)"}})},
    };
    World world;
    world.WithDatabase();
    int number = 0;
    for (const Expected& shape : shapes) {
        const std::string table = "Table" + std::to_string(number++);
        world.global.TableOpened = Off;
        Make(world, shape.creator, table);
        EXPECT_EQ(world.global.TableOpened, 1);
        PlainFile file = world.Plain();
        EXPECT_EQ(Columns(file, table), shape.fields) << table;
        const Names indexes = file.Rows(
            "SELECT name FROM sqlite_schema WHERE type = 'index' AND sql NOT NULL "
            "AND tbl_name = '" +
            table + "' ORDER BY name");
        const Names two{table + ".Date", table + ".ID1"};
        EXPECT_EQ(indexes, &shape.creator == &CreateTempTable ? Names{} : two) << table;
    }
}

TEST(CreatorsTest, ThePrimaryIndexIsUniqueAndTheDateIsNot) {
    World world;
    world.WithDatabase();
    Make(world, CreateSpentTable, "Spent");
    PlainFile file = world.Plain();
    EXPECT_EQ(file.Rows("SELECT name || ' ' || \"unique\" FROM pragma_index_list('Spent') ORDER BY name"),
              (Names{"Spent.Date 0", "Spent.ID1 1"}));
}

TEST(CreatorsTest, TheThreeFormsOfTheCreatorsSentencesStayDistinct) {
    World world;
    struct {
        const Creator& creator;
        const char* sentence;
    } const forms[] = {
        {CreateSpentTable, "Unable to create Spent table. Please advise error number to support."},
        {CreateWinningsTable, "Unable to create table. Please advise error number to support."},
        {CreatePlayed6Table, " Unable to create Spent table. Please advise error number to support."},
    };
    for (const auto& form : forms) {
        world.ExpectStoreError(3011, form.sentence);
        ShowStoreError(world.session, form.creator.tail, 3011, "Spent");
        world.ExpectUnexpected(3043);
        ShowStoreError(world.session, form.creator.tail, 3043, "Spent");
    }
}

TEST(CreatorsTest, ACreatorThatFailsLeavesTheFlagAsItWas) {
    World world;
    world.global.TableOpened = Off;
    world.ExpectUnexpected(3024);
    Make(world, CreatePlayed6Table, "PlayedBC49");
    EXPECT_EQ(world.global.TableOpened, 0);
}

TEST(CreateIndexTest, HasOneSentenceForEveryErrorAndLeavesTheTableWithoutItsIndex) {
    World world;
    world.WithDatabase();
    {
        Dao::Database Db = world.engine.OpenDatabase(world.DbName(), world.global.Open);
        EXPECT_EQ(ErrorOf([&] { CreateIndex(Db, "Nowhere", PrimaryFieldName, DateFieldName); }), 3011);
    }
    world.ExpectStoreError(3011, " Unable to create index. Please advise error number to support.");
    ShowStoreError(world.session, Tails::CreateIndex, 3011, "Nowhere");
    // A table without the second field: it stands, the loop that made it ends, its index is missing.
    world.ExpectStoreError(3265, " Unable to create index. Please advise error number to support.");
    world.global.TableOpened = Off;
    CreateSpentTable(world.session, {world.DbName(), "Spent"}, PrimaryFieldName, "Day");
    EXPECT_EQ(world.global.TableOpened, 1);
    EXPECT_EQ(world.Plain().Tables(), Names{"Spent"});
}

TEST(CreateIndexTest, OfAPairTheTablesStandWithoutTheIndexesThatFail) {
    World world;
    world.WithDatabase();
    world.global.LottoFlag = "BC49";
    std::string table = "PlayedBC49";
    Integer code = 6;
    for (int box = 0; box < 2; ++box)
        world.ExpectStoreError(3265, " Unable to create index. Please advise error number to support.");
    CreateTableByShape(world.session, world.DbName(), table, code, PrimaryFieldName, "Day");
    EXPECT_EQ(world.global.TableOpened, 1);
    EXPECT_EQ(world.Plain().Tables(), (Names{"PlayedBC49", "WinBC49"}));
}

Names IndexesOf(World& world, const std::string& table) {
    return world.Plain().Rows("SELECT name FROM pragma_index_list('" + table + "') ORDER BY name");
}

TEST(CreateIndexTest, AnIndexThatCannotBeMadeLeavesTheOtherTableOfThePairItsOwn) {
    const Names played{"PlayedBC49.Date", "PlayedBC49.ID1"}, win{"WinBC49.Date", "WinBC49.ID1"};
    for (const bool ofPlayed : {true, false}) {
        World world;
        world.WithDatabase();
        world.global.LottoFlag = "BC49";
        world.Plain().Do("CREATE TABLE Other (x); CREATE INDEX \"" +
                         std::string(ofPlayed ? "PlayedBC49.ID1" : "WinBC49.ID1") + "\" ON Other (x)");
        std::string table = "PlayedBC49";
        Integer code = 6;
        world.ExpectStoreError(3010, " Unable to create index. Please advise error number to support.");
        CreateTableByShape(world.session, world.DbName(), table, code, PrimaryFieldName, DateFieldName);
        EXPECT_EQ(IndexesOf(world, "PlayedBC49"), ofPlayed ? Names{} : played);
        EXPECT_EQ(IndexesOf(world, "WinBC49"), ofPlayed ? win : Names{});
    }
}

TEST(CreateTableByShapeTest, AWinTableThatCannotBeMadeIsToldOnceAPassAndLeavesThePlayedTableWhole) {
    World world;
    world.WithDatabase();
    world.global.LottoFlag = "BC49";
    world.Plain().Do("CREATE VIEW WinBC49 AS SELECT 1");
    std::string table = "PlayedBC49";
    Integer code = 6;
    world.ExpectUnexpected(3010);
    world.dialogs.Expect("ERROR!", "ERROR #3010\r\n" + std::string(Unexpected), Answer::Ok, BoxStyle::Stop,
                         [&] { world.Plain().Do("DROP VIEW WinBC49"); });
    CreateTableByShape(world.session, world.DbName(), table, code, PrimaryFieldName, DateFieldName);
    EXPECT_EQ(IndexesOf(world, "PlayedBC49").size(), 2u);
    EXPECT_EQ(IndexesOf(world, "WinBC49").size(), 2u);
}

struct ShapeCase {
    const char* LottoFlag;
    const char* ExtraFlag;
    int code;
    const char* start;
    Names made;
    const char* nameAfter;
};

TEST(CreateTableByShapeTest, MakesThePairAndLeavesTheWinTablesNameBehind) {
    const ShapeCase cases[] = {
        {"Lotto649", "Encore", 6, "PlayedLotto649", {"PlayedLotto649", "WinLotto649"}, "WinLotto649"},
        {"Lottario", "Encore", 6, "PlayedLottario", {"PlayedLottario", "WinLottario"}, "WinLottario"},
        {"Super 7", "Tag", 7, "PlayedSuper7", {"PlayedSuper7", "WinSuper7"}, "WinSuper7"},
        {"BCClubKeno", "", 20, "PlayedBCClubKeno", {"PlayedBCClubKeno", "WinBCClubKeno"}, "WinBCClubKeno"},
        {"Lotto649", "WESTExtra", 1, "PlayedWESTExtra", {"PlayedWESTExtra", "WinWESTExtra"}, "WinWESTExtra"},
        {"Lotto649", "Extra", 4, "anything", {"PlayedExtra", "WinExtra"}, "WinExtra"},
        {"Quote3", "QCQuote3", 3, "PlayedQuote3", {"PlayedQuote3", "WinQuote3"}, "WinQuote3"},
        {"Quote4", "QCQuote4", 4, "anything", {"PlayedQuote4", "WinQuote4"}, "WinQuote4"},
        {"ATLPik4", "ATLPik4", 4, "anything", {"PlayedATLPik4", "WinATLPik4"}, "WinATLPik4"},
        // A key that the chain doesn't know keeps the played name, which is found.
        {"ONTPick3", "Encore", 3, "PlayedONTPick3", {"PlayedONTPick3"}, "PlayedONTPick3"},
    };
    for (const ShapeCase& c : cases) {
        World world;
        world.WithDatabase();
        world.global.LottoFlag = c.LottoFlag;
        world.global.ExtraFlag = c.ExtraFlag;
        std::string table = c.start;
        Integer code = c.code;
        CreateTableByShape(world.session, world.DbName(), table, code, PrimaryFieldName, DateFieldName);
        EXPECT_EQ(world.Plain().Tables(), c.made) << c.LottoFlag;
        EXPECT_EQ(table, c.nameAfter) << c.LottoFlag;
        EXPECT_EQ(code, c.code);
    }
}

TEST(CreateTableByShapeTest, TheMisspeltFloridaKeyNeverMatchesAndDoesNoHarm) {
    World world;
    world.WithDatabase();
    world.global.LottoFlag = world.global.ExtraFlag = "FLAPlay4";
    std::string table = "anything";
    Integer code = 4;
    CreateTableByShape(world.session, world.DbName(), table, code, PrimaryFieldName, DateFieldName);
    EXPECT_EQ(world.Plain().Tables(), Names{"PlayedFLAPlay4"});
    EXPECT_EQ(table, "PlayedFLAPlay4");
}

TEST(CreateTableByShapeTest, FiveAndAnyOtherCodeDoNothing) {
    World world;
    world.WithDatabase();
    for (const int other : {0, 2, 5, 8, 21}) {
        std::string table = "PlayedLotto649";
        Integer code = other;
        CreateTableByShape(world.session, world.DbName(), table, code, PrimaryFieldName, DateFieldName);
        EXPECT_EQ(table, "PlayedLotto649");
    }
    EXPECT_TRUE(world.Plain().Tables().empty());
}

class DeletionTest : public ::testing::Test {
  protected:
    void SetUp() override {
        world.WithDatabase();
        Make(world, CreatePlayedAddOnTable, "PlayedEncore");
    }
    void Put(int key, const char* flag, Date day) {
        world.Plain().Do("INSERT INTO PlayedEncore (ID1, Lottoflag, Date) VALUES (" + std::to_string(key) +
                         ", '" + flag + "', " + std::to_string(day.Day()) + ")");
    }
    Names Left() { return world.Plain().Rows("SELECT ID1 FROM PlayedEncore ORDER BY ID1"); }

    World world;
    const Date monday = Date::FromYmd(2026, 3, 9), tuesday = Date::FromYmd(2026, 3, 10);
};

TEST_F(DeletionTest, AnEmptyTableStaysAsItIsWithoutAnError) {
    DeleteRowsForDate(world.session, {world.DbName(), "PlayedEncore"}, monday);
    DeleteAllRows(world.session, {world.DbName(), "PlayedEncore"});
    EXPECT_TRUE(Left().empty());
}

TEST_F(DeletionTest, ADateWithoutRowsDeletesNothing) {
    Put(1, "Lotto649", tuesday);
    DeleteRowsForDate(world.session, {world.DbName(), "PlayedEncore"}, monday);
    EXPECT_EQ(Left(), Names{"1"});
}

TEST_F(DeletionTest, AllRowsOfTheDateGoWhicheverGameTheyCarry) {
    Put(1, "Lotto649", monday);
    Put(2, "Super 7", tuesday);
    Put(3, "Super 7", monday);
    Put(4, "Lottario", monday);
    DeleteRowsForDate(world.session, {world.DbName(), "PlayedEncore"}, monday);
    EXPECT_EQ(Left(), Names{"2"});
}

TEST_F(DeletionTest, TheLastRowsOfTheTableCanBelongToTheDate) {
    Put(1, "Lotto649", monday);
    Put(2, "Lotto649", tuesday);
    Put(3, "Lotto649", tuesday);
    DeleteRowsForDate(world.session, {world.DbName(), "PlayedEncore"}, tuesday);
    EXPECT_EQ(Left(), Names{"1"});
    EXPECT_EQ(world.global.Open.RsOpen, 0);
    EXPECT_EQ(world.global.Open.DbOpen, 0);
}

TEST_F(DeletionTest, TheOnlyRowOfTheTableCanBelongToTheDate) {
    Put(1, "Lotto649", monday);
    DeleteRowsForDate(world.session, {world.DbName(), "PlayedEncore"}, monday);
    EXPECT_TRUE(Left().empty());
}

TEST_F(DeletionTest, TheOnlyRowGoesWithAllRows) {
    Put(1, "Lotto649", monday);
    DeleteAllRows(world.session, {world.DbName(), "PlayedEncore"});
    EXPECT_TRUE(Left().empty());
}

TEST_F(DeletionTest, AllRowsGo) {
    for (int key = 1; key <= 5; ++key) Put(key, "Lotto649", key % 2 ? monday : tuesday);
    DeleteAllRows(world.session, {world.DbName(), "PlayedEncore"});
    EXPECT_TRUE(Left().empty());
}

TEST_F(DeletionTest, AMissingTableIsNamed) {
    constexpr auto sentence = "Unable to open PlayedTag table. Please advise error number to support.";
    world.ExpectStoreError(3011, sentence);
    DeleteRowsForDate(world.session, {world.DbName(), "PlayedTag"}, monday);
    world.ExpectStoreError(3011, sentence);
    DeleteAllRows(world.session, {world.DbName(), "PlayedTag"});
}

TEST_F(DeletionTest, MoreRowsThanSixteenBitsHoldAreAnOverflowWhenADateIsCleaned) {
    world.Plain().Do(
        "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 32768) INSERT INTO "
        "PlayedEncore (ID1, Lottoflag, Date) SELECT i, 'Lotto649', " +
        std::to_string(monday.Day()) + " FROM n");
    world.ExpectUnexpected(6);
    DeleteRowsForDate(world.session, {world.DbName(), "PlayedEncore"}, monday);
    EXPECT_EQ(Left().size(), 32768u);
}

}  // namespace
}  // namespace sorvane

// Which tables each game makes, on a fresh file and behind other games.
#include "entry/CreateAllTables.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "shell/Catalogue.h"
#include "support/World.h"

namespace sorvane {
namespace {

using testing::World;
using Names = std::vector<std::string>;

Names Sorted(Names names) {
    std::sort(names.begin(), names.end());
    return names;
}

WindowState Open(World& world, Family family, std::string_view LottoFlag, std::string_view ExtraFlag) {
    world.global.LottoFlag = LottoFlag;
    world.global.ExtraFlag = ExtraFlag;
    WindowState state;
    CreateAllTables(world.session, family, state);
    const PerFamily<int> numbers{{6, 7, 6, 20, 20, 3, 4}};
    EXPECT_EQ(state.NumbersPerTicket, numbers[family]) << LottoFlag;
    EXPECT_EQ(state.DbName, world.DbName());
    return state;
}

struct Case {
    Family family;
    const char* LottoFlag;
    const char* ExtraFlag;
    Names tables;  // beside the two ledgers
};

const Case FreshFiles[] = {
    {Family::frm649,
     "Lotto649",
     "Encore",
     {"PlayedLotto649", "WinLotto649", "PlayedEncore", "WinEncore", "Temp"}},
    {Family::frm649, "BC49", "Extra", {"PlayedBC49", "WinBC49", "PlayedExtra", "WinExtra", "Temp"}},
    {Family::frm649,
     "Western649",
     "ThePlus",
     {"PlayedWestern649", "WinWestern649", "PlayedThePlus", "WinThePlus", "Temp"}},
    {Family::frm649,
     "Quebec49",
     "QCExtra",
     {"PlayedQuebec49", "WinQuebec49", "PlayedQCExtra", "WinQCExtra", "Temp"}},
    {Family::frm649,
     "Ontario49",
     "Encore",
     {"PlayedOntario49", "WinOntario49", "PlayedEncore", "WinEncore", "Temp"}},
    {Family::frm649, "Lotto649", "Tag", {"PlayedLotto649", "WinLotto649", "PlayedTag", "WinTag", "Temp"}},
    {Family::frm749,
     "Super 7",
     "WESTExtra",
     {"PlayedSuper7", "WinSuper7", "PlayedWESTExtra", "WinWESTExtra", "Temp"}},
    {Family::frm749, "Super 7", "Extra", {"PlayedSuper7", "WinSuper7", "PlayedExtra", "WinExtra", "Temp"}},
    {Family::frm645,
     "Lottario",
     "Encore",
     {"PlayedLottario", "WinLottario", "PlayedEncore", "WinEncore", "WinEarlyBird", "Temp"}},
    {Family::frmKeno70,
     "ONTKeno",
     "Encore",
     {"PlayedONTKeno", "WinONTKeno", "PlayedEncore", "WinEncore", "Temp"}},
    {Family::frmKeno70, "QCBanco", "", {"PlayedQCBanco", "WinQCBanco", "Temp"}},
    {Family::frmKeno70, "ATLChoice", "", {"PlayedATLChoice", "WinATLChoice", "Temp"}},
    {Family::frmKeno80, "PrairieKeno", "", {"Temp"}},
    {Family::frmPick3, "ONTPick3", "Encore", {"PlayedONTPick3", "WinONTPick3", "PlayedEncore", "WinEncore"}},
    {Family::frmPick3, "BCDaily3", "BCDaily3", {"PlayedBCDaily3", "WinBCDaily3"}},
    {Family::frmPick3, "WESTPick3", "WESTPick3", {"PlayedWESTPick3", "WinWESTPick3"}},
    {Family::frmPick3, "Quote3", "QCQuote3", {"PlayedQuote3", "WinQuote3"}},
    {Family::frmPick3, "FLACash3", "FLACash3", {"PlayedFLACash3", "WinFLACash3"}},
    {Family::frmPick4, "FLAPlay4", "FLAPlay4", {"PlayedFLAPlay4", "WinFLAPlay4"}},
};

TEST(CreateAllTablesTest, AFreshFileGetsTheLedgersAndTheTablesOfItsGameAndNoOthers) {
    for (const Case& c : FreshFiles) {
        World world;
        Open(world, c.family, c.LottoFlag, c.ExtraFlag);
        Names expected = c.tables;
        expected.insert(expected.end(), {"Spent", "Winnings"});
        EXPECT_EQ(world.Plain().Tables(), Sorted(expected)) << c.LottoFlag << ' ' << c.ExtraFlag;
    }
}

TEST(CreateAllTablesTest, AnotherRegionOfTheSameGameAddsItsAddOnTablesAlone) {
    World world;
    Open(world, Family::frm649, "Lotto649", "Encore");
    const Names before = world.Plain().Tables();
    Open(world, Family::frm649, "Lotto649", "QCExtra");
    Names expected = before;
    expected.insert(expected.end(), {"PlayedQCExtra", "WinQCExtra"});
    EXPECT_EQ(world.Plain().Tables(), Sorted(expected));
}

TEST(CreateAllTablesTest, ALostWinTableIsNotMadeAgainWhileItsPlayedTableIsThere) {
    World world;
    Open(world, Family::frm649, "Lotto649", "Encore");
    world.Plain().Do("DROP TABLE WinLotto649");
    Open(world, Family::frm649, "Lotto649", "Encore");
    const Names tables = world.Plain().Tables();
    EXPECT_EQ(std::count(tables.begin(), tables.end(), "WinLotto649"), 0);
}

TEST(CreateAllTablesTest, TheScratchTableHasNoIndex) {
    World world;
    Open(world, Family::frm649, "Lotto649", "Encore");
    EXPECT_TRUE(world.Plain()
                    .Rows("SELECT name FROM sqlite_schema WHERE type = 'index' AND tbl_name = 'Temp'")
                    .empty());
    Dao::Database Db = world.engine.OpenDatabase(world.DbName(), world.global.Open);
    Dao::Recordset Rs = Db.OpenTable("Temp");
    EXPECT_EQ(ErrorOf([&] { Rs.Index("Date"); }), ErrorNumber::IndexNotFound);
    EXPECT_EQ(ErrorOf([&] { Rs.Seek(1); }), ErrorNumber::NoIndexSet);
}

TEST(CreateAllTablesTest, AnUnknownKeyQuietlyCreatesNothing) {
    World world;
    Open(world, Family::frm649, "NoSuchGame", "NoSuchAddOn");
    EXPECT_EQ(world.Plain().Tables(), (Names{"Spent", "Temp", "Winnings"}));
}

TEST(CreateAllTablesTest, OpeningAgainCreatesNothingAndKeepsTheRows) {
    World world;
    Open(world, Family::frm649, "BC49", "Extra");
    world.Plain().Do("INSERT INTO PlayedBC49 (ID1) VALUES (1)");
    const Names before = world.Plain().Tables();
    Open(world, Family::frm649, "BC49", "Extra");
    EXPECT_EQ(world.Plain().Tables(), before);
    EXPECT_EQ(world.Plain().One("SELECT COUNT(*) FROM PlayedBC49"), "1");
}

}  // namespace
}  // namespace sorvane

// The catalogue against tables written down a second time.
#include <gtest/gtest.h>

#include <algorithm>
#include <initializer_list>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "shell/Catalogue.h"
#include "shell/FamilyFacts.h"
#include "shell/SelectGame.h"
#include "support/Games.h"

namespace sorvane {
namespace {

using Table = std::optional<std::string>;

struct EntryRow {
    int level;
    std::string_view name, caption;
    MenuAction action;
};
const std::vector<EntryRow> TreeRows{
    {0, "mnuFile", "&File", MenuAction::Menu},
    {1, "mnuFileUpgrade", "&Upgrade Database", MenuAction::Dead},
    {1, "mnuFileBackup", "&Backup ", MenuAction::Dead},
    {1, "mnuFileRestore", "&Restore ", MenuAction::Dead},
    {1, "mnuFileExit", "E&xit", MenuAction::Exit},
    {0, "mnuCanada", "&Canada", MenuAction::Menu},
    {1, "mnuCANBC", "&British Columbia", MenuAction::Menu},
    {2, "mnuCANBCLotto649", "&Lotto 6/49", MenuAction::Game},
    {2, "mnuCANBCSuper7", "&Super 7", MenuAction::Game},
    {2, "mnuCANBCBC49", "&BC/49", MenuAction::Game},
    {2, "mnuCANBCDAILY3", "&Daily 3", MenuAction::Game},
    {2, "mnuCANBCKeno", "&Club Keno", MenuAction::Notice},
    {1, "mnuCANWEST", "&Western Canada", MenuAction::Menu},
    {2, "mnuCANWESTLotto649", "&Lotto 6/49", MenuAction::Game},
    {2, "mnuCANWESTSuper7", "&Super 7 ", MenuAction::Game},
    {2, "mnuCANWEST649", "&Western 6/49", MenuAction::Game},
    {2, "mnuCANWESTPICK3", "&Pick 3", MenuAction::Game},
    {2, "mnuCANWESTKENO", "Prairie &Keno", MenuAction::Notice},
    {1, "mnuCANONT", "&Ontario", MenuAction::Menu},
    {2, "mnuCANONTLotto649", "Lotto &6/49", MenuAction::Game},
    {2, "mnuCANONTSuper7", "&Super 7", MenuAction::Game},
    {2, "mnuCANONTLOTTARIO", "&Lottario", MenuAction::Game},
    {2, "mnuCANONTONT49", "&Ontario 49", MenuAction::Game},
    {2, "mnuCANONTWINNERTAKEALL", "&Winner Take All", MenuAction::Notice},
    {2, "mnuCANONTPICK3", "&Pick 3", MenuAction::Game},
    {2, "mnuCANONTKENO", "&Daily Keno", MenuAction::Game},
    {1, "mnuCANQC", "&Quebec", MenuAction::Menu},
    {2, "mnuCANQCLotto649", "&Lotto 6/49", MenuAction::Game},
    {2, "mnuCANQCSuper7", "&Super 7 ", MenuAction::Game},
    {2, "mnuCANQCQuebec49", "&Quebec 49", MenuAction::Game},
    {2, "mnuCANQCBANCO", "&Banco", MenuAction::Notice},
    {2, "mnuCANQC3", "Quotidienne &3", MenuAction::Game},
    {2, "mnuCANQC4", "Quotidienne &4", MenuAction::Notice},
    {1, "mnuCANATL", "&Atlantic", MenuAction::Menu},
    {2, "mnuCANATLLotto649", "&Lotto 6/49", MenuAction::Game},
    {2, "mnuCANATLSuper7", "&Super 7", MenuAction::Game},
    {2, "mnuCANATLATLChoice", "&Atlantic Choice", MenuAction::Notice},
    {2, "mnuCANATLPik4", "&Pik 4", MenuAction::Notice},
    {2, "mnuCANATLWild5", "&Wild 5", MenuAction::Notice},
    {0, "mnuUS", "&United States", MenuAction::Menu},
    {1, "mnuUSFLA", "&Florida", MenuAction::Menu},
    {2, "mnuUSFLACash3", "&Ca$h 3", MenuAction::Game},
    {2, "mnuUSFLAPlay4", "&Play 4", MenuAction::Game},
    {2, "mnuUSFLAFantasy5", "&Fantasy 5", MenuAction::Notice},
    {2, "mnuUSFLAFloridaLotto", "Florida &Lotto", MenuAction::Notice},
    {2, "mnuUSFLAMegaMoney", "&Mega Money", MenuAction::Notice},
    {1, "mnuUSPowerball", "&PowerBall", MenuAction::Notice},
    {0, "mnuOTHER", "&Other Countries", MenuAction::Menu},
    {1, "mnuOTHERRequest", "&Request Lottery", MenuAction::Request},
    {0, "mnuReports", "&Reports", MenuAction::Menu},
    {1, "mnuReportsPL", "&Profit/Loss (All Played Lotteries)", MenuAction::Report},
    {0, "mnuHelp", "&Help", MenuAction::Menu},
    {1, "mnuHelpAbout", "&About Sorvane", MenuAction::About},
};

struct GameRow {
    std::string_view region, menu, caption, LottoFlag, ExtraFlag;
    Family opens;
    std::string_view title;
    std::optional<int> MaxTicketsOnSheet, TicketPriceCents, FreePlays;
};
const std::vector<GameRow> GameRows{
    {"British Columbia",
     "mnuCANBCLotto649",
     "&Lotto 6/49",
     "Lotto649",
     "Extra",
     Family::frm649,
     "Lotto 6/49",
     {},
     {},
     {}},
    {"British Columbia", "mnuCANBCSuper7", "&Super 7", "Super 7", "Extra", Family::frm749, "Super 7", 5, 200,
     2},
    {"British Columbia", "mnuCANBCBC49", "&BC/49", "BC49", "Extra", Family::frm649, "BC/49", {}, {}, {}},
    {"British Columbia",
     "mnuCANBCDAILY3",
     "&Daily 3",
     "BCDaily3",
     "BCDaily3",
     Family::frmPick3,
     "Daily 3",
     {},
     {},
     {}},
    {"Western Canada",
     "mnuCANWESTLotto649",
     "&Lotto 6/49",
     "Lotto649",
     "ThePlus",
     Family::frm649,
     "Lotto 6/49",
     {},
     {},
     {}},
    {"Western Canada", "mnuCANWESTSuper7", "&Super 7 ", "Super 7", "WESTExtra", Family::frm749, "Super 7", 5,
     200, 2},
    {"Western Canada",
     "mnuCANWEST649",
     "&Western 6/49",
     "Western649",
     "ThePlus",
     Family::frm649,
     "Western 649",
     {},
     {},
     {}},
    {"Western Canada",
     "mnuCANWESTPICK3",
     "&Pick 3",
     "WESTPick3",
     "WESTPick3",
     Family::frmPick3,
     "Pick 3",
     {},
     {},
     {}},
    {"Ontario", "mnuCANONTLotto649", "Lotto &6/49", "Lotto649", "Encore", Family::frm649, "Lotto 6/49", 10,
     100, 0},
    {"Ontario", "mnuCANONTSuper7", "&Super 7", "Super 7", "Encore", Family::frm749, "Super 7", 5, 200, 2},
    {"Ontario", "mnuCANONTLOTTARIO", "&Lottario", "Lottario", "Encore", Family::frm645, "Lottario", 10, 100,
     1},
    {"Ontario", "mnuCANONTONT49", "&Ontario 49", "Ontario49", "Encore", Family::frm649, "Ontario 49", 10, 50,
     0},
    {"Ontario", "mnuCANONTPICK3", "&Pick 3", "ONTPick3", "Encore", Family::frmPick3, "Pick 3", {}, {}, 0},
    {"Ontario",
     "mnuCANONTKENO",
     "&Daily Keno",
     "ONTKeno",
     "Encore",
     Family::frmKeno70,
     "Ontario - Daily Keno",
     {},
     {},
     0},
    {"Quebec",
     "mnuCANQCLotto649",
     "&Lotto 6/49",
     "Lotto649",
     "QCExtra",
     Family::frm649,
     "Lotto 6/49",
     {},
     {},
     {}},
    {"Quebec", "mnuCANQCSuper7", "&Super 7 ", "Super 7", "QCExtra", Family::frm749, "Super 7", 5, 200, 2},
    {"Quebec", "mnuCANQCQuebec49", "&Quebec 49", "Quebec49", "QCExtra", Family::frm649, "Quebec 49", 10, 50,
     0},
    {"Quebec", "mnuCANQC3", "Quotidienne &3", "Quote3", "QCQuote3", Family::frmPick3, "Quote 3", {}, {}, {}},
    {"Atlantic",
     "mnuCANATLLotto649",
     "&Lotto 6/49",
     "Lotto649",
     "Tag",
     Family::frm649,
     "Lotto 6/49",
     {},
     {},
     {}},
    {"Atlantic", "mnuCANATLSuper7", "&Super 7", "Super 7", "Tag", Family::frm749, "Super 7", 5, 200, 2},
    {"Florida", "mnuUSFLACash3", "&Ca$h 3", "FLACash3", "FLACash3", Family::frmPick3, "CA$H 3", {}, {}, 0},
    {"Florida", "mnuUSFLAPlay4", "&Play 4", "FLAPlay4", "FLAPlay4", Family::frmPick4, "Play 4", {}, {}, 0},
};

struct NoticeRow {
    std::string_view region, menu, caption;
};
const std::vector<NoticeRow> NoticeRows{
    {"British Columbia", "mnuCANBCKeno", "&Club Keno"},
    {"Western Canada", "mnuCANWESTKENO", "Prairie &Keno"},
    {"Ontario", "mnuCANONTWINNERTAKEALL", "&Winner Take All"},
    {"Quebec", "mnuCANQCBANCO", "&Banco"},
    {"Quebec", "mnuCANQC4", "Quotidienne &4"},
    {"Atlantic", "mnuCANATLATLChoice", "&Atlantic Choice"},
    {"Atlantic", "mnuCANATLPik4", "&Pik 4"},
    {"Atlantic", "mnuCANATLWild5", "&Wild 5"},
    {"Florida", "mnuUSFLAFantasy5", "&Fantasy 5"},
    {"Florida", "mnuUSFLAFloridaLotto", "Florida &Lotto"},
    {"Florida", "mnuUSFLAMegaMoney", "&Mega Money"},
    {"United States", "mnuUSPowerball", "&PowerBall"},
};

std::string Plain(std::string_view caption) {
    std::string plain(caption);
    std::erase(plain, '&');
    return plain;
}

// The caption of the menu that the entry stands in.
std::string MenuAbove(std::string_view name) {
    std::string above[3];
    for (const MenuEntry& entry : MenuTree()) {
        if (entry.name == name) return above[entry.level - 1];
        above[entry.level] = Plain(entry.caption);
    }
    return {};
}

const MenuEntry& Entry(std::string_view name) {
    for (const MenuEntry& entry : MenuTree())
        if (entry.name == name) return entry;
    ADD_FAILURE() << "no menu entry " << name;
    return MenuTree().front();
}

TEST(MenuTree, HasEveryEntryInItsOrderOnItsLevel) {
    ASSERT_EQ(MenuTree().size(), TreeRows.size());
    for (std::size_t i = 0; i < TreeRows.size(); ++i) {
        SCOPED_TRACE(TreeRows[i].name);
        EXPECT_EQ(MenuTree()[i].level, TreeRows[i].level);
        EXPECT_EQ(MenuTree()[i].name, TreeRows[i].name);
        EXPECT_EQ(MenuTree()[i].caption, TreeRows[i].caption);
        EXPECT_EQ(MenuTree()[i].action, TreeRows[i].action);
    }
}

TEST(MenuTree, NamesEachEntryOnce) {
    std::set<std::string_view> names;
    for (const MenuEntry& entry : MenuTree()) EXPECT_TRUE(names.insert(entry.name).second) << entry.name;
}

TEST(MenuTree, PowerBallStandsDirectlyUnderTheUnitedStates) {
    EXPECT_EQ(MenuAbove("mnuUSPowerball"), "United States");
    EXPECT_EQ(Entry("mnuUSPowerball").level, 1);
}

TEST(MenuTree, TwelveEntriesShowTheNotice) {
    std::size_t notices = 0;
    for (const MenuEntry& entry : MenuTree()) notices += entry.action == MenuAction::Notice ? 1 : 0;
    EXPECT_EQ(notices, 12U);
    ASSERT_EQ(NoticeRows.size(), 12U);
    for (const NoticeRow& row : NoticeRows) {
        SCOPED_TRACE(row.menu);
        EXPECT_EQ(Entry(row.menu).action, MenuAction::Notice);
        EXPECT_EQ(Entry(row.menu).caption, row.caption);
        EXPECT_EQ(MenuAbove(row.menu), row.region);
        EXPECT_EQ(FindGame(row.menu), nullptr);
    }
}

TEST(Games, TwentyTwoEntriesOpenAGame) {
    ASSERT_EQ(GameRows.size(), 22U);
    ASSERT_EQ(Games().size(), 22U);
    for (const GameRow& row : GameRows) {
        SCOPED_TRACE(row.menu);
        EXPECT_EQ(Entry(row.menu).action, MenuAction::Game);
        EXPECT_EQ(Entry(row.menu).caption, row.caption);
        EXPECT_EQ(MenuAbove(row.menu), row.region);
        const Game* game = FindGame(row.menu);
        ASSERT_NE(game, nullptr);
        EXPECT_EQ(game->LottoFlag, row.LottoFlag);
        EXPECT_EQ(game->ExtraFlag, row.ExtraFlag);
        EXPECT_EQ(game->opens, row.opens);
        EXPECT_EQ(game->title, row.title);
        EXPECT_EQ(game->MaxTicketsOnSheet, row.MaxTicketsOnSheet);
        EXPECT_EQ(game->TicketPriceCents, row.TicketPriceCents);
        EXPECT_EQ(game->FreePlays, row.FreePlays);
    }
}

TEST(Games, TheirWindowKnowsTheirKey) {
    for (const Game& game : Games()) EXPECT_NE(FindKey(game.opens, game.LottoFlag), nullptr) << game.menu;
}

TEST(Games, TheTitleOfPlay4GoesToTheWindowOfThreeDigitGames) {
    for (const Game& game : Games()) {
        if (game.menu == "mnuUSFLAPlay4") EXPECT_EQ(game.titleGoesTo, Family::frmPick3);
        else EXPECT_EQ(game.titleGoesTo, std::nullopt) << game.menu;
    }
}

TEST(Games, Super7IsOneKeyWithABlankWhoseTablesHaveNone) {
    for (const std::string_view menu :
         {"mnuCANBCSuper7", "mnuCANWESTSuper7", "mnuCANONTSuper7", "mnuCANQCSuper7", "mnuCANATLSuper7"})
        EXPECT_EQ(FindGame(menu)->LottoFlag, "Super 7");
    EXPECT_EQ(PlayedTable(Family::frm749, "Super 7"), "PlayedSuper7");
    EXPECT_EQ(PlayedTable(Family::frm749, "Super7"), std::nullopt);
}

TEST(Games, OneRegionsLotto649SharesItsTablesButNotItsAddOn) {
    const Game* ontario = FindGame("mnuCANONTLotto649");
    const Game* quebec = FindGame("mnuCANQCLotto649");
    EXPECT_EQ(PlayedTable(ontario->opens, ontario->LottoFlag), PlayedTable(quebec->opens, quebec->LottoFlag));
    EXPECT_EQ(FindAddOn(ontario->ExtraFlag)->Played, "PlayedEncore");
    EXPECT_EQ(FindAddOn(quebec->ExtraFlag)->Played, "PlayedQCExtra");
}

TEST(Families, BearTheNamesOfTheirWindows) {
    EXPECT_EQ(NameOf(Family::frm649), "frm649");
    EXPECT_EQ(NameOf(Family::frm749), "frm749");
    EXPECT_EQ(NameOf(Family::frm645), "frm645");
    EXPECT_EQ(NameOf(Family::frmKeno70), "frmKeno70");
    EXPECT_EQ(NameOf(Family::frmKeno80), "frmKeno80");
    EXPECT_EQ(NameOf(Family::frmPick3), "frmPick3");
    EXPECT_EQ(NameOf(Family::frmPick4), "frmPick4");
}

TEST(Select, WritesTheGameIntoTheRun) {
    for (const GameRow& row : GameRows) {
        SCOPED_TRACE(row.menu);
        Global global;
        global.NoOfSheets = 3;
        Select(global, *FindGame(row.menu));
        EXPECT_EQ(global.LottoFlag, row.LottoFlag);
        EXPECT_EQ(global.ExtraFlag, row.ExtraFlag);
        EXPECT_EQ(global.GameForm, NameOf(row.opens));
        EXPECT_EQ(global.NoOfSheets, 0);
        EXPECT_EQ(global.MaxTicketsOnSheet, row.MaxTicketsOnSheet.value_or(0));
        EXPECT_EQ(global.TicketPrice, Currency::FromTenThousandths(row.TicketPriceCents.value_or(0) * 100));
        EXPECT_EQ(global.FreePlays, row.FreePlays.value_or(0));
    }
}

TEST(Select, KeepsTheLastGamesFactsWhereAGameHasNone) {
    Global global;
    Select(global, *FindGame("mnuCANONTLOTTARIO"));
    Select(global, *FindGame("mnuCANBCBC49"));
    EXPECT_EQ(global.TicketPrice, Currency::FromInt(1));
    EXPECT_EQ(global.MaxTicketsOnSheet, 10);
    EXPECT_EQ(global.FreePlays, 1);
    Select(global, *FindGame("mnuUSFLACash3"));
    EXPECT_EQ(global.TicketPrice, Currency::FromInt(1));
    EXPECT_EQ(global.FreePlays, 0);
}

TEST(Select, TouchesNothingOfAnEntryInProgress) {
    Global global;
    global.NoOfTickets = 4;
    global.TicketNo = 2;
    global.Dollars = "7.00";
    global.PlayOption = "Box";
    global.TicketsSaved = True;
    Select(global, *FindGame("mnuCANQC3"));
    EXPECT_EQ(global.NoOfTickets, 4);
    EXPECT_EQ(global.TicketNo, 2);
    EXPECT_EQ(global.Dollars, "7.00");
    EXPECT_EQ(global.PlayOption, "Box");
    EXPECT_EQ(global.TicketsSaved, True);
}

struct KeyRow {
    std::string_view LottoFlag;
    Family in;
    std::string Played, Win;
};
const std::vector<KeyRow> KeyRows{
    {"Lotto649", Family::frm649, "PlayedLotto649", "WinLotto649"},
    {"BC49", Family::frm649, "PlayedBC49", "WinBC49"},
    {"Ontario49", Family::frm649, "PlayedOntario49", "WinOntario49"},
    {"Western649", Family::frm649, "PlayedWestern649", "WinWestern649"},
    {"Quebec49", Family::frm649, "PlayedQuebec49", "WinQuebec49"},
    {"Super 7", Family::frm749, "PlayedSuper7", "WinSuper7"},
    {"Lottario", Family::frm645, "PlayedLottario", "WinLottario"},
    {"ONTKeno", Family::frmKeno70, "PlayedONTKeno", "WinONTKeno"},
    {"QCBanco", Family::frmKeno70, "PlayedQCBanco", "WinQCBanco"},
    {"ATLChoice", Family::frmKeno70, "PlayedATLChoice", "WinATLChoice"},
    {"PrairieKeno", Family::frmKeno80, "PlayedPrairieKeno", "WinPrairieKeno"},
    {"BCClubKeno", Family::frmKeno80, "PlayedBCClubKeno", "WinBCClubKeno"},
    {"ONTPick3", Family::frmPick3, "PlayedONTPick3", "WinONTPick3"},
    {"Quote3", Family::frmPick3, "PlayedQuote3", "WinQuote3"},
    {"BCDaily3", Family::frmPick3, "PlayedBCDaily3", "WinBCDaily3"},
    {"WESTPick3", Family::frmPick3, "PlayedWESTPick3", "WinWESTPick3"},
    {"FLACash3", Family::frmPick3, "PlayedFLACash3", "WinFLACash3"},
    {"FLAPlay4", Family::frmPick4, "PlayedFLAPlay4", "WinFLAPlay4"},
    {"Quote4", Family::frmPick4, "PlayedQuote4", "WinQuote4"},
    {"ATLPik4", Family::frmPick4, "PlayedATLPik4", "WinATLPik4"},
};

// What the tests of windows are told instead of reading the catalogue.
TEST(Games, EachIsToldToTheTestsOfItsWindow) {
    ASSERT_EQ(test::GamesTold.size(), Games().size());
    for (const Game& game : Games()) {
        const test::GameTold& told = test::GameOf(game.menu);
        EXPECT_EQ(told.opens, game.opens) << game.menu;
        EXPECT_EQ(told.title, game.titleGoesTo ? "" : game.title) << game.menu;
        EXPECT_EQ(told.LottoFlag, game.LottoFlag) << game.menu;
        EXPECT_EQ(told.ExtraFlag, game.ExtraFlag) << game.menu;
        const GameKey* key = FindKey(game.opens, game.LottoFlag);
        ASSERT_NE(key, nullptr) << game.menu;
        EXPECT_EQ(told.Played, key->Played) << game.menu;
        EXPECT_EQ(told.Win, key->Win) << game.menu;
    }
}

TEST(GameKeys, EachLeadsToItsTablesWhereTicketsAreSaved) {
    ASSERT_EQ(GameKeys().size(), KeyRows.size());
    for (const KeyRow& row : KeyRows) {
        EXPECT_EQ(PlayedTable(row.in, row.LottoFlag), row.Played);
        ASSERT_NE(FindKey(row.in, row.LottoFlag), nullptr) << row.LottoFlag;
        EXPECT_EQ(FindKey(row.in, row.LottoFlag)->Win, row.Win);
    }
}

TEST(GameKeys, NoOtherWindowKnowsThem) {
    for (const KeyRow& row : KeyRows)
        for (const Family family : AllFamilies)
            if (family != row.in) {
                EXPECT_EQ(FindKey(family, row.LottoFlag), nullptr);
                EXPECT_EQ(PlayedTable(family, row.LottoFlag), std::nullopt);
                EXPECT_EQ(LoadTable(family, row.LottoFlag), std::nullopt);
                EXPECT_EQ(CheckTable(family, row.LottoFlag), std::nullopt);
                EXPECT_EQ(WinTable(family, row.LottoFlag), std::nullopt);
            }
}

TEST(GameKeys, AreComparedExactly) {
    for (const std::string_view odd : {"lotto649", "Lotto649 ", "Super7", "super 7", "BCDAILY3", ""})
        for (const Family family : AllFamilies) EXPECT_EQ(FindKey(family, odd), nullptr) << odd;
}

TEST(GameKeys, LoadingNamesThePlayedTableButForAtlanticPik4) {
    for (const KeyRow& row : KeyRows)
        EXPECT_EQ(LoadTable(row.in, row.LottoFlag),
                  row.LottoFlag == "ATLPik4" ? "PlayedAtlanticPik4" : row.Played);
}

TEST(GameKeys, ACheckNamesTheTablesOfFloridaAloneAmongTheFourDigitGames) {
    for (const KeyRow& row : KeyRows) {
        const bool named = row.in != Family::frmPick4 || row.LottoFlag == "FLAPlay4";
        EXPECT_EQ(CheckTable(row.in, row.LottoFlag), named ? Table(row.Played) : Table());
        EXPECT_EQ(WinTable(row.in, row.LottoFlag), named ? Table(row.Win) : Table());
    }
}

TEST(GameKeys, EnterWinningsAsksThePlayedTable) {
    for (const KeyRow& row : KeyRows) {
        const bool odd = row.LottoFlag == "BCDaily3" || row.LottoFlag == "ATLPik4";
        EXPECT_EQ(WinningsTable(row.in, row.LottoFlag), odd ? Table() : Table(row.Played));
    }
}

TEST(GameKeys, EnterWinningsKnowsDaily3AndPik4ByKeysThatNoGameHas) {
    EXPECT_EQ(WinningsTable(Family::frmPick3, "BCDaily3"), std::nullopt);
    EXPECT_EQ(WinningsTable(Family::frmPick3, "Daily3"), "PlayedDaily3");
    EXPECT_EQ(WinningsTable(Family::frmPick4, "ATLPik4"), std::nullopt);
    EXPECT_EQ(WinningsTable(Family::frmPick4, "Pik4"), "PlayedPik4");
}

TEST(GameKeys, EnterWinningsOfSuper7AndLottarioAsksNoKey) {
    EXPECT_EQ(WinningsTable(Family::frm749, "anything"), "PlayedSuper7");
    EXPECT_EQ(WinningsTable(Family::frm645, ""), "PlayedLottario");
}

TEST(GameKeys, TheGeneratorMisspellsWesternPick3) {
    for (const KeyRow& row : KeyRows)
        EXPECT_EQ(FindKey(row.in, row.LottoFlag)->QuickPickKey,
                  row.LottoFlag == "WESTPick3" ? "WestPick3" : "");
}

TEST(GameKeys, ThreeGamesCostHalfADollar) {
    for (const KeyRow& row : KeyRows)
        EXPECT_EQ(FindKey(row.in, row.LottoFlag)->HalfPrice,
                  row.LottoFlag == "BC49" || row.LottoFlag == "Ontario49" || row.LottoFlag == "Quebec49");
}

TEST(GameKeys, TheOddCellsAreOfTheGamesMeant) {
    for (const KeyRow& row : KeyRows) {
        SCOPED_TRACE(row.LottoFlag);
        const GameKey& key = CellsOf(row.LottoFlag);
        EXPECT_EQ(key.LottoFlag, row.LottoFlag);
        const auto is = [&](std::initializer_list<std::string_view> games) {
            return std::find(games.begin(), games.end(), row.LottoFlag) != games.end();
        };
        EXPECT_EQ(key.BonusTickets, is({"Super 7"}) ? 2 : is({"Lottario"}) ? 1 : 0);
        EXPECT_EQ(SheetFactor(row.in, row.LottoFlag), 1 + key.BonusTickets);
        EXPECT_EQ(key.HasEarlyBird, is({"Lottario"}));
        EXPECT_EQ(key.ClearsLastGrid, is({"Lotto649"}));
        EXPECT_EQ(key.CheckLiveAtCount, is({"Quebec49"}));
        EXPECT_EQ(key.FillsLists, is({"ONTKeno", "ATLChoice"}));
        EXPECT_EQ(key.PaysPrizes, is({"ONTKeno"}));
        EXPECT_EQ(key.EncoreByGame, is({"ONTKeno"}));
        EXPECT_EQ(key.HalfWagers, is({"FLACash3", "FLAPlay4"}));
        EXPECT_EQ(key.WayOfTwoUnits, is({"FLACash3"}) ? 2 : GameKey::NoWay);
        EXPECT_EQ(key.HasTriples, !is({"FLAPlay4"}));
    }
}

TEST(GameKeys, AKeyThatNoGameHasIsARegularGameWithoutTables) {
    for (const std::string_view odd : {"", "lottario", "Super7", "Encore"}) {
        EXPECT_EQ(CellsOf(odd).Played, "") << odd;
        EXPECT_FALSE(CellsOf(odd).HasEarlyBird) << odd;
        EXPECT_TRUE(CellsOf(odd).HasTriples) << odd;
        for (const Family family : AllFamilies) EXPECT_EQ(SheetFactor(family, odd), 1) << odd;
    }
    EXPECT_EQ(SheetFactor(Family::frm649, "Super 7"), 1);
}

TEST(FamilyFactsTest, EachFamilyHasItsNumbers) {
    using namespace FamilyFacts;
    const PerFamily<int> counts{{49, 49, 45, 70, 80, 10, 10}};
    const PerFamily<int> shapes{{6, 7, 6, 20, 20, 3, 4}};
    for (const Family family : AllFamilies) {
        SCOPED_TRACE(NameOf(family));
        EXPECT_EQ(CountOfNumbers(family), counts[family]);
        EXPECT_EQ(LowestNumber[family], IsPick(family) ? 0 : 1);
        EXPECT_EQ(HighestNumber[family], IsPick(family) ? 9 : counts[family]);
        EXPECT_EQ(NumbersPerTicket[family], shapes[family]);
    }
}

struct AddOnRow {
    std::string_view ExtraFlag, Played, Win;
    int ShapeCode, Digits;
    bool CountedOnSheet;
    std::string_view Name;
};
const std::vector<AddOnRow> AddOnRows{
    {"Encore", "PlayedEncore", "WinEncore", 1, 6, true, "Encore"},
    {"Extra", "PlayedExtra", "WinExtra", 4, 6, true, "Extra"},
    {"ThePlus", "PlayedThePlus", "WinThePlus", 1, 6, false, ""},
    {"QCExtra", "PlayedQCExtra", "WinQCExtra", 1, 6, false, "Extra"},
    {"Tag", "PlayedTag", "WinTag", 1, 6, false, "Tag"},
    {"WESTExtra", "PlayedWESTExtra", "WinWESTExtra", 1, 7, false, "Extra"},
};

TEST(AddOns, SixOfThemHaveTheirTables) {
    ASSERT_EQ(AddOns().size(), AddOnRows.size());
    for (const AddOnRow& row : AddOnRows) {
        SCOPED_TRACE(row.ExtraFlag);
        const AddOn* addOn = FindAddOn(row.ExtraFlag);
        ASSERT_NE(addOn, nullptr);
        EXPECT_EQ(addOn->Played, row.Played);
        EXPECT_EQ(addOn->Win, row.Win);
        EXPECT_EQ(addOn->ShapeCode(), row.ShapeCode);
        EXPECT_EQ(addOn->Digits, row.Digits);
        EXPECT_EQ(addOn->CountedOnSheet, row.CountedOnSheet);
        EXPECT_EQ(addOn->FourNumbers, row.ExtraFlag == "Extra");
        EXPECT_EQ(addOn->Name, row.Name);
    }
}

TEST(AddOns, DigitGamesOutsideOntarioHaveNone) {
    for (const Game& game : Games()) {
        const bool none = IsPick(game.opens) && game.menu != "mnuCANONTPICK3";
        EXPECT_EQ(FindAddOn(game.ExtraFlag) == nullptr, none) << game.menu;
    }
}

TEST(AddOns, TablesThatTheyShareAreTheirOwn) {
    std::map<std::string_view, int> uses;
    for (const AddOn& addOn : AddOns()) {
        ++uses[addOn.Played];
        ++uses[addOn.Win];
    }
    for (const auto& [table, count] : uses) EXPECT_EQ(count, 1) << table;
}

}  // namespace
}  // namespace sorvane

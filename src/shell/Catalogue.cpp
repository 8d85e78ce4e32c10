#include "shell/Catalogue.h"

#include <algorithm>
#include <array>

namespace sorvane {

namespace {

constexpr auto Menu = MenuAction::Menu;
constexpr auto Opens = MenuAction::Game;
constexpr auto Notice = MenuAction::Notice;

constexpr auto Tree = std::to_array<MenuEntry>({
    {0, "mnuFile", "&File", Menu},
    {1, "mnuFileUpgrade", "&Upgrade Database", MenuAction::Dead},
    {1, "mnuFileBackup", "&Backup ", MenuAction::Dead},
    {1, "mnuFileRestore", "&Restore ", MenuAction::Dead},
    {1, "mnuFileExit", "E&xit", MenuAction::Exit},
    {0, "mnuCanada", "&Canada", Menu},
    {1, "mnuCANBC", "&British Columbia", Menu},
    {2, "mnuCANBCLotto649", "&Lotto 6/49", Opens},
    {2, "mnuCANBCSuper7", "&Super 7", Opens},
    {2, "mnuCANBCBC49", "&BC/49", Opens},
    {2, "mnuCANBCDAILY3", "&Daily 3", Opens},
    {2, "mnuCANBCKeno", "&Club Keno", Notice},
    {1, "mnuCANWEST", "&Western Canada", Menu},
    {2, "mnuCANWESTLotto649", "&Lotto 6/49", Opens},
    {2, "mnuCANWESTSuper7", "&Super 7 ", Opens},
    {2, "mnuCANWEST649", "&Western 6/49", Opens},
    {2, "mnuCANWESTPICK3", "&Pick 3", Opens},
    {2, "mnuCANWESTKENO", "Prairie &Keno", Notice},
    {1, "mnuCANONT", "&Ontario", Menu},
    {2, "mnuCANONTLotto649", "Lotto &6/49", Opens},
    {2, "mnuCANONTSuper7", "&Super 7", Opens},
    {2, "mnuCANONTLOTTARIO", "&Lottario", Opens},
    {2, "mnuCANONTONT49", "&Ontario 49", Opens},
    {2, "mnuCANONTWINNERTAKEALL", "&Winner Take All", Notice},
    {2, "mnuCANONTPICK3", "&Pick 3", Opens},
    {2, "mnuCANONTKENO", "&Daily Keno", Opens},
    {1, "mnuCANQC", "&Quebec", Menu},
    {2, "mnuCANQCLotto649", "&Lotto 6/49", Opens},
    {2, "mnuCANQCSuper7", "&Super 7 ", Opens},
    {2, "mnuCANQCQuebec49", "&Quebec 49", Opens},
    {2, "mnuCANQCBANCO", "&Banco", Notice},
    {2, "mnuCANQC3", "Quotidienne &3", Opens},
    {2, "mnuCANQC4", "Quotidienne &4", Notice},
    {1, "mnuCANATL", "&Atlantic", Menu},
    {2, "mnuCANATLLotto649", "&Lotto 6/49", Opens},
    {2, "mnuCANATLSuper7", "&Super 7", Opens},
    {2, "mnuCANATLATLChoice", "&Atlantic Choice", Notice},
    {2, "mnuCANATLPik4", "&Pik 4", Notice},
    {2, "mnuCANATLWild5", "&Wild 5", Notice},
    {0, "mnuUS", "&United States", Menu},
    {1, "mnuUSFLA", "&Florida", Menu},
    {2, "mnuUSFLACash3", "&Ca$h 3", Opens},
    {2, "mnuUSFLAPlay4", "&Play 4", Opens},
    {2, "mnuUSFLAFantasy5", "&Fantasy 5", Notice},
    {2, "mnuUSFLAFloridaLotto", "Florida &Lotto", Notice},
    {2, "mnuUSFLAMegaMoney", "&Mega Money", Notice},
    {1, "mnuUSPowerball", "&PowerBall", Notice},
    {0, "mnuOTHER", "&Other Countries", Menu},
    {1, "mnuOTHERRequest", "&Request Lottery", MenuAction::Request},
    {0, "mnuReports", "&Reports", Menu},
    {1, "mnuReportsPL", "&Profit/Loss (All Played Lotteries)", MenuAction::Report},
    {0, "mnuHelp", "&Help", Menu},
    {1, "mnuHelpAbout", "&About Sorvane", MenuAction::About},
});

constexpr auto GameTable = std::to_array<Game>({
    {"mnuCANBCLotto649", "Lotto649", "Extra", Family::frm649, "Lotto 6/49"},
    {"mnuCANBCSuper7", "Super 7", "Extra", Family::frm749, "Super 7", 5, 200, 2},
    {"mnuCANBCBC49", "BC49", "Extra", Family::frm649, "BC/49"},
    {"mnuCANBCDAILY3", "BCDaily3", "BCDaily3", Family::frmPick3, "Daily 3"},
    {"mnuCANWESTLotto649", "Lotto649", "ThePlus", Family::frm649, "Lotto 6/49"},
    {"mnuCANWESTSuper7", "Super 7", "WESTExtra", Family::frm749, "Super 7", 5, 200, 2},
    {"mnuCANWEST649", "Western649", "ThePlus", Family::frm649, "Western 649"},
    {"mnuCANWESTPICK3", "WESTPick3", "WESTPick3", Family::frmPick3, "Pick 3"},
    {"mnuCANONTLotto649", "Lotto649", "Encore", Family::frm649, "Lotto 6/49", 10, 100, 0},
    {"mnuCANONTSuper7", "Super 7", "Encore", Family::frm749, "Super 7", 5, 200, 2},
    {"mnuCANONTLOTTARIO", "Lottario", "Encore", Family::frm645, "Lottario", 10, 100, 1},
    {"mnuCANONTONT49", "Ontario49", "Encore", Family::frm649, "Ontario 49", 10, 50, 0},
    {"mnuCANONTPICK3", "ONTPick3", "Encore", Family::frmPick3, "Pick 3", {}, {}, 0},
    {"mnuCANONTKENO", "ONTKeno", "Encore", Family::frmKeno70, "Ontario - Daily Keno", {}, {}, 0},
    {"mnuCANQCLotto649", "Lotto649", "QCExtra", Family::frm649, "Lotto 6/49"},
    {"mnuCANQCSuper7", "Super 7", "QCExtra", Family::frm749, "Super 7", 5, 200, 2},
    {"mnuCANQCQuebec49", "Quebec49", "QCExtra", Family::frm649, "Quebec 49", 10, 50, 0},
    {"mnuCANQC3", "Quote3", "QCQuote3", Family::frmPick3, "Quote 3"},
    {"mnuCANATLLotto649", "Lotto649", "Tag", Family::frm649, "Lotto 6/49"},
    {"mnuCANATLSuper7", "Super 7", "Tag", Family::frm749, "Super 7", 5, 200, 2},
    {"mnuUSFLACash3", "FLACash3", "FLACash3", Family::frmPick3, "CA$H 3", {}, {}, 0},
    // The title is written to frmPick3, which loads that window; Play 4 itself has an empty title bar. Meant.
    {"mnuUSFLAPlay4", "FLAPlay4", "FLAPlay4", Family::frmPick4, "Play 4", {}, {}, 0, Family::frmPick3},
});

constexpr auto KeyTable = std::to_array<GameKey>({
    {.LottoFlag = "Lotto649",
     .in = Family::frm649,
     .Played = "PlayedLotto649",
     .Win = "WinLotto649",
     .ClearsLastGrid = true},
    {.LottoFlag = "BC49", .in = Family::frm649, .Played = "PlayedBC49", .Win = "WinBC49", .HalfPrice = true},
    {.LottoFlag = "Ontario49",
     .in = Family::frm649,
     .Played = "PlayedOntario49",
     .Win = "WinOntario49",
     .HalfPrice = true},
    {.LottoFlag = "Western649", .in = Family::frm649, .Played = "PlayedWestern649", .Win = "WinWestern649"},
    {.LottoFlag = "Quebec49",
     .in = Family::frm649,
     .Played = "PlayedQuebec49",
     .Win = "WinQuebec49",
     .HalfPrice = true,
     .CheckLiveAtCount = true},
    {.LottoFlag = "Super 7",
     .in = Family::frm749,
     .Played = "PlayedSuper7",
     .Win = "WinSuper7",
     .BonusTickets = 2},
    {.LottoFlag = "Lottario",
     .in = Family::frm645,
     .Played = "PlayedLottario",
     .Win = "WinLottario",
     .BonusTickets = 1,
     .HasEarlyBird = true},
    {.LottoFlag = "ONTKeno",
     .in = Family::frmKeno70,
     .Played = "PlayedONTKeno",
     .Win = "WinONTKeno",
     .FillsLists = true,
     .PaysPrizes = true,
     .EncoreByGame = true},
    {.LottoFlag = "QCBanco", .in = Family::frmKeno70, .Played = "PlayedQCBanco", .Win = "WinQCBanco"},
    {.LottoFlag = "ATLChoice",
     .in = Family::frmKeno70,
     .Played = "PlayedATLChoice",
     .Win = "WinATLChoice",
     .FillsLists = true},
    {.LottoFlag = "PrairieKeno",
     .in = Family::frmKeno80,
     .Played = "PlayedPrairieKeno",
     .Win = "WinPrairieKeno"},
    {.LottoFlag = "BCClubKeno",
     .in = Family::frmKeno80,
     .Played = "PlayedBCClubKeno",
     .Win = "WinBCClubKeno"},
    {.LottoFlag = "ONTPick3",
     .in = Family::frmPick3,
     .Played = "PlayedONTPick3",
     .Win = "WinONTPick3",
     .Ways = {"Straight", "Box"}},
    // Enter Winnings compares with "Daily3", which is never the key of this game, and names a table that
    // nothing creates. Meant.
    {.LottoFlag = "BCDaily3",
     .in = Family::frmPick3,
     .Played = "PlayedBCDaily3",
     .Win = "WinBCDaily3",
     .WinningsKey = "Daily3",
     .WinningsPlayed = "PlayedDaily3",
     .Ways = {"Straight", "Scramble", "Straight & Scramble"}},
    // The generator's "WestPick3" is never this key: a slip that stays.
    {.LottoFlag = "WESTPick3",
     .in = Family::frmPick3,
     .Played = "PlayedWESTPick3",
     .Win = "WinWESTPick3",
     .QuickPickKey = "WestPick3",
     .Ways = {"Straight", "Box", "Straight & Scramble"}},
    {.LottoFlag = "Quote3",
     .in = Family::frmPick3,
     .Played = "PlayedQuote3",
     .Win = "WinQuote3",
     .ExtraFlagAtCreate = "QCQuote3",
     .Ways = {"Straight", "Box", "Straight & Scramble"}},
    {.LottoFlag = "FLACash3",
     .in = Family::frmPick3,
     .Played = "PlayedFLACash3",
     .Win = "WinFLACash3",
     .HalfWagers = true,
     .WayOfTwoUnits = 2,
     .Ways = {"Straight", "Box", "StraightBox", "Combo"}},
    {.LottoFlag = "Quote4",
     .in = Family::frmPick4,
     .Played = "PlayedQuote4",
     .Win = "WinQuote4",
     .ExtraFlagAtCreate = "QCQuote4",
     .CheckNamesTables = false,
     .CreatesAtLoad = false},
    // Load, cancel and exit name another table than the one that tickets are saved to. Meant.
    {.LottoFlag = "ATLPik4",
     .in = Family::frmPick4,
     .Played = "PlayedATLPik4",
     .Win = "WinATLPik4",
     .LoadPlayed = "PlayedAtlanticPik4",
     .WinningsKey = "Pik4",
     .WinningsPlayed = "PlayedPik4",
     .CheckNamesTables = false,
     .CreatesAtLoad = false},
    {.LottoFlag = "FLAPlay4",
     .in = Family::frmPick4,
     .Played = "PlayedFLAPlay4",
     .Win = "WinFLAPlay4",
     .HalfWagers = true,
     .HasTriples = false,
     .Ways = {"Straight", "Box"}},
});

constexpr auto AddOnTable = std::to_array<AddOn>({
    {.ExtraFlag = "Encore",
     .Played = "PlayedEncore",
     .Win = "WinEncore",
     .Name = "Encore",
     .CountedOnSheet = true},
    {.ExtraFlag = "Extra",
     .Played = "PlayedExtra",
     .Win = "WinExtra",
     .Name = "Extra",
     .FourNumbers = true,
     .CountedOnSheet = true,
     .BoundToSheet = true},
    {.ExtraFlag = "ThePlus", .Played = "PlayedThePlus", .Win = "WinThePlus"},
    {.ExtraFlag = "QCExtra", .Played = "PlayedQCExtra", .Win = "WinQCExtra", .Name = "Extra"},
    {.ExtraFlag = "Tag", .Played = "PlayedTag", .Win = "WinTag", .Name = "Tag"},
    {.ExtraFlag = "WESTExtra",
     .Played = "PlayedWESTExtra",
     .Win = "WinWESTExtra",
     .Name = "Extra",
     .Digits = 7},
});

template <class Row>
const Row* Find(std::span<const Row> rows, std::string_view key, std::string_view Row::*column) {
    const auto at =
        std::find_if(rows.begin(), rows.end(), [&](const Row& row) { return row.*column == key; });
    return at == rows.end() ? nullptr : &*at;
}

std::string_view Or(std::string_view odd, std::string_view regular) { return odd.empty() ? regular : odd; }

}  // namespace

std::span<const MenuEntry> MenuTree() { return Tree; }
std::span<const Game> Games() { return GameTable; }
std::span<const GameKey> GameKeys() { return KeyTable; }
std::span<const AddOn> AddOns() { return AddOnTable; }

const Game* FindGame(std::string_view menu) { return Find(Games(), menu, &Game::menu); }
const AddOn* FindAddOn(std::string_view ExtraFlag) { return Find(AddOns(), ExtraFlag, &AddOn::ExtraFlag); }

const GameKey* FindKey(Family family, std::string_view LottoFlag) {
    const GameKey* key = Find(GameKeys(), LottoFlag, &GameKey::LottoFlag);
    return key && key->in == family ? key : nullptr;
}

const GameKey& CellsOf(std::string_view LottoFlag) {
    static constexpr GameKey Regular{.LottoFlag = {}, .in = {}, .Played = {}, .Win = {}};
    const GameKey* key = Find(GameKeys(), LottoFlag, &GameKey::LottoFlag);
    return key ? *key : Regular;
}

const AddOn& AddOnOf(std::string_view ExtraFlag) {
    static constexpr AddOn Regular{};
    const AddOn* addOn = FindAddOn(ExtraFlag);
    return addOn ? *addOn : Regular;
}

int SheetFactor(Family family, std::string_view LottoFlag) {
    const GameKey* key = FindKey(family, LottoFlag);
    return key ? 1 + key->BonusTickets : 1;
}

std::optional<std::string> PlayedTable(Family family, std::string_view LottoFlag) {
    const GameKey* key = FindKey(family, LottoFlag);
    if (!key) return {};
    return std::string(key->Played);
}

std::optional<std::string> LoadTable(Family family, std::string_view LottoFlag) {
    const GameKey* key = FindKey(family, LottoFlag);
    if (!key) return {};
    return std::string(Or(key->LoadPlayed, key->Played));
}

std::optional<std::string> CheckTable(Family family, std::string_view LottoFlag) {
    const GameKey* key = FindKey(family, LottoFlag);
    if (!key || !key->CheckNamesTables) return {};
    return std::string(key->Played);
}

std::optional<std::string> WinTable(Family family, std::string_view LottoFlag) {
    const GameKey* key = FindKey(family, LottoFlag);
    if (!key || !key->CheckNamesTables) return {};
    return std::string(key->Win);
}

std::optional<std::string> WinningsTable(Family family, std::string_view LottoFlag) {
    // These two windows do not compare the key.
    if (family == Family::frm749) return "PlayedSuper7";
    if (family == Family::frm645) return "PlayedLottario";
    for (const GameKey& key : KeyTable)
        if (key.in == family && Or(key.WinningsKey, key.LottoFlag) == LottoFlag)
            return std::string(Or(key.WinningsPlayed, key.Played));
    return {};
}

}  // namespace sorvane

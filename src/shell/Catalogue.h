// The lotteries the program knows: the menu tree, the games on it, the game keys and the add-on games. What
// differs between regions is a cell here; only odd cells are written, the others follow from the regular
// name.
#pragma once

#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "shell/Family.h"

namespace sorvane {

// What a menu entry does.
enum class MenuAction { Menu, Game, Notice, Exit, Request, Report, About, Dead };

// An entry of the menu tree, in order; `level` 0 stands on the menu bar.
struct MenuEntry {
    int level;
    std::string_view name;
    std::string_view caption;
    MenuAction action;
};
std::span<const MenuEntry> MenuTree();

// A menu entry that opens a game window.
struct Game {
    std::string_view menu;  // its menu entry
    std::string_view LottoFlag;
    std::string_view ExtraFlag;
    Family opens;
    std::string_view title;
    // Facts that nothing reads. Where one is missing, the variable keeps the value of the game before.
    std::optional<int> MaxTicketsOnSheet = {};
    std::optional<int> TicketPriceCents = {};
    std::optional<int> FreePlays = {};  // of GameKey::BonusTickets the flow makes use
    // Where the title is written: the window that opens, but for Play 4, whose title goes to the hidden
    // frmPick3.
    std::optional<Family> titleGoesTo = {};
};
std::span<const Game> Games();
const Game* FindGame(std::string_view menu);

// A game key and its tables. An empty cell reads as told beside it.
struct GameKey {
    std::string_view LottoFlag;
    Family in;
    std::string_view Played;
    std::string_view Win;
    std::string_view ExtraFlagAtCreate =
        {};  // digit games: the add-on key that names their Win table; empty: LottoFlag
    std::string_view LoadPlayed = {};      // at load, cancel and exit; empty: Played
    std::string_view WinningsKey = {};     // the key that Enter Winnings compares; empty: LottoFlag
    std::string_view WinningsPlayed = {};  // the table it then asks; empty: Played
    std::string_view QuickPickKey = {};    // the key that the generator compares; empty: LottoFlag
    bool CheckNamesTables = true;          // a check sets TableName for this key
    bool CreatesAtLoad = true;             // the window's CreateAllTables knows the key
    bool HalfPrice = false;                // a ticket costs half a dollar
    int BonusTickets = 0;                  // free tickets that come with each bought one
    bool HasEarlyBird = false;             // a second draw; each ticket tells whether it takes part
    bool ClearsLastGrid = false;           // the grid of a sheet's last ticket is cleared, too
    bool CheckLiveAtCount = false;         // accepting the count of tickets enables chkEncore
    bool FillsLists = false;               // keno: the lists of balls and wagers have entries
    bool PaysPrizes = false;               // keno: there is a prize table; else a check only counts
    bool EncoreByGame = false;             // keno 70: Encore is asked by the game, not by the add-on key
    bool HalfWagers = false;               // digit games: an option means the wager doubled
    int WayOfTwoUnits = NoWay;             // digit games: the option of optPlayOpt that costs two units
    bool HasTriples = true;                // digit games: the report "Triple Match" is offered
    // Digit games: what each option of optPlayOpt is called in the rows; empty: the option names nothing.
    std::array<std::string_view, 4> Ways = {};

    static constexpr int NoWay = -1;
};
std::span<const GameKey> GameKeys();
// The row of the key in this family; null when the family's comparison chain knows no such key.
const GameKey* FindKey(Family family, std::string_view LottoFlag);
// The row of the key, whichever family it is in; for a key that no game has, a row of regular cells.
const GameKey& CellsOf(std::string_view LottoFlag);
// Tickets that each bought one makes, itself counted: 1 where the family knows no such key.
int SheetFactor(Family family, std::string_view LottoFlag);

// Names of the tables at each place of use; nothing when the chain there matches no key, and the name stays
// what it was.
std::optional<std::string> PlayedTable(Family family, std::string_view LottoFlag);  // save
std::optional<std::string> LoadTable(Family family, std::string_view LottoFlag);    // load, cancel, exit
std::optional<std::string> CheckTable(Family family, std::string_view LottoFlag);   // check: tickets
std::optional<std::string> WinTable(Family family, std::string_view LottoFlag);  // check and tallies: draws
std::optional<std::string> WinningsTable(Family family, std::string_view LottoFlag);  // Enter Winnings

// An add-on game.
struct AddOn {
    std::string_view ExtraFlag;
    std::string_view Played;
    std::string_view Win;
    std::string_view Name = {};   // in "<Name> number is too short..."; empty for The Plus
    int Digits = 6;               // of the number: asked for, kept and read back
    bool FourNumbers = false;     // txtPlay4 and txtWin4 hold it; else a number of digits
    bool CountedOnSheet = false;  // as many tickets as txtNoOfExtra says; else one, by chkEncore
    bool BoundToSheet = false;    // not more of them than tickets on the sheet

    // txtEncore takes a number for each ticket counted.
    constexpr bool NumbersInTurn() const { return CountedOnSheet && !FourNumbers; }
    // Of its tables: 1 digits of a number, 4 four numbers.
    constexpr int ShapeCode() const { return FourNumbers ? 4 : 1; }
};
std::span<const AddOn> AddOns();
const AddOn* FindAddOn(std::string_view ExtraFlag);
// The add-on of the key; for a key that is no add-on, a row of regular cells.
const AddOn& AddOnOf(std::string_view ExtraFlag);
inline int AddOnDigits(std::string_view ExtraFlag) { return AddOnOf(ExtraFlag).Digits; }

}  // namespace sorvane

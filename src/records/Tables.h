// Every table that the program makes, whatever the game: its fields with what may stand in them.
#pragma once

#include <functional>
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "shell/Catalogue.h"
#include "store/CreateTables.h"
#include "store/dao/Dao.h"
#include "store/dao/RecordFile.h"

namespace sorvane::Records {

enum class Use { Spent, Winnings, Played, Win, AddOnPlayed, AddOnWin, EarlyBird, Scratch };

enum class Means {
    Key,        // ID1
    Day,        // the draw date
    Game,       // the key of a game
    Number,     // low to high
    Digit,      // of an add-on number; all of them 99: none was played
    Way,        // of a digit game
    Mark,       // a Boolean
    Amount,     // of money
    DayAsText,  // the draw date, written as text into the field for the game
};

struct Field {
    std::string name;
    Dao::FieldType type;
    int size = 0;  // of a text
    Means means = Means::Number;
    int low = -32'768;
    int high = 32'767;
    bool mayBeNull = false;  // the program's own writers leave it so
};

struct Table {
    std::string name;
    Use use;
    const Creator* creator;
    const GameKey* game = nullptr;  // of a main game; null in tables that games share
    const AddOn* addOn = nullptr;
    std::string_view pair = {};  // its Played or Win table, which the program makes only together with it
    std::vector<Field> fields = {};

    int At(std::string_view field) const;  // -1 when there is none
    int DayAt() const;
    int GameAt() const { return At("Lottoflag"); }
};

// In one order for all commands: money, games, add-ons, scratch.
std::span<const Table> Tables();
// Whatever the case of its letters; null when the program makes no such table.
const Table* FindTable(std::string_view name);
bool SameWord(std::string_view a, std::string_view b);
// Whether the word is the same as one of these.
bool OneOf(std::string_view word, std::initializer_list<std::string_view> words,
           bool (*same)(std::string_view, std::string_view) = SameWord);
constexpr bool IsDigit(char letter) { return letter >= '0' && letter <= '9'; }
// Small letters and digits alone: other tools write "# of Balls" as "__of_Balls" or "#_of_balls".
std::string EssenceOf(std::string_view name);

// The table as the program would make it.
Dao::TableDef Define(const Table& table);
// The same as a file would state it.
Dao::FileTable AsInFile(const Table& table);

// Whether a table of a file has the fields and indexes of the one due.
bool HasIndex(const Dao::FileTable& table, const Dao::FileIndex& due);
bool SameShape(const Dao::FileTable& found, const Dao::FileTable& due);

// Numbers of a game. What a slip offers and what a draw may hold differ in Super 7.
struct NumbersOf {
    int count;  // on a ticket; of keno the most that are kept
    int low;
    int top;    // on a ticket
    int drawn;  // in a draw, without the bonus
    int drawnTop;
    bool bonus;
    bool digits;  // in their order, and one may come twice
};
const NumbersOf& Numbers(Family family);
// More than the highest number of any game.
inline constexpr std::size_t MostNumbers = 100;
// Of the four numbers of an add-on.
inline constexpr int TopAddOnNumber = 99;

using Row = std::vector<Dao::Value>;

// Tells what is wrong with a row whose values stand in their fields' types or as they are stored: the field,
// and a text that goes on after its name.
using Complain = std::function<void(const Field& field, const std::string& what)>;
void JudgeRow(const Table& table, const Row& row, const Complain& complain);

// Of a game key: "Lotto 6/49", as its window calls it; the key itself where no menu entry opens the game.
std::string TitleOf(const GameKey& key);
const GameKey* FindGameKey(std::string_view LottoFlag);

}  // namespace sorvane::Records

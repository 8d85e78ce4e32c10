// A history of one game, draws or tickets, from a CSV file with columns in any order.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "records/Cells.h"
#include "records/Csv.h"
#include "records/Intake.h"
#include "records/Tables.h"

namespace sorvane::Records {

// A game as the command line names it.
struct ChosenGame {
    const GameKey* key;
    const AddOn* addOn;  // of its region; null where the region is not told, or sells none
    std::string name;    // "Ontario/Lotto 6/49"
};

// Every game that a menu entry opens, in the menu's order, with its region.
std::vector<ChosenGame> ChosenGames();
// By its caption with or without the region ("Ontario/Lotto 6/49", "Lottario"), or by its key, which leaves
// the add-on open where several regions sell the game. Throws Refusal for a name that is no game's, or of
// several.
ChosenGame FindChosenGame(std::string_view name);

enum class History { Draws, Tickets };

// What a line states of a draw or ticket.
struct Entry {
    Date date = {};
    std::vector<int> numbers = {};
    std::optional<int> bonus = {};
    std::vector<int> addOn = {};  // the digits, or the four numbers; empty: none
    std::string way = {};
    std::optional<Currency> wager = {};
    std::optional<Currency> price = {};
    bool regular = false;
    bool earlyBird = false;
    Spot spot = {};  // of the line
};

// What the caller knows of the file.
struct GameFileWish {
    fs::path path;
    std::string columns;  // the header in place of the file's, parted by commas; "-" passes a column over
    DateOrder order = DateOrder::MonthFirst;
    bool needsPrice = false;  // tickets: money is to be booked
};

class GameFile {
  public:
    // Reads the header. A column that says nothing to the program is left aside, and told of.
    GameFile(const ChosenGame& game, History history, const GameFileWish& wish, Findings& findings);

    // The next line that states one; those with something wrong in them are told and passed over. False at
    // the end.
    bool Next(Entry& entry);
    double Done() const { return reader_.Done(); }
    double InAll() const { return reader_.InAll(); }
    // "columns left aside: Jackpot", or nothing.
    const std::string& LeftAside() const { return leftAside_; }
    const fs::path& Path() const { return wish_.path; }

  private:
    enum class Part {
        Aside,
        Date,
        Number,
        Numbers,
        Bonus,
        AddOn,
        AddOnNumber,
        Way,
        Wager,
        Regular,
        EarlyBird,
        Price
    };
    struct Column {
        Part part = Part::Aside;
        int at = 0;  // of a number among its like, from 1
    };

    void ReadHeader();
    void TakeNames(const std::vector<CsvCell>& names);
    Column ColumnOf(std::string_view name) const;
    std::optional<Column> AddOnColumn(const std::string& essence, int number) const;
    void RefuseMissing();
    bool Has(Part part) const;
    bool IsHeader(const std::vector<CsvCell>& record) const;

    bool ReadEntry(Entry& entry);
    void ReadPart(Column column, const CsvCell& cell, Entry& entry);
    int ReadNumber(const CsvCell& cell, std::string_view text, int low, int top);
    void ReadNumbers(const CsvCell& cell, Entry& entry);
    void ReadAddOn(const CsvCell& cell, Entry& entry);
    void ReadWay(const CsvCell& cell, Entry& entry);
    void JudgeEntry(Entry& entry);
    void Tell(const CsvCell& cell, const std::string& what);

    const ChosenGame& game_;
    const NumbersOf& numbers_;
    History history_;
    GameFileWish wish_;
    Findings& findings_;
    CsvReader reader_;
    std::vector<CsvCell> record_;
    std::vector<Column> columns_;
    std::size_t numberColumns_ = 0;  // the highest number that has a column of its own
    std::string leftAside_;
    bool pending_ = false;  // the first line, read in search of a header, is an entry
    bool broken_ = true;    // the header could not be read, or lacks something
};

}  // namespace sorvane::Records

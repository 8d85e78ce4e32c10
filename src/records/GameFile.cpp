#include "records/GameFile.h"

#include <algorithm>
#include <bitset>
#include <sstream>
#include <utility>

#include "platform/Text.h"

namespace sorvane::Records {

namespace {

constexpr int Unplayed = -1;  // stands for a number until its column is read

// A menu caption without its ampersands and blanks at the end.
std::string Plain(std::string_view caption) {
    std::string plain(TrimBlanks(caption));
    std::erase(plain, '&');
    return plain;
}

// Splits the number at the end off: "ball_3" is "ball" and 3, without one 0.
std::pair<std::string, int> Numbered(std::string essence) {
    std::size_t end = essence.size();
    while (end > 0 && essence.size() - end < 2 && IsDigit(essence[end - 1])) --end;
    int number = 0;
    for (std::size_t i = end; i < essence.size(); ++i) number = number * 10 + (essence[i] - '0');
    essence.resize(end);
    return {essence, number};
}

// Runs of digits, parted by anything that is none.
std::vector<std::string_view> FiguresIn(std::string_view text) {
    std::vector<std::string_view> figures;
    constexpr std::string_view Figures = "0123456789";
    std::size_t end = 0;
    for (std::size_t begin; (begin = text.find_first_of(Figures, end)) != std::string_view::npos;) {
        end = std::min(text.find_first_not_of(Figures, begin), text.size());
        figures.push_back(text.substr(begin, end - begin));
    }
    return figures;
}

bool OnlyFiguresAndSigns(std::string_view text) {
    return text.find_first_not_of("0123456789 ,;-+/.\t") == std::string_view::npos;
}

std::string Names(const std::vector<ChosenGame>& games) {
    std::string names;
    for (const ChosenGame& game : games) names += (names.empty() ? "" : ", ") + game.name;
    return names;
}

}  // namespace

std::vector<ChosenGame> ChosenGames() {
    std::vector<ChosenGame> games;
    std::string region;
    for (const MenuEntry& entry : MenuTree()) {
        if (entry.action == MenuAction::Menu) region = Plain(entry.caption);
        if (entry.action != MenuAction::Game) continue;
        const Game& game = *FindGame(entry.name);
        games.push_back(
            {FindGameKey(game.LottoFlag), FindAddOn(game.ExtraFlag), region + "/" + Plain(entry.caption)});
    }
    return games;
}

namespace {

// With the add-on of its region, where one region alone sells the game.
ChosenGame OfKey(const GameKey& key) {
    std::vector<ChosenGame> games = ChosenGames();
    std::erase_if(games, [&](const ChosenGame& game) { return game.key != &key; });
    if (games.size() == 1) return games.front();
    return {&key, nullptr, std::string(key.LottoFlag)};
}

}  // namespace

ChosenGame FindChosenGame(std::string_view name) {
    std::vector<ChosenGame> found;
    for (const ChosenGame& game : ChosenGames()) {
        if (SameWord(game.name, name)) return game;
        if (SameWord(std::string_view(game.name).substr(game.name.find('/') + 1), name))
            found.push_back(game);
    }
    for (const GameKey& key : GameKeys())
        if (SameWord(key.LottoFlag, name)) return OfKey(key);
    if (found.size() == 1) return found.front();
    if (found.empty())
        throw Refusal("\"" + std::string(name) +
                      "\" is no game; \"sorvane-records draws --list\" names them");
    throw Refusal("\"" + std::string(name) + "\" may be one of: " + Names(found));
}

GameFile::GameFile(const ChosenGame& game, History history, const GameFileWish& wish, Findings& findings)
    : game_(game),
      numbers_(Numbers(game.key->in)),
      history_(history),
      wish_(wish),
      findings_(findings),
      reader_(wish.path) {
    try {
        ReadHeader();
    } catch (const CsvReader::Broken& bad) {
        findings_.Tell(wish_.path, {bad.line, bad.column}, bad.what);
    }
}

void GameFile::Tell(const CsvCell& cell, const std::string& what) {
    findings_.Tell(wish_.path, {cell.line, cell.column}, what);
}

// A file whose columns are told may have a line of names all the same: its date holds no digit.
bool GameFile::IsHeader(const std::vector<CsvCell>& record) const {
    for (std::size_t i = 0; i < record.size() && i < columns_.size(); ++i)
        if (columns_[i].part == Part::Date)
            return std::none_of(record[i].text.begin(), record[i].text.end(), IsDigit);
    return false;
}

void GameFile::ReadHeader() {
    const long before = findings_.Count();
    if (!wish_.columns.empty()) {
        std::vector<CsvCell> names;
        std::istringstream all(wish_.columns);
        for (std::string name; std::getline(all, name, ',');)
            names.push_back({.text = std::string(TrimBlanks(name)), .line = 1, .column = 1});
        TakeNames(names);
        leftAside_.clear();
        pending_ = reader_.Next(record_) && !IsHeader(record_);
    } else if (reader_.Next(record_)) {
        TakeNames(record_);
    } else {
        findings_.Tell(wish_.path, {}, "this file has no line");
    }
    if (findings_.Count() == before) RefuseMissing();
    broken_ = findings_.Count() != before;
}

void GameFile::TakeNames(const std::vector<CsvCell>& names) {
    for (const CsvCell& cell : names) {
        const Column column = ColumnOf(cell.text);
        const bool twice = column.part != Part::Aside &&
                           std::any_of(columns_.begin(), columns_.end(), [&](const Column& one) {
                               return one.part == column.part && one.at == column.at;
                           });
        if (twice) Tell(cell, "\"" + cell.text + "\" says the same as a column before it");
        columns_.push_back(column);
        if (column.part == Part::Number)
            numberColumns_ = std::max(numberColumns_, static_cast<std::size_t>(column.at));
        if (column.part == Part::Aside)
            leftAside_ += (leftAside_.empty() ? "columns left aside: " : ", ") + cell.text;
    }
}

std::optional<GameFile::Column> GameFile::AddOnColumn(const std::string& essence, int number) const {
    if (game_.addOn == nullptr) return std::nullopt;
    const std::string key = EssenceOf(game_.addOn->ExtraFlag);
    std::string stem = essence;
    for (const std::string_view end : {"number", "no"})
        if (stem.ends_with(end)) stem.resize(stem.size() - end.size());
    if (stem != key && stem != EssenceOf(game_.addOn->Name) && stem != "addon") return std::nullopt;
    if (number == 0) return Column{Part::AddOn};
    if (!game_.addOn->FourNumbers || number > 4) return std::nullopt;
    return Column{Part::AddOnNumber, number};
}

GameFile::Column GameFile::ColumnOf(std::string_view name) const {
    const std::string essence = EssenceOf(name);
    const auto [stem, number] = Numbered(essence);
    if (OneOf(essence, {"date", "drawdate", "drawingdate", "dateofdraw"})) return {Part::Date};
    if (const auto addOn = AddOnColumn(stem, number)) return *addOn;
    const bool bonus = history_ == History::Draws && numbers_.bonus;
    if (bonus && OneOf(essence, {"bonus", "bonusnumber", "bonusball", "ballb", "bonusnumberdrawn"}))
        return {Part::Bonus};
    if (OneOf(essence, {"numbers", "winningnumbers", "drawnnumbers", "numbersdrawn", "digits", "balls"}))
        return {Part::Numbers};
    const int most = history_ == History::Draws ? numbers_.drawn : numbers_.count;
    if (number >= 1 && number <= most &&
        OneOf(stem, {"", "ball", "number", "num", "n", "no", "b", "digit", "numberdrawn", "winningnumber"}))
        return {Part::Number, number};
    if (history_ == History::Draws) return {};
    const Family family = game_.key->in;
    if (IsPick(family) && OneOf(essence, {"way", "wayplayed", "play", "playtype"})) return {Part::Way};
    if ((IsKeno(family) || IsPick(family)) && OneOf(essence, {"wager", "bet"})) return {Part::Wager};
    if (OneOf(essence, {"regular", "regularlyplayed"})) return {Part::Regular};
    if (game_.key->HasEarlyBird && OneOf(essence, {"earlybird", "earlybirdplayed"})) return {Part::EarlyBird};
    if (OneOf(essence, {"price", "cost", "paid", "spent"})) return {Part::Price};
    return {};
}

bool GameFile::Has(Part part) const {
    return std::any_of(columns_.begin(), columns_.end(),
                       [&](const Column& column) { return column.part == part; });
}

void GameFile::RefuseMissing() {
    const auto missing = [&](const std::string& what) {
        findings_.Tell(wish_.path, {}, "the column " + what + " is missing");
    };
    if (!Has(Part::Date)) missing("\"date\"");
    const bool draws = history_ == History::Draws;
    const auto count = std::count_if(columns_.begin(), columns_.end(),
                                     [](const Column& column) { return column.part == Part::Number; });
    const int all = draws ? numbers_.drawn : numbers_.count;
    const bool fewer = !draws && IsKeno(game_.key->in) && count > 0;
    if (!Has(Part::Numbers) && count != all && !fewer)
        missing("\"numbers\", or one of \"1\" to \"" + Str(all) + "\",");
    // A draw without it could not be counted.
    const bool among = Has(Part::Numbers);
    if (draws && numbers_.bonus && !Has(Part::Bonus) && !among) missing("\"bonus\"");
    if (!draws && IsPick(game_.key->in) && !Has(Part::Way)) missing("\"way\"");
    if (wish_.needsPrice && game_.key->HalfWagers && !Has(Part::Wager) && !Has(Part::Price))
        missing("\"wager\", or \"price\",");
}

bool GameFile::Next(Entry& entry) {
    try {
        while (!broken_ && (std::exchange(pending_, false) || reader_.Next(record_)))
            if (ReadEntry(entry)) return true;
    } catch (const CsvReader::Broken& bad) {
        findings_.Tell(wish_.path, {bad.line, bad.column}, bad.what);
    }
    return false;
}

bool GameFile::ReadEntry(Entry& entry) {
    const long before = findings_.Count();
    // The lists keep their memory from line to line.
    entry.numbers.assign(numberColumns_, Unplayed);
    entry.addOn.clear();
    entry = {.numbers = std::move(entry.numbers),
             .addOn = std::move(entry.addOn),
             .spot = {record_.front().line, record_.front().column}};
    if (record_.size() < columns_.size())
        Tell(record_.front(), "this line has " + Counted(static_cast<long>(record_.size()), "cell") +
                                  " instead of " + Str(static_cast<long>(columns_.size())));
    else
        for (std::size_t i = 0; i < columns_.size(); ++i) ReadPart(columns_[i], record_[i], entry);
    if (findings_.Count() == before) JudgeEntry(entry);
    return findings_.Count() == before;
}

int GameFile::ReadNumber(const CsvCell& cell, std::string_view text, int low, int top) {
    const auto number = ReadWhole(text);
    if (!number) Tell(cell, "\"" + std::string(text) + "\" is no whole number");
    else if (*number < low || *number > top)
        Tell(cell, std::string(text) + " is not from " + Str(low) + " to " + Str(top));
    return static_cast<int>(number.value_or(0));
}

void GameFile::ReadPart(Column column, const CsvCell& cell, Entry& entry) {
    const int top = history_ == History::Draws ? numbers_.drawnTop : numbers_.top;
    const auto mark = [&](bool& to) {
        const auto read = cell.text.empty() ? std::optional(false) : ReadMark(cell.text);
        if (!read) Tell(cell, "\"" + cell.text + "\" is neither yes nor no");
        to = read.value_or(false);
    };
    const auto amount = [&](std::optional<Currency>& to) {
        if (!cell.text.empty() && !(to = ReadAmount(cell.text)))
            Tell(cell, "\"" + cell.text + "\" is no amount");
    };
    switch (column.part) {
        case Part::Date:
            if (const auto date = ReadDate(cell.text, wish_.order)) entry.date = *date;
            else Tell(cell, "\"" + cell.text + "\" is no date");
            break;
        case Part::Number: {
            const auto at = static_cast<std::size_t>(column.at);
            const bool unplayed = history_ == History::Tickets && IsKeno(game_.key->in) &&
                                  (cell.text.empty() || cell.text == "0");
            if (!unplayed) entry.numbers[at - 1] = ReadNumber(cell, cell.text, numbers_.low, top);
            break;
        }
        case Part::Numbers:
            ReadNumbers(cell, entry);
            break;
        case Part::Bonus:
            entry.bonus = ReadNumber(cell, cell.text, numbers_.low, top);
            break;
        case Part::AddOn:
            ReadAddOn(cell, entry);
            break;
        case Part::AddOnNumber:
            if (!cell.text.empty()) entry.addOn.push_back(ReadNumber(cell, cell.text, 1, TopAddOnNumber));
            break;
        case Part::Way:
            ReadWay(cell, entry);
            break;
        case Part::Wager:
            amount(entry.wager);
            break;
        case Part::Price:
            // A ticket that came free has none.
            entry.price = Currency();
            amount(entry.price);
            break;
        case Part::Regular:
            mark(entry.regular);
            break;
        case Part::EarlyBird:
            mark(entry.earlyBird);
            break;
        case Part::Aside:
            break;
    }
}

// "3 9 17 22 34 41", "3-9-17-22-34-41 + 49", and "482" of a digit game.
void GameFile::ReadNumbers(const CsvCell& cell, Entry& entry) {
    if (!OnlyFiguresAndSigns(cell.text)) return Tell(cell, "\"" + cell.text + "\" is more than numbers");
    const bool draws = history_ == History::Draws;
    const int top = draws ? numbers_.drawnTop : numbers_.top;
    const auto all = static_cast<std::size_t>(draws ? numbers_.drawn : numbers_.count);
    std::vector<std::string_view> figures = FiguresIn(cell.text);
    if (numbers_.digits && figures.size() == 1 && figures.front().size() == all) {
        const std::string_view digits = figures.front();
        figures.clear();
        for (std::size_t i = 0; i < all; ++i) figures.push_back(digits.substr(i, 1));
    }
    const bool withBonus = draws && numbers_.bonus && !Has(Part::Bonus) && figures.size() == all + 1;
    for (std::size_t i = 0; i < figures.size(); ++i) {
        const int number = ReadNumber(cell, figures[i], numbers_.low, top);
        if (withBonus && i == all) entry.bonus = number;
        else entry.numbers.push_back(number);
    }
}

void GameFile::ReadAddOn(const CsvCell& cell, Entry& entry) {
    if (cell.text.empty()) return;
    if (!OnlyFiguresAndSigns(cell.text)) return Tell(cell, "\"" + cell.text + "\" is more than numbers");
    const std::vector<std::string_view> figures = FiguresIn(cell.text);
    const auto digits = static_cast<std::size_t>(game_.addOn->Digits);
    if (game_.addOn->FourNumbers) {
        for (const std::string_view number : figures)
            entry.addOn.push_back(ReadNumber(cell, number, 1, TopAddOnNumber));
        return;
    }
    for (const std::string_view run : figures)
        for (const char digit : run) entry.addOn.push_back(digit - '0');
    if (entry.addOn.size() != digits)
        Tell(cell, "\"" + cell.text + "\" has not " + Str(static_cast<long>(digits)) + " digits");
}

// As the rows call it, whatever the case and signs: "straight box" is "StraightBox".
void GameFile::ReadWay(const CsvCell& cell, Entry& entry) {
    const std::string word = EssenceOf(cell.text);
    std::string known;
    for (const std::string_view way : game_.key->Ways) {
        if (way.empty()) continue;
        std::string essence = EssenceOf(way);
        if (word == essence) return void(entry.way = way);
        known += (known.empty() ? "" : ", ") + std::string(way);
    }
    Tell(cell, "\"" + cell.text + "\" is none of the ways " + known);
}

void GameFile::JudgeEntry(Entry& entry) {
    const CsvCell& line = record_.front();
    const bool draws = history_ == History::Draws;
    const bool keno = !draws && IsKeno(game_.key->in);
    std::erase(entry.numbers, Unplayed);
    const auto all = static_cast<std::size_t>(draws ? numbers_.drawn : numbers_.count);
    const bool enough =
        keno ? !entry.numbers.empty() && entry.numbers.size() <= all : entry.numbers.size() == all;
    if (!enough)
        return Tell(line, Counted(static_cast<long>(entry.numbers.size()), "number") + " instead of " +
                              (keno ? "1 to " : "") + Str(static_cast<long>(all)));
    if (draws && numbers_.bonus && !entry.bonus) return Tell(line, "the bonus number is missing");
    if (!numbers_.digits) {
        std::bitset<MostNumbers> seen;
        for (const int number : entry.numbers) {
            const auto at = static_cast<std::size_t>(number);
            if (seen[at]) return Tell(line, Str(number) + " stands there twice");
            seen.set(at);
        }
        if (entry.bonus && seen[static_cast<std::size_t>(*entry.bonus)])
            return Tell(line, "the bonus number " + Str(*entry.bonus) + " is among the others");
    }
    if (!entry.addOn.empty() && game_.addOn->FourNumbers && entry.addOn.size() != 4)
        return Tell(line, std::string(game_.addOn->Name) + " has " +
                              Counted(static_cast<long>(entry.addOn.size()), "number") + " instead of 4");
    if (!draws && !numbers_.digits) std::sort(entry.numbers.begin(), entry.numbers.end());
}

}  // namespace sorvane::Records

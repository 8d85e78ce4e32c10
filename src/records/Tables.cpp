#include "records/Tables.h"

#include <algorithm>
#include <set>

#include "platform/Text.h"
#include "shell/FamilyFacts.h"
#include "shell/Global.h"

namespace sorvane::Records {

namespace {

using Type = Dao::FieldType;

// What differs from the numbers of the family.
constexpr int MostBallsOfKeno = 10;
constexpr int HighestOnSuper7Slip = 47;  // it lacks the last two boxes

constexpr NumbersOf NumbersIn(Family family) {
    const int drawn = FamilyFacts::NumbersPerTicket[family];
    const int highest = FamilyFacts::HighestNumber[family];
    return {.count = IsKeno(family) ? MostBallsOfKeno : drawn,
            .low = FamilyFacts::LowestNumber[family],
            .top = family == Family::frm749 ? HighestOnSuper7Slip : highest,
            .drawn = drawn,
            .drawnTop = highest,
            .bonus = !IsKeno(family) && !IsPick(family),
            .digits = IsPick(family)};
}

constexpr int TopEarlyBird = FamilyFacts::HighestNumber[Family::frm645];

bool StartsWith(std::string_view text, std::string_view start) { return text.starts_with(start); }

// What the numbers of a main game's row may be. In keno a ball not played is 0.
void SetNumberRange(Field& field, const Table& table) {
    const Family family = table.game->in;
    const NumbersOf& numbers = Numbers(family);
    const bool played = table.use == Use::Played;
    field.low = IsKeno(family) && played ? 0 : numbers.low;
    field.high = played ? numbers.top : numbers.drawnTop;
}

void SetRange(Field& field, const Table& table) {
    if (field.name == "Wager" || field.name == "# of Balls") {
        field.low = 0;
    } else if (table.use == Use::EarlyBird) {
        field.low = 1;
        field.high = TopEarlyBird;
        field.mayBeNull = field.name == "Ball_4";
    } else if (table.use == Use::AddOnPlayed) {
        field.low = 1;
        field.high = TopAddOnNumber;
    } else if (table.game != nullptr) {
        SetNumberRange(field, table);
    }
}

Means MeaningOf(const Field& field, const Table& table) {
    if (field.name == "ID1") return Means::Key;
    if (field.name == "Date") return Means::Day;
    if (field.name == "Lottoflag") return table.use == Use::EarlyBird ? Means::DayAsText : Means::Game;
    if (field.name == "Way Played") return Means::Way;
    if (field.type == Type::Boolean) return Means::Mark;
    if (field.type == Type::Currency) return Means::Amount;
    return StartsWith(field.name, "Number ") ? Means::Digit : Means::Number;
}

void FinishField(Field& field, const Table& table) {
    field.means = MeaningOf(field, table);
    if (field.means == Means::Number) SetRange(field, table);
    if (field.means == Means::Digit) {
        field.low = 0;
        field.high = 9;
        field.mayBeNull = field.name == "Number 7" && table.addOn->Digits < 7;
    }
    // The four numbers of an Extra ticket have no way of being played.
    if (field.means == Means::Way) field.mayBeNull = table.use == Use::AddOnPlayed;
}

void AddFields(Table& table) {
    const Dao::TableDef made = Define(table);
    for (const auto& [name, type, size] : made.Fields()) {
        Field field{name, type, size};
        FinishField(field, table);
        table.fields.push_back(std::move(field));
    }
}

std::vector<Table> AllTables() {
    std::vector<Table> tables{{"Spent", Use::Spent, &CreateSpentTable},
                              {"Winnings", Use::Winnings, &CreateWinningsTable}};
    for (const GameKey& key : GameKeys()) {
        const CreatorPair make = CreatorsOf(FamilyFacts::NumbersPerTicket[key.in]);
        tables.push_back({std::string(key.Played), Use::Played, make.played, &key, nullptr, key.Win});
        tables.push_back({std::string(key.Win), Use::Win, make.win, &key, nullptr, key.Played});
    }
    for (const AddOn& addOn : AddOns()) {
        const CreatorPair make = CreatorsOf(addOn.ShapeCode());
        tables.push_back(
            {std::string(addOn.Played), Use::AddOnPlayed, make.played, nullptr, &addOn, addOn.Win});
        tables.push_back({std::string(addOn.Win), Use::AddOnWin, make.win, nullptr, &addOn, addOn.Played});
    }
    tables.push_back({"WinEarlyBird", Use::EarlyBird, &CreateWinPick4Table});
    tables.push_back({"Temp", Use::Scratch, &CreateTempTable});
    for (Table& table : tables) AddFields(table);
    return tables;
}

char Small(char letter) { return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter | 0x20) : letter; }

bool IsWay(std::string_view text) {
    if (text.empty()) return true;  // none was chosen
    return std::any_of(GameKeys().begin(), GameKeys().end(), [&](const GameKey& key) {
        return std::find(key.Ways.begin(), key.Ways.end(), text) != key.Ways.end();
    });
}

std::string RangeOf(const Field& field) {
    return " is not from " + Str(field.low) + " to " + Str(field.high);
}

// A value that is nothing of its field's kind; shown as it stands.
std::string Shown(const Dao::Value& value) {
    constexpr std::size_t Most = 40;
    std::string text = "?";
    ErrorOf([&] { text = value.ToText(); });
    return "\"" + (text.size() > Most ? text.substr(0, Most) + "..." : text) + "\"";
}

std::string JudgeText(const Field& field, const Table& table, const std::string& text) {
    if (CharactersOf(text) > field.size) return Shown(text) + " is too long";
    if (field.means == Means::Way) return IsWay(text) ? "" : Shown(text) + " is no way of playing";
    if (field.means == Means::DayAsText)
        return ErrorOf([&] { Date::FromText(text); }) == 0 ? "" : Shown(text) + " is no date";
    if (table.game != nullptr)
        return text == table.game->LottoFlag
                   ? ""
                   : Shown(text) + " is not " + Shown(std::string(table.game->LottoFlag));
    return FindGameKey(text) != nullptr ? "" : Shown(text) + " is the key of no game";
}

std::string JudgeWhole(const Field& field, const Table& table, const Dao::Value& value) {
    const auto* number = std::get_if<std::int64_t>(&value.Get());
    if (number == nullptr) return Shown(value) + " is no whole number";
    if (field.means == Means::Key)
        return *number >= 1 && *number <= 2'147'483'647 ? "" : Shown(value) + " is no key";
    if (field.means == Means::Digit && table.use == Use::AddOnPlayed && *number == NotPlayed) return {};
    return *number >= field.low && *number <= field.high ? "" : Shown(value) + RangeOf(field);
}

std::string JudgeDay(const Table& table, const Dao::Value& value) {
    const auto* date = std::get_if<Date>(&value.Get());
    if (date == nullptr) return Shown(value) + " is no date";
    if (table.use != Use::EarlyBird) return {};
    const long number = date->Day();
    return number >= 1 && number <= TopEarlyBird ? "" : "holds no number from 1 to " + Str(TopEarlyBird);
}

// Empty when nothing is wrong.
std::string JudgeValue(const Table& table, const Field& field, const Dao::Value& value) {
    if (value.IsNull()) return field.mayBeNull ? "" : "is empty";
    switch (field.type) {
        case Type::Integer:
        case Type::Long:
            return JudgeWhole(field, table, value);
        case Type::Date:
            return JudgeDay(table, value);
        case Type::Boolean:
            return std::holds_alternative<bool>(value.Get()) ? ""
                                                             : Shown(value) + " is neither true nor false";
        case Type::Currency:
            return std::holds_alternative<Currency>(value.Get()) ? "" : Shown(value) + " is no amount";
        default:
            break;
    }
    const auto* text = std::get_if<std::string>(&value.Get());
    return text != nullptr ? JudgeText(field, table, *text) : Shown(value) + " is no text";
}

// A slip takes each number once; in keno the balls that were not played are 0 and come last.
void JudgeSlip(const Table& table, const Row& row, const Complain& complain) {
    std::set<std::int64_t> seen;
    for (std::size_t i = 0; i < row.size(); ++i) {
        const Field& field = table.fields[i];
        if (!StartsWith(field.name, "Ball_")) continue;
        const std::int64_t number = std::get<std::int64_t>(row[i].Get());
        if (number == 0) seen.insert(0);
        else if (seen.count(0) != 0) return complain(field, "stands behind a ball that was not played");
        else if (!seen.insert(number).second) return complain(field, Shown(row[i]) + " stands there twice");
    }
}

// "Not played" is told by all digits together.
void JudgeDigits(const Table& table, const Row& row, const Complain& complain) {
    int digits = 0, sentinels = 0;
    std::size_t last = 0;
    for (std::size_t i = 0; i < row.size(); ++i) {
        if (table.fields[i].means != Means::Digit || row[i].IsNull()) continue;
        ++digits;
        last = i;
        if (std::get<std::int64_t>(row[i].Get()) == NotPlayed) ++sentinels;
    }
    if (sentinels != 0 && sentinels != digits)
        complain(table.fields[last], "belongs to a number that is played in part");
}

}  // namespace

int Table::At(std::string_view field) const {
    const auto at = std::find_if(fields.begin(), fields.end(),
                                 [&](const Field& one) { return SameWord(one.name, field); });
    return at == fields.end() ? -1 : static_cast<int>(at - fields.begin());
}

int Table::DayAt() const { return At("Date"); }

std::span<const Table> Tables() {
    static const std::vector<Table> tables = AllTables();
    return tables;
}

bool SameWord(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char x, char y) { return Small(x) == Small(y); });
}

bool OneOf(std::string_view word, std::initializer_list<std::string_view> words,
           bool (*same)(std::string_view, std::string_view)) {
    return std::any_of(words.begin(), words.end(), [&](std::string_view one) { return same(word, one); });
}

std::string EssenceOf(std::string_view name) {
    std::string essence;
    for (const char letter : name)
        if (const char small = Small(letter); (small >= 'a' && small <= 'z') || IsDigit(small))
            essence += small;
    return essence;
}

const Table* FindTable(std::string_view name) {
    const auto tables = Tables();
    const auto at = std::find_if(tables.begin(), tables.end(),
                                 [&](const Table& table) { return SameWord(table.name, name); });
    return at == tables.end() ? nullptr : &*at;
}

Dao::TableDef Define(const Table& table) { return table.creator->Define(table.name); }

Dao::FileTable AsInFile(const Table& table) {
    Dao::FileTable made{table.name, {}, {}};
    for (const Field& field : table.fields)
        made.fields.push_back({field.name, Dao::DeclaredAs(field.type, field.size), field.type});
    if (table.creator->indexed)
        made.indexes = {{table.name + ".ID1", "ID1", true}, {table.name + ".Date", "Date", false}};
    return made;
}

bool SameShape(const Dao::FileTable& found, const Dao::FileTable& due) {
    const auto sameField = [](const Dao::FileField& a, const Dao::FileField& b) {
        return SameWord(a.name, b.name) && a.type == b.type;
    };
    if (!std::equal(found.fields.begin(), found.fields.end(), due.fields.begin(), due.fields.end(),
                    sameField))
        return false;
    return std::all_of(due.indexes.begin(), due.indexes.end(),
                       [&](const Dao::FileIndex& index) { return HasIndex(found, index); });
}

bool HasIndex(const Dao::FileTable& table, const Dao::FileIndex& due) {
    return std::any_of(table.indexes.begin(), table.indexes.end(), [&](const Dao::FileIndex& one) {
        return SameWord(one.name, due.name) && SameWord(one.field, due.field) && one.unique == due.unique;
    });
}

const NumbersOf& Numbers(Family family) {
    static constexpr auto numbers = [] {
        PerFamily<NumbersOf> all{};
        for (const Family one : AllFamilies) all.of[static_cast<std::size_t>(one)] = NumbersIn(one);
        return all;
    }();
    return numbers[family];
}

void JudgeRow(const Table& table, const Row& row, const Complain& complain) {
    bool sound = true;
    for (std::size_t i = 0; i < row.size(); ++i) {
        const std::string what = JudgeValue(table, table.fields[i], row[i]);
        if (what.empty()) continue;
        sound = false;
        complain(table.fields[i], what);
    }
    if (!sound) return;
    if (table.use == Use::Played && !Numbers(table.game->in).digits) JudgeSlip(table, row, complain);
    if (table.use == Use::AddOnPlayed) JudgeDigits(table, row, complain);
}

const GameKey* FindGameKey(std::string_view LottoFlag) {
    const auto keys = GameKeys();
    const auto at = std::find_if(keys.begin(), keys.end(),
                                 [&](const GameKey& key) { return key.LottoFlag == LottoFlag; });
    return at == keys.end() ? nullptr : &*at;
}

std::string TitleOf(const GameKey& key) {
    const auto games = Games();
    const auto at = std::find_if(games.begin(), games.end(),
                                 [&](const Game& game) { return game.LottoFlag == key.LottoFlag; });
    return std::string(at == games.end() ? key.LottoFlag : at->title);
}

}  // namespace sorvane::Records

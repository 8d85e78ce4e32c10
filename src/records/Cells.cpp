#include "records/Cells.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <vector>

#include "platform/RunTimeError.h"
#include "platform/Text.h"

namespace sorvane::Records {

namespace {

constexpr std::array<std::string_view, 12> Months = {"january",   "february", "march",    "april",
                                                     "may",       "june",     "july",     "august",
                                                     "september", "october",  "november", "december"};
constexpr std::size_t ShortName = 3;

// Whether the word is the name or begins it with at least three letters.
bool Names(std::string_view word, std::string_view name) {
    return word.size() >= ShortName && SameWord(word, name.substr(0, word.size()));
}

// 1 to 12, or 0.
int MonthOf(std::string_view word) {
    for (std::size_t i = 0; i < Months.size(); ++i)
        if (Names(word, Months[i])) return static_cast<int>(i) + 1;
    return 0;
}

bool IsWeekday(std::string_view word) {
    return OneOf(word, {"monday", "tuesday", "wednesday", "thursday", "friday", "saturday", "sunday"}, Names);
}

// A piece of a date: figures or letters.
struct Piece {
    std::string_view text;
    bool Figures() const { return std::all_of(text.begin(), text.end(), IsDigit); }
    bool Year() const { return text.size() == 4 && Figures(); }
    bool Small() const { return text.size() <= 2 && Figures(); }
    int Number() const {
        int number = 0;
        std::from_chars(text.data(), text.data() + text.size(), number);
        return number;
    }
};

// The pieces between blanks and single signs, weekdays left out; nothing when two signs meet.
std::vector<Piece> PiecesOf(std::string_view text) {
    constexpr std::string_view Signs = "-/.,";
    std::vector<Piece> pieces;
    std::size_t signs = 1;  // since the last piece; none may stand before the first
    while (!text.empty()) {
        if (text.front() == ' ' || Signs.find(text.front()) != std::string_view::npos) {
            if (text.front() != ' ' && ++signs > 1) return {};
            text.remove_prefix(1);
            continue;
        }
        const Piece piece{text.substr(0, text.find_first_of(" -/.,"))};
        if (!IsWeekday(piece.text)) pieces.push_back(piece);
        signs = 0;
        text.remove_prefix(piece.text.size());
    }
    return pieces;
}

std::optional<Date> Existing(int year, int month, int day) {
    constexpr int FirstYear = 100;  // that the file holds
    Date date;
    if (year < FirstYear) return std::nullopt;
    if (ErrorOf([&] { date = Date::FromYmd(year, month, day); }) != 0) return std::nullopt;
    return date;
}

std::optional<Date> Made(const Piece& year, int month, const Piece& day) {
    const bool possible = (year.Year() || year.text.size() == 2) && year.Figures() && day.Small();
    if (!possible) return std::nullopt;
    // Two digits of a year.
    constexpr int Pivot = 30;
    int number = year.Number();
    if (!year.Year()) number += number < Pivot ? 2000 : 1900;
    return Existing(number, month, day.Number());
}

std::optional<Date> ReadPieces(const std::vector<Piece>& pieces, DateOrder order) {
    const Piece &a = pieces[0], &b = pieces[1], &c = pieces[2];
    if (const int month = MonthOf(a.text)) return Made(c, month, b);
    if (const int month = MonthOf(b.text)) return a.Year() ? Made(a, month, c) : Made(c, month, a);
    if (!b.Small()) return std::nullopt;
    if (a.Year()) return Made(a, b.Number(), c);
    if (!a.Small()) return std::nullopt;
    return order == DateOrder::DayFirst ? Made(c, b.Number(), a) : Made(c, a.Number(), b);
}

// Hours and minutes with or without seconds, and AM, PM or Z behind them. There is a colon in the text.
bool IsTime(std::string_view text) {
    const std::size_t end = text.find_first_not_of("0123456789:.");
    const std::string_view behind = end == std::string_view::npos ? "" : TrimBlanks(text.substr(end));
    return IsDigit(text.front()) && OneOf(behind, {"", "am", "pm", "z"});
}

std::string_view WithoutTime(std::string_view text) {
    const std::size_t colon = text.find(':');
    if (colon == std::string_view::npos) return text;
    const std::size_t gap = text.substr(0, colon).find_last_of(" T");
    if (gap == std::string_view::npos || !IsTime(text.substr(gap + 1))) return text;
    return TrimBlanks(text.substr(0, gap));
}

// 2026-11-21, as most files have it; this is the quick way.
bool IsShortForm(std::string_view text) {
    constexpr std::string_view Form = "dddd-dd-dd";
    return std::equal(text.begin(), text.end(), Form.begin(), Form.end(),
                      [](char letter, char form) { return form == 'd' ? IsDigit(letter) : letter == form; });
}

}  // namespace

std::optional<Date> ReadDate(std::string_view text, DateOrder order) {
    constexpr std::size_t Compact = 8;
    // Each goes on to the sign behind it.
    const auto number = [&](std::size_t at) { return Piece{text.substr(at)}.Number(); };
    if (IsShortForm(text)) return Existing(number(0), number(5), number(8));
    text = WithoutTime(TrimBlanks(text));
    const Piece whole{text};
    if (text.size() == Compact && whole.Figures())
        return Made({text.substr(0, 4)}, Piece{text.substr(4, 2)}.Number(), {text.substr(6)});
    const std::vector<Piece> pieces = PiecesOf(text);
    if (pieces.size() != 3) return std::nullopt;
    return ReadPieces(pieces, text.find('.') != std::string_view::npos ? DateOrder::DayFirst : order);
}

std::optional<bool> ReadMark(std::string_view text) {
    if (OneOf(text, {"true", "yes", "on", "y", "t", "x", "1", "-1"})) return true;
    if (OneOf(text, {"false", "no", "off", "n", "f", "0"})) return false;
    return std::nullopt;
}

std::optional<long> ReadWhole(std::string_view text) {
    int number = 0;
    if (text.starts_with('+')) text.remove_prefix(1);
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
    return number;
}

std::optional<Currency> ReadAmount(std::string_view text) {
    if (const std::size_t sign = text.find('$'); sign != std::string_view::npos) {
        std::string plain(text);
        plain.erase(sign, 1);
        const bool leads = sign == 0 || (sign == 1 && text.front() == '-');
        if (!leads || plain.find('$') != std::string::npos) return std::nullopt;
        return ReadAmount(plain);
    }
    Currency amount;
    if (ErrorOf([&] { amount = Currency::FromText(text); }) != 0) return std::nullopt;
    return amount;
}

std::optional<Dao::Value> ReadCell(const Field& field, const CsvCell& cell, std::string& wrong) {
    using Type = Dao::FieldType;
    const auto taken = [&](const auto& value, const char* kind) -> std::optional<Dao::Value> {
        if (value) return Dao::Value(*value);
        wrong = "\"" + cell.text + "\" is " + kind;
        return std::nullopt;
    };
    if (field.type == Type::Text && (cell.quoted || !cell.text.empty())) return Dao::Value(cell.text);
    if (cell.text.empty()) return field.type == Type::Boolean ? Dao::Value(false) : Dao::Value();
    switch (field.type) {
        case Type::Boolean:
            return taken(ReadMark(cell.text), "neither true nor false");
        case Type::Currency:
            return taken(ReadAmount(cell.text), "no amount");
        case Type::Date:
            return taken(ReadDate(cell.text), "no date");
        default:
            return taken(ReadWhole(cell.text), "no whole number");
    }
}

std::string WriteCell(const Dao::Value& value) {
    if (value.IsNull()) return {};
    if (const auto* flag = std::get_if<bool>(&value.Get())) return *flag ? "true" : "false";
    if (const auto* text = std::get_if<std::string>(&value.Get())) return CsvText(*text);
    return value.ToText();
}

}  // namespace sorvane::Records

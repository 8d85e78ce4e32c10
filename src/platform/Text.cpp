#include "platform/Text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <optional>

#include "platform/Decimal.h"
#include "platform/RunTimeError.h"

namespace sorvane {

namespace {

Decimal WholeNumber(std::string_view text) {
    std::optional<Decimal> number = Decimal::Read(text);
    if (!number) Raise(ErrorNumber::TypeMismatch);
    return *std::move(number);
}

constexpr std::string_view Places = "#0,.";

// The digits on one side of a picture's point: the least number, and behind the point the largest number.
struct Part {
    std::size_t least = 0;
    std::size_t places = 0;
};

// One section of a picture.
struct Section {
    bool showsNumber = false;
    std::string_view before;
    std::string_view behind;
    Part whole;
    Part fraction;
    bool grouped = false;
    bool point = false;
};

void ReadWhole(std::string_view places, Section& section) {
    for (const char place : places) {
        if (place == ',') {
            section.grouped = true;
            continue;
        }
        if (place == '0' || section.whole.least > 0) ++section.whole.least;
    }
}

void ReadFraction(std::string_view places, Section& section) {
    section.fraction.places = places.size();
    section.fraction.least = places.find_last_of('0') + 1;  // npos + 1 is 0
}

Section ReadSection(std::string_view picture) {
    Section section;
    const std::size_t first = picture.find_first_of(Places);
    section.before = picture.substr(0, first);
    section.showsNumber = first != std::string_view::npos;
    if (!section.showsNumber) return section;
    const std::size_t last = picture.find_last_of(Places);
    section.behind = picture.substr(last + 1);
    const std::string_view places = picture.substr(first, last + 1 - first);
    const std::size_t point = places.find('.');
    section.point = point != std::string_view::npos;
    const std::string_view whole = places.substr(0, point);
    const std::string_view fraction = section.point ? places.substr(point + 1) : std::string_view();
    if (whole.find_first_not_of("#0,") != std::string_view::npos ||
        fraction.find_first_not_of("#0") != std::string_view::npos)
        Raise(ErrorNumber::InvalidProcedureCall);
    ReadWhole(whole, section);
    ReadFraction(fraction, section);
    return section;
}

struct Picture {
    Section first;
    std::optional<Section> negative;
};

Picture ReadPicture(std::string_view picture) {
    const std::size_t semicolon = picture.find(';');
    Picture sections{ReadSection(picture.substr(0, semicolon)), {}};
    if (semicolon == std::string_view::npos) return sections;
    const std::string_view second = picture.substr(semicolon + 1);
    if (second.find(';') != std::string_view::npos) Raise(ErrorNumber::InvalidProcedureCall);
    if (!second.empty()) sections.negative = ReadSection(second);
    return sections;
}

// An amount without its sign, rounded to the decimals that a section shows.
struct Rounded {
    std::uint64_t whole;
    std::string fraction;
    bool IsZero() const { return whole == 0 && fraction.find_first_not_of('0') == std::string::npos; }
};

Rounded Round(Currency amount, const Section& section) {
    const std::size_t decimals = std::min(section.fraction.places, Currency::Decimals);
    std::uint64_t unit = 1;  // of the last digit kept, in ten-thousandths
    for (std::size_t place = decimals; place < Currency::Decimals; ++place) unit *= 10;
    const std::uint64_t units = (amount.Magnitude() + unit / 2) / unit;
    const std::uint64_t perWhole = static_cast<std::uint64_t>(Currency::Scale) / unit;
    std::string fraction = std::to_string(perWhole + units % perWhole).substr(1);
    return {units / perWhole, std::move(fraction)};
}

std::string WholeDigits(std::uint64_t whole, const Section& section) {
    std::string digits = whole == 0 ? std::string() : std::to_string(whole);
    digits.insert(0, std::max(section.whole.least, digits.size()) - digits.size(), '0');
    if (!section.grouped) return digits;
    for (std::size_t at = digits.size(); at > 3;) digits.insert(at -= 3, 1, ',');
    return digits;
}

std::string FractionDigits(std::string fraction, const Section& section) {
    fraction.erase(fraction.find_last_not_of('0') + 1);
    fraction.resize(std::max(section.fraction.least, fraction.size()), '0');
    return fraction;
}

std::string Write(const Rounded& amount, const Section& section) {
    std::string text(section.before);
    if (!section.showsNumber) return text;
    text += WholeDigits(amount.whole, section);
    if (section.point) text += '.';
    text += FractionDigits(amount.fraction, section);
    return text.append(section.behind);
}

}  // namespace

double Val(std::string_view text) {
    const std::optional<Decimal> number = Decimal::ReadPrefix(text);
    if (!number) return 0;
    constexpr double Largest = std::numeric_limits<double>::max();
    return std::clamp(number->ToDouble(), -Largest, Largest);
}

double CDbl(std::string_view text) {
    const double value = WholeNumber(text).ToDouble();
    if (std::isinf(value)) Raise(ErrorNumber::Overflow);
    return value;
}

Integer CInt(std::string_view text) {
    using Limits = std::numeric_limits<int>;
    // What is cut off here is too large for 16 bits in any case.
    return Integer(static_cast<int>(
        std::clamp<std::int64_t>(WholeNumber(text).Scaled(0), Limits::min(), Limits::max())));
}

Integer IntegerPart(std::string_view text) {
    const double part = std::floor(CDbl(text));
    if (part < std::numeric_limits<std::int16_t>::min() || part > std::numeric_limits<std::int16_t>::max())
        Raise(ErrorNumber::Overflow);
    return Integer(static_cast<int>(part));
}

std::string Str(long number) { return std::to_string(number); }

int CharactersOf(std::string_view utf8) {
    return static_cast<int>(std::count_if(utf8.begin(), utf8.end(), BeginsCharacter));
}

void AppendNumber(std::string& line, int number, std::string_view separator) {
    constexpr std::size_t Most = std::numeric_limits<int>::digits10 + 2;  // with its sign
    std::array<char, Most> digits;
    const char* const begin = digits.data();
    const char* const end = std::to_chars(digits.data(), digits.data() + Most, number).ptr;
    if (!line.empty()) line += separator;
    line.append(begin, end);
}

std::string Mid(std::string_view text, int start, int length) {
    if (start < 1 || length < 0) Raise(ErrorNumber::InvalidProcedureCall);
    const std::size_t from = std::min(static_cast<std::size_t>(start) - 1, text.size());
    return std::string(text.substr(from, static_cast<std::size_t>(length)));
}

std::string_view TrimBlanks(std::string_view text) {
    constexpr std::string_view Blanks = " \t";
    const std::size_t first = text.find_first_not_of(Blanks);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(Blanks) + 1 - first);
}

std::string Format(Currency amount, std::string_view picture) {
    const Picture sections = ReadPicture(picture);
    const bool negative = amount < Currency();
    if (negative && sections.negative) {
        const Rounded rounded = Round(amount, *sections.negative);
        if (!rounded.IsZero()) return Write(rounded, *sections.negative);
    }
    const Rounded rounded = Round(amount, sections.first);
    const bool minus = negative && !sections.negative && !rounded.IsZero();
    return (minus ? "-" : "") + Write(rounded, sections.first);
}

std::string PadLeft(std::string_view text, int width) {
    const auto wanted = static_cast<std::size_t>(std::max(width, 0));
    std::string padded(std::max(wanted, text.size()) - text.size(), ' ');
    return padded.append(text);
}

}  // namespace sorvane

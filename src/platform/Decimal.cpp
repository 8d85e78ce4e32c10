#include "platform/Decimal.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <system_error>

#include "platform/RunTimeError.h"
#include "platform/Text.h"

namespace sorvane {

namespace {

bool Take(std::string_view& text, char wanted) {
    if (text.empty() || text.front() != wanted) return false;
    text.remove_prefix(1);
    return true;
}

std::string_view TakeDigits(std::string_view& text) {
    const std::string_view digits = text.substr(0, text.find_first_not_of("0123456789"));
    text.remove_prefix(digits.size());
    return digits;
}

bool TakeSign(std::string_view& text) {
    if (Take(text, '-')) return true;
    Take(text, '+');
    return false;
}

void TakeFraction(std::string_view& text, Decimal& number) {
    if (Take(text, '.')) number.fraction = TakeDigits(text);
}

bool HasDigits(const Decimal& number) { return !number.whole.empty() || !number.fraction.empty(); }

bool AnyBut(char digit, std::string_view digits) {
    return digits.find_first_not_of(digit) != std::string_view::npos;
}

// Whether the last digit kept is rounded up.
bool RoundsUp(std::string_view cutOff, bool lastIsOdd) {
    if (cutOff.empty() || cutOff.front() < '5') return false;
    return cutOff.front() > '5' || AnyBut('0', cutOff.substr(1)) || lastIsOdd;
}

}  // namespace

std::optional<Decimal> Decimal::Read(std::string_view text) {
    text = TrimBlanks(text);
    Decimal number;
    number.negative = TakeSign(text);
    number.whole = TakeDigits(text);
    const bool mayGroup = !number.whole.empty() && number.whole.size() <= 3;
    while (mayGroup && Take(text, ',')) {
        const std::string_view group = TakeDigits(text);
        if (group.size() != 3) return std::nullopt;
        number.whole += group;
    }
    TakeFraction(text, number);
    if (!text.empty() || !HasDigits(number)) return std::nullopt;
    return number;
}

std::optional<Decimal> Decimal::ReadPrefix(std::string_view text) {
    text = TrimBlanks(text);
    Decimal number;
    number.negative = TakeSign(text);
    number.whole = TakeDigits(text);
    TakeFraction(text, number);
    if (!HasDigits(number)) return std::nullopt;
    return number;
}

std::int64_t Decimal::Scaled(std::size_t places) const {
    const std::uint64_t largest =
        std::uint64_t{std::numeric_limits<std::int64_t>::max()} + (negative ? 1U : 0U);
    std::string kept = whole + fraction.substr(0, places);
    kept.append(places - std::min(places, fraction.size()), '0');
    std::uint64_t magnitude = 0;
    for (const char digit : kept) {
        const auto units = static_cast<std::uint64_t>(digit - '0');
        if (magnitude > (largest - units) / 10) Raise(ErrorNumber::Overflow);
        magnitude = magnitude * 10 + units;
    }
    if (fraction.size() > places && RoundsUp(std::string_view(fraction).substr(places), magnitude % 2 != 0)) {
        if (magnitude == largest) Raise(ErrorNumber::Overflow);
        ++magnitude;
    }
    return static_cast<std::int64_t>(negative ? 0 - magnitude : magnitude);
}

double Decimal::ToDouble() const {
    const std::string digits = whole + '.' + fraction;
    double value = 0;
    const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (result.ec == std::errc::result_out_of_range)
        value = AnyBut('0', whole) ? std::numeric_limits<double>::infinity() : 0;
    return negative ? -value : value;
}

}  // namespace sorvane

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

#include "platform/RunTimeError.h"
#include "platform/Text.h"
#include "store/dao/Column.h"

namespace sorvane::Dao {

namespace {

bool SameWord(std::string_view text, std::string_view lower) {
    return std::equal(text.begin(), text.end(), lower.begin(), lower.end(),
                      [](char letter, char small) { return (letter | 0x20) == small; });
}

std::string PlainText(double number) {
    std::array<char, 400> digits{};
    const auto end =
        std::to_chars(digits.data(), digits.data() + digits.size(), number + 0.0, std::chars_format::fixed);
    return {digits.data(), end.ptr};
}

double AsNumber(const Value::Held& held) {
    struct Reader {
        double operator()(std::monostate) const { Raise(ErrorNumber::InvalidUseOfNull); }
        double operator()(bool flag) const { return flag ? True : 0; }
        double operator()(std::int64_t number) const { return static_cast<double>(number); }
        double operator()(double number) const { return number; }
        double operator()(Currency amount) const {
            return static_cast<double>(amount.TenThousandths()) / static_cast<double>(Currency::Scale);
        }
        double operator()(Date date) const { return date.Days(); }
        double operator()(const std::string& text) const { return CDbl(text); }
    };
    return std::visit(Reader{}, held);
}

// Rounds half to even into low to high.
int Rounded(double number, int low, int high) {
    const double whole = std::nearbyint(number);
    if (!(whole >= low && whole <= high)) Raise(ErrorNumber::Overflow);
    return static_cast<int>(whole);
}

}  // namespace

int Value::ToInt() const {
    if (const auto* number = std::get_if<std::int64_t>(&held_)) {
        if (*number < std::numeric_limits<int>::min() || *number > std::numeric_limits<int>::max())
            Raise(ErrorNumber::Overflow);
        return static_cast<int>(*number);
    }
    return Rounded(AsNumber(held_), std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
}

Integer Value::ToInteger() const { return ToInt(); }

bool Value::ToBool() const {
    if (const auto* flag = std::get_if<bool>(&held_)) return *flag;
    if (const auto* text = std::get_if<std::string>(&held_)) {
        if (SameWord(*text, "true")) return true;
        if (SameWord(*text, "false")) return false;
    }
    return AsNumber(held_) != 0;
}

Currency Value::ToCurrency() const {
    if (const auto* amount = std::get_if<Currency>(&held_)) return *amount;
    if (const auto* number = std::get_if<std::int64_t>(&held_)) return Currency::FromInt(*number);
    if (const auto* text = std::get_if<std::string>(&held_)) return Currency::FromText(*text);
    const auto amount = AmountOf(AsNumber(held_));
    if (!amount) Raise(ErrorNumber::Overflow);
    return *amount;
}

Date Value::ToDate() const {
    if (const auto* date = std::get_if<Date>(&held_)) return *date;
    if (const auto* text = std::get_if<std::string>(&held_)) {
        Date date;
        if (Ignoring({ErrorNumber::TypeMismatch, ErrorNumber::InvalidProcedureCall},
                     [&] { date = Date::FromText(*text); }))
            return date;
    }
    const double days = AsNumber(held_);
    if (!IsDate(days)) Raise(ErrorNumber::Overflow);
    return Date::FromDays(days);
}

std::string Value::ToText() const {
    struct Writer {
        std::string operator()(std::monostate) const { Raise(ErrorNumber::InvalidUseOfNull); }
        std::string operator()(bool flag) const { return flag ? "True" : "False"; }
        std::string operator()(std::int64_t number) const { return std::to_string(number); }
        std::string operator()(double number) const { return PlainText(number); }
        std::string operator()(Currency amount) const { return amount.ToText(); }
        std::string operator()(Date date) const { return date.ToText(); }
        std::string operator()(const std::string& text) const { return text; }
    };
    return std::visit(Writer{}, held_);
}

}  // namespace sorvane::Dao

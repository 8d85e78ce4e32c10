#include "platform/Date.h"

#include <array>
#include <chrono>
#include <cstdio>

namespace sorvane {

namespace {

namespace chrono = std::chrono;

// 1 January 1970, the first day of the library's calendar.
constexpr long SystemDay = 25'569;

// The library's months and days keep only the low bits of a number.
bool IsDate(int year, int month, int day) {
    if (year < 1 || year > 9999) return false;
    const chrono::year_month_day date(chrono::year(year), chrono::month(static_cast<unsigned>(month)),
                                      chrono::day(static_cast<unsigned>(day)));
    return date.ok() && int(unsigned(date.month())) == month && int(unsigned(date.day())) == day;
}

double DaysOf(int year, int month, int day) {
    const chrono::sys_days days = chrono::year(year) / month / day;
    return static_cast<double>(days.time_since_epoch().count() + SystemDay);
}

// The number written in these digits; -1 when one of the characters is no digit.
int NumberOf(std::string_view digits) {
    int number = 0;
    for (const char digit : digits) {
        if (digit < '0' || digit > '9') return -1;
        number = number * 10 + (digit - '0');
    }
    return number;
}

}  // namespace

Date Date::FromYmd(int year, int month, int day) {
    if (!IsDate(year, month, day)) Raise(ErrorNumber::InvalidProcedureCall);
    return FromDays(DaysOf(year, month, day));
}

Date Date::FromText(std::string_view text) {
    if (text.size() != 10 || text[4] != '-' || text[7] != '-') Raise(ErrorNumber::TypeMismatch);
    const int year = NumberOf(text.substr(0, 4));
    const int month = NumberOf(text.substr(5, 2));
    const int day = NumberOf(text.substr(8, 2));
    if (!IsDate(year, month, day)) Raise(ErrorNumber::TypeMismatch);
    return FromDays(DaysOf(year, month, day));
}

Date::Ymd Date::ToYmd() const {
    const chrono::year_month_day ymd = chrono::sys_days(chrono::days(Day() - SystemDay));
    return {int(ymd.year()), static_cast<int>(unsigned(ymd.month())), static_cast<int>(unsigned(ymd.day()))};
}

std::string Date::ToText() const {
    const Ymd ymd = ToYmd();
    std::array<char, 40> text{};
    const int length =
        std::snprintf(text.data(), text.size(), "%04d-%02d-%02d", ymd.year, ymd.month, ymd.day);
    return std::string(text.data(), static_cast<std::size_t>(length));
}

}  // namespace sorvane

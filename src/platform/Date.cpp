#include "platform/Date.h"

#include <array>
#include <cstdio>

namespace sorvane {

namespace {

bool IsLeapYear(long year) { return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0); }

// Days from 1 January 0001 to 1 January of the year.
long DaysBeforeYear(long year) {
    const long years = year - 1;
    return 365 * years + years / 4 - years / 100 + years / 400;
}

// Days from 1 January to the first of the month; month 13 is the length of the year.
long DaysBeforeMonth(long year, int month) {
    constexpr std::array<int, 13> Before = {0, 31, 59, 90, 120, 151, 181, 212, 243, 273, 304, 334, 365};
    return Before[static_cast<std::size_t>(month - 1)] + (month > 2 && IsLeapYear(year) ? 1 : 0);
}

long DaysOfMonth(long year, int month) {
    return DaysBeforeMonth(year, month + 1) - DaysBeforeMonth(year, month);
}

bool IsDate(int year, int month, int day) {
    return year >= 1 && year <= 9999 && month >= 1 && month <= 12 && day >= 1 &&
           day <= DaysOfMonth(year, month);
}

double DaysOf(int year, int month, int day) {
    return static_cast<double>(Date::FirstDay + DaysBeforeYear(year) + DaysBeforeMonth(year, month) + day -
                               1);
}

// The number that these digits write; -1 when there is another sign among them.
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
    long days = Day() - FirstDay;
    // 400 years have 146,097 days, so this year is the right one or its neighbour.
    long year = days * 400 / 146'097 + 1;
    while (DaysBeforeYear(year) > days) --year;
    while (DaysBeforeYear(year + 1) <= days) ++year;
    days -= DaysBeforeYear(year);
    int month = 1;
    while (DaysBeforeMonth(year, month + 1) <= days) ++month;
    days -= DaysBeforeMonth(year, month);
    return {static_cast<int>(year), month, static_cast<int>(days) + 1};
}

std::string Date::ToText() const {
    const Ymd ymd = ToYmd();
    std::array<char, 40> text{};
    const int length =
        std::snprintf(text.data(), text.size(), "%04d-%02d-%02d", ymd.year, ymd.month, ymd.day);
    return std::string(text.data(), static_cast<std::size_t>(length));
}

}  // namespace sorvane

// Dates: days since 30 December 1899.
#pragma once

#include <cmath>
#include <compare>
#include <string>
#include <string_view>

#include "platform/RunTimeError.h"

namespace sorvane {

// A date value held as a double: whole days since 30 December 1899, the fraction the time of day.
// Dates compare by whole day. Any double can be held; outside 1 January 0001 to 31 December 9999 it is no
// date, and whatever asks for its day raises 6.
class Date {
  public:
    static constexpr long FirstDay = -693'593;
    static constexpr long LastDay = 2'958'465;

    constexpr Date() = default;
    static constexpr Date FromDays(double days) {
        Date date;
        date.days_ = days;
        return date;
    }
    // Proleptic Gregorian; year 1 to 9999, month 1 to 12, day 1 to 31. A date that does not exist raises 5.
    static Date FromYmd(int year, int month, int day);
    // Reads the short form that ToText writes ("2026-11-21"); anything else raises 13.
    static Date FromText(std::string_view text);

    constexpr double Days() const { return days_; }
    // Whether this is a date at all.
    constexpr bool Exists() const { return days_ >= FirstDay && days_ < LastDay + 1; }
    long Day() const {
        if (!Exists()) Raise(ErrorNumber::Overflow);
        return static_cast<long>(std::floor(days_));
    }
    struct Ymd {
        int year, month, day;
    };
    Ymd ToYmd() const;
    // The one short form of the program, with a four-digit year: "2026-11-21".
    std::string ToText() const;

    friend bool operator==(Date a, Date b) { return a.Day() == b.Day(); }
    friend auto operator<=>(Date a, Date b) { return a.Day() <=> b.Day(); }

  private:
    double days_ = 0;
};

}  // namespace sorvane

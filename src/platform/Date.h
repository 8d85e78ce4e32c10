// Dates: days since 30 December 1899.
#pragma once

#include <cmath>
#include <compare>
#include <string>
#include <string_view>

namespace sorvane {

// A date value held as a double: whole days since 30 December 1899, the fraction the time of day.
// Dates compare by whole day.
class Date {
  public:
    constexpr Date() = default;
    static constexpr Date FromDays(double days) {
        Date date;
        date.days_ = days;
        return date;
    }
    // Proleptic Gregorian; month 1 to 12, day 1 to 31. A date that does not exist raises 5.
    static Date FromYmd(int year, int month, int day);
    // Reads the short form that ToText writes ("2026-11-21"); anything else raises 13.
    static Date FromText(std::string_view text);

    constexpr double Days() const { return days_; }
    long Day() const { return static_cast<long>(std::floor(days_)); }
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

#include "platform/Date.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>

namespace sorvane {
namespace {

bool operator==(Date::Ymd a, Date::Ymd b) { return a.year == b.year && a.month == b.month && a.day == b.day; }

// The calendar a second time, told by counting on from day to day.
struct Calendar {
    int year, month, day;
    bool Leap() const { return year % 400 == 0 || (year % 4 == 0 && year % 100 != 0); }
    int MonthLength() const {
        if (month == 2) return Leap() ? 29 : 28;
        return month == 4 || month == 6 || month == 9 || month == 11 ? 30 : 31;
    }
    void Next() {
        if (++day <= MonthLength()) return;
        day = 1;
        if (++month <= 12) return;
        month = 1;
        ++year;
    }
    std::string Text() const {
        const auto padded = [](int number, std::size_t width) {
            std::string text = std::to_string(number);
            return std::string(width - text.size(), '0') + text;
        };
        return padded(year, 4) + "-" + padded(month, 2) + "-" + padded(day, 2);
    }
};

TEST(DateTest, EachDayFrom1900To2100FollowsTheOneBefore) {
    Calendar calendar{1900, 1, 1};
    for (long day = 2; calendar.year <= 2100; ++day, calendar.Next()) {
        const Date date = Date::FromYmd(calendar.year, calendar.month, calendar.day);
        ASSERT_EQ(date.Days(), static_cast<double>(day)) << calendar.Text();
        ASSERT_EQ(date.Day(), day);
        ASSERT_TRUE((date.ToYmd() == Date::Ymd{calendar.year, calendar.month, calendar.day}))
            << calendar.Text();
        ASSERT_EQ(date.ToText(), calendar.Text());
        ASSERT_EQ(Date::FromText(calendar.Text()).Days(), date.Days());
    }
}

TEST(DateTest, EachFirstOfMonthOfAllYearsComesBack) {
    long day = Date::FirstDay;
    for (Calendar calendar{1, 1, 1}; calendar.year <= 9999; ++calendar.month) {
        if (calendar.month == 13) {
            calendar.month = 0;
            ++calendar.year;
            continue;
        }
        const Date date = Date::FromYmd(calendar.year, calendar.month, 1);
        ASSERT_EQ(date.Day(), day) << calendar.Text();
        ASSERT_EQ(Date::FromDays(static_cast<double>(day)).ToText(), calendar.Text());
        day += calendar.MonthLength();
    }
    EXPECT_EQ(day, Date::LastDay + 1);
}

TEST(DateTest, CountsFrom30December1899) {
    EXPECT_EQ(Date().ToText(), "1899-12-30");
    EXPECT_EQ(Date::FromYmd(1899, 12, 29).Days(), -1);
    EXPECT_EQ(Date::FromYmd(1970, 1, 1).Days(), 25'569);
    EXPECT_EQ(Date::FromDays(1).ToText(), "1899-12-31");
    EXPECT_EQ(Date::FromDays(45).ToText(), "1900-02-13");
}

TEST(DateTest, DatesThatDoNotExistRaiseInvalidProcedureCall) {
    constexpr std::array<std::array<int, 3>, 19> None = {{{2026, 0, 1},
                                                          {2026, 13, 1},
                                                          {2026, -1, 1},
                                                          {2026, 1, 0},
                                                          {2026, 1, 32},
                                                          {2026, 4, 31},
                                                          {2026, 2, 29},
                                                          {2024, 2, 30},
                                                          {1900, 2, 29},
                                                          {2100, 2, 29},
                                                          {2026, 1, -1},
                                                          {0, 12, 31},
                                                          {-1, 1, 1},
                                                          {10'000, 1, 1},
                                                          {std::numeric_limits<int>::max(), 1, 1},
                                                          {65'536 + 2026, 1, 1},
                                                          {2026, 256 + 1, 1},
                                                          {2026, 1, 256 + 1},
                                                          {2026, std::numeric_limits<int>::min(), 1}}};
    for (const auto& [year, month, day] : None)
        EXPECT_EQ(ErrorOf([y = year, m = month, d = day] { Date::FromYmd(y, m, d); }), 5)
            << year << ' ' << month << ' ' << day;
    EXPECT_EQ(Date::FromYmd(2000, 2, 29).ToText(), "2000-02-29");
    EXPECT_EQ(Date::FromYmd(2024, 2, 29).ToText(), "2024-02-29");
}

TEST(DateTest, TextInAnotherFormIsATypeMismatch) {
    for (const std::string_view text :
         {"", "2026", "2026-1-01", "2026-01-1", "2026/01/01", "01-01-2026", " 2026-01-01", "2026-01-01 ",
          "2026-13-01", "2026-00-01", "2026-02-29", "2026-01-00", "0000-01-01", "20a6-01-01", "2026-+1-01",
          "2026-01- 1", "2026-01-01T00:00", "-026-01-01"})
        EXPECT_EQ(ErrorOf([&] { Date::FromText(text); }), 13) << text;
}

TEST(DateTest, ComparesByWholeDay) {
    const Date morning = Date::FromDays(46'347.25);
    const Date evening = Date::FromDays(46'347.999);
    EXPECT_TRUE(morning == evening);
    EXPECT_FALSE(morning < evening);
    EXPECT_EQ(morning.ToText(), evening.ToText());
    EXPECT_LT(evening, Date::FromDays(46'348));
    EXPECT_TRUE(Date::FromDays(-0.5) == Date::FromDays(-1)) << "before the first day time still runs forward";
}

TEST(DateTest, NumberThatIsNoDateRaisesOverflow) {
    using Limits = std::numeric_limits<double>;
    for (const double days : {Limits::quiet_NaN(), Limits::infinity(), -Limits::infinity(), Limits::max(),
                              Limits::lowest(), 2'958'466.0, -693'593.5}) {
        const Date date = Date::FromDays(days);
        EXPECT_FALSE(date.Exists()) << days;
        EXPECT_EQ(ErrorOf([&] { date.Day(); }), 6) << days;
        EXPECT_EQ(ErrorOf([&] { date.ToText(); }), 6) << days;
        EXPECT_EQ(ErrorOf([&] { (void)(date == Date()); }), 6) << days;
    }
    EXPECT_EQ(Date::FromDays(2'958'465.999).ToText(), "9999-12-31");
    EXPECT_EQ(Date::FromDays(-693'593).ToText(), "0001-01-01");
}

}  // namespace
}  // namespace sorvane

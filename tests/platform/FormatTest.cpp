#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <string>
#include <string_view>

#include "platform/RunTimeError.h"
#include "platform/Text.h"

namespace sorvane {
namespace {

constexpr std::string_view Total = "###,###,##0.00";
constexpr std::string_view SpentRow = "###,###,##0.00;(###,###,##0.00)";
constexpr std::string_view WonRow = "###,###,###.00;(###,###,###.00)";
constexpr std::string_view Gain = "##,###,##0.00";
constexpr std::string_view Loss = "##,###,##0.00;(##,###,##0.00)";
constexpr std::string_view HalfDollars = "###.#0";
constexpr std::string_view Dollars = "###.00";

std::string Show(std::string_view amount, std::string_view picture) {
    return Format(Currency::FromText(amount), picture);
}

TEST(FormatTest, EachPictureShowsEachAmountAsItStands) {
    struct Row {
        std::string_view amount, total, spentRow, wonRow, dollars;
    };
    constexpr Row Rows[] = {
        {"0", "0.00", "0.00", ".00", ".00"},
        {"0.5", "0.50", "0.50", ".50", ".50"},
        {"0.05", "0.05", "0.05", ".05", ".05"},
        {"5", "5.00", "5.00", "5.00", "5.00"},
        {"10", "10.00", "10.00", "10.00", "10.00"},
        {"999.99", "999.99", "999.99", "999.99", "999.99"},
        {"999.995", "1,000.00", "1,000.00", "1,000.00", "1000.00"},
        {"999.9949", "999.99", "999.99", "999.99", "999.99"},
        {"1234567.891", "1,234,567.89", "1,234,567.89", "1,234,567.89", "1234567.89"},
        {"1234567890.12", "1,234,567,890.12", "1,234,567,890.12", "1,234,567,890.12", "1234567890.12"},
        {"-0.5", "-0.50", "(0.50)", "(.50)", "-.50"},
        {"-5", "-5.00", "(5.00)", "(5.00)", "-5.00"},
        {"-999.995", "-1,000.00", "(1,000.00)", "(1,000.00)", "-1000.00"},
        {"-1234567.891", "-1,234,567.89", "(1,234,567.89)", "(1,234,567.89)", "-1234567.89"},
    };
    for (const Row& row : Rows) {
        SCOPED_TRACE(row.amount);
        EXPECT_EQ(Show(row.amount, Total), row.total);
        EXPECT_EQ(Show(row.amount, Gain), row.total);
        EXPECT_EQ(Show(row.amount, SpentRow), row.spentRow);
        EXPECT_EQ(Show(row.amount, Loss), row.spentRow);
        EXPECT_EQ(Show(row.amount, WonRow), row.wonRow);
        EXPECT_EQ(Show(row.amount, HalfDollars), row.dollars);
        EXPECT_EQ(Show(row.amount, Dollars), row.dollars);
    }
}

TEST(FormatTest, WinBelowADollarHasNoLeadingZeroButSpentHas) {
    EXPECT_EQ(Show("0.50", WonRow), ".50");
    EXPECT_EQ(Show("0.50", SpentRow), "0.50");
}

TEST(FormatTest, RoundsHalfAwayFromZeroAndNeverShowsANegativeZero) {
    EXPECT_EQ(Show("0.005", Total), "0.01");
    EXPECT_EQ(Show("0.0049", Total), "0.00");
    EXPECT_EQ(Show("0.015", Total), "0.02");
    EXPECT_EQ(Show("-0.005", Total), "-0.01");
    EXPECT_EQ(Show("-0.005", SpentRow), "(0.01)");
    EXPECT_EQ(Show("-0.0049", Total), "0.00");
    EXPECT_EQ(Show("-0.0049", SpentRow), "0.00");
    EXPECT_EQ(Show("-0.0049", WonRow), ".00");
}

// Cents told by counting: each ten-thousandth of a few dollars, against the plain arithmetic of cents.
TEST(FormatTest, EachTenThousandthAroundZeroRoundsToItsCent) {
    for (int count = -30'000; count <= 30'000; ++count) {
        const int cents = (std::abs(count) + 50) / 100;
        const std::string hundredths = std::to_string(100 + cents % 100).substr(1);
        const std::string positive = std::to_string(cents / 100) + "." + hundredths;
        const bool negative = count < 0 && cents > 0;
        const Currency amount = Currency::FromTenThousandths(count);
        ASSERT_EQ(Format(amount, Total), (negative ? "-" : "") + positive) << count;
        ASSERT_EQ(Format(amount, SpentRow), negative ? "(" + positive + ")" : positive) << count;
    }
}

TEST(FormatTest, LargestAmountsKeepAllDigits) {
    const Currency largest = Currency::FromTenThousandths(std::numeric_limits<std::int64_t>::max());
    const Currency smallest = Currency::FromTenThousandths(std::numeric_limits<std::int64_t>::min());
    EXPECT_EQ(Format(largest, Total), "922,337,203,685,477.58");
    EXPECT_EQ(Format(smallest, Total), "-922,337,203,685,477.58");
    EXPECT_EQ(Format(smallest, "0.0000;(0.0000)"), "(922337203685477.5808)");
    EXPECT_EQ(Format(largest, "#"), "922337203685478");
}

TEST(FormatTest, PicturesInGeneral) {
    EXPECT_EQ(Show("5", "0"), "5");
    EXPECT_EQ(Show("0", "#"), "");
    EXPECT_EQ(Show("0", "#.#"), ".");
    EXPECT_EQ(Show("5.1", "#.####"), "5.1");
    EXPECT_EQ(Show("5.1", "0.0##"), "5.1");
    EXPECT_EQ(Show("5", "0.0##"), "5.0");
    EXPECT_EQ(Show("5.1234", "0.000000"), "5.123400");
    EXPECT_EQ(Show("5.1234", "0.######"), "5.1234");
    EXPECT_EQ(Show("7", "000"), "007");
    EXPECT_EQ(Show("7", "#0#"), "07");
    EXPECT_EQ(Show("7", "0,000"), "0,007");
    EXPECT_EQ(Show("1234567", "#,#"), "1,234,567");
    EXPECT_EQ(Show("0.5", ".00"), ".50");
    EXPECT_EQ(Show("12", "$0.00 each"), "$12.00 each");
    EXPECT_EQ(Show("-12", "$0.00"), "-$12.00");
    EXPECT_EQ(Show("2.5", "0"), "3");
    EXPECT_EQ(Show("-12", "0.00;"), "-12.00") << "an empty second section is none";
    EXPECT_EQ(Show("-12", "0;loss"), "loss");
    EXPECT_EQ(Show("-1.26", "0.00;(0.0)"), "(1.3)");
}

TEST(FormatTest, WhatIsNoPictureIsInvalid) {
    for (const std::string_view picture : {"0.0.0", "0.0,0", "0-0", "#a#", "0;0;0", "0;a;b", "0.0x0"})
        EXPECT_EQ(ErrorOf([&] { Show("1", picture); }), 5) << picture;
}

}  // namespace
}  // namespace sorvane

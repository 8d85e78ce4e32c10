#include "platform/Currency.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <limits>
#include <random>
#include <string>

#include "platform/RunTimeError.h"

namespace sorvane {
namespace {

__extension__ using Wide = __int128;

constexpr std::int64_t Largest = std::numeric_limits<std::int64_t>::max();
constexpr std::int64_t Smallest = std::numeric_limits<std::int64_t>::min();
constexpr std::uint64_t Seed = 20'261'121;

Currency Of(std::int64_t count) { return Currency::FromTenThousandths(count); }
std::int64_t Read(std::string_view text) { return Currency::FromText(text).TenThousandths(); }
int ReadError(std::string_view text) {
    return ErrorOf([&] { Currency::FromText(text); });
}

// Numbers of all sizes, with those at the borders more often than chance would draw them.
class Numbers {
  public:
    std::int64_t Draw() {
        constexpr std::array<std::int64_t, 9> Corners = {
            0, 1, -1, Largest, Smallest, Largest - 1, Smallest + 1, 10'000, -10'000};
        const std::uint64_t bits = generator_();
        if (bits % 8 == 0) return Corners.at(bits / 8 % Corners.size());
        return static_cast<std::int64_t>(generator_()) >> (bits % 64);
    }

  private:
    std::mt19937_64 generator_{Seed};
};

// The exact result, or error 6 where it doesn't fit.
template <class Work>
void ExpectExactly(Wide exact, Work work, std::int64_t a, std::int64_t b) {
    SCOPED_TRACE(std::to_string(a) + " and " + std::to_string(b) + ", seed " + std::to_string(Seed));
    Currency result;
    const int error = ErrorOf([&] { result = work(); });
    if (exact < Smallest || exact > Largest) ASSERT_EQ(error, 6);
    else ASSERT_TRUE(error == 0 && result.TenThousandths() == exact);
}

TEST(CurrencyTest, ArithmeticIsExactOrOverflows) {
    Numbers numbers;
    for (int round = 0; round < 200'000 && !::testing::Test::HasFailure(); ++round) {
        const std::int64_t a = numbers.Draw();
        const std::int64_t b = numbers.Draw();
        const int factor =
            static_cast<int>(static_cast<std::uint32_t>(static_cast<std::uint64_t>(numbers.Draw())));
        ExpectExactly(
            Wide{a} + b, [&] { return Of(a) + Of(b); }, a, b);
        ExpectExactly(
            Wide{a} - b, [&] { return Of(a) - Of(b); }, a, b);
        ExpectExactly(
            Wide{a} * factor, [&] { return Of(a) * factor; }, a, factor);
        ExpectExactly(
            Wide{a} * 10'000, [&] { return Currency::FromInt(a); }, a, 10'000);
    }
}

TEST(CurrencyTest, RefusedSumLeavesTheAmount) {
    Currency amount = Of(Largest);
    EXPECT_EQ(ErrorOf([&] { amount += Of(1); }), 6);
    EXPECT_EQ(amount.TenThousandths(), Largest);
    amount += Of(-1);
    EXPECT_EQ(amount.TenThousandths(), Largest - 1);
}

TEST(CurrencyTest, TextComesBackAsTheSameAmount) {
    Numbers numbers;
    for (int round = 0; round < 100'000; ++round) {
        const std::int64_t count = numbers.Draw();
        ASSERT_EQ(Read(Of(count).ToText()), count) << Of(count).ToText() << ", seed " << Seed;
    }
}

TEST(CurrencyTest, EachAmountOfTwoDollarsWritesNoNeedlessZero) {
    for (int count = -20'000; count <= 20'000; ++count) {
        const std::string text = Of(count).ToText();
        ASSERT_EQ(Read(text), count) << text;
        ASSERT_EQ(text.find('.') == std::string::npos, count % 10'000 == 0) << text;
        ASSERT_FALSE(text.find('.') != std::string::npos && (text.back() == '0' || text.back() == '.'))
            << text;
    }
    EXPECT_EQ(Currency::FromInt(5).ToText(), "5");
    EXPECT_EQ(Of(5'000).ToText(), "0.5");
    EXPECT_EQ(Of(-123'456).ToText(), "-12.3456");
    EXPECT_EQ(Of(-1).ToText(), "-0.0001");
    EXPECT_EQ(Currency().ToText(), "0");
    EXPECT_EQ(Of(Largest).ToText(), "922337203685477.5807");
    EXPECT_EQ(Of(Smallest).ToText(), "-922337203685477.5808");
}

TEST(CurrencyTest, BlanksSignsCommasAndPointConvert) {
    EXPECT_EQ(Read("1,000.50"), 10'005'000);
    EXPECT_EQ(Read(" 5.00"), 50'000);
    EXPECT_EQ(Read("\t5 "), 50'000);
    EXPECT_EQ(Read("+.5"), 5'000);
    EXPECT_EQ(Read("-7."), -70'000);
    EXPECT_EQ(Read("0"), 0);
    EXPECT_EQ(Read("-0"), 0);
    EXPECT_EQ(Read("12,345,678.9"), 123'456'789'000);
    EXPECT_EQ(Read("-999,999"), -9'999'990'000);
    EXPECT_EQ(Read(std::string(500, '0') + "3." + std::string(500, '0')), 30'000);
}

TEST(CurrencyTest, TextThatIsNoAmountIsATypeMismatch) {
    for (const std::string_view text :
         {"",    " ",  ".",  "-",   "+",   "-.",    "12abc", "abc", "1.2.3", "1..2", "- 5",
          "--5", "5-", "$5", "(5)", "1e3", "1 000", "&H10",  "inf", "nan",   "0x10", "five"})
        EXPECT_EQ(ReadError(text), 13) << text;
    EXPECT_EQ(ReadError(std::string_view("5\0", 2)), 13);
}

TEST(CurrencyTest, CommasOnlyWhereThousandsPart) {
    for (const std::string_view text : {",", ",5", "5,", "1,50", "1,5000", "1234,567", "1,,000", "1,000,",
                                        "1,00,000", "1.000,000", ",000", "1,000,00", "-,100"})
        EXPECT_EQ(ReadError(text), 13) << text;
}

TEST(CurrencyTest, MoreThanFourDecimalsRoundHalfToEven) {
    EXPECT_EQ(Read("0.00005"), 0);
    EXPECT_EQ(Read("0.00015"), 2);
    EXPECT_EQ(Read("0.00025"), 2);
    EXPECT_EQ(Read("-0.00035"), -4);
    EXPECT_EQ(Read("0.000050000000000000000000000000001"), 1);
    EXPECT_EQ(Read("0.00004999999999999999999999999999"), 0);
    EXPECT_EQ(Read("0.99995"), 10'000);
    EXPECT_EQ(Read("0.123412345"), 1'234);
    for (int count = 0; count < 10'000; ++count) {
        const std::string text =
            Of(10'000 + count).ToText() + std::string(count % 10'000 == 0 ? ".0000" : "");
        const std::string halfway = text + std::string(6 - std::min<std::size_t>(text.size(), 6), '0') + "5";
        ASSERT_EQ(Read(halfway), 10'000 + count + count % 2) << halfway;
    }
}

TEST(CurrencyTest, AmountsBeyondTheRangeOverflow) {
    EXPECT_EQ(Read("922337203685477.5807"), Largest);
    EXPECT_EQ(Read("-922337203685477.5808"), Smallest);
    EXPECT_EQ(Read("922337203685477.58074999"), Largest);
    EXPECT_EQ(Read("-922337203685477.58085"), Smallest) << "half to even stays";
    for (const std::string_view text :
         {"922337203685477.5808", "922337203685477.58075", "-922337203685477.5809", "-922337203685477.580851",
          "99999999999999999999", "-99999999999999999999"})
        EXPECT_EQ(ReadError(text), 6) << text;
    EXPECT_EQ(ReadError(std::string(1'000, '9')), 6);
}

TEST(CurrencyTest, ComparesByAmount) {
    EXPECT_LT(Of(-1), Currency());
    EXPECT_EQ(Currency::FromInt(2), Of(20'000));
    EXPECT_GT(Of(Largest), Of(Smallest));
    EXPECT_EQ(Of(Smallest).Magnitude(), std::uint64_t{1} << 63);
    EXPECT_EQ(Of(-7).Magnitude(), 7U);
}

}  // namespace
}  // namespace sorvane

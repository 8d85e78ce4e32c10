#include "platform/Text.h"

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <limits>
#include <locale>
#include <string>
#include <vector>

#include "platform/RunTimeError.h"

namespace sorvane {
namespace {

TEST(ValTest, TakesTheNumberThatTheTextBeginsWith) {
    EXPECT_EQ(Val("12abc"), 12);
    EXPECT_EQ(Val("  7"), 7);
    EXPECT_EQ(Val("-3.5x"), -3.5);
    EXPECT_EQ(Val("+4"), 4);
    EXPECT_EQ(Val(".5."), .5);
    EXPECT_EQ(Val("2."), 2);
    EXPECT_EQ(Val("1,000"), 1) << "a comma ends the number";
    EXPECT_EQ(Val("1e5"), 1) << "no powers of ten";
    EXPECT_EQ(Val("0.1"), 0.1);
    for (const std::string_view none : {"", " ", "abc", "-", ".", "-.", "$5", "--5", "a1"})
        EXPECT_EQ(Val(none), 0) << none;
}

TEST(ValTest, NeverRaisesHoweverLong) {
    const std::string nines(500, '9');
    EXPECT_EQ(Val(nines), std::numeric_limits<double>::max());
    EXPECT_EQ(Val("-" + nines), std::numeric_limits<double>::lowest());
    EXPECT_EQ(Val("0." + std::string(500, '0') + "1"), 0);
}

TEST(CDblTest, ReadsTheWholeText) {
    EXPECT_EQ(CDbl(" 1,000.25 "), 1000.25);
    EXPECT_EQ(CDbl("-0.5"), -0.5);
    EXPECT_EQ(CDbl("0.1"), 0.1);
    EXPECT_EQ(CDbl("0." + std::string(500, '0') + "1"), 0);
    for (const std::string_view none : {"", " ", "12abc", ".", "1e5", "1,50", "inf", "nan"})
        EXPECT_EQ(ErrorOf([&] { CDbl(none); }), 13) << none;
    EXPECT_EQ(ErrorOf([] { CDbl(std::string(500, '9')); }), 6);
}

TEST(CIntTest, EachWholeNumberOf16BitsConverts) {
    for (int value = -32'768; value <= 32'767; ++value) ASSERT_EQ(int{CInt(Str(value))}, value);
    for (const std::string_view text :
         {"32768", "-32769", "65536", "4294967296", "99999999999999999999", "32767.5"})
        EXPECT_EQ(ErrorOf([&] { CInt(text); }), 6) << text;
}

TEST(CIntTest, FractionsRoundHalfToEven) {
    for (int value = 0; value <= 32'766; ++value) {
        const std::string whole = Str(value);
        const int even = value + value % 2;
        ASSERT_EQ(int{CInt(whole + ".5")}, even) << whole;
        ASSERT_EQ(int{CInt("-" + whole + ".5")}, -even) << whole;
        ASSERT_EQ(int{CInt(whole + ".49")}, value) << whole;
        ASSERT_EQ(int{CInt(whole + ".500000000000000000000000001")}, value + 1) << whole;
    }
    EXPECT_EQ(int{CInt("32767.4999999999999999999999")}, 32'767);
    EXPECT_EQ(int{CInt("-32768.5")}, -32'768);
    EXPECT_EQ(int{CInt(".5")}, 0);
}

TEST(CIntTest, LettersAreATypeMismatch) {
    for (const std::string_view none : {"", " ", "abc", "5a", "1 2", ".", "-"})
        EXPECT_EQ(ErrorOf([&] { CInt(none); }), 13) << none;
    EXPECT_EQ(int{CInt(" 07 ")}, 7);
    EXPECT_EQ(int{CInt("1,000")}, 1'000);
}

TEST(IntegerPartTest, RoundsDownTo16Bits) {
    EXPECT_EQ(int{IntegerPart("32767.9")}, 32'767);
    EXPECT_EQ(int{IntegerPart("-32768")}, -32'768);
    EXPECT_EQ(int{IntegerPart("-0.5")}, -1);
    EXPECT_EQ(int{IntegerPart(" 1,000.99")}, 1'000);
    for (const std::string_view text : {"32768", "-32768.1", "65536", "1000000000000", "-1000000000000"})
        EXPECT_EQ(ErrorOf([&] { IntegerPart(text); }), 6) << text;
    EXPECT_EQ(ErrorOf([] { IntegerPart("one"); }), 13);
}

TEST(StrTest, WritesPlainDigits) {
    EXPECT_EQ(Str(0), "0");
    EXPECT_EQ(Str(-5), "-5");
    EXPECT_EQ(Str(1'234'567), "1234567");
}

TEST(MidTest, TakesCharactersFromAOneBasedPosition) {
    EXPECT_EQ(Mid("123456", 1, 1), "1");
    EXPECT_EQ(Mid("123456", 5, 2), "56");
    EXPECT_EQ(Mid("123456", 6, 5), "6");
    EXPECT_EQ(Mid("123456", 7, 1), "");
    EXPECT_EQ(Mid("123456", 100, 1), "");
    EXPECT_EQ(Mid("123456", 2, 0), "");
    EXPECT_EQ(Mid("", 1, 1), "");
    EXPECT_EQ(Mid("123456", 2, INT_MAX), "23456");
    EXPECT_EQ(Mid("123456", INT_MAX, INT_MAX), "");
}

TEST(MidTest, PositionBelowOneOrNegativeLengthIsInvalid) {
    for (const int start : {0, -1, INT_MIN}) EXPECT_EQ(ErrorOf([&] { Mid("abc", start, 1); }), 5) << start;
    for (const int length : {-1, INT_MIN}) EXPECT_EQ(ErrorOf([&] { Mid("abc", 1, length); }), 5) << length;
}

TEST(LenTest, CountsCharacters) {
    EXPECT_EQ(Len(""), 0);
    EXPECT_EQ(Len("123456"), 6);
}

TEST(TrimBlanksTest, TakesBlanksFromBothEndsOnly) {
    EXPECT_EQ(TrimBlanks("  a b \t"), "a b");
    EXPECT_EQ(TrimBlanks("a"), "a");
    EXPECT_EQ(TrimBlanks(" \t "), "");
    EXPECT_EQ(TrimBlanks(""), "");
}

TEST(BeginsCharacterTest, TellsFirstBytesFromThoseThatFollow) {
    std::string firsts;
    for (const char byte : std::string("a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80\x7F"))
        firsts += BeginsCharacter(byte) ? '1' : '0';
    EXPECT_EQ(firsts, "11010010001");
}

TEST(CharactersOfTest, CountsCharactersNotBytes) {
    EXPECT_EQ(CharactersOf(""), 0);
    EXPECT_EQ(CharactersOf("a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80"), 4);
}

TEST(PadLeftTest, PutsBlanksBeforeShortTextsAndLeavesLongOnes) {
    EXPECT_EQ(PadLeft("5.00", 14), "          5.00");
    EXPECT_EQ(PadLeft("12345678", 8), "12345678");
    EXPECT_EQ(PadLeft("2026-11-21", 8), "2026-11-21");
    EXPECT_EQ(PadLeft("", 2), "  ");
    EXPECT_EQ(PadLeft("a", 0), "a");
    EXPECT_EQ(PadLeft("a", -1), "a");
    EXPECT_EQ(PadLeft("", 0), "");
    EXPECT_EQ(PadLeft("", -1), "");
}

TEST(JoinNumbersTest, PutsCommaAndBlankBetween) {
    const std::vector<int> numbers{1, 22, 49};
    const auto number = [&](int i) { return numbers.at(static_cast<std::size_t>(i)); };
    EXPECT_EQ(JoinNumbers(0, number), "");
    EXPECT_EQ(JoinNumbers(1, number), "1");
    EXPECT_EQ(JoinNumbers(3, number), "1, 22, 49");
    EXPECT_EQ(JoinNumbers(3, number, ""), "12249");
}

TEST(JoinNumbersTest, TakesEveryNumberThereIs) {
    std::string line;
    AppendNumber(line, std::numeric_limits<int>::min());
    AppendNumber(line, std::numeric_limits<int>::max());
    EXPECT_EQ(line, "-2147483648, 2147483647");
}

// A decimal point of the process's own locale must not reach any number.
TEST(TextLocaleTest, NothingDependsOnTheProcessesLocale) {
    struct Comma : std::numpunct<char> {
        char do_decimal_point() const override { return ','; }
        char do_thousands_sep() const override { return '.'; }
        std::string do_grouping() const override { return "\3"; }
    };
    const std::locale before = std::locale::global(std::locale(std::locale::classic(), new Comma));
    const std::string texts[] = {Str(1'234'567), Format(Currency::FromInt(1'234'567), "#,##0.00"),
                                 Currency::FromText("1234.5").ToText()};
    const double numbers[] = {Val("1.5"), CDbl("1,000.5")};
    std::locale::global(before);
    EXPECT_EQ(texts[0], "1234567");
    EXPECT_EQ(texts[1], "1,234,567.00");
    EXPECT_EQ(texts[2], "1234.5");
    EXPECT_EQ(numbers[0], 1.5);
    EXPECT_EQ(numbers[1], 1000.5);
}

}  // namespace
}  // namespace sorvane

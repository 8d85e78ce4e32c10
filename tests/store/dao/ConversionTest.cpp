#include <cmath>
#include <limits>
#include <random>

#include "DaoWorld.h"

namespace sorvane::Dao {
namespace {

class Conversions : public DaoWorld {
  protected:
    void SetUp() override { CreateWithDays({10}); }

    // What a plain tool reads in a field after the value was written to it, or "error N".
    std::string Stored(const char* field, const Value& value) {
        Database db = Open();
        Recordset rs = db.OpenTable("Every");
        rs.Edit();
        const int number = ErrorOf([&] { rs[field] = value; });
        if (number != 0) return "error " + std::to_string(number);
        rs.Update();
        return Plain().One("SELECT \"" + std::string(field) + "\" FROM Every");
    }
    struct Case {
        Value value;
        const char* stored;
    };
    void Check(const char* field, const std::vector<Case>& cases) {
        for (std::size_t i = 0; i < cases.size(); ++i)
            EXPECT_EQ(Stored(field, cases[i].value), cases[i].stored) << field << ", case " << i;
    }
};

constexpr double Infinite = std::numeric_limits<double>::infinity();
constexpr double NoNumber = std::numeric_limits<double>::quiet_NaN();

TEST_F(Conversions, IntoAnIntegerField) {
    Check("# of Balls", {{"07", "7"},
                         {" 12 ", "12"},
                         {-3, "-3"},
                         {Integer(32767), "32767"},
                         {32768, "error 3421"},
                         {-32769, "error 3421"},
                         {2.5, "2"},
                         {3.5, "4"},
                         {"2.5", "2"},
                         {-2.5, "-2"},
                         {Currency::FromText("6.5"), "6"},
                         {Date::FromDays(45), "45"},
                         {true, "-1"},
                         {"", "error 3421"},
                         {"abc", "error 3421"},
                         {"12abc", "error 3421"},
                         {"99999", "error 3421"},
                         {Infinite, "error 3421"},
                         {NoNumber, "error 3421"},
                         {Value(), "NULL"}});
}

TEST_F(Conversions, IntoALongField) {
    Check("ID1", {{2147483647, "2147483647"},
                  {2147483648L, "error 3421"},
                  {-2147483648L, "-2147483648"},
                  {"1,000", "1000"},
                  {1e300, "error 3421"},
                  {"", "error 3421"}});
}

TEST_F(Conversions, IntoACurrencyField) {
    Check("Amount", {{" 5.00", "5"},
                     {"5", "5"},
                     {"1,000.50", "1000.5"},
                     {"0.0001", "0.0001"},
                     {"-12.3456", "-12.3456"},
                     {0.1 + 0.2, "0.3"},
                     {7, "7"},
                     {Currency::FromTenThousandths(125), "0.0125"},
                     {922337203685477L, "922337203685477"},
                     {-922337203685477L, "-922337203685477"},
                     {-922337203685478L, "error 3421"},
                     {"1000000000000.5", "1000000000000.5"},
                     {"-1000000000000.25", "-1000000000000.25"},
                     {922337203685478L, "error 3421"},
                     {"922337203685477.5807", "error 3421"},
                     {1e300, "error 3421"},
                     {NoNumber, "error 3421"},
                     {".", "error 3421"},
                     {"", "error 3421"},
                     {"12abc", "error 3421"},
                     {Value(), "NULL"}});
}

TEST_F(Conversions, IntoADateField) {
    Check("Date", {{Date::FromYmd(2026, 11, 21), "46347"},
                   {Date::FromDays(46347.5), "46347.5"},
                   {"2026-11-21", "46347"},
                   {17, "17"},
                   {"17", "17"},
                   {Integer(45), "45"},
                   {1.25, "1.25"},
                   {"", "error 3421"},
                   {"abc", "error 3421"},
                   {"BC49", "error 3421"},
                   {3000000, "error 3421"},
                   {-657434, "-657434"},
                   {-657435, "error 3421"},
                   {2958465.5, "2958465.5"},
                   {2958466, "error 3421"},
                   {Date::FromDays(1e10), "error 3421"},
                   {Infinite, "error 3421"},
                   {NoNumber, "error 3421"},
                   {Value(), "NULL"}});
}

TEST_F(Conversions, IntoATextField) {
    Check("Lottoflag", {{"Super 7", "Super 7"},
                        {"", ""},
                        {Date::FromYmd(2026, 11, 21), "2026-11-21"},
                        {17, "17"},
                        {2.5, "2.5"},
                        {-0.0, "0"},
                        {1e20, "100000000000000000000"},
                        {Currency::FromText("0.50"), "0.5"},
                        {true, "True"},
                        {"123456789012345678901234567890", "123456789012345678901234567890"},
                        {"1234567890123456789012345678901", "error 3163"},
                        {Value(), "NULL"}});
}

TEST_F(Conversions, ATextFieldWithoutALengthTakesAny) {
    Plain().Ask("CREATE TABLE Free (a TEXT, b TEXT(1)); INSERT INTO Free VALUES ('x', 'y')");
    Database db = Open();
    Recordset rs = db.OpenTable("Free");
    rs.Edit();
    rs[0] = std::string(300, 'x');
    EXPECT_EQ(ErrorOf([&] { rs[1] = "xy"; }), ErrorNumber::TextTooLong);
    rs.Update();
    EXPECT_EQ(Plain().Ask("SELECT length(a), b FROM Free"), (Cells{"300", "y"}));
}

TEST_F(Conversions, AStoredNumberIsAnAmountOrADateAsFarAsThoseReach) {
    const auto read = [&](const char* field, const char* number) {
        Plain().Ask("UPDATE Every SET " + std::string(field) + " = " + number);
        Database db = Open();
        const Value value = db.OpenTable("Every")[field];
        return std::holds_alternative<Currency>(value.Get()) || std::holds_alternative<Date>(value.Get());
    };
    for (const char* amount :
         {"922337203685477", "-922337203685477", "922337203685476.5", "-922337203685476.5"})
        EXPECT_TRUE(read("Amount", amount)) << amount;
    for (const char* amount :
         {"922337203685478", "-922337203685478", "922337203685477.5", "-922337203685477.5"})
        EXPECT_FALSE(read("Amount", amount)) << amount;
    for (const char* day : {"-657434", "2958465", "-657433.5", "2958465.5"})
        EXPECT_TRUE(read("Date", day)) << day;
    for (const char* day : {"-657435", "2958466", "-657434.5", "2958466.5"})
        EXPECT_FALSE(read("Date", day)) << day;
}

TEST_F(Conversions, TheLengthOfATextCountsCharactersNotBytes) {
    std::string thirty;
    for (int i = 0; i < 30; ++i) thirty += "\xC3\xA9";
    EXPECT_EQ(Stored("Lottoflag", thirty), thirty);
    EXPECT_EQ(Stored("Lottoflag", thirty + "x"), "error 3163");
}

TEST_F(Conversions, IntoABooleanField) {
    Check("Regular", {{true, "1"},
                      {1, "1"},
                      {-1, "1"},
                      {0, "0"},
                      {false, "0"},
                      {"True", "1"},
                      {"FALSE", "0"},
                      {"1", "1"},
                      {0.5, "1"},
                      {"", "error 3421"},
                      {"yes", "error 3421"},
                      {Value(), "0"}});
}

TEST_F(Conversions, AKeyToSeekConvertsAsAValueToWrite) {
    Database db = Open();
    Recordset rs = db.OpenTable("Every");
    rs.Index("Date");
    rs.Seek("10");
    EXPECT_FALSE(rs.NoMatch());
    EXPECT_EQ(ErrorOf([&] { rs.Seek("abc"); }), ErrorNumber::Conversion);
    rs.Index("ID1");
    rs.Seek(1.2);
    EXPECT_FALSE(rs.NoMatch());
    EXPECT_EQ(ErrorOf([&] { rs.Seek(""); }), ErrorNumber::Conversion);
}

// Whole cents and ten-thousandths of all sizes, drawn from a fixed seed.
TEST_F(Conversions, AmountsComeBackExactlyAndReadAsPlainDecimals) {
    std::mt19937_64 random(20261121);
    std::vector<std::int64_t> counts = {0, 1, -1, 9999, 10000, 10001, 123456789, -50000};
    for (int bits = 2; bits <= 49; ++bits) {
        for (int i = 0; i < 40; ++i) {
            const auto count = static_cast<std::int64_t>(random() >> (64 - bits));
            counts.push_back(i % 2 == 0 ? count : -count);
        }
    }
    Database db = Open();
    db.OneCommit();
    {
        Recordset rs = db.OpenTable("Every");
        rs.MoveFirst();
        rs.Delete();
        for (std::size_t i = 0; i < counts.size(); ++i) {
            rs.AddNew();
            rs[0] = static_cast<int>(i);
            rs[3] = Currency::FromTenThousandths(counts[i]);
            rs.Update();
        }
    }
    db.Close();
    const auto plain = Plain().Ask("SELECT Amount FROM Every ORDER BY rowid");
    ASSERT_EQ(plain.size(), counts.size());
    Database again = Open();
    Recordset rs = again.OpenTable("Every");
    for (std::size_t i = 0; i < counts.size(); ++i, rs.MoveNext()) {
        const Currency amount = Currency::FromTenThousandths(counts[i]);
        EXPECT_EQ(rs[3].ToCurrency(), amount) << counts[i];
        std::string text = plain[i];
        if (text.size() > 2 && text.substr(text.size() - 2) == ".0") text.resize(text.size() - 2);
        EXPECT_EQ(text, amount.ToText()) << counts[i];
    }
}

TEST_F(Conversions, LargeAmountsRoundTripOrAreRefused) {
    std::mt19937_64 random(7);
    int kept = 0;
    int refused = 0;
    for (int i = 0; i < 200; ++i) {
        const auto count = static_cast<std::int64_t>(random() >> (1 + i % 14));
        const Currency amount = Currency::FromTenThousandths(count);
        Database db = Open();
        Recordset rs = db.OpenTable("Every");
        rs.Edit();
        if (ErrorOf([&] { rs[3] = amount; }) == ErrorNumber::Conversion) {
            ++refused;
            continue;
        }
        rs.Update();
        rs.MoveFirst();
        EXPECT_EQ(rs[3].ToCurrency(), amount) << count;
        ++kept;
    }
    EXPECT_GT(kept, 0);
    EXPECT_GT(refused, 0);
}

struct Reading {
    Value value;
    int toInt;      // or minus the error's number
    int toInteger;  // likewise
    const char* text;
};

TEST(Values, ReadAsNumbersAndTextOrRaise) {
    const Reading readings[] = {
        {7, 7, 7, "7"},
        {70000, 70000, -6, "70000"},
        {5000000000L, -6, -6, "5000000000"},
        {-5000000000L, -6, -6, "-5000000000"},
        {2.5, 2, 2, "2.5"},
        {1e10, -6, -6, "10000000000"},
        {"12", 12, 12, "12"},
        {"abc", -13, -13, "abc"},
        {true, -1, -1, "True"},
        {false, 0, 0, "False"},
        {Currency::FromText("1.5"), 2, 2, "1.5"},
        {Date::FromYmd(1900, 1, 1), 2, 2, "1900-01-01"},
        {NoNumber, -6, -6, "nan"},
    };
    for (const Reading& reading : readings) {
        const auto outcome = [](auto work) {
            int result = 0;
            const int number = ErrorOf([&] { result = work(); });
            return number == 0 ? result : -number;
        };
        EXPECT_EQ(outcome([&] { return reading.value.ToInt(); }), reading.toInt) << reading.text;
        EXPECT_EQ(outcome([&] { return int{reading.value.ToInteger()}; }), reading.toInteger) << reading.text;
        EXPECT_EQ(reading.value.ToText(), reading.text);
    }
}

TEST(Values, FieldTypesHaveTheNumbersOfTheEngine) {
    EXPECT_EQ(static_cast<int>(FieldType::Other), 0);
    EXPECT_EQ(static_cast<int>(FieldType::Boolean), 1);
    EXPECT_EQ(static_cast<int>(FieldType::Integer), 3);
    EXPECT_EQ(static_cast<int>(FieldType::Long), 4);
    EXPECT_EQ(static_cast<int>(FieldType::Currency), 5);
    EXPECT_EQ(static_cast<int>(FieldType::Date), 8);
    EXPECT_EQ(static_cast<int>(FieldType::Text), 10);
}

TEST(Values, TheLowestAndTheHighestNumberAreReadAndTheirNeighboursRaise) {
    EXPECT_EQ(Value(-2147483648.0).ToInt(), std::numeric_limits<int>::min());
    EXPECT_EQ(Value(2147483647.0).ToInt(), std::numeric_limits<int>::max());
    EXPECT_EQ(ErrorOf([] { Value(-2147483649.0).ToInt(); }), ErrorNumber::Overflow);
    EXPECT_EQ(ErrorOf([] { Value(2147483648.0).ToInt(); }), ErrorNumber::Overflow);
    EXPECT_EQ(Value(-2147483648LL).ToInt(), std::numeric_limits<int>::min());
    EXPECT_EQ(Value(2147483647LL).ToInt(), std::numeric_limits<int>::max());
    EXPECT_EQ(ErrorOf([] { Value(-2147483649LL).ToInt(); }), ErrorNumber::Overflow);
    EXPECT_EQ(ErrorOf([] { Value(2147483648LL).ToInt(); }), ErrorNumber::Overflow);
}

TEST(Values, ReadAsAmountsDatesAndFlagsOrRaise) {
    EXPECT_EQ(Value(5).ToCurrency(), Currency::FromInt(5));
    EXPECT_EQ(Value("1,000.5").ToCurrency(), Currency::FromText("1000.5"));
    EXPECT_EQ(Value(2.25).ToCurrency(), Currency::FromText("2.25"));
    EXPECT_EQ(ErrorOf([] { Value("x").ToCurrency(); }), ErrorNumber::TypeMismatch);
    EXPECT_EQ(ErrorOf([] { Value(1e16).ToCurrency(); }), ErrorNumber::Overflow);
    EXPECT_EQ(Value(922337203685476.5).ToCurrency(), Currency::FromText("922337203685476.5"));
    EXPECT_EQ(ErrorOf([] { Value(922337203685477.0).ToCurrency(); }), ErrorNumber::Overflow);
    EXPECT_EQ(ErrorOf([] { Value(std::numeric_limits<long>::max()).ToCurrency(); }), ErrorNumber::Overflow);
    EXPECT_EQ(Value(17).ToDate(), Date::FromDays(17));
    EXPECT_EQ(Value("2026-11-21").ToDate(), Date::FromYmd(2026, 11, 21));
    EXPECT_EQ(ErrorOf([] { Value("x").ToDate(); }), ErrorNumber::TypeMismatch);
    EXPECT_EQ(ErrorOf([] { Value(1e9).ToDate(); }), ErrorNumber::Overflow);
    EXPECT_TRUE(Value(-1).ToBool());
    EXPECT_TRUE(Value("true").ToBool());
    EXPECT_FALSE(Value("0").ToBool());
    EXPECT_EQ(ErrorOf([] { Value("x").ToBool(); }), ErrorNumber::TypeMismatch);
    const Value null;
    EXPECT_EQ(ErrorOf([&] { null.ToInt(); }), ErrorNumber::InvalidUseOfNull);
    EXPECT_EQ(ErrorOf([&] { null.ToInteger(); }), ErrorNumber::InvalidUseOfNull);
    EXPECT_EQ(ErrorOf([&] { null.ToBool(); }), ErrorNumber::InvalidUseOfNull);
    EXPECT_EQ(ErrorOf([&] { null.ToCurrency(); }), ErrorNumber::InvalidUseOfNull);
    EXPECT_EQ(ErrorOf([&] { null.ToDate(); }), ErrorNumber::InvalidUseOfNull);
    EXPECT_EQ(ErrorOf([&] { null.ToText(); }), ErrorNumber::InvalidUseOfNull);
}

}  // namespace
}  // namespace sorvane::Dao

#include "records/Csv.h"

#include "records/Cells.h"
#include "records/RecordsWorld.h"

namespace sorvane::Records {
namespace {

class Csv : public testing::RecordsWorld {
  public:
    // The cells of each record joined by '|', quoted ones in brackets.
    std::vector<std::string> Read(const std::string& text) {
        CsvReader reader(Write("a.csv", text));
        std::vector<CsvCell> record;
        std::vector<std::string> records;
        try {
            while (reader.Next(record)) {
                std::string line;
                for (const CsvCell& cell : record)
                    line += (line.empty() ? "" : "|") + (cell.quoted ? "[" + cell.text + "]" : cell.text);
                records.push_back(line);
            }
        } catch (const CsvReader::Broken& broken) {
            records.push_back(std::to_string(broken.line) + ":" + std::to_string(broken.column) + " " +
                              broken.what);
        }
        return records;
    }
};
using Lines = std::vector<std::string>;

TEST_F(Csv, ReadsCellsWithAndWithoutQuotes) {
    EXPECT_EQ(Read("a,b,c\r\n1,\"2,5\",\"say \"\"x\"\"\"\r\n"), (Lines{"a|b|c", "1|[2,5]|[say \"x\"]"}));
    EXPECT_EQ(Read("a,,\n,\"\",\n"), (Lines{"a||", "[]|"}));
    EXPECT_EQ(Read("\"two\r\nlines\",x"), (Lines{"[two\nlines]|x"}));
}

TEST_F(Csv, TakesEveryKindOfLineEndAndPassesOverEmptyLinesAndTheMarkOfUtf8) {
    EXPECT_EQ(Read("\xEF\xBB\xBF"
                   "a,b\n\n1,2\r3,4\r\n\r\n5,6"),
              (Lines{"a|b", "1|2", "3|4", "5|6"}));
    EXPECT_EQ(Read(""), Lines());
    EXPECT_EQ(Read("\n\n"), Lines());
}

TEST_F(Csv, TakesSemicolonsAndTabsWhereTheFirstLineHasThem) {
    EXPECT_EQ(Read("a;b\n1,5;2\n"), (Lines{"a|b", "1,5|2"}));
    EXPECT_EQ(Read("a\tb\n1\t\t\n"), (Lines{"a|b", "1||"}));
    EXPECT_EQ(Read("a,b;c\n"), (Lines{"a|b;c"}));
    // Behind the mark of UTF-8 the first line is no longer than elsewhere.
    EXPECT_EQ(Read("\xEF\xBB\xBF"
                   "a,b\n;;;;\n"),
              (Lines{"a|b", ";;;;"}));
}

TEST_F(Csv, LeavesBlanksAroundCellsAside) {
    EXPECT_EQ(Read(" a , \"b \" ,c\n"), (Lines{"a|[b ]|c"}));
    EXPECT_EQ(Read("a,b,c\n\ta\t,\t\"b\" \t,\t c\n"), (Lines{"a|b|c", "a|[b]|c"}));
    EXPECT_EQ(Read("a\t\"b\"\t\n"), (Lines{"a|[b]|"}));
}

// The file is read a part at a time; nothing may depend on where a part ends.
TEST_F(Csv, ReadsWhatLiesAcrossTwoParts) {
    const std::string odd = "plain,\"say \"\"x\"\"\r\n\xC3\xA9\" ,\xC3\xA9 ,\r\n";
    constexpr std::size_t Part = 65'536;
    for (std::size_t before = 0; before < odd.size() + 2; ++before) {
        std::string text;
        while (text.size() + 64 < Part - before) text += "1,2,3,4,5,6,7\n";
        text += std::string(Part - before - text.size() - 1, 'f') + "\n";
        const auto records = Read(text + odd + "\xC3\xA9,\"open");
        ASSERT_GT(records.size(), 3U);
        EXPECT_EQ(records[records.size() - 2], "plain|[say \"x\"\n\xC3\xA9]|\xC3\xA9|") << before;
        const long lines = std::count(text.begin(), text.end(), '\n');
        EXPECT_EQ(records.back(), std::to_string(lines + 3) + ":3 the quote that opens here is not closed");
    }
}

TEST_F(Csv, SaysWhereTheRestCantBeRead) {
    EXPECT_EQ(Read("a\nb,\"c\nd"), (Lines{"a", "2:3 the quote that opens here is not closed"}));
    EXPECT_EQ(Read("a,\"b\"c"), (Lines{"1:3 the quote that opens here closes too early"}));
    EXPECT_EQ(Read(std::string("a,b\n\0", 5)), (Lines{"a|b", "2:1 this is no text in UTF-8"}));
    EXPECT_EQ(Read("a,\xE9t\xE9"), (Lines{"1:3 this is no text in UTF-8"}));
    EXPECT_EQ(Read("\xFF\xFE"
                   "a"),
              (Lines{"1:1 this is no text in UTF-8"}));
    EXPECT_EQ(Read("a\n\"" + std::string(70'000, 'x')),
              (Lines{"a", "2:1 the quote that opens here is not closed"}));
    EXPECT_EQ(Read(std::string(70'000, 'x')), (Lines{"1:1 this line is too long"}));
    EXPECT_EQ(Read(std::string("a,b\0c", 5)), (Lines{"1:3 this is no text in UTF-8"}));
    EXPECT_EQ(Read(std::string("a,\"b\0c\"", 7)), (Lines{"1:3 this is no text in UTF-8"}));
    EXPECT_EQ(Read(std::string("\xFE\xFF\0a\0,\0b", 8)), (Lines{"1:1 this is no text in UTF-8"}));
    EXPECT_EQ(Read(std::string("\xFF\xFE\"\0a\0\n\0", 8)), (Lines{"1:1 this is no text in UTF-8"}));
}

TEST_F(Csv, ALineHasNoMoreThan65536LettersAndOneMoreCells) {
    const std::string most(65'536, 'x');
    EXPECT_EQ(Read("a\n" + most + "\nb\n" + most + "\n"), (Lines{"a", most, "b", most}));
    EXPECT_EQ(Read(most.substr(1) + ",y\n"), (Lines{most.substr(1) + "|y"}));
    EXPECT_EQ(Read(most + ",y\n"), (Lines{"1:65538 this line is too long"}));
    EXPECT_EQ(Read("x" + most + "\n"), (Lines{"1:1 this line is too long"}));
    EXPECT_EQ(Read("a,\"" + most + "\"\n"), (Lines{"1:3 the quote that opens here is not closed"}));
    CsvReader reader(Write("a.csv", std::string(65'536, ',')));
    std::vector<CsvCell> record;
    EXPECT_TRUE(reader.Next(record));
    EXPECT_EQ(record.size(), 65'537U);
    EXPECT_EQ(Read(std::string(65'537, ',')), (Lines{"1:65538 this line is too long"}));
}

TEST_F(Csv, CountsColumnsInCharacters) {
    CsvReader reader(Write("a.csv", "x\n\"\xC3\xA9\xC3\xA9\",b,c\n"));
    std::vector<CsvCell> record;
    reader.Next(record);
    reader.Next(record);
    EXPECT_EQ(record[1].line, 2);
    EXPECT_EQ(record[1].column, 6);
    EXPECT_EQ(record[2].column, 8);
}

TEST_F(Csv, WritesWhatItReads) {
    for (const std::string text : {"plain", "a,b", "say \"x\"", "", " blank", "two\nlines", "semi;colon"}) {
        const auto read = Read(CsvText(text) + ",end\n");
        ASSERT_EQ(read.size(), 1U);
        EXPECT_TRUE(read[0] == text + "|end" || read[0] == "[" + text + "]|end") << read[0];
    }
    EXPECT_EQ(CsvText("plain"), "plain");
    EXPECT_EQ(CsvText(""), "\"\"");
    EXPECT_EQ(CsvText("in the middle"), "in the middle");
    for (const std::string text : {" before", "behind ", "a,b", "a;b", "a\tb", "a\rb", "a\nb"})
        EXPECT_EQ(CsvText(text), "\"" + text + "\"");
    EXPECT_EQ(CsvText("\"x\""), "\"\"\"x\"\"\"");
}

TEST(Utf8, KnowsWhatIsNone) {
    for (const std::string text : {"", "abc", "\xC3\xA9", "\xE2\x82\xAC", "\xF0\x9F\x8E\xB1"})
        EXPECT_TRUE(IsUtf8(text));
    for (const std::string text : {"\x80", "\xC3", "\xC0\x80", "\xE0\x80\x80", "\xED\xA0\x80",
                                   "\xF0\x80\x80\x80", "\xF4\x90\x80\x80", "\xFF", "\xE2\x82"})
        EXPECT_FALSE(IsUtf8(text));
}

// The first and the last character of each length and of each stretch, and their neighbours that are none.
TEST(Utf8, KnowsWhereCharactersBeginAndEnd) {
    for (const std::string text :
         {"\x01", "\x7F", "\xC2\x80", "\xDF\xBF", "\xE0\xA0\x80", "\xE0\xBF\xBF", "\xE1\x80\x80",
          "\xED\x9F\xBF", "\xEE\x80\x80", "\xEF\xBF\xBF", "\xF0\x90\x80\x80", "\xF3\xBF\xBF\xBF",
          "\xF4\x80\x80\x80", "\xF4\x8F\xBF\xBF"})
        EXPECT_TRUE(IsUtf8(text)) << CsvText(text);
    for (const std::string text :
         {"\xC1\xBF", "\xC2\x7F", "\xC2\xC0", "\xE0\x9F\xBF", "\xE1\x80\x7F", "\xE1\x80\xC0", "\xED\xA0\x80",
          "\xED\xBF\xBF", "\xF0\x8F\xBF\xBF", "\xF4\x90\x80\x80", "\xF5\x80\x80\x80", "\xF1\x80\x80\x7F"})
        EXPECT_FALSE(IsUtf8(text));
}

std::string Day(std::string_view text, DateOrder order = DateOrder::MonthFirst) {
    const auto date = ReadDate(text, order);
    return date ? date->ToText() : "none";
}

TEST(Dates, AreReadInManyForms) {
    for (const char* text : {"2026-11-21",
                             "2026/11/21",
                             "20261121",
                             "11/21/2026",
                             "11/21/26",
                             "11-21-2026",
                             "21.11.2026",
                             "21.11.26",
                             "21 Nov 2026",
                             "Nov 21, 2026",
                             "november 21 2026",
                             "21-Nov-26",
                             "Sat, Nov 21, 2026",
                             "Saturday 21 November 2026",
                             "2026-Nov-21",
                             " 2026-11-21 ",
                             "2026-11-21 00:00:00",
                             "11/21/26 00:00:00",
                             "2026-11-21T20:15:00Z",
                             "11/21/2026 8:15 PM",
                             "2026-11-21 20:15:00.000",
                             "21 - 11 - 2026",
                             "2026 / 11 / 21",
                             "Nov. 21, 2026",
                             "11/21/2026 8:15 am"})
        EXPECT_EQ(Day(text, text[2] == ' ' ? DateOrder::DayFirst : DateOrder::MonthFirst), "2026-11-21")
            << text;
}

TEST(Dates, KnowEveryMonthAndWeekdayByItsNameAndThreeLettersOfIt) {
    const std::vector<std::string> months = {"January",   "February", "March",    "April",
                                             "May",       "June",     "July",     "August",
                                             "September", "October",  "November", "December"};
    for (std::size_t i = 0; i < months.size(); ++i) {
        const std::string day = (i < 9 ? "2026-0" : "2026-") + std::to_string(i + 1) + "-21";
        for (const std::string& name : {months[i], months[i].substr(0, 3), months[i].substr(0, 4)}) {
            EXPECT_EQ(Day(name + " 21, 2026"), day);
            EXPECT_EQ(Day("21 " + name + " 26"), day);
            EXPECT_EQ(Day("2026 " + name + " 21"), day);
        }
        EXPECT_EQ(Day(months[i].substr(0, 2) + " 21, 2026"), "none");
        EXPECT_EQ(Day(months[i] + "s 21, 2026"), "none");
    }
    for (const std::string name :
         {"Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday", "Sunday"}) {
        EXPECT_EQ(Day(name + ", 2026-11-21"), "2026-11-21");
        EXPECT_EQ(Day("2026-11-21 " + name.substr(0, 3)), "2026-11-21");
        EXPECT_EQ(Day(name.substr(0, 2) + " 2026-11-21"), "none");
    }
}

TEST(Dates, TakeTheDayFirstWhereThatIsTold) {
    EXPECT_EQ(Day("04/07/2020"), "2020-04-07");
    EXPECT_EQ(Day("04/07/2020", DateOrder::DayFirst), "2020-07-04");
    EXPECT_EQ(Day("4.7.2020"), "2020-07-04");
    EXPECT_EQ(Day("2020-07-04", DateOrder::DayFirst), "2020-07-04");
}

TEST(Dates, WithTwoDigitsOfAYearLieFrom1930To2029) {
    EXPECT_EQ(Day("01/02/29"), "2029-01-02");
    EXPECT_EQ(Day("01/02/30"), "1930-01-02");
    EXPECT_EQ(Day("01/02/00"), "2000-01-02");
}

// The file holds none before.
TEST(Dates, BeginWithTheYear100) {
    EXPECT_EQ(Records::ReadDate("0100-01-01"), Date::FromYmd(100, 1, 1));
    EXPECT_EQ(Records::ReadDate("0099-12-31"), std::nullopt);
}

TEST(Dates, ThatAreNoneAreRefused) {
    for (const char* text : {"",
                             "soon",
                             "2026-13-01",
                             "2026-02-30",
                             "13/13/2020",
                             "2026-11",
                             "11/21",
                             "1/2/3",
                             "1/2/2020/4",
                             "2026--11-21",
                             "-2026-11-21",
                             "2026-11-21x",
                             "202611211",
                             "46347",
                             "2026-11-21 25",
                             "0000-01-01",
                             "0099-12-31",
                             "31 December 0099",
                             "Nov 2026",
                             "Foo 21, 2026",
                             "11:21:2026",
                             ":",
                             "2026-3x-21",
                             "2026-003-21",
                             "11/21/202x",
                             "3x/21/2026",
                             "11/21/2x",
                             "11/21/202",
                             "2026/11/021",
                             "2026/11/2x",
                             "2026112x",
                             "2026-11-21 :30",
                             "2026-11-21 8:15 noon",
                             "2026-11-21 8:15 a",
                             "Nov 2x, 2026",
                             "/2026/11/21",
                             "x026-11-21"})
        EXPECT_EQ(Day(text), "none") << text;
    for (const char* text : {"21.3x.2026", "3x.11.2026", "21.11.202x"})
        EXPECT_EQ(Day(text, DateOrder::DayFirst), "none") << text;
}

TEST(Marks, AreReadAsOtherToolsWriteThem) {
    for (const char* text : {"1", "-1", "Yes", "TRUE", "on", "x", "y", "t"})
        EXPECT_EQ(ReadMark(text), true) << text;
    for (const char* text : {"0", "No", "false", "Off", "n", "F"}) EXPECT_EQ(ReadMark(text), false) << text;
    for (const char* text : {"2", "", "ja", "10"}) EXPECT_EQ(ReadMark(text), std::nullopt) << text;
}

TEST(Words, AreTheSameWhateverTheCaseOfTheirLetters) {
    EXPECT_TRUE(SameWord("AMZ amz @[`{09", "amz AMZ @[`{09"));
    EXPECT_FALSE(SameWord("@", "`"));
    EXPECT_FALSE(SameWord("[", "{"));
    EXPECT_FALSE(SameWord("ab", "abc"));
    EXPECT_EQ(EssenceOf("AZaz 0_9 #@[`{/:\xC3\xA9"), "azaz09");
}

TEST(Numbers, AreReadWhole) {
    EXPECT_EQ(ReadWhole("7"), 7);
    EXPECT_EQ(ReadWhole("+07"), 7);
    EXPECT_EQ(ReadWhole("-3"), -3);
    for (const char* text : {"", "7.5", "7 ", "seven", "99999999999", "+", "0x7"})
        EXPECT_EQ(ReadWhole(text), std::nullopt) << text;
}

TEST(Amounts, AreReadWithAndWithoutTheirSign) {
    const auto amount = [](const char* text) {
        const auto read = ReadAmount(text);
        return read ? read->ToText() : "none";
    };
    EXPECT_EQ(amount("4.50"), "4.5");
    EXPECT_EQ(amount("$1,250.00"), "1250");
    EXPECT_EQ(amount("-$2"), "-2");
    EXPECT_EQ(amount("4.0000"), "4");
    for (const char* text : {"", "$", "1$", "-2$", "$-2$", "1,5", "five", "$$1", "99999999999999999999"})
        EXPECT_EQ(amount(text), "none") << text;
}

}  // namespace
}  // namespace sorvane::Records

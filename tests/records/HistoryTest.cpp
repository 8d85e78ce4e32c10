#include "records/GameFile.h"
#include "records/RecordsWorld.h"

namespace sorvane::testing {
namespace {

class Draws : public RecordsWorld {
  public:
    // The findings without the file's name and the last line, which counts them; the file stays as it was.
    Texts Findings(std::vector<std::string> arguments) {
        const bool there = fs::exists(File());
        const std::string before = there ? BytesOf(File()) : "";
        const Answer answer = Run(arguments);
        EXPECT_EQ(answer.status, 1) << answer.words;
        EXPECT_EQ(there ? BytesOf(File()) : "", before);
        EXPECT_EQ(fs::exists(File()), there);
        Texts lines = LinesOf(answer.words);
        if (!lines.empty()) lines.pop_back();
        for (std::string& line : lines)
            if (line.rfind(Path(""), 0) == 0) line.erase(0, Path("").size());
        return lines;
    }
};
using Tickets = Draws;

TEST_F(Draws, ListNamesEveryGameWithItsRegionKeyAndAddOn) {
    const Texts lines = LinesOf(Do({"draws", "--list"}).data);
    EXPECT_EQ(lines.size(), 22U);
    EXPECT_EQ(lines.front(), "British Columbia/Lotto 6/49\tLotto649\tExtra");
    EXPECT_EQ(lines[3], "British Columbia/Daily 3\tBCDaily3");
    EXPECT_EQ(lines[5], "Western Canada/Super 7\tSuper 7\tWESTExtra");
    EXPECT_EQ(lines.back(), "Florida/Play 4\tFLAPlay4");
}

TEST_F(Draws, GoIntoTheWinTableAsTheCheckPageStoresThem) {
    const std::string file = Write("d.csv",
                                   "Draw Date,Number 1,Number 2,Number 3,Number 4,Number 5,Number 6,Bonus\n"
                                   "2026-11-14,40,2,3,4,5,6,7\n11/18/2026,1,2,3,4,5,6,49\n");
    EXPECT_EQ(Do({"draws", "Ontario/Lotto 6/49", file}).words, "WinLotto649: 2 draws added\n");
    EXPECT_EQ(Ask("SELECT * FROM WinLotto649"), (Texts{"1|46340|40|2|3|4|5|6|7", "2|46344|1|2|3|4|5|6|49"}));
    EXPECT_EQ(world.Plain().Tables(), (Texts{"PlayedLotto649", "WinLotto649"}));
    EXPECT_EQ(Run({"check"}).status, 0);
}

TEST_F(Draws, TakeColumnsInAnyOrderByHeaderOrByNames) {
    Write("a.csv", "bonus;6;5;4;3;2;1;jackpot;date\n7;60;5;4;3;2;1;5M;2026-11-14\n");
    const Answer wrong = Run({"draws", "BC49", Path("a.csv")});
    EXPECT_TRUE(Tells(wrong.words, "a.csv:2:3: 60 is not from 1 to 49")) << wrong.words;
    const Answer told = Do({"draws", "BC49",
                            Write("a.csv",
                                  "bonus;6;5;4;3;2;1;jackpot;date\n"
                                  "7;46;5;4;3;2;1;5M;2026-11-14\n")});
    EXPECT_EQ(told.words, "columns left aside: jackpot\nWinBC49: 1 draw added\n");
    Do({"draws", "BC49", Write("h.csv", "x,y,,\n1 2 3 4 5 6,?,49,11/16/26\n"), "--columns",
        "numbers,-,bonus,date"});
    Do({"draws", "BC49", Write("b.csv", "21.11.2026,1 - 2 - 3 - 4 - 5 - 6,7\n"), "--columns",
        "date,numbers,bonus"});
    Do({"draws", "BC49", Write("c.csv", "Tag,Zahlen\n\"Wed, Nov 18, 2026\",\"1,2,3,4,5,6 + 7\"\n"),
        "--columns", "date,numbers"});
    EXPECT_EQ(Ask("SELECT * FROM WinBC49"), (Texts{"1|46340|1|2|3|4|5|46|7", "2|46342|1|2|3|4|5|6|49",
                                                   "3|46347|1|2|3|4|5|6|7", "4|46344|1|2|3|4|5|6|7"}));
}

TEST_F(Draws, RefuseAColumnThatIsToldTwice) {
    const std::string file = Write("t.csv", "2026-11-21,1 2 3 4 5 6,2026-11-22\n");
    EXPECT_EQ(LinesOf(Run({"draws", "BC49", file, "--columns", "date,numbers, date"}).words).at(0),
              file + ":1:1: \"date\" says the same as a column before it");
    const std::string header = Write("u.csv", "date,numbers,date\n");
    EXPECT_EQ(LinesOf(Run({"draws", "BC49", header}).words).at(0),
              header + ":1:14: \"date\" says the same as a column before it");
}

TEST_F(Draws, WithDigitsAndKenoFollowTheirTables) {
    Do({"draws", "Ontario/Pick 3", Write("p.csv", "date,numbers,encore\n2026-11-21,482,012345\n")});
    EXPECT_EQ(Ask("SELECT * FROM WinONTPick3"), Texts{"1|ONTPick3|46347|4|8|2"});
    EXPECT_EQ(Ask("SELECT * FROM WinEncore"), Texts{"1|ONTPick3|46347|0|1|2|3|4|5|NULL"});
    Do({"draws", "Play 4", Write("f.csv", "date,1,2,3,4\n2026-11-21,9,9,0,9\n")});
    EXPECT_EQ(Ask("SELECT * FROM WinFLAPlay4"), Texts{"1|FLAPlay4|46347|9|9|0|9"});
    Do({"draws", "Daily Keno",
        Write("k.csv", "date,numbers\n2026-11-21,1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18 19 70\n")});
    EXPECT_EQ(Ask("SELECT * FROM WinONTKeno"),
              Texts{"1|46347|ONTKeno|1|2|3|4|5|6|7|8|9|10|11|12|13|14|15|16|17|18|19|70"});
    EXPECT_EQ(Run({"check"}).status, 0);
}

TEST_F(Draws, BringTheAddOnOfTheirRegion) {
    Do({"draws", "British Columbia/BC/49",
        Write(
            "b.csv",
            "date,numbers,bonus,extra\n2026-11-14,1 2 3 4 5 6,7,10-20-30-99\n2026-11-21,1 2 3 4 5 6,7,\n")});
    EXPECT_EQ(Ask("SELECT * FROM WinExtra"), Texts{"1|BC49|46340|10|20|30|99"});
    // Another game of the region has its own four numbers on the same day.
    Do({"draws", "British Columbia/Super 7",
        Write("s.csv",
              "date,numbers,bonus,extra1,extra2,extra3,extra4\n2026-11-14,1 2 3 4 5 6 48,7,1,2,3,4\n")});
    EXPECT_EQ(Ask("SELECT * FROM WinExtra"), (Texts{"1|BC49|46340|10|20|30|99", "2|Super 7|46340|1|2|3|4"}));
    Do({"draws", "Western Canada/Super 7",
        Write("w.csv", "date,numbers,bonus,Western Extra\n2026-11-15,1 2 3 4 5 6 7,8,1234567\n"), "--columns",
        "date,numbers,bonus,WESTExtra"});
    EXPECT_EQ(Ask("SELECT * FROM WinWESTExtra"), Texts{"1|Super 7|46341|1|2|3|4|5|6|7"});
    // Without a region there is no add-on; the column is told of.
    EXPECT_TRUE(Tells(Do({"draws", "Lotto649",
                          Write("l.csv", "date,numbers,bonus,encore\n2026-11-14,1 2 3 4 5 6,7,123456\n")})
                          .words,
                      "columns left aside: encore"));
}

// The number of a digit add-on is drawn for all games at once.
TEST_F(Draws, OfTwoGamesShareTheNumberOfTheirAddOn) {
    const auto draw = [&](const std::string& game, const std::string& row) {
        return LinesOf(Run({"draws", game, Write("e.csv", "date,numbers,bonus,encore\n" + row)}).words);
    };
    const std::string day = "2026-11-14,1 2 3 4 5 6,7,";
    EXPECT_EQ(draw("Ontario/Lotto 6/49", day + "123456\n"),
              (Texts{"WinLotto649: 1 draw added", "WinEncore: 1 draw added"}));
    EXPECT_EQ(draw("Lottario", day + "123456\n"),
              (Texts{"WinLottario: 1 draw added", "WinEncore: 0 draws added, 1 there already"}));
    EXPECT_EQ(draw("Lottario", day + "123457\n").at(1),
              "WinEncore: 0 draws added, 1 with other numbers left alone (--replace takes the file's)");
    EXPECT_EQ(Ask("SELECT * FROM WinEncore"), Texts{"1|Lotto649|46340|1|2|3|4|5|6|NULL"});
    const std::string next = "2026-11-15,1 2 3 4 5 6,7,";
    EXPECT_EQ(draw("Lottario", next + "123456\n" + next + "123457\n").at(0),
              Path("e.csv") + ":3:1: 2026-11-15 is drawn twice in this file, with other numbers");
}

TEST_F(Draws, OfADateThatIsThereAreLeftAloneOrReplaced) {
    Make("WinBC49");
    Sql("INSERT INTO WinBC49 VALUES (1, 46340, 1,2,3,4,5,6,7), (2, 46341, 1,2,3,4,5,6,7)");
    const std::string file = Write("d.csv",
                                   "date,numbers,bonus\n2026-11-14,1 2 3 4 5 6,7\n2026-11-15,1 2 3 4 5 6,8\n"
                                   "2026-11-16,1 2 3 4 5 6,7\n2026-11-16,1 2 3 4 5 6,7\n");
    EXPECT_EQ(Do({"draws", "BC49", file}).words,
              "WinBC49: 1 draw added, 2 there already, 1 with other numbers left alone (--replace takes the "
              "file's)\n");
    EXPECT_EQ(Ask("SELECT Ball_B FROM WinBC49 ORDER BY ID1"), (Texts{"7", "7", "7"}));
    EXPECT_EQ(Do({"draws", "BC49", file, "--replace"}).words,
              "WinBC49: 0 draws added, 3 there already, 1 replaced\n");
    EXPECT_EQ(Ask("SELECT ID1, Ball_B FROM WinBC49 ORDER BY ID1"), (Texts{"1|7", "2|8", "3|7"}));
}

TEST_F(Draws, ADayEndsWhereTheNextBegins) {
    Make("WinBC49");
    Sql("INSERT INTO WinBC49 VALUES (1, 46341, 1,2,3,4,5,6,9), (2, 46339, 1,2,3,4,5,6,8), "
        "(3, 46340, 1,2,3,4,5,6,7)");
    EXPECT_EQ(Do({"draws", "BC49", Write("d.csv", "date,numbers,bonus\n2026-11-14,1 2 3 4 5 6,7\n")}).words,
              "WinBC49: 0 draws added, 1 there already\n");
}

TEST_F(Draws, ADayTakesInARowWithATimeOfDay) {
    Make("WinBC49");
    Sql("INSERT INTO WinBC49 VALUES (1, 46340.75, 1,2,3,4,5,6,9)");
    EXPECT_EQ(Do({"draws", "BC49", Write("d.csv", "date,numbers,bonus\n2026-11-14,1 2 3 4 5 6,7\n")}).words,
              "WinBC49: 0 draws added, 1 with other numbers left alone (--replace takes the file's)\n");
}

TEST_F(Draws, TellEveryFindingWithItsLineAndChangeNothing) {
    Make("WinBC49");
    const std::string file =
        Write("d.csv",
              "date,1,2,3,4,5,6,bonus\n2026-11-14,1,2,3,4,5,50,7\nsoon,1,2,3,4,5,6,7\n"
              "2026-11-15,1,2,3,4,5,5,7\n2026-11-16,1,2,3,4,5,6,6\n2026-11-17,1,2,3\n"
              "2026-11-18,1,2,3,4,5,x,7\n2026-11-19,1,2,3,4,5,6,7\n"
              "2026-11-19,1,2,3,4,5,6,8\n2026-11-22,1,2,3,4,5,6,7\n2026-11-20,1,2,3,4,5,6,\"7");
    EXPECT_EQ(Findings({"draws", "BC49", file}),
              (Texts{"d.csv:2:22: 50 is not from 1 to 49", "d.csv:3:1: \"soon\" is no date",
                     "d.csv:4:1: 5 stands there twice", "d.csv:5:1: the bonus number 6 is among the others",
                     "d.csv:6:1: this line has 4 cells instead of 8", "d.csv:7:22: \"x\" is no whole number",
                     "d.csv:9:1: 2026-11-19 is drawn twice in this file, with other numbers",
                     "d.csv:10:1: 2026-11-22: this draw hasn't taken place yet",
                     "d.csv:11:24: the quote that opens here is not closed"}));
}

TEST_F(Draws, MayHaveTheirNumbersInOneColumnAndInOthersBesidesIfTheyAreAllThere) {
    Make("WinBC49");
    EXPECT_EQ(Findings({"draws", "BC49", Write("d.csv", "date,6,numbers,bonus\n2026-11-14,9,1 2 3,7\n")}),
              Texts{"d.csv:2:1: 4 numbers instead of 6"});
    EXPECT_EQ(Findings({"draws", "BC49",
                        Write("d.csv",
                              "date,1,2,numbers,bonus\n2026-11-14,9,8,1 2 3 4,7\n"
                              "2026-11-15,9,8,1 2 3 4 5 6,7\n")}),
              Texts{"d.csv:3:1: 8 numbers instead of 6"});
}

TEST_F(Draws, OfLottarioEndAt45AndOfSuper7At49) {
    const std::string row = "date,numbers,bonus\n2026-11-14,1 2 3 4 5 46,7\n";
    EXPECT_EQ(Findings({"draws", "Lottario", Write("l.csv", row)}),
              Texts{"l.csv:2:12: 46 is not from 1 to 45"});
    Do({"draws", "Super 7", Write("s.csv", "date,numbers,bonus\n2026-11-14,1 2 3 4 5 48 49,7\n")});
}

TEST_F(Draws, WithoutTheColumnsTheyNeedAreRefused) {
    EXPECT_EQ(Findings({"draws", "BC49", Write("d.csv", "day,1,2,3\n")}),
              (Texts{"d.csv:1:1: the column \"date\" is missing",
                     "d.csv:1:1: the column \"numbers\", or one of \"1\" to \"6\", is missing",
                     "d.csv:1:1: the column \"bonus\" is missing"}));
    EXPECT_EQ(Findings({"draws", "BC49", Write("d.csv", "date,1,2,3,3,4,5,6,bonus\n")}),
              Texts{"d.csv:1:12: \"3\" says the same as a column before it"});
    EXPECT_EQ(Findings({"draws", "BC49", Write("d.csv", "")}), Texts{"d.csv:1:1: this file has no line"});
}

TEST_F(Draws, AGameIsFoundByCaptionWithRegionOrKeyAndNothingElse) {
    const std::string file = Write("d.csv", "date,numbers,bonus\n2026-11-14,1 2 3 4 5 6,7\n");
    for (const char* name : {"ontario/lotto 6/49", "Lotto649", "Quebec/Quebec 49", "Lottario", "BC/49"})
        Do({"draws", name, file});
    EXPECT_TRUE(Tells(Run({"draws", "Bingo", file}).words, "\"Bingo\" is no game"));
    EXPECT_TRUE(Tells(Run({"draws", "Lotto 6/49", file}).words,
                      "\"Lotto 6/49\" may be one of: British Columbia/Lotto 6/49, "));
    EXPECT_TRUE(
        Tells(Run({"draws", "BC49", Path("none.csv")}).words, "none.csv: there is no such file (3024)"));
}

TEST_F(Draws, KeepTheDayFirstWhereThatIsTold) {
    Do({"draws", "BC49", Write("d.csv", "date,numbers,bonus\n04/07/2020,1 2 3 4 5 6,7\n"), "--day-first"});
    EXPECT_EQ(Ask("SELECT date('1899-12-30', Date || ' days') FROM WinBC49"), Texts{"2020-07-04"});
}

TEST_F(Tickets, GoIntoThePlayedTableAsASavedSheetDoes) {
    Do({"tickets", "BC49",
        Write("a.csv", "date,numbers,regular\n2026-11-21,49 2 3 4 5 6,yes\n2026-11-21,1 2 3 4 5 6,\n")});
    EXPECT_EQ(Ask("SELECT * FROM PlayedBC49"),
              (Texts{"1|46347|2|3|4|5|6|49|1|0", "2|46347|1|2|3|4|5|6|0|0"}));
    Do({"tickets", "Lottario",
        Write("l.csv", "date,numbers,early bird,encore\n2026-11-21,1 2 3 4 5 6,x,123456\n")});
    EXPECT_EQ(Ask("SELECT * FROM PlayedLottario"), Texts{"1|46347|1|2|3|4|5|6|0|1"});
    EXPECT_EQ(Ask("SELECT * FROM PlayedEncore"), Texts{"1|Lottario|46347|1|2|3|4|5|6|NULL"});
    Do({"tickets", "Daily Keno",
        Write("k.csv",
              "date,wager,1,2,3,4,5,6,7,8,9,10\n2026-11-21,2,70,7,20,,,,,,,\n2026-11-21,,1,2,3,4,5,6,7,8,9,"
              "10\n")});
    EXPECT_EQ(Ask("SELECT * FROM PlayedONTKeno"), (Texts{"1|46347|ONTKeno|7|20|70|0|0|0|0|0|0|0|2|3|0",
                                                         "2|46347|ONTKeno|1|2|3|4|5|6|7|8|9|10|0|10|0"}));
    Do({"tickets", "Ca$h 3", Write("f.csv", "date,numbers,way,regular\n2026-11-21,909,straight box,true\n")});
    EXPECT_EQ(Ask("SELECT * FROM PlayedFLACash3"), Texts{"1|FLACash3|46347|9|0|9|StraightBox|1"});
    Do({"tickets", "British Columbia/BC/49",
        Write("e.csv", "date,numbers,extra\n2026-11-22,1 2 3 4 5 6,10 20 30 40\n")});
    EXPECT_EQ(Ask("SELECT * FROM PlayedExtra"), Texts{"1|BC49|46348|10|20|30|40|NULL|0"});
    EXPECT_EQ(Run({"check"}).status, 0) << Run({"check"}).data;
}

TEST_F(Tickets, KeepToWhatTheSlipOffers) {
    EXPECT_EQ(Findings({"tickets", "Super 7", Write("s.csv", "date,numbers\n2026-11-21,1 2 3 4 5 6 48\n")}),
              Texts{"s.csv:2:12: 48 is not from 1 to 47"});
    EXPECT_EQ(
        Findings({"tickets", "Ontario/Pick 3", Write("p.csv", "date,numbers,way\n2026-11-21,123,Combo\n")}),
        Texts{"p.csv:2:16: \"Combo\" is none of the ways Straight, Box"});
    EXPECT_EQ(Findings({"tickets", "Ontario/Pick 3", Write("p.csv", "date,numbers\n2026-11-21,123\n")}),
              Texts{"p.csv:1:1: the column \"way\" is missing"});
    EXPECT_EQ(Findings({"tickets", "Daily Keno",
                        Write("k.csv", "date,numbers,wager\n2026-11-21,1 2,2.50\n2026-11-21,,1\n")}),
              (Texts{"k.csv:2:1: a wager is in whole dollars", "k.csv:3:1: 0 numbers instead of 1 to 10"}));
    EXPECT_EQ(Findings({"tickets", "Ontario/BC49", Path("p.csv")}), Texts());
    EXPECT_EQ(
        Findings({"tickets", "Ontario/Lotto 6/49",
                  Write("e.csv", "date,numbers,encore,regular\n2026-11-21,1 2 3 4 5 6,12345,often\n")}),
        (Texts{"e.csv:2:24: \"12345\" has not 6 digits", "e.csv:2:30: \"often\" is neither yes nor no"}));
}

TEST_F(Tickets, RefuseAmountsAndMarksThatAreNone) {
    EXPECT_EQ(Findings({"tickets", "BC49",
                        Write("t.csv", "date,numbers,price,regular\n2026-11-21,1 2 3 4 5 6,much,perhaps\n"),
                        "--spent"}),
              (Texts{"t.csv:2:24: \"much\" is no amount", "t.csv:2:29: \"perhaps\" is neither yes nor no"}));
}

TEST_F(Tickets, BookTheUsualPriceOfEachDate) {
    Do({"tickets", "BC49",
        Write("a.csv",
              "date,numbers\n2026-11-21,1 2 3 4 5 6\n2026-11-21,1 2 3 4 5 7\n2026-11-14,1 2 3 4 5 6\n"),
        "--spent"});
    EXPECT_EQ(Ask("SELECT * FROM Spent"), (Texts{"1|BC49|46340|0.5", "2|BC49|46347|1"}));
    // Two of three came free.
    Do({"tickets", "Super 7",
        Write("s.csv",
              "date,numbers\n2026-11-21,1 2 3 4 5 6 7\n2026-11-21,1 2 3 4 5 6 8\n2026-11-21,1 2 3 4 5 6 9\n"),
        "--spent"});
    EXPECT_EQ(Ask("SELECT Spent FROM Spent WHERE ID1 = 3"), Texts{"2"});
    EXPECT_TRUE(
        Tells(Do({"tickets", "Daily Keno",
                  Write("k.csv", "date,numbers,wager\n2026-11-21,1 2,5\n2026-11-21,1 3,2\n"), "--spent"})
                  .words,
              "Spent: 7.00 booked for 1 date"));
}

TEST_F(Tickets, ThatCameFreeWithAnotherCostNothing) {
    const std::vector<std::string> sums = {"2.00", "2.00", "2.00", "4.00", "4.00", "4.00", "6.00"};
    std::string rows = "date,numbers\n";
    for (std::size_t tickets = 1; tickets <= sums.size(); ++tickets) {
        fs::remove_all(Path("data"));
        rows += "2026-11-21,1 2 3 4 5 6 " + std::to_string(tickets + 6) + "\n";
        EXPECT_TRUE(Tells(Do({"tickets", "Super 7", Write("s.csv", rows), "--spent"}).words,
                          "\nSpent: " + sums[tickets - 1] + " booked for 1 date\n"))
            << tickets;
    }
}

TEST_F(Tickets, AWagerOfKenoIsStoredInSixteenBits) {
    const auto told = [&](const std::string& wager) {
        fs::remove_all(Path("data"));
        return LinesOf(
            Run({"tickets", "Daily Keno", Write("k.csv", "date,1,wager\n2026-11-21,5," + wager + "\n")})
                .words);
    };
    for (const char* wager : {"0", "1", "$32767.00"})
        EXPECT_EQ(told(wager), Texts{"PlayedONTKeno: 1 ticket added"}) << wager;
    EXPECT_EQ(Ask("SELECT Wager FROM PlayedONTKeno"), Texts{"32767"});
    for (const char* wager : {"-1", "32768", "0.50", "1.01"})
        EXPECT_EQ(told(wager).at(0), Path("k.csv") + ":2:1: a wager is in whole dollars") << wager;
}

TEST_F(Tickets, NeedNoWagerWhereNoMoneyIsBookedOrTheGameHasOnePrice) {
    const std::string file = Write("f.csv", "date,numbers,way,wager,encore\n2026-11-21,909,box,,123456\n");
    EXPECT_EQ(Do({"tickets", "Ca$h 3", file}).words,
              "columns left aside: encore\nPlayedFLACash3: 1 ticket added\n");
    EXPECT_EQ(LinesOf(Do({"tickets", "Ontario/Pick 3", file, "--spent"}).words).at(1),
              "PlayedEncore: 1 ticket added");
    EXPECT_EQ(Do({"tickets", "Ontario/Pick 3", file, "--spent"}).words,
              "PlayedONTPick3: 0 tickets added, 1 there already\n"
              "PlayedEncore: 0 tickets added, 1 there already\n");
}

TEST_F(Tickets, BookWhatTheFileTellsAndOnlyTicketsThatAreNew) {
    const std::string file =
        Write("s.csv", "date,numbers,price\n2026-11-21,1 2 3 4 5 6 7,$3.00\n2026-11-21,1 2 3 4 5 6 8,\n");
    Do({"tickets", "Super 7", file, "--spent"});
    EXPECT_EQ(Ask("SELECT * FROM Spent"), Texts{"1|Super 7|46347|3"});
    EXPECT_EQ(Do({"tickets", "Super 7", file, "--spent"}).words,
              "PlayedSuper7: 0 tickets added, 2 there already\n");
    EXPECT_EQ(Ask("SELECT count(*) FROM Spent"), Texts{"1"});
    Do({"tickets", "Super 7", Write("n.csv", "date,numbers,price\n2026-11-21,1 2 3 4 5 6 9,3\n"), "--spent"});
    EXPECT_EQ(Ask("SELECT Spent FROM Spent"), (Texts{"3", "3"}));
    EXPECT_EQ(Findings({"tickets", "Ca$h 3", Write("f.csv", "date,numbers,way,wager\n2026-11-21,909,box,\n"),
                        "--spent"}),
              Texts{"f.csv:2:1: what this ticket cost is missing"});
}

TEST_F(Tickets, ADryRunChangesNothing) {
    const std::string file = Write("s.csv", "date,numbers\n2026-11-21,1 2 3 4 5 6 7\n");
    EXPECT_TRUE(Tells(Do({"tickets", "Super 7", file, "--dry-run", "--spent"}).words,
                      "a dry run: nothing was changed"));
    EXPECT_FALSE(fs::exists(Path("data")));
}

}  // namespace
}  // namespace sorvane::testing

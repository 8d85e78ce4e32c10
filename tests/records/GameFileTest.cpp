// What a history of a game may look like, draws or tickets: its columns, its cells, and what is refused.
#include "records/RecordsWorld.h"

namespace sorvane::testing {
namespace {

class GameFile : public RecordsWorld {
  public:
    // What the command says of a file with this text; without the folder, and without the line that counts
    // the findings. Whatever the file holds is forgotten again.
    Texts Told(const Texts& command, const std::string& text, const Texts& more = {}) {
        fs::remove_all(Path("data"));
        Texts arguments = command;
        arguments.push_back(Write("h.csv", text));
        arguments.insert(arguments.end(), more.begin(), more.end());
        Texts lines = LinesOf(Run(arguments).words);
        if (!lines.empty() && Tells(lines.back(), "nothing was changed")) lines.pop_back();
        for (std::string& line : lines)
            if (line.rfind(Path("h.csv:"), 0) == 0) line.erase(0, Path("h.csv:").size());
        return lines;
    }
    Texts Draws(const std::string& game, const std::string& text, const Texts& more = {}) {
        return Told({"draws", game}, text, more);
    }
    Texts Tickets(const std::string& game, const std::string& text, const Texts& more = {}) {
        return Told({"tickets", game}, text, more);
    }
};

// The finding, or what was added.
const std::string Draw = "2026-11-14,1 2 3 4 5 6,7";

TEST_F(GameFile, LeavesEachColumnAsideThatSaysNothingOfTheGame) {
    EXPECT_EQ(Draws("BC49", "date,numbers,bonus,,ball,0,7,ball_007,jackpot,jackpot,way,wager,price\n" + Draw +
                                ",,,,,,,,,,\n"),
              (Texts{"columns left aside: , ball, 0, 7, ball_007, jackpot, jackpot, way, wager, price",
                     "WinBC49: 1 draw added"}));
    EXPECT_EQ(Tickets("BC49",
                      "date,numbers,bonus,7,way,way played,wager,early bird,encore,price,regular\n"
                      "2026-11-14,1 2 3 4 5 6,,,,,,,,,\n"),
              (Texts{"columns left aside: bonus, 7, way, way played, wager, early bird, encore",
                     "PlayedBC49: 1 ticket added"}));
    EXPECT_EQ(Tickets("Lottario", "date,numbers,bonus,early bird,encore\n2026-11-14,1 2 3 4 5 6,,,\n"),
              (Texts{"columns left aside: bonus", "PlayedLottario: 1 ticket added"}));
    EXPECT_EQ(Tickets("Daily Keno", "date,11,way,early bird,wager,1\n2026-11-14,,,,,5\n"),
              (Texts{"columns left aside: 11, way, early bird", "PlayedONTKeno: 1 ticket added"}));
    EXPECT_EQ(Tickets("Ontario/Pick 3", "date,numbers,way,4,early bird,wager\n2026-11-14,123,box,,,\n"),
              (Texts{"columns left aside: 4, early bird", "PlayedONTPick3: 1 ticket added"}));
    // What is told by name leaves nothing aside that was told to be passed over.
    EXPECT_EQ(Draws("BC49", "x," + Draw + "\n", {"--columns", "-,date,numbers,bonus"}),
              Texts{"WinBC49: 1 draw added"});
}

TEST_F(GameFile, DrawsOfKenoHaveTwentyNumbersAndNoBonus) {
    std::string names, numbers;
    for (int i = 1; i <= 20; ++i) {
        names += ",Ball " + std::to_string(i);
        numbers += "," + std::to_string(i + 50);
    }
    EXPECT_EQ(Draws("Daily Keno", "date,bonus" + names + ",21\n2026-11-14,71" + numbers + ",\n"),
              (Texts{"columns left aside: bonus, 21", "WinONTKeno: 1 draw added"}));
    EXPECT_EQ(Draws("Daily Keno", "date,1,2,3\n2026-11-14,1,2,3\n"),
              Texts{"1:1: the column \"numbers\", or one of \"1\" to \"20\", is missing"});
    EXPECT_EQ(Draws("Daily Keno", "date" + names + "\n2026-11-14,," + numbers.substr(4) + "\n"),
              Texts{"2:12: \"\" is no whole number"});
}

TEST_F(GameFile, KnowsTheColumnsOfAnAddOnByItsNamesWithAndWithoutANumber) {
    const std::string row = "\n2026-11-14,1 2 3 4 5 6,7,";
    for (const char* name : {"Encore", "Encore Number", "ENCORE NO.", "add-on", "Add-On Number"})
        EXPECT_EQ(Draws("Ontario/Lotto 6/49", "date,numbers,bonus," + std::string(name) + row + "123456\n"),
                  (Texts{"WinLotto649: 1 draw added", "WinEncore: 1 draw added"}))
            << name;
    for (const char* name : {"encore1", "number", "no", "extra", "addons"})
        EXPECT_EQ(Draws("Ontario/Lotto 6/49", "date,numbers,bonus," + std::string(name) + row + "123456\n"),
                  (Texts{"columns left aside: " + std::string(name), "WinLotto649: 1 draw added"}))
            << name;
    EXPECT_EQ(
        Draws("BC/49", "date,numbers,bonus,extra number 1,extra no. 2,extra3,add-on 4,extra5,add-on 11" +
                           row + "1,99,3,4,,\n"),
        (Texts{"columns left aside: extra5, add-on 11", "WinBC49: 1 draw added", "WinExtra: 1 draw added"}));
    EXPECT_EQ(Ask("SELECT * FROM WinExtra"), Texts{"1|BC49|46340|1|99|3|4"});
    // The key of a game tells its region where one alone has the game.
    const std::string encore = "date,numbers,encore\n2026-11-14,123,123456\n";
    EXPECT_EQ(Draws("ONTPick3", encore), (Texts{"WinONTPick3: 1 draw added", "WinEncore: 1 draw added"}));
    for (const char* name : {"Super 7", "Lotto649"}) {
        const std::string seven = std::string(name) == "Super 7" ? " 17" : "";
        const Texts told = Draws(
            name, "date,numbers,bonus,extra,encore\n2026-11-14,1 2 3 4 5 6" + seven + ",7,1 2 3 4,123456\n");
        EXPECT_EQ(told.at(0), "columns left aside: extra, encore");
    }
}

TEST_F(GameFile, RefusesNumbersOfAnAddOnThatAreNone) {
    const auto extra = [&](const std::string& cell) {
        return Draws("BC/49", "date,numbers,bonus,extra\n" + Draw + "," + cell + "\n");
    };
    EXPECT_EQ(extra("1 2 3"), Texts{"2:1: Extra has 3 numbers instead of 4"});
    EXPECT_EQ(extra("1 2 3 4 5"), Texts{"2:1: Extra has 5 numbers instead of 4"});
    EXPECT_EQ(extra("0 2 3 100"), (Texts{"2:26: 0 is not from 1 to 99", "2:26: 100 is not from 1 to 99"}));
    EXPECT_EQ(extra("1 2 3 x"), Texts{"2:26: \"1 2 3 x\" is more than numbers"});
    EXPECT_EQ(Draws("BC/49", "date,numbers,bonus,extra1,extra2,extra3,extra4\n" + Draw + ",0,,100,4\n"),
              (Texts{"2:26: 0 is not from 1 to 99", "2:29: 100 is not from 1 to 99"}));
    EXPECT_EQ(Draws("BC/49", "date,numbers,bonus,extra1,extra2,extra3,extra4\n" + Draw + ",1,,3,4\n"),
              Texts{"2:1: Extra has 3 numbers instead of 4"});
    const auto encore = [&](const std::string& cell) {
        return Draws("Lottario", "date,numbers,bonus,encore\n" + Draw + "," + cell + "\n");
    };
    EXPECT_EQ(encore("1-2-3 456"), (Texts{"WinLottario: 1 draw added", "WinEncore: 1 draw added"}));
    EXPECT_EQ(encore("1234567"), Texts{"2:26: \"1234567\" has not 6 digits"});
    EXPECT_EQ(encore("12345x"), Texts{"2:26: \"12345x\" is more than numbers"});
}

TEST_F(GameFile, TakesTheNumbersOfOneCellAsTheGameHasThem) {
    const auto draws = [&](const std::string& game, const std::string& cell) {
        return Draws(game, "date,numbers\n2026-11-14," + cell + "\n").at(0);
    };
    EXPECT_EQ(draws("BC49", "1 2 3 4 5 6 + 7"), "WinBC49: 1 draw added");
    EXPECT_EQ(draws("BC49", "1 2 3 4 5 6"), "2:1: the bonus number is missing");
    EXPECT_EQ(draws("BC49", "1 2 3 4 5 6 7 8"), "2:1: 8 numbers instead of 6");
    EXPECT_EQ(draws("BC49", "123456"), "2:12: 123456 is not from 1 to 49");
    EXPECT_EQ(draws("BC49", "1 2 3 4 5 6 (7)"), "2:12: \"1 2 3 4 5 6 (7)\" is more than numbers");
    EXPECT_EQ(draws("BC49", ""), "2:1: 0 numbers instead of 6");
    EXPECT_EQ(draws("BC49", "1 2 3 4 5 6 6"), "2:1: the bonus number 6 is among the others");
    EXPECT_EQ(draws("BC49", "1 49 3 4 5 6 0"), "2:12: 0 is not from 1 to 49");
    for (const char* cell : {"482", "4 8 2", "4-8-2", " 4.8/2;"})
        EXPECT_EQ(draws("ONTPick3", cell), "WinONTPick3: 1 draw added") << cell;
    EXPECT_EQ(draws("ONTPick3", "48"), "2:12: 48 is not from 0 to 9");
    EXPECT_EQ(draws("ONTPick3", "4820"), "2:12: 4820 is not from 0 to 9");
    EXPECT_EQ(draws("ONTPick3", "48 2"), "2:12: 48 is not from 0 to 9");
    EXPECT_EQ(draws("ONTPick3", "4 8 2 0"), "2:1: 4 numbers instead of 3");
    // A bonus number with a column of its own is not among the numbers, and a ticket has none.
    EXPECT_EQ(Draws("BC49", "date,numbers,bonus\n2026-11-14,1 2 3 4 5 6 7,8\n"),
              Texts{"2:1: 7 numbers instead of 6"});
    EXPECT_EQ(Draws("BC49", "date,numbers,bonus\n2026-11-14,1 2 3 4 5 6,\n"),
              Texts{"2:24: \"\" is no whole number"});
    EXPECT_EQ(Tickets("BC49", "date,numbers\n2026-11-14,1 2 3 4 5 6 7\n"),
              Texts{"2:1: 7 numbers instead of 6"});
}

TEST_F(GameFile, ABallThatWasNotPlayedIsEmptyOrZeroInKenoAlone) {
    EXPECT_EQ(Tickets("Daily Keno", "date,1,2,3,4\n2026-11-14,0,70,,5\n"),
              Texts{"PlayedONTKeno: 1 ticket added"});
    EXPECT_EQ(Ask("SELECT * FROM PlayedONTKeno"), Texts{"1|46340|ONTKeno|5|70|0|0|0|0|0|0|0|0|0|2|0"});
    EXPECT_EQ(Tickets("Daily Keno", "date,1,2\n2026-11-14,x,71\n"),
              (Texts{"2:12: \"x\" is no whole number", "2:14: 71 is not from 1 to 70"}));
    EXPECT_EQ(Tickets("Daily Keno", "date,numbers\n2026-11-14,0 5\n"), Texts{"2:12: 0 is not from 1 to 70"});
    EXPECT_EQ(Tickets("Daily Keno", "date,numbers\n2026-11-14,1 2 3 4 5 6 7 8 9 10 11\n"),
              Texts{"2:1: 11 numbers instead of 1 to 10"});
    EXPECT_EQ(Tickets("Daily Keno", "date,wager\n2026-11-14,1\n"),
              Texts{"1:1: the column \"numbers\", or one of \"1\" to \"10\", is missing"});
    EXPECT_EQ(Tickets("BC49", "date,1,2,3,4,5,6\n2026-11-14,0,,3,4,5,6\n"),
              (Texts{"2:12: 0 is not from 1 to 49", "2:14: \"\" is no whole number"}));
}

TEST_F(GameFile, DigitsOfATicketKeepTheirOrder) {
    Tickets("Ontario/Pick 3", "date,1,2,3,way,regular\n2026-11-14,9,0,9,STRAIGHT,\n");
    EXPECT_EQ(Ask("SELECT * FROM PlayedONTPick3"), Texts{"1|ONTPick3|46340|9|0|9|Straight|0"});
    EXPECT_EQ(Tickets("Ca$h 3", "date,numbers,way\n2026-11-14,909,\n"),
              Texts{"2:16: \"\" is none of the ways Straight, Box, StraightBox, Combo"});
}

TEST_F(GameFile, TicketsOfFloridaNeedTheirWagerOrPriceWhereMoneyIsBooked) {
    const std::string row = "\n2026-11-14,909,box";
    EXPECT_EQ(Tickets("Ca$h 3", "date,numbers,way" + row + "\n", {"--spent"}),
              Texts{"1:1: the column \"wager\", or \"price\", is missing"});
    EXPECT_EQ(Tickets("Ca$h 3", "date,numbers,way" + row + "\n"), Texts{"PlayedFLACash3: 1 ticket added"});
    EXPECT_EQ(Tickets("Ca$h 3", "date,numbers,way,price" + row + ",1.50\n", {"--spent"}),
              (Texts{"PlayedFLACash3: 1 ticket added", "Spent: 1.50 booked for 1 date"}));
    EXPECT_EQ(Tickets("Ca$h 3", "date,numbers,way,wager" + row + ",0.50\n", {"--spent"}),
              (Texts{"PlayedFLACash3: 1 ticket added", "Spent: 0.50 booked for 1 date"}));
    EXPECT_EQ(Tickets("Ontario/Pick 3", "date,numbers,way" + row + "\n", {"--spent"}).at(0),
              "PlayedONTPick3: 1 ticket added");
}

TEST_F(GameFile, WhatItsFirstLineLacksIsToldOfIt) {
    const Texts columns{"--columns", "numbers,bonus,date"};
    EXPECT_EQ(Draws("BC49", "1 2 3 4 5 6\n1 2 3 4 5 6,7,2026-11-14\n", columns),
              Texts{"1:1: this line has 1 cell instead of 3"});
    EXPECT_EQ(Draws("BC49", "1 2 3 4 5 6,7\n1 2 3 4 5 6,7,2026-11-14\n", columns),
              Texts{"1:1: this line has 2 cells instead of 3"});
    EXPECT_EQ(Draws("BC49", "Numbers,Bonus,Day,More\n1 2 3 4 5 6,7,2026-11-14,x\n", columns),
              Texts{"WinBC49: 1 draw added"});
    EXPECT_EQ(Draws("BC49", "", columns), Texts{"WinBC49: 0 draws added"});
    EXPECT_EQ(Draws("BC49", "1 2 3 4 5 6,7,2026-11-14\n", {"--columns", "numbers,bonus"}),
              Texts{"1:1: the column \"date\" is missing"});
}

TEST_F(GameFile, EndsWhereItCantBeRead) {
    EXPECT_EQ(Draws("BC49", "date,\"num\"bers,bonus\n2026-11-14,1 2 3 4 5 6,7\n"),
              Texts{"1:6: the quote that opens here closes too early"});
    EXPECT_EQ(Draws("BC49", "date,numbers,bonus\n2026-11-14,\"1\"2,3\n2026-11-15,1 2 3,7\n"),
              Texts{"2:12: the quote that opens here closes too early"});
}

}  // namespace
}  // namespace sorvane::testing

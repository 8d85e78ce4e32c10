#include "records/RecordsWorld.h"

namespace sorvane::testing {
namespace {

class Check : public RecordsWorld {
  public:
    // The findings and notes, with the status that goes with them.
    std::vector<std::string> Findings(int status) {
        const Answer answer = Run({"check"});
        EXPECT_EQ(answer.status, status) << answer.data << answer.words;
        return LinesOf(answer.data);
    }
    std::string Finding() {
        const auto findings = Findings(1);
        EXPECT_EQ(findings.size(), 1U);
        return findings.empty() ? std::string() : findings.front();
    }
};

TEST_F(Check, FindsNothingInAFileOfEveryTable) {
    for (const Records::Table& table : Records::Tables()) Make(table.name);
    const Answer answer = Do({"check"});
    EXPECT_EQ(answer.data, "");
    EXPECT_EQ(answer.words, File().string() + ": sound\n");
}

TEST_F(Check, FindsNumbersThatTheGameLacks) {
    Make("PlayedSuper7");
    Sql("INSERT INTO PlayedSuper7 VALUES (1, 46347, 1,2,3,4,5,6,48, 0)");
    const Texts findings = Findings(1);
    EXPECT_EQ(findings[0], "PlayedSuper7 ID1 1: Ball_7 \"48\" is not from 1 to 47");
    Sql("DELETE FROM PlayedSuper7");
    Make("WinSuper7");
    Sql("INSERT INTO WinSuper7 VALUES (1, 46347, 1,2,3,4,5,6,48, 49)");
    EXPECT_EQ(Findings(0), Texts());
}

// Of each kind of table the ends of what its numbers may be, and their neighbours.
TEST_F(Check, KnowsTheLowestAndHighestNumberOfEachField) {
    struct Ends {
        std::string table, field;
        int low, high;
        bool null;  // it may be empty
    };
    const std::vector<Ends> all = {{"PlayedBC49", "Ball_1", 1, 49, false},
                                   {"WinBC49", "Ball_B", 1, 49, false},
                                   {"PlayedSuper7", "Ball_7", 1, 47, false},
                                   {"WinSuper7", "Ball_7", 1, 49, false},
                                   {"PlayedLottario", "Ball_6", 1, 45, false},
                                   {"WinLottario", "Ball_B", 1, 45, false},
                                   {"PlayedONTKeno", "Ball_1", 0, 70, false},
                                   {"PlayedONTKeno", "Wager", 0, 32'767, false},
                                   {"PlayedONTKeno", "# of Balls", 0, 32'767, false},
                                   {"WinONTKeno", "Ball_20", 1, 70, false},
                                   {"WinBCClubKeno", "Ball_20", 1, 80, false},
                                   {"PlayedONTPick3", "Ball_3", 0, 9, false},
                                   {"WinFLAPlay4", "Ball_4", 0, 9, false},
                                   {"PlayedExtra", "Ball_4", 1, 99, false},
                                   {"WinExtra", "Ball_4", -32'768, 32'767, false},
                                   {"PlayedEncore", "Number 6", 0, 9, false},
                                   {"WinEncore", "Number 6", 0, 9, false},
                                   {"WinEncore", "Number 7", 0, 9, true},
                                   {"WinWESTExtra", "Number 7", 0, 9, false},
                                   {"WinEarlyBird", "Ball_1", 1, 45, false},
                                   {"WinEarlyBird", "Ball_3", 1, 45, false},
                                   {"WinEarlyBird", "Ball_4", 1, 45, true},
                                   {"WinEarlyBird", "Date", 1, 45, false},
                                   {"Temp", "Ball_#", -32'768, 32'767, false}};
    for (const Ends& ends : all) {
        const auto& [table, field, low, high, null] = ends;
        fs::remove_all(Path("data"));
        Make(table);
        Sql("INSERT INTO " + table + " (ID1) VALUES (1)");
        const auto told = [&](const std::string& value) {
            Sql("UPDATE " + ends.table + " SET \"" + ends.field + "\" = " + value);
            std::string about;
            for (const std::string& line : LinesOf(Run({"check"}).data))
                if (Tells(line, ": " + ends.field + " ")) about += line.substr(line.find(": ") + 2);
            return about;
        };
        const std::string range = " is not from " + std::to_string(low) + " to " + std::to_string(high);
        const auto odd = [&](int value) {
            return ends.field == "Date" ? "Date holds no number from 1 to 45"
                                        : ends.field + " \"" + std::to_string(value) + "\"" + range;
        };
        EXPECT_EQ(told(std::to_string(low)), "") << table << " " << field;
        EXPECT_EQ(told(std::to_string(high)), "") << table << " " << field;
        EXPECT_EQ(told(std::to_string(low - 1)), odd(low - 1)) << table;
        EXPECT_EQ(told(std::to_string(high + 1)), odd(high + 1)) << table;
        // The mark of an add-on that was not played is a number nowhere else.
        EXPECT_EQ(told("99").empty(), high >= 99 || table == "PlayedEncore") << table << " " << field;
        EXPECT_EQ(told("NULL"), null ? "" : field + " is empty") << table;
    }
}

TEST_F(Check, ATextHasTheLengthOfItsFieldAndAWayMayBeEmptyButNotMissing) {
    Make("PlayedONTPick3");
    Make("Spent");
    Sql("INSERT INTO PlayedONTPick3 VALUES (1, 'ONTPick3', 46347, 0,1,2, '', 0)");
    const auto told = [&](const std::string& way) {
        Sql("UPDATE PlayedONTPick3 SET \"Way Played\" = " + way);
        const Texts lines = LinesOf(Run({"check"}).data);
        return Tells(lines.at(0), "note: ") ? "" : lines.at(0).substr(lines.at(0).find("Way Played"));
    };
    const std::string most(30, 'x');
    EXPECT_EQ(told("''"), "");
    EXPECT_EQ(told("'Straight & Scramble'"), "");
    EXPECT_EQ(told("'" + most + "'"), "Way Played \"" + most + "\" is no way of playing");
    EXPECT_EQ(told("'" + most + "x'"), "Way Played \"" + most + "x\" is too long");
    EXPECT_EQ(told("NULL"), "Way Played is empty");
    Make("PlayedExtra");
    Sql("DELETE FROM PlayedONTPick3; INSERT INTO PlayedExtra VALUES (1, 'BC49', 46347, 1,2,3,4, NULL, 0)");
    EXPECT_EQ(Findings(0), Texts());
}

TEST_F(Check, AnAddOnThatIsDrawnHasNoNumberForNotPlayed) {
    Make("WinEncore");
    Sql("INSERT INTO WinEncore VALUES (1, 'Lotto649', 46347, 99,99,99,99,99,99, NULL)");
    EXPECT_EQ(Findings(1).size(), 6U);
}

TEST_F(Check, KeysGoToTheLargestNumberOfTheirKind) {
    Make("WinBC49");
    Sql("INSERT INTO WinBC49 VALUES (2147483647, 46347, 1,2,3,4,5,6,7)");
    EXPECT_FALSE(Tells(Findings(1).at(0), "is no key"));
    Sql("UPDATE WinBC49 SET ID1 = 2147483648");
    EXPECT_TRUE(Tells(Findings(1).at(0), "is no key"));
}

TEST_F(Check, TellsOnceOfAKeyThatIsNone) {
    Make("WinBC49");
    Sql("INSERT INTO WinBC49 VALUES (0, 46347, 1,2,3,4,5,6,7), (1, 46348, 1,2,3,4,5,6,7)");
    const Texts findings = Findings(1);
    EXPECT_EQ(std::count_if(findings.begin(), findings.end(),
                            [](const std::string& told) { return Tells(told, "ID1"); }),
              1)
        << findings.at(0);
}

TEST_F(Check, ShowsFortyCharactersOfALongText) {
    Make("PlayedONTPick3");
    const std::string forty(40, 'x');
    for (const std::string& way : {forty, forty + "y"}) {
        Sql("INSERT INTO PlayedONTPick3 VALUES (1, 'ONTPick3', 46347, 1,2,3, '" + way + "', 0)");
        const std::string shown = way == forty ? forty : forty + "...";
        EXPECT_EQ(Findings(1).at(0), "PlayedONTPick3 ID1 1: Way Played \"" + shown + "\" is too long");
        Sql("DELETE FROM PlayedONTPick3");
    }
}

TEST_F(Check, FindsATicketWithANumberTwice) {
    Make("PlayedLottario");
    Sql("INSERT INTO PlayedLottario VALUES (1, 46347, 1,2,3,4,5,5, 0,1)");
    const Answer answer = Run({"check"});
    EXPECT_EQ(LinesOf(answer.data), (Texts{"PlayedLottario ID1 1: Ball_6 \"5\" stands there twice",
                                           "note: Lottario 2026-11-21: tickets, but no row in Spent"}));
    EXPECT_EQ(answer.words, File().string() + ": 1 finding, 1 note\n");
}

TEST_F(Check, LooksAtATicketAsAWholeOnceItsNumbersAreRight) {
    Make("PlayedLottario");
    Sql("INSERT INTO PlayedLottario VALUES (1, 46347, 1,2,3,4,46,46, 0,1)");
    for (const std::string& told : Findings(1)) EXPECT_FALSE(Tells(told, "twice")) << told;
}

TEST_F(Check, TakesKenoTicketsWithFewerBallsAndFindsAGapAmongThem) {
    Make("PlayedONTKeno");
    Sql("INSERT INTO PlayedONTKeno VALUES (1, 46347, 'ONTKeno', 5,9,0,0,0,0,0,0,0,0, 2, 2, 0),"
        "(2, 46347, 'ONTKeno', 5,0,9,0,0,0,0,0,0,0, 0, 12, 0)");
    EXPECT_EQ(Findings(1)[0], "PlayedONTKeno ID1 2: Ball_3 stands behind a ball that was not played");
}

TEST_F(Check, TakesAnAddOnThatWasNotPlayedButNotInPart) {
    Make("PlayedEncore");
    Sql("INSERT INTO PlayedEncore VALUES (1, 'Lotto649', 46347, 99,99,99,99,99,99, NULL),"
        "(2, 'Lotto649', 46347, 99,99,99,99,99,1, NULL), (3, 'Lotto649', 46347, 0,1,2,3,4,10, NULL)");
    EXPECT_EQ(Findings(1), Texts({"PlayedEncore ID1 2: Number 6 belongs to a number that is played in part",
                                  "PlayedEncore ID1 3: Number 6 \"10\" is not from 0 to 9"}));
}

TEST_F(Check, WesternExtraNeedsItsSeventhDigit) {
    Make("PlayedWESTExtra");
    Sql("INSERT INTO PlayedWESTExtra VALUES (1, 'Super 7', 46347, 1,2,3,4,5,6, NULL)");
    EXPECT_EQ(Finding(), "PlayedWESTExtra ID1 1: Number 7 is empty");
}

TEST_F(Check, KnowsTheOddPlaceOfTheEarlyBirdDraw) {
    Make("WinEarlyBird");
    Sql("INSERT INTO WinEarlyBird VALUES (1, '2006-03-11', 7, 8, 9, 45, NULL)");
    EXPECT_EQ(Findings(0), Texts());
    Sql("UPDATE WinEarlyBird SET Date = 46, Lottoflag = 'Lottario'");
    EXPECT_EQ(Findings(1), Texts({"WinEarlyBird ID1 1: Lottoflag \"Lottario\" is no date",
                                  "WinEarlyBird ID1 1: Date holds no number from 1 to 45"}));
}

TEST_F(Check, FindsWaysDatesAmountsMarksAndGamesThatAreNone) {
    Make("PlayedONTPick3");
    Make("Spent");
    Sql("INSERT INTO PlayedONTPick3 VALUES (1, 'Quote3', 'soon', 0,1,2, 'Sideways', 'maybe')");
    Sql("INSERT INTO Spent VALUES (1, 'Bingo', 46347, 'much'), (2, NULL, 1e9, 1)");
    const Texts findings = Findings(1);
    EXPECT_EQ(findings, Texts({"PlayedONTPick3 ID1 1: Lottoflag \"Quote3\" is not \"ONTPick3\"",
                               "PlayedONTPick3 ID1 1: Date \"soon\" is no date",
                               "PlayedONTPick3 ID1 1: Way Played \"Sideways\" is no way of playing",
                               "PlayedONTPick3 ID1 1: Regular \"maybe\" is neither true nor false",
                               "PlayedONTPick3 ID1 1: Regular is stored as another type",
                               "Spent ID1 1: Lottoflag \"Bingo\" is the key of no game",
                               "Spent ID1 1: Spent \"much\" is no amount", "Spent ID1 2: Lottoflag is empty",
                               "Spent ID1 2: Date \"1000000000\" is no date",
                               "note: Bingo 2026-11-21: a row in Spent, but no tickets"}));
}

TEST_F(Check, FindsWhatIsStoredAsAnotherType) {
    Make("Spent");
    Make("PlayedBC49");
    Sql("INSERT INTO Spent VALUES (1, x'42433439', 46347, 1), (2, 'BC49', 46347.0, 1)");
    Sql("INSERT INTO PlayedBC49 VALUES (1, 46347, 1,2,3,4,5,6, 1.5, NULL)");
    EXPECT_EQ(Findings(1), (Texts{"Spent ID1 1: Lottoflag is stored as another type",
                                  "PlayedBC49 ID1 1: Regular is stored as another type",
                                  "PlayedBC49 ID1 1: EarlyBird is stored as another type"}));
}

TEST_F(Check, DigitsAndTheNumbersOfAnAddOnMayBeDrawnTwice) {
    for (const char* table : {"WinFLAPlay4", "WinExtra", "WinEncore", "PlayedONTPick3"}) Make(table);
    Sql("INSERT INTO WinFLAPlay4 VALUES (1, 'FLAPlay4', 46347, 9,9,0,9);"
        "INSERT INTO WinExtra VALUES (1, 'BC49', 46347, 9,9,7,9);"
        "INSERT INTO WinEncore VALUES (1, 'Lotto649', 46347, 9,9,0,9,1,1, NULL)");
    EXPECT_EQ(Findings(0), Texts());
}

TEST_F(Check, TellsWhereTheKeysHaveHoles) {
    Make("WinBC49");
    Sql("INSERT INTO WinBC49 SELECT value, 46000 + value, 1,2,3,4,5,6,7 FROM json_each('[2,3,7,9]')");
    EXPECT_EQ(Finding(),
              "WinBC49: no row has the ID1 1, 4 to 6, 8, so that rows to come may be refused (3022); "
              "\"sorvane-records renumber\" mends it");
}

TEST_F(Check, FindsKeysThatAreNoneAndKeysThatTwoRowsHave) {
    Make("WinBC49");
    Sql("DROP INDEX \"WinBC49.ID1\"");
    Sql("INSERT INTO WinBC49 VALUES (NULL,46000,1,2,3,4,5,6,7), (1,46001,1,2,3,4,5,6,7),"
        "(1,46002,1,2,3,4,5,6,7), ('x',46003,1,2,3,4,5,6,7)");
    EXPECT_EQ(Findings(1),
              Texts({"WinBC49: the index over ID1 is missing or another", "WinBC49 row 1: ID1 is empty",
                     "WinBC49 ID1 1: two rows have it", "WinBC49 row 4: ID1 \"x\" is no whole number"}));
}

TEST_F(Check, FindsTablesThatAreNotAsTheProgramMakesThem) {
    world.WithDatabase();
    Sql("CREATE TABLE Spent (ID1 LONG, Lottoflag TEXT(30), Date DATETIME, Spent VARCHAR, Extra LONG);"
        "CREATE TABLE Winnings (ID1 LONG, Date DATETIME);"
        "CREATE TABLE Mine (a); CREATE VIEW Seen AS SELECT * FROM Mine;"
        "CREATE TRIGGER t AFTER INSERT ON Mine BEGIN SELECT 1; END");
    EXPECT_EQ(Findings(1),
              Texts({"Spent: field 4 Spent is of the type VARCHAR instead of CURRENCY",
                     "Spent: the field Extra is none of the program's",
                     "Winnings: field 2 is Date instead of Lottoflag", "Winnings: the field Date is missing",
                     "Winnings: the field Winnings is missing",
                     "note: Mine: not made by Sorvane, which leaves it alone",
                     "note: view Seen: not made by Sorvane, which leaves it alone",
                     "note: trigger t: not made by Sorvane, which leaves it alone"}));
}

TEST_F(Check, AnIndexOfAnotherNameOrKindIsNotTheIndex) {
    Make("WinBC49");
    const auto told = [&](const std::string& index, const std::string& made) {
        Sql("DROP INDEX \"WinBC49." + index + "\"; CREATE " + made);
        const std::string line = Finding();
        Sql("DROP TABLE WinBC49");
        Make("WinBC49");
        return line;
    };
    const std::string date = "WinBC49: the index over Date is missing or another";
    const std::string key = "WinBC49: the index over ID1 is missing or another";
    EXPECT_EQ(told("Date", "UNIQUE INDEX \"WinBC49.Date\" ON WinBC49 (Date)"), date);
    EXPECT_EQ(told("Date", "INDEX \"Date\" ON WinBC49 (Date)"), date);
    EXPECT_EQ(told("Date", "INDEX \"WinBC49.Date\" ON WinBC49 (Date, Ball_1)"), date);
    EXPECT_EQ(told("Date", "INDEX \"WinBC49.Date\" ON WinBC49 (Date) WHERE Date > 0"), date);
    EXPECT_EQ(told("ID1", "INDEX \"WinBC49.ID1\" ON WinBC49 (ID1)"), key);
    Sql("DROP INDEX \"WinBC49.Date\"; CREATE INDEX \"winbc49.DATE\" ON WinBC49 (DATE)");
    EXPECT_EQ(Findings(0), Texts());
}

TEST_F(Check, NamesTenHolesAmongTheKeys) {
    Make("WinBC49");
    const auto told = [&](int rows) {
        Sql("DELETE FROM WinBC49; WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < " +
            std::to_string(rows) + ") INSERT INTO WinBC49 SELECT 2 * i, 46000 + i, 1,2,3,4,5,6,7 FROM n");
        return Finding().substr(0, 70);
    };
    EXPECT_EQ(told(10), "WinBC49: no row has the ID1 1, 3, 5, 7, 9, 11, 13, 15, 17, 19, so that");
    EXPECT_EQ(told(11), "WinBC49: no row has the ID1 1, 3, 5, 7, 9, 11, 13, 15, 17, 19, ..., so");
    EXPECT_EQ(told(12), "WinBC49: no row has the ID1 1, 3, 5, 7, 9, 11, 13, 15, 17, 19, ..., so");
}

TEST_F(Check, AnIndexOverAnotherFieldIsNotTheIndex) {
    Make("WinBC49");
    Sql("DROP INDEX \"WinBC49.Date\"; CREATE INDEX \"WinBC49.Date\" ON WinBC49 (Ball_1)");
    EXPECT_EQ(Finding(), "WinBC49: the index over Date is missing or another");
}

TEST_F(Check, NotesWhatIsOddButCanBeRead) {
    for (const char* table : {"PlayedBC49", "WinBC49", "Spent", "Winnings"}) Make(table);
    Sql("INSERT INTO PlayedBC49 VALUES (1, 46347, 1,2,3,4,5,6, 0,0);"
        "INSERT INTO WinBC49 VALUES (1, 46347.5, 1,1,3,4,5,6,7);"
        "INSERT INTO Spent VALUES (1, 'BC49', 46348, 1);"
        "INSERT INTO Winnings VALUES (1, 'BC49', 46349, 1)");
    const Answer answer = Do({"check"});
    EXPECT_EQ(LinesOf(answer.data),
              Texts({"note: WinBC49 ID1 1: Date has a time of day", "note: WinBC49 ID1 1: 1 is drawn twice",
                     "note: BC49 2026-11-21: tickets, but no row in Spent",
                     "note: BC49 2026-11-22: a row in Spent, but no tickets",
                     "note: BC49 2026-11-23: a row in Winnings, but no tickets"}));
    EXPECT_EQ(answer.words, File().string() + ": sound, 5 notes\n");
}

TEST_F(Check, FindsAFileThatIsNotWhole) {
    Make("WinBC49");
    Sql("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 2000)"
        "INSERT INTO WinBC49 SELECT i, 40000 + i, 1,2,3,4,5,6,7 FROM n");
    // An index that has lost a row is nothing that opening the file would show.
    Sql("PRAGMA writable_schema = ON;"
        "UPDATE sqlite_schema SET sql = 'CREATE INDEX \"WinBC49.Date\" ON \"WinBC49\" (\"Ball_1\")' "
        "WHERE name = 'WinBC49.Date'");
    const Texts findings = Findings(1);
    ASSERT_GE(findings.size(), 2U);
    EXPECT_TRUE(Tells(findings.front(), "WinBC49.Date")) << findings.front();
    // No more than a hundred places, however many there are.
    EXPECT_EQ(std::count_if(findings.begin(), findings.end(),
                            [](const std::string& told) { return Tells(told, "WinBC49.Date"); }),
              100);
}

TEST_F(Check, ShowsABarOnATerminalOnceASecondHasPassed) {
    Make("WinBC49");
    Sql("INSERT INTO WinBC49 VALUES (1, 46347, 1,2,3,4,5,6,7), (2, 46348, 1,2,3,4,5,6,7)");
    tick = 600;
    EXPECT_FALSE(Tells(Do({"check"}).words, "Checking"));
    terminal = true;
    const Answer slow = Do({"check"});
    EXPECT_TRUE(Tells(slow.words, "\r\x1b[KChecking [##############################] 100 %\r\x1b[K"))
        << slow.words;
    EXPECT_FALSE(Tells(slow.words, " 50 %"));
    tick = 0;
    EXPECT_FALSE(Tells(Do({"check"}).words, "Checking"));
}

}  // namespace
}  // namespace sorvane::testing

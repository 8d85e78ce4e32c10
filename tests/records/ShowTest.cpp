#include "records/RecordsWorld.h"

namespace sorvane::testing {
namespace {

using Show = RecordsWorld;

TEST_F(Show, TellsTicketsDrawsDatesAndMoneyOfEachGame) {
    for (const char* table : {"PlayedBC49", "WinBC49", "Spent", "Winnings", "PlayedExtra", "WinONTKeno"})
        Make(table);
    Sql(R"(INSERT INTO PlayedBC49 VALUES (1, 46347, 1,2,3,4,5,6, 0,0), (2, 46347, 1,2,3,4,5,7, 0,0);
           INSERT INTO WinBC49 VALUES (1, 46340, 1,2,3,4,5,6,7);
           INSERT INTO Spent VALUES (1, 'BC49', 46347, 4.5);
           INSERT INTO Winnings VALUES (1, 'BC49', 46350, 10);
           INSERT INTO PlayedExtra VALUES (1, 'BC49', 46347, 1,2,3,4, NULL, 0);)");
    const Answer answer = Do({"show"});
    EXPECT_EQ(answer.data,
              "Game   Tickets  Draws       First        Last  Spent    Won  Difference\n"
              "BC49         2      1  2026-11-14  2026-11-24   4.50  10.00        5.50\n"
              "Extra        1      0  2026-11-21  2026-11-21\n"
              "All                                             4.50  10.00        5.50\n");
    EXPECT_EQ(answer.words, "");
}

TEST_F(Show, TellsTheSameAsJson) {
    for (const char* table : {"PlayedSuper7", "Spent"}) Make(table);
    Sql(R"(INSERT INTO PlayedSuper7 VALUES (1, 46347, 1,2,3,4,5,6,7, 0);
           INSERT INTO Spent VALUES (1, 'Super 7', 46347, 2);)");
    EXPECT_EQ(Do({"show", "--json"}).data,
              "[\n  {\n    \"game\": \"Super 7\",\n    \"title\": \"Super 7\",\n    \"tickets\": 1,\n"
              "    \"draws\": 0,\n    \"first\": \"2026-11-21\",\n    \"last\": \"2026-11-21\",\n"
              "    \"spent\": \"2.00\",\n    \"won\": \"0.00\",\n    \"difference\": \"-2.00\"\n  }\n]\n");
}

TEST_F(Show, AsJsonTellsTitlesAndNoMoneyOfAnAddOn) {
    Make("WinLotto649");
    Make("WinEncore");
    Sql(R"(INSERT INTO WinLotto649 VALUES (1, 46347, 1,2,3,4,5,6,7), (2, 46345, 1,2,3,4,5,6,7),
                                          (3, 46346, 1,2,3,4,5,6,7);
           INSERT INTO WinEncore VALUES (1, 'Lotto649', 46347, 1,2,3,4,5,6, NULL);)");
    EXPECT_EQ(Do({"show", "--json"}).data,
              "[\n  {\n    \"game\": \"Lotto649\",\n    \"title\": \"Lotto 6/49\",\n    \"tickets\": 0,\n"
              "    \"draws\": 3,\n    \"first\": \"2026-11-19\",\n    \"last\": \"2026-11-21\",\n"
              "    \"spent\": \"0.00\",\n    \"won\": \"0.00\",\n    \"difference\": \"0.00\"\n  },\n"
              "  {\n    \"game\": \"Encore\",\n    \"title\": \"Encore\",\n    \"tickets\": 0,\n"
              "    \"draws\": 1,\n    \"first\": \"2026-11-21\",\n    \"last\": \"2026-11-21\"\n  }\n]\n");
}

TEST_F(Show, PassesOverTheTablesOfOthers) {
    world.WithDatabase();
    Sql("CREATE TABLE Mine (Date DATETIME, Lottoflag TEXT(30)); INSERT INTO Mine VALUES (46000, 'BC49')");
    Make("WinBC49");
    Sql("INSERT INTO WinBC49 VALUES (1, 46340, 1,2,3,4,5,6,7)");
    EXPECT_EQ(LinesOf(Do({"show"}).data).at(1),
              "BC49        0      1  2026-11-14  2026-11-14   0.00  0.00        0.00");
}

TEST_F(Show, TakesTheFolderThatIsTold) {
    Make("Spent");
    Sql("INSERT INTO Spent VALUES (1, 'BC49', 46347, 1)");
    fs::rename(File().parent_path(), Path("else"));
    EXPECT_EQ(Run({"show"}).status, 1);
    EXPECT_TRUE(Tells(Do({"show", "--data", Path("else")}).data, "BC49"));
    EXPECT_TRUE(Tells(Do({"--data", Path("else"), "show"}).data, "BC49"));
}

TEST_F(Show, SaysWhyTheFileCantBeRead) {
    const Answer missing = Run({"show"});
    EXPECT_EQ(missing.status, 1);
    EXPECT_EQ(missing.words, "sorvane-records: " + File().string() + ": there is no such file (3024)\n");
    EXPECT_EQ(missing.data, "");
    EXPECT_FALSE(fs::exists(File().parent_path()));
    Write("data/sorvane.mdb", "Dear diary, this is no database, although it is long enough to be one.");
    EXPECT_TRUE(Tells(Run({"show"}).words, "this is no database, or it is damaged (3343)"));
}

TEST_F(Show, RowsOfGamesThatNobodyKnowsAreLeftOut) {
    Make("Spent");
    Sql("INSERT INTO Spent VALUES (1, 'Bingo', 46347, 1), (2, NULL, 46347, 1), (3, 'BC49', 'once', 1)");
    EXPECT_EQ(LinesOf(Do({"show"}).data).size(), 2U);
    Sql("INSERT INTO Spent VALUES (4, 'BC49', 46347, 2), (5, 'BC49', 46347, 'much')");
    EXPECT_EQ(LinesOf(Do({"show"}).data).at(1),
              "BC49        0      0  2026-11-21  2026-11-21   2.00  0.00       -2.00");
}

TEST_F(Show, FieldsAreFoundByTheirNames) {
    Make("WinBC49");
    Sql(R"(CREATE TABLE Spent (Lottoflag TEXT, Date DATETIME, Spent CURRENCY, ID1 LONG);
           INSERT INTO Spent VALUES ('BC49', 46347, 3, 1);
           CREATE TABLE Winnings (Winnings CURRENCY, Lottoflag TEXT, Date DATETIME);
           INSERT INTO Winnings VALUES (10, 'BC49', 46348);)");
    EXPECT_EQ(Do({"show"}).data,
              "Game  Tickets  Draws       First        Last  Spent    Won  Difference\n"
              "BC49        0      0  2026-11-21  2026-11-22   3.00  10.00        7.00\n"
              "All                                            3.00  10.00        7.00\n");
}

// Somebody else's tables of the same names.
TEST_F(Show, TablesWithoutTheFieldsThatAreReadAreLeftOut) {
    Make("WinBC49");
    Sql(R"(INSERT INTO WinBC49 VALUES (1, 46340, 1,2,3,4,5,6,7);
           CREATE TABLE PlayedBC49 (Day, Ball_1); INSERT INTO PlayedBC49 VALUES (46347, 1);
           CREATE TABLE Spent (Date, Spent); INSERT INTO Spent VALUES (46347, 3);
           CREATE TABLE Winnings (Date, Lottoflag); INSERT INTO Winnings VALUES (46347, 'BC49');)");
    EXPECT_EQ(Do({"show"}).data,
              "Game  Tickets  Draws       First        Last  Spent   Won  Difference\n"
              "BC49        0      1  2026-11-14  2026-11-14   0.00  0.00        0.00\n"
              "All                                            0.00  0.00        0.00\n");
}

}  // namespace
}  // namespace sorvane::testing

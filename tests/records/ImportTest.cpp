#include "records/RecordsWorld.h"
#include "support/FaultVfs.h"
#include "support/OtherProgram.h"

namespace sorvane::testing {
namespace {

class Import : public RecordsWorld {
  public:
    static constexpr const char* Header = "ID1,Date,Ball_1,Ball_2,Ball_3,Ball_4,Ball_5,Ball_6,Ball_B\n";
    std::string Csv(const std::string& rows) const { return Write("in/WinBC49.csv", Header + rows); }
    // The findings, without the folder's name and the last line, which counts them.
    Texts Findings() {
        const bool there = fs::exists(File());
        const std::string before = there ? BytesOf(File()) : "";
        const Answer answer = Run({"import", Path("in")});
        EXPECT_EQ(answer.status, 1) << answer.words;
        EXPECT_EQ(fs::exists(File()), there);
        EXPECT_EQ(there ? BytesOf(File()) : "", before);
        Texts lines = LinesOf(answer.words);
        EXPECT_FALSE(lines.empty());
        if (!lines.empty()) {
            EXPECT_TRUE(Tells(lines.back(), "nothing was changed")) << lines.back();
            lines.pop_back();
        }
        for (std::string& line : lines)
            if (line.rfind(Path("in/"), 0) == 0) line.erase(0, Path("in/").size());
        return lines;
    }
};
using Export = Import;

// Every table, with rows as the program's own writers leave them.
void FillEveryTable(Import& world) {
    std::string sql;
    for (const Records::Table& table : Records::Tables()) {
        world.Make(table.name);
        for (int row = 1; row <= 3; ++row) {
            std::string values;
            for (std::size_t i = 0; i < table.fields.size(); ++i) {
                const Records::Field& field = table.fields[i];
                std::string value = std::to_string(static_cast<int>(i) % 3 + row);
                if (field.means == Records::Means::Number)
                    value = std::to_string(i + static_cast<std::size_t>(row));
                if (table.game && IsPick(table.game->in) && field.means == Records::Means::Number)
                    value = "9";
                if (field.means == Records::Means::Key) value = std::to_string(row);
                if (field.means == Records::Means::Day)
                    value = table.use == Records::Use::EarlyBird ? "7" : std::to_string(46340 + row / 2);
                if (field.means == Records::Means::Game)
                    value = "'" + std::string(table.game ? table.game->LottoFlag : "Super 7") + "'";
                if (field.means == Records::Means::DayAsText) value = "'2006-03-11'";
                if (field.means == Records::Means::Way)
                    value = field.mayBeNull ? "NULL" : row == 1 ? "''" : "'Straight & Scramble'";
                if (field.means == Records::Means::Mark) value = std::to_string(row % 2);
                if (field.means == Records::Means::Amount)
                    value = row == 1 ? "4" : row == 2 ? "0.25" : "1250.0625";
                if (field.mayBeNull) value = "NULL";
                values += (values.empty() ? "" : ", ") + value;
            }
            sql += "INSERT INTO \"" + table.name + "\" VALUES (" + values + ");";
        }
    }
    world.Sql(sql);
}

TEST_F(Export, AndImportIntoAnEmptyFolderGivesTheSameRowsInEveryTable) {
    FillEveryTable(*this);
    EXPECT_EQ(Run({"check"}).status, 0) << Run({"check"}).data;
    const auto before = AllRows();
    EXPECT_EQ(before.size(), Records::Tables().size() * 3);
    const auto types = [&] {
        Texts all;
        PlainFile file(world.DbName());
        for (const Records::Table& table : Records::Tables()) {
            std::string columns;
            for (const Records::Field& field : table.fields)
                columns += (columns.empty() ? "typeof(\"" : ", typeof(\"") + field.name + "\")";
            for (const std::string& row : file.Rows("SELECT " + columns + " FROM " + table.name))
                all.push_back(table.name + " " + row);
        }
        std::sort(all.begin(), all.end());
        return all;
    };
    const Texts typesBefore = types();
    const Texts schema = Ask("SELECT sql FROM sqlite_schema ORDER BY sql");
    Do({"export", Path("out")});
    fs::remove_all(Path("data"));
    Do({"import", Path("out")});
    auto after = AllRows(), sorted = before;
    std::sort(after.begin(), after.end());
    std::sort(sorted.begin(), sorted.end());
    EXPECT_EQ(after, sorted);
    EXPECT_EQ(types(), typesBefore);
    EXPECT_EQ(Ask("SELECT sql FROM sqlite_schema ORDER BY sql"), schema);
    EXPECT_EQ(Run({"check"}).status, 0);
    // Once more adds nothing.
    const Answer again = Do({"import", Path("out")});
    EXPECT_EQ(AllRows().size(), before.size());
    for (const std::string& line : LinesOf(again.words))
        EXPECT_TRUE(Tells(line, ": 0 rows added, 3 there already")) << line;
}

TEST_F(Export, WritesPlainCsvWithIsoDatesAndPlainAmounts) {
    for (const char* table : {"Spent", "PlayedONTKeno", "PlayedExtra", "PlayedONTPick3"}) Make(table);
    Sql(R"(INSERT INTO Spent VALUES (1, 'Super 7', 46347, 6.5);
           INSERT INTO PlayedONTKeno VALUES (1, 46347, 'ONTKeno', 5,9,0,0,0,0,0,0,0,0, 2, 2, 1);
           INSERT INTO PlayedExtra VALUES (1, 'BC49', 46347, 1,2,3,4, NULL, 0);
           INSERT INTO PlayedONTPick3 VALUES (1, 'ONTPick3', 46347, 0,1,2, '', 0);)");
    Do({"export", Path("out")});
    EXPECT_EQ(BytesOf(Path("out/Spent.csv")), "ID1,Lottoflag,Date,Spent\r\n1,Super 7,2026-11-21,6.5\r\n");
    EXPECT_EQ(
        BytesOf(Path("out/PlayedONTKeno.csv")),
        "ID1,Date,Lottoflag,Ball_1,Ball_2,Ball_3,Ball_4,Ball_5,Ball_6,Ball_7,Ball_8,Ball_9,Ball_10,Wager,"
        "# of Balls,Regular\r\n1,2026-11-21,ONTKeno,5,9,0,0,0,0,0,0,0,0,2,2,true\r\n");
    EXPECT_EQ(LinesOf(BytesOf(Path("out/PlayedExtra.csv")))[1], "1,BC49,2026-11-21,1,2,3,4,,false\r");
    EXPECT_EQ(LinesOf(BytesOf(Path("out/PlayedONTPick3.csv")))[1],
              "1,ONTPick3,2026-11-21,0,1,2,\"\",false\r");
}

TEST_F(Export, NeverWritesOverAFileUnlessForced) {
    Make("Spent");
    Make("WinBC49");
    Write("out/WinBC49.csv", "mine");
    EXPECT_EQ(Run({"export", Path("out")}).status, 1);
    EXPECT_EQ(BytesOf(Path("out/WinBC49.csv")), "mine");
    EXPECT_FALSE(fs::exists(Path("out/Spent.csv")));
    Do({"export", Path("out"), "--force"});
    EXPECT_TRUE(Tells(BytesOf(Path("out/WinBC49.csv")), "Ball_B"));
    Write("all.json", "mine");
    EXPECT_EQ(Run({"export", "--json", Path("all.json")}).status, 1);
    EXPECT_EQ(BytesOf(Path("all.json")), "mine");
    Do({"export", "--json", Path("all.json"), "--force"});
    EXPECT_EQ(BytesOf(Path("all.json")).front(), '{');
    EXPECT_EQ(Run({"export", "--json", Path("all.json"), "--force"}).words,
              "2 tables written to " + Path("all.json") + "\n");
    // A folder is nothing to write over, and a file is no folder.
    EXPECT_TRUE(Tells(Run({"export", "--json", Path("out"), "--force"}).words, "this is there already"));
    EXPECT_EQ(Do({"export", Path("new")}).words, "2 tables written to " + Path("new") + "\n");
    EXPECT_EQ(Run({"export", Path("all.json")}).words,
              "sorvane-records: " + Path("all.json") + ": this can't be made (75)\n");
    EXPECT_EQ(Run({"export"}).status, 2);
    EXPECT_EQ(Run({"export", Path("x"), "--json", Path("y")}).status, 2);
}

TEST_F(Export, WritesEveryFileOrNone) {
    Make("Spent");
    Make("WinBC49");
    // The second file can't be begun.
    fs::create_directories(Path("out/WinBC49.csv.part/in the way"));
    const Answer answer = Run({"export", Path("out")});
    EXPECT_EQ(answer.status, 1);
    EXPECT_TRUE(Tells(answer.words, Path("out/WinBC49.csv") + ": ")) << answer.words;
    EXPECT_FALSE(fs::exists(Path("out/Spent.csv")));
    EXPECT_FALSE(fs::exists(Path("out/Spent.csv.part")));
}

TEST_F(Export, LeavesOutWhatIsNoneOfTheProgramsAndRefusesAStrangeTable) {
    Make("Spent");
    Sql("CREATE TABLE Mine (a)");
    EXPECT_TRUE(Tells(Do({"export", Path("out")}).words, "Mine: not made by Sorvane, left out"));
    EXPECT_FALSE(fs::exists(Path("out/Mine.csv")));
    Sql("CREATE TABLE Winnings (ID1 LONG)");
    EXPECT_TRUE(Tells(Run({"export", Path("out"), "--force"}).words, "Winnings is not as Sorvane makes it"));
}

TEST_F(Import, TakesCsvAsOtherDatabaseToolsWriteIt) {
    Write("in/PlayedLottario.csv",
          "\"ID1\",\"Date\",\"Ball_1\",\"Ball_2\",\"Ball_3\",\"Ball_4\",\"Ball_5\",\"Ball_6\",\"Regular\","
          "\"EarlyBird\"\r\n"
          "1,\"03/11/06 00:00:00\",1,2,3,4,5,45,1,0\r\n2,\"03/18/06 00:00:00\",1,2,3,4,5,6,-1,No\r\n");
    Write("in/playedontkeno.CSV",
          "regular;wager;__of_Balls;ball_1;ball_2;ball_3;ball_4;ball_5;ball_6;ball_7;ball_8;ball_9;ball_10;"
          "date\n"
          "Yes;5;3;7;20;70;0;0;0;0;0;0;0;2006-03-11\n");
    Write("in/Winnings.csv",
          "ID1,Lottoflag,Date,Winnings\n1,\"Super 7\",03/11/06 00:00:00,\"$1,250.0000\"\n");
    Do({"import", Path("in")});
    EXPECT_EQ(Ask("SELECT * FROM PlayedLottario"),
              (Texts{"1|38787|1|2|3|4|5|45|1|0", "2|38794|1|2|3|4|5|6|1|0"}));
    EXPECT_EQ(Ask("SELECT * FROM PlayedONTKeno"), Texts{"1|38787|ONTKeno|7|20|70|0|0|0|0|0|0|0|5|3|1"});
    EXPECT_EQ(Ask("SELECT * FROM Winnings"), Texts{"1|Super 7|38787|1250"});
}

TEST_F(Import, MakesTheFileTheTableAndItsPair) {
    Csv("1,2026-11-21,1,2,3,4,5,6,7\n");
    EXPECT_EQ(Do({"import", Path("in")}).words, "WinBC49: 1 row added\n");
    EXPECT_EQ(world.Plain().Tables(), (Texts{"PlayedBC49", "WinBC49"}));
    EXPECT_EQ(world.Plain().One("PRAGMA application_id"), std::to_string(0x536F7276));
    std::vector<fs::path> left;
    for (const auto& entry : fs::directory_iterator(Path("data"))) left.push_back(entry.path());
    EXPECT_EQ(left, std::vector<fs::path>{File()});
}

TEST_F(Import, CountsOnWhereTheKeyIsMissing) {
    Make("WinBC49");
    Sql("INSERT INTO WinBC49 VALUES (1, 46000, 1,2,3,4,5,6,7), (5, 46001, 1,2,3,4,5,6,7)");
    Csv(",2026-11-21,1,2,3,4,5,6,7\n9,2026-11-22,1,2,3,4,5,6,7\n,2026-11-23,1,2,3,4,5,6,7\n");
    Do({"import", Path("in")});
    EXPECT_EQ(Ask("SELECT ID1 FROM WinBC49 ORDER BY rowid"), (Texts{"1", "5", "6", "9", "10"}));
}

TEST_F(Import, CountsOnBehindTheLargestKeyOfTheScratchTableToo) {
    Make("Temp");
    Sql("INSERT INTO Temp VALUES (1, 7, 3), (9, 8, 3)");
    Write("in/Temp.csv", "Ball_#,Ball_Freq\n10,4\n");
    Do({"import", Path("in")});
    EXPECT_EQ(Ask("SELECT ID1 FROM Temp ORDER BY rowid"), (Texts{"1", "9", "10"}));
}

TEST_F(Import, ARowOfTheScratchTableIsThereAlreadyIfItWasThereBefore) {
    Write("in/Temp.csv", "ID1,Ball_#,Ball_Freq\n1,7,3\n1,7,3\n");
    EXPECT_EQ(Do({"import", Path("in")}).words, "Temp: 2 rows added\n");
    EXPECT_EQ(Do({"import", Path("in")}).words, "Temp: 0 rows added, 2 there already\n");
    Write("in/Temp.csv", "ID1,Ball_#,Ball_Freq\n1,7,4\n");
    EXPECT_EQ(Do({"import", Path("in")}).words, "Temp: 1 row added\n");
}

TEST_F(Import, TheLargestKeyIsGivenToo) {
    Make("WinBC49");
    Sql("INSERT INTO WinBC49 VALUES (2147483646, 46000, 1,2,3,4,5,6,7)");
    Csv(",2026-11-21,1,2,3,4,5,6,7\n");
    Do({"import", Path("in")});
    EXPECT_EQ(Ask("SELECT ID1 FROM WinBC49"), (Texts{"2147483646", "2147483647"}));
}

TEST_F(Import, AFileMayLackWhatTheProgramsWritersLeaveOutAndNothingElse) {
    Write("in/WinBC49.csv", "ID1,Ball_1,Ball_2,Ball_3,Ball_4,Ball_5,Ball_B\n");
    Write("in/Winnings.csv", "ID1,Date\n");
    Write("in/PlayedONTPick3.csv", "Ball_1,Ball_2,Ball_3,Date\n");
    Write("in/PlayedEncore.csv", "Date,Number 1,Number 2,Number 3,Number 4,Number 5\n");
    Write("in/WinWESTExtra.csv", "Lottoflag,Date,Number 1,Number 2,Number 3,Number 4,Number 5,Number 6\n");
    Write("in/WinEarlyBird.csv", "Date,Lottoflag,Ball_1,Ball_2\n");
    EXPECT_EQ(Findings(), (Texts{"Winnings.csv:1:1: the column Lottoflag is missing",
                                 "Winnings.csv:1:1: the column Winnings is missing",
                                 "WinBC49.csv:1:1: the column Date is missing",
                                 "WinBC49.csv:1:1: the column Ball_6 is missing",
                                 "PlayedONTPick3.csv:1:1: the column Way Played is missing",
                                 "PlayedEncore.csv:1:1: the column Lottoflag is missing",
                                 "PlayedEncore.csv:1:1: the column Number 6 is missing",
                                 "WinWESTExtra.csv:1:1: the column Number 7 is missing",
                                 "WinEarlyBird.csv:1:1: the column Ball_3 is missing"}));
}

TEST_F(Import, WithoutAKeyThatIsLeftIsRefusedUntilTheKeysAreCountedAnew) {
    Make("WinBC49");
    Sql("INSERT INTO WinBC49 VALUES (2147483647, 46000, 1,2,3,4,5,6,7)");
    Csv(",2026-11-21,1,2,3,4,5,6,7\n");
    const std::string before = BytesOf(File());
    const Answer answer = Run({"import", Path("in")});
    EXPECT_EQ(answer.status, 1);
    EXPECT_TRUE(Tells(answer.words, "WinBC49: no key is left; \"sorvane-records renumber\" makes room"))
        << answer.words;
    EXPECT_EQ(BytesOf(File()), before);
    Do({"renumber"});
    Do({"import", Path("in")});
    EXPECT_EQ(Ask("SELECT ID1 FROM WinBC49"), (Texts{"1", "2"}));
}

TEST_F(Import, AFileThatSomebodyMadeMeanwhileKeepsItsPlace) {
    Csv("1,2026-11-21,1,2,3,4,5,6,7\n");
    terminal = true;
    meanwhile = [&] {
        if (fs::exists(Path("data/sorvane.mdb.part"))) Write("data/sorvane.mdb", "theirs");
    };
    const Answer answer = Run({"import", Path("in")});
    EXPECT_EQ(answer.status, 1) << answer.words;
    EXPECT_EQ(BytesOf(File()), "theirs");
    EXPECT_FALSE(fs::exists(Path("data/sorvane.mdb.part")));
}

TEST_F(Import, TellsEveryFindingWithFileLineAndColumnAndChangesNothing) {
    Make("WinBC49");
    Sql("INSERT INTO WinBC49 VALUES (3, 46000, 1,2,3,4,5,6,7)");
    Csv("1,2026-11-21,1,2,3,4,5,6,7\n"
        "2,21st,1,2,3,4,5,6,50\n"
        "3,2026-11-23,1,2,3,4,5,6,7\n"
        "4,2026-11-24,0,2,x,4,5,,7\n"
        "5,2026-11-25,1,2\n"
        "0,2026-11-26,1,2,3,4,5,6,7\n"
        "1,2026-11-27,1,2,3,4,5,6,7\n"
        "\"6\",\"2026-11-28\",1,2,3,4,5,6,\"7");
    Write("in/Spent.csv", "Lottoflag,Date\n");
    Write("in/Notes.csv", "a,b\n");
    Write("in/PlayedBC49.csv", "");
    EXPECT_EQ(
        Findings(),
        (Texts{"Notes.csv:1:1: no table of Sorvane bears the name of this file",
               "Spent.csv:1:1: the column Spent is missing", "PlayedBC49.csv:1:1: this file has no line",
               "WinBC49.csv:3:3: Date \"21st\" is no date",
               "WinBC49.csv:4:1: ID1 is taken by another row (--new-keys counts the keys on)",
               "WinBC49.csv:5:18: Ball_3 \"x\" is no whole number",
               "WinBC49.csv:6:1: this line has 4 cells instead of 9", "WinBC49.csv:7:1: ID1 \"0\" is no key",
               "WinBC49.csv:8:1: ID1 is taken by another row (--new-keys counts the keys on)",
               "WinBC49.csv:9:30: the quote that opens here is not closed"}));
}

TEST_F(Import, ChecksRangesOfEveryGame) {
    Csv("1,2026-11-21,0,2,3,4,5,6,50\n");
    Write("in/PlayedSuper7.csv",
          "Date,Ball_1,Ball_2,Ball_3,Ball_4,Ball_5,Ball_6,Ball_7\n2026-11-21,1,2,3,4,5,6,48\n");
    Write("in/PlayedFLACash3.csv", "Date,Ball_1,Ball_2,Ball_3,Way Played\n2026-11-21,1,2,10,Combo\n");
    Write("in/PlayedTag.csv",
          "Lottoflag,Date,Number 1,Number 2,Number 3,Number 4,Number 5,Number "
          "6\nLotto649,2026-11-21,1,2,3,4,5,\n");
    EXPECT_EQ(Findings(), (Texts{"WinBC49.csv:2:14: Ball_1 \"0\" is not from 1 to 49",
                                 "WinBC49.csv:2:26: Ball_B \"50\" is not from 1 to 49",
                                 "PlayedSuper7.csv:2:24: Ball_7 \"48\" is not from 1 to 47",
                                 "PlayedFLACash3.csv:2:16: Ball_3 \"10\" is not from 0 to 9",
                                 "PlayedTag.csv:2:31: Number 6 is empty"}));
}

TEST_F(Import, RefusesUnknownAndDoubledColumns) {
    Write("in/WinBC49.csv", "ID1,Date,Ball_1,Ball_2,Ball_3,Ball_4,Ball_5,Ball_6,Ball_B,ball 1,Jackpot\n");
    EXPECT_EQ(Findings(), (Texts{"WinBC49.csv:1:59: Ball_1 stands in two columns",
                                 "WinBC49.csv:1:66: WinBC49 has no field \"Jackpot\""}));
}

TEST_F(Import, RowsThatAreThereAlreadyAreSkippedAndCounted) {
    Make("PlayedBC49");
    Sql("INSERT INTO PlayedBC49 VALUES (1, 46347, 1,2,3,4,5,6, 0,0), (2, 46347, 1,2,3,4,5,6, 0,0)");
    // The same numbers three times: twice there, once new.
    Write("in/PlayedBC49.csv",
          "Date,Ball_1,Ball_2,Ball_3,Ball_4,Ball_5,Ball_6\n2026-11-21,1,2,3,4,5,6\n"
          "2026-11-22,1,2,3,4,5,6\n2026-11-21,1,2,3,4,5,6\n2026-11-21,1,2,3,4,5,6\n");
    EXPECT_EQ(Do({"import", Path("in")}).words, "PlayedBC49: 2 rows added, 2 there already\n");
    EXPECT_EQ(Ask("SELECT ID1, Date FROM PlayedBC49"), (Texts{"1|46347", "2|46347", "3|46348", "4|46347"}));
    EXPECT_EQ(Do({"import", Path("in")}).words, "PlayedBC49: 0 rows added, 4 there already\n");
}

TEST_F(Import, AnOnlyRowThatIsThereAlreadyIsSkippedToo) {
    Make("PlayedBC49");
    Write("in/PlayedBC49.csv", "Date,Ball_1,Ball_2,Ball_3,Ball_4,Ball_5,Ball_6\n2026-11-21,1,2,3,4,5,6\n");
    EXPECT_EQ(Do({"import", Path("in")}).words, "PlayedBC49: 1 row added\n");
    EXPECT_EQ(Do({"import", Path("in")}).words, "PlayedBC49: 0 rows added, 1 there already\n");
}

TEST_F(Import, NewKeysMergeTheRecordsOfAnotherFile) {
    Make("WinBC49");
    Sql("INSERT INTO WinBC49 VALUES (1, 46000, 1,2,3,4,5,6,7)");
    Csv("1,2026-11-21,1,2,3,4,5,6,7\n");
    EXPECT_EQ(Findings().size(), 1U);
    Do({"import", Path("in"), "--new-keys"});
    EXPECT_EQ(Ask("SELECT ID1, Date FROM WinBC49"), (Texts{"1|46000", "2|46347"}));
}

TEST_F(Import, ADryRunTellsTheSameAndChangesNothing) {
    Csv("1,2026-11-21,1,2,3,4,5,6,7\n");
    const Answer fresh = Do({"import", Path("in"), "--dry-run"});
    EXPECT_EQ(fresh.words, "WinBC49: 1 row added\na dry run: nothing was changed\n");
    EXPECT_FALSE(fs::exists(Path("data")));
    Make("WinBC49");
    const std::string before = BytesOf(File());
    Do({"import", Path("in"), "--dry-run"});
    EXPECT_EQ(BytesOf(File()), before);
    Csv("1,2026-11-21,1,2,3,4,5,6,77\n");
    EXPECT_EQ(Run({"import", Path("in"), "--dry-run"}).status, 1);
}

TEST_F(Import, RefusesAFolderWithoutCsvAndATableThatIsNotTheProgramsOwn) {
    fs::create_directories(Path("in"));
    EXPECT_TRUE(Tells(Run({"import", Path("in")}).words, "there is no CSV file in this folder"));
    EXPECT_TRUE(Tells(Run({"import", Path("none")}).words, "this is no folder that can be read"));
    EXPECT_FALSE(fs::exists(Path("data")));
    world.WithDatabase();
    Sql("CREATE TABLE WinBC49 (ID1 LONG)");
    Csv("1,2026-11-21,1,2,3,4,5,6,7\n");
    EXPECT_TRUE(Tells(Run({"import", Path("in")}).words, "WinBC49 is not as Sorvane makes it"));
}

TEST_F(Import, RefusesATableWithAFieldOfAnotherTypeOrName) {
    for (const char* fields : {"ID1 LONG, Lottoflag TEXT(30), Date DATETIME, Spent LONG",
                               "ID1 LONG, Lottoflag TEXT(30), Date DATETIME, Paid CURRENCY",
                               "ID1 LONG, Lottoflag TEXT(30), Date DATETIME, Spent CURRENCY, More LONG",
                               "ID1 LONG, Lottoflag TEXT(30), Date DATETIME"}) {
        fs::remove_all(Path("data"));
        world.WithDatabase();
        Sql("CREATE TABLE Spent (" + std::string(fields) +
            "); CREATE UNIQUE INDEX \"Spent.ID1\" ON Spent (ID1);"
            "CREATE INDEX \"Spent.Date\" ON Spent (Date)");
        Write("in/Spent.csv", "Lottoflag,Date,Spent\nBC49,2026-11-21,4\n");
        EXPECT_TRUE(Tells(Run({"import", Path("in")}).words, "Spent is not as Sorvane makes it")) << fields;
        EXPECT_TRUE(Tells(Run({"export", Path("out")}).words, "Spent is not as Sorvane makes it")) << fields;
    }
}

TEST_F(Import, RefusesATableThatLacksAnIndex) {
    Make("WinBC49");
    Csv("1,2026-11-21,1,2,3,4,5,6,7\n");
    Sql("DROP INDEX [WinBC49.Date]");
    EXPECT_TRUE(Tells(Run({"import", Path("in")}).words, "WinBC49 is not as Sorvane makes it"));
}

TEST_F(Import, IsAllOrNothingWhateverTheDiskDoes) {
    Make("WinBC49");
    Sql("INSERT INTO WinBC49 VALUES (1, 46000, 1,2,3,4,5,6,7)");
    Write("in/Spent.csv", "Lottoflag,Date,Spent\nBC49,2026-11-21,4\n");
    Csv("2,2026-11-21,1,2,3,4,5,6,7\n");
    const std::string before = BytesOf(File());
    FaultVfs disk("records-import");
    vfs = disk.Name();
    int failures = 0;
    for (const auto operation : FaultVfs::Operations)
        for (int n = 1; n < 200; ++n) {
            disk.FailAt(operation, n, FaultVfs::Lasting::Once);
            const Answer answer = Run({"import", Path("in")});
            const bool failed = disk.Failures() > 0;
            disk.Heal();
            const auto draws = Ask("SELECT count(*) FROM WinBC49").front();
            const bool spent = !Ask("SELECT 1 FROM sqlite_schema WHERE name = 'Spent'").empty();
            EXPECT_EQ(draws == "2", spent) << NameOf(operation) << n;
            EXPECT_TRUE(answer.status == 0 || draws == "1") << NameOf(operation) << n;
            if (failed) ++failures;
            Write("data/sorvane.mdb", before);
            if (!failed) break;
        }
    EXPECT_GT(failures, 20);
}

TEST_F(Import, AFileThatAnotherProgramHoldsIsLeftAlone) {
    Make("WinBC49");
    OtherProgram other(File().string());
    other.Do("BEGIN IMMEDIATE");
    Csv(",2026-11-21,1,2,3,4,5,6,7\n");
    const Answer answer = Run({"import", Path("in")});
    EXPECT_EQ(answer.status, 1);
    EXPECT_TRUE(Tells(answer.words, "another program holds the file")) << answer.words;
    other.Do("ROLLBACK");
    EXPECT_EQ(Ask("SELECT count(*) FROM WinBC49"), Texts{"0"});
    Do({"import", Path("in")});
    // Also when nothing is to be written in the end: what is there is compared under the lock.
    other.Do("BEGIN IMMEDIATE");
    EXPECT_EQ(Run({"import", Path("in")}).status, 1);
    other.Do("ROLLBACK");
    Do({"import", Path("in")});
}

TEST_F(Import, ShowsABarThatFindingsBreak) {
    Csv("1,2026-11-21,1,2,3,4,5,6,7\n2,2026-11-22,1,2,3,4,5,6,77\n3,2026-11-23,1,2,3,4,5,6,7\n");
    terminal = true;
    tick = 1001;
    const Answer answer = Run({"import", Path("in")});
    EXPECT_TRUE(Tells(answer.words, "Importing [")) << answer.words;
    EXPECT_TRUE(Tells(answer.words, "\r\x1b[K" + Path("in/WinBC49.csv:3:26:"))) << answer.words;
}

TEST_F(Import, TheBarGrowsToTheEndOfALargeFile) {
    std::string rows;
    for (int key = 1; key <= 6000; ++key) rows += std::to_string(key) + ",2026-11-21,1,2,3,4,5,6,7\n";
    ASSERT_GT(rows.size(), 150'000U);
    Csv(rows);
    terminal = true;
    tick = 1001;
    const std::string words = Do({"import", Path("in")}).words;
    int last = -1;
    for (std::size_t at = words.find("] "); at != std::string::npos; at = words.find("] ", at + 1)) {
        const int percent = std::stoi(words.substr(at + 2));
        EXPECT_GT(percent, last);
        last = percent;
    }
    EXPECT_GE(last, 99);
}

TEST_F(Import, TheBarIsWipedOnceForAllFindingsOfALine) {
    Csv("1,2026-11-21,1,2,3,4,5,6,7\n2,2026-11-22,1,2,3,4,5,66,77\n");
    terminal = true;
    tick = 1001;
    const std::string place = Path("in/WinBC49.csv");
    EXPECT_TRUE(Tells(Run({"import", Path("in")}).words,
                      "\r\x1b[K" + place + ":3:24: Ball_6 \"66\" is not from 1 to 49\n" + place +
                          ":3:27: Ball_B \"77\" is not from 1 to 49\n"));
}

}  // namespace
}  // namespace sorvane::testing

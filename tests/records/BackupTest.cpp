#include "records/RecordsWorld.h"
#include "support/FaultVfs.h"
#include "support/OtherProgram.h"

namespace sorvane::testing {
namespace {

class Backup : public RecordsWorld {
  public:
    void SetUp() override {
        Make("WinBC49");
        Sql("INSERT INTO WinBC49 VALUES (1, 46347, 1,2,3,4,5,6,7)");
    }
    Texts In(std::string_view folder) const {
        Texts names;
        for (const auto& entry : fs::directory_iterator(Path(folder)))
            names.push_back(entry.path().filename().string());
        std::sort(names.begin(), names.end());
        return names;
    }
    static std::string DrawsIn(const std::string& path) {
        return PlainFile(path).One("SELECT count(*) FROM WinBC49");
    }
};
using Restore = Backup;
using Renumber = Backup;

TEST_F(Backup, IsAWholeCopyUnderANameWithDateAndTime) {
    const Answer answer = Do({"backup"});
    EXPECT_EQ(answer.data, Path("data/backups/sorvane-2026-11-21-201500.mdb") + "\n");
    EXPECT_EQ(In("data/backups"), Texts{"sorvane-2026-11-21-201500.mdb"});
    EXPECT_EQ(BytesOf(Path("data/backups/sorvane-2026-11-21-201500.mdb")).size(), BytesOf(File()).size());
    EXPECT_EQ(DrawsIn(Path("data/backups/sorvane-2026-11-21-201500.mdb")), "1");
    // A second one in the same second.
    Do({"backup"});
    EXPECT_EQ(In("data/backups"),
              (Texts{"sorvane-2026-11-21-201500-2.mdb", "sorvane-2026-11-21-201500.mdb"}));
    now = {Date::FromYmd(2026, 2, 3), 4, 5, 6};
    EXPECT_EQ(Do({"backup"}).data, Path("data/backups/sorvane-2026-02-03-040506.mdb") + "\n");
    Do({"backup"});
    EXPECT_EQ(Do({"backup"}).data, Path("data/backups/sorvane-2026-02-03-040506-3.mdb") + "\n");
}

TEST_F(Backup, GoesWhereItIsToldAndNeverOverAFileUnlessForced) {
    Do({"backup", Path("usb/mine.mdb")});
    EXPECT_EQ(DrawsIn(Path("usb/mine.mdb")), "1");
    Sql("DELETE FROM WinBC49");
    const Answer refused = Run({"backup", Path("usb/mine.mdb")});
    EXPECT_EQ(refused.status, 1);
    EXPECT_TRUE(Tells(refused.words, "this is there already"));
    EXPECT_EQ(DrawsIn(Path("usb/mine.mdb")), "1");
    Do({"backup", Path("usb/mine.mdb"), "--force"});
    EXPECT_EQ(DrawsIn(Path("usb/mine.mdb")), "0");
    EXPECT_EQ(In("usb"), Texts{"mine.mdb"});
    EXPECT_TRUE(Tells(Run({"backup", File().string(), "--force"}).words, "this is the file itself"));
    EXPECT_TRUE(Tells(Run({"backup", Path("usb"), "--force"}).words, "this is there already"));
    EXPECT_EQ(Run({"backup", Path("usb/mine.mdb/more.mdb")}).words,
              "sorvane-records: " + Path("usb/mine.mdb/more.mdb") + ": this can't be made (75)\n");
    // What a copy that was cut short has left.
    Write("usb/other.mdb.part", "old");
    Write("usb/other.mdb.part-journal", "old");
    Do({"backup", Path("usb/other.mdb")});
    EXPECT_EQ(DrawsIn(Path("usb/other.mdb")), "0");
    EXPECT_EQ(In("usb"), (Texts{"mine.mdb", "other.mdb"}));
}

TEST_F(Backup, KeepsTheNewestOfItsOwnMakingAndNothingElseIsRemoved) {
    fs::create_directories(Path("data/backups"));
    for (const char* name : {"sorvane-2025-01-01-000000.mdb", "sorvane-2025-01-01-000000-2.mdb",
                             "sorvane-2025-01-01-000000-10.mdb", "sorvane-2025-06-01-000000.mdb", "mine.mdb",
                             "sorvane-2024-01-01.mdb", "sorvane-2024-01-01-000000-x.mdb"})
        Write(std::string("data/backups/") + name, "x");
    const Answer answer = Do({"backup", "--keep", "3"});
    EXPECT_EQ(In("data/backups"), (Texts{"mine.mdb", "sorvane-2024-01-01-000000-x.mdb",
                                         "sorvane-2024-01-01.mdb", "sorvane-2025-01-01-000000-10.mdb",
                                         "sorvane-2025-06-01-000000.mdb", "sorvane-2026-11-21-201500.mdb"}));
    EXPECT_EQ(LinesOf(answer.words).size(), 2U) << answer.words;
    EXPECT_EQ(Run({"backup", "--keep", "0"}).status, 2);
    EXPECT_EQ(Run({"backup", Path("x.mdb"), "--keep", "3"}).status, 2);
}

TEST_F(Backup, KnowsItsOwnNamesToTheLetterAndWhichIsTheOlder) {
    const Texts others = {"aorvane-2019-09-09-090909.mdb",     "sorvane-2019-09-09-090909-.mdb",
                          "sorvane-2019-09-09-090909-1x.mdb",  "sorvane-2019-09-09-090909-3.mdb.part",
                          "sorvane-2019-09-09-0909090.mdb",    "sorvane-2019-09-09-09090:.mdb",
                          "sorvane-2019-09-09-09090;.mdb",     "sorvane-2019-09-09-09090..mdb",
                          "sorvane-2019-09-09-090909.bak",     "sorvane-2019-09-09_090909.mdb",
                          "sorvane-before-2019-09-090909.mdb", "sorvane-2019-09-09-090909x2.mdb"};
    // The oldest first.
    const Texts own = {"sorvane-2019-09-09-090908-2.mdb",  "sorvane-2019-09-09-090909.mdb",
                       "sorvane-2019-09-09-090909-2.mdb",  "sorvane-2019-09-09-090909-3.mdb",
                       "sorvane-2019-09-09-090909-10.mdb", "sorvane-2019-09-09-090909-11.mdb",
                       "sorvane-2020-01-01-000000.mdb",    "sorvane-2026-11-21-201500.mdb"};
    for (const std::string& name : others) Write("data/backups/" + name, "x");
    // Made in no order that a folder might tell them in.
    for (const std::size_t at : {3U, 0U, 5U, 1U, 6U, 4U, 2U}) Write("data/backups/" + own[at], "x");
    fs::create_directories(Path("data/backups/sorvane-2018-01-01-000000.mdb"));
    for (std::size_t keep = own.size(); keep >= 1; --keep) {
        fs::remove(Path("data/backups/" + own.back()));
        const Answer answer = Do({"backup", "--keep", std::to_string(keep)});
        Texts left = others;
        left.push_back("sorvane-2018-01-01-000000.mdb");
        left.insert(left.end(), own.end() - static_cast<std::ptrdiff_t>(keep), own.end());
        std::sort(left.begin(), left.end());
        EXPECT_EQ(In("data/backups"), left) << keep;
        const std::string removed = keep == own.size() ? "" : own[own.size() - keep - 1];
        EXPECT_EQ(answer.words, removed.empty() ? "" : "removed " + Path("data/backups/" + removed) + "\n");
    }
    fs::remove(Path("data/backups/" + own.back()));
    Do({"backup", "--keep", "1000000"});
    EXPECT_EQ(Run({"backup", "--keep", "1000001"}).status, 2);
}

TEST_F(Backup, OfAFileThatIsNotWholeIsRefusedAndLeavesNothing) {
    Sql("PRAGMA writable_schema = ON;"
        "UPDATE sqlite_schema SET sql = 'CREATE INDEX \"WinBC49.Date\" ON \"WinBC49\" (\"Ball_1\")' "
        "WHERE name = 'WinBC49.Date'");
    const Answer answer = Run({"backup"});
    EXPECT_EQ(answer.status, 1);
    EXPECT_TRUE(Tells(answer.words, "is not whole")) << answer.words;
    EXPECT_EQ(In("data/backups"), Texts());
}

TEST_F(Backup, OfALargeFileIsMadeInParts) {
    Sql("CREATE TABLE Large (a); INSERT INTO Large VALUES (zeroblob(4000000))");
    terminal = true;
    tick = 1001;
    const std::string words = Do({"backup", Path("b.mdb")}).words;
    std::vector<int> shown;
    for (std::size_t at = words.find("] "); at != std::string::npos; at = words.find("] ", at + 1))
        shown.push_back(std::stoi(words.substr(at + 2)));
    // Of about a thousand pages 256 at once.
    ASSERT_EQ(shown.size(), 4U) << words;
    const int near[] = {26, 52, 78, 100};
    for (std::size_t i = 0; i < 4; ++i) EXPECT_NEAR(shown[i], near[i], 2);
}

TEST_F(Backup, OfNoFileSaysSoAndMakesNoFolder) {
    fs::remove(File());
    EXPECT_EQ(Run({"backup"}).words,
              "sorvane-records: " + File().string() + ": there is no such file (3024)\n");
    EXPECT_FALSE(fs::exists(Path("data/backups")));
}

TEST_F(Backup, IsMadeWhileAnotherProgramReadsAndIsAboutToWrite) {
    OtherProgram other(File().string());
    other.Do("BEGIN IMMEDIATE; INSERT INTO WinBC49 VALUES (2, 46348, 1,2,3,4,5,6,7)");
    Do({"backup", Path("b.mdb")});
    EXPECT_EQ(DrawsIn(Path("b.mdb")), "1");
    other.Do("COMMIT");
}

TEST_F(Backup, ADiskThatFailsLeavesNoCopyAndTheFileAsItIs) {
    const std::string before = BytesOf(File());
    FaultVfs disk("records-backup");
    vfs = disk.Name();
    for (const auto operation : {FaultVfs::Operation::Write, FaultVfs::Operation::Sync}) {
        int failures = 0;
        for (int n = 1; n < 200; ++n) {
            disk.FailAt(operation, n, FaultVfs::Lasting::Always);
            const Answer answer = Run({"backup", Path("usb/b.mdb")});
            if (disk.Failures() == 0) break;
            ++failures;
            EXPECT_EQ(answer.status, 1) << n;
            EXPECT_EQ(In("usb"), Texts()) << n;
            EXPECT_EQ(BytesOf(File()), before);
        }
        EXPECT_GT(failures, 2);
        disk.Heal();
        fs::remove(Path("usb/b.mdb"));
    }
}

TEST_F(Restore, PutsTheCopyBackAndKeepsWhatStoodThere) {
    Do({"backup", Path("b.mdb")});
    Sql("INSERT INTO WinBC49 VALUES (2, 46348, 1,2,3,4,5,6,7)");
    const Answer answer = Do({"restore", Path("b.mdb")});
    EXPECT_EQ(DrawsIn(File().string()), "1");
    EXPECT_EQ(In("data"), (Texts{"sorvane-before-restore-2026-11-21-201500.mdb", "sorvane.mdb"}));
    EXPECT_EQ(DrawsIn(Path("data/sorvane-before-restore-2026-11-21-201500.mdb")), "2");
    EXPECT_EQ(answer.words, "the file that stood here is kept as " +
                                Path("data/sorvane-before-restore-2026-11-21-201500.mdb") + "\nrestored " +
                                File().string() + " from " + Path("b.mdb") + "\n");
    // And back again, in the same second.
    Do({"restore", Path("data/sorvane-before-restore-2026-11-21-201500.mdb")});
    EXPECT_EQ(DrawsIn(File().string()), "2");
    EXPECT_EQ(In("data").size(), 3U);
    EXPECT_EQ(DrawsIn(Path("b.mdb")), "1");
}

TEST_F(Restore, WorksWhereThereIsNoFileAndWhereItIsDamaged) {
    Do({"backup", Path("b.mdb")});
    fs::remove_all(Path("data"));
    Do({"restore", Path("b.mdb")});
    EXPECT_EQ(DrawsIn(File().string()), "1");
    EXPECT_EQ(In("data"), Texts{"sorvane.mdb"});
    const std::string damaged(5000, 'x');
    Write("data/sorvane.mdb", damaged);
    Write("data/sorvane.mdb-shm", "old");
    Do({"restore", Path("b.mdb")});
    EXPECT_EQ(DrawsIn(File().string()), "1");
    EXPECT_EQ(In("data"), (Texts{"sorvane-before-restore-2026-11-21-201500.mdb",
                                 "sorvane-before-restore-2026-11-21-201500.mdb-shm", "sorvane.mdb"}));
    EXPECT_EQ(BytesOf(Path("data/sorvane-before-restore-2026-11-21-201500.mdb")), damaged);
}

TEST_F(Restore, TakesAFileOfWhichThereIsOnlyANote) {
    Do({"backup", Path("b.mdb")});
    PlainFile(Path("b.mdb")).Do("UPDATE WinBC49 SET Ball_2 = Ball_1");
    const Answer answer = Do({"restore", Path("b.mdb")});
    EXPECT_FALSE(Tells(answer.words, "twice")) << answer.words;
    EXPECT_EQ(Ask("SELECT Ball_1 = Ball_2 FROM WinBC49"), Texts{"1"});
}

TEST_F(Restore, RefusesWhatCheckWouldNotAccept) {
    Do({"backup", Path("b.mdb")});
    const std::string before = BytesOf(File());
    const auto refused = [&](const std::string& sql, const std::string& why) {
        PlainFile(Path("b.mdb")).Do(sql);
        const Answer answer = Run({"restore", Path("b.mdb")});
        EXPECT_EQ(answer.status, 1);
        EXPECT_TRUE(Tells(answer.words, why)) << answer.words;
        EXPECT_EQ(BytesOf(File()), before);
        EXPECT_EQ(In("data"), Texts{"sorvane.mdb"});
    };
    refused("UPDATE WinBC49 SET Ball_1 = 50", "WinBC49 ID1 1: Ball_1 \"50\" is not from 1 to 49\n");
    Do({"restore", Path("b.mdb"), "--force"});
    fs::remove(File());
    fs::rename(Path("data/sorvane-before-restore-2026-11-21-201500.mdb"), File());
    refused("DROP INDEX \"WinBC49.Date\"", "no sound file of Sorvane");
    EXPECT_EQ(Run({"restore", Path("b.mdb"), "--force"}).status, 1);
    refused("DROP TABLE WinBC49", "a database, but none of Sorvane's");
    Write("b.mdb", std::string(3000, 'y'));
    EXPECT_TRUE(Tells(Run({"restore", Path("b.mdb"), "--force"}).words, "no database, or it is damaged"));
    EXPECT_TRUE(Tells(Run({"restore", Path("none.mdb")}).words, "there is no such file"));
    EXPECT_TRUE(Tells(Run({"restore", File().string()}).words, "this is the file itself"));
    EXPECT_EQ(Run({"restore"}).status, 2);
    EXPECT_EQ(BytesOf(File()), before);
    EXPECT_EQ(In("data"), Texts{"sorvane.mdb"});
}

TEST_F(Restore, IsRefusedWhileAnotherProgramHoldsTheFile) {
    OtherProgram other(File().string());
    Do({"backup", Path("b.mdb")});
    for (const char* hold : {"BEGIN; SELECT count(*) FROM WinBC49", "BEGIN IMMEDIATE", "BEGIN EXCLUSIVE"}) {
        other.Do(hold);
        const Answer answer = Run({"restore", Path("b.mdb")});
        EXPECT_EQ(answer.status, 1) << hold;
        EXPECT_TRUE(Tells(answer.words, "another program holds the file")) << answer.words;
        EXPECT_EQ(In("data"), Texts{"sorvane.mdb"});
        other.Do("ROLLBACK");
    }
    Do({"restore", Path("b.mdb")});
}

// Takes the new file away once the present one is opened, so that it can't be put in its place.
class TakingVfs : public FileLayer {
  public:
    TakingVfs(const std::string& present, const fs::path& taken)
        : FileLayer("records-taking"), present_(present), taken_(taken) {
        Routines().xOpen = Open;
        Routines().szOsFile = System().szOsFile;
    }

  private:
    static int Open(sqlite3_vfs* vfs, const char* path, sqlite3_file* file, int flags, int* result) {
        const auto& layer = static_cast<const TakingVfs&>(*static_cast<FileLayer*>(vfs->pAppData));
        if (path != nullptr && layer.present_ == path) fs::remove(layer.taken_);
        return layer.System().xOpen(&layer.System(), path, file, flags, result);
    }
    std::string present_;
    fs::path taken_;
};

TEST_F(Restore, ThatCannotPutTheNewFileLeavesTheOldOneUnderOneName) {
    Do({"backup", Path("b.mdb")});
    Sql("INSERT INTO WinBC49 VALUES (2, 46348, 1,2,3,4,5,6,7)");
    TakingVfs disk(File().string(), Path("data/sorvane.mdb.part"));
    vfs = disk.Name();
    const Answer answer = Run({"restore", Path("b.mdb")});
    EXPECT_EQ(answer.status, 1);
    EXPECT_EQ(answer.words, "sorvane-records: " + File().string() + ": the disk fails (3043)\n");
    EXPECT_EQ(In("data"), Texts{"sorvane.mdb"});
    EXPECT_EQ(DrawsIn(File().string()), "2");
}

TEST_F(Restore, WhatAnotherProgramHasStillOpenDoesNotReachTheNewFile) {
    OtherProgram other(File().string());
    other.Do("SELECT count(*) FROM WinBC49");
    Do({"backup", Path("b.mdb")});
    Do({"restore", Path("b.mdb")});
    const std::string restored = BytesOf(File());
    // Its handle leads to the file that was put aside; the engine notices that and refuses.
    EXPECT_FALSE(other.Try("INSERT INTO WinBC49 VALUES (9, 46349, 1,2,3,4,5,6,7)"));
    EXPECT_EQ(BytesOf(File()), restored);
}

TEST_F(Renumber, GivesTheKeysOneToNInTheirOrderAfterABackup) {
    Make("PlayedBC49");
    Sql("DELETE FROM WinBC49;"
        "INSERT INTO WinBC49 SELECT value, 46000 - value, 1,2,3,4,5,6,7 FROM json_each('[9,2,-3,5]');"
        "INSERT INTO PlayedBC49 VALUES (1, 46347, 1,2,3,4,5,6, 0,0)");
    const Answer answer = Do({"renumber"});
    EXPECT_EQ(Ask("SELECT ID1, Date FROM WinBC49 ORDER BY rowid"),
              (Texts{"4|45991", "2|45998", "1|46003", "3|45995"}));
    EXPECT_EQ(answer.words, "a backup is in " + Path("data/backups/sorvane-2026-11-21-201500.mdb") +
                                "\nWinBC49: 3 keys counted anew\n");
    EXPECT_EQ(PlainFile(Path("data/backups/sorvane-2026-11-21-201500.mdb"))
                  .One("SELECT group_concat(ID1) FROM WinBC49"),
              "-3,2,5,9");
}

TEST_F(Renumber, GivesKeysToRowsWhoseKeyIsNone) {
    Sql("DELETE FROM WinBC49;"
        "INSERT INTO WinBC49 VALUES (NULL, 46001, 1,2,3,4,5,6,7), (1, 46002, 1,2,3,4,5,6,7),"
        "('x', 46003, 1,2,3,4,5,6,7)");
    EXPECT_TRUE(Tells(Do({"renumber"}).words, "WinBC49: 3 keys counted anew\n"));
    EXPECT_EQ(Ask("SELECT ID1, Date FROM WinBC49 ORDER BY ID1"), (Texts{"1|46001", "2|46002", "3|46003"}));
    Sql("UPDATE WinBC49 SET ID1 = 'x' WHERE ID1 = 3");
    EXPECT_TRUE(Tells(Do({"renumber"}).words, "WinBC49: 1 key counted anew\n"));
    EXPECT_EQ(Ask("SELECT typeof(ID1) FROM WinBC49 WHERE ID1 = 3"), Texts{"integer"});
}

TEST_F(Renumber, LeavesAFileInOrderAloneAndMakesNoBackup) {
    const std::string before = BytesOf(File());
    EXPECT_TRUE(Tells(Do({"renumber"}).words, "every key is in its place"));
    EXPECT_EQ(BytesOf(File()), before);
    EXPECT_FALSE(fs::exists(Path("data/backups")));
}

TEST_F(Renumber, LeavesTablesAloneThatHaveNoKeysOfTheProgram) {
    Make("Temp");
    Sql(R"(INSERT INTO Temp VALUES (4, 7, 3);
           CREATE TABLE Notes (ID1 LONG); INSERT INTO Notes VALUES (5);
           CREATE TABLE Spent (Date DATETIME, ID1 LONG); INSERT INTO Spent VALUES (46347, 6);)");
    EXPECT_TRUE(Tells(Do({"renumber"}).words, "every key is in its place"));
    EXPECT_EQ(Ask("SELECT ID1 FROM Temp UNION ALL SELECT ID1 FROM Notes UNION ALL SELECT ID1 FROM Spent"),
              (Texts{"4", "5", "6"}));
}

TEST_F(Renumber, LeavesThemAloneAlsoWhereAnotherTableIsCountedAnew) {
    Make("Temp");
    Sql(R"(INSERT INTO Temp VALUES (4, 7, 3);
           CREATE TABLE Notes (ID1 LONG); INSERT INTO Notes VALUES (5);
           CREATE TABLE Spent (Date DATETIME, ID1 LONG); INSERT INTO Spent VALUES (46347, 6);
           UPDATE WinBC49 SET ID1 = 8;)");
    EXPECT_EQ(LinesOf(Do({"renumber"}).words).back(), "WinBC49: 1 key counted anew");
    EXPECT_EQ(Ask("SELECT ID1 FROM Temp UNION ALL SELECT ID1 FROM Notes UNION ALL SELECT ID1 FROM Spent"),
              (Texts{"4", "5", "6"}));
    EXPECT_EQ(Ask("SELECT ID1 FROM WinBC49"), Texts{"1"});
}

TEST_F(Renumber, ChangesNothingWhenTheDiskFailsInTheMiddle) {
    Sql("UPDATE WinBC49 SET ID1 = 7");
    const std::string before = BytesOf(File());
    FaultVfs disk("records-renumber");
    vfs = disk.Name();
    int failures = 0;
    for (int n = 1; n < 400; ++n) {
        disk.FailAt(FaultVfs::Operation::Write, n, FaultVfs::Lasting::Once);
        const Answer answer = Run({"renumber"});
        if (disk.Failures() == 0) break;
        ++failures;
        EXPECT_EQ(answer.status, 1);
        EXPECT_EQ(BytesOf(File()), before) << n;
    }
    EXPECT_GT(failures, 5);
    EXPECT_EQ(Ask("SELECT ID1 FROM WinBC49"), Texts{"1"});
}

TEST_F(Renumber, SavingWorksAgainAfterACleanUpLeftAHole) {
    Sql("INSERT INTO WinBC49 VALUES (2, 46348, 1,2,3,4,5,6,7), (3, 46349, 1,2,3,4,5,6,7);"
        "DELETE FROM WinBC49 WHERE ID1 = 2");
    EXPECT_EQ(Run({"check"}).status, 1);
    Do({"renumber"});
    EXPECT_EQ(Run({"check"}).status, 0);
    EXPECT_EQ(Ask("SELECT ID1, Date FROM WinBC49 ORDER BY ID1"), (Texts{"1|46347", "2|46349"}));
}

}  // namespace
}  // namespace sorvane::testing

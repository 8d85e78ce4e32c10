// What may stand at the place of the program's file, and what becomes of it under a running program. The
// probing of a table has no end of its own: the cause is mended while a box is up.
#include <sys/stat.h>
#include <unistd.h>

#include <QApplication>
#include <QTimer>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <sstream>
#include <string>

#include "support/NoSuperuser.h"
#include "support/OtherProgram.h"
#include "support/ReadOnlyPlace.h"
#include "windows/Road.h"

namespace sorvane::test {
namespace {

namespace fs = std::filesystem;

class BadFiles : public Road {
  protected:
    BadFiles() : Road("mnuCANBCBC49") { fs::create_directory(path_.parent_path()); }

    static void Write(const fs::path& path, const std::string& bytes) {
        std::ofstream(path, std::ios::binary) << bytes;
    }
    static std::string Read(const fs::path& path) {
        std::ostringstream bytes;
        bytes << std::ifstream(path, std::ios::binary).rdbuf();
        return bytes.str();
    }

    void ExpectRefusal(int number, const std::function<void()>& meanwhile = nullptr) {
        person.Expect("ERROR!",
                      "ERROR #" + std::to_string(number) +
                          "\r\nUnexpected error occurred. Please advise error number to support.",
                      Answer::Ok, BoxStyle::Stop, meanwhile);
    }
    // The boxes of so many passes of the probing loop, one of the probe and one of the creator; the cause is
    // mended in the last.
    void ExpectLoop(int number, int passes, const std::function<void()>& mend) {
        for (int box = 1; box <= 2 * passes; ++box) ExpectRefusal(number, box == 2 * passes ? mend : nullptr);
    }
    // Buys two tickets; `refusals` are told behind the question whether to save, `meanwhile` runs in it.
    void Buy(const std::function<void()>& inQuestion = nullptr,
             const std::function<void()>& refusals = nullptr) {
        Inside([&] {
            PutCount(2);
            FillSheet(1, 2, 0);
            person.Expect("CONFIRM", "Save this sheet of tickets?", Answer::Yes, BoxStyle::YesNo, inQuestion);
            if (refusals) refusals();
            Click("cmdSave");
        });
    }
    void ExpectSaved() { person.Expect("CONFIRMED", "Tickets Saved"); }
    std::string Count(const std::string& table) { return Rows("SELECT count(*) FROM " + table).at(0); }
    // The program works: a sheet is bought and stands in the file.
    void ExpectUsable() {
        Buy(nullptr, [&] { ExpectSaved(); });
        EXPECT_EQ(Count("PlayedBC49"), "2");
        EXPECT_EQ(Count("Spent"), "1");
        EXPECT_EQ(Rows("PRAGMA integrity_check"), Texts{"ok"});
    }
    // A file with the ledgers, the game's tables and a sheet, as an earlier run leaves it.
    void MakeGoodFile() {
        Start();
        ExpectUsable();
        global = Global{};
    }

    // By another program, before this one has begun.
    void Alter(const std::string& sql) const { PlainFile(path_.string()).Do(sql); }

    const fs::path path_ = folder.Path() / "data" / "sorvane.mdb";
};

TEST_F(BadFiles, AnEmptyFileIsAnEmptyDatabase) {
    Write(path_, "");
    Start();
    ExpectUsable();
}

TEST_F(BadFiles, ATextIsRefusedAndLeftAsItIs) {
    const std::string notes(5000, 'n');
    Write(path_, notes);
    ExpectLoop(3343, 2, [&] {
        EXPECT_EQ(Read(path_), notes);
        fs::rename(path_, folder / "notes.txt");
        Write(path_, "");
    });
    Start();
    ExpectUsable();
    EXPECT_EQ(Read(folder / "notes.txt"), notes);
}

TEST_F(BadFiles, ATruncatedDatabaseIsRefusedAndLeftAsItIs) {
    MakeGoodFile();
    const std::string whole = Read(path_), half = whole.substr(0, whole.size() / 2);
    Write(path_, half);
    ExpectLoop(3343, 2, [&] {
        EXPECT_EQ(Read(path_), half);
        Write(path_, whole);
    });
    Start();
    EXPECT_EQ(Count("PlayedBC49"), "2");
}

TEST_F(BadFiles, AFolderInItsPlaceIsToldByTheMakerAndTheLoop) {
    fs::create_directory(path_);
    ExpectRefusal(75);
    ExpectLoop(3051, 2, [&] {
        fs::remove(path_);
        Write(path_, "");
    });
    Start();
    ExpectUsable();
}

TEST_F(BadFiles, ALinkThatLeadsToNoFileYetGetsOneWhereItLeads) {
    fs::create_symlink(folder / "elsewhere", path_);
    Start();
    ExpectUsable();
    EXPECT_TRUE(fs::is_symlink(path_));
    EXPECT_TRUE(fs::is_regular_file(folder / "elsewhere"));
}

TEST_F(BadFiles, ALinkThatLeadsNowhereIsToldByTheMakerAndTheLoop) {
    fs::create_symlink(folder / "none" / "sorvane.mdb", path_);
    ExpectRefusal(3051);
    ExpectLoop(3024, 2, [&] {
        fs::create_directory(folder / "none");
        Write(folder / "none" / "sorvane.mdb", "");
    });
    Start();
    ExpectUsable();
    EXPECT_TRUE(fs::is_symlink(path_));
}

TEST_F(BadFiles, AFileThatMayOnlyBeReadIsShownAndNotWritten) {
    fs::remove(path_.parent_path());
    const NoSuperuser somebodyElse;
    MakeGoodFile();
    fs::permissions(path_, fs::perms(0444));
    Start();
    Buy(nullptr, [&] {
        ExpectRefusal(3051);
        ExpectRefusal(3051);
        ExpectSaved();
    });
    EXPECT_EQ(Count("PlayedBC49"), "2");
    EXPECT_EQ(Count("Spent"), "1");
}

TEST_F(BadFiles, AFileThatMayOnlyBeReadTakesNoTableUntilItMayBeWritten) {
    fs::remove(path_.parent_path());
    const NoSuperuser somebodyElse;
    fs::create_directory(path_.parent_path());
    Write(path_, "");
    fs::permissions(path_, fs::perms(0444));
    // A missing table is no news; that it can't be made is.
    for (int pass = 1; pass <= 2; ++pass)
        ExpectRefusal(3051, [&, pass] {
            if (pass == 2) fs::permissions(path_, fs::perms(0644));
        });
    Start();
    ExpectUsable();
}

TEST_F(BadFiles, AFileThatMayNotBeTouchedIsToldUntilItMay) {
    fs::remove(path_.parent_path());
    const NoSuperuser somebodyElse;
    MakeGoodFile();
    fs::permissions(path_, fs::perms::none);
    ExpectLoop(3051, 2, [&] { fs::permissions(path_, fs::perms(0644)); });
    Start();
    EXPECT_EQ(Count("PlayedBC49"), "2");
}

TEST_F(BadFiles, AFileOnAReadOnlyFileSystemIsShownAndNotWritten) {
    ReadOnlyPlace place(path_.parent_path());
    MakeGoodFile();
    ASSERT_TRUE(place.ReadOnly(true));
    Start();
    Buy(nullptr, [&] {
        ExpectRefusal(3051);
        ExpectRefusal(3051);
        ExpectSaved();
    });
    ASSERT_TRUE(place.ReadOnly(false));
    EXPECT_EQ(Count("PlayedBC49"), "2");
    EXPECT_EQ(Count("Spent"), "1");
}

TEST_F(BadFiles, AReadOnlyFileSystemTakesNoFileUntilItMayBeWritten) {
    ReadOnlyPlace place(path_.parent_path());
    ASSERT_TRUE(place.ReadOnly(true));
    ExpectRefusal(3051);
    ExpectLoop(3024, 2, [&] {
        EXPECT_TRUE(place.ReadOnly(false));
        Write(path_, "");
    });
    Start();
    ExpectUsable();
}

TEST_F(BadFiles, AViewInTheLedgersPlaceIsToldUntilItIsGone) {
    MakeGoodFile();
    Alter("ALTER TABLE Spent RENAME TO Kept");
    Alter("CREATE VIEW Spent AS SELECT * FROM Kept");
    ExpectRefusal(3010);
    ExpectRefusal(3010, [&] {
        Alter("DROP VIEW Spent");
        Alter("ALTER TABLE Kept RENAME TO Spent");
    });
    Start();
    EXPECT_EQ(Count("Spent"), "1");
}

TEST_F(BadFiles, ATableOfOtherTypesTakesItsRowsAndNoneOfItsCodeRuns) {
    MakeGoodFile();
    Alter("DROP TABLE PlayedBC49");
    Alter(
        "CREATE TABLE PlayedBC49 (ID1 TEXT(9), Date LONG, Ball_1 TEXT(9), Ball_2 CURRENCY, Ball_3 DATETIME, "
        "Ball_4 whatever, Ball_5, Ball_6 LONG, Regular TEXT(9), EarlyBird INTEGER(16))");
    Alter("CREATE TABLE Taken (ID1)");
    Alter("CREATE TRIGGER steal AFTER INSERT ON PlayedBC49 BEGIN INSERT INTO Taken VALUES (new.ID1); END");
    Start();
    Buy(nullptr, [&] { ExpectSaved(); });
    EXPECT_EQ(Rows("SELECT ID1 FROM PlayedBC49"), (Texts{"1", "2"}));
    EXPECT_EQ(Count("Taken"), "0");
    EXPECT_EQ(Rows("PRAGMA integrity_check"), Texts{"ok"});
}

TEST_F(BadFiles, ALedgerThatLacksFieldsIsToldAndTheTicketsAreSavedAllTheSame) {
    MakeGoodFile();
    Alter("DROP TABLE Spent");
    Alter("CREATE TABLE Spent (ID1 LONG)");
    Start();
    Buy(nullptr, [&] {
        ExpectRefusal(3265);
        ExpectSaved();
    });
    EXPECT_EQ(Count("PlayedBC49"), "4");
    EXPECT_EQ(Count("Spent"), "0");
}

TEST_F(BadFiles, AFileThatAnotherProgramHoldsIsToldUntilItIsFree) {
    OtherProgram other(path_.string());
    MakeGoodFile();
    other.Do("BEGIN EXCLUSIVE");
    ExpectLoop(3260, 1, [&] { other.Do("ROLLBACK"); });
    Start();
    EXPECT_EQ(Count("PlayedBC49"), "2");
}

TEST_F(BadFiles, AWindowOpensOnceTheProgramThatHoldsTheFileLetsGo) {
    OtherProgram other(path_.string());
    Start();
    other.Do("BEGIN EXCLUSIVE");
    ExpectLoop(3260, 2, [&] { other.Do("ROLLBACK"); });
    Inside([&] { EXPECT_EQ(person.Awaited(), 0); });
    ExpectUsable();
}

TEST_F(BadFiles, AWindowOpensOnceTheProgramThatWritesIntoTheFileHasDone) {
    OtherProgram other(path_.string());
    Start();
    other.Do("BEGIN IMMEDIATE");
    // Reading is not in the way: that a table is missing is no news, that it can't be made is.
    for (int pass = 1; pass <= 2; ++pass)
        ExpectRefusal(3260, [&, pass] {
            if (pass == 2) other.Do("ROLLBACK");
        });
    Inside([&] { EXPECT_EQ(person.Awaited(), 0); });
    ExpectUsable();
}

TEST_F(BadFiles, ASheetSavedWhileAnotherProgramWritesIsRefusedAndTheEntryGoesOn) {
    OtherProgram other(path_.string());
    Start();
    Buy([&] { other.Do("BEGIN IMMEDIATE"); },
        [&] {
            ExpectRefusal(3260, [&] { other.Do("ROLLBACK"); });
            ExpectSaved();
        });
    EXPECT_EQ(Count("PlayedBC49"), "0");
    EXPECT_EQ(Count("Spent"), "1");
}

TEST_F(BadFiles, AFileDeletedUnderTheProgramIsMissedAtEachWriteAndMadeAnewForTheNextWindow) {
    Start();
    Buy([&] { fs::remove(path_); },
        [&] {
            ExpectRefusal(3024);
            ExpectRefusal(3024);
            ExpectSaved();
        });
    Inside([] {});
    EXPECT_EQ(Count("PlayedBC49"), "0");
    global = Global{};
    Start();
    ExpectUsable();
}

TEST_F(BadFiles, AFolderDeletedUnderTheProgramIsMadeAnewForTheNextWindow) {
    Start();
    fs::remove_all(path_.parent_path());
    Inside([] {});
    EXPECT_EQ(Count("PlayedBC49"), "0");
}

TEST_F(BadFiles, AFileInThePlaceOfTheFolderIsARunTimeErrorThatTheProgramSurvives) {
    fs::remove(path_.parent_path());
    Write(path_.parent_path(), "not a folder");
    ExpectRunTimeError(75);
    Start();
    EXPECT_EQ(Read(path_.parent_path()), "not a folder");
    fs::remove(path_.parent_path());
    Start();
    ExpectUsable();
}

// Its load would otherwise be over for the rest of the run: no tables, no dates.
TEST_F(BadFiles, AGameWindowWhoseLoadFailedIsLoadedAnewOnceTheCauseIsGone) {
    Start();
    fs::remove_all(path_.parent_path());
    Write(path_.parent_path(), "not a folder");
    ExpectRunTimeError(75);
    Choose(game.menu);
    EXPECT_FALSE(windows.IsLoaded(family));
    fs::remove(path_.parent_path());
    ExpectUsable();
    EXPECT_EQ(Rows("SELECT DISTINCT Date FROM PlayedBC49"), Rows("SELECT Date FROM Spent"));
    Inside([&] {
        EXPECT_EQ(dynamic_cast<forms::DatePicker&>(Find("dtpEnterTickets(0)")).Value().ToText(), Today);
    });
}

TEST_F(BadFiles, AProgramInAFolderThatMayNotBeWrittenIsARunTimeErrorThatTheProgramSurvives) {
    fs::remove(path_.parent_path());
    fs::permissions(folder.Path(), fs::perms(0555));
    const NoSuperuser somebodyElse;
    ExpectRunTimeError(75);
    Start();
    EXPECT_FALSE(fs::exists(path_.parent_path()));
}

TEST_F(BadFiles, AFolderThatMayNotBeWrittenTakesNoFileUntilItMay) {
    fs::remove(path_.parent_path());
    const NoSuperuser somebodyElse;
    fs::create_directory(path_.parent_path());
    fs::permissions(path_.parent_path(), fs::perms(0555));
    ExpectRefusal(3051);
    ExpectLoop(3024, 2, [&] {
        fs::permissions(path_.parent_path(), fs::perms(0755));
        Write(path_, "");
    });
    Start();
    ExpectUsable();
}

class BadFilesDeathTest : public BadFiles {
  protected:
    BadFilesDeathTest() {
        GTEST_FLAG_SET(death_test_style, "threadsafe");
        // What the process that ends leaves behind goes with this one's folder.
        setenv("SORVANE_TEST_PLACE", folder.Path().c_str(), 1);
    }
    ~BadFilesDeathTest() override { unsetenv("SORVANE_TEST_PLACE"); }
    // Starts over a file that is no database, about which the program asks without end: the boxes are
    // answered, and `act` comes behind the third. An alarm ends what nothing else ends.
    void AskWithoutEnd(void (*act)()) {
        constexpr unsigned Patience = 20;
        alarm(Patience);
        Write(path_, std::string(5000, 'n'));
        person.Bear("ERROR!",
                    "ERROR #3343\r\nUnexpected error occurred. Please advise error number to support.",
                    [&, act] {
                        if (++answered_ == 3) QTimer::singleShot(0, act);
                    });
        Start();
    }

  private:
    int answered_ = 0;
};

TEST_F(BadFilesDeathTest, ASignalEndsTheProgramThatAsksWithoutEnd) {
    EXPECT_EXIT(AskWithoutEnd([] { kill(getpid(), SIGTERM); }), ::testing::KilledBySignal(SIGTERM), "");
}

TEST_F(BadFilesDeathTest, TheEndOfTheSessionEndsTheProgramThatAsksWithoutEnd) {
    EXPECT_EXIT(AskWithoutEnd([] {
                    QEvent quit(QEvent::Quit);
                    QCoreApplication::sendEvent(qApp, &quit);
                }),
                ::testing::ExitedWithCode(EXIT_SUCCESS), "");
}

}  // namespace
}  // namespace sorvane::test

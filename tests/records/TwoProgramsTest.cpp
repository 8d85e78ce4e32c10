// The command and the program at one file at once.
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <set>

#include "records/RecordsWorld.h"
#include "support/FaultVfs.h"

namespace sorvane::testing {
namespace {

class TwoPrograms : public RecordsWorld {
  public:
    // Draws of so many days, each of them 1 to 7.
    static std::string Draws(int count) {
        std::string text = "date,numbers,bonus\n";
        for (int i = 0; i < count; ++i) text += Date::FromDays(46'347 - i).ToText() + ",1 2 3 4 5 6,7\n";
        return text;
    }
};

TEST_F(TwoPrograms, TheProgramSeesAllOfAnImportOrNothingOfIt) {
    constexpr int Many = 4000;
    Make("WinBC49");
    Make("Spent");
    const std::string csv = Write("d.csv", Draws(Many));
    const pid_t child = fork();
    if (child == 0) _exit(Run({"draws", "BC49", csv}).status);
    std::set<int> counts, errors;
    int written = 0, status = 0;
    const auto look = [&] {
        const int error = ErrorOf([&] {
            Dao::Database Db = world.engine.OpenDatabase(world.DbName(), world.global.Open);
            Dao::Recordset Rs = Db.OpenTable("WinBC49");
            int rows = 0;
            if (Rs.RecordCount() > 0) Rs.MoveFirst();
            for (; !Rs.AtEOF(); Rs.MoveNext()) rows += Rs["Ball_B"].ToInt() == 7 ? 1 : 0;
            counts.insert(rows);
        });
        if (error != 0) errors.insert(error);
    };
    const auto write = [&] {
        const int error = ErrorOf([&] {
            Dao::Database Db = world.engine.OpenDatabase(world.DbName(), world.global.Open);
            Dao::Recordset Rs = Db.OpenTable("Spent");
            Rs.AddNew();
            Rs[0] = written + 1;
            Rs.Update();
            ++written;
        });
        if (error != 0) errors.insert(error);
    };
    while (waitpid(child, &status, WNOHANG) == 0) {
        look();
        write();
    }
    look();
    EXPECT_EQ(status, 0);
    for (const int count : counts) EXPECT_TRUE(count == 0 || count == Many) << count;
    EXPECT_EQ(counts.count(Many), 1U);
    errors.erase(ErrorNumber::Locked);
    EXPECT_EQ(errors, std::set<int>());
    EXPECT_EQ(Ask("SELECT count(*) FROM Spent").front(), std::to_string(written));
}

TEST_F(TwoPrograms, WhileAnImportWritesARowIsRefusedAfterASecondAndTheRestCanBeRead) {
    Make("WinBC49");
    Make("Spent");
    FaultVfs patient("records-patient");
    Dao::Engine program(patient.Name());
    int looks = 0;
    terminal = true;
    meanwhile = [&] {
        if (++looks != 3) return;
        patient.Heal();
        Dao::Database Db = program.OpenDatabase(world.DbName(), world.global.Open);
        EXPECT_EQ(Db.OpenTable("WinBC49").RecordCount(), 0);
        Dao::Recordset Rs = Db.OpenTable("Spent");
        Rs.AddNew();
        Rs[0] = 1;
        EXPECT_EQ(ErrorOf([&] { Rs.Update(); }), ErrorNumber::Locked);
        EXPECT_EQ(patient.Waited(), std::chrono::seconds(1));
    };
    Do({"draws", "BC49", Write("d.csv", Draws(20))});
    EXPECT_GE(looks, 3);
    EXPECT_EQ(Ask("SELECT count(*) FROM WinBC49").front(), "20");
    EXPECT_EQ(Ask("SELECT count(*) FROM Spent").front(), "0");
}

TEST_F(TwoPrograms, AnImportThatDiesAtAnyMomentLeavesAllOfItOrNothing) {
    Make("WinBC49");
    const std::string before = BytesOf(File());
    const std::string csv = Write("d.csv", Draws(50));
    FaultVfs disk("records-dies");
    vfs = disk.Name();
    bool died = false, done = false;
    for (int n = 1; !done && n < 100; ++n) {
        Write("data/sorvane.mdb", before);
        fs::remove(Path("data/sorvane.mdb-journal"));
        disk.DieAt(n);
        const int status = Run({"draws", "BC49", csv}).status;
        done = disk.Failures() == 0;
        died = died || !done;
        disk.Heal();
        const std::string rows = Ask("SELECT count(*) FROM WinBC49").front();
        EXPECT_TRUE(rows == "0" || rows == "50") << n << ": " << rows;
        EXPECT_TRUE(status != 0 || rows == "50") << n;
        EXPECT_EQ(Ask("PRAGMA integrity_check").front(), "ok") << n;
    }
    EXPECT_TRUE(died && done);
}

TEST_F(TwoPrograms, AMistakeInTheLastLineUndoesWhatNoMemoryHeldAnyMore) {
    Make("WinBC49");
    const std::string before = BytesOf(File());
    const std::string csv = Write("d.csv", Draws(40'000) + "2026-11-21,1 2 3 4 5 50,7\n");
    EXPECT_TRUE(Tells(Run({"draws", "BC49", csv}).words, ":40002:12: 50 is not from 1 to 49"));
    EXPECT_EQ(BytesOf(File()), before);
}

}  // namespace
}  // namespace sorvane::testing

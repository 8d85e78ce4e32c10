#include <chrono>
#include <functional>

#include "DaoWorld.h"
#include "support/FaultVfs.h"
#include "support/OtherProgram.h"

namespace sorvane::Dao {
namespace {

class Sharing : public DaoWorld {
  protected:
    Sharing() { engine_ = Engine(disk_.Name()); }
    // A second, counted by the waiting and not by a clock: the disk waits no time at all.
    void ExpectLockedAfterASecond(const std::function<void()>& work) {
        disk_.Heal();
        EXPECT_EQ(ErrorOf(work), ErrorNumber::Locked);
        EXPECT_EQ(disk_.Waited(), std::chrono::seconds(1));
    }

    FaultVfs disk_{"patient"};
    OtherProgram other_{path_};
};

TEST_F(Sharing, AFileThatAnotherHoldsIsLockedAfterASecond) {
    CreateWithDays({10});
    other_.Do("BEGIN EXCLUSIVE");
    ExpectLockedAfterASecond([&] { Open(); });
}

TEST_F(Sharing, ARowIsRefusedAfterASecondWhileAnotherWrites) {
    CreateWithDays({10});
    Database db = Open();
    Recordset rs = db.OpenTable("Every");
    other_.Do("BEGIN IMMEDIATE");
    rs.MoveFirst();
    EXPECT_EQ(rs[0].ToInt(), 1);
    ExpectLockedAfterASecond([&] { Add(rs, 2, 10); });
    EXPECT_EQ(rs.RecordCount(), 1);
}

TEST_F(Sharing, AnotherWalkOfTheSameDatabaseDoesNotCutTheWaitShort) {
    CreateWithDays({10, 20, 30});
    Database db = Open();
    Recordset walking = db.OpenTable("Every");
    Recordset rs = db.OpenTable("Every");
    walking.MoveNext();
    other_.Do("BEGIN IMMEDIATE");
    ExpectLockedAfterASecond([&] { Add(rs, 4, 10); });
    EXPECT_EQ(Ids(walking), (Numbers{2, 3}));
}

TEST_F(Sharing, ARowRefusedByALockIsWrittenOnceTheLockIsGone) {
    CreateWithDays({10});
    Database db = Open();
    Recordset rs = db.OpenTable("Every");
    rs.AddNew();
    rs[0] = 2;
    other_.Do("BEGIN IMMEDIATE");
    EXPECT_EQ(ErrorOf([&] { rs.Update(); }), ErrorNumber::Locked);
    other_.Do("ROLLBACK");
    rs.Update();
    EXPECT_EQ(rs.RecordCount(), 2);
}

TEST_F(Sharing, AReaderElsewhereHoldsACommitUpAndTheRowIsUndone) {
    CreateWithDays({10});
    Database db = Open();
    Recordset rs = db.OpenTable("Every");
    other_.Do("BEGIN; SELECT * FROM Every");
    EXPECT_EQ(ErrorOf([&] { Add(rs, 2, 10); }), ErrorNumber::Locked);
    EXPECT_EQ(rs.RecordCount(), 1);
    EXPECT_EQ(Plain().One("SELECT count(*) FROM Every"), "1");
}

TEST_F(Sharing, OneCommitThatCannotBeMadeRaisesAtCloseAndClosesAllTheSame) {
    CreateWithDays({10});
    Database db = Open();
    db.OneCommit();
    Recordset rs = db.OpenTable("Every");
    Add(rs, 2, 10);
    other_.Do("BEGIN; SELECT * FROM Every");
    EXPECT_EQ(ErrorOf([&] { db.Close(); }), ErrorNumber::Locked);
    EXPECT_EQ(flags_.DbOpen, 0);
    EXPECT_EQ(flags_.RsOpen, 0);
    EXPECT_EQ(Plain().One("SELECT count(*) FROM Every"), "1");
}

TEST_F(Sharing, OneCommitIsRefusedAfterASecondWhileAnotherWrites) {
    CreateWithDays({10});
    Database db = Open();
    other_.Do("BEGIN IMMEDIATE");
    ExpectLockedAfterASecond([&] { db.OneCommit(); });
    other_.Do("ROLLBACK");
    db.OneCommit();
    Recordset rs = db.OpenTable("Every");
    Add(rs, 2, 10);
    db.Close();
    EXPECT_EQ(Plain().One("SELECT count(*) FROM Every"), "2");
}

TEST_F(Sharing, AMoveRefusedByALockLeavesThePosition) {
    CreateWithDays({10, 20});
    Database db = Open();
    Recordset rs = db.OpenTable("Every");
    rs.Index("Date");
    rs.Seek(10);
    other_.Do("BEGIN EXCLUSIVE");
    EXPECT_EQ(ErrorOf([&] { rs.MoveNext(); }), ErrorNumber::Locked);
    EXPECT_EQ(rs[0].ToInt(), 1);
    other_.Do("ROLLBACK");
    rs.MoveNext();
    EXPECT_EQ(rs[0].ToInt(), 2);
}

TEST_F(Sharing, TheRestOfAWalkLetsNobodyWriteUntilTheRecordsetIsLeft) {
    CreateWithDays({10, 20, 30});
    Database db = Open();
    Recordset rs = db.OpenTable("Every");
    rs.MoveNext();
    other_.Do("BEGIN IMMEDIATE; INSERT INTO Every (ID1) VALUES (4)");
    rs.MoveNext();
    EXPECT_EQ(rs[0].ToInt(), 3);
    rs.MoveLast();
    EXPECT_EQ(rs[0].ToInt(), 3);
    other_.Do("COMMIT");
    rs.MoveNext();
    EXPECT_EQ(rs[0].ToInt(), 4);
}

TEST_F(Sharing, AProcessKilledInTheMiddleOfAWriteLeavesTheRowsBefore) {
    CreateWithDays({10});
    other_.Do(
        "PRAGMA cache_size = 1; PRAGMA cache_spill = 1; BEGIN IMMEDIATE;"
        "WITH RECURSIVE n(i) AS (SELECT 2 UNION ALL SELECT i + 1 FROM n WHERE i < 5000)"
        "INSERT INTO Every (ID1, Lottoflag) SELECT i, 'half a transaction' FROM n");
    other_.Kill();
    ASSERT_TRUE(std::filesystem::exists(path_ + "-journal"));
    Database db = Open();
    Recordset rs = db.OpenTable("Every");
    EXPECT_EQ(rs.RecordCount(), 1);
    EXPECT_EQ(rs[0].ToInt(), 1);
    EXPECT_EQ(Plain().One("PRAGMA integrity_check"), "ok");
}

}  // namespace
}  // namespace sorvane::Dao

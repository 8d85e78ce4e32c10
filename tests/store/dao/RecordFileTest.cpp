// A file as a whole, beside somebody else who has it open and on a disk that fails.
#include "store/dao/RecordFile.h"

#include "DaoWorld.h"
#include "support/FaultVfs.h"
#include "support/OtherProgram.h"

namespace sorvane::Dao {
namespace {

class RecordFiles : public DaoWorld {
  protected:
    RecordFiles() { engine_ = Engine(disk_.Name()); }
    bool HasOther() { return Plain().One("SELECT count(*) FROM sqlite_schema WHERE name = 'Other'") == "1"; }

    FaultVfs disk_{"record-files"};
    OtherProgram other_{path_};
};

TEST_F(RecordFiles, AReadingHoldIsOfTheMomentInWhichItBegan) {
    CreateWithDays({10});
    RecordFile file(path_, disk_.Name());
    file.Begin(RecordFile::Hold::Read);
    EXPECT_FALSE(other_.Try("DELETE FROM Every"));
    EXPECT_EQ(file.CountRows({"Every", {}, {}}), 1);
    file.Commit();
    EXPECT_TRUE(other_.Try("DELETE FROM Every"));
}

TEST_F(RecordFiles, AWritingHoldLetsOthersReadAndNotWriteAndALoneOneNeither) {
    CreateWithDays({10});
    RecordFile file(path_, disk_.Name());
    file.Begin(RecordFile::Hold::Write);
    EXPECT_TRUE(other_.Try("SELECT count(*) FROM Every"));
    EXPECT_FALSE(other_.Try("DELETE FROM Every"));
    file.Rollback();
    file.Begin(RecordFile::Hold::Alone);
    EXPECT_FALSE(other_.Try("SELECT count(*) FROM Every"));
}

TEST_F(RecordFiles, WhatAReaderKeepsFromBeingCommittedIsUndoneAndCanBeDoneAgain) {
    CreateWithDays({10});
    RecordFile file(path_, disk_.Name());
    file.Begin(RecordFile::Hold::Write);
    file.Append(Every("Other"), true);
    other_.Do("BEGIN; SELECT * FROM Every");
    EXPECT_EQ(ErrorOf([&] { file.Commit(); }), ErrorNumber::Locked);
    other_.Do("ROLLBACK");
    EXPECT_FALSE(HasOther());
    file.Begin(RecordFile::Hold::Write);
    file.Append(Every("Other"), true);
    file.Commit();
    EXPECT_TRUE(HasOther());
}

TEST_F(RecordFiles, ADiskThatFailsAtTheCommitIsToldAsSuch) {
    CreateWithDays({10});
    for (const auto operation : {FaultVfs::Operation::Write, FaultVfs::Operation::Sync}) {
        RecordFile file(path_, disk_.Name());
        file.Begin(RecordFile::Hold::Write);
        file.Append(Every("Other"), true);
        disk_.FailAt(operation, 1, FaultVfs::Lasting::Once);
        EXPECT_EQ(ErrorOf([&] { file.Commit(); }), ErrorNumber::DiskError) << NameOf(operation);
        disk_.Heal();
        EXPECT_FALSE(HasOther());
    }
}

TEST_F(RecordFiles, AnIndexOverOneWholeFieldTellsItAndAnyOtherNone) {
    CreateWithDays({10});
    Plain().Ask(
        "CREATE INDEX \"Every.Part\" ON Every (Amount) WHERE Amount > 5;"
        "CREATE INDEX \"Every.Two\" ON Every (Amount, Regular)");
    const Contents contents = RecordFile(path_).Read();
    std::vector<std::string> told;
    for (const FileIndex& index : contents.tables.front().indexes)
        told.push_back(index.name + ":" + index.field + (index.unique ? ":unique" : ""));
    EXPECT_EQ(told, (Cells{"Every.ID1:ID1:unique", "Every.Date:Date", "Every.Part:", "Every.Two:"}));
}

TEST_F(RecordFiles, AreFilesThatAreThere) {
    EXPECT_EQ(ErrorOf([&] { RecordFile file(path_); }), ErrorNumber::StoreFileNotFound);
    EXPECT_EQ(ErrorOf([&] { RecordFile file(folder_.Path()); }), ErrorNumber::NoPermission);
}

TEST_F(RecordFiles, TheCopyToldInPartsGrowsToTheWhole) {
    CreateWithDays({10});
    Plain().Ask("CREATE TABLE Large (a); INSERT INTO Large VALUES (zeroblob(4000000))");
    std::vector<int> done;
    int last = 0;
    RecordFile(path_).CopyTo(folder_.File("copy"), [&](int parts, int inAll) {
        done.push_back(parts);
        last = inAll;
    });
    EXPECT_EQ(done, (Numbers{256, 512, 768, last}));
    EXPECT_NEAR(last, 980, 20);
}

}  // namespace
}  // namespace sorvane::Dao

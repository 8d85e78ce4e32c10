#include <functional>
#include <map>
#include <memory>
#include <sstream>

#include "DaoWorld.h"
#include "support/FaultVfs.h"

namespace sorvane::Dao {
namespace {

using Operation = FaultVfs::Operation;

int NumberFor(Operation operation) {
    return operation == Operation::Open ? ErrorNumber::NoPermission : ErrorNumber::DiskError;
}

// Every writing verb is run against a disk that fails at each of its operations in turn.
class Faults : public DaoWorld {
  protected:
    static constexpr int RowsBefore = 300;
    struct Verb {
        const char* name;
        // What leads up to the verb happens on a whole disk; it gives the verb itself.
        std::function<void()> (Faults::*prepare)();
    };
    static const std::vector<Verb>& Verbs();

    Faults() { engine_ = Engine(vfs_.Name()); }

    void SetUp() override {
        {
            Database db = CreateEvery();
            db.OneCommit();
            Recordset rs = db.OpenTable("Every");
            for (int i = 1; i <= RowsBefore; ++i) Add(rs, i, 40000 + i / 3, i % 49);
        }
        std::ostringstream bytes;
        bytes << std::ifstream(path_, std::ios::binary).rdbuf();
        fresh_ = bytes.str();
        before_ = Content();
    }

    // All that the file holds, through plain SQLite on a whole disk.
    Cells Content() {
        PlainTool plain(path_);
        EXPECT_EQ(plain.One("PRAGMA integrity_check"), "ok");
        Cells content = plain.Ask("SELECT name, sql FROM sqlite_schema ORDER BY name");
        for (const std::string& table : plain.Ask("SELECT name FROM sqlite_schema WHERE type = 'table'")) {
            const Cells rows = plain.Ask("SELECT rowid, * FROM \"" + table + "\" ORDER BY rowid");
            content.insert(content.end(), rows.begin(), rows.end());
        }
        return content;
    }

    void Renew() {
        db_.reset();
        rs_.reset();
        vfs_.Heal();
        for (const auto& entry : std::filesystem::directory_iterator(folder_.Path()))
            std::filesystem::remove(entry);
        WriteBytes(fresh_);
    }

    // Runs the verb once with the fault that `arm` sets. False when the fault never came about.
    bool RunWith(const Verb& verb, const std::function<void()>& arm, int expected, const std::string& story) {
        Renew();
        const std::function<void()> act = (this->*verb.prepare)();
        arm();
        const int number = ErrorOf(act);
        const bool failed = vfs_.Failures() > 0;
        if (number != 0) {
            EXPECT_EQ(number, expected) << story;
            EXPECT_TRUE(failed) << story;
        }
        // Whoever dies does not close either.
        rs_.reset();
        db_.reset();
        vfs_.Heal();
        EXPECT_EQ(Content(), number != 0 ? before_ : After(verb)) << story;
        errors_ += number != 0 ? 1 : 0;
        return failed;
    }

    const Cells& After(const Verb& verb) {
        Cells& after = after_[verb.name];
        if (after.empty()) {
            Renew();
            (this->*verb.prepare)()();
            rs_.reset();
            db_.reset();
            after = Content();
            EXPECT_NE(after, before_) << verb.name;
        }
        return after;
    }

    void OpenEvery() {
        db_ = std::make_unique<Database>(Open());
        rs_ = std::make_unique<Recordset>(db_->OpenTable("Every"));
    }
    std::function<void()> AppendTable() {
        OpenEvery();
        return [this] { db_->Append(Every("Other")); };
    }
    std::function<void()> AppendIndex() {
        OpenEvery();
        return [this] { db_->AppendIndex("Every", "Amount", "# of Balls", false); };
    }
    std::function<void()> AddRow() {
        OpenEvery();
        return [this] { Add(*rs_, RowsBefore + 1, 40010); };
    }
    std::function<void()> EditRow() {
        OpenEvery();
        rs_->Index("Date");
        rs_->Seek(40050);
        return [this] {
            rs_->Edit();
            rs_->operator[]("Date") = 40001;
            rs_->operator[]("Lottoflag") = "Super 7";
            rs_->Update();
        };
    }
    std::function<void()> DeleteRow() {
        OpenEvery();
        rs_->Index("ID1");
        rs_->Seek(150);
        return [this] { rs_->Delete(); };
    }
    std::function<void()> OneCommitOfManyRows() {
        OpenEvery();
        db_->OneCommit();
        return [this] {
            for (int i = 1; i <= 49; ++i) Add(*rs_, RowsBefore + i, 40010);
            db_->Close();
        };
    }
    std::function<void()> AllFromTheOpening() {
        return [this] {
            OpenEvery();
            Add(*rs_, RowsBefore + 1, 40010);
            db_->Close();
        };
    }

    FaultVfs vfs_{"faults"};
    std::unique_ptr<Database> db_;
    std::unique_ptr<Recordset> rs_;
    std::string fresh_;
    Cells before_;
    std::map<std::string, Cells> after_;
    int errors_ = 0;
};

const std::vector<Faults::Verb>& Faults::Verbs() {
    static const std::vector<Verb> verbs = {
        {"append a table", &Faults::AppendTable},
        {"append an index", &Faults::AppendIndex},
        {"add a row", &Faults::AddRow},
        {"edit a row", &Faults::EditRow},
        {"delete a row", &Faults::DeleteRow},
        {"one commit of many rows", &Faults::OneCommitOfManyRows},
        {"all from the opening", &Faults::AllFromTheOpening},
    };
    return verbs;
}

TEST_F(Faults, AFailingOperationIsAnErrorThatChangesNothing) {
    for (const Verb& verb : Verbs()) {
        for (const Operation operation : FaultVfs::Operations) {
            for (const auto lasting : {FaultVfs::Lasting::Once, FaultVfs::Lasting::Always}) {
                for (int n = 1; n < 1000; ++n) {
                    const std::string story = std::string(verb.name) + ", " + NameOf(operation) + " " +
                                              std::to_string(n) +
                                              (lasting == FaultVfs::Lasting::Once ? "" : " and on");
                    if (!RunWith(
                            verb, [&] { vfs_.FailAt(operation, n, lasting); }, NumberFor(operation), story))
                        break;
                }
            }
        }
    }
    EXPECT_GT(errors_, 200);
}

TEST_F(Faults, AFullDiskIsAnErrorThatChangesNothing) {
    for (const Verb& verb : Verbs()) {
        for (int bytes = 0; bytes < 1'000'000; bytes += 333) {
            const std::string story = std::string(verb.name) + ", room for " + std::to_string(bytes);
            if (!RunWith(
                    verb, [&] { vfs_.FullAfter(bytes); }, ErrorNumber::DiskFull, story))
                break;
        }
    }
    EXPECT_GT(errors_, 200);
}

TEST_F(Faults, AProcessThatDiesAtAnyMomentLeavesAWholeFile) {
    for (const Verb& verb : Verbs()) {
        for (int n = 1; n < 1000; ++n) {
            const std::string story = std::string(verb.name) + ", dead at " + std::to_string(n);
            if (!RunWith(
                    verb, [&] { vfs_.DieAt(n); }, ErrorNumber::DiskError, story))
                break;
        }
    }
    EXPECT_GT(errors_, 100);
}

TEST_F(Faults, ARowThatTheDiskRefusedCanBeWrittenAgain) {
    for (int n = 1;; ++n) {
        Renew();
        OpenEvery();
        EXPECT_EQ(rs_->RecordCount(), RowsBefore);
        rs_->AddNew();
        rs_->operator[](0) = RowsBefore + 1;
        vfs_.FailAt(Operation::Write, n, FaultVfs::Lasting::Once);
        const bool refused = ErrorOf([&] { rs_->Update(); }) != 0;
        if (!refused && vfs_.Failures() == 0) break;
        vfs_.Heal();
        if (!refused) continue;
        EXPECT_EQ(rs_->RecordCount(), RowsBefore);
        rs_->Update();
        EXPECT_EQ(rs_->RecordCount(), RowsBefore + 1);
        EXPECT_EQ(Plain().One("SELECT count(*) FROM Every"), std::to_string(RowsBefore + 1));
    }
}

TEST_F(Faults, AWalkThatFailsEndsWithoutACurrentRow) {
    int failed = 0;
    for (int n = 1;; ++n) {
        Renew();
        OpenEvery();
        vfs_.FailAt(Operation::Read, n, FaultVfs::Lasting::Once);
        int rows = 0;
        const int number = ErrorOf([&] {
            for (; !rs_->AtEOF(); rs_->MoveNext()) rows += rs_->operator[](0).ToInt() > 0 ? 1 : 0;
        });
        if (number == 0 && vfs_.Failures() == 0) break;
        EXPECT_EQ(number, ErrorNumber::DiskError);
        ++failed;
        vfs_.Heal();
        rs_->MoveFirst();
        EXPECT_EQ(Ids(*rs_).size(), std::size_t{RowsBefore});
    }
    EXPECT_GT(failed, 0);
}

TEST_F(Faults, AFileWhoseMakingFailedIsAbsentOrWhole) {
    for (const Operation operation : FaultVfs::Operations) {
        for (int n = 1; n < 1000; ++n) {
            Renew();
            std::filesystem::remove(path_);
            vfs_.FailAt(operation, n, FaultVfs::Lasting::Always);
            const int number = ErrorOf([&] { Create(); });
            if (number == 0 && vfs_.Failures() == 0) break;
            vfs_.Heal();
            if (number != 0) {
                EXPECT_EQ(number, NumberFor(operation)) << NameOf(operation) << " " << n;
            }
            if (!std::filesystem::exists(path_)) Create();
            Open().Append(Every());
            EXPECT_EQ(Plain().One("PRAGMA integrity_check"), "ok");
        }
    }
}

TEST_F(Faults, EachUpdateIsSyncedBeforeItReturns) {
    Renew();
    OpenEvery();
    for (int i = 1; i <= 3; ++i) {
        vfs_.Heal();
        Add(*rs_, RowsBefore + i, 40010);
        // Journal, its header, the file; the journal is deleted with its folder synced.
        EXPECT_GE(vfs_.Count(Operation::Sync), 3);
        EXPECT_EQ(vfs_.Count(Operation::Delete), 1);
    }
}

TEST_F(Faults, WhatAnErrorOfTheDiskHasUndoneIsNotHalfWrittenBehindIt) {
    int undone = 0;
    for (int n = 1;; ++n) {
        Renew();
        OpenEvery();
        db_->OneCommit();
        rs_->Index("ID1");
        vfs_.FailAt(Operation::Read, n, FaultVfs::Lasting::Once);
        const int number = ErrorOf([&] {
            Add(*rs_, RowsBefore + 1, 40010);
            rs_->Seek(1);
            rs_->Delete();
        });
        if (number == 0) break;
        EXPECT_EQ(number, ErrorNumber::DiskError);
        ++undone;
        EXPECT_EQ(ErrorOf([&] { Add(*rs_, RowsBefore + 2, 40010); }), ErrorNumber::DiskError);
        EXPECT_EQ(ErrorOf([&] { db_->Close(); }), ErrorNumber::DiskError);
        EXPECT_EQ(Content(), before_) << "read " << n;
    }
    EXPECT_GT(undone, 2);
}

TEST_F(Faults, OneCommitSyncsOnceForAllRows) {
    Renew();
    OpenEvery();
    db_->OneCommit();
    vfs_.Heal();
    for (int i = 1; i <= 45; ++i) Add(*rs_, RowsBefore + i, 40010);
    EXPECT_EQ(vfs_.Count(Operation::Sync), 0);
    db_->Close();
    EXPECT_EQ(vfs_.Count(Operation::Delete), 1);
}

}  // namespace
}  // namespace sorvane::Dao

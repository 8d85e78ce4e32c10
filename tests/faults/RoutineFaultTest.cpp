// Every routine of the rooms that touches the file, over a disk that fails at each of its operations in turn,
// the commit's included.
#include <filesystem>
#include <fstream>
#include <functional>
#include <set>
#include <string>

#include "faults/Routines.h"
#include "support/FaultVfs.h"

namespace sorvane {

namespace {

using Operation = FaultVfs::Operation;
using Lasting = FaultVfs::Lasting;

class RoutineFaults : public ::testing::TestWithParam<Routine> {
  protected:
    struct Outcome : RoutineWorld::Outcome {
        bool failed = false;  // whether the disk did
    };

    void SetUp() override {
        world_.dialogs.mend = [this] {
            Mend();
            // The file is not made a second time.
            if (!std::filesystem::exists(world_.path)) std::ofstream(world_.path).flush();
        };
        before_ = world_.Content();
        after_ = RunOnce();
        ASSERT_EQ(after_.errors, Texts{});
        ASSERT_EQ(after_.raised, 0);
    }

    Outcome RunOnce() {
        failures_ = 0;
        Outcome outcome{world_.RunOnce([this] { Mend(); })};
        outcome.failed = failures_ > 0;
        return outcome;
    }
    void Mend() {
        failures_ += vfs_.Failures();
        vfs_.Heal();
    }
    void Renew() {
        vfs_.Heal();
        world_.Renew();
    }

    // Runs the routine with the fault that `arm` sets, which is to show as `number`. False when the fault
    // never came about.
    bool RunWith(const std::function<void()>& arm, int number, const std::string& story) {
        const ::testing::ScopedTrace trace(__FILE__, __LINE__, story);
        Renew();
        arm();
        const Outcome outcome = RunOnce();
        if (outcome.errors.empty() && outcome.raised == 0) {
            EXPECT_TRUE(outcome.tables == after_.tables) << "in silence";
            EXPECT_TRUE(outcome.shown == after_.shown) << "in silence";
            return outcome.failed;
        }
        EXPECT_TRUE(outcome.failed);
        ++told_;
        ExpectTold(outcome, number);
        ExpectKept(outcome.tables);
        ExpectUsable(outcome.tables);
        return outcome.failed;
    }

    // The first box names the cause; what follows is the cause again or what comes of it.
    void ExpectTold(const Outcome& outcome, int number) const {
        const auto isBox = [&](const std::string& box, int of) {
            const std::string head = "ERROR #" + std::to_string(of) + "\r\n";
            return box == head + "Unexpected error occurred. Please advise error number to support." ||
                   (GetParam().fromNothing &&
                    box == head + " Unable to create index. Please advise error number to support.");
        };
        bool first = true;
        for (const std::string& box : outcome.errors) {
            bool right = isBox(box, number);
            if (!first)
                for (const int consequence : GetParam().consequences)
                    right = right || isBox(box, consequence);
            EXPECT_TRUE(right) << box;
            first = false;
        }
        if (outcome.raised == 0) return;
        EXPECT_TRUE(GetParam().raises);
        if (first || GetParam().consequences.count(outcome.raised) == 0) {
            EXPECT_EQ(outcome.raised, number);
        }
    }

    // Each table is as it was before or as a whole run leaves it.
    void ExpectKept(const Tables& now) const {
        for (const auto& [table, rows] : before_) EXPECT_EQ(now.count(table), 1U) << table;
        for (const auto& [table, rows] : now) {
            if (table == "Temp" && GetParam().scratches) continue;
            const auto done = after_.tables.find(table);
            ASSERT_NE(done, after_.tables.end()) << table;
            const auto was = before_.find(table);
            EXPECT_TRUE(rows == done->second || (was != before_.end() && rows == was->second))
                << table << " has a part of its rows";
        }
    }
    // The program goes on, and the same can be done again. What was tried with one file need not be tried
    // with another like it.
    void ExpectUsable(const Tables& now) {
        if (!tried_.insert(now).second) return;
        const Outcome again = RunOnce();
        EXPECT_EQ(again.errors, Texts{});
        EXPECT_EQ(again.raised, 0);
        if (GetParam().again == Again::Same) {
            EXPECT_TRUE(again.tables == after_.tables);
            return;
        }
        for (const auto& [table, rows] : now) {
            const Texts& more = again.tables.at(table);
            const std::size_t added = after_.tables.at(table).size() - before_.at(table).size();
            EXPECT_EQ(more.size(), rows.size() + added) << table;
            EXPECT_TRUE(std::equal(rows.begin(), rows.end(), more.begin())) << table;
        }
    }

    FaultVfs vfs_{"faults"};
    RoutineWorld world_{GetParam(), vfs_.Name()};
    Tables before_;
    Outcome after_;
    std::set<Tables> tried_;
    int failures_ = 0;
    int told_ = 0;
};

int NumberFor(Operation operation) {
    return operation == Operation::Open ? ErrorNumber::NoPermission : ErrorNumber::DiskError;
}

constexpr int Enough = 5000;

TEST_P(RoutineFaults, AFailingOperationIsToldAndChangesNothingElse) {
    for (const Operation operation : FaultVfs::Operations)
        for (const Lasting lasting : {Lasting::Once, Lasting::Always})
            for (int n = 1; n < Enough && !HasFailure(); ++n)
                if (!RunWith([&] { vfs_.FailAt(operation, n, lasting); }, NumberFor(operation),
                             std::string(NameOf(operation)) + " " + std::to_string(n) +
                                 (lasting == Lasting::Once ? "" : " and on")))
                    break;
    EXPECT_GT(told_, 0);
}

TEST_P(RoutineFaults, AFullDiskIsToldAndChangesNothingElse) {
    constexpr int Step = 777;
    for (int bytes = 0; bytes < Enough * Step && !HasFailure(); bytes += Step)
        if (!RunWith([&] { vfs_.FullAfter(bytes); }, ErrorNumber::DiskFull,
                     "room for " + std::to_string(bytes)))
            break;
}

TEST_P(RoutineFaults, AFileThatAnotherHoldsIsToldAndChangesNothingElse) {
    for (int n = 1; n < Enough && !HasFailure(); ++n)
        if (!RunWith([&] { vfs_.HeldFrom(n); }, ErrorNumber::Locked, "held from lock " + std::to_string(n)))
            break;
    EXPECT_GT(told_, 0);
}

INSTANTIATE_TEST_SUITE_P(Rooms, RoutineFaults, ::testing::ValuesIn(Routines().begin(), Routines().end()),
                         [](const auto& routine) { return std::string(routine.param.name); });

}  // namespace
}  // namespace sorvane

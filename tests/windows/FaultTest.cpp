// The disk fails while a window is used: its box comes, the window goes on.
#include "support/FaultVfs.h"

#include <algorithm>

#include "windows/Slip.h"

namespace sorvane::test {
namespace {

using Operation = FaultVfs::Operation;

class CleanUpFaults : public SlipWorld {
  protected:
    CleanUpFaults() {
        engine = Dao::Engine(vfs_.Name());
        for (const int number : {3043, 3051})
            person.Bear("ERROR!",
                        "ERROR #" + std::to_string(number) +
                            "\r\nUnexpected error occurred. Please advise error number to support.",
                        [this, number] { borne_.push_back(number); });
    }

    const std::string day_ = std::to_string(Date::FromText(Today).Day());

    // The window in the middle of an entry: rows of two tables stand in the file, two of this date in each.
    void Begin() {
        ShowModal("mnuCANBCBC49", [&](GameWindow& window) {
            const std::string ofToday =
                " (ID1, Date) WITH n(i) AS (VALUES (1), (2)) SELECT i + 2, " + day_ + " FROM n";
            for (const std::string table : {"PlayedBC49", "PlayedExtra"}) {
                Do("DELETE FROM " + table);
                Do("INSERT INTO " + table + " (ID1, Date) VALUES (1, 1), (2, 90000)");
                Do("INSERT INTO " + table + ofToday);
            }
            Click("txtDollars");  // leaves the count, which asks for sheets
            global.NoOfTickets = global.NoOfSheets = 2;
            global.TicketsSaved = True;
            window.State.CurrentSheet = 2;
            window.State.SavedDate = Date::FromText(Today);
            Leave();
        });
    }
    void Leave() {
        person.Expect("Exiting before completion...", CleanUpText, Answer::Yes, BoxStyle::YesNoCancel,
                      [this] { vfs_.FailAt(operation_, n_, FaultVfs::Lasting::Once); });
        // It says so in every case.
        person.Expect("Database Cleaned", "Database cleaned!", Answer::Ok, BoxStyle::Ok, [this] {
            failures_ = vfs_.Failures();
            vfs_.Heal();
        });
        Click("cmdExit(0)");
    }
    void ExpectOthersKept() {
        EXPECT_EQ(Rows("PRAGMA integrity_check"), Texts{"ok"});
        for (const std::string table : {"PlayedBC49", "PlayedExtra"})
            EXPECT_EQ(Rows("SELECT ID1 FROM " + table + " WHERE Date <> " + day_ + " ORDER BY ID1"),
                      (Texts{"1", "2"}));
    }
    std::string LeftOfToday() {
        return Rows("SELECT (SELECT count(*) FROM PlayedBC49 WHERE Date = " + day_ +
                    ") + (SELECT count(*) FROM PlayedExtra WHERE Date = " + day_ + ")")
            .at(0);
    }

    FaultVfs vfs_{"faults"};
    Operation operation_ = Operation::Write;
    int n_ = 0, failures_ = 0;
    std::vector<int> borne_;  // numbers of the boxes that came
};

TEST_F(CleanUpFaults, WhatTheDiskRefusesIsToldAndTheWindowIsLeft) {
    for (const Operation operation : {Operation::Open, Operation::Write, Operation::Sync}) {
        for (n_ = 1;; ++n_) {
            const ::testing::ScopedTrace trace(__FILE__, __LINE__,
                                               std::string(NameOf(operation)) + " " + std::to_string(n_));
            operation_ = operation;
            borne_.clear();
            Begin();
            ExpectOthersKept();
            EXPECT_TRUE(LeftOfToday() == "0" || !borne_.empty());
            EXPECT_LE(borne_.size(), 1U);
            for (const int number : borne_) EXPECT_EQ(number, operation == Operation::Open ? 3051 : 3043);
            if (failures_ == 0 || HasFailure()) break;
        }
        EXPECT_GT(n_, 4) << NameOf(operation);
    }
}

}  // namespace
}  // namespace sorvane::test

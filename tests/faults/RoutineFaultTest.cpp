// Every routine of the rooms that touches the file, over a disk that fails at each of its operations in turn.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "checking/CheckForMatches.h"
#include "checking/ReadTableData.h"
#include "checking/StoreData.h"
#include "entry/CreateAllTables.h"
#include "entry/SaveData.h"
#include "quickpick/Wheel.h"
#include "reports/DigitReports.h"
#include "reports/FrequencyReport.h"
#include "reports/MoneyReport.h"
#include "store/DeleteData.h"
#include "store/StoreLedger.h"
#include "support/FaultVfs.h"
#include "support/RecordingChart.h"
#include "support/World.h"

namespace sorvane {
namespace {

using Operation = FaultVfs::Operation;
using Lasting = FaultVfs::Lasting;
using testing::PlainFile;
using testing::World;
using Texts = std::vector<std::string>;
using Tables = std::map<std::string, Texts>;  // rows in the order of their numbers

// Answers each question with Yes and keeps the boxes of errors. Some routines show them for as long as the
// cause lasts: it is mended when nobody would read on.
class PatientDialogs final : public Dialogs {
  public:
    static constexpr std::size_t Patience = 6;
    Texts errors;
    std::function<void()> mend;

    Answer MsgBox(std::string_view text, int style, std::string_view title) override {
        if (style == BoxStyle::YesNo) return Answer::Yes;
        if (style == BoxStyle::Stop && title == ErrorTitle) errors.emplace_back(text);
        if (errors.size() % Patience == 0) mend();
        return Answer::Ok;
    }
};

class NoFace final : public WheelFace {
  public:
    std::string Favourite(int) const override { return {}; }
    void ShowFavourite(int, const std::string&) override {}
    void EmptyFavourites() override {}
    void AskForFavourite(int) override {}
    void RefuseTicketCount() override {}
};

// What a routine works with.
struct Desk {
    Run& run;
    const std::string& DbName;
    WindowState& state;
    LineList& list;
    testing::RecordingChart& chart;

    StoreArgs At() { return {DbName, state.TableName, state.WindowDate}; }
    ReportArgs Report(Family family) { return {family, DbName, state.TableName, state.mode}; }
};

// Dates that the file has rows of, and one that it has none of.
constexpr int OldDay = 40'002, NewDay = 40'100;

// What a second run of the routine leaves: its rows once more, or what one run leaves.
enum class Again { Adds, Same };

struct Routine {
    const char* name;
    Family family;
    std::string_view LottoFlag, ExtraFlag;
    const char* table;
    int day;
    Again again;
    void (*act)(Desk& desk);
    bool fromNothing = false;  // there is no file before
    bool raises = false;       // hands an error to its caller
    bool scratches = false;    // what it leaves in the scratch table is of no use to anybody
    // What may follow from the first error, besides itself.
    std::set<int> consequences = {};
};

template <void (*Call)(Run&, const StoreArgs&)>
void Calls(Desk& desk) {
    Call(desk.run, desk.At());
}

template <void (*Store)(Run&, const StoreArgs&, const WinningBoxes&)>
void Stores(Desk& desk) {
    WinningBoxes boxes;
    for (int number = 1; number <= 20; ++number) boxes.Main.push_back(std::to_string(number));
    boxes.Four = {"1", "2", "3", "4"};
    boxes.Encore = "1234567";
    boxes.DrawDate = desk.state.WindowDate;
    Store(desk.run, desk.At(), boxes);
}

template <void (*Read)(Run&, const StoreArgs&, Lines&)>
void Reads(Desk& desk) {
    Read(desk.run, desk.At(), desk.list);
}

template <Family family>
void Charts(Desk& desk) {
    if constexpr (IsPick(family)) ChartDigits(desk.run, desk.Report(family), desk.chart);
    else ChartFrequency(desk.run, desk.Report(family), desk.chart);
}

template <auto generate>
void Wheels(Desk& desk) {
    NoFace face;
    desk.run.global.Generating = true;
    generate(desk.run, 7, desk.DbName, desk.state.TableName, {face, desk.list, desk.chart}, ReportMode, 6, 6);
}

template <Family family>
void CreatesAll(Desk& desk) {
    CreateAllTables(desk.run, family, desk.state);
}

void AmendsWinnings(Desk& desk) {
    desk.run.global.EnteringWinnings = On;
    StoreLedgerAmount(desk.run, desk.At());
}

void DeletesDate(Desk& desk) {
    DeleteRowsForDate(desk.run, desk.DbName, desk.state.TableName, desk.state.WindowDate);
}
void EmptiesTemp(Desk& desk) { DeleteAllRows(desk.run, desk.DbName, desk.state.TableName); }

void BuildsTemp(Desk& desk) {
    Array<Integer> frequencies;
    frequencies.Redim(44);
    for (int i = 0; i <= 44; ++i) frequencies(i) = 100 + i;
    BuildTempTable(desk.run, desk.DbName, desk.state.TableName, 44, frequencies);
}

void ChartsMoney(Desk& desk) {
    ChartMoney(desk.run, GameMoney, desk.DbName, desk.state.TableName, desk.state.mode, desk.chart);
}
void ReportsMoney(Desk& desk) {
    std::string text;
    ReportMoney(desk.run, GameMoney, desk.DbName, desk.state.TableName, desk.state.mode, desk.chart, "Lotto",
                text);
    desk.list.AddItem(text);
}
void ReportsFrequency(Desk& desk) {
    std::string text;
    ReportFrequency(desk.run, desk.Report(Family::frm649), desk.chart, "Lotto", text);
    desk.list.AddItem(text);
}

// A probe that fails sends the creator at a table that is there; a file that was not made stays missing.
const std::set<int> Creating = {ErrorNumber::TableExists, ErrorNumber::StoreFileNotFound};
// Without a tally, or with less than a whole scratch table, there is no pool.
const std::set<int> Wheeling = {ErrorNumber::SubscriptOutOfRange, ErrorNumber::NoCurrentRecord};

// clang-format off
const Routine Routines[] = {
    // name            family             LottoFlag      ExtraFlag      table              day     again
    {"SixNumbers",     Family::frm649,    "BC49",        "Extra",       "PlayedBC49",      NewDay, Again::Adds, Calls<SaveLotto6Tickets>},
    {"Lottario",       Family::frm645,    "Lottario",    "Encore",      "PlayedLottario",  NewDay, Again::Adds, Calls<SaveLottarioTickets>},
    {"SevenNumbers",   Family::frm749,    "Super 7",     "Tag",         "PlayedSuper7",    NewDay, Again::Adds, Calls<SaveLotto7Tickets>},
    {"Keno",           Family::frmKeno70, "ONTKeno",     "Encore",      "PlayedONTKeno",   NewDay, Again::Adds, Calls<SaveKenoTickets>},
    {"ThreeDigits",    Family::frmPick3,  "WESTPick3",   "WESTPick3",   "PlayedWESTPick3", NewDay, Again::Adds, Calls<SavePick3Tickets>},
    {"FourDigits",     Family::frmPick4,  "FLAPlay4",    "FLAPlay4",    "PlayedFLAPlay4",  NewDay, Again::Adds, Calls<SavePick4Tickets>},
    {"SixDigitAddOn",  Family::frm649,    "Lotto649",    "Encore",      "PlayedEncore",    NewDay, Again::Adds, Calls<SaveAddOnTickets>},
    {"SevenDigitAddOn", Family::frm749,   "Super 7",     "WESTExtra",   "PlayedWESTExtra", NewDay, Again::Adds, Calls<SaveAddOnTickets>},
    {"Extra",          Family::frm649,    "BC49",        "Extra",       "PlayedExtra",     NewDay, Again::Adds, Calls<SaveExtraTickets>},
    {"Spent",          Family::frm649,    "BC49",        "Extra",       "Spent",           NewDay, Again::Adds, Calls<StoreLedgerAmount>},
    {"Winnings",       Family::frm649,    "BC49",        "Extra",       "Winnings",        NewDay, Again::Adds, Calls<StoreLedgerAmount>},
    {"WinningsAmended", Family::frm649,   "BC49",        "Extra",       "Winnings",        OldDay, Again::Same, AmendsWinnings},

    {"SixDrawn",       Family::frm649,    "BC49",        "Extra",       "WinBC49",         NewDay, Again::Same, Stores<StoreLotto6Win>},
    {"SixRedrawn",     Family::frm649,    "BC49",        "Extra",       "WinBC49",         OldDay, Again::Same, Stores<StoreLotto6Win>},
    {"SevenDrawn",     Family::frm749,    "Super 7",     "Tag",         "WinSuper7",       NewDay, Again::Same, Stores<StoreLotto7Win>},
    {"SevenRedrawn",   Family::frm749,    "Super 7",     "Tag",         "WinSuper7",       OldDay, Again::Same, Stores<StoreLotto7Win>},
    {"KenoDrawn",      Family::frmKeno70, "ONTKeno",     "Encore",      "WinONTKeno",      NewDay, Again::Same, Stores<StoreKenoWin>},
    {"KenoRedrawn",    Family::frmKeno70, "ONTKeno",     "Encore",      "WinONTKeno",      OldDay, Again::Same, Stores<StoreKenoWin>},
    {"ThreeDrawn",     Family::frmPick3,  "WESTPick3",   "WESTPick3",   "WinWESTPick3",    NewDay, Again::Same, Stores<StorePick3Win>},
    {"ThreeRedrawn",   Family::frmPick3,  "WESTPick3",   "WESTPick3",   "WinWESTPick3",    OldDay, Again::Same, Stores<StorePick3Win>},
    {"FourDrawn",      Family::frmPick4,  "FLAPlay4",    "FLAPlay4",    "WinFLAPlay4",     NewDay, Again::Same, Stores<StorePick4Win>},
    {"FourRedrawn",    Family::frmPick4,  "FLAPlay4",    "FLAPlay4",    "WinFLAPlay4",     OldDay, Again::Same, Stores<StorePick4Win>},
    {"ExtraDrawn",     Family::frm649,    "BC49",        "Extra",       "WinExtra",        NewDay, Again::Same, Stores<StoreExtraWin>},
    {"ExtraRedrawn",   Family::frm649,    "BC49",        "Extra",       "WinExtra",        OldDay, Again::Same, Stores<StoreExtraWin>},
    // Its date goes where none is looked for.
    {"EarlyBirdDrawn", Family::frm645,    "Lottario",    "Encore",      "WinEarlyBird",    NewDay, Again::Adds, Stores<StoreExtraWin>},
    {"AddOnDrawn",     Family::frm649,    "Lotto649",    "Encore",      "WinEncore",       NewDay, Again::Same, Stores<StoreAddOnWin>},
    {"AddOnRedrawn",   Family::frm749,    "Super 7",     "WESTExtra",   "WinWESTExtra",    OldDay, Again::Same, Stores<StoreAddOnWin>},

    {"DateDeleted",    Family::frm649,    "BC49",        "Extra",       "PlayedBC49",      OldDay, Again::Same, DeletesDate},
    {"DateOfAddOnDeleted", Family::frm649, "BC49",       "Extra",       "PlayedExtra",     OldDay, Again::Same, DeletesDate},
    {"TempEmptied",    Family::frm645,    "Lottario",    "Encore",      "Temp",            OldDay, Again::Same, EmptiesTemp},
    {"TempBuilt",      Family::frm645,    "Lottario",    "Encore",      "Temp",            OldDay, Again::Same, BuildsTemp, false, false, true},
    {"HotWheel",       Family::frm645,    "Lottario",    "Encore",      "WinLottario",     OldDay, Again::Same, Wheels<GenerateHotWheel>, false, true, true, Wheeling},
    {"ColdWheel",      Family::frm645,    "Lottario",    "Encore",      "WinLottario",     OldDay, Again::Same, Wheels<GenerateColdWheel>, false, true, true, Wheeling},

    // The other families' steps are of the same kinds.
    {"TablesOf649",    Family::frm649,    "BC49",        "Extra",       "",                OldDay, Again::Same, CreatesAll<Family::frm649>, true, false, false, Creating},
    {"TablesOfKeno80", Family::frmKeno80, "BCClubKeno",  "",            "",                OldDay, Again::Same, CreatesAll<Family::frmKeno80>, true, false, false, Creating},
    {"TablesOfPick4",  Family::frmPick4,  "FLAPlay4",    "FLAPlay4",    "",                OldDay, Again::Same, CreatesAll<Family::frmPick4>, true, false, false, Creating},

    {"SixRead",        Family::frm649,    "BC49",        "Extra",       "PlayedBC49",      OldDay, Again::Same, Reads<ReadLotto6Played>},
    {"SevenRead",      Family::frm749,    "Super 7",     "Tag",         "PlayedSuper7",    OldDay, Again::Same, Reads<ReadLotto7Played>},
    {"KenoRead",       Family::frmKeno70, "ONTKeno",     "Encore",      "PlayedONTKeno",   OldDay, Again::Same, Reads<ReadKenoPlayed>},
    {"ThreeRead",      Family::frmPick3,  "WESTPick3",   "WESTPick3",   "PlayedWESTPick3", OldDay, Again::Same, Reads<ReadPick3Played>},
    {"FourRead",       Family::frmPick4,  "FLAPlay4",    "FLAPlay4",    "PlayedFLAPlay4",  OldDay, Again::Same, Reads<ReadPick4Played>},
    {"AddOnRead",      Family::frm649,    "Lotto649",    "Encore",      "PlayedEncore",    OldDay, Again::Same, Reads<ReadDigitAddOnPlayed>},
    {"ExtraRead",      Family::frm649,    "BC49",        "Extra",       "PlayedExtra",     OldDay, Again::Same, Reads<ReadExtraPlayed>},
    {"DrawFound",      Family::frm649,    "BC49",        "Extra",       "PlayedBC49",      OldDay, Again::Same, Calls<FindDrawEntry>},
    {"SixCharted",     Family::frm649,    "BC49",        "Extra",       "WinBC49",         OldDay, Again::Same, Charts<Family::frm649>},
    {"SevenCharted",   Family::frm749,    "Super 7",     "Tag",         "WinSuper7",       OldDay, Again::Same, Charts<Family::frm749>},
    {"KenoCharted",    Family::frmKeno70, "ONTKeno",     "Encore",      "WinONTKeno",      OldDay, Again::Same, Charts<Family::frmKeno70>},
    {"ThreeCharted",   Family::frmPick3,  "WESTPick3",   "WESTPick3",   "WinWESTPick3",    OldDay, Again::Same, Charts<Family::frmPick3>},
    {"FourCharted",    Family::frmPick4,  "FLAPlay4",    "FLAPlay4",    "WinFLAPlay4",     OldDay, Again::Same, Charts<Family::frmPick4>},
    {"SixReported",    Family::frm649,    "BC49",        "Extra",       "WinBC49",         OldDay, Again::Same, ReportsFrequency},
    {"MoneyCharted",   Family::frm649,    "BC49",        "Extra",       "",                OldDay, Again::Same, ChartsMoney},
    {"MoneyReported",  Family::frm649,    "BC49",        "Extra",       "",                OldDay, Again::Same, ReportsMoney},
};
// clang-format on

void PrintTo(const Routine& routine, std::ostream* to) { *to << routine.name; }

class RoutineFaults : public ::testing::TestWithParam<Routine> {
  protected:
    // What one run showed and left.
    struct Outcome {
        Tables tables;
        Texts shown;   // lines and calls of the chart
        Texts errors;  // boxes
        int raised;    // to the caller
        bool failed;   // whether the disk did
    };

    const Routine& routine_ = GetParam();

    void SetUp() override {
        dialogs_.mend = [this] {
            Mend();
            // The file is not made a second time.
            if (!std::filesystem::exists(path_)) std::ofstream(path_).flush();
        };
        path_ = world_.DbName();
        std::filesystem::create_directory(std::filesystem::path(path_).parent_path());
        if (!routine_.fromNothing) {
            Ready();
            CreateAllTables(run_, routine_.family, state_);
            for (const std::string& table : world_.Plain().Tables()) Fill(table);
            std::ostringstream bytes;
            bytes << std::ifstream(path_, std::ios::binary).rdbuf();
            fresh_ = bytes.str();
            before_ = Content();
        }
        after_ = RunOnce();
        ASSERT_EQ(after_.errors, Texts{});
        ASSERT_EQ(after_.raised, 0);
    }

    // Rows of several games and dates, of what the fields take; in the scratch table as a wheel leaves them
    // that was interrupted.
    void Fill(const std::string& table) {
        PlainFile file = world_.Plain();
        std::string values;
        for (const std::string& field :
             file.Rows("SELECT name || '|' || type FROM pragma_table_info('" + table + "')")) {
            const std::string name = field.substr(0, field.find('|')), type = field.substr(name.size() + 1);
            values += values.empty() ? "i" : ", ";
            if (name == "ID1") continue;
            if (type == "DATETIME") values += "40000 + i % 20";
            else if (name == "Lottoflag")
                values += "iif(i % 3, '" + std::string(routine_.LottoFlag) + "', 'Other')";
            else if (type == "TEXT(30)") values += "'Straight'";
            else if (type == "BOOLEAN") values += "i % 2";
            else values += "i % 9 + 1";
        }
        file.Do("WITH n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 40) INSERT INTO [" + table +
                "] SELECT " + values + " FROM n");
    }

    // All that the file holds, through plain SQLite on a whole disk.
    Tables Content() const {
        Tables tables;
        if (!std::filesystem::exists(path_)) return tables;
        PlainFile file(path_);
        EXPECT_EQ(file.One("PRAGMA integrity_check"), "ok");
        for (const std::string& table : file.Tables())
            tables[table] = file.Rows("SELECT * FROM [" + table + "] ORDER BY rowid");
        return tables;
    }

    // A program that has just come to the routine.
    void Ready() {
        Global& g = world_.global;
        const std::string place = g.AppPath;
        g = Global{};
        g.NL = "\r\n";
        g.AppPath = place;
        g.LottoFlag = routine_.LottoFlag;
        g.ExtraFlag = routine_.ExtraFlag;
        g.NoOfTicketsOnSheet = 2;
        g.NoOfExtra = 2;
        g.NoOfTickets = 1;
        g.WheelSize = 7;
        g.Dollars = "12.50";
        g.PlayOption = "Box";
        g.Lotto6Tickets.Redim(9);
        g.Lotto7Tickets.Redim(9);
        g.KenoTickets.Redim(9);
        g.Pick3Tickets.Redim(9);
        g.Pick4Tickets.Redim(9);
        g.AddOnTickets.Redim(9);
        g.ExtraTickets.Redim(9);
        state_ = WindowState{};
        state_.TableName = routine_.table;
        state_.WindowDate = Date::FromDays(routine_.day);
        state_.mode = ReportMode;
        dialogs_.errors.clear();
    }

    void Renew() {
        vfs_.Heal();
        for (const auto& entry :
             std::filesystem::directory_iterator(std::filesystem::path(path_).parent_path()))
            std::filesystem::remove(entry);
        if (!fresh_.empty()) std::ofstream(path_, std::ios::binary) << fresh_;
    }

    Outcome RunOnce() {
        Ready();
        LineList list;
        testing::RecordingChart chart;
        const std::string DbName = path_;
        Desk desk{run_, DbName, state_, list, chart};
        failures_ = 0;
        const int raised = ErrorOf([&] { routine_.act(desk); });
        Mend();
        EXPECT_EQ(world_.global.Open.DbOpen, Off);
        EXPECT_EQ(world_.global.Open.RsOpen, Off);
        Texts shown = std::move(list.items);
        shown.insert(shown.end(), chart.calls.begin(), chart.calls.end());
        return {Content(), std::move(shown), dialogs_.errors, raised, failures_ > 0};
    }
    void Mend() {
        failures_ += vfs_.Failures();
        vfs_.Heal();
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
                   (routine_.fromNothing &&
                    box == head + " Unable to create index. Please advise error number to support.");
        };
        bool first = true;
        for (const std::string& box : outcome.errors) {
            bool right = isBox(box, number);
            if (!first)
                for (const int consequence : routine_.consequences) right = right || isBox(box, consequence);
            EXPECT_TRUE(right) << box;
            first = false;
        }
        if (outcome.raised == 0) return;
        EXPECT_TRUE(routine_.raises);
        if (first || routine_.consequences.count(outcome.raised) == 0) {
            EXPECT_EQ(outcome.raised, number);
        }
    }

    // Between what stood there before and what a whole run leaves: nothing else is gone, changed or new.
    void ExpectKept(const Tables& now) const {
        for (const auto& [table, rows] : before_) EXPECT_EQ(now.count(table), 1U) << table;
        for (const auto& [table, rows] : now) {
            if (table == "Temp" && routine_.scratches) continue;
            const auto done = after_.tables.find(table);
            ASSERT_NE(done, after_.tables.end()) << table;
            const auto was = before_.find(table);
            if (rows == done->second || (was != before_.end() && rows == was->second)) continue;
            ExpectBetween(was == before_.end() ? Texts{} : was->second, rows, done->second, table);
        }
    }
    static void ExpectBetween(const Texts& before, const Texts& now, const Texts& after,
                              const std::string& table) {
        const std::set<std::string> had(before.begin(), before.end()), has(now.begin(), now.end()),
            will(after.begin(), after.end());
        EXPECT_EQ(has.size(), now.size()) << table;
        for (const std::string& row : had)
            EXPECT_TRUE(will.count(row) == 0 || has.count(row) > 0) << table << " lost " << row;
        for (const std::string& row : has)
            EXPECT_TRUE(had.count(row) > 0 || will.count(row) > 0) << table << " has " << row;
        EXPECT_GE(now.size(), std::min(before.size(), after.size())) << table;
        EXPECT_LE(now.size(), std::max(before.size(), after.size())) << table;
        // Rows are added in their order.
        EXPECT_TRUE(before.size() >= after.size() || std::equal(now.begin(), now.end(), after.begin()))
            << table;
    }

    // The program goes on, and the same can be done again. What was tried with one file need not be tried
    // with another like it.
    void ExpectUsable(const Tables& now) {
        if (!tried_.insert(now).second) return;
        const Outcome again = RunOnce();
        EXPECT_EQ(again.errors, Texts{});
        EXPECT_EQ(again.raised, 0);
        if (routine_.again == Again::Same) {
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
    World world_{vfs_.Name()};
    PatientDialogs dialogs_;
    Services services_{dialogs_, world_.printer, world_.clock, world_.random, world_.tools, world_.engine};
    sorvane::Run run_{world_.global, services_};
    WindowState state_;
    std::string path_, fresh_;
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

INSTANTIATE_TEST_SUITE_P(Rooms, RoutineFaults, ::testing::ValuesIn(Routines),
                         [](const auto& routine) { return std::string(routine.param.name); });

}  // namespace
}  // namespace sorvane

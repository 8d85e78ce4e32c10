#include "faults/Routines.h"

#include <filesystem>
#include <fstream>
#include <ostream>
#include <sstream>

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

namespace sorvane {

namespace {

using testing::PlainFile;

class NoFace final : public WheelFace {
  public:
    std::string Favourite(int) const override { return {}; }
    void ShowFavourite(int, const std::string&) override {}
    void EmptyFavourites() override {}
    void AskForFavourite(int) override {}
    void RefuseTicketCount() override {}
};

template <void (*Call)(Session&, const StoreArgs&)>
void Calls(Desk& desk) {
    Call(desk.session, desk.At());
}

template <void (*Store)(Session&, const StoreArgs&, const WinningBoxes&)>
void Stores(Desk& desk) {
    WinningBoxes boxes;
    for (int number = 1; number <= 20; ++number) boxes.Main.push_back(std::to_string(number));
    boxes.Four = {"1", "2", "3", "4"};
    boxes.Encore = "1234567";
    boxes.DrawDate = desk.state.WindowDate;
    Store(desk.session, desk.At(), boxes);
}

template <void (*Read)(Session&, const StoreArgs&, Lines&)>
void Reads(Desk& desk) {
    Read(desk.session, desk.At(), desk.list);
}

template <Family family>
void Charts(Desk& desk) {
    if constexpr (IsPick(family)) ChartDigits(desk.session, desk.Report(family), desk.chart);
    else ChartFrequency(desk.session, desk.Report(family), desk.chart);
}

template <auto generate>
void Wheels(Desk& desk) {
    NoFace face;
    desk.session.global.Generating = true;
    Integer howMany = 7, numbers = 6, mode = ReportMode;
    Array<std::string> unused;
    generate(desk.session, {{}, howMany, numbers, desk.DbName, desk.state.TableName, mode, unused},
             {face, desk.list, desk.chart}, 6);
}

template <Family family>
void CreatesAll(Desk& desk) {
    CreateAllTables(desk.session, family, desk.state);
}

void AmendsWinnings(Desk& desk) {
    desk.session.global.EnteringWinnings = On;
    StoreLedgerAmount(desk.session, desk.At());
}

void DeletesDate(Desk& desk) {
    DeleteRowsForDate(desk.session, {desk.DbName, desk.state.TableName}, desk.state.WindowDate);
}
void EmptiesTemp(Desk& desk) { DeleteAllRows(desk.session, {desk.DbName, desk.state.TableName}); }

void BuildsTemp(Desk& desk) {
    Array<Integer> frequencies;
    frequencies.Redim(44);
    for (int i = 0; i <= 44; ++i) frequencies(i) = 100 + i;
    BuildTempTable(desk.session, desk.DbName, desk.state.TableName, 44, frequencies);
}

void ChartsMoney(Desk& desk) {
    ChartMoney(desk.session,
               {ReportFacts::GameMoney, desk.DbName, desk.state.TableName, desk.state.mode, desk.chart});
}
void ReportsMoney(Desk& desk) {
    std::string text;
    ReportMoney(desk.session,
                {ReportFacts::GameMoney, desk.DbName, desk.state.TableName, desk.state.mode, desk.chart},
                "Lotto", text);
    desk.list.AddItem(text);
}
void ReportsFrequency(Desk& desk) {
    std::string text;
    ReportFrequency(desk.session, desk.Report(Family::frm649), desk.chart, "Lotto", text);
    desk.list.AddItem(text);
}

// A probe that fails sends the creator at a table that is there; a file that was not made stays missing.
const std::set<int> Creating = {ErrorNumber::TableExists, ErrorNumber::StoreFileNotFound};
// Without a tally, or with less than a whole scratch table, there is no pool.
const std::set<int> Wheeling = {ErrorNumber::SubscriptOutOfRange, ErrorNumber::NoCurrentRecord};

// clang-format off
const Routine Table[] = {
    // name            family             LottoFlag      ExtraFlag      table              day     again
    {"SixNumbers",     Family::frm649,    "BC49",        "Extra",       "PlayedBC49",      NewDay, Again::Adds, Calls<SaveLotto6Tickets>},
    {"HundredTickets", Family::frm649,    "BC49",        "Extra",       "PlayedBC49",      NewDay, Again::Adds, Calls<SaveLotto6Tickets>, 1, false, false, false, {}, 100},
    {"Lottario",       Family::frm645,    "Lottario",    "Encore",      "PlayedLottario",  NewDay, Again::Adds, Calls<SaveLottarioTickets>},
    {"SevenNumbers",   Family::frm749,    "Super 7",     "Tag",         "PlayedSuper7",    NewDay, Again::Adds, Calls<SaveLotto7Tickets>},
    {"Keno",           Family::frmKeno70, "ONTKeno",     "Encore",      "PlayedONTKeno",   NewDay, Again::Adds, Calls<SaveKenoTickets>},
    {"ThreeDigits",    Family::frmPick3,  "WESTPick3",   "WESTPick3",   "PlayedWESTPick3", NewDay, Again::Adds, Calls<SavePick3Tickets>},
    {"FourDigits",     Family::frmPick4,  "FLAPlay4",    "FLAPlay4",    "PlayedFLAPlay4",  NewDay, Again::Adds, Calls<SavePick4Tickets>},
    {"SixDigitAddOn",  Family::frm649,    "Lotto649",    "Encore",      "PlayedEncore",    NewDay, Again::Adds, Calls<SaveAddOnTickets>},
    {"HundredAddOns",  Family::frm649,    "Lotto649",    "Encore",      "PlayedEncore",    NewDay, Again::Adds, Calls<SaveAddOnTickets>, 1, false, false, false, {}, 100},
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
    {"TempBuilt",      Family::frm645,    "Lottario",    "Encore",      "Temp",            OldDay, Again::Same, BuildsTemp, 1, false, false, true},
    {"HotWheel",       Family::frm645,    "Lottario",    "Encore",      "WinLottario",     OldDay, Again::Same, Wheels<GenerateHotWheel>, 2, false, true, true, Wheeling},
    {"ColdWheel",      Family::frm645,    "Lottario",    "Encore",      "WinLottario",     OldDay, Again::Same, Wheels<GenerateColdWheel>, 2, false, true, true, Wheeling},

    // The other families' steps are of the same kinds.
    {"TablesOf649",    Family::frm649,    "BC49",        "Extra",       "",                OldDay, Again::Same, CreatesAll<Family::frm649>, 6, true, false, false, Creating},
    {"TablesOfKeno80", Family::frmKeno80, "BCClubKeno",  "",            "",                OldDay, Again::Same, CreatesAll<Family::frmKeno80>, 4, true, false, false, Creating},
    {"TablesOfPick4",  Family::frmPick4,  "FLAPlay4",    "FLAPlay4",    "",                OldDay, Again::Same, CreatesAll<Family::frmPick4>, 4, true, false, false, Creating},

    {"SixRead",        Family::frm649,    "BC49",        "Extra",       "PlayedBC49",      OldDay, Again::Same, Reads<ReadLotto6Played>, 0},
    {"SevenRead",      Family::frm749,    "Super 7",     "Tag",         "PlayedSuper7",    OldDay, Again::Same, Reads<ReadLotto7Played>, 0},
    {"KenoRead",       Family::frmKeno70, "ONTKeno",     "Encore",      "PlayedONTKeno",   OldDay, Again::Same, Reads<ReadKenoPlayed>, 0},
    {"ThreeRead",      Family::frmPick3,  "WESTPick3",   "WESTPick3",   "PlayedWESTPick3", OldDay, Again::Same, Reads<ReadPick3Played>, 0},
    {"FourRead",       Family::frmPick4,  "FLAPlay4",    "FLAPlay4",    "PlayedFLAPlay4",  OldDay, Again::Same, Reads<ReadPick4Played>, 0},
    {"AddOnRead",      Family::frm649,    "Lotto649",    "Encore",      "PlayedEncore",    OldDay, Again::Same, Reads<ReadDigitAddOnPlayed>, 0},
    {"ExtraRead",      Family::frm649,    "BC49",        "Extra",       "PlayedExtra",     OldDay, Again::Same, Reads<ReadExtraPlayed>, 0},
    {"DrawFound",      Family::frm649,    "BC49",        "Extra",       "PlayedBC49",      OldDay, Again::Same, Calls<FindDrawEntry>, 0},
    {"SixCharted",     Family::frm649,    "BC49",        "Extra",       "WinBC49",         OldDay, Again::Same, Charts<Family::frm649>, 0},
    {"SevenCharted",   Family::frm749,    "Super 7",     "Tag",         "WinSuper7",       OldDay, Again::Same, Charts<Family::frm749>, 0},
    {"KenoCharted",    Family::frmKeno70, "ONTKeno",     "Encore",      "WinONTKeno",      OldDay, Again::Same, Charts<Family::frmKeno70>, 0},
    {"ThreeCharted",   Family::frmPick3,  "WESTPick3",   "WESTPick3",   "WinWESTPick3",    OldDay, Again::Same, Charts<Family::frmPick3>, 0},
    {"FourCharted",    Family::frmPick4,  "FLAPlay4",    "FLAPlay4",    "WinFLAPlay4",     OldDay, Again::Same, Charts<Family::frmPick4>, 0},
    {"SixReported",    Family::frm649,    "BC49",        "Extra",       "WinBC49",         OldDay, Again::Same, ReportsFrequency, 0},
    {"MoneyCharted",   Family::frm649,    "BC49",        "Extra",       "",                OldDay, Again::Same, ChartsMoney, 0},
    {"MoneyReported",  Family::frm649,    "BC49",        "Extra",       "",                OldDay, Again::Same, ReportsMoney, 0},
};
// clang-format on

}  // namespace

std::span<const Routine> Routines() { return Table; }

void PrintTo(const Routine& routine, std::ostream* to) { *to << routine.name; }

RoutineWorld::RoutineWorld(const Routine& of, const std::string& vfs) : routine(of), world(vfs) {
    dialogs.mend = [] {};
    std::filesystem::create_directory(std::filesystem::path(path).parent_path());
    if (routine.fromNothing) return;
    Ready();
    CreateAllTables(session, routine.family, state);
    for (const std::string& table : world.Plain().Tables()) Fill(table);
    std::ostringstream bytes;
    bytes << std::ifstream(path, std::ios::binary).rdbuf();
    fresh = bytes.str();
}

// Rows of several games and dates, of what the fields take; in the scratch table as a wheel leaves them
// that was interrupted.
void RoutineWorld::Fill(const std::string& table) {
    PlainFile file = world.Plain();
    std::string values;
    for (const std::string& field :
         file.Rows("SELECT name || '|' || type FROM pragma_table_info('" + table + "')")) {
        const std::string name = field.substr(0, field.find('|')), type = field.substr(name.size() + 1);
        values += values.empty() ? "i" : ", ";
        if (name == "ID1") continue;
        if (type == "DATETIME") values += "40000 + i % 20";
        else if (name == "Lottoflag")
            values += "iif(i % 3, '" + std::string(routine.LottoFlag) + "', 'Other')";
        else if (type == "TEXT(30)") values += "'Straight'";
        else if (type == "BOOLEAN") values += "i % 2";
        else values += "i % 9 + 1";
    }
    file.Do("WITH n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 40) INSERT INTO [" + table +
            "] SELECT " + values + " FROM n");
}

Tables RoutineWorld::ContentOf(const std::string& path) {
    Tables tables;
    if (!std::filesystem::exists(path)) return tables;
    PlainFile file(path);
    EXPECT_EQ(file.One("PRAGMA integrity_check"), "ok");
    for (const std::string& table : file.Tables()) {
        tables[table] = file.Rows("SELECT * FROM [" + table + "] ORDER BY rowid");
        tables[table + ", indexes"] =
            file.Rows("SELECT name FROM pragma_index_list('" + table + "') ORDER BY name");
    }
    return tables;
}

void RoutineWorld::Ready() {
    Global& g = world.global;
    const std::string place = g.AppPath;
    g = Global{};
    g.NL = "\r\n";
    g.AppPath = place;
    g.LottoFlag = routine.LottoFlag;
    g.ExtraFlag = routine.ExtraFlag;
    g.NoOfTicketsOnSheet = routine.tickets;
    g.NoOfExtra = routine.tickets;
    g.NoOfTickets = 1;
    g.WheelSize = 7;
    g.Dollars = "12.50";
    g.PlayOption = "Box";
    const int most = routine.tickets * 3;
    g.Lotto6Tickets.Redim(most);
    g.Lotto7Tickets.Redim(most);
    g.KenoTickets.Redim(most);
    g.Pick3Tickets.Redim(most);
    g.Pick4Tickets.Redim(most);
    g.AddOnTickets.Redim(most);
    g.ExtraTickets.Redim(most);
    state = WindowState{};
    state.TableName = routine.table;
    state.WindowDate = Date::FromDays(routine.day);
    state.mode = ReportMode;
    dialogs.errors.clear();
}

void RoutineWorld::Renew() const {
    for (const auto& entry : std::filesystem::directory_iterator(std::filesystem::path(path).parent_path()))
        std::filesystem::remove(entry);
    if (!fresh.empty()) std::ofstream(path, std::ios::binary) << fresh;
}

RoutineWorld::Outcome RoutineWorld::RunOnce(const std::function<void()>& done) {
    Ready();
    LineList list;
    testing::RecordingChart chart;
    Desk desk{session, path, state, list, chart};
    const int raised = ErrorOf([&] { routine.act(desk); });
    done();
    EXPECT_EQ(world.global.Open.DbOpen, Off);
    EXPECT_EQ(world.global.Open.RsOpen, Off);
    EXPECT_EQ(world.global.Open.WsOpen, Off);
    Texts shown = std::move(list.items);
    shown.insert(shown.end(), chart.calls.begin(), chart.calls.end());
    return {Content(), std::move(shown), dialogs.errors, raised};
}

}  // namespace sorvane

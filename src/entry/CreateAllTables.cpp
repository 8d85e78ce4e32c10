#include "entry/CreateAllTables.h"

#include <optional>
#include <span>

#include "entry/EntryFacts.h"
#include "shell/Catalogue.h"
#include "store/CheckTB_DBExists.h"
#include "store/CreateTables.h"

namespace sorvane {

using namespace EntryFacts;

namespace {

struct TableName {
    std::string name;
    int shape = 0;  // where no creator is given
};

// One table: what names it and what creates it. Without a creator CreateTableByShape does, which creates the
// Win table too.
struct TableStep {
    std::optional<TableName> (*Name)(Family family, const Global& global);
    const Creator* creator = nullptr;
    bool onlyWhenNamed = false;
    // Makes the table of the next step in the same commit.
    std::string_view withWin = {};
};

std::optional<TableName> MainPlayed(Family family, const Global& global) {
    const GameKey* key = FindKey(family, global.LottoFlag);
    if (!key || !key->CreatesAtLoad) return {};
    return TableName{std::string(key->Played), FamilyFacts::NumbersPerTicket[family]};
}

std::optional<TableName> MainWin(Family family, const Global& global) {
    const GameKey* key = FindKey(family, global.LottoFlag);
    if (!key) return {};
    return TableName{std::string(key->Win)};
}

std::optional<TableName> AddOnPlayed(Family family, const Global& global) {
    const AddOn* addOn = FindAddOn(global.ExtraFlag);
    if (!addOn || !Has(Creates[family], global.ExtraFlag)) return {};
    return TableName{std::string(addOn->Played), addOn->ShapeCode()};
}

// Daily Keno asks for its Encore table by the game, not by the add-on.
std::optional<TableName> KenoEncore(Family, const Global& global) {
    if (!CellsOf(global.LottoFlag).EncoreByGame) return {};
    return TableName{"PlayedEncore", 1};
}

std::optional<TableName> LottarioPlayed(Family, const Global&) { return TableName{"PlayedLottario", 6}; }
std::optional<TableName> LottarioEncore(Family, const Global&) { return TableName{"PlayedEncore", 1}; }
std::optional<TableName> EarlyBirdWin(Family, const Global&) { return TableName{"WinEarlyBird"}; }
constexpr const char* Play4WinName = "WinFLAPlay4";
std::optional<TableName> Play4Win(Family, const Global&) { return TableName{Play4WinName}; }
std::optional<TableName> Temp(Family, const Global&) { return TableName{"Temp"}; }

const TableStep LottoSteps[] = {{MainPlayed}, {AddOnPlayed}, {Temp, &CreateTempTable}};
const TableStep LottarioSteps[] = {{LottarioPlayed},
                                   {LottarioEncore},
                                   {EarlyBirdWin, &CreateWinPick4Table},
                                   {MainWin, &CreateWin6Table, true},
                                   {Temp, &CreateTempTable}};
const TableStep Keno70Steps[] = {
    {MainPlayed}, {MainWin, &CreateWinKenoTable}, {KenoEncore}, {Temp, &CreateTempTable}};
const TableStep Keno80Steps[] = {{Temp, &CreateTempTable}};
const TableStep Pick3Steps[] = {{MainPlayed}, {MainWin, &CreateWinPick3Table}, {AddOnPlayed}};
const TableStep Pick4Steps[] = {{.Name = MainPlayed, .withWin = Play4WinName},
                                {Play4Win, &CreateWinPick4Table}};

const PerFamily<std::span<const TableStep>>& Steps() {
    static const PerFamily<std::span<const TableStep>> steps{
        {LottoSteps, LottoSteps, LottarioSteps, Keno70Steps, Keno80Steps, Pick3Steps, Pick4Steps}};
    return steps;
}

}  // namespace

void CreateAllTables(Session& session, Family family, WindowState& state) {
    state.DbName = DatabasePath(session.global.AppPath);
    const auto makeSure = [&](const Creator& creator) {
        MakeSureOf(session, state.Table(),
                   [&] { creator(session, state.Table(), PrimaryFieldName, DateFieldName); });
    };
    CheckDatabaseExists(session, state.DbName);
    state.TableName = "Spent";
    makeSure(CreateSpentTable);
    state.TableName = "Winnings";
    makeSure(CreateWinningsTable);

    state.NumbersPerTicket = FamilyFacts::NumbersPerTicket[family];
    for (const TableStep& step : Steps()[family]) {
        if (const auto named = step.Name(family, session.global)) {
            state.TableName = named->name;
            state.NumbersPerTicket = named->shape;
        } else if (step.onlyWhenNamed) {
            continue;
        }
        if (step.creator) makeSure(*step.creator);
        else
            MakeSureOf(session, state.Table(), [&] {
                CreateTableByShape(session, state.DbName, state.TableName, state.NumbersPerTicket,
                                   PrimaryFieldName, DateFieldName, std::string(step.withWin));
            });
    }
    state.NumbersPerTicket = FamilyFacts::NumbersPerTicket[family];
}

}  // namespace sorvane

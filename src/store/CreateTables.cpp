#include "store/CreateTables.h"

#include <algorithm>
#include <array>
#include <optional>

#include "platform/Text.h"
#include "shell/Catalogue.h"
#include "store/CheckTB_DBExists.h"
#include "store/CreateIndex.h"

namespace sorvane {

namespace {

using Type = Dao::FieldType;

constexpr int TextSize = 30;

constexpr ShapeField ID1{"ID1", Type::Long};
constexpr ShapeField Lottoflag{"Lottoflag", Type::Text};
constexpr ShapeField DrawDay{"Date", Type::Date};
constexpr ShapeField WayPlayed{"Way Played", Type::Text};
constexpr ShapeField Regular{"Regular", Type::Boolean};
constexpr ShapeField Balls(int count) { return {"Ball_", Type::Integer, count}; }
constexpr ShapeField BonusBall{"Ball_B", Type::Integer};
constexpr ShapeField Digits{"Number ", Type::Integer, 7};

constexpr auto SpentFields = std::to_array({ID1, Lottoflag, DrawDay, ShapeField{"Spent", Type::Currency}});
constexpr auto WinningsFields =
    std::to_array({ID1, Lottoflag, DrawDay, ShapeField{"Winnings", Type::Currency}});
constexpr auto Played6Fields =
    std::to_array({ID1, DrawDay, Balls(6), Regular, ShapeField{"EarlyBird", Type::Boolean}});
constexpr auto Win6Fields = std::to_array({ID1, DrawDay, Balls(6), BonusBall});
constexpr auto Played7Fields = std::to_array({ID1, DrawDay, Balls(7), Regular});
constexpr auto Win7Fields = std::to_array({ID1, DrawDay, Balls(7), BonusBall});
constexpr auto PlayedPick3Fields = std::to_array({ID1, Lottoflag, DrawDay, Balls(3), WayPlayed, Regular});
constexpr auto WinPick3Fields = std::to_array({ID1, Lottoflag, DrawDay, Balls(3)});
constexpr auto PlayedPick4Fields = std::to_array({ID1, Lottoflag, DrawDay, Balls(4), WayPlayed, Regular});
constexpr auto WinPick4Fields = std::to_array({ID1, Lottoflag, DrawDay, Balls(4)});
// Played and drawn add-on numbers are field for field alike.
constexpr auto AddOnFields = std::to_array({ID1, Lottoflag, DrawDay, Digits});
// In the keno shapes the game key stands behind the date.
constexpr auto PlayedKenoFields =
    std::to_array({ID1, DrawDay, Lottoflag, Balls(10), ShapeField{"Wager", Type::Integer},
                   ShapeField{"# of Balls", Type::Integer}, Regular});
constexpr auto WinKenoFields = std::to_array({ID1, DrawDay, Lottoflag, Balls(20)});
constexpr auto TempFields =
    std::to_array({ID1, ShapeField{"Ball_#", Type::Integer}, ShapeField{"Ball_Freq", Type::Integer}});

// What a shape code stands for: the creators of the pair, and which key names the Win table.
struct ShapePair {
    int code;
    CreatorPair make;
    std::optional<std::string> (*WinName)(const Global& global);
};

std::optional<std::string> AddOnWin(const Global& global) {
    const AddOn* addOn = FindAddOn(global.ExtraFlag);
    if (!addOn || addOn->FourNumbers) return {};
    return std::string(addOn->Win);
}

// The key row that an add-on key creates: the digit games repeat their own key there, or a variant of it.
const GameKey* CreatedBy(Family family, const std::string& ExtraFlag) {
    for (const GameKey& key : GameKeys()) {
        const std::string_view at = key.ExtraFlagAtCreate.empty() ? key.LottoFlag : key.ExtraFlagAtCreate;
        if (key.in == family && at == ExtraFlag) return &key;
    }
    return nullptr;
}

std::optional<std::string> Pick3Win(const Global& global) {
    const GameKey* key = CreatedBy(Family::frmPick3, global.ExtraFlag);
    if (!key) return {};
    return std::string(key->Win);
}

std::optional<std::string> Pick4Played(const Global& global) {
    if (const AddOn& addOn = AddOnOf(global.ExtraFlag); addOn.FourNumbers) return std::string(addOn.Played);
    const GameKey* key = CreatedBy(Family::frmPick4, global.ExtraFlag);
    if (!key) return {};
    return std::string(key->Played);
}

std::optional<std::string> Pick4Win(const Global& global) {
    // Florida's key is misspelt here and never matches; frmPick4 makes WinFLAPlay4 by itself.
    if (global.ExtraFlag == "FLAPLay4") return "WinFLAPlay4";
    if (global.ExtraFlag == "FLAPlay4") return {};
    if (const AddOn& addOn = AddOnOf(global.ExtraFlag); addOn.FourNumbers) return std::string(addOn.Win);
    const GameKey* key = CreatedBy(Family::frmPick4, global.ExtraFlag);
    if (!key) return {};
    return std::string(key->Win);
}

template <Family... families>
std::optional<std::string> MainWin(const Global& global) {
    for (const Family family : {families...})
        if (const GameKey* key = FindKey(family, global.LottoFlag)) return std::string(key->Win);
    return {};
}

const std::array<ShapePair, 6>& ShapePairs() {
    static const std::array<ShapePair, 6> pairs{{
        {1, {&CreatePlayedAddOnTable, &CreateWinAddOnTable}, AddOnWin},
        {3, {&CreatePlayedPick3Table, &CreateWinPick3Table}, Pick3Win},
        {4, {&CreatePlayedPick4Table, &CreateWinPick4Table}, Pick4Win},
        {6, {&CreatePlayed6Table, &CreateWin6Table}, MainWin<Family::frm649, Family::frm645>},
        {7, {&CreatePlayed7Table, &CreateWin7Table}, MainWin<Family::frm749>},
        {20, {&CreatePlayedKenoTable, &CreateWinKenoTable}, MainWin<Family::frmKeno70, Family::frmKeno80>},
    }};
    return pairs;
}

// Null for a code without tables.
const ShapePair* FindPair(int ShapeCode) {
    const auto& pairs = ShapePairs();
    const auto* const at = std::find_if(pairs.begin(), pairs.end(),
                                        [&](const ShapePair& pair) { return pair.code == ShapeCode; });
    return at == pairs.end() ? nullptr : at;
}

constexpr int FourDigits = 4;

}  // namespace

const Creator CreateSpentTable{SpentFields, Tails::CreateSpent};
const Creator CreateWinningsTable{WinningsFields, Tails::CreateWinnings};
const Creator CreatePlayed6Table{Played6Fields};
const Creator CreateWin6Table{Win6Fields};
const Creator CreatePlayed7Table{Played7Fields};
const Creator CreateWin7Table{Win7Fields};
const Creator CreatePlayedPick3Table{PlayedPick3Fields};
const Creator CreateWinPick3Table{WinPick3Fields};
const Creator CreatePlayedPick4Table{PlayedPick4Fields};
const Creator CreateWinPick4Table{WinPick4Fields};
const Creator CreatePlayedAddOnTable{AddOnFields};
const Creator CreateWinAddOnTable{AddOnFields};
const Creator CreatePlayedKenoTable{PlayedKenoFields};
const Creator CreateWinKenoTable{WinKenoFields};
const Creator CreateTempTable{TempFields, Tails::Create, false};

namespace {

struct NewTable {
    const Creator& creator;
    std::string name;
};

// Names of the index fields.
struct IndexFields {
    const std::string& primary;
    const std::string& second;
};

// Appends the table and its indexes. When only the indexes fail, the table stands and their error is
// returned; any other error is raised.
int Append(Dao::Database& Db, const NewTable& table, const IndexFields& index) {
    Db.Append(table.creator.Define(table.name));
    if (!table.creator.indexed) return 0;
    const int error = ErrorOf([&] { CreateIndex(Db, table.name, index.primary, index.second); });
    if (error != 0 && !Db.HasTable(table.name)) Raise(error);
    return error;
}

// Makes a table and, if it is missing, the Win table of its pair. All of it is one commit, because nothing
// would mend a table without its indexes or a played table without its Win table. Otherwise each table stands
// for itself: indexes that can't be made show a box for their own table. A Win table that can't be made shows
// none here; the probing loop behind does.
void Make(Session& session, const std::string& DbName, const NewTable& table, const NewTable* win,
          const IndexFields& index) {
    int ofTable = 0, ofWin = 0;
    const Dao::Workspace Ws = session.services.engine.Workspaces(0, session.global.Open);
    const int error = WritingRoutine(session, table.creator.tail, {DbName, table.name}, [&](OwnFile& file) {
        ofTable = Append(file.Db(), table, index);
        if (!win || file.Db().HasTable(win->name)) return;
        const int untold = ErrorOf([&] { ofWin = Append(file.Db(), *win, index); });
        if (untold != 0 && !file.Db().HasTable(table.name)) Raise(untold);
    });
    if (error != 0) return;
    session.global.TableOpened = On;
    for (const int indexError : {ofTable, ofWin})
        if (indexError != 0) ShowStoreError(session, Tails::CreateIndex, indexError, table.name);
}

}  // namespace

Dao::TableDef Creator::Define(const std::string& TableName) const {
    Dao::TableDef Td(TableName);
    for (const ShapeField& field : fields) {
        const int size = field.type == Type::Text ? TextSize : 0;
        if (field.count == 1) Td.AppendField(std::string(field.name), field.type, size);
        else
            for (int i = 1; i <= field.count; ++i)
                Td.AppendField(std::string(field.name) + Str(i), field.type, size);
    }
    return Td;
}

void Creator::operator()(Session& session, const StoreTable& table, const std::string& PrimaryField,
                         const std::string& SecondField) const {
    Make(session, table.DbName, {*this, table.TableName}, nullptr, {PrimaryField, SecondField});
}

CreatorPair CreatorsOf(int ShapeCode) { return FindPair(ShapeCode)->make; }

void CreateTableByShape(Session& session, const std::string& DbName, std::string& TableName,
                        Integer& ShapeCode, const std::string& PrimaryField, const std::string& SecondField,
                        const std::string& WinOtherwise) {
    const IndexFields index{PrimaryField, SecondField};
    const ShapePair* const pair = FindPair(ShapeCode);
    if (!pair) return;
    const auto winName = pair->WinName(session.global);
    const NewTable win{*pair->make.win, winName.value_or(WinOtherwise)};
    const auto createPair = [&] {
        Make(session, DbName, {*pair->make.played, TableName}, win.name.empty() ? nullptr : &win, index);
    };
    if (pair->code == FourDigits) {
        if (const auto name = Pick4Played(session.global)) TableName = *name;
        MakeSureOf(session, {DbName, TableName}, [&] {
            ShapeCode = FourDigits;
            createPair();
        });
    } else {
        createPair();
    }
    if (winName) TableName = *winName;
    MakeSureOf(session, {DbName, TableName}, [&] {
        (*pair->make.win)(session, {DbName, TableName}, PrimaryField, SecondField);
    });
}

}  // namespace sorvane

// Every table of the database: fourteen shapes and the scratch table. Writers set fields by position, so the
// order of the fields is part of the design. A fresh database holds no table; each appears when somebody
// needs it.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "store/StoreRoutine.h"

namespace sorvane {

// A field of a shape. `count` above 1 stands for fields numbered from 1: "Ball_" with 6 is Ball_1 to Ball_6.
struct ShapeField {
    std::string_view name;
    Dao::FieldType type;
    int count = 1;
};

// A creator: makes a table of its shape and its two indexes (the scratch table has none) in one commit, and
// sets Global::TableOpened to 1 once the table stands. It does not ask whether the table exists. A failure
// shows the creator's box and leaves TableOpened as it was, unless the indexes failed: then the table stands
// without them.
struct Creator {
    std::span<const ShapeField> fields;
    ErrorTail tail = Tails::Create;
    bool indexed = true;
    void operator()(Session& session, const StoreTable& table, const std::string& PrimaryField,
                    const std::string& SecondField) const;
    // The table's fields under this name.
    Dao::TableDef Define(const std::string& TableName) const;
};

extern const Creator CreateSpentTable;
extern const Creator CreateWinningsTable;
extern const Creator CreatePlayed6Table;
extern const Creator CreateWin6Table;
extern const Creator CreatePlayed7Table;
extern const Creator CreateWin7Table;
extern const Creator CreatePlayedPick3Table;
extern const Creator CreateWinPick3Table;
extern const Creator CreatePlayedPick4Table;
extern const Creator CreateWinPick4Table;
extern const Creator CreatePlayedAddOnTable;
extern const Creator CreateWinAddOnTable;
extern const Creator CreatePlayedKenoTable;
extern const Creator CreateWinKenoTable;
extern const Creator CreateTempTable;

// The creators of a shape code's pair; the codes are told at CreateTableByShape.
struct CreatorPair {
    const Creator* played;
    const Creator* win;
};
CreatorPair CreatorsOf(int ShapeCode);

// Names of the two index fields, which are also the indexes' names.
inline const std::string PrimaryFieldName = "ID1";
inline const std::string DateFieldName = "Date";

// Makes the pair of tables of a shape code in one commit: 1 digit add-on, 3 and 4 digits, 6, 7, 20 keno; any
// other does nothing. The played table is made under TableName (for code 4 under the name that ExtraFlag
// tells, in a probing loop); then TableName becomes the matching Win table's, which a probing loop makes
// should it still be missing. Where no key matches, the name stays what it was and nothing further is made,
// but a Win table that the caller names itself: it is made with the played one.
void CreateTableByShape(Session& session, const std::string& DbName, std::string& TableName,
                        Integer& ShapeCode, const std::string& PrimaryField, const std::string& SecondField,
                        const std::string& WinOtherwise = {});

}  // namespace sorvane

// What one game window keeps for itself while it is loaded.
#pragma once

#include <string>

#include "platform/Array.h"
#include "platform/Date.h"
#include "platform/Integer.h"
#include "shell/StoreTable.h"

namespace sorvane {

struct WindowState {
    std::string DbName;     // the database file
    std::string TableName;  // the table last named; at each use only some keys name one, else it stays
    std::string IndexName;  // always "ID1"
    std::string FieldName;  // always "Date"
    Date WindowDate;        // the date in hand: of the last save, check or Enter Winnings
    Date SavedDate;         // the date of the last save of a sheet, which a clean-up removes
    Integer CurrentSheet;
    Integer TotalSheets;
    bool SavingSheet = false;
    Integer InNextTicket;  // On while cmdNext_Ticket runs
    Integer RegularOn;
    Integer DecimalCount;
    Integer BonusPhase;        // On while the bonus tickets of the sheet are entered
    Integer NumbersPerTicket;  // 6, 7, 20, 3 or 4; the shape code while tables are made
    Integer TicketRows;        // rows of lstMessage that belong to the main game
    Integer ListArmed;         // On after the first click in lstNumbersPlayed
    Integer HowManyToWheel;
    Integer mode;  // 0 chart, 1 text report
    Array<std::string> QuickPicks;

    StoreTable Table() const { return {DbName, TableName}; }
};

}  // namespace sorvane

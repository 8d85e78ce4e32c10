// The state of the run: what windows and routines share. One object, made in main and passed by reference; it
// lives for the run and nothing of it is saved. Everything starts at zero, empty or unsized. A member is
// reset only where its comment says so: what an earlier window left in it is still there.
#pragma once

#include <string>

#include "platform/Array.h"
#include "platform/Currency.h"
#include "platform/Date.h"
#include "platform/Integer.h"
#include "platform/Services.h"
#include "shell/Types.h"
#include "store/dao/Dao.h"

namespace sorvane {

// The amount of an entry that nobody has touched, and the sentinel of an add-on number that was not played.
inline constexpr std::string_view NoDollars = "0.00";
inline constexpr int NotPlayed = 99;

struct Global {
    // The selected game, set by its menu entry.
    std::string LottoFlag;  // empty in the all-lotteries report
    std::string ExtraFlag;
    std::string GameForm;
    Integer MaxTicketsOnSheet;  // this and the next two are kept as facts of the game; nothing reads them
    Currency TicketPrice;
    Integer FreePlays;

    // The store: what is open, and the result of the last table probe.
    Dao::OpenFlags Open;
    Integer TableOpened;  // On when the table could be opened or was made

    // Messages and paths.
    std::string NL;   // carriage return and line feed, set at start-up
    std::string Msg;  // the text of the box or line under construction; kept from one line to the next
    Integer MsgResult;
    std::string AppPath;  // the program's folder with the separator behind it

    // The entry in progress.
    Integer NoOfTickets;         // tickets not yet saved; the Quick Pick tab writes it too
    Integer TotalTickets;        // tickets of the entry
    Integer SheetTickets;        // tickets to enter, bonus tickets counted
    Integer NoOfSheets;          // sheets of the entry
    Integer NoOfTicketsOnSheet;  // tickets on the sheet in hand, without bonus tickets
    Integer TicketNo;            // tickets completed on the sheet
    Integer ExtraNo;             // add-on tickets completed on the sheet
    Integer NoOfExtra;           // add-on tickets of the sheet
    Integer NumbersPicked;       // numbers ticked on the ticket in hand
    Integer Correcting;          // On while a ticket is re-entered
    Integer EnteringAddOns;      // On once the add-on phase of the sheet has begun
    Integer TicketsSaved;        // True once a sheet of this window was written
    Integer EarlyBirdPlayed;     // True or Off
    Integer RegularMarked;       // True or Off
    std::string Dollars;         // the amount as text
    Date DrawDate;
    std::string PlayOption;  // way of play of the digit games
    Integer Wager;
    Integer NoOfBallsPerTicket;

    // Tickets of the sheet in hand, one element a ticket.
    Array<Lotto6Ticket> Lotto6Tickets;
    Array<Lotto7Ticket> Lotto7Tickets;
    Array<KenoTicket> KenoTickets;
    Array<Pick3Ticket> Pick3Tickets;
    Array<Pick4Ticket> Pick4Tickets;
    Array<AddOnTicket> AddOnTickets;
    Array<ExtraTicket> ExtraTickets;

    // The check in progress.
    Integer EnteringWinnings;  // On from Enter Winnings until the next check
    Integer NoRowForDate;      // On when a reader found no row for the draw date
    Integer EntryCounter;      // rows found by the last reader
    Integer EntryCounter2;
    Integer MatchCount;
    Integer RecheckAccepted;  // True or Off
    Integer RecheckRefused;   // True or Off
    Integer StatUpdate;       // On while only the draw is to be stored
    Integer WinningsDrawFound;
    Array<Lotto6Row> Lotto6Played;
    Array<Lotto7Row> Lotto7Played;
    Array<KenoRow> KenoPlayed;
    Array<Pick3Row> Pick3Played;
    Array<Pick4Row> Pick4Played;
    Array<Integer> WinPerms;

    // Quick picks, wheels and tallies. Each routine overwrites the three arrays.
    Array<Integer> Numbers;
    Array<Integer> Favourites;
    Array<Integer> BallFrequency;
    bool Generating = false;
    Integer WheelSize;

    // Reports.
    Array<std::string> SpentLines;
    Array<std::string> WonLines;
    Array<std::string> AllSpentLines;
    Array<std::string> AllWonLines;
    Integer SpentRows;
    Integer WonRows;
    Currency TotalSpent;
    Currency TotalWon;
    std::string ReportType;
    Slots<Slots<Integer, 5>, 11> PositionCounts;  // digit, position
    Array<std::string> ComboCounts;               // counts as text; the slot is the digits read as a number
};

// What every routine of the rooms gets.
struct Session {
    Global& global;
    Services& services;
};

}  // namespace sorvane

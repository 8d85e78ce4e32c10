// Reading the tickets of a draw date into the global arrays and a list.
//
// Each reader opens the table in `at`, looks for the date, counts its rows (EntryCounter is raised with the
// count, beyond 32,767 error 6), sizes its array to the count, and reads that many rows, each into the array
// and the list. What was listed before an error stays. Errors show their box and the reader returns
// normally. All rows of the date are read at one go, before the first is listed.
#pragma once

#include "platform/Lines.h"
#include "store/StoreRoutine.h"

namespace sorvane {

// Main tables. No row of the date: a box, and NoRowForDate becomes 1. A missing table shows the 3011 box.

// Lotto6Played; on "Lottario" also the EarlyBird mark, as a second line behind each ticket.
void ReadLotto6Played(Session& session, const StoreArgs& at, Lines& lstNumbersPlayed);
// Lotto7Played.
void ReadLotto7Played(Session& session, const StoreArgs& at, Lines& lstNumbersPlayed);
// KenoPlayed: as many numbers as the row says it has, zeros left out of the list. NoOfBallsPerTicket becomes
// the last row's. A row that says more than the table has fields ends in the box of 3265.
void ReadKenoPlayed(Session& session, const StoreArgs& at, Lines& lstNumbersPlayed);
// Pick3Played, Pick4Played, and PlayOption from the first row of the date, which rules them all; it is
// emptied where the date has no row. Rows of another game are not counted.
void ReadPick3Played(Session& session, const StoreArgs& at, Lines& lstNumbersPlayed);
void ReadPick4Played(Session& session, const StoreArgs& at, Lines& lstNumbersPlayed);

// Add-on tables, which games share. No row of the date: the line "Not Played" and NoRowForDate 1. A missing
// table: the line alone. Rows of other games are not counted, but the rows then read are the first ones of
// the date, whichever game they belong to.

// Six digits into Lotto6Played; for "WESTExtra" seven into Lotto7Played. A row of 99s is listed "Not Played".
void ReadDigitAddOnPlayed(Session& session, const StoreArgs& at, Lines& lstEncorePlayed);
// Four numbers into Pick4Played.
void ReadExtraPlayed(Session& session, const StoreArgs& at, Lines& lstEncorePlayed);

}  // namespace sorvane

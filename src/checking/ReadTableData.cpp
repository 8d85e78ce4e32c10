#include "checking/ReadTableData.h"

#include "checking/RowText.h"
#include "checking/WinningBoxes.h"

namespace sorvane {

namespace {

// What differs between the readers before a row is read.
struct PlayedTable {
    int DateAt;
    bool CountsByFlag;  // rows of other games of the date don't count
    bool RulesPlayOption = false;
    bool IsAddOn = false;
};

constexpr int FlagAt = 1;
constexpr PlayedTable LottoTable{.DateAt = 1, .CountsByFlag = false};
constexpr PlayedTable KenoTable{.DateAt = 1, .CountsByFlag = false};
constexpr PlayedTable PickTable{.DateAt = 2, .CountsByFlag = true, .RulesPlayOption = true};
constexpr PlayedTable AddOnTable{.DateAt = 2, .CountsByFlag = true, .IsAddOn = true};

constexpr std::string_view NotPlayedLine = "Not Played";

// One statement of a reader: where there is no current record it is skipped and the next one runs.
template <class Statement>
void PassOver(Statement statement) {
    Ignoring({ErrorNumber::NoCurrentRecord}, statement);
}

void SeekDate(Dao::Recordset& Rs, Date date) {
    PassOver([&] { Rs.MoveFirst(); });
    Rs.Index("Date");
    Rs.Seek(date);
}

void ReportNoRow(Run& run, const PlayedTable& table, Lines& list) {
    Global& g = run.global;
    if (table.IsAddOn) {
        list.AddItem(NotPlayedLine);
    } else {
        g.Msg = "No match for Draw Date selected. Please check the Draw Date and try again.";
        run.services.dialogs.MsgBox(g.Msg, BoxStyle::Ok, "ERROR");
    }
    g.NoRowForDate = On;
    if (table.RulesPlayOption) g.PlayOption.clear();
}

bool IsOfGame(Dao::Recordset& Rs, const std::string& LottoFlag) {
    const Dao::Value key = Rs[FlagAt];
    return !key.IsNull() && key.ToText() == LottoFlag;
}

// The first pass: from the row found to the last one of the date.
int CountRows(Run& run, const PlayedTable& table, Dao::Recordset& Rs, Date date) {
    Global& g = run.global;
    int count = 0;
    do {
        if (!table.CountsByFlag || IsOfGame(Rs, g.LottoFlag)) {
            ++g.EntryCounter;
            ++count;
        }
        Rs.MoveNext();
    } while (!Rs.AtEOF() && Rs[table.DateAt].ToDate() == date);
    return count;
}

// The second pass doesn't ask for the game: in a shared table it takes the first rows of the date. A row that
// somebody else removed meanwhile stands as zeros.
template <class Row, class ReadRow, class ListRow>
void ReadRows(Dao::Recordset& Rs, Array<Row>& rows, int count, ReadRow readRow, ListRow listRow) {
    rows.Redim(count - 1);
    for (int RowNo = 0; RowNo < count; ++RowNo) {
        PassOver([&] { readRow(Rs, rows(RowNo), RowNo); });
        listRow(rows(RowNo));
        if (!Rs.AtEOF()) PassOver([&] { Rs.MoveNext(); });
    }
}

template <class Row, class ReadRow, class ListRow>
void ReadTable(Run& run, const StoreArgs& at, const PlayedTable& table, Lines& list, Array<Row>& rows,
               ReadRow readRow, ListRow listRow) {
    Dao::Database Db = run.services.engine.OpenDatabase(at.DbName, run.global.Open);
    Dao::Recordset Rs = Db.OpenTable(at.TableName);
    SeekDate(Rs, at.WindowDate);
    if (Rs.NoMatch()) return ReportNoRow(run, table, list);
    const int count = CountRows(run, table, Rs, at.WindowDate);
    SeekDate(Rs, at.WindowDate);
    ReadRows(Rs, rows, count, readRow, listRow);
}

template <class Row, class ReadRow, class ListRow>
void ReadPlayed(Run& run, const StoreArgs& at, const PlayedTable& table, Lines& list, Array<Row>& rows,
                ReadRow readRow, ListRow listRow) {
    StoreRoutine(run, Tails::Open, at.TableName, [&] {
        const auto read = [&] { ReadTable(run, at, table, list, rows, readRow, listRow); };
        if (!table.IsAddOn) return read();
        // An add-on whose table nobody made yet was not played.
        if (!Ignoring({ErrorNumber::TableNotFound, ErrorNumber::SqlTableNotFound}, read))
            list.AddItem(NotPlayedLine);
    });
}

template <int N>
void GetNumbers(Dao::Recordset& Rs, int at, Slots<Integer, N>& numbers, int count) {
    for (int i = 0; i < count; ++i) numbers(i) = Rs[at + i].ToInteger();
}

template <class Row>
void ReadPick(Run& run, const StoreArgs& at, Lines& list, Array<Row>& rows, int digits) {
    constexpr int First = 3;
    ReadPlayed(
        run, at, PickTable, list, rows,
        [&](Dao::Recordset& Rs, Row& row, int RowNo) {
            GetNumbers(Rs, First, row.Numbers, digits);
            if (RowNo == 0) run.global.PlayOption = Rs[First + digits].ToText();
        },
        [&](const Row& row) { list.AddItem(RowText(row.Numbers, digits)); });
}

template <int N>
std::string DigitsOrNotPlayed(const Slots<Integer, N>& numbers, int digits) {
    for (int i = 0; i < digits; ++i)
        if (numbers(i) != NotPlayed) return RowText(numbers, digits);
    return std::string(NotPlayedLine);
}

template <class Row>
void ReadDigits(Run& run, const StoreArgs& at, Lines& list, Array<Row>& rows, int digits) {
    ReadPlayed(
        run, at, AddOnTable, list, rows,
        [&](Dao::Recordset& Rs, Row& row, int) { GetNumbers(Rs, 3, row.Numbers, digits); },
        [&](const Row& row) { list.AddItem(DigitsOrNotPlayed(row.Numbers, digits)); });
}

}  // namespace

void ReadLotto6Played(Run& run, const StoreArgs& at, Lines& lstNumbersPlayed) {
    Global& g = run.global;
    const bool hasEarlyBird = g.LottoFlag == "Lottario";
    ReadPlayed(
        run, at, LottoTable, lstNumbersPlayed, g.Lotto6Played,
        [&](Dao::Recordset& Rs, Lotto6Row& row, int) {
            GetNumbers(Rs, 2, row.Numbers, 6);
            if (hasEarlyBird) row.EarlyBird = Rs[9].ToBool();
        },
        [&](const Lotto6Row& row) {
            lstNumbersPlayed.AddItem(RowText(row.Numbers, 6));
            if (hasEarlyBird)
                lstNumbersPlayed.AddItem(row.EarlyBird ? "Earlybird Played" : "Earlybird NOT Played");
        });
}

void ReadLotto7Played(Run& run, const StoreArgs& at, Lines& lstNumbersPlayed) {
    ReadPlayed(
        run, at, LottoTable, lstNumbersPlayed, run.global.Lotto7Played,
        [](Dao::Recordset& Rs, Lotto7Row& row, int) { GetNumbers(Rs, 2, row.Numbers, 7); },
        [&](const Lotto7Row& row) { lstNumbersPlayed.AddItem(RowText(row.Numbers, 7)); });
}

void ReadKenoPlayed(Run& run, const StoreArgs& at, Lines& lstNumbersPlayed) {
    Global& g = run.global;
    ReadPlayed(
        run, at, KenoTable, lstNumbersPlayed, g.KenoPlayed,
        [&](Dao::Recordset& Rs, KenoRow& row, int) {
            row.Wager = Rs[13].ToInteger();
            row.NoOfBalls = Rs[14].ToInteger();
            g.NoOfBallsPerTicket = row.NoOfBalls;
            GetNumbers(Rs, 3, row.Numbers, row.NoOfBalls);
        },
        [&](const KenoRow& row) {
            lstNumbersPlayed.AddItem(RowTextWithoutZeros(row.Numbers, row.NoOfBalls));
        });
}

void ReadPick3Played(Run& run, const StoreArgs& at, Lines& lstNumbersPlayed) {
    ReadPick(run, at, lstNumbersPlayed, run.global.Pick3Played, 3);
}

void ReadPick4Played(Run& run, const StoreArgs& at, Lines& lstNumbersPlayed) {
    ReadPick(run, at, lstNumbersPlayed, run.global.Pick4Played, 4);
}

void ReadDigitAddOnPlayed(Run& run, const StoreArgs& at, Lines& lstEncorePlayed) {
    Global& g = run.global;
    const int digits = AddOnDigits(g.ExtraFlag);
    if (digits == 7) ReadDigits(run, at, lstEncorePlayed, g.Lotto7Played, digits);
    else ReadDigits(run, at, lstEncorePlayed, g.Lotto6Played, digits);
}

void ReadExtraPlayed(Run& run, const StoreArgs& at, Lines& lstEncorePlayed) {
    ReadPlayed(
        run, at, AddOnTable, lstEncorePlayed, run.global.Pick4Played,
        [](Dao::Recordset& Rs, Pick4Row& row, int) { GetNumbers(Rs, 3, row.Numbers, 4); },
        [&](const Pick4Row& row) { lstEncorePlayed.AddItem(RowText(row.Numbers, 4)); });
}

}  // namespace sorvane

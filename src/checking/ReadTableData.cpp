#include "checking/ReadTableData.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "checking/RowText.h"
#include "platform/Text.h"
#include "shell/Catalogue.h"

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

void SeekDate(Dao::Recordset& Rs, Date date) {
    // An empty table has no first row; the search finds that out by itself.
    Ignoring({ErrorNumber::NoCurrentRecord}, [&] { Rs.MoveFirst(); });
    Rs.Index("Date");
    Rs.Seek(date);
}

void ReportNoRow(Session& session, const PlayedTable& table, Lines& list) {
    Global& g = session.global;
    if (table.IsAddOn) {
        list.AddItem(NotPlayedLine);
    } else {
        g.Msg = "No match for Draw Date selected. Please check the Draw Date and try again.";
        session.services.dialogs.MsgBox(g.Msg, BoxStyle::Ok, "ERROR");
    }
    g.NoRowForDate = On;
    if (table.RulesPlayOption) g.PlayOption.clear();
}

// The rows of the date in index order, up to the first that can't be read, and how many of them count.
template <class Row>
struct DateRows {
    int count = 0;
    std::vector<Row> read;
    int error = 0;  // of the row behind the last one read
};

// Walks from the row found to the last one of the date. A row that can't be read is an error only once its
// turn comes, after all are counted.
template <class Row, class ReadRow>
DateRows<Row> WalkDate(Session& session, const PlayedTable& table, Dao::Recordset& Rs, Date date,
                       ReadRow readRow) {
    Global& g = session.global;
    DateRows<Row> rows;
    do {
        if (!table.CountsByFlag || Rs[FlagAt].Is(g.LottoFlag)) {
            ++g.EntryCounter;
            ++rows.count;
        }
        if (rows.error == 0) {
            Row row;
            rows.error = ErrorOf([&] { readRow(Rs, row); });
            if (rows.error == 0) rows.read.push_back(row);
        }
        Rs.MoveNext();
    } while (!Rs.AtEOF() && Rs[table.DateAt].ToDate() == date);
    return rows;
}

// In a shared table these are the first rows of the date, whichever game they belong to.
template <class Row, class ListRow>
void TakeRows(const DateRows<Row>& from, Array<Row>& rows, ListRow listRow) {
    rows.Redim(from.count - 1);
    for (int RowNo = 0; RowNo < from.count; ++RowNo) {
        const auto at = static_cast<std::size_t>(RowNo);
        if (at == from.read.size()) Raise(from.error);
        rows(RowNo) = from.read[at];
        listRow(rows(RowNo));
    }
}

template <class Row, class ReadRow, class ListRow>
void ReadTable(Session& session, const StoreArgs& at, const PlayedTable& table, Lines& list, Array<Row>& rows,
               ReadRow readRow, ListRow listRow) {
    Dao::Database Db = session.services.engine.OpenDatabase(at.DbName, session.global.Open);
    Dao::Recordset Rs = Db.OpenTable(at.TableName);
    SeekDate(Rs, at.WindowDate);
    if (Rs.NoMatch()) return ReportNoRow(session, table, list);
    TakeRows(WalkDate<Row>(session, table, Rs, at.WindowDate, readRow), rows, listRow);
}

template <class Row, class ReadRow, class ListRow>
void ReadPlayed(Session& session, const StoreArgs& at, const PlayedTable& table, Lines& list,
                Array<Row>& rows, ReadRow readRow, ListRow listRow) {
    StoreRoutine(session, Tails::Open, at.TableName, [&] {
        const auto read = [&] { ReadTable(session, at, table, list, rows, readRow, listRow); };
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
void ReadPick(Session& session, const StoreArgs& at, Lines& list, Array<Row>& rows, int digits) {
    constexpr int First = 3;
    std::optional<std::string> way;
    ReadPlayed(
        session, at, PickTable, list, rows,
        [&](Dao::Recordset& Rs, Row& row) {
            GetNumbers(Rs, First, row.Numbers, digits);
            if (!way) way = Rs[First + digits].ToText();
        },
        [&](const Row& row) {
            session.global.PlayOption = *way;
            list.AddItem(RowText(row.Numbers, digits));
        });
}

template <int N>
std::string DigitsOrNotPlayed(const Slots<Integer, N>& numbers, int digits) {
    for (int i = 0; i < digits; ++i)
        if (numbers(i) != NotPlayed) return RowText(numbers, digits);
    return std::string(NotPlayedLine);
}

template <class Row>
void ReadDigits(Session& session, const StoreArgs& at, Lines& list, Array<Row>& rows, int digits) {
    ReadPlayed(
        session, at, AddOnTable, list, rows,
        [&](Dao::Recordset& Rs, Row& row) { GetNumbers(Rs, 3, row.Numbers, digits); },
        [&](const Row& row) { list.AddItem(DigitsOrNotPlayed(row.Numbers, digits)); });
}

}  // namespace

void ReadLotto6Played(Session& session, const StoreArgs& at, Lines& lstNumbersPlayed) {
    Global& g = session.global;
    const bool hasEarlyBird = CellsOf(g.LottoFlag).HasEarlyBird;
    ReadPlayed(
        session, at, LottoTable, lstNumbersPlayed, g.Lotto6Played,
        [&](Dao::Recordset& Rs, Lotto6Row& row) {
            GetNumbers(Rs, 2, row.Numbers, 6);
            if (hasEarlyBird) row.EarlyBird = Rs[9].ToBool();
        },
        [&](const Lotto6Row& row) {
            lstNumbersPlayed.AddItem(RowText(row.Numbers, 6));
            if (hasEarlyBird)
                lstNumbersPlayed.AddItem(row.EarlyBird ? "Earlybird Played" : "Earlybird NOT Played");
        });
}

void ReadLotto7Played(Session& session, const StoreArgs& at, Lines& lstNumbersPlayed) {
    ReadPlayed(
        session, at, LottoTable, lstNumbersPlayed, session.global.Lotto7Played,
        [](Dao::Recordset& Rs, Lotto7Row& row) { GetNumbers(Rs, 2, row.Numbers, 7); },
        [&](const Lotto7Row& row) { lstNumbersPlayed.AddItem(RowText(row.Numbers, 7)); });
}

void ReadKenoPlayed(Session& session, const StoreArgs& at, Lines& lstNumbersPlayed) {
    Global& g = session.global;
    ReadPlayed(
        session, at, KenoTable, lstNumbersPlayed, g.KenoPlayed,
        [&](Dao::Recordset& Rs, KenoRow& row) {
            row.Wager = Rs[13].ToInteger();
            row.NoOfBalls = Rs[14].ToInteger();
            GetNumbers(Rs, 3, row.Numbers, row.NoOfBalls);
        },
        [&](const KenoRow& row) {
            g.NoOfBallsPerTicket = row.NoOfBalls;
            lstNumbersPlayed.AddItem(RowTextWithoutZeros(row.Numbers, row.NoOfBalls));
        });
}

void ReadPick3Played(Session& session, const StoreArgs& at, Lines& lstNumbersPlayed) {
    ReadPick(session, at, lstNumbersPlayed, session.global.Pick3Played, 3);
}

void ReadPick4Played(Session& session, const StoreArgs& at, Lines& lstNumbersPlayed) {
    ReadPick(session, at, lstNumbersPlayed, session.global.Pick4Played, 4);
}

void ReadDigitAddOnPlayed(Session& session, const StoreArgs& at, Lines& lstEncorePlayed) {
    Global& g = session.global;
    const int digits = AddOnDigits(g.ExtraFlag);
    if (digits == 7) ReadDigits(session, at, lstEncorePlayed, g.Lotto7Played, digits);
    else ReadDigits(session, at, lstEncorePlayed, g.Lotto6Played, digits);
}

void ReadExtraPlayed(Session& session, const StoreArgs& at, Lines& lstEncorePlayed) {
    ReadPlayed(
        session, at, AddOnTable, lstEncorePlayed, session.global.Pick4Played,
        [](Dao::Recordset& Rs, Pick4Row& row) { GetNumbers(Rs, 3, row.Numbers, 4); },
        [&](const Pick4Row& row) { lstEncorePlayed.AddItem(RowText(row.Numbers, 4)); });
}

}  // namespace sorvane

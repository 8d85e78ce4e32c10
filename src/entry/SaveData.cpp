#include "entry/SaveData.h"

#include "shell/Catalogue.h"

namespace sorvane {

namespace {

// Balls of a keno ticket that reach the table.
constexpr int KenoBallsKept = 10;

template <int N>
void PutNumbers(Dao::Recordset& Rs, int at, const Slots<Integer, N>& numbers, int count) {
    for (int i = 0; i < count; ++i) Rs[at + i] = numbers(i);
}

// The new row's fields behind its key come from `fill(recordset, RowNo)`.
template <class Fill>
void AddRow(Dao::Recordset& Rs, int key, int RowNo, Fill fill) {
    Rs.AddNew();
    Rs[0] = key;
    fill(Rs, RowNo);
    Rs.Update();
}

template <class Fill>
void WriteSheet(Session& session, const StoreArgs& at, int rows, Fill fill) {
    WritingRoutine(session, Tails::Open, at.Table(), [&](OwnFile& file) {
        Dao::Recordset Rs = file.Db().OpenTable(at.TableName);
        for (int RowNo = 0; RowNo < rows; ++RowNo) {
            const int count = Rs.RecordCount();
            if (count > 0) Rs.MoveLast();
            AddRow(Rs, count + 1, RowNo, fill);
        }
    });
}

int RowsWithBonus(const Global& g, Family family) {
    return g.NoOfTicketsOnSheet * SheetFactor(family, g.LottoFlag);
}

// Digit tickets: way of play and mark behind the digits; a mark is written only when it is set.
template <class Ticket>
void WriteDigits(Session& session, const StoreArgs& at, const Array<Ticket>& tickets) {
    const Global& g = session.global;
    WriteSheet(session, at, g.NoOfTicketsOnSheet, [&](Dao::Recordset& Rs, int RowNo) {
        const Ticket& ticket = tickets(RowNo);
        const int digits = decltype(ticket.Numbers)::Count;
        Rs[1] = g.LottoFlag;
        Rs[2] = at.WindowDate;
        PutNumbers(Rs, 3, ticket.Numbers, digits);
        Rs[3 + digits] = g.PlayOption;
        if (ticket.Regular == True) Rs[4 + digits] = true;
    });
}

}  // namespace

void SaveLotto6Tickets(Session& session, const StoreArgs& at) {
    const Global& g = session.global;
    WriteSheet(session, at, g.NoOfTicketsOnSheet, [&](Dao::Recordset& Rs, int RowNo) {
        const Lotto6Ticket& ticket = g.Lotto6Tickets(RowNo);
        Rs[1] = at.WindowDate;
        PutNumbers(Rs, 2, ticket.Numbers, 6);
        Rs[8] = ticket.Regular == True;
    });
}

void SaveLottarioTickets(Session& session, const StoreArgs& at) {
    const Global& g = session.global;
    const bool ownGame = FindKey(Family::frm645, g.LottoFlag);
    WriteSheet(session, at, RowsWithBonus(g, Family::frm645), [&](Dao::Recordset& Rs, int RowNo) {
        const Lotto6Ticket& ticket = g.Lotto6Tickets(RowNo);
        Rs[1] = at.WindowDate;
        PutNumbers(Rs, 2, ticket.Numbers, 6);
        if (!ownGame) return;
        Rs[8] = ticket.Regular == True;
        Rs[9] = ticket.EarlyBird == True;
    });
}

void SaveLotto7Tickets(Session& session, const StoreArgs& at) {
    const Global& g = session.global;
    const bool ownGame = FindKey(Family::frm749, g.LottoFlag);
    WriteSheet(session, at, RowsWithBonus(g, Family::frm749), [&](Dao::Recordset& Rs, int RowNo) {
        const Lotto7Ticket& ticket = g.Lotto7Tickets(RowNo);
        Rs[1] = at.WindowDate;
        PutNumbers(Rs, 2, ticket.Numbers, 7);
        if (ownGame) Rs[9] = ticket.Regular == True;
    });
}

void SaveKenoTickets(Session& session, const StoreArgs& at) {
    const Global& g = session.global;
    WriteSheet(session, at, g.NoOfTicketsOnSheet, [&](Dao::Recordset& Rs, int RowNo) {
        const KenoTicket& ticket = g.KenoTickets(RowNo);
        Rs[1] = at.WindowDate;
        Rs[2] = g.LottoFlag;
        PutNumbers(Rs, 3, ticket.Numbers, KenoBallsKept);
        Rs[13] = ticket.Wager;
        Rs[14] = ticket.NoOfBalls;
        Rs[15] = ticket.Regular == True;
    });
}

void SavePick3Tickets(Session& session, const StoreArgs& at) {
    WriteDigits(session, at, session.global.Pick3Tickets);
}
void SavePick4Tickets(Session& session, const StoreArgs& at) {
    WriteDigits(session, at, session.global.Pick4Tickets);
}

void SaveAddOnTickets(Session& session, const StoreArgs& at) {
    const Global& g = session.global;
    const int digits = AddOnDigits(g.ExtraFlag);
    WritingRoutine(session, Tails::Open, at.Table(), [&](OwnFile& file) {
        Dao::Recordset Rs = file.Db().OpenTable(at.TableName);
        // Unlike the other writers this one counts once, before the loop.
        const int count = Rs.RecordCount();
        if (count > 0) Rs.MoveLast();
        for (int RowNo = 0; RowNo < g.NoOfExtra; ++RowNo)
            AddRow(Rs, count + 1 + RowNo, RowNo, [&](Dao::Recordset& row, int) {
                row[1] = g.LottoFlag;
                row[2] = at.WindowDate;
                PutNumbers(row, 3, g.AddOnTickets(RowNo).Numbers, digits);
            });
    });
}

void SaveExtraTickets(Session& session, const StoreArgs& at) {
    const Global& g = session.global;
    WriteSheet(session, at, g.NoOfExtra, [&](Dao::Recordset& Rs, int RowNo) {
        Rs[1] = g.LottoFlag;
        Rs[2] = at.WindowDate;
        PutNumbers(Rs, 3, g.ExtraTickets(RowNo).Numbers, 4);
    });
}

}  // namespace sorvane

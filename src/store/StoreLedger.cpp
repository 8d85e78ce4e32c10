#include "store/StoreLedger.h"

#include <optional>

namespace sorvane {

namespace {

Answer AskToAmend(Session& session) {
    Global& g = session.global;
    g.Msg = "You have already entered a Winning amount for this" + g.NL +
            "Lottery on this Draw Date. Do you wish to amend your" + g.NL + "entry?";
    return session.services.dialogs.MsgBox(g.Msg, BoxStyle::YesNo, "Correct Winnings?");
}

void PutAmount(Dao::Recordset& Rs, const Global& g, Date date) {
    Rs[1] = g.LottoFlag;
    Rs[2] = date;
    Rs[3] = g.Dollars;
    Rs.Update();
}

// A ledger that was looked into for a date.
struct Ledger {
    Ledger(Dao::Database& Db, const StoreArgs& at, const Global& g)
        : Rs(Db.OpenTable(at.TableName)), count(Rs.RecordCount()), amends(count > 0 && FindsOwn(at, g)) {}

    Dao::Recordset Rs;
    int count;
    // Winnings are being entered and the first row of the date, now the current one, belongs to the game.
    bool amends;

  private:
    bool FindsOwn(const StoreArgs& at, const Global& g) {
        Rs.Index("Date");
        Rs.Seek(at.WindowDate);
        if (Rs.NoMatch()) Rs.MoveLast();
        else if (g.EnteringWinnings == On) return Rs[1].Is(g.LottoFlag);
        return false;
    }
};

}  // namespace

void StoreLedgerAmount(Session& session, const StoreArgs& at) {
    const Global& g = session.global;
    WritingRoutine(session, Tails::Ledger, at.Table(), [&](OwnFile& file) {
        std::optional<Ledger> ledger(std::in_place, file.Db(), at, g);
        if (ledger->amends) {
            if (file.Ask([&] { return AskToAmend(session); }) != Answer::Yes) return;
            ledger.emplace(file.Db(), at, g);
        }
        if (ledger->amends) {
            ledger->Rs.Edit();
        } else {
            ledger->Rs.AddNew();
            ledger->Rs[0] = ledger->count + 1;
        }
        PutAmount(ledger->Rs, g, at.WindowDate);
    });
}

}  // namespace sorvane

#include "store/StoreLedger.h"

namespace sorvane {

namespace {

Answer AskToAmend(Run& run) {
    Global& g = run.global;
    g.Msg = "You have already entered a Winning amount for this" + g.NL +
            "Lottery on this Draw Date. Do you wish to amend your" + g.NL + "entry?";
    return run.services.dialogs.MsgBox(g.Msg, BoxStyle::YesNo, "Correct Winnings?");
}

void PutAmount(Dao::Recordset& Rs, const Global& g, Date date) {
    Rs[1] = g.LottoFlag;
    Rs[2] = date;
    Rs[3] = g.Dollars;
    Rs.Update();
}

// The row of the date belongs to the game and winnings are being entered: the amount is amended, or left on
// No.
bool AmendedInstead(Run& run, Dao::Recordset& Rs, Date date) {
    const Global& g = run.global;
    Rs.Index("Date");
    Rs.Seek(date);
    if (Rs.NoMatch()) {
        Rs.MoveLast();
        return false;
    }
    if (g.EnteringWinnings != On) return false;
    const Dao::Value key = Rs[1];
    if (key.IsNull() || key.ToText() != g.LottoFlag) return false;
    if (AskToAmend(run) == Answer::Yes) {
        Rs.Edit();
        PutAmount(Rs, g, date);
    }
    return true;
}

}  // namespace

void StoreLedgerAmount(Run& run, const StoreArgs& at) {
    StoreRoutine(run, Tails::Ledger, at.TableName, [&] {
        Dao::Database Db = run.services.engine.OpenDatabase(at.DbName, run.global.Open);
        Dao::Recordset Rs = Db.OpenTable(at.TableName);
        const int count = Rs.RecordCount();
        if (count > 0 && AmendedInstead(run, Rs, at.WindowDate)) return;
        Rs.AddNew();
        Rs[0] = count + 1;
        PutAmount(Rs, run.global, at.WindowDate);
    });
}

}  // namespace sorvane

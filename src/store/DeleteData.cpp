#include "store/DeleteData.h"

#include "store/StoreRoutine.h"

namespace sorvane {

namespace {

constexpr std::string_view DateField = "Date";

// The rows of a date lie beside each other in the index: the walk ends at the first later one.
void DeleteFromHere(Dao::Recordset& Rs, Date DrawDate) {
    for (;;) {
        if (Rs[DateField].ToDate() == DrawDate) Rs.Delete();
        if (!Rs.AtEOF()) Rs.MoveNext();
        if (Rs.AtEOF() || Rs[DateField].ToDate() != DrawDate) return;
    }
}

}  // namespace

void DeleteRowsForDate(Session& session, const StoreTable& table, Date DrawDate) {
    WritingRoutine(session, Tails::Open, table, [&](OwnFile& file) {
        Dao::Recordset Rs = file.Db().OpenTable(table.TableName);
        const Integer rows = Rs.RecordCount();
        if (rows <= 0) return;
        Rs.Index(DateField);
        Rs.Seek(DrawDate);
        if (Rs.NoMatch()) Rs.MoveLast();
        else DeleteFromHere(Rs, DrawDate);
    });
}

void DeleteAllRows(Session& session, const StoreTable& table) {
    WritingRoutine(session, Tails::Open, table, [&](OwnFile& file) {
        Dao::Recordset Rs = file.Db().OpenTable(table.TableName);
        DeleteAllRows(Rs);
    });
}

void DeleteAllRows(Dao::Recordset& Rs) {
    if (Rs.RecordCount() <= 0) return;
    Rs.MoveFirst();
    do {
        Rs.Delete();
        if (!Rs.AtEOF()) Rs.MoveNext();
    } while (!Rs.AtEOF());
}

}  // namespace sorvane

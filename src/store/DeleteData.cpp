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

void DeleteRowsForDate(Session& session, const std::string& DbName, const std::string& TableName,
                       Date DrawDate) {
    WritingRoutine(session, Tails::Open, {DbName, TableName}, [&](OwnFile& file) {
        Dao::Recordset Rs = file.Db().OpenTable(TableName);
        const Integer rows = Rs.RecordCount();
        if (rows <= 0) return;
        Rs.Index(DateField);
        Rs.Seek(DrawDate);
        if (Rs.NoMatch()) Rs.MoveLast();
        else DeleteFromHere(Rs, DrawDate);
    });
}

void DeleteAllRows(Session& session, const std::string& DbName, const std::string& TableName) {
    WritingRoutine(session, Tails::Open, {DbName, TableName}, [&](OwnFile& file) {
        Dao::Recordset Rs = file.Db().OpenTable(TableName);
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

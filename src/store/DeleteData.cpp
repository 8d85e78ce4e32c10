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

void DeleteRowsForDate(Run& run, const std::string& DbName, const std::string& TableName, Date DrawDate) {
    StoreRoutine(run, Tails::Open, TableName, [&] {
        Dao::Database Db = run.services.engine.OpenDatabase(DbName, run.global.Open);
        Dao::Recordset Rs = Db.OpenTable(TableName);
        const Integer rows = Rs.RecordCount();
        if (rows <= 0) return;
        Rs.Index(DateField);
        Rs.Seek(DrawDate);
        if (Rs.NoMatch()) Rs.MoveLast();
        else DeleteFromHere(Rs, DrawDate);
    });
}

void DeleteAllRows(Run& run, const std::string& DbName, const std::string& TableName) {
    StoreRoutine(run, Tails::Open, TableName, [&] {
        Dao::Database Db = run.services.engine.OpenDatabase(DbName, run.global.Open);
        Dao::Recordset Rs = Db.OpenTable(TableName);
        if (Rs.RecordCount() <= 0) return;
        // The scratch table is emptied with one commit: nothing in it outlives a wheel.
        Db.OneCommit();
        Rs.MoveFirst();
        do {
            Rs.Delete();
            if (!Rs.AtEOF()) Rs.MoveNext();
        } while (!Rs.AtEOF());
        Db.Close();
    });
}

}  // namespace sorvane

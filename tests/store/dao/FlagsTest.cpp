#include "DaoWorld.h"

namespace sorvane::Dao {
namespace {

class Flags : public DaoWorld {};

TEST_F(Flags, OpeningSetsAndClosingClearsEachFlag) {
    {
        Workspace ws = engine_.CreateWorkspace("Sorvane", "admin", "", flags_);
        EXPECT_EQ(flags_.WsOpen, 1);
        Database db = ws.CreateDatabase(path_, ";LANGID=0x0409;CP=1252;COUNTRY=0");
        EXPECT_EQ(flags_.DbOpen, 1);
        db.Append(Every());
        Recordset rs = db.OpenTable("Every");
        EXPECT_EQ(flags_.RsOpen, 1);
        rs.Close();
        EXPECT_EQ(flags_.RsOpen, 0);
        db.Close();
        EXPECT_EQ(flags_.DbOpen, 0);
        ws.Close();
        EXPECT_EQ(flags_.WsOpen, 0);
    }
    EXPECT_EQ(flags_.WsOpen, 0);
}

TEST_F(Flags, DestructorsClose) {
    CreateWithDays({10});
    EXPECT_EQ(flags_.DbOpen, 0);
    EXPECT_EQ(flags_.RsOpen, 0);
    EXPECT_EQ(flags_.WsOpen, 0);
    Database db = Open();
    { Recordset sql = db.OpenSql("SELECT * FROM [Every]"); }
    EXPECT_EQ(flags_.RsOpen, 0);
    EXPECT_EQ(flags_.DbOpen, 1);
}

TEST_F(Flags, ACloseClearsTheFlagWhileAnotherIsStillOpen) {
    CreateWithDays({10});
    Database outer = Open();
    Recordset rs = outer.OpenTable("Every");
    {
        Database inner = Open();
        Recordset innerRs = inner.OpenTable("Every");
    }
    EXPECT_EQ(flags_.DbOpen, 0);
    EXPECT_EQ(flags_.RsOpen, 0);
    EXPECT_EQ(rs[0].ToInt(), 1);
}

TEST_F(Flags, AnOpeningThatFailsLeavesTheFlagsAlone) {
    CreateWithDays({10});
    Database db = Open();
    Recordset rs = db.OpenTable("Every");
    EXPECT_EQ(ErrorOf([&] { db.OpenTable("Nothing"); }), ErrorNumber::TableNotFound);
    EXPECT_EQ(ErrorOf([&] { db.OpenSql("SELECT * FROM [Every] ORDER BY [Nothing]"); }),
              ErrorNumber::NotADatabase);
    EXPECT_EQ(flags_.RsOpen, 1);
    EXPECT_EQ(ErrorOf([&] { engine_.OpenDatabase(folder_.File("none"), flags_); }),
              ErrorNumber::StoreFileNotFound);
    EXPECT_EQ(flags_.DbOpen, 1);
}

TEST_F(Flags, ADatabaseClosesItsRecordsetsBeforeItself) {
    CreateWithDays({10, 20});
    Database db = Open();
    Recordset rs = db.OpenTable("Every");
    Recordset sql = db.OpenSql("SELECT * FROM [Every]");
    rs.MoveNext();
    db.Close();
    EXPECT_EQ(flags_.RsOpen, 0);
    EXPECT_EQ(flags_.DbOpen, 0);
    EXPECT_EQ(ErrorOf([&] { rs.MoveFirst(); }), ErrorNumber::ObjectClosed);
    EXPECT_EQ(ErrorOf([&] { sql.MoveFirst(); }), ErrorNumber::ObjectClosed);
    EXPECT_EQ(ErrorOf([&] { db.OpenTable("Every"); }), ErrorNumber::ObjectClosed);
    rs.Close();
    db.Close();
}

TEST_F(Flags, AClosedWorkspaceOpensNothing) {
    Workspace ws = engine_.Workspaces(0, flags_);
    ws.Close();
    EXPECT_EQ(ErrorOf([&] { ws.OpenDatabase(path_); }), ErrorNumber::ObjectClosed);
    EXPECT_EQ(ErrorOf([&] { ws.CreateDatabase(path_, ""); }), ErrorNumber::ObjectClosed);
    EXPECT_EQ(ErrorOf([&] { engine_.Workspaces(1, flags_); }), ErrorNumber::NoSuchField);
}

TEST_F(Flags, AMovedObjectClosesOnce) {
    CreateWithDays({10});
    Workspace ws = engine_.Workspaces(0, flags_);
    Workspace sameWs = std::move(ws);
    Database db = sameWs.OpenDatabase(path_);
    {
        Database same = std::move(db);
        Recordset rs = same.OpenTable("Every");
        Recordset sameRs = std::move(rs);
        rs.Close();
        EXPECT_EQ(flags_.RsOpen, 1);
        EXPECT_EQ(sameRs[0].ToInt(), 1);
    }
    EXPECT_EQ(flags_.DbOpen, 0);
    flags_.DbOpen = 1;
    db.Close();
    EXPECT_EQ(flags_.DbOpen, 1);
}

}  // namespace
}  // namespace sorvane::Dao

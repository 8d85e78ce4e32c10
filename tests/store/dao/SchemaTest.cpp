#include "DaoWorld.h"

namespace sorvane::Dao {
namespace {

class Schema : public DaoWorld {};

TEST_F(Schema, AnyToolReadsNamesTypesAndOrderBackFromTheFile) {
    CreateEvery();
    EXPECT_EQ(Plain().Ask("SELECT name, type FROM pragma_table_info('Every') ORDER BY cid"),
              (Cells{"ID1", "LONG", "Lottoflag", "TEXT(30)", "Date", "DATETIME", "Amount", "CURRENCY",
                     "# of Balls", "INTEGER(16)", "Regular", "BOOLEAN"}));
    EXPECT_EQ(Plain().Ask("SELECT name, tbl_name FROM sqlite_schema WHERE type = 'index' ORDER BY name"),
              (Cells{"Every.Date", "Every", "Every.ID1", "Every"}));
}

TEST_F(Schema, ANewFileHasAHeaderAndNoTable) {
    Create();
    EXPECT_GT(std::filesystem::file_size(path_), 0U);
    EXPECT_EQ(Plain().One("SELECT count(*) FROM sqlite_schema"), "0");
    EXPECT_EQ(Plain().One("PRAGMA journal_mode"), "delete");
    EXPECT_EQ(Plain().One("PRAGMA application_id"), std::to_string(0x536F7276));
}

TEST_F(Schema, AFileThatExistsIsNotMadeAgain) {
    CreateWithDays({10});
    EXPECT_EQ(ErrorOf([&] { Create(); }), ErrorNumber::PathFileAccess);
    EXPECT_EQ(Plain().One("SELECT count(*) FROM Every"), "1");
}

TEST_F(Schema, ThereIsOneWorkspace) {
    EXPECT_EQ(ErrorOf([&] { engine_.Workspaces(1, flags_); }), ErrorNumber::NoSuchField);
    EXPECT_EQ(ErrorOf([&] { engine_.Workspaces(-1, flags_); }), ErrorNumber::NoSuchField);
}

TEST_F(Schema, AMissingFolderIsTold) {
    path_ = folder_.File("none/sorvane.mdb");
    EXPECT_EQ(ErrorOf([&] { Create(); }), ErrorNumber::PathNotFound);
}

TEST_F(Schema, ATableIsMadeOnce) {
    Database db = CreateEvery();
    EXPECT_EQ(ErrorOf([&] { db.Append(Every()); }), ErrorNumber::TableExists);
    EXPECT_EQ(ErrorOf([&] { db.Append(Every("EVERY")); }), ErrorNumber::TableExists);
    EXPECT_TRUE(db.HasTable("Every"));
    EXPECT_FALSE(db.HasTable("Win"));
}

TEST_F(Schema, AnIndexNeedsATableAFieldAndANameOfItsOwn) {
    Database db = CreateEvery();
    EXPECT_EQ(ErrorOf([&] { db.AppendIndex("Win", "ID1", "ID1", true); }), ErrorNumber::TableNotFound);
    EXPECT_EQ(ErrorOf([&] { db.AppendIndex("Every", "X", "Nothing", false); }), ErrorNumber::NoSuchField);
    EXPECT_EQ(ErrorOf([&] { db.AppendIndex("Every", "Date", "Date", false); }), ErrorNumber::TableExists);
}

TEST_F(Schema, APrimaryIndexIsRefusedOverRowsItWouldNotTake) {
    Database db = Create();
    db.Append(Every());
    Recordset rs = db.OpenTable("Every");
    Add(rs, 1, 10);
    Add(rs, 1, 10);
    EXPECT_EQ(ErrorOf([&] { db.AppendIndex("Every", "ID1", "ID1", true); }), ErrorNumber::KeyTaken);
    rs.Edit();
    rs[0] = Value();
    rs.Update();
    EXPECT_EQ(ErrorOf([&] { db.AppendIndex("Every", "ID1", "ID1", true); }), ErrorNumber::NullInKey);
    db.AppendIndex("Every", "ID1", "ID1", false);
}

TEST_F(Schema, ThePrimaryIndexTakesNoKeyTwiceAndNoNull) {
    CreateWithDays({10});
    Database db = Open();
    Recordset rs = db.OpenTable("Every");
    EXPECT_EQ(ErrorOf([&] { Add(rs, 1, 20); }), ErrorNumber::KeyTaken);
    rs.AddNew();
    EXPECT_EQ(ErrorOf([&] { rs.Update(); }), ErrorNumber::NullInKey);
    rs.Edit();
    rs[0] = Value();
    EXPECT_EQ(ErrorOf([&] { rs.Update(); }), ErrorNumber::NullInKey);
    EXPECT_EQ(Plain().Ask("SELECT ID1 FROM Every"), (Cells{"1"}));
}

TEST_F(Schema, WithoutAPrimaryIndexKeysMayBeNullOrRepeat) {
    Database db = Create();
    db.Append(Every());
    Recordset rs = db.OpenTable("Every");
    Add(rs, 1, 10);
    Add(rs, 1, 10);
    rs.AddNew();
    rs.Update();
    EXPECT_EQ(rs.RecordCount(), 3);
}

TEST_F(Schema, NamesWithBlanksSignsAndQuotesStayAsTheyAre) {
    Database db = Create();
    TableDef table("Odd \"name\" [x]; --");
    table.AppendField("Number 1", FieldType::Integer);
    table.AppendField("a\"b", FieldType::Text, 5);
    db.Append(table);
    db.AppendIndex(table.Name(), "Number 1", "Number 1", true);
    Recordset rs = db.OpenTable(table.Name());
    rs.AddNew();
    rs["Number 1"] = 3;
    rs["a\"b"] = "x'y\"z";
    rs.Update();
    rs.Index("Number 1");
    rs.Seek(3);
    EXPECT_EQ(rs[1].ToText(), "x'y\"z");
}

TEST_F(Schema, ErrorsOfNamesHaveTheirOwnNumbers) {
    Database db = CreateEvery();
    EXPECT_EQ(ErrorOf([&] { db.OpenTable("Win"); }), ErrorNumber::TableNotFound);
    EXPECT_EQ(ErrorOf([&] { db.OpenTable("sqlite_schema"); }), ErrorNumber::TableNotFound);
    EXPECT_EQ(ErrorOf([&] { db.OpenSql("SELECT * FROM [Win] ORDER BY [Date]"); }),
              ErrorNumber::SqlTableNotFound);
    Recordset rs = db.OpenTable("Every");
    EXPECT_EQ(ErrorOf([&] { rs.Index("Ball"); }), ErrorNumber::IndexNotFound);
    EXPECT_EQ(ErrorOf([&] { rs.Seek(1); }), ErrorNumber::NoIndexSet);
    EXPECT_EQ(ErrorOf([&] { rs["Ball"]; }), ErrorNumber::NoSuchField);
    EXPECT_EQ(ErrorOf([&] { rs[6]; }), ErrorNumber::NoSuchField);
    EXPECT_EQ(ErrorOf([&] { rs[-1]; }), ErrorNumber::NoSuchField);
    EXPECT_EQ(ErrorOf([&] { rs.Update(); }), ErrorNumber::UpdateWithoutEdit);
    EXPECT_EQ(ErrorOf([&] { rs[0] = 1; }), ErrorNumber::UpdateWithoutEdit);
}

}  // namespace
}  // namespace sorvane::Dao

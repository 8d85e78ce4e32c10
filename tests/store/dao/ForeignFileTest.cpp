#include <sys/stat.h>
#include <unistd.h>

#include <sstream>

#include "DaoWorld.h"
#include "support/NoSuperuser.h"

namespace sorvane::Dao {
namespace {

// What a person, another program or an ill wind may leave at the place of the database.
class ForeignFiles : public DaoWorld {
  protected:
    int NumberOfOpening() {
        return ErrorOf([this] { Open(); });
    }
    std::string Bytes() const {
        std::ostringstream bytes;
        bytes << std::ifstream(path_, std::ios::binary).rdbuf();
        return bytes.str();
    }
};

TEST_F(ForeignFiles, AFileThatIsNotThere) {
    EXPECT_EQ(NumberOfOpening(), ErrorNumber::StoreFileNotFound);
    EXPECT_FALSE(std::filesystem::exists(path_));
    path_ = folder_.File("none/sorvane.mdb");
    EXPECT_EQ(NumberOfOpening(), ErrorNumber::StoreFileNotFound);
}

TEST_F(ForeignFiles, AFolderAtItsPlace) {
    std::filesystem::create_directory(path_);
    EXPECT_EQ(NumberOfOpening(), ErrorNumber::NoPermission);
    EXPECT_EQ(ErrorOf([&] { Create(); }), ErrorNumber::PathFileAccess);
}

TEST_F(ForeignFiles, ALinkThatLeadsNowhere) {
    std::filesystem::create_symlink(folder_.File("none"), path_);
    EXPECT_EQ(NumberOfOpening(), ErrorNumber::StoreFileNotFound);
}

TEST_F(ForeignFiles, ALinkToTheFile) {
    CreateWithDays({10});
    std::filesystem::rename(path_, folder_.File("elsewhere"));
    std::filesystem::create_symlink(folder_.File("elsewhere"), path_);
    Database db = Open();
    Recordset rs = db.OpenTable("Every");
    Add(rs, 2, 20);
    EXPECT_EQ(rs.RecordCount(), 2);
}

TEST_F(ForeignFiles, APipeIsNotWaitedFor) {
    ASSERT_EQ(mkfifo(path_.c_str(), 0666), 0);
    EXPECT_EQ(NumberOfOpening(), ErrorNumber::NoPermission);
}

TEST_F(ForeignFiles, AFileOfNoBytesIsAnEmptyDatabase) {
    WriteBytes("");
    Database db = Open();
    EXPECT_FALSE(db.HasTable("Every"));
    db.Append(Every());
    EXPECT_TRUE(db.HasTable("Every"));
}

TEST_F(ForeignFiles, AFileThatIsNoDatabase) {
    for (const std::string& bytes :
         {std::string("x"), std::string("xy"), std::string("This is a letter, not a database.\n"),
          std::string(100, '\0'), std::string(8192, '\xff'), std::string("SQLite format 3"),
          std::string("SQLite format 3\0", 16), "Standard Jet DB" + std::string(4096, '\0')}) {
        WriteBytes(bytes);
        EXPECT_EQ(NumberOfOpening(), ErrorNumber::NotADatabase) << bytes.size();
        EXPECT_EQ(Bytes(), bytes);
    }
}

TEST_F(ForeignFiles, AFileThatIsCutOff) {
    CreateWithDays({10, 20, 30});
    const std::string whole = Bytes();
    for (std::size_t size = 2; size < whole.size(); size += 509) {
        WriteBytes(whole.substr(0, size));
        EXPECT_EQ(NumberOfOpening(), ErrorNumber::NotADatabase) << size;
    }
}

TEST_F(ForeignFiles, DamageToTheSchemaShowsWhenItIsOpened) {
    CreateWithDays({10});
    std::string bytes = Bytes();
    for (std::size_t at = bytes.find("CREATE TABLE"); at < 4096; ++at) bytes[at] = '\x7f';
    WriteBytes(bytes);
    EXPECT_EQ(NumberOfOpening(), ErrorNumber::NotADatabase);
}

TEST_F(ForeignFiles, DamageToATableShowsWhenItIsRead) {
    CreateWithDays({10, 20});
    std::string bytes = Bytes();
    for (std::size_t at = 4096; at < 3 * 4096; ++at) bytes[at] = '\x7f';
    WriteBytes(bytes);
    Database db = Open();
    Recordset rs = db.OpenTable("Every");
    EXPECT_EQ(ErrorOf([&] { rs.MoveFirst(); }), ErrorNumber::NotADatabase);
    EXPECT_EQ(ErrorOf([&] { db.OpenSql("SELECT * FROM [Every]"); }), ErrorNumber::NotADatabase);
    EXPECT_EQ(ErrorOf([&] { Add(rs, 3, 10); }), ErrorNumber::NotADatabase);
}

TEST_F(ForeignFiles, AFileThatMayOnlyBeReadIsReadAndNotWritten) {
    CreateWithDays({10});
    std::filesystem::permissions(path_, std::filesystem::perms(0444));
    std::filesystem::permissions(folder_.Path(), std::filesystem::perms(0555));
    const NoSuperuser somebodyElse;
    Database db = Open();
    Recordset rs = db.OpenTable("Every");
    EXPECT_EQ(rs[0].ToInt(), 1);
    EXPECT_EQ(rs.RecordCount(), 1);
    EXPECT_EQ(ErrorOf([&] { Add(rs, 2, 10); }), ErrorNumber::NoPermission);
    EXPECT_EQ(ErrorOf([&] { rs.Delete(); }), ErrorNumber::NoPermission);
    EXPECT_EQ(ErrorOf([&] { db.Append(Every("Other")); }), ErrorNumber::NoPermission);
    EXPECT_EQ(rs.RecordCount(), 1);
}

TEST_F(ForeignFiles, AFileInAFolderThatMayNotBeWritten) {
    CreateWithDays({10});
    std::filesystem::permissions(path_, std::filesystem::perms(0666));
    std::filesystem::permissions(folder_.Path(), std::filesystem::perms(0555));
    const NoSuperuser somebodyElse;
    Database db = Open();
    Recordset rs = db.OpenTable("Every");
    EXPECT_EQ(ErrorOf([&] { Add(rs, 2, 10); }), ErrorNumber::NoPermission);
    EXPECT_EQ(ErrorOf([&] {
                  path_ = folder_.File("new.mdb");
                  Create();
              }),
              ErrorNumber::NoPermission);
}

TEST_F(ForeignFiles, AFileThatMayNotBeRead) {
    CreateWithDays({10});
    std::filesystem::permissions(path_, std::filesystem::perms::none);
    const NoSuperuser somebodyElse;
    EXPECT_EQ(NumberOfOpening(), ErrorNumber::NoPermission);
}

TEST_F(ForeignFiles, AFileThatIsDeletedWhileOpenTakesNoMoreRows) {
    CreateWithDays({10});
    Database db = Open();
    Recordset rs = db.OpenTable("Every");
    std::filesystem::remove(path_);
    EXPECT_EQ(ErrorOf([&] { Add(rs, 2, 10); }), ErrorNumber::NoPermission);
    EXPECT_EQ(NumberOfOpening(), ErrorNumber::StoreFileNotFound);
}

TEST_F(ForeignFiles, AWriteAheadLogIsPutBackToTheOneFile) {
    CreateWithDays({10});
    Plain().Ask("PRAGMA journal_mode = WAL; INSERT INTO Every (ID1) VALUES (2)");
    Database db = Open();
    Recordset rs = db.OpenTable("Every");
    EXPECT_EQ(rs.RecordCount(), 2);
    Add(rs, 3, 10);
    EXPECT_EQ(Plain().One("PRAGMA journal_mode"), "delete");
    EXPECT_FALSE(std::filesystem::exists(path_ + "-wal"));
}

TEST_F(ForeignFiles, AWriteAheadLogInUseIsALock) {
    CreateWithDays({10});
    PlainTool other(path_);
    other.Ask("PRAGMA journal_mode = WAL; BEGIN; SELECT * FROM Every");
    EXPECT_EQ(NumberOfOpening(), ErrorNumber::Locked);
}

TEST_F(ForeignFiles, TriggersDoNotRun) {
    CreateWithDays({10});
    Plain().Ask(
        "CREATE TRIGGER t AFTER INSERT ON Every BEGIN DELETE FROM Every; END;"
        "CREATE TRIGGER u BEFORE DELETE ON Every BEGIN SELECT RAISE(ABORT, 'no'); END");
    Database db = Open();
    Recordset rs = db.OpenTable("Every");
    Add(rs, 2, 10);
    EXPECT_EQ(rs.RecordCount(), 2);
    rs.MoveFirst();
    rs.Delete();
    EXPECT_EQ(rs.RecordCount(), 1);
}

TEST_F(ForeignFiles, ViewsAndVirtualTablesAreNoTables) {
    CreateWithDays({10});
    Plain().Ask("CREATE VIEW Seen AS SELECT * FROM Every; CREATE VIRTUAL TABLE Words USING fts5(word)");
    Database db = Open();
    for (const char* name : {"Seen", "Words"}) {
        EXPECT_FALSE(db.HasTable(name));
        EXPECT_EQ(ErrorOf([&] { db.OpenTable(name); }), ErrorNumber::TableNotFound);
        EXPECT_EQ(ErrorOf([&] { db.OpenSql("SELECT * FROM " + std::string(name)); }),
                  ErrorNumber::SqlTableNotFound);
        EXPECT_EQ(ErrorOf([&] { db.Append(Every(name)); }), ErrorNumber::TableExists);
    }
}

TEST_F(ForeignFiles, ATableWithoutRowNumbersIsDamage) {
    CreateWithDays({10});
    Plain().Ask("CREATE TABLE Flat (ID1 LONG PRIMARY KEY, x TEXT) WITHOUT ROWID");
    Database db = Open();
    EXPECT_EQ(ErrorOf([&] { db.OpenTable("Flat"); }), ErrorNumber::NotADatabase);
}

TEST_F(ForeignFiles, FieldsNamedAsRowNumbersAreOrdinaryFields) {
    CreateWithDays({10});
    Plain().Ask(
        "CREATE TABLE Two (rowid TEXT, oid TEXT); INSERT INTO Two VALUES ('b', 'x'), ('a', 'y');"
        "CREATE TABLE Three (rowid TEXT, oid TEXT, _rowid_ TEXT)");
    Database db = Open();
    Recordset rs = db.OpenTable("Two");
    EXPECT_EQ(rs[0].ToText(), "b");
    rs.MoveNext();
    EXPECT_EQ(rs["rowid"].ToText(), "a");
    rs.Delete();
    EXPECT_EQ(rs.RecordCount(), 1);
    EXPECT_EQ(ErrorOf([&] { db.OpenTable("Three"); }), ErrorNumber::NotADatabase);
}

TEST_F(ForeignFiles, UnknownTypesReadAsWhatIsStored) {
    CreateWithDays({10});
    Plain().Ask(
        "CREATE TABLE Strange (a INTEGER, b VARCHAR(9), c DECIMAL(10,2), d, e INTEGER(8), f BLOB);"
        "INSERT INTO Strange VALUES (5000000000, 'x', 1.25, NULL, 3, x'616263')");
    Database db = Open();
    Recordset rs = db.OpenTable("Strange");
    EXPECT_EQ(rs[0].ToText(), "5000000000");
    EXPECT_EQ(rs[1].ToText(), "x");
    EXPECT_EQ(rs[2].ToCurrency(), Currency::FromText("1.25"));
    EXPECT_TRUE(rs[3].IsNull());
    EXPECT_EQ(rs[4].ToInt(), 3);
    EXPECT_EQ(rs[5].ToText(), "abc");
    rs.Edit();
    rs[1] = "longer than nine";
    rs[3] = Currency::FromText("0.25");
    rs.Update();
    EXPECT_EQ(Plain().Ask("SELECT b, d FROM Strange"), (Cells{"longer than nine", "0.25"}));
}

TEST_F(ForeignFiles, CellsOfAnotherTypeThanTheirFieldRaiseWhereTheyAreUsed) {
    CreateWithDays({10, 20});
    Plain().Ask(
        "UPDATE Every SET Date = 'soon', Amount = 'much', \"# of Balls\" = 'many', Regular = NULL "
        "WHERE ID1 = 1;"
        "UPDATE Every SET Date = 1e300, Amount = 1e300, \"# of Balls\" = 1e300, Regular = 0.5, "
        "ID1 = 5000000000 WHERE ID1 = 2");
    Database db = Open();
    Recordset rs = db.OpenTable("Every");
    EXPECT_EQ(ErrorOf([&] { rs[2].ToDate(); }), ErrorNumber::TypeMismatch);
    EXPECT_EQ(rs[2].ToText(), "soon");
    EXPECT_EQ(ErrorOf([&] { rs[3].ToCurrency(); }), ErrorNumber::TypeMismatch);
    EXPECT_EQ(ErrorOf([&] { rs[4].ToInteger(); }), ErrorNumber::TypeMismatch);
    EXPECT_EQ(rs["ID1"].ToInteger(), 1);
    EXPECT_FALSE(rs[5].ToBool());
    EXPECT_FALSE(rs[5].IsNull());
    rs.MoveNext();
    EXPECT_EQ(ErrorOf([&] { rs[2].ToDate(); }), ErrorNumber::Overflow);
    EXPECT_EQ(ErrorOf([&] { rs[3].ToCurrency(); }), ErrorNumber::Overflow);
    EXPECT_EQ(ErrorOf([&] { rs[4].ToInteger(); }), ErrorNumber::Overflow);
    EXPECT_EQ(ErrorOf([&] { rs["ID1"].ToInt(); }), ErrorNumber::Overflow);
    EXPECT_TRUE(rs[5].ToBool());
    // They stand at the end of the index, behind all days.
    rs.Index("Date");
    rs.MoveFirst();
    EXPECT_EQ(rs["ID1"].ToText(), "5000000000");
    rs.MoveNext();
    EXPECT_EQ(rs["ID1"].ToInt(), 1);
}

TEST_F(ForeignFiles, ADamagedOrForeignIndexIsNotFoundOrDamage) {
    CreateWithDays({10});
    Plain().Ask(
        "CREATE INDEX \"Every.Part\" ON Every (Date) WHERE Date > 5;"
        "CREATE INDEX \"Every.Sum\" ON Every (ID1 + 1);"
        "CREATE TABLE Other (Date DATETIME); CREATE INDEX \"Every.Else\" ON Other (Date)");
    Database db = Open();
    Recordset rs = db.OpenTable("Every");
    EXPECT_EQ(ErrorOf([&] { rs.Index("Sum"); }), ErrorNumber::IndexNotFound);
    EXPECT_EQ(ErrorOf([&] { rs.Index("Else"); }), ErrorNumber::IndexNotFound);
    EXPECT_EQ(ErrorOf([&] { rs.Index("Part"); }), ErrorNumber::IndexNotFound);
}

TEST_F(ForeignFiles, AnIndexThatTellsARowTwiceIsDamageAndAnotherWalkBeginsAnew) {
    CreateWithDays({10, 10, 10});
    std::string bytes = Bytes();
    // The entry of the third row, day 10, becomes one more of the second.
    const std::size_t third = bytes.find("\x05\x03\x01\x01\x0A\x03");
    ASSERT_NE(third, std::string::npos);
    bytes[third + 5] = '\x02';
    WriteBytes(bytes);
    Database db = Open();
    Recordset rs = db.OpenTable("Every");
    rs.Index("Date");
    for (int walk = 0; walk < 2; ++walk) {
        rs.Seek(10);
        rs.MoveNext();
        EXPECT_EQ(rs[0].ToInt(), 2);
        EXPECT_EQ(ErrorOf([&] { rs.MoveNext(); }), ErrorNumber::NotADatabase);
        EXPECT_EQ(ErrorOf([&] { rs[0].ToInt(); }), ErrorNumber::NoCurrentRecord);
    }
    // Nor does it hold anybody up.
    Plain().Ask("UPDATE Every SET Regular = 1 WHERE ID1 = 1");
}

TEST_F(ForeignFiles, RulesOfAForeignTableRefuseWithTheNearestNumber) {
    CreateWithDays({10});
    Plain().Ask(
        "CREATE TABLE Ruled (ID1 LONG UNIQUE, x TEXT NOT NULL DEFAULT 'y', n CHECK (n < 5),"
        " twice AS (n * 2))");
    Database db = Open();
    Recordset rs = db.OpenTable("Ruled");
    EXPECT_EQ(rs.FieldCount(), 3);
    const auto add = [&](const Value& id, const Value& x, const Value& n) {
        return ErrorOf([&] {
            rs.AddNew();
            rs[0] = id;
            rs[1] = x;
            rs[2] = n;
            rs.Update();
        });
    };
    EXPECT_EQ(add(1, "a", 4), 0);
    EXPECT_EQ(add(1, "a", 4), ErrorNumber::KeyTaken);
    EXPECT_EQ(add(2, Value(), 4), ErrorNumber::NullInKey);
    EXPECT_EQ(add(2, "a", 5), ErrorNumber::Conversion);
}

TEST_F(ForeignFiles, ReckonedFieldsDoNotCountAsFields) {
    CreateWithDays({10});
    Plain().Ask(
        "CREATE TABLE Reckoned (twice AS (ID1 * 2), ID1 LONG, more AS (ID1 + 1), Date DATETIME);"
        "CREATE UNIQUE INDEX \"Reckoned.ID1\" ON Reckoned (ID1);"
        "CREATE INDEX \"Reckoned.Date\" ON Reckoned (Date);"
        "CREATE INDEX \"Reckoned.twice\" ON Reckoned (twice);"
        "INSERT INTO Reckoned VALUES (1, 30), (2, 20)");
    Database db = Open();
    Recordset rs = db.OpenTable("Reckoned");
    EXPECT_EQ(rs.FieldCount(), 2);
    rs.Index("Date");
    rs.Seek(20);
    EXPECT_EQ(Ids(rs), (Numbers{2, 1}));
    EXPECT_EQ(ErrorOf([&] { rs.Index("twice"); }), ErrorNumber::IndexNotFound);
    rs.AddNew();
    EXPECT_EQ(ErrorOf([&] { rs.Update(); }), ErrorNumber::NullInKey);
}

TEST_F(ForeignFiles, TablesThatBelongTogetherInAnotherToolDoNotHere) {
    CreateWithDays({10});
    Plain().Ask("CREATE TABLE Child (ID1 LONG REFERENCES Every (ID1) ON DELETE CASCADE)");
    Database db = Open();
    Recordset rs = db.OpenTable("Child");
    for (const int id : {1, 99}) {
        rs.AddNew();
        rs[0] = id;
        rs.Update();
    }
    db.OpenTable("Every").Delete();
    EXPECT_EQ(rs.RecordCount(), 2);
}

TEST_F(ForeignFiles, AMisspeltFieldIsNotTakenForAText) {
    CreateWithDays({10});
    Database db = Open();
    EXPECT_EQ(ErrorOf([&] { db.OpenSql("SELECT * FROM [Every] WHERE \"Dat\" = 'Dat'"); }),
              ErrorNumber::NotADatabase);
}

TEST_F(ForeignFiles, ARuleThatWouldLoadAnExtensionDoesNot) {
    CreateWithDays({10});
    Plain().Ask("CREATE TABLE Trap (a TEXT CHECK (load_extension(a) IS NULL))");
    Database db = Open();
    Recordset rs = db.OpenTable("Trap");
    rs.AddNew();
    EXPECT_EQ(ErrorOf([&] { rs.Update(); }), ErrorNumber::NotADatabase);
}

}  // namespace
}  // namespace sorvane::Dao

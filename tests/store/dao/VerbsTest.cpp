#include "DaoWorld.h"

namespace sorvane::Dao {
namespace {

class Verbs : public DaoWorld {};

TEST_F(Verbs, AFieldIsATextOnlyToTheLetter) {
    Database db = CreateEvery();
    Recordset rs = db.OpenTable("Every");
    for (int id = 1; id <= 5; ++id) Add(rs, id, 40000);
    Plain().Ask(
        "UPDATE Every SET Lottoflag = CASE ID1 WHEN 1 THEN 'BC49' WHEN 2 THEN 'BC49 ' WHEN 3 THEN '' "
        "WHEN 4 THEN x'42433439' END");
    // As it was fetched, and in the middle of a walk.
    for (const bool walks : {false, true}) {
        std::vector<bool> is, empty;
        rs.MoveFirst();
        for (int id = 1; id <= 5; ++id, rs.MoveNext()) {
            if (!walks) rs.Index("ID1"), rs.Seek(id);
            is.push_back(rs["Lottoflag"].Is("BC49"));
            empty.push_back(rs["Lottoflag"].Is(""));
            EXPECT_FALSE(rs["ID1"].Is(std::to_string(id)));
        }
        EXPECT_EQ(is, (std::vector<bool>{true, false, false, true, false})) << walks;
        EXPECT_EQ(empty, (std::vector<bool>{false, false, true, false, false})) << walks;
    }
}

TEST_F(Verbs, ARowWrittenByOrdinalIsReadBackByNameAndOrdinal) {
    Database db = CreateEvery();
    Recordset rs = db.OpenTable("Every");
    EXPECT_EQ(rs.FieldCount(), 6);
    rs.AddNew();
    rs[0] = 1;
    rs[1] = "Super 7";
    rs[2] = Date::FromYmd(2026, 11, 21);
    rs[3] = " 5.00";
    rs[4] = "07";
    rs[5] = true;
    rs.Update();
    rs.MoveFirst();
    EXPECT_EQ(rs["ID1"].ToInt(), 1);
    EXPECT_EQ(rs["Lottoflag"].ToText(), "Super 7");
    EXPECT_EQ(rs[2].ToDate(), Date::FromYmd(2026, 11, 21));
    EXPECT_EQ(rs["Amount"].ToCurrency(), Currency::FromText("5"));
    EXPECT_EQ(rs["# of Balls"].ToInteger(), 7);
    EXPECT_TRUE(rs["Regular"].ToBool());
}

TEST_F(Verbs, NamesOfTablesIndexesAndFieldsAreFoundInAnyCase) {
    CreateWithDays({10});
    Database db = Open();
    Recordset rs = db.OpenTable("EVERY");
    rs.Index("date");
    rs.Seek(10);
    EXPECT_EQ(rs["# OF balls"].ToInt(), 0);
    EXPECT_TRUE(db.HasTable("every"));
}

TEST_F(Verbs, ATableRunsInInsertionOrderUntilAnIndexIsSet) {
    CreateWithDays({30, 10, 20, 10, 30});
    Database db = Open();
    Recordset rs = db.OpenTable("Every");
    EXPECT_EQ(Ids(rs), (Numbers{1, 2, 3, 4, 5}));
    rs.Index("Date");
    rs.MoveFirst();
    EXPECT_EQ(Ids(rs), (Numbers{2, 4, 3, 1, 5}));
    rs.MoveLast();
    EXPECT_EQ(rs[0].ToInt(), 5);
    rs.Index("ID1");
    rs.MoveFirst();
    EXPECT_EQ(Ids(rs), (Numbers{1, 2, 3, 4, 5}));
}

TEST_F(Verbs, RowsWithoutADateComeFirstInTheDateIndex) {
    CreateWithDays({30, 10});
    Database db = Open();
    Recordset rs = db.OpenTable("Every");
    for (const int id : {3, 4}) {
        rs.AddNew();
        rs[0] = id;
        rs.Update();
    }
    rs.Index("Date");
    rs.MoveFirst();
    EXPECT_TRUE(rs[2].IsNull());
    EXPECT_EQ(Ids(rs), (Numbers{3, 4, 2, 1}));
    rs.Seek({});
    EXPECT_EQ(Ids(rs), (Numbers{3, 4, 2, 1}));
}

TEST_F(Verbs, SeekFindsTheFirstRowOfTheKeyInIndexOrder) {
    CreateWithDays({30, 10, 20, 10, 30});
    Database db = Open();
    Recordset rs = db.OpenTable("Every");
    rs.Index("Date");
    rs.Seek(Date::FromDays(30));
    EXPECT_FALSE(rs.NoMatch());
    EXPECT_EQ(Ids(rs), (Numbers{1, 5}));
    rs.Seek(Date::FromDays(10));
    EXPECT_EQ(Ids(rs), (Numbers{2, 4, 3, 1, 5}));
    rs.Index("ID1");
    rs.Seek("3");
    EXPECT_EQ(rs[0].ToInt(), 3);
}

TEST_F(Verbs, SeekWithoutAMatchLeavesNoCurrentRowAndMoveLastMends) {
    CreateWithDays({10, 30});
    Database db = Open();
    Recordset rs = db.OpenTable("Every");
    rs.Index("Date");
    rs.Seek(Date::FromDays(20));
    EXPECT_TRUE(rs.NoMatch());
    EXPECT_FALSE(rs.AtEOF());
    EXPECT_EQ(ErrorOf([&] { rs[0].ToInt(); }), ErrorNumber::NoCurrentRecord);
    EXPECT_EQ(ErrorOf([&] { rs.MoveNext(); }), ErrorNumber::NoCurrentRecord);
    rs.MoveLast();
    EXPECT_EQ(rs[0].ToInt(), 2);
    rs.Seek(Date::FromDays(10));
    EXPECT_FALSE(rs.NoMatch());
}

TEST_F(Verbs, SeekComparesDatesByWholeDay) {
    CreateWithDays({10.75, 10.25, 11});
    Database db = Open();
    Recordset rs = db.OpenTable("Every");
    rs.Index("Date");
    rs.Seek(Date::FromDays(10.9));
    EXPECT_EQ(Ids(rs), (Numbers{2, 1, 3}));
    rs.Seek(Date::FromDays(9.99));
    EXPECT_TRUE(rs.NoMatch());
}

TEST_F(Verbs, SeekOnAnEmptyTableFindsNothing) {
    Database db = CreateEvery();
    Recordset rs = db.OpenTable("Every");
    rs.Index("Date");
    rs.Seek(10);
    EXPECT_TRUE(rs.NoMatch());
}

TEST_F(Verbs, AnEmptyTableIsAtBothEndsAndHasNoRowToMoveTo) {
    Database db = CreateEvery();
    Recordset rs = db.OpenTable("Every");
    EXPECT_EQ(rs.RecordCount(), 0);
    EXPECT_TRUE(rs.BOF());
    EXPECT_TRUE(rs.AtEOF());
    EXPECT_EQ(ErrorOf([&] { rs.MoveFirst(); }), ErrorNumber::NoCurrentRecord);
    EXPECT_EQ(ErrorOf([&] { rs.MoveLast(); }), ErrorNumber::NoCurrentRecord);
    EXPECT_EQ(ErrorOf([&] { rs.MoveNext(); }), ErrorNumber::NoCurrentRecord);
    EXPECT_EQ(ErrorOf([&] { rs.Edit(); }), ErrorNumber::NoCurrentRecord);
    EXPECT_EQ(ErrorOf([&] { rs.Delete(); }), ErrorNumber::NoCurrentRecord);
    EXPECT_EQ(ErrorOf([&] { rs[0].ToInt(); }), ErrorNumber::NoCurrentRecord);
}

TEST_F(Verbs, MoveNextFromTheLastRowComesToTheEndAndNoFurther) {
    CreateWithDays({10});
    Database db = Open();
    Recordset rs = db.OpenTable("Every");
    EXPECT_FALSE(rs.BOF());
    EXPECT_FALSE(rs.AtEOF());
    rs.MoveNext();
    EXPECT_TRUE(rs.AtEOF());
    EXPECT_FALSE(rs.BOF());
    EXPECT_EQ(ErrorOf([&] { rs.MoveNext(); }), ErrorNumber::NoCurrentRecord);
    EXPECT_EQ(ErrorOf([&] { rs[0].ToInt(); }), ErrorNumber::NoCurrentRecord);
}

TEST_F(Verbs, ThePositionStaysOnADeletedRowUntilAMove) {
    CreateWithDays({10, 20, 30});
    Database db = Open();
    Recordset rs = db.OpenTable("Every");
    rs.Index("Date");
    rs.Seek(20);
    rs.Delete();
    EXPECT_FALSE(rs.AtEOF());
    EXPECT_EQ(ErrorOf([&] { rs[0].ToInt(); }), ErrorNumber::RecordDeleted);
    EXPECT_EQ(ErrorOf([&] { rs.Edit(); }), ErrorNumber::RecordDeleted);
    EXPECT_EQ(ErrorOf([&] { rs.Delete(); }), ErrorNumber::RecordDeleted);
    rs.MoveNext();
    EXPECT_EQ(rs[0].ToInt(), 3);
    rs.Delete();
    EXPECT_FALSE(rs.AtEOF());
    rs.MoveNext();
    EXPECT_TRUE(rs.AtEOF());
    EXPECT_EQ(rs.RecordCount(), 1);
}

TEST_F(Verbs, ADeleteWalkEmptiesATable) {
    CreateWithDays({10, 20, 30});
    Database db = Open();
    Recordset rs = db.OpenTable("Every");
    for (rs.MoveFirst(); !rs.AtEOF(); rs.MoveNext()) rs.Delete();
    EXPECT_EQ(rs.RecordCount(), 0);
    EXPECT_EQ(Plain().One("SELECT count(*) FROM Every"), "0");
}

TEST_F(Verbs, ARowAddedAfterTheLastWasDeletedIsTheNextOne) {
    CreateWithDays({10, 10});
    Database db = Open();
    for (const bool indexed : {false, true}) {
        Recordset rs = db.OpenTable("Every");
        if (indexed) rs.Index("Date");
        rs.MoveLast();
        rs.Delete();
        Add(rs, 7, 10);
        rs.MoveNext();
        EXPECT_EQ(rs[0].ToInt(), 7);
    }
}

TEST_F(Verbs, ARowThatAnotherDeletedCanBeReadButNotWritten) {
    CreateWithDays({10, 20, 30});
    Database db = Open();
    Recordset rs = db.OpenTable("Every");
    rs.MoveFirst();
    Plain().Ask("DELETE FROM Every WHERE ID1 = 1");
    EXPECT_EQ(rs[0].ToInt(), 1);
    EXPECT_EQ(ErrorOf([&] { rs.Edit(); }), ErrorNumber::RecordDeleted);
    rs.MoveNext();
    EXPECT_EQ(rs[0].ToInt(), 2);
    rs.Edit();
    rs[4] = 9;
    Plain().Ask("DELETE FROM Every WHERE ID1 = 2");
    EXPECT_EQ(ErrorOf([&] { rs.Update(); }), ErrorNumber::RecordDeleted);
    rs.MoveFirst();
    Plain().Ask("DELETE FROM Every WHERE ID1 = 3");
    EXPECT_EQ(ErrorOf([&] { rs.Delete(); }), ErrorNumber::RecordDeleted);
}

TEST_F(Verbs, AnyVerbButMoveNextAndAFieldReadLetsOthersWrite) {
    CreateWithDays({10, 20, 30});
    Database db = Open();
    Recordset rs = db.OpenTable("Every");
    rs.Index("Date");
    const std::function<void()> verbs[] = {
        [&] { rs.MoveFirst(); }, [&] { rs.MoveLast(); }, [&] { rs.Seek(20); },
        [&] { rs.AddNew(); },    [&] { rs.Edit(); },     [&] { rs.Index("Date"); },
    };
    for (const auto& verb : verbs) {
        rs.MoveFirst();
        rs.MoveNext();
        verb();
        Plain().Ask("UPDATE Every SET Lottoflag = 'x'");
    }
    rs.Seek(20);
    rs.MoveNext();
    rs.MoveNext();
    EXPECT_TRUE(rs.AtEOF());
    Plain().Ask("UPDATE Every SET Lottoflag = 'y'");
}

TEST_F(Verbs, EditChangesTheFieldsWrittenAndNoOthers) {
    CreateWithDays({10});
    Database db = Open();
    Recordset rs = db.OpenTable("Every");
    rs.Edit();
    Plain().Ask("UPDATE Every SET Lottoflag = 'BC49'");
    rs["Amount"] = "2.50";
    EXPECT_EQ(rs["Amount"].ToCurrency(), Currency::FromText("2.5"));
    rs.Update();
    EXPECT_EQ(Plain().Ask("SELECT * FROM Every"), (Cells{"1", "BC49", "10", "2.5", "0", "0"}));
}

TEST_F(Verbs, EditShowsWhatAnotherWroteSince) {
    CreateWithDays({10});
    Database db = Open();
    Recordset rs = db.OpenTable("Every");
    rs.MoveFirst();
    Plain().Ask("UPDATE Every SET Lottoflag = 'BC49'");
    rs.Edit();
    EXPECT_EQ(rs[1].ToText(), "BC49");
}

TEST_F(Verbs, ARowWhoseKeyIsEditedTakesThePositionWithIt) {
    CreateWithDays({10, 20, 30});
    Database db = Open();
    Recordset rs = db.OpenTable("Every");
    rs.Index("Date");
    rs.MoveFirst();
    rs.Edit();
    rs["Date"] = 25;
    rs.Update();
    EXPECT_EQ(rs[2].ToDate(), Date::FromDays(25));
    rs.MoveNext();
    EXPECT_EQ(rs[0].ToInt(), 3);
}

TEST_F(Verbs, UpdateWithNothingWrittenAfterEditChangesNothing) {
    CreateWithDays({10});
    Database db = Open();
    Recordset rs = db.OpenTable("Every");
    rs.Edit();
    rs.Update();
    EXPECT_EQ(rs[0].ToInt(), 1);
}

TEST_F(Verbs, AddNewLeavesThePosition) {
    CreateWithDays({10, 20});
    Database db = Open();
    Recordset rs = db.OpenTable("Every");
    rs.MoveFirst();
    Add(rs, 3, 15);
    EXPECT_EQ(rs[0].ToInt(), 1);
    rs.MoveNext();
    EXPECT_EQ(Ids(rs), (Numbers{2, 3}));
}

TEST_F(Verbs, AMoveDropsTheRowInHand) {
    CreateWithDays({10});
    Database db = Open();
    Recordset rs = db.OpenTable("Every");
    rs.AddNew();
    rs[0] = 2;
    rs.MoveFirst();
    EXPECT_EQ(ErrorOf([&] { rs.Update(); }), ErrorNumber::UpdateWithoutEdit);
    EXPECT_EQ(rs.RecordCount(), 1);
}

TEST_F(Verbs, EveryVerbThatMovesDropsTheRowInHand) {
    CreateWithDays({10, 20, 30});
    for (const bool oneCommit : {false, true}) {
        Database db = Open();
        if (oneCommit) db.OneCommit();
        Recordset rs = db.OpenTable("Every");
        const std::function<void()> verbs[] = {[&] { rs.MoveLast(); },
                                               [&] { rs.MoveLast(); },  // to the row added meanwhile
                                               [&] { rs.MoveFirst(); },
                                               [&] { rs.MoveNext(); },
                                               [&] { rs.Delete(); },
                                               [&] { rs.Index("Date"); },
                                               [&] { EXPECT_NE(ErrorOf([&] { rs.Edit(); }), 0); },
                                               [&] { rs.Seek(20); },
                                               [&] { rs.Seek(99); }};
        int id = oneCommit ? 20 : 10;
        for (const auto& verb : verbs) {
            if (++id % 10 == 2) Add(rs, id, 40);
            rs.AddNew();
            rs[0] = 77;
            verb();
            EXPECT_EQ(ErrorOf([&] { rs.Update(); }), ErrorNumber::UpdateWithoutEdit) << id;
            EXPECT_EQ(ErrorOf([&] { rs[0] = 77; }), ErrorNumber::UpdateWithoutEdit) << id;
        }
        EXPECT_EQ(rs.RecordCount(), 3);
    }
    EXPECT_EQ(Plain().One("SELECT count(*) FROM Every WHERE ID1 = 77"), "0");
}

TEST_F(Verbs, NumbersAndTextsOfARowInAWalkAreAsThoseOfAnyOther) {
    CreateWithDays({10, 20});
    Plain().Ask("UPDATE Every SET ID1 = 5000000000 + ID1, \"# of Balls\" = 2.6, Regular = 1, Amount = 7");
    Database db = Open();
    Recordset rs = db.OpenTable("Every");
    for (int row = 0; row < 2; ++row) {
        EXPECT_EQ(ErrorOf([&] { rs["ID1"].ToInt(); }), ErrorNumber::Overflow) << row;
        EXPECT_EQ(rs["# of Balls"].ToInt(), 3) << row;
        EXPECT_EQ(rs["Regular"].ToInt(), -1) << row;
        EXPECT_EQ(rs["Amount"].ToInt(), 7) << row;
        EXPECT_FALSE(rs["Amount"].Is("7")) << row;
        rs.MoveNext();
    }
}

TEST_F(Verbs, AnEditThatFindsNoRowDropsTheRowInHand) {
    Database db = CreateEvery();
    Recordset rs = db.OpenTable("Every");
    rs.AddNew();
    rs[0] = 1;
    EXPECT_EQ(ErrorOf([&] { rs.Edit(); }), ErrorNumber::NoCurrentRecord);
    EXPECT_EQ(ErrorOf([&] { rs.Update(); }), ErrorNumber::UpdateWithoutEdit);
    EXPECT_EQ(rs.RecordCount(), 0);
}

TEST_F(Verbs, ARowWithoutAKeyCanBeChangedInItsOtherFields) {
    CreateWithDays({10});
    Plain().Ask("UPDATE Every SET ID1 = NULL; CREATE UNIQUE INDEX Theirs ON Every (Lottoflag)");
    Database db = Open();
    Recordset rs = db.OpenTable("Every");
    rs.Edit();
    rs[4] = 5;
    rs.Update();
    // Only what the program calls so is the primary key.
    Add(rs, 2, 20);
    Add(rs, 3, 20);
    EXPECT_EQ(Plain().Ask("SELECT ID1, \"# of Balls\" FROM Every"), (Cells{"NULL", "5", "2", "0", "3", "0"}));
}

TEST_F(Verbs, NothingHoldsTheFileOnceTheDatabaseIsClosed) {
    CreateWithDays({10, 20, 30, 40});
    const auto handles = [&] {
        int count = 0;
        for (const auto& entry : std::filesystem::directory_iterator("/proc/self/fd")) {
            std::error_code none;
            if (std::filesystem::read_symlink(entry, none) == std::filesystem::canonical(path_)) ++count;
        }
        return count;
    };
    for (int kind = 0; kind < 4; ++kind) {
        Database db = Open();
        Recordset rs = db.OpenTable("Every");
        if (kind == 0) Add(rs, 9, 10);
        if (kind == 1) rs.RecordCount();
        if (kind == 2) rs.Delete();
        if (kind == 3) rs.MoveNext();
        EXPECT_EQ(handles(), 1) << kind;
        db.Close();
        EXPECT_EQ(handles(), 0) << kind;
        EXPECT_EQ(ErrorOf([&] { rs.MoveFirst(); }), ErrorNumber::ObjectClosed);
    }
}

TEST_F(Verbs, CountingTheRowsHoldsNobodyUp) {
    CreateWithDays({10});
    PlainTool other(path_, 0);
    Database db = Open();
    Recordset rs = db.OpenTable("Every");
    EXPECT_EQ(rs.RecordCount(), 1);
    EXPECT_EQ(other.Result("BEGIN EXCLUSIVE; INSERT INTO Every (ID1) VALUES (2); COMMIT"), SQLITE_OK);
    EXPECT_EQ(rs.RecordCount(), 2);
    EXPECT_EQ(other.Result("BEGIN EXCLUSIVE; DELETE FROM Every; COMMIT"), SQLITE_OK);
    EXPECT_EQ(rs.RecordCount(), 0);
}

TEST_F(Verbs, SqlRowsHaveTheTypesOfTheirFieldsAndWhatIsReckonedItsOwn) {
    CreateWithDays({46347});
    Plain().Ask("UPDATE Every SET Amount = 2.5, Regular = 7, Lottoflag = 'BC49'");
    Database db = Open();
    Recordset all = db.OpenSql("SELECT [Date], [Amount], [Regular], [ID1] + 1, count(*) FROM [Every]");
    EXPECT_EQ(all[0].ToText(), "2026-11-21");
    EXPECT_EQ(all[1].ToText(), "2.5");
    EXPECT_EQ(all[2].ToText(), "True");
    EXPECT_EQ(all[3].ToText(), "2");
    EXPECT_EQ(all[4].ToText(), "1");
    for (const char* name : {"\"Every\"", "`Every`", "[every]", "EVERY"})
        EXPECT_EQ(db.OpenSql("SELECT 'from x', [ID1] FROM " + std::string(name))[1].ToInt(), 1) << name;
    EXPECT_EQ(ErrorOf([&] { db.OpenSql("SELECT * FROM [Win] WHERE [ID1] IN (SELECT [ID1] FROM [Every])"); }),
              ErrorNumber::SqlTableNotFound);
    EXPECT_EQ(db.OpenSql("SELECT * FROM [Every] WHERE [ID1] NOT IN (SELECT [a] FROM (SELECT 5 AS [a]))")
                  .RecordCount(),
              1);
}

TEST_F(Verbs, ARowThatWasRefusedCanBeMendedAndWritten) {
    CreateWithDays({10});
    Database db = Open();
    Recordset rs = db.OpenTable("Every");
    rs.AddNew();
    rs[0] = 1;
    EXPECT_EQ(ErrorOf([&] { rs.Update(); }), ErrorNumber::KeyTaken);
    EXPECT_EQ(rs.RecordCount(), 1);
    rs[0] = 2;
    rs.Update();
    EXPECT_EQ(rs.RecordCount(), 2);
}

TEST_F(Verbs, FieldsNeverWrittenAreNullButABooleanIsFalse) {
    Database db = CreateEvery();
    Recordset rs = db.OpenTable("Every");
    rs.AddNew();
    rs[0] = 1;
    EXPECT_TRUE(rs[1].IsNull());
    EXPECT_FALSE(rs[5].ToBool());
    rs.Update();
    for (const int ordinal : {1, 2, 3, 4}) {
        EXPECT_TRUE(rs[ordinal].IsNull());
        EXPECT_EQ(ErrorOf([&] { rs[ordinal].ToInt(); }), ErrorNumber::InvalidUseOfNull);
        EXPECT_EQ(ErrorOf([&] { rs[ordinal].ToText(); }), ErrorNumber::InvalidUseOfNull);
    }
    EXPECT_EQ(Plain().Ask("SELECT * FROM Every"), (Cells{"1", "NULL", "NULL", "NULL", "NULL", "0"}));
}

TEST_F(Verbs, SqlRowsComeInTheirOrderAndEqualOnesAsTheyWereInserted) {
    Database db = CreateEvery();
    Recordset rs = db.OpenTable("Every");
    for (int i = 0; i < 4; ++i) Add(rs, i + 1, 10, i % 2);
    Recordset down = db.OpenSql("SELECT * FROM [Every] ORDER BY [# of Balls] DESC");
    EXPECT_EQ(down.RecordCount(), 4);
    EXPECT_EQ(Ids(down), (Numbers{2, 4, 1, 3}));
    EXPECT_EQ(ErrorOf([&] { down.MoveNext(); }), ErrorNumber::NoCurrentRecord);
    down.MoveFirst();
    EXPECT_EQ(down["ID1"].ToInt(), 2);
    down.MoveLast();
    EXPECT_EQ(down[0].ToInt(), 3);
    Recordset up = db.OpenSql("select * from every order by [# of Balls]");
    EXPECT_EQ(Ids(up), (Numbers{1, 3, 2, 4}));
}

TEST_F(Verbs, SqlNamesItsTableByAnyLetterDigitOrUnderscoreWithoutBrackets) {
    Create().Close();
    for (const std::string name : {"azAZ09_", "_z90ZAa", "9Zz"}) {
        Plain().Ask("CREATE TABLE [" + name + "] (ID1 INTEGER)");
        Plain().Ask("INSERT INTO [" + name + "] VALUES (7)");
    }
    Database db = Open();
    for (const std::string name : {"azAZ09_", "_z90ZAa"})
        EXPECT_EQ(db.OpenSql("SELECT * FROM " + name)[0].ToInt(), 7) << name;
    EXPECT_EQ(db.OpenSql("SELECT * FROM [9Zz]")[0].ToInt(), 7);
}

TEST_F(Verbs, SqlKnowsItsWordsFromNamesAndTextsThatOnlyLookLikeThem) {
    CreateWithDays({20, 10, 20});
    Database db = Open();
    const auto rows = [&](const char* sql) {
        Recordset rs = db.OpenSql(sql);
        return rs.RecordCount();
    };
    EXPECT_EQ(rows("SELECT [ID1] AS f, [Date] AS fro, [ID1] AS fromm FROM [Every]"), 3);
    EXPECT_EQ(rows("SELECT [ID1] AS [from], [Date] AS \"from\" FROM [Every]"), 3);
    EXPECT_EQ(rows("SELECT 'from x' AS a, [ID1] AS `b` FROM [Every]"), 3);
    EXPECT_EQ(rows("SELECT [ID1] AS [order] FROM [Every] WHERE 'ORDER BY' <> 'by'"), 3);
    EXPECT_EQ(rows("SELECT count(*) FROM [Every] GROUP BY [Date]"), 2);
}

TEST_F(Verbs, AnIndexDoesNotTurnEqualSqlRowsAround) {
    CreateWithDays({10, 20, 10, 20, 10});
    Database db = Open();
    Recordset down = db.OpenSql("SELECT * FROM [Every] ORDER BY [Date] DESC");
    EXPECT_EQ(Ids(down), (Numbers{2, 4, 1, 3, 5}));
    Recordset unordered = db.OpenSql("SELECT [ID1] FROM [Every] WHERE [Date] >= ?", {10});
    EXPECT_EQ(Ids(unordered), (Numbers{1, 2, 3, 4, 5}));
}

TEST_F(Verbs, SqlTakesItsValuesInTurnAndComparesTextByCase) {
    Database db = CreateEvery();
    Recordset rs = db.OpenTable("Every");
    const char* keys[] = {"BC49", "bc49", "BC49", "x' OR '1'='1"};
    for (int i = 0; i < 4; ++i) {
        rs.AddNew();
        rs[0] = i + 1;
        rs[1] = keys[i];
        rs[2] = 50 - i;
        rs[3] = "0.5";
        rs.Update();
    }
    Recordset some = db.OpenSql("SELECT * FROM [Every] WHERE [Lottoflag] = ? ORDER BY [Date]", {"BC49"});
    EXPECT_EQ(some[3].ToCurrency(), Currency::FromText("0.5"));
    EXPECT_EQ(some[2].ToDate(), Date::FromDays(48));
    EXPECT_FALSE(some[5].ToBool());
    EXPECT_EQ(Ids(some), (Numbers{3, 1}));
    Recordset two = db.OpenSql("SELECT * FROM [Every] WHERE [Lottoflag] = ? AND [ID1] > ?", {"BC49", 1});
    EXPECT_EQ(Ids(two), (Numbers{3}));
    Recordset half = db.OpenSql("SELECT * FROM [Every] WHERE [Amount] = ? AND [Date] = ?", {0.5, 48.0});
    EXPECT_EQ(Ids(half), (Numbers{3}));
    Recordset literal = db.OpenSql("SELECT * FROM [Every] WHERE [Lottoflag] = 'BC49 FROM x'");
    EXPECT_TRUE(literal.AtEOF());
    EXPECT_TRUE(literal.BOF());
    EXPECT_EQ(ErrorOf([&] { literal.MoveFirst(); }), ErrorNumber::NoCurrentRecord);
    EXPECT_EQ(ErrorOf([&] { literal.MoveLast(); }), ErrorNumber::NoCurrentRecord);
}

TEST_F(Verbs, SqlRowsStayAsTheyWereWhileTheTableChanges) {
    CreateWithDays({10, 20});
    Database db = Open();
    Recordset sql = db.OpenSql("SELECT * FROM [Every]");
    Plain().Ask("DELETE FROM Every");
    EXPECT_EQ(Ids(sql), (Numbers{1, 2}));
}

TEST_F(Verbs, SqlRowsCannotBeWrittenOrSought) {
    CreateWithDays({10});
    Database db = Open();
    Recordset sql = db.OpenSql("SELECT * FROM [Every]");
    EXPECT_EQ(ErrorOf([&] { sql.AddNew(); }), ErrorNumber::UpdateWithoutEdit);
    EXPECT_EQ(ErrorOf([&] { sql.Edit(); }), ErrorNumber::UpdateWithoutEdit);
    EXPECT_EQ(ErrorOf([&] { sql.Update(); }), ErrorNumber::UpdateWithoutEdit);
    EXPECT_EQ(ErrorOf([&] { sql.Delete(); }), ErrorNumber::UpdateWithoutEdit);
    EXPECT_EQ(ErrorOf([&] { sql[0] = 1; }), ErrorNumber::UpdateWithoutEdit);
    EXPECT_EQ(ErrorOf([&] { sql.Index("Date"); }), ErrorNumber::IndexNotFound);
    EXPECT_EQ(ErrorOf([&] { sql.Seek(1); }), ErrorNumber::NoIndexSet);
    EXPECT_FALSE(sql.NoMatch());
}

TEST_F(Verbs, SqlThatIsNoSelectChangesNothing) {
    CreateWithDays({10});
    Database db = Open();
    for (const char* sql : {"DELETE FROM [Every]", "DROP TABLE [Every]", "", "SELECT", "SELECT 'x"})
        EXPECT_NE(ErrorOf([&] { db.OpenSql(sql); }), 0) << sql;
    EXPECT_EQ(Plain().One("SELECT count(*) FROM Every"), "1");
}

TEST_F(Verbs, RecordCountIsExactWhileOthersWrite) {
    CreateWithDays({10, 20});
    Database db = Open();
    Recordset rs = db.OpenTable("Every");
    Recordset other = db.OpenTable("Every");
    EXPECT_EQ(rs.RecordCount(), 2);
    Plain().Ask("INSERT INTO Every (ID1) VALUES (3), (4)");
    EXPECT_EQ(rs.RecordCount(), 4);
    Add(rs, 5, 10);
    Plain().Ask("DELETE FROM Every WHERE ID1 = 1");
    EXPECT_EQ(rs.RecordCount(), 4);
    Add(other, 6, 10);
    EXPECT_EQ(rs.RecordCount(), 5);
    rs.MoveLast();
    rs.Delete();
    EXPECT_EQ(rs.RecordCount(), 4);
    EXPECT_EQ(other.RecordCount(), 4);
}

TEST_F(Verbs, RecordCountWithinAWalkLeavesTheWalkAlone) {
    CreateWithDays({10, 20, 30});
    Database db = Open();
    Recordset rs = db.OpenTable("Every");
    rs.MoveNext();
    EXPECT_EQ(rs.RecordCount(), 3);
    EXPECT_EQ(Ids(rs), (Numbers{2, 3}));
}

TEST_F(Verbs, ASecondConnectionReadsARowAsSoonAsUpdateReturns) {
    Database db = CreateEvery();
    Recordset rs = db.OpenTable("Every");
    Add(rs, 1, 10);
    EXPECT_EQ(Plain().One("SELECT count(*) FROM Every"), "1");
}

TEST_F(Verbs, OneCommitHoldsTheRowsBackUntilTheDatabaseCloses) {
    CreateWithDays({});
    Database db = Open();
    db.OneCommit();
    Recordset rs = db.OpenTable("Every");
    Add(rs, 1, 10);
    Add(rs, 2, 10);
    rs.MoveFirst();
    rs.Delete();
    EXPECT_EQ(rs.RecordCount(), 1);
    EXPECT_EQ(Plain().One("SELECT count(*) FROM Every"), "0");
    db.Close();
    EXPECT_EQ(Plain().One("SELECT ID1 FROM Every"), "2");
}

TEST_F(Verbs, TheLastRowIsTheOneWithTheLargestNumberThoughARowWasAdded) {
    CreateWithDays({10});
    Plain().Ask("UPDATE Every SET rowid = 9223372036854775807");
    Database db = Open();
    db.OneCommit();
    Recordset rs = db.OpenTable("Every");
    for (int id = 2; id <= 4; ++id) {
        rs.MoveLast();
        Add(rs, id, 10);  // gets any free number
        rs.MoveLast();
        EXPECT_EQ(rs["ID1"].ToInt(), 1);
    }
}

TEST_F(Verbs, AnIndexChosenBehindNewRowsDecidesWhichIsTheLast) {
    CreateWithDays({30});
    Database db = Open();
    db.OneCommit();
    Recordset rs = db.OpenTable("Every");
    rs.MoveLast();
    Add(rs, 2, 20);
    rs.Index("Date");
    rs.MoveLast();
    EXPECT_EQ(rs["ID1"].ToInt(), 1);
}

TEST_F(Verbs, NobodyElseWritesFromOneCommitToTheClose) {
    CreateWithDays({10});
    PlainTool other(path_, 0);
    const auto isFree = [&] { return other.Result("BEGIN IMMEDIATE; ROLLBACK") == SQLITE_OK; };
    Database db = Open();
    Recordset rs = db.OpenTable("Every");
    EXPECT_TRUE(isFree());
    db.OneCommit();
    EXPECT_FALSE(isFree());
    EXPECT_EQ(rs.RecordCount(), 1);
    EXPECT_EQ(other.One("SELECT count(*) FROM Every"), "1") << "reading goes on";
    db.Close();
    EXPECT_TRUE(isFree());
}

TEST_F(Verbs, ReadingTakesNoLockThatKeepsOthersFromWriting) {
    CreateWithDays({10, 20});
    PlainTool other(path_, 0);
    Database db = Open();
    Recordset rs = db.OpenTable("Every");
    rs.Index("Date");
    rs.Seek(20);
    rs.MoveLast();
    EXPECT_EQ(other.Result("INSERT INTO Every (ID1) VALUES (3)"), SQLITE_OK);
    EXPECT_EQ(rs.RecordCount(), 3);
}

TEST_F(Verbs, OneCommitIsKeptByTheDestructorToo) {
    CreateWithDays({});
    {
        Database db = Open();
        db.OneCommit();
        Recordset rs = db.OpenTable("Every");
        Add(rs, 1, 10);
    }
    EXPECT_EQ(Plain().One("SELECT count(*) FROM Every"), "1");
}

TEST_F(Verbs, SettingABooleanOrTextToNullLeavesFalseAndNull) {
    CreateWithDays({10});
    Database db = Open();
    Recordset rs = db.OpenTable("Every");
    rs.Edit();
    rs[1] = Value();
    rs[5] = Value();
    rs.Update();
    EXPECT_EQ(Plain().Ask("SELECT Lottoflag, Regular FROM Every"), (Cells{"NULL", "0"}));
}

}  // namespace
}  // namespace sorvane::Dao

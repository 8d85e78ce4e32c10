#include "DaoWorld.h"

namespace sorvane::Dao {
namespace {

using Verbs = DaoWorld;

TEST_F(Verbs, ARowWrittenByOrdinalIsReadBackByNameAndOrdinal) {
    Database db = CreateEvery();
    Recordset rs = db.OpenTable("Every");
    EXPECT_EQ(rs.RecordCount(), 0);
    rs.AddNew();
    rs[0] = 1;
    rs[1] = "Super 7";
    rs[2] = Date::FromYmd(2026, 11, 21);
    rs[3] = " 5.00";
    rs[4] = "07";
    rs[5] = true;
    rs.Update();
    EXPECT_EQ(rs.RecordCount(), 1);
    rs.MoveFirst();
    EXPECT_EQ(rs["ID1"].ToInt(), 1);
    EXPECT_EQ(rs["Lottoflag"].ToText(), "Super 7");
    EXPECT_EQ(rs[2].ToDate(), Date::FromYmd(2026, 11, 21));
    EXPECT_EQ(rs["Amount"].ToCurrency(), Currency::FromText("5"));
    EXPECT_EQ(rs["# of Balls"].ToInteger(), 7);
    EXPECT_TRUE(rs["regular"].ToBool());
}

TEST_F(Verbs, SeekFindsTheFirstRowOfADateAndTheWalkGoesOnInIndexOrder) {
    Database db = CreateEvery();
    Recordset rs = db.OpenTable("Every");
    const double days[] = {30, 10, 20, 10, 30};
    for (int i = 0; i < 5; ++i) Add(rs, i + 1, days[i]);
    rs.Index("Date");
    rs.Seek(Date::FromDays(10));
    ASSERT_FALSE(rs.NoMatch());
    std::vector<int> ids;
    while (!rs.AtEOF()) {
        ids.push_back(rs[0].ToInt());
        rs.MoveNext();
    }
    EXPECT_EQ(ids, (std::vector<int>{2, 4, 3, 1, 5}));
    rs.Seek(Date::FromDays(15));
    EXPECT_TRUE(rs.NoMatch());
    rs.MoveLast();
    EXPECT_EQ(rs[0].ToInt(), 5);
}

TEST_F(Verbs, SqlGivesRowsInItsOrderAndEqualOnesAsTheyCame) {
    Database db = CreateEvery();
    Recordset rs = db.OpenTable("Every");
    for (int i = 0; i < 4; ++i) Add(rs, i + 1, 10, i % 2);
    Recordset sorted = db.OpenSql("SELECT * FROM [Every] ORDER BY [# of Balls] DESC");
    std::vector<int> ids;
    for (sorted.MoveFirst(); !sorted.AtEOF(); sorted.MoveNext()) ids.push_back(sorted[0].ToInt());
    EXPECT_EQ(ids, (std::vector<int>{2, 4, 1, 3}));
}

}  // namespace
}  // namespace sorvane::Dao

#include "checking/CheckWorld.h"

namespace sorvane::testing {

struct DrawEntry : StoreTest {
    DrawEntry() { Make(CreatePlayed6Table, "PlayedBC49"); }
    void Find(const std::string& table = "PlayedBC49") {
        FindDrawEntry(session, At(table));
        ExpectAllClosed();
    }
};

TEST_F(DrawEntry, ARowOfTheDateIsFound) {
    Add("PlayedBC49", {"1, 46095, 1, 2, 3, 4, 5, 6, 0, 0"});
    Find();
    EXPECT_EQ(global.WinningsDrawFound, 1);
}

TEST_F(DrawEntry, NoRowOfTheDateShowsAnErrorBoxWithTheNumberZeroAndNoIcon) {
    Add("PlayedBC49", {"1, 46094, 1, 2, 3, 4, 5, 6, 0, 0"});
    global.WinningsDrawFound = 1;
    dialogs.Expect("ERROR!",
                   "ERROR #0\r\nNo entry for this Draw Date. Please check the Draw Date\r\nand try again.",
                   Answer::Ok, BoxStyle::Ok);
    Find();
    EXPECT_EQ(global.WinningsDrawFound, 0);
}

TEST_F(DrawEntry, AnEmptyTableLeavesTheAnswerAsItWas) {
    for (const int before : {0, 1}) {
        global.WinningsDrawFound = before;
        Find();
        EXPECT_EQ(global.WinningsDrawFound, before);
    }
}

TEST_F(DrawEntry, AnErrorShowsItsBoxAndLeavesTheAnswerAsItWas) {
    for (const int before : {0, 1}) {
        global.WinningsDrawFound = before;
        ExpectNoTable("PlayedDaily3");
        Find("PlayedDaily3");
        dialogs.Verify();
        EXPECT_EQ(global.WinningsDrawFound, before);
    }
    name = folder.File("nowhere.mdb");
    ExpectUnexpected(ErrorNumber::StoreFileNotFound);
    Find();
    EXPECT_EQ(global.WinningsDrawFound, 1);
}

TEST_F(DrawEntry, TheGameOfTheRowIsNotAsked) {
    Make(CreatePlayedPick3Table, "PlayedONTPick3");
    global.LottoFlag = "ONTPick3";
    Add("PlayedONTPick3", {"1, 'Quote3', 46095, 1, 2, 3, 'Box', 0"});
    Find("PlayedONTPick3");
    EXPECT_EQ(global.WinningsDrawFound, 1);
}

}  // namespace sorvane::testing

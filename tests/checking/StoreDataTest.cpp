#include "checking/StoreData.h"

#include <filesystem>

#include "checking/CheckWorld.h"

namespace sorvane::testing {

namespace {

const std::string Recheck =
    "You have already performed a search on this Draw Date.\r\nWould you like to perform a re-check?";
const std::string Correct =
    "You have already entered a Winning Number on this Draw Date.\r\nWould you like to correct this Winning "
    "Number?";

}  // namespace

using Writer = void (*)(Session&, const StoreArgs&, const WinningBoxes&);

struct WinWriters : StoreTest {
    void Store(Writer writer, const std::string& table) {
        boxes.DrawDate = date;
        writer(session, At(table), boxes);
        ExpectAllClosed();
    }
    void Boxes(int first, int count) {
        boxes.Main.clear();
        for (int i = 0; i < count; ++i) boxes.Main.push_back(std::to_string(first + i));
    }
    WinningBoxes boxes;
};

// One of the five writers that are one algorithm.
struct MainWriter {
    const char* name;
    Writer write;
    const Creator* creator;
    int count;
    std::string head;  // the row of game "Game" in front of the numbers, behind its key
};
void PrintTo(const MainWriter& writer, std::ostream* out) { *out << writer.name; }

struct MainWriters : WinWriters, ::testing::WithParamInterface<MainWriter> {
    MainWriters() {
        Make(*GetParam().creator, "Win");
        global.LottoFlag = "Game";
    }
    void Write(int first) {
        Boxes(first, GetParam().count);
        Store(GetParam().write, "Win");
    }
    std::string Row(int key, int first, const std::string& days = "46095") const {
        std::string head = GetParam().head;
        head.replace(head.find("DATE"), 4, days);
        std::string row = std::to_string(key) + "|" + head;
        for (int i = 0; i < GetParam().count; ++i) row += "|" + std::to_string(first + i);
        return row;
    }
    Texts Written() { return All("Win"); }
};

TEST_P(MainWriters, AnEmptyTableGetsTheFirstRowWithoutAQuestion) {
    global.RecheckAccepted = 7;
    global.RecheckRefused = 8;
    Write(1);
    EXPECT_EQ(Written(), Texts{Row(1, 1)});
    EXPECT_EQ(global.RecheckAccepted, 7);
    EXPECT_EQ(global.RecheckRefused, 8);
}

TEST_P(MainWriters, AnotherDateGetsAnotherRow) {
    Write(1);
    date = Date::FromDays(46090);
    Write(3);
    EXPECT_EQ(Written(), (Texts{Row(1, 1), Row(2, 3, "46090")}));
}

TEST_P(MainWriters, TheSameDateAsksAndNoLeavesTheRow) {
    Write(1);
    dialogs.Expect("RECHECK?", Recheck, Answer::No);
    global.RecheckAccepted = True;
    Write(2);
    EXPECT_EQ(Written(), Texts{Row(1, 1)});
    EXPECT_EQ(global.MsgResult, 7);
    EXPECT_EQ(global.RecheckAccepted, 0);
    EXPECT_EQ(global.RecheckRefused, True);
}

TEST_P(MainWriters, YesRewritesTheNumbersAndNotTheKey) {
    Write(1);
    dialogs.Expect("RECHECK?", Recheck, Answer::Yes);
    global.RecheckRefused = True;
    global.LottoFlag = "Another";
    Write(2);
    EXPECT_EQ(Written(), Texts{Row(1, 2)});
    EXPECT_EQ(global.MsgResult, 6);
    EXPECT_EQ(global.RecheckAccepted, True);
    EXPECT_EQ(global.RecheckRefused, 0);
}

TEST_P(MainWriters, WhileOnlyStatsAreUpdatedTheQuestionIsAboutACorrection) {
    Write(1);
    global.StatUpdate = On;
    dialogs.Expect("RECHECK?", Correct, Answer::Yes);
    Write(2);
    EXPECT_EQ(Written(), Texts{Row(1, 2)});
    dialogs.Expect("RECHECK?", Correct, Answer::No);
    Write(3);
    EXPECT_EQ(Written(), Texts{Row(1, 2)});
}

TEST_P(MainWriters, ATextThatIsNoNumberIsRefusedByTheStoreAndNothingIsWritten) {
    Write(1);
    date = Date::FromDays(46096);
    for (const char* text : {"", "x", "40000"}) {
        Boxes(1, GetParam().count);
        boxes.Main.back() = text;
        ExpectUnexpected(ErrorNumber::Conversion);
        Store(GetParam().write, "Win");
        dialogs.Verify();
    }
    EXPECT_EQ(Written(), Texts{Row(1, 1)});
}

TEST_P(MainWriters, ARefusedTextDropsTheEditAfterTheAnswerWasKept) {
    Write(1);
    Boxes(2, GetParam().count);
    boxes.Main.back() = "x";
    dialogs.Expect("RECHECK?", Recheck, Answer::Yes);
    ExpectUnexpected(ErrorNumber::Conversion);
    Store(GetParam().write, "Win");
    EXPECT_EQ(Written(), Texts{Row(1, 1)});
    EXPECT_EQ(global.RecheckAccepted, True);
}

TEST_P(MainWriters, LeadingZerosAndBlanksConvert) {
    Boxes(1, GetParam().count);
    boxes.Main.at(0) = "01";
    boxes.Main.at(1) = " 2";
    Store(GetParam().write, "Win");
    EXPECT_EQ(Written(), Texts{Row(1, 1)});
}

TEST_P(MainWriters, TheKeyIsTheCountPlusOneAndMayBeTaken) {
    Write(1);
    date = Date::FromDays(46096);
    Write(1);
    Plain().Do("DELETE FROM Win WHERE ID1 = 1");
    date = Date::FromDays(46097);
    ExpectUnexpected(ErrorNumber::KeyTaken);
    Write(1);
    EXPECT_EQ(Written(), Texts{Row(2, 1, "46096")});
}

TEST_P(MainWriters, TheKeyCountsOnBeyondSixteenBits) {
    Plain().Do(
        "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 32768) "
        "INSERT INTO Win (ID1, Date) SELECT i, 1 FROM n");
    Write(1);
    EXPECT_EQ(Plain().Rows("SELECT ID1 FROM Win WHERE Date <> 1"), Texts{"32769"});
}

TEST_P(MainWriters, TheFileIsFreeWhileTheQuestionIsUp) {
    Write(1);
    dialogs.Expect("RECHECK?", Recheck, Answer::Yes, BoxStyle::YesNo, [&] {
        ExpectAllClosed();
        Plain().Do("BEGIN EXCLUSIVE; UPDATE Win SET ID1 = 9; COMMIT");
    });
    Write(2);
    EXPECT_EQ(Written(), Texts{Row(9, 2)});
}

TEST_P(MainWriters, ARowThatVanishesBehindTheQuestionIsWrittenAnewOnYesAndNotOnNo) {
    for (const Answer answer : {Answer::No, Answer::Yes}) {
        Write(1);
        dialogs.Expect("RECHECK?", Recheck, answer, BoxStyle::YesNo, [&] { Plain().Do("DELETE FROM Win"); });
        Write(2);
        EXPECT_EQ(Written(), answer == Answer::Yes ? Texts{Row(1, 2)} : Texts{});
    }
}

TEST_P(MainWriters, ARowThatComesBehindTheQuestionIsTheOneRewritten) {
    Write(1);
    dialogs.Expect("RECHECK?", Recheck, Answer::Yes, BoxStyle::YesNo, [&] {
        PlainFile file = Plain();
        file.Do("UPDATE Win SET Date = 1, ID1 = 8");
        file.Do("INSERT INTO Win (ID1, Date) VALUES (5, " + std::to_string(date.Day()) + ")");
    });
    Write(2);
    EXPECT_EQ(Plain().Rows("SELECT ID1, Ball_1 FROM Win ORDER BY ID1"), (Texts{"5|2", "8|1"}));
}

TEST_P(MainWriters, AQuestionOnceAnsweredIsNotPutAgainWhereTheFileCannotBeHadBack) {
    Write(1);
    const std::string away = DbName() + ".away";
    dialogs.Expect("RECHECK?", Recheck, Answer::Yes, BoxStyle::YesNo,
                   [&] { std::filesystem::rename(DbName(), away); });
    ExpectUnexpected(ErrorNumber::StoreFileNotFound);
    Write(2);
    ExpectAllClosed();
    std::filesystem::rename(away, DbName());
    EXPECT_EQ(Written(), Texts{Row(1, 1)});
}

TEST_P(MainWriters, AMissingTableShowsItsBox) {
    ExpectNoTable("WinBCDaily3");
    Boxes(1, GetParam().count);
    Store(GetParam().write, "WinBCDaily3");
}

INSTANTIATE_TEST_SUITE_P(
    Tables, MainWriters,
    ::testing::Values(MainWriter{"Lotto6", StoreLotto6Win, &CreateWin6Table, 7, "DATE"},
                      MainWriter{"Lotto7", StoreLotto7Win, &CreateWin7Table, 8, "DATE"},
                      MainWriter{"Keno", StoreKenoWin, &CreateWinKenoTable, 20, "DATE|Game"},
                      MainWriter{"Pick3", StorePick3Win, &CreateWinPick3Table, 3, "Game|DATE"},
                      MainWriter{"Pick4", StorePick4Win, &CreateWinPick4Table, 4, "Game|DATE"}),
    [](const auto& writer) { return std::string(writer.param.name); });

TEST_F(WinWriters, ANewKenoRowEndsTheTicketsAndNothingElseDoes) {
    Make(CreateWinKenoTable, "WinONTKeno");
    Boxes(1, 20);
    global.TotalTickets = 5;
    Store(StoreKenoWin, "WinONTKeno");
    EXPECT_EQ(global.TotalTickets, 0);
    global.TotalTickets = 5;
    dialogs.Expect("RECHECK?", Recheck, Answer::Yes);
    Store(StoreKenoWin, "WinONTKeno");
    EXPECT_EQ(global.TotalTickets, 5);
    dialogs.Expect("RECHECK?", Recheck, Answer::Yes, BoxStyle::YesNo,
                   [&] { Plain().Do("DELETE FROM WinONTKeno"); });
    Store(StoreKenoWin, "WinONTKeno");
    EXPECT_EQ(global.TotalTickets, 0) << "what has gone is a new row";
    global.TotalTickets = 5;
    date = Date::FromDays(46096);
    boxes.Main.at(0) = "";
    ExpectUnexpected(ErrorNumber::Conversion);
    Store(StoreKenoWin, "WinONTKeno");
    EXPECT_EQ(global.TotalTickets, 5);
    Make(CreateWin6Table, "WinBC49");
    Boxes(1, 7);
    Store(StoreLotto6Win, "WinBC49");
    EXPECT_EQ(global.TotalTickets, 5);
}

TEST_F(WinWriters, TwoRegionsOfOneGameShareTheRowAndTheSecondIsAsked) {
    Make(CreateWin6Table, "WinLotto649");
    global.LottoFlag = "Lotto649";
    global.ExtraFlag = "Encore";
    Boxes(1, 7);
    Store(StoreLotto6Win, "WinLotto649");
    global.ExtraFlag = "QCExtra";
    dialogs.Expect("RECHECK?", Recheck, Answer::No);
    Store(StoreLotto6Win, "WinLotto649");
    EXPECT_EQ(Plain().One("SELECT count(*) FROM WinLotto649"), "1");
}

struct ExtraWriter : WinWriters {
    ExtraWriter() {
        Make(CreateWinPick4Table, "WinExtra");
        global.LottoFlag = "BC49";
        global.ExtraFlag = "Extra";
        boxes.Four = {"5", "10", "15", "99"};
    }
    void Write() { Store(StoreExtraWin, "WinExtra"); }
};

TEST_F(ExtraWriter, AnEmptyTableGetsTheFirstRow) {
    Write();
    EXPECT_EQ(All("WinExtra"), Texts{"1|BC49|46095|5|10|15|99"});
}

TEST_F(ExtraWriter, TheSameGameAndDateIsRewrittenWithoutAQuestion) {
    Write();
    boxes.Four = {"1", "2", "3", "4"};
    Write();
    EXPECT_EQ(All("WinExtra"), Texts{"1|BC49|46095|1|2|3|4"});
}

TEST_F(ExtraWriter, AnotherDateGetsAnotherRow) {
    Write();
    date = Date::FromDays(46100);
    Write();
    EXPECT_EQ(All("WinExtra"), (Texts{"1|BC49|46095|5|10|15|99", "2|BC49|46100|5|10|15|99"}));
}

TEST_F(ExtraWriter, BehindAnotherGamesRowOfTheDateTheOwnOneIsFound) {
    Add("WinExtra",
        {"1, 'Super 7', 46095, 9, 9, 9, 9", "2, NULL, 46095, 8, 8, 8, 8", "3, 'BC49', 46095, 7, 7, 7, 7"});
    Write();
    EXPECT_EQ(All("WinExtra"),
              (Texts{"1|Super 7|46095|9|9|9|9", "2|NULL|46095|8|8|8|8", "3|BC49|46095|5|10|15|99"}));
}

TEST_F(ExtraWriter, TheWalkOverwritesTheGamesRowOfALaterDate) {
    Add("WinExtra", {"1, 'Super 7', 46095, 9, 9, 9, 9", "2, 'BC49', 46102, 7, 7, 7, 7"});
    Write();
    EXPECT_EQ(All("WinExtra"), (Texts{"1|Super 7|46095|9|9|9|9", "2|BC49|46102|5|10|15|99"}));
}

TEST_F(ExtraWriter, AtTheEndOfTheWalkANewRowComes) {
    Add("WinExtra", {"1, 'BC49', 46090, 7, 7, 7, 7", "2, 'Super 7', 46095, 9, 9, 9, 9"});
    Write();
    EXPECT_EQ(All("WinExtra"),
              (Texts{"1|BC49|46090|7|7|7|7", "2|Super 7|46095|9|9|9|9", "3|BC49|46095|5|10|15|99"}));
}

TEST_F(ExtraWriter, AnyOtherKeyRewritesTheFirstRowOfTheDate) {
    global.ExtraFlag = "Other";
    Add("WinExtra", {"1, 'Super 7', 46095, 9, 9, 9, 9"});
    Write();
    EXPECT_EQ(All("WinExtra"), Texts{"1|Super 7|46095|5|10|15|99"});
    date = Date::FromDays(46096);
    Write();
    EXPECT_EQ(All("WinExtra").back(), "2|BC49|46096|5|10|15|99");
}

TEST_F(ExtraWriter, ARefusedTextAndAMissingTableShowTheirBoxes) {
    boxes.Four.at(2) = "";
    ExpectUnexpected(ErrorNumber::Conversion);
    Write();
    EXPECT_TRUE(All("WinExtra").empty());
    ExpectNoTable("WinNone");
    Store(StoreExtraWin, "WinNone");
}

struct EarlyBirdWriter : WinWriters {
    EarlyBirdWriter() {
        Make(CreateWinPick4Table, "WinEarlyBird");
        global.LottoFlag = "Lottario";
        global.ExtraFlag = "Encore";
        boxes.Four = {"7", "21", "33", "45"};
    }
    void Write() { Store(StoreExtraWin, "WinEarlyBird"); }
};

TEST_F(EarlyBirdWriter, EveryFieldStandsOneLowerThanTheTableTells) {
    Write();
    EXPECT_EQ(All("WinEarlyBird"), Texts{"1|" + date.ToText() + "|7|21|33|45|NULL"});
}

TEST_F(EarlyBirdWriter, TheDateIsNotFoundAgainSoEachCheckAddsARow) {
    Write();
    Write();
    EXPECT_EQ(All("WinEarlyBird").size(), 2U);
    EXPECT_EQ(All("WinEarlyBird").back(), "2|" + date.ToText() + "|7|21|33|45|NULL");
}

TEST_F(EarlyBirdWriter, ADrawOfThatFirstNumbersDayWouldBeRewritten) {
    Write();
    date = Date::FromDays(7);
    boxes.Four = {"8", "9", "10", "11"};
    Write();
    EXPECT_EQ(All("WinEarlyBird"), Texts{"1|" + Date::FromDays(46095).ToText() + "|8|9|10|11|NULL"});
}

TEST_F(EarlyBirdWriter, AValueThatTheStoreRefusesShowsTheGeneralBox) {
    boxes.Four.at(0) = "x";
    ExpectUnexpected(ErrorNumber::Conversion);
    Write();
    EXPECT_TRUE(All("WinEarlyBird").empty());
}

struct AddOnWriter : WinWriters {
    AddOnWriter() {
        Make(CreateWinAddOnTable, "WinEncore");
        global.LottoFlag = "Lotto649";
        global.ExtraFlag = "Encore";
        boxes.Encore = "012345";
    }
    void Write() { Store(StoreAddOnWin, "WinEncore"); }
};

TEST_F(AddOnWriter, TheDigitsStandOneToAField) {
    Write();
    EXPECT_EQ(All("WinEncore"), Texts{"1|Lotto649|46095|0|1|2|3|4|5|NULL"});
}

TEST_F(AddOnWriter, ASecondGameOverwritesTheNumberAndTheKeyWithoutAQuestion) {
    Write();
    global.LottoFlag = "Super 7";
    boxes.Encore = "987654";
    Write();
    EXPECT_EQ(All("WinEncore"), Texts{"1|Super 7|46095|9|8|7|6|5|4|NULL"});
}

TEST_F(AddOnWriter, AnotherDateGetsAnotherRow) {
    Write();
    date = Date::FromDays(46096);
    Write();
    EXPECT_EQ(All("WinEncore").back(), "2|Lotto649|46096|0|1|2|3|4|5|NULL");
}

TEST_F(AddOnWriter, TheRowBearsTheDateOfThePage) {
    boxes.DrawDate = Date::FromDays(46099);
    StoreAddOnWin(session, At("WinEncore"), boxes);
    EXPECT_EQ(All("WinEncore"), Texts{"1|Lotto649|46099|0|1|2|3|4|5|NULL"});
}

TEST_F(AddOnWriter, ATailBeyondSixDigitsIsDropped) {
    boxes.Encore = "01234567";
    Write();
    EXPECT_EQ(All("WinEncore"), Texts{"1|Lotto649|46095|0|1|2|3|4|5|NULL"});
}

TEST_F(AddOnWriter, WesternExtraKeepsASeventhDigit) {
    global.ExtraFlag = "WESTExtra";
    boxes.Encore = "01234567";
    Write();
    EXPECT_EQ(All("WinEncore"), Texts{"1|Lotto649|46095|0|1|2|3|4|5|6"});
    boxes.Encore = "9876543";
    Write();
    EXPECT_EQ(All("WinEncore"), Texts{"1|Lotto649|46095|9|8|7|6|5|4|3"});
}

TEST_F(AddOnWriter, ALetterOrAMissingDigitIsRefusedByTheStore) {
    for (const char* text : {"01234x", "01234"}) {
        boxes.Encore = text;
        ExpectUnexpected(ErrorNumber::Conversion);
        Write();
        dialogs.Verify();
    }
    EXPECT_TRUE(All("WinEncore").empty());
    ExpectNoTable("WinNone");
    Store(StoreAddOnWin, "WinNone");
}

}  // namespace sorvane::testing

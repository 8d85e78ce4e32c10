#include "checking/ReadTableData.h"

#include "checking/CheckWorld.h"

namespace sorvane::testing {

namespace {

const std::string NoMatch = "No match for Draw Date selected. Please check the Draw Date and try again.";

// 46095 is the draw date; rows of the days around it are left out.
const std::string Day = "46095";

// `count` rows of the draw date, the values behind the key and the date as told.
std::string ManyRows(const std::string& table, int count, const std::string& values) {
    return "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < " +
           std::to_string(count) + ") INSERT INTO " + table + " SELECT i, " + Day + ", " + values + " FROM n";
}

}  // namespace

using Reader = void (*)(Session&, const StoreArgs&, Lines&);

struct Readers : StoreTest {
    Texts Read(Reader reader, const std::string& table) {
        LineList list;
        reader(session, At(table), list);
        ExpectAllClosed();
        return list.items;
    }
};

TEST_F(Readers, SixNumbersOfTheDateInTheirOrder) {
    global.LottoFlag = "BC49";
    Make(CreatePlayed6Table, "PlayedBC49");
    Add("PlayedBC49", {"1, 46094, 1, 2, 3, 4, 5, 6, 0, 0", "2, 46095, 7, 8, 9, 10, 11, 12, 0, 1",
                       "3, 46096, 1, 2, 3, 4, 5, 6, 0, 0", "4, 46095, 49, 2, 3, 4, 5, 1, 1, 0"});
    EXPECT_EQ(Read(ReadLotto6Played, "PlayedBC49"), (Texts{"7, 8, 9, 10, 11, 12", "49, 2, 3, 4, 5, 1"}));
    EXPECT_EQ(global.EntryCounter, 2);
    EXPECT_EQ(global.NoRowForDate, 0);
    ASSERT_EQ(global.Lotto6Played.UBound(), 1);
    EXPECT_EQ(global.Lotto6Played(1).Numbers(0), 49);
    EXPECT_EQ(global.Lotto6Played(1).Numbers(5), 1);
    EXPECT_FALSE(global.Lotto6Played(0).EarlyBird);
}

TEST_F(Readers, LottarioListsTheEarlyBirdBehindEachTicket) {
    global.LottoFlag = "Lottario";
    Make(CreatePlayed6Table, "PlayedLottario");
    Add("PlayedLottario", {"1, 46095, 1, 2, 3, 4, 5, 6, 0, 1", "2, 46095, 7, 8, 9, 10, 11, 12, 1, 0"});
    EXPECT_EQ(Read(ReadLotto6Played, "PlayedLottario"),
              (Texts{"1, 2, 3, 4, 5, 6", "Earlybird Played", "7, 8, 9, 10, 11, 12", "Earlybird NOT Played"}));
    EXPECT_TRUE(global.Lotto6Played(0).EarlyBird);
    EXPECT_FALSE(global.Lotto6Played(1).EarlyBird);
    EXPECT_EQ(global.EntryCounter, 2);
}

TEST_F(Readers, SevenNumbers) {
    Make(CreatePlayed7Table, "PlayedSuper7");
    Add("PlayedSuper7", {"1, 46095, 1, 2, 3, 4, 5, 6, 47, 0"});
    EXPECT_EQ(Read(ReadLotto7Played, "PlayedSuper7"), Texts{"1, 2, 3, 4, 5, 6, 47"});
    EXPECT_EQ(global.Lotto7Played(0).Numbers(6), 47);
}

TEST_F(Readers, KenoReadsAsManyNumbersAsTheRowSays) {
    Make(CreatePlayedKenoTable, "PlayedONTKeno");
    Add("PlayedONTKeno", {"1, 46095, 'ONTKeno', 70, 12, 13, 14, 5, 6, 7, 8, 9, 10, 5, 4, 0",
                          "2, 46095, 'ONTKeno', 21, 22, 0, 0, 0, 0, 0, 0, 0, 0, 10, 3, 0"});
    EXPECT_EQ(Read(ReadKenoPlayed, "PlayedONTKeno"), (Texts{"70, 12, 13, 14", "21, 22"}));
    EXPECT_EQ(global.KenoPlayed(0).Wager, 5);
    EXPECT_EQ(global.KenoPlayed(0).NoOfBalls, 4);
    EXPECT_EQ(global.KenoPlayed(0).Numbers(3), 14);
    EXPECT_EQ(global.KenoPlayed(0).Numbers(4), 0);
    EXPECT_EQ(global.KenoPlayed(1).Wager, 10);
    EXPECT_EQ(global.NoOfBallsPerTicket, 3);
}

TEST_F(Readers, KenoBallsTypedBeyondTenReadTheWagerAndTheCountAsNumbers) {
    Make(CreatePlayedKenoTable, "PlayedONTKeno");
    Add("PlayedONTKeno", {"1, 46095, 'ONTKeno', 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 2, 12, 0"});
    EXPECT_EQ(Read(ReadKenoPlayed, "PlayedONTKeno"), Texts{"1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 2, 12"});
    EXPECT_EQ(global.NoOfBallsPerTicket, 12);
}

TEST_F(Readers, KenoBallsBeyondTheFieldsEndTheReadingAndLeaveWhatWasListed) {
    Make(CreatePlayedKenoTable, "PlayedONTKeno");
    Add("PlayedONTKeno", {"1, 46095, 'ONTKeno', 1, 2, 0, 0, 0, 0, 0, 0, 0, 0, 2, 2, 0",
                          "2, 46095, 'ONTKeno', 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 2, 14, 0",
                          "3, 46095, 'ONTKeno', 3, 4, 0, 0, 0, 0, 0, 0, 0, 0, 2, 2, 0"});
    ExpectUnexpected(ErrorNumber::NoSuchField);
    EXPECT_EQ(Read(ReadKenoPlayed, "PlayedONTKeno"), Texts{"1, 2"});
    EXPECT_EQ(global.EntryCounter, 3);
}

TEST_F(Readers, ThreeDigitsAndTheWayOfTheFirstRow) {
    global.LottoFlag = "ONTPick3";
    Make(CreatePlayedPick3Table, "PlayedONTPick3");
    Add("PlayedONTPick3",
        {"1, 'ONTPick3', 46094, 9, 9, 9, 'Straight', 0", "2, 'ONTPick3', 46095, 0, 0, 7, 'Box', 0",
         "3, 'ONTPick3', 46095, 1, 2, 3, 'Straight', 1"});
    EXPECT_EQ(Read(ReadPick3Played, "PlayedONTPick3"), (Texts{"0, 0, 7", "1, 2, 3"}));
    EXPECT_EQ(global.PlayOption, "Box");
    EXPECT_EQ(global.Pick3Played(1).Numbers(2), 3);
    EXPECT_EQ(global.EntryCounter, 2);
}

TEST_F(Readers, FourDigits) {
    global.LottoFlag = "FLAPlay4";
    Make(CreatePlayedPick4Table, "PlayedFLAPlay4");
    Add("PlayedFLAPlay4", {"1, 'FLAPlay4', 46095, 9, 8, 7, 6, 'StraightBox', 0"});
    EXPECT_EQ(Read(ReadPick4Played, "PlayedFLAPlay4"), Texts{"9, 8, 7, 6"});
    EXPECT_EQ(global.PlayOption, "StraightBox");
    EXPECT_EQ(global.Pick4Played(0).Numbers(3), 6);
}

TEST_F(Readers, TheWayOfTheFirstRowJudgesTheOthersToo) {
    global.LottoFlag = "ONTPick3";
    Make(CreatePlayedPick3Table, "PlayedONTPick3");
    Add("PlayedONTPick3",
        {"1, 'ONTPick3', 46095, 1, 2, 3, 'Box', 0", "2, 'ONTPick3', 46095, 3, 1, 2, 'Straight', 0"});
    Read(ReadPick3Played, "PlayedONTPick3");
    WinningBoxes boxes;
    boxes.Main = {"3", "2", "1"};
    LineList judged;
    for (int row = 0; row < global.EntryCounter; ++row) CheckPick3(session, boxes, row, judged);
    EXPECT_EQ(judged.items, Texts(2, "Congratulations! This Ticket is a Winner! "));
}

TEST_F(Readers, AnAddOnPassOverwritesTheRowsOfTheMainGame) {
    global.LottoFlag = "BC49";
    global.ExtraFlag = "Encore";
    Make(CreatePlayed6Table, "PlayedBC49");
    Make(CreatePlayedAddOnTable, "PlayedEncore");
    Add("PlayedBC49", {"1, 46095, 11, 12, 13, 14, 15, 16, 0, 0", "2, 46095, 1, 2, 3, 4, 5, 6, 0, 0"});
    Add("PlayedEncore", {"1, 'BC49', 46095, 9, 8, 7, 6, 5, 4, NULL"});
    Read(ReadLotto6Played, "PlayedBC49");
    Read(ReadDigitAddOnPlayed, "PlayedEncore");
    EXPECT_EQ(global.Lotto6Played.UBound(), 0);
    EXPECT_EQ(global.Lotto6Played(0).Numbers(0), 9);
}

TEST_F(Readers, PickRowsOfAnotherGameAreNotCountedButTheFirstOnesOfTheDateAreRead) {
    global.LottoFlag = "ONTPick3";
    Make(CreatePlayedPick3Table, "PlayedONTPick3");
    Add("PlayedONTPick3", {"1, 'Quote3', 46095, 1, 1, 1, 'Straight', 0",
                           "2, 'ONTPick3', 46095, 2, 2, 2, 'Box', 0", "3, NULL, 46095, 3, 3, 3, '', 0"});
    EXPECT_EQ(Read(ReadPick3Played, "PlayedONTPick3"), Texts{"1, 1, 1"});
    EXPECT_EQ(global.PlayOption, "Straight");
    EXPECT_EQ(global.EntryCounter, 1);
}

TEST_F(Readers, PickRowsOfOtherGamesAloneLeaveEverythingAsItWas) {
    global.LottoFlag = "ONTPick3";
    global.PlayOption = "Combo";
    Make(CreatePlayedPick3Table, "PlayedONTPick3");
    Add("PlayedONTPick3", {"1, 'Quote3', 46095, 1, 1, 1, 'Straight', 0"});
    EXPECT_TRUE(Read(ReadPick3Played, "PlayedONTPick3").empty());
    EXPECT_EQ(global.PlayOption, "Combo");
    EXPECT_EQ(global.EntryCounter, 0);
    EXPECT_EQ(global.NoRowForDate, 0);
    EXPECT_EQ(global.Pick3Played.UBound(), -1);
}

TEST_F(Readers, ADateWithoutTicketsSaysSo) {
    Make(CreatePlayed6Table, "PlayedBC49");
    Add("PlayedBC49", {"1, 46094, 1, 2, 3, 4, 5, 6, 0, 0", "2, 46096, 1, 2, 3, 4, 5, 6, 0, 0"});
    global.PlayOption = "Box";
    dialogs.Expect("ERROR", NoMatch);
    EXPECT_TRUE(Read(ReadLotto6Played, "PlayedBC49").empty());
    EXPECT_EQ(global.NoRowForDate, 1);
    EXPECT_EQ(global.EntryCounter, 0);
    EXPECT_EQ(global.PlayOption, "Box");
}

TEST_F(Readers, AnEmptyTableReachesTheSameBoxWithoutAnError) {
    const std::vector<std::pair<Reader, const Creator*>> mains{{ReadLotto6Played, &CreatePlayed6Table},
                                                               {ReadLotto7Played, &CreatePlayed7Table},
                                                               {ReadKenoPlayed, &CreatePlayedKenoTable},
                                                               {ReadPick3Played, &CreatePlayedPick3Table},
                                                               {ReadPick4Played, &CreatePlayedPick4Table}};
    for (std::size_t i = 0; i < mains.size(); ++i) {
        const std::string table = "Played" + std::to_string(i);
        Make(*mains[i].second, table);
        global.NoRowForDate = 0;
        dialogs.Expect("ERROR", NoMatch);
        EXPECT_TRUE(Read(mains[i].first, table).empty());
        EXPECT_EQ(global.NoRowForDate, 1);
        EXPECT_EQ(global.Msg, NoMatch);
        dialogs.Verify();
    }
}

TEST_F(Readers, APickDateWithoutTicketsEmptiesTheWayOfPlay) {
    for (const bool three : {true, false}) {
        const std::string table = three ? "PlayedThree" : "PlayedFour";
        Make(three ? CreatePlayedPick3Table : CreatePlayedPick4Table, table);
        global.PlayOption = "Box";
        dialogs.Expect("ERROR", NoMatch);
        EXPECT_TRUE(Read(three ? ReadPick3Played : ReadPick4Played, table).empty());
        EXPECT_EQ(global.PlayOption, "");
    }
}

TEST_F(Readers, TheFileIsFreeWhileTheBoxIsUp) {
    Make(CreatePlayed6Table, "PlayedBC49");
    dialogs.Expect("ERROR", NoMatch, Answer::Ok, BoxStyle::Ok,
                   [&] { Add("PlayedBC49", {"1, 46095, 1, 2, 3, 4, 5, 6, 0, 0"}); });
    EXPECT_TRUE(Read(ReadLotto6Played, "PlayedBC49").empty());
    EXPECT_EQ(Read(ReadLotto6Played, "PlayedBC49"), Texts{"1, 2, 3, 4, 5, 6"});
}

TEST_F(Readers, DatesCompareByWholeDay) {
    Make(CreatePlayed6Table, "PlayedBC49");
    Add("PlayedBC49", {"1, 46095.75, 1, 2, 3, 4, 5, 6, 0, 0", "2, 46095, 7, 8, 9, 10, 11, 12, 0, 0",
                       "3, 46096, 1, 2, 3, 4, 5, 6, 0, 0"});
    date = Date::FromDays(46095.5);
    EXPECT_EQ(Read(ReadLotto6Played, "PlayedBC49"), (Texts{"7, 8, 9, 10, 11, 12", "1, 2, 3, 4, 5, 6"}));
}

TEST_F(Readers, SixDigitsOfAnAddOnAndNotPlayedForTheSentinel) {
    global.LottoFlag = "Lotto649";
    global.ExtraFlag = "Encore";
    Make(CreatePlayedAddOnTable, "PlayedEncore");
    Add("PlayedEncore",
        {"1, 'Lotto649', 46095, 0, 1, 2, 3, 4, 5, NULL", "2, 'Lotto649', 46095, 99, 99, 99, 99, 99, 99, NULL",
         "3, 'Lotto649', 46095, 99, 99, 99, 99, 99, 9, NULL"});
    EXPECT_EQ(Read(ReadDigitAddOnPlayed, "PlayedEncore"),
              (Texts{"0, 1, 2, 3, 4, 5", "Not Played", "99, 99, 99, 99, 99, 9"}));
    EXPECT_EQ(global.EntryCounter, 3);
    EXPECT_EQ(global.Lotto6Played(1).Numbers(5), 99);
}

TEST_F(Readers, SevenDigitsForWesternExtra) {
    global.LottoFlag = "Super 7";
    global.ExtraFlag = "WESTExtra";
    Make(CreatePlayedAddOnTable, "PlayedWESTExtra");
    Add("PlayedWESTExtra",
        {"1, 'Super 7', 46095, 1, 2, 3, 4, 5, 6, 7", "2, 'Super 7', 46095, 99, 99, 99, 99, 99, 99, 99"});
    EXPECT_EQ(Read(ReadDigitAddOnPlayed, "PlayedWESTExtra"), (Texts{"1, 2, 3, 4, 5, 6, 7", "Not Played"}));
    EXPECT_EQ(global.Lotto7Played(0).Numbers(6), 7);
    EXPECT_FALSE(global.Lotto6Played.Sized());
}

TEST_F(Readers, FourNumbersOfTheExtra) {
    global.LottoFlag = "BC49";
    Make(CreatePlayedPick4Table, "PlayedExtra");
    Add("PlayedExtra", {"1, 'BC49', 46095, 5, 10, 15, 99, NULL, 0"});
    EXPECT_EQ(Read(ReadExtraPlayed, "PlayedExtra"), Texts{"5, 10, 15, 99"});
    EXPECT_EQ(global.Pick4Played(0).Numbers(3), 99);
    EXPECT_EQ(global.EntryCounter, 1);
}

TEST_F(Readers, GamesThatShareAnAddOnTableGetTheFirstRowsOfTheDateWhoeverOwnsThem) {
    global.ExtraFlag = "Encore";
    Make(CreatePlayedAddOnTable, "PlayedEncore");
    Add("PlayedEncore",
        {"1, 'Lotto649', 46095, 1, 1, 1, 1, 1, 1, NULL", "2, 'Super 7', 46095, 2, 2, 2, 2, 2, 2, NULL",
         "3, 'Super 7', 46095, 3, 3, 3, 3, 3, 3, NULL", "4, 'Super 7', 46096, 4, 4, 4, 4, 4, 4, NULL"});
    global.LottoFlag = "Super 7";
    EXPECT_EQ(Read(ReadDigitAddOnPlayed, "PlayedEncore"), (Texts{"1, 1, 1, 1, 1, 1", "2, 2, 2, 2, 2, 2"}));
    EXPECT_EQ(global.EntryCounter, 2);
    EXPECT_EQ(global.Lotto6Played.UBound(), 1);
}

TEST_F(Readers, AnAddOnDateWithRowsOfOtherGamesAloneListsNothing) {
    global.ExtraFlag = "Encore";
    global.LottoFlag = "ONTKeno";
    Make(CreatePlayedAddOnTable, "PlayedEncore");
    Add("PlayedEncore", {"1, 'Lotto649', 46095, 1, 1, 1, 1, 1, 1, NULL"});
    EXPECT_TRUE(Read(ReadDigitAddOnPlayed, "PlayedEncore").empty());
    EXPECT_EQ(global.EntryCounter, 0);
    EXPECT_EQ(global.NoRowForDate, 0);
}

TEST_F(Readers, AnAddOnDateWithoutRowsListsNotPlayedWithoutABox) {
    Make(CreatePlayedAddOnTable, "PlayedTag");
    Make(CreatePlayedPick4Table, "PlayedExtra");
    global.ExtraFlag = "Tag";
    global.PlayOption = "Box";
    EXPECT_EQ(Read(ReadDigitAddOnPlayed, "PlayedTag"), Texts{"Not Played"});
    EXPECT_EQ(global.NoRowForDate, 1);
    global.NoRowForDate = 0;
    EXPECT_EQ(Read(ReadExtraPlayed, "PlayedExtra"), Texts{"Not Played"});
    EXPECT_EQ(global.NoRowForDate, 1);
    EXPECT_EQ(global.EntryCounter, 0);
    EXPECT_EQ(global.PlayOption, "Box");
}

TEST_F(Readers, AMissingAddOnTableListsNotPlayedWithoutABox) {
    EXPECT_EQ(Read(ReadDigitAddOnPlayed, "PlayedTag"), Texts{"Not Played"});
    EXPECT_EQ(Read(ReadExtraPlayed, "PlayedExtra"), Texts{"Not Played"});
    EXPECT_EQ(global.EntryCounter, 0);
}

TEST_F(Readers, AMissingMainTableShowsItsBoxWithTheTablesName) {
    for (const Reader reader :
         {ReadLotto6Played, ReadLotto7Played, ReadKenoPlayed, ReadPick3Played, ReadPick4Played}) {
        ExpectNoTable("PlayedBCDaily3");
        EXPECT_TRUE(Read(reader, "PlayedBCDaily3").empty());
        dialogs.Verify();
    }
    EXPECT_EQ(global.NoRowForDate, 0);
}

TEST_F(Readers, AnyOtherErrorShowsTheGeneralBox) {
    name = folder.File("nowhere.mdb");
    ExpectUnexpected(ErrorNumber::StoreFileNotFound);
    EXPECT_TRUE(Read(ReadLotto6Played, "PlayedBC49").empty());
    ExpectUnexpected(ErrorNumber::StoreFileNotFound);
    EXPECT_TRUE(Read(ReadDigitAddOnPlayed, "PlayedTag").empty());
}

TEST_F(Readers, ATableWithoutItsIndexShowsTheGeneralBox) {
    Make(CreatePlayed6Table, "PlayedBC49");
    Plain().Do("DROP INDEX [PlayedBC49.Date]");
    ExpectUnexpected(ErrorNumber::IndexNotFound);
    EXPECT_TRUE(Read(ReadLotto6Played, "PlayedBC49").empty());
}

TEST_F(Readers, ANumberThatWasNeverWrittenEndsTheReadingBehindTheRowsBeforeIt) {
    Make(CreatePlayed6Table, "PlayedBC49");
    Add("PlayedBC49", {"1, 46095, 1, 2, 3, 4, 5, 6, 0, 0", "2, 46095, 1, NULL, 3, 4, 5, 6, 0, 0"});
    ExpectUnexpected(ErrorNumber::InvalidUseOfNull);
    EXPECT_EQ(Read(ReadLotto6Played, "PlayedBC49"), Texts{"1, 2, 3, 4, 5, 6"});
    EXPECT_EQ(global.EntryCounter, 2);
    EXPECT_EQ(global.Lotto6Played.UBound(), 1);
}

TEST_F(Readers, ABadRowBehindTheCountedOnesDoesNoHarm) {
    global.LottoFlag = "Super 7";
    Make(CreatePlayedAddOnTable, "PlayedTag");
    Add("PlayedTag",
        {"1, 'Super 7', 46095, 1, 1, 1, 1, 1, 1, NULL", "2, 'Lotto649', 46095, NULL, 2, 2, 2, 2, 2, NULL"});
    EXPECT_EQ(Read(ReadDigitAddOnPlayed, "PlayedTag"), Texts{"1, 1, 1, 1, 1, 1"});
}

TEST_F(Readers, TheCounterIsRaisedByTheCount) {
    Make(CreatePlayed6Table, "PlayedBC49");
    Add("PlayedBC49", {"1, 46095, 1, 2, 3, 4, 5, 6, 0, 0"});
    global.EntryCounter = 5;
    EXPECT_EQ(Read(ReadLotto6Played, "PlayedBC49").size(), 1U);
    EXPECT_EQ(global.EntryCounter, 6);
    EXPECT_EQ(global.Lotto6Played.UBound(), 0);
}

TEST_F(Readers, AsManyRowsAsTheCounterHoldsAreRead) {
    Make(CreatePlayed6Table, "PlayedBC49");
    Plain().Do(ManyRows("PlayedBC49", 32'767, "1, 2, 3, 4, 5, 6, 0, 0"));
    EXPECT_EQ(Read(ReadLotto6Played, "PlayedBC49").size(), 32'767U);
    EXPECT_EQ(global.EntryCounter, 32'767);
}

TEST_F(Readers, OneRowMoreOverflowsTheCounterAndNothingIsListed) {
    Make(CreatePlayed6Table, "PlayedBC49");
    Plain().Do(ManyRows("PlayedBC49", 32'768, "1, 2, 3, 4, 5, 6, 0, 0"));
    ExpectUnexpected(ErrorNumber::Overflow);
    EXPECT_TRUE(Read(ReadLotto6Played, "PlayedBC49").empty());
    EXPECT_FALSE(global.Lotto6Played.Sized());
}

}  // namespace sorvane::testing

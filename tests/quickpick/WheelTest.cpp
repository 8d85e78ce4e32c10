// Wheels: their rows, their pools, and what they leave behind.
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <set>

#include "platform/Text.h"
#include "quickpick/QuickPickFacts.h"
#include "quickpick/Wheel.h"
#include "store/CreateTables.h"
#include "support/RecordingChart.h"
#include "support/World.h"

namespace sorvane {

using namespace QuickPickFacts;
namespace {

using testing::RecordingChart;
using testing::World;
using Texts = std::vector<std::string>;

constexpr std::string_view TooManyText =
    "You have entered a value for the Number of Tickets which exceeds\r\n"
    "the maximum possible combinations. Please reduce this number.";
constexpr std::string_view NotEnoughText =
    "Not enough data to generate Hot Numbers. Please enter additional Winning Number history\r\n"
    "and try again";

class BoxesOfTheTab final : public WheelFace {
  public:
    Texts favourites = Texts(18);
    std::set<int> enabled;
    int askedFor = -1;
    int refused = 0;

    std::string Favourite(int i) const override { return favourites.at(static_cast<std::size_t>(i)); }
    void ShowFavourite(int i, const std::string& text) override {
        favourites.at(static_cast<std::size_t>(i)) = text;
        enabled.insert(i);
    }
    void EmptyFavourites() override { favourites = Texts(18); }
    void AskForFavourite(int i) override { askedFor = i; }
    void RefuseTicketCount() override { ++refused; }
};

// The Quick Pick tab of Lottario before a wheel.
struct WheelWorld : World {
    explicit WheelWorld(int howMany = 7, int size = 7, int tickets = 7) {
        WithDatabase();
        global.LottoFlag = "Lottario";
        HowManyToWheel = howMany;
        global.WheelSize = size;
        global.NoOfTickets = tickets;
        CreateTempTable(session, {db, "Temp"}, PrimaryFieldName, DateFieldName);
        CreateWin6Table(session, {db, "WinLottario"}, PrimaryFieldName, DateFieldName);
    }
    void AddDraws(int draws, const std::string& numbers) {
        const int first = std::stoi(Plain().One("SELECT count(*) + 1 FROM WinLottario"));
        for (int i = first; i < first + draws; ++i)
            Plain().Do("INSERT INTO WinLottario VALUES (" + std::to_string(i) + ", 46000, " + numbers + ")");
    }
    void Generate(WheelType type) {
        GenerateByWheelType(
            session, {type, HowManyToWheel, NumbersPerTicket, db, TableName, mode, QuickPicks}, window);
    }
    // What is left behind: nothing in Temp, the file free for others, nothing open.
    void ExpectTempEmptyAndFileFree() {
        EXPECT_EQ(Plain().One("SELECT count(*) FROM Temp"), "0");
        Plain().Do("BEGIN EXCLUSIVE; COMMIT");
        EXPECT_EQ(global.Open.DbOpen, Off);
        EXPECT_EQ(global.Open.RsOpen, Off);
    }
    // The file's own count of commits.
    unsigned Commits() const {
        std::ifstream file(db, std::ios::binary);
        file.seekg(24);
        unsigned count = 0;
        for (int i = 0; i < 4; ++i) count = count * 256 + static_cast<unsigned>(file.get());
        return count;
    }
    Array<Integer> Pool(const std::vector<int>& numbers) {
        Array<Integer> pool;
        pool.Redim(static_cast<int>(numbers.size()));
        for (std::size_t i = 0; i < numbers.size(); ++i) pool(static_cast<int>(i)) = numbers[i];
        return pool;
    }
    const Texts& Wheel(const std::vector<int>& numbers, int numbersPerTicket = 6) {
        Array<Integer> pool = Pool(numbers);
        WheelTickets(session, window, pool, numbersPerTicket);
        return list.items;
    }

    std::string db = DbName();
    std::string TableName = "PlayedLottario";
    Integer mode, HowManyToWheel, NumbersPerTicket = 6;
    Array<std::string> QuickPicks;
    BoxesOfTheTab face;
    LineList list;
    RecordingChart chart;
    WheelWindow window{face, list, chart};
};

TEST(WheelTicketsTest, SevenNumbersInAnyOrderMakeTheFirstRowAsTypedAndSixSortedOnes) {
    WheelWorld world;
    EXPECT_EQ(world.Wheel({40, 7, 33, 2, 19, 28, 11}),
              (Texts{"40, 7, 33, 2, 19, 28", "2, 7, 11, 19, 28, 33", "2, 11, 19, 28, 33, 40",
                     "2, 7, 11, 19, 28, 40", "7, 11, 19, 28, 33, 40", "2, 7, 11, 28, 33, 40",
                     "2, 7, 11, 19, 33, 40"}));
}

TEST(WheelTicketsTest, TheSevenRowsAreDifferentAndEachLeavesOutAnotherNumber) {
    WheelWorld world;
    std::set<std::string> leftOut;
    for (const std::string& row : world.Wheel({1, 2, 3, 4, 5, 6, 7}))
        for (int number = 1; number <= 7; ++number)
            if ((", " + row + ",").find(", " + std::to_string(number) + ",") == std::string::npos)
                leftOut.insert(std::to_string(number));
    EXPECT_EQ(world.list.items.size(), 7U);
    EXPECT_EQ(leftOut.size(), 7U);
}

TEST(WheelTicketsTest, RotationLeavesTheSpareSlotAndTheSortOverwritesNumbers) {
    WheelWorld world;
    Array<Integer> pool = world.Pool({1, 2, 3, 4, 5, 6, 7});
    WheelTickets(world.session, world.window, pool, 6);
    EXPECT_EQ(pool(7), 0);
    EXPECT_EQ(pool(0), 7);
    EXPECT_EQ(pool(6), 6);
    ASSERT_EQ(world.global.Numbers.UBound(), 6);
    EXPECT_EQ(world.global.Numbers(5), 7);
}

TEST(WheelTicketsTest, TheWheelOfSevenRotatesAllNumbersOfItsPool) {
    WheelWorld world(9, 7, 1);
    EXPECT_EQ(ErrorOf([&] { world.Wheel({1, 2, 3, 4, 5, 6, 7, 8, 9}); }), 9);
    EXPECT_TRUE(world.list.items.empty());
}

TEST(WheelTicketsTest, TheWheelOfEightShowsSevenNumbersAsRotatedNotAsSorted) {
    WheelWorld world(8, 8, 8);
    EXPECT_EQ(
        world.Wheel({8, 1, 7, 2, 6, 3, 5, 4}, 7),
        (Texts{"8, 1, 7, 2, 6, 3", "1, 7, 2, 6, 3, 5, 4", "7, 2, 6, 3, 5, 4, 8", "2, 6, 3, 5, 4, 8, 1",
               "6, 3, 5, 4, 8, 1, 7", "3, 5, 4, 8, 1, 7, 2", "5, 4, 8, 1, 7, 2, 6", "4, 8, 1, 7, 2, 6, 3"}));
}

TEST(WheelTicketsTest, EightNumbersCannotBeWheeled) {
    WheelWorld world(8, 56, 1);
    EXPECT_EQ(ErrorOf([&] { world.Wheel({1, 2, 3, 4, 5, 6, 7, 8}); }), 9);
    EXPECT_TRUE(world.list.items.empty());
}

TEST(WheelTicketsTest, LargerWheelsHaveOneRowAndEmptyOnes) {
    for (const int size : {504, 1000, 72, 720}) {
        WheelWorld world(9, size, 3);
        EXPECT_EQ(world.Wheel({9, 8, 7, 6, 5, 4, 3, 2, 1}), (Texts{"9, 8, 7, 6, 5, 4", "", ""}));
    }
}

TEST(WheelTicketsTest, WithoutASizeTheWheelFails) {
    WheelWorld world(7, 0);
    EXPECT_EQ(ErrorOf([&] { world.Wheel({1, 2, 3, 4, 5, 6, 7}); }), 9);
}

TEST(WheelTicketsTest, APoolTooShortForATicketFails) {
    WheelWorld world(0, 1000);
    EXPECT_EQ(ErrorOf([&] { world.Wheel({}); }), 9);
}

TEST(WheelTicketsTest, MoreTicketsThanTheWheelHasAreRefusedBeforeTheFirstLine) {
    WheelWorld world(7, 7, 8);
    world.dialogs.Expect("Error!", TooManyText);
    EXPECT_TRUE(world.Wheel({1, 2, 3, 4, 5, 6, 7}).empty());
    EXPECT_EQ(world.face.refused, 1);
}

TEST(WheelTicketsTest, FewerTicketsTakeTheRowsFromTheStartAndNoneNone) {
    WheelWorld two(7, 7, 2);
    EXPECT_EQ(two.Wheel({1, 2, 3, 4, 5, 6, 7}), (Texts{"1, 2, 3, 4, 5, 6", "2, 3, 4, 5, 6, 7"}));
    WheelWorld none(7, 7, 0);
    EXPECT_TRUE(none.Wheel({1, 2, 3, 4, 5, 6, 7}).empty());
    EXPECT_EQ(none.face.refused, 0);
}

TEST(HotWheelTest, TheSevenMostDrawnNumbersMakeSevenDistinctLines) {
    WheelWorld world;
    world.AddDraws(20, "3, 9, 14, 22, 30, 37, 45");
    world.AddDraws(2, "1, 2, 4, 5, 6, 7, 8");
    world.Generate(WheelType::Hot);
    EXPECT_EQ(world.list.items,
              (Texts{"3, 9, 14, 22, 30, 37", "9, 14, 22, 30, 37, 45", "3, 14, 22, 30, 37, 45",
                     "3, 9, 22, 30, 37, 45", "3, 9, 14, 30, 37, 45", "3, 9, 14, 22, 37, 45",
                     "3, 9, 14, 22, 30, 45"}));
    EXPECT_EQ(Texts(world.face.favourites.begin(), world.face.favourites.begin() + 8),
              (Texts{"3", "9", "14", "22", "30", "37", "45", ""}));
    EXPECT_EQ(world.face.enabled, (std::set<int>{0, 1, 2, 3, 4, 5, 6}));
    EXPECT_EQ(world.TableName, "Temp");
    EXPECT_EQ(world.mode, 1);
    EXPECT_FALSE(world.global.Generating);
    EXPECT_TRUE(world.chart.calls.empty());
    world.ExpectTempEmptyAndFileFree();
}

TEST(ColdWheelTest, TheLeastDrawnNumbersAreTakenTiesByNumber) {
    WheelWorld world;
    world.AddDraws(20, "3, 9, 14, 22, 30, 37, 45");
    world.AddDraws(1, "1, 2, 4, 5, 6, 7, 8");
    world.Generate(WheelType::Cold);
    EXPECT_EQ(world.list.items.front(), "10, 11, 12, 13, 15, 16");
    EXPECT_EQ(world.face.favourites[6], "17");
    EXPECT_FALSE(world.global.Generating);
    world.ExpectTempEmptyAndFileFree();
}

TEST(HotWheelTest, RowsLeftInTempByAnEarlierRunAreReplaced) {
    WheelWorld world;
    world.AddDraws(20, "3, 9, 14, 22, 30, 37, 45");
    world.Plain().Do("INSERT INTO Temp VALUES (1, 1, 30000), (2, 2, 30000)");
    world.Generate(WheelType::Hot);
    EXPECT_EQ(world.list.items.front(), "3, 9, 14, 22, 30, 37");
    world.ExpectTempEmptyAndFileFree();
}

TEST(HotWheelTest, NineteenDrawsAreRefusedWithTheWordHotForBothAndGeneratingStays) {
    for (const WheelType type : {WheelType::Hot, WheelType::Cold}) {
        WheelWorld world;
        world.AddDraws(19, "3, 9, 14, 22, 30, 37, 45");
        world.face.favourites[0] = "5";
        world.dialogs.Expect("Not Enough Data", NotEnoughText);
        world.Generate(type);
        EXPECT_TRUE(world.list.items.empty());
        EXPECT_TRUE(world.global.Generating);
        EXPECT_EQ(world.face.favourites[0], "");
        EXPECT_EQ(world.TableName, "WinLottario");
        world.AddDraws(1, "3, 9, 14, 22, 30, 37, 45");
        world.Generate(type);
        EXPECT_EQ(world.list.items.size(), 7U);
        EXPECT_FALSE(world.global.Generating);
    }
}

TEST(HotWheelTest, EightNumbersFailUnhandledWithTempEmptyAndTheFileFree) {
    WheelWorld world(8, 56, 3);
    world.AddDraws(20, "3, 9, 14, 22, 30, 37, 45");
    EXPECT_EQ(ErrorOf([&] { world.Generate(WheelType::Hot); }), 9);
    EXPECT_TRUE(world.list.items.empty());
    EXPECT_EQ(world.face.favourites[0], "1");
    EXPECT_TRUE(world.global.Generating);
    world.ExpectTempEmptyAndFileFree();
}

TEST(HotWheelTest, NineNumbersGiveOneLineAndEmptyOnes) {
    WheelWorld world(9, 504, 3);
    world.AddDraws(20, "3, 9, 14, 22, 30, 37, 45");
    world.Generate(WheelType::Hot);
    EXPECT_EQ(world.list.items, (Texts{"1, 2, 3, 9, 14, 22", "", ""}));
}

TEST(HotWheelTest, BeforeHowManyWasVisitedTheWheelFailsWhenThereAreDraws) {
    WheelWorld world(0, 0);
    world.AddDraws(20, "3, 9, 14, 22, 30, 37, 45");
    EXPECT_EQ(ErrorOf([&] { world.Generate(WheelType::Hot); }), 9);
    world.ExpectTempEmptyAndFileFree();
}

TEST(HotWheelTest, TooManyTicketsEndTheRunAsFinished) {
    WheelWorld world(7, 7, 8);
    world.AddDraws(20, "3, 9, 14, 22, 30, 37, 45");
    world.dialogs.Expect("Error!", TooManyText);
    world.Generate(WheelType::Hot);
    EXPECT_TRUE(world.list.items.empty());
    EXPECT_FALSE(world.global.Generating);
    world.ExpectTempEmptyAndFileFree();
}

TEST(HotWheelTest, WithoutAWinTableItsBoxAndTheRefusalCome) {
    WheelWorld world;
    world.Plain().Do("DROP TABLE WinLottario");
    world.ExpectStoreError(3011, "Unable to open WinLottario table. Please advise error number to support.");
    world.dialogs.Expect("Not Enough Data", NotEnoughText);
    world.Generate(WheelType::Hot);
}

TEST(HotWheelTest, WithoutTempItsBoxComesAndTheQueryFailsUnhandled) {
    WheelWorld world;
    world.AddDraws(20, "3, 9, 14, 22, 30, 37, 45");
    world.Plain().Do("DROP TABLE Temp");
    world.ExpectStoreError(3011, "Unable to open Temp table. Please advise error number to support.");
    EXPECT_EQ(ErrorOf([&] { world.Generate(WheelType::Hot); }), 3078);
    EXPECT_EQ(world.global.Open.DbOpen, Off);
}

TEST(BuildTempTableTest, TheRowsAreTheNumbersWithTheirFrequenciesCommittedOnce) {
    WheelWorld world;
    Array<Integer> frequencies = world.Pool({5, 0, 7});
    const unsigned commits = world.Commits();
    BuildTempTable(world.session, world.db, world.TableName, 2, frequencies);
    EXPECT_EQ(world.Plain().Rows("SELECT * FROM Temp"), (Texts{"1|1|5", "2|2|0", "3|3|7"}));
    EXPECT_EQ(world.Commits(), commits + 1);
    EXPECT_EQ(world.TableName, "Temp");
    EXPECT_EQ(world.global.Open.DbOpen, Off);
}

TEST(HotWheelTest, AWheelCommitsTwiceWhenTempIsFilledAndWhenItIsEmptied) {
    WheelWorld world;
    world.AddDraws(20, "3, 9, 14, 22, 30, 37, 45");
    const unsigned commits = world.Commits();
    world.Generate(WheelType::Hot);
    EXPECT_EQ(world.Commits(), commits + 2);
}

TEST(FavouritesWheelTest, TheTypedNumbersAreWheeledInTheirOrder) {
    WheelWorld world(7, 7, 2);
    const Texts typed{"40", "7", "33", "2", "19", "28", "11"};
    std::copy(typed.begin(), typed.end(), world.face.favourites.begin());
    world.Generate(WheelType::Favourites);
    EXPECT_EQ(world.list.items, (Texts{"40, 7, 33, 2, 19, 28", "2, 7, 11, 19, 28, 33"}));
    EXPECT_FALSE(world.global.Generating);
    EXPECT_EQ(world.face.favourites[0], "40");
    EXPECT_EQ(world.TableName, "PlayedLottario");
}

TEST(FavouritesWheelTest, DuplicatesAreNotLookedFor) {
    WheelWorld world(7, 7, 1);
    std::fill(world.face.favourites.begin(), world.face.favourites.begin() + 7, "5");
    world.Generate(WheelType::Favourites);
    EXPECT_EQ(world.list.items, Texts{"5, 5, 5, 5, 5, 5"});
}

TEST(FavouritesWheelTest, AMissingNumberIsAskedForAndGeneratingStaysOn) {
    WheelWorld world;
    world.face.favourites[0] = "5";
    world.face.favourites[1] = "0";
    world.list.AddItem("an earlier line");
    world.dialogs.Expect(
        "Error!", "Please enter your favourite Numbers prior to clicking on the\r\nGenerate Numbers button.");
    world.Generate(WheelType::Favourites);
    EXPECT_EQ(world.face.askedFor, 1);
    EXPECT_TRUE(world.list.items.empty());
    EXPECT_TRUE(world.global.Generating);
}

TEST(FavouritesWheelTest, ANumberBeyondSixteenBitsIsAnOverflow) {
    WheelWorld world(7, 7, 1);
    std::fill(world.face.favourites.begin(), world.face.favourites.begin() + 7, "5");
    world.face.favourites[0] = "32767";
    world.Generate(WheelType::Favourites);
    EXPECT_EQ(world.list.items, Texts{"32767, 5, 5, 5, 5, 5"});
    world.face.favourites[0] = "40000";
    EXPECT_EQ(ErrorOf([&] { world.Generate(WheelType::Favourites); }), 6);
}

TEST(QuickPickWheelTest, TheFourthChoiceDrawsRandomTickets) {
    WheelWorld world(0, 0, 5);
    world.Generate(WheelType::QuickPick);
    EXPECT_EQ(world.list.items.size(), 5U);
    EXPECT_EQ(world.QuickPicks(4), world.list.items[4]);
    EXPECT_FALSE(world.global.Generating);
    EXPECT_EQ(world.mode, 1);
}

TEST(QuickPickWheelTest, AWheelLeavesQuickPicksAsTheGeneratorLeftThem) {
    WheelWorld world(7, 7, 1);
    world.Generate(WheelType::QuickPick);
    const std::string drawn = world.QuickPicks(0);
    std::fill(world.face.favourites.begin(), world.face.favourites.begin() + 7, "5");
    world.Generate(WheelType::Favourites);
    EXPECT_EQ(world.QuickPicks(0), drawn);
}

TEST(WheelSizeTest, TheSizeGoesByTheText) {
    struct Case {
        Family family;
        const char* text;
        int size;
    };
    for (const Case& look :
         {Case{Family::frm649, "7", 7}, Case{Family::frm649, "8", 56}, Case{Family::frm645, "9", 504},
          Case{Family::frm645, "10", 1000}, Case{Family::frm649, "07", 1000}, Case{Family::frm649, "", 1000},
          Case{Family::frm749, "7", 1000}, Case{Family::frm749, "8", 8}, Case{Family::frm749, "9", 72},
          Case{Family::frm749, "10", 720}, Case{Family::frm749, "11", 1000}})
        EXPECT_EQ(WheelSizeOf(look.family, look.text), look.size) << look.text;
}

TEST(QuickPickFactsTest, OnlyLottariosWindowWheels) {
    for (const Family family : AllFamilies) {
        EXPECT_EQ(WheelLive[family], family == Family::frm645);
        EXPECT_EQ(WheelFrame[family], !IsPick(family));
        EXPECT_EQ(WheelSizes[family] != nullptr, !IsPick(family) && !IsKeno(family));
    }
}

}  // namespace
}  // namespace sorvane

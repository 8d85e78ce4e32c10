// Random tickets and the sort behind them.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numeric>
#include <set>

#include "platform/SystemServices.h"
#include "quickpick/GeneralFunctions.h"
#include "quickpick/GenerateQuickPicks.h"
#include "support/World.h"

namespace sorvane {
namespace {

using testing::World;
using Texts = std::vector<std::string>;

// Hands out the same services with another random source.
struct PickWorld : World {
    explicit PickWorld(std::string_view LottoFlag, RandomSource* source = nullptr)
        : picks{dialogs, printer, clock, source ? *source : random, tools, engine}, with{global, picks} {
        global.LottoFlag = LottoFlag;
    }
    const Texts& Generate(int shape, int tickets) {
        list.Clear();
        const Integer numbersPerTicket = shape, count = tickets;
        GenerateQuickPicks(with, numbersPerTicket, count, QuickPicks, list);
        return list.items;
    }
    Services picks;
    Session with;
    Array<std::string> QuickPicks;
    LineList list;
};

std::vector<int> NumbersOf(const std::string& line) {
    std::vector<int> numbers;
    for (std::size_t at = 0; at < line.size();) {
        const std::size_t end = std::min(line.find(", ", at), line.size());
        numbers.push_back(std::stoi(line.substr(at, end - at)));
        at = end + 2;
    }
    return numbers;
}

// Values that make Int(Rnd * max) the given numbers.
testing::FixedRandom Draws(int max, std::initializer_list<int> numbers) {
    std::vector<double> values;
    for (const int number : numbers) values.push_back((number + 0.5) / max);
    return testing::FixedRandom(values);
}

TEST(SortNumbersTest, TheLastSlotTakesNoPartAndTheWholeArrayIsCopiedToNumbers) {
    Global global;
    global.Numbers.Redim(1);
    Array<Integer> numbers;
    numbers.Redim(5);
    const int values[] = {30, 4, 17, 4, 29, 1};
    for (int i = 0; i <= 5; ++i) numbers(i) = values[i];
    SortNumbers(global, numbers);
    const int sorted[] = {4, 4, 17, 29, 30, 1};
    ASSERT_EQ(global.Numbers.UBound(), 5);
    for (int i = 0; i <= 5; ++i) {
        EXPECT_EQ(numbers(i), sorted[i]);
        EXPECT_EQ(global.Numbers(i), sorted[i]);
    }
}

TEST(SortNumbersTest, NumbersItselfIsSortedInPlace) {
    Global global;
    global.Numbers.Redim(2);
    global.Numbers(0) = 9;
    global.Numbers(1) = -3;
    SortNumbers(global, global.Numbers);
    EXPECT_EQ(global.Numbers(0), -3);
    EXPECT_EQ(global.Numbers(1), 9);
    EXPECT_EQ(global.Numbers(2), 0);
}

TEST(SortNumbersTest, ASingleSlotStaysAndAnArrayNeverSizedIsAnError) {
    Global global;
    Array<Integer> one, none;
    one.Redim(0);
    one(0) = 5;
    SortNumbers(global, one);
    EXPECT_EQ(global.Numbers(0), 5);
    EXPECT_EQ(ErrorOf([&] { SortNumbers(global, none); }), 9);
}

TEST(QuickPickTest, NoTicketsMeanNoReseedingNoLineAndOneSlot) {
    PickWorld world("Lotto649");
    EXPECT_TRUE(world.Generate(6, 0).empty());
    EXPECT_EQ(world.random.randomized, 0);
    EXPECT_EQ(world.QuickPicks.UBound(), 0);
}

TEST(QuickPickTest, TheSourceIsReseededOnceATicket) {
    for (const auto& [key, shape] :
         {std::pair{"Lotto649", 6}, {"Super 7", 7}, {"FLACash3", 3}, {"ONTKeno", 20}}) {
        PickWorld world(key);
        world.global.NoOfBallsPerTicket = 10;
        world.Generate(shape, 37);
        EXPECT_EQ(world.random.randomized, 37) << key;
    }
}

TEST(QuickPickTest, ALineIsJoinedWithoutPaddingAndLeftInTheSlotOfItsTicket) {
    testing::FixedRandom random = Draws(49, {10, 2, 45, 19, 33, 26, 0, 1, 2, 3, 4, 48});
    PickWorld world("Lotto649", &random);
    EXPECT_EQ(world.Generate(6, 2), (Texts{"3, 11, 20, 27, 34, 46", "1, 2, 3, 4, 5, 49"}));
    ASSERT_EQ(world.QuickPicks.UBound(), 2);
    EXPECT_EQ(world.QuickPicks(0), "3, 11, 20, 27, 34, 46");
    EXPECT_EQ(world.QuickPicks(1), "1, 2, 3, 4, 5, 49");
    EXPECT_EQ(world.QuickPicks(2), "");
    ASSERT_EQ(world.global.Numbers.UBound(), 6);
    EXPECT_EQ(world.global.Numbers(5), 49);
    EXPECT_EQ(world.global.Numbers(6), 0);
}

TEST(QuickPickTest, ANumberThatStandsBeforeIsDrawnAgainUntilItDiffers) {
    testing::FixedRandom random = Draws(45, {6, 6, 6, 7, 6, 7, 8, 9, 10, 11});
    PickWorld world("Lottario", &random);
    EXPECT_EQ(world.Generate(6, 1), Texts{"7, 8, 9, 10, 11, 12"});
}

TEST(QuickPickTest, DigitsMayRepeatAndAreNotSorted) {
    testing::FixedRandom random = Draws(9, {4, 4, 1, 0, 7, 2});
    PickWorld world("ONTPick3", &random);
    EXPECT_EQ(world.Generate(3, 2), (Texts{"4, 4, 1", "0, 7, 2"}));
    EXPECT_EQ(world.QuickPicks(0), "4, 4, 1");
}

TEST(QuickPickTest, TheHighestDigitIsEightAndTheHighestNumberTheTopOfTheGame) {
    testing::FixedRandom digits(std::vector<double>{0.0, 0.999999999, std::nextafter(1.0, 0.0), 0.5});
    PickWorld play4("FLAPlay4", &digits);
    EXPECT_EQ(play4.Generate(4, 1), Texts{"0, 8, 8, 4"});
    testing::FixedRandom numbers(std::vector<double>{0.0, std::nextafter(1.0, 0.0), 0.5, 0.25, 0.75, 0.9});
    PickWorld lottario("Lottario", &numbers);
    EXPECT_EQ(lottario.Generate(6, 1), Texts{"1, 12, 23, 34, 41, 45"});
}

struct GameCase {
    const char* key;
    int shape;
    int max;
    int count;
};
const GameCase Games[] = {
    {"Lotto649", 6, 49, 6},      {"BC49", 6, 49, 6},         {"Ontario49", 6, 49, 6},
    {"Western649", 6, 49, 6},    {"Quebec49", 6, 49, 6},     {"Super 7", 7, 49, 7},
    {"Lottario", 6, 45, 6},      {"WestPick3", 3, 9, 3},     {"BCDaily3", 3, 9, 3},
    {"ONTPick3", 3, 9, 3},       {"Quote3", 3, 9, 3},        {"FLACash3", 3, 9, 3},
    {"ATLPik4", 4, 9, 4},        {"Quote4", 4, 9, 4},        {"FLAPlay4", 4, 9, 4},
    {"ONTKeno", 20, 70, 10},     {"QCBanco", 20, 70, 10},    {"ATLChoice", 20, 70, 10},
    {"PrairieKeno", 20, 80, 10}, {"BCClubKeno", 20, 80, 10},
};

TEST(QuickPickTest, EveryKeyDrawsItsRangeAndCount) {
    for (const GameCase& game : Games) {
        PickWorld world(game.key);
        world.global.NoOfBallsPerTicket = 10;
        std::set<int> seen;
        for (const std::string& line : world.Generate(game.shape, 400)) {
            const std::vector<int> numbers = NumbersOf(line);
            ASSERT_EQ(static_cast<int>(numbers.size()), game.count) << game.key;
            seen.insert(numbers.begin(), numbers.end());
        }
        const int lowest = game.max == 9 ? 0 : 1;
        EXPECT_EQ(*seen.begin(), lowest) << game.key;
        EXPECT_EQ(*seen.rbegin(), game.max == 9 ? 8 : game.max) << game.key;
    }
}

TEST(QuickPickTest, ANewRunStartsFreshSlots) {
    PickWorld world("Lotto649");
    world.Generate(6, 5);
    world.Generate(6, 2);
    EXPECT_EQ(world.QuickPicks.UBound(), 2);
    EXPECT_EQ(world.list.ListCount(), 2);
}

TEST(QuickPickTest, KenoLinesNeverReachQuickPicks) {
    PickWorld world("ONTKeno");
    world.global.NoOfBallsPerTicket = 4;
    EXPECT_EQ(world.Generate(20, 3).size(), 3U);
    for (int slot = 0; slot <= 3; ++slot) EXPECT_EQ(world.QuickPicks(slot), "");
}

TEST(QuickPickTest, KenoWithoutBallsAddsAnEmptyLineATicket) {
    PickWorld world("ONTKeno");
    EXPECT_EQ(world.Generate(20, 3), (Texts{"", "", ""}));
}

TEST(QuickPickTest, KenoWithANegativeNumberOfBallsAddsAnEmptyLineATicket) {
    PickWorld world("ONTKeno");
    world.global.NoOfBallsPerTicket = -5;
    EXPECT_EQ(world.Generate(20, 2), (Texts{"", ""}));
}

TEST(QuickPickTest, KenoDrawsTwentyPositionsAtMostAndTheZerosOfTheOthersComeFirst) {
    PickWorld world("BCClubKeno");
    world.global.NoOfBallsPerTicket = 23;
    const std::vector<int> numbers = NumbersOf(world.Generate(20, 1).front());
    ASSERT_EQ(numbers.size(), 23U);
    EXPECT_EQ(std::count(numbers.begin(), numbers.end(), 0), 3);
    EXPECT_TRUE(std::is_sorted(numbers.begin(), numbers.end()));
}

TEST(QuickPickTest, EveryLineOfMoreThanTwentyKenoNumbersStartsWithItsNoughts) {
    PickWorld world("ONTKeno");
    world.global.NoOfBallsPerTicket = 23;
    const Texts lines = world.Generate(20, 4);
    ASSERT_EQ(lines.size(), 4U);
    for (const std::string& line : lines) {
        EXPECT_EQ(line.rfind("0, 0, 0, ", 0), 0U) << line;
        const std::vector<int> numbers = NumbersOf(line);
        EXPECT_EQ(std::count(numbers.begin(), numbers.end(), 0), 3) << line;
    }
}

TEST(QuickPickTest, KenoWithoutADrawShowsAllThatWasLeft) {
    PickWorld world("FLACash3");
    world.global.LottoFlag = "WESTPick3";
    world.global.NoOfBallsPerTicket = 5;
    world.global.Numbers.Redim(4);
    for (int position = 0; position < 5; ++position) world.global.Numbers(position) = 7 + position;
    EXPECT_EQ(world.Generate(20, 1), Texts{"7, 8, 9, 10, 11"});
}

TEST(QuickPickTest, TheWesternKeyDrawsNothingAndShowsWhatWasLeft) {
    PickWorld world("FLACash3");
    const std::string last = world.Generate(3, 2).back();
    world.global.LottoFlag = "WESTPick3";
    EXPECT_EQ(world.Generate(3, 2), (Texts{last, last}));
    EXPECT_EQ(world.QuickPicks(1), last);
    EXPECT_EQ(world.random.randomized, 4);
}

TEST(QuickPickTest, TheWesternKeyBeforeAnyOtherShowsNothingAtAll) {
    PickWorld world("WESTPick3");
    EXPECT_TRUE(world.Generate(3, 2).empty());
    ASSERT_EQ(world.QuickPicks.UBound(), 2);
    EXPECT_EQ(world.QuickPicks(0), "");
    EXPECT_FALSE(world.global.Numbers.Sized());
}

TEST(QuickPickTest, TheWesternKeyBehindTooShortAnArrayShowsNothing) {
    PickWorld world("WESTPick3");
    world.global.Numbers.Redim(1);
    EXPECT_TRUE(world.Generate(3, 2).empty());
    world.global.Numbers.Redim(2);
    EXPECT_EQ(world.Generate(3, 1), Texts{"0, 0, 0"});
}

// A list that refuses one of its lines.
class FullList final : public Lines {
  public:
    void AddItem(std::string_view text) override {
        if (++asked_ == 2) Raise(ErrorNumber::OutOfMemory);
        items.emplace_back(text);
    }
    void Clear() override {}
    int ListCount() const override { return static_cast<int>(items.size()); }
    Texts items;

  private:
    int asked_ = 0;
};

TEST(QuickPickTest, AStatementThatFailsIsLeftOutAndTheNextOneRuns) {
    PickWorld world("Lotto649");
    FullList list;
    GenerateQuickPicks(world.with, 6, 3, world.QuickPicks, list);
    EXPECT_EQ(list.items.size(), 2U);
    EXPECT_EQ(list.items.back(), world.QuickPicks(2));
    EXPECT_NE(world.QuickPicks(1), "");
}

TEST(QuickPickTest, ANegativeCountMakesNothing) {
    PickWorld world("Lotto649");
    EXPECT_TRUE(world.Generate(6, -3).empty());
}

TEST(QuickPickTest, TheLargestCountIsMade) {
    PickWorld world("Lotto649");
    EXPECT_EQ(world.Generate(6, 32'767).size(), 32'767U);
    EXPECT_EQ(world.QuickPicks.UBound(), 32'767);
}

// Chi-square of counts against equal chances, and the limit that one run of a thousand passes.
double ChiSquare(const std::vector<long>& counts) {
    const double all = static_cast<double>(std::accumulate(counts.begin(), counts.end(), 0L));
    const double expected = all / static_cast<double>(counts.size());
    double sum = 0;
    for (const long count : counts) {
        const double off = static_cast<double>(count) - expected;
        sum += off * off / expected;
    }
    return sum;
}
// Wilson and Hilferty's approximation.
double LimitOfChiSquare(std::size_t classes) {
    constexpr double OneOfAThousand = 3.0902;
    const double freedom = static_cast<double>(classes - 1);
    const double part = 2 / (9 * freedom);
    return freedom * std::pow(1 - part + OneOfAThousand * std::sqrt(part), 3);
}

// The seeds are fixed; a failure names them.
class RandomnessTest : public ::testing::TestWithParam<GameCase> {};

TEST_P(RandomnessTest, TwoHundredThousandTicketsUseEveryNumberEquallyAndKeepTheirOrder) {
    const GameCase game = GetParam();
    const bool digits = game.max == 9;
    std::vector<long> counts(static_cast<std::size_t>(game.max));
    for (std::uint64_t seed = 1; seed <= 8; ++seed) {
        testing::FixedRandom random(seed * 1'000'003);
        PickWorld world(game.key, &random);
        world.global.NoOfBallsPerTicket = game.count;
        for (const std::string& line : world.Generate(game.shape, 25'000)) {
            const std::vector<int> numbers = NumbersOf(line);
            ASSERT_EQ(static_cast<int>(numbers.size()), game.count);
            if (!digits) {
                const auto ties = std::adjacent_find(numbers.begin(), numbers.end(), std::greater_equal<>());
                ASSERT_EQ(ties, numbers.end()) << line;
            }
            for (const int number : numbers) {
                const int place = digits ? number : number - 1;
                ASSERT_GE(place, 0);
                ASSERT_LT(place, game.max);  // so no digit game holds a 9
                ++counts[static_cast<std::size_t>(place)];
            }
        }
    }
    EXPECT_GT(*std::min_element(counts.begin(), counts.end()), 0);
    EXPECT_LT(ChiSquare(counts), LimitOfChiSquare(counts.size())) << "seeds 1000003 to 8000024";
}

INSTANTIATE_TEST_SUITE_P(EveryRange, RandomnessTest,
                         ::testing::Values(GameCase{"Lotto649", 6, 49, 6}, GameCase{"Super 7", 7, 49, 7},
                                           GameCase{"Lottario", 6, 45, 6}, GameCase{"FLACash3", 3, 9, 3},
                                           GameCase{"FLAPlay4", 4, 9, 4}, GameCase{"ONTKeno", 20, 70, 10},
                                           GameCase{"BCClubKeno", 20, 80, 10}));

TEST(SystemRandomTest, TheProgramsOwnSourceReseededEachTicketUsesEveryNumber) {
    SystemRandom random;
    PickWorld world("Lotto649", &random);
    std::set<int> seen;
    std::set<std::string> tickets;
    for (const std::string& line : world.Generate(6, 20'000)) {
        tickets.insert(line);
        for (const int number : NumbersOf(line)) seen.insert(number);
    }
    EXPECT_EQ(seen.size(), 49U);
    // About 14 of 20,000 random tickets are repeated.
    EXPECT_GT(tickets.size(), 19'900U);
}

TEST(SystemRandomTest, TheFirstTicketsOfAThousandFreshGeneratorsAreAllDifferent) {
    std::set<std::string> tickets;
    for (int i = 0; i < 1000; ++i) {
        SystemRandom random;
        PickWorld world("BCClubKeno", &random);
        world.global.NoOfBallsPerTicket = 20;
        tickets.insert(world.Generate(20, 1).front());
    }
    EXPECT_EQ(tickets.size(), 1000U);
}

}  // namespace
}  // namespace sorvane

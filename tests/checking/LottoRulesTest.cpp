#include <algorithm>
#include <map>
#include <set>

#include "checking/CheckWorld.h"

namespace sorvane::testing {

namespace {

const std::string Jackpot = "Congratulations! You've hit the JACKPOT!!!";
const std::string Second = "Congratulations! You've won 2nd Prize!";
std::string Matched(int count) {
    return "Congratulations! You matched " + std::to_string(count) + " Numbers!";
}

// What a draw pays, said once more in another form: by the count alone, or by count and bonus.
struct Payment {
    std::string plain;
    std::string withBonus;
};
std::string Paid(const std::map<int, Payment>& payments, int count, bool bonus, const std::string& above) {
    const auto payment = payments.find(count);
    if (payment == payments.end()) return count > payments.rbegin()->first ? above : Sorry;
    return bonus ? payment->second.withBonus : payment->second.plain;
}
const std::map<int, Payment> SixPays{{3, {Matched(3), Matched(3)}},
                                     {4, {Matched(4), Matched(4)}},
                                     {5, {Matched(5), Second}},
                                     {6, {Jackpot, Jackpot}}};
const std::string Ten = "Congratulations! You've won $10.00!";
const std::map<int, Payment> SevenPays{{3, {"Congratulations! You've won a FREE Ticket!", Ten}},
                                       {4, {Ten, Ten}},
                                       {5, {Matched(5), Matched(5)}},
                                       {6, {"Congratulations! You've won 3rd Prize!", Second}},
                                       {7, {Jackpot, Jackpot}}};

// Matches seen from the boxes: how often each drawn number stands on the ticket.
int CountFromBoxes(const Numbers& ticket, const Numbers& drawn) {
    std::multiset<int> held(ticket.begin(), ticket.end());
    int count = 0;
    for (const int number : drawn) count += static_cast<int>(held.count(number));
    return count;
}

Numbers Range(int from, int count) {
    Numbers numbers;
    for (int i = 0; i < count; ++i) numbers.push_back(from + i);
    return numbers;
}

// A draw of `size` numbers that shares `count` with the ticket 1 to size, and a bonus on or off the ticket.
Numbers DrawSharing(int size, int count, bool bonus) {
    Numbers drawn = Range(1, count);
    const Numbers others = Range(31, size - count);
    drawn.insert(drawn.end(), others.begin(), others.end());
    drawn.push_back(bonus ? size : 49);
    return drawn;
}

}  // namespace

using LottoRules = JudgeTest;

TEST_F(LottoRules, SixNumbersEveryCountWithAndWithoutBonus) {
    Ticket6(Range(1, 6));
    for (int count = 0; count <= 6; ++count) {
        for (const bool bonus : {false, true}) {
            Draw(DrawSharing(6, count, bonus));
            EXPECT_EQ(Line(CheckLotto6), Paid(SixPays, count, bonus, "")) << count << bonus;
            EXPECT_EQ(global.MatchCount, count);
            EXPECT_EQ(global.Msg, Paid(SixPays, count, bonus, ""));
        }
    }
}

TEST_F(LottoRules, SevenNumbersEveryCountWithAndWithoutBonus) {
    Ticket7(Range(1, 7));
    for (int count = 0; count <= 7; ++count) {
        for (const bool bonus : {false, true}) {
            Draw(DrawSharing(7, count, bonus));
            global.MatchCount = 9;
            EXPECT_EQ(Line(CheckLotto7), Paid(SevenPays, count, bonus, "")) << count << bonus;
            EXPECT_EQ(global.MatchCount, 0);
        }
    }
}

TEST_F(LottoRules, SixOfNineEveryTicketAgainstEveryDrawAndBonus) {
    Numbers ticketMask{0, 0, 0, 1, 1, 1, 1, 1, 1};
    const auto chosen = [](const Numbers& mask) {
        Numbers numbers;
        for (std::size_t i = 0; i < mask.size(); ++i)
            if (mask[i] == 1) numbers.push_back(static_cast<int>(i) + 1);
        return numbers;
    };
    do {
        const Numbers ticket = chosen(ticketMask);
        Ticket6(ticket);
        Numbers drawMask{0, 0, 0, 1, 1, 1, 1, 1, 1};
        do {
            const Numbers drawn = chosen(drawMask);
            const int count = CountFromBoxes(ticket, drawn);
            for (int bonus = 1; bonus <= 9; ++bonus) {
                Numbers all = drawn;
                all.push_back(bonus);
                Draw(all);
                const bool hit = std::binary_search(ticket.begin(), ticket.end(), bonus);
                ASSERT_EQ(Line(CheckLotto6), Paid(SixPays, count, hit, ""));
            }
        } while (std::next_permutation(drawMask.begin(), drawMask.end()));
    } while (std::next_permutation(ticketMask.begin(), ticketMask.end()));
}

TEST_F(LottoRules, SixNumbersAgainstBoxesThatRepeatNumbers) {
    SplitMix mix(649);
    for (int pair = 0; pair < 100'000; ++pair) {
        Numbers ticket, drawn;
        const int top = Between(mix, 7, 20);
        for (int i = 0; i < 6; ++i) ticket.push_back(Between(mix, 1, top));
        for (int i = 0; i < 7; ++i) drawn.push_back(Between(mix, 1, top));
        Ticket6(ticket);
        Draw(drawn);
        const int bonus = drawn.back();
        drawn.pop_back();
        const int count = CountFromBoxes(ticket, drawn);
        const bool hit = std::count(ticket.begin(), ticket.end(), bonus) > 0;
        ASSERT_EQ(Line(CheckLotto6), Paid(SixPays, count, hit, Matched(count)))
            << "pair " << pair << " of seed 649";
        ASSERT_EQ(global.MatchCount, count);
    }
}

TEST_F(LottoRules, SevenNumbersAgainstBoxesThatRepeatNumbers) {
    SplitMix mix(749);
    for (int pair = 0; pair < 100'000; ++pair) {
        Numbers ticket, drawn;
        const int top = Between(mix, 8, 20);
        for (int i = 0; i < 7; ++i) ticket.push_back(Between(mix, 1, top));
        for (int i = 0; i < 8; ++i) drawn.push_back(Between(mix, 1, top));
        Ticket7(ticket);
        Draw(drawn);
        const int bonus = drawn.back();
        drawn.pop_back();
        const int count = CountFromBoxes(ticket, drawn);
        const bool hit = std::count(ticket.begin(), ticket.end(), bonus) > 0;
        ASSERT_EQ(Line(CheckLotto7), Paid(SevenPays, count, hit, Sorry)) << "pair " << pair << " of seed 749";
    }
}

TEST_F(LottoRules, AllSixWithTheBonusAmongThemReadsJackpot) {
    Ticket6({1, 2, 3, 4, 5, 6});
    Draw({6, 5, 4, 3, 2, 1, 1});
    EXPECT_EQ(Line(CheckLotto6), Jackpot);
}

TEST_F(LottoRules, TwoMatchesAndTheBonusDoNotWin) {
    Ticket6({1, 2, 3, 4, 5, 6});
    Draw({1, 2, 30, 31, 32, 33, 3});
    EXPECT_EQ(Line(CheckLotto6), Sorry);
}

TEST_F(LottoRules, ANumberTwiceAmongTheBoxesLiftsSixNumbersToACountOfSeven) {
    Ticket6({1, 2, 3, 4, 5, 5});
    Draw({1, 2, 3, 4, 5, 40, 41});
    EXPECT_EQ(Line(CheckLotto6), Jackpot);
    Ticket6({1, 2, 3, 4, 4, 5});
    Draw({1, 2, 3, 4, 4, 41, 42});
    EXPECT_EQ(Line(CheckLotto6), Matched(7));
}

TEST_F(LottoRules, ACountOfEightIsNoWinnerWithSevenNumbers) {
    Ticket7({1, 2, 3, 4, 4, 6, 7});
    Draw({1, 2, 3, 4, 4, 6, 41, 42});
    EXPECT_EQ(Line(CheckLotto7), Sorry);
}

TEST_F(LottoRules, NumbersCompareByValue) {
    Ticket6({1, 2, 3, 4, 5, 7});
    boxes.Main = {"01", " 2", "3", "04", "5.0", "07", "9"};
    EXPECT_EQ(Line(CheckLotto6), Jackpot);
}

TEST_F(LottoRules, LettersInABoxEndTheCheck) {
    Ticket6({1, 2, 3, 4, 5, 6});
    boxes.Main = {"1", "2", "3", "x", "5", "6", "7"};
    LineList list;
    EXPECT_EQ(ErrorOf([&] { CheckLotto6(session, boxes, 0, list); }), ErrorNumber::TypeMismatch);
    boxes.Main.at(3) = "32768";
    EXPECT_EQ(ErrorOf([&] { CheckLotto6(session, boxes, 0, list); }), ErrorNumber::Overflow);
    EXPECT_TRUE(list.items.empty());
}

TEST_F(LottoRules, AnArrayThatNoReaderSizedRaisesTheSubscriptError) {
    Draw({1, 2, 3, 4, 5, 6, 7, 8});
    LineList list;
    EXPECT_EQ(ErrorOf([&] { CheckLotto6(session, boxes, 0, list); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(ErrorOf([&] { CheckLotto7(session, boxes, 0, list); }), ErrorNumber::SubscriptOutOfRange);
    Ticket6({1, 2, 3, 4, 5, 6});
    EXPECT_EQ(ErrorOf([&] { CheckLotto6(session, boxes, 1, list); }), ErrorNumber::SubscriptOutOfRange);
}

TEST_F(LottoRules, TheSameLadderHoldsForEveryGame) {
    Ticket6(Range(1, 6));
    Draw(DrawSharing(6, 5, true));
    for (const char* key : {"Lotto649", "BC49", "Ontario49", "Western649", "Quebec49", "Lottario"}) {
        global.LottoFlag = key;
        EXPECT_EQ(Line(CheckLotto6), Second);
    }
}

}  // namespace sorvane::testing

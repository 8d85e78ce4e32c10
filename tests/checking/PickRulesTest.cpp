#include <algorithm>

#include "checking/CheckWorld.h"

namespace sorvane::testing {

namespace {

const std::string Winner = "Congratulations! This Ticket is a Winner! ";

std::string Padded(int number, std::size_t digits) {
    const std::string text = std::to_string(number);
    return std::string(digits - text.size(), '0') + text;
}

// The orders of a string by their places, each the characters at those places: places first, one after the
// other, by nested choice.
void Orders(const std::string& left, const std::string& taken, Numbers& into) {
    if (left.empty()) {
        into.push_back(std::stoi(taken));
        return;
    }
    for (std::size_t i = 0; i < left.size(); ++i)
        Orders(left.substr(0, i) + left.substr(i + 1), taken + left[i], into);
}

bool SameDigits(std::string a, std::string b) {
    std::sort(a.begin(), a.end());
    std::sort(b.begin(), b.end());
    return a == b;
}

}  // namespace

struct PickRules : JudgeTest {
    Numbers Perms() const {
        Numbers perms;
        for (int i = 0; i <= global.WinPerms.UBound(); ++i) perms.push_back(global.WinPerms(i));
        return perms;
    }
    std::string Judge3(const std::string& ticket, const std::string& drawn) {
        Pick3(DigitsOf(ticket));
        Draw(DigitsOf(drawn));
        return Line(CheckPick3);
    }
    std::string Judge4(const std::string& ticket, const std::string& drawn) {
        Pick4(DigitsOf(ticket));
        Draw(DigitsOf(drawn));
        return Line(CheckPick4);
    }
};

TEST_F(PickRules, ThreeDigitsHaveSixOrdersInThisOrder) {
    BuildPick3Perms(session, {1, 2, 3});
    EXPECT_EQ(Perms(), (Numbers{123, 132, 213, 231, 312, 321}));
}

TEST_F(PickRules, FourDigitsHaveTwentyFourOrdersInThisOrder) {
    BuildPick4Perms(session, {1, 2, 3, 4});
    EXPECT_EQ(Perms(), (Numbers{1234, 1243, 1324, 1342, 1423, 1432, 2134, 2143, 2314, 2341, 2413, 2431,
                                3124, 3142, 3214, 3241, 3412, 3421, 4123, 4132, 4213, 4231, 4312, 4321}));
}

TEST_F(PickRules, OrdersOfAllThousandThreeDigitStrings) {
    for (int number = 0; number < 1'000; ++number) {
        const std::string text = Padded(number, 3);
        const Numbers digits = DigitsOf(text);
        Numbers expected;
        Orders(text, "", expected);
        BuildPick3Perms(session, {digits[0], digits[1], digits[2]});
        ASSERT_EQ(Perms(), expected) << text;
    }
}

TEST_F(PickRules, OrdersOfAllTenThousandFourDigitStrings) {
    for (int number = 0; number < 10'000; ++number) {
        const std::string text = Padded(number, 4);
        const Numbers digits = DigitsOf(text);
        Numbers expected;
        Orders(text, "", expected);
        BuildPick4Perms(session, {digits[0], digits[1], digits[2], digits[3]});
        ASSERT_EQ(Perms(), expected) << text;
    }
}

TEST_F(PickRules, AnyOrderPaysForAllThousandTicketsAgainstSeededDraws) {
    SplitMix mix(3);
    for (const char* way : {"Box", "StraightBox", "Combo"}) {
        global.PlayOption = way;
        for (int number = 0; number < 1'000; ++number) {
            const std::string ticket = Padded(number, 3);
            std::string drawn = ticket;
            std::reverse(drawn.begin(), drawn.end());
            ASSERT_EQ(Judge3(ticket, drawn), Winner) << ticket;
            drawn = Padded(Between(mix, 0, 999), 3);
            ASSERT_EQ(Judge3(ticket, drawn), SameDigits(ticket, drawn) ? Winner : Sorry)
                << ticket << " against " << drawn << " of seed 3";
        }
    }
}

TEST_F(PickRules, AnyOrderPaysForAllTenThousandTicketsAgainstSeededDraws) {
    SplitMix mix(4);
    global.PlayOption = "Box";
    for (int number = 0; number < 10'000; ++number) {
        const std::string ticket = Padded(number, 4);
        std::string drawn = ticket;
        for (std::size_t i = 3; i > 0; --i)
            std::swap(drawn[i], drawn[static_cast<std::size_t>(Between(mix, 0, static_cast<int>(i)))]);
        ASSERT_EQ(Judge4(ticket, drawn), Winner) << ticket << " against " << drawn << " of seed 4";
        drawn.back() = drawn.back() == '9' ? '0' : static_cast<char>(drawn.back() + 1);
        ASSERT_EQ(Judge4(ticket, drawn), Sorry) << ticket << " against " << drawn << " of seed 4";
    }
}

TEST_F(PickRules, StraightCountsTheDigitsInPlace) {
    global.PlayOption = "Straight";
    for (int number = 0; number < 1'000; ++number) {
        const std::string drawn = Padded(number, 3);
        const int inPlace = (drawn[0] == '1') + (drawn[1] == '2') + (drawn[2] == '3');
        ASSERT_EQ(Judge3("123", drawn), inPlace == 3 ? Winner : Sorry) << drawn;
        ASSERT_EQ(global.MatchCount, inPlace) << drawn;
    }
    EXPECT_EQ(Judge4("1234", "1234"), Winner);
    EXPECT_EQ(global.MatchCount, 4);
    EXPECT_EQ(Judge4("1234", "1235"), Sorry);
    EXPECT_EQ(Judge4("1234", "0234"), Sorry);
}

TEST_F(PickRules, StraightAgainstTheReverseMatchesTheMiddleAlone) {
    global.PlayOption = "Straight";
    EXPECT_EQ(Judge3("123", "321"), Sorry);
    EXPECT_EQ(global.MatchCount, 1);
}

TEST_F(PickRules, BoxAgainstTheReverseWins) {
    global.PlayOption = "Box";
    EXPECT_EQ(Judge3("123", "321"), Winner);
    EXPECT_EQ(global.MatchCount, 3);
}

TEST_F(PickRules, LeadingZerosVanishInTheNumbersAndStillWin) {
    global.PlayOption = "Box";
    EXPECT_EQ(Judge3("007", "700"), Winner);
    EXPECT_EQ(Perms(), (Numbers{700, 700, 70, 7, 70, 7}));
}

TEST_F(PickRules, AStraightHitIsNotToldApartFromABoxHit) {
    for (const char* way : {"Box", "StraightBox", "Combo"}) {
        global.PlayOption = way;
        EXPECT_EQ(Judge3("123", "123"), Winner) << way;
        EXPECT_EQ(Judge4("1234", "4321"), Winner) << way;
        EXPECT_EQ(Judge4("1234", "4322"), Sorry) << way;
    }
}

TEST_F(PickRules, AnyOtherWayNeverWins) {
    for (const char* way : {"", "Scramble", "Straight & Scramble", "straight", "Straight/Box"}) {
        global.PlayOption = way;
        EXPECT_EQ(Judge3("123", "123"), Sorry) << way;
        EXPECT_EQ(global.MatchCount, 0);
        EXPECT_EQ(Judge4("1234", "1234"), Sorry) << way;
    }
}

TEST_F(PickRules, NoGameKeyIsConsulted) {
    global.PlayOption = "Straight";
    for (const char* key : {"ONTPick3", "BCDaily3", "WESTPick3", "Quote3", "FLACash3", ""}) {
        global.LottoFlag = key;
        EXPECT_EQ(Judge3("555", "555"), Winner) << key;
    }
}

TEST_F(PickRules, AMissingRowRaisesTheSubscriptError) {
    Draw({1, 2, 3, 4});
    LineList list;
    EXPECT_EQ(ErrorOf([&] { CheckPick3(session, boxes, 0, list); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(ErrorOf([&] { CheckPick4(session, boxes, 0, list); }), ErrorNumber::SubscriptOutOfRange);
}

}  // namespace sorvane::testing

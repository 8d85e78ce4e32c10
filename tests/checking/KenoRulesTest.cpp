#include <map>
#include <utility>

#include "checking/CheckWorld.h"

namespace sorvane::testing {

namespace {

// What one dollar wins, by balls and matches. The lines of other wagers follow from it here; the program
// holds them one by one.
const std::map<std::pair<int, int>, int> OneDollarWins{
    {{2, 2}, 7},     {{3, 3}, 25},   {{4, 4}, 100},   {{5, 4}, 5},       {{5, 5}, 250},   {{6, 5}, 25},
    {{6, 6}, 1000},  {{7, 5}, 5},    {{7, 6}, 50},    {{7, 7}, 5000},    {{8, 6}, 10},    {{8, 7}, 200},
    {{8, 8}, 25000}, {{9, 6}, 5},    {{9, 7}, 100},   {{9, 8}, 1000},    {{9, 9}, 50000}, {{10, 0}, 2},
    {{10, 7}, 25},   {{10, 8}, 200}, {{10, 9}, 5000}, {{10, 10}, 250000}};

std::string Dollars(int amount) {
    std::string text;
    std::string digits = std::to_string(amount);
    while (digits.size() > 3) {
        text = "," + digits.substr(digits.size() - 3) + text;
        digits.resize(digits.size() - 3);
    }
    return "$" + digits + text + ".00";
}

// The draw is 1 to 20; a ticket with `matches` of them and the rest from 21 on.
Numbers TicketWith(int balls, int matches) {
    Numbers ticket;
    for (int i = 0; i < balls; ++i) ticket.push_back(i < matches ? i + 1 : i + 21);
    return ticket;
}

}  // namespace

struct KenoRules : JudgeTest {
    KenoRules() {
        global.LottoFlag = "ONTKeno";
        Numbers drawn;
        for (int i = 1; i <= 20; ++i) drawn.push_back(i);
        Draw(drawn);
    }
};

TEST_F(KenoRules, EveryCellOfThePrizeTable) {
    for (int balls = 2; balls <= 10; ++balls) {
        for (const int wager : {1, 2, 5, 10}) {
            for (int matches = 0; matches <= balls; ++matches) {
                Keno(balls, wager, TicketWith(balls, matches));
                const auto win = OneDollarWins.find({balls, matches});
                const std::string expected =
                    win == OneDollarWins.end()
                        ? Sorry
                        : "Congratulations! You won " + Dollars(win->second * wager) + "!";
                EXPECT_EQ(Line(CheckKeno), expected)
                    << balls << " balls, " << matches << " matches, " << wager;
                EXPECT_EQ(global.MatchCount, matches);
                EXPECT_EQ(global.Wager, wager);
                EXPECT_EQ(global.NoOfBallsPerTicket, balls);
            }
        }
    }
}

TEST_F(KenoRules, FiveBallsTwoDollarsFourHits) {
    Keno(5, 2, TicketWith(5, 4));
    EXPECT_EQ(Line(CheckKeno), "Congratulations! You won $10.00!");
}

TEST_F(KenoRules, TenBallsWithoutAnyHitWin) {
    Keno(10, 10, TicketWith(10, 0));
    EXPECT_EQ(Line(CheckKeno), "Congratulations! You won $20.00!");
}

TEST_F(KenoRules, TenBallsSixHitsLose) {
    Keno(10, 1, TicketWith(10, 6));
    EXPECT_EQ(Line(CheckKeno), Sorry);
}

TEST_F(KenoRules, AWagerOutsideTheTableAddsNoRow) {
    for (const int wager : {-1, 0, 3, 4, 6, 9, 11, 20}) {
        Keno(5, wager, TicketWith(5, 5));
        global.Msg = "before";
        EXPECT_TRUE(AllLines(CheckKeno).empty()) << wager;
        EXPECT_EQ(global.Msg, "");
        EXPECT_EQ(global.MatchCount, 5);
    }
}

TEST_F(KenoRules, ANumberOfBallsOutsideTheTableAddsNoRow) {
    for (const int balls : {0, 1, 11, 12, 20}) {
        Keno(balls, 1, TicketWith(balls, balls));
        EXPECT_TRUE(AllLines(CheckKeno).empty()) << balls;
        EXPECT_EQ(global.MatchCount, balls);
        EXPECT_EQ(global.NoOfBallsPerTicket, balls);
    }
}

TEST_F(KenoRules, OnlyTheTicketsOwnBallsCount) {
    Keno(5, 1, TicketWith(10, 10));
    EXPECT_EQ(Line(CheckKeno), "Congratulations! You won $250.00!");
}

TEST_F(KenoRules, ANumberInTwoBoxesCountsTwice) {
    boxes.Main.at(19) = "1";
    Keno(4, 1, TicketWith(4, 3));
    EXPECT_EQ(Line(CheckKeno), "Congratulations! You won $100.00!");
    EXPECT_EQ(global.MatchCount, 4);
}

TEST_F(KenoRules, TheOtherKenosAreCountedOverAllColumnsAndSayNothing) {
    for (const char* key : {"QCBanco", "ATLChoice", "PrairieKeno", "BCClubKeno"}) {
        global.LottoFlag = key;
        Keno(4, 1, TicketWith(20, 17));
        EXPECT_TRUE(AllLines(CheckKeno).empty()) << key;
        EXPECT_EQ(global.MatchCount, 17);
        EXPECT_EQ(global.Wager, 1);
        EXPECT_EQ(global.NoOfBallsPerTicket, 4);
    }
}

TEST_F(KenoRules, AnyOtherKeyIsLeftAlone) {
    global.LottoFlag = "Lotto649";
    Keno(5, 1, TicketWith(5, 5));
    boxes.Main.clear();
    EXPECT_TRUE(AllLines(CheckKeno).empty());
    EXPECT_EQ(global.MatchCount, 0);
}

TEST_F(KenoRules, AnEmptyBoxEndsTheCheck) {
    global.LottoFlag = "PrairieKeno";
    Keno(20, 0, TicketWith(20, 5));
    boxes.Main.at(7) = "";
    LineList list;
    EXPECT_EQ(ErrorOf([&] { CheckKeno(session, boxes, 0, list); }), ErrorNumber::TypeMismatch);
}

TEST_F(KenoRules, AMissingRowRaisesTheSubscriptError) {
    LineList list;
    EXPECT_EQ(ErrorOf([&] { CheckKeno(session, boxes, 0, list); }), ErrorNumber::SubscriptOutOfRange);
}

}  // namespace sorvane::testing

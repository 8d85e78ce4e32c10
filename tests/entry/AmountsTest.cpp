// Default amounts and wagers, as text.
#include "entry/Amounts.h"

#include <gtest/gtest.h>

namespace sorvane {
namespace {

TEST(AmountsTest, HalfDollarGamesEndInZeroForAnOddCount) {
    for (const char* game : {"Ontario49", "Quebec49", "BC49"}) {
        EXPECT_EQ(DefaultAmount(Family::frm649, game, 1), "0.50");
        EXPECT_EQ(DefaultAmount(Family::frm649, game, 2), "1.00");
        EXPECT_EQ(DefaultAmount(Family::frm649, game, 3), "1.50");
        EXPECT_EQ(DefaultAmount(Family::frm649, game, 10), "5.00");
        EXPECT_EQ(DefaultAmount(Family::frm649, game, 32767), "16383.50");
    }
}

TEST(AmountsTest, TheOthersTakeADollarATicketAndSuperSevenTwo) {
    EXPECT_EQ(DefaultAmount(Family::frm649, "Lotto649", 3), "3.00");
    EXPECT_EQ(DefaultAmount(Family::frm649, "Western649", 0), "0.00");
    EXPECT_EQ(DefaultAmount(Family::frm749, "Super 7", 3), "6.00");
    EXPECT_EQ(DefaultAmount(Family::frm645, "Lottario", 10), "10.00");
    EXPECT_EQ(DefaultAmount(Family::frmKeno80, "PrairieKeno", 4), "4.00");
    EXPECT_EQ(DefaultAmount(Family::frmPick3, "ONTPick3", 4), "4.00");
}

TEST(AmountsTest, DailyKenoKeepsItsLeadingBlank) {
    EXPECT_EQ(DefaultAmount(Family::frmKeno70, "ONTKeno", 5), " 5.00");
}

TEST(AmountsTest, InFloridaTheOptionMeansTheWagerDoubled) {
    EXPECT_EQ(WagerAmount(WagerOption::One, "FLACash3", 5), "2.50");
    EXPECT_EQ(WagerAmount(WagerOption::Two, "FLACash3", 5), "5.00");
    EXPECT_EQ(WagerAmount(WagerOption::One, "FLAPlay4", 1), ".50");
    EXPECT_EQ(WagerAmount(WagerOption::Two, "FLAPlay4", 1), "1.00");
}

TEST(AmountsTest, ElsewhereTheOptionIsTheWager) {
    EXPECT_EQ(WagerAmount(WagerOption::One, "ONTPick3", 5), "5.00");
    EXPECT_EQ(WagerAmount(WagerOption::Two, "ONTPick3", 5), "10.00");
    EXPECT_EQ(WagerAmount(WagerOption::Five, "WESTPick3", 3), "15.00");
    EXPECT_EQ(WagerAmount(WagerOption::Ten, "FLACash3", 2), "20.00");
    EXPECT_EQ(WagerAmount(WagerOption::Ten, "Quote3", 0), ".00");
}

}  // namespace
}  // namespace sorvane

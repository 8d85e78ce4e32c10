#include "platform/Integer.h"

#include <gtest/gtest.h>

#include <climits>

namespace sorvane {
namespace {

int AssignError(int value) {
    Integer number = 7;
    const int error = ErrorOf([&] { number = value; });
    EXPECT_EQ(int{number}, error == 0 ? value : 7) << "a refused value must leave the old one";
    return error;
}

TEST(IntegerTest, HoldsEach16BitValueAndRefusesItsNeighbours) {
    for (int value = -32'768; value <= 32'767; ++value) ASSERT_EQ(AssignError(value), 0) << value;
    for (const int value : {-32'769, 32'768, 65'535, 65'536, INT_MIN, INT_MAX})
        EXPECT_EQ(AssignError(value), 6) << value;
}

TEST(IntegerTest, StartsAtZero) { EXPECT_EQ(int{Integer()}, 0); }

TEST(IntegerTest, ArithmeticIsWideAndOnlyTheAssignmentIsChecked) {
    const Integer a = 30'000;
    EXPECT_EQ(a + a - a, 30'000);
    EXPECT_EQ(a * a, 900'000'000);
    EXPECT_EQ(ErrorOf([&] { static_cast<void>(Integer(a + a)); }), 6);
}

TEST(IntegerTest, StepsOverTheBorderRaiseOverflowAndChangeNothing) {
    for (int value = -32'768; value <= 32'767; ++value) {
        Integer up = value;
        ASSERT_EQ(ErrorOf([&] { ++up; }), value == 32'767 ? 6 : 0);
        ASSERT_EQ(int{up}, value == 32'767 ? value : value + 1);
        Integer down = value;
        ASSERT_EQ(ErrorOf([&] { --down; }), value == -32'768 ? 6 : 0);
        ASSERT_EQ(int{down}, value == -32'768 ? value : value - 1);
    }
}

TEST(IntegerTest, AddsAndSubtractsInPlace) {
    Integer number = 100;
    number += 5;
    EXPECT_EQ(int{number}, 105);
    number -= 205;
    EXPECT_EQ(int{number}, -100);
    EXPECT_EQ(ErrorOf([&] { number -= 32'669; }), 6);
    EXPECT_EQ(int{number}, -100);
}

TEST(IntegerTest, FlagsAreOffOnAndMinusOneForTrue) {
    EXPECT_EQ(Off, 0);
    EXPECT_EQ(On, 1);
    EXPECT_EQ(True, -1);
}

}  // namespace
}  // namespace sorvane

#include "platform/Array.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>

#include "platform/Lines.h"

namespace sorvane {
namespace {

TEST(ArrayTest, NeverSizedRaisesSubscriptOutOfRange) {
    const Array<int> numbers;
    EXPECT_FALSE(numbers.Sized());
    EXPECT_EQ(ErrorOf([&] { numbers.UBound(); }), 9);
    EXPECT_EQ(ErrorOf([&] { numbers(0); }), 9);
}

TEST(ArrayTest, ElementsGoFromZeroToTheUpperBound) {
    Array<int> numbers;
    numbers.Redim(3);
    EXPECT_EQ(numbers.UBound(), 3);
    for (int i = 0; i <= 3; ++i) {
        EXPECT_EQ(numbers(i), 0);
        numbers(i) = i * i;
    }
    EXPECT_EQ(numbers(3), 9);
    for (const int outside : {-1, 4, INT_MIN, INT_MAX})
        EXPECT_EQ(ErrorOf([&] { numbers(outside); }), 9) << outside;
}

TEST(ArrayTest, RedimEmptiesAndRedimPreserveKeeps) {
    Array<std::string> texts;
    texts.RedimPreserve(1);
    texts(0) = "a";
    texts(1) = "b";
    texts.RedimPreserve(2);
    EXPECT_EQ(texts(0) + texts(1) + texts(2), "ab");
    texts.RedimPreserve(0);
    texts.RedimPreserve(1);
    EXPECT_EQ(texts(0), "a");
    EXPECT_EQ(texts(1), "") << "what was cut off must not come back";
    texts.Redim(1);
    EXPECT_EQ(texts(0), "");
}

TEST(ArrayTest, UpperBoundMinusOneLeavesNoElement) {
    Array<int> numbers;
    numbers.Redim(-1);
    EXPECT_TRUE(numbers.Sized());
    EXPECT_EQ(numbers.UBound(), -1);
    EXPECT_EQ(ErrorOf([&] { numbers(0); }), 9);
}

TEST(ArrayTest, RefusedUpperBoundChangesNothing) {
    Array<int> numbers;
    numbers.Redim(1);
    numbers(1) = 5;
    EXPECT_EQ(ErrorOf([&] { numbers.Redim(-2); }), 9);
    EXPECT_EQ(ErrorOf([&] { numbers.RedimPreserve(INT_MIN); }), 9);
    EXPECT_EQ(numbers.UBound(), 1);
    EXPECT_EQ(numbers(1), 5);
}

TEST(LineListTest, KeepsLinesInTheirOrderUntilCleared) {
    LineList list;
    list.AddItem("first");
    list.AddItem("");
    EXPECT_EQ(list.ListCount(), 2);
    EXPECT_EQ(list.items, (std::vector<std::string>{"first", ""}));
    list.Clear();
    EXPECT_EQ(list.ListCount(), 0);
}

}  // namespace
}  // namespace sorvane

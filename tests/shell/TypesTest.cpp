// How many numbers the tickets and rows hold.
#include "shell/Types.h"

#include <gtest/gtest.h>

#include "platform/RunTimeError.h"

namespace sorvane {
namespace {

// The last index that is no run-time error 9; there are none below 0.
template <class Record>
int LastNumberOf() {
    Record record;
    EXPECT_EQ(ErrorOf([&] { record.Numbers(-1) = 1; }), 9);
    int index = 0;
    while (ErrorOf([&] { record.Numbers(index) = 1; }) == 0) ++index;
    EXPECT_EQ(ErrorOf([&] { record.Numbers(index) = 1; }), 9);
    return index - 1;
}

TEST(TypesTest, ANumberPastTheLastIsARunTimeError) {
    EXPECT_EQ(LastNumberOf<Lotto6Ticket>(), 6);
    EXPECT_EQ(LastNumberOf<Lotto7Ticket>(), 7);
    EXPECT_EQ(LastNumberOf<KenoTicket>(), 20);
    EXPECT_EQ(LastNumberOf<Pick3Ticket>(), 2);
    EXPECT_EQ(LastNumberOf<Pick4Ticket>(), 3);
    EXPECT_EQ(LastNumberOf<AddOnTicket>(), 6);
    EXPECT_EQ(LastNumberOf<ExtraTicket>(), 3);
    EXPECT_EQ(LastNumberOf<Lotto6Row>(), 6);
    EXPECT_EQ(LastNumberOf<Lotto7Row>(), 7);
    EXPECT_EQ(LastNumberOf<KenoRow>(), 20);
    EXPECT_EQ(LastNumberOf<Pick3Row>(), 3);
    EXPECT_EQ(LastNumberOf<Pick4Row>(), 4);
}

}  // namespace
}  // namespace sorvane

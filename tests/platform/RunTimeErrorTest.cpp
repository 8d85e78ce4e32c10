#include "platform/RunTimeError.h"

#include <gtest/gtest.h>

#include <new>
#include <set>
#include <stdexcept>
#include <string>

namespace sorvane {
namespace {

constexpr int AllNumbers[] = {5,    6,    7,    9,    13,   53,   75,   76,   94,   482,  483,
                              484,  3010, 3011, 3015, 3019, 3020, 3021, 3022, 3024, 3026, 3043,
                              3051, 3058, 3078, 3163, 3167, 3260, 3265, 3343, 3420, 3421, 32755};

TEST(RunTimeErrorTest, NumbersOfTheLanguageHaveTheirSentences) {
    EXPECT_EQ(Sentence(5), "Invalid procedure call");
    EXPECT_EQ(Sentence(6), "Overflow");
    EXPECT_EQ(Sentence(7), "Out of memory");
    EXPECT_EQ(Sentence(9), "Subscript out of range");
    EXPECT_EQ(Sentence(13), "Type mismatch");
    EXPECT_EQ(Sentence(53), "File not found");
    EXPECT_EQ(Sentence(75), "Path/File access error");
    EXPECT_EQ(Sentence(76), "Path not found");
    EXPECT_EQ(Sentence(94), "Invalid use of Null");
    EXPECT_EQ(Sentence(482), "Printer error");
    EXPECT_EQ(Sentence(483), "Printer driver does not support the property");
    EXPECT_EQ(Sentence(484), "Printer driver unavailable");
    EXPECT_EQ(Sentence(32755), "Cancel was selected");
}

TEST(RunTimeErrorTest, EachNumberHasASentenceOfItsOwn) {
    std::set<std::string_view> sentences = {Sentence(1)};
    for (const int number : AllNumbers)
        EXPECT_TRUE(sentences.insert(Sentence(number)).second) << number << ": " << Sentence(number);
}

TEST(RunTimeErrorTest, NumberWithoutSentenceHasTheGeneralOne) {
    EXPECT_EQ(Sentence(1), "Application-defined or object-defined error");
    EXPECT_EQ(Sentence(0), Sentence(-1));
    EXPECT_STREQ(RunTimeError(12345).what(), "Application-defined or object-defined error");
}

TEST(RunTimeErrorTest, RaisedErrorCarriesNumberAndSentence) {
    for (const int number : AllNumbers) {
        try {
            Raise(number);
        } catch (const RunTimeError& error) {
            EXPECT_EQ(error.Number(), number);
            EXPECT_EQ(error.what(), Sentence(number));
            continue;
        }
    }
}

TEST(RunTimeErrorTest, IgnoringPassesOverTheGivenNumbersOnly) {
    bool wentOn = false;
    EXPECT_FALSE(Ignoring({3021, 3078}, [&] {
        Raise(3078);
        wentOn = true;
    }));
    EXPECT_FALSE(wentOn);
    EXPECT_TRUE(Ignoring({3021}, [&] { wentOn = true; }));
    EXPECT_TRUE(wentOn);
    EXPECT_EQ(ErrorOf([] { Ignoring({3021, 3078}, [] { Raise(3011); }); }), 3011);
    EXPECT_THROW(Ignoring({3021}, [] { throw std::logic_error("another"); }), std::logic_error);
}

TEST(RunTimeErrorTest, ErrorOfTellsTheNumberThatEndedTheWork) {
    EXPECT_EQ(ErrorOf([] {}), 0);
    EXPECT_EQ(ErrorOf([] { Raise(3421); }), 3421);
    EXPECT_EQ(ErrorOf([] { throw std::bad_alloc(); }), 7);
    EXPECT_THROW(ErrorOf([] { throw std::logic_error("another"); }), std::logic_error);
}

}  // namespace
}  // namespace sorvane

// A world for the rules of checking, with one list for what they show.
#pragma once

#include <gtest/gtest.h>

#include <array>
#include <initializer_list>
#include <string>
#include <vector>

#include "checking/CheckForMatches.h"
#include "platform/Lines.h"
#include "support/World.h"

namespace sorvane::testing {

using Texts = std::vector<std::string>;
using Numbers = std::vector<int>;

inline const std::string Sorry = "Sorry. This ticket is not a winner.";

struct JudgeWorld : World {
    using Judge = void (*)(Run&, const WinningBoxes&, int, Lines&);

    // The lines that judging row 0 adds.
    Texts AllLines(Judge judge) {
        LineList list;
        judge(run, boxes, 0, list);
        return list.items;
    }
    // The one line that judging row 0 adds.
    std::string Line(Judge judge) {
        const Texts lines = AllLines(judge);
        EXPECT_EQ(lines.size(), 1U);
        return lines.empty() ? "no line" : lines.front();
    }

    void Draw(const Numbers& numbers) {
        boxes.Main.clear();
        for (const int number : numbers) boxes.Main.push_back(std::to_string(number));
    }
    void DrawFour(const std::array<int, 4>& numbers) {
        for (std::size_t i = 0; i < 4; ++i) boxes.Four.at(i) = std::to_string(numbers.at(i));
    }
    void Ticket6(const Numbers& numbers) { Fill(global.Lotto6Played, numbers); }
    void Ticket7(const Numbers& numbers) { Fill(global.Lotto7Played, numbers); }
    // The digits of a number, one a column.
    void Digits6(const std::string& number) { Ticket6(DigitsOf(number)); }
    void Digits7(const std::string& number) { Ticket7(DigitsOf(number)); }
    void Keno(int balls, int wager, const Numbers& numbers) {
        Fill(global.KenoPlayed, numbers);
        global.KenoPlayed(0).NoOfBalls = balls;
        global.KenoPlayed(0).Wager = wager;
    }
    void Pick3(const Numbers& digits) { Fill(global.Pick3Played, digits); }
    void Pick4(const Numbers& digits) { Fill(global.Pick4Played, digits); }

    static Numbers DigitsOf(const std::string& number) {
        Numbers digits;
        for (const char digit : number) digits.push_back(digit - '0');
        return digits;
    }

    WinningBoxes boxes;

  private:
    template <class Row>
    static void Fill(Array<Row>& rows, const Numbers& numbers) {
        rows.Redim(0);
        for (std::size_t i = 0; i < numbers.size(); ++i) rows(0).Numbers(static_cast<int>(i)) = numbers[i];
    }
};

struct JudgeTest : ::testing::Test, JudgeWorld {};

// Numbers of a fixed sequence, low to high.
inline int Between(SplitMix& mix, int low, int high) {
    return low + static_cast<int>(mix.Next() % static_cast<std::uint64_t>(high - low + 1));
}

}  // namespace sorvane::testing

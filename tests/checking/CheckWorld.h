// A world for the rules of checking, with one list for what they show.
#pragma once

#include <gtest/gtest.h>

#include <array>
#include <initializer_list>
#include <string>
#include <vector>

#include "checking/CheckForMatches.h"
#include "platform/Lines.h"
#include "store/CreateTables.h"
#include "support/World.h"

namespace sorvane::testing {

using Texts = std::vector<std::string>;
using Numbers = std::vector<int>;

inline const std::string Sorry = "Sorry. This ticket is not a winner.";

struct JudgeWorld : World {
    using Judge = void (*)(Session&, const WinningBoxes&, int, Lines&);

    // The lines that judging row 0 adds.
    Texts AllLines(Judge judge) {
        LineList list;
        judge(session, boxes, 0, list);
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

// A database file with the tables that a test makes, and a draw date.
struct StoreTest : ::testing::Test, World {
    StoreTest() { WithDatabase(); }

    void Make(const Creator& creator, const std::string& table) {
        creator(session, {DbName(), table}, PrimaryFieldName, DateFieldName);
    }
    // Adds rows of SQL values.
    void Add(const std::string& table, const Texts& rows) {
        PlainFile file = Plain();
        for (const std::string& row : rows) file.Do("INSERT INTO [" + table + "] VALUES (" + row + ")");
    }
    Texts All(const std::string& table) {
        return Plain().Rows("SELECT * FROM [" + table + "] ORDER BY rowid");
    }
    StoreArgs At(const std::string& table) {
        TableName = table;
        return {name, TableName, date};
    }
    void ExpectNoTable(const std::string& table) {
        ExpectStoreError(ErrorNumber::TableNotFound,
                         "Unable to open " + table + " table. Please advise error number to support.");
    }
    void ExpectAllClosed() const {
        EXPECT_EQ(global.Open.DbOpen, Off);
        EXPECT_EQ(global.Open.RsOpen, Off);
        EXPECT_EQ(global.Open.WsOpen, Off);
    }

    std::string name = DbName();
    std::string TableName;
    Date date = Date::FromDays(46095);  // days as they stand in the rows of a test
};

// Numbers of a fixed sequence, low to high.
inline int Between(SplitMix& mix, int low, int high) {
    return low + static_cast<int>(mix.Next() % static_cast<std::uint64_t>(high - low + 1));
}

}  // namespace sorvane::testing

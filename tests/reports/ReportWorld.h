// A world with draws and ledgers for the reports.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "platform/Text.h"
#include "store/CreateTables.h"
#include "support/RecordingChart.h"
#include "support/World.h"

namespace sorvane::testing {

using Draw = std::vector<int>;

inline constexpr std::string_view NoDrawsText =
    "No Winning Numbers entered yet. Please enter Winning Number data\r\nand try again.\r\n";
inline constexpr std::string_view NoTableText =
    "No Winning Numbers entered yet. Please enter some Winning Numbers\r\ntry again.\r\n";
inline constexpr std::string_view NoTicketsText =
    "No Tickets entered yet. Please enter some played tickets and\r\ntry again.\r\n";

// A golden text as the program writes it.
inline std::string Crlf(std::string_view text) {
    std::string lines;
    for (const char letter : text) lines.append(letter == '\n' ? "\r\n" : std::string(1, letter));
    return lines;
}

struct ReportWorld : World {
    explicit ReportWorld(std::string_view LottoFlag = {}) {
        WithDatabase();
        clock.today = Date::FromYmd(2026, 11, 21);
        global.LottoFlag = LottoFlag;
    }

    void Make(const Creator& creator, const std::string& table) {
        creator(session, {DbName(), table}, PrimaryFieldName, DateFieldName);
    }
    // Adds draws to a win table; `head` is what stands between the key and the numbers: the date, or with the
    // game's key before or behind it.
    void AddDraws(const std::string& table, const std::string& head, const std::vector<Draw>& draws) {
        PlainFile file = Plain();
        std::string sql = "BEGIN;";
        int id = std::stoi(file.One("SELECT count(*) FROM " + table));
        for (const Draw& draw : draws) {
            sql += "INSERT INTO " + table + " VALUES (" + std::to_string(++id) + ", " + head;
            for (const int number : draw) sql += ", " + std::to_string(number);
            sql += ");";
        }
        file.Do(sql + "COMMIT");
    }
    void SixDraws(const std::string& table, const std::vector<Draw>& draws) {
        Make(CreateWin6Table, table);
        AddDraws(table, "46000", draws);
    }
    void SevenDraws(const std::vector<Draw>& draws) {
        Make(CreateWin7Table, "WinSuper7");
        AddDraws("WinSuper7", "46000", draws);
    }
    void KenoDraws(const std::string& table, const std::vector<Draw>& draws) {
        Make(CreateWinKenoTable, table);
        AddDraws(table, "46000, 'key'", draws);
    }
    // Draws as strings of digits, "012".
    void DigitDraws(const std::string& table, const std::vector<std::string>& draws) {
        Make(draws.empty() || draws.front().size() == 3 ? CreateWinPick3Table : CreateWinPick4Table, table);
        std::vector<Draw> numbers;
        for (const std::string& draw : draws) {
            numbers.emplace_back();
            for (const char digit : draw) numbers.back().push_back(digit - '0');
        }
        AddDraws(table, "'key', 46000", numbers);
    }

    struct LedgerRow {
        std::string key;
        std::string date;
        std::string amount;
    };
    void Ledger(const Creator& creator, const std::string& table, const std::vector<LedgerRow>& rows) {
        Make(creator, table);
        std::string sql = "BEGIN;";
        int id = 0;
        for (const LedgerRow& row : rows)
            sql += "INSERT INTO " + table + " VALUES (" + std::to_string(++id) + ", '" + row.key + "', " +
                   std::to_string(Date::FromText(row.date).Days()) + ", " + row.amount + ");";
        Plain().Do(sql + "COMMIT");
    }
    void Spent(const std::vector<LedgerRow>& rows) { Ledger(CreateSpentTable, "Spent", rows); }
    void Winnings(const std::vector<LedgerRow>& rows) { Ledger(CreateWinningsTable, "Winnings", rows); }
    // Three games in both ledgers: amounts below a dollar, negative ones, dates out of order, two games on
    // one date.
    void BothLedgers() {
        Spent({{"Lotto649", "2026-03-14", "5"},
               {"Super 7", "2026-01-02", "10"},
               {"Lotto649", "2026-01-02", "1234.5"},
               {"ONTKeno", "2026-02-01", "0.5"},
               {"Lotto649", "2025-12-31", "-3.25"},
               {"Super 7", "2026-03-14", "2"},
               {"ONTKeno", "2026-01-02", "20"}});
        Winnings({{"Lotto649", "2026-03-14", "0.5"},
                  {"ONTKeno", "2026-02-01", "25.75"},
                  {"Lotto649", "2026-01-02", "10"},
                  {"Super 7", "2026-01-02", "-2"},
                  {"Lotto649", "2025-12-31", "2000"}});
    }
    // All counted numbers of Global::Numbers, from the number 1 on.
    std::vector<int> Counted() const {
        std::vector<int> counts;
        for (int i = 0; i <= global.Numbers.UBound(); ++i) counts.push_back(global.Numbers(i));
        return counts;
    }
    ReportWorld& ExpectBox(std::string_view text) {
        dialogs.Expect("ERROR!", text);
        return *this;
    }
    void ExpectAllClosed() const {
        EXPECT_EQ(global.Open.DbOpen, Off);
        EXPECT_EQ(global.Open.RsOpen, Off);
    }

    RecordingChart chart;
};

}  // namespace sorvane::testing

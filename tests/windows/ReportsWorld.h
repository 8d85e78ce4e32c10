// The world with a game window open at its reports or quick picks, and a database with draws and money in it.
#pragma once

#include <QAbstractItemView>
#include <algorithm>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "platform/RunTimeError.h"
#include "reports/ui/frmReport.h"
#include "support/WindowWorld.h"

namespace sorvane::test {

// A game of each family, with its win table and the fields in which a draw of it stands.
struct GameCase {
    Family family;
    std::string_view LottoFlag, ExtraFlag, win, firstField;
    int numbers;
};
inline constexpr GameCase SixFortyNine{Family::frm649, "Lotto649", "Encore", "WinLotto649", "Ball_1", 7};
inline constexpr GameCase Super7{Family::frm749, "Super 7", "Encore", "WinSuper7", "Ball_1", 8};
inline constexpr GameCase Lottario{Family::frm645, "Lottario", "Encore", "WinLottario", "Ball_1", 7};
inline constexpr GameCase DailyKeno{Family::frmKeno70, "ONTKeno", "Encore", "WinONTKeno", "Ball_1", 20};
inline constexpr GameCase PrairieKeno{Family::frmKeno80, "PrairieKeno", "", "", "", 20};
inline constexpr GameCase Pick3{Family::frmPick3, "ONTPick3", "Encore", "WinONTPick3", "Ball_1", 3};
inline constexpr GameCase Play4{Family::frmPick4, "FLAPlay4", "FLAPlay4", "WinFLAPlay4", "Ball_1", 4};
inline constexpr GameCase EveryFamily[] = {SixFortyNine, Super7, Lottario, DailyKeno,
                                           PrairieKeno,  Pick3,  Play4};
// The name of a test of each family.
inline std::string NameOfCase(const ::testing::TestParamInfo<GameCase>& test) {
    return std::string(NameOf(test.param.family));
}
inline void PrintTo(const GameCase& game, std::ostream* out) { *out << NameOf(game.family); }

class ReportsWorld : public WindowWorld {
  public:
    GameWindow& Open(const GameCase& game, std::string_view tab) {
        GameWindow& window = Show(game.family, game.LottoFlag, game.ExtraFlag);
        window.SetCaption("Lotto 6/49");
        person.ClickTab(tab);
        return window;
    }
    GameWindow& OpenReports(const GameCase& game) { return Open(game, "&Reports"); }
    GameWindow& OpenQuickPick(const GameCase& game) { return Open(game, "&Quick"); }

    static std::string Number(auto value) { return std::to_string(value); }
    static std::string Quoted(std::string_view text) { return "'" + std::string(text) + "'"; }

    // One draw; the numbers stand in the fields from the first ball on.
    void AddDraw(const GameCase& game, const std::vector<int>& numbers) {
        testing::PlainFile file = Plain();
        const std::string table(game.win);
        const auto fields = file.Rows("SELECT name FROM pragma_table_info(" + Quoted(table) + ")");
        auto at = std::find(fields.begin(), fields.end(), game.firstField);
        std::string names = "ID1", values = "(SELECT COUNT(*) + 1 FROM [" + table + "])";
        for (const int number : numbers) {
            names += ", [" + *at++ + "]";
            values += ", " + Number(number);
        }
        file.Do("INSERT INTO [" + table + "] (" + names + ") VALUES (" + values + ")");
    }
    // `times` draws of the numbers first, first + 1 and so on.
    void AddDraws(const GameCase& game, int first, int times = 1) {
        std::vector<int> numbers;
        for (int i = 0; i < game.numbers; ++i) numbers.push_back(first + i);
        for (int i = 0; i < times; ++i) AddDraw(game, numbers);
    }
    // A row of a ledger; the day counts from 2004-01-14.
    void AddMoney(std::string_view ledger, std::string_view LottoFlag, int day, std::string_view amount) {
        const std::string table(ledger);
        Do("INSERT INTO " + table + " VALUES ((SELECT COUNT(*) + 1 FROM " + table + "), " +
           Quoted(LottoFlag) + ", " + Number(38000 + day) + ", " + std::string(amount) + ")");
    }

    ReportsTab& Reports() const { return Window().Reports; }
    // Which of charts and report can be seen.
    std::string Seen() const {
        std::string seen;
        for (const auto* name : {"mscNumberFrequency", "mscProfitLoss", "txtReport"})
            if (Exists(name) && Find(name).isVisible()) seen.append(seen.empty() ? "" : " ").append(name);
        return seen;
    }
    static double Bar(forms::Chart& chart, int column, int row) {
        chart.SetColumn(column);
        chart.SetRow(row);
        return chart.Data();
    }
    // Heights of all bars of a column.
    static std::vector<double> Bars(forms::Chart& chart, int column = 1) {
        std::vector<double> bars;
        for (int row = 1; row <= chart.RowCount(); ++row) bars.push_back(Bar(chart, column, row));
        return bars;
    }
    static double Sum(const std::vector<double>& bars) {
        double sum = 0;
        for (const double bar : bars) sum += bar;
        return sum;
    }
    static std::string Legend(forms::Chart& chart, int column) {
        chart.SetColumn(column);
        return chart.ColumnLabel();
    }
    std::string Report() const { return Reports().txtReport.Text(); }

    void ExpectNoDraws(std::string_view data) {
        person.Expect("ERROR!", "No Winning Numbers entered yet. Please enter " + std::string(data));
    }
    // The box of the buttons, and that of the tally behind them.
    void ExpectNoTable() { ExpectNoDraws("some Winning Numbers\ntry again.\n"); }
    void ExpectNoRows() { ExpectNoDraws("Winning Number data\nand try again.\n"); }
    void ExpectNoTickets() {
        person.Expect("ERROR!", "No Tickets entered yet. Please enter some played tickets and\ntry again.\n");
    }
    // Chooses a type in the dialog that the report button of a digit game opens, and presses a button there.
    void ExpectReportType(int type, std::string_view button) {
        person.ExpectWindow("frmReportType", [this, type, name = std::string(button)](QWidget&) {
            if (type >= 0) Click("optReportType(" + Number(type) + ")");
            Click(name);
        });
    }
    // Nothing of the store is open, and another program may write to the file.
    void ExpectFileFree() {
        EXPECT_EQ(global.Open.DbOpen, Off);
        EXPECT_EQ(global.Open.RsOpen, Off);
        EXPECT_EQ(global.Open.WsOpen, Off);
        Do("BEGIN EXCLUSIVE; ROLLBACK;");
    }
};

}  // namespace sorvane::test

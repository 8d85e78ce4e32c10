// What sorvane-records brings in, the program reads as its own: each game entered by hand on one side, taken
// from files on the other, and both looked at through the same windows.
#include <gtest/gtest.h>

#include <QPlainTextEdit>
#include <fstream>
#include <optional>
#include <sstream>

#include "forms/Chart.h"
#include "records/CommandLine.h"
#include "windows/Road.h"

namespace sorvane::test {
namespace {

// What a player sees and what is in the file.
struct Picture {
    Texts verdicts, addOns;
    std::vector<double> frequencies, money;
    std::string moneyReport, numberReport;
    Texts rows;
};

class Player : public Road {
  public:
    explicit Player(std::string_view menu) : Road(menu) { Start(); }
    void TestBody() override {}

    // Judges the draw; where it is in the file already, the question is answered.
    void Check(Picture& picture, bool known) {
        Inside([&] {
            person.ClickTab("&Check Tickets");
            TypeDraw();
            if (known) ExpectRecheck(Answer::Yes);
            Click("cmdCheck");
            picture.verdicts = ListOf("lstMessage");
            if (addOn) picture.addOns = ListOf("lstEncorePlayed");
        });
    }

    void LookAtReports(Picture& picture) {
        Inside([&] {
            person.ClickTab("&Reports");
            Click("cmdNumberFrequency");
            picture.frequencies = BarsOf("mscNumberFrequency");
            Click("cmdProfitLoss");
            picture.money = BarsOf("mscProfitLoss");
            Click("cmdPLReport");
            picture.moneyReport = Report();
            if (IsPick(family)) return LookAtDigitReports(picture);
            Click(family == Family::frm645 ? "cmdNFReport" : "cmdReport");
            picture.numberReport = Report();
        });
    }

    // One after the other, as the button offers them; Play 4 has no triples.
    void LookAtDigitReports(Picture& picture) {
        constexpr int Types = 4, Triples = 1;
        for (int type = 0; type < Types; ++type) {
            if (type == Triples && family == Family::frmPick4) continue;
            person.ExpectWindow("frmReportType", [&](QWidget&) {
                Click(At("optReportType", type));
                Click("cmdOK");
            });
            Click("cmdReport");
            EXPECT_NE(picture.numberReport, Report()) << type;
            picture.numberReport += Report();
        }
    }

    // Every row but those of the early draw, which nothing reads.
    void LookAtFile(Picture& picture) const {
        for (const std::string& table : Plain().Tables()) {
            if (table == "WinEarlyBird") continue;
            for (const std::string& row : Rows("SELECT * FROM [" + table + "] ORDER BY rowid"))
                picture.rows.push_back(table + ": " + row);
        }
    }

    std::string Write(std::string_view name, const std::string& text) const {
        std::ofstream(folder.File(name)) << text;
        return folder.File(name);
    }

    void Take(const std::vector<std::string>& arguments) const {
        std::ostringstream data, words;
        Records::Outside outside{data,
                                 words,
                                 false,
                                 [] { return Records::Moment{Date::FromText(Today)}; },
                                 [] { return std::chrono::milliseconds(0); },
                                 folder.Path()};
        EXPECT_EQ(Records::RunCommand(outside, arguments), 0) << words.str();
    }

  private:
    std::string Report() const {
        return person.Find<QPlainTextEdit>("txtReport").toPlainText().toStdString();
    }
    std::vector<double> BarsOf(std::string_view name) const {
        auto& chart = person.Find<forms::Chart>(name);
        std::vector<double> bars;
        for (int column = 1; column <= chart.ColumnCount(); ++column)
            for (int row = 1; row <= chart.RowCount(); ++row) {
                chart.SetColumn(column);
                chart.SetRow(row);
                bars.push_back(chart.Data());
            }
        return bars;
    }
};

std::string Blanks(const std::vector<int>& numbers) {
    std::string text;
    for (const int number : numbers) text += (text.empty() ? "" : " ") + std::to_string(number);
    return text;
}

// The game's name for the command: the caption under its region.
std::string NameOfGame(std::string_view menu) {
    std::string region;
    for (const MenuEntry& entry : MenuTree()) {
        std::string plain(TrimBlanks(entry.caption));
        std::erase(plain, '&');
        if (entry.action == MenuAction::Menu) region = plain;
        if (entry.name == menu) return region + "/" + plain;
    }
    return {};
}

class TakenIn : public ::testing::TestWithParam<std::string_view> {
  public:
    static constexpr Purchase Bought{4, 2, 1};

    // The tickets that the player has entered, as a spreadsheet would hold them.
    static std::string TicketsOf(const Player& player, const std::string& price) {
        std::string text = "date,numbers,way,wager,addon,price\n";
        const bool counted = player.CountsAddOns();
        const std::size_t sheet = player.tickets.size() / 2;
        for (std::size_t i = 0; i < player.tickets.size(); ++i) {
            const bool numbered = player.addOn && (i == 0 || (counted && i == sheet));
            const char* number = !numbered                            ? ""
                                 : player.addOn->ExtraFlag == "Extra" ? "10 20 30 40"
                                                                      : player.addOn->number;
            text += "03/11/2006," + Blanks(player.tickets[i]) + (IsPick(player.family) ? ",straight" : ",") +
                    (IsKeno(player.family) ? ",2" : ",") + "," + number + "," + (i == 0 ? price : "") + "\n";
        }
        return text;
    }
    static std::string DrawOf(const Player& player) {
        const char* number = !player.addOn                        ? ""
                             : player.addOn->ExtraFlag == "Extra" ? "10 20 30 40"
                                                                  : player.addOn->number;
        return "date,numbers,addon\n2006-03-11," + Blanks(player.Draw()) + "," + number + "\n";
    }
    // Only the usual prices are told by no column; those of the Florida games go by the wager.
    static std::string WithoutPrices(std::string text) {
        std::string kept;
        std::istringstream lines(text);
        for (std::string line; std::getline(lines, line);) kept += line.substr(0, line.rfind(',')) + "\n";
        return kept;
    }
};

TEST_P(TakenIn, LooksInEveryWindowLikeWhatWasEnteredByHand) {
    Picture byHand, taken;
    std::string tickets, draw;
    {
        Player player(GetParam());
        player.Inside([&] { player.EnterTickets(Bought); });
        player.Check(byHand, false);
        player.LookAtReports(byHand);
        player.LookAtFile(byHand);
        tickets = TicketsOf(player, player.Rows("SELECT Spent FROM Spent").front());
        if (!player.game.LottoFlag.starts_with("FLA")) tickets = WithoutPrices(tickets);
        draw = DrawOf(player);
    }
    {
        Player player(GetParam());
        const std::string game = NameOfGame(GetParam());
        player.Take({"tickets", game, player.Write("tickets.csv", tickets), "--spent"});
        player.Take({"draws", game, player.Write("draws.csv", draw)});
        player.Take({"check"});
        player.LookAtReports(taken);
        player.LookAtFile(taken);
        // The draw to be typed is the first ticket's.
        player.NextTicket();
        player.Check(taken, true);
    }
    EXPECT_EQ(taken.rows, byHand.rows);
    EXPECT_FALSE(byHand.rows.empty());
    EXPECT_EQ(taken.verdicts, byHand.verdicts);
    EXPECT_FALSE(byHand.verdicts.empty());
    EXPECT_EQ(taken.addOns, byHand.addOns);
    EXPECT_EQ(taken.frequencies, byHand.frequencies);
    EXPECT_EQ(taken.money, byHand.money);
    EXPECT_EQ(taken.moneyReport, byHand.moneyReport);
    EXPECT_EQ(taken.numberReport, byHand.numberReport);
}

std::vector<std::string_view> Menus() {
    std::vector<std::string_view> menus;
    for (const GameTold& game : GamesTold) menus.push_back(game.menu);
    return menus;
}

INSTANTIATE_TEST_SUITE_P(EveryGame, TakenIn, ::testing::ValuesIn(Menus()),
                         [](const auto& test) { return std::string(test.param); });

}  // namespace
}  // namespace sorvane::test

// The games that no menu entry opens, from the ticket to its row, the verdict, the winnings and the reports.
#include <algorithm>
#include <ostream>

#include "windows/Slip.h"

namespace sorvane::test {
namespace {

struct UnofferedGame {
    Family family;
    const char* LottoFlag;
    const char* ExtraFlag;
    const char* spent;
    const char* played;
    const char* row;  // of the ticket there
    // The check: the tables that it misses in turn, the one that takes the draw (null: none), and whether it
    // finds a row of the date there before any draw was stored.
    Texts missing;
    const char* drawn;
    bool foundAtOnce;
    Texts listed, verdicts;
    int matches;
    // Whether "Enter Winnings" finds the ticket, and whether the numbers drawn are counted.
    bool won, counted;
};

void PrintTo(const UnofferedGame& game, std::ostream* out) { *out << game.LottoFlag; }

const char* const Sorry = "Sorry. This ticket is not a winner.";
const char* const FourBalls = "1|2|3|4|0|0|0|0|0|0|2|4|0";
const char* const TwentyBalls = "1|2|3|4|5|6|7|8|9|10|0|0|0";

// Keno: no game but Daily Keno has prizes, so nothing is said; of twenty numbers ten are kept, and of those
// as many read back as balls were chosen, none. Quote 4 and Atlantic Pik 4: the check names no tables of
// theirs, so it works on the one of the load; of Pik 4 that is a table that nothing makes.
const UnofferedGame Games[] = {
    {Family::frmKeno70,
     "QCBanco",
     "QCExtra",
     "2",
     "PlayedQCBanco",
     FourBalls,
     {"WinQCExtra"},
     "WinQCBanco",
     false,
     {"1, 2, 3, 4"},
     {},
     4,
     true,
     true},
    {Family::frmKeno70,
     "ATLChoice",
     "Tag",
     "2",
     "PlayedATLChoice",
     FourBalls,
     {"WinTag"},
     "WinATLChoice",
     false,
     {"1, 2, 3, 4"},
     {},
     4,
     true,
     true},
    {Family::frmKeno80,
     "PrairieKeno",
     "",
     "1",
     "PlayedPrairieKeno",
     TwentyBalls,
     {},
     "WinPrairieKeno",
     false,
     {""},
     {},
     0,
     true,
     false},
    {Family::frmKeno80,
     "BCClubKeno",
     "",
     "1",
     "PlayedBCClubKeno",
     TwentyBalls,
     {},
     "WinBCClubKeno",
     false,
     {""},
     {},
     0,
     true,
     false},
    {Family::frmPick4,
     "Quote4",
     "QCQuote4",
     "1",
     "PlayedQuote4",
     "1|2|3|4||0",
     {},
     "PlayedQuote4",
     true,
     {"1, 2, 3, 4"},
     {Sorry},
     0,
     true,
     false},
    {Family::frmPick4,
     "ATLPik4",
     "ATLPik4",
     "1",
     "PlayedATLPik4",
     "1|2|3|4||0",
     {"PlayedAtlanticPik4", "PlayedAtlanticPik4"},
     nullptr,
     false,
     {},
     {},
     0,
     false,
     false},
};

class UnofferedGameTest : public SlipWorld, public ::testing::WithParamInterface<UnofferedGame> {
  protected:
    const UnofferedGame& game = GetParam();

    void Open() { Show(game.family, game.LottoFlag, game.ExtraFlag); }

    void EnterTicket() {
        OneSheet(1);
        if (game.family == Family::frmPick4) {
            for (int i = 0; i < 4; ++i) Choose("cboNumber(" + std::to_string(i) + ")", std::to_string(i + 1));
            person.Tab();
        } else if (game.family == Family::frmKeno70) {
            Put("cboWager", "2.00");
            Put("cboNoOfBallsPerTicket", "4");
            PickFrom(1, 4);
        } else {
            PickFrom(1, 20);
        }
        SaveSheet(true);
    }

    std::string TicketRow() const {
        const int balls = game.family == Family::frmPick4 ? 4 : 10;
        std::string fields;
        for (int i = 1; i <= balls; ++i) fields += "Ball_" + std::to_string(i) + ", ";
        fields += game.family == Family::frmPick4 ? "[Way Played], " : "Wager, [# of Balls], ";
        return Rows("SELECT " + fields + "Regular FROM " + game.played).at(0);
    }

    // The numbers of the ticket backwards, and what lies behind them.
    void TypeDraw() {
        const bool pick = game.family == Family::frmPick4;
        for (int i = 0; i < (pick ? 4 : 20); ++i)
            if (pick) Choose("cboWin4(" + std::to_string(i) + ")", std::to_string(4 - i));
            else Type("txtWin20(" + std::to_string(i) + ")", std::to_string(20 - i));
        if (game.family == Family::frmKeno70) Type("txtWinEncore", "123456");
    }

    // `again`: a draw of the date is there already; of a refusal keno 70 alone makes something.
    void Check(bool again, Answer answer = Answer::Yes) {
        const bool stops = again && answer == Answer::No && game.family == Family::frmKeno70;
        if (game.drawn && (again || game.foundAtOnce)) ExpectRecheck(answer);
        if (!stops)
            for (const std::string& table : game.missing) ExpectMissingTable(table);
        global.MatchCount = 0;
        Click("cmdCheck");
        EXPECT_EQ(ListOf("lstNumbersPlayed"), game.listed);
        EXPECT_EQ(ListOf("lstMessage"), game.verdicts);
        EXPECT_EQ(global.MatchCount, stops ? 0 : game.matches);
    }

    void EnterWinnings() {
        Type("txtDollarsWon", "7.50");
        if (game.won) person.Expect("SAVED", "Winning data saved.");
        else ExpectMissingTable(game.missing.at(0));
        Click("cmdEnterWinnings");
    }
};

TEST_P(UnofferedGameTest, WorksFromTheTicketToTheVerdictTheWinningsAndTheReports) {
    Open();
    EnterTicket();
    EXPECT_EQ(TicketRow(), game.row);
    EXPECT_EQ(Rows("SELECT Lottoflag, Spent FROM Spent"),
              Texts{game.LottoFlag + std::string("|") + game.spent});

    Open();
    person.ClickTab("&Check Tickets");
    TypeDraw();
    Check(false);
    if (game.drawn) {
        EXPECT_EQ(Rows("SELECT Lottoflag, Ball_1, Ball_4 FROM " + std::string(game.drawn)),
                  Texts{game.LottoFlag + std::string(game.family == Family::frmPick4 ? "|4|1" : "|20|17")});
    }
    EnterWinnings();
    EXPECT_EQ(Rows("SELECT Lottoflag, Winnings FROM Winnings"),
              game.won ? Texts{game.LottoFlag + std::string("|7.5")} : Texts{});

    person.ClickTab("&Reports");
    Click("cmdPLReport");
    const std::string money = Window().Reports.txtReport.Text();
    EXPECT_NE(money.find("Total Spent :   $          " + std::string(game.spent) + ".00"), std::string::npos);
    EXPECT_NE(money.find(game.won ? "Total Won   :   $          7.50" : "Total Won   :   $          0.00"),
              std::string::npos);
    if (game.counted) {
        Click("cmdReport");
        EXPECT_NE(Window().Reports.txtReport.Text().find("20                            1\r\n"),
                  std::string::npos);
    }
}

TEST_P(UnofferedGameTest, ARecheckMaybeRefusedReadsTheTicketsAgain) {
    Open();
    EnterTicket();
    Open();
    person.ClickTab("&Check Tickets");
    TypeDraw();
    Check(false, Answer::No);
    Check(true, Answer::No);
}

INSTANTIATE_TEST_SUITE_P(OutOfReach, UnofferedGameTest, ::testing::ValuesIn(Games),
                         [](const auto& test) { return std::string(test.param.LottoFlag); });

}  // namespace
}  // namespace sorvane::test

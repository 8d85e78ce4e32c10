// One sitting of a player: the program is started, tickets are entered, saved, checked, and what they won.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "store/StoreRoutine.h"
#include "windows/Road.h"

namespace sorvane::test {

// What the program has said is written, as a query and its answer: it holds from now on, whatever happens.
struct Promise {
    std::string query, answer;
};

// Each sitting has a day of its own (days since 30 December 1899), so that its rows are told from all others.
class Session : public Road {
  public:
    Session(std::string_view menu, const std::string& home, int day, std::function<void(const Promise&)> told)
        : Road(menu, home), day_(std::to_string(day)), told_(std::move(told)) {
        clock.today = Date::FromDays(day);
    }

    // Opens the game's window, which makes its tables, and leaves it.
    void Open() {
        Start();
        Inside([] {});
    }
    // Buys tickets; `tickets` spread evenly over `sheets`.
    void Buy(const Purchase& purchase) {
        Inside([&] {
            EnterTickets(purchase);
            if (refused) return;
            Tell("SELECT count(*) FROM Spent WHERE " + OfMyGame(), "1");
            Texts listed, verdicts;
            ExpectAddOns(listed, verdicts, purchase);
            if (addOn)
                Tell("SELECT count(*) FROM " + std::string(addOn->Played) + " WHERE Date = " + day_,
                     std::to_string(listed.size()));
        });
    }

    // Checks the tickets of the day against a draw, and enters what was won.
    void CheckAndWin() {
        Inside([&] {
            person.ClickTab("&Check Tickets");
            TypeDraw();
            Click("cmdCheck");
            Tell("SELECT count(*) FROM " + std::string(game.Win) + " WHERE Date = " + day_, "1");
            Type("txtDollarsWon", "1,234.50");
            person.Expect("SAVED", "Winning data saved.", Answer::Ok, BoxStyle::Ok, [&] {
                Tell("SELECT CAST(Winnings AS REAL) FROM Winnings WHERE " + OfMyGame(), "1234.5");
            });
            Click("cmdEnterWinnings");
        });
    }

    // Another copy of the program may take a key first, or hold the file: the box that says so is read and
    // counted, and what was to be written then is not promised.
    void BearOtherCopies(const std::function<void(int number)>& refusal) {
        for (const int number : {3022, 3260})
            person.Bear("ERROR!",
                        "ERROR #" + std::to_string(number) +
                            "\r\nUnexpected error occurred. Please advise error number to support.",
                        [this, refusal, number] {
                            refused = true;
                            refusal(number);
                        });
    }

    void ToldSaved(const Purchase&, int) override {
        if (refused) return;
        std::string rows;
        for (const std::string& ticket : TicketTexts()) rows += (rows.empty() ? "" : "; ") + ticket;
        Tell("SELECT group_concat(ticket, '; ') FROM (SELECT " + BallFields() + " AS ticket FROM " +
                 std::string(game.Played) + " WHERE Date = " + day_ + " ORDER BY ID1 LIMIT " +
                 std::to_string(tickets.size()) + ")",
             rows);
    }

    bool refused = false;

  private:
    void TestBody() override {}
    std::string OfMyGame() const {
        return "Date = " + day_ + " AND Lottoflag = '" + std::string(game.LottoFlag) + "'";
    }
    void Tell(const std::string& query, const std::string& answer) const { told_({query, answer}); }

    std::string day_;
    std::function<void(const Promise&)> told_;
};

}  // namespace sorvane::test

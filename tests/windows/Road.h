// The road of a game from the menu over its sheets and add-ons to its verdicts, as a player walks it.
#pragma once

#include <algorithm>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Text.h"
#include "support/Games.h"
#include "windows/MainWindow.h"

namespace sorvane::test {

inline constexpr std::string_view Sorry = "Sorry. This ticket is not a winner.";
inline constexpr const char* SecondNumber = "987654";
inline constexpr int MostLottarioEncores = 10;

// What is entered: so many tickets on so many sheets, with so many add-on tickets on each sheet that takes
// them.
struct Purchase {
    int tickets, sheets, addOns;
};

// One game of the menu, played by a person at the main window.
class Road : public MainWindow {
  public:
    explicit Road(std::string_view menu, const std::string& home = {})
        : MainWindow(home), game(GameOf(menu)) {}

    // While the box says that so many sheets of the entry are saved.
    virtual void ToldSaved(const Purchase&, int /*sheets*/) {}

    const GameTold& game;
    const Family family = game.opens;
    const AddOnTold* addOn = AddOnOf(game.ExtraFlag);
    // Tickets that come with one bought, itself counted in.
    const int filled = family == Family::frm749 ? 3 : family == Family::frm645 ? 2 : 1;
    int entered = 0;  // tickets so far, bonus tickets counted in
    std::vector<std::vector<int>> tickets;

    int BallsOf() const { return PerFamily<int>{{6, 7, 6, 4, 20, 3, 4}}[family]; }

    std::vector<int> NextTicket() {
        std::vector<int> numbers;
        const int first = IsPick(family) ? entered : 1 + (entered * 5) % 30;
        for (int i = 0; i < BallsOf(); ++i) numbers.push_back(IsPick(family) ? (first + i) % 10 : first + i);
        ++entered;
        tickets.push_back(numbers);
        return numbers;
    }

    void Inside(const std::function<void()>& act) {
        person.ExpectWindow(NameOf(family), [&](QWidget& window) {
            act();
            if (window.isVisible()) person.Close(window);
        });
        Choose(game.menu);
    }

    static std::string At(const char* array, int i) { return array + ("(" + std::to_string(i) + ")"); }

    void ChooseDigit(const std::string& list, int digit) { WindowWorld::Choose(list, std::to_string(digit)); }

    void FillTicket() {
        if (family == Family::frmKeno70) {
            Put("cboNoOfBallsPerTicket", "4");
            Put("cboWager", "2.00");
        }
        const std::vector<int> numbers = NextTicket();
        if (IsPick(family)) {
            for (int i = 0; i < BallsOf(); ++i)
                ChooseDigit(At("cboNumber", i), numbers[static_cast<std::size_t>(i)]);
            person.Tab();
        } else {
            for (const int number : numbers) Click(At("chkNumb", number - 1));
        }
    }

    bool CountsAddOns() const { return addOn && addOn->counted; }

    // The most add-on tickets that a sheet of so many tickets takes. Only Lottario limits Encore; elsewhere
    // two more than that are taken.
    int MostAddOns(int onSheet) const {
        if (!CountsAddOns()) return addOn ? 1 : 0;
        if (addOn->ExtraFlag == "Extra") return onSheet;
        return family == Family::frm645 ? MostLottarioEncores : MostLottarioEncores + 2;
    }

    void TypeAddOn(int ticket) {
        if (addOn->ExtraFlag == "Extra") {
            for (int i = 0; i < 4; ++i)
                Put(At("txtPlay4", i), std::to_string((ticket == 0 ? 10 : 50) + 10 * i));
        } else {
            Put("txtEncore", ticket == 0 ? addOn->number : SecondNumber);
        }
    }

    void EnterAddOns(int sheet, int count) {
        if (!addOn) return;
        if (!CountsAddOns()) {
            if (sheet > 1) return;  // its field is hidden from the second sheet on
            Click("chkEncore");
            if (count > 0) TypeAddOn(0);
            else Click("chkEncore");
            return;
        }
        for (int ticket = 0; ticket < count; ++ticket) {
            Click("cmdNext_Ticket");
            TypeAddOn(ticket);
        }
    }

    void FillSheet(int sheet, int onSheet, int addOns) {
        if (CountsAddOns()) Put("txtNoOfExtra", std::to_string(addOns));
        const int total = onSheet * filled;
        for (int ticket = 1; ticket <= total; ++ticket) {
            FillTicket();
            if (ticket < total) Click("cmdNext_Ticket");
        }
        EnterAddOns(sheet, addOns);
    }

    // Leaves the count of tickets, more than one, spread evenly over the sheets.
    void PutCount(int bought, int sheets = 1) {
        person.ExpectWindow("frmHowManySheets", [&](QWidget&) {
            Type("txtNoOfSheets", std::to_string(sheets));
            Click("cmdOk");
        });
        if (sheets > 1 && sheets != bought)
            person.ExpectWindow("frmTicketsOnSheet", [&](QWidget&) {
                Type("txtNoOfTicketsOnSheet", std::to_string(bought / sheets));
                Click("cmdOk");
            });
        Put("txtNoOfTickets(0)", std::to_string(bought));
    }

    void EnterTickets(const Purchase& purchase) {
        const int onSheet = purchase.tickets / purchase.sheets;
        PutCount(purchase.tickets, purchase.sheets);
        if (IsPick(family)) WindowWorld::Click("optPlayOpt(0)");
        for (int sheet = 1; sheet <= purchase.sheets; ++sheet) {
            FillSheet(sheet, onSheet, purchase.addOns);
            SaveSheet(sheet == purchase.sheets, [&, sheet] { ToldSaved(purchase, sheet); });
        }
    }

    // Saves the sheet in hand; `told` runs while the box says so.
    void SaveSheet(bool last, std::function<void()> told = {}) {
        ASSERT_TRUE(IsEnabled("cmdSave")) << game.menu;
        person.Expect("CONFIRM", "Save this sheet of tickets?", Answer::Yes, BoxStyle::YesNo);
        person.Expect("CONFIRMED", last ? "Tickets Saved" : "Tickets Saved - Enter Next Sheet", Answer::Ok,
                      BoxStyle::Ok, std::move(told));
        Click("cmdSave");
    }

    std::string BallFields() const {
        std::string fields;
        for (int i = 1; i <= BallsOf(); ++i)
            fields += (i > 1 ? " || ', ' || Ball_" : "Ball_") + std::to_string(i);
        return fields;
    }

    Texts TicketTexts() const {
        Texts texts;
        for (const auto& ticket : tickets)
            texts.push_back(JoinNumbers(static_cast<int>(ticket.size()),
                                        [&](int i) { return ticket.at(static_cast<std::size_t>(i)); }));
        return texts;
    }

    // The winning numbers: the first ticket, then what lies behind it.
    std::vector<int> Draw() const {
        std::vector<int> draw = tickets.front();
        const int count = IsKeno(family) ? 20 : IsPick(family) ? BallsOf() : BallsOf() + 1;
        while (static_cast<int>(draw.size()) < count) draw.push_back(draw.back() + 1);
        return draw;
    }

    std::string Verdict(const std::vector<int>& ticket) const {
        const std::vector<int> draw = Draw();
        if (IsPick(family))
            return ticket == draw ? "Congratulations! This Ticket is a Winner! " : std::string(Sorry);
        const auto main = IsKeno(family) ? draw.end() : draw.end() - 1;
        const auto matches = std::count_if(ticket.begin(), ticket.end(),
                                           [&](int n) { return std::find(draw.begin(), main, n) != main; });
        const bool hit = std::find(ticket.begin(), ticket.end(), draw.back()) != ticket.end();
        if (IsKeno(family)) return matches == 4 ? "Congratulations! You won $200.00!" : std::string(Sorry);
        const std::string count = "Congratulations! You matched " + std::to_string(matches) + " Numbers!";
        if (matches == BallsOf()) return "Congratulations! You've hit the JACKPOT!!!";
        if (matches == BallsOf() - 1 && hit) return "Congratulations! You've won 2nd Prize!";
        if (family != Family::frm749) return matches >= 3 ? count : std::string(Sorry);
        if (matches == 6) return "Congratulations! You've won 3rd Prize!";
        if (matches == 5) return count;
        if (matches == 4 || (matches == 3 && hit)) return "Congratulations! You've won $10.00!";
        return matches == 3 ? "Congratulations! You've won a FREE Ticket!" : std::string(Sorry);
    }

    Texts Verdicts() const {
        Texts verdicts;
        for (const auto& ticket : tickets) {
            verdicts.push_back(Verdict(ticket));
            if (family == Family::frm645) verdicts.push_back("Earlybird NOT Played");
        }
        return verdicts;
    }

    void TypeDraw() {
        const std::vector<int> draw = Draw();
        const std::string stem = IsKeno(family)             ? "txtWin20"
                                 : family == Family::frm749 ? "txtWin7"
                                                            : "txtWin6";
        for (std::size_t i = 0; i < draw.size(); ++i) {
            if (IsPick(family))
                ChooseDigit(At(family == Family::frmPick3 ? "cboWin3" : "cboWin4", static_cast<int>(i)),
                            draw[i]);
            else Type(At(stem.c_str(), static_cast<int>(i)), std::to_string(draw[i]));
        }
        if (family == Family::frm645)
            for (int i = 0; i < 4; ++i) Type(At("txtWin4", i), std::to_string(i + 1));
        if (!addOn) return;
        if (addOn->ExtraFlag == "Extra")
            for (int i = 0; i < 4; ++i) Type(At("txtWin4", i), std::to_string(10 + 10 * i));
        else Type("txtWinEncore", addOn->number);
    }

    // The verdicts of add-on tickets entered on `sheets` sheets.
    void ExpectAddOns(Texts& listed, Texts& verdicts, const Purchase& purchase) const {
        if (!addOn) return;
        const int perSheet = CountsAddOns() ? purchase.addOns : std::min(purchase.addOns, 1);
        const int sheets = CountsAddOns() ? purchase.sheets : 1;
        for (int sheet = 0; sheet < sheets; ++sheet)
            for (int ticket = 0; ticket < perSheet; ++ticket) {
                const bool four = addOn->ExtraFlag == "Extra";
                listed.push_back(ticket == 0 ? addOn->listed : four ? "50, 60, 70, 80" : "9, 8, 7, 6, 5, 4");
                verdicts.push_back(ticket == 0 ? addOn->verdict
                                   : four      ? "Sorry, Extra # 50, 60, 70, 80 is not a winner."
                                               : "Sorry. Encore ticket #987654 is not a winner.");
            }
    }

    void Restart() {
        const std::string path = global.AppPath;
        global = Global{};
        frm.Load();
        EXPECT_EQ(global.AppPath, path);
    }
};

}  // namespace sorvane::test

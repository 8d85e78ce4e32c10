// A person at the check page.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

#include "windows/Slip.h"

namespace sorvane::test {

constexpr std::string_view Sorry = "Sorry. This ticket is not a winner.";

class CheckTickets : public SlipWorld {
  protected:
    static std::string Day(std::string_view date = Today) {
        return std::to_string(Date::FromText(date).Day());
    }

    void Open(std::string_view menu) {
        Show(menu);
        Window().SSTab1.SetTab(Tab::Check);
    }
    // Fills boxes of an array from 0 on, as a player types them.
    void Draw(const std::string& stem, std::initializer_list<int> numbers) {
        int i = 0;
        for (const int number : numbers) Type(Box(stem, i++), std::to_string(number));
    }
    // The digits drawn, chosen in the lists of the three-digit window.
    void Digits(std::initializer_list<int> digits) {
        int i = 0;
        for (const int digit : digits) Choose(Box("cboWin3", i++), std::to_string(digit));
    }
    static std::string Box(const std::string& stem, int i) { return stem + "(" + std::to_string(i) + ")"; }
    void ExpectMissing(const std::string& text, const char* title = "ERROR") { person.Expect(title, text); }
    void ExpectCorrection(Answer answer) {
        person.Expect("RECHECK?",
                      "You have already entered a Winning Number on this Draw Date.\r\n"
                      "Would you like to correct this Winning Number?",
                      answer, BoxStyle::YesNo);
    }
    Texts Played() { return ListOf("lstNumbersPlayed"); }
    Texts AddOn() { return ListOf("lstEncorePlayed"); }
    Texts Messages() { return ListOf("lstMessage"); }
};

}  // namespace sorvane::test

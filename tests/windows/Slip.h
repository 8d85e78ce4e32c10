// A person filling play slips.
#pragma once

#include <initializer_list>
#include <string>

#include "support/WindowWorld.h"

namespace sorvane::test {

class SlipWorld : public WindowWorld {
  public:
    static std::string Ball(int number) { return "chkNumb(" + std::to_string(number - 1) + ")"; }

    // Clicks these numbers on the grid.
    void Pick(std::initializer_list<int> numbers) {
        for (const int number : numbers) Click(Ball(number));
    }
    // Clicks `count` numbers on from `first`.
    void PickFrom(int first, int count) {
        for (int i = 0; i < count; ++i) Click(Ball(first + i));
    }
    // Answers the question for the sheets of the entry, or cancels it.
    void ExpectSheets(const std::string& sheets) { ExpectCount("frmHowManySheets", "txtNoOfSheets", sheets); }
    void ExpectTicketsOnSheet(const std::string& tickets) {
        ExpectCount("frmTicketsOnSheet", "txtNoOfTicketsOnSheet", tickets);
    }
    void ExpectCancelled(const std::string& dialog) {
        person.ExpectWindow(dialog, [this](QWidget&) { Click("cmdCancel"); });
    }
    void Count(const std::string& tickets) { Put("txtNoOfTickets(0)", tickets); }
    // An entry of so many tickets on one sheet.
    void OneSheet(int tickets) {
        if (tickets > 1) ExpectSheets("1");
        Count(std::to_string(tickets));
    }
    // An entry on several sheets, the first one with `onFirst` tickets (0: nobody asks, a ticket a sheet).
    void SeveralSheets(int tickets, int sheets, int onFirst = 0) {
        ExpectSheets(std::to_string(sheets));
        if (onFirst > 0) ExpectTicketsOnSheet(std::to_string(onFirst));
        Count(std::to_string(tickets));
    }
    // Says Yes to saving a sheet that is not the last, or the last; or No.
    void SaveSheet(bool last) {
        ExpectSaveQuestion(Answer::Yes);
        person.Expect("CONFIRMED", last ? "Tickets Saved" : "Tickets Saved - Enter Next Sheet");
        Click("cmdSave");
    }
    void RefuseToSave() {
        ExpectSaveQuestion(Answer::No);
        Click("cmdSave");
    }
    // Cancels the entry.
    void StartOver() {
        person.Expect("CONFIRM", "Are you sure you wish to start over?", Answer::Yes, BoxStyle::YesNo);
        Click("cmdCancel");
    }
    static constexpr std::string_view CleanUpText =
        "Since you've already saved some tickets, your database will be incorrect.\r\n"
        "Would you like to clean up your database?\r\n"
        "(NOTE: This will delete ALL records with the same Draw Date as indicated\r\n"
        "in the Draw Date box above.)";
    void ExpectCleanUp(Answer answer, const std::string& title = "Exiting before completion...") {
        person.Expect(title, CleanUpText, answer, BoxStyle::YesNoCancel);
        if (answer == Answer::Yes) person.Expect("Database Cleaned", "Database cleaned!");
    }
    void ExpectBadNumber() {
        person.Expect("Error!", "Please enter a valid number greater than or equal to 1.", Answer::Ok,
                      BoxStyle::Exclamation);
    }
    void ExpectShortEncore(Answer answer = Answer::Ok) {
        person.Expect("Encore Too Short!", "Encore number too short. Please check the number and try again.",
                      answer, BoxStyle::OkCancel);
    }
    std::string CountOf(const std::string& table) {
        return Rows("SELECT COUNT(*) FROM [" + table + "]").at(0);
    }

  private:
    void ExpectCount(const std::string& dialog, const std::string& field, const std::string& count) {
        person.ExpectWindow(dialog, [this, field, count](QWidget&) {
            Type(field, count);
            person.Enter();
            person.Enter();
        });
    }
};

}  // namespace sorvane::test

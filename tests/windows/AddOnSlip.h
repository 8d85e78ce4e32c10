// A person at the add-on of a sheet.
#pragma once

#include <string>
#include <string_view>

#include "windows/Slip.h"

namespace sorvane::test {

class AddOnWindow : public SlipWorld {
  protected:
    void TickSix() { Pick({1, 2, 3, 4, 5, 6}); }
    // One ticket, complete but for its add-on.
    void EnterTicket(std::string_view menu, std::string_view count = {}) {
        Show(menu);
        OneSheet(1);
        if (!count.empty()) Put("txtNoOfExtra", count);
        if (Window().Which == Family::frm749) Pick({1, 2, 3, 4, 5, 6, 7});
        else TickSix();
    }
    // Super 7 ends its sheet with two bonus tickets.
    void EnterSuper7(std::string_view menu) {
        EnterTicket(menu);
        for (int i = 0; i < 2; ++i) {
            Click("cmdNext_Ticket");
            Pick({11, 12, 13, 14, 15, 16, 17});
        }
    }
    void ExpectOutOfRange() {
        person.Expect("Error - Number out of Range!", "Please enter a number between 1 and 99.", Answer::Ok,
                      BoxStyle::Exclamation);
    }
    void ExpectTooManyExtra() {
        person.Expect("ERROR!",
                      "Too many Extra tickets entered. Please enter a value less than\r\n"
                      "or equal to the number of Tickets on this sheet.");
    }
    void ExpectTooManyEncore() {
        person.Expect("Too Many Encore Tickets Entered",
                      "Maximum number of 10 Encore Tickets per Sheet. Please try again.");
    }
    void PutPlay4(std::string_view a, std::string_view b, std::string_view c, std::string_view d) {
        int i = 0;
        for (const std::string_view number : {a, b, c, d})
            Put("txtPlay4(" + std::to_string(i++) + ")", number);
    }
    // The click on "&Save Tickets" that ends in an error behind the rows of the tickets.
    void SaveFails(int number) {
        ExpectSaveQuestion(Answer::Yes);
        ExpectRunTimeError(number);
        Click("cmdSave");
    }
    Texts Numbers(std::string_view table) {
        return Rows(
            "SELECT [Number 1], [Number 2], [Number 3], [Number 4], [Number 5], [Number 6], [Number 7] "
            "FROM " +
            std::string(table) + " ORDER BY ID1");
    }
};

}  // namespace sorvane::test

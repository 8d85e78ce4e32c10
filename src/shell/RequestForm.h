// The paper form by which a player asks for a lottery that the program lacks.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/Services.h"

namespace sorvane {

// The fields as they were filled in; nothing is checked.
struct RequestForm {
    enum class Answered { Neither, Yes, No };

    std::string NameOfLottery;
    std::string Country;
    std::string ProvinceState;
    std::string NumberOfNumbers;
    std::string Low;
    std::string High;
    Answered BonusNumber = Answered::Neither;
    Answered BonusTicket = Answered::Neither;
    std::string NumberOfBonusTickets;
    std::string CostPerTicket;
    std::string AdditionalInfo;  // line breaks are carriage return and line feed
};

// Prints the form at 12 points on the printer that was chosen, and ends the page. Raises what the printer
// raises.
void PrintRequestForm(Printer& printer, const RequestForm& form);

// The text in lines of at least 75 characters, as far as it reaches: a line runs on to the next blank instead
// of breaking a word. A line that ends at a line break also holds the break and the two characters behind it.
// The blanks that a line begins with are dropped, but as many characters at its end are repeated in the next.
// A rest of blanks alone is left out; a text without any character is one empty line. Characters are UTF-8.
std::vector<std::string> WrapAdditionalInfo(std::string_view text);

}  // namespace sorvane

// What stands in the winning boxes of the check page, taken as plain text at the click.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "platform/Date.h"

namespace sorvane {

// The texts as they stand, blanks and leading zeros included.
struct WinningBoxes {
    // txtWin6, txtWin7, txtWin20, cboWin3 or cboWin4, as many as CheckFacts::BoxCount tells; in the lotto
    // windows the last one is the bonus.
    std::vector<std::string> Main;
    std::array<std::string, 4> Four;  // txtWin4: the Extra or the EarlyBird numbers
    std::string Encore;               // txtWinEncore: the digit add-on
    Date DrawDate;                    // dtpEnterTickets(2); the add-on row bears it
};

}  // namespace sorvane

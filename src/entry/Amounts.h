// What an entry costs: the default at the count of tickets, and the wagers of the digit games.
#pragma once

#include <string>
#include <string_view>

#include "shell/Family.h"

namespace sorvane {

// The amount put in when the count of tickets is accepted, as text. For the Florida games see WagerAmount.
std::string DefaultAmount(Family family, std::string_view LottoFlag, int tickets);

enum class WagerOption { One, Two, Five, Ten };

// Whether the options mean the wager doubled, as in the Florida games: "$1.00" is a $0.50 play.
bool HasHalfWagers(std::string_view LottoFlag);

// The amount of a dollar option for so many tickets, as text: ".50", "5.00".
std::string WagerAmount(WagerOption option, std::string_view LottoFlag, int tickets);

}  // namespace sorvane

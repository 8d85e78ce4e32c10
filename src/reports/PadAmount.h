// Amounts stand in a column of fixed width.
#pragma once

#include <cstddef>
#include <string>

namespace sorvane {

inline constexpr std::size_t AmountWidth = 14;

// The text behind blanks, exactly 14 characters long. A longer one never gets there, and the call never
// returns: the ledgers of one player stay far below such amounts. Meanwhile it takes no processor time, and
// whoever calls holds no lock on the file; the process can be ended from outside at once.
std::string PadAmount(std::string text);

// The same, but one blank goes in front before the length is looked at: a text of 14 characters never returns
// either.
std::string PadAmountAtLeastOnce(std::string text);

}  // namespace sorvane

// What the generator and the wheel share.
#pragma once

#include <string>

#include "shell/Global.h"

namespace sorvane {

// Sorts the array ascending, all but its last slot, which is a spare one; then copies the whole array into
// Global::Numbers, whichever array was passed. Raises 9 for an array never sized.
void SortNumbers(Global& global, Array<Integer>& numbers);

// The numbers at the positions 0 to `count` - 1, but none behind `lastPosition`. A ", " follows each of them
// except the one at `lastPosition`, so a shorter ticket ends with it. Raises 9 where the array is shorter.
std::string JoinByPosition(const Array<Integer>& numbers, int count, int lastPosition);

}  // namespace sorvane

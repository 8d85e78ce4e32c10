// The sort that the generator and the wheel share.
#pragma once

#include "shell/Global.h"

namespace sorvane {

// Sorts the array ascending, all but its last slot, which is a spare one; then copies the whole array into
// Global::Numbers, whichever array was passed. Raises 9 for an array never sized.
void SortNumbers(Global& global, Array<Integer>& numbers);

}  // namespace sorvane

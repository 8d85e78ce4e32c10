#include "quickpick/GeneralFunctions.h"

#include <algorithm>

namespace sorvane {

void SortNumbers(Global& global, Array<Integer>& numbers) {
    const int spare = numbers.UBound();
    if (spare > 0) std::sort(&numbers(0), &numbers(spare));
    if (&numbers != &global.Numbers) global.Numbers = numbers;
}

}  // namespace sorvane

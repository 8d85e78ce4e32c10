#include "quickpick/GeneralFunctions.h"

#include <algorithm>

#include "platform/Text.h"

namespace sorvane {

void SortNumbers(Global& global, Array<Integer>& numbers) {
    const int spare = numbers.UBound();
    if (spare > 0) std::sort(&numbers(0), &numbers(spare));
    if (&numbers != &global.Numbers) global.Numbers = numbers;
}

std::string JoinByPosition(const Array<Integer>& numbers, int count, int lastPosition) {
    const int shown = std::min(count, lastPosition + 1);
    return JoinNumbers(shown, numbers) + (shown > 0 && shown <= lastPosition ? ", " : "");
}

}  // namespace sorvane

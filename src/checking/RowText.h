// The numbers of a row as text.
#pragma once

#include <string>
#include <string_view>

#include "platform/Text.h"
#include "shell/Types.h"

namespace sorvane {

// The first `count` numbers as plain integers, joined.
template <int N>
std::string RowText(const Slots<Integer, N>& numbers, int count, std::string_view separator = ", ") {
    return JoinNumbers(count, numbers, separator);
}

// The same, zeros left out.
template <int N>
std::string RowTextWithoutZeros(const Slots<Integer, N>& numbers, int count) {
    std::string line;
    for (int i = 0; i < count; ++i)
        if (numbers(i) != 0) AppendNumber(line, numbers(i));
    return line;
}

}  // namespace sorvane

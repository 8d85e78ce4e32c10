// The numbers of a row as text.
#pragma once

#include <string>
#include <string_view>

#include "shell/Types.h"

namespace sorvane {

// The first `count` numbers as plain integers, joined.
template <int N>
std::string RowText(const Slots<Integer, N>& numbers, int count, std::string_view separator = ", ") {
    std::string text;
    for (int i = 0; i < count; ++i) {
        if (i > 0) text += separator;
        text += std::to_string(int{numbers(i)});
    }
    return text;
}

// The same, zeros left out.
template <int N>
std::string RowTextWithoutZeros(const Slots<Integer, N>& numbers, int count) {
    std::string text;
    for (int i = 0; i < count; ++i) {
        if (numbers(i) == 0) continue;
        if (!text.empty()) text += ", ";
        text += std::to_string(int{numbers(i)});
    }
    return text;
}

}  // namespace sorvane

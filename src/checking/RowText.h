// The numbers of a row as text.
#pragma once

#include <array>
#include <charconv>
#include <string>
#include <string_view>

#include "shell/Types.h"

namespace sorvane {

// The first `count` numbers as plain integers, joined; those that `shown` refuses are left out.
template <int N, class Shown>
std::string JoinedRow(const Slots<Integer, N>& numbers, int count, std::string_view separator, Shown shown) {
    constexpr std::size_t Digits = 6;  // of a 16-bit number with its sign
    std::string text;
    for (int i = 0; i < count; ++i) {
        const int number = numbers(i);
        if (!shown(number)) continue;
        std::array<char, Digits> digits;
        const char* end = std::to_chars(digits.data(), digits.data() + Digits, number).ptr;
        if (!text.empty()) text += separator;
        text.append(digits.data(), static_cast<std::size_t>(end - digits.data()));
    }
    return text;
}

// The first `count` numbers as plain integers, joined.
template <int N>
std::string RowText(const Slots<Integer, N>& numbers, int count, std::string_view separator = ", ") {
    return JoinedRow(numbers, count, separator, [](int) { return true; });
}

// The same, zeros left out.
template <int N>
std::string RowTextWithoutZeros(const Slots<Integer, N>& numbers, int count) {
    return JoinedRow(numbers, count, ", ", [](int number) { return number != 0; });
}

}  // namespace sorvane

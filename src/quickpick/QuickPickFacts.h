// Facts of the families that the generator and the wheel ask, one line a fact, seven values beside each
// other.
#pragma once

#include <array>
#include <string_view>

#include "shell/Family.h"

namespace sorvane::QuickPickFacts {

// Tickets that a wheel is taken to offer, by the text of txtHowMany; any other text: WheelSizeElse. A family
// without texts never sets WheelSize.
struct WheelSizeRow {
    std::string_view text;
    int size;
};
using WheelSizeRows = std::array<WheelSizeRow, 3>;
inline constexpr WheelSizeRows SixNumberWheels{{{"7", 7}, {"8", 56}, {"9", 504}}};
inline constexpr WheelSizeRows SevenNumberWheels{{{"8", 8}, {"9", 72}, {"10", 720}}};
inline constexpr int WheelSizeElse = 1000;

// clang-format off
//                                                   649    749    645    K70    K80    P3     P4
inline constexpr PerFamily<bool> WheelFrame       {{ true,  true,  true,  true,  true,  false, false }};
inline constexpr PerFamily<bool> WheelLive        {{ false, false, true,  false, false, false, false }};  // the others show the frame and generate at random: meant
inline constexpr PerFamily<int>  WheelLowest      {{ 7,     8,     7,     0,     0,     0,     0     }};  // of txtHowMany; 0: no lower bound
inline constexpr PerFamily<bool> EmptyFavAsks     {{ true,  true,  false, true,  true,  false, false }};
inline constexpr PerFamily<const WheelSizeRows*> WheelSizes{{ &SixNumberWheels, &SevenNumberWheels, &SixNumberWheels, nullptr, nullptr, nullptr, nullptr }};
// clang-format on

inline constexpr int HighestHowMany = 18;  // also the number of boxes txtFavs

// The size looked up for the text of txtHowMany in a family that has the texts.
constexpr int WheelSizeOf(Family family, std::string_view text) {
    for (const WheelSizeRow& row : *WheelSizes[family])
        if (row.text == text) return row.size;
    return WheelSizeElse;
}

}  // namespace sorvane::QuickPickFacts

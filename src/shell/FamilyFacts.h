// The numbers of each family, which every room asks: one line a fact, seven values beside each other.
#pragma once

#include "shell/Family.h"

namespace sorvane::FamilyFacts {

// clang-format off
//                                                     649    749    645    K70    K80    P3     P4
inline constexpr PerFamily<int>  LowestNumber       {{ 1,     1,     1,     1,     1,     0,     0     }};
inline constexpr PerFamily<int>  HighestNumber      {{ 49,    49,    45,    70,    80,    9,     9     }};
inline constexpr PerFamily<int>  NumbersPerTicket   {{ 6,     7,     6,     20,    20,    3,     4     }};  // keno 70: at most 10 are chosen; also the shape code of the tables
// clang-format on

// How many numbers there are to choose from: rows of a chart, boxes of a grid.
constexpr int CountOfNumbers(Family family) { return HighestNumber[family] - LowestNumber[family] + 1; }

}  // namespace sorvane::FamilyFacts

// The seven families of the game window.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace sorvane {

enum class Family { frm649, frm749, frm645, frmKeno70, frmKeno80, frmPick3, frmPick4 };

inline constexpr std::array<Family, 7> AllFamilies{Family::frm649,    Family::frm749,    Family::frm645,
                                                   Family::frmKeno70, Family::frmKeno80, Family::frmPick3,
                                                   Family::frmPick4};

// A fact of the families: seven values beside each other, in the order 649 749 645 K70 K80 P3 P4.
template <class T>
struct PerFamily {
    T of[7];
    constexpr const T& operator[](Family family) const { return of[static_cast<std::size_t>(family)]; }
};
// The cell of a family that has no such number; nobody reads it.
inline constexpr int NoSuch = 0;

// The window's name, "frm649" to "frmPick4".
constexpr std::string_view NameOf(Family family) {
    constexpr PerFamily<std::string_view> names{
        {"frm649", "frm749", "frm645", "frmKeno70", "frmKeno80", "frmPick3", "frmPick4"}};
    return names[family];
}

constexpr bool IsKeno(Family family) { return family == Family::frmKeno70 || family == Family::frmKeno80; }
constexpr bool IsPick(Family family) { return family == Family::frmPick3 || family == Family::frmPick4; }

}  // namespace sorvane

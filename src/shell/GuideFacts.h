// The player's guide: where it lies, and which of its chapters tells of which window.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "shell/Family.h"

namespace sorvane::GuideFacts {

// From the folder of the program, in every shape in which it is installed.
inline constexpr std::string_view File = "share/doc/sorvane/docs/user-guide.md";

inline std::string PathBelow(const std::string& AppPath) {
    return (std::filesystem::path(AppPath) / File).make_preferred().string();
}

// The chapter of a window, by the window's name; a game window has one for each tab instead. A window that
// isn't here has the guide's first page.
struct Row {
    std::string_view window, chapter;
};
inline constexpr Row OfWindows[] = {
    {"frmMain", "Finding your game"},
    {"frmComingSoon", "Finding your game"},
    {"frmRequestNewLottery", "Finding your game"},
    {"frmHowManySheets", "Your first sheet"},
    {"frmTicketsOnSheet", "Your first sheet"},
    {"frmReport", "Charts and reports"},
    {"frmReportType", "Charts and reports"},
};

inline constexpr std::string_view Lotto = "Your first sheet";
inline constexpr std::string_view Bonus = "Bonus tickets: Super 7 and Lottario";
inline constexpr std::string_view Keno = "Daily Keno";
inline constexpr std::string_view Digits = "Digit games";
// The first tab, by the slip that stands there.
//                                                        649    749    645    K70   K80   P3      P4
inline constexpr PerFamily<std::string_view> OfEntry = {{Lotto, Bonus, Bonus, Keno, Keno, Digits, Digits}};
// The tabs behind it.
inline constexpr std::string_view OfOtherTabs[] = {"Checking your tickets", "Charts and reports",
                                                   "Quick picks and wheels"};

constexpr std::string_view ChapterOf(std::string_view window) {
    for (const Row& row : OfWindows)
        if (row.window == window) return row.chapter;
    return {};
}

constexpr std::string_view ChapterOf(Family family, int tab) {
    return tab == 0 ? OfEntry[family] : OfOtherTabs[tab - 1];
}

}  // namespace sorvane::GuideFacts

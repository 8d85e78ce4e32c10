// The choices of frmReportType, as captions and as values of ReportType.
#pragma once

#include <array>
#include <string_view>

namespace sorvane::ReportTypes {

inline constexpr std::string_view NumbersByPosition = "Numbers By Position";
inline constexpr std::string_view TripleMatch = "Triple Match";
inline constexpr std::string_view FrontPairs = "Front Pairs";
inline constexpr std::string_view BackPairs = "Back Pairs";

// In the order of optReportType.
inline constexpr std::array<std::string_view, 4> All{NumbersByPosition, TripleMatch, FrontPairs, BackPairs};

}  // namespace sorvane::ReportTypes

// Starting another program: the one place that speaks to the operating system itself.
#pragma once

#include <string>
#include <string_view>

namespace sorvane {

// What parts the folders of PATH, and what the file name of a program ends in.
#ifdef _WIN32
inline constexpr char SearchPathSeparator = ';';
inline constexpr std::string_view ProgramSuffix = ".exe";
#else
inline constexpr char SearchPathSeparator = ':';
inline constexpr std::string_view ProgramSuffix = "";
#endif

// Starts the program in that file without arguments and without waiting for its end; it outlives this one and
// leaves nothing behind in it. False when it can't be started.
bool StartProgram(const std::string& path);

}  // namespace sorvane

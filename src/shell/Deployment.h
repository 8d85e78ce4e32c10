// What is set when the program is built: its version, and what its maker says of itself.
#pragma once

#include <array>
#include <string_view>

namespace sorvane::Deployment {

// Major, minor and revision number joined by points.
extern const std::string_view Version;
// Where request forms are mailed to.
extern const std::array<std::string_view, 4> Address;
// The legal warning of the about box.
extern const std::string_view Disclaimer;

}  // namespace sorvane::Deployment

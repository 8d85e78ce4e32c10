// What each menu entry sets on its game window once the window is loaded. Everything not named here stays as
// the window made it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "shell/Catalogue.h"

namespace sorvane {

// One property of one control, or of the first elements of a control array.
struct Setting {
    enum class Property { Visible, Enabled, Caption, MaxLength };

    std::string_view control;  // "txtEncore", "optPlayOpt(1)", or an array's name
    Property property;
    int number = 0;              // Visible, Enabled: 0 or 1; MaxLength: characters
    std::string_view text = {};  // Caption
    int elements = 0;            // of an array, from 0; 0: `control` is the whole name
};

// The settings of the game. None is of the same property of the same control as another.
std::vector<Setting> DressingOf(const Game& game);

// The full names of the controls that the setting concerns.
std::vector<std::string> ControlsOf(const Setting& setting);

}  // namespace sorvane

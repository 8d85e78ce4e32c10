// The dressing, put on a window.
#pragma once

#include <vector>

#include "forms/Window.h"
#include "shell/Dressing.h"

namespace sorvane {

// Makes the settings one after the other on the loaded window. Throws std::logic_error when the window has no
// such control or the control no such property.
void Dress(forms::Window& window, const std::vector<Setting>& settings);

}  // namespace sorvane

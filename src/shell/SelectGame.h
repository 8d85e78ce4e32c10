// What the menu entry of a game writes into the state of the run.
#pragma once

#include "shell/Catalogue.h"
#include "shell/Global.h"

namespace sorvane {

// Makes the game the selected one: its keys and its family's name, and no sheets yet. Of the three facts that
// nothing reads, those that the game lacks keep the values of the game selected before.
void Select(Global& global, const Game& game);

}  // namespace sorvane

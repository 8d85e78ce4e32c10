// The tab "&Quick Pick": random tickets, and the wheel.
#pragma once

#include <optional>

#include "forms/ComboBox.h"
#include "forms/CommandButton.h"

namespace sorvane {

class GameWindow;

class QuickPickTab {
  public:
    explicit QuickPickTab(GameWindow& window);

    forms::CommandButton cmdGenerate{"cmdGenerate", "&Generate Numbers"};
    std::optional<forms::ComboBox> cboNoOfQPs;  // keno windows

    // optWheelType(0) on, where the window has it: at load and at cancel.
    void ChooseHot();

  private:
    GameWindow& window_;
};

}  // namespace sorvane

// The tab "&Quick Pick": random tickets, and the wheel.
#pragma once

#include <optional>

#include "forms/ComboBox.h"
#include "forms/CommandButton.h"
#include "forms/Label.h"
#include "forms/ListBox.h"
#include "quickpick/ui/WheelControls.h"

class QLayout;

namespace sorvane {

class GameFrame;

class QuickPickTab {
  public:
    // `frequencies`: the chart of number frequency, which a wheel of hot or cold numbers fills.
    QuickPickTab(GameFrame& window, ChartFace& frequencies);

    forms::Label lblDrawDate{"lblDrawDate", "Draw Date:"};
    forms::Label lblNoOfTickets{"lblNoOfTickets", "Number of Tickets:"};
    std::optional<forms::Label> lblNumOfBalls;  // keno windows, like the next one
    std::optional<forms::ComboBox> cboNoOfQPs;  // has no effect in frmKeno80: meant
    std::optional<WheelControls> Wheel;         // not in the digit windows
    forms::Label lblDisplay{"lblDisplay", "Number Display:"};
    forms::ListBox lstDisplay{"lstDisplay"};
    forms::CommandButton cmdGenerate{"cmdGenerate", "&Generate Numbers"};
    forms::CommandButton cmdPrint{"cmdPrint", "&Print"};
    forms::CommandButton cmdUse{"cmdUse", "&Use These #'s"};  // this and the next one do nothing
    forms::CommandButton cmdHelp{"cmdHelp", "&Help"};

    // optWheelType(0) on, where the window has it: at load and at cancel.
    void ChooseHot();

  private:
    void LayOut();
    QLayout* HeadRow();
    QLayout* ButtonColumn();
    void OrderTabs();
    void cmdGenerate_Click();
    void cmdPrint_Click();
    void cboNoOfQPs_LostFocus();

    GameFrame& window_;
    ChartFace& frequencies_;
};

}  // namespace sorvane

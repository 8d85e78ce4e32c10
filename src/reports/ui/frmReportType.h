// The dialog that asks which report of a digit game is wanted.
#pragma once

#include "forms/CommandButton.h"
#include "forms/ControlArray.h"
#include "forms/OptionButton.h"
#include "forms/Window.h"
#include "shell/Global.h"

namespace sorvane {

// A chosen option sets Global::ReportType at once; "Cancel" empties it, and "OK" keeps it: also that of an
// earlier time, when no option was chosen.
class frmReportType final : public forms::Window {
  public:
    explicit frmReportType(Session& session);

  private:
    void LayOut();

    forms::ControlArray<forms::OptionButton> optReportType{"optReportType"};
    forms::CommandButton cmdOK{"cmdOK", "OK"};
    forms::CommandButton cmdCancel{"cmdCancel", "Cancel"};
};

}  // namespace sorvane

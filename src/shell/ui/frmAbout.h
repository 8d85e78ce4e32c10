// What the program is, and the way to the system's information tool.
#pragma once

#include "forms/CommandButton.h"
#include "forms/Label.h"
#include "forms/Picture.h"
#include "forms/Rule.h"
#include "forms/Window.h"
#include "shell/Global.h"

namespace sorvane {

class frmAbout final : public forms::Window {
  public:
    explicit frmAbout(Session& session);

  private:
    void LayOut();

    forms::Picture picIcon{"picIcon"};
    forms::Label lblTitle{"lblTitle", ProgramName};
    forms::Label lblVersion{"lblVersion"};
    forms::Label lblDescription{"lblDescription"};
    forms::Rule Line1{"Line1"};
    forms::Label lblDisclaimer{"lblDisclaimer"};
    forms::CommandButton cmdOK{"cmdOK", "OK"};
    forms::CommandButton cmdSysInfo{"cmdSysInfo", "&System Info..."};
};

}  // namespace sorvane

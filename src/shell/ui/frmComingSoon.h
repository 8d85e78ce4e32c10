// The notice for a game that isn't offered yet.
#pragma once

#include "forms/CommandButton.h"
#include "forms/Label.h"
#include "forms/Window.h"

namespace sorvane {

class frmComingSoon final : public forms::Window {
  public:
    frmComingSoon();

  private:
    forms::Label lblPlease{"lblPlease", "Please be patient. We're working on this one. Thank You."};
    forms::CommandButton cmdOk{"cmdOk", "&Ok"};
};

}  // namespace sorvane

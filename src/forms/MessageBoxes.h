// Message boxes.
#pragma once

#include "platform/Services.h"

namespace sorvane::forms {

// Shows the boxes as QMessageBox with plain text and exactly the title, text, icon and standard buttons told.
// A question with Yes and No has no close box, and Escape does nothing.
class MessageBoxes final : public Dialogs {
  public:
    Answer MsgBox(std::string_view text, int style = BoxStyle::Ok,
                  std::string_view title = ProgramName) override;
};

}  // namespace sorvane::forms

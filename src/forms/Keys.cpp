#include "forms/Keys.h"

namespace sorvane::forms {

void RefuseKey(Dialogs& dialogs, TextBox& field, KeyPress& key) {
    dialogs.MsgBox(NotANumber, BoxStyle::Exclamation, KeyErrorTitle);
    field.SetText("");
    field.SetCaret(0);
    key.Swallow();
    field.SetFocus();
}

}  // namespace sorvane::forms

// Access keys: Alt and the letter behind '&'.
#pragma once

class QEvent;
class QWidget;

namespace sorvane::forms {

// Handles a shortcut event that Qt brought to `receiver`; false when it is none. The key belongs to the
// enabled, visible controls of the window that bear its letter, and to a tab only when there is no such
// control. The only one takes the focus and is clicked, unless leaving the other control showed a box or a
// window or failed; of several the next one takes the focus. A label stands for its buddy, which is not
// clicked.
bool HandleAccessKey(QWidget& receiver, QEvent& event);

}  // namespace sorvane::forms

// What a control says when the mouse rests on it, and to screen readers.
#pragma once

#include <QString>

namespace sorvane {

// Of the buttons that are only there to be seen.
inline QString DoesNothing() { return QStringLiteral("This button does nothing"); }

}  // namespace sorvane

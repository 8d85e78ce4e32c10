// What a control says when the mouse rests on it, and to screen readers.
#pragma once

#include <QString>

namespace sorvane {

// Buttons that stand there and do nothing, as settled.
inline QString DoesNothing() { return QStringLiteral("This button does nothing"); }

}  // namespace sorvane

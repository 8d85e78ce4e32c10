// Where windows stand: in the middle of the screen in use, and never beyond its edges.
#pragma once

#include <QSize>
#include <QWidget>

namespace sorvane::forms {

// What a window has of the screen that the mouse is on, its frame taken off.
QSize RoomFor(const QWidget& window);
// Before a window is shown: to the middle of that screen, no larger than it. Under Wayland the compositor
// alone says where windows stand.
void Centre(QWidget& window);
// From now on: when the window's screen shrinks or goes, the window becomes as small as the one it is on
// then, and moves back onto it. Call it when the window has been created; a second call does nothing.
void KeepOnScreen(QWidget& window);

}  // namespace sorvane::forms

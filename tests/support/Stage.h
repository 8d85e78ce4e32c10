// What makes windows the same on every machine.
#pragma once

#include <QPalette>

namespace sorvane::test {

// Before the application is made: numbers, dates, time zone and theme, and no screen unless one is asked for
// by QT_QPA_PLATFORM.
void PrepareStage();
// Afterwards: the program's style, in which nothing moves by itself, a light palette, one font.
void SetStage();
// What the desktop would tell: the program's style makes of it what it makes of every palette.
void SetDesktopPalette(const QPalette& palette);

}  // namespace sorvane::test

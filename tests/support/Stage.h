// What makes windows the same on every machine.
#pragma once

#include <QPalette>

#include "support/TempFolder.h"

namespace sorvane::test {

// Made before the application: numbers, dates, time zone and theme, and a screen of 1366 x 768 that nobody
// sees, unless QT_QPA_PLATFORM asks for another one. `scale` in per cent.
class Stage {
  public:
    explicit Stage(int scale = 100);
    // Once there is an application: the program's style, in which nothing moves by itself, a light palette,
    // one font.
    void Set() const;

  private:
    TempFolder screen_;
};

// What the desktop would tell: the program's style makes of it what it makes of every palette.
void SetDesktopPalette(const QPalette& palette);

}  // namespace sorvane::test

// What makes windows the same on every machine.
#pragma once

#include <QPalette>

#include "support/TempFolder.h"

namespace sorvane::test {

// Make it before the application. It fixes the format of numbers and dates, the time zone and the theme, and
// sets up a screen of 1366 x 768 that nobody sees, with a small one beside it, unless QT_QPA_PLATFORM asks
// for one that can be seen. `scale` is in per cent.
class Stage {
  public:
    explicit Stage(int scale = 100);
    // Call it when there is an application. It sets the program's style without animations, a light palette
    // and one font.
    void Set() const;

  private:
    TempFolder screen_;
};

// Acts as a desktop with this palette; the program's style adapts it as it adapts every palette.
void SetDesktopPalette(const QPalette& palette);

}  // namespace sorvane::test

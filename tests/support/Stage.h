// What makes windows the same on every machine.
#pragma once

namespace sorvane::test {

// Before the application is made: numbers, dates, time zone and theme, and no screen unless one is asked for
// by QT_QPA_PLATFORM.
void PrepareStage();
// Afterwards: one style in which nothing moves by itself, one font.
void SetStage();

}  // namespace sorvane::test

// What the program finds in the library of charts.
#include "forms/Bars.h"

extern "C" Q_DECL_EXPORT void SorvaneDrawBars(QWidget* on, const sorvane::forms::Bars* bars);
extern "C" void SorvaneDrawBars(QWidget* on, const sorvane::forms::Bars* bars) {
    sorvane::forms::DrawBars(*on, *bars);
}

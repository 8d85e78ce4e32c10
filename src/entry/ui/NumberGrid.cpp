#include "entry/ui/NumberGrid.h"

#include <QGridLayout>

#include "forms/Look.h"
#include "platform/Text.h"

namespace sorvane {

NumberGrid::NumberGrid(int numbers, int columns) {
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(forms::Look::Space(*this) / 2);
    for (int i = 0; i < numbers; ++i) {
        forms::NumberBall& ball = chkNumb.Load(i, Str(i + 1));
        ball.SetAccessibleName("Number " + Str(i + 1));
        grid->addWidget(&ball, i / columns, i % columns);
    }
    for (int column = 0; column < columns; ++column) grid->setColumnStretch(column, 1);
}

void NumberGrid::Clear() {
    chkNumb.ForEach([](forms::NumberBall& ball, int) { ball.SetValue(0); });
}

void NumberGrid::FocusFirst() {
    if (isEnabled()) chkNumb(0).SetFocus();
}

}  // namespace sorvane

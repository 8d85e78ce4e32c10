// A number of the play slip.
#pragma once

#include "forms/CheckBox.h"

namespace sorvane::forms {

// A check box painted as a round ball that can be hit anywhere. Its states differ in shape as well as colour:
// free (ring), ticked (filled, with a tick), disabled (thin broken ring), disabled and ticked (filled pale,
// with a tick), focused (a second ring around it). The arrow keys go to the nearest enabled ball in their
// direction. Where there is little room it shrinks and shows no tick; where there is more its number grows
// with it.
class NumberBall : public CheckBox {
  public:
    explicit NumberBall(std::string_view name, std::string_view caption = {});

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    bool hitButton(const QPoint& at) const override;
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace sorvane::forms

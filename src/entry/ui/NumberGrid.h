// The numbers of the play slip.
#pragma once

#include <QWidget>
#include <functional>

#include "forms/ControlArray.h"
#include "forms/NumberBall.h"

namespace sorvane {

// chkNumb(0) to chkNumb(count - 1), captions "1" and up, as on the paper slip. The grid is enabled and
// disabled as a whole, so that the focus moves once and not once for each number.
class NumberGrid : public QWidget {
  public:
    NumberGrid(int numbers, int columns);

    forms::ControlArray<forms::NumberBall> chkNumb{"chkNumb"};
    int Count() const { return chkNumb.Count(); }
    // Unticks all, which fires their Clicks.
    void Clear();
    void SetOpen(bool open) { setEnabled(open); }
    // Asks for the focus on chkNumb(0), when the grid is enabled.
    void FocusFirst();
};

}  // namespace sorvane

// The tab "&Check Tickets": the draw, the verdicts, the winnings.
#pragma once

#include "forms/Label.h"

namespace sorvane {

class GameWindow;

class CheckTicketsTab {
  public:
    explicit CheckTicketsTab(GameWindow& window);

    // dtpEnterTickets(2) has changed: the results of an earlier check go away.
    void ForgetResults();

  private:
    GameWindow& window_;
};

}  // namespace sorvane

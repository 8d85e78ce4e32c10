// The tab "&Reports": charts and text reports of one game.
#pragma once

namespace sorvane {

class GameWindow;

class ReportsTab {
  public:
    explicit ReportsTab(GameWindow& window);

    // Both charts emptied, at load and at cancel.
    void ClearCharts();

  private:
    GameWindow& window_;
};

}  // namespace sorvane

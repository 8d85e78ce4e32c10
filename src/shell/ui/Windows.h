// The registry of the game windows: who is loaded, and who buries whom.
#pragma once

#include <array>
#include <memory>
#include <vector>

#include "shell/Family.h"
#include "shell/Global.h"

namespace sorvane {

namespace forms {
class Window;
}
class GameWindow;

class Windows {
  public:
    explicit Windows(Run& run);
    ~Windows();

    // The family's window; made and loaded when it isn't there. It stands in the registry before its
    // Form_Load runs, so a failure in Form_Load leaves it loaded and hidden, and ends the caller.
    GameWindow& Load(Family family);
    bool IsLoaded(Family family) const;
    // Shows the window and returns when it has been left; then destroys the windows that were unloaded
    // meanwhile.
    void ShowModal(forms::Window& window);
    // Takes the window out of the registry, hides it and ends its loop at once; its handlers go on. It is
    // destroyed when the call that showed it has returned. A hidden window is destroyed with the next one
    // that is left.
    void Unload(GameWindow& window);

  private:
    Run& run_;
    std::array<std::unique_ptr<GameWindow>, 7> loaded_;
    std::vector<std::unique_ptr<GameWindow>> leaving_;
    int shown_ = 0;
};

}  // namespace sorvane

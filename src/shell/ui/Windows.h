// The registry of the game windows: which are loaded, and when they are destroyed. While it lives, F1 in any
// window opens the player's guide over it.
#pragma once

#include <array>
#include <functional>
#include <memory>
#include <vector>

#include "shell/Family.h"
#include "shell/Global.h"

namespace sorvane {

namespace forms {
class Window;
}
class GameFrame;
class Windows;

// How the windows are made that stand above this room. Whoever starts the program knows them.
struct WindowMakers {
    std::unique_ptr<GameFrame> (*game)(Family family, Session& session, Windows& windows);
    std::unique_ptr<forms::Window> (*report)(Session& session);  // of all lotteries
};

class Windows {
  public:
    Windows(Session& session, const WindowMakers& makers);
    ~Windows();

    // The family's window; made and loaded when it isn't there. It stands in the registry before its
    // Form_Load runs. An error in Form_Load unloads it, so that the next call loads it anew, and ends the
    // caller.
    GameFrame& Load(Family family);
    bool IsLoaded(Family family) const;
    // A window with the report of all lotteries, which its caller shows and owns.
    std::unique_ptr<forms::Window> MakeReport() const;
    // Shows the window and returns when it has been left; then destroys the windows that were unloaded
    // meanwhile.
    void ShowModal(forms::Window& window);
    // Takes the window out of the registry, hides it and ends its loop at once; its handlers go on. It is
    // destroyed when the call that showed it has returned. A hidden window is destroyed with the next one
    // that is left.
    void Unload(GameFrame& window);

  private:
    void ShowGuide(const forms::Window& front) const;

    Session& session_;
    const WindowMakers makers_;
    std::array<std::unique_ptr<GameFrame>, 7> loaded_;
    std::vector<std::unique_ptr<GameFrame>> leaving_;
    int shown_ = 0;
    const std::function<void(forms::Window&)> helpBefore_;
};

}  // namespace sorvane

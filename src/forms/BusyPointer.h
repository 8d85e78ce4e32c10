// The busy pointer during long work.
#pragma once

#include <chrono>

namespace sorvane::forms {

// Shows the busy pointer from the moment that work is known to last over a quarter of a second until the end
// of this object. Boxes and windows opened meanwhile show their own pointer.
class BusyPointer {
  public:
    using Clock = std::chrono::steady_clock;
    // `expected`: how long the work will last, as far as known; over a quarter of a second shows the pointer
    // at once.
    explicit BusyPointer(std::chrono::milliseconds expected = std::chrono::milliseconds{0},
                         Clock::time_point (*now)() = &Clock::now);
    ~BusyPointer();
    BusyPointer(const BusyPointer&) = delete;
    BusyPointer& operator=(const BusyPointer&) = delete;

    // To be called now and then during work of unknown length.
    void Tick();
    bool Shown() const { return shown_; }

  private:
    void Show();
    Clock::time_point (*now_)();
    Clock::time_point start_;
    bool shown_ = false;
};

}  // namespace sorvane::forms

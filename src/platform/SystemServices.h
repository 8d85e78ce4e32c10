// The real services that need no window: clock and random numbers.
#pragma once

#include <cstdint>

#include "platform/Services.h"
#include "platform/SplitMix.h"

namespace sorvane {

class SystemClock final : public Clock {
  public:
    // The local date of the system.
    Date Today() const override;
};

class SystemRandom final : public RandomSource {
  public:
    SystemRandom();
    void Randomize() override;
    double Rnd() override { return mix_.Unit(); }

  private:
    SplitMix seeds_;
    SplitMix mix_{0};
};

}  // namespace sorvane

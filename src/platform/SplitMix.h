// A small fast generator of random numbers.
#pragma once

#include <cstdint>

namespace sorvane {

// A sequence of 64-bit numbers. The seed determines it, on every machine alike. The sequences of two
// different seeds begin with different numbers.
class SplitMix {
  public:
    explicit constexpr SplitMix(std::uint64_t seed) : state_(seed) {}
    constexpr std::uint64_t Next() {
        std::uint64_t mixed = state_ += 0x9E3779B97F4A7C15U;
        mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9U;
        mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBU;
        return mixed ^ (mixed >> 31);
    }
    // From 0 up to but not including 1, in steps of 2 to the power -53.
    constexpr double Unit() { return static_cast<double>(Next() >> 11) * 0x1.0p-53; }

  private:
    std::uint64_t state_;
};

}  // namespace sorvane

// The 16-bit integer of all counters, numbers and flags.
#pragma once

#include <cstdint>
#include <limits>

#include "platform/RunTimeError.h"

namespace sorvane {

// A 16-bit signed value, checked where it is assigned: a value outside -32,768 to 32,767 raises error 6.
// Reads as `int`, so arithmetic happens in `int` and only the assignment of the result is checked.
class Integer {
  public:
    constexpr Integer() = default;
    constexpr Integer(int value) : value_(Checked(value)) {}  // NOLINT(google-explicit-constructor)
    constexpr operator int() const { return value_; }         // NOLINT(google-explicit-constructor)
    constexpr Integer& operator+=(int by) { return *this = Integer(value_ + by); }
    constexpr Integer& operator-=(int by) { return *this = Integer(value_ - by); }
    constexpr Integer& operator++() { return *this += 1; }
    constexpr Integer& operator--() { return *this -= 1; }

  private:
    static constexpr std::int16_t Checked(int value) {
        if (value < std::numeric_limits<std::int16_t>::min() ||
            value > std::numeric_limits<std::int16_t>::max())
            Raise(ErrorNumber::Overflow);
        return static_cast<std::int16_t>(value);
    }
    std::int16_t value_ = 0;
};

// The flags: some are tested against On, others against True; each test says which.
inline constexpr int Off = 0;
inline constexpr int On = 1;
inline constexpr int True = -1;

}  // namespace sorvane

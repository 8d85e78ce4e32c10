#include "platform/SystemServices.h"

#include <chrono>
#include <ctime>
#include <exception>
#include <random>

#include "platform/RunTimeError.h"

namespace sorvane {

namespace {

// 0 on a system without a random device; then the clock alone decides.
std::uint64_t Entropy() {
    try {
        std::random_device device;
        return (std::uint64_t{device()} << 32) ^ device();
    } catch (const std::exception&) {
        return 0;
    }
}

std::uint64_t ClockTicks() {
    return static_cast<std::uint64_t>(std::chrono::system_clock::now().time_since_epoch().count());
}

}  // namespace

// The calendar of GCC 12 knows no time zones, so the local date comes from the C library.
Date SystemClock::Today() const {
    const std::time_t now = std::time(nullptr);
    const std::tm* local = std::localtime(&now);
    if (local == nullptr) Raise(ErrorNumber::InvalidProcedureCall);
    return Date::FromYmd(local->tm_year + 1900, local->tm_mon + 1, local->tm_mday);
}

SystemRandom::SystemRandom() : seeds_(Entropy() ^ ClockTicks()) { Randomize(); }

// The seeds come from a sequence that never repeats a number, so two calls never get the same seed, however
// quickly one follows the other.
void SystemRandom::Randomize() { mix_ = SplitMix(seeds_.Next()); }

}  // namespace sorvane

#include "reports/PadAmount.h"

#include <chrono>
#include <thread>

namespace sorvane {

namespace {

// Waits for ever. It takes no processor time, and a signal to end finds nothing in its way.
[[noreturn]] void NeverEnd() {
    constexpr std::chrono::hours AWhile{1};
    for (;;) std::this_thread::sleep_for(AWhile);
}

}  // namespace

std::string PadAmount(std::string text) {
    if (text.size() > AmountWidth) NeverEnd();
    return text.insert(0, AmountWidth - text.size(), ' ');
}

std::string PadAmountAtLeastOnce(std::string text) { return PadAmount(text.insert(0, 1, ' ')); }

}  // namespace sorvane

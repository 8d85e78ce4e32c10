// Record shapes of the global arrays.
#pragma once

#include <array>
#include <cstddef>

#include "platform/Date.h"
#include "platform/Integer.h"

namespace sorvane {

// N slots that raise error 9 outside their bounds.
template <class T, int N>
class Slots {
  public:
    T& operator()(int index) { return items_[At(index)]; }
    const T& operator()(int index) const { return items_[At(index)]; }
    static constexpr int Count = N;

  private:
    static std::size_t At(int index) {
        if (index < 0 || index >= N) Raise(ErrorNumber::SubscriptOutOfRange);
        return static_cast<std::size_t>(index);
    }
    std::array<T, static_cast<std::size_t>(N)> items_{};
};

// Tickets of the sheet in hand. Regular and EarlyBird are True or Off.
struct Lotto6Ticket {
    Date DrawDate;
    Slots<Integer, 7> Numbers;
    Integer Regular;
    Integer EarlyBird;
};
struct Lotto7Ticket {
    Date DrawDate;
    Slots<Integer, 8> Numbers;
    Integer Regular;
};
struct KenoTicket {
    Date DrawDate;
    Slots<Integer, 21> Numbers;
    Integer Wager;
    Integer NoOfBalls;
    Integer Regular;
};
struct Pick3Ticket {
    Date DrawDate;
    Slots<Integer, 3> Numbers;
    Integer Regular;
};
struct Pick4Ticket {
    Date DrawDate;
    Slots<Integer, 4> Numbers;
    Integer Regular;
};
struct AddOnTicket {
    Date DrawDate;
    Slots<Integer, 7> Numbers;  // one digit each; all 99: no ticket
};
struct ExtraTicket {
    Slots<Integer, 4> Numbers;
};

// Rows of one check pass.
struct Lotto6Row {
    Slots<Integer, 7> Numbers;
    bool EarlyBird = false;
};
struct Lotto7Row {
    Slots<Integer, 8> Numbers;
};
struct KenoRow {
    Slots<Integer, 21> Numbers;
    Integer Wager;
    Integer NoOfBalls;
};
struct Pick3Row {
    Slots<Integer, 4> Numbers;
};
struct Pick4Row {
    Slots<Integer, 5> Numbers;
};

}  // namespace sorvane

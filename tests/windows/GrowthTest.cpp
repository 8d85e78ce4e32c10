// Windows that were left take nothing with them.
#include <iostream>

#include "support/Games.h"
#include "support/Heap.h"
#include "windows/MainWindow.h"

namespace sorvane::test {
namespace {

class Growth : public MainWindow {};

// Every game of the menu in turns, a thousand windows in all (fewer where that takes minutes), each opened at
// a page and left.
TEST_F(Growth, AThousandWindowsOpenedAndLeftTakeNoMemory) {
    constexpr int Rounds = Sanitized ? 14 : 46, Warm = 8;
    Start();
    std::vector<std::size_t> inUse;
    int windowsLeft = 0;
    for (int round = 0; round < Rounds; ++round) {
        for (const GameTold& game : GamesTold) {
            person.ExpectWindow(NameOf(game.opens), [this, round](QWidget& widget) {
                auto& window = static_cast<GameWindow&>(widget);
                window.SSTab1.SetTab(round % static_cast<int>(window.Pages.size()));
                Person::Settle();
                person.Close(window);
            });
            Entry(game.menu).trigger();  // Qt keeps names of what it painted of an opened menu
            ++windowsLeft;
        }
        inUse.push_back(HeapInUse());
    }
    EXPECT_GE(windowsLeft, Sanitized ? 300 : 1000);
    constexpr std::size_t Noise = 32 * 1024;
    EXPECT_LT(inUse.back(), inUse.at(Warm) + Noise);
    std::cout << windowsLeft
              << " windows; KiB in use after the first ones and at the end: " << inUse.at(Warm) / 1024 << ", "
              << inUse.back() / 1024 << std::endl;
}

}  // namespace
}  // namespace sorvane::test

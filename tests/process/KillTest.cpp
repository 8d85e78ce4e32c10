// The program is killed at random moments while somebody plays. What it said is written is there.
//     SORVANE_KILLS  how often, 30 when not told
//     SORVANE_SEED   repeats the moments of an earlier run
#include <cstdlib>
#include <iostream>
#include <random>

#include "process/Child.h"

namespace sorvane::test {
namespace {

constexpr int FirstDay = 30000, DaysOfAChild = 200;
constexpr const char* Games[] = {"mnuCANBCBC49", "mnuCANONTKENO", "mnuCANBCDAILY3", "mnuCANONTSuper7"};

unsigned NumberOf(const char* name, unsigned otherwise) {
    const char* value = std::getenv(name);
    return value ? static_cast<unsigned>(std::stoul(value)) : otherwise;
}

// Every second one dies on its way from the start to its first sheet, the others behind it.
std::vector<Promise> PlayUntilKilled(const Child::Orders& orders, bool early, int moment) {
    constexpr int Patience = 20000;
    Child child(orders);
    if (!early) {
        EXPECT_TRUE(child.Listen(Patience, true));
        EXPECT_FALSE(child.promises.empty()) << "nothing was saved";
    }
    child.Listen(moment);
    child.Kill();
    return child.promises;
}

TEST(Kills, LoseNoRowThatWasToldWrittenAndTheNextStartIsCleanAndSaves) {
    const unsigned kills = NumberOf("SORVANE_KILLS", 30);
    const unsigned seed = NumberOf("SORVANE_SEED", std::random_device{}());
    std::cout << kills << " kills, seed " << seed << std::endl;
    const ::testing::ScopedTrace trace(__FILE__, __LINE__, "SORVANE_SEED=" + std::to_string(seed));
    std::mt19937 random(seed);
    Home home;
    std::vector<Promise> promises;
    unsigned journals = 0;
    for (unsigned i = 0; i < kills && !::testing::Test::HasFailure(); ++i) {
        const int day = FirstDay + DaysOfAChild * static_cast<int>(i);
        std::string games;
        for (unsigned game = 0; game < std::size(Games); ++game)
            games += std::string(Games[(i + game) % std::size(Games)]) + " ";
        const bool early = i % 2 == 0;
        const int moment = static_cast<int>(random() % (early ? 700 : 400));
        auto told = PlayUntilKilled({home.Path(), day, games}, early, moment);
        journals += std::filesystem::exists(home.File() + "-journal");

        {
            Session next(Games[i % std::size(Games)], home.Path(), day + DaysOfAChild - 1,
                         [&](const Promise& promise) { told.push_back(promise); });
            next.Start();  // shows no box
            next.Buy({2, 1, 0});
        }
        home.ExpectWhole();
        home.ExpectKept(told);
        home.ExpectNothingLost();
        promises.insert(promises.end(), told.begin(), told.end());
    }
    home.ExpectKept(promises);
    std::cout << promises.size() << " promises kept, " << journals << " kills in the middle of a commit"
              << std::endl;
}

}  // namespace
}  // namespace sorvane::test

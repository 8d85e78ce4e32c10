// Two copies of the program at one file.
#include "process/Child.h"

namespace sorvane::test {
namespace {

TEST(TwoCopies, LoseNoRowAndNeitherShowsABox) {
    constexpr int Patience = 30000, Sittings = 8;
    Home home;
    constexpr const char* Lotto = "mnuCANONTLotto649";
    constexpr const char* Lottario = "mnuCANONTLOTTARIO";
    for (const char* game : {Lotto, Lottario}) Session(game, home.Path(), 29999, [](auto&) {}).Open();
    {
        Child lotto({home.Path(), 30000, Lotto, Sittings, false});
        Child lottario({home.Path(), 40000, Lottario, Sittings, false});
        for (Child* child : {&lotto, &lottario}) {
            child->AwaitEnd(Patience);
            home.ExpectKept(child->promises);
            EXPECT_FALSE(child->promises.empty());
            EXPECT_TRUE(child->refusals.empty());
        }
    }
    home.ExpectWhole();
}

}  // namespace
}  // namespace sorvane::test

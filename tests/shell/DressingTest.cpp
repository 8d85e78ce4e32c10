#include "shell/Dressing.h"

#include <gtest/gtest.h>

#include <set>
#include <utility>

namespace sorvane {
namespace {

TEST(Dressing, EveryGameHasOne) {
    for (const Game& game : Games()) EXPECT_FALSE(DressingOf(game).empty()) << game.menu;
}

TEST(Dressing, SetsNothingTwiceSoThatItsOrderIsNoMatter) {
    for (const Game& game : Games()) {
        std::set<std::pair<std::string, Setting::Property>> set;
        for (const Setting& setting : DressingOf(game))
            for (const std::string& control : ControlsOf(setting))
                EXPECT_TRUE(set.emplace(control, setting.property).second) << game.menu << " " << control;
    }
}

TEST(Dressing, ASettingOfAnArrayMeansItsFirstElements) {
    EXPECT_EQ(ControlsOf({"txtWin4", Setting::Property::Visible, 1, {}, 3}),
              (std::vector<std::string>{"txtWin4(0)", "txtWin4(1)", "txtWin4(2)"}));
    EXPECT_EQ(ControlsOf({"optPlayOpt(2)", Setting::Property::Visible, 0}),
              std::vector<std::string>{"optPlayOpt(2)"});
}

}  // namespace
}  // namespace sorvane

#include "support/WindowWorld.h"

namespace sorvane::test {
namespace {

TEST_F(WindowWorld, ShowsAWindowInItsOwnLoop) {
    bool acted = false;
    ShowModal("mnuCANQCLotto649", [&](GameWindow& window) {
        acted = true;
        EXPECT_EQ(&window, &person.Front());
        EXPECT_EQ(window.Caption(), "Lotto 6/49");
        Click("cmdExit(0)");
    });
    EXPECT_TRUE(acted);
    EXPECT_FALSE(windows.IsLoaded(Family::frm649));
}

}  // namespace
}  // namespace sorvane::test

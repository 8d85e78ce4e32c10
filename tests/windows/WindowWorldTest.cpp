#include <QPointer>

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

TEST_F(WindowWorld, AWindowThatWasLeftIsThrownAway) {
    QPointer<QWidget> left;
    ShowModal("mnuCANBCBC49", [&](GameWindow& window) { left = &window; });
    EXPECT_TRUE(left.isNull());
}

}  // namespace
}  // namespace sorvane::test

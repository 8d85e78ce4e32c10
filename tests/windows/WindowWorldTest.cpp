#include "support/WindowWorld.h"

namespace sorvane::test {
namespace {

TEST_F(WindowWorld, EntersOneTicketFromTheCountToTheFile) {
    Show("mnuCANQCLotto649");
    Put("txtNoOfTickets(0)", "1");
    for (const auto* ball :
         {"chkNumb(5)", "chkNumb(4)", "chkNumb(3)", "chkNumb(2)", "chkNumb(1)", "chkNumb(0)"})
        Click(ball);
    EXPECT_TRUE(IsEnabled("cmdSave"));
    EXPECT_EQ(CaptionOf("fraTicketNumber"), "Ticket #1 - Sheet 1 of 1");
    EXPECT_EQ(TextOf("txtDollars"), "1.00");
}

TEST_F(WindowWorld, ShowsAWindowInItsOwnLoop) {
    bool acted = false;
    ShowModal("mnuCANQCLotto649", [&](GameWindow& window) {
        acted = true;
        EXPECT_EQ(&window, &person.Front());
        Click("cmdExit(0)");
    });
    EXPECT_TRUE(acted);
    EXPECT_FALSE(windows.IsLoaded(Family::frm649));
}

}  // namespace
}  // namespace sorvane::test

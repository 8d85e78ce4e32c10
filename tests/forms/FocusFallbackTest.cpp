// Where the focus goes when the control that has it is hidden or disabled.
#include "Fixture.h"
#include "forms/ControlArray.h"
#include "forms/LabelFrame.h"
#include "forms/MessageBoxes.h"
#include "forms/NumberBall.h"
#include "forms/TextBox.h"

namespace sorvane::test {
namespace {

using namespace forms;

// A grid in a frame, the two buttons of the fallback, and a field that Qt would choose.
class Grid : public LoggingWindow {
  public:
    Grid() {
        fraTickets.setLayout(new QVBoxLayout);
        for (int i = 0; i < 3; ++i) fraTickets.layout()->addWidget(&chkNumb.Load(i, std::to_string(i + 1)));
        LayOut(fraTickets, txtEncore, cmdOther, cmdNext_Ticket, cmdSave);
        Watch(txtEncore, cmdOther, cmdNext_Ticket, cmdSave);
        SetFirstFocus(chkNumb(0));
        SetFallbackFocus({&cmdNext_Ticket, &cmdSave});
    }
    LabelFrame fraTickets{"fraTickets", "Enter Tickets:"};
    ControlArray<NumberBall> chkNumb{"chkNumb"};
    TextBox txtEncore{"txtEncore"};
    CommandButton cmdOther{"cmdOther", "Other"}, cmdNext_Ticket{"cmdNext_Ticket", "&Next"},
        cmdSave{"cmdSave", "&Save"};
};

class FocusFallback : public testing::Test {
  protected:
    Grid window;
    Person person;
    void SetUp() override { Open(window); }
};

TEST_F(FocusFallback, GridDisabledUnderTheFocusPassesItToTheFirstButtonNamed) {
    window.chkNumb.OnClick([&](int) { window.fraTickets.SetEnabled(false); });
    person.Click(window.chkNumb(1));
    EXPECT_EQ((Log{"+cmdNext_Ticket"}), window.log);
    EXPECT_TRUE(window.cmdNext_Ticket.HasFocus());
}

TEST_F(FocusFallback, BallsDisabledOneByOneMoveTheFocusOnce) {
    window.chkNumb.OnClick([&](int) {
        for (int i = 0; i < 3; ++i) window.chkNumb(i).SetEnabled(false);
    });
    person.Click(window.chkNumb(0));
    EXPECT_EQ((Log{"+cmdNext_Ticket"}), window.log);
}

TEST_F(FocusFallback, SecondButtonTakesItWhereTheFirstIsDisabled) {
    window.cmdNext_Ticket.SetEnabled(false);
    window.chkNumb.OnClick([&](int) { window.fraTickets.SetEnabled(false); });
    person.Click(window.chkNumb(2));
    EXPECT_TRUE(window.cmdSave.HasFocus());
}

TEST_F(FocusFallback, ElseTheNextEnabledControlThatIsNoTextBox) {
    window.cmdNext_Ticket.SetEnabled(false);
    window.cmdSave.SetVisible(false);
    window.chkNumb.OnClick([&](int) { window.fraTickets.SetEnabled(false); });
    person.Click(window.chkNumb(2));
    EXPECT_EQ((Log{"+cmdOther"}), window.log);
}

TEST_F(FocusFallback, ButtonEnabledLaterInTheSameHandlerCounts) {
    window.cmdNext_Ticket.SetEnabled(false);
    window.chkNumb.OnClick([&](int) {
        window.fraTickets.SetEnabled(false);
        window.cmdNext_Ticket.SetEnabled(true);
    });
    person.Click(window.chkNumb(2));
    EXPECT_TRUE(window.cmdNext_Ticket.HasFocus());
}

TEST_F(FocusFallback, WishOfTheHandlerBeatsTheFallback) {
    window.chkNumb.OnClick([&](int) {
        window.fraTickets.SetEnabled(false);
        window.txtEncore.SetFocus();
    });
    person.Click(window.chkNumb(2));
    EXPECT_EQ((Log{"+txtEncore"}), window.log);
}

TEST_F(FocusFallback, BoxShownAfterTheGridWasDisabledDoesNotLetQtChoose) {
    window.chkNumb.OnClick([&](int) {
        window.fraTickets.SetEnabled(false);
        MessageBoxes().MsgBox("Done");
    });
    person.Expect("Sorvane", "Done");
    person.Click(window.chkNumb(0));
    Person::Await(window);
    EXPECT_EQ((Log{"+cmdNext_Ticket"}), window.log);
}

TEST_F(FocusFallback, ControlHiddenWhileItHasTheFocusLosesIt) {
    person.Click(window.txtEncore);
    window.log.clear();
    window.txtEncore.SetVisible(false);
    EXPECT_EQ((Log{"-txtEncore", "+cmdNext_Ticket"}), window.log);
}

TEST_F(FocusFallback, FieldDisabledByItsOwnLostFocusStaysWithoutIt) {
    person.Click(window.txtEncore);
    window.txtEncore.OnLostFocus([&] { window.txtEncore.SetEnabled(false); });
    person.Click(window.cmdSave);
    EXPECT_TRUE(window.cmdSave.HasFocus());
}

}  // namespace
}  // namespace sorvane::test

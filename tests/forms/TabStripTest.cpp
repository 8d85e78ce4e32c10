// Tabs: what happens in which order when another page comes in front.
#include "forms/TabStrip.h"

#include <tuple>

#include "Fixture.h"
#include "forms/ComboBox.h"
#include "forms/ControlArray.h"
#include "forms/DatePicker.h"
#include "forms/ListBox.h"
#include "forms/MessageBoxes.h"
#include "forms/MultiLineBox.h"
#include "forms/NumberBall.h"
#include "forms/TextBox.h"

namespace sorvane::test {
namespace {

using namespace forms;

class Tabbed : public LoggingWindow {
  public:
    Tabbed() {
        LayOut(SSTab1);
        SSTab1.AddTab(pageEnter, "&Enter Tickets");
        SSTab1.AddTab(pageCheck, "&Check Tickets");
        SSTab1.AddTab(pageReports, "&Reports");
        auto* enter = new QVBoxLayout(&pageEnter);
        enter->addWidget(&txtNoOfTickets);
        enter->addWidget(&cmdCancel);
        auto* check = new QVBoxLayout(&pageCheck);
        check->addWidget(&txtWin);
        check->addWidget(&cmdCheck);
        (new QVBoxLayout(&pageReports))->addWidget(&cmdReport);
        Watch(SSTab1, txtNoOfTickets, cmdCancel, txtWin, cmdCheck, cmdReport);
        SSTab1.OnClick([this] { Write("tab " + SSTab1.Caption()); });
        cmdCancel.OnClick([this] { Write("Cancel"); });
        cmdCheck.OnClick([this] { Write("Check"); });
        SetFirstFocus(txtNoOfTickets);
    }
    TabStrip SSTab1{"SSTab1"};
    QWidget pageEnter, pageCheck, pageReports;
    TextBox txtNoOfTickets{"txtNoOfTickets"}, txtWin{"txtWin"};
    CommandButton cmdCancel{"cmdCancel", "&Cancel"}, cmdCheck{"cmdCheck", "&Check"},
        cmdReport{"cmdReport", "Number Frequenc&y"};
};

class Tabs : public testing::Test {
  protected:
    Tabbed window;
    Person person;
    void SetUp() override { Open(window); }
};

TEST_F(Tabs, LostFocusComesWhenThePageIsInFrontAndBeforeTheClick) {
    window.txtNoOfTickets.OnLostFocus([&] {
        window.Write("-txtNoOfTickets on " + window.SSTab1.Caption());
        EXPECT_TRUE(window.pageCheck.isVisible());
        EXPECT_TRUE(window.SSTab1.updatesEnabled() && window.pageCheck.updatesEnabled());
    });
    person.ClickTab("&Check");
    EXPECT_EQ((Log{"-txtNoOfTickets on &Check Tickets", "+txtWin", "tab &Check Tickets"}), window.log);
}

TEST_F(Tabs, BoxDuringAChangeOfTabComesOverThePageInFront) {
    window.txtNoOfTickets.OnLostFocus([&] { MessageBoxes().MsgBox("Missing"); });
    person.Expect("Sorvane", "Missing", Answer::Ok, BoxStyle::Ok, [&] {
        EXPECT_TRUE(window.txtWin.isVisible());
        EXPECT_FALSE(window.txtNoOfTickets.isVisible());
        EXPECT_TRUE(window.SSTab1.updatesEnabled());
    });
    person.ClickTab("&Check");
    EXPECT_EQ((Log{"+txtWin", "tab &Check Tickets"}), window.log);
}

TEST_F(Tabs, FocusTakenBackToTheTabThatWasLeftIsNotGiven) {
    window.txtNoOfTickets.OnLostFocus([&] { window.txtNoOfTickets.SetFocus(); });
    person.ClickTab("&Check");
    EXPECT_TRUE(window.txtWin.HasFocus());
    EXPECT_EQ(1, window.SSTab1.Tab());
}

TEST_F(Tabs, TabOfTheProgramFiresInTheSameOrder) {
    window.cmdCancel.OnClick([&] {
        window.SSTab1.SetTab(2);
        window.Write("end of handler");
    });
    person.Click(window.cmdCancel);
    EXPECT_EQ(
        (Log{"-txtNoOfTickets", "+cmdCancel", "-cmdCancel", "+cmdReport", "tab &Reports", "end of handler"}),
        window.log);
}

TEST_F(Tabs, WishOfALostFocusIsGivenBeforeTheHandlerThatChangedTheTabGoesOn) {
    window.cmdCancel.OnLostFocus([&] { window.cmdCheck.SetFocus(); });
    window.cmdCancel.OnClick([&] {
        window.SSTab1.SetTab(1);
        window.Write("end of handler");
    });
    person.Click(window.cmdCancel);
    EXPECT_EQ((Log{"-txtNoOfTickets", "+cmdCancel", "+cmdCheck", "tab &Check Tickets", "end of handler"}),
              window.log);
}

TEST_F(Tabs, TabThatIsInFrontAlreadyFiresNothing) {
    window.SSTab1.SetTab(0);
    person.ClickTab("&Enter");
    EXPECT_EQ(Log{}, window.log);
}

TEST_F(Tabs, KeysOnTheTabsChangeThePageAndLeaveTheFocusThere) {
    window.SSTab1.SetFocus();
    Person::Settle();
    window.log.clear();
    person.Key(Qt::Key_Right);
    EXPECT_EQ((Log{"tab &Check Tickets"}), window.log);
    EXPECT_TRUE(window.SSTab1.HasFocus());
}

TEST_F(Tabs, ControlTabChangesThePageInTheSameOrder) {
    person.Key(Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ((Log{"-txtNoOfTickets", "+txtWin", "tab &Check Tickets"}), window.log);
}

// Fields with keys of their own stand on every page.
class FullTabs : public Tabs {
  protected:
    DatePicker date{"dtpEnterTickets"};
    ListBox list{"lstMessage"};
    MultiLineBox report{"txtReport"};
    ComboBox wager{"cboWager", ComboBox::Style::Editable};
    NumberBall ball{"chkNumb(0)", "1"};
    std::vector<Control*> all{&date, &list, &report, &wager, &ball, &window.txtWin, &window.cmdCheck};
    void SetUp() override {
        for (QWidget* field : std::initializer_list<QWidget*>{&date, &list, &report, &wager, &ball})
            window.pageCheck.layout()->addWidget(field);
        list.AddItem("1, 2, 3");
        Tabs::SetUp();
    }
};

TEST_F(FullTabs, KeysForTheNextTabAndTheOneBeforeWorkFromEveryControl) {
    const std::tuple<Qt::Key, Qt::KeyboardModifiers, int> keys[] = {
        {Qt::Key_Tab, Qt::ControlModifier, 2},
        {Qt::Key_Tab, Qt::ControlModifier | Qt::ShiftModifier, 0},
        {Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier, 0},
        {Qt::Key_PageDown, Qt::ControlModifier, 2},
        {Qt::Key_PageUp, Qt::ControlModifier, 0}};
    for (Control* control : all)
        for (const auto& [key, modifiers, tab] : keys) {
            window.SSTab1.SetTab(1);
            control->SetFocus();
            ASSERT_TRUE(control->HasFocus()) << control->Name();
            person.Key(key, modifiers);
            EXPECT_EQ(tab, window.SSTab1.Tab()) << control->Name() << " " << key;
        }
}

TEST_F(Tabs, BehindTheLastTabComesTheFirst) {
    window.SSTab1.SetTab(2);
    person.Key(Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(0, window.SSTab1.Tab());
    person.Key(Qt::Key_PageUp, Qt::ControlModifier);
    EXPECT_EQ(2, window.SSTab1.Tab());
}

TEST_F(Tabs, AccessKeyOfATabChangesThePage) {
    person.AccessKey('r');
    EXPECT_EQ((Log{"-txtNoOfTickets", "+cmdReport", "tab &Reports"}), window.log);
}

TEST_F(Tabs, LetterSharedWithAControlOnThePageIsTheControls) {
    person.AccessKey('c');
    EXPECT_EQ((Log{"-txtNoOfTickets", "+cmdCancel", "Cancel"}), window.log);
    EXPECT_EQ(0, window.SSTab1.Tab());
    window.log.clear();
    window.cmdCancel.SetEnabled(false);
    Person::Settle();
    window.log.clear();
    person.AccessKey('c');
    EXPECT_EQ(1, window.SSTab1.Tab());
    EXPECT_EQ("tab &Check Tickets", window.log.back());
}

TEST_F(Tabs, LetterOfAControlOnAnotherPageIsNotInTheWay) {
    window.SSTab1.SetTab(1);
    window.log.clear();
    person.AccessKey('c');
    EXPECT_EQ("Check", window.log.back());
}

TEST_F(Tabs, CaptionIsKeptToTheCharacter) { EXPECT_EQ("&Enter Tickets", window.SSTab1.Caption()); }

TEST_F(Tabs, ControlAskedForOnAnotherTabGetsNothing) {
    window.cmdCancel.OnClick([&] { window.txtWin.SetFocus(); });
    person.Click(window.cmdCancel);
    EXPECT_TRUE(window.cmdCancel.HasFocus());
    EXPECT_EQ(0, window.SSTab1.Tab());
}

TEST_F(Tabs, TwoButtonsWithOneLetterTakeTurnsAndAreNotClicked) {
    CommandButton cmdClose{"cmdClose", "&Close"};
    window.pageEnter.layout()->addWidget(&cmdClose);
    cmdClose.OnClick([&] { window.Write("Close"); });
    Person::Settle();
    person.AccessKey('c');
    EXPECT_TRUE(window.cmdCancel.HasFocus());
    person.AccessKey('c');
    EXPECT_TRUE(cmdClose.HasFocus());
    EXPECT_EQ((Log{"-txtNoOfTickets", "+cmdCancel", "-cmdCancel"}), window.log);
}

TEST_F(Tabs, ATabThatIsDisabledIsPassedOver) {
    window.SSTab1.setTabEnabled(1, false);
    person.Key(Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(2, window.SSTab1.Tab());
    person.Key(Qt::Key_PageUp, Qt::ControlModifier);
    EXPECT_EQ(0, window.SSTab1.Tab());
    window.cmdCancel.SetEnabled(false);
    person.AccessKey('c');  // of the second tab too
    EXPECT_EQ(0, window.SSTab1.Tab());
    window.SSTab1.setTabEnabled(2, false);
    window.log.clear();
    person.Key(Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(0, window.SSTab1.Tab());
    EXPECT_EQ(Log{}, window.log);
}

}  // namespace
}  // namespace sorvane::test

// LostFocus, GotFocus and what a refusal does to the press that caused it.
#include <QApplication>
#include <QMenu>
#include <QMouseEvent>
#include <QTest>
#include <stdexcept>

#include "Fixture.h"
#include "forms/CheckBox.h"
#include "forms/ComboBox.h"
#include "forms/DatePicker.h"
#include "forms/MessageBoxes.h"
#include "forms/TextBox.h"

namespace sorvane::test {
namespace {

using namespace forms;

// Two fields, each with a guard that can be switched off, and two buttons.
class Guarded : public LoggingWindow {
  public:
    Guarded() {
        LayOut(txtFirst, txtSecond, cmdSave, cmdNext);
        Watch(txtFirst, txtSecond, cmdSave, cmdNext);
        Guard(txtFirst);
        Guard(txtSecond);
        cmdSave.OnClick([this] { Write("Save"); });
        cmdNext.OnClick([this] { Write("Next"); });
        SetFirstFocus(txtFirst);
    }
    TextBox txtFirst{"txtFirst"}, txtSecond{"txtSecond"};
    CommandButton cmdSave{"cmdSave", "&Save"}, cmdNext{"cmdNext", "&Next"};
    bool guarding = true, guardTakesFocusBack = true;

  private:
    void Guard(TextBox& field) {
        field.OnLostFocus([this, &field] {
            Write("-" + field.Name());
            if (!guarding || !field.Text().empty()) return;
            MessageBoxes().MsgBox("Missing " + field.Name(), BoxStyle::Ok, "ERROR");
            if (guardTakesFocusBack) field.SetFocus();
        });
    }
};

class Focus : public testing::Test {
  protected:
    Guarded window;
    Person person;
    void SetUp() override { Open(window); }
    void ExpectMissing(std::string_view field) { person.Expect("ERROR", "Missing " + std::string(field)); }
    void ExpectError(const std::string& number, const std::string& sentence) {
        person.Expect("Sorvane", "Run-time error '" + number + "':\n\n" + sentence, Answer::Ok,
                      BoxStyle::Stop);
    }
};

TEST_F(Focus, LostFocusComesBeforeTheClickOfTheButtonThatTookIt) {
    window.txtFirst.SetText("1");
    person.Click(window.cmdSave);
    EXPECT_EQ((Log{"-txtFirst", "+cmdSave", "Save"}), window.log);
}

TEST_F(Focus, TabKeyMovesIt) {
    window.txtFirst.SetText("1");
    person.Tab();
    EXPECT_EQ((Log{"-txtFirst", "+txtSecond"}), window.log);
    EXPECT_TRUE(window.txtSecond.HasFocus());
}

TEST_F(Focus, ProgramMovesItAfterTheHandlerAndTheLastWishWins) {
    window.guarding = false;
    window.cmdNext.OnClick([&] {
        window.txtFirst.SetFocus();
        window.txtSecond.SetFocus();
        window.Write("end of handler");
    });
    person.Click(window.cmdNext);
    EXPECT_EQ((Log{"-txtFirst", "+cmdNext", "end of handler", "-cmdNext", "+txtSecond"}), window.log);
}

TEST_F(Focus, RefusedClickIsDroppedAndTheButtonIsNotLeftDown) {
    ExpectMissing("txtFirst");
    person.Press(window.cmdSave);
    EXPECT_FALSE(window.cmdSave.isDown());
    person.Release();
    EXPECT_EQ((Log{"-txtFirst", "+txtFirst"}), window.log);
    EXPECT_TRUE(window.txtFirst.HasFocus());
    window.txtFirst.SetText("1");
    window.log.clear();
    person.Click(window.cmdSave);
    EXPECT_EQ((Log{"-txtFirst", "+cmdSave", "Save"}), window.log);
}

TEST_F(Focus, RefusedAccessKeyIsDropped) {
    ExpectMissing("txtFirst");
    person.AccessKey('s');
    EXPECT_EQ((Log{"-txtFirst", "+txtFirst"}), window.log);
    EXPECT_TRUE(window.txtFirst.HasFocus());
}

TEST_F(Focus, AccessKeyMovesTheFocusFirstThenClicks) {
    window.txtFirst.SetText("1");
    person.AccessKey('s');
    EXPECT_EQ((Log{"-txtFirst", "+cmdSave", "Save"}), window.log);
}

TEST_F(Focus, TwoGuardedFieldsSideBySideDoNotPlayPingPong) {
    ExpectMissing("txtFirst");
    person.Tab();
    EXPECT_EQ((Log{"-txtFirst", "+txtFirst"}), window.log);
    EXPECT_TRUE(window.txtFirst.HasFocus());
    ExpectMissing("txtFirst");
    person.Click(window.txtSecond);
    EXPECT_TRUE(window.txtFirst.HasFocus());
    EXPECT_EQ(0, person.Awaited());
}

TEST_F(Focus, BoxWithoutFocusBackDropsThePressButTheFocusStaysWhereItWent) {
    window.guardTakesFocusBack = false;
    ExpectMissing("txtFirst");
    person.Click(window.cmdSave);
    EXPECT_EQ((Log{"-txtFirst", "+cmdSave"}), window.log);
    EXPECT_TRUE(window.cmdSave.HasFocus());
}

TEST_F(Focus, FocusTakenBackWithoutABoxLetsTheClickHappen) {
    window.txtFirst.OnLostFocus([&] { window.txtFirst.SetFocus(); });
    person.Click(window.cmdSave);
    EXPECT_EQ((Log{"+txtFirst", "Save"}), window.log);
    EXPECT_TRUE(window.txtFirst.HasFocus());
}

TEST_F(Focus, FailingLostFocusShowsTheErrorAndDropsThePress) {
    window.txtFirst.OnLostFocus([&] { Raise(ErrorNumber::TypeMismatch); });
    ExpectError("13", "Type mismatch");
    person.Click(window.cmdSave);
    EXPECT_EQ((Log{"+cmdSave"}), window.log);
    EXPECT_FALSE(window.cmdSave.isDown());
}

TEST_F(Focus, FailingLostFocusDropsTheAccessKey) {
    window.txtFirst.OnLostFocus([&] { Raise(ErrorNumber::Overflow); });
    ExpectError("6", "Overflow");
    person.AccessKey('n');
    EXPECT_EQ((Log{"+cmdNext"}), window.log);
}

TEST_F(Focus, WindowOpenedByLostFocusDropsThePress) {
    window.txtFirst.OnLostFocus([&] {
        LoggingWindow dialog("frmHowManySheets", Window::Kind::Dialog);
        TextBox txtNoOfSheets{"txtNoOfSheets"};
        CommandButton cmdOk{"cmdOk", "&Ok"};
        dialog.LayOut(txtNoOfSheets, cmdOk);
        dialog.Watch(txtNoOfSheets, cmdOk);
        cmdOk.OnClick([&] { dialog.Unload(); });
        dialog.ShowModal();
        for (auto& entry : dialog.log) window.Write("dialog " + entry);
    });
    person.ExpectWindow("frmHowManySheets", [&](QWidget& dialog) {
        person.Type("2");
        person.Click(Person::FindIn<QPushButton>(dialog, "cmdOk"));
    });
    person.Click(window.cmdSave);
    EXPECT_EQ((Log{"dialog +txtNoOfSheets", "dialog -txtNoOfSheets", "dialog +cmdOk", "+cmdSave"}),
              window.log);
    EXPECT_FALSE(window.cmdSave.isDown());
}

TEST_F(Focus, WishesOfADialogDoNotWaitForTheHandlerThatOpenedIt) {
    window.cmdNext.OnClick([&] {
        LoggingWindow dialog("frmDialog", Window::Kind::Dialog);
        TextBox txtOne{"txtOne"};
        CommandButton cmdOk{"cmdOk", "&Ok"};
        dialog.LayOut(txtOne, cmdOk);
        txtOne.OnKeyPress([&](KeyPress& key) {
            if (key.KeyAscii == 13) cmdOk.SetFocus();
        });
        cmdOk.OnClick([&] { dialog.Unload(); });
        dialog.ShowModal();
    });
    window.guarding = false;
    person.ExpectWindow("frmDialog", [&](QWidget& dialog) {
        person.Enter();
        EXPECT_TRUE(Person::FindIn<QPushButton>(dialog, "cmdOk").hasFocus());
        person.Enter();
    });
    person.Click(window.cmdNext);
}

TEST_F(Focus, PressOnADisabledButtonMovesNothingAndFiresNothing) {
    window.cmdSave.SetEnabled(false);
    person.Click(window.cmdSave);
    EXPECT_EQ(Log{}, window.log);
    EXPECT_TRUE(window.txtFirst.HasFocus());
}

TEST_F(Focus, BoxesCauseNeitherLostNorGotFocus) {
    window.guarding = false;
    person.Click(window.cmdNext);
    window.log.clear();
    window.cmdNext.OnClick([&] { MessageBoxes().MsgBox("Hello"); });
    person.Expect("Sorvane", "Hello");
    person.Enter();
    EXPECT_EQ(Log{}, window.log);
    EXPECT_TRUE(window.cmdNext.HasFocus());
    EXPECT_TRUE(window.isActiveWindow());
}

TEST_F(Focus, BoxBetweenAWishAndTheEndOfTheHandlerCausesNoEvents) {
    window.guarding = false;
    window.cmdNext.OnClick([&] {
        window.txtSecond.SetFocus();
        MessageBoxes().MsgBox("Hello");
        window.Write("end of handler");
    });
    person.Expect("Sorvane", "Hello");
    person.Click(window.cmdNext);
    EXPECT_EQ((Log{"-txtFirst", "+cmdNext", "end of handler", "-cmdNext", "+txtSecond"}), window.log);
}

TEST_F(Focus, ClosingTheWindowCausesNeither) {
    window.cmdSave.OnClick([&] { window.Unload(); });
    window.SetCloseButton(window.cmdSave);
    person.Close(window);
    EXPECT_EQ(Log{}, window.log);
    EXPECT_FALSE(window.isVisible());
}

TEST_F(Focus, AnotherWindowCausesNeither) {
    LoggingWindow other("frmOther", Window::Kind::Dialog);
    CommandButton cmdOk{"cmdOk", "&Ok"};
    other.LayOut(cmdOk);
    cmdOk.OnClick([&] { other.Unload(); });
    person.ExpectWindow("frmOther", [&](QWidget&) { person.Enter(); });
    other.ShowModal();
    Person::Await(window);
    EXPECT_EQ(Log{}, window.log);
    EXPECT_TRUE(window.txtFirst.HasFocus());
}

TEST_F(Focus, LateActivationOfTheWindowBehindFiresNothing) {
    window.guarding = false;
    LoggingWindow other("frmOther", Window::Kind::Dialog);
    CommandButton cmdOk{"cmdOk", "&Ok"};
    other.LayOut(cmdOk);
    cmdOk.OnClick([&] { other.Unload(); });
    person.ExpectWindow("frmOther", [&](QWidget& dialog) {
        window.txtSecond.setFocus();
        QApplication::setActiveWindow(&window);
        QApplication::setActiveWindow(&dialog);
        EXPECT_EQ(Log{}, window.log);
        person.Enter();
    });
    other.ShowModal();
}

TEST_F(Focus, WishForAHiddenOrDisabledControlIsPassedOver) {
    window.guarding = false;
    window.txtSecond.SetVisible(false);
    window.cmdSave.SetEnabled(false);
    window.cmdNext.OnClick([&] {
        window.txtFirst.SetFocus();
        window.txtSecond.SetFocus();
        window.cmdSave.SetFocus();
    });
    person.Click(window.cmdNext);
    EXPECT_TRUE(window.txtFirst.HasFocus());
}

TEST_F(Focus, WishIsTestedWhenTheHandlerEnds) {
    window.guarding = false;
    window.cmdSave.SetEnabled(false);
    window.cmdNext.OnClick([&] {
        window.cmdSave.SetFocus();
        window.cmdSave.SetEnabled(true);
    });
    person.Click(window.cmdNext);
    EXPECT_TRUE(window.cmdSave.HasFocus());
}

TEST_F(Focus, GotFocusThatMovesOnFiresTheLostFocusOfTheControlInBetween) {
    window.guarding = false;
    window.txtSecond.OnGotFocus([&] { window.cmdSave.SetFocus(); });
    person.Tab();
    EXPECT_EQ((Log{"-txtFirst", "-txtSecond", "+cmdSave"}), window.log);
}

TEST_F(Focus, SecondPressOfADoubleClickIsRefusedLikeTheFirst) {
    ExpectMissing("txtFirst");
    const QPointF at(3, 3);
    QMouseEvent second(QEvent::MouseButtonDblClick, at, window.cmdSave.mapToGlobal(at), Qt::LeftButton,
                       Qt::LeftButton, Qt::NoModifier);
    QSpontaneKeyEvent::setSpontaneous(&second);
    qApp->notify(&window.cmdSave, &second);
    EXPECT_FALSE(window.cmdSave.isDown());
    EXPECT_TRUE(window.txtFirst.HasFocus());
}

TEST_F(Focus, ErrorInAHandlerThatAnotherHandlerFiredEndsTheInnerOneOnly) {
    window.guarding = false;
    CheckBox chkInner{"chkInner"};
    window.LayOut(chkInner);
    chkInner.OnClick([&] {
        window.Write("inner");
        Raise(ErrorNumber::SubscriptOutOfRange);
    });
    window.cmdNext.OnClick([&] {
        chkInner.SetValue(1);
        window.Write("outer goes on");
    });
    ExpectError("9", "Subscript out of range");
    person.Click(window.cmdNext);
    EXPECT_EQ((Log{"-txtFirst", "+cmdNext", "inner", "outer goes on"}), window.log);
}

TEST_F(Focus, OutOfMemoryIsRunTimeErrorSeven) {
    window.guarding = false;
    window.cmdNext.OnClick([] { throw std::bad_alloc(); });
    ExpectError("7", "Out of memory");
    person.Click(window.cmdNext);
}

TEST_F(Focus, ForeignExceptionsDoNotPassThroughQtEither) {
    window.guarding = false;
    window.cmdNext.OnClick([] { throw std::runtime_error("foreign"); });
    ExpectError("51", "Application-defined or object-defined error");
    person.Click(window.cmdNext);
}

TEST_F(Focus, FailingHandlerStillMovesTheFocusWhereItAsked) {
    window.guarding = false;
    window.cmdNext.OnClick([&] {
        window.txtSecond.SetFocus();
        Raise(ErrorNumber::TypeMismatch);
    });
    ExpectError("13", "Type mismatch");
    person.Click(window.cmdNext);
    EXPECT_TRUE(window.txtSecond.HasFocus());
}

// Lists of combo boxes and calendars are windows of their own for Qt.
class Popups : public LoggingWindow {
  public:
    Popups() {
        LayOut(cboWager, cboNumber, dtpDate, txtLast);
        cboWager.AddItem("10.00");
        cboWager.AddItem("5.00");
        cboNumber.AddItem("0");
        cboNumber.AddItem("1");
        Watch(cboWager, cboNumber, dtpDate, txtLast);
        SetFirstFocus(cboWager);
    }
    ComboBox cboWager{"cboWager"}, cboNumber{"cboNumber", ComboBox::Style::ListOnly};
    DatePicker dtpDate{"dtpDate"};
    TextBox txtLast{"txtLast"};
};

TEST(FocusPopups, ListOfAComboBoxCausesNeither) {
    Popups window;
    Person person;
    Open(window);
    for (ComboBox* combo : {&window.cboWager, &window.cboNumber}) {
        combo->SetFocus();
        window.log.clear();
        combo->showPopup();
        Person::Settle();
        ASSERT_TRUE(QApplication::activePopupWidget());
        EXPECT_EQ(Log{}, window.log);
        person.Key(Qt::Key_Down);
        person.Enter();
        Person::Await(window);
        ASSERT_FALSE(QApplication::activePopupWidget());
        EXPECT_EQ(Log{}, window.log);
        EXPECT_TRUE(combo->HasFocus());
    }
}

TEST(FocusPopups, CalendarCausesNeither) {
    Popups window;
    Person person;
    Open(window);
    window.dtpDate.SetFocus();
    window.log.clear();
    person.Click(window.dtpDate, QPoint(window.dtpDate.width() - 8, window.dtpDate.height() / 2));
    ASSERT_TRUE(QApplication::activePopupWidget());
    EXPECT_EQ(Log{}, window.log);
    QApplication::activePopupWidget()->close();
    Person::Await(window);
    EXPECT_EQ(Log{}, window.log);
    person.Tab();
    EXPECT_EQ((Log{"-dtpDate", "+txtLast"}), window.log);
}

TEST(FocusPopups, ContextMenuOfAFieldCausesNeither) {
    Popups window;
    Person person;
    Open(window);
    window.txtLast.SetFocus();
    window.log.clear();
    QMenu menu(&window.txtLast);
    menu.addAction("Paste");
    menu.popup(window.mapToGlobal(QPoint(5, 5)));
    Person::Settle();
    menu.close();
    Person::Settle();
    EXPECT_EQ(Log{}, window.log);
}

}  // namespace
}  // namespace sorvane::test

// Windows: how they open, how they are left, and what goes on behind them.
#include "forms/Window.h"

#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QLayout>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QWindow>
#include <algorithm>
#include <memory>
#include <vector>

#include "Fixture.h"
#include "forms/BusyPointer.h"
#include "forms/Menu.h"
#include "forms/MessageBoxes.h"
#include "forms/TextBox.h"

namespace sorvane::test {
namespace {

using namespace forms;

class Small : public LoggingWindow {
  public:
    explicit Small(std::string_view name = "frmSmall") : LoggingWindow(name, Kind::Dialog) {
        LayOut(txtCount, cmdOk, cmdCancel);
        Watch(txtCount, cmdOk, cmdCancel);
        cmdOk.OnClick([this] { Write("Ok"); });
        cmdCancel.OnClick([this] {
            Write("Cancel");
            Unload();
        });
        SetCloseButton(cmdCancel);
        SetFirstFocus(txtCount);
    }
    TextBox txtCount{"txtCount"};
    CommandButton cmdOk{"cmdOk", "&Ok"}, cmdCancel{"cmdCancel", "&Cancel"};
};

TEST(Window, ModalWindowReturnsWhenItIsLeft) {
    Small window;
    Person person;
    bool returned = false;
    person.ExpectWindow("frmSmall", [&](QWidget&) {
        EXPECT_TRUE(window.IsShown());
        EXPECT_FALSE(returned);
        person.Click(window.cmdCancel);
        EXPECT_FALSE(window.IsShown());
    });
    window.ShowModal();
    returned = true;
    EXPECT_EQ((Log{"+txtCount", "-txtCount", "+cmdCancel", "Cancel"}), window.log);
}

TEST(Window, OpensWithTheFocusOnItsFirstControlWhereverItStands) {
    Small window;
    window.SetFirstFocus(window.cmdOk);
    window.Show();
    Person::Await(window);
    EXPECT_EQ((Log{"+cmdOk"}), window.log);
}

TEST(Window, OpensWithTheFirstInTabOrderWhereNoneIsNamedOrTheNamedOneIsDisabled) {
    Small window;
    window.cmdOk.SetEnabled(false);
    window.SetFirstFocus(window.cmdOk);
    window.Show();
    Person::Await(window);
    EXPECT_TRUE(window.txtCount.HasFocus());
}

TEST(Window, OpensWithTheFocusOnAControlAfterTheOneThatHadItWasDisabledWhileHidden) {
    LoggingWindow window;
    TextBox first("txtFirst"), second("txtSecond");
    window.LayOut(first, second);
    Open(window);
    window.Unload();
    first.SetEnabled(false);
    Open(window);
    EXPECT_TRUE(second.HasFocus());
}

TEST(Window, CanBeShownAgain) {
    Small window;
    Person person;
    for (int i = 0; i < 2; ++i) {
        person.ExpectWindow("frmSmall", [&](QWidget&) {
            person.Key(Qt::Key_Tab);
            person.Close(window);
        });
        window.ShowModal();
    }
    EXPECT_EQ(
        (Log{"+txtCount", "-txtCount", "+cmdOk", "Cancel", "+txtCount", "-txtCount", "+cmdOk", "Cancel"}),
        window.log);
}

TEST(Window, WindowBehindTakesNoInput) {
    Small main("frmMain"), window;
    Person person;
    Open(main);
    person.ExpectWindow("frmSmall", [&](QWidget&) {
        QTest::mouseClick(main.windowHandle(), Qt::LeftButton, Qt::NoModifier,
                          main.cmdOk.mapTo(&main, main.cmdOk.rect().center()));
        QTest::keyClick(main.windowHandle(), 'o', Qt::AltModifier);
        main.windowHandle()->close();
        EXPECT_TRUE(main.IsShown());
        person.Close(window);
    });
    window.ShowModal();
    EXPECT_EQ(Log{}, main.log);
}

TEST(Window, CloseBoxPressesTheWayOutWithoutMovingTheFocus) {
    Small window;
    Person person;
    Open(window);
    person.Close(window);
    EXPECT_EQ((Log{"Cancel"}), window.log);
    EXPECT_FALSE(window.IsShown());
}

TEST(Window, CloseBoxDoesNothingWhileTheWayOutIsDisabled) {
    Small window;
    Person person;
    Open(window);
    window.cmdCancel.SetEnabled(false);
    person.Close(window);
    EXPECT_TRUE(window.IsShown());
}

TEST(Window, CloseBoxOfAWindowWithoutAWayOutLeavesIt) {
    LoggingWindow window;
    Person person;
    Open(window);
    person.Close(window);
    EXPECT_FALSE(window.IsShown());
}

TEST(Window, EscapeDoesNothingUnlessAButtonIsSet) {
    Small window;
    Person person;
    Open(window);
    person.Key(Qt::Key_Escape);
    EXPECT_EQ(Log{}, window.log);
    window.SetEscapeButton(window.cmdCancel);
    person.Key(Qt::Key_Escape);
    EXPECT_EQ((Log{"Cancel"}), window.log);
}

TEST(Window, NoButtonIsTheDefaultOne) {
    Small window;
    Person person;
    Open(window);
    person.Enter();
    EXPECT_EQ(Log{}, window.log);
    for (auto* button : window.findChildren<QPushButton*>())
        EXPECT_FALSE(button->isDefault() || button->autoDefault()) << button->objectName().toStdString();
}

TEST(Window, TitleIsExact) {
    Small window;
    window.SetCaption("About  Sorvane ");
    EXPECT_EQ("About  Sorvane ", window.Caption());
    Open(window);
    EXPECT_EQ("About  Sorvane ", window.windowHandle()->title().toStdString());
}

TEST(Window, EmptyTitleShowsAnEmptyTitleBarAndNotTheNameOfTheProgram) {
    Small window;
    window.SetCaption("Florida");
    window.SetCaption("");
    Open(window);
    EXPECT_EQ("", window.windowTitle().toStdString());
    EXPECT_EQ(QString(QChar(0x200B)), window.windowHandle()->title());
    window.SetCaption("Play 4");
    window.SetCaption("");
    EXPECT_EQ(QString(QChar(0x200B)), window.windowHandle()->title());
}

TEST(Window, MayBeUnloadedByItsOwnHandlerWhichGoesOn) {
    Small main("frmMain");
    Person person;
    Open(main);
    auto window = std::make_unique<Small>();
    std::vector<std::unique_ptr<Small>> leaving;
    window->cmdOk.OnClick([&] {
        Small& own = *window;
        leaving.push_back(std::move(window));
        own.Unload();
        EXPECT_FALSE(own.isVisible());
        MessageBoxes().MsgBox("Tickets Saved", BoxStyle::Ok, "CONFIRMED");
        own.txtCount.SetText("0");
        own.txtCount.SetFocus();
        own.cmdOk.SetEnabled(false);
        own.Write("went on");
    });
    person.ExpectWindow("frmSmall", [&](QWidget&) {
        person.Expect("CONFIRMED", "Tickets Saved", Answer::Ok, BoxStyle::Ok,
                      [&] { EXPECT_TRUE(QApplication::activeModalWidget()->parentWidget() == &main); });
        person.Click(window->cmdOk);
    });
    window->ShowModal();
    ASSERT_EQ(1u, leaving.size());
    EXPECT_EQ((Log{"+txtCount", "-txtCount", "+cmdOk", "went on"}), leaving.front()->log);
    leaving.clear();
    Person::Await(main);
    EXPECT_EQ(Log{}, main.log);
}

TEST(Window, MayBeUnloadedFromANestedWindow) {
    Small outer("frmOuter"), inner("frmInner");
    Person person;
    outer.cmdOk.OnClick([&] {
        inner.ShowModal();
        outer.Write("inner returned");
    });
    inner.cmdOk.OnClick([&] {
        outer.Unload();
        inner.Unload();
    });
    person.ExpectWindow("frmOuter", [&](QWidget&) {
        person.ExpectWindow("frmInner", [&](QWidget&) { person.Click(inner.cmdOk); });
        person.Click(outer.cmdOk);
    });
    outer.ShowModal();
    EXPECT_EQ((Log{"+txtCount", "-txtCount", "+cmdOk", "inner returned"}), outer.log);
}

TEST(Window, UnloadedByItsOwnLostFocusLeavesNothingBehind) {
    Small window;
    Person person;
    window.txtCount.OnLostFocus([&] { window.Unload(); });
    person.ExpectWindow("frmSmall", [&](QWidget&) { person.Press(window.cmdOk); });
    window.ShowModal();
    EXPECT_EQ((Log{"+txtCount"}), window.log);
}

TEST(Window, ShownTwiceIsShownOnce) {
    Small window;
    Person person;
    person.ExpectWindow("frmSmall", [&](QWidget&) {
        window.ShowModal();
        person.Close(window);
    });
    window.ShowModal();
    EXPECT_EQ((Log{"+txtCount", "Cancel"}), window.log);
}

TEST(Window, WindowBelowIsActiveAgainAfterwards) {
    Small main("frmMain"), window;
    Person person;
    Open(main);
    person.ExpectWindow("frmSmall", [&](QWidget&) { person.Close(window); });
    window.ShowModal();
    EXPECT_TRUE(main.isActiveWindow());
    person.Type("5");
    EXPECT_EQ("5", main.txtCount.Text());
}

TEST(Window, IsAWindowOrADialogToAScreenReaderUnderItsTitle) {
    LoggingWindow main("frmMain"), small("frmSmall", Window::Kind::Dialog);
    small.SetCaption("Type of Report");
    EXPECT_EQ(QAccessible::Window, QAccessible::queryAccessibleInterface(&main)->role());
    EXPECT_EQ(QAccessible::Dialog, QAccessible::queryAccessibleInterface(&small)->role());
    EXPECT_EQ("Type of Report",
              QAccessible::queryAccessibleInterface(&small)->text(QAccessible::Name).toStdString());
}

struct BoxCase {
    int style;
    Answer answer;
};

TEST(MessageBox, EveryStyleGivesEveryAnswer) {
    const BoxCase cases[] = {{BoxStyle::Ok, Answer::Ok},
                             {BoxStyle::Stop, Answer::Ok},
                             {BoxStyle::Exclamation, Answer::Ok},
                             {BoxStyle::OkCancel, Answer::Ok},
                             {BoxStyle::OkCancel, Answer::Cancel},
                             {BoxStyle::YesNo, Answer::Yes},
                             {BoxStyle::YesNo, Answer::No},
                             {BoxStyle::YesNo | BoxStyle::Exclamation, Answer::No},
                             {BoxStyle::YesNoCancel, Answer::Yes},
                             {BoxStyle::YesNoCancel, Answer::No},
                             {BoxStyle::YesNoCancel, Answer::Cancel}};
    MessageBoxes boxes;
    Person person;
    for (const BoxCase& box : cases) {
        person.Expect("CONFIRM", "Save this sheet of tickets?", box.answer, box.style);
        EXPECT_EQ(box.answer, boxes.MsgBox("Save this sheet of tickets?", box.style, "CONFIRM")) << box.style;
    }
}

TEST(MessageBox, EscapeAndTheCloseBoxAnswerCancelWhereThereIsOneAndElseOk) {
    const BoxCase cases[] = {{BoxStyle::Ok, Answer::Ok},
                             {BoxStyle::Stop, Answer::Ok},
                             {BoxStyle::OkCancel, Answer::Cancel},
                             {BoxStyle::YesNoCancel, Answer::Cancel}};
    MessageBoxes boxes;
    Person person;
    for (const BoxCase& box : cases) {
        person.ExpectClosing("CONFIRM", "x", box.style);
        EXPECT_EQ(box.answer, boxes.MsgBox("x", box.style, "CONFIRM")) << box.style;
        person.ExpectKey("CONFIRM", "x", Qt::Key_Escape, box.style);
        EXPECT_EQ(box.answer, boxes.MsgBox("x", box.style, "CONFIRM")) << box.style;
    }
}

TEST(MessageBox, QuestionWithYesAndNoIsNotAnsweredByEscapeAndHasNoCloseBox) {
    MessageBoxes boxes;
    Person person;
    for (const int style : {BoxStyle::YesNo, BoxStyle::YesNo | BoxStyle::Exclamation}) {
        person.Expect("RECHECK?", "x", Answer::Yes, style, [&] {
            QWidget& box = person.Front();
            person.Key(Qt::Key_Escape);
            EXPECT_TRUE(box.isVisible());
            person.Close(box);
            EXPECT_TRUE(box.isVisible());
            EXPECT_FALSE(box.windowFlags() & Qt::WindowCloseButtonHint);
            EXPECT_TRUE(box.windowFlags() & Qt::WindowTitleHint);
        });
        EXPECT_EQ(Answer::Yes, boxes.MsgBox("x", style, "RECHECK?"));
    }
}

TEST(MessageBox, EnterIsTheMildestAnswerUnlessItIsToldToBeYes) {
    const BoxCase cases[] = {{BoxStyle::Ok, Answer::Ok},
                             {BoxStyle::OkCancel, Answer::Ok},
                             {BoxStyle::YesNo, Answer::No},
                             {BoxStyle::YesNo | BoxStyle::EnterIsYes, Answer::Yes},
                             {BoxStyle::YesNoCancel, Answer::Cancel}};
    MessageBoxes boxes;
    Person person;
    for (const BoxCase& box : cases) {
        person.ExpectKey("CONFIRM", "x", Qt::Key_Return, box.style & ~BoxStyle::EnterIsYes);
        EXPECT_EQ(box.answer, boxes.MsgBox("x", box.style, "CONFIRM")) << box.style;
    }
}

TEST(MessageBox, TextBeginsAtTheLeftEdgeAndButtonsBearNoPictures) {
    for (const int style : {BoxStyle::Ok, BoxStyle::YesNoCancel}) {
        Person person;
        person.Expect("CONFIRM", "Tickets Saved", style == BoxStyle::Ok ? Answer::Ok : Answer::No, style,
                      [&] {
                          QWidget& box = person.Front();
                          auto& label = Person::FindIn<QLabel>(box, "qt_msgbox_label");
                          EXPECT_EQ(box.layout()->contentsMargins().left(), label.mapTo(&box, QPoint()).x());
                          EXPECT_EQ(label.contentsRect().left(), 0);
                          EXPECT_EQ(label.indent(), 0);
                          const QImage shown = label.grab().toImage();
                          const QColor paper = shown.pixelColor(0, 0);
                          int ink = 0;
                          for (int x = 0; x < 5 && !ink; ++x)
                              for (int y = 0; y < shown.height(); ++y) ink += shown.pixelColor(x, y) != paper;
                          EXPECT_GT(ink, 0);
                          for (const auto* button : box.findChildren<QPushButton*>())
                              EXPECT_TRUE(button->icon().isNull());
                      });
        MessageBoxes().MsgBox("Tickets Saved", style, "CONFIRM");
    }
}

TEST(MessageBox, TextStandsOffThePictureWhereThereIsOne) {
    Person person;
    person.Expect("Sorvane", "Disk error", Answer::Ok, BoxStyle::Stop, [&] {
        QWidget& box = person.Front();
        const auto& picture = Person::FindIn<QLabel>(box, "qt_msgboxex_icon_label");
        const auto& text = Person::FindIn<QLabel>(box, "qt_msgbox_label");
        EXPECT_FALSE(picture.pixmap().isNull());
        const int between = text.mapTo(&box, QPoint(text.indent(), 0)).x() - picture.geometry().right();
        EXPECT_GE(between, 9);
    });
    MessageBoxes().MsgBox("Disk error", BoxStyle::Stop);
}

TEST(MessageBox, TextIsPlainAndItsLineBreaksAreOneLineEach) {
    Person person;
    person.Expect("Sorvane", "<b>one</b>\r\n\r\ntwo ", Answer::Ok, BoxStyle::Ok, [] {
        const auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        EXPECT_EQ("<b>one</b>\n\ntwo ", box->text().toStdString());
    });
    MessageBoxes().MsgBox("<b>one</b>\r\n\r\ntwo ");
}

TEST(MessageBox, LinesStayWholeWhereTheScreenHasRoom) {
    constexpr std::string_view line =
        "You have entered an amount which doesn't allow enough tickets for your last sheet.";
    Person person;
    person.Expect("Sorvane", line, Answer::Ok, BoxStyle::Ok, [] {
        const auto& label = Person::FindIn<QLabel>(*QApplication::activeModalWidget(), "qt_msgbox_label");
        EXPECT_LT(label.heightForWidth(label.width()), 2 * label.fontMetrics().lineSpacing());
    });
    MessageBoxes().MsgBox(line);
}

TEST(MessageBox, ALineLongerThanTheScreenIsBroken) {
    std::string line;
    for (int word = 0; word < 100; ++word) line += "tickets ";
    Person person;
    person.Expect("Sorvane", line, Answer::Ok, BoxStyle::Ok, [] {
        const QWidget& box = *QApplication::activeModalWidget();
        const auto& label = Person::FindIn<QLabel>(box, "qt_msgbox_label");
        EXPECT_TRUE(box.rect().contains(QRect(label.mapTo(&box, QPoint()), label.size())));
        const int screen = box.screen()->availableSize().width();
        EXPECT_LE(box.width(), screen);
        EXPECT_EQ(box.layout()->totalMinimumSize().width(), std::min(screen - 480, 1000));
    });
    MessageBoxes().MsgBox(line);
}

TEST(BusyPointer, IsShownAtOnceForWorkKnownToBeLong) {
    {
        const BusyPointer busy(std::chrono::milliseconds(251));
        EXPECT_TRUE(busy.Shown());
        EXPECT_EQ(Qt::WaitCursor, QApplication::overrideCursor()->shape());
    }
    EXPECT_EQ(nullptr, QApplication::overrideCursor());
}

TEST(BusyPointer, IsShownOnceWorkHasLastedOverAQuarterOfASecond) {
    static BusyPointer::Clock::time_point now;
    BusyPointer busy(std::chrono::milliseconds(250), [] { return now; });
    now += std::chrono::milliseconds(250);
    busy.Tick();
    EXPECT_FALSE(busy.Shown());
    now += std::chrono::milliseconds(1);
    busy.Tick();
    EXPECT_TRUE(busy.Shown());
}

TEST(BusyPointer, GivesWayToABox) {
    Person person;
    const BusyPointer busy(std::chrono::seconds(1));
    person.Expect("Sorvane", "Hello", Answer::Ok, BoxStyle::Ok,
                  [] { EXPECT_EQ(Qt::ArrowCursor, QApplication::overrideCursor()->shape()); });
    MessageBoxes().MsgBox("Hello");
    EXPECT_EQ(Qt::WaitCursor, QApplication::overrideCursor()->shape());
}

TEST(Window, OpensAsWideAsItsMenu) {
    LoggingWindow window;
    MenuBar bar;
    window.layout()->setMenuBar(&bar);
    for (int i = 0; i < 7; ++i) bar.AddMenu("mnuFile", "Many numbers");
    Open(window);
    EXPECT_GE(window.width(), bar.sizeHint().width());
    EXPECT_LT(window.width(), bar.sizeHint().width() + 100);
}

// To the system, which sends the keys there.
TEST(Window, TheOneInFrontHasTheKeysAndTheOneBelowAfterwards) {
    LoggingWindow window;
    auto front = std::make_unique<LoggingWindow>("frmFront");
    const auto hasKeys = [](QWidget& one) {
        return QTest::qWaitFor([&] { return QGuiApplication::focusWindow() == one.windowHandle(); });
    };
    window.Show();
    EXPECT_TRUE(hasKeys(window));
    front->Show();
    EXPECT_TRUE(hasKeys(*front));
    front.reset();
    EXPECT_TRUE(hasKeys(window));
}

TEST(Window, ShownAgainItHasTheFocusAnewAndNoWishIsLeft) {
    Small window;
    Person person;
    Open(window);
    window.Unload();
    window.Show();
    Person::Await(window);
    Person::Settle();
    EXPECT_EQ((Log{"+txtCount"}), window.log);
    window.cmdOk.OnClick([&] {
        window.cmdCancel.SetFocus();
        window.Unload();
        window.Show();
    });
    person.Click(window.cmdOk);
    Person::Await(window);
    Person::Settle();
    EXPECT_TRUE(window.txtCount.HasFocus());
}

TEST(Window, TheProgramDoesNotEndWithTheLastOne) { EXPECT_FALSE(QApplication::quitOnLastWindowClosed()); }

}  // namespace
}  // namespace sorvane::test

// The small controls.
#include <QApplication>
#include <QClipboard>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTest>
#include <QWheelEvent>
#include <fstream>

#include "Fixture.h"
#include "forms/CheckBox.h"
#include "forms/ComboBox.h"
#include "forms/ControlArray.h"
#include "forms/Label.h"
#include "forms/LabelFrame.h"
#include "forms/ListBox.h"
#include "forms/Look.h"
#include "forms/Menu.h"
#include "forms/MultiLineBox.h"
#include "forms/OptionButton.h"
#include "forms/Picture.h"
#include "forms/Rule.h"
#include "forms/TextBox.h"
#include "support/Palettes.h"
#include "support/TempFolder.h"

namespace sorvane::test {
namespace {

using namespace forms;

// Counts how often what it is installed on is painted.
struct PaintCounter : QObject {
    bool eventFilter(QObject*, QEvent* event) override {
        count += event->type() == QEvent::Paint;
        return false;
    }
    int count = 0;
};

TEST(Control, NameIsQtsObjectName) {
    CommandButton button("cmdSave", "&Save Tickets");
    EXPECT_EQ("cmdSave", button.Name());
    EXPECT_EQ("cmdSave", button.objectName().toStdString());
}

TEST(Control, VisibleIsItsOwnWishWhateverTheContainerDoes) {
    LoggingWindow window;
    LabelFrame frame("fraTickets");
    TextBox field("txtDollars");
    (new QVBoxLayout(&frame))->addWidget(&field);
    window.LayOut(frame);
    EXPECT_TRUE(field.Visible());
    field.SetVisible(false);
    EXPECT_FALSE(field.Visible());
    window.Show();
    EXPECT_FALSE(field.isVisible());
    frame.SetVisible(false);
    field.SetVisible(true);
    EXPECT_TRUE(field.Visible());
    EXPECT_FALSE(field.isVisible());
    frame.SetVisible(true);
    EXPECT_TRUE(field.isVisible());
}

TEST(Control, ShownBeforeItIsLaidOutIsNoWindowOfItsOwn) {
    TextBox field("txtDollars");
    field.SetVisible(false);
    field.SetVisible(true);
    EXPECT_TRUE(field.Visible());
    EXPECT_FALSE(field.isVisible());
    LoggingWindow window;
    TextBox other("txtOther");
    window.LayOut(other, static_cast<Control&>(field));
    window.Show();
    EXPECT_TRUE(field.isVisible());
    window.layout()->removeWidget(&field);
    field.setParent(nullptr);
}

TEST(Control, EnabledIsItsOwnWishWhateverTheContainerDoes) {
    LabelFrame frame("fraTickets");
    TextBox field("txtDollars");
    (new QVBoxLayout(&frame))->addWidget(&field);
    frame.SetEnabled(false);
    EXPECT_TRUE(field.Enabled());
    EXPECT_FALSE(field.isEnabled());
    field.SetEnabled(false);
    frame.SetEnabled(true);
    EXPECT_FALSE(field.Enabled());
    EXPECT_FALSE(field.isEnabled());
}

TEST(Control, ControlTakenOutOfTheTabSequenceIsPassedOverByTabOnly) {
    LoggingWindow window;
    TextBox first("txtFirst"), second("txtSecond"), third("txtThird");
    window.LayOut(first, second, third);
    Open(window);
    Person person;
    second.SetTabStop(false);
    person.Tab();
    EXPECT_TRUE(third.HasFocus());
    person.Click(second);
    EXPECT_TRUE(second.HasFocus());
    second.SetTabStop(true);
    person.BackTab();
    person.Tab();
    EXPECT_TRUE(second.HasFocus());
}

TEST(TextBox, ChangeFiresForTheUserAndTheProgramButNotForTheSameText) {
    LoggingWindow window;
    TextBox field("txtDollars");
    window.LayOut(field);
    field.OnChange([&] { window.Write(field.Text()); });
    Open(window);
    Person person;
    field.SetText("5");
    field.SetText("5");
    person.Type("0");
    EXPECT_EQ((Log{"5", "50"}), window.log);
}

TEST(TextBox, ChangeMaySetTheTextItself) {
    LoggingWindow window;
    TextBox field("txtDollars");
    window.LayOut(field);
    field.SetText("7");
    field.OnChange([&] {
        window.Write(field.Text());
        if (field.Text().empty()) {
            field.SetText("0.00");
            field.SetCaret(0);
        }
    });
    Open(window);
    Person person;
    person.Key(Qt::Key_End);
    person.Key(Qt::Key_Backspace);
    EXPECT_EQ("0.00", field.Text());
    EXPECT_EQ(0, field.cursorPosition());
    EXPECT_EQ((Log{"", "0.00"}), window.log);
}

TEST(TextBox, MaximumLengthZeroIsNoLimit) {
    TextBox field("txtDollars");
    EXPECT_EQ(0, field.MaxLength());
    field.SetMaxLength(6);
    EXPECT_EQ(6, field.MaxLength());
    field.SetText("1234567");
    EXPECT_EQ("123456", field.Text());
    field.SetMaxLength(0);
    field.SetText("1234567");
    EXPECT_EQ("1234567", field.Text());
}

TEST(TextBox, TextsAreUtf8) {
    TextBox field("txtCountry");
    field.SetText("Québec ñ €");
    EXPECT_EQ("Québec ñ €", field.Text());
}

class SelectAll : public testing::Test {
  protected:
    LoggingWindow window;
    TextBox other{"txtOther"}, field{"txtDollars"};
    ComboBox list{"cboNoOfBallsPerTicket"};
    Person person;
    void SetUp() override {
        window.LayOut(other, field, list);
        field.SetText("1234");
        field.OnGotFocus([this] { field.SelectAll(); });
        list.OnGotFocus([this] { list.SelectAll(); });
        Open(window);
    }
};

TEST_F(SelectAll, HoldsWhenTheTabKeyBroughtTheFocus) {
    person.Tab();
    EXPECT_EQ("1234", field.selectedText());
    person.Type("5");
    EXPECT_EQ("5", field.Text());
}

TEST_F(SelectAll, HoldsWhenAPressOfTheMouseBroughtTheFocus) {
    person.Click(field, QPoint(12, field.height() / 2));
    EXPECT_EQ("1234", field.selectedText());
}

TEST_F(SelectAll, HoldsThroughASmallMoveOfTheMouse) {
    person.Press(field, QPoint(12, field.height() / 2));
    person.MoveTo(field, QPoint(14, field.height() / 2));
    person.Release();
    EXPECT_EQ("1234", field.selectedText());
}

TEST_F(SelectAll, HoldsInAListThatCanBeTypedInto) {
    list.AddItem("10");
    list.SetListIndex(0);
    person.Click(list, QPoint(8, list.height() / 2));
    person.Type("3");
    EXPECT_EQ("3", list.Text());
}

TEST_F(SelectAll, SecondClickPutsTheCaret) {
    person.Click(field);
    person.Click(field, QPoint(5, field.height() / 2));
    EXPECT_EQ("", field.selectedText());
}

TEST(MultiLineBox, LineBreaksAreCarriageReturnAndLineFeed) {
    MultiLineBox box("txtReport");
    const std::string text = "\r\n     Date: 2026-11-21\r\n\r\n  two  blanks\r\n";
    box.SetText(text);
    EXPECT_EQ(text, box.Text());
    box.SetText(box.Text() + "more\r\n");
    EXPECT_EQ(text + "more\r\n", box.Text());
}

TEST(MultiLineBox, ReadOnlyTakesNoText) {
    LoggingWindow window;
    MultiLineBox box("txtReport");
    window.LayOut(box);
    box.SetReadOnly(true);
    box.SetFixedPitch();
    Open(window);
    Person person;
    person.Type("a");
    EXPECT_EQ("", box.Text());
    EXPECT_EQ(box.fontMetrics().horizontalAdvance("iiii"), box.fontMetrics().horizontalAdvance("WWWW"));
}

class FullBox : public testing::Test {
  protected:
    LoggingWindow window;
    MultiLineBox box{"txtAdditionalInfo"};
    Person person;
    void SetUp() override {
        window.LayOut(box);
        Open(window);
    }
    void Paste(const QString& text) {
        QGuiApplication::clipboard()->setText(text);
        person.Key(Qt::Key_V, Qt::ControlModifier);
    }
};

TEST_F(FullBox, TakesTheFirst32767CharactersOfWhatIsPasted) {
    Paste(QString(1'000'000, 'x'));
    EXPECT_TRUE(box.Text() == std::string(32767, 'x'));
    person.Type("y");
    person.Enter();
    person.Commit("z");
    Paste("more");
    EXPECT_TRUE(box.Text() == std::string(32767, 'x'));
    person.Key(Qt::Key_Backspace);
    person.Enter();  // two characters in what is read back
    EXPECT_TRUE(box.Text() == std::string(32766, 'x'));
    person.Type("y");
    EXPECT_TRUE(box.Text() == std::string(32766, 'x') + "y");
}

TEST_F(FullBox, ALineBreakCountsAsTheTwoCharactersThatItIsReadAs) {
    QString lines;
    for (int i = 0; i < 20'000; ++i) lines += "a\n";
    Paste(lines);
    EXPECT_EQ(32767u, box.Text().size());
    EXPECT_EQ("\r\na", box.Text().substr(32764));
}

TEST_F(FullBox, WhatIsSelectedMakesRoom) {
    Paste(QString(32767, 'x'));
    person.Key(Qt::Key_A, Qt::ControlModifier);
    person.Type("new");
    EXPECT_TRUE(box.Text() == "new");
}

TEST_F(FullBox, TheProgramMaySetMore) {
    box.SetText(std::string(40'000, 'x'));
    EXPECT_EQ(40'000u, box.Text().size());
}

TEST(CheckBox, ClickFiresWheneverTheValueChanges) {
    LoggingWindow window;
    CheckBox box("chkEncore", "Encore Played");
    window.LayOut(box);
    box.OnClick([&] { window.Write(std::to_string(box.Value())); });
    Open(window);
    Person person;
    box.SetValue(1);
    box.SetValue(1);
    box.SetValue(-1);
    person.Click(box, QPoint(10, box.height() / 2));
    person.Key(Qt::Key_Space);
    box.SetValue(0);
    EXPECT_EQ((Log{"1", "0", "1", "0"}), window.log);
}

class Options : public testing::Test {
  protected:
    LoggingWindow window;
    LabelFrame way{"fraWayPlayed", "Way Played"}, wager{"fraWager", "Wager"};
    OptionButton straight{"optPlayOpt(0)", "Straight"}, box{"optPlayOpt(1)", "Box"};
    OptionButton one{"optOneDollar", "$1.00"};
    Person person;
    void SetUp() override {
        auto* first = new QVBoxLayout(&way);
        first->addWidget(&straight);
        first->addWidget(&box);
        (new QVBoxLayout(&wager))->addWidget(&one);
        window.LayOut(way, wager);
        for (OptionButton* option : {&straight, &box, &one})
            option->OnClick([this, option] { window.Write(option->Name()); });
        Open(window);
    }
};

TEST_F(Options, ClickFiresOnlyWhenItBecomesOn) {
    straight.SetValue(true);
    straight.SetValue(true);
    person.Click(box, QPoint(10, box.height() / 2));
    person.Click(box, QPoint(10, box.height() / 2));
    EXPECT_EQ((Log{"optPlayOpt(0)", "optPlayOpt(1)"}), window.log);
    EXPECT_FALSE(straight.Value());
    EXPECT_TRUE(box.Value());
}

TEST_F(Options, ProgramTurnsOneOffWithoutAClick) {
    straight.SetValue(true);
    window.log.clear();
    straight.SetValue(false);
    EXPECT_FALSE(straight.Value());
    EXPECT_FALSE(box.Value());
    EXPECT_EQ(Log{}, window.log);
    straight.SetValue(true);
    box.SetValue(true);
    EXPECT_FALSE(straight.Value());
}

TEST_F(Options, FramesDoNotDisturbEachOther) {
    straight.SetValue(true);
    one.SetValue(true);
    EXPECT_TRUE(straight.Value());
    EXPECT_TRUE(one.Value());
}

TEST(CommandButton, EnterAndTheBlankClickTheOneWithTheFocusAndNoOther) {
    LoggingWindow window;
    TextBox field("txtFirst");
    CommandButton ok("cmdOk", "&Ok"), cancel("cmdCancel", "&Cancel");
    window.LayOut(field, ok, cancel);
    ok.OnClick([&] { window.Write("Ok"); });
    cancel.OnClick([&] { window.Write("Cancel"); });
    Open(window);
    Person person;
    person.Enter();
    EXPECT_EQ(Log{}, window.log);
    cancel.SetFocus();
    person.Enter();
    person.Key(Qt::Key_Enter, Qt::KeypadModifier);
    person.Key(Qt::Key_Space);
    EXPECT_EQ((Log{"Cancel", "Cancel", "Cancel"}), window.log);
}

TEST(CommandButton, EnterHeldDownClicksOnce) {
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        LoggingWindow window;
        CommandButton save("cmdSave", "&Save Tickets");
        window.LayOut(save);
        save.OnClick([&] { window.Write("Save"); });
        Open(window);
        for (const bool again : {false, true, true}) {
            QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, "\r", again);
            QCoreApplication::sendEvent(&save, &press);
        }
        EXPECT_EQ(Log{"Save"}, window.log);
    }
}

TEST(CommandButton, CaptionIsKeptToTheCharacter) {
    CommandButton button("cmdUse", "&Use These #'s");
    EXPECT_EQ("&Use These #'s", button.Caption());
    button.SetCaption("Next &Bonus");
    EXPECT_EQ("Next &Bonus", button.Caption());
}

TEST(CommandButton, WithoutAHandlerAClickDoesNothing) {
    LoggingWindow window;
    CommandButton button("cmdRegular", "&Play Regular Numbers");
    window.LayOut(button);
    Open(window);
    Person person;
    person.Click(button);
    EXPECT_TRUE(button.HasFocus());
}

TEST(AccessKey, OfALabelLeadsToItsBuddy) {
    LoggingWindow window;
    CommandButton button("cmdOk", "&Ok");
    Label label("lblCountry", "&Country:");
    TextBox field("txtCountry");
    label.SetBuddy(field);
    window.LayOut(button, label, field);
    Open(window);
    Person person;
    person.AccessKey('c');
    EXPECT_TRUE(field.HasFocus());
    EXPECT_EQ("&Country:", label.Caption());
}

TEST(AccessKey, OfACheckBoxAndAnOptionMovesTheFocusAndClicks) {
    LoggingWindow window;
    TextBox field("txtFirst");
    CheckBox box("chkStatUpdate", "&Update");
    OptionButton option("optHot", "&Hot");
    window.LayOut(field, box, option);
    Open(window);
    Person person;
    person.AccessKey('u');
    EXPECT_EQ(1, box.Value());
    EXPECT_TRUE(box.HasFocus());
    person.AccessKey('h');
    EXPECT_TRUE(option.Value());
    EXPECT_TRUE(option.HasFocus());
}

TEST(Label, ItsListIsSpokenWithoutColonAndAmpersand) {
    Label label("lblNumbersPlayed", "&Numbers Played:");
    ListBox list("lstNumbersPlayed");
    label.SetBuddy(list);
    EXPECT_EQ("Numbers Played", list.accessibleName().toStdString());
    label.SetCaption("Tag #'s:");
    EXPECT_EQ("Tag #'s", list.accessibleName().toStdString());
}

TEST(Label, TextIsPlain) {
    Label label("lblInfo", "<b>not bold</b>");
    EXPECT_EQ(Qt::PlainText, label.textFormat());
    EXPECT_EQ("<b>not bold</b>", label.Caption());
}

TEST(ComboBox, AddedEntriesChangeNeitherTextNorSelection) {
    for (const auto style : {ComboBox::Style::Editable, ComboBox::Style::ListOnly}) {
        ComboBox combo("cboNumber", style);
        int changes = 0;
        combo.OnChange([&] { ++changes; });
        combo.AddItem("10");
        combo.AddItem("9");
        EXPECT_EQ("", combo.Text());
        EXPECT_EQ(-1, combo.ListIndex());
        EXPECT_EQ(2, combo.ListCount());
        EXPECT_EQ("9", combo.List(1));
        EXPECT_EQ(0, changes);
    }
}

TEST(ComboBox, EditableKeepsItsTextWhileEntriesComeAndGo) {
    ComboBox combo("cboWager");
    combo.SetText("7.00");
    combo.AddItem("10.00");
    EXPECT_EQ("7.00", combo.Text());
    combo.Clear();
    EXPECT_EQ("", combo.Text());
    EXPECT_EQ(0, combo.ListCount());
}

TEST(ComboBox, ListStyleSelectsTheEntryOfItsText) {
    ComboBox combo("cboNumber", ComboBox::Style::ListOnly);
    Log log;
    combo.OnChange([&] { log.push_back(combo.Text()); });
    for (int i = 0; i < 10; ++i) combo.AddItem(std::to_string(i));
    combo.SetText("4");
    EXPECT_EQ(4, combo.ListIndex());
    combo.SetText("4");
    combo.SetListIndex(0);
    EXPECT_EQ("0", combo.Text());
    combo.SetText("x");
    EXPECT_EQ(-1, combo.ListIndex());
    combo.SetText("7");
    combo.SetText("");
    EXPECT_EQ(-1, combo.ListIndex());
    EXPECT_EQ("", combo.Text());
    EXPECT_EQ((Log{"4", "0", "", "7", ""}), log);
    EXPECT_EQ(ErrorNumber::SubscriptOutOfRange, ErrorOf([&] { combo.SetListIndex(10); }));
}

TEST(ComboBox, TypedTextIsNotCompleted) {
    LoggingWindow window;
    ComboBox combo("cboNoOfBallsPerTicket");
    window.LayOut(combo);
    combo.AddItem("10");
    Open(window);
    Person person;
    person.Type("1");
    EXPECT_EQ("1", combo.Text());
    EXPECT_EQ(-1, combo.ListIndex());
    combo.SelectAll();
    person.Type("10");
    EXPECT_EQ(0, combo.ListIndex());
}

TEST(ComboBox, TheWheelChangesTheChoiceOnlyWhereTheFocusIs) {
    for (const auto style : {ComboBox::Style::ListOnly, ComboBox::Style::Editable}) {
        LoggingWindow window;
        ComboBox list("cboWager", style);
        CommandButton other("cmdOk", "&Ok");
        window.LayOut(other, list);
        for (const char* wager : {"10.00", "5.00", "2.00"}) list.AddItem(wager);
        list.SetListIndex(1);
        Open(window);
        Person person;
        const auto turn = [&] {
            const QPointF middle(list.rect().center());
            QWheelEvent wheel(middle, list.mapToGlobal(middle), QPoint(), QPoint(0, -120), Qt::NoButton,
                              Qt::NoModifier, Qt::NoScrollPhase, false);
            QCoreApplication::sendEvent(&list, &wheel);
            return list.Text();
        };
        EXPECT_EQ("5.00", turn());
        EXPECT_TRUE(other.HasFocus());
        list.SetFocus();
        EXPECT_EQ("2.00", turn());
    }
}

TEST(ControlArray, ElementsBearNameAndIndex) {
    ControlArray<CheckBox> array("chkNumb");
    array.Load(0, "1");
    array.Load(2, "3");
    EXPECT_EQ("chkNumb(2)", array(2).Name());
    EXPECT_EQ("3", array(2).Caption());
    EXPECT_EQ(2, array.Count());
    EXPECT_EQ(2, array.UBound());
    EXPECT_FALSE(array.IsLoaded(1));
    EXPECT_EQ(&array(2), &array.Load(2));
}

TEST(ControlArray, IndexThatIsNotLoadedIsErrorNine) {
    ControlArray<CheckBox> array("chkNumb");
    array.Load(1);
    for (const int index : {-1, 0, 2})
        EXPECT_EQ(ErrorNumber::SubscriptOutOfRange, ErrorOf([&] { array(index); })) << index;
    EXPECT_EQ(ErrorNumber::SubscriptOutOfRange, ErrorOf([&] { array.Load(-1); }));
    EXPECT_EQ(-1, ControlArray<CheckBox>("empty").UBound());
}

TEST(ControlArray, OneHandlerServesElementsLoadedBeforeAndAfter) {
    LoggingWindow window;
    ControlArray<TextBox> array("txtPlay4");
    window.LayOut(array.Load(0));
    array.OnKeyPress([&](int index, KeyPress& key) {
        window.Write("key " + std::to_string(index));
        key.Swallow();
    });
    array.OnChange([&](int index) { window.Write("change " + std::to_string(index)); });
    array.OnLostFocus([&](int index) { window.Write("lost " + std::to_string(index)); });
    array.OnGotFocus([&](int index) { window.Write("got " + std::to_string(index)); });
    window.LayOut(array.Load(1));
    Open(window);
    Person person;
    person.Tab();
    person.Type("5");
    array(0).SetText("9");
    EXPECT_EQ((Log{"lost 0", "got 1", "key 1", "change 0"}), window.log);
}

TEST(Menu, EntriesBearTheirNamesAndRunTheirHandlers) {
    LoggingWindow window;
    MenuBar bar;
    window.layout()->setMenuBar(&bar);
    Menu& file = bar.AddMenu("mnuFile", "&File");
    file.AddEntry("mnuFileUpgrade", "&Upgrade Database");
    Menu& canada = bar.AddMenu("mnuCanada", "&Canada");
    canada.AddMenu("mnuCANONT", "&Ontario").AddEntry("mnuCANONTLotto649", "Lotto &6/49", [&] {
        window.Write("649");
    });
    Open(window);
    Person person;
    EXPECT_FALSE(person.Find<QAction>("mnuFileUpgrade").isEnabled());
    EXPECT_EQ("&File", person.Find<QMenu>("mnuFile").title().toStdString());
    QAction& entry = person.Find<QAction>("mnuCANONTLotto649");
    EXPECT_EQ("Lotto &6/49", entry.text().toStdString());
    person.AccessKey('c');
    person.Key(Qt::Key_O);
    person.Key(Qt::Key_6);
    EXPECT_EQ(Log{"649"}, window.log);
}

TEST(Menu, FailingEntryShowsTheError) {
    LoggingWindow window;
    MenuBar bar;
    window.layout()->setMenuBar(&bar);
    QAction& entry = bar.AddMenu("mnuFile", "&File").AddEntry("mnuFileExit", "E&xit", [] { Raise(5); });
    Open(window);
    Person person;
    person.Expect("Sorvane", "Run-time error '5':\n\nInvalid procedure call", Answer::Ok, BoxStyle::Stop);
    entry.trigger();
}

// A drawing of 40 by 20, or of another size, in one colour.
std::string Drawing(const TempFolder& folder, const std::string& colour, int width = 40, int height = 20) {
    const std::string path = folder.File(colour + ".svg");
    const std::string size = "width='" + std::to_string(width) + "' height='" + std::to_string(height) + "'";
    std::ofstream(path) << "<svg xmlns='http://www.w3.org/2000/svg' " << size << "><rect " << size
                        << " fill='" << colour << "'/></svg>";
    return path;
}

TEST(Picture, ShowsADrawingAndNothingWhereThereIsNone) {
    const TempFolder folder;
    Picture picture("Picture1");
    picture.SetFile(Drawing(folder, "red"));
    EXPECT_EQ(QSize(40, 20), picture.sizeHint());
    picture.resize(80, 40);
    EXPECT_EQ(QColor(Qt::red), picture.grab().toImage().pixelColor(40, 20));
    Picture empty("picIcon");
    empty.resize(10, 10);
    empty.grab();
    EXPECT_TRUE(empty.Visible());
}

TEST(Picture, AnotherDrawingIsShownAtOnceInASizeOfItsOwn) {
    const TempFolder folder;
    QWidget window;
    auto* layout = new QHBoxLayout(&window);
    layout->setContentsMargins(0, 0, 0, 0);
    Picture picture("Picture1");
    picture.setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    layout->addWidget(&picture);
    picture.SetFile(Drawing(folder, "red"));
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    Person::Settle();
    EXPECT_EQ(picture.size(), QSize(40, 20));
    picture.SetFile(Drawing(folder, "blue", 60, 30));
    Person::Settle();
    EXPECT_EQ(picture.size(), QSize(60, 30));
    PaintCounter paints;
    picture.installEventFilter(&paints);
    picture.SetFile(Drawing(folder, "lime", 60, 30));
    EXPECT_TRUE(QTest::qWaitFor([&] { return paints.count > 0; }));
}

TEST(Picture, WaitsForTheFirstFrameWithItsPlaceKept) {
    const TempFolder folder;
    Picture picture("Picture1");
    picture.SetFileLater(Drawing(folder, "red"), QSize(40, 20));
    EXPECT_EQ(QSize(40, 20), picture.sizeHint());
    EXPECT_EQ(40, picture.heightForWidth(80));
    picture.resize(80, 40);
    EXPECT_NE(QColor(Qt::red), picture.grab().toImage().pixelColor(40, 20));
    EXPECT_EQ(40, picture.heightForWidth(80));
    QCoreApplication::processEvents();
    EXPECT_EQ(QColor(Qt::red), picture.grab().toImage().pixelColor(40, 20));
    EXPECT_EQ(QSize(40, 20), picture.sizeHint());
}

TEST(Rule, IsALineAcrossThatIsSeenInEveryPalette) {
    for (const auto& [name, palette] : AllPalettes()) {
        Rule rule("Line1");
        EXPECT_EQ(QFrame::HLine, rule.frameShape());
        rule.setPalette(palette);
        rule.resize(40, 3);
        const QImage shown = rule.grab().toImage();
        const QColor paper = palette.color(QPalette::Window);
        for (const int x : {0, 20, 39}) EXPECT_GE(Look::Contrast(paper, shown.pixelColor(x, 1)), 3) << name;
    }
}

// In the middle, in its own proportions; and nothing of it outside of its frame.
TEST(Picture, IsAsLargeAsFitsAndHasNothingOutsideOfItsFrame) {
    const TempFolder folder;
    const std::string path = folder.File("wide.svg");
    std::ofstream(path)
        << "<svg xmlns='http://www.w3.org/2000/svg' width='40' height='20' viewBox='0 0 40 20'>"
           "<rect x='-100' y='-100' width='300' height='300' fill='red'/></svg>";
    Picture picture("Picture1");
    picture.SetFile(path);
    picture.resize(80, 80);
    const QImage seen = picture.grab().toImage();
    QRect red;
    for (int y = 0; y < 80; ++y)
        for (int x = 0; x < 80; ++x)
            if (seen.pixelColor(x, y) == QColor(Qt::red)) red |= QRect(x, y, 1, 1);
    EXPECT_EQ(red, QRect(0, 20, 80, 40));
    EXPECT_EQ(picture.heightForWidth(50), 25);
    EXPECT_EQ(Picture("picNone").heightForWidth(50), 0);
}

TEST(WindowIcon, IsDrawnInTheSizesThatAreAskedForWithNothingBesideTheDrawing) {
    const TempFolder folder;
    const std::string path = folder.File("icon.svg");
    std::ofstream(path) << "<svg xmlns='http://www.w3.org/2000/svg' width='16' height='16'>"
                           "<rect x='8' width='8' height='16' fill='blue'/></svg>";
    const QIcon icon = WindowIcon(path);
    EXPECT_EQ(icon.availableSizes(), (QList<QSize>{{16, 16}, {32, 32}, {64, 64}, {128, 128}}));
    for (const int side : {16, 32, 64, 128}) {
        const QImage drawn = icon.pixmap(side).toImage();
        EXPECT_EQ(drawn.pixelColor(side - 2, 2), QColor(Qt::blue)) << side;
        EXPECT_EQ(drawn.pixelColor(2, 2).alpha(), 0) << side;
    }
}

// Beside the caption; in smaller letters where there is less room than they need.
TEST(LabelFrame, AHintStandsAtTheRightOfTheHeading) {
    LabelFrame frame("fraTickets", "Tickets");
    frame.SetHint([] { return std::string("3 of 6 numbers"); });
    QFont heavy = frame.font();
    heavy.setBold(true);
    const int caption = QFontMetrics(heavy).horizontalAdvance("Tickets");
    const int hint = frame.fontMetrics().horizontalAdvance("3 of 6 numbers");
    const int gap = Look::Gap(frame), heading = Look::Heading(frame);
    const auto ink = [&](int width) {
        frame.resize(width, 100);
        const QImage seen = frame.grab().toImage();
        const QRgb paper = seen.pixel(caption + gap / 2, heading / 2);
        QRect found;
        for (int y = 0; y < heading; ++y)
            for (int x = caption + gap / 2; x < width; ++x)
                if (seen.pixel(x, y) != paper) found |= QRect(x, y, 1, 1);
        return found;
    };
    const QRect wide = ink(caption + gap + hint + 40);
    EXPECT_NEAR(wide.right(), frame.width(), 4);
    EXPECT_NEAR(wide.width(), hint, 4);
    EXPECT_NEAR(wide.center().y(), heading / 2, 3);
    EXPECT_EQ(ink(caption + gap + hint).width(), wide.width());
    const QRect narrow = ink(caption + gap + hint - 10);
    EXPECT_LE(narrow.width(), hint - 10);
    EXPECT_GE(narrow.width(), hint - 30);
    EXPECT_GE(narrow.left(), caption + gap - 2);
    EXPECT_EQ("3 of 6 numbers", frame.accessibleDescription().toStdString());
}

TEST(LabelFrame, AHintIsToldAndPaintedAnewWhenItIsRefreshed) {
    LoggingWindow window;
    LabelFrame frame("fraTickets", "Tickets");
    window.LayOut(frame);
    Open(window);
    frame.RefreshHint();
    EXPECT_EQ("", frame.accessibleDescription().toStdString());
    std::string hint = "none";
    frame.SetHint([&] { return hint; });
    frame.RefreshHint();
    Person::Settle();
    PaintCounter paints;
    frame.installEventFilter(&paints);
    hint = "1 of 6";
    frame.RefreshHint();
    EXPECT_EQ("1 of 6", frame.accessibleDescription().toStdString());
    EXPECT_TRUE(QTest::qWaitFor([&] { return paints.count > 0; }));
}

TEST(ComboBox, EnterAddsNoEntry) {
    LoggingWindow window;
    ComboBox list("cboWager");
    window.LayOut(list);
    Open(window);
    list.AddItem("1");
    list.SetFocus();
    Person person;
    person.Type("7");
    person.Enter();
    EXPECT_EQ(1, list.count());
    EXPECT_EQ("7", list.Text());
    EXPECT_EQ(ErrorNumber::SubscriptOutOfRange, ErrorOf([&] { list.List(1); }));
    EXPECT_EQ(ErrorNumber::SubscriptOutOfRange, ErrorOf([&] { list.List(-1); }));
    EXPECT_EQ("1", list.List(0));
}

TEST_F(SelectAll, AMoveAsFarAsADragSelectsAnew) {
    field.SetText("12345678901234567890");
    const int far = QApplication::startDragDistance();
    person.Press(field, QPoint(12, field.height() / 2));
    person.MoveTo(field, QPoint(12 + far - 1, field.height() / 2));
    EXPECT_EQ("12345678901234567890", field.selectedText());
    person.MoveTo(field, QPoint(12 + far, field.height() / 2));
    EXPECT_NE("12345678901234567890", field.selectedText());
    person.Release();
}

TEST_F(FullBox, KeysThatTypeNothingStillWorkInIt) {
    Paste(QString(32767, 'x'));
    person.Key(Qt::Key_A, Qt::ControlModifier);
    person.Key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text().size(), 32767);
    person.Key(Qt::Key_End, Qt::ControlModifier);
    EXPECT_EQ(box.textCursor().position(), 32767);
    // A letter typed with the right Alt key comes with these two.
    QKeyEvent letter(QEvent::KeyPress, Qt::Key_E, Qt::ControlModifier | Qt::AltModifier, "e");
    QApplication::sendEvent(&box, &letter);
    EXPECT_TRUE(box.Text() == std::string(32767, 'x'));
    person.Key(Qt::Key_Backspace);
    Paste(QString::fromUtf8("\xF0\x9F\x8E\xB1"));  // one character of two halves, for which one place is free
    EXPECT_TRUE(box.Text() == std::string(32766, 'x'));
    QApplication::sendEvent(&box, &letter);
    EXPECT_TRUE(box.Text() == std::string(32766, 'x') + "e");
}

TEST_F(FullBox, SelectedLinesMakeRoomForAsManyOthers) {
    QString lines;
    for (int i = 0; i < 20'000; ++i) lines += "a\n";
    Paste(lines);
    person.Key(Qt::Key_A, Qt::ControlModifier);
    Paste(lines.replace('a', 'b'));
    EXPECT_EQ(32767u, box.Text().size());
}

}  // namespace
}  // namespace sorvane::test

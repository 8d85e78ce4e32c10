// KeyPress: what is a key press, and what a refusal does.
#include <QCoreApplication>
#include <QInputMethodEvent>

#include "Fixture.h"
#include "forms/ComboBox.h"
#include "forms/MessageBoxes.h"
#include "forms/MultiLineBox.h"
#include "forms/TextBox.h"

namespace sorvane::test {
namespace {

using namespace forms;

class Fields : public LoggingWindow {
  public:
    Fields() {
        LayOut(txtOne, txtMany, cboText, cmdOk);
        SetFirstFocus(txtOne);
        const auto note = [this](KeyPress& key) { keys.push_back(key.KeyAscii); };
        txtOne.OnKeyPress(note);
        txtMany.OnKeyPress(note);
        cboText.OnKeyPress(note);
    }
    TextBox txtOne{"txtOne"};
    MultiLineBox txtMany{"txtMany"};
    ComboBox cboText{"cboText"};
    CommandButton cmdOk{"cmdOk", "&Ok"};
    std::vector<int> keys;
};

class Keys : public testing::Test {
  protected:
    Fields window;
    Person person;
    void SetUp() override { Open(window); }
    void RefuseLetters() {
        window.txtOne.OnKeyPress([this](KeyPress& key) {
            window.keys.push_back(key.KeyAscii);
            if (key.KeyAscii >= 'A') key.Swallow();
        });
    }
};

TEST_F(Keys, CharactersBackspaceAndEnterAreKeyPresses) {
    person.Type("a7.");
    person.Key(Qt::Key_Backspace);
    person.Enter();
    person.Key(Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_EQ((std::vector<int>{'a', '7', '.', 8, 13, 13}), window.keys);
    EXPECT_EQ("a7", window.txtOne.Text());
}

TEST_F(Keys, ArrowsTabDeleteEscapeAndShortcutsAreNone) {
    window.txtOne.SetText("12");
    for (const auto key : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Home, Qt::Key_End, Qt::Key_Delete,
                           Qt::Key_Escape, Qt::Key_F5, Qt::Key_Up})
        person.Key(key);
    person.Key(Qt::Key_A, Qt::ControlModifier);
    person.Key(Qt::Key_C, Qt::ControlModifier);
    person.Key(Qt::Key_V, Qt::ControlModifier);
    person.Tab();
    EXPECT_EQ((std::vector<int>{}), window.keys);
}

TEST_F(Keys, RefusedKeyNeverReachesTheField) {
    RefuseLetters();
    person.Type("1a2");
    EXPECT_EQ("12", window.txtOne.Text());
}

TEST_F(Keys, RefusalMayEmptyTheFieldAndShowABox) {
    window.txtOne.SetText("12");
    window.txtOne.OnKeyPress([&](KeyPress& key) {
        MessageBoxes().MsgBox("Please enter a valid number.", BoxStyle::Exclamation, "Error!");
        window.txtOne.SetText("");
        window.txtOne.SetCaret(0);
        key.Swallow();
        window.txtOne.SetFocus();
    });
    person.Expect("Error!", "Please enter a valid number.", Answer::Ok, BoxStyle::Exclamation);
    person.Type("x");
    EXPECT_EQ("", window.txtOne.Text());
    EXPECT_TRUE(window.txtOne.HasFocus());
}

TEST_F(Keys, FailingHandlerLetsTheKeyThrough) {
    window.txtOne.OnKeyPress([](KeyPress&) { Raise(ErrorNumber::Overflow); });
    person.Expect("Sorvane", "Run-time error '6':\n\nOverflow", Answer::Ok, BoxStyle::Stop);
    person.Type("x");
    EXPECT_EQ("x", window.txtOne.Text());
}

TEST_F(Keys, CommittedTextComesCharacterByCharacter) {
    RefuseLetters();
    int changes = 0;
    window.txtOne.OnChange([&] { ++changes; });
    person.Commit("1b2c3");
    EXPECT_EQ((std::vector<int>{'1', 'b', '2', 'c', '3'}), window.keys);
    EXPECT_EQ("123", window.txtOne.Text());
    EXPECT_EQ(3, changes);
}

TEST_F(Keys, CommittedTextReplacesWhatIsSelected) {
    window.txtOne.SetText("99");
    window.txtOne.SelectAll();
    person.Commit("12");
    EXPECT_EQ("12", window.txtOne.Text());
}

TEST_F(Keys, CommittedTextThatReplacesEarlierTextReplacesItOnce) {
    window.txtOne.SetText("12345");
    QInputMethodEvent event;
    event.setCommitString("67", -3, 2);
    QCoreApplication::sendEvent(&window.txtOne, &event);
    EXPECT_EQ("12675", window.txtOne.Text());
}

TEST_F(Keys, CommittedTextBeyondAsciiIsOneKeyPressACharacter) {
    person.Commit("é\U0001F3B1");
    EXPECT_EQ((std::vector<int>{0xE9, 0x1F3B1}), window.keys);
    EXPECT_EQ("é\U0001F3B1", window.txtOne.Text());
}

TEST_F(Keys, AltAndALetterThatIsNoAccessKeyTypesNothing) {
    person.AccessKey('k');
    EXPECT_EQ("", window.txtOne.Text());
    EXPECT_EQ((std::vector<int>{}), window.keys);
}

TEST_F(Keys, EnterMovesTheFocusWithoutClickingTheButtonThatGetsIt) {
    window.txtOne.OnKeyPress([&](KeyPress& key) {
        if (key.KeyAscii == 13) window.cmdOk.SetFocus();
    });
    window.cmdOk.OnClick([&] { window.Write("Ok"); });
    person.Enter();
    EXPECT_TRUE(window.cmdOk.HasFocus());
    EXPECT_EQ(Log{}, window.log);
    person.Enter();
    EXPECT_EQ(Log{"Ok"}, window.log);
}

TEST_F(Keys, FieldOfSeveralLinesAndComboBoxFilterAlike) {
    window.txtMany.SetFocus();
    person.Type("a");
    person.Enter();
    person.Type("b");
    window.cboText.SetFocus();
    person.Type("5");
    person.Key(Qt::Key_Backspace);
    person.Commit("6");
    EXPECT_EQ((std::vector<int>{'a', 13, 'b', '5', 8, '6'}), window.keys);
    EXPECT_EQ("a\r\nb", window.txtMany.Text());
    EXPECT_EQ("6", window.cboText.Text());
}

TEST_F(Keys, RefusedKeyNeverReachesAComboBoxEither) {
    window.cboText.OnKeyPress([](KeyPress& key) { key.Swallow(); });
    window.cboText.SetFocus();
    person.Type("5");
    person.Commit("6");
    EXPECT_EQ("", window.cboText.Text());
}

TEST_F(Keys, TabLeavesTheFieldOfSeveralLines) {
    window.txtMany.SetFocus();
    person.Tab();
    EXPECT_TRUE(window.cboText.HasFocus());
    EXPECT_EQ("", window.txtMany.Text());
}

}  // namespace
}  // namespace sorvane::test

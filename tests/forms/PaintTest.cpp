// How marks, edges, tabs and balls are drawn: pictures of characters, each of which stands for two pixels by
// four.
#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>
#include <functional>
#include <string>
#include <string_view>

#include "Fixture.h"
#include "forms/NumberBall.h"
#include "support/Palettes.h"

namespace sorvane::test {
namespace {

using namespace forms;

constexpr int Wide = 2, High = 4;  // pixels of a character

// The darker a character looks, the more its pixels differ from the ground.
std::string InCharacters(const QImage& picture, const QColor& ground) {
    constexpr std::string_view Inks = " .:+#";
    std::string text = "\n";
    for (int top = 0; top + High <= picture.height(); top += High) {
        std::string line;
        for (int left = 0; left + Wide <= picture.width(); left += Wide) {
            int ink = 0;
            for (int i = 0; i < Wide * High; ++i) {
                const QColor pixel = picture.pixelColor(left + i % Wide, top + i / Wide);
                ink += std::abs(pixel.red() - ground.red()) + std::abs(pixel.green() - ground.green()) +
                       std::abs(pixel.blue() - ground.blue());
            }
            constexpr int Black = 3 * 255 * Wide * High;
            std::size_t level = 0;
            for (const double share : {0.01, 0.06, 0.2, 0.45}) level += ink > share * Black ? 1 : 0;
            line += Inks[level];
        }
        text += line + "|\n";
    }
    return text;
}

// Edges with nothing in them.
constexpr std::string_view ThickEdge = R"(
++++++++++|
#        #|
#        #|
#        #|
++++++++++|
)";
constexpr std::string_view ThinEdge = R"(
::::::::::|
+        +|
+        +|
+        +|
::::::::::|
)";

class Paint : public ::testing::Test {
  protected:
    // What the program's style draws there, in a window of the light palette.
    static std::string Drawn(QSize size, const std::function<void(QPainter&)>& draw) {
        QImage picture(size, QImage::Format_RGB32);
        const QColor ground = LightPalette().color(QPalette::Window);
        picture.fill(ground);
        QPainter painter(&picture);
        draw(painter);
        painter.end();
        return InCharacters(picture, ground);
    }
    static std::string Primitive(QStyle::PrimitiveElement element, QStyle::State state,
                                 QSize size = {20, 20}) {
        return Drawn(size, [&](QPainter& painter) {
            QStyleOption option;
            Prepare(option, state, size);
            QApplication::style()->drawPrimitive(element, &option, &painter);
        });
    }
    static std::string Tab(QStyle::State state) {
        const QSize size(36, 24);
        return Drawn(size, [&](QPainter& painter) {
            QStyleOptionTab option;
            Prepare(option, state, size);
            QApplication::style()->drawControl(QStyle::CE_TabBarTabShape, &option, &painter);
        });
    }
    static void Prepare(QStyleOption& option, QStyle::State state, QSize size) {
        option.palette = LightPalette();
        QApplication::style()->polish(option.palette);
        option.state = state;
        option.rect = QRect(QPoint(), size);
    }
    static constexpr auto Enabled = QStyle::State_Enabled;
};

TEST_F(Paint, ABoxToBeTickedIsEmptyThenFilledWithALightTick) {
    EXPECT_EQ(Primitive(QStyle::PE_IndicatorCheckBox, Enabled | QStyle::State_Off), R"(
++++++++++|
+::::::::+|
+::::::::+|
+::::::::+|
++++++++++|
)");
    EXPECT_EQ(Primitive(QStyle::PE_IndicatorCheckBox, Enabled | QStyle::State_On), R"(
+########+|
######+:+#|
#++++::+##|
##+::+####|
+########+|
)");
    EXPECT_EQ(Primitive(QStyle::PE_IndicatorCheckBox, QStyle::State_Off), R"(
+::::::::+|
+        +|
+        +|
+        +|
+::::::::+|
)");
    EXPECT_EQ(Primitive(QStyle::PE_IndicatorCheckBox, QStyle::State_On), R"(
+::::::::+|
+     +#:+|
+:#+:##: +|
+ +##+   +|
+::::::::+|
)");
}

TEST_F(Paint, AnOptionIsARingThenADotInAFilledRing) {
    EXPECT_EQ(Primitive(QStyle::PE_IndicatorRadioButton, Enabled | QStyle::State_Off), R"(
 :++++++: |
+::::::::+|
+::::::::+|
+::::::::+|
 :++++++: |
)");
    EXPECT_EQ(Primitive(QStyle::PE_IndicatorRadioButton, Enabled | QStyle::State_On), R"(
 :++##++: |
+##++++##+|
###::::###|
+##++++##+|
 :++##++: |
)");
}

TEST_F(Paint, AButtonDarkensUnderTheMouseAndMoreWhilePressedUnlessItIsDisabled) {
    EXPECT_EQ(Primitive(QStyle::PE_PanelButtonCommand, Enabled), ThinEdge);
    EXPECT_EQ(Primitive(QStyle::PE_PanelButtonCommand, Enabled | QStyle::State_MouseOver), R"(
::::::::::|
+........+|
+........+|
+........+|
::::::::::|
)");
    const std::string pressed = Primitive(QStyle::PE_PanelButtonCommand, Enabled | QStyle::State_Sunken);
    EXPECT_EQ(pressed, R"(
::++++++::|
+::::::::+|
+::::::::+|
+::::::::+|
::++++++::|
)");
    EXPECT_EQ(Primitive(QStyle::PE_PanelButtonCommand, Enabled | QStyle::State_On), pressed);
    const std::string disabled = Primitive(QStyle::PE_PanelButtonCommand, {});
    EXPECT_EQ(disabled, ThinEdge);
    EXPECT_EQ(Primitive(QStyle::PE_PanelButtonCommand, QStyle::State_Sunken), disabled);
    EXPECT_EQ(Primitive(QStyle::PE_PanelButtonCommand, QStyle::State_MouseOver), disabled);
}

TEST_F(Paint, AFieldHasAThinEdgeAndAThickOneWithTheFocus) {
    EXPECT_EQ(Primitive(QStyle::PE_FrameLineEdit, Enabled), ThinEdge);
    EXPECT_EQ(Primitive(QStyle::PE_FrameLineEdit, Enabled | QStyle::State_HasFocus), ThickEdge);
    EXPECT_EQ(Primitive(QStyle::PE_FrameLineEdit, QStyle::State_HasFocus), ThinEdge);
    EXPECT_EQ(Primitive(QStyle::PE_FrameFocusRect, Enabled), ThickEdge);
}

TEST_F(Paint, TheTabInFrontBearsABarAndTheOthersAreLowerAndDarker) {
    EXPECT_EQ(Tab(Enabled | QStyle::State_Selected), R"(
++++++++++++++++++|
:................:|
:................:|
:................:|
:................:|
:................:|
)");
    EXPECT_EQ(Tab(Enabled), R"(
::::::::::::::::::|
::::::::::::::::::|
::::::::::::::::::|
::::::::::::::::::|
::::::::::::::::::|
+::::::::::::::::+|
)");
    EXPECT_EQ(Tab(Enabled | QStyle::State_MouseOver), R"(
::::::::::::::::::|
:................:|
:................:|
:................:|
:................:|
+::::::::::::::::+|
)");
}

class BallPaint : public Paint {
  protected:
    BallPaint() {
        window.setPalette(LightPalette());
        window.LayOut(other, ball);
        Open(window);
        ball.setFixedSize(48, 48);
        Person::Settle();
    }
    std::string Look() {
        QImage picture(ball.size(), QImage::Format_RGB32);
        const QColor ground = LightPalette().color(QPalette::Window);
        picture.fill(ground);
        ball.render(&picture, {}, {}, QWidget::DrawChildren);
        return InCharacters(picture, ground);
    }

    LoggingWindow window;
    CommandButton other{"cmdOther", "Other"};
    NumberBall ball{"chkNumb(0)", " "};
};

TEST_F(BallPaint, ABallIsARingThenFilledWithATickBelowItsNumber) {
    EXPECT_EQ(Look(), R"(
                        |
      .:++++++++:.      |
    :++::::::::::++:    |
   :+::::::::::::::+:   |
  :+::::::::::::::::+:  |
  +::::::::::::::::::+  |
  +::::::::::::::::::+  |
  :+::::::::::::::::+:  |
   :+::::::::::::::+:   |
    :++::::::::::++:    |
      .:++++++++:.      |
                        |
)");
    ball.SetValue(1);
    EXPECT_EQ(Look(), R"(
                        |
      .:++++++++:.      |
    :+############+:    |
   :################:   |
  :##################:  |
  +##################+  |
  +##################+  |
  :##########+++#####:  |
   :####+:++::+#####:   |
    :+####+++#####+:    |
      .:++++++++:.      |
                        |
)");
    ball.SetFocus();
    EXPECT_EQ(Look(), R"(
      :++++++++++:      |
   :++++++++++++++++:   |
  ++++############++++  |
 +++################+++ |
+#:##################:#+|
+++##################+++|
+++##################+++|
+#:##########+++#####:#+|
 +++####+:++::+#####+++ |
  ++++####+++#####++++  |
   :++++++++++++++++:   |
      :++++++++++:      |
)");
    other.SetFocus();
    ball.SetEnabled(false);
    EXPECT_EQ(Look(), R"(
                        |
      ..++:+::+::.      |
    .:+::::::::::+::    |
   :+::::::::::::::+:   |
  :+::::::::::::::::+:  |
  :::::::::::::::::::+  |
  :::::::::::::::::::+  |
  :+::::::::::++::::+:  |
   :+:::+#+++#+::::+:   |
    .:+:::+++::::+::    |
      ..++:++:+::.      |
                        |
)");
    ball.SetValue(0);
    EXPECT_EQ(Look(), R"(
                        |
      ..+::+::+::.      |
    .:+.        ::::    |
   :+.            .::   |
  :+                +:  |
  :.                :+  |
  :.                :+  |
  :+                +:  |
   :+.            .+.   |
    .:+.        :+::    |
      ..+:.+::+::.      |
                        |
)");
}

TEST_F(BallPaint, ItsRingIsThickerWhileItIsPressed) {
    ball.setDown(true);
    EXPECT_EQ(Look(), R"(
          ....          |
      :++++++++++:      |
    :++::::::::::++:    |
  .++::::::::::::::++.  |
  ++::::::::::::::::++  |
 .#+::::::::::::::::+#. |
 .#+::::::::::::::::+#. |
  ++::::::::::::::::++  |
  .++::::::::::::::++.  |
    :++::::::::::++:    |
      :++++++++++:      |
          ....          |
)");
}

}  // namespace
}  // namespace sorvane::test

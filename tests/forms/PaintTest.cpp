// How marks, edges, tabs and balls are drawn: pictures of characters, each of which stands for two pixels by
// four.
#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QScrollArea>
#include <QStyle>
#include <QStyleFactory>
#include <QStyleOption>
#include <algorithm>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "Fixture.h"
#include "forms/LabelFrame.h"
#include "forms/Look.h"
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
    static QImage Picture(QSize size, const std::function<void(QPainter&)>& draw) {
        QImage picture(size, QImage::Format_RGB32);
        picture.fill(Ground());
        QPainter painter(&picture);
        draw(painter);
        // Whoever goes on with the painter finds it as it was.
        EXPECT_FALSE(painter.testRenderHint(QPainter::Antialiasing));
        EXPECT_EQ(painter.pen().style(), Qt::SolidLine);
        EXPECT_EQ(painter.brush().style(), Qt::NoBrush);
        EXPECT_FALSE(painter.font().bold());
        painter.end();
        return picture;
    }
    static QColor Ground() { return LightPalette().color(QPalette::Window); }
    static std::string Drawn(QSize size, const std::function<void(QPainter&)>& draw) {
        return InCharacters(Picture(size, draw), Ground());
    }
    // The pixels of a line from there on to the edge: how many of each colour.
    static std::string Pixels(const QImage& picture, QPoint from, QPoint step) {
        std::string text;
        int run = 0;
        for (QPoint at = from; picture.rect().contains(at); at += step) {
            ++run;
            const QColor colour = picture.pixelColor(at);
            if (picture.rect().contains(at + step) && picture.pixelColor(at + step) == colour) continue;
            text += (text.empty() ? "" : ", ") + std::to_string(run) + " " + colour.name().toStdString();
            run = 0;
        }
        return text;
    }
    static std::string Down(const QImage& picture, int x) { return Pixels(picture, {x, 0}, {0, 1}); }
    static std::string Across(const QImage& picture, int y) { return Pixels(picture, {0, y}, {1, 0}); }
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

TEST_F(Paint, AnOptionOrABoxThatIsDisabledIsPaleAndOneHalfTickedLooksTicked) {
    EXPECT_EQ(Primitive(QStyle::PE_IndicatorRadioButton, QStyle::State_Off), R"(
 :::::::: |
+:      :+|
+        +|
+:      :+|
 :::::::: |
)");
    EXPECT_EQ(Primitive(QStyle::PE_IndicatorRadioButton, QStyle::State_On), R"(
 :::::::: |
+: :++: :+|
+  ####  +|
+: :++: :+|
 :::::::: |
)");
    for (const auto mark : {QStyle::PE_IndicatorCheckBox, QStyle::PE_IndicatorRadioButton})
        EXPECT_EQ(Primitive(mark, Enabled | QStyle::State_NoChange),
                  Primitive(mark, Enabled | QStyle::State_On));
}

TEST_F(Paint, LinesOfATabToThePixel) {
    const auto tab = [](QStyle::State state) {
        return Picture({36, 24}, [&](QPainter& painter) {
            QStyleOptionTab option;
            Prepare(option, state, {36, 24});
            QApplication::style()->drawControl(QStyle::CE_TabBarTabShape, &option, &painter);
        });
    };
    const QImage front = tab(Enabled | QStyle::State_Selected), other = tab(Enabled);
    EXPECT_EQ(Down(front, 18), "3 #2976a7, 21 #f7f7f7");
    EXPECT_EQ(Across(front, 1), "36 #2976a7");
    EXPECT_EQ(Across(front, 12), "1 #9f9f9f, 34 #f7f7f7, 1 #9f9f9f");
    EXPECT_EQ(Down(other, 18), "2 #efefef, 1 #9f9f9f, 20 #dedede, 1 #9f9f9f");
    EXPECT_EQ(Across(other, 12), "1 #9f9f9f, 34 #dedede, 1 #9f9f9f");
    EXPECT_EQ(Down(tab(Enabled | QStyle::State_MouseOver), 18),
              "2 #efefef, 1 #9f9f9f, 20 #e8e8e8, 1 #9f9f9f");
}

TEST_F(Paint, FramesAndLinesThatDivideToThePixel) {
    const QSize size(60, 40);
    const QImage page = Picture(size, [&](QPainter& painter) {
        QStyleOption option;
        Prepare(option, Enabled, size);
        QApplication::style()->drawPrimitive(QStyle::PE_FrameTabWidget, &option, &painter);
    });
    EXPECT_EQ(Down(page, 30), "1 #9f9f9f, 38 #f7f7f7, 1 #9f9f9f");
    EXPECT_EQ(Across(page, 20), "1 #9f9f9f, 58 #f7f7f7, 1 #9f9f9f");
    const QImage line = Picture(size, [&](QPainter& painter) {
        QStyleOptionFrame option;
        Prepare(option, Enabled, size);
        option.rect.adjust(3, 0, -5, 0);
        option.frameShape = QFrame::HLine;
        QApplication::style()->drawControl(QStyle::CE_ShapedFrame, &option, &painter);
    });
    EXPECT_EQ(Down(line, 30), "19 #efefef, 1 #7f7f7f, 20 #efefef");
    EXPECT_EQ(Across(line, 19), "3 #efefef, 52 #7f7f7f, 5 #efefef");
    const QImage entry = Picture(size, [&](QPainter& painter) {
        QStyleOptionMenuItem option;
        Prepare(option, Enabled, size);
        option.rect.adjust(3, 0, -5, 0);
        option.menuItemType = QStyleOptionMenuItem::Separator;
        QApplication::style()->drawControl(QStyle::CE_MenuItem, &option, &painter);
    });
    EXPECT_EQ(entry, line);
}

TEST_F(Paint, TheTitleOfAGroupStandsOverItsFrame) {
    const QSize size(120, 60);
    QStyleOptionGroupBox option;
    Prepare(option, Enabled, size);
    option.fontMetrics = QFontMetrics(QApplication::font());
    option.subControls = QStyle::SC_GroupBoxFrame | QStyle::SC_GroupBoxLabel;
    option.text = "Tickets";
    const auto draw = [&](QPainter& painter) {
        painter.setFont(QApplication::font());
        QApplication::style()->drawComplexControl(QStyle::CC_GroupBox, &option, &painter);
    };
    const QImage titled = Picture(size, draw);
    option.text = "";
    const QImage untitled = Picture(size, draw);
    const int heading = option.fontMetrics.height() * 4 / 3;
    EXPECT_EQ(Down(untitled, 60), "20 #efefef, 1 #9f9f9f, 38 #efefef, 1 #9f9f9f");
    EXPECT_EQ(Across(untitled, 40), "1 #9f9f9f, 118 #efefef, 1 #9f9f9f");
    // What the title adds begins at the left, is in the heading, is as wide as heavy letters and is painted
    // once.
    QRect ink;
    for (int y = 0; y < size.height(); ++y)
        for (int x = 0; x < size.width(); ++x)
            if (titled.pixel(x, y) != untitled.pixel(x, y)) ink |= QRect(x, y, 1, 1);
    QFont heavy = QApplication::font();
    heavy.setBold(true);
    EXPECT_LE(ink.left(), 2);
    EXPECT_NEAR(ink.width(), QFontMetrics(heavy).horizontalAdvance("Tickets"), 4);
    EXPECT_LT(ink.bottom(), heading);
    EXPECT_NEAR(ink.center().y(), heading / 2, 3);
    QColor darkest = Qt::white;
    for (int y = 0; y < heading; ++y)
        for (int x = 0; x < size.width(); ++x)
            if (titled.pixelColor(x, y).lightness() < darkest.lightness()) darkest = titled.pixelColor(x, y);
    EXPECT_LT(darkest.lightness(), 60);
}

TEST_F(Paint, TheRingOfASelectedRowStandsOffItsGround) {
    const QSize size(20, 20);
    const auto ring = [&](QStyle::State state, const QColor& ground) {
        return Across(Picture(size,
                              [&](QPainter& painter) {
                                  QStyleOptionFocusRect option;
                                  Prepare(option, state, size);
                                  option.backgroundColor = ground;
                                  QApplication::style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option,
                                                                       &painter);
                              }),
                      10);
    };
    const QColor dark(40, 40, 40), light(239, 239, 239);
    EXPECT_EQ(ring(Enabled, dark), ring(Enabled, light));
    EXPECT_EQ(ring(Enabled, dark), "2 #2976a7, 16 #efefef, 2 #2976a7");
    EXPECT_EQ(ring(Enabled | QStyle::State_Selected, dark), "2 #2f76a3, 16 #efefef, 2 #2f76a3");
}

TEST_F(Paint, OnlyWhatScrollsHasTheEdgeOfAField) {
    const QSize size(20, 20);
    QScrollArea view;
    QFrame frame;
    const auto drawn = [&](const QWidget& widget) {
        return Drawn(size, [&](QPainter& painter) {
            QStyleOptionFrame option;
            Prepare(option, Enabled, size);
            QApplication::style()->drawPrimitive(QStyle::PE_Frame, &option, &painter, &widget);
        });
    };
    EXPECT_EQ(drawn(view), ThinEdge);
    EXPECT_NE(drawn(frame), ThinEdge);
}

TEST_F(Paint, AListThatOpensHasTheEdgeOfAField) {
    const QSize size(60, 40);
    const auto drawn = [&](QStyle::State state) {
        return Picture(size, [&](QPainter& painter) {
            QStyleOptionComboBox option;
            Prepare(option, state, size);
            option.subControls = QStyle::SC_ComboBoxFrame;
            QApplication::style()->drawComplexControl(QStyle::CC_ComboBox, &option, &painter);
        });
    };
    EXPECT_EQ(drawn(Enabled).pixelColor(0, 20).name(), "#717171");
    EXPECT_EQ(drawn(Enabled | QStyle::State_HasFocus).pixelColor(1, 20).name(), "#2976a7");
}

TEST(StyleSizes, GrowWithTheFont) {
    const QStyle& style = *QApplication::style();
    const std::unique_ptr<QStyle> plain(QStyleFactory::create("Fusion"));
    QWidget widget;
    QScrollArea view;
    QFont font = widget.font();
    font.setPixelSize(40);
    widget.setFont(font);
    const int height = widget.fontMetrics().height();
    for (const auto metric : {QStyle::PM_IndicatorWidth, QStyle::PM_IndicatorHeight,
                              QStyle::PM_ExclusiveIndicatorWidth, QStyle::PM_ExclusiveIndicatorHeight}) {
        EXPECT_EQ(style.pixelMetric(metric, nullptr, &widget), height * 9 / 10);
        EXPECT_EQ(style.pixelMetric(metric), plain->pixelMetric(metric));
    }
    EXPECT_EQ(style.pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, &view), 2);
    EXPECT_EQ(style.pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, &widget), 1);
    EXPECT_EQ(style.pixelMetric(QStyle::PM_TabBarBaseOverlap), 1);
    EXPECT_EQ(style.styleHint(QStyle::SH_EtchDisabledText), 0);
    EXPECT_EQ(style.styleHint(QStyle::SH_DialogButtonBox_ButtonsHaveIcons), 0);
    const int room = height / 4;
    const auto more = [&](QStyle::ContentsType type, QStyleOption&& option) {
        option.fontMetrics = widget.fontMetrics();
        const QSize size(200, 60);
        return style.sizeFromContents(type, &option, size, &widget) -
               plain->sizeFromContents(type, &option, size, &widget);
    };
    EXPECT_EQ(more(QStyle::CT_PushButton, QStyleOptionButton()), QSize(room, room));
    EXPECT_EQ(more(QStyle::CT_LineEdit, QStyleOptionFrame()), QSize(0, room));
    EXPECT_EQ(more(QStyle::CT_ComboBox, QStyleOptionComboBox()), QSize(0, room));
    EXPECT_EQ(more(QStyle::CT_ProgressBar, QStyleOptionProgressBar()), QSize(0, 0));
}

TEST(WinnersMark, IsAStarInTheColourOfTheAccentAndOnASelectedRowInThatOfTheText) {
    const QIcon star = forms::Look::Winner(LightPalette(), 40);
    EXPECT_EQ(star.availableSizes(), QList<QSize>{QSize(160, 160)});
    const auto drawn = [&](QIcon::Mode mode, const QColor& ground) {
        QImage picture(40, 40, QImage::Format_RGB32);
        picture.fill(ground);
        QPainter painter(&picture);
        painter.drawPixmap(QRect(0, 0, 40, 40), star.pixmap(QSize(160, 160), mode));
        painter.end();
        return InCharacters(picture, ground);
    };
    EXPECT_EQ(drawn(QIcon::Normal, Qt::white), R"(
         ::         |
         ##.        |
        +##+        |
 :++++++####+++++++ |
  :+############+:  |
     +########+.    |
     :########:     |
     +##+::+###     |
    :+:      :+:    |
                    |
)");
    EXPECT_EQ(drawn(QIcon::Selected, Qt::black), R"(
         :+         |
         ##:        |
        ####        |
 +################+ |
  :##############:  |
     +########+.    |
     +########+     |
     ####+:####     |
    +#+      :#+    |
                    |
)");
}

TEST_F(BallPaint, OneThatHadToShrinkHasNoTick) {
    const int smallest = forms::Look::SmallestBall(ball), whole = forms::Look::BallSize(ball);
    const auto ticks = [&](int side) {
        ball.setFixedSize(side, side);
        Person::Settle();
        const QImage picture = ball.grab().toImage();
        const QColor ink = ball.palette().color(QPalette::HighlightedText);
        int found = 0;
        for (int y = 0; y < side; ++y)
            for (int x = side / 4; x < side * 3 / 4; ++x) found += picture.pixelColor(x, y) == ink;
        return found > 0;
    };
    ball.SetValue(1);
    EXPECT_FALSE(ticks(smallest));
    EXPECT_FALSE(ticks((smallest + whole) / 2));
    EXPECT_TRUE(ticks((smallest + whole) / 2 + 1));
    EXPECT_TRUE(ticks(whole));
}

TEST_F(BallPaint, TheNumberGrowsWithABallThatIsLargerThanItHasToBe) {
    ball.SetCaption("8");
    const auto height = [&](int side) {
        ball.setFixedSize(side, side);
        Person::Settle();
        const QImage picture = ball.grab().toImage();
        int top = side, bottom = 0;
        for (int y = side / 5; y < side * 4 / 5; ++y)
            for (int x = side / 3; x < side * 2 / 3; ++x)
                if (picture.pixelColor(x, y).lightness() < 128)
                    top = std::min(top, y), bottom = std::max(bottom, y);
        return bottom - top + 1;
    };
    const int whole = forms::Look::BallSize(ball), usual = height(whole);
    EXPECT_GT(usual, 5);
    EXPECT_EQ(height(whole - 6), usual);
    EXPECT_NEAR(height(2 * whole), 2 * usual, 2);
}

// The tab in front goes on into its page without a line; no tab is wider than its place.
TEST_F(Paint, WhatATabPaintsBesideItsPlace) {
    const auto tab = [](QStyle::State state) {
        return Picture({45, 40}, [&](QPainter& painter) {
            QStyleOptionTab option;
            Prepare(option, state, {36, 24});
            QApplication::style()->drawControl(QStyle::CE_TabBarTabShape, &option, &painter);
        });
    };
    const QImage front = tab(Enabled | QStyle::State_Selected), other = tab(Enabled);
    EXPECT_EQ(Down(front, 18), "3 #2976a7, 26 #f7f7f7, 1 #9f9f9f, 10 #efefef");
    EXPECT_EQ(Across(front, 1), "36 #2976a7, 9 #efefef");
    EXPECT_EQ(Down(other, 18), "2 #efefef, 1 #9f9f9f, 20 #dedede, 1 #9f9f9f, 16 #efefef");
}

TEST_F(Paint, AListThatOpensHasAnArrowInABarThatScrollsNoEdge) {
    const QSize size(60, 40);
    const auto arrow = [&](QStyle::SubControls parts) {
        return Picture(size, [&](QPainter& painter) {
            QStyleOptionComboBox option;
            Prepare(option, Enabled, size);
            option.subControls = parts;
            QApplication::style()->drawComplexControl(QStyle::CC_ComboBox, &option, &painter);
        });
    };
    EXPECT_NE(arrow(QStyle::SC_ComboBoxFrame), arrow(QStyle::SC_ComboBoxFrame | QStyle::SC_ComboBoxArrow));
    const std::unique_ptr<QStyle> plain(QStyleFactory::create("Fusion"));
    const auto bar = [&](const QStyle& style) {
        return Picture({60, 16}, [&](QPainter& painter) {
            QStyleOptionSlider option;
            Prepare(option, Enabled | QStyle::State_Horizontal, {60, 16});
            option.orientation = Qt::Horizontal;
            option.subControls = QStyle::SC_All;
            option.maximum = 10;
            option.pageStep = 5;
            style.drawComplexControl(QStyle::CC_ScrollBar, &option, &painter);
        });
    };
    EXPECT_EQ(bar(*QApplication::style()), bar(*plain));
}

TEST_F(Paint, TheTitleOfAGroupStandsInTheMiddleOfItsHeading) {
    const QSize size(120, 60);
    QStyleOptionGroupBox option;
    Prepare(option, Enabled, size);
    option.fontMetrics = QFontMetrics(QApplication::font());
    option.subControls = QStyle::SC_GroupBoxLabel;
    option.text = "Tickets";
    const int heading = option.fontMetrics.height() * 4 / 3;
    const QImage drawn = Picture(size, [&](QPainter& painter) {
        painter.setFont(QApplication::font());
        QApplication::style()->drawComplexControl(QStyle::CC_GroupBox, &option, &painter);
    });
    QImage expected(size, QImage::Format_RGB32);
    expected.fill(Ground());
    QPainter painter(&expected);
    QFont heavy = QApplication::font();
    heavy.setBold(true);
    painter.setFont(heavy);
    painter.setPen(option.palette.color(QPalette::WindowText));
    painter.drawText(QRect(0, 0, size.width(), heading), Qt::AlignLeft | Qt::AlignVCenter, "Tickets");
    painter.end();
    const auto top = [](const QImage& picture) {
        for (int y = 0; y < picture.height(); ++y)
            for (int x = 0; x < picture.width(); ++x)
                if (picture.pixelColor(x, y) != Ground()) return y;
        return -1;
    };
    EXPECT_GT(top(drawn), 0);
    EXPECT_EQ(top(drawn), top(expected));
}

TEST(StyleSizes, AGroupIsAsWideAsItsHeavyTitle) {
    LabelFrame frame("fraTickets", std::string(60, 'n'));
    QFont heavy = frame.font();
    heavy.setBold(true);
    const int title = QFontMetrics(heavy).horizontalAdvance(QString(60, 'n'));
    EXPECT_GE(frame.minimumSizeHint().width(), title);
    EXPECT_LT(frame.minimumSizeHint().width(), title + 50);
}

TEST_F(BallPaint, ATickedNumberIsInTheInkOfTheBallAboveItsTick) {
    ball.SetCaption("88");
    ball.SetValue(1);
    for (const int side : {forms::Look::SmallestBall(ball), 2 * forms::Look::BallSize(ball)}) {
        ball.setFixedSize(side, side);
        Person::Settle();
        const QImage picture = ball.grab().toImage();
        int light = 0;
        for (int y = side / 4; y < side / 2; ++y)
            for (int x = side / 4; x < side * 3 / 4; ++x) light += picture.pixelColor(x, y).lightness() > 200;
        EXPECT_GT(light, 3) << side;
    }
}

}  // namespace
}  // namespace sorvane::test

// The colours that are made of a palette, as they come out in palettes of every kind.
#include <QPalette>
#include <initializer_list>
#include <string>
#include <string_view>

#include "Fixture.h"
#include "forms/Look.h"
#include "support/Palettes.h"

namespace sorvane::test {
namespace {

using namespace forms;
using P = QPalette;

std::string Names(std::initializer_list<QColor> colours) {
    std::string names;
    for (const QColor& colour : colours) names += " " + colour.name().toStdString();
    return names + "\n";
}

std::string Ball(const Look::Ball& ball) { return Names({ball.paper, ball.ink, ball.ring}); }

// What is drawn in this palette.
std::string Drawn(const QPalette& palette) {
    std::string told = "\n";
    told += "edge" + Names({Look::Edge(palette, true), Look::Edge(palette, false)});
    told += "page, frame" + Names({Look::Page(palette), Look::Frame(palette)});
    told += "shades" + Names({Look::Shade(palette, 0.05), Look::Shade(palette, 0.5)});
    told += "ring, line" + Names({Look::FocusRing(palette), Look::Separator(palette)});
    told += "hint, weekend" + Names({Look::Hint(palette), Look::Weekend(palette)});
    told += "series" + Names({Look::Series(palette, 0), Look::Series(palette, 1), Look::Series(palette, 2)});
    told += "more" + Names({Look::Series(palette, 3), Look::Series(palette, 4), Look::Series(palette, 5)});
    for (const bool enabled : {true, false})
        for (const bool ticked : {false, true}) {
            told += "ball" + Ball(Look::BallColours(palette, ticked, enabled));
            told += "mark" + Ball(Look::MarkColours(palette, ticked, enabled));
        }
    return told;
}

// The texts of a legible palette: enabled, in a window behind, and disabled.
std::string Texts(const QPalette& legible) {
    std::string told = "\n";
    for (const auto role : {P::WindowText, P::Text, P::ButtonText, P::PlaceholderText, P::ToolTipText,
                            P::Link, P::LinkVisited, P::Highlight})
        told += Names({legible.color(P::Active, role), legible.color(P::Inactive, role),
                       legible.color(P::Disabled, role)});
    return told;
}

// Each role in each group has a colour of its own.
QPalette Motley() {
    QPalette palette;
    int number = 0;
    for (const auto group : {P::Active, P::Inactive, P::Disabled})
        for (const auto role :
             {P::Window, P::WindowText, P::Base, P::AlternateBase, P::Text, P::Button, P::ButtonText, P::Mid,
              P::Dark, P::Highlight, P::HighlightedText, P::PlaceholderText, P::Link, P::LinkVisited,
              P::ToolTipBase, P::ToolTipText}) {
            palette.setColor(group, role,
                             QColor::fromHsv(number * 47 % 360, 40 + number % 5 * 40, 250 - number % 3 * 60));
            ++number;
        }
    return palette;
}

TEST(Colours, OfALightPalette) {
    EXPECT_EQ(Texts(Look::Legible(LightPalette())), R"(
 #000000 #000000 #696969
 #000000 #000000 #696969
 #000000 #000000 #696969
 #6b6b6b #6b6b6b #686868
 #000000 #000000 #707061
 #0000ff #0000ff #6060c6
 #bc00bc #bc00bc #915191
 #2a7bae #2a7bae #2a7bae
)");
    EXPECT_EQ(Drawn(Look::Legible(LightPalette())), R"(
edge #717171 #7f7f7f
page, frame #f7f7f7 #9f9f9f
shades #e3e3e3 #787878
ring, line #2976a7 #7f7f7f
hint, weekend #6b6b6b #eb0000
series #2a7bae #814b46 #2a4d46
more #ce70a0 #1c3420 #7a4681
ball #ffffff #000000 #777777
mark #ffffff #000000 #717171
ball #2a7bae #ffffff #777777
mark #2a7bae #ffffff #2a7bae
ball #efefef #696969 #7f7f7f
mark #efefef #000000 #7f7f7f
ball #b4ccdc #545454 #7f7f7f
mark #efefef #000000 #7f7f7f
)");
}

TEST(Colours, OfADarkPalette) {
    EXPECT_EQ(Texts(Look::Legible(DarkPalette())), R"(
 #ffffff #ffffff #999999
 #ffffff #ffffff #999999
 #ffffff #ffffff #a9a9a9
 #979797 #979797 #9b9b9b
 #ffffff #ffffff #a8a8a8
 #78b4ff #78b4ff #8398b3
 #ff33ff #ff33ff #c083c0
 #2572c0 #2572c0 #2572c0
)");
    EXPECT_EQ(Drawn(Look::Legible(DarkPalette())), R"(
edge #a7a7a7 #8d8d8d
page, frame #262626 #5b5b5b
shades #444444 #9d9d9d
ring, line #7dabd9 #7d7d7d
hint, weekend #979797 #ff3d3d
series #2572c0 #da9280 #59918c
more #e9b2c8 #bdeccb #da80da
ball #1e1e1e #ffffff #808080
mark #1e1e1e #ffffff #a7a7a7
ball #2572c0 #ffffff #808080
mark #2572c0 #ffffff #367ec5
ball #2d2d2d #999999 #7d7d7d
mark #2d2d2d #ffffff #8d8d8d
ball #2b4259 #aeaeae #7d7d7d
mark #2d2d2d #ffffff #8d8d8d
)");
}

TEST(Colours, OfAPaletteOfHighContrast) {
    EXPECT_EQ(Texts(Look::Legible(HighContrastPalette())), R"(
 #ffffff #ffffff #808080
 #ffffff #ffffff #808080
 #ffffff #ffffff #808080
 #7f7f7f #7f7f7f #7d7d7d
 #ffffff #ffffff #808080
 #ffff00 #ffff00 #808000
 #ff00ff #ff00ff #ad5cad
 #ffff00 #ffff00 #ffff00
)");
    EXPECT_EQ(Drawn(Look::Legible(HighContrastPalette())), R"(
edge #ffffff #ffffff
page, frame #000000 #ffffff
shades #0d0d0d #808080
ring, line #ffff00 #ffffff
hint, weekend #7f7f7f #ff0000
series #ffff00 #7691d0 #967056
more #6db7c0 #8a505b #80daad
ball #000000 #ffffff #ffffff
mark #000000 #ffffff #ffffff
ball #ffff00 #000000 #ffffff
mark #ffff00 #000000 #ffff00
ball #000000 #808080 #ffffff
mark #000000 #ffffff #ffffff
ball #4d4d00 #bdbdbd #ffffff
mark #000000 #ffffff #ffffff
)");
}

TEST(Colours, OfAPaletteWithAColourForEachRole) {
    EXPECT_EQ(Texts(Look::Legible(Motley())), R"(
 #040403 #353e21 #091407
 #020708 #383c43 #0e4331
 #fdf8ff #6a385f #1a151b
 #040505 #233d42 #0f4230
 #fad3dd #72584e #2f2b19
 #000000 #2d327a #0f4431
 #040308 #5d1a78 #0f4231
 #43460f #070806 #4b6d4f
)");
    EXPECT_EQ(Drawn(Motley()), R"(
edge #2c2b2b #3c270d
page, frame #adaa8c #be6593
shades #737288 #a88dbe
ring, line #2b2b2a #af5d87
hint, weekend #070a09 #140000
series #f0fa36 #000000 #000000
more #000000 #000000 #000000
ball #5f8245 #020708 #824630
mark #5f8245 #29aabe #2c2b2b
ball #43460f #a5bea0 #824630
mark #f0fa36 #a5bea0 #73781a
ball #fad3d3 #615982 #af5d87
mark #fad3d3 #beb182 #3c270d
ball #f7dfa4 #615982 #af5d87
mark #fad3d3 #beb182 #3c270d
)");
}

}  // namespace
}  // namespace sorvane::test

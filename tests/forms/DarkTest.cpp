// Dark colours where the desktop asks for them.
#include <QApplication>

#include "Fixture.h"
#include "forms/Application.h"
#include "forms/Label.h"
#include "forms/Look.h"
#include "support/Palettes.h"
#include "support/Stage.h"

namespace sorvane::test {
namespace {

using namespace forms;

class Dark : public ::testing::Test {
  public:
    ~Dark() override {
        application.PreferDark(false);
        SetDesktopPalette(LightPalette());
    }
    Application& application = static_cast<Application&>(*QCoreApplication::instance());
};

TEST_F(Dark, OpenWindowsBecomeDarkAndLightAgain) {
    LoggingWindow window;
    Label text("lblText", "Text");
    window.LayOut(text);
    Open(window);
    const QPalette before = window.palette();
    ASSERT_TRUE(Look::IsLight(before));
    const auto ground = [&] { return QColor(window.grab().toImage().pixel(2, 2)); };
    EXPECT_EQ(ground(), before.color(QPalette::Window));
    application.PreferDark(true);
    EXPECT_FALSE(Look::IsLight(QApplication::palette()));
    Person::Settle();
    EXPECT_FALSE(Look::IsLight(window.palette()));
    EXPECT_FALSE(Look::IsLight(text.palette()));
    EXPECT_LT(ground().lightness(), 80);
    application.PreferDark(true);
    Person::Settle();
    EXPECT_FALSE(Look::IsLight(window.palette()));
    application.PreferDark(false);
    Person::Settle();
    EXPECT_EQ(window.palette(), before);
    EXPECT_EQ(ground(), before.color(QPalette::Window));
}

TEST_F(Dark, EveryTextCanBeReadInIt) {
    application.PreferDark(true);
    ASSERT_FALSE(Look::IsLight(QApplication::palette()));
    const QPalette palette = QApplication::palette();
    EXPECT_EQ(palette, Look::Legible(palette));
    using P = QPalette;
    for (const auto group : {P::Active, P::Inactive, P::Disabled})
        for (const auto& [ink, paper] : {std::pair{P::WindowText, P::Window},
                                         {P::Text, P::Base},
                                         {P::ButtonText, P::Button},
                                         {P::Link, P::Base},
                                         {P::PlaceholderText, P::Base},
                                         {P::ToolTipText, P::ToolTipBase},
                                         {P::HighlightedText, P::Highlight}})
            EXPECT_GE(Look::Contrast(palette.color(group, ink), palette.color(group, paper)), 4.5)
                << group << " " << ink;
}

TEST_F(Dark, ItsColoursAreTheseAndTheAccentIsTheDesktops) {
    const QPalette light = LightPalette(), dark = Look::Dark(light);
    using P = QPalette;
    for (const auto& [role, colour] : {std::pair{P::Window, "#2e2e32"},
                                       {P::Button, "#3c3c41"},
                                       {P::Base, "#1e1e21"},
                                       {P::AlternateBase, "#26262a"},
                                       {P::ToolTipBase, "#3c3c41"},
                                       {P::WindowText, "#f0f0f0"},
                                       {P::Text, "#f0f0f0"},
                                       {P::ButtonText, "#f0f0f0"},
                                       {P::ToolTipText, "#f0f0f0"},
                                       {P::PlaceholderText, "#9c9c9d"}})
        EXPECT_EQ(dark.color(P::Active, role).name().toStdString(), colour) << role;
    for (const auto role : {P::WindowText, P::Text, P::ButtonText})
        EXPECT_EQ(dark.color(P::Disabled, role).name().toStdString(), "#8f8f91") << role;
    for (const auto role : {P::Link, P::LinkVisited, P::Highlight, P::HighlightedText})
        EXPECT_EQ(dark.color(P::Active, role), light.color(P::Active, role)) << role;
}

TEST_F(Dark, ADesktopThatIsDarkByItselfKeepsItsOwnColours) {
    SetDesktopPalette(DarkPalette());
    const QPalette own = QApplication::palette();
    application.PreferDark(true);
    EXPECT_EQ(QApplication::palette(), own);
    application.PreferDark(false);
    EXPECT_EQ(QApplication::palette(), own);
}

}  // namespace
}  // namespace sorvane::test

// Every text and every state can be told, in every palette: computed from the palettes, and measured in
// pictures of the controls.
#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QImage>
#include <QMenu>
#include <QRadioButton>
#include <QStyle>
#include <QStyleOptionButton>
#include <QTabBar>
#include <algorithm>
#include <map>
#include <optional>

#include "Fixture.h"
#include "forms/CheckBox.h"
#include "forms/ComboBox.h"
#include "forms/CommandButton.h"
#include "forms/DatePicker.h"
#include "forms/Label.h"
#include "forms/LabelFrame.h"
#include "forms/ListBox.h"
#include "forms/Look.h"
#include "forms/MultiLineBox.h"
#include "forms/NumberBall.h"
#include "forms/OptionButton.h"
#include "forms/Rule.h"
#include "forms/TabStrip.h"
#include "forms/TextBox.h"
#include "support/Palettes.h"
#include "support/Stage.h"

namespace sorvane::test {
namespace {

using namespace forms;

constexpr double Text = 4.5, Line = 3;
// What can't be used has a text this much paler at least.
constexpr double Paler = 0.8;

std::string NameOf(const ::testing::TestParamInfo<NamedPalette>& info) {
    return std::string(info.param.name);
}

// The application wears the palette, and texts are large enough that their strokes hold a whole pixel.
class ContrastTest : public ::testing::TestWithParam<NamedPalette> {
  protected:
    LoggingWindow window;

    void SetUp() override {
        SetDesktopPalette(GetParam().palette);
        QFont font = font_;
        font.setPointSize(20);
        QApplication::setFont(font);
    }
    void TearDown() override {
        SetDesktopPalette(LightPalette());
        QApplication::setFont(font_);
    }

    static QColor Colour(QPalette::ColorGroup group, QPalette::ColorRole role) {
        return QApplication::palette().color(group, role);
    }

  private:
    QFont font_ = QApplication::font();
};

struct Painted {
    QColor paper, ink;
    double Contrast() const { return Look::Contrast(paper, ink); }
};

// The colour that most of the picture has, and the one that stands off it most.
Painted Measured(QWidget& widget, QRect part) {
    const QImage image = widget.grab(part).toImage();
    std::map<QRgb, int> pixels;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) ++pixels[image.pixel(x, y)];
    Painted painted;
    painted.paper = std::max_element(pixels.begin(), pixels.end(), [](const auto& one, const auto& other) {
                        return one.second < other.second;
                    })->first;
    painted.ink = painted.paper;
    for (const auto& [colour, count] : pixels)
        if (Look::Contrast(painted.paper, colour) > painted.Contrast()) painted.ink = colour;
    return painted;
}

// Within its outline.
Painted Measured(QWidget& widget) { return Measured(widget, widget.rect().adjusted(5, 5, -5, -5)); }

TEST_P(ContrastTest, OfThePalettesTextsOnTheirGrounds) {
    using P = QPalette;
    const std::pair<P::ColorRole, P::ColorRole> pairs[] = {{P::WindowText, P::Window},
                                                           {P::WindowText, P::Base},
                                                           {P::Text, P::Base},
                                                           {P::Text, P::AlternateBase},
                                                           {P::ButtonText, P::Button},
                                                           {P::HighlightedText, P::Highlight},
                                                           {P::PlaceholderText, P::Base},
                                                           {P::PlaceholderText, P::Window},
                                                           {P::ToolTipText, P::ToolTipBase},
                                                           {P::Link, P::Base},
                                                           {P::LinkVisited, P::Base}};
    for (const auto group : {P::Active, P::Inactive, P::Disabled})
        for (const auto& [ink, paper] : pairs)
            EXPECT_GE(Look::Contrast(Colour(group, ink), Colour(group, paper)), Text)
                << "group " << group << ", " << ink << " on " << paper;
    for (const auto& [ink, paper] :
         {std::pair{P::WindowText, P::Window}, {P::Text, P::Base}, {P::ButtonText, P::Button}})
        EXPECT_LE(Look::Contrast(Colour(P::Disabled, ink), Colour(P::Disabled, paper)),
                  Paler * Look::Contrast(Colour(P::Active, ink), Colour(P::Active, paper)))
            << ink << " on " << paper;
}

TEST_P(ContrastTest, OfLinesOnWhatTheyDivide) {
    const QPalette palette = QApplication::palette();
    for (const auto role : {QPalette::Window, QPalette::Base, QPalette::Button})
        for (const bool enabled : {false, true}) {
            EXPECT_GE(Look::Contrast(Look::Edge(palette, enabled), palette.color(role)), Line) << role;
            EXPECT_GE(Look::Contrast(Look::FocusRing(palette), palette.color(role)), Line) << role;
        }
    // A button under the mouse, and pressed.
    for (const double share : {Look::Hovered, Look::Pressed}) {
        const QColor paper = Look::Shade(palette, share);
        EXPECT_GE(Look::Contrast(Look::FocusRing(palette), paper), Line) << share;
        EXPECT_GE(Look::Contrast(Look::Edge(palette, true), paper), Line) << share;
    }
    for (const bool ticked : {false, true})
        for (const bool enabled : {false, true}) {
            const Look::Ball mark = Look::MarkColours(palette, ticked, enabled);
            EXPECT_GE(Look::Contrast(mark.ring, palette.color(QPalette::Window)), Line) << ticked << enabled;
            EXPECT_GE(Look::Contrast(mark.ring, Look::Page(palette)), Line) << ticked << enabled;
            EXPECT_GE(Look::Contrast(mark.ink, mark.paper), Text) << ticked << enabled;
        }
    EXPECT_GE(Look::Contrast(Look::Series(palette, 0), palette.color(QPalette::Base)), Line);
    EXPECT_GE(Look::Contrast(Look::Series(palette, 1), palette.color(QPalette::Base)), Line);
    EXPECT_GE(Look::Contrast(Look::Hint(palette), palette.color(QPalette::Base)), Text);
}

TEST_P(ContrastTest, OfTextsAsTheyArePaintedEnabledAndDisabled) {
    Label label("lblDrawDate", "MMMMMM");
    TextBox field("txtDollars");
    field.SetText("888888");
    CommandButton button("cmdSave", "MMMMMM");
    CheckBox box("chkRegular", "MMMMMM");
    OptionButton option("optWheelType", "MMMMMM");
    ComboBox list("cboNumber", ComboBox::Style::ListOnly), editable("cboWager");
    for (ComboBox* combo : {&list, &editable}) combo->AddItem("888888");
    list.SetListIndex(0);
    editable.SetText("888888");
    DatePicker date("dtpEnterTickets");
    ListBox rows("lstNumbersPlayed");
    rows.AddItem("MMMMMMMMMMMMMMMMMMMM");
    MultiLineBox lines("txtReport");
    lines.SetText("MMMMMMMMMMMMMMMMMMMM");
    LabelFrame frame("fraTickets", "MMMMMM");
    CommandButton other("cmdExit", "Exit");
    window.LayOut(label, field, button, box, option, list, editable, date, rows, lines, frame, other);
    window.resize(500, 900);
    Open(window);
    other.SetFocus();
    Control* const controls[] = {&label,    &field, &button, &box,   &option, &list,
                                 &editable, &date,  &rows,   &lines, &frame};
    const auto measure = [&](Control& control) {
        QWidget& widget = control.Widget();
        if (&control == &rows || &control == &lines)
            return Measured(widget, QRect(8, 8, 200, widget.fontMetrics().height()));
        if (&control == &frame) return Measured(widget, QRect(0, 0, 100, widget.fontMetrics().height()));
        if (&control == &button) return Measured(widget);
        // Without the marks before and the arrows behind the text.
        const int mark = widget.fontMetrics().height() * 5 / 4;
        const bool ticked = &control == &box || &control == &option;
        return Measured(widget, QRect(ticked ? mark : 5, 5, mark * 2, widget.height() - 10));
    };
    for (Control* control : controls) {
        const Painted enabled = measure(*control);
        EXPECT_GE(enabled.Contrast(), Text) << control->Name();
        control->SetEnabled(false);
        const Painted disabled = measure(*control);
        EXPECT_GE(disabled.Contrast(), Text) << control->Name() << ", disabled";
        EXPECT_LE(disabled.Contrast(), Paler * enabled.Contrast()) << control->Name() << ", disabled";
    }
}

TEST_P(ContrastTest, OfWhatIsSelectedPressedHintedOrInATab) {
    TextBox field("txtDollars");
    field.SetText("888888888888888888888888888888");
    ListBox empty("lstMessage"), rows("lstNumbersPlayed");
    empty.SetHint("MMMMMM");
    for (ListBox* winners : {&rows}) winners->SetWinners([](int row, std::string_view) { return row == 0; });
    rows.AddItem("MMMMMMMMMMMMMMMMMMMM");
    rows.AddItem("MMMMMMMMMMMMMMMMMMMM");
    CommandButton button("cmdSave", "MMMMMM");
    TabStrip tabs("SSTab1");
    QWidget first, second;
    tabs.AddTab(first, "MMMMMM");
    tabs.AddTab(second, "WWWWWW");
    window.LayOut(field, empty, rows, button, tabs);
    window.resize(500, 900);
    Open(window);
    field.SetFocus();
    field.SelectAll();
    const Painted selected = Measured(field);
    EXPECT_GE(selected.Contrast(), Text);
    EXPECT_EQ(selected.paper.rgb(), Colour(QPalette::Active, QPalette::Highlight).rgb());
    EXPECT_GE(Measured(empty).Contrast(), Text);
    const int side = rows.fontMetrics().height(), height = rows.fontMetrics().height();
    const QRect star(4, 4, side, height), line(side + 12, 4, 200, height);
    EXPECT_GE(Measured(rows, star).Contrast(), Line);
    EXPECT_GE(Measured(rows, line).Contrast(), Text);
    rows.SetListIndex(0);
    EXPECT_GE(Measured(rows, star).Contrast(), Line);
    EXPECT_GE(Measured(rows, line).Contrast(), Text);
    button.setDown(true);
    EXPECT_GE(Measured(button).Contrast(), Text);
    for (int tab = 0; tab < 2; ++tab)
        EXPECT_GE(Measured(*tabs.tabBar(), tabs.tabBar()->tabRect(tab).adjusted(6, 6, -6, -4)).Contrast(),
                  Text)
            << tab;
}

TEST_P(ContrastTest, OfMenusWithTheirDeadEntries) {
    QMenu menu;
    QAction* live = menu.addAction("MMMMMM");
    QAction* dead = menu.addAction("WWWWWW");
    dead->setEnabled(false);
    const auto measured = [&](QAction* entry) {
        return Measured(menu, menu.actionGeometry(entry).adjusted(3, 3, -3, -3));
    };
    menu.ensurePolished();
    menu.resize(menu.sizeHint());
    EXPECT_GE(measured(live).Contrast(), Text);
    EXPECT_GE(measured(dead).Contrast(), Text);
    EXPECT_LE(measured(dead).Contrast(), Paler * measured(live).Contrast());
    menu.setActiveAction(live);
    EXPECT_GE(measured(live).Contrast(), Text);
}

TEST_P(ContrastTest, OfTheLinesThatDivideAMenuAndADialog) {
    QMenu menu;
    menu.addAction("MMMMMM");
    QAction* line = menu.addSeparator();
    menu.addAction("MMMMMM");
    menu.ensurePolished();
    menu.resize(menu.sizeHint());
    EXPECT_GE(Measured(menu, menu.actionGeometry(line).adjusted(3, 0, -3, 0)).Contrast(), Line);
    Rule rule("linRule");
    rule.resize(100, 9);
    EXPECT_GE(Measured(rule, rule.rect()).Contrast(), Line);
}

// Whether each side of the rectangle has an outline that stands off the colour outside of it.
void ExpectOutlined(QWidget& widget, const QRect& rect, const std::string& what) {
    const QImage image = widget.grab().toImage();
    const QPoint middle = rect.center();
    const auto seen = [&](QPoint from, QPoint step) {
        double most = 1;
        for (int i = 0; i < 3; ++i)
            most = std::max(most, Look::Contrast(QColor(image.pixel(from + i * step)),
                                                 QApplication::palette().color(QPalette::Window)));
        return most;
    };
    EXPECT_GE(seen({rect.left(), middle.y()}, {1, 0}), Line) << what << ", left";
    EXPECT_GE(seen({rect.right(), middle.y()}, {-1, 0}), Line) << what << ", right";
    EXPECT_GE(seen({middle.x(), rect.top()}, {0, 1}), Line) << what << ", top";
    EXPECT_GE(seen({middle.x(), rect.bottom()}, {0, -1}), Line) << what << ", bottom";
}

QRect MarkOf(const QAbstractButton& button, QStyle::SubElement element) {
    QStyleOptionButton option;
    option.initFrom(&button);
    return button.style()->subElementRect(element, &option, &button);
}

TEST_P(ContrastTest, OfOutlinesInEveryState) {
    CheckBox box("chkRegular", "Regular");
    OptionButton option("optWheelType", "Hot");
    NumberBall ball("chkNumb", "7");
    TextBox field("txtDollars");
    ComboBox list("cboNumber", ComboBox::Style::ListOnly), editable("cboWager");
    CommandButton button("cmdSave", "Save");
    ListBox rows("lstMessage");
    window.LayOut(box, option, ball, field, list, editable, button, rows);
    Open(window);
    for (const bool enabled : {true, false})
        for (const bool ticked : {false, true}) {
            const std::string state =
                std::string(enabled ? "enabled" : "disabled") + (ticked ? ", ticked" : "");
            box.SetValue(ticked);
            option.SetValue(ticked);
            for (Control* control :
                 std::initializer_list<Control*>{&box, &option, &field, &list, &editable, &button, &rows})
                control->SetEnabled(enabled);
            ExpectOutlined(box, MarkOf(box, QStyle::SE_CheckBoxIndicator), "box, " + state);
            ExpectOutlined(option, MarkOf(option, QStyle::SE_RadioButtonIndicator), "option, " + state);
            for (Control* control : std::initializer_list<Control*>{&field, &list, &editable, &button, &rows})
                ExpectOutlined(control->Widget(), control->Widget().rect(), control->Name() + ", " + state);
        }
}

// How many pixels say that the control has the focus.
int ChangedByFocus(QWidget& widget, Control& control, Control& other) {
    other.SetFocus();
    Person::Settle();
    const QImage before = widget.grab().toImage();
    control.SetFocus();
    Person::Settle();
    EXPECT_TRUE(control.HasFocus()) << control.Name();
    const QImage after = widget.grab().toImage();
    int changed = 0;
    for (int y = 0; y < before.height(); ++y)
        for (int x = 0; x < before.width(); ++x)
            if (Look::Contrast(QColor(before.pixel(x, y)), QColor(after.pixel(x, y))) >= Line) ++changed;
    return changed;
}

TEST_P(ContrastTest, OfTheFocusOnEveryKindOfControl) {
    CommandButton other("cmdExit", "Exit"), button("cmdSave", "Save");
    CheckBox box("chkRegular", "Regular");
    OptionButton option("optWheelType", "Hot");
    NumberBall ball("chkNumb", "7");
    TextBox field("txtDollars");
    ComboBox list("cboNumber", ComboBox::Style::ListOnly), editable("cboWager");
    DatePicker date("dtpEnterTickets");
    ListBox rows("lstMessage");
    MultiLineBox lines("txtReport");
    window.LayOut(other, button, box, option, ball, field, list, editable, date, rows, lines);
    Open(window);
    for (Control* control : std::initializer_list<Control*>{&button, &box, &option, &ball, &field, &list,
                                                            &editable, &date, &rows, &lines}) {
        QWidget& widget = control->Widget();
        const int around = widget.height();  // at least two of its sides
        EXPECT_GE(ChangedByFocus(widget, *control, other), around) << control->Name();
    }
}

INSTANTIATE_TEST_SUITE_P(Palettes, ContrastTest, ::testing::ValuesIn(AllPalettes()), NameOf);

}  // namespace
}  // namespace sorvane::test

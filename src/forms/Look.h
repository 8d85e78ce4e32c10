// Sizes, spacings and colours: derived from the font and the palette, so that every scale and theme holds.
#pragma once

#include <QColor>
#include <QFont>
#include <QIcon>
#include <QPalette>
#include <functional>

class QBoxLayout;
class QFontMetrics;
class QGridLayout;
class QWidget;

namespace sorvane::forms::Look {

// Pixels, in proportion to the font; what divides shrinks where the screen is narrow.
int Space(const QWidget& widget);   // between two controls that belong together
int Gap(const QWidget& widget);     // between groups
int Margin(const QWidget& widget);  // around the content of a window or page
int BallSize(const QWidget& widget);
int Heading(const QWidget& widget);       // the title of a group, over its frame
int SmallestBall(const QWidget& widget);  // where there is little room
int TitleBar(const QWidget& window);      // about the height that a desktop puts over a window
// Whether the screen has no room for long rows in this font.
bool IsNarrow(const QWidget& widget);
// A row of controls or groups, which is a column where the screen is narrow.
QBoxLayout* Row(const QWidget& widget);
// The width of so many digits, for fields of numbers.
int DigitsWidth(const QWidget& widget, int digits);
// The width at which a title bar shows the window's title whole beside its icon and buttons.
int TitleWidth(const QWidget& window);

// Sets the widget's font to so many times the size of the application's.
void Enlarge(QWidget& widget, double times);

// The font, made smaller in steps of a quarter of a point until it fits, but never below a point.
QFont Fitting(QFont font, const std::function<bool(const QFontMetrics&)>& fits);

// The system's fixed-pitch font at the size of the application's font, or at so many points.
QFont FixedFont(int points = 0);

// Contrast of two colours, 1 to 21.
double Contrast(const QColor& one, const QColor& other);
// The ink, moved towards black or white until it stands off the paper by at least `ratio`.
QColor Readable(QColor ink, const QColor& paper, double ratio = 4.5);

// The colours of a number ball.
struct Ball {
    QColor paper, ink, ring;
};
Ball BallColours(const QPalette& palette, bool ticked, bool enabled);
// The colours of a box or circle to be ticked.
Ball MarkColours(const QPalette& palette, bool ticked, bool enabled);

// Whether texts are darker than what they stand on.
bool IsLight(const QPalette& palette);
// Dark colours with the accent of this palette.
QPalette Dark(const QPalette& light);
// The palette with every text at least 4.5 : 1 on each ground that it may stand on, disabled ones too.
QPalette Legible(QPalette palette);
// The outline of fields and buttons: seen on the window as on their own ground.
QColor Edge(const QPalette& palette, bool enabled);
// The ground of a page with a tab, between window and field.
QColor Page(const QPalette& palette);
// The line around a group.
QColor Frame(const QPalette& palette);
// The colour of buttons, this much nearer to their text; under the mouse, and pressed.
QColor Shade(const QPalette& palette, double share);
inline constexpr double Hovered = 0.05, Pressed = 0.12;
// The ring around the control that has the focus.
QColor FocusRing(const QPalette& palette);
// The text of hints in empty lists.
QColor Hint(const QPalette& palette);
// The line between two parts of a window.
QColor Separator(const QPalette& palette);
// The days of a weekend in a calendar.
QColor Weekend(const QPalette& palette);
// The colour of a chart's column, from 0; the first four differ in lightness too.
QColor Series(const QPalette& palette, int column);
// The mark before a winner's line: a star in the colours of the palette.
QIcon Winner(const QPalette& palette, int size);

}  // namespace sorvane::forms::Look

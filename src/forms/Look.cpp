#include "forms/Look.h"

#include <QApplication>
#include <QBoxLayout>
#include <QFontDatabase>
#include <QPainter>
#include <QPainterPath>
#include <QScreen>
#include <QWidget>
#include <algorithm>
#include <cmath>
#include <vector>

namespace sorvane::forms::Look {

namespace {

int FontHeights(const QWidget& widget, double heights) {
    return std::max(1, static_cast<int>(std::lround(widget.fontMetrics().height() * heights)));
}

double Linear(double channel) {
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double Luminance(const QColor& colour) {
    return 0.2126 * Linear(colour.redF()) + 0.7152 * Linear(colour.greenF()) +
           0.0722 * Linear(colour.blueF());
}

QColor Mix(const QColor& one, const QColor& other, double share) {
    const auto mix = [share](float a, float b) { return static_cast<float>(a + (b - a) * share); };
    return QColor::fromRgbF(mix(one.redF(), other.redF()), mix(one.greenF(), other.greenF()),
                            mix(one.blueF(), other.blueF()));
}

// Texts have to be read; lines and bars have to be seen only; the frames of groups merely divide. A little
// more than the usual 4.5 and 3, because the rounding of colours may take something away.
constexpr double TextContrast = 4.6, LineContrast = 3.2, FrameContrast = 1.8;
constexpr double PalerContrast = 0.75;  // of the enabled text

// Moves an ink until it stands off all papers. Papers so different that no ink suits both are left alone.
QColor ReadableOnAll(QColor ink, const std::vector<QColor>& papers, double ratio) {
    for (const QColor& paper : papers) ink = Readable(ink, paper, ratio);
    return ink;
}

// The ink moved to just this contrast: towards the paper where it has more, away from it where it has less.
QColor AtContrast(const QColor& ink, const QColor& paper, double ratio) {
    constexpr int Steps = 50;
    QColor moved = ink;
    for (int step = 1; step <= Steps && Look::Contrast(moved, paper) > ratio; ++step)
        moved = Mix(ink, paper, static_cast<double>(step) / Steps);
    return Look::Readable(moved, paper, ratio);
}

// The grounds that lines are drawn on, or around.
std::vector<QColor> Grounds(const QPalette& palette, QPalette::ColorGroup group) {
    std::vector<QColor> grounds;
    for (const auto role : {QPalette::Window, QPalette::Base, QPalette::Button})
        grounds.push_back(palette.color(group, role));
    if (group == QPalette::Active)
        for (const double share : {Hovered, Pressed}) grounds.push_back(Shade(palette, share));
    return grounds;
}

// A kind of text and the grounds that it is written on.
struct Texts {
    QPalette::ColorRole ink;
    std::vector<QPalette::ColorRole> papers;
};

// Makes a disabled text paler where it would look like an enabled one.
void SetPaler(QPalette& palette, QPalette::ColorRole ink, QPalette::ColorRole paper) {
    const QColor ground = palette.color(QPalette::Disabled, paper);
    const QColor live = palette.color(QPalette::Active, ink), dead = palette.color(QPalette::Disabled, ink);
    if (Look::Contrast(dead, ground) <
        PalerContrast * Look::Contrast(live, palette.color(QPalette::Active, paper)))
        return;
    palette.setColor(QPalette::Disabled, ink, Look::Readable(Mix(live, ground, 0.5), ground, TextContrast));
}

}  // namespace

int Space(const QWidget& widget) { return FontHeights(widget, IsNarrow(widget) ? 0.2 : 0.4); }
int Gap(const QWidget& widget) { return FontHeights(widget, IsNarrow(widget) ? 0.4 : 0.8); }
int Margin(const QWidget& widget) { return Gap(widget); }
int BallSize(const QWidget& widget) { return FontHeights(widget, 2.4); }
int Heading(const QWidget& widget) { return FontHeights(widget, 4.0 / 3); }
int SmallestBall(const QWidget& widget) { return FontHeights(widget, 1.7); }
int TitleBar(const QWidget& window) { return FontHeights(window, 2); }
bool IsNarrow(const QWidget& widget) {
    constexpr double Roomy = 60;
    return widget.screen()->availableSize().width() < FontHeights(widget, Roomy);
}

QBoxLayout* Row(const QWidget& widget) {
    return new QBoxLayout(IsNarrow(widget) ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
}

int DigitsWidth(const QWidget& widget, int digits) {
    return widget.fontMetrics().horizontalAdvance(QLatin1Char('0')) * digits + FontHeights(widget, 1.2);
}

int TitleWidth(const QWidget& window) {
    return window.fontMetrics().horizontalAdvance(window.windowTitle()) + FontHeights(window, 9);
}

void Enlarge(QWidget& widget, double times) {
    QFont font = QApplication::font();
    font.setPointSizeF(font.pointSizeF() * times);
    widget.setFont(font);
}

QFont Fitting(QFont font, const std::function<bool(const QFontMetrics&)>& fits) {
    constexpr double Step = 0.25, Smallest = 1;  // points
    while (!fits(QFontMetrics(font)) && font.pointSizeF() > Smallest)
        font.setPointSizeF(font.pointSizeF() - Step);
    return font;
}

QFont FixedFont(int points) {
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setStyleHint(QFont::TypeWriter);
    font.setFixedPitch(true);
    font.setPointSizeF(points > 0 ? points : QApplication::font().pointSizeF());
    return font;
}

double Contrast(const QColor& one, const QColor& other) {
    const double a = Luminance(one), b = Luminance(other);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

QColor Readable(QColor ink, const QColor& paper, double ratio) {
    const QColor end = Contrast(Qt::black, paper) > Contrast(Qt::white, paper) ? Qt::black : Qt::white;
    constexpr int Steps = 25;
    ink = Mix(paper, ink, ink.alphaF());  // as it looks there
    QColor moved = ink;
    for (int step = 1; step <= Steps && Contrast(moved, paper) < ratio; ++step)
        moved = Mix(ink, end, static_cast<double>(step) / Steps);
    return moved;
}

Ball BallColours(const QPalette& palette, bool ticked, bool enabled) {
    const QColor window = palette.color(QPalette::Active, QPalette::Window);
    const QColor highlight = palette.color(QPalette::Active, QPalette::Highlight);
    const QColor ring = Readable(palette.color(QPalette::Active, enabled ? QPalette::Dark : QPalette::Mid),
                                 window, LineContrast);
    if (ticked && enabled) {
        const QColor ink = palette.color(QPalette::Active, QPalette::HighlightedText);
        return {Readable(highlight, ink), ink, ring};
    }
    QColor paper = enabled ? palette.color(QPalette::Active, QPalette::Base) : window;
    if (ticked) paper = Mix(highlight, window, 0.7);
    const auto group = enabled ? QPalette::Active : QPalette::Disabled;
    return {paper, Readable(palette.color(group, QPalette::Text), paper), ring};
}

Ball MarkColours(const QPalette& palette, bool ticked, bool enabled) {
    const QColor ring = Edge(palette, enabled);
    if (ticked && enabled) {
        const QColor paper = palette.color(QPalette::Highlight);
        return {paper, palette.color(QPalette::HighlightedText),
                Readable(paper, palette.color(QPalette::Window), LineContrast)};
    }
    const QColor paper = palette.color(enabled ? QPalette::Base : QPalette::Window);
    return {paper, palette.color(enabled ? QPalette::Text : QPalette::WindowText), ring};
}

bool IsLight(const QPalette& palette) {
    return Luminance(palette.color(QPalette::Window)) > Luminance(palette.color(QPalette::WindowText));
}

QPalette Dark(const QPalette& light) {
    const QColor window(46, 46, 50), button(60, 60, 65), base(30, 30, 33), ink(240, 240, 240);
    QPalette palette(button, window);
    for (const auto role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText})
        palette.setColor(role, ink);
    palette.setColor(QPalette::Base, base);
    palette.setColor(QPalette::AlternateBase, Mix(base, window, 0.5));
    palette.setColor(QPalette::ToolTipBase, button);
    palette.setColor(QPalette::PlaceholderText, Mix(ink, base, 0.4));
    for (const auto role :
         {QPalette::Link, QPalette::LinkVisited, QPalette::Highlight, QPalette::HighlightedText})
        palette.setColor(role, light.color(QPalette::Active, role));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, Mix(ink, window, 0.5));
    return palette;
}

QPalette Legible(QPalette palette) {
    using P = QPalette;
    const std::vector<Texts> all = {
        {P::WindowText, {P::Window, P::Base}}, {P::Text, {P::Base, P::AlternateBase}},
        {P::ButtonText, {P::Button}},          {P::PlaceholderText, {P::Base, P::Window}},
        {P::ToolTipText, {P::ToolTipBase}},    {P::Link, {P::Base, P::Window}},
        {P::LinkVisited, {P::Base, P::Window}}};
    for (const auto group : {P::Active, P::Inactive, P::Disabled}) {
        for (const auto& [ink, papers] : all) {
            std::vector<QColor> colours;
            for (const auto paper : papers) colours.push_back(palette.color(group, paper));
            palette.setColor(group, ink, ReadableOnAll(palette.color(group, ink), colours, TextContrast));
        }
        // Here the ground is changed and not the text: it is the accent of the whole window.
        palette.setColor(group, P::Highlight,
                         Readable(palette.color(group, P::Highlight),
                                  palette.color(group, P::HighlightedText), TextContrast));
    }
    for (const auto& [ink, papers] : all) SetPaler(palette, ink, papers.front());
    return palette;
}

QColor Edge(const QPalette& palette, bool enabled) {
    const auto group = enabled ? QPalette::Active : QPalette::Disabled;
    return ReadableOnAll(palette.color(group, QPalette::Mid), Grounds(palette, group), LineContrast);
}

QColor Page(const QPalette& palette) {
    return Mix(palette.color(QPalette::Window), palette.color(QPalette::Base), 0.5);
}

QColor Frame(const QPalette& palette) {
    return Readable(palette.color(QPalette::Mid), palette.color(QPalette::Window), FrameContrast);
}

QColor Shade(const QPalette& palette, double share) {
    return Mix(palette.color(QPalette::Button), palette.color(QPalette::ButtonText), share);
}

QColor FocusRing(const QPalette& palette) {
    return ReadableOnAll(palette.color(QPalette::Active, QPalette::Highlight),
                         Grounds(palette, QPalette::Active), LineContrast);
}

QColor Hint(const QPalette& palette) {
    const QColor paper = palette.color(QPalette::Base);
    return Readable(palette.color(QPalette::PlaceholderText), paper);
}

// Lightness differs too, for those who see no hues: each column has a contrast of its own to the paper.
QColor Series(const QPalette& palette, int column) {
    const QColor paper = palette.color(QPalette::Base);
    const QColor accent = Readable(palette.color(QPalette::Active, QPalette::Highlight), paper, LineContrast);
    if (column == 0) return accent;
    const double first = Contrast(accent, paper);
    std::vector<double> others;
    for (const double ratio : {2.0, 1.4, 2.8, 1.0, 3.9})
        if (const double step = ratio * LineContrast / first; step > 1.25 || step < 1 / 1.25)
            others.push_back(ratio * LineContrast);
    const float hue = std::fmod(accent.hslHueF() + 0.45f * static_cast<float>(column), 1.0f);
    return AtContrast(QColor::fromHslF(std::max(0.0f, hue), 0.55f, 0.65f), paper,
                      others[static_cast<std::size_t>(column - 1) % others.size()]);
}

QColor Separator(const QPalette& palette) {
    return Readable(palette.color(QPalette::Mid), palette.color(QPalette::Window), LineContrast);
}

QColor Weekend(const QPalette& palette) {
    return Readable(Qt::red, palette.color(QPalette::Base), TextContrast);
}

QIcon Winner(const QPalette& palette, int size) {
    const auto star = [size](const QColor& colour) {
        QPainterPath path;
        for (int i = 0; i < 10; ++i) {
            const double angle = M_PI * (i / 5.0 - 0.5), radius = size * (i % 2 ? 0.2 : 0.48);
            const QPointF at(size / 2.0 + radius * std::cos(angle), size / 2.0 + radius * std::sin(angle));
            i == 0 ? path.moveTo(at) : path.lineTo(at);
        }
        QPixmap picture(size * 4, size * 4);  // sharp on screens of any scale
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.scale(4, 4);
        painter.fillPath(path, colour);
        return picture;
    };
    QIcon icon;
    icon.addPixmap(star(Readable(palette.color(QPalette::Highlight), palette.color(QPalette::Base))));
    icon.addPixmap(star(palette.color(QPalette::HighlightedText)), QIcon::Selected);
    return icon;
}

}  // namespace sorvane::forms::Look

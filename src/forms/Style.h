// How controls are drawn: flat, in the colours of the palette, every line and every state to be seen.
#pragma once

#include <QIcon>
#include <QProxyStyle>

namespace sorvane::forms {

// The same on every desktop. Any palette that comes in is made legible first (Look::Legible), so light, dark
// and high-contrast ones hold alike.
class Style : public QProxyStyle {
  public:
    Style();

    using QProxyStyle::polish;
    void polish(QPalette& palette) override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override;
    // Boxes and circles to be ticked grow with the font, fields and buttons have room around their text.
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    // The menu bar asks for the picture of the button that stands where it is too narrow, which hardly ever
    // comes: the readers of pictures are loaded when it does.
    QIcon standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                           const QWidget* widget) const override;
};

}  // namespace sorvane::forms

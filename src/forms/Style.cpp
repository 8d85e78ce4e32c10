#include "forms/Style.h"

#include <QFrame>
#include <QIconEngine>
#include <QPainter>
#include <QStyleFactory>
#include <QStyleOption>
#include <QWidget>
#include <algorithm>
#include <functional>
#include <optional>
#include <utility>

#include "forms/Look.h"

namespace sorvane::forms {

namespace {

constexpr double Corner = 3, Line = 1, MarkLine = 1.5, Ring = 2;  // logical pixels

bool Is(const QStyleOption& option, QStyle::StateFlag flag) { return option.state & flag; }
bool IsEnabled(const QStyleOption& option) { return Is(option, QStyle::State_Enabled); }
bool IsOn(const QStyleOption& option) {
    return Is(option, QStyle::State_On) || Is(option, QStyle::State_NoChange);
}

// Keeps the painter as it was.
class Pen {
  public:
    explicit Pen(QPainter& painter) : painter_(painter) {
        painter_.save();
        painter_.setRenderHint(QPainter::Antialiasing);
    }
    ~Pen() { painter_.restore(); }
    Pen(const Pen&) = delete;
    Pen& operator=(const Pen&) = delete;

    // A rounded frame of this width just inside the rectangle.
    void Frame(const QRectF& rect, const QColor& colour, double width, const QBrush& paper = Qt::NoBrush) {
        painter_.setPen(QPen(colour, width));
        painter_.setBrush(paper);
        const double inset = width / 2;
        painter_.drawRoundedRect(rect.adjusted(inset, inset, -inset, -inset), Corner, Corner);
    }

  private:
    QPainter& painter_;
};

// The outline of a field or button, or the ring around the one that has the focus.
void DrawEdge(const QStyleOption& option, QPainter& painter, const QBrush& paper = Qt::NoBrush) {
    const bool focus = IsEnabled(option) && Is(option, QStyle::State_HasFocus);
    Pen(painter).Frame(
        option.rect, focus ? Look::FocusRing(option.palette) : Look::Edge(option.palette, IsEnabled(option)),
        focus ? Ring : Line, paper);
}

void DrawButton(const QStyleOption& option, QPainter& painter) {
    QColor paper = option.palette.color(QPalette::Button);
    if (IsEnabled(option) && (Is(option, QStyle::State_Sunken) || Is(option, QStyle::State_On)))
        paper = Look::Shade(option.palette, Look::Pressed);
    else if (IsEnabled(option) && Is(option, QStyle::State_MouseOver))
        paper = Look::Shade(option.palette, Look::Hovered);
    DrawEdge(option, painter, paper);
}

Look::Ball MarkColours(const QStyleOption& option) {
    return Look::MarkColours(option.palette, IsOn(option), IsEnabled(option));
}

void DrawCheckMark(const QStyleOption& option, QPainter& painter) {
    const Look::Ball colours = MarkColours(option);
    Pen pen(painter);
    const QRectF box(option.rect);
    pen.Frame(box, colours.ring, MarkLine, colours.paper);
    if (!IsOn(option)) return;
    painter.setPen(QPen(colours.ink, box.width() * 0.14, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const auto at = [&](double x, double y) {
        return box.topLeft() + QPointF(x * box.width(), y * box.height());
    };
    const QPointF tick[] = {at(0.23, 0.53), at(0.42, 0.72), at(0.77, 0.29)};
    painter.drawPolyline(tick, 3);
}

void DrawOptionMark(const QStyleOption& option, QPainter& painter) {
    const Look::Ball colours = MarkColours(option);
    const Pen pen(painter);
    const QRectF circle =
        QRectF(option.rect).adjusted(MarkLine / 2, MarkLine / 2, -MarkLine / 2, -MarkLine / 2);
    painter.setPen(QPen(colours.ring, MarkLine));
    painter.setBrush(colours.paper);
    painter.drawEllipse(circle);
    if (!IsOn(option)) return;
    painter.setPen(Qt::NoPen);
    painter.setBrush(colours.ink);
    painter.drawEllipse(circle.center(), circle.width() * 0.22, circle.height() * 0.22);
}

void DrawFocusRing(const QStyleOption& option, QPainter& painter) {
    QPalette palette = option.palette;
    const auto* ring = qstyleoption_cast<const QStyleOptionFocusRect*>(&option);
    if (ring && Is(option, QStyle::State_Selected)) palette.setColor(QPalette::Window, ring->backgroundColor);
    Pen(painter).Frame(option.rect, Look::FocusRing(palette), Ring);
}

// A tab: the one in front goes on into its page and bears a bar.
void DrawTab(const QStyleOption& option, QPainter& painter) {
    const Pen pen(painter);
    painter.setRenderHint(QPainter::Antialiasing, false);
    const bool front = Is(option, QStyle::State_Selected);
    const QRect tab = option.rect.adjusted(0, front ? 0 : 2, -1, front ? 1 : -1);
    painter.setPen(Look::Frame(option.palette));
    painter.setBrush(front ? Look::Page(option.palette)
                           : Look::Shade(option.palette, Is(option, QStyle::State_MouseOver) ? 0.03 : 0.07));
    painter.drawRect(tab.adjusted(0, 0, 0, front ? 4 : 0));
    if (front)
        painter.fillRect(QRect(tab.left(), tab.top(), tab.width() + 1, 3), Look::FocusRing(option.palette));
}

// The frame begins below the title, which stands over it.
void DrawGroupFrame(const QStyleOption& option, QPainter& painter) {
    const int title = option.fontMetrics.height() * 4 / 3;
    Pen(painter).Frame(option.rect.adjusted(0, title, 0, 0), Look::Frame(option.palette), Line);
}

QFont Heavy(QFont font) {
    font.setBold(true);
    return font;
}

int TitleWidth(const QStyleOptionGroupBox& option) {
    const QFont font = option.styleObject ? static_cast<QWidget*>(option.styleObject)->font() : QFont();
    return QFontMetrics(Heavy(font)).size(Qt::TextShowMnemonic, option.text).width();
}

void DrawGroupTitle(const QStyleOptionGroupBox& option, QPainter& painter, const QRect& place,
                    const QStyle& style) {
    const Pen pen(painter);
    painter.setFont(Heavy(painter.font()));
    style.drawItemText(&painter, place, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic,
                       option.palette, IsEnabled(option), option.text, QPalette::WindowText);
}

// An icon that is made when it is first painted.
class LaterIcon : public QIconEngine {
  public:
    explicit LaterIcon(std::function<QIcon()> make) : make_(std::move(make)) {}

    void paint(QPainter* painter, const QRect& place, QIcon::Mode mode, QIcon::State state) override {
        Made().paint(painter, place, Qt::AlignCenter, mode, state);
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        return Made().pixmap(size, 1, mode, state);
    }
    QSize actualSize(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        return Made().actualSize(size, mode, state);
    }
    QIconEngine* clone() const override { return new LaterIcon(*this); }

  private:
    const QIcon& Made() {
        if (!made_) made_ = make_();
        return *made_;
    }
    std::function<QIcon()> make_;
    std::optional<QIcon> made_;
};

bool IsScrollView(const QWidget* widget) { return widget && widget->inherits("QAbstractScrollArea"); }

}  // namespace

Style::Style() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

void Style::polish(QPalette& palette) {
    QProxyStyle::polish(palette);
    palette = Look::Legible(palette);
}

void Style::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                          const QWidget* widget) const {
    switch (element) {
        case PE_IndicatorCheckBox:
            return DrawCheckMark(*option, *painter);
        case PE_IndicatorRadioButton:
            return DrawOptionMark(*option, *painter);
        case PE_PanelButtonCommand:
            return DrawButton(*option, *painter);
        case PE_FrameLineEdit:
            return DrawEdge(*option, *painter);
        case PE_FrameFocusRect:
            return DrawFocusRing(*option, *painter);
        case PE_FrameGroupBox:
            return DrawGroupFrame(*option, *painter);
        case PE_FrameTabWidget:
            return Pen(*painter).Frame(option->rect, Look::Frame(option->palette), Line,
                                       Look::Page(option->palette));
        case PE_Frame:
            if (IsScrollView(widget)) return DrawEdge(*option, *painter);
            break;
        default:
            break;
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void Style::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                        const QWidget* widget) const {
    if (element == CE_TabBarTabShape) return DrawTab(*option, *painter);
    if (const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
        element == CE_ShapedFrame && frame && frame->frameShape == QFrame::HLine)
        return painter->fillRect(QRect(frame->rect.left(), frame->rect.center().y(), frame->rect.width(), 1),
                                 Look::Separator(frame->palette));
    if (const auto* entry = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
        element == CE_MenuItem && entry && entry->menuItemType == QStyleOptionMenuItem::Separator)
        return painter->fillRect(QRect(entry->rect.left(), entry->rect.center().y(), entry->rect.width(), 1),
                                 Look::Separator(entry->palette));
    QProxyStyle::drawControl(element, option, painter, widget);
}

void Style::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                               const QWidget* widget) const {
    if (control == CC_GroupBox) {
        QStyleOptionGroupBox frame = *static_cast<const QStyleOptionGroupBox*>(option);
        DrawGroupTitle(
            frame, *painter,
            QRect(frame.rect.topLeft(), QSize(frame.rect.width(), frame.fontMetrics.height() * 4 / 3)),
            *this);
        frame.subControls &= ~SC_GroupBoxLabel;
        return QProxyStyle::drawComplexControl(control, &frame, painter, widget);
    }
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    if (control == CC_ComboBox) DrawEdge(*option, *painter);
}

// A disabled text has no second, brighter one below it, which would be all to be seen in high contrast.
// Buttons of boxes say what they do without pictures.
int Style::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                     QStyleHintReturn* data) const {
    if (hint == SH_EtchDisabledText || hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
    return QProxyStyle::styleHint(hint, option, widget, data);
}

int Style::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
    const int size = QProxyStyle::pixelMetric(metric, option, widget);
    switch (metric) {
        case PM_IndicatorWidth:
        case PM_IndicatorHeight:
        case PM_ExclusiveIndicatorWidth:
        case PM_ExclusiveIndicatorHeight:
            return widget ? std::max(size, widget->fontMetrics().height() * 9 / 10) : size;
        case PM_DefaultFrameWidth:  // the ring is not hidden by what scrolls
            return IsScrollView(widget) ? static_cast<int>(Ring) : size;
        case PM_TabBarBaseOverlap:
            return 1;
        default:
            return size;
    }
}

QIcon Style::standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const {
    if (icon == SP_ToolBarHorizontalExtensionButton)
        return QIcon(new LaterIcon([base = baseStyle(), icon] { return base->standardIcon(icon); }));
    return QProxyStyle::standardIcon(icon, option, widget);
}

QSize Style::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                              const QWidget* widget) const {
    QSize whole = QProxyStyle::sizeFromContents(type, option, size, widget);
    const int room = option ? option->fontMetrics.height() / 4 : 0;
    if (type == CT_PushButton) whole += QSize(room, room);
    if (type == CT_LineEdit || type == CT_ComboBox) whole.rheight() += room;
    if (const auto* group = qstyleoption_cast<const QStyleOptionGroupBox*>(option);
        type == CT_GroupBox && group)
        whole.setWidth(std::max(whole.width(), TitleWidth(*group)));
    return whole;
}

}  // namespace sorvane::forms

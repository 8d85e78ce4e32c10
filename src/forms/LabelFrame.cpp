#include "forms/LabelFrame.h"

#include <QCoreApplication>
#include <QFontMetrics>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include "forms/Look.h"
#include "forms/Runtime.h"
#include "forms/Utf8.h"

namespace sorvane::forms {

LabelFrame::LabelFrame(std::string_view name, std::string_view caption) : Control(*this, name) {
    SetCaption(caption);
}

std::string LabelFrame::Caption() const { return ToUtf8(title()); }
void LabelFrame::SetCaption(std::string_view caption) { setTitle(ToQt(caption)); }

QRect LabelFrame::Heading() const { return {0, 0, width(), Look::Heading(*this)}; }

void LabelFrame::RefreshHint() {
    if (!hint_) return;
    Tell(ToQt(hint_()));
    update(Heading());
}

void LabelFrame::Tell(const QString& hint) {
    if (accessibleDescription() != hint) setAccessibleDescription(hint);
}

void LabelFrame::paintEvent(QPaintEvent* event) {
    QGroupBox::paintEvent(event);
    if (!hint_) return;
    const QString hint = ToQt(hint_());
    Tell(hint);
    QFont heavy = font();
    heavy.setBold(true);
    const int room = width() - QFontMetrics(heavy).horizontalAdvance(title()) - Look::Gap(*this);
    QPainter painter(this);
    painter.setFont(Look::Fitting(
        font(), [&](const QFontMetrics& letters) { return letters.horizontalAdvance(hint) <= room; }));
    painter.drawText(Heading(), Qt::AlignRight | Qt::AlignVCenter, hint);
}

void LabelFrame::mousePressEvent(QMouseEvent* event) {
    if (!left_ || !left_->HasFocus() || event->button() != Qt::LeftButton)
        return QGroupBox::mousePressEvent(event);
    const QPointer<QWidget> pressed = childAt(event->pos());
    const bool wasShut = pressed && !pressed->isEnabled();
    const int shown = Runtime::Current().Shown();
    QKeyEvent tab(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier);
    QCoreApplication::sendEvent(&left_->Widget(), &tab);
    if (!wasShut || !pressed || !pressed->isEnabled() || Runtime::Current().Shown() != shown) return;
    QMouseEvent press(event->type(), pressed->mapFrom(this, event->pos()), event->globalPosition(),
                      event->button(), event->buttons(), event->modifiers());
    QCoreApplication::sendEvent(pressed, &press);
}

}  // namespace sorvane::forms

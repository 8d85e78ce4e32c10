#include "forms/LabelFrame.h"

#include <QPainter>

#include "forms/Look.h"
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
    setAccessibleDescription(ToQt(hint_()));
    update(Heading());
}

void LabelFrame::paintEvent(QPaintEvent* event) {
    QGroupBox::paintEvent(event);
    if (!hint_) return;
    const QString hint = ToQt(hint_());
    QFont heavy = font();
    heavy.setBold(true);
    const int room = width() - QFontMetrics(heavy).horizontalAdvance(title()) - Look::Gap(*this);
    if (fontMetrics().horizontalAdvance(hint) > room) return;
    QPainter(this).drawText(Heading(), Qt::AlignRight | Qt::AlignVCenter, hint);
}

}  // namespace sorvane::forms

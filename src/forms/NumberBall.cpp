#include "forms/NumberBall.h"

#include <QPainter>
#include <algorithm>

#include "forms/Look.h"

namespace sorvane::forms {

NumberBall::NumberBall(std::string_view name, std::string_view caption) : CheckBox(name, caption) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setAttribute(Qt::WA_Hover);
}

QSize NumberBall::sizeHint() const {
    const int side = Look::BallSize(*this);
    return {side, side};
}

bool NumberBall::hitButton(const QPoint& at) const { return rect().contains(at); }

void NumberBall::paintEvent(QPaintEvent*) {
    const Look::Ball ball = Look::BallColours(palette(), isChecked(), isEnabled());
    const double side = std::min(width(), height());
    const QPointF centre = QRectF(rect()).center();
    const auto circle = [&](QPainter& painter, double diameter) {
        painter.drawEllipse(centre, diameter / 2, diameter / 2);
    };
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);

    if (hasFocus()) {
        painter.setPen(QPen(Look::FocusRing(palette()), side * 0.06));
        circle(painter, side * 0.93);
    }
    const bool lit = isEnabled() && (underMouse() || isDown());
    painter.setPen(QPen(ball.ring, side * (lit ? 0.07 : 0.04), isEnabled() ? Qt::SolidLine : Qt::DotLine));
    painter.setBrush(ball.paper);
    circle(painter, side * 0.78);

    QFont number = font();
    number.setBold(isChecked());
    painter.setFont(number);
    painter.setPen(ball.ink);
    const double lift = isChecked() ? side * 0.08 : 0;
    painter.drawText(QRectF(rect()).translated(0, -lift), Qt::AlignCenter, text());
    if (!isChecked()) return;
    painter.setPen(QPen(ball.ink, side * 0.055, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const QPointF tick[] = {centre + QPointF(-0.12, 0.20) * side, centre + QPointF(-0.03, 0.28) * side,
                            centre + QPointF(0.13, 0.13) * side};
    painter.drawPolyline(tick, 3);
}

}  // namespace sorvane::forms

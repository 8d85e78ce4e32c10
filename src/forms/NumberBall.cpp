#include "forms/NumberBall.h"

#include <QKeyEvent>
#include <QPainter>
#include <algorithm>
#include <cstdlib>

#include "forms/Look.h"

namespace sorvane::forms {

NumberBall::NumberBall(std::string_view name, std::string_view caption) : CheckBox(name, caption) {
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
}

QSize NumberBall::sizeHint() const {
    const int side = Look::BallSize(*this);
    return {side, side};
}

QSize NumberBall::minimumSizeHint() const {
    const int side = Look::SmallestBall(*this);
    return {side, side};
}

bool NumberBall::hitButton(const QPoint& at) const { return rect().contains(at); }

// Other disabled buttons swallow a press. A ball passes it on to the slip that it stands on.
bool NumberBall::event(QEvent* event) {
    if (isEnabled() || event->type() != QEvent::MouseButtonPress) return CheckBox::event(event);
    event->ignore();
    return false;
}

void NumberBall::keyPressEvent(QKeyEvent* event) {
    QPoint ahead;  // one step in the direction of the key
    if (event->key() == Qt::Key_Left) ahead = {-1, 0};
    if (event->key() == Qt::Key_Right) ahead = {1, 0};
    if (event->key() == Qt::Key_Up) ahead = {0, -1};
    if (event->key() == Qt::Key_Down) ahead = {0, 1};
    if (ahead.isNull() || !parentWidget()) return CheckBox::keyPressEvent(event);
    const QPoint aside(ahead.y(), ahead.x());
    QWidget* nearest = nullptr;
    int least = 0;
    for (QObject* other : parentWidget()->children()) {
        auto* ball = dynamic_cast<NumberBall*>(other);
        if (!ball || !ball->isEnabled() || !ball->isVisible()) continue;
        const QPoint way = ball->geometry().center() - geometry().center();
        const int forwards = QPoint::dotProduct(way, ahead),
                  sideways = std::abs(QPoint::dotProduct(way, aside));
        const int far = forwards + 4 * sideways;  // a ball in the same line comes before one closer by
        if (forwards <= sideways || (nearest && far >= least)) continue;
        nearest = ball;
        least = far;
    }
    if (nearest) nearest->setFocus(Qt::TabFocusReason);
}

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
    const double grown = side / Look::BallSize(*this);
    if (grown > 1) number.setPointSizeF(number.pointSizeF() * grown);
    painter.setFont(number);
    painter.setPen(ball.ink);
    // Where the ball had to shrink there is no room for a tick below the number.
    const bool ticks = isChecked() && side > (Look::SmallestBall(*this) + Look::BallSize(*this)) / 2.0;
    const double lift = ticks ? side * 0.08 : 0;
    painter.drawText(QRectF(rect()).translated(0, -lift), Qt::AlignCenter, text());
    if (!ticks) return;
    painter.setPen(QPen(ball.ink, side * 0.055, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const QPointF tick[] = {centre + QPointF(-0.12, 0.20) * side, centre + QPointF(-0.03, 0.28) * side,
                            centre + QPointF(0.13, 0.13) * side};
    painter.drawPolyline(tick, 3);
}

}  // namespace sorvane::forms

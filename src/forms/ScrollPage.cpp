#include "forms/ScrollPage.h"

#include <QApplication>
#include <QEvent>
#include <QStyle>

namespace sorvane::forms {

ScrollPage::ScrollPage(QWidget& content) {
    setFrameShape(NoFrame);
    setWidgetResizable(true);
    setFocusPolicy(Qt::NoFocus);
    setWidget(&content);
    for (QWidget* ground : {viewport(), &content}) ground->setAutoFillBackground(false);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
        if (now && widget() && widget()->isAncestorOf(now)) ensureWidgetVisible(now);
    });
}

// With room for the bar, so that a page too high for the screen is not too wide for itself as well.
QSize ScrollPage::sizeHint() const {
    if (!widget()) return QScrollArea::sizeHint();
    return widget()->sizeHint() + QSize(style()->pixelMetric(QStyle::PM_ScrollBarExtent), 0);
}

bool ScrollPage::eventFilter(QObject* receiver, QEvent* event) {
    if (receiver == widget() && event->type() == QEvent::LayoutRequest) updateGeometry();
    return QScrollArea::eventFilter(receiver, event);
}

}  // namespace sorvane::forms

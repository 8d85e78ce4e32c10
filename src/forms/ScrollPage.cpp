#include "forms/ScrollPage.h"

#include <QApplication>
#include <QEvent>

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

QSize ScrollPage::sizeHint() const { return widget() ? widget()->sizeHint() : QScrollArea::sizeHint(); }

bool ScrollPage::eventFilter(QObject* receiver, QEvent* event) {
    if (receiver == widget() && event->type() == QEvent::LayoutRequest) updateGeometry();
    return QScrollArea::eventFilter(receiver, event);
}

}  // namespace sorvane::forms

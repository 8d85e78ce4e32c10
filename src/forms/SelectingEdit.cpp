#include "forms/SelectingEdit.h"

#include <QApplication>
#include <QMouseEvent>

#include "forms/Runtime.h"

namespace sorvane::forms {

void SelectingEdit::SelectWhole() {
    selectAll();
    keepSelection_ = Runtime::Current().IsPressed(*this);
}

// The press puts the caret where the mouse is, which would undo a selection made when it brought the focus.
void SelectingEdit::mousePressEvent(QMouseEvent* event) {
    QLineEdit::mousePressEvent(event);
    pressedAt_ = event->pos();
    if (keepSelection_) selectAll();
}

void SelectingEdit::mouseMoveEvent(QMouseEvent* event) {
    if (keepSelection_ && (event->pos() - pressedAt_).manhattanLength() < QApplication::startDragDistance())
        return;
    QLineEdit::mouseMoveEvent(event);
}

void SelectingEdit::mouseReleaseEvent(QMouseEvent* event) {
    keepSelection_ = false;
    QLineEdit::mouseReleaseEvent(event);
}

}  // namespace sorvane::forms

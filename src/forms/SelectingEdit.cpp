#include "forms/SelectingEdit.h"

#include <QApplication>
#include <QMouseEvent>
#include <utility>

#include "forms/Runtime.h"

namespace sorvane::forms {

void SelectingEdit::SelectWhole() {
    selectAll();
    toKeep_ = Runtime::Current().IsPressed(*this);
}

// The press puts the caret where the mouse is, which would undo a selection made when it brought the focus.
void SelectingEdit::mousePressEvent(QMouseEvent* event) {
    QLineEdit::mousePressEvent(event);
    pressedAt_ = event->pos();
    keepSelection_ = std::exchange(toKeep_, false);
    if (keepSelection_) selectAll();
}

void SelectingEdit::mouseMoveEvent(QMouseEvent* event) {
    if (keepSelection_ && (event->pos() - pressedAt_).manhattanLength() < QApplication::startDragDistance())
        return;
    QLineEdit::mouseMoveEvent(event);
}

}  // namespace sorvane::forms

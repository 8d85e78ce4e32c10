// A line of text whose selection survives the press that brought the focus.
#pragma once

#include <QLineEdit>

namespace sorvane::forms {

class SelectingEdit : public QLineEdit {
  public:
    using QLineEdit::QLineEdit;

    // Selects the whole text; the press of the mouse that is being delivered doesn't undo it.
    void SelectWhole();

  protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

  private:
    bool toKeep_ = false;         // all was selected by a press that is still to be delivered
    bool keepSelection_ = false;  // the press in hand selected all: small moves of the mouse don't undo it
    QPoint pressedAt_;
};

}  // namespace sorvane::forms

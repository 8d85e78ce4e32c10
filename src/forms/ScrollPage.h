// Content that scrolls where there is too little room for it.
#pragma once

#include <QScrollArea>

namespace sorvane::forms {

// Asks for the room that the whole content would like. What gets the focus is brought to be seen. The content
// belongs to its maker, who has to destroy it first.
class ScrollPage : public QScrollArea {
  public:
    explicit ScrollPage(QWidget& content);

    QSize sizeHint() const override;

  protected:
    bool eventFilter(QObject* receiver, QEvent* event) override;
};

}  // namespace sorvane::forms

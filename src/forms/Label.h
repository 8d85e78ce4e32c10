// A text on the window.
#pragma once

#include <QLabel>

#include "forms/Control.h"

namespace sorvane::forms {

// Plain text. '&' before a letter marks the access key when the label has a buddy.
class Label : public QLabel, public Control {
  public:
    explicit Label(std::string_view name, std::string_view caption = {});

    // The caption as given.
    std::string Caption() const;
    void SetCaption(std::string_view caption);
    // The control that the label names; a screen reader speaks the caption there, and the access key leads
    // there.
    void SetBuddy(Control& control);

  protected:
    bool event(QEvent* event) override;

  private:
    // Qt lets a list have no name from its label.
    void NameList();
};

}  // namespace sorvane::forms

// A push button.
#pragma once

#include <QPushButton>

#include "forms/Control.h"

namespace sorvane::forms {

// Enter and the blank click the button that has the focus. The access key ('&' before a letter of the
// caption) moves the focus here first, then clicks, unless leaving the other control showed a box or failed.
class CommandButton : public QPushButton, public Control {
  public:
    explicit CommandButton(std::string_view name, std::string_view caption = {});

    // The caption as given, '&' included.
    std::string Caption() const;
    void SetCaption(std::string_view caption);
    void OnClick(std::function<void()> handler) { click_ = std::move(handler); }

  protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    std::function<void()> click_;
};

}  // namespace sorvane::forms

// One of several options.
#pragma once

#include <QRadioButton>

#include "forms/Control.h"

namespace sorvane::forms {

// The options of one frame (one parent widget) exclude each other.
class OptionButton : public QRadioButton, public Control {
  public:
    explicit OptionButton(std::string_view name, std::string_view caption = {});

    bool Value() const { return isChecked(); }
    // Turning on fires Click when the option was off and turns the others of its frame off. Turning off
    // leaves none on and fires nothing.
    void SetValue(bool on);
    std::string Caption() const;
    void SetCaption(std::string_view caption);
    // Click: the option has become on, by the user or by the program.
    void OnClick(std::function<void()> handler) { click_ = std::move(handler); }

  protected:
    bool event(QEvent* event) override;

  private:
    std::function<void()> click_;
};

}  // namespace sorvane::forms

// A check box.
#pragma once

#include <QCheckBox>

#include "forms/Control.h"

namespace sorvane::forms {

class CheckBox : public QCheckBox, public Control {
  public:
    explicit CheckBox(std::string_view name, std::string_view caption = {});

    // 1 when ticked, else 0.
    int Value() const { return isChecked() ? 1 : 0; }
    // Any value but 0 ticks. Fires Click when the value changes.
    void SetValue(int value) { setChecked(value != 0); }
    std::string Caption() const;
    void SetCaption(std::string_view caption);
    // Click: the value has changed, by the user or by the program.
    void OnClick(std::function<void()> handler) { click_ = std::move(handler); }

  protected:
    bool event(QEvent* event) override;

  private:
    std::function<void()> click_;
};

}  // namespace sorvane::forms

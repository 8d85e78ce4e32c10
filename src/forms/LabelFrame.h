// A frame with a caption around controls.
#pragma once

#include <QGroupBox>
#include <functional>
#include <string>

#include "forms/Control.h"

namespace sorvane::forms {

class LabelFrame : public QGroupBox, public Control {
  public:
    explicit LabelFrame(std::string_view name, std::string_view caption = {});

    std::string Caption() const;
    void SetCaption(std::string_view caption);
    // A text painted at the right of the caption where there is room; it is asked for at every painting.
    void SetHint(std::function<std::string()> hint) { hint_ = std::move(hint); }
    // The hint says something else now.
    void RefreshHint();

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QRect Heading() const;
    std::function<std::string()> hint_;
};

}  // namespace sorvane::forms

// A frame with a caption around controls.
#pragma once

#include <QGroupBox>

#include "forms/Control.h"

namespace sorvane::forms {

class LabelFrame : public QGroupBox, public Control {
  public:
    explicit LabelFrame(std::string_view name, std::string_view caption = {});

    std::string Caption() const;
    void SetCaption(std::string_view caption);
};

}  // namespace sorvane::forms

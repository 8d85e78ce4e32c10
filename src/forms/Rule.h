// A horizontal line.
#pragma once

#include <QFrame>

#include "forms/Control.h"

namespace sorvane::forms {

class Rule : public QFrame, public Control {
  public:
    explicit Rule(std::string_view name);
};

}  // namespace sorvane::forms

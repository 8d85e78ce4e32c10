#include "forms/Rule.h"

namespace sorvane::forms {

Rule::Rule(std::string_view name) : Control(*this, name) {
    setFrameShape(HLine);
    setFrameShadow(Sunken);
}

}  // namespace sorvane::forms

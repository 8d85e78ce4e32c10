#include "forms/LabelFrame.h"

#include "forms/Utf8.h"

namespace sorvane::forms {

LabelFrame::LabelFrame(std::string_view name, std::string_view caption) : Control(*this, name) {
    SetCaption(caption);
}

std::string LabelFrame::Caption() const { return ToUtf8(title()); }
void LabelFrame::SetCaption(std::string_view caption) { setTitle(ToQt(caption)); }

}  // namespace sorvane::forms

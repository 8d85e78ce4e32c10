#include "forms/CheckBox.h"

#include "forms/AccessKeys.h"
#include "forms/Utf8.h"

namespace sorvane::forms {

CheckBox::CheckBox(std::string_view name, std::string_view caption) : Control(*this, name) {
    SetCaption(caption);
    connect(this, &QCheckBox::toggled, this, [this] { Fire(click_); });
}

std::string CheckBox::Caption() const { return ToUtf8(text()); }
void CheckBox::SetCaption(std::string_view caption) { setText(ToQt(caption)); }

bool CheckBox::event(QEvent* event) { return HandleAccessKey(*this, *event) || QCheckBox::event(event); }

}  // namespace sorvane::forms

#include "forms/OptionButton.h"

#include "forms/AccessKeys.h"
#include "forms/Utf8.h"

namespace sorvane::forms {

OptionButton::OptionButton(std::string_view name, std::string_view caption) : Control(*this, name) {
    SetCaption(caption);
    connect(this, &QRadioButton::toggled, this, [this](bool on) {
        if (on) Fire(click_);
    });
}

std::string OptionButton::Caption() const { return ToUtf8(text()); }
void OptionButton::SetCaption(std::string_view caption) { setText(ToQt(caption)); }

void OptionButton::SetValue(bool on) {
    // One of several exclusive buttons can't be turned off otherwise.
    if (!on) setAutoExclusive(false);
    setChecked(on);
    if (!on) setAutoExclusive(true);
}

bool OptionButton::event(QEvent* event) {
    return HandleAccessKey(*this, *event) || QRadioButton::event(event);
}

}  // namespace sorvane::forms

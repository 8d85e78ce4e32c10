#include "forms/Label.h"

#include "forms/AccessKeys.h"
#include "forms/Utf8.h"

namespace sorvane::forms {

Label::Label(std::string_view name, std::string_view caption) : Control(*this, name) {
    setTextFormat(Qt::PlainText);
    SetCaption(caption);
}

std::string Label::Caption() const { return ToUtf8(text()); }
void Label::SetCaption(std::string_view caption) { setText(ToQt(caption)); }
void Label::SetBuddy(Control& control) { setBuddy(&control.Widget()); }

bool Label::event(QEvent* event) { return HandleAccessKey(*this, *event) || QLabel::event(event); }

}  // namespace sorvane::forms

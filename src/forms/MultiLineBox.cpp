#include "forms/MultiLineBox.h"

#include "forms/Look.h"
#include "forms/Utf8.h"

namespace sorvane::forms {

MultiLineBox::MultiLineBox(std::string_view name) : Control(*this, name) {
    setTabChangesFocus(true);
    connect(this, &QPlainTextEdit::textChanged, this, [this] { Fire(change_); });
}

std::string MultiLineBox::Text() const { return ToUtf8(toPlainText().replace("\n", "\r\n")); }
void MultiLineBox::SetText(std::string_view text) { setPlainText(ToQt(text).replace("\r\n", "\n")); }
void MultiLineBox::SetReadOnly(bool readOnly) {
    setReadOnly(readOnly);
    // Read with the keyboard too.
    if (readOnly) setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
}
void MultiLineBox::SetFixedPitch() {
    setFont(Look::FixedFont());
    setLineWrapMode(NoWrap);
}

}  // namespace sorvane::forms

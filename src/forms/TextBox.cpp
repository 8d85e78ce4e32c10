#include "forms/TextBox.h"

#include "forms/Utf8.h"

namespace sorvane::forms {

namespace {
constexpr int NoLimit = 32767;
}

TextBox::TextBox(std::string_view name) : Control(*this, name) {
    connect(this, &QLineEdit::textChanged, this, [this] { Fire(change_); });
}

std::string TextBox::Text() const { return ToUtf8(text()); }
void TextBox::SetText(std::string_view text) { setText(ToQt(text)); }

void TextBox::SelectAll() { SelectWhole(); }

void TextBox::SetCaret(int position) { setCursorPosition(position); }

void TextBox::SetMaxLength(int characters) { setMaxLength(characters > 0 ? characters : NoLimit); }
int TextBox::MaxLength() const { return maxLength() == NoLimit ? 0 : maxLength(); }

}  // namespace sorvane::forms

#include "forms/TextBox.h"

#include <QApplication>
#include <QMouseEvent>

#include "forms/Runtime.h"
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

void TextBox::SelectAll() {
    selectAll();
    keepSelection_ = Runtime::Current().IsPressed(*this);
}

void TextBox::SetCaret(int position) {
    deselect();
    setCursorPosition(position);
}

void TextBox::SetMaxLength(int characters) { setMaxLength(characters > 0 ? characters : NoLimit); }
int TextBox::MaxLength() const { return maxLength() == NoLimit ? 0 : maxLength(); }

// The press puts the caret where the mouse is, which would undo a selection made when it brought the focus.
void TextBox::mousePressEvent(QMouseEvent* event) {
    QLineEdit::mousePressEvent(event);
    pressedAt_ = event->pos();
    if (keepSelection_) selectAll();
}

void TextBox::mouseMoveEvent(QMouseEvent* event) {
    if (keepSelection_ && (event->pos() - pressedAt_).manhattanLength() < QApplication::startDragDistance())
        return;
    QLineEdit::mouseMoveEvent(event);
}

void TextBox::mouseReleaseEvent(QMouseEvent* event) {
    keepSelection_ = false;
    QLineEdit::mouseReleaseEvent(event);
}

}  // namespace sorvane::forms

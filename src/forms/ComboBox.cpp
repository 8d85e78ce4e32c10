#include "forms/ComboBox.h"

#include <QWheelEvent>

#include "forms/SelectingEdit.h"
#include "forms/Utf8.h"
#include "platform/RunTimeError.h"

namespace sorvane::forms {

ComboBox::ComboBox(std::string_view name, Style style) : Control(*this, name) {
    setFocusPolicy(Qt::StrongFocus);
    if (style == Style::Editable) {
        setLineEdit(new SelectingEdit(this));  // which makes it editable
        setInsertPolicy(NoInsert);
        setCompleter(nullptr);  // "1" typed must not become "10"
    }
    connect(this, &QComboBox::currentTextChanged, this, [this] { TextMayHaveChanged(); });
}

void ComboBox::AddItem(std::string_view text) {
    // Qt selects the first entry by itself.
    const QString before = currentText();
    const int index = currentIndex();
    filling_ = true;
    addItem(ToQt(text));
    setCurrentIndex(index);
    if (isEditable()) setEditText(before);
    filling_ = false;
}

void ComboBox::Clear() {
    clear();
    if (isEditable()) clearEditText();
    TextMayHaveChanged();
}

std::string ComboBox::List(int index) const {
    if (index < 0 || index >= count()) Raise(ErrorNumber::SubscriptOutOfRange);
    return ToUtf8(itemText(index));
}

std::string ComboBox::Text() const { return ToUtf8(currentText()); }

void ComboBox::SetText(std::string_view text) {
    filling_ = true;
    setCurrentIndex(findText(ToQt(text), Qt::MatchExactly | Qt::MatchCaseSensitive));
    if (isEditable()) setEditText(ToQt(text));
    filling_ = false;
    TextMayHaveChanged();
}

int ComboBox::ListIndex() const {
    return isEditable() ? findText(currentText(), Qt::MatchExactly | Qt::MatchCaseSensitive) : currentIndex();
}

void ComboBox::SetListIndex(int index) { SetText(index == -1 ? std::string() : List(index)); }

void ComboBox::SelectAll() {
    if (auto* edit = static_cast<SelectingEdit*>(lineEdit())) edit->SelectWhole();
}

void ComboBox::TextMayHaveChanged() {
    if (filling_ || currentText() == lastText_) return;
    lastText_ = currentText();
    Fire(change_);
}

// The wheel scrolls the page; it changes a choice only where the person is.
void ComboBox::wheelEvent(QWheelEvent* event) {
    if (hasFocus()) QComboBox::wheelEvent(event);
    else event->ignore();
}

}  // namespace sorvane::forms

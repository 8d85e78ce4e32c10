#include "forms/KeyFilter.h"

#include "forms/Runtime.h"

namespace sorvane::forms {

bool KeyHandler::Refuses(int key) const {
    if (!handler_) return false;
    KeyPress press(key);
    Runtime::Current().Handle([&] { handler_(press); });
    return press.Swallowed();
}

bool KeyHandler::Refuses(const QKeyEvent& event) const {
    const auto modifiers = event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    const bool types = modifiers == Qt::NoModifier || modifiers == (Qt::ControlModifier | Qt::AltModifier);
    const auto characters = event.text().toUcs4();
    const bool printable = !characters.isEmpty() && QChar::isPrint(characters.first());
    // Alt with a letter that is no access key: Qt would type the letter past every filter.
    if (modifiers == Qt::AltModifier && printable) return true;
    if (!types) return false;
    if (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter) return Refuses(13);
    if (event.key() == Qt::Key_Backspace) return Refuses(8);
    return printable && Refuses(static_cast<int>(characters.first()));
}

void KeyHandler::Commit(const QInputMethodEvent& event,
                        const std::function<void(QInputMethodEvent&)>& insert) const {
    QInputMethodEvent none;
    insert(none);  // the text being composed goes before the characters come
    int from = event.replacementStart(), length = event.replacementLength();
    for (const uint character : event.commitString().toUcs4()) {
        if (Refuses(static_cast<int>(character))) continue;
        const char32_t one = character;
        QInputMethodEvent part;
        part.setCommitString(QString::fromUcs4(&one, 1), from, length);
        insert(part);
        from = length = 0;
    }
    QInputMethodEvent rest(event.preeditString(), event.attributes());
    insert(rest);
}

}  // namespace sorvane::forms

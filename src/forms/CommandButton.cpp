#include "forms/CommandButton.h"

#include <QKeyEvent>

#include "forms/AccessKeys.h"
#include "forms/Utf8.h"

namespace sorvane::forms {

CommandButton::CommandButton(std::string_view name, std::string_view caption) : Control(*this, name) {
    SetCaption(caption);
    connect(this, &QPushButton::clicked, this, [this] { Fire(click_); });
}

std::string CommandButton::Caption() const { return ToUtf8(text()); }
void CommandButton::SetCaption(std::string_view caption) { setText(ToQt(caption)); }

bool CommandButton::event(QEvent* event) {
    return HandleAccessKey(*this, *event) || QPushButton::event(event);
}

void CommandButton::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!enter) return QPushButton::keyPressEvent(event);
    if (!event->isAutoRepeat()) click();
}

}  // namespace sorvane::forms

#include "forms/Menu.h"

#include "forms/Runtime.h"
#include "forms/Utf8.h"

namespace sorvane::forms {

Menu::Menu(QWidget& parent, std::string_view name, std::string_view caption) : QMenu(ToQt(caption), &parent) {
    setObjectName(ToQt(name));
    menuAction()->setObjectName(ToQt(name));
}

Menu& Menu::AddMenu(std::string_view name, std::string_view caption) {
    auto* menu = new Menu(*this, name, caption);
    addMenu(menu);
    return *menu;
}

QAction& Menu::AddEntry(std::string_view name, std::string_view caption, std::function<void()> handler) {
    QAction* entry = addAction(ToQt(caption));
    entry->setObjectName(ToQt(name));
    entry->setEnabled(static_cast<bool>(handler));
    connect(entry, &QAction::triggered, this,
            [handler = std::move(handler)] { Runtime::Current().Handle(handler); });
    return *entry;
}

Menu& MenuBar::AddMenu(std::string_view name, std::string_view caption) {
    auto* menu = new Menu(*this, name, caption);
    addMenu(menu);
    return *menu;
}

}  // namespace sorvane::forms

// The menu.
#pragma once

#include <QMenu>
#include <QMenuBar>
#include <functional>
#include <string_view>

namespace sorvane::forms {

// Menus and entries bear their names as Qt objectName and are owned by the menu bar.
class Menu : public QMenu {
  public:
    Menu(QWidget& parent, std::string_view name, std::string_view caption);
    Menu& AddMenu(std::string_view name, std::string_view caption);
    // An entry that runs `handler`; without one it is turned off.
    QAction& AddEntry(std::string_view name, std::string_view caption,
                      std::function<void()> handler = nullptr);
};

class MenuBar : public QMenuBar {
  public:
    Menu& AddMenu(std::string_view name, std::string_view caption);
};

}  // namespace sorvane::forms

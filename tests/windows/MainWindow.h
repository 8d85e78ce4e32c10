// The world with the main window in front, used by its menu.
#pragma once

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <cctype>
#include <string>
#include <string_view>
#include <vector>

#include "forms/Utf8.h"
#include "shell/ui/frmMain.h"
#include "support/WindowWorld.h"

namespace sorvane::test {

class MainWindow : public WindowWorld {
  public:
    // The program lies in `home`; empty: in the folder of the test.
    explicit MainWindow(const std::string& home = {})
        : frm(session, windows, home.empty() ? folder.Path().string() : home, [this] { ++ended; }) {
        global.NL.clear();
        global.AppPath.clear();
    }

    // Starts the program as far as its main window.
    void Start() {
        frm.Load();
        frm.Show();
        Person::Await(frm);
        Person::Settle();
    }

    // Chooses an entry by the access keys that lead to it.
    void Choose(std::string_view name) {
        const std::string keys = KeysTo(name);
        person.AccessKey(keys.front());
        person.Type(keys.substr(1));
    }

    // An entry or a menu by its name.
    QAction& Entry(std::string_view name) {
        auto* entry = frm.findChild<QAction*>(forms::ToQt(name));
        if (!entry) throw std::runtime_error("no menu entry " + std::string(name));
        return *entry;
    }

    int ended = 0;
    frmMain frm;

  private:
    static char KeyOf(std::string_view caption) {
        return static_cast<char>(std::tolower(caption.at(caption.find('&') + 1)));
    }
    static std::string KeysTo(std::string_view name) {
        std::string keys(3, ' ');
        for (const MenuEntry& entry : MenuTree()) {
            const auto level = static_cast<std::size_t>(entry.level);
            keys[level] = KeyOf(entry.caption);
            if (entry.name == name) return keys.substr(0, level + 1);
        }
        throw std::runtime_error("no menu entry " + std::string(name));
    }
};

}  // namespace sorvane::test

// The window that the program opens with: its menu leads everywhere else.
#pragma once

#include <functional>
#include <string>

#include "forms/CommandButton.h"
#include "forms/Label.h"
#include "forms/Menu.h"
#include "forms/Picture.h"
#include "forms/Rule.h"
#include "forms/Window.h"
#include "shell/Catalogue.h"
#include "shell/Global.h"

namespace sorvane {

class Windows;

class frmMain final : public forms::Window {
  public:
    // `applicationFolder`: where the executable lies, without a separator behind it. `end` ends the program.
    frmMain(Session& session, Windows& windows, std::string applicationFolder, std::function<void()> end);

    // The load event, before the window is shown: sets Global::NL and AppPath, then makes the database with
    // Spent and Winnings where they are missing. May show boxes.
    void Load();

  private:
    void LayOut();
    void BuildMenu();
    std::function<void()> HandlerOf(const MenuEntry& entry);
    void Form_Load();
    void Open(const Game& game);
    void cmdExit_Click();

    Session& session_;
    Windows& windows_;
    const std::string applicationFolder_;
    const std::function<void()> end_;

    forms::MenuBar menu_;
    forms::Picture Picture1{"Picture1"};
    forms::Label Title{"Title", "Sorvane "};
    forms::Label Label1{"Label1", "The complete lottery management program!"};
    forms::Rule Line1{"Line1"};
    forms::CommandButton cmdExit{"cmdExit", "E&xit"};
};

}  // namespace sorvane

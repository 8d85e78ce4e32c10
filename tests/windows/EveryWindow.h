// Every window of the program, each in front once.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "entry/ui/CountDialogs.h"
#include "reports/ui/frmReport.h"
#include "reports/ui/frmReportType.h"
#include "shell/ui/frmAbout.h"
#include "shell/ui/frmComingSoon.h"
#include "shell/ui/frmGuide.h"
#include "shell/ui/frmRequestNewLottery.h"
#include "support/Games.h"
#include "windows/MainWindow.h"

namespace sorvane::test {

// Calls `see` with each tab of the game's window in front, the fields of its add-on shown as well.
inline void SeeTabsOf(WindowWorld& world, std::string_view menu,
                      const std::function<void(GameWindow&, const std::string& what)>& see) {
    GameWindow& window = world.Show(menu);
    const std::string name(menu);
    for (const int tab : {Tab::Enter, Tab::Check, Tab::Reports, Tab::QuickPick}) {
        window.SSTab1.SetTab(tab);
        Person::Settle();
        see(window, name + ", " + window.SSTab1.Caption());
    }
    window.SSTab1.SetTab(Tab::Enter);
    AddOnCapture& addOns = window.Enter.AddOns;
    const AddOnTold* addOn = AddOnOf(world.global.ExtraFlag);
    const bool four = addOn && addOn->ExtraFlag == "Extra";
    if (addOn && addOns.lblExtra && addOn->counted) addOns.lblExtra->SetVisible(true);
    if (addOn && addOns.txtEncore && !four) addOns.txtEncore->SetVisible(true);
    addOns.txtPlay4.ForEach([four](forms::TextBox& box, int) { box.SetVisible(four); });
    Person::Settle();
    see(window, name + ", add-on");
}

// The same with the windows of no game.
inline void SeeOtherWindows(MainWindow& world, const std::function<void(forms::Window&)>& see) {
    world.Start();
    see(world.frm);
    world.Select("mnuCANONTPICK3");
    const std::function<std::unique_ptr<forms::Window>()> makers[] = {
        [&] { return std::make_unique<frmAbout>(world.session); },
        [&] { return std::make_unique<frmComingSoon>(); },
        [&] { return std::make_unique<frmRequestNewLottery>(world.session); },
        [&] { return std::make_unique<frmReport>(world.session); },
        [&] { return std::make_unique<frmReportType>(world.session); },
        [&] { return std::make_unique<frmHowManySheets>(world.session); },
        [&] { return std::make_unique<frmTicketsOnSheet>(world.session); },
        [&] { return std::make_unique<frmGuide>(SORVANE_SOURCE_FOLDER "/docs/user-guide.md", "Printing"); },
    };
    for (const auto& make : makers) {
        const auto window = make();
        window->Show();
        Person::Await(*window);
        Person::Settle();
        see(*window);
        window->Unload();
    }
}

inline std::vector<std::string_view> EveryGame() {
    std::vector<std::string_view> menus;
    for (const GameTold& game : GamesTold) menus.push_back(game.menu);
    return menus;
}

}  // namespace sorvane::test

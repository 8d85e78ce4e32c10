// Every window of the program, each in front once.
#pragma once

#include <QApplication>
#include <QFont>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "entry/ui/CountDialogs.h"
#include "forms/Control.h"
#include "reports/ui/frmReport.h"
#include "reports/ui/frmReportType.h"
#include "shell/ui/frmAbout.h"
#include "shell/ui/frmComingSoon.h"
#include "shell/ui/frmGuide.h"
#include "shell/ui/frmRequestNewLottery.h"
#include "support/Games.h"
#include "windows/MainWindow.h"

namespace sorvane::test {

inline constexpr int Small = 10, Large = 20;  // points

// The font of the program while this lives.
class FontOf {
  public:
    explicit FontOf(int points) : before_(QApplication::font()) {
        QFont font = before_;
        font.setPointSize(points);
        QApplication::setFont(font);
        Person::Settle();  // windows that are there already are told
    }
    ~FontOf() { QApplication::setFont(before_); }
    FontOf(const FontOf&) = delete;
    FontOf& operator=(const FontOf&) = delete;

  private:
    QFont before_;
};

// The program's own controls that are to be seen.
inline std::vector<QWidget*> ControlsIn(const QWidget& window) {
    std::vector<QWidget*> controls;
    for (auto* widget : window.findChildren<QWidget*>())
        if (widget->isVisible() && dynamic_cast<forms::Control*>(widget)) controls.push_back(widget);
    return controls;
}

using SeeTab = std::function<void(GameWindow&, const std::string& what)>;

// Calls `see` with each tab of the window in front, the fields of its add-on shown as well.
inline void SeeTabs(WindowWorld& world, GameWindow& window, const std::string& name, const SeeTab& see) {
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

// The same with the window of a game.
inline void SeeTabsOf(WindowWorld& world, std::string_view menu, const SeeTab& see) {
    SeeTabs(world, world.Show(menu), std::string(menu), see);
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

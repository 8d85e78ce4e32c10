// What the four tabs of a game window share of their window.
#pragma once

#include <QWidget>
#include <array>
#include <string_view>

#include "forms/CommandButton.h"
#include "forms/ControlArray.h"
#include "forms/DatePicker.h"
#include "forms/TabStrip.h"
#include "forms/TextBox.h"
#include "forms/Window.h"
#include "shell/Family.h"
#include "shell/Global.h"
#include "shell/WindowState.h"
#include "store/StoreRoutine.h"

namespace sorvane {

class Windows;

namespace Tab {
inline constexpr int Enter = 0, Check = 1, Reports = 2, QuickPick = 3;
inline constexpr std::string_view ReportsCaption = "&Reports";
inline constexpr std::string_view QuickPickCaption = "&Quick Pick";
}  // namespace Tab

class GameFrame : public forms::Window {
  public:
    // Everything empty: whoever derives from it fills the pages and puts them into the tab strip.
    GameFrame(Family family, Session& session, Windows& windows);

    // The load event. May show boxes.
    virtual void Form_Load() = 0;
    // Leaves the window: takes it out of the registry; the handler in hand goes on.
    void Leave();
    // A box in front of whatever window is in front.
    Answer MsgBox(std::string_view text, int style = BoxStyle::Ok, std::string_view title = ProgramName);

    // What the routines of the store get of the window: the table last named and the date in hand.
    StoreArgs At() { return {State.DbName, State.TableName, State.WindowDate}; }

    const Family Which;
    Session& session;
    Windows& windows;
    WindowState State;

    forms::TabStrip SSTab1{"SSTab1"};
    std::array<QWidget, 4> Pages;
    // These three arrays cross the tabs. A tab loads its elements and lays them out; the window attaches
    // their handlers. Element 0 belongs to the entry, 1 to the quick picks.
    forms::ControlArray<forms::TextBox> txtNoOfTickets{"txtNoOfTickets"};       // 2 in frmPick4
    forms::ControlArray<forms::DatePicker> dtpEnterTickets{"dtpEnterTickets"};  // 2 check
    forms::ControlArray<forms::CommandButton> cmdExit{"cmdExit"};               // 2 check, 3 reports

  protected:
    // Takes the elements of the arrays out of the frames of the tabs, which would destroy them. To be called
    // before the first tab is destroyed.
    void TakeArraysOut();
};

}  // namespace sorvane

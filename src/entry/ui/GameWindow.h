// The one game window of all seven families.
#pragma once

#include <QWidget>
#include <array>

#include "checking/ui/CheckTicketsTab.h"
#include "entry/WindowState.h"
#include "entry/ui/EnterTicketsTab.h"
#include "entry/ui/SheetFlow.h"
#include "forms/CommandButton.h"
#include "forms/ControlArray.h"
#include "forms/DatePicker.h"
#include "forms/TabStrip.h"
#include "forms/TextBox.h"
#include "forms/Window.h"
#include "quickpick/ui/QuickPickTab.h"
#include "reports/ui/ReportsTab.h"
#include "shell/Family.h"
#include "shell/Global.h"

namespace sorvane {

class Windows;

namespace Tab {
inline constexpr int Enter = 0, Check = 1, Reports = 2, QuickPick = 3;
inline constexpr std::string_view ReportsCaption = "&Reports";
inline constexpr std::string_view QuickPickCaption = "&Quick Pick";
}  // namespace Tab

class GameWindow final : public forms::Window {
  public:
    // Makes every control of the family in its design-time state. What the window does when it is loaded is
    // Form_Load.
    GameWindow(Family family, Run& run, Windows& windows);
    ~GameWindow() override;

    // The load event; run again on the live window after "Tickets NOT Saved". Makes tables, so it may show
    // boxes.
    void Form_Load();
    // Leaves the window: takes it out of the registry; the handler in hand goes on.
    void Leave();
    // The table of the game at load, cancel and exit; an unknown key leaves the name as it was.
    void NameTables();

    const Family Which;
    Run& run;
    Windows& windows;
    WindowState State;

    forms::TabStrip SSTab1{"SSTab1"};
    std::array<QWidget, 4> Pages;
    // These three arrays cross the tabs; the window alone attaches their handlers. A tab lays out its
    // element.
    forms::ControlArray<forms::TextBox> txtNoOfTickets{
        "txtNoOfTickets"};  // 0 entry, 1 quick pick, 2 frmPick4
    forms::ControlArray<forms::DatePicker> dtpEnterTickets{
        "dtpEnterTickets"};  // 0 entry, 1 quick pick, 2 check
    forms::ControlArray<forms::CommandButton> cmdExit{
        "cmdExit"};  // 0 entry, 1 quick pick, 2 check, 3 reports
    EnterTicketsTab Enter;
    CheckTicketsTab Check;
    ReportsTab Reports;
    QuickPickTab QuickPick;
    SheetFlow Sheets;

  private:
    void AttachSharedHandlers();
    void ForgetSaves();
    void ClearCountersAtLoad();
    void ClearCountersAtCancel();
    void ShowFirstSheet();
    void SetDates();
    void cmdCancel_Click();
    void cmdExit_Click();
    void SSTab1_Click();
    void txtNoOfTickets_KeyPress(int Index, forms::KeyPress& key);
    void dtpEnterTickets_Change(int Index);
};

// Keys as KeyPress knows them.
inline constexpr int Backspace = 8;
inline constexpr int EnterKey = 13;
constexpr bool IsDigit(int key) { return key >= '0' && key <= '9'; }

// The refusal of a key in a field of digits: style 48, title "Error!".
inline constexpr std::string_view NotANumber = "Please enter a valid number greater than or equal to 1.";
inline constexpr std::string_view KeyErrorTitle = "Error!";
// Shows it, empties the field, puts the caret to 0, swallows the key, and the field keeps the focus.
void RefuseKey(forms::TextBox& field, forms::KeyPress& key);

}  // namespace sorvane

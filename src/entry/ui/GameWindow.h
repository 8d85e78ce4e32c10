// The one game window of all seven families.
#pragma once

#include <memory>

#include "checking/ui/CheckTicketsTab.h"
#include "entry/ui/EnterTicketsTab.h"
#include "entry/ui/SheetFlow.h"
#include "quickpick/ui/QuickPickTab.h"
#include "reports/ui/ReportsTab.h"
#include "shell/ui/GameFrame.h"

namespace sorvane {

class GameWindow final : public GameFrame {
  public:
    // Makes every control of the family in its design-time state. What the window does when it is loaded is
    // Form_Load.
    GameWindow(Family family, Session& session, Windows& windows);
    ~GameWindow() override;
    static std::unique_ptr<GameFrame> Make(Family family, Session& session, Windows& windows);

    // The load event; run again on the live window after "Tickets NOT Saved". Makes tables, so it may show
    // boxes.
    void Form_Load() override;
    // The table of the game at load, cancel and exit; an unknown key leaves the name as it was.
    void NameTables();

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

}  // namespace sorvane

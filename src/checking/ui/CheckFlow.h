// What the buttons of the check page do: the check, step by step, and the winnings.
#pragma once

#include <string_view>

#include "checking/WinningBoxes.h"
#include "forms/Control.h"

namespace sorvane {

class CheckTicketsTab;
class GameFrame;

class CheckFlow {
  public:
    CheckFlow(GameFrame& window, CheckTicketsTab& page) : window_(window), page_(page) {}

    // Reads the tickets of the date in dtpEnterTickets(2), stores the draw and judges each ticket, or only
    // stores the draw while StatUpdate is On. Shows boxes; each refusal leaves what the steps before it did.
    void cmdCheck_Click();
    // Sets StatUpdate, the caption of cmdCheck, and which boxes are live.
    void chkStatUpdate_Click();
    // Writes txtDollarsWon into Winnings under the date of the page, when the date has an entry of the game.
    void cmdEnterWinnings_Click();

  private:
    // Its steps; false where the check ends there.
    bool DateHasCome();
    bool BoxesAreFilled();
    bool FourAreFilled();
    bool AddOnIsLongEnough();
    bool ReadTickets();
    void StoreDraw();
    bool GoesOnToJudging();
    void JudgeTickets(const WinningBoxes& boxes);
    void CheckAddOn(const WinningBoxes& boxes);
    // Shows what is missing and asks for the focus on its box; always false.
    bool Missing(std::string_view text, std::string_view title, forms::Control& box);
    // Whether the draw alone is to be stored, in the families that know that.
    bool StatOnly() const;
    // The table in TableName, made where it is missing.
    void MakeSureOfTable();

    GameFrame& window_;
    CheckTicketsTab& page_;
};

}  // namespace sorvane

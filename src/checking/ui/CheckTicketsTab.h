// The tab "&Check Tickets": the draw, the verdicts, the winnings.
#pragma once

#include <array>
#include <optional>
#include <string>

#include "checking/WinningBoxes.h"
#include "forms/CheckBox.h"
#include "forms/ComboBox.h"
#include "forms/CommandButton.h"
#include "forms/ControlArray.h"
#include "forms/Label.h"
#include "forms/LabelFrame.h"
#include "forms/ListBox.h"
#include "forms/TextBox.h"

class QLayout;

namespace sorvane {

class GameFrame;

class CheckTicketsTab {
  public:
    explicit CheckTicketsTab(GameFrame& window);

    // Containers before their contents.
    forms::LabelFrame frmWinner{"frmWinner", "Winner"};
    forms::LabelFrame Frame1{"Frame1", "Winnings"};
    forms::Label lblDrawDate{"lblDrawDate", "Draw Date:"};
    forms::ControlArray<forms::TextBox> txtWin;   // txtWin6, txtWin7 or txtWin20
    forms::ControlArray<forms::ComboBox> cboWin;  // cboWin3 or cboWin4
    std::optional<forms::Label> lblWinEarlybird;
    forms::ControlArray<forms::TextBox> txtWin4{"txtWin4"};
    std::optional<forms::Label> lblWinEncore;
    std::optional<forms::TextBox> txtWinEncore;
    forms::Label lblNumbersPlayed{"lblNumbersPlayed", "Numbers Played:"};
    forms::ListBox lstNumbersPlayed{"lstNumbersPlayed"};
    std::optional<forms::Label> lblEncorePlayed;
    std::optional<forms::ListBox> lstEncorePlayed;
    forms::Label lblMessage{"lblMessage", "Message:"};
    forms::ListBox lstMessage{"lstMessage"};
    forms::Label lblDollarsWon{"lblDollarsWon", "Winnings: $"};
    forms::TextBox txtDollarsWon{"txtDollarsWon"};
    forms::CommandButton cmdEnterWinnings{"cmdEnterWinnings", "Enter &Winnings"};
    forms::ControlArray<forms::Label> lblEnsure{"lblEnsure"};
    forms::CheckBox chkStatUpdate{"chkStatUpdate", "Update Stats Only"};
    forms::CommandButton cmdCheck{"cmdCheck", "&Check"};

    // dtpEnterTickets(2) has changed: the results of an earlier check go away.
    void ForgetResults();

  private:
    void MakeBoxes();
    void AttachHandlers();
    void LayOut();
    QLayout* WinnerRow();
    QLayout* ListsRow();
    QLayout* WinningsRow();
    void OrderTabs();

    // The check, step by step; false where it ends there.
    void cmdCheck_Click();
    bool DateHasCome();
    bool BoxesAreFilled();
    bool FourAreFilled();
    bool AddOnIsLongEnough();
    bool ReadTickets();
    void StoreDraw();
    bool GoesOnToJudging();
    void JudgeTickets(const WinningBoxes& boxes);
    void CheckAddOn(const WinningBoxes& boxes);
    // The whole check; false where it ended at once, without the last step.
    bool RunCheck();
    bool Missing(std::string_view text, std::string_view title, forms::Control& box);

    bool StatOnly() const;
    void ClearLists();
    void EmptyMainBoxes();
    std::string MainText(int index) const;
    forms::Control& MainBox(int index);
    WinningBoxes Boxes() const;

    // Refuses a key; the text stays as it is.
    void RefuseAndKeep(forms::KeyPress& key, int style);
    void txtWin_KeyPress(int Index, forms::KeyPress& key);
    void txtWin4_KeyPress(int Index, forms::KeyPress& key);
    void txtWinEncore_KeyPress(forms::KeyPress& key);
    void txtWinEncore_LostFocus();
    void txtDollarsWon_KeyPress(forms::KeyPress& key);
    void chkStatUpdate_Click();
    void lstMessage_DblClick();
    void lstNumbersPlayed_Click();
    void cmdEnterWinnings_Click();
    void MakeSureOfTable();

    GameFrame& window_;
};

}  // namespace sorvane

// The page of the tab "&Check Tickets": the draw, the verdicts, the winnings. What its buttons do is
// CheckFlow.
#pragma once

#include <optional>
#include <string>

#include "checking/WinningBoxes.h"
#include "checking/ui/CheckFlow.h"
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
    // The winning boxes of the main draw, counted from 0: what stands in one, and the box itself.
    std::string MainText(int index) const;
    forms::Control& MainBox(int index);
    // All boxes and the date, as they stand.
    WinningBoxes Boxes() const;
    void EmptyMainBoxes();
    void ClearLists();

    static constexpr int FourBoxes = 4;  // of txtWin4, where the family has it

  private:
    void MakeBoxes();
    void AttachHandlers();
    void LayOut();
    QLayout* WinnerRow();
    QLayout* ListsRow();
    QLayout* WinningsRow();
    void OrderTabs();

    // Refuses a key; the text stays as it is.
    void RefuseAndKeep(forms::KeyPress& key, int style);
    void txtWin_KeyPress(int Index, forms::KeyPress& key);
    void txtWin4_KeyPress(int Index, forms::KeyPress& key);
    void txtWinEncore_KeyPress(forms::KeyPress& key);
    void txtWinEncore_LostFocus();
    void txtDollarsWon_KeyPress(forms::KeyPress& key);
    void lstMessage_DblClick();
    void lstNumbersPlayed_Click();

    GameFrame& window_;
    CheckFlow flow_;
};

}  // namespace sorvane

// The add-on tickets of a sheet: a digit string in txtEncore, or four numbers in txtPlay4.
#pragma once

#include <optional>

#include "forms/CheckBox.h"
#include "forms/ControlArray.h"
#include "forms/Label.h"
#include "forms/TextBox.h"

class QBoxLayout;

namespace sorvane {

class GameWindow;

class AddOnCapture {
  public:
    explicit AddOnCapture(GameWindow& window);

    // The controls; those that a family lacks are absent.
    std::optional<forms::Label> lblNoOfExtra;
    std::optional<forms::TextBox> txtNoOfExtra;
    std::optional<forms::CheckBox> chkEncore;
    std::optional<forms::Label> lblExtra;
    std::optional<forms::TextBox> txtEncore;
    forms::ControlArray<forms::TextBox> txtPlay4{"txtPlay4"};

    // The number in txtNoOfExtra, 0 where there is none.
    int Count() const;

    // Form_Load: txtEncore "0", hidden with lblExtra.
    void HideAtLoad();
    // txtNoOfExtra "0".
    void EmptyCount();
    // txtNoOfExtra "0" and txtEncore "0", as Daily Keno begins a sheet.
    void EmptyForKenoSheet();
    // A further sheet begins: lblExtra and txtEncore hidden.
    void HideForNextSheet();
    // cmdCancel: lblExtra and txtPlay4 hidden.
    void HideAtCancel();
    // Quebec 49: the count of tickets makes chkEncore live.
    void EnableCheck();
    void FocusCount();

    // The last ticket of the sheet is complete. True: add-on tickets follow, and cmdNext_Ticket now opens
    // them (caption, title, EnteringAddOns, cmdSave off). False: the sheet has none.
    bool OfferPhase();
    // Whether cmdNext_Ticket's caption belongs to the add-on phase.
    bool IsInPhase() const;
    // What cmdNext_Ticket does at an add-on caption: opens the phase, or stores the add-on ticket and opens
    // the next.
    void Next();

    void StoreAddOnTicket(int element);
    void StoreExtraTicket();
    // The add-on step of cmdSave: stores and writes the add-on tickets of the sheet by ExtraFlag.
    void SaveSheet();
    // After the last sheet: empties the add-on fields by ExtraFlag.
    void ClearAfterLastSheet();

  private:
    GameWindow& window_;
};

}  // namespace sorvane

// The add-on tickets of a sheet: a digit string in txtEncore, or four numbers in txtPlay4.
#pragma once

#include <optional>
#include <string_view>

#include "forms/CheckBox.h"
#include "forms/ControlArray.h"
#include "forms/Label.h"
#include "forms/TextBox.h"
#include "shell/Global.h"

namespace sorvane {

class GameWindow;

// Captions of cmdNext_Ticket in the add-on phase, and titles of its tickets.
namespace AddOnCaption {
inline constexpr std::string_view EnterExtra = "&Enter Extra";
inline constexpr std::string_view EnterEncore = "&Enter Encore";
inline constexpr std::string_view NextExtra = "&Next Extra";
inline constexpr std::string_view NextEncore = "&Next Encore";
inline constexpr std::string_view ExtraTitle = "Extra Ticket #";
inline constexpr std::string_view EncoreTitle = "Encore Ticket #";
}  // namespace AddOnCaption

class AddOnCapture {
  public:
    // Makes the controls in their design-time state and attaches their handlers; the tab lays them out.
    explicit AddOnCapture(GameWindow& window);

    // The controls; those that a family lacks are absent.
    std::optional<forms::Label> lblNoOfExtra;
    std::optional<forms::TextBox> txtNoOfExtra;
    std::optional<forms::CheckBox> chkEncore;
    std::optional<forms::Label> lblExtra;
    std::optional<forms::TextBox> txtEncore;
    forms::ControlArray<forms::TextBox> txtPlay4{"txtPlay4"};

    // The number in txtNoOfExtra, 0 where there is none. Letters (pasted) raise 13.
    int Count() const;
    // Whether the text of txtNoOfExtra stands above "0", compared as text.
    bool CountIsAboveZero() const;

    // Form_Load: txtEncore "0", hidden with lblExtra.
    void HideAtLoad();
    // txtNoOfExtra "0".
    void EmptyCount();
    // txtNoOfExtra "0" and txtEncore "0", as Daily Keno begins a sheet.
    void EmptyForKenoSheet();
    // lblExtra and txtEncore hidden: a further sheet begins.
    void HideEncore();
    // lblExtra and txtPlay4 hidden: at cmdCancel, and when the Extra tickets have been written.
    void HideExtra();
    // Quebec 49: the count of tickets makes chkEncore live.
    void EnableCheck();
    void FocusCount();

    // The last ticket of the sheet is complete. True: add-on tickets follow, and cmdNext_Ticket now opens
    // them (caption, title, EnteringAddOns, cmdSave off). False: the sheet has none. The rule of the lotto
    // windows; the others have their own.
    bool OfferPhase();
    // What cmdNext_Ticket of the lotto windows does at an add-on caption: opens the phase, or stores the
    // add-on ticket and opens the next. Nothing at any other caption. Raises what storing raises.
    void Next();
    // lblExtra shown; txtEncore shown, enabled and focused.
    void ShowEncore();
    // txtEncore emptied and focused.
    void EmptyEncore();
    // fraTicketNumber: `kind` and the number of the add-on ticket in hand.
    void ShowTitle(std::string_view kind);

    // txtEncore into the element of AddOnTickets: one digit in each slot, or 99 in all where no add-on was
    // bought. Raises 9 where AddOnTickets lacks the element (the count and chkEncore alone size it), 13 where
    // txtEncore has too few digits.
    void StoreAddOnTicket(int element);
    // The add-on step of cmdSave: stores and writes the add-on tickets of the sheet by ExtraFlag. Raises what
    // storing raises.
    void SaveSheet();
    // After the last sheet of a lotto window: empties the add-on fields by ExtraFlag.
    void ClearAfterLastSheet();

  private:
    void MakeControls();
    void AttachHandlers();
    void txtNoOfExtra_KeyPress(forms::KeyPress& key);
    void txtNoOfExtra_GotFocus();
    void txtNoOfExtra_LostFocus();
    void TakeCount();
    void TakeLottarioCount();
    void chkEncore_Click();
    void txtEncore_LostFocus();
    void txtPlay4_LostFocus(int Index);
    // A key in a field of digits alone; a refusal leaves the text as it is.
    void DigitsOnly(forms::TextBox& field, forms::KeyPress& key);
    // The add-on number in hand is complete: on to the next one, or to saving.
    void NumberComplete();
    void OpenPhase(std::string_view next);
    bool IsBought() const;
    void StoreExtraTicket();
    bool IsSaved() const;
    void SaveNumbers();
    void SaveExtra();
    void EmptyPlay4();

    GameWindow& window_;
    Global& g_;
};

}  // namespace sorvane

// The flow of an entry: count of tickets, sheets, saving, clean-up.
#pragma once

#include <string>
#include <string_view>

#include "forms/TextBox.h"
#include "platform/Integer.h"

namespace sorvane {

class GameWindow;

class SheetFlow {
  public:
    explicit SheetFlow(GameWindow& window) : window_(window) {}

    // txtNoOfTickets(Index) has lost the focus: 0 accepts the count of an entry, 1 the count of quick picks.
    void TicketCountLeft(int Index);
    void cmdNext_Ticket_Click();
    void cmdCorrection_Click();
    void cmdSave_Click();
    // Asks to clean up a half-saved entry, when there is one; `title` says what the player is about to do.
    // Nothing is asked where there is nothing to clean.
    void OfferCleanUp(std::string_view title);

  private:
    void TakeCount(int Index, const std::string& text);
    void AskForCount(forms::TextBox& count);
    void SetSheetTickets();
    void AskTicketsOnSheet();
    void DefaultTheAmount(forms::TextBox& count);
    void MakePlayedTable();
    void NotSaved();
    void SaveSheet();
    void BeginNextSheet();
    bool AsksTicketsOnNextSheet() const;
    void FinishEntry();
    void RecordSpending();

    GameWindow& window_;
    bool aTicketASheet_ = false;  // as many sheets as tickets, so each sheet has one
};

}  // namespace sorvane

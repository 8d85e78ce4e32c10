// The tab "&Enter Tickets": draw date, count, money, the play slip and the buttons of the flow.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "entry/ui/AddOnCapture.h"
#include "entry/ui/TicketCapture.h"
#include "forms/CheckBox.h"
#include "forms/CommandButton.h"
#include "forms/Label.h"
#include "forms/LabelFrame.h"
#include "forms/TextBox.h"

class QLayout;

namespace sorvane {

class GameWindow;

class EnterTicketsTab {
  public:
    explicit EnterTicketsTab(GameWindow& window);

    // Containers before their contents.
    forms::LabelFrame fraTickets{"fraTickets", "Enter Tickets:"};
    forms::LabelFrame fraTicketNumber{"fraTicketNumber", "Ticket #1 - Sheet 0 of 0"};
    forms::Label lblDrawDate{"lblDrawDate", "Draw Date:"};
    forms::Label lblNoTickets;  // named Label1 in some families
    std::optional<forms::Label> lblDollars;
    forms::Label lblDollarsSpent{"lblDollarsSpent", "Dollars Spent:  $"};
    forms::TextBox txtDollars{"txtDollars"};
    forms::Label lblInfo{"lblInfo"};
    forms::CommandButton cmdRegular{"cmdRegular", "&Play Regular Numbers"};
    forms::CheckBox chkRegular{"chkRegular", "Regularly Played Ticket"};
    forms::CommandButton cmdCorrection{"cmdCorrection", "&Re-Enter Ticket"};
    forms::CommandButton cmdNext_Ticket{"cmdNext_Ticket", "&Next Ticket"};
    forms::CommandButton cmdSave{"cmdSave", "&Save Tickets"};
    forms::CommandButton cmdCancel{"cmdCancel", "&Cancel"};
    AddOnCapture AddOns;

    TicketCapture& Capture() { return *capture_; }

    // fraTicketNumber: `kind` ("Ticket #", "Bonus Ticket #", ...), the number, " - Sheet n of m" of the
    // window's sheets.
    void ShowTitle(std::string_view kind, int number);
    // How far the ticket and the sheet are: "Numbers 4 of 6, tickets filled 1 of 3"; empty before they begin.
    std::string Progress() const;
    // Whether the count of the entry in hand was given. The counters don't tell: corrections lower them, and
    // the count of quick picks goes into the same ones.
    void GiveCount(bool given) { countIsGiven_ = given; }
    // The default amount: Dollars and txtDollars, one decimal point counted.
    void PutAmount(const std::string& amount);
    // Dollars "0.00".
    void StartAmount();
    // cmdNext_Ticket, cmdCorrection, cmdSave disabled.
    void TurnButtonsOff();
    // cmdNext_Ticket's caption back to its first, chkRegular enabled.
    void FirstCaption();
    // cmdCancel: txtDollars emptied, the counts "0", lblExtra and txtPlay4 hidden.
    void EmptyFields();

  private:
    void LayOut();
    QLayout* HeadRow();
    QLayout* MarksRow();
    QLayout* ButtonColumn();
    void OrderTabs();
    void txtDollars_KeyPress(forms::KeyPress& key);
    void txtDollars_Change();
    void txtDollars_LostFocus();

    GameWindow& window_;
    std::unique_ptr<TicketCapture> capture_;
    bool countIsGiven_ = false;
};

}  // namespace sorvane

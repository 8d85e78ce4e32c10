// Tickets of three or four digits, with a way of play and a wager for the whole entry: frmPick3 and frmPick4.
#pragma once

#include <QWidget>

#include "entry/Amounts.h"
#include "entry/ui/TicketCapture.h"
#include "forms/ComboBox.h"
#include "forms/ControlArray.h"
#include "forms/Label.h"
#include "forms/LabelFrame.h"
#include "forms/OptionButton.h"
#include "shell/Global.h"

namespace sorvane {

class DigitCapture final : public TicketCapture {
    QWidget slip_, header_;  // declared before the controls in them

  public:
    explicit DigitCapture(GameWindow& window);

    forms::LabelFrame fraWayPlayed{"fraWayPlayed", "Way Played"};
    forms::LabelFrame fraWager{"fraWager", "Wager"};
    forms::ControlArray<forms::OptionButton> optPlayOpt{"optPlayOpt"};
    forms::OptionButton optOneDollar{"optOneDollar", "$1.00"};
    forms::OptionButton optTwoDollars{"optTwoDollars", "$2.00"};
    forms::OptionButton optFiveDollars{"optFiveDollars", "$5.00"};
    forms::OptionButton optTenDollars{"optTenDollars", "$10.00"};
    forms::ControlArray<forms::Label> lblNumber{"lblNumber"};
    forms::ControlArray<forms::ComboBox> cboNumber{"cboNumber"};

    QWidget& Slip() override { return slip_; }
    QWidget* Header() override { return &header_; }
    void AddToTabOrder(std::vector<QWidget*>& order) override;
    void AddChoicesToTabOrder(std::vector<QWidget*>& order) override;
    bool EndsAtAButton() const override { return true; }
    void Load() override;
    void ForgetChoices() override;
    void Close() override {}
    void Open() override {}
    void NextSheet() override;
    void FocusFirst() override;
    void FocusAtNextSheet() override { FocusFirst(); }
    // StorePick3Ticket, StorePick4Ticket.
    void StoreTicket() override;
    void Next() override;
    void Correct() override;
    int TicketsOnSheet() const override { return g_.NoOfTicketsOnSheet; }
    bool SheetIsFull() const override;
    void SaveSheet(const StoreArgs& at) override;
    // The Florida games reckon with "$1.00" or "$2.00"; with neither chosen, Dollars as it was.
    std::string AmountAtCount(int tickets) const override;

  private:
    void MakeControls();
    void AttachHandlers();
    void LayOutSlip();
    void LayOutHeader();
    void optPlayOpt_Click(int Index);
    void TakeWager(WagerOption option);
    void TicketComplete();
    void OpenEncorePhase();
    void NextEncore();
    void EmptyLists();
    void EnableLists(bool enabled);
    template <class Ticket>
    void Store(Array<Ticket>& tickets);

    GameWindow& window_;
    Global& g_;
    const int digits_;
};

}  // namespace sorvane

// Keno tickets: numbers on the grid; in frmKeno70 as many as chosen for the ticket, with a wager of its own.
#pragma once

#include <QWidget>

#include "entry/ui/LottoCapture.h"
#include "forms/ComboBox.h"
#include "forms/Label.h"

namespace sorvane {

class KenoCapture final : public LottoCapture {
    QWidget header_;  // declared before the controls in it

  public:
    explicit KenoCapture(GameWindow& window);

    forms::Label lblNoOfBalls{"lblNoOfBalls", "# Of Balls Played on this Ticket:"};
    forms::ComboBox cboNoOfBallsPerTicket{"cboNoOfBallsPerTicket"};
    forms::Label lblWager{"lblWager", "Wager:  $"};
    forms::ComboBox cboWager{"cboWager"};

    QWidget* Header() override { return &header_; }
    void AddToTabOrder(std::vector<QWidget*>& order) override;
    void Load() override;
    void ForgetChoices() override;
    // StoreKenoTicket. With no box ticked the ticket's numbers stay: the last ticket of a sheet is stored
    // again when the add-on phase opens and when the sheet is saved, its grid cleared by then.
    void StoreTicket() override;
    void Next() override;
    void SaveSheet(const StoreArgs& at) override;

  private:
    void LayOut();
    void chkNumb_Click(int Index) override;
    int NumbersWanted() const override;
    void cboNoOfBallsPerTicket_LostFocus();
    void cboWager_LostFocus();
    // The last ticket of the sheet is complete, and Encore numbers follow.
    void OfferEncore();
    bool IsKeno70() const;
    bool AnyTicked() const;

    bool aTicketIsStored_ = false;  // in this entry: its wager has decided the amount
};

}  // namespace sorvane

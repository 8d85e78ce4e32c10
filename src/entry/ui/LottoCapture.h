// Tickets picked on the grid of numbers: frm649, and with bonus tickets frm749 and frm645.
#pragma once

#include <string>
#include <vector>

#include "entry/ui/NumberGrid.h"
#include "entry/ui/TicketCapture.h"
#include "forms/CheckBox.h"
#include "shell/Global.h"

namespace sorvane {

// The plain grid of frm649: six numbers a ticket.
class LottoCapture : public TicketCapture {
  public:
    explicit LottoCapture(GameWindow& window);

    QWidget& Slip() override { return grid_; }
    void AddToTabOrder(std::vector<QWidget*>& order) override;
    void Load() override;
    void Close() override;
    void Open() override { grid_.SetOpen(true); }
    void NextSheet() override;
    void FocusFirst() override { grid_.FocusFirst(); }
    void FocusAtNextSheet() override;
    void StoreTicket() override;
    void Next() override;
    void Correct() override;
    Marks Marked() const override;
    int TicketsOnSheet() const override { return g_.NoOfTicketsOnSheet; }
    bool SheetIsFull() const override;
    void SaveSheet(const StoreArgs& at) override;
    std::string AmountAtCount(int tickets) const override;

  protected:
    // chkNumb has changed.
    virtual void chkNumb_Click(int Index);
    // Counts a number that was ticked or unticked; true when the ticket is complete.
    bool CountNumber(int Index);
    // How many numbers make a ticket.
    virtual int NumbersWanted() const;
    // The last ticket of the sheet is complete: on to the add-ons, or to saving.
    void SheetComplete();
    // Puts the ticked numbers in rising order into the slots, and the draw date; `clear` unticks them.
    template <class Ticket>
    void TakeNumbers(Ticket& ticket, bool clear);
    // What every storing does before and after the ticket is put into its array (`more`: further tickets
    // follow on this sheet).
    void BeforeStoring();
    void AfterStoring(bool more);
    void ShowTicketTitle();

    GameWindow& window_;
    Global& g_;
    NumberGrid grid_;
};

template <class Ticket>
void LottoCapture::TakeNumbers(Ticket& ticket, bool clear) {
    int slot = 0;
    for (int i = 0; i < grid_.Count(); ++i) {
        if (grid_.chkNumb(i).Value() == 0) continue;
        ticket.Numbers(slot++) = i + 1;
        if (clear) grid_.chkNumb(i).SetValue(0);
    }
    ticket.DrawDate = g_.DrawDate;
}

// Bonus tickets behind the bought ones of a sheet: two for each Super 7 ticket, one for each Lottario ticket.
class BonusCapture : public LottoCapture {
  public:
    explicit BonusCapture(GameWindow& window) : LottoCapture(window) {}

    void StoreTicket() override;
    void Next() override;
    void BeforeCorrection() override;
    void Correct() override;
    int TicketsOnSheet() const override { return SheetTotal(); }
    bool SheetIsFull() const override;
    void SaveSheet(const StoreArgs& at) override;

  protected:
    void chkNumb_Click(int Index) override;
    // A bought ticket is complete.
    virtual void BoughtTicketComplete();
    // A bonus ticket is complete; counts it.
    virtual void CountBonusTicket();
    void BeginBonusPhase();
    bool HasBonus() const;
    int SheetTotal() const;  // bonus tickets counted in
};

// Lottario: the early bird, and a mark that carries over to the next bought ticket.
class LottarioCapture final : public BonusCapture {
  public:
    explicit LottarioCapture(GameWindow& window);

    forms::CheckBox chkEarlybird{"chkEarlybird", "Earlybird Played"};

    void AddMarks(QBoxLayout& marks) override;
    void AddToTabOrder(std::vector<QWidget*>& order) override;
    void StoreTicket() override;
    void Next() override;
    void SaveSheet(const StoreArgs& at) override;

  private:
    void BoughtTicketComplete() override;
    void CountBonusTicket() override;
};

}  // namespace sorvane

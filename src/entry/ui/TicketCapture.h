// How the ticket in hand is filled: one class for each kind of play slip.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "store/StoreRoutine.h"

class QBoxLayout;
class QWidget;

namespace sorvane {

class GameWindow;

// Captures work on the window's controls directly; `cmdNext_Ticket.Caption` is the state of the flow.
class TicketCapture {
  public:
    virtual ~TicketCapture() = default;

    // The play slip, laid out, to stand in fraTickets; and what belongs above it (null: nothing).
    virtual QWidget& Slip() = 0;
    virtual QWidget* Header() { return nullptr; }
    // Adds the marks that stand beside chkRegular (chkEarlybird).
    virtual void AddMarks(QBoxLayout&) {}
    // The slip's controls in the order of Tab, and what is chosen for the whole entry and comes before the
    // count of tickets.
    virtual void AddToTabOrder(std::vector<QWidget*>& order) = 0;
    virtual void AddChoicesToTabOrder(std::vector<QWidget*>&) {}
    // Whether leaving the slip forwards leads to a button, so that nothing behind it is reached by Tab.
    virtual bool EndsAtAButton() const { return false; }

    // Lists and counts of numbers as Form_Load and cmdCancel leave them.
    virtual void Load() = 0;
    // Form_Load alone: the way of play, the wager and the number of balls chosen are forgotten.
    virtual void ForgetChoices() {}
    // The slip cleared and disabled; lists of digits are live from the start.
    virtual void Close() = 0;
    // The count of tickets was accepted.
    virtual void Open() = 0;
    // A further sheet begins: the slip enabled and cleared.
    virtual void NextSheet() = 0;
    // The first field or number, when it is enabled (where Enter in the add-on count leads).
    virtual void FocusFirst() = 0;
    // Where the focus goes when a further sheet begins.
    virtual void FocusAtNextSheet() = 0;

    // Puts the ticket on the slip into its global array: StoreLotto6Ticket and its like.
    virtual void StoreTicket() = 0;
    // What cmdNext_Ticket does at its present caption.
    virtual void Next() = 0;
    // cmdCorrection: what is taken back before the count of tickets falls, and the slip opened anew after it.
    virtual void BeforeCorrection() {}
    virtual void Correct() = 0;
    // How far the ticket in hand is: numbers marked of those wanted, 0 where there are none to mark.
    struct Marks {
        int marked = 0, wanted = 0;
    };
    virtual Marks Marked() const { return {}; }
    // How many tickets the sheet in hand takes, bonus tickets counted in; 0 while that is not known.
    virtual int TicketsOnSheet() const = 0;
    // Whether the sheet may be written.
    virtual bool SheetIsFull() const = 0;
    // The writer of its shape.
    virtual void SaveSheet(const StoreArgs& at) = 0;
    // The amount put in when the count is accepted.
    virtual std::string AmountAtCount(int tickets) const = 0;
};

// The capture of the window's family.
std::unique_ptr<TicketCapture> MakeCapture(GameWindow& window);

}  // namespace sorvane

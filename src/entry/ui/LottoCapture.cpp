#include "entry/ui/LottoCapture.h"

#include <QBoxLayout>

#include "entry/Amounts.h"
#include "entry/SaveData.h"
#include "entry/ui/GameWindow.h"
#include "platform/Text.h"
#include "shell/Catalogue.h"
#include "shell/FamilyFacts.h"

namespace sorvane {

namespace {

// Captions of cmdNext_Ticket; what they say is what its next click does.
constexpr std::string_view NextTicket = "&Next Ticket";
constexpr std::string_view BonusTickets = "&Bonus Tickets";
constexpr std::string_view NextBonus = "Next &Bonus";
// What a correction among the bonus tickets writes. It is not the caption that the click looks for: meant.
constexpr std::string_view CorrectedBonus = "&Next Bonus";

constexpr PerFamily<int> GridColumns{{10, 10, 9, 10, 10, NoSuch, NoSuch}};

}  // namespace

LottoCapture::LottoCapture(GameWindow& window)
    : window_(window),
      g_(window.session.global),
      grid_(FamilyFacts::CountOfNumbers(window.Which), GridColumns[window.Which]) {
    grid_.SetOpen(false);
    grid_.chkNumb.OnClick([this](int Index) { chkNumb_Click(Index); });
}

void LottoCapture::AddToTabOrder(std::vector<QWidget*>& order) {
    grid_.chkNumb.ForEach([&](forms::NumberBall& ball, int) { order.push_back(&ball); });
}

void LottoCapture::Load() { window_.State.NumbersPerTicket = FamilyFacts::NumbersPerTicket[window_.Which]; }

void LottoCapture::Close() {
    grid_.Clear();
    grid_.SetOpen(false);
}

void LottoCapture::NextSheet() {
    grid_.SetOpen(true);
    grid_.Clear();
}

void LottoCapture::FocusAtNextSheet() {
    FocusFirst();  // where no add-on is counted
    window_.Enter.AddOns.FocusCount();
}

bool LottoCapture::CountNumber(int Index) {
    if (grid_.chkNumb(Index).Value() == 1) g_.NumbersPicked += 1;
    else if (g_.NumbersPicked > 0) g_.NumbersPicked -= 1;
    return g_.NumbersPicked == NumbersWanted();
}

int LottoCapture::NumbersWanted() const { return FamilyFacts::NumbersPerTicket[window_.Which]; }

void LottoCapture::chkNumb_Click(int Index) {
    if (!CountNumber(Index)) return;
    grid_.SetOpen(false);
    g_.TicketNo += 1;
    window_.Enter.cmdCorrection.SetEnabled(true);
    g_.Correcting = Off;
    if (g_.TicketNo < g_.NoOfTicketsOnSheet) window_.Enter.cmdNext_Ticket.SetEnabled(true);
    else if (g_.TicketNo == g_.NoOfTicketsOnSheet) SheetComplete();
}

void LottoCapture::SheetComplete() {
    if (window_.Enter.AddOns.OfferPhase()) return;
    window_.Enter.cmdNext_Ticket.SetEnabled(false);
    window_.Enter.cmdSave.SetEnabled(true);
}

void LottoCapture::ShowTicketTitle() { window_.Enter.ShowTitle("Ticket #", g_.TicketNo + 1); }

void LottoCapture::Next() {
    if (window_.Enter.cmdNext_Ticket.Caption() != NextTicket) {
        window_.Enter.AddOns.Next();
        return;
    }
    if (window_.Enter.chkRegular.Value() == 1) window_.State.RegularOn = On;
    StoreTicket();
    ShowTicketTitle();
}

void LottoCapture::BeforeStoring() { window_.Enter.cmdCorrection.SetEnabled(false); }

void LottoCapture::AfterStoring(bool more) {
    if (more) grid_.SetOpen(true);
    window_.Enter.cmdNext_Ticket.SetEnabled(false);
    g_.NumbersPicked = 0;
    if (more) grid_.FocusFirst();
}

void LottoCapture::StoreTicket() {
    BeforeStoring();
    g_.Lotto6Tickets.RedimPreserve(g_.NoOfTicketsOnSheet);
    Lotto6Ticket& ticket = g_.Lotto6Tickets(g_.TicketNo - 1);
    const int cleared = g_.NoOfTicketsOnSheet * (CellsOf(g_.LottoFlag).ClearsLastGrid ? 2 : 1);
    TakeNumbers(ticket, g_.TicketNo < cleared);
    if (window_.Enter.chkRegular.Value() == 1) ticket.Regular = True;
    AfterStoring(g_.TicketNo < g_.NoOfTicketsOnSheet);
}

TicketCapture::Marks LottoCapture::Marked() const {
    Marks marks{0, NumbersWanted()};
    grid_.chkNumb.ForEach([&](const forms::NumberBall& ball, int) { marks.marked += ball.Value(); });
    return marks;
}

void LottoCapture::Correct() {
    grid_.SetOpen(true);
    grid_.Clear();
    grid_.FocusFirst();
}

bool LottoCapture::SheetIsFull() const { return g_.TicketNo == g_.NoOfTicketsOnSheet; }

void LottoCapture::SaveSheet(const StoreArgs& at) { SaveLotto6Tickets(window_.session, at); }

std::string LottoCapture::AmountAtCount(int tickets) const {
    return DefaultAmount(window_.Which, g_.LottoFlag, tickets);
}

bool BonusCapture::HasBonus() const { return SheetFactor(window_.Which, g_.LottoFlag) > 1; }

int BonusCapture::SheetTotal() const {
    return g_.NoOfTicketsOnSheet * SheetFactor(window_.Which, g_.LottoFlag);
}

bool BonusCapture::SheetIsFull() const { return LottoCapture::SheetIsFull() || g_.TicketNo == SheetTotal(); }

void BonusCapture::chkNumb_Click(int Index) {
    if (window_.State.InNextTicket == On || g_.Correcting == On) return;
    const bool bonus = window_.State.BonusPhase == On;
    if (bonus) window_.Enter.chkRegular.SetEnabled(false);
    if (!CountNumber(Index)) return;
    forms::CommandButton& next = window_.Enter.cmdNext_Ticket;
    const bool bought = next.Caption() == NextTicket;
    grid_.SetOpen(false);
    window_.Enter.cmdCorrection.SetEnabled(true);
    if (bought) g_.TicketNo += 1;
    if (!bought && bonus) {
        next.SetCaption(NextBonus);
        CountBonusTicket();
    }
    // Nothing follows while the number of tickets on the sheet is not known.
    next.SetEnabled(g_.TicketNo < SheetTotal());
    if (bought) BoughtTicketComplete();
    if (g_.TicketNo == SheetTotal()) SheetComplete();
}

void BonusCapture::BeginBonusPhase() {
    window_.Enter.cmdNext_Ticket.SetCaption(BonusTickets);
    window_.State.BonusPhase = On;
}

void BonusCapture::BoughtTicketComplete() {
    if (HasBonus() && g_.TicketNo == g_.NoOfTicketsOnSheet) BeginBonusPhase();
}

void BonusCapture::CountBonusTicket() { g_.TicketNo += 1; }

void BonusCapture::Next() {
    const std::string caption = window_.Enter.cmdNext_Ticket.Caption();
    if (caption == BonusTickets) {
        StoreTicket();
        window_.Enter.chkRegular.SetValue(0);
        window_.Enter.chkRegular.SetEnabled(false);
        window_.Enter.ShowTitle("Bonus Ticket #", 1);
    } else if (caption == NextBonus) {
        StoreTicket();
        window_.Enter.ShowTitle("Bonus Ticket #", g_.TicketNo - g_.NoOfTicketsOnSheet + 1);
    } else {
        LottoCapture::Next();
    }
}

void BonusCapture::StoreTicket() {
    BeforeStoring();
    g_.Lotto7Tickets.RedimPreserve(SheetTotal());
    Lotto7Ticket& ticket = g_.Lotto7Tickets(g_.TicketNo - 1);
    const bool more = g_.TicketNo < SheetTotal();
    TakeNumbers(ticket, more);
    if (window_.Enter.chkRegular.Value() == 1) ticket.Regular = True;
    AfterStoring(more);
}

void BonusCapture::BeforeCorrection() {
    forms::CheckBox& chkRegular = window_.Enter.chkRegular;
    const bool bonus = window_.State.BonusPhase == On;
    const bool lastBought = g_.TicketNo == g_.NoOfTicketsOnSheet && bonus;
    if (lastBought || (g_.TicketNo < g_.NoOfTicketsOnSheet && !bonus)) {
        chkRegular.SetEnabled(true);
        if (window_.State.RegularOn == On) chkRegular.SetValue(1);
        if (!lastBought) return;
        window_.State.BonusPhase = Off;
        window_.Enter.cmdNext_Ticket.SetCaption(NextTicket);
        return;
    }
    const bool among = g_.TicketNo > g_.NoOfTicketsOnSheet && g_.TicketNo < g_.NoOfTickets && bonus;
    if (!among && g_.TicketNo != g_.NoOfTickets) return;
    window_.Enter.cmdNext_Ticket.SetCaption(CorrectedBonus);
    chkRegular.SetValue(0);
    chkRegular.SetEnabled(false);
}

void BonusCapture::Correct() {
    if (g_.TotalTickets > 0) g_.TotalTickets -= 1;
    LottoCapture::Correct();
    g_.Correcting = Off;  // at once; the clearing of the grid counted nothing
}

void BonusCapture::SaveSheet(const StoreArgs& at) { SaveLotto7Tickets(window_.session, at); }

LottarioCapture::LottarioCapture(GameWindow& window) : BonusCapture(window) {
    chkEarlybird.OnClick([this] { g_.EarlyBirdPlayed = chkEarlybird.Value() == 1 ? True : Off; });
}

void LottarioCapture::AddMarks(QBoxLayout& marks) { marks.addWidget(&chkEarlybird); }

void LottarioCapture::AddToTabOrder(std::vector<QWidget*>& order) {
    BonusCapture::AddToTabOrder(order);
    order.push_back(&chkEarlybird);
}

void LottarioCapture::BoughtTicketComplete() {
    if (g_.TicketNo == g_.NoOfTicketsOnSheet) {
        BeginBonusPhase();
        if (window_.Enter.chkRegular.Value() == 1) g_.RegularMarked = True;
    } else if (g_.SheetTickets - g_.TotalTickets == g_.TicketNo) {
        BeginBonusPhase();
    }
    if (g_.TicketNo != g_.NoOfTicketsOnSheet || g_.TotalTickets != g_.SheetTickets) return;
    window_.Enter.cmdNext_Ticket.SetCaption(NextTicket);
    window_.Enter.cmdNext_Ticket.SetEnabled(false);
    window_.Enter.cmdSave.SetEnabled(true);
    window_.State.BonusPhase = Off;
}

void LottarioCapture::CountBonusTicket() {
    g_.TicketNo += 1;
    g_.TotalTickets += 1;
}

void LottarioCapture::Next() {
    forms::CheckBox& chkRegular = window_.Enter.chkRegular;
    if (chkRegular.Value() == 1) g_.RegularMarked = True;
    BonusCapture::Next();
    if (g_.RegularMarked != True || window_.State.BonusPhase != Off) return;
    chkRegular.SetEnabled(true);
    chkRegular.SetValue(1);
    g_.RegularMarked = Off;
}

void LottarioCapture::StoreTicket() {
    BeforeStoring();
    g_.Lotto6Tickets.RedimPreserve(SheetTotal());
    Lotto6Ticket& ticket = g_.Lotto6Tickets(g_.TicketNo - 1);
    const bool more = g_.TicketNo < SheetTotal();
    TakeNumbers(ticket, more);
    ticket.Regular = window_.Enter.chkRegular.Value() == 1 ? True : Off;
    ticket.EarlyBird = chkEarlybird.Value() == 1 ? True : Off;
    AfterStoring(more);
}

void LottarioCapture::SaveSheet(const StoreArgs& at) { SaveLottarioTickets(window_.session, at); }

}  // namespace sorvane

#include "entry/ui/KenoCapture.h"

#include <QHBoxLayout>

#include "entry/SaveData.h"
#include "entry/ui/GameWindow.h"
#include "forms/Look.h"
#include "platform/Text.h"
#include "shell/Catalogue.h"

namespace sorvane {

namespace {

constexpr int MostBalls = 10, FewestBalls = 2;
constexpr std::string_view Wagers[] = {"10.00", "5.00", "2.00", "1.00"};
constexpr int ChoiceDigits = 6;

void FillBalls(forms::ComboBox& list) {
    list.Clear();
    for (int balls = MostBalls; balls >= FewestBalls; --balls) list.AddItem(Str(balls));
}

}  // namespace

KenoCapture::KenoCapture(GameWindow& window) : LottoCapture(window) {
    LayOut();
    if (!IsKeno70()) return;  // frmKeno80 has the lists, but nothing happens when they are left
    cboNoOfBallsPerTicket.OnGotFocus([this] { cboNoOfBallsPerTicket.SelectAll(); });
    cboNoOfBallsPerTicket.OnLostFocus([this] { cboNoOfBallsPerTicket_LostFocus(); });
    cboWager.OnLostFocus([this] { cboWager_LostFocus(); });
}

void KenoCapture::LayOut() {
    lblNoOfBalls.SetBuddy(cboNoOfBallsPerTicket);
    lblWager.SetBuddy(cboWager);
    const int space = forms::Look::Space(header_);
    auto* choices = forms::Look::Row(header_);
    header_.setLayout(choices);
    choices->setContentsMargins(0, 0, 0, 0);
    choices->setSpacing(3 * space);
    for (const auto& [label, list] :
         {std::pair{&lblNoOfBalls, &cboNoOfBallsPerTicket}, {&lblWager, &cboWager}}) {
        auto* choice = new QHBoxLayout;
        choice->setSpacing(space);
        choice->addWidget(label);
        choice->addWidget(list);
        choice->addStretch(1);
        choices->addLayout(choice);
    }
    choices->addStretch(1);
    for (forms::ComboBox* list : {&cboNoOfBallsPerTicket, &cboWager})
        list->setMinimumWidth(forms::Look::DigitsWidth(header_, ChoiceDigits) + forms::Look::Gap(header_));
}

bool KenoCapture::IsKeno70() const { return window_.Which == Family::frmKeno70; }

int KenoCapture::NumbersWanted() const {
    return IsKeno70() ? int{g_.NoOfBallsPerTicket} : LottoCapture::NumbersWanted();
}

void KenoCapture::AddToTabOrder(std::vector<QWidget*>& order) {
    order.push_back(&cboNoOfBallsPerTicket);
    order.push_back(&cboWager);
    LottoCapture::AddToTabOrder(order);
}

void KenoCapture::Load() {
    LottoCapture::Load();
    aTicketIsStored_ = false;
    if (!CellsOf(g_.LottoFlag).FillsLists) return;
    FillBalls(cboNoOfBallsPerTicket);
    FillBalls(*window_.QuickPick.cboNoOfQPs);
    cboWager.Clear();
    for (const std::string_view wager : Wagers) cboWager.AddItem(wager);
}

void KenoCapture::ForgetChoices() {
    g_.Wager = 0;
    g_.NoOfBallsPerTicket = 0;
}

// The only step that opens the grid of frmKeno70; it needs no wager.
void KenoCapture::cboNoOfBallsPerTicket_LostFocus() {
    if (cboNoOfBallsPerTicket.Text().empty()) cboNoOfBallsPerTicket.SetText(Str(FewestBalls));
    g_.NoOfBallsPerTicket = CInt(cboNoOfBallsPerTicket.Text());
    grid_.SetOpen(true);
    window_.Enter.fraTicketNumber.RefreshHint();
}

void KenoCapture::cboWager_LostFocus() {
    if (cboWager.Text().empty()) {
        g_.Msg = "Please select a valid Wager from the options provided and try again.";
        window_.MsgBox(g_.Msg, BoxStyle::Ok, "Please Select Wager...");
        cboWager.SetFocus();
        return;
    }
    const bool amountIsOpen = window_.Enter.txtDollars.Enabled();
    // On later sheets the wager stays as well.
    if (amountIsOpen && window_.State.CurrentSheet > 1) return;
    g_.Wager = CInt(cboWager.Text());
    if (!amountIsOpen || aTicketIsStored_) return;
    g_.Dollars = Str(long{g_.SheetTickets} * g_.Wager) + ".00";
    window_.Enter.txtDollars.SetText(g_.Dollars);
}

void KenoCapture::chkNumb_Click(int Index) {
    // A ticket without a number is never complete: clearing the grid at load fires Clicks too.
    if (!CountNumber(Index) || g_.NumbersPicked == 0) return;
    g_.TicketNo += 1;
    grid_.SetOpen(false);
    // A ticket that has been re-entered is not offered again.
    if (g_.Correcting == On) g_.Correcting = Off;
    else window_.Enter.cmdCorrection.SetEnabled(true);
    const bool last = g_.TicketNo == g_.NoOfTicketsOnSheet;
    window_.Enter.cmdNext_Ticket.SetEnabled(!last);
    window_.Enter.cmdSave.SetEnabled(last);
    if (last && IsKeno70() && window_.Enter.AddOns.Count() > 0) OfferEncore();
}

void KenoCapture::OfferEncore() {
    window_.Enter.cmdNext_Ticket.SetCaption(AddOnCaption::EnterEncore);
    window_.Enter.cmdNext_Ticket.SetEnabled(true);
    window_.Enter.cmdSave.SetEnabled(false);
}

void KenoCapture::Next() {
    const std::string caption = window_.Enter.cmdNext_Ticket.Caption();  // as it was when the click came
    AddOnCapture& addOns = window_.Enter.AddOns;
    StoreTicket();
    ShowTicketTitle();
    if (!IsKeno70()) return;
    cboWager.SetFocus();
    if (addOns.Count() > 0 && CellsOf(g_.LottoFlag).EncoreByGame && g_.TicketNo == g_.NoOfTicketsOnSheet) {
        addOns.lblExtra->SetCaption("Encore Numbers");
        addOns.ShowEncore();
    }
    if (caption == AddOnCaption::EnterEncore && addOns.Count() >= 1)
        window_.Enter.cmdNext_Ticket.SetCaption(AddOnCaption::NextEncore);
    if (caption == AddOnCaption::NextEncore) {
        addOns.StoreAddOnTicket(g_.ExtraNo);
        g_.ExtraNo += 1;
        addOns.txtEncore->SetText("");
    }
}

bool KenoCapture::AnyTicked() const {
    bool any = false;
    grid_.chkNumb.ForEach([&](const forms::NumberBall& ball, int) { any = any || ball.Value() == 1; });
    return any;
}

void KenoCapture::StoreTicket() {
    BeforeStoring();
    g_.KenoTickets.RedimPreserve(g_.NoOfTicketsOnSheet);
    KenoTicket& ticket = g_.KenoTickets(g_.TicketNo - 1);
    g_.NumbersPicked = 0;  // clearing the boxes must not complete another ticket
    if (AnyTicked()) ticket.Numbers = {};
    TakeNumbers(ticket, true);
    ticket.Wager = g_.Wager;
    ticket.NoOfBalls = g_.NoOfBallsPerTicket;
    ticket.Regular = window_.Enter.chkRegular.Value() == 1 ? True : Off;
    aTicketIsStored_ = true;
    AfterStoring(g_.TicketNo < g_.NoOfTicketsOnSheet);
}

void KenoCapture::SaveSheet(const StoreArgs& at) { SaveKenoTickets(window_.session, at); }

}  // namespace sorvane

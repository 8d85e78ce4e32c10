#include "entry/ui/DigitCapture.h"

#include <QHBoxLayout>
#include <QVBoxLayout>
#include <array>

#include "entry/SaveData.h"
#include "entry/ui/GameWindow.h"
#include "forms/Look.h"
#include "platform/Text.h"
#include "shell/Catalogue.h"
#include "shell/FamilyFacts.h"

namespace sorvane {

namespace {

constexpr std::string_view Places[] = {"1st", "2nd", "3rd", "4rth"};  // so spelled
constexpr std::string_view WayCaptions[] = {"Straight", "Box", "Straight && Scramble",
                                            "Straight && Scramble"};
constexpr std::array<int, 2> WaysShown{3, 2};  // of three digits, of four; a game's dressing may differ
constexpr std::string_view FirstDigit = "0";
constexpr double DigitScale = 1.6;

}  // namespace

DigitCapture::DigitCapture(GameWindow& window)
    : window_(window), g_(window.session.global), digits_(FamilyFacts::NumbersPerTicket[window.Which]) {
    MakeControls();
    AttachHandlers();
    LayOutSlip();
    LayOutHeader();
}

void DigitCapture::MakeControls() {
    for (int i = 0; i < digits_; ++i) {
        const std::string_view place = Places[i];
        lblNumber.Load(i, place).SetBuddy(cboNumber.Load(i, forms::ComboBox::Style::ListOnly));
        cboNumber(i).SetAccessibleName(std::string(place) + " digit");
    }
    const int shown = WaysShown[window_.Which == Family::frmPick3 ? 0 : 1];
    int way = 0;
    for (const std::string_view caption : WayCaptions) {
        optPlayOpt.Load(way, caption).SetVisible(way < shown);
        ++way;
    }
}

void DigitCapture::AttachHandlers() {
    cboNumber.OnLostFocus([this](int Index) {
        if (Index == digits_ - 1) TicketComplete();
    });
    optPlayOpt.OnClick([this](int Index) { optPlayOpt_Click(Index); });
    optOneDollar.OnClick([this] { TakeWager(WagerOption::One); });
    optTwoDollars.OnClick([this] { TakeWager(WagerOption::Two); });
    optFiveDollars.OnClick([this] { TakeWager(WagerOption::Five); });
    optTenDollars.OnClick([this] { TakeWager(WagerOption::Ten); });
}

void DigitCapture::LayOutSlip() {
    const int gap = forms::Look::Gap(slip_);
    auto* digits = new QHBoxLayout;
    const bool narrow = forms::Look::IsNarrow(slip_);
    digits->setSpacing(narrow ? gap : 2 * gap);
    digits->addStretch();
    cboNumber.ForEach([&](forms::ComboBox& list, int i) {
        if (!narrow) forms::Look::Enlarge(list, DigitScale);
        auto* place = new QVBoxLayout;
        place->setSpacing(gap / 2);
        place->addWidget(&lblNumber(i), 0, Qt::AlignHCenter);
        place->addWidget(&list);
        digits->addLayout(place);
    });
    digits->addStretch();
    auto* whole = new QVBoxLayout(&slip_);
    whole->addStretch(1);
    whole->addLayout(digits);
    whole->addStretch(2);
}

void DigitCapture::LayOutHeader() {
    const int gap = forms::Look::Gap(header_);
    auto* ways = new QHBoxLayout(&fraWayPlayed);
    auto* wagers = new QHBoxLayout(&fraWager);
    optPlayOpt.ForEach([&](forms::OptionButton& way, int) { ways->addWidget(&way); });
    for (forms::OptionButton* wager : {&optOneDollar, &optTwoDollars, &optFiveDollars, &optTenDollars})
        wagers->addWidget(wager);
    for (QHBoxLayout* row : {ways, wagers}) {
        row->setSpacing(2 * gap);
        row->addStretch();
    }
    auto* whole = new QVBoxLayout(&header_);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->setSpacing(gap / 2);
    whole->addWidget(&fraWayPlayed);
    whole->addWidget(&fraWager);
}

void DigitCapture::AddChoicesToTabOrder(std::vector<QWidget*>& order) {
    optPlayOpt.ForEach([&](forms::OptionButton& way, int) { order.push_back(&way); });
    for (forms::OptionButton* wager : {&optOneDollar, &optTwoDollars, &optFiveDollars, &optTenDollars})
        order.push_back(wager);
}

void DigitCapture::AddToTabOrder(std::vector<QWidget*>& order) {
    cboNumber.ForEach([&](forms::ComboBox& list, int) { order.push_back(&list); });
}

void DigitCapture::Load() {
    window_.State.NumbersPerTicket = FamilyFacts::NumbersPerTicket[window_.Which];
    const int lowest = FamilyFacts::LowestNumber[window_.Which];
    const int highest = FamilyFacts::HighestNumber[window_.Which];
    cboNumber.ForEach([&](forms::ComboBox& list, int) {
        list.Clear();
        for (int digit = lowest; digit <= highest; ++digit) list.AddItem(Str(digit));
    });
    NextSheet();
    fraWayPlayed.SetEnabled(true);
}

void DigitCapture::ForgetChoices() { g_.PlayOption.clear(); }

void DigitCapture::NextSheet() {
    EnableLists(true);
    EmptyLists();
}

void DigitCapture::EmptyLists() {
    cboNumber.ForEach([](forms::ComboBox& list, int) { list.SetText(FirstDigit); });
}

void DigitCapture::EnableLists(bool enabled) {
    cboNumber.ForEach([&](forms::ComboBox& list, int) { list.SetEnabled(enabled); });
}

void DigitCapture::FocusFirst() { cboNumber(0).SetFocus(); }

void DigitCapture::optPlayOpt_Click(int Index) {
    const GameKey* key = FindKey(window_.Which, g_.LottoFlag);
    const std::string_view way = key ? key->Ways.at(static_cast<std::size_t>(Index)) : std::string_view();
    if (!way.empty()) g_.PlayOption = way;
    if (!key || Index != key->WayOfTwoUnits || !optOneDollar.Value()) return;
    optOneDollar.SetValue(false);
    optTwoDollars.SetValue(true);
}

void DigitCapture::TakeWager(WagerOption option) {
    const int tickets = IntegerPart(window_.txtNoOfTickets(0).Text());
    g_.Dollars = WagerAmount(option, g_.LottoFlag, tickets);
    window_.Enter.txtDollars.SetText(g_.Dollars);
    // The option goes off, but PlayOption keeps its name.
    if (option == WagerOption::One && HasHalfWagers(g_.LottoFlag) && optPlayOpt(2).Value())
        optPlayOpt(2).SetValue(false);
}

std::string DigitCapture::AmountAtCount(int tickets) const {
    if (!HasHalfWagers(g_.LottoFlag)) return DefaultAmount(window_.Which, g_.LottoFlag, tickets);
    if (optOneDollar.Value()) return WagerAmount(WagerOption::One, g_.LottoFlag, tickets);
    if (optTwoDollars.Value()) return WagerAmount(WagerOption::Two, g_.LottoFlag, tickets);
    return g_.Dollars;
}

// Leaving the last list ends the ticket each time, whether a digit was chosen or not.
void DigitCapture::TicketComplete() {
    EnterTicketsTab& tab = window_.Enter;
    g_.TicketNo += 1;
    tab.fraTicketNumber.RefreshHint();
    g_.Correcting = Off;
    tab.cmdNext_Ticket.SetEnabled(true);
    tab.cmdCorrection.SetEnabled(true);
    tab.cmdNext_Ticket.SetFocus();
    if (g_.TicketNo != g_.NoOfTicketsOnSheet) return;
    if (AddOnOf(g_.ExtraFlag).NumbersInTurn() && tab.AddOns.CountIsAboveZero()) {
        tab.cmdNext_Ticket.SetCaption(AddOnCaption::EnterEncore);
        return;
    }
    tab.cmdNext_Ticket.SetEnabled(false);
    tab.cmdSave.SetEnabled(true);
    tab.cmdSave.SetFocus();
}

void DigitCapture::Next() {
    const std::string caption = window_.Enter.cmdNext_Ticket.Caption();
    if (caption == AddOnCaption::EnterEncore) return OpenEncorePhase();
    if (caption == AddOnCaption::NextEncore) return NextEncore();
    StoreTicket();
    EmptyLists();
    FocusFirst();
    fraWayPlayed.SetEnabled(false);  // fixed after the first ticket
    window_.Enter.ShowTitle("Ticket #", g_.TicketNo + 1);
}

void DigitCapture::OpenEncorePhase() {
    EnableLists(false);
    window_.Enter.chkRegular.SetEnabled(false);
    g_.ExtraNo = 0;
    window_.Enter.AddOns.ShowTitle(AddOnCaption::EncoreTitle);
    window_.Enter.AddOns.ShowEncore();
    window_.Enter.cmdNext_Ticket.SetCaption(AddOnCaption::NextEncore);
}

void DigitCapture::NextEncore() {
    AddOnCapture& addOns = window_.Enter.AddOns;
    addOns.StoreAddOnTicket(g_.ExtraNo);
    g_.ExtraNo += 1;
    addOns.ShowTitle(AddOnCaption::EncoreTitle);
    addOns.EmptyEncore();
}

template <class Ticket>
void DigitCapture::Store(Array<Ticket>& tickets) {
    tickets.RedimPreserve(g_.NoOfTicketsOnSheet);
    Ticket& ticket = tickets(g_.TicketNo - 1);
    cboNumber.ForEach([&](forms::ComboBox& list, int i) { ticket.Numbers(i) = CInt(list.Text()); });
    if (window_.Enter.chkRegular.Value() == 1) ticket.Regular = True;  // and never taken back
}

void DigitCapture::StoreTicket() {
    window_.Enter.cmdCorrection.SetEnabled(false);
    if (window_.Which == Family::frmPick3) Store(g_.Pick3Tickets);
    else Store(g_.Pick4Tickets);
}

void DigitCapture::Correct() {
    NextSheet();
    FocusFirst();
}

bool DigitCapture::SheetIsFull() const { return g_.TicketNo == g_.NoOfTicketsOnSheet; }

void DigitCapture::SaveSheet(const StoreArgs& at) {
    if (window_.Which == Family::frmPick3) SavePick3Tickets(window_.session, at);
    else SavePick4Tickets(window_.session, at);
}

}  // namespace sorvane

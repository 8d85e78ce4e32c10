#include "entry/ui/EnterTicketsTab.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>
#include <algorithm>

#include "entry/EntryFacts.h"
#include "entry/ui/GameWindow.h"
#include "forms/Look.h"
#include "platform/Text.h"

namespace sorvane {

namespace {

constexpr int CountDigits = 5;
constexpr int AmountDigits = 10;

// A caption above its field.
QVBoxLayout* Above(std::initializer_list<QWidget*> labels, QWidget& field) {
    auto* pair = new QVBoxLayout;
    pair->setSpacing(forms::Look::Space(field) / 2);
    for (QWidget* label : labels) pair->addWidget(label);
    pair->addWidget(&field, 0, Qt::AlignLeft);
    return pair;
}

}  // namespace

EnterTicketsTab::EnterTicketsTab(GameWindow& window)
    : lblNoTickets(HasLabel1[window.Which] ? "Label1" : "lblNoTickets", "# of Tickets Played:"),
      AddOns(window),
      window_(window) {
    window.dtpEnterTickets.Load(0).SetAccessibleName("Draw Date");
    forms::TextBox& count = window.txtNoOfTickets.Load(0);
    count.SetText("0");
    count.SetAccessibleName("Number of tickets played");
    txtDollars.SetText(NoDollars);
    txtDollars.SetAccessibleName("Dollars spent");
    window.cmdExit.Load(0, "E&xit");
    // Which of the two labels of the money is seen depends on where the game puts the field.
    if (HasDollarsLabel[window.Which]) {
        lblDollars.emplace("lblDollars", "Dollars Spent:   $");
        lblDollarsSpent.SetVisible(false);
    }
    for (forms::CommandButton* button : {&cmdNext_Ticket, &cmdCorrection, &cmdSave})
        button->SetEnabled(false);
    txtDollars.OnKeyPress([this](forms::KeyPress& key) { txtDollars_KeyPress(key); });
    txtDollars.OnChange([this] { txtDollars_Change(); });
    txtDollars.OnGotFocus([this] { txtDollars.SelectAll(); });
    txtDollars.OnLostFocus([this] { txtDollars_LostFocus(); });
    capture_ = MakeCapture(window);
    LayOut();
}

void EnterTicketsTab::LayOut() {
    QWidget& page = window_.Pages[Tab::Enter];
    const int gap = forms::Look::Gap(page);
    forms::TextBox& count = window_.txtNoOfTickets(0);
    for (forms::TextBox* field : {&count, &txtDollars})
        field->setFixedWidth(forms::Look::DigitsWidth(page, field == &count ? CountDigits : AmountDigits));

    auto* head = new QHBoxLayout;
    head->setSpacing(gap * 2);
    lblDrawDate.SetBuddy(window_.dtpEnterTickets(0));
    lblNoTickets.SetBuddy(count);
    head->addLayout(Above({&lblDrawDate}, window_.dtpEnterTickets(0)));
    head->addLayout(Above({&lblNoTickets}, count));
    if (AddOns.txtNoOfExtra) {
        AddOns.txtNoOfExtra->setFixedWidth(forms::Look::DigitsWidth(page, CountDigits));
        AddOns.lblNoOfExtra->SetBuddy(*AddOns.txtNoOfExtra);
        head->addLayout(Above({&*AddOns.lblNoOfExtra}, *AddOns.txtNoOfExtra));
    }
    lblDollarsSpent.SetBuddy(txtDollars);
    if (lblDollars) {
        lblDollars->SetBuddy(txtDollars);
        head->addLayout(Above({&*lblDollars, &lblDollarsSpent}, txtDollars));
    } else {
        head->addLayout(Above({&lblDollarsSpent}, txtDollars));
    }
    head->addStretch(1);

    auto* ticket = new QVBoxLayout(&fraTicketNumber);
    ticket->addWidget(&capture_->Slip(), 1);

    auto* marks = new QHBoxLayout;
    marks->setSpacing(gap);
    marks->addWidget(&chkRegular);
    capture_->AddMarks(*marks);
    marks->addStretch(1);

    auto* addOn = new QHBoxLayout;
    addOn->setSpacing(gap / 2);
    if (AddOns.chkEncore) addOn->addWidget(&*AddOns.chkEncore);
    if (AddOns.lblExtra) addOn->addWidget(&*AddOns.lblExtra);
    if (AddOns.txtEncore) {
        AddOns.txtEncore->setFixedWidth(forms::Look::DigitsWidth(page, AmountDigits));
        addOn->addWidget(&*AddOns.txtEncore);
    }
    AddOns.txtPlay4.ForEach([&](forms::TextBox& box, int) {
        box.setFixedWidth(forms::Look::DigitsWidth(page, 3));
        addOn->addWidget(&box);
    });
    addOn->addStretch(1);

    auto* tickets = new QVBoxLayout(&fraTickets);
    tickets->setSpacing(gap / 2);
    if (QWidget* header = capture_->Header()) tickets->addWidget(header);
    tickets->addWidget(&fraTicketNumber, 1);
    tickets->addLayout(marks);
    tickets->addLayout(addOn);

    auto* buttons = new QVBoxLayout;
    buttons->setSpacing(forms::Look::Space(page));
    buttons->addWidget(&cmdRegular);
    buttons->addSpacing(gap);
    for (QWidget* button : {&cmdNext_Ticket, &cmdCorrection, &cmdSave}) buttons->addWidget(button);
    buttons->addStretch(1);
    buttons->addWidget(&cmdCancel);
    buttons->addWidget(&window_.cmdExit(0));

    auto* body = new QHBoxLayout;
    body->setSpacing(gap);
    body->addWidget(&fraTickets, 1);
    body->addLayout(buttons);

    auto* whole = new QVBoxLayout(&page);
    whole->setContentsMargins(gap, gap, gap, gap);
    whole->setSpacing(gap);
    whole->addLayout(head);
    whole->addLayout(body, 1);
    whole->addWidget(&lblInfo);
    OrderTabs();
    // The count of frmPick4 is there a second time; nothing shows it.
    if (window_.Which != Family::frmPick4) return;
    forms::TextBox& second = window_.txtNoOfTickets.Load(2);
    second.setParent(&page);
    second.SetVisible(false);
}

void EnterTicketsTab::OrderTabs() {
    std::vector<QWidget*> order{&window_.dtpEnterTickets(0), &window_.txtNoOfTickets(0)};
    if (AddOns.txtNoOfExtra) order.push_back(&*AddOns.txtNoOfExtra);
    capture_->AddToTabOrder(order);
    order.push_back(&chkRegular);
    if (AddOns.chkEncore) order.push_back(&*AddOns.chkEncore);
    if (AddOns.txtEncore) order.push_back(&*AddOns.txtEncore);
    AddOns.txtPlay4.ForEach([&](forms::TextBox& box, int) { order.push_back(&box); });
    for (QWidget* last :
         std::initializer_list<QWidget*>{&txtDollars, &cmdNext_Ticket, &cmdCorrection, &cmdSave, &cmdRegular,
                                         &cmdCancel, &window_.cmdExit(0)})
        order.push_back(last);
    for (std::size_t i = 1; i < order.size(); ++i) QWidget::setTabOrder(order[i - 1], order[i]);
}

void EnterTicketsTab::ShowTitle(std::string_view kind, int number) {
    fraTicketNumber.SetCaption(std::string(kind) + Str(number) + " - Sheet " +
                               Str(window_.State.CurrentSheet) + " of " + Str(window_.State.TotalSheets));
}

void EnterTicketsTab::PutAmount(const std::string& amount) {
    window_.run.global.Dollars = amount;
    window_.State.DecimalCount = 1;
    txtDollars.SetText(amount);
}

void EnterTicketsTab::StartAmount() { window_.run.global.Dollars = NoDollars; }

void EnterTicketsTab::TurnButtonsOff() {
    cmdNext_Ticket.SetEnabled(false);
    cmdCorrection.SetEnabled(false);
    cmdSave.SetEnabled(false);
}

void EnterTicketsTab::FirstCaption() {
    cmdNext_Ticket.SetCaption("&Next Ticket");
    chkRegular.SetEnabled(true);
}

void EnterTicketsTab::EmptyFields() {
    txtDollars.SetText("");
    AddOns.EmptyCount();
    window_.txtNoOfTickets(0).SetText("0");
    AddOns.HideExtra();
}

void EnterTicketsTab::txtDollars_KeyPress(forms::KeyPress& key) {
    if (IsDigit(key.KeyAscii) || key.KeyAscii == Backspace || key.KeyAscii == EnterKey || key.KeyAscii == '.')
        return;
    forms::Window::MsgBox("Please enter a valid dollar amount. (Even if it is 0.00)", BoxStyle::Exclamation,
                          KeyErrorTitle);
    txtDollars.SetText(NoDollars);
    window_.State.DecimalCount = 1;
    txtDollars.SetCaret(0);
    key.Swallow();
    txtDollars.SetFocus();
    window_.run.global.Dollars = "0";
}

void EnterTicketsTab::txtDollars_Change() {
    if (!txtDollars.Text().empty()) {
        window_.run.global.Dollars = txtDollars.Text();
        return;
    }
    txtDollars.SetText(NoDollars);
    txtDollars.SetCaret(0);
    txtDollars.SetFocus();
    window_.run.global.Dollars = "0";
}

void EnterTicketsTab::txtDollars_LostFocus() {
    Integer& points = window_.State.DecimalCount;
    points = 0;
    if (txtDollars.Text().starts_with('.')) {
        txtDollars.SetText(PointAmount[window_.Which]);
        points = 1;
    }
    const std::string text = txtDollars.Text();
    points += static_cast<int>(std::count(text.begin(), text.end(), '.'));
    if (points > 1) {
        Global& g = window_.run.global;
        g.Msg = "Only one decimal point may be used in this field." + g.NL +
                "Please enter a valid Dollar amount.";
        forms::Window::MsgBox(g.Msg, BoxStyle::Ok, "ERROR");
        txtDollars.SetText(NoDollars);
        txtDollars.SetFocus();
    }
    window_.run.global.Dollars = txtDollars.Text();
}

}  // namespace sorvane

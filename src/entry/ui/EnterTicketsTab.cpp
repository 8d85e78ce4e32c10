#include "entry/ui/EnterTicketsTab.h"

#include <QAbstractButton>
#include <QFontMetrics>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>
#include <algorithm>
#include <functional>
#include <utility>

#include "entry/EntryFacts.h"
#include "entry/ui/GameWindow.h"
#include "forms/Keys.h"
#include "forms/Look.h"
#include "platform/Text.h"
#include "shell/Catalogue.h"
#include "shell/ui/ToolTips.h"

namespace sorvane {

using namespace EntryFacts;

namespace {

// A line beside the field of the add-on while nobody has been there in this run of the program: until then
// the first save fails.
class Advice final : public QLabel {
  public:
    Advice(QWidget& field, const char* text, std::function<bool()> isNeeded)
        : QLabel(QString::fromLatin1(text)), field_(field), isNeeded_(std::move(isNeeded)) {
        setForegroundRole(QPalette::PlaceholderText);
        // It takes the room that is left and asks for none.
        setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
        field.installEventFilter(this);
        Follow();
    }
    bool eventFilter(QObject* receiver, QEvent* event) override {
        const auto kinds = {QEvent::Show,       QEvent::Hide,    QEvent::FocusOut, QEvent::MouseButtonRelease,
                            QEvent::KeyRelease, QEvent::Shortcut};
        // Behind the handlers of what has happened.
        if (std::find(kinds.begin(), kinds.end(), event->type()) != kinds.end())
            QMetaObject::invokeMethod(
                this, [this] { Follow(); }, Qt::QueuedConnection);
        return QLabel::eventFilter(receiver, event);
    }

    // Its lines become small enough for so many pixels, so that its row is no higher with it than without.
    void FitInto(int height) {
        const int lines = static_cast<int>(text().count(u'\n')) + 1;
        setFont(forms::Look::Fitting(
            font(), [=](const QFontMetrics& letters) { return letters.lineSpacing() * lines <= height; }));
    }

  private:
    void Follow() {
        const bool needed = isNeeded_();
        setVisible(needed && field_.isVisible());
        field_.setToolTip(needed ? text().replace(u'\n', u' ') : QString());
        field_.setAccessibleDescription(field_.toolTip());
    }
    QWidget& field_;
    std::function<bool()> isNeeded_;
};

constexpr const char* CountAdvice = "Not played? Visit this field once.";
constexpr const char* CheckAdvice = "Not played?\nTick once and untick.";
constexpr std::string_view ShutHint = "Type how many tickets, then press Tab";

// Whether saving fails until the add-on's count was left, or its box ticked, once in the run.
bool NeedsVisit(const GameWindow& window, bool byCount) {
    const Global& g = window.session.global;
    const AddOn* addOn = FindAddOn(g.ExtraFlag);
    return addOn && !addOn->FourNumbers && Has(Saves[window.Which], g.ExtraFlag) &&
           addOn->CountedOnSheet == byCount && !g.AddOnTickets.Sized();
}

constexpr int CountDigits = 5;
constexpr int AmountDigits = 8;
constexpr int NumberDigits = 8;

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
    // A family shows one of the two labels of the amount.
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
    fraTickets.LeaveByPress(count);
    cmdRegular.setToolTip(DoesNothing());
    fraTicketNumber.SetHint([this] { return Progress(); });
    for (auto* number : capture_->Slip().findChildren<QAbstractButton*>())
        QObject::connect(number, &QAbstractButton::toggled, &fraTicketNumber,
                         [this] { fraTicketNumber.RefreshHint(); });
    LayOut();
}

void EnterTicketsTab::LayOut() {
    QWidget& page = window_.Pages[Tab::Enter];
    const int gap = forms::Look::Gap(page);
    auto* ticket = new QVBoxLayout(&fraTicketNumber);
    ticket->addWidget(&capture_->Slip(), 1);
    auto* tickets = new QVBoxLayout(&fraTickets);
    tickets->setSpacing(gap / 2);
    if (QWidget* header = capture_->Header()) tickets->addWidget(header);
    tickets->addWidget(&fraTicketNumber, 1);
    tickets->addLayout(MarksRow());
    auto* body = new QHBoxLayout;
    body->setSpacing(gap * 3 / 2);
    body->addWidget(&fraTickets, 1);
    body->addLayout(ButtonColumn());
    auto* whole = new QVBoxLayout(&page);
    whole->setContentsMargins(gap, gap, gap, gap);
    whole->setSpacing(gap);
    whole->addLayout(HeadRow());
    whole->addLayout(body, 1);
    OrderTabs();
    // frmPick4 has a second count field, which is never shown.
    if (window_.Which != Family::frmPick4) return;
    forms::TextBox& second = window_.txtNoOfTickets.Load(2);
    second.setParent(&page);
    second.SetVisible(false);
}

// Captions stand above their fields.
QLayout* EnterTicketsTab::HeadRow() {
    QWidget& page = window_.Pages[Tab::Enter];
    const int gap = forms::Look::Gap(page);
    auto* head = new QGridLayout;
    head->setHorizontalSpacing(gap * 2);
    head->setVerticalSpacing(forms::Look::Space(page) / 2);
    int column = 0;
    // What stands beside the last field may go on behind its caption.
    const auto add = [&](forms::Label& label, forms::Control& field, Advice* beside = nullptr) {
        label.SetBuddy(field);
        head->addWidget(&label, 0, column);
        auto* row = new QHBoxLayout;
        row->setSpacing(gap);
        row->addWidget(&field.Widget());
        if (beside) row->addWidget(beside, 100);
        row->addStretch(1);
        head->addLayout(row, 1, column++, 1, beside ? 2 : 1);
    };
    forms::TextBox& count = window_.txtNoOfTickets(0);
    count.setFixedWidth(forms::Look::DigitsWidth(page, CountDigits));
    add(lblDrawDate, window_.dtpEnterTickets(0));
    add(lblNoTickets, count);
    if (AddOns.txtNoOfExtra) {
        forms::TextBox& extra = *AddOns.txtNoOfExtra;
        extra.setFixedWidth(forms::Look::DigitsWidth(page, CountDigits));
        const auto needed = [&window = window_] { return NeedsVisit(window, true); };
        add(*AddOns.lblNoOfExtra, extra, new Advice(extra, CountAdvice, needed));
    }
    head->setColumnStretch(column, 1);
    return head;
}

// The marks of the ticket and the numbers of its add-on. The row keeps its height when they are hidden, so
// that the play slip stays where it is.
QLayout* EnterTicketsTab::MarksRow() {
    QWidget& page = window_.Pages[Tab::Enter];
    const int gap = forms::Look::Gap(page);
    const int height = txtDollars.sizeHint().height();
    auto* ticket = new QHBoxLayout;
    ticket->addWidget(&chkRegular);
    capture_->AddMarks(*ticket);
    auto* addOn = new QHBoxLayout;
    addOn->setSpacing(gap / 2);
    if (AddOns.chkEncore) addOn->addWidget(&*AddOns.chkEncore);
    if (AddOns.lblExtra) addOn->addWidget(&*AddOns.lblExtra);
    if (AddOns.txtEncore) {
        AddOns.txtEncore->setFixedWidth(forms::Look::DigitsWidth(page, NumberDigits));
        addOn->addWidget(&*AddOns.txtEncore);
    }
    AddOns.txtPlay4.ForEach([&](forms::TextBox& box, int) {
        box.setFixedWidth(forms::Look::DigitsWidth(page, 3));
        addOn->addWidget(&box);
    });
    if (AddOns.chkEncore) {
        const auto needed = [&window = window_] { return NeedsVisit(window, false); };
        auto* advice = new Advice(*AddOns.chkEncore, CheckAdvice, needed);
        advice->FitInto(height);
        addOn->addWidget(advice, 100);
    }
    addOn->addStretch(1);
    addOn->addWidget(&lblInfo);
    addOn->addStrut(height);
    auto* marks = forms::Look::Row(page);
    marks->setSpacing(gap);
    marks->addLayout(ticket);
    marks->addLayout(addOn, 1);
    return marks;
}

// The cost of the sheet, then the buttons in the order of the work.
QLayout* EnterTicketsTab::ButtonColumn() {
    QWidget& page = window_.Pages[Tab::Enter];
    const int gap = forms::Look::Gap(page);
    auto* money = new QHBoxLayout;
    for (forms::Label* label : {lblDollars ? &*lblDollars : nullptr, &lblDollarsSpent}) {
        if (!label) continue;
        label->SetBuddy(txtDollars);
        money->addWidget(label);
    }
    txtDollars.setFixedWidth(forms::Look::DigitsWidth(page, AmountDigits));
    money->addStretch();
    money->addWidget(&txtDollars);

    auto* buttons = new QVBoxLayout;
    buttons->setSpacing(forms::Look::Space(page));
    buttons->addSpacing(forms::Look::Heading(page));  // level with the frame beside
    buttons->addLayout(money);
    buttons->addSpacing(gap);
    for (QWidget* button : {&cmdNext_Ticket, &cmdCorrection, &cmdSave}) buttons->addWidget(button);
    buttons->addSpacing(gap);
    buttons->addWidget(&cmdRegular);
    buttons->addStretch();
    buttons->addWidget(&cmdCancel);
    buttons->addWidget(&window_.cmdExit(0));
    return buttons;
}

void EnterTicketsTab::OrderTabs() {
    std::vector<QWidget*> order{&window_.dtpEnterTickets(0)};
    capture_->AddChoicesToTabOrder(order);
    const bool first = capture_->EndsAtAButton();
    if (first) order.insert(order.end(), {&chkRegular, &txtDollars});
    order.push_back(&window_.txtNoOfTickets(0));
    if (AddOns.txtNoOfExtra) order.push_back(&*AddOns.txtNoOfExtra);
    capture_->AddToTabOrder(order);
    if (!first) order.push_back(&chkRegular);
    if (AddOns.chkEncore) order.push_back(&*AddOns.chkEncore);
    if (AddOns.txtEncore) order.push_back(&*AddOns.txtEncore);
    AddOns.txtPlay4.ForEach([&](forms::TextBox& box, int) { order.push_back(&box); });
    if (!first) order.push_back(&txtDollars);
    for (QWidget* last : std::initializer_list<QWidget*>{&cmdNext_Ticket, &cmdCorrection, &cmdSave,
                                                         &cmdRegular, &cmdCancel, &window_.cmdExit(0)})
        order.push_back(last);
    forms::SetTabOrder(order);
}

void EnterTicketsTab::ShowTitle(std::string_view kind, int number) {
    fraTicketNumber.SetCaption(std::string(kind) + Str(number) + " - Sheet " +
                               Str(window_.State.CurrentSheet) + " of " + Str(window_.State.TotalSheets));
}

std::string EnterTicketsTab::Progress() const {
    const Global& g = window_.session.global;
    // EnteringAddOns may be on still from the sheet before.
    const std::string next = cmdNext_Ticket.Caption();
    if (next == AddOnCaption::NextExtra || next == AddOnCaption::NextEncore)
        return "Add-on number " + Str(std::min(g.ExtraNo + 1, int{g.NoOfExtra})) + " of " + Str(g.NoOfExtra);
    const int tickets = capture_->TicketsOnSheet();
    if (tickets <= 0 || !countIsGiven_) return std::string(IsPick(window_.Which) ? "" : ShutHint);
    const TicketCapture::Marks marks = capture_->Marked();
    const std::string filled = "ickets filled " + Str(g.TicketNo) + " of " + Str(tickets);
    if (marks.wanted == 0) return "T" + filled;
    return "Numbers " + Str(marks.marked) + " of " + Str(marks.wanted) + ", t" + filled;
}

void EnterTicketsTab::PutAmount(const std::string& amount) {
    window_.session.global.Dollars = amount;
    window_.State.DecimalCount = 1;
    txtDollars.SetText(amount);
}

void EnterTicketsTab::StartAmount() { window_.session.global.Dollars = NoDollars; }

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
    if (forms::IsDigitOrBackspace(key.KeyAscii) || key.KeyAscii == forms::EnterKey || key.KeyAscii == '.')
        return;
    window_.MsgBox("Please enter a valid dollar amount. (Even if it is 0.00)", BoxStyle::Exclamation,
                   forms::KeyErrorTitle);
    txtDollars.SetText(NoDollars);
    window_.State.DecimalCount = 1;
    txtDollars.SetCaret(0);
    key.Swallow();
    txtDollars.SetFocus();
    window_.session.global.Dollars = "0";
}

void EnterTicketsTab::txtDollars_Change() {
    if (!txtDollars.Text().empty()) {
        window_.session.global.Dollars = txtDollars.Text();
        return;
    }
    txtDollars.SetText(NoDollars);
    txtDollars.SetCaret(0);
    txtDollars.SetFocus();
    window_.session.global.Dollars = "0";
}

void EnterTicketsTab::txtDollars_LostFocus() {
    Integer& points = window_.State.DecimalCount;
    points = 0;
    if (txtDollars.Text().starts_with('.')) {
        txtDollars.SetText(std::string(AmountLead[window_.Which]).append(NoDollars));
        points = 1;
    }
    const std::string text = txtDollars.Text();
    points += static_cast<int>(std::count(text.begin(), text.end(), '.'));
    if (points > 1) {
        Global& g = window_.session.global;
        g.Msg = "Only one decimal point may be used in this field." + g.NL +
                "Please enter a valid Dollar amount.";
        window_.MsgBox(g.Msg, BoxStyle::Ok, "ERROR");
        txtDollars.SetText(NoDollars);
        txtDollars.SetFocus();
    }
    window_.session.global.Dollars = txtDollars.Text();
}

}  // namespace sorvane

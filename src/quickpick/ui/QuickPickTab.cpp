#include "quickpick/ui/QuickPickTab.h"

#include <QHBoxLayout>
#include <QVBoxLayout>
#include <chrono>
#include <vector>

#include "forms/BusyPointer.h"
#include "forms/Look.h"
#include "platform/Text.h"
#include "quickpick/GenerateQuickPicks.h"
#include "quickpick/QuickPickFacts.h"
#include "quickpick/QuickPickPages.h"
#include "shell/ui/GameFrame.h"
#include "shell/ui/ToolTips.h"

namespace sorvane {

using namespace QuickPickFacts;

namespace {

constexpr int CountDigits = 5;

// About how long a ticket takes, for the busy pointer.
constexpr std::chrono::microseconds ToGenerate{25}, ToPrint{100};
forms::BusyPointer BusyFor(int tickets, std::chrono::microseconds each) {
    return forms::BusyPointer(std::chrono::duration_cast<std::chrono::milliseconds>(tickets * each));
}

// A caption above its field.
QLayout* Above(forms::Label& label, forms::Control& field) {
    label.SetBuddy(field);
    auto* pair = new QVBoxLayout;
    pair->setSpacing(forms::Look::Space(label) / 2);
    pair->addWidget(&label);
    pair->addWidget(&field.Widget(), 0, Qt::AlignLeft);
    return pair;
}

}  // namespace

QuickPickTab::QuickPickTab(GameFrame& window, ChartFace& frequencies)
    : window_(window), frequencies_(frequencies) {
    window.dtpEnterTickets.Load(1).SetAccessibleName("Draw Date");
    window.txtNoOfTickets.Load(1).SetText("0");
    window.cmdExit.Load(1, "E&xit");
    if (IsKeno(window.Which)) {
        lblNumOfBalls.emplace("lblNumOfBalls", "Number of Balls:");
        cboNoOfQPs.emplace("cboNoOfQPs");
    }
    if (window.Which == Family::frmKeno70) cboNoOfQPs->OnLostFocus([this] { cboNoOfQPs_LostFocus(); });
    if (WheelFrame[window.Which]) Wheel.emplace(window, cmdGenerate);
    lstDisplay.SetFixedPitch();
    lstDisplay.SetHint("The numbers of each ticket, once they are generated");
    cmdGenerate.OnClick([this] { cmdGenerate_Click(); });
    for (QWidget* button : {&cmdUse, &cmdHelp}) button->setToolTip(DoesNothing());
    cmdPrint.OnClick([this] { cmdPrint_Click(); });
    LayOut();
}

void QuickPickTab::LayOut() {
    QWidget& page = window_.Pages[Tab::QuickPick];
    const int gap = forms::Look::Gap(page);
    auto* display = new QVBoxLayout;
    display->setSpacing(forms::Look::Space(page) / 2);
    lblDisplay.SetBuddy(lstDisplay);
    display->addWidget(&lblDisplay);
    display->addWidget(&lstDisplay, 1);

    auto* body = new QHBoxLayout;
    if (Wheel) body->addWidget(&Wheel->fraWheel);
    body->addLayout(display, 1);
    body->addLayout(ButtonColumn());

    auto* whole = new QVBoxLayout(&page);
    whole->setContentsMargins(gap, gap, gap, gap);
    whole->setSpacing(gap);
    whole->addLayout(HeadRow());
    whole->addLayout(body, 1);
    OrderTabs();
}

QLayout* QuickPickTab::HeadRow() {
    QWidget& page = window_.Pages[Tab::QuickPick];
    forms::TextBox& count = window_.txtNoOfTickets(1);
    count.setFixedWidth(forms::Look::DigitsWidth(page, CountDigits));
    auto* head = new QHBoxLayout;
    head->setSpacing(forms::Look::Gap(page) * 2);
    head->addLayout(Above(lblDrawDate, window_.dtpEnterTickets(1)));
    head->addLayout(Above(lblNoOfTickets, count));
    if (cboNoOfQPs) {
        cboNoOfQPs->setMinimumWidth(forms::Look::DigitsWidth(page, CountDigits));
        head->addLayout(Above(*lblNumOfBalls, *cboNoOfQPs));
    }
    head->addStretch();
    return head;
}

QLayout* QuickPickTab::ButtonColumn() {
    QWidget& page = window_.Pages[Tab::QuickPick];
    auto* buttons = new QVBoxLayout;
    buttons->setSpacing(forms::Look::Space(page));
    buttons->addWidget(&cmdGenerate);
    buttons->addSpacing(forms::Look::Gap(page));
    for (QWidget* button : {&cmdPrint, &cmdUse, &cmdHelp}) buttons->addWidget(button);
    buttons->addStretch();
    buttons->addWidget(&window_.cmdExit(1));
    return buttons;
}

// A wheel that does nothing comes last, because leaving its fields asks for numbers that are not needed.
void QuickPickTab::OrderTabs() {
    std::vector<QWidget*> order{&window_.dtpEnterTickets(1), &window_.txtNoOfTickets(1)};
    if (cboNoOfQPs) order.push_back(&*cboNoOfQPs);
    if (Wheel && WheelLive[window_.Which]) Wheel->AddToTabOrder(order);
    for (QWidget* next : std::initializer_list<QWidget*>{&cmdGenerate, &lstDisplay, &cmdPrint, &cmdUse,
                                                         &cmdHelp, &window_.cmdExit(1)})
        order.push_back(next);
    if (Wheel && !WheelLive[window_.Which]) Wheel->AddToTabOrder(order);
    forms::SetTabOrder(order);
}

void QuickPickTab::ChooseHot() {
    if (Wheel) Wheel->optWheelType(static_cast<int>(WheelType::Hot)).SetValue(true);
}

void QuickPickTab::cmdGenerate_Click() {
    WindowState& state = window_.State;
    Session& session = window_.session;
    const auto busy = BusyFor(session.global.NoOfTickets, ToGenerate);
    if (!WheelLive[window_.Which]) {
        lstDisplay.Clear();
        GenerateQuickPicks(session, state.NumbersPerTicket, session.global.NoOfTickets, state.QuickPicks,
                           lstDisplay);
        return;
    }
    GenerateByWheelType(session,
                        {Wheel->Chosen(), state.HowManyToWheel, state.NumbersPerTicket, state.DbName,
                         state.TableName, state.mode, state.QuickPicks},
                        {*Wheel, lstDisplay, frequencies_});
}

void QuickPickTab::cmdPrint_Click() {
    const Integer& tickets = window_.session.global.NoOfTickets;
    const auto busy = BusyFor(tickets, ToPrint);
    PrintTickets(window_.session, window_.State.QuickPicks, tickets);
}

void QuickPickTab::cboNoOfQPs_LostFocus() {
    const std::string text = cboNoOfQPs->Text();
    window_.session.global.NoOfBallsPerTicket = text.empty() ? Integer(0) : CInt(text);
}

}  // namespace sorvane

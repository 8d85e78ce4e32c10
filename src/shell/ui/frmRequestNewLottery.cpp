#include "shell/ui/frmRequestNewLottery.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>
#include <initializer_list>
#include <utility>

#include "forms/Keys.h"
#include "forms/Look.h"
#include "forms/ScrollPage.h"
#include "platform/RunTimeError.h"

namespace sorvane {

namespace {

bool IsAmountKey(int key) { return forms::IsDigitOrBackspace(key) || key == '.'; }
bool IsNameKey(int key) { return !forms::IsDigit(key); }

RequestForm::Answered Answered(const forms::OptionButton& yes, const forms::OptionButton& no) {
    if (yes.Value()) return RequestForm::Answered::Yes;
    return no.Value() ? RequestForm::Answered::No : RequestForm::Answered::Neither;
}

QHBoxLayout* Beside(int space, std::initializer_list<QWidget*> widgets) {
    auto* row = new QHBoxLayout;
    row->setSpacing(space);
    for (QWidget* widget : widgets) row->addWidget(widget);
    row->addStretch();
    return row;
}

}  // namespace

frmRequestNewLottery::frmRequestNewLottery(Session& session)
    : Window("frmRequestNewLottery"), session_(session) {
    SetCaption("Request New Lottery");
    SetCloseButton(cmdExit);
    SetFirstFocus(txtNameOfLottery);
    AttachHandlers();
    LayOut();
    OrderTabs();
}

void frmRequestNewLottery::AttachHandlers() {
    for (forms::TextBox* count : {&txtNumberOfNumbers, &txtLow, &txtHigh, &txtNumberOfBonusTickets})
        FilterKeys(*count, forms::IsDigitOrBackspace, forms::NotANumber);
    FilterKeys(txtCostPerTicket, IsAmountKey, "Please enter a valid number greater than or equal to 0.");
    for (forms::TextBox* name : {&txtCountry, &txtProvinceState})
        FilterKeys(*name, IsNameKey, "This Field accepts alphabetical input only. Please try again.");
    optYesBonusTicket.OnClick([this] { txtNumberOfBonusTickets.SetEnabled(true); });
    optNoBonusTicket.OnClick([this] { txtNumberOfBonusTickets.SetEnabled(false); });
    cmdClear.OnClick([this] { cmdClear_Click(); });
    cmdPrint.OnClick([this] { cmdPrint_Click(); });
    cmdExit.OnClick([this] { Unload(); });
}

void frmRequestNewLottery::FilterKeys(forms::TextBox& field, bool (*accepts)(int key),
                                      std::string_view refusal) {
    field.OnKeyPress([this, &field, accepts, refusal](forms::KeyPress& key) {
        if (accepts(key.KeyAscii)) return;
        session_.services.dialogs.MsgBox(refusal, BoxStyle::Exclamation, forms::KeyErrorTitle);
        key.Swallow();
        field.SetCaret(static_cast<int>(field.text().size()));
        field.SetFocus();
    });
}

void frmRequestNewLottery::cmdClear_Click() {
    for (forms::TextBox* field :
         {&txtNameOfLottery, &txtCountry, &txtProvinceState, &txtNumberOfNumbers, &txtLow, &txtHigh})
        field->SetText("");
    for (forms::OptionButton* option :
         {&optYesBonusNumber, &optNoBonusNumber, &optYesBonusTicket, &optNoBonusTicket})
        option->SetValue(false);
    txtNumberOfBonusTickets.SetText("");
    txtCostPerTicket.SetText("");
    txtAdditionalInfo.SetText("");
}

void frmRequestNewLottery::cmdPrint_Click() {
    Printer& printer = session_.services.printer;
    if (Ignoring({ErrorNumber::DialogCancelled}, [&] { printer.ShowPrinter(); }))
        PrintRequestForm(printer, Filled());
}

RequestForm frmRequestNewLottery::Filled() const {
    RequestForm form;
    form.NameOfLottery = txtNameOfLottery.Text();
    form.Country = txtCountry.Text();
    form.ProvinceState = txtProvinceState.Text();
    form.NumberOfNumbers = txtNumberOfNumbers.Text();
    form.Low = txtLow.Text();
    form.High = txtHigh.Text();
    form.BonusNumber = Answered(optYesBonusNumber, optNoBonusNumber);
    form.BonusTicket = Answered(optYesBonusTicket, optNoBonusTicket);
    form.NumberOfBonusTickets = txtNumberOfBonusTickets.Text();
    form.CostPerTicket = txtCostPerTicket.Text();
    form.AdditionalInfo = txtAdditionalInfo.Text();
    return form;
}

void frmRequestNewLottery::LayOut() {
    const int space = forms::Look::Space(*this), gap = forms::Look::Gap(*this);
    const int margin = forms::Look::Margin(*this) * 2;
    for (forms::TextBox* field :
         {&txtNumberOfNumbers, &txtLow, &txtHigh, &txtNumberOfBonusTickets, &txtCostPerTicket})
        field->setFixedWidth(forms::Look::DigitsWidth(*this, 6));
    txtAdditionalInfo.setMinimumHeight(forms::Look::BallSize(*this) * 2);
    lblAdditionalInfo.SetBuddy(txtAdditionalInfo);
    if (forms::Look::IsNarrow(*this)) {
        lblText1.setWordWrap(true);
        lblText1.setMinimumWidth(forms::Look::DigitsWidth(*this, 50));
    }
    auto* window = new QVBoxLayout(this);
    window->setContentsMargins(0, 0, 0, 0);
    window->addWidget(new forms::ScrollPage(form_));
    auto* whole = new QVBoxLayout(&form_);
    whole->setContentsMargins(margin, margin, margin, margin);
    whole->setSpacing(space);
    whole->addWidget(&lblText1);
    whole->addWidget(&lblText2);
    whole->addSpacing(gap);
    whole->addLayout(LotteryGrid());
    whole->addSpacing(space);
    whole->addLayout(QuestionsRow());
    whole->addSpacing(space);
    whole->addLayout(MoneyGrid());
    whole->addSpacing(space);
    whole->addWidget(&lblAdditionalInfo);
    whole->addWidget(&txtAdditionalInfo, 1);
    whole->addSpacing(gap);
    whole->addLayout(ButtonsRow());
}

QLayout* frmRequestNewLottery::LotteryGrid() {
    const int space = forms::Look::Space(*this);
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(forms::Look::Gap(*this));
    int row = 0;
    const auto label = [&](forms::Label& text, forms::Control& field) {
        text.SetBuddy(field);
        grid->addWidget(&text, row, 0);
    };
    for (const auto& [text, field] : {std::pair{&lblNameOfLottery, &txtNameOfLottery},
                                      {&lblCountry, &txtCountry},
                                      {&lblProvinceState, &txtProvinceState}}) {
        label(*text, *field);
        grid->addWidget(field, row++, 1);
    }
    label(lblNumberOfNumbers, txtNumberOfNumbers);
    grid->addLayout(Beside(space, {&txtNumberOfNumbers}), row++, 1);
    lblLow.SetBuddy(txtLow);
    lblHigh.SetBuddy(txtHigh);
    // The label of both would name the first.
    txtLow.SetAccessibleName("Low");
    txtHigh.SetAccessibleName("High");
    label(lblRange, txtLow);
    grid->addLayout(Beside(space, {&lblLow, &txtLow, &lblHigh, &txtHigh}), row, 1);
    return grid;
}

QLayout* frmRequestNewLottery::QuestionsRow() {
    const int gap = forms::Look::Gap(*this);
    fraBonusNumber.setLayout(Beside(gap, {&optYesBonusNumber, &optNoBonusNumber}));
    fraBonusTicket.setLayout(Beside(gap, {&optYesBonusTicket, &optNoBonusTicket}));
    auto* questions = forms::Look::Row(*this);
    questions->setSpacing(gap);
    questions->addWidget(&fraBonusNumber, 1);
    questions->addWidget(&fraBonusTicket, 1);
    return questions;
}

QLayout* frmRequestNewLottery::MoneyGrid() {
    auto* money = new QGridLayout;
    money->setHorizontalSpacing(forms::Look::Gap(*this));
    lblNumberOfBonusTickets.SetBuddy(txtNumberOfBonusTickets);
    lblCostPerTicket.SetBuddy(txtCostPerTicket);
    money->addWidget(&lblNumberOfBonusTickets, 0, 0);
    money->addWidget(&txtNumberOfBonusTickets, 0, 2);
    money->addWidget(&lblCostPerTicket, 1, 0);
    money->addWidget(&lblDollarSign, 1, 1);
    money->addWidget(&txtCostPerTicket, 1, 2);
    money->setColumnStretch(3, 1);
    return money;
}

QLayout* frmRequestNewLottery::ButtonsRow() {
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(&cmdClear);
    buttons->addStretch();
    buttons->addWidget(&cmdPrint);
    buttons->addWidget(&cmdExit);
    return buttons;
}

void frmRequestNewLottery::OrderTabs() {
    forms::SetTabOrder({&txtNameOfLottery, &txtCountry, &txtProvinceState, &txtNumberOfNumbers, &txtLow,
                        &txtHigh, &optYesBonusNumber, &optNoBonusNumber, &optYesBonusTicket,
                        &optNoBonusTicket, &txtNumberOfBonusTickets, &txtCostPerTicket, &txtAdditionalInfo,
                        &cmdClear, &cmdPrint, &cmdExit});
}

}  // namespace sorvane

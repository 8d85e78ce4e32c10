#include "shell/ui/frmRequestNewLottery.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>
#include <initializer_list>

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
    row->addStretch(1);
    return row;
}

}  // namespace

frmRequestNewLottery::frmRequestNewLottery(Run& run) : Window("frmRequestNewLottery"), run_(run) {
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
        run_.services.dialogs.MsgBox(refusal, BoxStyle::Exclamation, forms::KeyErrorTitle);
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
    Printer& printer = run_.services.printer;
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
    const int margin = forms::Look::Margin(*this);
    const int number = forms::Look::DigitsWidth(*this, 6);
    for (forms::TextBox* field :
         {&txtNumberOfNumbers, &txtLow, &txtHigh, &txtNumberOfBonusTickets, &txtCostPerTicket})
        field->setFixedWidth(number);
    txtAdditionalInfo.setMinimumHeight(forms::Look::BallSize(*this) * 2);

    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(gap);
    grid->setVerticalSpacing(space);
    int row = 0;
    const auto add = [&](forms::Label& label, forms::Control& field, auto* content) {
        label.SetBuddy(field);
        grid->addWidget(&label, row, 0);
        if constexpr (std::is_base_of_v<QWidget, std::remove_pointer_t<decltype(content)>>)
            grid->addWidget(content, row++, 1);
        else grid->addLayout(content, row++, 1);
    };
    add(lblNameOfLottery, txtNameOfLottery, &txtNameOfLottery);
    add(lblCountry, txtCountry, &txtCountry);
    add(lblProvinceState, txtProvinceState, &txtProvinceState);
    add(lblNumberOfNumbers, txtNumberOfNumbers, Beside(space, {&txtNumberOfNumbers}));
    lblLow.SetBuddy(txtLow);
    lblHigh.SetBuddy(txtHigh);
    // The label of both would name the first.
    txtLow.SetAccessibleName("Low");
    txtHigh.SetAccessibleName("High");
    add(lblRange, txtLow, Beside(space, {&lblLow, &txtLow, &lblHigh, &txtHigh}));

    fraBonusNumber.setLayout(Beside(gap, {&optYesBonusNumber, &optNoBonusNumber}));
    fraBonusTicket.setLayout(Beside(gap, {&optYesBonusTicket, &optNoBonusTicket}));
    auto* questions = forms::Look::Row(*this);
    questions->setSpacing(gap);
    questions->addWidget(&fraBonusNumber, 1);
    questions->addWidget(&fraBonusTicket, 1);

    auto* money = new QGridLayout;
    money->setHorizontalSpacing(gap);
    money->setVerticalSpacing(space);
    lblNumberOfBonusTickets.SetBuddy(txtNumberOfBonusTickets);
    lblCostPerTicket.SetBuddy(txtCostPerTicket);
    money->addWidget(&lblNumberOfBonusTickets, 0, 0);
    money->addWidget(&txtNumberOfBonusTickets, 0, 2);
    money->addWidget(&lblCostPerTicket, 1, 0);
    money->addWidget(&lblDollarSign, 1, 1);
    money->addWidget(&txtCostPerTicket, 1, 2);
    money->setColumnStretch(3, 1);

    lblAdditionalInfo.SetBuddy(txtAdditionalInfo);
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(space);
    buttons->addWidget(&cmdClear);
    buttons->addStretch(1);
    buttons->addWidget(&cmdPrint);
    buttons->addWidget(&cmdExit);

    if (forms::Look::IsNarrow(*this)) {
        lblText1.setWordWrap(true);
        lblText1.setMinimumWidth(forms::Look::DigitsWidth(*this, 50));
    }
    auto* window = new QVBoxLayout(this);
    window->setContentsMargins(0, 0, 0, 0);
    window->addWidget(new forms::ScrollPage(form_));
    auto* whole = new QVBoxLayout(&form_);
    whole->setContentsMargins(margin * 2, margin * 2, margin * 2, margin * 2);
    whole->setSpacing(space);
    whole->addWidget(&lblText1);
    whole->addWidget(&lblText2);
    whole->addSpacing(gap);
    whole->addLayout(grid);
    whole->addSpacing(space);
    whole->addLayout(questions);
    whole->addSpacing(space);
    whole->addLayout(money);
    whole->addSpacing(space);
    whole->addWidget(&lblAdditionalInfo);
    whole->addWidget(&txtAdditionalInfo, 1);
    whole->addSpacing(gap);
    whole->addLayout(buttons);
}

void frmRequestNewLottery::OrderTabs() {
    QWidget* const order[] = {&txtNameOfLottery,
                              &txtCountry,
                              &txtProvinceState,
                              &txtNumberOfNumbers,
                              &txtLow,
                              &txtHigh,
                              &optYesBonusNumber,
                              &optNoBonusNumber,
                              &optYesBonusTicket,
                              &optNoBonusTicket,
                              &txtNumberOfBonusTickets,
                              &txtCostPerTicket,
                              &txtAdditionalInfo,
                              &cmdClear,
                              &cmdPrint,
                              &cmdExit};
    for (std::size_t i = 1; i < std::size(order); ++i) setTabOrder(order[i - 1], order[i]);
}

}  // namespace sorvane

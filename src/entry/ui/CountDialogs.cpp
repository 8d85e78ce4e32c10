#include "entry/ui/CountDialogs.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "forms/Keys.h"
#include "forms/Look.h"
#include "platform/Text.h"
#include "store/StoreRoutine.h"

namespace sorvane {

CountDialog::CountDialog(Session& session, std::string_view name, std::string_view caption,
                         std::string_view question, std::string_view field)
    : Window(name),
      session_(session),
      lblGetNoOfTicketsOnSheet("lblGetNoOfTicketsOnSheet", question),
      field_(field) {
    SetCaption(caption);
    SetCloseButton(cmdCancel);
    SetEscapeButton(cmdCancel);
    SetFirstFocus(field_);
    field_.OnKeyPress([this](forms::KeyPress& key) { KeyPressed(key); });
    cmdOk.OnClick([this] { Accept(); });
    cmdCancel.OnClick([this] { Unload(); });
    LayOut();
}

void CountDialog::LayOut() {
    const int gap = forms::Look::Gap(*this);
    lblGetNoOfTicketsOnSheet.SetBuddy(field_);
    field_.setFixedWidth(forms::Look::DigitsWidth(*this, 5));
    auto* question = new QHBoxLayout;
    question->addWidget(&lblGetNoOfTicketsOnSheet);
    question->addWidget(&field_);
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(forms::Look::Space(*this));
    buttons->addStretch();
    buttons->addWidget(&cmdOk);
    buttons->addWidget(&cmdCancel);
    auto* whole = new QVBoxLayout(this);
    const int margin = forms::Look::Margin(*this);
    whole->setContentsMargins(margin, margin, margin, margin);
    whole->setSpacing(gap);
    whole->addLayout(question);
    whole->addStretch();
    whole->addLayout(buttons);
}

void CountDialog::KeyPressed(forms::KeyPress& key) {
    if (key.KeyAscii == forms::EnterKey) cmdOk.SetFocus();
    else if (!forms::IsDigitOrBackspace(key.KeyAscii))
        forms::RefuseKey(session_.services.dialogs, field_, key);
}

void CountDialog::Refuse(std::string_view title) {
    session_.services.dialogs.MsgBox(session_.global.Msg, BoxStyle::Ok, title);
    field_.SetFocus();
}

frmHowManySheets::frmHowManySheets(Session& session)
    : CountDialog(session, "frmHowManySheets", "Number of Sheets played for this Draw Date",
                  "Please enter the number of Sheets played for this Draw Date:", "txtNoOfSheets") {}

void frmHowManySheets::Accept() {
    Global& g = session_.global;
    if (field_.Text().empty()) {
        g.Msg = "Please enter a valid number";
        Refuse("ERROR");
        return;
    }
    g.NoOfSheets = IntegerPart(field_.Text());
    if (g.NoOfSheets == 1) g.NoOfTicketsOnSheet = g.NoOfTickets;
    if (g.NoOfSheets > g.NoOfTickets) {
        g.Msg = "Number of Sheets exceeds Number of Tickets. Please try again.";
        Refuse("ERROR");
        return;
    }
    Unload();
}

frmTicketsOnSheet::frmTicketsOnSheet(Session& session)
    : CountDialog(session, "frmTicketsOnSheet", "Number of Tickets on this Sheet?",
                  "Please enter the number of tickets on this sheet. (Excluding any bonus tickets)",
                  "txtNoOfTicketsOnSheet") {}

void frmTicketsOnSheet::Accept() {
    Global& g = session_.global;
    g.NoOfTicketsOnSheet = field_.Text().empty() ? Integer(0) : IntegerPart(field_.Text());
    const char* wrong = nullptr;
    if (g.NoOfTicketsOnSheet > g.TotalTickets)
        wrong = "You have entered an amount greater than the total number of tickets purchased.";
    else if (g.NoOfTicketsOnSheet > g.NoOfTickets)
        wrong = "You have entered an amount greater than the number of tickets left to enter.";
    else if (g.NoOfTicketsOnSheet == g.NoOfTickets && g.NoOfSheets > 0)
        wrong = "You have entered an amount which doesn't allow enough tickets for your last sheet.";
    if (!wrong) {
        Unload();
        return;
    }
    g.Msg = wrong + g.NL + "Please select a new amount and Click on 'OK' again.";
    Refuse(ErrorTitle);
}

}  // namespace sorvane

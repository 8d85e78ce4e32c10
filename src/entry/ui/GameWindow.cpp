#include "entry/ui/GameWindow.h"

#include <QBoxLayout>

#include "entry/CreateAllTables.h"
#include "entry/EntryFacts.h"
#include "forms/Keys.h"
#include "shell/Catalogue.h"
#include "store/CreateTables.h"

namespace sorvane {

using namespace EntryFacts;

GameWindow::GameWindow(Family family, Session& session_, Windows& windows_)
    : GameFrame(family, session_, windows_),
      Enter(*this),
      Check(*this),
      Reports(*this),
      QuickPick(*this, Reports.Frequencies),
      Sheets(*this) {
    constexpr std::string_view captions[] = {"&Enter Tickets", "&Check Tickets", Tab::ReportsCaption,
                                             Tab::QuickPickCaption};
    for (std::size_t i = 0; i < Pages.size(); ++i) SSTab1.AddTab(Pages[i], captions[i]);
    auto* whole = new QVBoxLayout(this);
    whole->addWidget(&SSTab1);
    SetCloseButton(cmdExit(0));
    SetFirstFocus(txtNoOfTickets(0));
    SetFallbackFocus({&Enter.cmdNext_Ticket, &Enter.cmdSave});
    AttachSharedHandlers();
}

GameWindow::~GameWindow() {
    Unload();  // no events any more
    TakeArraysOut();
}

std::unique_ptr<GameFrame> GameWindow::Make(Family family, Session& session, Windows& windows) {
    return std::make_unique<GameWindow>(family, session, windows);
}

void GameWindow::AttachSharedHandlers() {
    txtNoOfTickets.OnKeyPress(
        [this](int Index, forms::KeyPress& key) { txtNoOfTickets_KeyPress(Index, key); });
    txtNoOfTickets.OnLostFocus([this](int Index) { Sheets.TicketCountLeft(Index); });
    txtNoOfTickets.OnGotFocus([this](int Index) { txtNoOfTickets(Index).SelectAll(); });
    dtpEnterTickets.OnChange([this](int Index) { dtpEnterTickets_Change(Index); });
    dtpEnterTickets.OnLostFocus(
        [this](int Index) { session.global.DrawDate = dtpEnterTickets(Index).Value(); });
    cmdExit.OnClick([this](int) { cmdExit_Click(); });
    SSTab1.OnClick([this] { SSTab1_Click(); });
    Enter.cmdNext_Ticket.OnClick([this] { Sheets.cmdNext_Ticket_Click(); });
    Enter.cmdCorrection.OnClick([this] { Sheets.cmdCorrection_Click(); });
    Enter.cmdSave.OnClick([this] { Sheets.cmdSave_Click(); });
    Enter.cmdCancel.OnClick([this] { cmdCancel_Click(); });
}

void GameWindow::Form_Load() {
    Enter.AddOns.HideAtLoad();
    CreateAllTables(session, Which, State);
    ForgetSaves();
    NameTables();
    QuickPick.ChooseHot();
    ClearCountersAtLoad();
    Enter.AddOns.EmptyCount();
    Enter.Capture().ForgetChoices();
    ShowFirstSheet();
}

void GameWindow::cmdCancel_Click() {
    if (MsgBox("Are you sure you wish to start over?", BoxStyle::YesNo, "CONFIRM") != Answer::Yes) return;
    if (CancelCleansUp[Which]) {
        Sheets.OfferCleanUp("Cancelling before completion...");
        session.global.TicketsSaved = Off;
    }
    session.global.TableOpened = Off;
    State.SavingSheet = false;
    NameTables();
    session.global.StatUpdate = Off;
    session.global.RecheckAccepted = True;
    QuickPick.ChooseHot();
    ClearCountersAtCancel();
    ShowFirstSheet();
    Enter.EmptyFields();
    Enter.ShowTitle("Ticket #", 1);
    txtNoOfTickets(0).SetFocus();
}

void GameWindow::cmdExit_Click() {
    Sheets.OfferCleanUp("Exiting before completion...");
    Leave();
}

void GameWindow::ForgetSaves() {
    session.global.TicketsSaved = Off;
    State.SavingSheet = false;
    session.global.TableOpened = Off;
    session.global.StatUpdate = Off;
}

void GameWindow::NameTables() {
    State.DbName = DatabasePath(session.global.AppPath);
    State.IndexName = PrimaryFieldName;
    State.FieldName = DateFieldName;
    if (const auto table = LoadTable(Which, session.global.LottoFlag)) State.TableName = *table;
}

void GameWindow::ClearCountersAtLoad() {
    Global& g = session.global;
    g.RecheckAccepted = True;
    State.CurrentSheet = State.TotalSheets = State.BonusPhase = 0;
    g.Correcting = State.InNextTicket = Off;
    g.EnteringAddOns = Off;
    g.NoOfExtra = g.NumbersPicked = g.TotalTickets = g.TicketNo = g.ExtraNo = 0;
    g.EntryCounter = g.EntryCounter2 = 0;
}

void GameWindow::ClearCountersAtCancel() {
    Global& g = session.global;
    State.CurrentSheet = State.TotalSheets = State.BonusPhase = 0;
    g.Correcting = State.InNextTicket = Off;
    g.TotalTickets = g.NoOfTickets = g.SheetTickets = g.NoOfSheets = g.NoOfTicketsOnSheet = 0;
    g.TicketNo = g.ExtraNo = g.NoOfExtra = g.NumbersPicked = 0;
    g.EnteringAddOns = Off;
}

void GameWindow::ShowFirstSheet() {
    Enter.Capture().Load();
    Enter.FirstCaption();
    Enter.Capture().Close();
    Enter.GiveCount(false);
    SetDates();
    Enter.StartAmount();
    Enter.TurnButtonsOff();
    Reports.ClearCharts();
    SSTab1.SetTab(Tab::Enter);
}

void GameWindow::SetDates() {
    const Date today = session.services.clock.Today();
    dtpEnterTickets.ForEach([&](forms::DatePicker& picker, int) { picker.SetValue(today); });
}

void GameWindow::SSTab1_Click() {
    if (SSTab1.Caption() != Tab::QuickPickCaption) return;
    forms::TextBox& count = txtNoOfTickets(1);
    count.SetText("0");
    count.SetFocus();
    count.SelectAll();
}

void GameWindow::dtpEnterTickets_Change(int Index) {
    session.global.DrawDate = dtpEnterTickets(Index).Value();
    if (Index == 2) Check.ForgetResults();
}

void GameWindow::txtNoOfTickets_KeyPress(int Index, forms::KeyPress& key) {
    if (!forms::IsDigitOrBackspace(key.KeyAscii) && key.KeyAscii != forms::EnterKey) {
        forms::RefuseKey(session.services.dialogs, txtNoOfTickets(Index), key);
        return;
    }
    if (key.KeyAscii != forms::EnterKey || Index > 1) return;
    const Go go = (Index == 0 ? EnterInCount0 : EnterInCount1)[Which];
    if (go == Go::Extra) Enter.AddOns.FocusCount();
    else if (go == Go::Make) QuickPick.cmdGenerate.SetFocus();
}

}  // namespace sorvane

#include "entry/ui/SheetFlow.h"

#include "entry/CreateAllTables.h"
#include "entry/EntryFacts.h"
#include "entry/SaveData.h"
#include "entry/ui/CountDialogs.h"
#include "entry/ui/GameWindow.h"
#include "platform/Text.h"
#include "shell/Catalogue.h"
#include "shell/ui/Windows.h"
#include "store/CheckTB_DBExists.h"
#include "store/CreateTables.h"
#include "store/DeleteData.h"
#include "store/StoreLedger.h"

namespace sorvane {

using namespace EntryFacts;

namespace {

constexpr std::string_view Confirmed = "CONFIRMED";

}  // namespace

void SheetFlow::TicketCountLeft(int Index) {
    GameWindow& w = window_;
    forms::TextBox& count = w.txtNoOfTickets(Index);
    if (w.SSTab1.Caption() != Tab::ReportsCaption) {
        if (!count.Text().empty()) TakeCount(Index, count.Text());
        else AskForCount(count);
    }
    if (Index == 1) return;
    const std::string text = count.Text();
    if (!text.empty() && text != "0") {
        SetSheetTickets();
        w.Enter.GiveCount(true);
        if (CountOpensGrid[w.Which]) w.Enter.Capture().Open();
    }
    const Global& g = w.session.global;
    if (w.State.TotalSheets >= 2 && g.NoOfTickets != g.NoOfSheets) AskTicketsOnSheet();
    w.State.CurrentSheet = 1;
    w.Enter.ShowTitle("Ticket #", g.TicketNo + 1);
    DefaultTheAmount(count);
    if (CellsOf(g.LottoFlag).CheckLiveAtCount) w.Enter.AddOns.EnableCheck();
    count.SetTabStop(false);
}

void SheetFlow::TakeCount(int Index, const std::string& text) {
    Global& g = window_.session.global;
    g.NoOfTickets = IntegerPart(text);
    g.TotalTickets = g.NoOfTickets;
    if (text == "1") {
        g.NoOfSheets = 1;
        g.NoOfTicketsOnSheet = 1;
        window_.State.TotalSheets = 1;
    } else if (text > "0" && Index != 1) {  // compared as text: "00" asks, "0" does not
        frmHowManySheets question(window_.session);
        window_.windows.ShowModal(question);
        window_.State.TotalSheets = g.NoOfSheets;
        if (g.NoOfTickets == g.NoOfSheets) g.NoOfTicketsOnSheet = 1;
    }
}

void SheetFlow::AskForCount(forms::TextBox& count) {
    Global& g = window_.session.global;
    g.Msg = "# of Tickets required. Please enter a number.";
    window_.MsgBox(g.Msg, BoxStyle::Ok, "# of Tickets required");
    count.SetText("0");
    count.SelectAll();
    count.SetFocus();
}

void SheetFlow::SetSheetTickets() {
    Global& g = window_.session.global;
    g.SheetTickets = g.NoOfTickets * SheetFactor(window_.Which, g.LottoFlag);
    aTicketASheet_ = g.NoOfTickets == g.NoOfSheets;
}

void SheetFlow::AskTicketsOnSheet() {
    frmTicketsOnSheet question(window_.session);
    window_.windows.ShowModal(question);
}

// Counts by the text of the field, which differs from the accepted count when the player leaves for the
// reports.
void SheetFlow::DefaultTheAmount(forms::TextBox& count) {
    if (count.Text().empty() && EmptyCountBecomesZero[window_.Which]) count.SetText("0");
    const int tickets = count.Text().empty() ? 0 : int{IntegerPart(count.Text())};
    window_.Enter.PutAmount(window_.Enter.Capture().AmountAtCount(tickets));
}

void SheetFlow::cmdNext_Ticket_Click() {
    window_.State.InNextTicket = On;
    window_.Enter.cmdNext_Ticket.SetEnabled(false);
    window_.Enter.cmdCorrection.SetEnabled(false);
    window_.Enter.Capture().Next();
    window_.State.InNextTicket = Off;
    window_.session.global.NumbersPicked = 0;
}

void SheetFlow::cmdCorrection_Click() {
    Global& g = window_.session.global;
    g.Correcting = On;
    window_.Enter.TurnButtonsOff();
    window_.Enter.Capture().BeforeCorrection();
    g.NumbersPicked = 0;
    if (g.TicketNo > 0 || !CorrectionStopsAtZero[window_.Which]) g.TicketNo -= 1;
    window_.Enter.Capture().Correct();
}

void SheetFlow::cmdSave_Click() {
    GameWindow& w = window_;
    Global& g = w.session.global;
    w.State.WindowDate = w.dtpEnterTickets(0).Value();
    if (ProbesAtSave[w.Which]) MakePlayedTable();
    if (StoresBeforeAsk[w.Which]) w.Enter.Capture().StoreTicket();
    constexpr int Style = BoxStyle::YesNo | BoxStyle::EnterIsYes;
    if (window_.MsgBox("Save this sheet of tickets?", Style, "CONFIRM") != Answer::Yes) NotSaved();
    else if (w.Enter.Capture().SheetIsFull()) SaveSheet();
    w.State.SavingSheet = false;
    if (TablesAfterSave[w.Which]) CreateAllTables(w.session, w.Which, w.State);
    g.Msg.clear();
}

void SheetFlow::MakePlayedTable() {
    WindowState& state = window_.State;
    if (const auto table = PlayedTable(window_.Which, window_.session.global.LottoFlag))
        state.TableName = *table;
    const Creator& creator = IsKeno(window_.Which) ? CreatePlayedKenoTable : CreatePlayedPick4Table;
    MakeSureOf(window_.session, state.Table(),
               [&] { creator(window_.session, state.Table(), PrimaryFieldName, DateFieldName); });
}

void SheetFlow::NotSaved() {
    window_.MsgBox("Tickets NOT Saved", BoxStyle::Ok, Confirmed);
    if (!NotSavedReloads[window_.Which]) return;
    window_.Form_Load();
    window_.txtNoOfTickets(0).SetFocus();
}

void SheetFlow::SaveSheet() {
    GameWindow& w = window_;
    const Global& g = w.session.global;
    w.State.SavingSheet = true;
    w.State.SavedDate = w.State.WindowDate;
    if (const auto table = PlayedTable(w.Which, g.LottoFlag)) w.State.TableName = *table;
    if (!StoresBeforeAsk[w.Which]) w.Enter.Capture().StoreTicket();
    w.Enter.Capture().SaveSheet(w.At());
    if (!AddOnAfterBox[w.Which]) w.Enter.AddOns.SaveSheet();
    if (w.State.CurrentSheet < g.NoOfSheets) BeginNextSheet();
    else if (w.State.CurrentSheet == g.NoOfSheets) FinishEntry();
    w.session.global.TicketsSaved = True;
}

void SheetFlow::BeginNextSheet() {
    GameWindow& w = window_;
    Global& g = w.session.global;
    window_.MsgBox("Tickets Saved - Enter Next Sheet", BoxStyle::Ok, Confirmed);
    if (AddOnAfterBox[w.Which]) w.Enter.AddOns.SaveSheet();
    g.NoOfTickets -= g.NoOfTicketsOnSheet;
    // The last sheet takes all that is left.
    if (w.State.CurrentSheet + 1 == g.NoOfSheets) g.NoOfTicketsOnSheet = g.NoOfTickets;
    w.Enter.Capture().NextSheet();
    w.State.CurrentSheet += 1;
    w.Enter.ShowTitle("Ticket #", 1);
    g.NumbersPicked = g.TicketNo = 0;
    w.State.BonusPhase = Off;
    if (w.Which == Family::frmKeno70) g.ExtraNo = 0;
    if (NextSheetEndsAddOns[w.Which]) g.EnteringAddOns = Off;
    w.Enter.FirstCaption();
    w.Enter.cmdSave.SetEnabled(false);
    w.Enter.AddOns.HideEncore();
    w.Enter.Capture().FocusAtNextSheet();
    if (AsksTicketsOnNextSheet()) AskTicketsOnSheet();
    if (w.Which == Family::frmKeno70) w.Enter.AddOns.EmptyForKenoSheet();
}

bool SheetFlow::AsksTicketsOnNextSheet() const {
    const Global& g = window_.session.global;
    if (g.NoOfTickets <= 1 || aTicketASheet_) return false;
    // Keno 80 compares the whole entry with its sheets instead.
    if (window_.Which == Family::frmKeno80) return g.TotalTickets != g.NoOfSheets;
    return g.NoOfTicketsOnSheet != g.NoOfTickets;
}

void SheetFlow::FinishEntry() {
    GameWindow& w = window_;
    Global& g = w.session.global;
    if (!SpentAfterBox[w.Which]) RecordSpending();
    window_.MsgBox("Tickets Saved", BoxStyle::Ok, Confirmed);
    if (AddOnAfterBox[w.Which]) w.Enter.AddOns.SaveSheet();
    if (SpentAfterBox[w.Which]) RecordSpending();
    for (forms::CommandButton* button : {&w.Enter.cmdSave, &w.Enter.cmdCorrection, &w.Enter.cmdCancel})
        button->SetEnabled(false);
    g.Dollars = "0";
    w.Enter.txtDollars.SetText(g.Dollars);
    g.NoOfTicketsOnSheet = g.NoOfTickets = 0;
    w.txtNoOfTickets(0).SetText("0");
    w.Enter.AddOns.ClearAfterLastSheet();
    w.Leave();
}

void SheetFlow::RecordSpending() {
    window_.State.TableName = "Spent";
    StoreLedgerAmount(window_.session, window_.At());
}

void SheetFlow::OfferCleanUp(std::string_view title) {
    Global& g = window_.session.global;
    WindowState& state = window_.State;
    if (g.NoOfTickets == 0 || g.NoOfSheets < state.CurrentSheet || g.TicketsSaved != True) return;
    g.Msg = "Since you've already saved some tickets, your database will be incorrect." + g.NL +
            "Would you like to clean up your database?" + g.NL +
            "(NOTE: This will delete ALL records with the same Draw Date as indicated" + g.NL +
            "in the Draw Date box above.)";
    if (window_.MsgBox(g.Msg, BoxStyle::YesNoCancel, title) != Answer::Yes) return;
    window_.NameTables();
    DeleteRowsForDate(window_.session, state.Table(), state.SavedDate);
    const AddOn* addOn = FindAddOn(g.ExtraFlag);
    if (addOn && Has(Cleans[window_.Which], g.ExtraFlag)) {
        state.TableName = addOn->Played;
        DeleteRowsForDate(window_.session, state.Table(), state.SavedDate);
    }
    window_.MsgBox("Database cleaned!", BoxStyle::Ok, "Database Cleaned");
}

}  // namespace sorvane

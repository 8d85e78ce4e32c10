#include "entry/ui/AddOnCapture.h"

#include "entry/EntryFacts.h"
#include "entry/SaveData.h"
#include "entry/ui/GameWindow.h"
#include "forms/Keys.h"
#include "platform/Text.h"
#include "shell/Catalogue.h"

namespace sorvane {

using namespace EntryFacts;

namespace {

constexpr int ShortestEncore = 6;
constexpr int MostLottarioEncores = 10;
constexpr int Play4Boxes = 4;
constexpr int LowestPlay4 = 1, HighestPlay4 = 99;

}  // namespace

AddOnCapture::AddOnCapture(GameWindow& window) : window_(window), g_(window.session.global) {
    MakeControls();
    AttachHandlers();
}

void AddOnCapture::MakeControls() {
    const Family family = window_.Which;
    if (HasNoOfExtra[family]) {
        lblNoOfExtra.emplace("lblNoOfExtra", IsKeno(family) ? "# of Encore Played this Sheet:"
                                                            : "# of Extra Played this Sheet:");
        txtNoOfExtra.emplace("txtNoOfExtra").SetText("0");
        lblNoOfExtra->SetVisible(CountShownAtLoad[family]);
        txtNoOfExtra->SetVisible(CountShownAtLoad[family]);
    }
    if (HasEncore[family]) {
        chkEncore.emplace("chkEncore", "Encore Played").SetVisible(CheckShownAtLoad[family]);
        lblExtra.emplace("lblExtra", "Extra Numbers:");
        txtEncore.emplace("txtEncore").SetEnabled(false);
        txtEncore->SetAccessibleName("Add-on number");
    }
    if (!HasPlay4[family]) return;
    for (int i = 0; i < Play4Boxes; ++i) {
        forms::TextBox& box = txtPlay4.Load(i);
        box.SetAccessibleName("Extra number " + Str(i + 1));
        box.SetVisible(false);
    }
}

void AddOnCapture::AttachHandlers() {
    if (txtNoOfExtra) {
        txtNoOfExtra->OnGotFocus([this] { txtNoOfExtra_GotFocus(); });
        if (ExtraFiltersKeys[window_.Which])
            txtNoOfExtra->OnKeyPress([this](forms::KeyPress& key) { txtNoOfExtra_KeyPress(key); });
        if (HasExtraFlow[window_.Which]) txtNoOfExtra->OnLostFocus([this] { txtNoOfExtra_LostFocus(); });
    }
    if (txtEncore) {
        chkEncore->OnClick([this] { chkEncore_Click(); });
        txtEncore->OnKeyPress([this](forms::KeyPress& key) { DigitsOnly(*txtEncore, key); });
        txtEncore->OnGotFocus([this] { txtEncore->SelectAll(); });
        txtEncore->OnLostFocus([this] { txtEncore_LostFocus(); });
    }
    txtPlay4.OnKeyPress([this](int Index, forms::KeyPress& key) { DigitsOnly(txtPlay4(Index), key); });
    txtPlay4.OnLostFocus([this](int Index) { txtPlay4_LostFocus(Index); });
}

int AddOnCapture::Count() const {
    return txtNoOfExtra && !txtNoOfExtra->Text().empty() ? int{CInt(txtNoOfExtra->Text())} : 0;
}

bool AddOnCapture::IsBought() const { return CountIsAboveZero() || chkEncore->Value() == 1; }

bool AddOnCapture::CountIsAboveZero() const { return txtNoOfExtra && txtNoOfExtra->Text() > "0"; }

void AddOnCapture::HideAtLoad() {
    if (txtEncore) txtEncore->SetText("0");
    HideEncore();
}

void AddOnCapture::EmptyCount() {
    if (txtNoOfExtra) txtNoOfExtra->SetText("0");
}

void AddOnCapture::EmptyForKenoSheet() {
    EmptyCount();
    txtEncore->SetText("0");
}

void AddOnCapture::HideEncore() {
    if (!txtEncore) return;
    lblExtra->SetVisible(false);
    txtEncore->SetVisible(false);
}

void AddOnCapture::HideExtra() {
    if (lblExtra) lblExtra->SetVisible(false);
    txtPlay4.ForEach([](forms::TextBox& box, int) { box.SetVisible(false); });
}

void AddOnCapture::EnableCheck() {
    if (chkEncore) chkEncore->SetEnabled(true);
}

void AddOnCapture::FocusCount() {
    if (txtNoOfExtra) txtNoOfExtra->SetFocus();
}

void AddOnCapture::txtNoOfExtra_KeyPress(forms::KeyPress& key) {
    if (!forms::IsDigitOrBackspace(key.KeyAscii) && key.KeyAscii != forms::EnterKey)
        forms::RefuseKey(window_.session.services.dialogs, *txtNoOfExtra, key);
    else if (key.KeyAscii == forms::EnterKey && EnterInExtraGoesOn[window_.Which])
        window_.Enter.Capture().FocusFirst();
}

void AddOnCapture::txtNoOfExtra_GotFocus() {
    if (window_.Which == Family::frm749 && txtNoOfExtra->Text().empty()) txtNoOfExtra->SetText("0");
    if (window_.Which != Family::frmPick3 || txtNoOfExtra->Text() == "0") txtNoOfExtra->SelectAll();
}

void AddOnCapture::txtNoOfExtra_LostFocus() {
    if (TakesTenEncores[window_.Which]) TakeLottarioCount();
    else TakeCount();
}

void AddOnCapture::TakeCount() {
    const std::string text = txtNoOfExtra->Text();
    if (AddOnOf(g_.ExtraFlag).BoundToSheet && !text.empty() && CDbl(text) > g_.NoOfTicketsOnSheet) {
        g_.Msg = "Too many Extra tickets entered. Please enter a value less than" + g_.NL +
                 "or equal to the number of Tickets on this sheet.";
        window_.MsgBox(g_.Msg, BoxStyle::Ok, ErrorTitle);
        txtNoOfExtra->SetText("");
        txtNoOfExtra->SetFocus();
    }
    if (txtNoOfExtra->Text().empty()) EmptyCount();
    g_.NoOfExtra = Count();
    if (AddOnOf(g_.ExtraFlag).NumbersInTurn()) g_.AddOnTickets.Redim(g_.NoOfExtra);
}

void AddOnCapture::TakeLottarioCount() {
    if (!FindKey(window_.Which, g_.LottoFlag)) return;
    if (txtNoOfExtra->Text().empty()) EmptyCount();
    if (CDbl(txtNoOfExtra->Text()) > MostLottarioEncores) {
        window_.MsgBox("Maximum number of 10 Encore Tickets per Sheet. Please try again.", BoxStyle::Ok,
                       "Too Many Encore Tickets Entered");
        EmptyCount();  // NoOfExtra keeps its old value
        txtNoOfExtra->SelectAll();
        txtNoOfExtra->SetFocus();
    } else {
        g_.NoOfExtra = Count();
    }
    g_.AddOnTickets.Redim(g_.NoOfExtra);
}

void AddOnCapture::chkEncore_Click() {
    txtEncore->SetEnabled(!txtEncore->Enabled());
    if (chkEncore->Value() == 1) {
        g_.AddOnTickets.Redim(1);
        g_.NoOfExtra = 1;
    } else {
        g_.NoOfExtra = 0;
    }
}

void AddOnCapture::DigitsOnly(forms::TextBox& field, forms::KeyPress& key) {
    if (forms::IsDigitOrBackspace(key.KeyAscii)) return;
    window_.MsgBox(forms::NotANumber, BoxStyle::Exclamation, forms::KeyErrorTitle);
    key.Swallow();
    field.SetFocus();
}

void AddOnCapture::txtEncore_LostFocus() {
    if (Len(txtEncore->Text()) < ShortestEncore) {
        g_.Msg = "Encore number too short. Please check the number and try again.";
        window_.MsgBox(g_.Msg, BoxStyle::OkCancel, "Encore Too Short!");  // both answers are alike
        txtEncore->SetFocus();
        return;
    }
    if (EveryEncoreGoesOn[window_.Which] || AddOnOf(g_.ExtraFlag).CountedOnSheet) NumberComplete();
}

void AddOnCapture::txtPlay4_LostFocus(int Index) {
    forms::TextBox& box = txtPlay4(Index);
    const double number = box.Text().empty() ? LowestPlay4 : CDbl(box.Text());
    if (number < LowestPlay4 || number > HighestPlay4) {
        window_.MsgBox("Please enter a number between 1 and 99.", BoxStyle::Exclamation,
                       "Error - Number out of Range!");
        box.SetText("");
        box.SetFocus();
    } else if (Index == Play4Boxes - 1) {
        NumberComplete();
    }
}

void AddOnCapture::NumberComplete() {
    forms::CommandButton* next = nullptr;
    if (g_.ExtraNo + 1 < g_.NoOfExtra) next = &window_.Enter.cmdNext_Ticket;
    else if (g_.ExtraNo + 1 == g_.NoOfExtra) next = &window_.Enter.cmdSave;
    if (!next) return;
    next->SetEnabled(true);
    next->SetFocus();
}

void AddOnCapture::ShowTitle(std::string_view kind) { window_.Enter.ShowTitle(kind, g_.ExtraNo + 1); }

bool AddOnCapture::OfferPhase() {
    const AddOn& addOn = AddOnOf(g_.ExtraFlag);
    const bool extra = addOn.FourNumbers && HasPlay4[window_.Which];
    if ((!extra && !addOn.NumbersInTurn()) || Count() <= 0) return false;
    window_.Enter.cmdNext_Ticket.SetCaption(extra ? AddOnCaption::EnterExtra : AddOnCaption::EnterEncore);
    window_.Enter.cmdNext_Ticket.SetEnabled(true);
    ShowTitle(extra ? AddOnCaption::ExtraTitle : AddOnCaption::EncoreTitle);
    g_.EnteringAddOns = On;
    window_.Enter.cmdSave.SetEnabled(false);
    return true;
}

void AddOnCapture::Next() {
    const std::string caption = window_.Enter.cmdNext_Ticket.Caption();
    if (caption == AddOnCaption::EnterExtra) {
        OpenPhase(AddOnCaption::NextExtra);
        lblExtra->SetVisible(true);
        txtPlay4.ForEach([](forms::TextBox& box, int) { box.SetVisible(true); });
        txtPlay4(0).SetFocus();
    } else if (caption == AddOnCaption::EnterEncore) {
        OpenPhase(AddOnCaption::NextEncore);
        ShowEncore();
    } else if (caption == AddOnCaption::NextExtra && g_.EnteringAddOns == On) {
        StoreExtraTicket();
        ShowTitle(AddOnCaption::ExtraTitle);  // before the count rises: the title stays one behind
        g_.ExtraNo += 1;
        EmptyPlay4();
        txtPlay4(0).SetFocus();
    } else if (caption == AddOnCaption::NextEncore && g_.EnteringAddOns == On) {
        StoreAddOnTicket(g_.ExtraNo);
        ShowTitle(AddOnCaption::EncoreTitle);
        g_.ExtraNo += 1;
        EmptyEncore();
    }
}

void AddOnCapture::OpenPhase(std::string_view next) {
    window_.Enter.chkRegular.SetEnabled(false);
    g_.ExtraNo = 0;
    window_.Enter.cmdNext_Ticket.SetCaption(next);
}

void AddOnCapture::ShowEncore() {
    lblExtra->SetVisible(true);
    txtEncore->SetVisible(true);
    txtEncore->SetEnabled(true);
    txtEncore->SetFocus();
}

void AddOnCapture::EmptyEncore() {
    txtEncore->SetText("");
    txtEncore->SetFocus();
}

void AddOnCapture::EmptyPlay4() {
    txtPlay4.ForEach([](forms::TextBox& box, int) { box.SetText(""); });
}

void AddOnCapture::StoreAddOnTicket(int element) {
    AddOnTicket& ticket = g_.AddOnTickets(element);
    const bool bought = IsBought();
    const std::string number = txtEncore->Text();
    const int digits = AddOnDigits(g_.ExtraFlag);
    ticket.DrawDate = window_.dtpEnterTickets(0).Value();
    for (int slot = 0; slot < digits; ++slot)
        ticket.Numbers(slot) = bought ? CInt(Mid(number, slot + 1, 1)) : Integer(NotPlayed);
}

void AddOnCapture::StoreExtraTicket() {
    g_.ExtraTickets.RedimPreserve(g_.NoOfExtra);
    ExtraTicket ticket;
    for (int i = 0; i < Play4Boxes; ++i) ticket.Numbers(i) = CInt(txtPlay4(i).Text());
    g_.ExtraTickets(g_.ExtraNo) = ticket;
}

bool AddOnCapture::IsSaved() const { return Has(Saves[window_.Which], g_.ExtraFlag); }

void AddOnCapture::SaveSheet() {
    if (!IsSaved()) return;
    if (!AddOnOf(g_.ExtraFlag).FourNumbers) SaveNumbers();
    else if (g_.EnteringAddOns == On) SaveExtra();
}

void AddOnCapture::SaveNumbers() {
    const AddOn& addOn = *FindAddOn(g_.ExtraFlag);
    // ExtraNo may still be that of the sheet before, when this one has no add-on.
    StoreAddOnTicket(addOn.CountedOnSheet && IsBought() ? int{g_.ExtraNo} : 0);
    window_.State.TableName = addOn.Played;
    SaveAddOnTickets(window_.session, window_.At());
    chkEncore->SetValue(0);
    txtEncore->SetText("");
}

void AddOnCapture::SaveExtra() {
    StoreExtraTicket();
    window_.State.TableName = FindAddOn(g_.ExtraFlag)->Played;
    SaveExtraTickets(window_.session, window_.At());
    EmptyPlay4();
    HideExtra();
}

void AddOnCapture::ClearAfterLastSheet() {
    if (!HasPlay4[window_.Which]) return;
    if (AddOnOf(g_.ExtraFlag).FourNumbers) {
        EmptyCount();
        EmptyPlay4();
    } else {
        chkEncore->SetValue(0);
        txtEncore->SetText("");
    }
}

}  // namespace sorvane

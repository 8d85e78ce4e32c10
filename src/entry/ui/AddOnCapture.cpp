#include "entry/ui/AddOnCapture.h"

#include "entry/EntryFacts.h"
#include "entry/ui/GameWindow.h"
#include "platform/Text.h"

namespace sorvane {

AddOnCapture::AddOnCapture(GameWindow& window) : window_(window) {
    if (HasNoOfExtra[window.Which]) {
        lblNoOfExtra.emplace("lblNoOfExtra", "# of Extra Played this Sheet:");
        txtNoOfExtra.emplace("txtNoOfExtra").SetText("0");
    }
}

int AddOnCapture::Count() const { return txtNoOfExtra ? static_cast<int>(Val(txtNoOfExtra->Text())) : 0; }
void AddOnCapture::HideAtLoad() {}
void AddOnCapture::EmptyCount() {
    if (txtNoOfExtra) txtNoOfExtra->SetText("0");
}
void AddOnCapture::EmptyForKenoSheet() { EmptyCount(); }
void AddOnCapture::HideForNextSheet() {}
void AddOnCapture::HideAtCancel() {}
void AddOnCapture::EnableCheck() {}
void AddOnCapture::FocusCount() {
    if (txtNoOfExtra) txtNoOfExtra->SetFocus();
}
bool AddOnCapture::OfferPhase() { return false; }
bool AddOnCapture::IsInPhase() const { return false; }
void AddOnCapture::Next() {}
void AddOnCapture::StoreAddOnTicket(int) {}
void AddOnCapture::StoreExtraTicket() {}
void AddOnCapture::SaveSheet() {}
void AddOnCapture::ClearAfterLastSheet() {}

}  // namespace sorvane

#include "entry/ui/DigitCapture.h"
#include "entry/ui/GameWindow.h"
#include "entry/ui/KenoCapture.h"
#include "entry/ui/LottoCapture.h"

namespace sorvane {

std::unique_ptr<TicketCapture> MakeCapture(GameWindow& window) {
    if (IsPick(window.Which)) return std::make_unique<DigitCapture>(window);
    if (IsKeno(window.Which)) return std::make_unique<KenoCapture>(window);
    if (window.Which == Family::frm749) return std::make_unique<BonusCapture>(window);
    if (window.Which == Family::frm645) return std::make_unique<LottarioCapture>(window);
    return std::make_unique<LottoCapture>(window);
}

}  // namespace sorvane

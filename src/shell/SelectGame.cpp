#include "shell/SelectGame.h"

namespace sorvane {

void Select(Global& global, const Game& game) {
    constexpr std::int64_t TenThousandthsInCent = 100;
    global.NoOfSheets = 0;
    if (game.MaxTicketsOnSheet) global.MaxTicketsOnSheet = *game.MaxTicketsOnSheet;
    if (game.TicketPriceCents)
        global.TicketPrice = Currency::FromTenThousandths(*game.TicketPriceCents * TenThousandthsInCent);
    if (game.FreePlays) global.FreePlays = *game.FreePlays;
    global.GameForm = NameOf(game.opens);
    global.LottoFlag = game.LottoFlag;
    global.ExtraFlag = game.ExtraFlag;
}

}  // namespace sorvane

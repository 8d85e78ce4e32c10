#include "entry/Amounts.h"

#include "entry/EntryFacts.h"
#include "platform/Text.h"
#include "shell/Catalogue.h"

namespace sorvane {

std::string DefaultAmount(Family family, std::string_view LottoFlag, int tickets) {
    const GameKey* key = FindKey(family, LottoFlag);
    if (key && key->HalfPrice) {
        const std::string half = (Currency::FromTenThousandths(Currency::Scale / 2) * tickets).ToText();
        return half + (tickets % 2 == 0 ? ".00" : "0");
    }
    const long dollars = static_cast<long>(EntryFacts::TicketDollars[family]) * tickets;
    return std::string(EntryFacts::AmountLead[family]) + Str(dollars) + ".00";
}

bool HasHalfWagers(std::string_view LottoFlag) { return CellsOf(LottoFlag).HalfWagers; }

std::string WagerAmount(WagerOption option, std::string_view LottoFlag, int tickets) {
    const Currency count = Currency::FromInt(tickets);
    switch (option) {
        case WagerOption::One:
            if (!HasHalfWagers(LottoFlag)) return Format(count, "###.00");
            return Format(Currency::FromTenThousandths(Currency::Scale / 2) * tickets, "###.#0");
        case WagerOption::Two:
            return Format(HasHalfWagers(LottoFlag) ? count : count * 2, "###.00");
        case WagerOption::Five:
            return Format(count * 5, "###.00");
        case WagerOption::Ten:
            return Format(count * 10, "###.00");
    }
    return {};
}

}  // namespace sorvane

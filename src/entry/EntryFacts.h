// Facts of the families that ticket entry asks, one line a fact, seven values beside each other.
#pragma once

#include <algorithm>
#include <array>
#include <span>
#include <string_view>

#include "shell/FamilyFacts.h"

namespace sorvane::EntryFacts {

// Where Enter in a field moves the focus.
enum class Go { Stay, Extra, Make };

// Add-on keys.
using Keys = std::span<const std::string_view>;
inline constexpr std::string_view EveryKey[] = {"Encore", "Extra", "ThePlus", "QCExtra", "Tag", "WESTExtra"};
inline constexpr Keys Every = EveryKey;
inline constexpr Keys ButWestern = Every.first<5>();
inline constexpr Keys EncoreAlone = Every.first<1>();
inline constexpr std::string_view ButThePlusKeys[] = {"Encore", "Extra", "QCExtra", "Tag", "WESTExtra"};
inline constexpr Keys ButThePlus = ButThePlusKeys;
constexpr bool Has(Keys keys, std::string_view ExtraFlag) {
    return std::find(keys.begin(), keys.end(), ExtraFlag) != keys.end();
}

inline constexpr bool yes = true;
inline constexpr bool no = false;

// clang-format off
//                                                     649    749    645    K70    K80    P3     P4
inline constexpr PerFamily<bool> HasDollarsLabel    {{ yes,   no,    yes,   yes,   yes,   no,    no    }};
inline constexpr PerFamily<bool> HasLabel1          {{ no,    yes,   no,    no,    no,    yes,   yes   }};  // in place of lblNoTickets
inline constexpr PerFamily<bool> HasEncore          {{ yes,   yes,   yes,   yes,   no,    yes,   no    }};  // txtEncore, chkEncore, lblExtra
inline constexpr PerFamily<bool> HasPlay4           {{ yes,   yes,   no,    no,    no,    no,    no    }};
inline constexpr PerFamily<bool> HasNoOfExtra       {{ yes,   yes,   yes,   yes,   yes,   yes,   no    }};  // keno 80: there, without a flow
inline constexpr PerFamily<bool> HasExtraFlow       {{ yes,   yes,   yes,   yes,   no,    yes,   no    }};
inline constexpr PerFamily<bool> CountShownAtLoad   {{ yes,   yes,   yes,   yes,   yes,   no,    no    }};  // txtNoOfExtra and its label
inline constexpr PerFamily<bool> CheckShownAtLoad   {{ yes,   yes,   no,    no,    no,    no,    no    }};  // chkEncore
inline constexpr PerFamily<bool> ExtraFiltersKeys   {{ yes,   yes,   no,    yes,   yes,   yes,   no    }};  // Lottario's count takes any key: meant
inline constexpr PerFamily<Go>   EnterInCount0      {{ Go::Extra, Go::Stay, Go::Stay, Go::Make, Go::Make, Go::Stay, Go::Stay }};
inline constexpr PerFamily<Go>   EnterInCount1      {{ Go::Extra, Go::Stay, Go::Make, Go::Make, Go::Make, Go::Stay, Go::Stay }};
inline constexpr PerFamily<bool> EnterInExtraGoesOn {{ yes,   no,    no,    yes,   no,    yes,   no    }};  // to the first number or list
inline constexpr PerFamily<bool> TakesTenEncores    {{ no,    no,    yes,   no,    no,    no,    no    }};  // at most; the others are bound to their sheet under "Extra", else not at all
inline constexpr PerFamily<int>  TicketDollars      {{ 1,     2,     1,     1,     1,     1,     1     }};  // of a game that is not half the price
inline constexpr PerFamily<std::string_view> AmountLead{{ "", "",    "",    " ",   "",    "",    ""    }};  // before the amount at the count, and before that of a lone point: meant
inline constexpr PerFamily<bool> EmptyCountBecomesZero{{ no,  yes,   no,    no,    no,    no,    no    }};  // before the amount is reckoned; the others stay empty
inline constexpr PerFamily<bool> CountOpensGrid     {{ yes,   yes,   yes,   no,    yes,   no,    no    }};
inline constexpr PerFamily<bool> NotSavedReloads    {{ yes,   yes,   yes,   yes,   no,    yes,   no    }};
inline constexpr PerFamily<bool> StoresBeforeAsk    {{ no,    no,    no,    no,    no,    yes,   yes   }};
inline constexpr PerFamily<bool> ProbesAtSave       {{ no,    no,    no,    no,    yes,   no,    yes   }};
inline constexpr PerFamily<bool> AddOnAfterBox      {{ no,    no,    yes,   no,    no,    no,    no    }};
inline constexpr PerFamily<bool> SpentAfterBox      {{ no,    no,    no,    no,    no,    yes,   yes   }};
inline constexpr PerFamily<bool> NextSheetEndsAddOns{{ no,    yes,   yes,   no,    no,    no,    no    }};  // frm649 keeps the phase: meant
inline constexpr PerFamily<bool> TablesAfterSave    {{ yes,   yes,   yes,   yes,   no,    yes,   yes   }};
inline constexpr PerFamily<bool> CancelCleansUp     {{ no,    no,    no,    yes,   no,    no,    no    }};
inline constexpr PerFamily<bool> CorrectionStopsAtZero{{ yes, yes,   yes,   no,    no,    yes,   yes   }};
inline constexpr PerFamily<bool> EveryEncoreGoesOn  {{ no,    yes,   yes,   yes,   no,    yes,   no    }};  // leaving txtEncore; frm649: under Encore and Extra alone
// Which add-on keys a window saves, makes tables for, and cleans up.
inline constexpr PerFamily<Keys> Saves              {{ ButWestern, ButThePlus, EncoreAlone, EncoreAlone, {}, EncoreAlone, {} }};
inline constexpr PerFamily<Keys> Creates            {{ ButWestern, Every, EncoreAlone, EncoreAlone, {}, EncoreAlone, {} }};
inline constexpr PerFamily<Keys> Cleans             {{ Every, Every, Every, EncoreAlone, EncoreAlone, Every, Every }};
// clang-format on

}  // namespace sorvane::EntryFacts

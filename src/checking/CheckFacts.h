// Facts of the families that the check page asks, one line a fact, seven values beside each other, and the
// add-on games that each window checks.
#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>

#include "checking/CheckForMatches.h"
#include "checking/ReadTableData.h"
#include "checking/StoreData.h"
#include "shell/Catalogue.h"
#include "shell/Family.h"

namespace sorvane::CheckFacts {

using Reader = void (*)(Session&, const StoreArgs&, Lines&);
using WinWriter = void (*)(Session&, const StoreArgs&, const WinningBoxes&);
using Judge = void (*)(Session&, const WinningBoxes&, int Row, Lines& lstMessage);

// When the digits of the add-on box are asked for.
enum class AddOnTest { Never, BeforeBoxes, AfterBoxes, AfterLists };
// When the four numbers of txtWin4 are asked for: never, under the add-on "Extra", or always (the EarlyBird).
enum class FourTest { Never, UnderExtra, Always };
// When the lists are emptied.
enum class Clearing { AfterDate, AfterBoxes, AfterAddOn };

// What "Update Stats Only" disables, as a set.
namespace StatControls {
inline constexpr unsigned None = 0, Encore = 1, Four = 2, EarlyBird = 4;  // EarlyBird: lblWinEarlybird
}  // namespace StatControls

inline constexpr bool yes = true;
inline constexpr bool no = false;

inline constexpr std::string_view Missing49 =
    "Missing Data. Please enter a valid number from 1 to 49 and try again.";
inline constexpr std::string_view Missing45 =
    "Missing Data. Please enter a valid number from 1 to 45 and try again.";
inline constexpr std::string_view Missing70 =
    "Missing Data. Please enter a valid number from 1 to 70 and try again.";
inline constexpr std::string_view Missing99 =
    "Missing Data. Please enter a valid number from 1 to 99 and try again.";
inline constexpr std::string_view MissingDigit = "Missing data. Please check and try again.";
inline constexpr std::string_view EncoreTooShort =
    "The Encore number is too short. Please check the number and try again.";
inline constexpr std::string_view Between49 = "Please enter a number between 1 and 49.";
inline constexpr std::string_view Between70 = "Please enter a number between 1 and 70.";
inline constexpr std::string_view Between80 = "Please enter a number between 1 and 80.";
inline constexpr std::string_view Between99 = "Please enter a number between 1 and 99.";
inline constexpr std::string_view From45 = "Please enter a number from 1 to 45.";

// clang-format off
//                                                              649         749         645         K70         K80         P3          P4
// The winning boxes.
inline constexpr PerFamily<std::string_view> BoxStem        {{ "txtWin6",  "txtWin7",  "txtWin6",  "txtWin20", "txtWin20", "cboWin3",  "cboWin4"  }};
inline constexpr PerFamily<int>              BoxCount       {{ 7,          8,          7,          20,         20,         3,          4          }};  // bonus included
inline constexpr PerFamily<bool>             HasFour        {{ yes,        yes,        yes,        no,         no,         no,         no         }};  // txtWin4
inline constexpr PerFamily<bool>             HasEncoreBox   {{ yes,        yes,        yes,        yes,        no,         yes,        no         }};  // txtWinEncore
inline constexpr PerFamily<bool>             HasEncoreList  {{ yes,        yes,        yes,        yes,        no,         yes,        yes        }};  // lstEncorePlayed

// The guards of the winning boxes, up to the highest number of the family; without a text there is none.
inline constexpr PerFamily<std::string_view> RangeText      {{ Between49,  Between49,  From45,     Between70,  Between80,  "",         ""         }};
inline constexpr PerFamily<bool>             EnterMovesOn   {{ no,         no,         yes,        no,         no,         no,         no         }};  // from a winning box to the next; elsewhere it is a refused key
inline constexpr PerFamily<int>              FourTop        {{ 99,         NoSuch,     45,         NoSuch,     NoSuch,     NoSuch,     NoSuch     }};  // frm749 lets any number stand: meant
inline constexpr PerFamily<std::string_view> FourRangeText  {{ Between99,  "",         From45,     "",         "",         "",         ""         }};
inline constexpr PerFamily<bool>             RefusalEmptiesFour{{ no,      no,         yes,        no,         no,         no,         no         }};
inline constexpr PerFamily<bool>             GuardsEncoreKeys{{ yes,       yes,        no,         no,         no,         no,         no         }};  // Backspace, too, moves to cmdCheck: meant
inline constexpr PerFamily<bool>             GuardsEncoreExit{{ no,        yes,        no,         no,         no,         no,         no         }};

// The order of a check.
inline constexpr PerFamily<bool>             BoxesRequired  {{ yes,        yes,        yes,        yes,        no,         yes,        yes        }};  // keno 80 takes empty boxes: meant
inline constexpr PerFamily<std::string_view> MissingText    {{ Missing49,  Missing49,  Missing45,  Missing70,  "",         MissingDigit, MissingDigit }};
inline constexpr PerFamily<std::string_view> MissingTitle   {{ "ERROR",    "ERROR",    "ERROR",    "ERROR",    "",         "ERROR!",   "ERROR!"   }};
inline constexpr PerFamily<FourTest>         FourTested     {{ FourTest::UnderExtra, FourTest::UnderExtra, FourTest::Always, FourTest::Never, FourTest::Never, FourTest::Never, FourTest::Never }};  // never under StatUpdate
inline constexpr PerFamily<std::string_view> FourMissingText{{ Missing99,  Missing99,  Missing45,  "",         "",         "",         ""         }};  // title "ERROR"
inline constexpr PerFamily<AddOnTest>        AddOnTested    {{ AddOnTest::AfterBoxes, AddOnTest::AfterBoxes, AddOnTest::AfterLists, AddOnTest::AfterBoxes, AddOnTest::Never, AddOnTest::BeforeBoxes, AddOnTest::Never }};  // never under StatUpdate
inline constexpr PerFamily<std::string_view> AddOnTestedFor {{ "",         "",         "Encore",   "",         "",         "Encore",   ""         }};  // this add-on key alone; empty: any
inline constexpr PerFamily<std::string_view> TooShortTitle  {{ "ERROR",    "ERROR",    "Encore Too Short", "ERROR", "",    "Encore Too Short", "" }};
inline constexpr PerFamily<Clearing>         ListsCleared   {{ Clearing::AfterAddOn, Clearing::AfterAddOn, Clearing::AfterBoxes, Clearing::AfterAddOn, Clearing::AfterDate, Clearing::AfterDate, Clearing::AfterDate }};
inline constexpr PerFamily<bool>             ClearsEncoreListAtTest{{ no,  no,         no,         no,         no,         yes,        yes        }};  // where the add-on is tested, and only then
inline constexpr PerFamily<bool>             KnowsStatUpdate{{ yes,        yes,        yes,        yes,        no,         yes,        yes        }};  // keno 80 judges all the same
inline constexpr PerFamily<bool>             ProbesWin      {{ no,         no,         no,         no,         yes,        no,         no         }};
inline constexpr PerFamily<bool>             RefusalStops   {{ yes,        yes,        yes,        yes,        no,         no,         no         }};  // else the tickets are judged all the same
inline constexpr PerFamily<bool>             UpdateEmptiesBoxes{{ yes,     yes,        yes,        yes,        no,         no,         no         }};

// Its routines.
inline constexpr PerFamily<Reader>           Read           {{ ReadLotto6Played, ReadLotto7Played, ReadLotto6Played, ReadKenoPlayed, ReadKenoPlayed, ReadPick3Played, ReadPick4Played }};
inline constexpr PerFamily<WinWriter>        Store          {{ StoreLotto6Win, StoreLotto7Win, StoreLotto6Win, StoreKenoWin, StoreKenoWin, StorePick3Win, StorePick4Win }};
inline constexpr PerFamily<Judge>            Check          {{ CheckLotto6, CheckLotto7, CheckLotto6, CheckKeno,  CheckKeno,  CheckPick3, CheckPick4 }};
// The second draw that comes with the first: stored in a full check just before judging, judged right after
// each ticket.
inline constexpr PerFamily<std::string_view> AlsoWin        {{ "",         "",         "WinEarlyBird", "",     "",         "",         ""         }};
inline constexpr PerFamily<WinWriter>        AlsoStore      {{ nullptr,    nullptr,    StoreExtraWin, nullptr, nullptr,    nullptr,    nullptr    }};
inline constexpr PerFamily<Judge>            AlsoCheck      {{ nullptr,    nullptr,    CheckExtraEarlyBird, nullptr, nullptr, nullptr, nullptr    }};

// The page around it.
inline constexpr PerFamily<unsigned>         StatDisables   {{ StatControls::Encore | StatControls::Four, StatControls::Encore | StatControls::Four, StatControls::Encore | StatControls::Four | StatControls::EarlyBird, StatControls::None, StatControls::None, StatControls::Encore, StatControls::None }};
inline constexpr PerFamily<bool>             DateEmptiesFour{{ no,         yes,        yes,        no,         no,         no,         no         }};
inline constexpr PerFamily<bool>             FollowsRows    {{ yes,        yes,        yes,        yes,        no,         yes,        yes        }};  // a double-click in lstMessage
inline constexpr PerFamily<bool>             ClickFollows   {{ no,         no,         yes,        no,         no,         no,         no         }};  // a click in lstNumbersPlayed, from the second on
inline constexpr PerFamily<bool>             WonFilter      {{ no,         no,         yes,        no,         no,         no,         no         }};  // txtDollarsWon takes the keys of an amount alone
inline constexpr PerFamily<bool>             ProbesForWinnings{{ no,       no,         yes,        yes,        yes,        no,         no         }};
// clang-format on

// Texts that all windows share.
inline constexpr std::string_view CheckTitle = "ERROR";  // the store's boxes have "ERROR!"
inline constexpr std::string_view FutureText =
    "This draw hasn't taken place yet. Please check the Draw Date and try again.";
inline constexpr std::string_view UpdatedText = "Database Updated.";
inline constexpr std::string_view UpdatedTitle = "Database Updated";
inline constexpr std::string_view SavedText = "Winning data saved.";
inline constexpr std::string_view SavedTitle = "SAVED";
// The guards; their boxes have the exclamation icon, but the last one.
inline constexpr std::string_view RangeTitle = "Error - Number out of Range!";
inline constexpr std::string_view EncoreExitText =
    "Encore Number is too short. Please check the number and try again.";
inline constexpr std::string_view EncoreExitTitle = "ERROR!";

// The box of an add-on number with fewer characters than the add-on has digits. The Plus has no name there:
// its text begins with a blank. Meant.
inline std::string TooShortText(Family family, std::string_view ExtraFlag) {
    if (AddOnTested[family] != AddOnTest::AfterBoxes) return std::string(EncoreTooShort);
    return std::string(AddOnOf(ExtraFlag).Name)
        .append(" number is too short. Please check the number and try again.");
}

// How the add-on of a key is checked; its tables are the catalogue's.
struct AddOnPass {
    std::string_view ExtraFlag;
    Reader Read;
    WinWriter Store;
    Judge Check;
};

inline constexpr AddOnPass EncorePass{"Encore", ReadDigitAddOnPlayed, StoreAddOnWin, CheckEncore};
inline constexpr AddOnPass ExtraPass{"Extra", ReadExtraPlayed, StoreExtraWin, CheckExtraEarlyBird};
inline constexpr AddOnPass ThePlusPass{"ThePlus", ReadDigitAddOnPlayed, StoreAddOnWin, CheckThePlus};
inline constexpr AddOnPass QCExtraPass{"QCExtra", ReadDigitAddOnPlayed, StoreAddOnWin, CheckQCExtra};
inline constexpr AddOnPass TagPass{"Tag", ReadDigitAddOnPlayed, StoreAddOnWin, CheckTag};
inline constexpr AddOnPass WESTExtraPass{"WESTExtra", ReadDigitAddOnPlayed, StoreAddOnWin, CheckWESTExtra};

// The keys each window tests, in its order.
inline constexpr std::array Passes649{EncorePass, ExtraPass, ThePlusPass, QCExtraPass, TagPass};
inline constexpr std::array Passes749{EncorePass, WESTExtraPass, QCExtraPass, TagPass, ExtraPass};
inline constexpr std::array PassesKeno70{EncorePass, QCExtraPass, TagPass};
inline constexpr std::array PassesEncore{EncorePass};
inline constexpr PerFamily<std::span<const AddOnPass>> AddOnPasses{
    {Passes649, Passes749, PassesEncore, PassesKeno70, {}, PassesEncore, PassesEncore}};

// The row of the key in this window; null when the window checks no such add-on.
inline const AddOnPass* FindAddOnPass(Family family, std::string_view ExtraFlag) {
    for (const AddOnPass& pass : AddOnPasses[family])
        if (pass.ExtraFlag == ExtraFlag) return &pass;
    return nullptr;
}

}  // namespace sorvane::CheckFacts

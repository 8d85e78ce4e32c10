#include "shell/Dressing.h"

#include <algorithm>
#include <array>
#include <span>

namespace sorvane {

namespace {

using Property = Setting::Property;

constexpr Setting Show(std::string_view control, int elements = 0) {
    return {control, Property::Visible, 1, {}, elements};
}
constexpr Setting Hide(std::string_view control, int elements = 0) {
    return {control, Property::Visible, 0, {}, elements};
}
constexpr Setting Caption(std::string_view control, std::string_view text) {
    return {control, Property::Caption, 0, text};
}
constexpr Setting MaxLength(std::string_view control, int characters) {
    return {control, Property::MaxLength, characters};
}
constexpr Setting Disable(std::string_view control) { return {control, Property::Enabled, 0}; }

// The two lotto windows.
constexpr auto Lotto = std::to_array({Hide("txtPlay4", 4), Hide("lblExtra")});
constexpr auto Super7 = std::to_array({Hide("chkNumb(47)"), Hide("chkNumb(48)")});
// The money stands beside the other label.
constexpr auto MoneyMoved = std::to_array({Hide("lblDollars"), Show("lblDollarsSpent")});
constexpr auto MoneyStays = std::to_array({Show("lblDollarsSpent")});  // where there is one label only

// British Columbia counts its add-on tickets, of four numbers each.
constexpr auto FourNumbers = std::to_array(
    {Show("lblNoOfExtra"), Show("txtNoOfExtra"), Hide("chkEncore"), Hide("txtEncore"),
     Caption("lblEncorePlayed", "Extra #'s Played:"), Hide("txtWinEncore"), Show("txtWin4", 4)});
// Ontario counts its add-on tickets, of one number each. The caption lacks the colon of the pick games.
constexpr auto CountedEncore =
    std::to_array({Caption("lblNoOfExtra", "# of Encore Played this Sheet"),
                   Caption("lblExtra", "Encore Numbers"), Hide("txtEncore"), Hide("txtWin4", 4)});
// The others take one number for each ticket.
constexpr auto OneNumber =
    std::to_array({Hide("lblNoOfExtra"), Hide("txtNoOfExtra"), Show("txtEncore"), Hide("txtWin4", 4)});
constexpr auto Western = std::to_array({Show("chkEncore"), Show("lblWinEncore"), Show("txtWinEncore")});
constexpr auto ThePlus = std::to_array(
    {Caption("lblEncorePlayed", "The Plus #'s:"), Caption("lblWinEncore", "Enter The Plus Number:")});

constexpr auto BCExtra = std::to_array({Caption("lblWinEncore", "Enter Extra Numbers:")});
constexpr auto BC49 = std::to_array({Caption("chkEncore", "Extra Played"), Caption("lblWinEncore", "Extra")});
constexpr auto BCSuper7 = std::to_array({MaxLength("txtEncore", 6)});
constexpr auto WestLotto649 = std::to_array({Caption("chkEncore", "The Plus Played")});
constexpr auto West649 = std::to_array({Caption("chkEncore", "The Plus")});
constexpr auto WestSuper7 =
    std::to_array({Caption("chkEncore", "Extra Played"), MaxLength("txtEncore", 7),
                   Caption("lblEncorePlayed", "Extra #'s:"), Caption("lblWinEncore", "Enter Extra Number:"),
                   MaxLength("txtWinEncore", 7)});
constexpr auto OntLotto649 = std::to_array({Hide("chkEncore"), Caption("lblEncorePlayed", "Encore #'s:")});
constexpr auto Ontario49 =
    std::to_array({Caption("chkEncore", "Encore Played"), Caption("lblEncorePlayed", "Encore #'s Played:")});
constexpr auto OntSuper7 = std::to_array({Hide("chkEncore")});
constexpr auto QCExtra =
    std::to_array({Caption("chkEncore", "Extra Played"), Caption("lblWinEncore", "Enter Extra Number:")});
constexpr auto ExtraNumbers = std::to_array({Caption("lblEncorePlayed", "Extra #'s:")});
constexpr auto ShowCheck = std::to_array({Show("chkEncore")});
// The one game whose add-on box is seen but can't be changed before the count of tickets is accepted.
constexpr auto Quebec49 =
    std::to_array({Show("chkEncore"), Disable("chkEncore"), Caption("lblEncorePlayed", "Extra #'s Played:")});
constexpr auto Tag =
    std::to_array({Caption("chkEncore", "Tag Played"), Caption("lblEncorePlayed", "Tag #'s:")});
constexpr auto AtlLotto649 = std::to_array({Show("chkEncore"), Caption("lblWinEncore", "Enter Tag Number:")});

constexpr auto Lottario =
    std::to_array({Caption("lblNoOfExtra", "# of Encore Played this Sheet"),
                   Caption("lblExtra", "Encore Numbers"), Hide("lblExtra"), Hide("txtEncore")});
constexpr auto Keno = std::to_array(
    {Show("lblNoOfExtra"), Show("txtNoOfExtra"), Show("lblEncorePlayed"), Show("lstEncorePlayed")});

// Digit games.
constexpr auto NoAddOn = std::to_array(
    {Hide("lblWinEncore"), Hide("txtWinEncore"), Hide("lblEncorePlayed"), Hide("lstEncorePlayed")});
constexpr auto Scramble = std::to_array({Caption("optPlayOpt(1)", "Scramble")});
constexpr auto StraightAndScramble = std::to_array({Caption("optPlayOpt(2)", "Straight && Scramble")});
constexpr auto OntPick3 =
    std::to_array({Hide("optPlayOpt(2)"), Show("lblNoOfExtra"),
                   Caption("lblNoOfExtra", "# of Encore Played this Sheet:"), Show("txtNoOfExtra")});
constexpr auto Cash3 = std::to_array(
    {Show("optPlayOpt", 4), Caption("optPlayOpt(0)", "Straight"), Caption("optPlayOpt(1)", "Box"),
     Caption("optPlayOpt(2)", "Straight/Box"), Caption("optPlayOpt(3)", "Combo")});
constexpr auto Play4 =
    std::to_array({Show("optPlayOpt", 2), Caption("optPlayOpt(0)", "Straight"),
                   Caption("optPlayOpt(1)", "Box"), Hide("optPlayOpt(2)"), Hide("optPlayOpt(3)")});
constexpr auto HalfDollars =
    std::to_array({Hide("optFiveDollars"), Hide("optTenDollars"), Caption("optOneDollar", "$0.50"),
                   Caption("optTwoDollars", "$1.00")});

struct Dressing {
    std::string_view menu;
    std::array<std::span<const Setting>, 6> parts;
};

constexpr auto Dressings = std::to_array<Dressing>({
    {"mnuCANBCLotto649", {Lotto, FourNumbers, BCExtra}},
    {"mnuCANBCBC49", {Lotto, FourNumbers, BC49}},
    {"mnuCANBCSuper7", {Lotto, Super7, FourNumbers, BCExtra, BCSuper7}},
    {"mnuCANWESTLotto649", {Lotto, OneNumber, Western, ThePlus, WestLotto649, MoneyMoved}},
    {"mnuCANWEST649", {Lotto, OneNumber, Western, ThePlus, West649, MoneyMoved}},
    {"mnuCANWESTSuper7", {Lotto, Super7, OneNumber, Western, WestSuper7, MoneyStays}},
    {"mnuCANONTLotto649", {Lotto, CountedEncore, OntLotto649}},
    {"mnuCANONTONT49", {Lotto, CountedEncore, Ontario49}},
    {"mnuCANONTSuper7", {Lotto, Super7, CountedEncore, OntSuper7}},
    {"mnuCANQCLotto649", {Lotto, OneNumber, QCExtra, ExtraNumbers, ShowCheck, MoneyMoved}},
    {"mnuCANQCQuebec49", {Lotto, OneNumber, QCExtra, Quebec49, MoneyMoved}},
    {"mnuCANQCSuper7", {Lotto, Super7, OneNumber, QCExtra, ExtraNumbers, MoneyStays}},
    {"mnuCANATLLotto649", {Lotto, OneNumber, Tag, AtlLotto649, MoneyMoved}},
    {"mnuCANATLSuper7", {Lotto, Super7, OneNumber, Tag, MoneyStays}},
    {"mnuCANONTLOTTARIO", {Lottario}},
    {"mnuCANONTKENO", {Keno}},
    {"mnuCANBCDAILY3", {Scramble, StraightAndScramble, NoAddOn, MoneyStays}},
    {"mnuCANWESTPICK3", {StraightAndScramble, NoAddOn, MoneyStays}},
    {"mnuCANONTPICK3", {OntPick3, MoneyStays}},
    {"mnuCANQC3", {NoAddOn, MoneyStays}},
    {"mnuUSFLACash3", {Cash3, HalfDollars, NoAddOn, MoneyStays}},
    {"mnuUSFLAPlay4", {Play4, HalfDollars, MoneyStays}},
});

}  // namespace

std::vector<Setting> DressingOf(const Game& game) {
    const auto dressing = std::find_if(Dressings.begin(), Dressings.end(),
                                       [&](const Dressing& row) { return row.menu == game.menu; });
    std::vector<Setting> settings;
    if (dressing == Dressings.end()) return settings;
    for (const auto part : dressing->parts) settings.insert(settings.end(), part.begin(), part.end());
    return settings;
}

std::vector<std::string> ControlsOf(const Setting& setting) {
    const std::string name(setting.control);
    if (setting.elements == 0) return {name};
    std::vector<std::string> names;
    for (int i = 0; i < setting.elements; ++i) names.push_back(name + "(" + std::to_string(i) + ")");
    return names;
}

}  // namespace sorvane

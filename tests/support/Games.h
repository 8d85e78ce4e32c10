// The games of the menu and their add-ons, written down a second time: what a test expects is not asked of
// the program's own tables.
#pragma once

#include <array>
#include <ostream>
#include <stdexcept>
#include <string_view>

#include "shell/Family.h"

namespace sorvane::test {

// The add-on of a region as a player types it, and what a full hit reads.
struct AddOnTold {
    std::string_view ExtraFlag;
    std::string_view Played;
    bool counted;         // as many tickets as the count beside the tickets says; else one, by its check box
    const char* number;   // the first ticket's number and the number drawn
    const char* listed;   // its row in lstEncorePlayed
    const char* verdict;  // its line
};

inline constexpr std::array<AddOnTold, 6> AddOnsTold{{
    {"Encore", "PlayedEncore", true, "123450", "1, 2, 3, 4, 5, 0", "Encore #123450 won $250,000.00!!!"},
    {"Extra", "PlayedExtra", true, "10", "10, 20, 30, 40", "Extra # 10, 20, 30, 40 won $500,000.00!!!"},
    {"ThePlus", "PlayedThePlus", false, "123450", "1, 2, 3, 4, 5, 0", "The Plus #123450 won $100,000.00!!!"},
    {"QCExtra", "PlayedQCExtra", false, "123450", "1, 2, 3, 4, 5, 0", "Extra #123450 won $100,000.00!!!"},
    {"Tag", "PlayedTag", false, "123450", "1, 2, 3, 4, 5, 0", "Tag #123450 won $100,000.00!!!"},
    {"WESTExtra", "PlayedWESTExtra", false, "1234501", "1, 2, 3, 4, 5, 0, 1",
     "Extra #1234501 won $250,000.00!!!"},
}};

// The add-on of this key; null for a key that is none.
constexpr const AddOnTold* AddOnOf(std::string_view ExtraFlag) {
    for (const AddOnTold& addOn : AddOnsTold)
        if (addOn.ExtraFlag == ExtraFlag) return &addOn;
    return nullptr;
}

struct GameTold {
    std::string_view menu;
    Family opens;
    std::string_view title;  // of the window that opens
    std::string_view LottoFlag, ExtraFlag;
    std::string_view Played, Win;
};

inline void PrintTo(const GameTold& game, std::ostream* out) { *out << game.menu; }

inline constexpr std::array<GameTold, 22> GamesTold{{
    {"mnuCANBCLotto649", Family::frm649, "Lotto 6/49", "Lotto649", "Extra", "PlayedLotto649", "WinLotto649"},
    {"mnuCANBCSuper7", Family::frm749, "Super 7", "Super 7", "Extra", "PlayedSuper7", "WinSuper7"},
    {"mnuCANBCBC49", Family::frm649, "BC/49", "BC49", "Extra", "PlayedBC49", "WinBC49"},
    {"mnuCANBCDAILY3", Family::frmPick3, "Daily 3", "BCDaily3", "BCDaily3", "PlayedBCDaily3", "WinBCDaily3"},
    {"mnuCANWESTLotto649", Family::frm649, "Lotto 6/49", "Lotto649", "ThePlus", "PlayedLotto649",
     "WinLotto649"},
    {"mnuCANWESTSuper7", Family::frm749, "Super 7", "Super 7", "WESTExtra", "PlayedSuper7", "WinSuper7"},
    {"mnuCANWEST649", Family::frm649, "Western 649", "Western649", "ThePlus", "PlayedWestern649",
     "WinWestern649"},
    {"mnuCANWESTPICK3", Family::frmPick3, "Pick 3", "WESTPick3", "WESTPick3", "PlayedWESTPick3",
     "WinWESTPick3"},
    {"mnuCANONTLotto649", Family::frm649, "Lotto 6/49", "Lotto649", "Encore", "PlayedLotto649",
     "WinLotto649"},
    {"mnuCANONTSuper7", Family::frm749, "Super 7", "Super 7", "Encore", "PlayedSuper7", "WinSuper7"},
    {"mnuCANONTLOTTARIO", Family::frm645, "Lottario", "Lottario", "Encore", "PlayedLottario", "WinLottario"},
    {"mnuCANONTONT49", Family::frm649, "Ontario 49", "Ontario49", "Encore", "PlayedOntario49",
     "WinOntario49"},
    {"mnuCANONTPICK3", Family::frmPick3, "Pick 3", "ONTPick3", "Encore", "PlayedONTPick3", "WinONTPick3"},
    {"mnuCANONTKENO", Family::frmKeno70, "Ontario - Daily Keno", "ONTKeno", "Encore", "PlayedONTKeno",
     "WinONTKeno"},
    {"mnuCANQCLotto649", Family::frm649, "Lotto 6/49", "Lotto649", "QCExtra", "PlayedLotto649",
     "WinLotto649"},
    {"mnuCANQCSuper7", Family::frm749, "Super 7", "Super 7", "QCExtra", "PlayedSuper7", "WinSuper7"},
    {"mnuCANQCQuebec49", Family::frm649, "Quebec 49", "Quebec49", "QCExtra", "PlayedQuebec49", "WinQuebec49"},
    {"mnuCANQC3", Family::frmPick3, "Quote 3", "Quote3", "QCQuote3", "PlayedQuote3", "WinQuote3"},
    {"mnuCANATLLotto649", Family::frm649, "Lotto 6/49", "Lotto649", "Tag", "PlayedLotto649", "WinLotto649"},
    {"mnuCANATLSuper7", Family::frm749, "Super 7", "Super 7", "Tag", "PlayedSuper7", "WinSuper7"},
    {"mnuUSFLACash3", Family::frmPick3, "CA$H 3", "FLACash3", "FLACash3", "PlayedFLACash3", "WinFLACash3"},
    // Its title goes to a window that nobody sees.
    {"mnuUSFLAPlay4", Family::frmPick4, "", "FLAPlay4", "FLAPlay4", "PlayedFLAPlay4", "WinFLAPlay4"},
}};

constexpr const GameTold& GameOf(std::string_view menu) {
    for (const GameTold& game : GamesTold)
        if (game.menu == menu) return game;
    throw std::invalid_argument("no such game");
}

}  // namespace sorvane::test

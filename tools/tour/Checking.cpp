// The draws are checked, and what was won is entered.
#include "tour/Evening.h"

namespace sorvane::tour {

namespace {

constexpr std::string_view RecheckText =
    "You have already performed a search on this Draw Date.\r\nWould you like to perform a re-check?";
constexpr std::string_view AmendText =
    "You have already entered a Winning amount for this\r\n"
    "Lottery on this Draw Date. Do you wish to amend your\r\n"
    "entry?";
constexpr std::string_view SaturdaysEncore = "918517";

}  // namespace

void Evening::TypeDraw(std::string_view stem, const Draw& draw) {
    const auto fill = [this](std::string_view name, const Numbers& numbers) {
        int i = 0;
        for (const int number : numbers)
            Type(std::string(name) + "(" + std::to_string(i++) + ")", std::to_string(number));
    };
    fill(stem, draw.main);
    fill("txtWin4", draw.early);
    if (!draw.addOn.empty()) Type("txtWinEncore", draw.addOn);
}

void Evening::EnterWinnings(std::string_view amount, std::string_view picture) {
    Type("txtDollarsWon", amount);
    ExpectBox("SAVED", "Winning data saved.", Answer::Ok, BoxStyle::Ok, picture);
    Click("cmdEnterWinnings");
}

void Evening::CheckLotto649() {
    Visit("mnuCANONTLotto649", "frm649", [this] {
        person.ClickTab("&Check");
        Picture("check-tickets");
        TypeDraw("txtWin6", {{3, 11, 17, 24, 38, 40, 45}, {}, SaturdaysEncore});
        Click("cmdCheck");
        Picture("checked");
        ExpectBox("RECHECK?", RecheckText, Answer::Yes, BoxStyle::YesNo, "recheck-question");
        Click("cmdCheck");
        EnterWinnings("25.00", "winnings-saved");
        ExpectBox("Correct Winnings?", AmendText, Answer::Yes, BoxStyle::YesNo, "amend-question");
        EnterWinnings("1,035.00");
        person.ClickTab("&Reports");
        Click("cmdProfitLoss");
        Picture("profit-loss-chart");
        Click("cmdPLReport");
        Picture("profit-loss-report");
        Exit(Page::Reports);
    });
}

void Evening::CheckSuper7() {
    Visit("mnuCANONTSuper7", "frm749", [this] {
        person.ClickTab("&Check");
        SetDate(Page::Check, "2006-03-10");
        TypeDraw("txtWin7", {{4, 9, 13, 21, 30, 41, 44, 28}, {}, "220614"});
        Click("cmdCheck");
        Picture("checked-super7");
        EnterWinnings("10.00");
        Exit(Page::Check);
    });
}

void Evening::CheckBC49() {
    Visit("mnuCANBCBC49", "frm649", [this] {
        person.ClickTab("&Check");
        TypeDraw("txtWin6", {{6, 13, 20, 31, 35, 44, 48}, {12, 34, 56, 90}, {}});
        Click("cmdCheck");
        Picture("checked-extra");
        EnterWinnings("102.00");
        Exit(Page::Check);
    });
}

void Evening::CheckAtlanticSuper7() {
    Visit("mnuCANATLSuper7", "frm749", [this] {
        person.ClickTab("&Check");
        TypeDraw("txtWin7", {{2, 11, 19, 20, 30, 35, 47, 46}, {}, "330917"});
        Click("cmdCheck");
        Picture("checked-tag");
        Exit(Page::Check);
    });
}

void Evening::CheckLottario() {
    Visit("mnuCANONTLOTTARIO", "frm645", [this] {
        person.ClickTab("&Check");
        TypeDraw("txtWin6", {{5, 12, 18, 30, 35, 40, 41}, {5, 12, 27, 33}, SaturdaysEncore});
        Click("cmdCheck");
        Picture("checked-lottario");
        EnterWinnings("500.00");
        Exit(Page::Check);
    });
}

void Evening::CheckKeno() {
    Visit("mnuCANONTKENO", "frmKeno70", [this] {
        person.ClickTab("&Check");
        TypeDraw("txtWin20", {{1, 3, 7, 11, 14, 19, 20, 23, 28, 30, 35, 37, 42, 45, 50, 52, 58, 64, 66, 69},
                              {},
                              SaturdaysEncore});
        Click("cmdCheck");
        Picture("checked-keno");
        EnterWinnings("12.00");
        Exit(Page::Check);
    });
}

void Evening::CheckPick3() {
    Visit("mnuCANONTPICK3", "frmPick3", [this] {
        person.ClickTab("&Check");
        ChooseDigits("cboWin3", {7, 4, 0});
        Type("txtWinEncore", SaturdaysEncore);
        Click("cmdCheck");
        Picture("checked-pick3");
        Exit(Page::Check);
    });
}

void Evening::CheckPlay4() {
    Visit("mnuUSFLAPlay4", "frmPick4", [this] {
        person.ClickTab("&Check");
        ChooseDigits("cboWin4", {1, 9, 5, 8});
        Click("cmdCheck");
        Picture("checked-play4");
        Exit(Page::Check);
    });
}

}  // namespace sorvane::tour

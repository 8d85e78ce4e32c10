// Each game's window as its menu entry leaves it, against the settings written down a second time.
#include "MainWindow.h"
#include "forms/Control.h"
#include "support/Games.h"

namespace sorvane::test {
namespace {

constexpr int AnyLength = 0;

class Dressing : public MainWindow {
  public:
    Dressing() { Start(); }

    // Chooses the entry, looks at its window and leaves it.
    void Look(std::string_view menu, const std::function<void()>& at) {
        const GameTold& game = GameOf(menu);
        bool looked = false;
        person.ExpectWindow(NameOf(game.opens), [&](QWidget& window) {
            looked = true;
            EXPECT_EQ(forms::ToUtf8(window.windowTitle()), game.title);
            EXPECT_EQ(global.LottoFlag, game.LottoFlag);
            EXPECT_EQ(global.ExtraFlag, game.ExtraFlag);
            at();
            Click("cmdExit(0)");
        });
        Choose(menu);
        EXPECT_TRUE(looked);
        EXPECT_FALSE(windows.IsLoaded(game.opens));
    }

    forms::Control& The(std::string_view name) {
        auto* control = dynamic_cast<forms::Control*>(&Find(name));
        if (!control) throw std::runtime_error("no control " + std::string(name));
        return *control;
    }
    void ExpectVisible(bool visible, const Texts& names) {
        for (const std::string& name : names) EXPECT_EQ(The(name).Visible(), visible) << name;
    }
    void ExpectLength(std::string_view name, int length) {
        if (length == AnyLength) return;
        EXPECT_EQ(Find(name).property("maxLength").toInt(), length) << name;
    }
    void ExpectCaption(std::string_view name, std::string_view caption) {
        EXPECT_EQ(CaptionOf(name), caption) << name;
    }
};

constexpr std::string_view Extra = "# of Extra Played this Sheet:", Encore = "# of Encore Played this Sheet";

struct LottoRow {
    std::string_view menu;
    bool counted;
    std::string_view countCaption;
    bool check, checkEnabled;
    std::string_view checkCaption;
    bool field;
    int fieldLength;
    std::string_view played, win;
    bool winField;
    int winLength;
    bool fourBoxes, moneyMoved;
};
constexpr bool yes = true, no = false;
const std::vector<LottoRow> LottoRows{
    {"mnuCANBCLotto649", yes, Extra, no, yes, "Encore Played", no, 0,
     "Extra #'s Played:", "Enter Extra Numbers:", no, 0, yes, no},
    {"mnuCANBCBC49", yes, Extra, no, yes, "Extra Played", no, 0, "Extra #'s Played:", "Extra", no, 0, yes,
     no},
    {"mnuCANBCSuper7", yes, Extra, no, yes, "Encore Played", no, 6,
     "Extra #'s Played:", "Enter Extra Numbers:", no, 0, yes, no},
    {"mnuCANWESTLotto649", no, Extra, yes, yes, "The Plus Played", yes, 0,
     "The Plus #'s:", "Enter The Plus Number:", yes, 0, no, yes},
    {"mnuCANWEST649", no, Extra, yes, yes, "The Plus", yes, 0, "The Plus #'s:", "Enter The Plus Number:", yes,
     0, no, yes},
    {"mnuCANWESTSuper7", no, Extra, yes, yes, "Extra Played", yes, 7,
     "Extra #'s:", "Enter Extra Number:", yes, 7, no, yes},
    {"mnuCANONTLotto649", yes, Encore, no, yes, "Encore Played", no, 0,
     "Encore #'s:", "Enter Encore Number:", yes, 0, no, no},
    {"mnuCANONTONT49", yes, Encore, yes, yes, "Encore Played", no, 0,
     "Encore #'s Played:", "Enter Encore Number:", yes, 0, no, no},
    {"mnuCANONTSuper7", yes, Encore, no, yes, "Encore Played", no, 0,
     "Encore #'s:", "Enter Encore Number:", yes, 0, no, no},
    {"mnuCANQCLotto649", no, Extra, yes, yes, "Extra Played", yes, 0,
     "Extra #'s:", "Enter Extra Number:", yes, 0, no, yes},
    {"mnuCANQCQuebec49", no, Extra, yes, no, "Extra Played", yes, 0,
     "Extra #'s Played:", "Enter Extra Number:", yes, 0, no, yes},
    {"mnuCANQCSuper7", no, Extra, yes, yes, "Extra Played", yes, 0, "Extra #'s:", "Enter Extra Number:", yes,
     0, no, yes},
    {"mnuCANATLLotto649", no, Extra, yes, yes, "Tag Played", yes, 0, "Tag #'s:", "Enter Tag Number:", yes, 0,
     no, yes},
    {"mnuCANATLSuper7", no, Extra, yes, yes, "Tag Played", yes, 0, "Tag #'s:", "Enter Encore Number:", yes, 0,
     no, yes},
};

class LottoDressing : public Dressing, public ::testing::WithParamInterface<LottoRow> {
  public:
    void ExpectRow(const LottoRow& row) {
        ExpectVisible(row.counted, {"lblNoOfExtra", "txtNoOfExtra"});
        ExpectCaption("lblNoOfExtra", row.countCaption);
        ExpectCaption("lblExtra", row.countCaption == Encore ? "Encore Numbers" : "Extra Numbers:");
        ExpectVisible(row.check, {"chkEncore"});
        EXPECT_EQ(The("chkEncore").Enabled(), row.checkEnabled);
        ExpectCaption("chkEncore", row.checkCaption);
        ExpectVisible(row.field, {"txtEncore"});
        ExpectLength("txtEncore", row.fieldLength);
        ExpectCaption("lblEncorePlayed", row.played);
        ExpectVisible(true, {"lblEncorePlayed", "lblWinEncore"});
        ExpectCaption("lblWinEncore", row.win);
        ExpectVisible(row.winField, {"txtWinEncore"});
        ExpectLength("txtWinEncore", row.winLength);
        ExpectVisible(row.fourBoxes, {"txtWin4(0)", "txtWin4(1)", "txtWin4(2)", "txtWin4(3)"});
        ExpectVisible(false, {"txtPlay4(0)", "txtPlay4(1)", "txtPlay4(2)", "txtPlay4(3)", "lblExtra"});
    }
};

TEST_P(LottoDressing, StandsAsItsMenuEntrySets) {
    const LottoRow& row = GetParam();
    const bool super7 = GameOf(row.menu).opens == Family::frm749;
    Look(row.menu, [&] {
        ExpectRow(row);
        ExpectVisible(!super7, {"chkNumb(47)", "chkNumb(48)"});
        ExpectVisible(true, {"chkNumb(0)", "chkNumb(46)"});
        ExpectVisible(super7 || row.moneyMoved, {"lblDollarsSpent"});
        if (!super7) ExpectVisible(!row.moneyMoved, {"lblDollars"});
    });
}

std::string MenuOf(const ::testing::TestParamInfo<LottoRow>& info) { return std::string(info.param.menu); }
INSTANTIATE_TEST_SUITE_P(Games, LottoDressing, ::testing::ValuesIn(LottoRows), MenuOf);

TEST_F(Dressing, Lottario) {
    Look("mnuCANONTLOTTARIO", [&] {
        ExpectCaption("lblNoOfExtra", "# of Encore Played this Sheet");
        ExpectCaption("lblExtra", "Encore Numbers");
        ExpectVisible(true, {"lblNoOfExtra", "txtNoOfExtra"});
        ExpectVisible(false, {"lblExtra", "txtEncore", "chkEncore"});
        ExpectCaption("lblWinEncore", "Enter Encore Number:");
        ExpectCaption("lblEncorePlayed", "Encore #'s:");
    });
}

TEST_F(Dressing, DailyKeno) {
    Look("mnuCANONTKENO", [&] {
        ExpectVisible(true, {"lblNoOfExtra", "txtNoOfExtra", "lblEncorePlayed", "lstEncorePlayed"});
        ExpectCaption("lblNoOfExtra", "# of Encore Played this Sheet:");
        ExpectCaption("lblWinEncore", "Enter Encore Number:");
        ExpectCaption("lblEncorePlayed", "Encore #'s:");
    });
}

const Texts AddOnOfTheCheck{"lblWinEncore", "txtWinEncore", "lblEncorePlayed", "lstEncorePlayed"};

TEST_F(Dressing, DailyThree) {
    Look("mnuCANBCDAILY3", [&] {
        ExpectCaption("optPlayOpt(1)", "Scramble");
        ExpectCaption("optPlayOpt(2)", "Straight && Scramble");
        ExpectVisible(false, AddOnOfTheCheck);
        ExpectVisible(true, {"lblDollarsSpent"});
        ExpectVisible(false, {"lblNoOfExtra", "txtNoOfExtra"});
    });
}

TEST_F(Dressing, WesternPickThree) {
    Look("mnuCANWESTPICK3", [&] {
        ExpectCaption("optPlayOpt(1)", "Box");
        ExpectCaption("optPlayOpt(2)", "Straight && Scramble");
        ExpectVisible(false, AddOnOfTheCheck);
    });
}

TEST_F(Dressing, OntarioPickThree) {
    Look("mnuCANONTPICK3", [&] {
        ExpectVisible(false, {"optPlayOpt(2)"});
        ExpectCaption("lblNoOfExtra", "# of Encore Played this Sheet:");
        ExpectVisible(true, {"lblNoOfExtra", "txtNoOfExtra"});
        ExpectVisible(true, AddOnOfTheCheck);
        ExpectCaption("lblWinEncore", "Enter Encore Number:");
        ExpectCaption("lblEncorePlayed", "Encore #'s:");
    });
}

TEST_F(Dressing, QuotidienneThree) {
    Look("mnuCANQC3", [&] {
        ExpectCaption("optPlayOpt(0)", "Straight");
        ExpectCaption("optPlayOpt(1)", "Box");
        ExpectCaption("optPlayOpt(2)", "Straight && Scramble");
        ExpectVisible(false, AddOnOfTheCheck);
    });
}

TEST_F(Dressing, CashThree) {
    Look("mnuUSFLACash3", [&] {
        ExpectVisible(true, {"optPlayOpt(0)", "optPlayOpt(1)", "optPlayOpt(2)", "optPlayOpt(3)"});
        ExpectCaption("optPlayOpt(0)", "Straight");
        ExpectCaption("optPlayOpt(1)", "Box");
        ExpectCaption("optPlayOpt(2)", "Straight/Box");
        ExpectCaption("optPlayOpt(3)", "Combo");
        ExpectVisible(false, {"optFiveDollars", "optTenDollars"});
        ExpectCaption("optOneDollar", "$0.50");
        ExpectCaption("optTwoDollars", "$1.00");
        ExpectVisible(false, AddOnOfTheCheck);
    });
}

TEST_F(Dressing, PlayFourWithAnEmptyTitleBar) {
    Look("mnuUSFLAPlay4", [&] {
        ExpectVisible(true, {"optPlayOpt(0)", "optPlayOpt(1)"});
        ExpectVisible(false, {"optPlayOpt(2)", "optPlayOpt(3)"});
        ExpectCaption("optPlayOpt(0)", "Straight");
        ExpectCaption("optPlayOpt(1)", "Box");
        ExpectVisible(false, {"optFiveDollars", "optTenDollars"});
        ExpectCaption("optOneDollar", "$0.50");
        ExpectCaption("optTwoDollars", "$1.00");
    });
}

TEST_F(Dressing, PlayFourLoadsTheHiddenWindowThatBearsItsTitle) {
    Look("mnuUSFLAPlay4", [&] {
        ASSERT_TRUE(windows.IsLoaded(Family::frmPick3));
        EXPECT_EQ(windows.Load(Family::frmPick3).Caption(), "Play 4");
        EXPECT_FALSE(windows.Load(Family::frmPick3).isVisible());
    });
    EXPECT_TRUE(windows.IsLoaded(Family::frmPick3));
    Look("mnuCANBCBC49", [] {});
    EXPECT_TRUE(windows.IsLoaded(Family::frmPick3));
    Look("mnuCANBCDAILY3", [] {});
    EXPECT_FALSE(windows.IsLoaded(Family::frmPick3));
}

TEST_F(Dressing, WesternLotto649AfterOntarioShowsTheBoxInsteadOfTheCount) {
    Look("mnuCANONTLotto649", [&] { ExpectVisible(true, {"lblNoOfExtra", "txtNoOfExtra"}); });
    Look("mnuCANWESTLotto649", [&] {
        ExpectVisible(false, {"lblNoOfExtra", "txtNoOfExtra"});
        ExpectVisible(true, {"chkEncore"});
        ExpectCaption("chkEncore", "The Plus Played");
    });
}

TEST_F(Dressing, Quebec49sBoxComesOnWithTheCount) {
    Look("mnuCANQCQuebec49", [&] {
        EXPECT_FALSE(IsEnabled("chkEncore"));
        Put("txtNoOfTickets(0)", "1");
        EXPECT_TRUE(IsEnabled("chkEncore"));
    });
}

TEST_F(Dressing, EveryGameHasASettingThatItsWindowKnows) {
    for (const GameTold& game : GamesTold) {
        SCOPED_TRACE(game.menu);
        Look(game.menu, [] {});
    }
}

}  // namespace
}  // namespace sorvane::test

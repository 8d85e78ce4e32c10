// What the check of every game does alike.
#include "store/CreateTables.h"
#include "support/Games.h"
#include "windows/CheckSlip.h"

namespace sorvane::test {
namespace {

class EveryCheck : public CheckTickets {
  protected:
    void FillMain() {
        int number = 1;
        Window().Check.txtWin.ForEach(
            [&](forms::TextBox& box, int) { box.SetText(std::to_string(number++)); });
        Window().Check.cboWin.ForEach([](forms::ComboBox& box, int) { box.SetText("1"); });
    }
};

TEST_F(EveryCheck, TomorrowIsRefusedWithNoListTouchedAndTodayPassesInEveryFamily) {
    const std::pair<const char*, const char*> games[] = {
        {"mnuCANONTLotto649", "Missing Data. Please enter a valid number from 1 to 49 and try again."},
        {"mnuCANATLSuper7", "Missing Data. Please enter a valid number from 1 to 49 and try again."},
        {"mnuCANONTLOTTARIO", "Missing Data. Please enter a valid number from 1 to 45 and try again."},
        {"mnuCANONTKENO", "Missing Data. Please enter a valid number from 1 to 70 and try again."},
        {"mnuCANWESTPICK3", "Missing data. Please check and try again."},
        {"mnuUSFLAPlay4", "Missing data. Please check and try again."}};
    for (const auto& [menu, missing] : games) {
        Open(menu);
        Window().dtpEnterTickets(2).SetValue(Date::FromText("2006-03-12"));
        for (const char* list : {"lstNumbersPlayed", "lstEncorePlayed", "lstMessage"})
            dynamic_cast<forms::ListBox&>(Find(list)).AddItem("kept");
        person.Expect("ERROR", "This draw hasn't taken place yet. Please check the Draw Date and try again.");
        Click("cmdCheck");
        for (const char* list : {"lstNumbersPlayed", "lstEncorePlayed", "lstMessage"})
            EXPECT_EQ(ListOf(list), Texts{"kept"}) << menu << list;
        Window().dtpEnterTickets(2).SetValue(Date::FromText(Today));
        person.Expect(std::string_view(missing).starts_with("Missing data.") ? "ERROR!" : "ERROR", missing);
        Click("cmdCheck");
        Window().Leave();
    }
}

TEST_F(EveryCheck, TomorrowIsRefusedInTheKenoOfEightyToo) {
    Show(Family::frmKeno80, "PrairieKeno", "");
    Window().SSTab1.SetTab(Tab::Check);
    Window().dtpEnterTickets(2).SetValue(Date::FromText("2006-03-12"));
    Window().Check.lstNumbersPlayed.AddItem("kept");
    Window().Check.lstMessage.AddItem("kept");
    person.Expect("ERROR", "This draw hasn't taken place yet. Please check the Draw Date and try again.");
    Click("cmdCheck");
    EXPECT_EQ(Played(), Texts{"kept"});
    EXPECT_EQ(Messages(), Texts{"kept"});
}

TEST_F(EveryCheck, AnAddOnNumberIsNeededWhereverTheGameHasOneEvenIfNoneIsHeld) {
    const struct {
        const char* title;
        std::string text;
        std::vector<const char*> menus;
    } told[] = {
        {"ERROR",
         "Encore number is too short. Please check the number and try again.",
         {"mnuCANONTLotto649", "mnuCANONTONT49", "mnuCANONTSuper7", "mnuCANONTKENO"}},
        {"ERROR",
         "Missing Data. Please enter a valid number from 1 to 99 and try again.",
         {"mnuCANBCLotto649", "mnuCANBCBC49", "mnuCANBCSuper7"}},
        {"ERROR",
         " number is too short. Please check the number and try again.",
         {"mnuCANWESTLotto649", "mnuCANWEST649"}},
        {"ERROR",
         "Extra number is too short. Please check the number and try again.",
         {"mnuCANQCLotto649", "mnuCANQCQuebec49", "mnuCANQCSuper7", "mnuCANWESTSuper7"}},
        {"ERROR",
         "Tag number is too short. Please check the number and try again.",
         {"mnuCANATLLotto649", "mnuCANATLSuper7"}},
        {"ERROR",
         "Missing Data. Please enter a valid number from 1 to 45 and try again.",
         {"mnuCANONTLOTTARIO"}},
        {"Encore Too Short",
         "The Encore number is too short. Please check the number and try again.",
         {"mnuCANONTPICK3"}},
        // Without an add-on the check goes on to the tickets.
        {"ERROR",
         "No match for Draw Date selected. Please check the Draw Date and try again.",
         {"mnuCANBCDAILY3", "mnuCANWESTPICK3", "mnuCANQC3", "mnuUSFLACash3", "mnuUSFLAPlay4"}},
    };
    std::size_t games = 0;
    for (const auto& box : told)
        for (const char* menu : box.menus) {
            SCOPED_TRACE(menu);
            Open(menu);
            FillMain();
            person.Expect(box.title, box.text);
            Click("cmdCheck");
            if (Window().Check.txtWinEncore) Window().Check.txtWinEncore->SetText("123456");
            Window().Leave();
            ++games;
        }
    EXPECT_EQ(games, GamesTold.size());
}

TEST_F(EveryCheck, ANumberBeyondTheTopIsRefusedWithItsRangeAndTheTopPasses) {
    const struct {
        Family family;
        const char* LottoFlag;
        const char* box;
        int top;
        const char* text;
    } guards[] = {
        {Family::frm649, "Lotto649", "txtWin6(0)", 49, "Please enter a number between 1 and 49."},
        {Family::frm649, "Lotto649", "txtWin6(6)", 49, "Please enter a number between 1 and 49."},
        {Family::frm649, "Lotto649", "txtWin4(3)", 99, "Please enter a number between 1 and 99."},
        {Family::frm749, "Super 7", "txtWin7(7)", 49, "Please enter a number between 1 and 49."},
        {Family::frm645, "Lottario", "txtWin6(6)", 45, "Please enter a number from 1 to 45."},
        {Family::frm645, "Lottario", "txtWin4(0)", 45, "Please enter a number from 1 to 45."},
        {Family::frmKeno70, "ONTKeno", "txtWin20(19)", 70, "Please enter a number between 1 and 70."},
        {Family::frmKeno80, "PrairieKeno", "txtWin20(19)", 80, "Please enter a number between 1 and 80."},
    };
    for (const auto& guard : guards) {
        SCOPED_TRACE(guard.box);
        Show(guard.family, guard.LottoFlag, "Extra");
        Window().SSTab1.SetTab(Tab::Check);
        Type(guard.box, std::to_string(guard.top + 1));
        person.Expect("Error - Number out of Range!", guard.text, Answer::Ok, BoxStyle::Exclamation);
        person.Tab();
        EXPECT_EQ(TextOf(guard.box), "");
        EXPECT_EQ(Focus(), guard.box);
        Put(guard.box, std::to_string(guard.top));
        EXPECT_EQ(TextOf(guard.box), std::to_string(guard.top));
        EXPECT_NE(Focus(), guard.box);
        Window().Leave();
    }
}

TEST_F(EveryCheck, WithoutATicketForTheDateNothingIsStored) {
    for (const GameTold& game : GamesTold) {
        SCOPED_TRACE(std::string(game.menu));
        Open(game.menu);
        FillMain();
        Window().Check.txtWin4.ForEach([](forms::TextBox& box, int) { box.SetText("1"); });
        if (Window().Check.txtWinEncore) Window().Check.txtWinEncore->SetText("1234567");
        ExpectMissing("No match for Draw Date selected. Please check the Draw Date and try again.");
        Click("cmdCheck");
        Window().Leave();
    }
    Show(Family::frmKeno80, "PrairieKeno", "");
    std::string played = "PlayedPrairieKeno";
    CreatePlayedKenoTable(session, {Window().State.DbName, played}, "ID1", "Date");
    Window().SSTab1.SetTab(Tab::Check);
    FillMain();
    ExpectMissing("No match for Draw Date selected. Please check the Draw Date and try again.");
    Click("cmdCheck");
    for (const std::string& table : Plain().Tables())
        if (table.starts_with("Win")) {
            EXPECT_EQ(CountOf(table), "0") << table;
        }
}

}  // namespace
}  // namespace sorvane::test

// What the check of every game does alike.
#include "store/CreateTables.h"
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
    // The box of a game whose add-on number is missing; empty where the check goes on to the tickets.
    static std::pair<std::string, std::string> ShortAddOn(const Game& game) {
        const std::string tooShort = " number is too short. Please check the number and try again.";
        if (!FindAddOn(game.ExtraFlag)) return {};
        if (game.opens == Family::frm645) {
            return {"Missing Data. Please enter a valid number from 1 to 45 and try again.", "ERROR"};
        }
        if (game.opens == Family::frmPick3) return {"The Encore" + tooShort, "Encore Too Short"};
        if (game.ExtraFlag == "Extra")
            return {"Missing Data. Please enter a valid number from 1 to 99 and try again.", "ERROR"};
        if (game.ExtraFlag == "ThePlus") return {tooShort, "ERROR"};
        const bool extra = game.ExtraFlag == "QCExtra" || game.ExtraFlag == "WESTExtra";
        return {(extra ? "Extra" : std::string(game.ExtraFlag)) + tooShort, "ERROR"};
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
        person.Expect(IsPick(Window().Which) ? "ERROR!" : "ERROR", missing);
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
    for (const Game& game : Games()) {
        SCOPED_TRACE(std::string(game.menu));
        Open(game.menu);
        FillMain();
        auto [text, title] = ShortAddOn(game);
        if (text.empty()) {
            text = "No match for Draw Date selected. Please check the Draw Date and try again.";
            title = "ERROR";
        }
        person.Expect(title, text);
        Click("cmdCheck");
        if (Window().Check.txtWinEncore) Window().Check.txtWinEncore->SetText("123456");
        Window().Leave();
    }
}

TEST_F(EveryCheck, WithoutATicketForTheDateNothingIsStored) {
    for (const Game& game : Games()) {
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
    CreatePlayedKenoTable(run, Window().State.DbName, played, "ID1", "Date");
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

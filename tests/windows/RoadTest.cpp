// The whole road of each game: from the menu over its sheets and add-ons to the file, to the verdicts, and
// once more after a restart.
#include "windows/Road.h"

#include <QPlainTextEdit>

namespace sorvane::test {
namespace {

class RoadTest : public Road, public ::testing::WithParamInterface<std::string_view> {
  protected:
    RoadTest() : Road(GetParam()) {}
};

TEST_P(RoadTest, LeadsFromTheMenuToTheFileToTheVerdictAndSurvivesARestart) {
    Start();
    const Purchase purchases[] = {{2, 1, 0}, {4, 2, 1}, {2, 1, 2}};
    for (const Purchase& purchase : purchases) {
        SCOPED_TRACE(std::to_string(purchase.tickets) + " tickets, add-ons " +
                     std::to_string(purchase.addOns));
        Inside([&] { EnterTickets(purchase); });
    }
    const std::string played(game.Played);
    EXPECT_EQ(Rows("SELECT " + BallFields() + " FROM " + played + " ORDER BY ID1"), TicketTexts());
    EXPECT_EQ(Rows("SELECT DISTINCT date(Date + 2415018.5) FROM " + played), Texts{std::string(Today)});
    EXPECT_EQ(Rows("SELECT Lottoflag FROM Spent"), Texts(3, std::string(game.LottoFlag)));
    Restart();

    Texts verdicts = Verdicts(), listed;
    for (const Purchase& purchase : purchases) ExpectAddOns(listed, verdicts, purchase);
    if (addOn && listed.empty()) listed.push_back("Not Played");
    Inside([&] {
        person.ClickTab("&Check Tickets");
        TypeDraw();
        Click("cmdCheck");
        EXPECT_EQ(ListOf("lstMessage"), verdicts);
        if (addOn) {
            EXPECT_EQ(ListOf("lstEncorePlayed"), listed);
        }
        EXPECT_EQ(Rows("SELECT COUNT(*) FROM " + std::string(game.Win)), Texts{"1"});
        ExpectRecheck(Answer::Yes);
        Click("cmdCheck");
        EXPECT_EQ(ListOf("lstMessage"), verdicts);
        ExpectRecheck(Answer::No);
        Click("cmdCheck");
        // The digit windows judge all the same.
        EXPECT_EQ(ListOf("lstMessage"), IsPick(family) ? verdicts : Texts{});
    });
    EXPECT_EQ(Rows("SELECT COUNT(*) FROM " + std::string(game.Win)), Texts{"1"});
}

// The same for somebody without a mouse, whose focus is seen at every step.
class KeyboardRoadTest : public Road, public ::testing::WithParamInterface<std::string_view> {
  protected:
    KeyboardRoadTest() : Road(GetParam()) { person.PutMouseAway(); }
};

TEST_P(KeyboardRoadTest, NeedsNoMouse) {
    Start();
    const Purchase purchase{4, 2, 1};
    Inside([&] { EnterTickets(purchase); });
    EXPECT_EQ(Rows("SELECT " + BallFields() + " FROM " + std::string(game.Played) + " ORDER BY ID1"),
              TicketTexts());
    Texts verdicts = Verdicts(), listed;
    ExpectAddOns(listed, verdicts, purchase);
    Inside([&] {
        person.ClickTab("&Check Tickets");
        TypeDraw();
        Click("cmdCheck");
        EXPECT_EQ(ListOf("lstMessage"), verdicts);
        person.Expect("SAVED", "Winning data saved.");
        Put("txtDollarsWon", "20.00");
        Click("cmdEnterWinnings");
        person.ClickTab("&Reports");
        Click("cmdPLReport");
        EXPECT_TRUE(person.Find<QPlainTextEdit>("txtReport").toPlainText().contains("20.00"));
        person.ClickTab("&Quick Pick");
        Put("txtNoOfTickets(1)", "3");
        if (family == Family::frm645) Click("optWheelType(3)");  // one draw is not enough for a wheel
        Click("cmdGenerate");
        Click("cmdExit(1)");
    });
}

// Games whose sheets carry add-on tickets.
class AddOnRoadTest : public RoadTest {
  protected:
    // A count that is one too many, where the window minds.
    void RefuseOneMore(int onSheet) {
        if (!CountsAddOns()) return;
        const std::string refused = std::to_string(MostAddOns(onSheet) + 1);
        PutCount(onSheet);
        if (addOn->ExtraFlag == "Extra")
            person.Expect("ERROR!",
                          "Too many Extra tickets entered. Please enter a value less than\r\n"
                          "or equal to the number of Tickets on this sheet.");
        else if (family == Family::frm645)
            person.Expect("Too Many Encore Tickets Entered",
                          "Maximum number of 10 Encore Tickets per Sheet. Please try again.");
        else return;
        Put("txtNoOfExtra", refused);
        EXPECT_EQ(TextOf("txtNoOfExtra"), "0");
    }
};

TEST_P(AddOnRoadTest, TakesTheMostAddOnTicketsOfASheetAndJudgesEachOfThem) {
    constexpr int onSheet = 3;
    Start();
    Inside([&] { RefuseOneMore(onSheet); });
    const Purchase purchase{onSheet, 1, MostAddOns(onSheet)};
    Inside([&] { EnterTickets(purchase); });
    const std::string count = std::to_string(purchase.addOns);
    EXPECT_EQ(Rows("SELECT COUNT(*), COUNT(DISTINCT ID1), MIN(Lottoflag) FROM " + std::string(addOn->Played)),
              Texts{count + "|" + count + "|" + std::string(game.LottoFlag)});

    Texts verdicts = Verdicts(), listed;
    ExpectAddOns(listed, verdicts, purchase);
    Inside([&] {
        person.ClickTab("&Check Tickets");
        TypeDraw();
        Click("cmdCheck");
        EXPECT_EQ(ListOf("lstEncorePlayed"), listed);
        EXPECT_EQ(ListOf("lstMessage"), verdicts);
    });
}

// Games that count Encore tickets and keep the index of the last one for the next sheet.
class EncoreRoadTest : public RoadTest {};

TEST_P(EncoreRoadTest, ASheetWithoutEncoreAfterOneWithTwoIsSavedSilently) {
    Start();
    Inside([&] {
        PutCount(2, 2);
        FillSheet(1, 1, 2);
        SaveSheet(false);
        FillSheet(2, 1, 0);
        SaveSheet(true);
    });
    EXPECT_EQ(Rows("SELECT COUNT(*) FROM PlayedEncore"), Texts{"2"});
    EXPECT_EQ(Rows("SELECT " + BallFields() + " FROM " + std::string(game.Played) + " ORDER BY ID1"),
              TicketTexts());
    EXPECT_EQ(Rows("SELECT COUNT(*) FROM Spent"), Texts{"1"});
}

using Menus = std::vector<std::string_view>;

Menus MenusOf(const std::function<bool(const GameTold&)>& wanted) {
    Menus menus;
    for (const GameTold& game : GamesTold)
        if (wanted(game)) menus.push_back(game.menu);
    return menus;
}
Menus AllMenus() {
    return MenusOf([](const GameTold&) { return true; });
}
Menus AddOnMenus() {
    return MenusOf([](const GameTold& game) { return AddOnOf(game.ExtraFlag) != nullptr; });
}
Menus EncoreMenus() {
    return MenusOf([](const GameTold& game) { return game.ExtraFlag == "Encore"; });
}

std::string NameOfMenu(const ::testing::TestParamInfo<std::string_view>& menu) {
    return std::string(menu.param);
}

INSTANTIATE_TEST_SUITE_P(AllGames, KeyboardRoadTest, ::testing::ValuesIn(AllMenus()),
                         [](const auto& menu) { return std::string(menu.param); });

INSTANTIATE_TEST_SUITE_P(AllGames, RoadTest, ::testing::ValuesIn(AllMenus()), NameOfMenu);
INSTANTIATE_TEST_SUITE_P(GamesWithAddOns, AddOnRoadTest, ::testing::ValuesIn(AddOnMenus()), NameOfMenu);
INSTANTIATE_TEST_SUITE_P(GamesWithEncore, EncoreRoadTest, ::testing::ValuesIn(EncoreMenus()), NameOfMenu);

}  // namespace
}  // namespace sorvane::test

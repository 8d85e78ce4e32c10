// The whole road of each game: from the menu over its sheets and add-ons to the file, to the verdicts, and
// once more after a restart.
#include "windows/Road.h"

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
    const std::string played(key.Played);
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
        EXPECT_EQ(Rows("SELECT COUNT(*) FROM " + std::string(key.Win)), Texts{"1"});
        ExpectRecheck(Answer::Yes);
        Click("cmdCheck");
        EXPECT_EQ(ListOf("lstMessage"), verdicts);
        ExpectRecheck(Answer::No);
        Click("cmdCheck");
        // The digit windows judge all the same.
        EXPECT_EQ(ListOf("lstMessage"), IsPick(family) ? verdicts : Texts{});
    });
    EXPECT_EQ(Rows("SELECT COUNT(*) FROM " + std::string(key.Win)), Texts{"1"});
}

std::vector<std::string_view> AllMenus() {
    std::vector<std::string_view> menus;
    for (const Game& game : Games()) menus.push_back(game.menu);
    return menus;
}

INSTANTIATE_TEST_SUITE_P(AllGames, RoadTest, ::testing::ValuesIn(AllMenus()),
                         [](const auto& menu) { return std::string(menu.param); });

}  // namespace
}  // namespace sorvane::test

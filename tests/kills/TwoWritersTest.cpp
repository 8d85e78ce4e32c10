// Two copies of the program save sheet after sheet into the same tables at once.
#include "kills/Player.h"
#include "support/TempFolder.h"
#include "support/World.h"

namespace sorvane::test {
namespace {

using testing::PlainFile;
using Texts = std::vector<std::string>;

class TwoWriters : public ::testing::TestWithParam<int> {};

TEST_P(TwoWriters, SaveFiveHundredTicketsEachWithoutABoxAndNothingIsMissing) {
    constexpr int TicketsOfEach = 500, FirstDay = 30000, SecondDay = 40000;
    const int onASheet = GetParam(), sheets = TicketsOfEach / onASheet;
    const TempFolder folder;
    const std::string home = folder.Path().string();
    Program(home, [](const std::string& box) { ADD_FAILURE() << box; }).Start();
    const auto save = [&](int firstDay) {
        return [&, firstDay](const Player::Say& say) {
            Program program(home, say);
            for (int sheet = 0; sheet < sheets; ++sheet) {
                program.Sheet(firstDay + sheet, onASheet);
                program.AddOns(firstDay + sheet, onASheet);
            }
        };
    };
    {
        Player first(save(FirstDay)), second(save(SecondDay));
        for (Player* player : {&first, &second}) {
            player->AwaitEnd();
            EXPECT_EQ(player->lines, Texts{});
        }
    }
    PlainFile file(DatabasePath(home));
    for (const std::string table : {"PlayedLotto649", "PlayedEncore"}) {
        EXPECT_EQ(file.One("SELECT count(*) || ' ' || min(ID1) || ' ' || max(ID1) FROM " + table),
                  "1000 1 1000");
        EXPECT_EQ(file.Rows("SELECT DISTINCT count(*) FROM " + table + " GROUP BY Date"),
                  Texts{std::to_string(onASheet)});
        // The rows of a sheet stand together.
        EXPECT_EQ(file.Rows("SELECT DISTINCT max(ID1) - min(ID1) + 1 FROM " + table + " GROUP BY Date"),
                  Texts{std::to_string(onASheet)});
    }
    EXPECT_FALSE(std::filesystem::exists(DatabasePath(home) + "-journal"));
}

INSTANTIATE_TEST_SUITE_P(TicketsOnASheet, TwoWriters, ::testing::Values(10, 100));

}  // namespace
}  // namespace sorvane::test

// A program that dies while it makes its tables: what it leaves must do for the next start.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <string_view>

#include "entry/CreateAllTables.h"
#include "support/FaultVfs.h"
#include "support/World.h"

namespace sorvane {
namespace {

using testing::PlainFile;
using testing::World;
using Names = std::vector<std::string>;

// Ends the program at its first box: a dead one shows none.
struct Dead {};
class DyingDialogs final : public Dialogs {
  public:
    Answer MsgBox(std::string_view, int, std::string_view) override { throw Dead(); }
};

struct Opening {
    Family family;
    const char* LottoFlag;
    const char* ExtraFlag;
};

class DyingCreation : public ::testing::TestWithParam<Opening> {
  protected:
    // Opens the window's tables on a fresh file. False when the program died on the way.
    bool Open(FaultVfs& vfs, World& world) {
        DyingDialogs dialogs;
        Dao::Engine engine(vfs.Name());
        Services services{dialogs, world.printer, world.clock, world.random, world.tools, engine};
        sorvane::Session session{world.global, services};
        world.global.LottoFlag = GetParam().LottoFlag;
        world.global.ExtraFlag = GetParam().ExtraFlag;
        WindowState state;
        try {
            return ErrorOf([&] { CreateAllTables(session, GetParam().family, state); }) == 0;
        } catch (const Dead&) {
            return false;
        }
    }
    static Names Schema(const World& world) {
        return world.Plain().Rows("SELECT name FROM sqlite_schema ORDER BY name");
    }
    static void ExpectWholePairs(const World& world, int n) {
        if (!std::filesystem::exists(world.DbName())) return;
        const Names names = Schema(world);
        const auto has = [&](const std::string& name) {
            return std::find(names.begin(), names.end(), name) != names.end();
        };
        constexpr std::string_view Played = "Played";
        for (const std::string& table : world.Plain().Tables()) {
            if (table == "Temp") continue;
            EXPECT_TRUE(has(table + ".ID1") && has(table + ".Date")) << table << ", dead at " << n;
            if (table.rfind(Played, 0) != 0) continue;
            EXPECT_TRUE(has("Win" + table.substr(Played.size()))) << table << ", dead at " << n;
        }
    }
};

TEST_P(DyingCreation, LeavesNoTableWithoutItsIndexesAndNoPairWithoutItsHalf) {
    FaultVfs vfs("dying");
    World whole;
    ASSERT_TRUE(Open(vfs, whole));
    const Names complete = Schema(whole);
    int died = 0;
    for (int n = 1; n < 2000; ++n) {
        World world;
        vfs.DieAt(n);
        const bool lived = Open(vfs, world);
        vfs.Heal();
        if (lived) break;
        ++died;
        ExpectWholePairs(world, n);
        EXPECT_TRUE(Open(vfs, world)) << "dead at " << n;
        EXPECT_EQ(Schema(world), complete) << "dead at " << n;
    }
    EXPECT_GT(died, 20);
}

INSTANTIATE_TEST_SUITE_P(Windows, DyingCreation,
                         ::testing::Values(Opening{Family::frm649, "BC49", "Extra"},
                                           Opening{Family::frm649, "Quebec49", "QCExtra"},
                                           Opening{Family::frm749, "Super 7", "WESTExtra"},
                                           Opening{Family::frm645, "Lottario", "Encore"},
                                           Opening{Family::frmKeno70, "ONTKeno", "Encore"},
                                           Opening{Family::frmPick3, "BCDaily3", "BCDaily3"},
                                           Opening{Family::frmPick4, "FLAPlay4", "FLAPlay4"}),
                         [](const auto& opening) {
                             return std::string(NameOf(opening.param.family)) + opening.param.ExtraFlag;
                         });

}  // namespace
}  // namespace sorvane

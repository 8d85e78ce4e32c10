#include "shell/SystemInformation.h"

#include <gtest/gtest.h>

#include "support/World.h"

namespace sorvane {
namespace {

using Paths = std::vector<std::string>;

TEST(StartSysInfo, StartsAToolMadeForItFirst) {
    testing::World world;
    world.tools.programs = {{"gnome-system-monitor", "/usr/bin/gnome-system-monitor"},
                            {"hardinfo", "/usr/bin/hardinfo"}};
    StartSysInfo(world.services);
    EXPECT_EQ(world.tools.started, Paths{"/usr/bin/hardinfo"});
}

TEST(StartSysInfo, ElseAMonitor) {
    testing::World world;
    world.tools.programs = {{"xfce4-taskmanager", "/usr/bin/xfce4-taskmanager"}};
    StartSysInfo(world.services);
    EXPECT_EQ(world.tools.started, Paths{"/usr/bin/xfce4-taskmanager"});
}

TEST(StartSysInfo, TriesTheToolsInTheirOrder) {
    testing::World world;
    const Paths names = {"hardinfo2",
                         "hardinfo",
                         "kinfocenter",
                         "cpu-x",
                         "msinfo32",
                         "gnome-system-monitor",
                         "plasma-systemmonitor",
                         "ksysguard",
                         "mate-system-monitor",
                         "xfce4-taskmanager",
                         "lxtask",
                         "qps",
                         "taskmgr"};
    for (const std::string& name : names) world.tools.programs[name] = name;
    for (const std::string& name : names) {
        StartSysInfo(world.services);
        world.tools.programs.erase(name);
    }
    EXPECT_EQ(world.tools.started, names);
}

TEST(StartSysInfo, WithoutAnyToolGivesTheBoxAndNothingElse) {
    testing::World world;
    world.dialogs.Expect("Sorvane", "System Information Is Unavailable At This Time", Answer::Ok,
                         BoxStyle::Ok);
    StartSysInfo(world.services);
    EXPECT_EQ(world.tools.started, Paths{});
}

TEST(StartSysInfo, AToolThatCannotBeStartedEndsItWithoutAWord) {
    testing::World world;
    world.tools.programs = {{"hardinfo", "/usr/bin/hardinfo"}, {"lxtask", "/usr/bin/lxtask"}};
    world.tools.failure = ErrorNumber::FileNotFound;
    StartSysInfo(world.services);
    EXPECT_EQ(world.tools.started, Paths{});
}

}  // namespace
}  // namespace sorvane

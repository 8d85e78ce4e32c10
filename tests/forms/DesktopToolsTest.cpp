#include "forms/DesktopTools.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <optional>
#include <string>

#include "platform/RunTimeError.h"
#include "support/TempFolder.h"

#ifndef _WIN32
#include <sys/stat.h>
#include <sys/wait.h>

namespace sorvane::forms {
namespace {

namespace fs = std::filesystem;

// A folder with a program in it that leaves a mark when it runs.
class DesktopToolsTest : public ::testing::Test {
  protected:
    void Write(const fs::path& path, const std::string& text, bool executable) const {
        std::ofstream(path) << text;
        if (executable) fs::permissions(path, fs::perms::owner_exec, fs::perm_options::add);
    }
    TempFolder folder{fs::temp_directory_path()};
};

TEST_F(DesktopToolsTest, FindsTheFirstProgramOnThePath) {
    for (const char* name : {"a", "b"}) {
        fs::create_directory(folder / name);
        Write(folder / name / "tool", "", true);
    }
    const DesktopTools tools("::" + folder.File("missing") + ":" + folder.File("b") + ":" + folder.File("a") +
                             ":");
    EXPECT_EQ(tools.Find("tool"), (folder / "b" / "tool").string());
    EXPECT_EQ(tools.Find("other"), std::nullopt);
}

TEST_F(DesktopToolsTest, PassesOverWhatIsNoProgram) {
    Write(folder / "text", "", false);
    fs::create_directory(folder / "directory");
    const DesktopTools tools(folder.Path().string());
    for (const std::string_view name : {"text", "directory", "", "./text", "../text", "/bin/sh", ".", ".."})
        EXPECT_EQ(tools.Find(name), std::nullopt) << name;
}

TEST_F(DesktopToolsTest, LeavesOutFoldersThatAreNotAbsolute) {
    Write(folder / "tool", "", true);
    const fs::path before = fs::current_path();
    fs::current_path(folder.Path());
    EXPECT_EQ(DesktopTools(".").Find("tool"), std::nullopt);
    EXPECT_EQ(DesktopTools("").Find("tool"), std::nullopt);
    for (const char* nowhere : {"", "."})
        EXPECT_EQ(DesktopTools(nowhere).Find("sh"), std::nullopt) << nowhere;
    fs::current_path(before);
}

TEST_F(DesktopToolsTest, SearchesThePathOfTheSystem) { EXPECT_TRUE(DesktopTools().Find("sh")); }

TEST_F(DesktopToolsTest, StartRaisesFileNotFoundForWhatCannotRun) {
    DesktopTools tools;
    Write(folder / "text", "", false);
    EXPECT_EQ(ErrorOf([&] { tools.Start(folder.File("missing")); }), 53);
    EXPECT_EQ(ErrorOf([&] { tools.Start(folder.File("text")); }), 53);
    EXPECT_EQ(ErrorOf([&] { tools.Start(folder.Path().string()); }), 53);
    EXPECT_EQ(ErrorOf([&] { tools.Start(""); }), 53);
}

TEST_F(DesktopToolsTest, StartedProgramRunsAndIsNoChildOfOurs) {
    // The program tells its parent through a named pipe, on which the test waits.
    const std::string pipe = folder.File("pipe");
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    Write(folder / "tool", "#!/bin/sh\necho ran $# > '" + pipe + "'\n", true);
    DesktopTools().Start(folder.File("tool"));
    std::string line;
    std::getline(std::ifstream(pipe), line);
    EXPECT_EQ(line, "ran 0");
    EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1) << "a child is left";
    EXPECT_EQ(errno, ECHILD);
}

}  // namespace
}  // namespace sorvane::forms

#endif

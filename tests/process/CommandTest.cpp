// The command sorvane-records as it is started from a shell.
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <array>
#include <cstdio>
#include <filesystem>
#include <string>

#include "support/TempFolder.h"

namespace sorvane::test {
namespace {

struct Ended {
    int status;
    std::string told;
};

Ended RunInShell(const std::string& command) {
    std::FILE* out = popen((command + " 2>&1").c_str(), "r");
    std::string told;
    std::array<char, 256> part{};
    while (std::fgets(part.data(), part.size(), out) != nullptr) told += part.data();
    return {WEXITSTATUS(pclose(out)), told};
}

TEST(Command, WithoutAWordTellsWhereHelpIs) {
    const Ended ended = RunInShell(SORVANE_RECORDS);
    EXPECT_EQ(ended.status, 2);
    EXPECT_EQ(ended.told, "sorvane-records: a command is missing\n\"sorvane-records --help\" tells more\n");
}

TEST(Command, KnowsTheFileBesideItself) {
    const TempFolder folder(SORVANE_BINARY_FOLDER);
    const std::string copy = folder.File("sorvane-records");
    std::filesystem::copy_file(SORVANE_RECORDS, copy);
    const Ended ended = RunInShell("cd / && '" + copy + "' check");
    EXPECT_EQ(ended.status, 1);
    EXPECT_EQ(ended.told,
              "sorvane-records: " + folder.File("data/sorvane.mdb") + ": there is no such file (3024)\n");
}

}  // namespace
}  // namespace sorvane::test

#include "records/RecordsWorld.h"

namespace sorvane::testing {
namespace {

using CommandLine = RecordsWorld;

TEST_F(CommandLine, WrongUseIsToldInWordsWithTheStatusTwo) {
    const std::vector<std::vector<std::string>> wrong = {{},
                                                         {"sing"},
                                                         {"show", "--loud"},
                                                         {"show", "more"},
                                                         {"draws"},
                                                         {"draws", "BC49"},
                                                         {"tickets", "BC49"},
                                                         {"draws", "BC49", "x.csv", "--list"},
                                                         {"import"},
                                                         {"tickets", "BC49", "x.csv", "--replace"}};
    for (const auto& arguments : wrong) {
        const Answer answer = Run(arguments);
        EXPECT_EQ(answer.status, 2);
        EXPECT_EQ(answer.data, "");
        EXPECT_NE(answer.words, "");
    }
}

TEST_F(CommandLine, EveryCommandHasHelp) {
    const Answer all = Do({"--help"});
    for (const char* command :
         {"show", "check", "backup", "restore", "renumber", "export", "import", "draws", "tickets"}) {
        EXPECT_TRUE(Tells(all.data, std::string("  ") + command + " ")) << command;
        EXPECT_TRUE(Tells(Do({command, "--help"}).data, "--data FOLDER")) << command;
    }
    EXPECT_EQ(all.words, "");
}

}  // namespace
}  // namespace sorvane::testing

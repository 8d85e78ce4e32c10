#include "records/Outside.h"

#include <cstdlib>
#include <ctime>

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

TEST_F(CommandLine, WrongUseIsToldByTheNameOfWhatIsMissingOrUnknown) {
    const auto told = [&](const std::vector<std::string>& arguments, const std::string& what) {
        EXPECT_EQ(Run(arguments).words,
                  "sorvane-records: " + what + "\n\"sorvane-records --help\" tells more\n");
    };
    told({}, "a command is missing");
    told({"sing"}, "\"sing\" is no command");
    told({"sing", "loud"}, "\"sing\" is no command");
    told({"draws"}, "GAME is required");
    told({"draws", "BC49"}, "FILE is required");
    told({"tickets"}, "GAME is required");
    told({"tickets", "BC49"}, "FILE is required");
    told({"draws", "BC49", "--list"}, "GAME excludes --list");
    told({"export"}, "FOLDER or --json is required");
    told({"export", "out", "--json", "all.json"}, "FOLDER excludes --json");
    told({"import"}, "FOLDER is required");
    told({"restore"}, "FILE is required");
}

TEST_F(CommandLine, HelpNamesArgumentsAndNothingOfTheirKind) {
    for (const char* command : {"backup", "restore", "export", "import", "draws", "tickets"})
        for (const char* odd : {"TEXT", "INT", "REQUIRED", "Excludes", "SUBCOMMAND", "[Option Group"})
            EXPECT_FALSE(Tells(Do({command, "--help"}).data, odd)) << command << " " << odd;
    EXPECT_TRUE(Tells(Do({"--help"}).data, "Usage: sorvane-records [OPTIONS] COMMAND\n"));
    EXPECT_TRUE(Tells(Do({"backup", "--help"}).data, "--keep N "));
    EXPECT_TRUE(Tells(Do({"tickets", "--help"}).data, "[OPTIONS] GAME FILE\n"));
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

// Each look at the clock takes so long that the second is over at once, or never.
TEST_F(CommandLine, WhatTakesLongerThanASecondShowsABarToWhoeverLooks) {
    Make("WinBC49");
    Sql("INSERT INTO WinBC49 VALUES (1, 46347, 1,2,3,4,5,6,7), (3, 46348, 1,2,3,4,5,6,7)");
    const std::string draws = Write("d.csv", "date,numbers,bonus\n2026-11-14,1 2 3 4 5 6,7\n");
    const std::string tickets = Write("t.csv", "date,numbers\n2026-11-14,1 2 3 4 5 6\n");
    Write("in/WinBC49.csv",
          "Date,Ball_1,Ball_2,Ball_3,Ball_4,Ball_5,Ball_6,Ball_B\n2026-11-13,1,2,3,4,5,6,7\n");
    struct Long {
        Texts command;
        std::string bar;
    };
    const std::vector<Long> all = {{{"show"}, "Reading ["},
                                   {{"check"}, "Checking ["},
                                   {{"backup", Path("b.mdb"), "--force"}, "Copying ["},
                                   {{"export", Path("out"), "--force"}, "Exporting ["},
                                   {{"export", "--json", Path("all.json"), "--force"}, "Exporting ["},
                                   {{"import", Path("in"), "--dry-run"}, "Importing ["},
                                   {{"draws", "BC49", draws, "--dry-run"}, "Importing ["},
                                   {{"tickets", "BC49", tickets, "--dry-run"}, "Importing ["},
                                   {{"renumber"}, "Copying ["}};
    const auto words = [&](const Texts& command, bool looks, long each) {
        terminal = looks;
        tick = each;
        return Run(command).words;
    };
    for (const auto& [command, bar] : all) {
        EXPECT_FALSE(Tells(words(command, true, 0), bar)) << command.front();
        EXPECT_FALSE(Tells(words(command, false, 1001), bar)) << command.front();
        // The keys are in order by now.
        if (command.front() == "renumber") Sql("UPDATE WinBC49 SET ID1 = 9 WHERE ID1 = 2");
        const std::string shown = words(command, true, 1001);
        EXPECT_TRUE(Tells(shown, bar)) << command.front() << ": " << shown;
        EXPECT_TRUE(Tells(shown, "] 100 %")) << command.front() << ": " << shown;
        // Nothing of it stays, and nothing is written behind it.
        const std::string whole = "] 100 %";
        EXPECT_TRUE(shown.substr(shown.rfind(whole) + whole.size()).starts_with("\r\x1b[K"))
            << command.front() << ": " << shown;
    }
}

TEST(Bar, ComesBehindAWholeSecondAndShowsEachPartOfAHundredOnce) {
    long now = 500;
    std::ostringstream data, words;
    Records::Outside outside{
        data, words, true, [] { return Records::Moment(); }, [&] { return std::chrono::milliseconds(now); },
        {}};
    const auto told = [&](Records::Progress& progress, double done, double inAll) {
        words.str("");
        progress.Tell(done, inAll);
        return words.str();
    };
    {
        Records::Progress progress(outside, "Reading");
        now = 1499;
        EXPECT_EQ(told(progress, 1, 4), "");
        now = 1500;
        EXPECT_EQ(told(progress, 1, 0), "");  // of nothing
        EXPECT_EQ(told(progress, 1, 4),
                  "\r\x1b[KReading [" + std::string(7, '#') + std::string(23, '.') + "] 25 %");
        EXPECT_EQ(told(progress, 1.03, 4), "");
        EXPECT_EQ(told(progress, 4, 4), "\r\x1b[KReading [" + std::string(30, '#') + "] 100 %");
        words.str("");
        progress.Wipe();
        EXPECT_EQ(words.str(), "\r\x1b[K");
    }
    EXPECT_EQ(words.str(), "\r\x1b[K");  // once
    // Also of one thing alone, and nothing of it is shown as well.
    now = 0;
    Records::Progress one(outside, "Reading");
    now = 1000;
    EXPECT_EQ(told(one, 0, 1), "\r\x1b[KReading [" + std::string(30, '.') + "] 0 %");
    words.str("");
    one.Wipe();
    EXPECT_EQ(words.str(), "\r\x1b[K");
    EXPECT_EQ(told(one, 0.999, 1), "\r\x1b[KReading [" + std::string(29, '#') + ".] 99 %");
}

TEST(OutsideTest, TheSystemsMomentIsTheOneOfItsClock) {
    const char* zone = std::getenv("TZ");
    const std::string before = zone == nullptr ? "" : zone;
    setenv("TZ", "UTC", 1);
    tzset();
    const Records::Outside outside = Records::Outside::OfTheSystem("here/sorvane-records");
    const std::time_t from = std::time(nullptr);
    const Records::Moment now = outside.now();
    const std::time_t to = std::time(nullptr);
    const long seconds =
        (now.day.Day() - 25'569) * 86'400L + now.hour * 3'600L + now.minute * 60L + now.second;
    EXPECT_GE(seconds, from);
    EXPECT_LE(seconds, to);
    EXPECT_TRUE(now.hour < 24 && now.minute < 60 && now.second < 61);
    zone == nullptr ? unsetenv("TZ") : setenv("TZ", before.c_str(), 1);
    tzset();
}

TEST_F(CommandLine, VersionIsTold) {
    const std::string version = Do({"--version"}).data;
    EXPECT_EQ(std::count(version.begin(), version.end(), '.'), 2) << version;
}

}  // namespace
}  // namespace sorvane::testing

// The chapters that the windows open the player's guide at.
#include "shell/GuideFacts.h"

#include <gtest/gtest.h>

#include <fstream>
#include <set>

namespace sorvane {
namespace {

std::set<std::string> ChaptersOfTheGuide() {
    std::ifstream guide(SORVANE_SOURCE_FOLDER "/docs/user-guide.md");
    std::set<std::string> chapters;
    for (std::string line; std::getline(guide, line);)
        if (line.starts_with("## ")) chapters.insert(line.substr(3));
    return chapters;
}

TEST(GuideFactsTest, EachChapterIsInTheGuide) {
    const std::set<std::string> chapters = ChaptersOfTheGuide();
    EXPECT_GT(chapters.size(), 10U);
    for (const auto& row : GuideFacts::OfWindows)
        EXPECT_TRUE(chapters.count(std::string(row.chapter))) << row.window;
    for (const Family family : AllFamilies)
        for (int tab = 0; tab < 4; ++tab)
            EXPECT_TRUE(chapters.count(std::string(GuideFacts::ChapterOf(family, tab))))
                << NameOf(family) << ", tab " << tab;
}

TEST(GuideFactsTest, EachSlipHasTheChapterOfItsGames) {
    EXPECT_EQ(GuideFacts::ChapterOf(Family::frm649, 0), "Your first sheet");
    EXPECT_EQ(GuideFacts::ChapterOf(Family::frm749, 0), "Bonus tickets: Super 7 and Lottario");
    EXPECT_EQ(GuideFacts::ChapterOf(Family::frm645, 0), "Bonus tickets: Super 7 and Lottario");
    EXPECT_EQ(GuideFacts::ChapterOf(Family::frmKeno80, 0), "Daily Keno");
    EXPECT_EQ(GuideFacts::ChapterOf(Family::frmPick4, 0), "Digit games");
    EXPECT_EQ(GuideFacts::ChapterOf(Family::frmPick4, 1), "Checking your tickets");
    EXPECT_EQ(GuideFacts::ChapterOf(Family::frm649, 2), "Charts and reports");
    EXPECT_EQ(GuideFacts::ChapterOf(Family::frmKeno70, 3), "Quick picks and wheels");
}

TEST(GuideFactsTest, AWindowWithoutAChapterHasTheFirstPage) {
    EXPECT_EQ(GuideFacts::ChapterOf("frmAbout"), "");
    EXPECT_EQ(GuideFacts::ChapterOf("frmReportType"), "Charts and reports");
}

TEST(GuideFactsTest, TheGuideLiesBelowTheProgramsFolder) {
    EXPECT_EQ(std::filesystem::path(GuideFacts::PathBelow("/opt/s/")),
              std::filesystem::path("/opt/s/share/doc/sorvane/docs/user-guide.md"));
}

}  // namespace
}  // namespace sorvane

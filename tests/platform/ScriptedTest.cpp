#include "support/Scripted.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <fstream>

namespace sorvane::testing {
namespace {

TEST(ScriptedDialogsTest, AnswersExpectedBoxesInTheirOrderAndLogsThem) {
    ScriptedDialogs dialogs;
    dialogs.Expect("CONFIRM", "Go?", Answer::Yes).Expect("Sorvane", "Done");
    EXPECT_EQ(dialogs.MsgBox("Go?", BoxStyle::YesNo, "CONFIRM"), Answer::Yes);
    EXPECT_EQ(dialogs.Remaining(), 1U);
    EXPECT_EQ(static_cast<Dialogs&>(dialogs).MsgBox("Done"), Answer::Ok);
    ASSERT_EQ(dialogs.log.size(), 2U);
    EXPECT_EQ(dialogs.log[0].text, "Go?");
    EXPECT_EQ(dialogs.log[0].answer, Answer::Yes);
    EXPECT_EQ(dialogs.log[1].title, "Sorvane");
}

TEST(ScriptedDialogsTest, HookRunsWhileTheBoxIsUpAndMayExpectAnother) {
    ScriptedDialogs dialogs;
    dialogs.Expect("a", "outer", Answer::Ok, BoxStyle::Ok, [&] {
        dialogs.Expect("b", "inner");
        dialogs.MsgBox("inner", BoxStyle::Ok, "b");
    });
    dialogs.MsgBox("outer", BoxStyle::Ok, "a");
    ASSERT_EQ(dialogs.log.size(), 2U);
    EXPECT_EQ(dialogs.log[1].text, "inner");
}

TEST(ScriptedDialogsTest, UnexpectedBoxFailsWithItsTextAndIsClosed) {
    static ScriptedDialogs dialogs;
    static Answer answer;
    EXPECT_NONFATAL_FAILURE(answer = dialogs.MsgBox("what?", BoxStyle::YesNoCancel, "Hm"), "what?");
    EXPECT_EQ(answer, Answer::Cancel);
    EXPECT_NONFATAL_FAILURE(answer = dialogs.MsgBox("no way out", BoxStyle::YesNo, "Hm"), "no way out");
    EXPECT_EQ(answer, Answer::No);
    EXPECT_NONFATAL_FAILURE(answer = dialogs.MsgBox("so be it", BoxStyle::Stop, "Hm"), "so be it");
    EXPECT_EQ(answer, Answer::Ok);
}

TEST(ScriptedDialogsTest, BoxThatDiffersInAnythingFails) {
    static ScriptedDialogs dialogs;
    const auto expect = [] { dialogs.Expect("T", "x", Answer::Ok, BoxStyle::Stop); };
    expect();
    EXPECT_NONFATAL_FAILURE(dialogs.MsgBox("x", BoxStyle::Stop, "t"), "\"t\"");
    expect();
    EXPECT_NONFATAL_FAILURE(dialogs.MsgBox("x ", BoxStyle::Stop, "T"), "\"x \"");
    expect();
    EXPECT_NONFATAL_FAILURE(dialogs.MsgBox("x", BoxStyle::Ok, "T"), "style 0");
    dialogs.Expect("T", "x", Answer::Yes, AnyStyle);
    EXPECT_NONFATAL_FAILURE(dialogs.MsgBox("x", BoxStyle::OkCancel, "T"), "any style");
    expect();
    EXPECT_EQ(dialogs.MsgBox("x", BoxStyle::Stop, "T"), Answer::Ok);
}

TEST(ScriptedDialogsTest, ExpectedBoxThatNeverCameFails) {
    EXPECT_NONFATAL_FAILURE(ScriptedDialogs().Expect("T", "never"), "never");
}

TEST(FixedRandomTest, SeedRepeatsAndListIsDrawnInOrder) {
    FixedRandom a(5);
    FixedRandom b(5);
    b.Randomize();
    for (int i = 0; i < 10; ++i) EXPECT_EQ(a.Rnd(), b.Rnd());
    EXPECT_EQ(b.randomized, 1);
    FixedRandom list(std::vector<double>{0.25, 0.75});
    EXPECT_EQ(list.Rnd(), 0.25);
    EXPECT_EQ(list.Rnd(), 0.75);
    EXPECT_THROW(list.Rnd(), std::out_of_range);
}

TEST(RecordingPrinterTest, KeepsLinesWithTheirSizeAndEdge) {
    RecordingPrinter printer;
    printer.FontSize(10);
    printer.LeftEdge(1700);
    printer.Print("a\r\n  b\nc");
    printer.EndDoc();
    printer.Print("");
    printer.EndDoc();
    ASSERT_EQ(printer.documents.size(), 2U);
    EXPECT_EQ(RecordingPrinter::Texts(printer.documents[0]), (std::vector<std::string>{"a", "  b", "c"}));
    EXPECT_EQ(printer.documents[0][2].fontSize, 10);
    EXPECT_EQ(printer.documents[0][2].leftEdge, 1700);
    EXPECT_EQ(RecordingPrinter::Texts(printer.documents[1]), (std::vector<std::string>{""}));
    EXPECT_EQ(printer.documents[1][0].leftEdge, 0) << "the edge is that of one document";
}

TEST(RecordingPrinterTest, FailsAtTheCallItWasToldToAndEndsTheDocument) {
    RecordingPrinter printer;
    printer.FailAt(RecordingPrinter::Verb::Print, 2, ErrorNumber::PrinterError);
    printer.Print("first");
    EXPECT_EQ(ErrorOf([&] { printer.Print("second"); }), 482);
    printer.Print("third");
    EXPECT_EQ(printer.calls.size(), 3U);
    // The error has ended the first document.
    ASSERT_EQ(printer.documents.size(), 1U);
    EXPECT_EQ(RecordingPrinter::Texts(printer.documents[0]), std::vector<std::string>{"first"});
    EXPECT_EQ(RecordingPrinter::Texts(printer.pending), std::vector<std::string>{"third"});
}

TEST(RecordingToolsTest, FindsWhatItWasGivenAndRemembersStarts) {
    RecordingTools tools;
    tools.programs["info"] = "/opt/info";
    EXPECT_EQ(tools.Find("info"), "/opt/info");
    EXPECT_EQ(tools.Find("other"), std::nullopt);
    tools.Start("/opt/info");
    tools.failure = ErrorNumber::FileNotFound;
    EXPECT_EQ(ErrorOf([&] { tools.Start("/opt/info"); }), 53);
    EXPECT_EQ(tools.started, std::vector<std::string>{"/opt/info"});
}

TEST(FixedClockTest, StandsUntilItIsSet) {
    FixedClock clock(Date::FromYmd(2026, 11, 21));
    EXPECT_EQ(clock.Today().ToText(), "2026-11-21");
    clock.today = Date::FromYmd(2026, 11, 22);
    EXPECT_EQ(clock.Today().ToText(), "2026-11-22");
}

TEST(TempFolderTest, IsItsOwnAndGoneAtTheEnd) {
    std::filesystem::path path;
    {
        const TempFolder one;
        const TempFolder other;
        EXPECT_NE(one.Path(), other.Path());
        path = one.Path();
        EXPECT_TRUE(std::filesystem::is_directory(path));
        std::filesystem::create_directory(one / "closed");
        std::ofstream(one.File("closed/file")) << "x";
        std::filesystem::permissions(one / "closed", std::filesystem::perms::owner_read);
    }
    EXPECT_FALSE(std::filesystem::exists(path));
}

}  // namespace
}  // namespace sorvane::testing

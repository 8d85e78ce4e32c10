// The page of quick picks.
#include <gtest/gtest.h>

#include "quickpick/QuickPickPages.h"
#include "support/World.h"

namespace sorvane {
namespace {

using testing::RecordingPrinter;
using testing::World;
using Verb = RecordingPrinter::Verb;
using Texts = std::vector<std::string>;

const Texts Head{"",
                 "",
                 "",
                 "",
                 "",
                 "",
                 "              Sorvane",
                 "",
                 "              Quick Pick Generator - Lotto649",
                 "        ========================================================",
                 "",
                 ""};

struct PrintWorld : World {
    explicit PrintWorld(const Texts& picks = {}) {
        global.LottoFlag = "Lotto649";
        if (!picks.empty()) QuickPicks.Redim(static_cast<int>(picks.size()));
        for (std::size_t i = 0; i < picks.size(); ++i) QuickPicks(static_cast<int>(i)) = picks[i];
    }
    void Print(int tickets) { PrintTickets(session, QuickPicks, tickets); }
    void ExpectBox(std::string_view text) { dialogs.Expect("PRINTER ERROR!", text); }
    Texts Page() const {
        EXPECT_EQ(printer.documents.size(), 1U);
        return printer.documents.empty() ? Texts() : RecordingPrinter::Texts(printer.documents.front());
    }
    static Texts With(Texts lines) {
        lines.insert(lines.begin(), Head.begin(), Head.end());
        return lines;
    }
    Array<std::string> QuickPicks;
};

constexpr std::string_view ErrorText =
    "A Printer Error has occurred. Please check your printer\r\nand try again.";
constexpr std::string_view PropertyText = "Printer driver does not support the property.";
constexpr std::string_view DriverText = "Printer driver unavailable.";

TEST(PrintTest, ThePageIsAHeadAndALineATicket) {
    PrintWorld world({"3, 11, 20, 27, 34, 46", "1, 2, 3, 4, 5, 49"});
    world.Print(2);
    EXPECT_EQ(world.Page(), PrintWorld::With({"      Ticket #1 - 3, 11, 20, 27, 34, 46",
                                              "      Ticket #2 - 1, 2, 3, 4, 5, 49"}));
    EXPECT_EQ(world.printer.documents.front().front().fontSize, 12);
    EXPECT_EQ(world.printer.calls[0], Verb::FontSize);
    EXPECT_EQ(world.printer.calls[1], Verb::ShowPrinter);
    EXPECT_EQ(world.printer.calls[2], Verb::FontSize);
    EXPECT_EQ(world.printer.calls[3], Verb::Print);
}

TEST(PrintTest, AKenoRunPrintsTicketNumbersWithNothingBehindThem) {
    PrintWorld world({"", ""});
    world.Print(2);
    EXPECT_EQ(world.Page(), PrintWorld::With({"      Ticket #1 - ", "      Ticket #2 - "}));
}

TEST(PrintTest, AsManyLinesArePrintedAsTheCountNowSays) {
    PrintWorld world({"a", "b", "c"});
    world.Print(1);
    EXPECT_EQ(world.Page(), PrintWorld::With({"      Ticket #1 - a"}));
}

TEST(PrintTest, BeyondTheLastSlotThePrintEndsSilentlyAndWhatWasSentComesOut) {
    PrintWorld world({"a", "b"});
    world.Print(4);  // the slot behind the last ticket is there, and empty
    EXPECT_EQ(world.Page(),
              PrintWorld::With({"      Ticket #1 - a", "      Ticket #2 - b", "      Ticket #3 - "}));
}

TEST(PrintTest, BeforeAnyRunNoTicketsPrintTheHeadAlone) {
    PrintWorld world;
    world.Print(0);
    EXPECT_EQ(world.Page(), Head);
}

TEST(PrintTest, BeforeAnyRunWithTicketsThePrintEndsSilentlyBehindTheHead) {
    PrintWorld world;
    world.Print(3);
    EXPECT_EQ(world.Page(), Head);
}

TEST(PrintTest, ACancelledDialogPrintsNothingAndSaysNothing) {
    PrintWorld world({"a"});
    world.printer.FailAt(Verb::ShowPrinter, 1, 32755);
    world.Print(1);
    EXPECT_TRUE(world.printer.documents.empty());
    EXPECT_TRUE(world.printer.pending.empty());
}

TEST(PrintTest, EachPrinterErrorHasItsTextAndTheNextStatementRuns) {
    for (const auto& [number, text] : {std::pair{482, ErrorText}, {483, PropertyText}, {484, DriverText}}) {
        PrintWorld world({"a"});
        world.printer.FailAt(Verb::FontSize, 1, number);
        world.ExpectBox(text);
        world.Print(1);
        EXPECT_EQ(world.Page(), PrintWorld::With({"      Ticket #1 - a"}));
    }
}

TEST(PrintTest, BehindADialogThatFailedThePageIsPrintedAllTheSame) {
    PrintWorld world({"a"});
    world.printer.FailAt(Verb::ShowPrinter, 1, 484);
    world.ExpectBox(DriverText);
    world.Print(1);
    EXPECT_EQ(world.Page(), PrintWorld::With({"      Ticket #1 - a"}));
}

TEST(PrintTest, APrinterThatFailsInThePageShowsItsBoxOnceAndWhatWasSentComesOut) {
    for (const auto& [number, text] : {std::pair{482, ErrorText}, {483, PropertyText}, {484, DriverText}}) {
        PrintWorld world({"a", "b"});
        world.printer.FailAt(Verb::Print, 14, number);
        world.ExpectBox(text);
        world.Print(2);
        EXPECT_EQ(world.Page(), PrintWorld::With({"      Ticket #1 - a"})) << number;
        EXPECT_EQ(world.printer.calls.back(), Verb::Print) << number;  // no second, empty document
    }
}

TEST(PrintTest, APrinterThatFailsAtTheFirstLineSendsNoEmptyPage) {
    PrintWorld world({"a"});
    world.printer.FailAt(Verb::Print, 1, 482);
    world.ExpectBox(ErrorText);
    world.Print(1);
    EXPECT_TRUE(world.printer.documents.empty());
}

TEST(PrintTest, AnEndOfDocumentThatFailsShowsItsBox) {
    PrintWorld world({"a"});
    world.printer.FailAt(Verb::EndDoc, 1, 482);
    world.ExpectBox(ErrorText);
    world.Print(1);
    EXPECT_TRUE(world.printer.documents.empty());
}

TEST(PrintTest, AnyOtherErrorEndsInSilence) {
    PrintWorld world({"a"});
    world.printer.FailAt(Verb::FontSize, 1, 5);
    world.Print(1);
    EXPECT_EQ(world.printer.calls.size(), 1U);
}

}  // namespace
}  // namespace sorvane

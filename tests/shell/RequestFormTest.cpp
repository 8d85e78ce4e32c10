#include "shell/RequestForm.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/SplitMix.h"
#include "shell/Deployment.h"
#include "support/Scripted.h"

namespace sorvane {
namespace {

using Texts = std::vector<std::string>;

// The rule as the form's users know it, on ASCII text: strings are cut, not counted through.
Texts Wrapped(std::string left) {
    Texts lines;
    if (left.empty()) return {""};
    while (left.find_first_not_of(' ') != std::string::npos) {
        std::string line = left.substr(0, 75);
        const std::size_t dropped = std::min(left.find_first_not_of(' '), line.size());
        line.erase(0, dropped);
        for (std::size_t next = dropped + line.size(); next < left.size(); ++next) {
            if (!line.empty() && line.back() == ' ') break;
            line += left[next];
        }
        const std::size_t cr = line.find('\r');
        if (cr != std::string::npos) line = left.substr(dropped, cr + 4);
        lines.push_back(line);
        left.erase(0, line.size());
    }
    return lines;
}

TEST(WrapAdditionalInfo, AnEmptyTextIsOneBlankLine) { EXPECT_EQ(WrapAdditionalInfo(""), Texts{""}); }

TEST(WrapAdditionalInfo, AShortTextIsOneLine) {
    EXPECT_EQ(WrapAdditionalInfo("Drawn on Fridays."), Texts{"Drawn on Fridays."});
}

TEST(WrapAdditionalInfo, SeventyFiveCharactersWithoutABlankAreOneLine) {
    const std::string text(75, 'x');
    EXPECT_EQ(WrapAdditionalInfo(text), Texts{text});
}

TEST(WrapAdditionalInfo, AWordIsNeverBroken) {
    const std::string text(200, 'x');
    EXPECT_EQ(WrapAdditionalInfo(text), Texts{text});
}

TEST(WrapAdditionalInfo, ALineRunsOverToTheNextBlank) {
    const std::string line = std::string(70, 'x') + " 0123456789 ";
    ASSERT_GT(line.size(), 75U);
    EXPECT_EQ(WrapAdditionalInfo(line + "next"), (Texts{line, "next"}));
}

TEST(WrapAdditionalInfo, ALineWithABlankAtItsEndIsNotExtended) {
    const std::string line = std::string(74, 'x') + " ";
    EXPECT_EQ(WrapAdditionalInfo(line + "next"), (Texts{line, "next"}));
}

TEST(WrapAdditionalInfo, ANewParagraphLosesItsFirstTwoCharactersToTheLineBefore) {
    EXPECT_EQ(WrapAdditionalInfo("One.\r\nTwo.\r\nThree."), (Texts{"One.\r\nTw", "o.\r\nTh", "ree."}));
}

TEST(WrapAdditionalInfo, ABreakAtTheEndTakesWhatIsThere) {
    EXPECT_EQ(WrapAdditionalInfo("One.\r\n"), Texts{"One.\r\n"});
    EXPECT_EQ(WrapAdditionalInfo("One.\r\nT"), Texts{"One.\r\nT"});
}

TEST(WrapAdditionalInfo, ABreakTakesTwoCharactersEvenBeyondTheWidth) {
    const std::string head(72, 'x');
    EXPECT_EQ(WrapAdditionalInfo(head + "\r\n ab"), (Texts{head + "\r\n a", "b"}));
}

TEST(WrapAdditionalInfo, EmptyParagraphsPairUp) {
    EXPECT_EQ(WrapAdditionalInfo("\r\n\r\nx"), (Texts{"\r\n\r\n", "x"}));
}

TEST(WrapAdditionalInfo, DroppedBlanksAreNotTakenOffSoTheEndComesOnceMore) {
    EXPECT_EQ(WrapAdditionalInfo("  hello"), (Texts{"hello", "lo"}));
    EXPECT_EQ(WrapAdditionalInfo("   ab"), (Texts{"ab", "ab", "b"}));
}

TEST(WrapAdditionalInfo, ABreakBehindDroppedBlanksStillTakesTwoCharacters) {
    EXPECT_EQ(WrapAdditionalInfo(" One.\r\nTwo."), (Texts{"One.\r\nTw", "wo."}));
}

TEST(WrapAdditionalInfo, ARemainderOfBlanksEndsIt) {
    EXPECT_EQ(WrapAdditionalInfo(std::string(100, ' ')), Texts{});
    const std::string line = std::string(74, 'x') + " ";
    EXPECT_EQ(WrapAdditionalInfo(line + "     "), Texts{line});
}

TEST(WrapAdditionalInfo, CountsCharactersNotBytes) {
    std::string accents;
    for (int i = 0; i < 74; ++i) accents += "\xC3\xA9";
    EXPECT_EQ(WrapAdditionalInfo(accents + " suite"), (Texts{accents + " ", "suite"}));
    EXPECT_EQ(WrapAdditionalInfo("\xC3\xA9\r\n\xC3\xA9\xC3\xA0z"),
              (Texts{"\xC3\xA9\r\n\xC3\xA9\xC3\xA0", "z"}));
}

TEST(WrapAdditionalInfo, FollowsTheRuleForAnyText) {
    for (std::uint64_t seed = 1; seed <= 3000; ++seed) {
        SplitMix mix(seed);
        const auto length = mix.Next() % 320;
        const auto blanks = 1 + mix.Next() % 20;
        std::string text;
        while (text.size() < length) {
            const auto kind = mix.Next() % (blanks + 3);
            if (kind < 2) text.append(1 + mix.Next() % 4, ' ');
            else if (kind == 2 && mix.Next() % 8 == 0) text += "\r\n";
            else text += static_cast<char>('a' + mix.Next() % 26);
        }
        ASSERT_EQ(WrapAdditionalInfo(text), Wrapped(text)) << "seed " << seed;
    }
}

Texts Printed(const RequestForm& form) {
    testing::RecordingPrinter printer;
    PrintRequestForm(printer, form);
    EXPECT_EQ(printer.documents.size(), 1U);
    EXPECT_TRUE(printer.pending.empty());
    for (const auto& line : printer.documents.at(0)) EXPECT_EQ(line.fontSize, 12);
    return testing::RecordingPrinter::Texts(printer.documents.at(0));
}

Texts Head() {
    Texts head(6, "");
    for (const char* line : {"Thank you for your request. If we get enough requests for your lottery",
                             "we will add it to the program.", "", "Please mail this form to:", ""})
        head.push_back(line);
    for (const std::string_view line : Deployment::Address) head.push_back("     " + std::string(line));
    head.insert(head.end(), 6, "");
    return head;
}

Texts With(Texts head, const Texts& lines) {
    head.insert(head.end(), lines.begin(), lines.end());
    return head;
}

TEST(PrintRequestForm, AnEmptyFormPrintsItsLabelsAndBlankLinesForTheQuestions) {
    EXPECT_EQ(Printed({}), With(Head(), {"Name of Lottery: ", "Country: ", "Province/State: ",
                                         "Number 0f #'s: ", "Low Number: ", "High Number: ", "", "",
                                         "Cost per Ticket Played = $", "", "", ""}));
}

TEST(PrintRequestForm, AFullFormPrintsEveryField) {
    RequestForm form;
    form.NameOfLottery = "Toto";
    form.Country = "Utopia";
    form.ProvinceState = "Amaurot";
    form.NumberOfNumbers = "6";
    form.Low = "49";
    form.High = "1";
    form.BonusNumber = RequestForm::Answered::Yes;
    form.BonusTicket = RequestForm::Answered::Yes;
    form.NumberOfBonusTickets = "2";
    form.CostPerTicket = "1.50";
    form.AdditionalInfo = "Drawn on Fridays.";
    EXPECT_EQ(Printed(form),
              With(Head(), {"Name of Lottery: Toto", "Country: Utopia", "Province/State: Amaurot",
                            "Number 0f #'s: 6", "Low Number: 49", "High Number: 1", "Bonus Number = Yes",
                            "Bonus Tickets = Yes", "Number of Bonus Tickets/Played Ticket = 2",
                            "Cost per Ticket Played = $1.50", "", "", "Drawn on Fridays."}));
}

TEST(PrintRequestForm, TheNumberOfBonusTicketsComesWithYesOnly) {
    RequestForm form;
    form.BonusNumber = RequestForm::Answered::No;
    form.BonusTicket = RequestForm::Answered::No;
    form.NumberOfBonusTickets = "2";
    const Texts lines = Printed(form);
    EXPECT_EQ(Texts(lines.begin() + static_cast<std::ptrdiff_t>(Head().size()) + 6, lines.end()),
              (Texts{"Bonus Number = No", "Bonus Tickets = No", "Cost per Ticket Played = $", "", "", ""}));
}

TEST(PrintRequestForm, AFailingPrinterIsTheCallersError) {
    testing::RecordingPrinter printer;
    printer.FailAt(testing::RecordingPrinter::Verb::Print, 3, 482);
    EXPECT_THROW(PrintRequestForm(printer, {}), RunTimeError);
}

}  // namespace
}  // namespace sorvane

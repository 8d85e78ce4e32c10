// The request form: keys by real events, the caret, and the paper read back.
#include <QPlainTextEdit>
#include <QPrinter>
#include <QProcess>
#include <QRadioButton>

#include "forms/PrinterDialog.h"
#include "forms/Utf8.h"
#include "shell/Deployment.h"
#include "shell/ui/frmRequestNewLottery.h"
#include "support/WindowWorld.h"

namespace sorvane::test {
namespace {

using Paper = testing::RecordingPrinter;

class RequestWindow : public WindowWorld {
  public:
    RequestWindow() { Open(form); }
    void Open(frmRequestNewLottery& window) {
        window.Show();
        Person::Await(window);
        Person::Settle();
    }
    QLineEdit& Field(std::string_view name) { return person.Find<QLineEdit>(name); }
    void ExpectRefusal(std::string_view text) {
        person.Expect("Error!", text, Answer::Ok, BoxStyle::Exclamation);
    }
    void FillEverything() {
        Type("txtNameOfLottery", "Toto 6");
        Type("txtCountry", "Utopia");
        Type("txtProvinceState", "Amaurot");
        Type("txtNumberOfNumbers", "6");
        Type("txtLow", "49");
        Type("txtHigh", "1");
        Click("optYesBonusNumber");
        Click("optYesBonusTicket");
        Type("txtNumberOfBonusTickets", "2");
        Type("txtCostPerTicket", "1.50");
        person.Click(*person.Find<QPlainTextEdit>("txtAdditionalInfo").viewport());
        person.Type("Drawn on Fridays.");
    }

    frmRequestNewLottery form{session};
};

const Texts TextFields{"txtNameOfLottery", "txtCountry", "txtProvinceState", "txtNumberOfNumbers",
                       "txtLow",           "txtHigh",    "txtCostPerTicket", "txtNumberOfBonusTickets"};
const Texts Options{"optYesBonusNumber", "optNoBonusNumber", "optYesBonusTicket", "optNoBonusTicket"};
constexpr std::string_view NotOne = "Please enter a valid number greater than or equal to 1.";
constexpr std::string_view NotZero = "Please enter a valid number greater than or equal to 0.";
constexpr std::string_view NotAlphabetical = "This Field accepts alphabetical input only. Please try again.";

TEST_F(RequestWindow, OpensEmptyWithItsCaptions) {
    EXPECT_EQ(form.Caption(), "Request New Lottery");
    EXPECT_EQ(CaptionOf("lblText1"),
              "To request a new lottery, please complete the information requested below, print it out, and "
              "mail it to the");
    EXPECT_EQ(CaptionOf("lblText2"), "address on the form. ");
    EXPECT_EQ(CaptionOf("lblNameOfLottery"), "Name of Lottery:");
    EXPECT_EQ(CaptionOf("lblCountry"), "Country:");
    EXPECT_EQ(CaptionOf("lblProvinceState"), "Province/State:");
    EXPECT_EQ(CaptionOf("lblNumberOfNumbers"), "Number of #'s / ticket:");
    EXPECT_EQ(CaptionOf("lblRange"), "Range of Numbers:");
    EXPECT_EQ(CaptionOf("lblLow"), "Low:");
    EXPECT_EQ(CaptionOf("lblHigh"), "High:");
    EXPECT_EQ(CaptionOf("fraBonusNumber"), "Bonus number drawn for 2nd prize?");
    EXPECT_EQ(CaptionOf("fraBonusTicket"), "Any Bonus tickets/Regular played ticket?");
    EXPECT_EQ(CaptionOf("lblNumberOfBonusTickets"), "Number of Bonus tickets/played ticket:");
    EXPECT_EQ(CaptionOf("lblCostPerTicket"), "Cost/played ticket:");
    EXPECT_EQ(CaptionOf("lblAdditionalInfo"), "Additional info:");
    EXPECT_EQ(CaptionOf("cmdClear"), "&Clear Form");
    EXPECT_EQ(CaptionOf("cmdPrint"), "&Print");
    EXPECT_EQ(CaptionOf("cmdExit"), "E&xit");
    for (const std::string& field : TextFields) {
        EXPECT_EQ(TextOf(field), "");
        EXPECT_TRUE(IsEnabled(field));
    }
    for (const std::string& option : Options) EXPECT_FALSE(IsTicked(option));
    EXPECT_EQ(Focus(), "txtNameOfLottery");
}

TEST_F(RequestWindow, NumberFieldsTakeDigitsAlone) {
    for (const char* name : {"txtNumberOfNumbers", "txtLow", "txtHigh", "txtNumberOfBonusTickets"}) {
        SCOPED_TRACE(name);
        Type(name, "0123456789");
        person.Key(Qt::Key_Backspace);
        EXPECT_EQ(TextOf(name), "012345678");
        for (const char* refused : {"a", ".", "-", " ", "/", ":"}) {
            person.Key(Qt::Key_Home);
            ExpectRefusal(NotOne);
            person.Type(refused);
            EXPECT_EQ(TextOf(name), "012345678") << refused;
            EXPECT_EQ(Field(name).cursorPosition(), 9);
            EXPECT_EQ(Focus(), name);
        }
    }
}

TEST_F(RequestWindow, EnterIsNoDigit) {
    Type("txtLow", "7");
    ExpectRefusal(NotOne);
    person.Enter();
    EXPECT_EQ(TextOf("txtLow"), "7");
}

TEST_F(RequestWindow, TheCostTakesDigitsAndPoints) {
    Type("txtCostPerTicket", "1..5");
    person.Key(Qt::Key_Backspace);
    EXPECT_EQ(TextOf("txtCostPerTicket"), "1..");
    for (const char* refused : {"x", ",", "$", " "}) {
        person.Key(Qt::Key_Home);
        ExpectRefusal(NotZero);
        person.Type(refused);
        EXPECT_EQ(TextOf("txtCostPerTicket"), "1..") << refused;
        EXPECT_EQ(Field("txtCostPerTicket").cursorPosition(), 3);
        EXPECT_EQ(Focus(), "txtCostPerTicket");
    }
}

TEST_F(RequestWindow, ADigitInACountryLeavesTheTextWithTheCaretAtItsEnd) {
    for (const char* name : {"txtCountry", "txtProvinceState"}) {
        SCOPED_TRACE(name);
        Type(name, "St. Kitts & N-/:");
        EXPECT_EQ(TextOf(name), "St. Kitts & N-/:");
        for (const char* digit : {"0", "5", "9"}) {
            person.Key(Qt::Key_Home);
            ExpectRefusal(NotAlphabetical);
            person.Type(digit);
            EXPECT_EQ(TextOf(name), "St. Kitts & N-/:");
            EXPECT_EQ(Field(name).cursorPosition(), 16);
            EXPECT_EQ(Focus(), name);
        }
        person.Enter();
        person.Key(Qt::Key_Backspace);
        EXPECT_EQ(TextOf(name), "St. Kitts & N-/");
    }
}

TEST_F(RequestWindow, FreeTextsTakeAnything) {
    Type("txtNameOfLottery", "Toto 6/49!");
    EXPECT_EQ(TextOf("txtNameOfLottery"), "Toto 6/49!");
    auto& info = person.Find<QPlainTextEdit>("txtAdditionalInfo");
    person.Click(*info.viewport());
    person.Type("2 draws");
    person.Enter();
    person.Type("a week");
    EXPECT_EQ(info.toPlainText(), "2 draws\na week");
}

TEST_F(RequestWindow, TheBonusTicketOptionsTurnTheirNumberOnAndOff) {
    Click("optNoBonusTicket");
    EXPECT_FALSE(IsEnabled("txtNumberOfBonusTickets"));
    Click("optYesBonusTicket");
    EXPECT_TRUE(IsEnabled("txtNumberOfBonusTickets"));
}

TEST_F(RequestWindow, TheQuestionsAreAnsweredEachForItself) {
    Click("optYesBonusNumber");
    Click("optNoBonusTicket");
    EXPECT_TRUE(IsTicked("optYesBonusNumber"));
    EXPECT_TRUE(IsTicked("optNoBonusTicket"));
    Click("optNoBonusNumber");
    EXPECT_FALSE(IsTicked("optYesBonusNumber"));
    EXPECT_TRUE(IsTicked("optNoBonusTicket"));
}

TEST_F(RequestWindow, ClearEmptiesEveryFieldAndBothAnswers) {
    FillEverything();
    Click("cmdClear");
    for (const std::string& field : TextFields) EXPECT_EQ(TextOf(field), "") << field;
    for (const std::string& option : Options) EXPECT_FALSE(IsTicked(option)) << option;
    EXPECT_EQ(person.Find<QPlainTextEdit>("txtAdditionalInfo").toPlainText(), "");
}

TEST_F(RequestWindow, ClearLeavesTheNumberOfBonusTicketsAsTheLastAnswerSetIt) {
    Click("optNoBonusTicket");
    Click("cmdClear");
    EXPECT_FALSE(IsEnabled("txtNumberOfBonusTickets"));
    Click("optNoBonusTicket");
    Click("optYesBonusTicket");
    EXPECT_TRUE(IsEnabled("txtNumberOfBonusTickets"));
}

TEST_F(RequestWindow, PrintAsksForThePrinterAndPrintsAtTwelvePoints) {
    FillEverything();
    Click("cmdPrint");
    ASSERT_EQ(printer.documents.size(), 1U);
    EXPECT_EQ(printer.calls.front(), Paper::Verb::ShowPrinter);
    for (const auto& line : printer.documents[0]) EXPECT_EQ(line.fontSize, 12);
    const Texts lines = Paper::Texts(printer.documents[0]);
    EXPECT_EQ(Texts(lines.end() - 13, lines.end()),
              (Texts{"Name of Lottery: Toto 6", "Country: Utopia", "Province/State: Amaurot",
                     "Number 0f #'s: 6", "Low Number: 49", "High Number: 1", "Bonus Number = Yes",
                     "Bonus Tickets = Yes", "Number of Bonus Tickets/Played Ticket = 2",
                     "Cost per Ticket Played = $1.50", "", "", "Drawn on Fridays."}));
}

TEST_F(RequestWindow, ACancelledPrinterDialogPrintsNothing) {
    printer.FailAt(Paper::Verb::ShowPrinter, 1, ErrorNumber::DialogCancelled);
    Click("cmdPrint");
    EXPECT_EQ(printer.calls, (std::vector<Paper::Verb>{Paper::Verb::ShowPrinter}));
}

TEST_F(RequestWindow, AFailingPrinterIsARunTimeError) {
    printer.FailAt(Paper::Verb::Print, 1, ErrorNumber::PrinterError);
    person.Expect("Sorvane",
                  "Run-time error '482':\r\n\r\n" + std::string(Sentence(ErrorNumber::PrinterError)),
                  Answer::Ok, BoxStyle::Stop);
    Click("cmdPrint");
}

TEST_F(RequestWindow, TabGoesThroughTheFieldsInTheirOrder) {
    Texts order;
    for (std::size_t i = 0; i < 14; ++i) {
        order.push_back(Focus());
        person.Tab();
    }
    EXPECT_EQ(order,
              (Texts{"txtNameOfLottery", "txtCountry", "txtProvinceState", "txtNumberOfNumbers", "txtLow",
                     "txtHigh", "optYesBonusNumber", "optYesBonusTicket", "txtNumberOfBonusTickets",
                     "txtCostPerTicket", "txtAdditionalInfo", "cmdClear", "cmdPrint", "cmdExit"}));
}

TEST_F(RequestWindow, ExitAndTheCloseBoxLeaveItAndEscapeDoesNot) {
    person.Key(Qt::Key_Escape);
    EXPECT_TRUE(form.isVisible());
    Click("cmdExit");
    EXPECT_FALSE(form.isVisible());
    frmRequestNewLottery again(session);
    Open(again);
    person.Close(again);
    EXPECT_FALSE(again.isVisible());
}

// The paper itself.
class RequestPaper : public RequestWindow {
  public:
    QString file = forms::ToQt(folder.File("form.pdf"));
    forms::PrinterDialog device{[this](QPrinter& into) {
        into.setOutputFormat(QPrinter::PdfFormat);
        into.setOutputFileName(file);
        into.setPageSize(QPageSize(QPageSize::Letter));
        return true;
    }};
    Services toFile{boxes, device, clock, random, tools, engine};
    sorvane::Session printing{global, toFile};
    frmRequestNewLottery paper{printing};

    RequestPaper() {
        form.Unload();
        Open(paper);
    }
    // The lines of the page that hold anything, without the blanks around them.
    Texts Printed() {
        Click("cmdPrint");
        QProcess reader;
        reader.start("pdftotext", {"-layout", file, "-"});
        if (!reader.waitForFinished()) throw std::runtime_error("pdftotext is missing");
        Texts lines;
        for (const QString& line : QString::fromUtf8(reader.readAllStandardOutput()).split('\n'))
            if (!line.trimmed().isEmpty()) lines.push_back(forms::ToUtf8(line.trimmed()));
        return lines;
    }
    static Texts With(const Texts& content) {
        Texts lines{"Thank you for your request. If we get enough requests for your lottery",
                    "we will add it to the program.", "Please mail this form to:"};
        for (const std::string_view line : Deployment::Address) lines.emplace_back(line);
        lines.insert(lines.end(), content.begin(), content.end());
        return lines;
    }
};

TEST_F(RequestPaper, OfAnEmptyFormHoldsEveryLabel) {
    EXPECT_EQ(Printed(), With({"Name of Lottery:", "Country:", "Province/State:", "Number 0f #'s:",
                               "Low Number:", "High Number:", "Cost per Ticket Played = $"}));
}

TEST_F(RequestPaper, OfAFullFormHoldsEveryField) {
    FillEverything();
    person.Type(" It has one prize for each of the six numbers and another for the bonus number alone.");
    EXPECT_EQ(Printed(), With({"Name of Lottery: Toto 6", "Country: Utopia", "Province/State: Amaurot",
                               "Number 0f #'s: 6", "Low Number: 49", "High Number: 1", "Bonus Number = Yes",
                               "Bonus Tickets = Yes", "Number of Bonus Tickets/Played Ticket = 2",
                               "Cost per Ticket Played = $1.50",
                               "Drawn on Fridays. It has one prize for each of the six numbers and another",
                               "for the bonus number alone."}));
}

}  // namespace
}  // namespace sorvane::test

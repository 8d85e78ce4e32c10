// Reports and quick picks printed into PDF files, and read back as another program sees them.
#include <QFileInfo>
#include <QPrinter>
#include <QProcess>

#include "ReportsWorld.h"
#include "forms/PrinterDialog.h"
#include "forms/Utf8.h"

namespace sorvane::test {
namespace {

class ReportsPrintTest : public ReportsWorld {
  public:
    bool accept = true;
    QString file = forms::ToQt((folder.Path() / "page.pdf").string());
    forms::PrinterDialog pdf{[this](QPrinter& device) {
        device.setOutputFormat(QPrinter::PdfFormat);
        device.setOutputFileName(file);
        device.setPageSize(QPageSize(QPageSize::A4));
        return accept;
    }};
    Services paper{boxes, pdf, clock, random, tools, engine};
    sorvane::Session paperRun{global, paper};
    Windows paperWindows{paperRun, Makers};

    GameWindow& OpenOnPaper(const GameCase& game, std::string_view tab) {
        Select(game.family, game.LottoFlag, game.ExtraFlag);
        auto& window = static_cast<GameWindow&>(paperWindows.Load(game.family));
        window.SetCaption("Lottario");
        window.Show();
        Person::Await(window);
        person.ClickTab(tab);
        return window;
    }
    // The window on paper.
    GameWindow& Front() const { return static_cast<GameWindow&>(person.Front()); }

    // The lines of the pages that hold more than blanks, without the margin.
    struct Pages {
        int count = 0;
        std::vector<std::string> lines;
    };
    Pages Read() {
        QProcess reader;
        reader.start("pdftotext", {"-layout", file, "-"});
        if (!reader.waitForFinished()) throw std::runtime_error("pdftotext is missing");
        const QString all = QString::fromUtf8(reader.readAllStandardOutput());
        Pages pages{static_cast<int>(all.count('\f')), {}};
        for (const QString& page : all.split('\f'))
            for (const QString& line : page.split('\n'))
                if (!line.trimmed().isEmpty()) pages.lines.push_back(forms::ToUtf8(line.simplified()));
        return pages;
    }
    // A text's lines as Read gives them.
    static std::vector<std::string> LinesOf(const std::string& text) {
        std::vector<std::string> lines;
        for (const QString& line : forms::ToQt(text).split("\r\n"))
            if (!line.trimmed().isEmpty()) lines.push_back(forms::ToUtf8(line.simplified()));
        return lines;
    }
};

TEST_F(ReportsPrintTest, AReportOfTwoThousandLinesBreaksItsPagesAndLosesNone) {
    GameWindow& window = OpenOnPaper(Lottario, "&Reports");
    Do("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 2000) "
       "INSERT INTO Spent SELECT i, 'Lottario', 30000 + i, i FROM n");
    Click("cmdPLReport");
    Click("cmdPrintReport");
    const Pages pages = Read();
    EXPECT_GT(pages.count, 20);
    EXPECT_EQ(pages.lines, LinesOf(window.Reports.txtReport.Text()));
    EXPECT_GT(pages.lines.size(), 2000u);
}

TEST_F(ReportsPrintTest, AReportKeepsItsColumnsOnPaper) {
    OpenOnPaper(Lottario, "&Reports");
    AddDraws(Lottario, 1);
    Click("cmdNFReport");
    Click("cmdPrintReport");
    QProcess reader;
    reader.start("pdftotext", {"-fixed", "6", file, "-"});
    ASSERT_TRUE(reader.waitForFinished());
    const QStringList lines = QString::fromUtf8(reader.readAllStandardOutput()).split('\n');
    const auto head = lines.indexOf(QRegularExpression(".*Times Drawn.*"));
    ASSERT_GE(head, 0);
    const auto row = lines.indexOf(QRegularExpression(" *7  +1"));
    ASSERT_GE(row, 0);
    EXPECT_EQ(lines[head].indexOf("Times Drawn") - lines[head].indexOf("Number"), 26);
    EXPECT_EQ(lines[row].indexOf('1') - lines[row].indexOf('7'), 29);
}

TEST_F(ReportsPrintTest, ACancelledReportIsARunTimeErrorAndPrintsNothing) {
    OpenOnPaper(Lottario, "&Reports");
    AddDraws(Lottario, 1);
    Click("cmdNFReport");
    accept = false;
    ExpectRunTimeError(ErrorNumber::DialogCancelled);
    Click("cmdPrintReport");
    EXPECT_FALSE(QFileInfo::exists(file));
    accept = true;
    Click("cmdPrintReport");
    EXPECT_EQ(Read().lines, LinesOf(Front().Reports.txtReport.Text()));
}

TEST_F(ReportsPrintTest, APrinterThatCannotWriteIsARunTimeErrorAndTheWindowGoesOn) {
    OpenOnPaper(Lottario, "&Reports");
    AddDraws(Lottario, 1);
    Click("cmdNFReport");
    const QString good =
        std::exchange(file, forms::ToQt((folder.Path() / "no such folder/page.pdf").string()));
    ExpectRunTimeError(ErrorNumber::PrinterError);
    Click("cmdPrintReport");
    file = good;
    Click("cmdPrintReport");
    EXPECT_EQ(Read().lines, LinesOf(Front().Reports.txtReport.Text()));
}

TEST_F(ReportsPrintTest, ThreeHundredTicketsStandOnSeveralPages) {
    GameWindow& window = OpenOnPaper(SixFortyNine, "&Quick");
    Type("txtNoOfTickets(1)", "300");
    Click("cmdGenerate");
    Click("cmdPrint");
    const Pages pages = Read();
    EXPECT_GT(pages.count, 3);
    std::vector<std::string> told{"Sorvane", "Quick Pick Generator - Lotto649", std::string(56, '=')};
    for (int i = 0; i < 300; ++i)
        told.push_back("Ticket #" + Number(i + 1) + " - " + window.QuickPick.lstDisplay.Text(i));
    EXPECT_EQ(pages.lines, told);
}

TEST_F(ReportsPrintTest, CancelledQuickPicksPrintNothingAndSayNothing) {
    OpenOnPaper(SixFortyNine, "&Quick");
    Type("txtNoOfTickets(1)", "3");
    Click("cmdGenerate");
    accept = false;
    Click("cmdPrint");
    EXPECT_FALSE(QFileInfo::exists(file));
}

TEST_F(ReportsPrintTest, QuickPicksThatCannotBeWrittenShowTheirBox) {
    OpenOnPaper(SixFortyNine, "&Quick");
    Type("txtNoOfTickets(1)", "3");
    Click("cmdGenerate");
    file = forms::ToQt((folder.Path() / "no such folder/page.pdf").string());
    person.Expect("PRINTER ERROR!",
                  "A Printer Error has occurred. Please check your printer\nand try again.");
    Click("cmdPrint");
    EXPECT_EQ(person.Awaited(), 0);
}

}  // namespace
}  // namespace sorvane::test

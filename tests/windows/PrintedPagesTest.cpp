// The three prints on paper: no line that the program made is cut on the page.
#include <QPrinter>
#include <QProcess>
#include <QTemporaryDir>

#include "forms/PrinterDialog.h"
#include "quickpick/QuickPickPages.h"
#include "reports/PrintReport.h"
#include "shell/RequestForm.h"
#include "support/WindowWorld.h"

namespace sorvane::test {
namespace {

class PrintedPages : public WindowWorld {
  public:
    QTemporaryDir pages;
    QString file = pages.filePath("page.pdf");
    QPageSize::PageSizeId paper = QPageSize::A4;
    forms::PrinterDialog pdf{[this](QPrinter& device) {
        device.setOutputFormat(QPrinter::PdfFormat);
        device.setOutputFileName(file);
        device.setPageSize(QPageSize(paper));
        return true;
    }};
    Services onPaper{boxes, pdf, clock, random, tools, engine};
    sorvane::Session printing{global, onPaper};

    // Whether this is one whole line of what was printed.
    void ExpectLine(const std::string& line) {
        QProcess reader;
        reader.start("pdftotext", {"-raw", file, "-"});
        ASSERT_TRUE(reader.waitForFinished());
        const QString text = QString::fromUtf8(reader.readAllStandardOutput());
        EXPECT_TRUE(text.split('\n').contains(QString::fromStdString(line))) << line << "\n"
                                                                             << text.toStdString();
    }
    // Calls `print` with lines of these lengths on both papers; each is one word, or words of ten letters.
    void OnEveryPaper(const std::function<void(const std::string& line)>& print) {
        for (const auto size : {QPageSize::A4, QPageSize::Letter})
            for (const std::size_t length : {74u, 75u, 76u, 90u, 200u})
                for (const bool words : {false, true}) {
                    paper = size;
                    std::string line(length, 'x');
                    for (std::size_t at = 10; words && at + 1 < length; at += 11) line[at] = ' ';
                    print(line);
                }
    }
};

TEST_F(PrintedPages, OfTheRequestFormKeepEachLineWhole) {
    OnEveryPaper([&](const std::string& line) {
        RequestForm form;
        form.NameOfLottery = line;
        form.AdditionalInfo = std::string(line.size(), 'y');
        pdf.ShowPrinter();
        PrintRequestForm(pdf, form);
        ExpectLine("Name of Lottery: " + line);
        ExpectLine(form.AdditionalInfo);
    });
}

TEST_F(PrintedPages, OfTheRequestFormBreakProseBetweenWords) {
    RequestForm form;
    std::string prose;
    for (int i = 0; i < 40; ++i) prose += "a lottery that has more than five numbers ";
    form.AdditionalInfo = prose;
    pdf.ShowPrinter();
    PrintRequestForm(pdf, form);
    for (std::string line : WrapAdditionalInfo(prose)) {
        line.erase(line.find_last_not_of(' ') + 1);
        ExpectLine(line);
    }
}

TEST_F(PrintedPages, OfTheQuickPicksKeepEachLineWhole) {
    OnEveryPaper([&](const std::string& line) {
        Array<std::string> quickPicks;
        quickPicks.Redim(1);
        quickPicks(0) = line;
        PrintTickets(printing, quickPicks, 1);
        ExpectLine("Ticket #1 - " + line);
    });
}

TEST_F(PrintedPages, OfAReportKeepEachLineWhole) {
    OnEveryPaper([&](const std::string& line) {
        PrintReport(pdf, "before\r\n" + line + "\r\nbehind");
        for (const std::string& whole : {std::string("before"), line, std::string("behind")})
            ExpectLine(whole);
    });
}

}  // namespace
}  // namespace sorvane::test

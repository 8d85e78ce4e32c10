// Printing, into PDF files.
#include <QFileInfo>
#include <QPrinter>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include "Fixture.h"
#include "forms/PrinterDialog.h"
#include "forms/Utf8.h"

namespace sorvane::test {
namespace {

using namespace forms;

class Printing : public testing::Test {
  protected:
    QTemporaryDir folder;
    QString file = folder.filePath("page.pdf");
    bool accept = true;
    PrinterDialog printer{[this](QPrinter& device) {
        device.setOutputFormat(QPrinter::PdfFormat);
        device.setOutputFileName(file);
        device.setPageSize(QPageSize(QPageSize::A4));
        return accept;
    }};

    // The pages as text, in their layout.
    std::vector<QStringList> Pages() {
        QProcess reader;
        reader.start("pdftotext", {"-layout", "-fixed", "7.2", file, "-"});
        if (!reader.waitForFinished()) throw std::runtime_error("pdftotext is missing");
        std::vector<QStringList> pages;
        for (const QString& page : QString::fromUtf8(reader.readAllStandardOutput()).split('\f'))
            pages.push_back(page.split('\n'));
        pages.pop_back();
        return pages;
    }
    static std::string Trimmed(const QString& line) { return ToUtf8(line.trimmed()); }
};

TEST_F(Printing, LinesComeOneBelowTheOtherWithTheirRunsOfBlanks) {
    printer.ShowPrinter();
    printer.FontSize(12);
    printer.Print("");
    printer.Print("              Sorvane");
    printer.Print("a      b\r\n\r\nc");
    printer.EndDoc();
    const auto pages = Pages();
    ASSERT_EQ(1u, pages.size());
    const QStringList& lines = pages[0];
    const auto row = lines.indexOf(QRegularExpression(".*Sorvane.*"));
    ASSERT_GE(row, 0);
    const auto left = lines[row].indexOf("Sorvane") - 14;
    EXPECT_EQ(QString(left, ' ') + "a      b", lines[row + 1]);
    EXPECT_EQ("c", Trimmed(lines[row + 3]));
}

TEST_F(Printing, PagesBreakWhereTheyAreFullAndNoLineIsLost) {
    printer.ShowPrinter();
    for (int i = 1; i <= 200; ++i) printer.Print("Ticket #" + std::to_string(i) + ".");
    printer.EndDoc();
    const auto pages = Pages();
    EXPECT_GE(pages.size(), 3u);
    int next = 1;
    for (const QStringList& page : pages)
        for (const QString& line : page)
            if (!line.trimmed().isEmpty()) {
                EXPECT_EQ("Ticket #" + std::to_string(next++) + ".", Trimmed(line));
            }
    EXPECT_EQ(201, next);
}

TEST_F(Printing, LineWiderThanThePaperGoesOnInTheNext) {
    printer.ShowPrinter();
    printer.Print(std::string(70, 'a') + std::string(70, 'b') + ".");
    printer.EndDoc();
    QString all;
    const auto pages = Pages();
    for (const QString& line : pages.at(0)) all += line.trimmed();
    EXPECT_EQ(std::string(70, 'a') + std::string(70, 'b') + ".", ToUtf8(all));
}

TEST_F(Printing, LeftEdgeCountsInTwipsForTheDocumentInHandOnly) {
    const auto left = [&] {
        printer.ShowPrinter();
        printer.Print("x");
        printer.EndDoc();
        QProcess reader;
        reader.start("pdftotext", {"-bbox", file, "-"});
        reader.waitForFinished();
        const QString box = QString::fromUtf8(reader.readAllStandardOutput());
        return QRegularExpression("<word xMin=\"([0-9.]+)\"").match(box).captured(1).toDouble();
    };
    EXPECT_NEAR(36, left(), 1);  // points: half an inch
    printer.LeftEdge(1700);
    EXPECT_NEAR(1700 / 20.0, left(), 1);
    EXPECT_NEAR(36, left(), 1);
}

TEST_F(Printing, EmptyDocumentIsAnEmptyPage) {
    printer.ShowPrinter();
    printer.EndDoc();
    EXPECT_EQ(1u, Pages().size());
}

TEST_F(Printing, CancelledDialogIsItsOwnErrorAndPrintsNothing) {
    accept = false;
    EXPECT_EQ(ErrorNumber::DialogCancelled, ErrorOf([&] { printer.ShowPrinter(); }));
    EXPECT_FALSE(QFileInfo::exists(file));
}

TEST_F(Printing, FileThatCannotBeWrittenIsAPrinterError) {
    file = folder.filePath("no/such/folder/page.pdf");
    printer.ShowPrinter();
    EXPECT_EQ(ErrorNumber::PrinterError, ErrorOf([&] { printer.Print("x"); }));
    EXPECT_EQ(ErrorNumber::PrinterError, ErrorOf([&] { printer.EndDoc(); }));
}

TEST_F(Printing, WithoutAPrinterTheDriverIsMissing) {
    file = QString();
    EXPECT_EQ(ErrorNumber::PrinterDriver, ErrorOf([&] { printer.ShowPrinter(); }));
    EXPECT_EQ(ErrorNumber::PrinterDriver, ErrorOf([&] { printer.Print("x"); }));
}

TEST_F(Printing, ImpossibleSizesAndEdgesAreNotSupported) {
    EXPECT_EQ(ErrorNumber::PrinterProperty, ErrorOf([&] { printer.FontSize(0); }));
    EXPECT_EQ(ErrorNumber::PrinterProperty, ErrorOf([&] { printer.FontSize(501); }));
    EXPECT_EQ(ErrorNumber::PrinterProperty, ErrorOf([&] { printer.LeftEdge(-1); }));
}

TEST_F(Printing, SystemsDialogStandsOverTheWindowAndCanBeCancelled) {
    LoggingWindow window;
    CommandButton print("cmdPrint", "&Print");
    window.LayOut(print);
    PrinterDialog real;
    print.OnClick([&] { window.Write(std::to_string(ErrorOf([&] { real.ShowPrinter(); }))); });
    Open(window);
    Person person;
    person.ExpectWindow("CommonDialog1", [&](QWidget&) { person.Key(Qt::Key_Escape); });
    person.Click(print);
    EXPECT_EQ((Log{"32755"}), window.log);
    EXPECT_TRUE(window.isActiveWindow());
}

}  // namespace
}  // namespace sorvane::test

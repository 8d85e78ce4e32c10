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
    QPageSize::PageSizeId size = QPageSize::A4;
    PrinterDialog printer{[this](QPrinter& device) {
        device.setOutputFormat(QPrinter::PdfFormat);
        device.setOutputFileName(file);
        device.setPageSize(QPageSize(size));
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
    // Where the words that match lie on the first page, in points.
    struct Place {
        double left, top, right, bottom;
    };
    Place Extent(const QString& pattern) {
        const QRegularExpression words(
            "<word xMin=\"([0-9.]+)\" yMin=\"([0-9.]+)\" xMax=\"([0-9.]+)\" "
            "yMax=\"([0-9.]+)\">" +
            pattern + "</word>");
        Place place{1e6, 1e6, 0, 0};
        for (auto word = words.globalMatch(Boxes()); word.hasNext();) {
            const auto match = word.next();
            place = {std::min(place.left, match.captured(1).toDouble()),
                     std::min(place.top, match.captured(2).toDouble()),
                     std::max(place.right, match.captured(3).toDouble()),
                     std::max(place.bottom, match.captured(4).toDouble())};
        }
        return place;
    }
    double PageWidth() {
        return QRegularExpression("<page width=\"([0-9.]+)\"").match(Boxes()).captured(1).toDouble();
    }
    QString Boxes() {
        QProcess reader;
        reader.start("pdftotext", {"-bbox", file, "-"});
        if (!reader.waitForFinished()) throw std::runtime_error("pdftotext is missing");
        return QString::fromUtf8(reader.readAllStandardOutput());
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

// A line of so many characters, with a blank after each ten of them.
std::string Prose(std::size_t length) {
    std::string line;
    while (line.size() < length) line += line.size() % 11 == 10 ? ' ' : 'x';
    line.back() = '.';
    return line;
}

TEST_F(Printing, NoLineIsCutHoweverLongItIs) {
    for (const auto paper : {QPageSize::A4, QPageSize::Letter}) {
        size = paper;
        for (const std::size_t length : {74u, 75u, 76u, 90u, 200u})
            for (const std::string& line : {std::string(length, 'x'), Prose(length)}) {
                printer.ShowPrinter();
                printer.Print("before");
                printer.Print(line);
                printer.Print("behind");
                printer.EndDoc();
                QProcess reader;
                reader.start("pdftotext", {"-raw", file, "-"});
                ASSERT_TRUE(reader.waitForFinished());
                EXPECT_EQ("before\n" + line + "\nbehind\n\f",
                          QString::fromUtf8(reader.readAllStandardOutput()).toStdString());
                EXPECT_LE(Extent("\\S+").right, PageWidth() - 17);
            }
    }
}

TEST_F(Printing, OnlyTheLineThatIsTooWideIsCondensed) {
    printer.ShowPrinter();
    printer.Print(std::string(40, 'a'));
    printer.Print(std::string(200, 'b'));
    printer.Print(std::string(40, 'c'));
    printer.EndDoc();
    const Place a = Extent("a+"), b = Extent("b+"), c = Extent("c+");
    EXPECT_NEAR(a.right - a.left, c.right - c.left, 0.1);
    EXPECT_NEAR(40 * 7.2, a.right - a.left, 2);
    EXPECT_NEAR(PageWidth() - 36 - 18, b.right - b.left, 1);
    EXPECT_NEAR(a.bottom - a.top, b.bottom - b.top, 0.5);  // as high as the others
    EXPECT_NEAR(b.top - a.top, c.top - b.top, 0.1);
}

TEST_F(Printing, BlanksAtTheEndOfALineDoNotCount) {
    printer.ShowPrinter();
    printer.Print(std::string(70, 'a') + std::string(40, ' '));
    printer.EndDoc();
    EXPECT_NEAR(70 * 7.2, Extent("a+").right - Extent("a+").left, 3);
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

TEST_F(Printing, AnErrorLeavesNoEdgeToTheNextDocument) {
    const auto leftOfX = [&] {
        printer.ShowPrinter();
        printer.Print("x");
        printer.EndDoc();
        return Extent("x").left;
    };
    printer.LeftEdge(1700);
    accept = false;
    EXPECT_EQ(ErrorNumber::DialogCancelled, ErrorOf([&] { printer.ShowPrinter(); }));
    accept = true;
    EXPECT_NEAR(36, leftOfX(), 1);
    const QString good = std::exchange(file, folder.filePath("no/such/folder/page.pdf"));
    for (const bool ending : {false, true}) {
        printer.LeftEdge(1700);
        printer.ShowPrinter();
        EXPECT_EQ(ErrorNumber::PrinterError,
                  ErrorOf([&] { ending ? printer.EndDoc() : printer.Print("x"); }));
        const QString bad = std::exchange(file, good);
        EXPECT_NEAR(36, leftOfX(), 1);
        file = bad;
    }
}

TEST_F(Printing, CopiesAndPagesAskedForInTheDialogAreNotUsed) {
    QPrinter* device = nullptr;
    PrinterDialog asked{[&](QPrinter& chosen) {
        device = &chosen;
        chosen.setOutputFormat(QPrinter::PdfFormat);
        chosen.setOutputFileName(file);
        chosen.setCopyCount(3);
        chosen.setPrintRange(QPrinter::PageRange);
        chosen.setPageRanges(QPageRanges::fromString("2-4"));
        return true;
    }};
    asked.ShowPrinter();
    EXPECT_EQ(device->copyCount(), 1);
    EXPECT_EQ(device->printRange(), QPrinter::AllPages);
    EXPECT_TRUE(device->pageRanges().isEmpty());
    asked.Print("x");
    asked.EndDoc();
    EXPECT_EQ(Pages().size(), 1u);
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

TEST_F(Printing, LettersAreOfTheSizeAndAtTheEdgeThatAreAskedFor) {
    const auto place = [&](double edge, int points) {
        printer.ShowPrinter();
        printer.LeftEdge(edge);
        printer.FontSize(points);
        printer.Print("xxxxxxxxxx");
        printer.EndDoc();
        return Extent("x+");
    };
    const Place first = place(0, 12), second = place(8000, 6), large = place(0, 24);
    EXPECT_NEAR(second.left - first.left, 400, 0.15);
    EXPECT_NEAR(first.right - first.left, 72, 1);
    EXPECT_NEAR(large.right - large.left, 144, 2);
    printer.FontSize(1);
    printer.FontSize(500);
}

TEST_F(Printing, HalfAnInchIsLeftAboveAndBelow) {
    printer.ShowPrinter();
    for (int i = 0; i < 200; ++i) printer.Print("ticket");
    printer.EndDoc();
    const double height = QRegularExpression("height=\"([0-9.]+)\"").match(Boxes()).captured(1).toDouble();
    double top = height, bottom = 0;
    const QRegularExpression words("yMin=\"([0-9.]+)\" xMax=\"[0-9.]+\" yMax=\"([0-9.]+)\"");
    for (auto word = words.globalMatch(Boxes()); word.hasNext();) {
        const auto match = word.next();
        top = std::min(top, match.captured(1).toDouble());
        bottom = std::max(bottom, match.captured(2).toDouble());
    }
    EXPECT_GE(top, 32);
    EXPECT_LE(top, 40);
    EXPECT_LE(bottom, height - 32);
    EXPECT_GE(bottom, height - 36 - 18);
}

TEST_F(Printing, ALineWithABlankAtItsEndIsAsWideAsOneWithout) {
    printer.ShowPrinter();
    printer.Print(std::string(100, 'b') + " ");
    printer.EndDoc();
    EXPECT_NEAR(PageWidth() - 36 - 18, Extent("b+").right - Extent("b+").left, 1);
}

TEST_F(Printing, AnErrorEndsTheDocumentAndWhatWasSentComesOut) {
    printer.ShowPrinter();
    printer.Print("one");
    const QString first = std::exchange(file, folder.filePath("second.pdf"));
    accept = false;
    EXPECT_EQ(ErrorNumber::DialogCancelled, ErrorOf([&] { printer.ShowPrinter(); }));
    accept = true;
    printer.ShowPrinter();
    printer.Print("two");
    printer.EndDoc();
    ASSERT_EQ(Pages().size(), 1U);
    EXPECT_EQ(Trimmed(Pages()[0].join(' ')), "two");
    file = first;
    EXPECT_EQ(Trimmed(Pages()[0].join(' ')), "one");
}

}  // namespace
}  // namespace sorvane::test

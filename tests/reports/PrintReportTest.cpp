// Printing a report.
#include <gtest/gtest.h>

#include "reports/PrintReport.h"
#include "support/Scripted.h"

namespace sorvane {
namespace {

using testing::RecordingPrinter;
using Verb = RecordingPrinter::Verb;
using Verbs = std::vector<Verb>;
using Texts = std::vector<std::string>;

TEST(PrintReportTest, TheWholeTextGoesOutInOnePieceBehindTheDialog) {
    RecordingPrinter printer;
    PrintReport(printer, "\r\n     Date: \r\nlast");
    EXPECT_EQ(printer.calls,
              (Verbs{Verb::FontSize, Verb::LeftEdge, Verb::ShowPrinter, Verb::Print, Verb::EndDoc}));
    ASSERT_EQ(printer.documents.size(), 1U);
    EXPECT_EQ(RecordingPrinter::Texts(printer.documents[0]), (Texts{"", "     Date: ", "last"}));
    EXPECT_EQ(printer.documents[0].front().fontSize, 10);
    EXPECT_EQ(printer.documents[0].front().leftEdge, 1700.0);
}

TEST(PrintReportTest, AnEmptyTextPrintsAnEmptyPage) {
    RecordingPrinter printer;
    PrintReport(printer, "");
    ASSERT_EQ(printer.documents.size(), 1U);
    EXPECT_EQ(RecordingPrinter::Texts(printer.documents[0]), Texts{""});
}

TEST(PrintReportTest, ACancelledDialogAndAFailingPrinterGoToTheCaller) {
    RecordingPrinter printer;
    printer.FailAt(Verb::ShowPrinter, 1, 32755);
    EXPECT_EQ(ErrorOf([&] { PrintReport(printer, "text"); }), 32755);
    printer.FailAt(Verb::Print, 1, 482);
    EXPECT_EQ(ErrorOf([&] { PrintReport(printer, "text"); }), 482);
    EXPECT_TRUE(printer.documents.empty());
}

}  // namespace
}  // namespace sorvane

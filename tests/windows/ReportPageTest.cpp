// The reports page and the window over all lotteries: which buttons print, and which report is chosen.
#include <QPlainTextEdit>

#include "reports/ui/frmReport.h"
#include "windows/Slip.h"

namespace sorvane::test {
namespace {

class ReportPage : public SlipWorld {
  protected:
    void Open(std::string_view menu) {
        Show(menu);
        Window().SSTab1.SetTab(Tab::Reports);
    }
    std::string Report() { return Window().Reports.txtReport.Text(); }
    // A row of the game's money, so that its readers have nothing to say.
    void Spend(const std::string& key) {
        Do("INSERT INTO Spent (ID1, Lottoflag, Date, Spent) VALUES (1, '" + key + "', 38787, 2)");
    }
};

TEST_F(ReportPage, OnlyLottarioPrintsAndNotWhileTheNumberChartShows) {
    Open("mnuCANONTLOTTARIO");
    Spend("Lottario");
    Click("cmdPLReport");
    EXPECT_TRUE(IsEnabled("cmdPrintReport"));
    Do("INSERT INTO WinLottario (ID1, Date, Ball_1, Ball_2, Ball_3, Ball_4, Ball_5, Ball_6, Ball_B) VALUES "
       "(1, 38787, 1, 2, 3, 4, 5, 6, 7)");
    Click("cmdNumberFrequency");
    EXPECT_FALSE(IsEnabled("cmdPrintReport"));
    Click("cmdNFReport");
    EXPECT_TRUE(IsEnabled("cmdPrintReport"));
    // The money chart leaves the button as it was; the hidden text is printed.
    Click("cmdProfitLoss");
    EXPECT_FALSE(IsShown("txtReport"));
    Click("cmdPrintReport");
    ASSERT_EQ(printer.documents.size(), 1u);
    Window().Leave();
    Open("mnuCANBCBC49");
    Do("DELETE FROM Spent");
    Spend("BC49");
    Click("cmdPLReport");
    EXPECT_TRUE(IsEnabled("cmdPrintReport"));
    Click("cmdPrintReport");
    EXPECT_EQ(printer.documents.size(), 1u);
}

TEST_F(ReportPage, AnEmptyReportPrintsAnEmptyPage) {
    Open("mnuCANONTLOTTARIO");
    Spend("Lottario");
    Click("cmdPLReport");
    Window().Reports.txtReport.SetText("");
    Click("cmdPrintReport");
    EXPECT_EQ(printer.documents.size(), 1u);
}

TEST_F(ReportPage, ACancelledTypeOfReportIsEmptyAndChangesNoText) {
    Open("mnuCANWESTPICK3");
    Do("INSERT INTO WinWESTPick3 (ID1, Lottoflag, Date, Ball_1, Ball_2, Ball_3) VALUES (1, 'WESTPick3', "
       "38787, "
       "1, 2, 3)");
    person.ExpectWindow("frmReportType", [this](QWidget&) {
        Click("optReportType(1)");
        Click("cmdOK");
    });
    Click("cmdReport");
    const std::string before = Report();
    EXPECT_NE(before.find("Triple Match Report"), std::string::npos);
    person.ExpectWindow("frmReportType", [this](QWidget&) {
        Click("optReportType(2)");
        Click("cmdCancel");
    });
    Click("cmdReport");
    EXPECT_EQ(global.ReportType, "");
    EXPECT_EQ(Report(), before);
}

TEST_F(ReportPage, Play4HasNoTripleMatchToChoose) {
    Open("mnuUSFLAPlay4");
    Do("INSERT INTO WinFLAPlay4 (ID1, Lottoflag, Date, Ball_1, Ball_2, Ball_3, Ball_4) VALUES (1, "
       "'FLAPlay4', "
       "38787, 1, 2, 3, 4)");
    person.ExpectWindow("frmReportType", [this](QWidget&) {
        EXPECT_FALSE(IsShown("optReportType(1)"));
        EXPECT_TRUE(IsShown("optReportType(2)"));
        Click("cmdCancel");
    });
    Click("cmdReport");
}

TEST_F(ReportPage, OverAllLotteriesWithoutTicketsTheBoxComesAndThenHeadingsAndTotals) {
    Show("mnuCANBCBC49");
    Window().Leave();
    global.LottoFlag.clear();
    frmReport report(session);
    person.ExpectWindow("frmReport", [this](QWidget&) {
        person.Expect("ERROR!",
                      "No Tickets entered yet. Please enter some played tickets and\r\ntry again.\r\n");
        Click("cmdPLReport");
        EXPECT_NE(person.Find<QPlainTextEdit>("txtReport")
                      .toPlainText()
                      .toStdString()
                      .find("Total Spent :   $          0.00"),
                  std::string::npos);
        Click("cmdExit");
    });
    windows.ShowModal(report);
}

}  // namespace
}  // namespace sorvane::test

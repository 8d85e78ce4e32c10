// The report over all lotteries, and the question which report of a digit game is wanted.
#include <QPlainTextEdit>
#include <QScrollBar>

#include "MainWindow.h"
#include "ReportsWorld.h"
#include "forms/Look.h"
#include "reports/ui/frmReport.h"
#include "reports/ui/frmReportType.h"

namespace sorvane::test {
namespace {

class AllReportsTest : public ReportsWorld {
  public:
    AllReportsTest() {
        // Makes both ledgers, as the start of the program does.
        Show(SixFortyNine.family, SixFortyNine.LottoFlag, SixFortyNine.ExtraFlag).Leave();
        global.LottoFlag.clear();
    }
    frmReport& OpenAll() {
        frm_ = std::make_unique<frmReport>(session);
        frm_->Show();
        Person::Await(*frm_);
        return *frm_;
    }
    forms::Chart& Money() { return static_cast<forms::Chart&>(Find("mscProfitLoss")); }
    std::string Text() { return static_cast<ReportBox&>(Find("txtReport")).Text(); }
    static constexpr std::string_view Headings =
        "                            Profit/Loss Report\r\n"
        "                            ==================\r\n\r\n"
        "              Dollars Spent\r\n"
        "              =============\r\n\r\n"
        "       Date                     Spent        Lottery\r\n"
        " ----------------------------------------------------\r\n\r\n";

  private:
    std::unique_ptr<frmReport> frm_;
};

TEST_F(AllReportsTest, OpensOnAnEmptyChart) {
    EXPECT_EQ(OpenAll().Caption(), "Reports - All Played Lotteries");
    EXPECT_EQ(Seen(), "mscProfitLoss");
    EXPECT_EQ(Money().Title(), "Profit Loss");
    EXPECT_EQ(Money().ColumnCount(), 2);
    EXPECT_EQ(Bar(Money(), 1, 1), 0);
    EXPECT_EQ(Bar(Money(), 2, 1), 0);
    EXPECT_EQ(Legend(Money(), 1), "Spent");
    EXPECT_EQ(Legend(Money(), 2), "Won  ");
    EXPECT_EQ(Money().accessibleDescription().toStdString(),
              "Nothing to see yet: press a button beside the chart");
    EXPECT_EQ(CaptionOf("cmdProfitLoss"), "&Profit/Loss");
    EXPECT_EQ(CaptionOf("cmdPLReport"), "Profit/&Loss");
    EXPECT_EQ(CaptionOf("cmdExit"), "E&xit");
}

TEST_F(AllReportsTest, ChartsTheMoneyOfEveryGame) {
    AddMoney("Spent", "Lotto649", 0, "10");
    AddMoney("Spent", "ATLTag", 0, "2.5");
    AddMoney("Winnings", "Super 7", 0, "1000");
    OpenAll();
    Click("cmdPLReport");
    Click("cmdProfitLoss");
    EXPECT_EQ(Seen(), "mscProfitLoss");
    EXPECT_EQ(Legend(Money(), 1), "Spent - $12.50");
    EXPECT_EQ(Legend(Money(), 2), "Won   - $1,000.00");
}

TEST_F(AllReportsTest, ListsEveryRowWithItsGameUnderAHeadWithoutTitle) {
    AddMoney("Spent", "Lotto649", 1, "10");
    AddMoney("Spent", "ATLTag", 0, "2.5");
    AddMoney("Winnings", "Super 7", 1, "1000");
    AddMoney("Winnings", "Lotto649", 0, "0.5");
    OpenAll();
    Click("cmdPLReport");
    EXPECT_EQ(Seen(), "txtReport");
    EXPECT_EQ(Text(), "\r\n     Date: 2006-03-11\r\n\r\n" + std::string(Headings) +
                          "   2004-01-14              $          2.50     ATLTag\r\n"
                          "   2004-01-15              $         10.00     Lotto649\r\n"
                          "\r\n"
                          "                                   Total Spent :   $         12.50\r\n\r\n\r\n"
                          "               Dollars Won\r\n"
                          "               ===========\r\n\r\n"
                          "       Date                    Won           Lottery\r\n"
                          " ----------------------------------------------------\r\n\r\n"
                          "   2004-01-15              $      1,000.00     Super 7\r\n"
                          "   2004-01-14              $           .50     Lotto649\r\n"
                          "\r\n"
                          "                                   Total Won   :   $      1,000.50\r\n"
                          "                                   ----------------------------------\r\n\r\n"
                          "                                   Difference  :   $       (988.00)\r\n");
}

TEST_F(AllReportsTest, ShowsAReportWithARowALedgerToItsDifferenceWithoutScrolling) {
    AddMoney("Spent", "Lotto649", 0, "10");
    AddMoney("Winnings", "Super 7", 0, "1000");
    OpenAll();
    Click("cmdPLReport");
    ASSERT_NE(Text().find("Difference  :"), std::string::npos);
    const auto& report = person.Find<QPlainTextEdit>("txtReport");
    EXPECT_EQ(report.verticalScrollBar()->maximum(), 0);
    EXPECT_EQ(report.horizontalScrollBar()->maximum(), 0);
}

TEST_F(AllReportsTest, WithoutTicketsTheBoxComesAndTheReportHasHeadingsAndTotals) {
    OpenAll();
    ExpectNoTickets();
    Click("cmdPLReport");
    EXPECT_TRUE(
        Text().starts_with("\r\n     Date: 2006-03-11\r\n\r\n" + std::string(Headings) +
                           "\r\n                                   Total Spent :   $          0.00\r\n"));
}

TEST_F(AllReportsTest, AnEmptyChartTellsNoTicketsFromNoMoney) {
    OpenAll();
    ExpectNoTickets();
    Click("cmdProfitLoss");
    Person::Settle();
    EXPECT_EQ(Money().accessibleDescription(), "No tickets yet");
    AddMoney("Spent", "Lotto649", 1, "0");
    Click("cmdProfitLoss");
    Person::Settle();
    EXPECT_EQ(Money().accessibleDescription(), "Nothing spent and nothing won");
}

TEST_F(AllReportsTest, TotalsOfAnEarlierReportStayWhereARunFindsNoRows) {
    AddMoney("Spent", "Lotto649", 1, "10");
    OpenAll();
    Click("cmdPLReport");
    Do("DELETE FROM Spent");
    ExpectNoTickets();
    Click("cmdPLReport");
    EXPECT_NE(Text().find("Total Spent :   $         10.00\r\n"), std::string::npos);
}

TEST_F(AllReportsTest, EitherLedgerIsEnough) {
    AddMoney("Winnings", "Super 7", 0, "3");
    Do("DROP TABLE Spent");
    OpenAll();
    person.Expect("ERROR!", "ERROR #3078\nUnexpected error occurred. Please advise error number to support.",
                  Answer::Ok, BoxStyle::Stop);
    Click("cmdProfitLoss");
    EXPECT_EQ(Legend(Money(), 2), "Won   - $3.00");
}

TEST_F(AllReportsTest, WithoutLedgersNothingIsSaid) {
    Do("DROP TABLE Spent");
    Do("DROP TABLE Winnings");
    OpenAll();
    Click("cmdProfitLoss");
    Click("cmdPLReport");
    EXPECT_NE(Text().find("Total Won   :   $          0.00\r\n"), std::string::npos);
}

TEST_F(AllReportsTest, ExitAndTheCloseBoxLeaveAndEscapeDoesNot) {
    frmReport& window = OpenAll();
    person.Key(Qt::Key_Escape);
    EXPECT_TRUE(window.IsShown());
    Click("cmdExit");
    EXPECT_FALSE(window.IsShown());
    window.Show();
    person.Close(window);
    EXPECT_FALSE(window.IsShown());
}

TEST_F(AllReportsTest, TabGoesFromTheChartToTheReportToExit) {
    OpenAll();
    std::vector<std::string> order;
    for (int i = 0; i < 3; ++i) {
        order.push_back(Focus());
        person.Tab();
    }
    EXPECT_EQ(order, (std::vector<std::string>{"cmdProfitLoss", "cmdPLReport", "cmdExit"}));
}

class AllReportsFromTheMenu : public MainWindow {};

TEST_F(AllReportsFromTheMenu, TheEntryEmptiesTheKeyOfTheGameAndItStaysEmpty) {
    Start();
    global.LottoFlag = "Lotto649";
    person.ExpectWindow("frmReport", [this](QWidget&) {
        EXPECT_EQ(global.LottoFlag, "");
        Click("cmdExit");
    });
    Choose("mnuReportsPL");
    EXPECT_EQ(global.LottoFlag, "");
    person.ExpectWindow("frmComingSoon", [this](QWidget&) { Click("cmdOk"); });
    Choose("mnuUSPowerball");
    EXPECT_EQ(global.LottoFlag, "");
    person.ExpectWindow("frm649", [this](QWidget&) { Click("cmdExit(0)"); });
    Choose("mnuCANBCBC49");
    EXPECT_EQ(global.LottoFlag, "BC49");
}

class ReportTypeTest : public ReportsWorld {
  public:
    // Uses the dialog as it is shown; whoever doesn't leave it fails.
    void Ask(const std::function<void()>& act) {
        frmReportType dialog(session);
        person.ExpectWindow("frmReportType", [&](QWidget&) { act(); });
        dialog.ShowModal();
    }
};

TEST_F(ReportTypeTest, AsksForOneOfFourTypesAndNoneIsChosenYet) {
    Ask([this] {
        EXPECT_EQ(person.Front().windowTitle().toStdString(), "Type of Report");
        EXPECT_GE(person.Front().width(), forms::Look::TitleWidth(person.Front()));
        const std::string_view captions[] = {"Numbers By Position", "Triple Match", "Front Pairs",
                                             "Back Pairs"};
        for (int i = 0; i < 4; ++i) {
            EXPECT_EQ(CaptionOf("optReportType(" + Number(i) + ")"), captions[i]);
            EXPECT_TRUE(IsShown("optReportType(" + Number(i) + ")"));
            EXPECT_FALSE(IsTicked("optReportType(" + Number(i) + ")"));
        }
        EXPECT_EQ(CaptionOf("cmdOK"), "OK");
        EXPECT_EQ(CaptionOf("cmdCancel"), "Cancel");
        EXPECT_EQ(Focus(), "optReportType(0)");
        Click("cmdOK");
    });
}

TEST_F(ReportTypeTest, AChoiceCountsAtOnceAndOkKeepsIt) {
    Ask([this] {
        const std::string_view types[] = {"Numbers By Position", "Triple Match", "Front Pairs", "Back Pairs"};
        for (int i = 0; i < 4; ++i) {
            Click("optReportType(" + Number(i) + ")");
            EXPECT_EQ(global.ReportType, types[i]);
        }
        Click("cmdOK");
    });
    EXPECT_EQ(global.ReportType, "Back Pairs");
}

TEST_F(ReportTypeTest, OkWithoutAChoiceKeepsTheTypeOfTheLastTime) {
    global.ReportType = "Front Pairs";
    Ask([this] { Click("cmdOK"); });
    EXPECT_EQ(global.ReportType, "Front Pairs");
}

TEST_F(ReportTypeTest, CancelEscapeAndTheCloseBoxEmptyTheType) {
    for (const auto& leave : std::initializer_list<std::function<void()>>{
             [this] { Click("cmdCancel"); }, [this] { person.Key(Qt::Key_Escape); },
             [this] { person.Close(person.Front()); }}) {
        Ask([&] {
            Click("optReportType(2)");
            leave();
        });
        EXPECT_EQ(global.ReportType, "");
    }
}

TEST_F(ReportTypeTest, Play4HasNoTriples) {
    global.LottoFlag = "FLAPlay4";
    Ask([this] {
        EXPECT_FALSE(IsShown("optReportType(1)"));
        EXPECT_TRUE(IsShown("optReportType(2)"));
        Click("cmdOK");
    });
}

TEST_F(ReportTypeTest, WorksWithTheKeyboardAlone) {
    Ask([this] {
        person.Key(Qt::Key_Space);
        EXPECT_EQ(global.ReportType, "Numbers By Position");
        person.Key(Qt::Key_Down);
        EXPECT_EQ(global.ReportType, "Triple Match");
        person.Tab();
        EXPECT_EQ(Focus(), "cmdOK");
        person.Enter();
    });
    EXPECT_EQ(global.ReportType, "Triple Match");
}

}  // namespace
}  // namespace sorvane::test

#include "reports/ui/frmReport.h"

#include <QBoxLayout>

#include "reports/MoneyReport.h"
#include "reports/ReportFacts.h"
#include "reports/ui/Charts.h"
#include "reports/ui/ReportLayout.h"
#include "store/StoreRoutine.h"

namespace sorvane {

using namespace ReportFacts;

namespace {
// A report with one row a ledger, to its last line: the difference.
constexpr int Lines = 33;
}  // namespace

frmReport::frmReport(Session& session) : Window("frmReport"), session_(session) {
    SetCaption(AllCaption);
    SetCloseButton(cmdExit);
    cmdProfitLoss.OnClick([this] { cmdProfitLoss_Click(); });
    cmdPLReport.OnClick([this] { cmdPLReport_Click(); });
    cmdExit.OnClick([this] { Unload(); });
    LayOut();
    Form_Load();
}

void frmReport::LayOut() {
    LayOutReports(*this, {&mscProfitLoss, &txtReport},
                  {{"Charts", "chart", {&cmdProfitLoss}}, {"Reports", "report", {&cmdPLReport}}}, cmdExit);
    // As high as that where there is room; it gives way where there is not.
    static_cast<QBoxLayout*>(layout())->addItem(new QSpacerItem(
        0, txtReport.fontMetrics().lineSpacing() * Lines, QSizePolicy::Fixed, QSizePolicy::Preferred));
}

void frmReport::Form_Load() {
    DbName_ = DatabasePath(session_.global.AppPath);
    mscProfitLoss.SetVisible(true);
    mscProfitLoss.SetHint(EmptyChartHint);
    txtReport.SetVisible(false);
    EmptyMoneyChart(mscProfitLoss, {AllMoneyChartTitle, "", AllWonLegend});
}

void frmReport::cmdProfitLoss_Click() {
    txtReport.SetVisible(false);
    mscProfitLoss.SetVisible(true);
    ChartCells cells(mscProfitLoss, NoTicketsHint, NoMoneyHint);
    ChartMoney(session_, {AllGamesMoney, DbName_, TableName_, mode_, cells});
}

void frmReport::cmdPLReport_Click() {
    mscProfitLoss.SetVisible(false);
    txtReport.SetVisible(true);
    ChartCells cells(mscProfitLoss, NoTicketsHint, NoMoneyHint);
    txtReport.Write([&](std::string& text) {
        ReportMoney(session_, {AllGamesMoney, DbName_, TableName_, mode_, cells}, Caption(), text);
    });
}

}  // namespace sorvane

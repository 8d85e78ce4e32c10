#include "reports/ui/ReportsTab.h"

#include <chrono>
#include <string>
#include <vector>

#include "forms/BusyPointer.h"
#include "forms/Utf8.h"
#include "platform/Text.h"
#include "reports/DigitReports.h"
#include "reports/FrequencyReport.h"
#include "reports/MoneyReport.h"
#include "reports/PrintReport.h"
#include "reports/ReportFacts.h"
#include "reports/ui/ReportLayout.h"
#include "reports/ui/frmReportType.h"
#include "shell/FamilyFacts.h"
#include "shell/ui/GameFrame.h"
#include "shell/ui/ToolTips.h"
#include "shell/ui/Windows.h"

namespace sorvane {

using namespace ReportFacts;

namespace {
// About how fast a report is printed, for the busy pointer.
constexpr std::size_t CharactersAMillisecond = 500;
}  // namespace

ReportsTab::ReportsTab(GameFrame& window)
    : cmdReport(ReportButton[window.Which], "Number &Frequency"), window_(window) {
    window.cmdExit.Load(3, "E&xit");
    cmdPrintReport.SetEnabled(false);
    if (!PrintsReport[window.Which]) cmdPrintReport.setToolTip(DoesNothing());
    if (!Tally[window.Which]) {
        cmdNumberFrequency.setToolTip(forms::ToQt(NoChartHint));
        cmdReport.setToolTip(DoesNothing());
    }
    mscProfitLoss.SetVisible(false);
    CaptionNumberChart();
    ClearCharts();
    cmdNumberFrequency.OnClick([this] { cmdNumberFrequency_Click(); });
    cmdReport.OnClick([this] { cmdReport_Click(); });
    cmdProfitLoss.OnClick([this] { cmdProfitLoss_Click(); });
    cmdPLReport.OnClick([this] { cmdPLReport_Click(); });
    cmdPrintReport.OnClick([this] { cmdPrintReport_Click(); });
    LayOut();
}

void ReportsTab::CaptionNumberChart() {
    const Family family = window_.Which;
    const auto series = ChartSeries[family];
    mscNumberFrequency.SetTitle(ChartTitle[family]);
    mscNumberFrequency.SetAxes(ChartAxis[family], FrequencyAxis);
    mscNumberFrequency.SetRowCount(FamilyFacts::CountOfNumbers(family));
    mscNumberFrequency.SetColumnCount(static_cast<int>(series.size()));
    for (std::size_t i = series.size(); i-- > 0;) {
        mscNumberFrequency.SetColumn(static_cast<int>(i) + 1);
        mscNumberFrequency.SetColumnLabel(series[i]);
    }
    std::vector<std::string> labels;
    for (int n = FamilyFacts::LowestNumber[family]; n <= FamilyFacts::HighestNumber[family]; ++n)
        labels.push_back(Str(n));
    mscNumberFrequency.SetRowLabels(labels);
}

void ReportsTab::LayOut() {
    LayOutReports(window_.Pages[Tab::Reports], {&mscNumberFrequency, &mscProfitLoss, &txtReport},
                  {{"Charts", "chart", {&cmdNumberFrequency, &cmdProfitLoss}},
                   {"Reports", "report", {&cmdReport, &cmdPLReport, &cmdPrintReport}}},
                  window_.cmdExit(3));
}

void ReportsTab::Show(const forms::Control& seen) {
    for (forms::Control* control :
         std::initializer_list<forms::Control*>{&mscNumberFrequency, &mscProfitLoss, &txtReport})
        control->SetVisible(control == &seen);
}

void ReportsTab::ClearCharts() {
    const Family family = window_.Which;
    for (forms::Chart* chart : {&mscNumberFrequency, &mscProfitLoss}) chart->SetHint(EmptyChartHint);
    mscNumberFrequency.Clear();
    EmptyMoneyChart(mscProfitLoss, {MoneyChartTitle[family], MoneyChartAxis[family], WonLegend[family]});
}

ReportArgs ReportsTab::Args() {
    WindowState& state = window_.State;
    return {window_.Which, state.DbName, state.TableName, state.mode};
}

void ReportsTab::cmdNumberFrequency_Click() {
    cmdPrintReport.SetEnabled(false);
    Show(mscNumberFrequency);
    if (IsPick(window_.Which)) ChartDigits(window_.session, Args(), Frequencies);
    else ChartFrequency(window_.session, Args(), Frequencies);
    if (!Tally[window_.Which]) mscNumberFrequency.SetHint(NoChartHint);
}

void ReportsTab::cmdReport_Click() {
    cmdPrintReport.SetEnabled(true);
    if (!Tally[window_.Which]) return;  // keno 80 has no report
    Show(txtReport);
    Session& session = window_.session;
    const std::string caption = window_.Caption();
    const auto askType = [&] {
        frmReportType dialog(session);
        window_.windows.ShowModal(dialog);
    };
    txtReport.Write([&](std::string& text) {
        if (IsPick(window_.Which)) ReportDigits(session, Args(), Frequencies, askType, caption, text);
        else ReportFrequency(session, Args(), Frequencies, caption, text);
    });
}

void ReportsTab::cmdProfitLoss_Click() {
    WindowState& state = window_.State;
    Show(mscProfitLoss);
    ChartCells cells(mscProfitLoss, NoTicketsHint, NoMoneyHint);
    ChartMoney(window_.session, {GameMoney, state.DbName, state.TableName, state.mode, cells});
}

void ReportsTab::cmdPLReport_Click() {
    WindowState& state = window_.State;
    cmdPrintReport.SetEnabled(true);
    Show(txtReport);
    ChartCells cells(mscProfitLoss, NoTicketsHint, NoMoneyHint);
    txtReport.Write([&](std::string& text) {
        ReportMoney(window_.session, {GameMoney, state.DbName, state.TableName, state.mode, cells},
                    window_.Caption(), text);
    });
}

void ReportsTab::cmdPrintReport_Click() {
    if (!PrintsReport[window_.Which]) return;
    const std::string text = txtReport.Text();
    const forms::BusyPointer busy(std::chrono::milliseconds(text.size() / CharactersAMillisecond));
    PrintReport(window_.session.services.printer, text);
}

}  // namespace sorvane

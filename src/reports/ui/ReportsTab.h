// The tab "&Reports": charts and text reports of one game. A chart, the other chart and the report take turns
// at one place.
#pragma once

#include "forms/Chart.h"
#include "forms/CommandButton.h"
#include "reports/ReportStart.h"
#include "reports/ui/Charts.h"
#include "reports/ui/ReportBox.h"

namespace sorvane {

class GameFrame;

class ReportsTab {
  public:
    explicit ReportsTab(GameFrame& window);

    forms::CommandButton cmdNumberFrequency{"cmdNumberFrequency", "&Number Frequency"};
    forms::CommandButton cmdProfitLoss{"cmdProfitLoss", "&Profit/Loss"};
    forms::CommandButton cmdReport;  // cmdNFReport in frm645
    forms::CommandButton cmdPLReport{"cmdPLReport", "Profit/&Loss"};
    forms::CommandButton cmdPrintReport{"cmdPrintReport", "&Print"};  // does nothing except in frm645
    forms::Chart mscNumberFrequency{"mscNumberFrequency"};
    forms::Chart mscProfitLoss{"mscProfitLoss"};
    ReportBox txtReport{"txtReport"};
    // That chart, as tallies and wheels fill it.
    ChartCells Frequencies{mscNumberFrequency, NoDrawsHint, UnfinishedWheelHint};

    // Both charts emptied, at load and at cancel. Which of the three is seen stays as it is.
    void ClearCharts();

  private:
    void CaptionNumberChart();
    void LayOut();
    // Shows one of the three at their place and hides the others.
    void Show(const forms::Control& seen);
    ReportArgs Args();
    void cmdNumberFrequency_Click();
    void cmdReport_Click();
    void cmdProfitLoss_Click();
    void cmdPLReport_Click();
    void cmdPrintReport_Click();

    GameFrame& window_;
};

}  // namespace sorvane

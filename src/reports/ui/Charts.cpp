#include "reports/ui/Charts.h"

#include "reports/ReportFacts.h"

namespace sorvane {

using namespace ReportFacts;

void EmptyMoneyChart(forms::Chart& chart, const MoneyCaptions& captions) {
    chart.SetTitle(captions.title);
    chart.SetAxes(captions.bars, MoneyAxis);
    chart.SetMoney();
    chart.SetRowCount(1);
    chart.SetColumnCount(2);
    chart.SetRow(1);
    for (int column = 2; column >= 1; --column) {
        chart.SetColumn(column);
        chart.SetData("0");
        chart.SetColumnLabel(column == 1 ? SpentLegend : captions.won);
    }
}

}  // namespace sorvane

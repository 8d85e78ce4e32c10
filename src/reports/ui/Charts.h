// The charts of the report windows.
#pragma once

#include <string_view>

#include "forms/Chart.h"
#include "reports/ChartFace.h"

namespace sorvane {

// A chart as the tallies see it.
class ChartCells final : public ChartFace {
  public:
    explicit ChartCells(forms::Chart& chart) : chart_(chart) {}
    void RowCount(int count) override { chart_.SetRowCount(count); }
    void ColumnCount(int count) override { chart_.SetColumnCount(count); }
    void Row(int row) override { chart_.SetRow(row); }
    void Column(int column) override { chart_.SetColumn(column); }
    void Data(int value) override { chart_.SetData(value); }
    void Data(std::string_view text) override { chart_.SetData(text); }
    void ColumnLabel(std::string_view label) override { chart_.SetColumnLabel(label); }

  private:
    forms::Chart& chart_;
};

// What an empty chart says: before a button was pressed, and when the button found nothing to draw.
inline constexpr std::string_view EmptyChartHint = "Nothing to see yet: press a button beside the chart";
inline constexpr std::string_view NoDrawsHint = "No winning numbers yet";
inline constexpr std::string_view NoTicketsHint = "No tickets yet";
inline constexpr std::string_view NoChartHint = "There is no chart of the numbers of this game";

// The captions of a money chart. `bars` is the caption below the two columns, "" for none.
struct MoneyCaptions {
    std::string_view title, bars, won;
};
// Two columns of zero, spent and won, under the legends that they have before anything is drawn.
void EmptyMoneyChart(forms::Chart& chart, const MoneyCaptions& captions);

}  // namespace sorvane

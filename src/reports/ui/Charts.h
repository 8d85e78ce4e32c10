// The charts of the report windows.
#pragma once

#include <string_view>

#include "forms/Chart.h"
#include "reports/ChartFace.h"

namespace sorvane {

// What an empty chart says: before a button was pressed, when there was nothing to draw, and when there was
// something but nothing of it is drawn.
inline constexpr std::string_view EmptyChartHint = "Nothing to see yet: press a button beside the chart";
inline constexpr std::string_view NoDrawsHint = "No winning numbers yet";
inline constexpr std::string_view NoChartHint = "There is no chart of the numbers of this game";
inline constexpr std::string_view UnfinishedWheelHint = "No chart while a wheel is unfinished";
inline constexpr std::string_view NoTicketsHint = "No tickets yet";
inline constexpr std::string_view NoMoneyHint = "Nothing spent and nothing won";

// A chart as the tallies see it. While it is empty it says `nothing` where they found no rows, else `noBars`.
class ChartCells final : public ChartFace {
  public:
    ChartCells(forms::Chart& chart, std::string_view nothing, std::string_view noBars)
        : chart_(chart), nothing_(nothing), noBars_(noBars) {}
    void RowCount(int count) override { chart_.SetRowCount(count); }
    void ColumnCount(int count) override { chart_.SetColumnCount(count); }
    void Row(int row) override { chart_.SetRow(row); }
    void Column(int column) override { chart_.SetColumn(column); }
    void Data(int value) override { chart_.SetData(value); }
    void Data(std::string_view text) override { chart_.SetData(text); }
    void ColumnLabel(std::string_view label) override { chart_.SetColumnLabel(label); }
    void Found(bool any) override { chart_.SetHint(any ? noBars_ : nothing_); }

  private:
    forms::Chart& chart_;
    std::string_view nothing_, noBars_;
};

// The captions of a money chart. `bars` is the caption below the two columns, "" for none.
struct MoneyCaptions {
    std::string_view title, bars, won;
};
// Two columns of zero, spent and won, under the legends that they have before anything is drawn.
void EmptyMoneyChart(forms::Chart& chart, const MoneyCaptions& captions);

}  // namespace sorvane

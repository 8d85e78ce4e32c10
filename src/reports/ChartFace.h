// What the tallies see of a chart: the cells they set, one after the other.
#pragma once

#include <string_view>

namespace sorvane {

// A grid of numbers: rows along the axis, one series of bars a column, both counted from 1. An index outside
// the counts raises 9.
class ChartFace {
  public:
    virtual ~ChartFace() = default;
    virtual void RowCount(int count) = 0;
    virtual void ColumnCount(int count) = 0;
    // The cell that Data means, and the column that ColumnLabel means.
    virtual void Row(int row) = 0;
    virtual void Column(int column) = 0;
    // A text reads as its number, blanks and thousands commas included.
    virtual void Data(int value) = 0;
    virtual void Data(std::string_view text) = 0;
    virtual void ColumnLabel(std::string_view label) = 0;
    // Whether the table that is drawn has any rows; told before the cells.
    virtual void Found(bool any) = 0;
};

}  // namespace sorvane

// A chart for tests: keeps what was set, cell by cell.
#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "reports/ChartFace.h"

namespace sorvane::testing {

class RecordingChart final : public ChartFace {
  public:
    using Cell = std::pair<int, int>;  // row, column

    std::map<Cell, std::string> cells;  // as they were set; numbers as plain text
    std::map<int, std::string> labels;  // by column
    std::vector<std::string> calls;     // "Row 3", "Data 17", ... in their order

    void RowCount(int count) override { Called("RowCount", count); }
    void ColumnCount(int count) override { Called("ColumnCount", count); }
    void Row(int row) override { Called("Row", row_ = row); }
    void Column(int column) override { Called("Column", column_ = column); }
    void Data(int value) override { Data(std::to_string(value)); }
    void Data(std::string_view text) override {
        calls.push_back("Data " + std::string(text));
        cells[{row_, column_}] = text;
    }
    void ColumnLabel(std::string_view label) override {
        calls.push_back("ColumnLabel " + std::string(label));
        labels[column_] = label;
    }
    void Found(bool any) override { found = any; }

    bool found = false;

  private:
    void Called(const std::string& verb, int value) { calls.push_back(verb + " " + std::to_string(value)); }
    int row_ = 1;
    int column_ = 1;
};

}  // namespace sorvane::testing

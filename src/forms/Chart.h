// Bar charts.
#pragma once

#include <QWidget>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "forms/Control.h"

namespace sorvane::forms {

// A grid of numbers: rows along the axis, one series of bars a column. Rows and columns count from 1; an
// index outside the counts raises 9 where it is set. Values below zero have their bars below it. A bar under
// the mouse shows its value as long as the mouse stays there. At each drawing a screen reader is told what is
// drawn. Nothing is drawn, and next to nothing spent, before the chart is seen.
class Chart : public QWidget, public Control {
  public:
    explicit Chart(std::string_view name);
    ~Chart() override;

    void SetTitle(std::string_view title);
    std::string Title() const;
    // The captions below the bars and beside them.
    void SetAxes(std::string_view bars, std::string_view values);

    // What to do, painted over the plot while every cell is 0.
    void SetHint(std::string_view hint);
    // The values are amounts: "Spent: $3.00", where the column's label goes before " - ".
    void SetMoney();

    // New rows and columns hold 0, without labels.
    int RowCount() const { return static_cast<int>(rowLabels_.size()); }
    void SetRowCount(int count);
    int ColumnCount() const { return static_cast<int>(columns_.size()); }
    void SetColumnCount(int count);

    // The cell and the column that Data and ColumnLabel mean; 1 at the start.
    int Row() const { return row_; }
    void SetRow(int row);
    int Column() const { return column_; }
    void SetColumn(int column);

    double Data();
    void SetData(double value);
    // A text reads as its number: "       1,234.50" is 1234.5; one that is no number raises 13.
    void SetData(std::string_view text);
    void SetData(const char* text) { SetData(std::string_view(text)); }

    // The legend of the column; without any label there is no legend.
    std::string ColumnLabel();
    void SetColumnLabel(std::string_view label);
    // Labels of the rows from the first on; rows without one bear their number.
    void SetRowLabels(const std::vector<std::string>& labels);
    // Puts every cell to 0; counts, labels and the cell in hand stay.
    void Clear();

    QSize sizeHint() const override;

  protected:
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    struct Series {
        std::string label;
        std::vector<double> values;
    };
    Series& InHand();
    double& Cell();
    std::string RowLabel(std::size_t row) const;  // from 0
    bool IsEmpty() const;                         // every cell is 0
    // What a bar is called and how much it says: "7: 3".
    std::string Told(const Series& column, std::size_t row) const;
    std::string Told(const Series& column) const;
    std::string Told() const;
    void Changed();
    void Draw();

    std::string title_, barsCaption_, valuesCaption_, hint_;
    std::vector<std::string> rowLabels_;
    std::vector<Series> columns_;
    int row_ = 1, column_ = 1;
    bool money_ = false;
    bool stale_ = true;     // what is drawn, if anything, is not what the cells say
    bool waiting_ = false;  // drawing will come once the handlers are done
};

}  // namespace sorvane::forms

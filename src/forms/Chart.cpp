#include "forms/Chart.h"

#include <QEvent>
#include <QMetaObject>
#include <algorithm>
#include <cmath>
#include <utility>

#include "forms/Bars.h"
#include "forms/Look.h"
#include "forms/Utf8.h"
#include "platform/Currency.h"
#include "platform/RunTimeError.h"
#include "platform/Text.h"

namespace sorvane::forms {

namespace {

std::string ValueText(double value, bool money) {
    const auto amount = Currency::FromTenThousandths(std::llround(std::abs(value) * Currency::Scale));
    std::string text = (money ? "$" : "") + Format(amount, "###,###,##0.00");
    if (!money && text.ends_with(".00")) text.resize(text.size() - 3);
    return (value < 0 ? "-" : "") + text;
}

// "Won   - $5.00" is called "Won".
std::string NameBeforeTheAmount(std::string_view label) {
    label = label.substr(0, label.find(" - "));
    label = label.substr(0, label.find_last_not_of(' ') + 1);
    return std::string(label);
}

}  // namespace

Chart::Chart(std::string_view name) : Control(*this, name), rowLabels_(1), columns_(1) {
    columns_[0].values.resize(1);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

Chart::~Chart() = default;

void Chart::SetTitle(std::string_view title) {
    title_ = title;
    setAccessibleName(ToQt(title));
    Changed();
}
std::string Chart::Title() const { return title_; }

void Chart::SetAxes(std::string_view bars, std::string_view values) {
    barsCaption_ = bars;
    valuesCaption_ = values;
    Changed();
}

void Chart::SetHint(std::string_view hint) {
    hint_ = hint;
    if (IsEmpty()) setAccessibleDescription(ToQt(hint));
    Changed();
}

void Chart::SetMoney() {
    money_ = true;
    Changed();
}

void Chart::SetRowCount(int count) {
    if (count < 0) Raise(ErrorNumber::SubscriptOutOfRange);
    rowLabels_.resize(static_cast<std::size_t>(count));
    for (Series& column : columns_) column.values.resize(rowLabels_.size());
    Changed();
}

void Chart::SetColumnCount(int count) {
    if (count < 0) Raise(ErrorNumber::SubscriptOutOfRange);
    columns_.resize(static_cast<std::size_t>(count));
    for (Series& column : columns_) column.values.resize(rowLabels_.size());
    Changed();
}

void Chart::SetRow(int row) {
    if (row < 1 || row > RowCount()) Raise(ErrorNumber::SubscriptOutOfRange);
    row_ = row;
}

void Chart::SetColumn(int column) {
    if (column < 1 || column > ColumnCount()) Raise(ErrorNumber::SubscriptOutOfRange);
    column_ = column;
}

Chart::Series& Chart::InHand() {
    if (column_ > ColumnCount()) Raise(ErrorNumber::SubscriptOutOfRange);
    return columns_[static_cast<std::size_t>(column_ - 1)];
}

double& Chart::Cell() {
    if (row_ > RowCount()) Raise(ErrorNumber::SubscriptOutOfRange);
    return InHand().values[static_cast<std::size_t>(row_ - 1)];
}

double Chart::Data() { return Cell(); }

void Chart::SetData(double value) {
    Cell() = value;
    Changed();
}

void Chart::SetData(std::string_view text) { SetData(CDbl(text)); }

std::string Chart::ColumnLabel() { return InHand().label; }

void Chart::SetColumnLabel(std::string_view label) {
    InHand().label = label;
    Changed();
}

void Chart::SetRowLabels(const std::vector<std::string>& labels) {
    for (std::size_t row = 0; row < std::min(labels.size(), rowLabels_.size()); ++row)
        rowLabels_[row] = labels[row];
    Changed();
}

void Chart::Clear() {
    for (Series& column : columns_) std::fill(column.values.begin(), column.values.end(), 0.0);
    Changed();
}

QSize Chart::sizeHint() const { return QSize(48, 24) * fontMetrics().height() / 2; }

void Chart::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (stale_) Draw();
}

void Chart::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange) Changed();
}

void Chart::Changed() {
    stale_ = true;
    if (!isVisible() || waiting_) return;
    waiting_ = true;  // many cells change in a row: one drawing for all of them
    QMetaObject::invokeMethod(
        this,
        [this] {
            waiting_ = false;
            if (stale_ && isVisible()) Draw();
        },
        Qt::QueuedConnection);
}

std::string Chart::RowLabel(std::size_t row) const {
    if (!rowLabels_[row].empty() || RowCount() == 1) return rowLabels_[row];
    return std::to_string(row + 1);
}

bool Chart::IsEmpty() const {
    return std::all_of(columns_.begin(), columns_.end(), [](const Series& column) {
        return std::all_of(column.values.begin(), column.values.end(),
                           [](double value) { return value == 0; });
    });
}

std::string Chart::Told(const Series& column, std::size_t row) const {
    std::string name = RowLabel(row);
    if (name.empty()) name = money_ ? NameBeforeTheAmount(column.label) : column.label;
    return name + ": " + ValueText(column.values[row], money_);
}

// The rows at 0 are told together at the end: there may be many.
std::string Chart::Told(const Series& column) const {
    std::string told = RowCount() > 1 && ColumnCount() > 1 ? column.label + " " : "";
    bool first = true, others = false;
    for (std::size_t row = 0; row < column.values.size(); ++row) {
        others = others || column.values[row] == 0;
        if (RowCount() > 1 && column.values[row] == 0) continue;
        told += (std::exchange(first, false) ? "" : ", ") + Told(column, row);
    }
    if (RowCount() > 1 && others) told += first ? "all: 0" : ", others: 0";
    return told;
}

std::string Chart::Told() const {
    if (IsEmpty() && !hint_.empty()) return hint_;
    std::string told;
    for (const Series& column : columns_) told += (told.empty() ? "" : "; ") + Told(column);
    return told;
}

void Chart::Draw() {
    Bars bars;
    bars.title = ToQt(title_);
    bars.barsCaption = ToQt(barsCaption_);
    bars.valuesCaption = ToQt(valuesCaption_);
    if (IsEmpty()) bars.hint = ToQt(hint_);
    for (std::size_t row = 0; row < rowLabels_.size(); ++row) bars.rowLabels << ToQt(RowLabel(row));
    for (const Series& column : columns_)
        bars.columns.push_back({ToQt(column.label),
                                Look::Series(palette(), static_cast<int>(bars.columns.size())),
                                column.values});
    bars.font = font();
    bars.paper = palette().color(QPalette::Base);
    bars.ink = palette().color(QPalette::Text);
    bars.hintInk = Look::Hint(palette());
    bars.told = [this](int column, int row) {
        return ToQt(Told(columns_[static_cast<std::size_t>(column)], static_cast<std::size_t>(row)));
    };
    DrawBars(*this, bars);
    setAccessibleDescription(ToQt(Told()));
    stale_ = false;
}

}  // namespace sorvane::forms

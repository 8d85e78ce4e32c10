#include "forms/Chart.h"

#include <QBarSeries>
#include <QBarSet>
#include <QCategoryAxis>
#include <QChart>
#include <QChartView>
#include <QGraphicsLayout>
#include <QGraphicsLineItem>
#include <QGraphicsSimpleTextItem>
#include <QGraphicsTextItem>
#include <QLegend>
#include <QLegendMarker>
#include <QLocale>
#include <QTextDocument>
#include <QToolTip>
#include <QVBoxLayout>
#include <QValueAxis>
#include <algorithm>
#include <cmath>
#include <limits>

#include "forms/Look.h"
#include "forms/Utf8.h"
#include "platform/Currency.h"
#include "platform/RunTimeError.h"
#include "platform/Text.h"

namespace sorvane::forms {

namespace {

// With more bars than this there is no room for the labels side by side: they stand on two or three lines in
// turn.
constexpr int MostLevelLabels = 20, MostOnTwoLines = 50;

// The labels of many bars and the caption below them, which the axis itself would cut off. They move with the
// chart, and the labels shrink with it.
class StaggeredLabels {
  public:
    StaggeredLabels(QChart& chart, const QStringList& labels, const QString& caption, const QFont& font,
                    const QColor& ink)
        : font_(font), lines_(labels.size() > MostOnTwoLines ? 3 : 2) {
        const QFontMetricsF metrics(font);
        height_ = metrics.height();
        for (const QString& label : labels) {
            labels_.push_back(NewText(chart, label, ink));
            widest_ = std::max(widest_, metrics.horizontalAdvance(label));
        }
        caption_ = NewText(chart, caption, ink);
    }
    // How many lines of text stand below the plot.
    int Lines() const { return lines_ + 1; }
    void Place(const QRectF& plot) const {
        const double step = plot.width() / static_cast<double>(labels_.size());
        QFont font = font_;
        if (const double room = step * lines_ * 0.85; widest_ > room)
            font.setPointSizeF(std::max(1.0, font_.pointSizeF() * room / widest_));
        for (std::size_t i = 0; i < labels_.size(); ++i) {
            labels_[i]->setFont(font);
            Put(*labels_[i], plot.left() + step * (static_cast<double>(i) + 0.5),
                plot.bottom() + height_ * (static_cast<int>(i) % lines_ + 0.2));
        }
        Put(*caption_, plot.center().x(), plot.bottom() + height_ * (lines_ + 0.4));
    }

  private:
    QGraphicsSimpleTextItem* NewText(QChart& chart, const QString& text, const QColor& ink) const {
        auto* item = new QGraphicsSimpleTextItem(text, &chart);
        item->setFont(font_);
        item->setBrush(ink);
        return item;
    }
    static void Put(QGraphicsSimpleTextItem& item, double centre, double top) {
        item.setPos(centre - item.boundingRect().width() / 2, top);
    }

    QFont font_;
    int lines_;
    std::vector<QGraphicsSimpleTextItem*> labels_;
    QGraphicsSimpleTextItem* caption_;
    double widest_ = 0, height_;
};

// Qt hides a tooltip after a while, also while the mouse rests on its bar.
class BarView final : public QChartView {
  public:
    using QChartView::QChartView;

  protected:
    bool viewportEvent(QEvent* event) override {
        return event->type() == QEvent::ToolTip || QChartView::viewportEvent(event);
    }
};

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

// The legend would draw one blank for many.
void KeepBlanks(const QLegend& legend) {
    for (QLegendMarker* marker : legend.markers())
        marker->setLabel(marker->label().replace(u' ', QChar(QChar::Nbsp)));
}

// Bars below zero hang from this line, so far down the plot.
void AddZeroLine(QChart& chart, const QColor& ink, double share) {
    auto* line = new QGraphicsLineItem(&chart);
    line->setPen(QPen(ink, 0));
    QObject::connect(&chart, &QChart::plotAreaChanged, &chart, [line, share](const QRectF& plot) {
        const double y = plot.top() + plot.height() * share;
        line->setLine(plot.left(), y, plot.right(), y);
    });
}

// The axis begins at 0, or below it, and ends at round numbers with steps of 1, 2 or 5 times a power of ten.
struct Scale {
    double bottom, top, step;
    int steps;
};
Scale ScaleFor(double smallest, double largest, bool whole) {
    constexpr int MostSteps = 8;
    const double span = largest - smallest;
    double step = 1;
    if (!whole)
        while (step * MostSteps / 10 > span && step > 0.01) step /= 10;
    for (int turn = 0; step * MostSteps < span; ++turn) step *= turn % 3 == 1 ? 2.5 : 2;
    const int below = static_cast<int>(std::ceil(-smallest / step));
    const int above = std::max(below > 0 ? 0 : 1, static_cast<int>(std::ceil(largest / step)));
    return {-step * below, step * above, step, below + above};
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
    if (!view_) {
        view_ = new BarView(this);
        view_->setFrameShape(QFrame::NoFrame);
        view_->setFocusPolicy(Qt::NoFocus);
        view_->setRenderHint(QPainter::Antialiasing);
        auto* layout = new QVBoxLayout(this);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(view_);
    }
    view_->setBackgroundBrush(palette().color(QPalette::Base));
    const std::unique_ptr<QChart> old(view_->chart());
    view_->setChart(NewChart());
    setAccessibleDescription(ToQt(Told()));
    stale_ = false;
}

QChart* Chart::NewChart() {
    auto* chart = new QChart;
    const QColor paper = palette().color(QPalette::Base), ink = palette().color(QPalette::Text);
    QFont heading = font();
    heading.setBold(true);
    chart->setBackgroundBrush(paper);
    chart->setBackgroundRoundness(0);
    chart->layout()->setContentsMargins(0, 0, 0, 0);
    chart->setTitle(ToQt(title_));
    chart->setTitleFont(heading);
    chart->setTitleBrush(ink);
    chart->addSeries(NewSeries());
    AddAxes(*chart, ink);
    AddHint(*chart);
    const bool labelled =
        std::any_of(columns_.begin(), columns_.end(), [](auto& c) { return !c.label.empty(); });
    chart->legend()->setVisible(labelled);
    chart->legend()->setFont(font());
    chart->legend()->setLabelColor(ink);
    chart->legend()->setAlignment(Qt::AlignBottom);
    KeepBlanks(*chart->legend());
    return chart;
}

void Chart::AddHint(QChart& chart) const {
    if (!IsEmpty() || hint_.empty()) return;
    auto* hint = new QGraphicsTextItem(ToQt(hint_), &chart);
    hint->setFont(font());
    hint->setDefaultTextColor(Look::Hint(palette()));
    QTextOption centred(Qt::AlignHCenter);
    centred.setWrapMode(QTextOption::WordWrap);
    hint->document()->setDefaultTextOption(centred);
    connect(&chart, &QChart::plotAreaChanged, hint, [hint](const QRectF& plot) {
        hint->setTextWidth(plot.width());
        hint->setPos(plot.left(), plot.center().y() - hint->boundingRect().height() / 2);
    });
}

QAbstractBarSeries* Chart::NewSeries() {
    auto* series = new QBarSeries;
    series->setBarWidth(RowCount() == 1 ? 0.4 : 0.8);
    for (std::size_t column = 0; column < columns_.size(); ++column) {
        auto* set = new QBarSet(ToQt(columns_[column].label));
        set->setColor(Look::Series(palette(), static_cast<int>(column)));
        set->setBorderColor(Look::Series(palette(), static_cast<int>(column)));
        for (const double value : columns_[column].values) *set << value;
        series->append(set);
    }
    connect(series, &QAbstractBarSeries::hovered, this, [this, series](bool on, int row, QBarSet* set) {
        if (!on) return QToolTip::hideText();
        const Series& column = columns_[static_cast<std::size_t>(series->barSets().indexOf(set))];
        QToolTip::showText(QCursor::pos(), ToQt(Told(column, static_cast<std::size_t>(row))), this, {},
                           std::numeric_limits<int>::max());
    });
    return series;
}

void Chart::AddAxes(QChart& chart, const QColor& ink) const {
    auto* bars = new QCategoryAxis;
    bars->setLabelsPosition(QCategoryAxis::AxisLabelsPositionOnValue);
    bars->setRange(-0.5, RowCount() - 0.5);
    for (int row = 0; row < RowCount(); ++row)
        bars->append(ToQt(RowLabel(static_cast<std::size_t>(row))), row);
    bars->setTitleText(ToQt(barsCaption_));
    QFont barsFont = font();
    if (RowCount() > MostLevelLabels) {
        const StaggeredLabels labels(chart, bars->categoriesLabels(), bars->titleText(), font(), ink);
        connect(&chart, &QChart::plotAreaChanged, this, [labels](const QRectF& plot) { labels.Place(plot); });
        // An invisible caption of the axis, as high as all these lines, keeps their place free.
        bars->setLabelsVisible(false);
        barsFont.setPointSizeF(barsFont.pointSizeF() * labels.Lines());
    }
    bars->setGridLineVisible(false);

    double smallest = 0, largest = 0;
    bool whole = true;
    for (const Series& column : columns_)
        for (const double value : column.values) {
            smallest = std::min(smallest, value);
            largest = std::max(largest, value);
            whole = whole && value == std::floor(value);
        }
    auto* values = new QValueAxis;
    const Scale scale = ScaleFor(smallest, smallest < 0 ? largest : std::max(1.0, largest), whole);
    values->setRange(scale.bottom, scale.top);
    values->setTickCount(scale.steps + 1);
    values->setLabelFormat(scale.step == std::floor(scale.step) ? "%.0f" : "%.2f");
    values->setTitleText(ToQt(valuesCaption_));
    // "1,000", whatever the desktop's own way is.
    chart.setLocale(QLocale(QLocale::English, QLocale::UnitedStates));
    chart.setLocalizeNumbers(true);
    if (smallest < 0) AddZeroLine(chart, ink, scale.top / (scale.top - scale.bottom));

    QColor grid = ink;
    grid.setAlphaF(0.25f);
    for (auto [axis, side] :
         {std::pair<QAbstractAxis*, Qt::AlignmentFlag>{bars, Qt::AlignBottom}, {values, Qt::AlignLeft}}) {
        axis->setLabelsColor(ink);
        axis->setLabelsFont(font());
        axis->setTitleFont(axis == bars ? barsFont : font());
        axis->setTitleBrush(axis == bars && !bars->labelsVisible() ? Qt::transparent : ink);
        axis->setLinePenColor(ink);
        axis->setGridLineColor(grid);
        chart.addAxis(axis, side);
        for (QAbstractSeries* series : chart.series()) series->attachAxis(axis);
    }
}

}  // namespace sorvane::forms

#include "forms/Bars.h"

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
#include <memory>

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
    explicit BarView(QWidget& parent) : QChartView(&parent) {
        setFrameShape(QFrame::NoFrame);
        setFocusPolicy(Qt::NoFocus);
        setRenderHint(QPainter::Antialiasing);
        auto* layout = new QVBoxLayout(&parent);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(this);
    }

  protected:
    bool viewportEvent(QEvent* event) override {
        return event->type() == QEvent::ToolTip || QChartView::viewportEvent(event);
    }
};

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

void AddHint(QChart& chart, const Bars& bars) {
    if (bars.hint.isEmpty()) return;
    auto* hint = new QGraphicsTextItem(bars.hint, &chart);
    hint->setFont(bars.font);
    hint->setDefaultTextColor(bars.hintInk);
    QTextOption centred(Qt::AlignHCenter);
    centred.setWrapMode(QTextOption::WordWrap);
    hint->document()->setDefaultTextOption(centred);
    QObject::connect(&chart, &QChart::plotAreaChanged, hint, [hint](const QRectF& plot) {
        hint->setTextWidth(plot.width());
        hint->setPos(plot.left(), plot.center().y() - hint->boundingRect().height() / 2);
    });
}

QAbstractBarSeries* NewSeries(QWidget& on, const Bars& bars) {
    auto* series = new QBarSeries;
    series->setBarWidth(bars.rowLabels.size() == 1 ? 0.4 : 0.8);
    for (const Bars::Column& column : bars.columns) {
        auto* set = new QBarSet(column.label);
        set->setColor(column.colour);
        set->setBorderColor(column.colour);
        for (const double value : column.values) *set << value;
        series->append(set);
    }
    QObject::connect(series, &QAbstractBarSeries::hovered, &on,
                     [&on, series, told = bars.told](bool inside, int row, QBarSet* set) {
                         if (!inside) return QToolTip::hideText();
                         const QString text = told(static_cast<int>(series->barSets().indexOf(set)), row);
                         QToolTip::showText(QCursor::pos(), text, &on, {}, std::numeric_limits<int>::max());
                     });
    return series;
}

QCategoryAxis* NewRowAxis(QChart& chart, const Bars& bars) {
    auto* axis = new QCategoryAxis;
    axis->setLabelsPosition(QCategoryAxis::AxisLabelsPositionOnValue);
    const auto rows = static_cast<int>(bars.rowLabels.size());
    axis->setRange(-0.5, rows - 0.5);
    for (int row = 0; row < rows; ++row) axis->append(bars.rowLabels[row], row);
    axis->setTitleText(bars.barsCaption);
    axis->setTitleBrush(bars.ink);
    QFont font = bars.font;
    if (rows > MostLevelLabels) {
        const StaggeredLabels labels(chart, axis->categoriesLabels(), axis->titleText(), bars.font, bars.ink);
        QObject::connect(&chart, &QChart::plotAreaChanged, &chart,
                         [labels](const QRectF& plot) { labels.Place(plot); });
        // An invisible caption of the axis, as high as all these lines, keeps their place free.
        axis->setLabelsVisible(false);
        font.setPointSizeF(font.pointSizeF() * labels.Lines());
        axis->setTitleBrush(Qt::transparent);
    }
    axis->setTitleFont(font);
    axis->setGridLineVisible(false);
    return axis;
}

QValueAxis* NewValueAxis(QChart& chart, const Bars& bars) {
    double smallest = 0, largest = 0;
    bool whole = true;
    for (const Bars::Column& column : bars.columns)
        for (const double value : column.values) {
            smallest = std::min(smallest, value);
            largest = std::max(largest, value);
            whole = whole && value == std::floor(value);
        }
    auto* axis = new QValueAxis;
    const Scale scale = ScaleFor(smallest, smallest < 0 ? largest : std::max(1.0, largest), whole);
    axis->setRange(scale.bottom, scale.top);
    axis->setTickCount(scale.steps + 1);
    axis->setLabelFormat(scale.step == std::floor(scale.step) ? "%.0f" : "%.2f");
    axis->setTitleText(bars.valuesCaption);
    axis->setTitleFont(bars.font);
    axis->setTitleBrush(bars.ink);
    // "1,000", whatever the desktop's own way is.
    chart.setLocale(QLocale(QLocale::English, QLocale::UnitedStates));
    chart.setLocalizeNumbers(true);
    if (smallest < 0) AddZeroLine(chart, bars.ink, scale.top / (scale.top - scale.bottom));
    return axis;
}

void AddAxes(QChart& chart, const Bars& bars) {
    QColor grid = bars.ink;
    grid.setAlphaF(0.25f);
    const auto add = [&](QAbstractAxis* axis, Qt::AlignmentFlag side) {
        axis->setLabelsColor(bars.ink);
        axis->setLabelsFont(bars.font);
        axis->setLinePenColor(bars.ink);
        axis->setGridLineColor(grid);
        chart.addAxis(axis, side);
        for (QAbstractSeries* series : chart.series()) series->attachAxis(axis);
    };
    add(NewRowAxis(chart, bars), Qt::AlignBottom);
    add(NewValueAxis(chart, bars), Qt::AlignLeft);
}

QChart* NewChart(QWidget& on, const Bars& bars) {
    auto* chart = new QChart;
    QFont heading = bars.font;
    heading.setBold(true);
    chart->setBackgroundBrush(bars.paper);
    chart->setBackgroundRoundness(0);
    chart->layout()->setContentsMargins(0, 0, 0, 0);
    chart->setTitle(bars.title);
    chart->setTitleFont(heading);
    chart->setTitleBrush(bars.ink);
    chart->addSeries(NewSeries(on, bars));
    AddAxes(*chart, bars);
    AddHint(*chart, bars);
    chart->legend()->setVisible(std::any_of(bars.columns.begin(), bars.columns.end(),
                                            [](auto& column) { return !column.label.isEmpty(); }));
    chart->legend()->setFont(bars.font);
    chart->legend()->setLabelColor(bars.ink);
    chart->legend()->setAlignment(Qt::AlignBottom);
    KeepBlanks(*chart->legend());
    return chart;
}

}  // namespace

void DrawBars(QWidget& on, const Bars& bars) {
    QChartView* view =
        on.layout() ? static_cast<BarView*>(on.layout()->itemAt(0)->widget()) : new BarView(on);
    view->setBackgroundBrush(bars.paper);
    const std::unique_ptr<QChart> old(view->chart());
    view->setChart(NewChart(on, bars));
}

}  // namespace sorvane::forms

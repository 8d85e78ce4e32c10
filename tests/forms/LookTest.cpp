// Colours, sizes, balls and charts.
#include "forms/Look.h"

#include <QAbstractBarSeries>
#include <QApplication>
#include <QBarSet>
#include <QBoxLayout>
#include <QCategoryAxis>
#include <QChart>
#include <QChartView>
#include <QGraphicsLayout>
#include <QGraphicsLineItem>
#include <QGraphicsSimpleTextItem>
#include <QGraphicsTextItem>
#include <QGridLayout>
#include <QHelpEvent>
#include <QLabel>
#include <QLegendMarker>
#include <QPainter>
#include <QPointer>
#include <QScreen>
#include <QStyle>
#include <QTest>
#include <QTextDocument>
#include <QTextOption>
#include <QToolTip>
#include <QValueAxis>
#include <cmath>
#include <functional>
#include <memory>
#include <set>

#include "Fixture.h"
#include "forms/Chart.h"
#include "forms/ControlArray.h"
#include "forms/NumberBall.h"
#include "support/Palettes.h"

namespace sorvane::test {
namespace {

using namespace forms;

TEST(Look, ContrastIsOneToTwentyOne) {
    EXPECT_NEAR(21, Look::Contrast(Qt::black, Qt::white), 0.01);
    EXPECT_NEAR(1, Look::Contrast(Qt::red, Qt::red), 0.01);
    EXPECT_NEAR(Look::Contrast(Qt::blue, Qt::white), Look::Contrast(Qt::white, Qt::blue), 1e-9);
}

// Known from the rules for the contrast of texts on the web.
TEST(Look, ContrastIsThatOfTheKnownFormula) {
    EXPECT_NEAR(4.54, Look::Contrast(QColor(0x76, 0x76, 0x76), Qt::white), 0.005);
    EXPECT_NEAR(4.48, Look::Contrast(QColor(0x77, 0x77, 0x77), Qt::white), 0.005);
    EXPECT_NEAR(8.59, Look::Contrast(Qt::blue, Qt::white), 0.005);
    EXPECT_NEAR(4.00, Look::Contrast(Qt::red, Qt::white), 0.005);
    EXPECT_NEAR(1.37, Look::Contrast(Qt::green, Qt::white), 0.005);
    EXPECT_NEAR(1.06, Look::Contrast(QColor(10, 10, 10), Qt::black), 0.005);
}

TEST(Look, ReadableInkStandsOffEveryPaper) {
    for (int red = 0; red < 256; red += 17)
        for (int green = 0; green < 256; green += 51)
            for (const QColor ink : {QColor(Qt::gray), QColor(Qt::red), QColor(Qt::yellow)})
                EXPECT_GE(
                    Look::Contrast(Look::Readable(ink, QColor(red, green, 128)), QColor(red, green, 128)),
                    4.5);
    EXPECT_EQ(QColor(Qt::black), Look::Readable(Qt::black, Qt::white));
}

TEST(Look, BallsAndHintsAreReadableInEveryPalette) {
    for (const auto& [name, palette] : AllPalettes())
        for (const bool ticked : {false, true})
            for (const bool enabled : {false, true}) {
                const Look::Ball ball = Look::BallColours(palette, ticked, enabled);
                EXPECT_GE(Look::Contrast(ball.ink, ball.paper), 4.5) << ticked << enabled;
                EXPECT_GE(Look::Contrast(ball.ring, palette.color(QPalette::Window)), 3) << ticked << enabled;
                EXPECT_GE(Look::Contrast(Look::Hint(palette), palette.color(QPalette::Base)), 4.5);
            }
}

TEST(Look, SizesFollowTheFont) {
    QWidget widget;
    const int before = Look::BallSize(widget);
    QFont large = widget.font();
    large.setPointSize(20);
    widget.setFont(large);
    EXPECT_GE(Look::BallSize(widget), before * 3 / 2);
    EXPECT_GT(Look::DigitsWidth(widget, 6), Look::DigitsWidth(widget, 2));
}

// It stands in a file of a kind that a plugin reads: loading that takes time at the start and is never needed
// where the menu fits.
TEST(Look, TheMarkOfAMenuThatDoesNotFitIsMadeWhenItIsPainted) {
    const QStyle& style = *QApplication::style();
    const QIcon later = style.standardIcon(QStyle::SP_ToolBarHorizontalExtensionButton);
    EXPECT_TRUE(later.availableSizes().isEmpty());
    EXPECT_FALSE(later.pixmap(16).isNull());
    QImage painted(16, 16, QImage::Format_RGB32);
    painted.fill(Qt::white);
    const QImage empty = painted;
    QPainter painter(&painted);
    later.paint(&painter, painted.rect());
    painter.end();
    EXPECT_NE(painted, empty);
    EXPECT_FALSE(style.standardIcon(QStyle::SP_MessageBoxWarning).availableSizes().isEmpty());
}

TEST(NumberBall, CanBeHitAnywhere) {
    LoggingWindow window;
    NumberBall ball("chkNumb(0)", "1");
    window.LayOut(ball);
    Open(window);
    Person person;
    for (const QPoint at :
         {QPoint(1, 1), QPoint(ball.width() - 2, ball.height() - 2), ball.rect().center()}) {
        const int before = ball.Value();
        person.Click(ball, at);
        EXPECT_NE(before, ball.Value());
    }
}

TEST(NumberBall, ArrowsGoToTheNearestEnabledBallInTheirDirection) {
    LoggingWindow window;
    QWidget page;
    QGridLayout grid(&page);
    ControlArray<NumberBall> balls("chkNumb");
    for (int i = 0; i < 9; ++i) grid.addWidget(&balls.Load(i, std::to_string(i + 1)), i / 3, i % 3);
    window.layout()->addWidget(&page);
    balls(4).SetEnabled(false);
    Open(window);
    Person person;
    const auto goes = [&](Qt::Key key, int to) {
        person.Key(key);
        EXPECT_TRUE(balls(to).HasFocus()) << to;
    };
    goes(Qt::Key_Right, 1);
    goes(Qt::Key_Down, 7);
    goes(Qt::Key_Right, 8);
    goes(Qt::Key_Right, 8);
    goes(Qt::Key_Up, 5);
    goes(Qt::Key_Left, 3);
    goes(Qt::Key_Up, 0);
    person.Key(Qt::Key_Space);
    EXPECT_EQ(1, balls(0).Value());
}

// A picture without colour: what remains is shape and lightness.
QImage Grey(NumberBall& ball) { return ball.grab().toImage().convertToFormat(QImage::Format_Grayscale8); }

TEST(NumberBall, StatesDifferWithoutColour) {
    for (const auto& [name, palette] : AllPalettes()) {
        LoggingWindow window;
        CommandButton other("cmdOther", "Other");
        NumberBall ball("chkNumb(0)", "17");
        window.LayOut(other, ball);
        window.setPalette(palette);
        Open(window);
        std::vector<QImage> states;
        const auto keep = [&] {
            const QImage state = Grey(ball);
            for (const QImage& earlier : states) EXPECT_NE(earlier, state);
            states.push_back(state);
        };
        keep();
        ball.SetValue(1);
        keep();
        ball.SetFocus();
        keep();
        ball.SetValue(0);
        keep();
        other.SetFocus();
        ball.SetEnabled(false);
        keep();
        ball.SetValue(1);
        keep();
    }
}

class Bars : public testing::Test {
  protected:
    LoggingWindow window;
    Chart chart{"mscNumberFrequency"};
    Person person;
    void SetUp() override {
        chart.SetTitle("Number Frequency");
        chart.SetAxes("Numbers Drawn", "Times Drawn");
        chart.SetColumnLabel("Frequency");
        window.LayOut(chart);
        window.resize(1300, 500);
    }
    QChartView* View() const { return chart.findChild<QChartView*>(); }
    std::string Told() const { return chart.accessibleDescription().toStdString(); }
    // Moves the mouse to this place of the plot.
    QPoint Hover(double bar, double value) {
        const QPointF place =
            View()->chart()->mapToPosition(QPointF(bar, value), View()->chart()->series().at(0));
        const QPoint at = View()->mapFromScene(View()->chart()->mapToScene(place));
        person.MoveTo(*View()->viewport(), at + QPoint(0, 3));
        person.MoveTo(*View()->viewport(), at);
        return at;
    }
    QCategoryAxis& Axis() const {
        return *static_cast<QCategoryAxis*>(View()->chart()->axes(Qt::Horizontal).at(0));
    }
    QBarSet& Set(int column = 0) const {
        return *static_cast<QAbstractBarSeries*>(View()->chart()->series().at(0))->barSets().at(column);
    }
};

TEST_F(Bars, APressOnTheDrawingLeavesTheFocusWhereItIs) {
    CommandButton other("cmdOther", "Other");
    window.LayOut(other);
    chart.SetRowCount(3);
    chart.SetData(1);
    Open(window);
    other.SetFocus();
    person.Click(*View()->viewport());
    EXPECT_EQ(QApplication::focusWidget(), &other.Widget());
}

TEST_F(Bars, AnswersToRowColumnAndData) {
    chart.SetRowCount(49);
    chart.SetColumnCount(2);
    chart.SetRow(49);
    chart.SetColumn(2);
    chart.SetData(7);
    EXPECT_EQ(7, chart.Data());
    chart.SetRow(1);
    EXPECT_EQ(0, chart.Data());
    chart.SetColumnLabel("Won   - $5.00");
    chart.SetColumn(1);
    EXPECT_EQ("Frequency", chart.ColumnLabel());
    chart.Clear();
    chart.SetColumn(2);
    chart.SetRow(49);
    EXPECT_EQ(0, chart.Data());
    EXPECT_EQ("Won   - $5.00", chart.ColumnLabel());
}

TEST_F(Bars, PaddedTextReadsAsItsNumber) {
    chart.SetData("       1,234.50");
    EXPECT_EQ(1234.5, chart.Data());
    EXPECT_EQ(ErrorNumber::TypeMismatch, ErrorOf([&] { chart.SetData("abc"); }));
    EXPECT_EQ(1234.5, chart.Data());
}

TEST_F(Bars, IndexOutsideTheCountsIsErrorNine) {
    for (const int index : {0, 2, -1}) {
        EXPECT_EQ(ErrorNumber::SubscriptOutOfRange, ErrorOf([&] { chart.SetRow(index); }));
        EXPECT_EQ(ErrorNumber::SubscriptOutOfRange, ErrorOf([&] { chart.SetColumn(index); }));
    }
    chart.SetRowCount(0);
    EXPECT_EQ(ErrorNumber::SubscriptOutOfRange, ErrorOf([&] { chart.SetData(1); }));
}

TEST_F(Bars, NothingIsBuiltBeforeItIsSeen) {
    chart.SetVisible(false);
    Open(window);
    chart.SetRowCount(49);
    chart.SetData(3);
    Person::Settle();
    EXPECT_EQ(nullptr, View());
    chart.SetVisible(true);
    ASSERT_NE(nullptr, View());
    EXPECT_EQ(3, Set().at(0));
}

TEST_F(Bars, DrawsWhatTheCellsSayOnceTheHandlerIsDone) {
    Open(window);
    chart.SetRowCount(3);
    for (int row = 1; row <= 3; ++row) {
        chart.SetRow(row);
        chart.SetData(row * 10);
    }
    Person::Settle();
    EXPECT_EQ(30, Set().at(2));
    EXPECT_EQ("Number Frequency", View()->chart()->title().toStdString());
    chart.Clear();
    Person::Settle();
    EXPECT_EQ(0, Set().at(2));
}

TEST_F(Bars, RowsBearTheirNumbersOrTheirLabels) {
    chart.SetRowCount(3);
    chart.SetRowLabels({"0", "", "9"});
    Open(window);
    EXPECT_EQ((QStringList{"0", "2", "9"}), Axis().categoriesLabels());
    EXPECT_EQ("Numbers Drawn", Axis().titleText().toStdString());
}

TEST_F(Bars, ManyBarsAreAllLabelledAndNoLabelLiesOnAnother) {
    for (const int rows : {45, 49, 70, 80})
        for (const int width : {600, 1300}) {
            chart.SetRowCount(rows);
            window.resize(width, 400);
            Open(window);
            Person::Settle();
            std::vector<std::pair<std::string, QRectF>> labels;
            for (const QGraphicsItem* item : View()->scene()->items())
                if (const auto* text = qgraphicsitem_cast<const QGraphicsSimpleTextItem*>(item))
                    labels.emplace_back(text->text().toStdString(),
                                        text->sceneBoundingRect().adjusted(0, 1, 0, -1));
            std::set<std::string> seen;
            for (const auto& [text, place] : labels) {
                seen.insert(text);
                EXPECT_TRUE(View()->sceneRect().contains(place)) << text;
                for (const auto& [other, otherPlace] : labels)
                    EXPECT_TRUE(text == other || !place.intersects(otherPlace)) << text << " and " << other;
            }
            EXPECT_TRUE(seen.contains("Numbers Drawn"));
            for (int row = 1; row <= rows; ++row) EXPECT_TRUE(seen.contains(std::to_string(row))) << row;
        }
}

TEST_F(Bars, HoveringABarShowsItsValue) {
    chart.SetRowCount(49);
    chart.SetRow(25);
    chart.SetData(40);
    Open(window);
    Hover(24, 20);
    EXPECT_EQ("25: 40", QToolTip::text().toStdString());
}

TEST_F(Bars, ValueStaysWhileTheMouseRestsOnTheBar) {
    chart.SetData(40);
    chart.SetColumnLabel("Frequency");
    Open(window);
    const QPoint at = Hover(0, 20);
    // What Qt sends once the mouse has been at rest for a while.
    QHelpEvent rest(QEvent::ToolTip, at, View()->viewport()->mapToGlobal(at));
    QApplication::sendEvent(View()->viewport(), &rest);
    EXPECT_TRUE(QToolTip::isVisible());
    EXPECT_EQ("Frequency: 40", QToolTip::text().toStdString());
    // Qt takes a tip away after ten seconds.
    QTest::qWait(10'500);
    EXPECT_TRUE(QToolTip::isVisible());
    person.MoveTo(*View()->viewport(), QPoint(3, 3));
    EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }));
}

class Money : public Bars {
  protected:
    void Put(int column, double value, std::string_view label) {
        chart.SetColumn(column);
        chart.SetData(value);
        chart.SetColumnLabel(label);
    }
    QValueAxis& Values() const {
        return *static_cast<QValueAxis*>(View()->chart()->axes(Qt::Vertical).at(0));
    }
    // All that is written in the drawing.
    std::set<std::string> Written() const {
        std::set<std::string> texts;
        for (const QGraphicsItem* item : View()->scene()->items())
            if (const auto* text = dynamic_cast<const QGraphicsTextItem*>(item))
                texts.insert(text->toPlainText().toStdString());
        return texts;
    }
    void SetUp() override {
        Bars::SetUp();
        chart.SetColumnCount(2);
        chart.SetMoney();
    }
};

TEST_F(Money, BarsReadAsMoney) {
    Put(1, 3, "Spent - $3.00");
    Put(2, -2.5, "Won   - $-2.50");
    Open(window);
    Hover(-0.1, 1);
    EXPECT_EQ("Spent: $3.00", QToolTip::text().toStdString());
    Hover(0.1, -1);
    EXPECT_EQ("Won: -$2.50", QToolTip::text().toStdString());
}

TEST_F(Money, AxisHasThousandsSeparators) {
    Put(1, 12'345, "Spent");
    Open(window);
    EXPECT_TRUE(Written().contains("14,000"));
    EXPECT_TRUE(Written().contains("2,000"));
    EXPECT_FALSE(Written().contains("14000"));
}

TEST_F(Money, SumsBelowZeroHaveTheirBarBelowZero) {
    Put(1, 40, "Spent");
    Put(2, -25, "Won  ");
    Open(window);
    EXPECT_EQ(-30, Values().min());
    EXPECT_EQ(40, Values().max());
    EXPECT_EQ(8, Values().tickCount());
    const double zero = View()->chart()->mapToPosition({0, 0}, View()->chart()->series().at(0)).y();
    const double across = View()->chart()->plotArea().width();
    int lines = 0;
    for (const QGraphicsItem* item : View()->scene()->items())
        if (const auto* line = dynamic_cast<const QGraphicsLineItem*>(item);
            line && line->pen().color() == chart.palette().color(QPalette::Text) && line->line().dy() == 0)
            lines += std::abs(line->line().y1() - zero) < 1.5 && line->line().dx() > across - 1.5;
    EXPECT_GE(lines, 1);  // not only the mark beside the axis
    Put(1, 0, "Spent");
    Person::Settle();
    EXPECT_EQ(-25, Values().min());
    EXPECT_EQ(0, Values().max());
}

TEST_F(Money, LegendShowsTheBlanksAndReadsBackAsGiven) {
    Put(1, 3, "Spent - $3.00");
    Put(2, 4, "Won   - $");
    Open(window);
    EXPECT_TRUE(Written().contains("Won   - $"));
    // What is drawn is rich text, which draws no-break blanks one by one.
    EXPECT_EQ(QString("Won   - $").replace(' ', QChar(QChar::Nbsp)),
              View()->chart()->legend()->markers().at(1)->label());
    EXPECT_EQ("Won   - $", chart.ColumnLabel());
    chart.SetColumnLabel("Won  ");
    Person::Settle();
    EXPECT_EQ(QString("Won  ").replace(' ', QChar(QChar::Nbsp)),
              View()->chart()->legend()->markers().at(1)->label());
    EXPECT_EQ("Won  ", chart.ColumnLabel());
}

TEST_F(Money, ContentIsToldAtEachDrawing) {
    chart.SetHint("Press a button");
    Open(window);
    EXPECT_EQ("Press a button", chart.accessibleDescription().toStdString());
    Put(1, 3, "Spent - $3.00");
    Put(2, 0, "Won   - $.00");
    Person::Settle();
    EXPECT_EQ("Spent: $3.00; Won: $0.00", Told());
    chart.Clear();
    Person::Settle();
    EXPECT_EQ("Press a button", Told());
}

TEST_F(Bars, ContentOfManyBarsIsToldByThoseThatAreThere) {
    chart.SetRowCount(49);
    chart.SetHint("Press a button");
    chart.SetRow(7);
    chart.SetData(3);
    Open(window);
    EXPECT_EQ("7: 3, others: 0", Told());
    chart.SetColumnCount(2);
    for (const int column : {1, 2}) {
        chart.SetColumn(column);
        chart.SetColumnLabel("Ball " + std::to_string(column));
    }
    Person::Settle();
    EXPECT_EQ("Ball 1 7: 3, others: 0; Ball 2 all: 0", Told());
}

TEST_F(Bars, FollowsThePalette) {
    Open(window);
    window.setPalette(DarkPalette());
    Person::Settle();
    EXPECT_EQ(DarkPalette().color(QPalette::Base), View()->chart()->backgroundBrush().color());
    EXPECT_GE(Look::Contrast(View()->chart()->titleBrush().color(), DarkPalette().color(QPalette::Base)),
              4.5);
    EXPECT_GE(Look::Contrast(Set().color(), DarkPalette().color(QPalette::Base)), 3);
}

TEST_F(Bars, AnEmptyChartSaysWhatToDo) {
    chart.SetHint("Press a button");
    chart.SetRowCount(3);
    Open(window);
    const auto hints = [&] {
        int seen = 0;
        for (const QGraphicsItem* item : View()->scene()->items())
            if (const auto* text = dynamic_cast<const QGraphicsTextItem*>(item);
                text && text->toPlainText() == "Press a button") {
                ++seen;
                EXPECT_TRUE(View()->chart()->plotArea().contains(text->sceneBoundingRect().center()));
            }
        return seen;
    };
    EXPECT_EQ(1, hints());
    chart.SetRow(2);
    chart.SetData(3);
    Person::Settle();
    EXPECT_EQ(0, hints());
    chart.Clear();
    Person::Settle();
    EXPECT_EQ(1, hints());
}

TEST_F(Bars, ColumnsDifferInLightnessToo) {
    constexpr int Columns = 4;  // the balls of a four-digit game
    for (const auto& [name, palette] : AllPalettes())
        for (int one = 0; one < Columns; ++one) {
            const QColor colour = Look::Series(palette, one);
            EXPECT_GE(Look::Contrast(colour, palette.color(QPalette::Base)), 3) << name << one;
            for (int other = 0; other < one; ++other)
                EXPECT_GE(Look::Contrast(colour, Look::Series(palette, other)), 1.2) << name << one << other;
        }
}

// Where the axis of values begins and ends, in how many steps, and how it writes them.
TEST_F(Bars, TheAxisOfValuesEndsAtARoundNumber) {
    chart.SetRowCount(2);
    Open(window);
    std::string told = "\n";
    const std::pair<double, double> cells[] = {
        {0, 0},       {1, 0},      {8, 0},     {9, 1},        {16, 0},     {17, 0},  {40, 0},
        {41, 3},      {80, 2},     {81, 2},    {161, 0},      {12'345, 0}, {0.5, 0}, {0.05, 0.1},
        {0.011, 0},   {0.3, 7.25}, {-3, 4},    {-0.5, -8},    {-100, 30},  {-16, 0}, {-17, 0.25},
        {-0.5, 0.25}, {-0.8, 0},   {-0.08, 0}, {-0.03, 0.01}, {-0.001, 0}};
    for (const auto& [first, second] : cells) {
        chart.SetRow(1);
        chart.SetData(first);
        chart.SetRow(2);
        chart.SetData(second);
        Person::Settle();
        const auto& axis = *static_cast<QValueAxis*>(View()->chart()->axes(Qt::Vertical).at(0));
        told += QString("%1 %2: %3 to %4, %5 lines, %6\n")
                    .arg(first)
                    .arg(second)
                    .arg(axis.min())
                    .arg(axis.max())
                    .arg(axis.tickCount())
                    .arg(axis.labelFormat())
                    .toStdString();
    }
    EXPECT_EQ(told, R"(
0 0: 0 to 1, 2 lines, %.0f
1 0: 0 to 1, 2 lines, %.0f
8 0: 0 to 8, 9 lines, %.0f
9 1: 0 to 10, 6 lines, %.0f
16 0: 0 to 16, 9 lines, %.0f
17 0: 0 to 20, 5 lines, %.0f
40 0: 0 to 40, 9 lines, %.0f
41 3: 0 to 50, 6 lines, %.0f
80 2: 0 to 80, 9 lines, %.0f
81 2: 0 to 100, 6 lines, %.0f
161 0: 0 to 200, 5 lines, %.0f
12345 0: 0 to 14000, 8 lines, %.0f
0.5 0: 0 to 1, 2 lines, %.0f
0.05 0.1: 0 to 1, 2 lines, %.0f
0.011 0: 0 to 1, 2 lines, %.0f
0.3 7.25: 0 to 8, 9 lines, %.0f
-3 4: -3 to 4, 8 lines, %.0f
-0.5 -8: -8 to 0, 9 lines, %.0f
-100 30: -100 to 40, 8 lines, %.0f
-16 0: -16 to 0, 9 lines, %.0f
-17 0.25: -20 to 5, 6 lines, %.0f
-0.5 0.25: -0.5 to 0.3, 9 lines, %.2f
-0.8 0: -1 to 0, 2 lines, %.0f
-0.08 0: -0.1 to 0, 2 lines, %.2f
-0.03 0.01: -0.03 to 0.01, 5 lines, %.2f
-0.001 0: -0.01 to 0, 2 lines, %.2f
)");
}

// One below the other: how many lines the labels of so many bars stand on, 1 where the axis writes them.
TEST_F(Bars, LabelsStandOnMoreLinesTheMoreBarsThereAre) {
    Open(window);
    for (const auto& [rows, lines] : {std::pair{20, 1}, {21, 2}, {50, 2}, {51, 3}}) {
        chart.SetRowCount(rows);
        Person::Settle();
        std::set<int> tops;
        for (const QGraphicsItem* item : View()->scene()->items())
            if (const auto* text = qgraphicsitem_cast<const QGraphicsSimpleTextItem*>(item);
                text && text->text() != "Numbers Drawn")
                tops.insert(static_cast<int>(text->pos().y() * 10));
        EXPECT_EQ(tops.size(), lines == 1 ? 0U : static_cast<std::size_t>(lines)) << rows;
        EXPECT_EQ(Axis().labelsVisible(), lines == 1) << rows;
        EXPECT_EQ(Axis().titleFont().pointSizeF(), chart.font().pointSizeF() * (lines == 1 ? 1 : lines + 1))
            << rows;
        const QColor ink = chart.palette().color(QPalette::Text);
        EXPECT_EQ(Axis().titleBrush().color(), lines == 1 ? ink : QColor(Qt::transparent)) << rows;
        EXPECT_EQ(Axis().min(), -0.5) << rows;
        EXPECT_EQ(Axis().max(), rows - 0.5) << rows;
    }
}

TEST_F(Bars, EachLabelStandsBelowItsBarAndTheCaptionBelowThemAll) {
    constexpr int Rows = 51, Lines = 3;
    chart.SetRowCount(Rows);
    for (const int width : {1300, 300}) {
        window.resize(width, 400);
        Open(window);
        const QRectF plot = View()->chart()->plotArea();
        const QFontMetricsF metrics(chart.font());
        const double step = plot.width() / Rows, room = step * Lines * 0.85;
        const double share = std::min(1.0, room / metrics.horizontalAdvance("48"));
        int labels = 0;
        for (const QGraphicsItem* item : View()->scene()->items())
            if (const auto* text = qgraphicsitem_cast<const QGraphicsSimpleTextItem*>(item)) {
                ++labels;
                EXPECT_EQ(text->brush().color(), chart.palette().color(QPalette::Text));
                const QPointF top = text->pos() + QPointF(text->boundingRect().width() / 2, 0);
                const bool caption = text->text() == "Numbers Drawn";
                const int row = text->text().toInt() - 1;
                const double centre = caption ? plot.center().x() : plot.left() + step * (row + 0.5);
                const double line = caption ? Lines + 0.4 : row % Lines + 0.2;
                EXPECT_NEAR(top.x(), centre, 0.5) << qPrintable(text->text());
                EXPECT_NEAR(top.y(), plot.bottom() + line * metrics.height(), 0.01)
                    << qPrintable(text->text());
                EXPECT_NEAR(text->font().pointSizeF(), chart.font().pointSizeF() * (caption ? 1 : share),
                            0.01);
            }
        EXPECT_EQ(labels, Rows + 1);
        EXPECT_EQ(share < 1, width == 300) << share;
    }
}

TEST_F(Bars, LettersColoursAndEdgesOfTheDrawing) {
    chart.SetRowCount(3);
    chart.SetColumnCount(2);
    chart.SetColumn(2);
    chart.SetColumnLabel("Ball 2");
    Open(window);
    const QPalette palette = chart.palette();
    const QColor ink = palette.color(QPalette::Text), paper = palette.color(QPalette::Base);
    QChart& drawn = *View()->chart();
    QFont heading = chart.font();
    heading.setBold(true);
    EXPECT_EQ(drawn.titleFont(), heading);
    EXPECT_EQ(drawn.titleBrush().color(), ink);
    EXPECT_EQ(drawn.backgroundBrush().color(), paper);
    EXPECT_EQ(drawn.backgroundRoundness(), 0);
    EXPECT_EQ(drawn.layout()->contentsRect(), drawn.layout()->geometry());
    EXPECT_EQ(View()->backgroundBrush().color(), paper);
    EXPECT_EQ(View()->geometry(), chart.rect());
    EXPECT_EQ(View()->frameWidth(), 0);
    EXPECT_EQ(View()->focusPolicy(), Qt::NoFocus);
    EXPECT_TRUE(View()->renderHints() & QPainter::Antialiasing);
    EXPECT_TRUE(drawn.legend()->isVisible());
    EXPECT_EQ(drawn.legend()->font(), chart.font());
    EXPECT_EQ(drawn.legend()->labelColor(), ink);
    EXPECT_EQ(drawn.legend()->alignment(), Qt::AlignBottom);
    QColor grid = ink;
    grid.setAlphaF(0.25f);
    ASSERT_EQ(drawn.axes().size(), 2);
    for (QAbstractAxis* axis : drawn.axes()) {
        EXPECT_EQ(axis->labelsColor(), ink);
        EXPECT_EQ(axis->labelsFont(), chart.font());
        EXPECT_EQ(axis->linePenColor(), ink);
        EXPECT_EQ(axis->gridLineColor(), grid);
        EXPECT_EQ(axis->titleFont(), chart.font());
        EXPECT_EQ(axis->titleBrush().color(), ink);
        EXPECT_EQ(axis->isGridLineVisible(), axis != &Axis());
        EXPECT_TRUE(drawn.series().at(0)->attachedAxes().contains(axis));
    }
    EXPECT_EQ(Axis().alignment(), Qt::AlignBottom);
    EXPECT_EQ(Axis().labelsPosition(), QCategoryAxis::AxisLabelsPositionOnValue);
    EXPECT_EQ(drawn.axes(Qt::Vertical).at(0)->titleText(), "Times Drawn");
    for (int column = 0; column < 2; ++column) {
        EXPECT_EQ(Set(column).color(), Look::Series(palette, column).toRgb()) << column;
        EXPECT_EQ(Set(column).borderColor(), Set(column).color()) << column;
    }
    const auto width = [&] {
        return static_cast<QAbstractBarSeries*>(View()->chart()->series().at(0))->barWidth();
    };
    EXPECT_EQ(width(), 0.8);
    chart.SetRowCount(1);
    Person::Settle();
    EXPECT_EQ(width(), 0.4);
}

TEST_F(Bars, WithoutAnyLabelThereIsNoLegend) {
    chart.SetColumnLabel("");
    Open(window);
    EXPECT_FALSE(View()->chart()->legend()->isVisible());
    chart.SetColumnLabel("Frequency");
    Person::Settle();
    EXPECT_TRUE(View()->chart()->legend()->isVisible());
}

// In the plot, from one side to the other and half way down.
TEST_F(Bars, TheHintIsWrittenAcrossTheMiddleOfThePlot) {
    chart.SetHint("Press a button");
    Open(window);
    for (const int width : {1300, 500}) {
        window.resize(width, 400);
        Person::Settle();
        const QGraphicsTextItem* hint = nullptr;
        for (const QGraphicsItem* item : View()->scene()->items())
            if (const auto* text = dynamic_cast<const QGraphicsTextItem*>(item);
                text && text->toPlainText() == "Press a button")
                hint = text;
        ASSERT_NE(hint, nullptr);
        const QRectF plot = View()->chart()->plotArea();
        EXPECT_EQ(hint->textWidth(), plot.width());
        EXPECT_EQ(hint->pos().x(), plot.left());
        EXPECT_NEAR(hint->pos().y() + hint->boundingRect().height() / 2, plot.center().y(), 0.01);
        EXPECT_EQ(hint->font(), chart.font());
        EXPECT_EQ(hint->defaultTextColor(), Look::Hint(chart.palette()));
        const QTextOption option = hint->document()->defaultTextOption();
        EXPECT_EQ(option.alignment(), Qt::AlignHCenter);
        EXPECT_EQ(option.wrapMode(), QTextOption::WordWrap);
    }
}

// Each of them is a drawing of its own once the handler is done, and a chart that comes back is not drawn
// anew.
TEST_F(Bars, WhateverIsSetIsDrawnAndNothingElse) {
    Open(window);
    const std::function<void()> changes[] = {[&] { chart.SetTitle("Profit"); },
                                             [&] { chart.SetAxes("Bars", "Values"); },
                                             [&] { chart.SetHint("Press"); },
                                             [&] { chart.SetMoney(); },
                                             [&] { chart.SetRowCount(2); },
                                             [&] { chart.SetColumnCount(3); },
                                             [&] {
                                                 chart.SetRowLabels({"a", "b"});
                                             },
                                             [&] { chart.SetColumnLabel("Ball"); },
                                             [&] { chart.SetData(7); },
                                             [&] { chart.Clear(); },
                                             [&] { chart.setFont(QFont("DejaVu Sans", 14)); }};
    int number = 0;
    for (const auto& change : changes) {
        QPointer<QChart> before = View()->chart();
        change();
        EXPECT_NE(before, nullptr) << number;
        Person::Settle();
        EXPECT_EQ(before, nullptr) << number;
        ++number;
    }
    const QChart* drawn = View()->chart();
    EXPECT_EQ(drawn->title(), "Profit");
    EXPECT_EQ(Axis().titleText(), "Bars");
    EXPECT_EQ(Axis().categoriesLabels(), (QStringList{"a", "b"}));
    EXPECT_EQ(drawn->titleFont().pointSize(), 14);
    chart.SetVisible(false);
    chart.SetVisible(true);
    Person::Settle();
    EXPECT_EQ(View()->chart(), drawn);
    chart.SetVisible(false);
    chart.SetTitle("Loss");
    Person::Settle();
    EXPECT_EQ(View()->chart(), drawn);
    chart.SetVisible(true);
    EXPECT_EQ(View()->chart()->title(), "Loss");
    chart.SetTitle("Gain");
    chart.SetVisible(false);
    Person::Settle();
    EXPECT_EQ(View()->chart()->title(), "Loss");
}

TEST(EmptyBars, AChartOfWhichNothingWasToldIsDrawnToo) {
    LoggingWindow window;
    Chart chart("mscNothing");
    window.LayOut(chart);
    Open(window);
    ASSERT_NE(chart.findChild<QChartView*>(), nullptr);
    EXPECT_EQ(chart.accessibleDescription(), ": 0");
    const int height = chart.fontMetrics().height();
    EXPECT_EQ(chart.sizeHint(), QSize(height * 24, height * 12));
}

TEST_F(Bars, LabelsOfRowsMayBeMoreOrFewerThanTheRows) {
    chart.SetRowCount(3);
    chart.SetRowLabels({"a", "b", "c", "d", "e"});
    chart.SetRowLabels({"A"});
    Open(window);
    EXPECT_EQ((QStringList{"A", "b", "c"}), Axis().categoriesLabels());
    chart.SetRowCount(4);
    Person::Settle();
    EXPECT_EQ((QStringList{"A", "b", "c", "4"}), Axis().categoriesLabels());
}

TEST_F(Bars, CountsMayShrinkToNothingButNotBelow) {
    chart.SetColumnCount(2);
    chart.SetColumn(2);
    chart.SetColumnCount(1);
    EXPECT_EQ(ErrorNumber::SubscriptOutOfRange, ErrorOf([&] { chart.ColumnLabel(); }));
    chart.SetColumnCount(0);
    EXPECT_EQ(0, chart.ColumnCount());
    EXPECT_EQ(ErrorNumber::SubscriptOutOfRange, ErrorOf([&] { chart.SetColumnCount(-1); }));
    EXPECT_EQ(ErrorNumber::SubscriptOutOfRange, ErrorOf([&] { chart.SetRowCount(-1); }));
    EXPECT_EQ(1, chart.RowCount());
}

TEST_F(Bars, ABrokenNumberIsToldWithTwoDecimals) {
    chart.SetData(2.5);
    Open(window);
    EXPECT_EQ("Frequency: 2.50", Told());
    chart.SetData(-1234);
    Person::Settle();
    EXPECT_EQ("Frequency: -1,234", Told());
}

TEST(Look, SizesAreInProportionToTheFont) {
    QWidget widget;
    for (int pixels = 8; pixels < 50; ++pixels) {
        QFont font = widget.font();
        font.setPixelSize(pixels);
        widget.setFont(font);
        widget.setWindowTitle("Lotto 6/49");
        const int height = widget.fontMetrics().height();
        const auto heights = [height](double times) { return static_cast<int>(std::lround(height * times)); };
        const bool narrow = widget.screen()->availableSize().width() < 60 * height;
        EXPECT_EQ(Look::IsNarrow(widget), narrow);
        EXPECT_EQ(Look::Space(widget), heights(narrow ? 0.2 : 0.4));
        EXPECT_EQ(Look::Gap(widget), heights(narrow ? 0.4 : 0.8));
        EXPECT_EQ(Look::Margin(widget), heights(narrow ? 0.4 : 0.8));
        EXPECT_EQ(Look::BallSize(widget), heights(2.4));
        EXPECT_EQ(Look::SmallestBall(widget), heights(1.7));
        EXPECT_EQ(Look::Heading(widget), heights(4.0 / 3));
        EXPECT_EQ(Look::TitleBar(widget), 2 * height);
        const QFontMetrics letters = widget.fontMetrics();
        EXPECT_EQ(Look::DigitsWidth(widget, 3), 3 * letters.horizontalAdvance('0') + heights(1.2));
        EXPECT_EQ(Look::TitleWidth(widget), letters.horizontalAdvance("Lotto 6/49") + 9 * height);
        const std::unique_ptr<QBoxLayout> row(Look::Row(widget));
        EXPECT_EQ(row->direction(), narrow ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    }
}

TEST(Look, InTheSmallestLettersAPixelIsLeftBetweenTwoControls) {
    QWidget widget;
    QFont font = widget.font();
    font.setPixelSize(1);
    widget.setFont(font);
    ASSERT_LE(widget.fontMetrics().height(), 3);
    EXPECT_EQ(Look::Space(widget), 1);
}

TEST(Look, FontsOfASizeThatIsAskedFor) {
    const double size = QApplication::font().pointSizeF();
    QWidget widget;
    Look::Enlarge(widget, 1.5);
    EXPECT_EQ(widget.font().pointSizeF(), 1.5 * size);
    EXPECT_EQ(Look::FixedFont().pointSizeF(), size);
    EXPECT_EQ(Look::FixedFont(1).pointSizeF(), 1);
    EXPECT_TRUE(Look::FixedFont(7).fixedPitch());
    EXPECT_EQ(Look::FixedFont(7).styleHint(), QFont::TypeWriter);
    QFont font("DejaVu Sans", 10);
    EXPECT_EQ(Look::Fitting(font, [](const QFontMetrics&) { return true; }).pointSizeF(), 10);
    EXPECT_EQ(Look::Fitting(font, [](const QFontMetrics&) { return false; }).pointSizeF(), 1);
    int asked = 0;
    EXPECT_EQ(Look::Fitting(font, [&](const QFontMetrics&) { return ++asked == 4; }).pointSizeF(), 9.25);
}

// Three are ahead of the ball in hand: one straight on, one nearer but aside, one half way to the side.
TEST(NumberBall, OneInTheSameLineComesBeforeOneThatIsNearerAside) {
    LoggingWindow window;
    QWidget page;
    page.setFixedSize(400, 300);
    ControlArray<NumberBall> balls("chkNumb");
    const auto put = [&](int index, int x, int y) {
        NumberBall& ball = balls.Load(index, std::to_string(index));
        ball.setParent(&page);
        ball.setGeometry(x, y, 20, 20);
    };
    put(0, 100, 100);
    put(1, 140, 116);
    put(2, 200, 100);
    put(3, 130, 130);
    window.layout()->addWidget(&page);
    Open(window);
    Person person;
    const auto goes = [&](Qt::Key key, int to) {
        balls(0).SetFocus();
        person.Key(key);
        EXPECT_TRUE(balls(to).HasFocus()) << to;
    };
    goes(Qt::Key_Right, 2);
    balls(1).setGeometry(140, 114, 20, 20);
    goes(Qt::Key_Right, 1);
    // As far as the one straight on: the first of the two.
    balls(1).setGeometry(140, 115, 20, 20);
    goes(Qt::Key_Right, 1);
    // Just as much aside as ahead is in no direction.
    balls(1).SetVisible(false);
    balls(2).SetVisible(false);
    goes(Qt::Key_Right, 0);
    goes(Qt::Key_Down, 0);
    balls(3).setGeometry(130, 131, 20, 20);
    goes(Qt::Key_Down, 3);
    EXPECT_EQ(balls(0).sizePolicy().horizontalPolicy(), QSizePolicy::Preferred);
    EXPECT_EQ(balls(0).sizePolicy().verticalPolicy(), QSizePolicy::Preferred);
    EXPECT_EQ(balls(0).minimumSizeHint(), QSize(Look::SmallestBall(balls(0)), Look::SmallestBall(balls(0))));
    EXPECT_EQ(balls(0).sizeHint(), QSize(Look::BallSize(balls(0)), Look::BallSize(balls(0))));
}

// Also those that the axis can't write itself, in letters and colours that are not the application's.
TEST_F(Bars, AllThatIsWrittenIsInTheLettersAndTheInkOfTheChart) {
    chart.setPalette(DarkPalette());
    chart.setFont(QFont("DejaVu Sans", 17));
    chart.SetHint("Press a button");
    chart.SetRowCount(21);
    window.resize(2000, 700);
    Open(window);
    const QColor ink = DarkPalette().color(QPalette::Text);
    const QChart& drawn = *View()->chart();
    int labels = 0, hints = 0;
    for (const QGraphicsItem* item : View()->scene()->items()) {
        if (const auto* text = qgraphicsitem_cast<const QGraphicsSimpleTextItem*>(item)) {
            ++labels;
            EXPECT_EQ(text->font(), chart.font()) << qPrintable(text->text());
            EXPECT_EQ(text->brush().color(), ink) << qPrintable(text->text());
        }
        if (const auto* text = dynamic_cast<const QGraphicsTextItem*>(item);
            text && text->toPlainText() == "Press a button") {
            ++hints;
            EXPECT_EQ(text->font(), chart.font());
        }
    }
    EXPECT_EQ(labels, 21 + 1);
    EXPECT_EQ(hints, 1);
    EXPECT_EQ(drawn.legend()->font(), chart.font());
    for (const QAbstractAxis* axis : drawn.axes()) EXPECT_EQ(axis->labelsFont(), chart.font());
    EXPECT_EQ(drawn.axes(Qt::Vertical).at(0)->titleFont(), chart.font());
    EXPECT_EQ(drawn.titleFont().pointSize(), 17);
}

// A hairline in the ink of the chart. Where nothing is below zero the axis itself is that line.
TEST_F(Money, TheLineAtZeroIsDrawnWhereABarIsBelowItOnly) {
    chart.setPalette(DarkPalette());
    Put(1, 40, "Spent");
    Open(window);
    const auto lines = [&] {
        std::vector<QPen> pens;
        for (const QGraphicsItem* item : View()->scene()->items())
            if (const auto* line = dynamic_cast<const QGraphicsLineItem*>(item);
                line && line->parentItem() == View()->chart())
                pens.push_back(line->pen());
        return pens;
    };
    EXPECT_TRUE(lines().empty());
    Put(2, -25, "Won  ");
    Person::Settle();
    ASSERT_EQ(lines().size(), 1U);
    EXPECT_EQ(lines()[0].color(), DarkPalette().color(QPalette::Text));
    EXPECT_TRUE(lines()[0].isCosmetic());
}

TEST_F(Bars, RowsStandInTheirPlacesWithoutAnyColumn) {
    chart.SetColumnCount(0);
    chart.SetRowCount(5);
    Open(window);
    EXPECT_EQ(Axis().min(), -0.5);
    EXPECT_EQ(Axis().max(), 4.5);
}

TEST_F(Bars, TheDrawingTakesTheRoomThatOthersDoNotNeed) {
    QWidget other;
    other.setLayout(new QVBoxLayout);
    other.layout()->addWidget(new QLabel("Numbers"));
    window.layout()->addWidget(&other);
    Open(window);
    EXPECT_EQ(other.height(), other.sizeHint().height());
    EXPECT_EQ(chart.sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
}

TEST_F(Bars, ItsTitleAndItsHintAreToldBeforeItIsDrawn) {
    EXPECT_EQ("Number Frequency", chart.accessibleName().toStdString());
    chart.SetHint("Press a button");
    EXPECT_EQ("Press a button", Told());
    chart.SetData(3);
    chart.SetHint("Press another one");
    EXPECT_EQ("Press a button", Told());
    Open(window);
    EXPECT_EQ("Frequency: 3", Told());
}

TEST_F(Bars, RowsAtZeroAreToldTogetherAlsoWhereThereAreTwo) {
    const auto put = [&](int row, double value) {
        chart.SetRow(row);
        chart.SetData(value);
    };
    chart.SetRowCount(2);
    put(1, 3);
    put(2, 4);
    Open(window);
    EXPECT_EQ("1: 3, 2: 4", Told());
    put(2, 0);
    Person::Settle();
    EXPECT_EQ("1: 3, others: 0", Told());
    chart.SetColumnCount(2);
    chart.SetColumn(2);
    chart.SetColumnLabel("Ball 2");
    Person::Settle();
    EXPECT_EQ("Frequency 1: 3, others: 0; Ball 2 all: 0", Told());
}

}  // namespace
}  // namespace sorvane::test

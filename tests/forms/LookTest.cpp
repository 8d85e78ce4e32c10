// Colours, sizes, balls and charts.
#include "forms/Look.h"

#include <QAbstractBarSeries>
#include <QApplication>
#include <QBarSet>
#include <QCategoryAxis>
#include <QChart>
#include <QChartView>
#include <QGraphicsSimpleTextItem>
#include <QGraphicsTextItem>
#include <QGridLayout>
#include <QHelpEvent>
#include <QLegendMarker>
#include <QStyle>
#include <QTest>
#include <QToolTip>
#include <QValueAxis>
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

}  // namespace
}  // namespace sorvane::test

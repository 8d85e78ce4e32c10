// A screen reader is told what is painted, before and after each step of the road of a game.
#include <QGraphicsScene>
#include <QGraphicsTextItem>
#include <QGraphicsView>
#include <QPainter>
#include <cmath>
#include <set>

#include "forms/Chart.h"
#include "forms/LabelFrame.h"
#include "forms/ListBox.h"
#include "forms/Look.h"
#include "windows/Road.h"

namespace sorvane::test {
namespace {

class ToldAsPainted : public Road, public ::testing::WithParamInterface<std::string_view> {
  protected:
    ToldAsPainted() : Road(GetParam()) {}

    void Expect(const std::string& step) {
        SCOPED_TRACE(step);
        Person::Settle();
        QWidget& window = person.Front();
        for (auto* widget : window.findChildren<QWidget*>()) {
            if (!widget->isVisible()) continue;
            if (auto* list = dynamic_cast<forms::ListBox*>(widget)) ExpectList(*list);
            if (auto* chart = dynamic_cast<forms::Chart*>(widget)) ExpectChart(*chart);
            if (auto* frame = dynamic_cast<forms::LabelFrame*>(widget)) ExpectBesideTitle(*frame);
        }
    }

  private:
    static bool HasInk(const QImage& image) {
        QImage blank = image;
        blank.fill(image.pixelColor(image.width() / 2, 1));
        return image != blank;
    }
    static void ExpectList(forms::ListBox& list) {
        const bool says = !list.accessibleDescription().isEmpty();
        if (list.ListCount() > 0) EXPECT_FALSE(says) << list.Name();
        else EXPECT_EQ(HasInk(list.viewport()->grab().toImage()), says) << list.Name();
    }
    static void ExpectChart(forms::Chart& chart) {
        const std::string told = chart.accessibleDescription().toStdString();
        const auto* view = chart.findChild<QGraphicsView*>();
        ASSERT_TRUE(view);
        std::set<std::string> written;
        for (const QGraphicsItem* item : view->scene()->items())
            if (const auto* text = dynamic_cast<const QGraphicsTextItem*>(item))
                written.insert(text->toPlainText().toStdString());
        int bars = 0;
        for (int column = 1; column <= chart.ColumnCount(); ++column)
            for (int row = 1; row <= chart.RowCount(); ++row) {
                chart.SetColumn(column);
                chart.SetRow(row);
                const double value = chart.Data();
                if (value == 0) continue;
                ++bars;
                const auto amount = Currency::FromTenThousandths(std::llround(value * Currency::Scale));
                const std::string text = Format(amount, chart.RowCount() > 1 ? "#,##0" : "#,##0.00");
                EXPECT_NE(told.find(text), std::string::npos) << chart.Name() << ": " << told;
            }
        EXPECT_EQ(written.contains(told), bars == 0) << chart.Name() << ": " << told;
    }
    // The very picture that the told text gives.
    static void ExpectBesideTitle(forms::LabelFrame& frame) {
        const QRect heading(0, 0, frame.width(), forms::Look::Heading(frame));
        const QRect right(frame.width() / 2, 0, frame.width() - frame.width() / 2, heading.height());
        const QImage painted = frame.grab(right).toImage();
        QPixmap told = QPixmap::fromImage(painted);
        told.fill(painted.pixelColor(1, 1));
        QPainter painter(&told);
        painter.translate(-right.topLeft());
        painter.setFont(frame.font());
        painter.setPen(frame.palette().color(QPalette::WindowText));
        painter.drawText(heading, Qt::AlignRight | Qt::AlignVCenter, frame.accessibleDescription());
        painter.end();
        EXPECT_EQ(painted, told.toImage().convertToFormat(painted.format()))
            << frame.Name() << ": " << frame.accessibleDescription().toStdString();
    }
};

TEST_P(ToldAsPainted, AtEveryStepFromTheFirstTicketToTheChartOfTheMoney) {
    Start();
    Inside([&] {
        Expect("opened");
        PutCount(2, 2);
        Expect("count");
        if (IsPick(family)) WindowWorld::Click("optPlayOpt(0)");
        for (const int sheet : {1, 2}) {
            if (CountsAddOns()) Put("txtNoOfExtra", "1");
            for (int ticket = 1; ticket <= filled; ++ticket) {
                Expect("ticket");
                FillTicket();
                Expect("filled");
                if (ticket < filled) Click("cmdNext_Ticket");
            }
            EnterAddOns(sheet, 1);
            Expect("add-on");
            SaveSheet(sheet == 2);
            if (sheet == 1) Expect("next sheet");
        }
    });
    Inside([&] {
        person.ClickTab("&Check Tickets");
        Expect("check");
        TypeDraw();
        Click("cmdCheck");
        Expect("checked");
        person.ClickTab("&Reports");
        Expect("reports");
        Click("cmdNumberFrequency");
        Expect("numbers");
        Click("cmdProfitLoss");
        Expect("money");
        person.ClickTab("&Quick");
        Expect("quick picks");
    });
}

INSTANTIATE_TEST_SUITE_P(Families, ToldAsPainted,
                         ::testing::Values("mnuCANONTLotto649", "mnuCANQCLotto649", "mnuCANBCBC49",
                                           "mnuCANONTSuper7", "mnuCANONTLOTTARIO", "mnuCANONTKENO",
                                           "mnuCANONTPICK3", "mnuUSFLAPlay4"),
                         [](const auto& menu) { return std::string(menu.param); });

}  // namespace
}  // namespace sorvane::test

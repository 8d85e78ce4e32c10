#include "forms/DatePicker.h"

#include <QCalendarWidget>
#include <QKeyEvent>
#include <QLayout>
#include <QLineEdit>
#include <QPainter>
#include <QTextCharFormat>
#include <QWheelEvent>
#include <utility>

#include "forms/Look.h"

namespace sorvane::forms {

namespace {

const QDate DayZero(1899, 12, 30);

// Stands off the window under it by an outline; its weekends can be read, and its last week is whole, for
// which Qt leaves too little room.
class Calendar final : public QCalendarWidget {
  public:
    Calendar() {
        layout()->setContentsMargins(1, 1, 1, 1);
        ColourWeekend();
    }
    QSize sizeHint() const override { return minimumSizeHint(); }
    QSize minimumSizeHint() const override {
        constexpr int Rows = 7;  // the names of the days, and six weeks
        return QCalendarWidget::minimumSizeHint() + QSize(2, 2 + Rows * fontMetrics().height() / 4);
    }

  protected:
    void paintEvent(QPaintEvent* event) override {
        QCalendarWidget::paintEvent(event);
        QPainter painter(this);
        painter.setPen(Look::Edge(palette(), true));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
    void changeEvent(QEvent* event) override {
        QCalendarWidget::changeEvent(event);
        if (event->type() == QEvent::PaletteChange) ColourWeekend();
    }

  private:
    void ColourWeekend() {
        QTextCharFormat format;
        format.setForeground(Look::Weekend(palette()));
        for (const Qt::DayOfWeek day : {Qt::Saturday, Qt::Sunday}) setWeekdayTextFormat(day, format);
    }
};

}  // namespace

DatePicker::DatePicker(std::string_view name) : Control(*this, name) {
    setTimeSpec(Qt::UTC);  // no midnight is missing on the day a summer time begins
    setDisplayFormat(QStringLiteral("yyyy-MM-dd"));
    setCalendarPopup(true);
    setKeyboardTracking(false);
    setFocusPolicy(Qt::StrongFocus);
    lastDay_ = date();
    connect(this, &QDateEdit::dateChanged, this, [this] {
        // Boxes can't be shown while the focus is between two controls.
        if (leaving_)
            QMetaObject::invokeMethod(
                this, [this] { FireChange(); }, Qt::QueuedConnection);
        else FireChange();
    });
}

Date DatePicker::Value() const { return Date::FromDays(static_cast<double>(DayZero.daysTo(date()))); }

void DatePicker::SetValue(Date value) { setDate(DayZero.addDays(value.Day())); }

void DatePicker::FireChange() {
    if (std::exchange(lastDay_, date()) != date()) Fire(change_);
}

// A digit typed into a full year, month or day begins it anew; Qt would drop the first one.
void DatePicker::keyPressEvent(QKeyEvent* event) {
    const qsizetype full = currentSection() == YearSection ? 4 : 2;
    const bool digit = !event->text().isEmpty() && event->text().front().isDigit();
    if (digit && !lineEdit()->hasSelectedText() && sectionText(currentSection()).size() == full)
        setSelectedSection(currentSection());
    QDateEdit::keyPressEvent(event);
}

// The press that may open the calendar makes it.
void DatePicker::mousePressEvent(QMouseEvent* event) {
    if (!std::exchange(hasCalendar_, true)) setCalendarWidget(new Calendar);
    QDateEdit::mousePressEvent(event);
}

void DatePicker::focusOutEvent(QFocusEvent* event) {
    leaving_ = true;
    QDateEdit::focusOutEvent(event);
    leaving_ = false;
}

void DatePicker::wheelEvent(QWheelEvent* event) {
    if (hasFocus()) QDateEdit::wheelEvent(event);
    else event->ignore();
}

}  // namespace sorvane::forms

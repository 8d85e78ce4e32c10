#include "forms/DatePicker.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QWheelEvent>
#include <utility>

namespace sorvane::forms {

namespace {

const QDate DayZero(1899, 12, 30);

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

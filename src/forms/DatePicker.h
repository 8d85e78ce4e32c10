// A date with a calendar.
#pragma once

#include <QDateEdit>

#include "forms/Control.h"
#include "platform/Date.h"

namespace sorvane::forms {

// Shows the program's short form of dates. Whole days without any time zone.
class DatePicker : public QDateEdit, public Control {
  public:
    explicit DatePicker(std::string_view name);

    Date Value() const;
    // The time of day is dropped. Fires Change when the day becomes another one.
    void SetValue(Date value);
    // Change: the value has become another day, by the user or by the program: once for each finished change,
    // so not for each key of a date being typed, and not for the same day.
    void OnChange(std::function<void()> handler) { change_ = std::move(handler); }

  protected:
    // Tab leaves the control at once; the arrows go from year to month to day.
    // NOLINTNEXTLINE(bugprone-parent-virtual-call)
    bool focusNextPrevChild(bool next) override { return QWidget::focusNextPrevChild(next); }
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

  private:
    void Leave() override { FireChange(); }
    void FireChange();
    std::function<void()> change_;
    QDate lastDay_;
    bool hasCalendar_ = false;
    bool leaving_ = false;  // the focus is on its way out: Change waits until it has moved
};

}  // namespace sorvane::forms

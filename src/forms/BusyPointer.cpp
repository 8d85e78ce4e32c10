#include "forms/BusyPointer.h"

#include <QApplication>

namespace sorvane::forms {

namespace {
constexpr std::chrono::milliseconds Patience{250};
}

BusyPointer::BusyPointer(std::chrono::milliseconds expected, Clock::time_point (*now)())
    : now_(now), start_(now()) {
    if (expected > Patience) Show();
}

BusyPointer::~BusyPointer() {
    if (shown_) QApplication::restoreOverrideCursor();
}

void BusyPointer::Tick() {
    if (!shown_ && now_() - start_ > Patience) Show();
}

void BusyPointer::Show() {
    QApplication::setOverrideCursor(Qt::WaitCursor);
    shown_ = true;
}

}  // namespace sorvane::forms

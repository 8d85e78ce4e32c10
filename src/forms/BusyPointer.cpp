#include "forms/BusyPointer.h"

#include <QApplication>

namespace sorvane::forms {

namespace {
constexpr std::chrono::milliseconds Patience{250};
}

BusyPointer::BusyPointer(std::chrono::milliseconds expected) : start_(std::chrono::steady_clock::now()) {
    if (expected > Patience) Show();
}

BusyPointer::~BusyPointer() {
    if (shown_) QApplication::restoreOverrideCursor();
}

void BusyPointer::Tick() {
    if (!shown_ && std::chrono::steady_clock::now() - start_ > Patience) Show();
}

void BusyPointer::Show() {
    QApplication::setOverrideCursor(Qt::WaitCursor);
    shown_ = true;
}

}  // namespace sorvane::forms

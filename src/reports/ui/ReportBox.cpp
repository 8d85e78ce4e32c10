#include "reports/ui/ReportBox.h"

#include <QScrollBar>
#include <exception>

#include "forms/BusyPointer.h"

namespace sorvane {

namespace {
// As wide as the head line under the longest title of a window.
constexpr int Columns = 80, LeastColumns = 32;
constexpr int Lines = 28, LeastLines = 8;
}  // namespace

ReportBox::ReportBox(std::string_view name) : MultiLineBox(name) {
    SetReadOnly(true);
    SetFixedPitch();
    SetAccessibleName("Report");
    SetVisible(false);
    setMinimumSize(SizeFor(LeastColumns, LeastLines));
}

QSize ReportBox::SizeFor(int columns, int lines) const {
    const QFontMetrics metrics = fontMetrics();
    const int frame = 2 * (frameWidth() + static_cast<int>(document()->documentMargin()));
    return {metrics.horizontalAdvance(QString(columns, QLatin1Char('0'))) + frame +
                verticalScrollBar()->sizeHint().width(),
            metrics.lineSpacing() * lines + frame};
}

QSize ReportBox::sizeHint() const { return SizeFor(Columns, Lines); }

void ReportBox::Write(const std::function<void(std::string& text)>& write) {
    forms::BusyPointer busy;
    const std::string before = Text();
    std::string text = before;
    std::exception_ptr failure;
    try {
        write(text);
    } catch (...) {
        failure = std::current_exception();
    }
    busy.Tick();
    // The same text again would scroll back to the top.
    if (text != before) SetText(text);
    if (failure) std::rethrow_exception(failure);
}

}  // namespace sorvane

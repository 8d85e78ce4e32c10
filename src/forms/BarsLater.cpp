#include <QCoreApplication>
#include <QLabel>
#include <QLibrary>
#include <QVBoxLayout>

#include "forms/Bars.h"

namespace sorvane::forms {

namespace {

using Draw = void (*)(QWidget* on, const Bars* bars);

// It stands below the program's folder. Qt loads it once and keeps it.
Draw Load() {
    QLibrary library(QCoreApplication::applicationDirPath() + QStringLiteral("/modules/sorvane-charts"));
    return reinterpret_cast<Draw>(library.resolve("SorvaneDrawBars"));
}

}  // namespace

void DrawBars(QWidget& on, const Bars& bars) {
    if (const Draw draw = Load()) return draw(&on, &bars);
    if (on.layout() != nullptr) return;
    auto* missing = new QLabel(QStringLiteral("Charts need the folder modules beside the program."), &on);
    missing->setAlignment(Qt::AlignCenter);
    missing->setWordWrap(true);
    (new QVBoxLayout(&on))->addWidget(missing);
}

}  // namespace sorvane::forms

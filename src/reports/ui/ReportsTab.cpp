#include "reports/ui/ReportsTab.h"

#include <QVBoxLayout>

#include "entry/ui/GameWindow.h"

namespace sorvane {

ReportsTab::ReportsTab(GameWindow& window) : window_(window) {
    auto* page = new QVBoxLayout(&window_.Pages[Tab::Reports]);
    page->addWidget(&window_.cmdExit.Load(3, "E&xit"));
}

void ReportsTab::ClearCharts() {}

}  // namespace sorvane

#include "checking/ui/CheckTicketsTab.h"

#include <QVBoxLayout>

#include "entry/ui/GameWindow.h"

namespace sorvane {

CheckTicketsTab::CheckTicketsTab(GameWindow& window) : window_(window) {
    auto* page = new QVBoxLayout(&window_.Pages[Tab::Check]);
    page->addWidget(&window_.dtpEnterTickets.Load(2));
    page->addWidget(&window_.cmdExit.Load(2, "E&xit"));
}

void CheckTicketsTab::ForgetResults() {}

}  // namespace sorvane

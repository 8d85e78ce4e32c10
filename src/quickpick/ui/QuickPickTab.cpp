#include "quickpick/ui/QuickPickTab.h"

#include <QVBoxLayout>

#include "entry/ui/GameWindow.h"

namespace sorvane {

QuickPickTab::QuickPickTab(GameWindow& window) : window_(window) {
    auto* page = new QVBoxLayout(&window_.Pages[Tab::QuickPick]);
    page->addWidget(&window_.dtpEnterTickets.Load(1));
    page->addWidget(&window_.txtNoOfTickets.Load(1));
    page->addWidget(&cmdGenerate);
    page->addWidget(&window_.cmdExit.Load(1, "E&xit"));
    if (IsKeno(window_.Which)) page->addWidget(&cboNoOfQPs.emplace("cboNoOfQPs"));
}

void QuickPickTab::ChooseHot() {}

}  // namespace sorvane

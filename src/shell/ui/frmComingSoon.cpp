#include "shell/ui/frmComingSoon.h"

#include <QVBoxLayout>

#include "forms/Look.h"

namespace sorvane {

frmComingSoon::frmComingSoon() : Window("frmComingSoon") {
    // So spelled.
    SetCaption("Were Working on it!");
    SetCloseButton(cmdOk);
    cmdOk.OnClick([this] { Unload(); });
    const int margin = forms::Look::Margin(*this) * 2;
    auto* whole = new QVBoxLayout(this);
    whole->setContentsMargins(margin, margin, margin, margin);
    whole->setSpacing(margin);
    whole->addWidget(&lblPlease);
    whole->addWidget(&cmdOk, 0, Qt::AlignRight);
}

}  // namespace sorvane

#include "reports/ui/frmReportType.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "forms/Look.h"
#include "reports/ReportTypes.h"
#include "shell/Catalogue.h"

namespace sorvane {

frmReportType::frmReportType(Session& session) : Window("frmReportType") {
    SetCaption("Type of Report");
    SetCloseButton(cmdCancel);
    SetEscapeButton(cmdCancel);
    for (std::size_t i = 0; i < ReportTypes::All.size(); ++i)
        optReportType.Load(static_cast<int>(i), ReportTypes::All[i]);
    optReportType.OnClick([&session](int Index) {
        session.global.ReportType = ReportTypes::All[static_cast<std::size_t>(Index)];
    });
    cmdOK.OnClick([this] { Unload(); });
    cmdCancel.OnClick([this, &session] {
        session.global.ReportType.clear();
        Unload();
    });
    SetFirstFocus(optReportType(0));
    LayOut();
    if (!CellsOf(session.global.LottoFlag).HasTriples) optReportType(1).SetVisible(false);
}

void frmReportType::LayOut() {
    const int gap = forms::Look::Gap(*this), margin = forms::Look::Margin(*this);
    auto* whole = new QVBoxLayout(this);
    whole->setContentsMargins(margin, margin, margin, margin);
    whole->setSpacing(forms::Look::Space(*this));
    whole->addStrut(forms::Look::TitleWidth(*this));
    optReportType.ForEach(
        [&](forms::OptionButton& option, int) { whole->addWidget(&option, 0, Qt::AlignLeft); });
    whole->addSpacing(gap);
    whole->addStretch();
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(&cmdOK);
    buttons->addWidget(&cmdCancel);
    whole->addLayout(buttons);
}

}  // namespace sorvane

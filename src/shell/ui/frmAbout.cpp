#include "shell/ui/frmAbout.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>
#include <string>

#include "forms/Look.h"
#include "shell/Deployment.h"
#include "shell/SystemInformation.h"

namespace sorvane {

frmAbout::frmAbout(Session& session) : Window("frmAbout") {
    SetCaption("About " + std::string(ProgramName));
    lblVersion.SetCaption("Version " + std::string(Deployment::Version));
    lblDescription.SetCaption(
        "Play your lotteries, track them with Sorvane. Keep track of how much you spend, how much you win. "
        "Check your numbers quickly with the \"Check Tickets\" function. Create your own Quick Picks, and "
        "more!");
    lblDisclaimer.SetCaption(Deployment::Disclaimer);
    picIcon.SetFile(":/pictures/icon.svg");
    SetCloseButton(cmdOK);
    SetFirstFocus(cmdOK);
    cmdOK.OnClick([this] { Unload(); });
    cmdSysInfo.OnClick([&session] { StartSysInfo(session.services); });
    LayOut();
}

void frmAbout::LayOut() {
    const int space = forms::Look::Space(*this), gap = forms::Look::Gap(*this);
    const int margin = forms::Look::Margin(*this) * 2;
    const int icon = forms::Look::BallSize(*this) * 2;
    picIcon.setFixedSize(icon, icon);
    forms::Look::Enlarge(lblTitle, 1.8);
    for (forms::Label* text : {&lblDescription, &lblDisclaimer}) {
        text->setWordWrap(true);
        text->setMinimumWidth(forms::Look::DigitsWidth(*this, 50));
    }
    auto* head = new QGridLayout;
    head->setHorizontalSpacing(margin);
    head->setVerticalSpacing(space);
    head->addWidget(&picIcon, 0, 0, 3, 1, Qt::AlignTop);
    head->addWidget(&lblTitle, 0, 1);
    head->addWidget(&lblVersion, 1, 1);
    head->addWidget(&lblDescription, 2, 1);
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(space);
    buttons->addStretch();
    buttons->addWidget(&cmdSysInfo);
    buttons->addWidget(&cmdOK);
    auto* whole = new QVBoxLayout(this);
    whole->setContentsMargins(margin, margin, margin, margin);
    whole->setSpacing(gap);
    whole->addLayout(head);
    whole->addSpacing(gap);
    whole->addWidget(&Line1);
    whole->addWidget(&lblDisclaimer);
    whole->addStretch();
    whole->addSpacing(gap);
    whole->addLayout(buttons);
}

}  // namespace sorvane

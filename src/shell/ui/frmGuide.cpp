#include "shell/ui/frmGuide.h"

#include <QBoxLayout>
#include <QScrollBar>
#include <algorithm>
#include <utility>

#include "forms/Keys.h"
#include "forms/Look.h"

namespace sorvane {

frmGuide::frmGuide(const std::string& path, std::string_view chapter) : Window(WindowName) {
    SetCaption("The Player's Guide");
    SetCloseButton(cmdExit);
    SetEscapeButton(cmdExit);
    SetFirstFocus(txtGuide);
    SetFallbackFocus({&txtGuide});
    txtGuide.SetAccessibleName("Guide");
    txtGuide.OnOpen([this] { ListContents(); });
    txtGuide.OnMove([this] { ShowWhere(); });
    lstContents.OnClick([this] { txtGuide.GoTo(lstContents.ListIndex()); });
    lstContents.OnDblClick([this] { txtGuide.SetFocus(); });
    txtSearch.OnChange([this] { lblFound.SetCaption(""); });
    txtSearch.OnKeyPress([this](forms::KeyPress& key) {
        if (key.KeyAscii == forms::EnterKey) cmdFindNext_Click();
    });
    cmdFindNext.OnClick([this] { cmdFindNext_Click(); });
    cmdBack.OnClick([this] { txtGuide.GoBack(); });
    cmdExit.OnClick([this] { Unload(); });
    if (!txtGuide.Open(path, chapter))
        txtGuide.SetText("The guide is not here. It should be in this file:\n\n" + path);
    ShowWhere();
    LayOut();
}

void frmGuide::LayOut() {
    const int space = forms::Look::Space(*this), gap = forms::Look::Gap(*this);
    lblContents.SetBuddy(lstContents);
    lblSearch.SetBuddy(txtSearch);
    // Whole lines in a row beside the page; over it, where there is little room, a few of them.
    const int lines = lstContents.sizeHintForColumn(0) + 2 * lstContents.frameWidth() +
                      lstContents.verticalScrollBar()->sizeHint().width();
    if (!forms::Look::IsNarrow(*this)) lstContents.setFixedWidth(lines);
    auto* contents = new QVBoxLayout;
    contents->setSpacing(space);
    contents->addWidget(&lblContents);
    contents->addWidget(&lstContents);
    auto* search = new QHBoxLayout;
    search->setSpacing(space);
    search->addWidget(&lblSearch);
    search->addWidget(&txtSearch, 1);
    search->addWidget(&cmdFindNext);
    search->addWidget(&lblFound, 1);
    search->addWidget(&cmdBack);
    search->addWidget(&cmdExit);
    QBoxLayout* pages = forms::Look::Row(*this);
    pages->addLayout(contents, 1);
    pages->addWidget(&txtGuide, 4);
    auto* whole = new QVBoxLayout(this);
    const int margin = forms::Look::Margin(*this);
    whole->setContentsMargins(margin, margin, margin, margin);
    whole->setSpacing(gap);
    whole->addLayout(pages, 1);
    whole->addLayout(search);
    forms::SetTabOrder({&txtGuide, &lstContents, &txtSearch, &cmdFindNext, &cmdBack, &cmdExit});
}

void frmGuide::ListContents() {
    lstContents.Clear();
    for (const auto& [level, heading] : txtGuide.Headings())
        lstContents.AddItem(std::string(static_cast<std::size_t>(std::max(level - 2, 0)) * 4, ' ') + heading);
}

void frmGuide::ShowWhere() {
    lstContents.SetListIndex(txtGuide.HeadingInView());
    cmdBack.SetEnabled(txtGuide.CanGoBack());
}

void frmGuide::cmdFindNext_Click() {
    lblFound.SetCaption(txtGuide.FindNext(txtSearch.Text()) ? "" : "Not found.");
}

}  // namespace sorvane

#include "shell/ui/frmMain.h"

#include <QHBoxLayout>
#include <QVBoxLayout>
#include <filesystem>
#include <utility>
#include <vector>

#include "forms/BusyPointer.h"
#include "forms/Look.h"
#include "forms/Runtime.h"
#include "shell/Dressing.h"
#include "shell/SelectGame.h"
#include "shell/ui/Dress.h"
#include "shell/ui/GameFrame.h"
#include "shell/ui/Windows.h"
#include "shell/ui/frmAbout.h"
#include "shell/ui/frmComingSoon.h"
#include "shell/ui/frmRequestNewLottery.h"
#include "store/CheckTB_DBExists.h"
#include "store/CreateTables.h"

namespace sorvane {

frmMain::frmMain(Session& session, Windows& windows, std::string applicationFolder, std::function<void()> end)
    : Window("frmMain", Kind::Main),
      session_(session),
      windows_(windows),
      applicationFolder_(std::move(applicationFolder)),
      end_(std::move(end)) {
    SetCaption(ProgramName);
    SetCloseButton(cmdExit);
    cmdExit.OnClick([this] { cmdExit_Click(); });
    Picture1.SetFileLater(":/pictures/splash.svg", QSize(720, 300));
    BuildMenu();
    LayOut();
}

void frmMain::LayOut() {
    const int gap = forms::Look::Gap(*this), margin = forms::Look::Margin(*this) * 2;
    forms::Look::Enlarge(Title, 2.4);
    forms::Look::Enlarge(Label1, 1.2);
    Picture1.setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(&cmdExit);
    auto* whole = new QVBoxLayout(this);
    whole->setMenuBar(&menu_);
    whole->setContentsMargins(margin, margin, margin, margin);
    whole->setSpacing(gap);
    whole->addWidget(&Picture1, 1);
    whole->addSpacing(gap);
    whole->addWidget(&Title);
    whole->addWidget(&Label1);
    whole->addSpacing(gap);
    whole->addWidget(&Line1);
    whole->addLayout(buttons);
}

void frmMain::BuildMenu() {
    std::vector<forms::Menu*> path;
    for (const MenuEntry& entry : MenuTree()) {
        path.resize(static_cast<std::size_t>(entry.level));
        if (entry.action != MenuAction::Menu)
            path.back()->AddEntry(entry.name, entry.caption, HandlerOf(entry));
        else if (path.empty()) path.push_back(&menu_.AddMenu(entry.name, entry.caption));
        else path.push_back(&path.back()->AddMenu(entry.name, entry.caption));
    }
}

// What an entry does; one without a handler is turned off.
std::function<void()> frmMain::HandlerOf(const MenuEntry& entry) {
    const auto shows = [this](auto make) {
        return [this, make] {
            const auto window = make();
            windows_.ShowModal(*window);
        };
    };
    switch (entry.action) {
        case MenuAction::Game:
            return [this, game = FindGame(entry.name)] { Open(*game); };
        case MenuAction::Notice:
            return shows([] { return std::make_unique<frmComingSoon>(); });
        case MenuAction::Exit:
            return end_;
        case MenuAction::Request:
            return shows([this] { return std::make_unique<frmRequestNewLottery>(session_); });
        case MenuAction::About:
            return shows([this] { return std::make_unique<frmAbout>(session_); });
        case MenuAction::Report:
            return shows([this] {
                session_.global.LottoFlag.clear();  // all lotteries
                return windows_.MakeReport();
            });
        case MenuAction::Menu:
        case MenuAction::Dead:
            break;
    }
    return nullptr;
}

void frmMain::Load() {
    forms::Runtime::Current().Handle([this] { Form_Load(); });
}

void frmMain::Form_Load() {
    namespace fs = std::filesystem;
    session_.global.NL = "\r\n";
    session_.global.AppPath = (fs::path(applicationFolder_) / "").make_preferred().string();

    const std::string DbName = DatabasePath(session_.global.AppPath);
    CheckDatabaseExists(session_, DbName);
    const auto makeSureOf = [&](std::string TableName, auto create) {
        MakeSureOf(session_, {DbName, TableName}, [&] {
            create(session_, {DbName, TableName}, PrimaryFieldName, DateFieldName);
        });
    };
    makeSureOf("Spent", CreateSpentTable);
    makeSureOf("Winnings", CreateWinningsTable);
}

// The keys are in place before the window loads, because its load event reads them. The title may go to
// another window than the one that opens, which loads that one too.
void frmMain::Open(const Game& game) {
    Select(session_.global, game);
    windows_.Load(game.titleGoesTo.value_or(game.opens)).SetCaption(game.title);
    GameFrame& window = windows_.Load(game.opens);
    Dress(window, DressingOf(game));
    windows_.ShowModal(window);
}

// The routine that opened something has closed it; only the flags are left to be cleared.
void frmMain::cmdExit_Click() {
    session_.global.Open = {};
    end_();
}

}  // namespace sorvane

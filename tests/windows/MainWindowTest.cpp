#include "MainWindow.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace sorvane::test {
namespace {

namespace fs = std::filesystem;

class Started : public MainWindow {
  public:
    Started() { Start(); }
};

std::string ContentOf(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

TEST_F(Started, ShowsItsTitleTheWordsAndTheWayOut) {
    EXPECT_EQ(frm.Caption(), "Sorvane");
    EXPECT_EQ(CaptionOf("Title"), "Sorvane ");
    EXPECT_EQ(CaptionOf("Label1"), "The complete lottery management program!");
    EXPECT_EQ(CaptionOf("cmdExit"), "E&xit");
}

TEST_F(Started, TheRuleStandsBetweenThePictureAndTheButton) {
    ASSERT_TRUE(IsShown("Picture1"));
    EXPECT_GT(Find("Picture1").width(), frm.width() / 2);
    EXPECT_LT(Find("Picture1").geometry().bottom(), Find("Line1").y());
    EXPECT_LT(Find("Line1").y(), Find("cmdExit").y());
}

struct Shown {
    int level;
    std::string name, caption;
    bool operator==(const Shown&) const = default;
};

void Walk(const QList<QAction*>& entries, int level, std::vector<Shown>& into) {
    for (const QAction* entry : entries) {
        into.push_back({level, forms::ToUtf8(entry->objectName()), forms::ToUtf8(entry->text())});
        if (entry->menu()) Walk(entry->menu()->actions(), level + 1, into);
    }
}

TEST_F(Started, TheMenuIsTheWholeTreeInItsOrder) {
    std::vector<Shown> shown, tree;
    Walk(frm.findChild<QMenuBar*>()->actions(), 0, shown);
    for (const MenuEntry& entry : MenuTree())
        tree.push_back({entry.level, std::string(entry.name), std::string(entry.caption)});
    ASSERT_EQ(shown.size(), tree.size());
    for (std::size_t i = 0; i < tree.size(); ++i) EXPECT_EQ(shown[i], tree[i]) << tree[i].name;
}

TEST_F(Started, TheOnlyWorkingEntryOfTheFileMenuIsExit) {
    for (const QAction* entry : Entry("mnuFile").menu()->actions())
        EXPECT_EQ(entry->isEnabled(), entry->objectName() == "mnuFileExit")
            << qPrintable(entry->objectName());
    for (const char* dead : {"mnuFileUpgrade", "mnuFileBackup", "mnuFileRestore"}) {
        Choose(dead);
        while (QApplication::activePopupWidget()) person.Key(Qt::Key_Escape);
        frm.activateWindow();
    }
    EXPECT_EQ(ended, 0);
}

TEST_F(Started, AllOtherEntriesAreTurnedOn) {
    for (const MenuEntry& entry : MenuTree())
        if (entry.action != MenuAction::Dead) {
            EXPECT_TRUE(Entry(entry.name).isEnabled()) << entry.name;
        }
}

TEST_F(Started, TwelveEntriesShowTheNoticeAndLeaveTheGameAsItWas) {
    global.LottoFlag = "BC49";
    global.ExtraFlag = "Extra";
    global.NoOfSheets = 4;
    for (const MenuEntry& entry : MenuTree()) {
        if (entry.action != MenuAction::Notice) continue;
        SCOPED_TRACE(entry.name);
        person.ExpectWindow("frmComingSoon", [&](QWidget& notice) {
            EXPECT_EQ(notice.windowTitle(), "Were Working on it!");
            EXPECT_EQ(CaptionOf("lblPlease"), "Please be patient. We're working on this one. Thank You.");
            EXPECT_EQ(CaptionOf("cmdOk"), "&Ok");
            Click("cmdOk");
        });
        Choose(entry.name);
        EXPECT_EQ(person.Awaited(), 0);
        EXPECT_EQ(global.LottoFlag, "BC49");
        EXPECT_EQ(global.ExtraFlag, "Extra");
        EXPECT_EQ(global.NoOfSheets, 4);
    }
    for (const Family family : AllFamilies) EXPECT_FALSE(windows.IsLoaded(family));
}

TEST_F(Started, TheNoticeIsLeftByItsCloseBoxToo) {
    person.ExpectWindow("frmComingSoon", [&](QWidget& notice) { person.Close(notice); });
    Choose("mnuUSPowerball");
}

TEST_F(Started, EscapeDoesNothingInTheNotice) {
    person.ExpectWindow("frmComingSoon", [&](QWidget& notice) {
        person.Key(Qt::Key_Escape);
        EXPECT_TRUE(notice.isVisible());
        person.AccessKey('o');
    });
    Choose("mnuUSPowerball");
}

TEST_F(Started, RequestLotteryOpensTheRequestForm) {
    person.ExpectWindow("frmRequestNewLottery", [&](QWidget&) { Click("cmdExit"); });
    Choose("mnuOTHERRequest");
}

TEST_F(Started, AboutOpensTheAboutBox) {
    person.ExpectWindow("frmAbout", [&](QWidget&) { Click("cmdOK"); });
    Choose("mnuHelpAbout");
}

TEST_F(Started, ExitOfTheMenuEndsAtOnceAndClosesNothing) {
    global.Open.DbOpen = global.Open.RsOpen = global.Open.WsOpen = On;
    Choose("mnuFileExit");
    EXPECT_EQ(ended, 1);
    EXPECT_EQ(global.Open.DbOpen, On);
    EXPECT_EQ(global.Open.RsOpen, On);
    EXPECT_EQ(global.Open.WsOpen, On);
}

TEST_F(Started, ExitOfTheButtonClosesWhatIsOpenAndEnds) {
    global.Open.DbOpen = global.Open.RsOpen = global.Open.WsOpen = On;
    Click("cmdExit");
    EXPECT_EQ(ended, 1);
    EXPECT_EQ(global.Open.DbOpen, Off);
    EXPECT_EQ(global.Open.RsOpen, Off);
    EXPECT_EQ(global.Open.WsOpen, Off);
}

TEST_F(Started, TheAccessKeyOfExitIsTheButton) {
    person.AccessKey('x');
    EXPECT_EQ(ended, 1);
}

TEST_F(Started, TheCloseBoxIsTheButton) {
    global.Open.DbOpen = On;
    person.Close(frm);
    EXPECT_EQ(ended, 1);
    EXPECT_EQ(global.Open.DbOpen, Off);
}

TEST_F(Started, EscapeDoesNothing) {
    person.Key(Qt::Key_Escape);
    EXPECT_EQ(ended, 0);
    EXPECT_TRUE(frm.isVisible());
}

TEST_F(Started, TheCloseBoxEndsWithAHiddenWindowLoaded) {
    windows.Load(Family::frm649);
    person.Close(frm);
    EXPECT_EQ(ended, 1);
}

TEST_F(Started, TakesNoInputWhileAnotherWindowIsOpen) {
    person.ExpectWindow("frmComingSoon", [&](QWidget&) {
        person.Close(frm);
        EXPECT_TRUE(frm.isVisible());
        EXPECT_EQ(ended, 0);
        Click("cmdOk");
    });
    Choose("mnuCANBCKeno");
}

TEST_F(MainWindow, StartSetsTheLineBreakAndTheFolder) {
    Start();
    EXPECT_EQ(global.NL, "\r\n");
    const std::string separator(1, static_cast<char>(fs::path::preferred_separator));
    EXPECT_EQ(global.AppPath, folder.Path().string() + separator);
}

TEST_F(MainWindow, TheFirstStartMakesFolderFileAndLedgersWithoutAMessage) {
    ASSERT_FALSE(fs::exists(folder / "data"));
    Start();
    EXPECT_TRUE(fs::is_regular_file(folder / "data" / "sorvane.mdb"));
    EXPECT_EQ(Plain().Tables(), (Texts{"Spent", "Winnings"}));
}

TEST_F(MainWindow, ASecondStartFindsEverythingAndChangesNothing) {
    frm.Load();
    Do("INSERT INTO Spent (ID1, Lottoflag, Date, Spent) VALUES (1, 'BC49', 38000, 2)");
    const std::string before = ContentOf(folder / "data" / "sorvane.mdb");
    Start();
    EXPECT_EQ(ContentOf(folder / "data" / "sorvane.mdb"), before);
}

TEST_F(MainWindow, AMissingLedgerIsMadeWithoutAMessage) {
    frm.Load();
    Do("DROP TABLE Winnings");
    Start();
    EXPECT_EQ(Plain().Tables(), (Texts{"Spent", "Winnings"}));
}

TEST_F(MainWindow, WithoutAFolderToWriteToItSaysSoAndGoesOn) {
    std::ofstream(folder / "data") << "not a folder";
    person.Expect("Sorvane", "Run-time error '75':\r\n\r\nPath/File access error", Answer::Ok,
                  BoxStyle::Stop);
    Start();
    EXPECT_TRUE(frm.isVisible());
}

TEST_F(MainWindow, ADamagedFileAsksUntilItIsRepaired) {
    fs::create_directory(folder / "data");
    const fs::path file = folder / "data" / "sorvane.mdb";
    std::ofstream(file) << std::string(4096, 'x');
    const std::string text =
        "ERROR #3343\r\nUnexpected error occurred. Please advise error number to support.";
    person.Expect("ERROR!", text, Answer::Ok, BoxStyle::Stop);
    person.Expect("ERROR!", text, Answer::Ok, BoxStyle::Stop);
    person.Expect("ERROR!", text, Answer::Ok, BoxStyle::Stop, [&] { std::ofstream(file, std::ios::trunc); });
    Start();
    EXPECT_EQ(Plain().Tables(), (Texts{"Spent", "Winnings"}));
}

TEST_F(Started, TheAllLotteriesReportForgetsTheGame) {
    global.LottoFlag = "BC49";
    person.ExpectWindow("frmReport", [&](QWidget& report) { person.Close(report); });
    Choose("mnuReportsPL");
    EXPECT_EQ(global.LottoFlag, "");
}

// The exits in a process of its own, which has really ended when the loop is over.
constexpr int Over = 42;

// Runs the program's loop with an action waiting in it; Over when the loop has come to its end.
int Ending(void (*act)(frmMain&, Windows&)) {
    TempFolder place;
    testing::FixedClock clock{Date::FromYmd(2026, 3, 14)};
    testing::FixedRandom random;
    testing::RecordingPrinter printer;
    testing::RecordingTools tools;
    forms::MessageBoxes boxes;
    Dao::Engine engine;
    Services services{boxes, printer, clock, random, tools, engine};
    Global global;
    Session session{global, services};
    Windows windows{session, Makers};
    frmMain main(session, windows, place.Path().string(), [] { QCoreApplication::exit(); });
    main.Load();
    main.Show();
    QTimer::singleShot(0, &main, [&] { act(main, windows); });
    return QCoreApplication::exec() == 0 ? Over : 1;
}

TEST(EndingDeathTest, TheButtonEndsTheProgram) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(
        std::_Exit(Ending([](frmMain& main, Windows&) { main.findChild<QPushButton*>("cmdExit")->click(); })),
        ::testing::ExitedWithCode(Over), "");
}

TEST(EndingDeathTest, TheMenuEndsTheProgram) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(std::_Exit(Ending(
                    [](frmMain& main, Windows&) { main.findChild<QAction*>("mnuFileExit")->trigger(); })),
                ::testing::ExitedWithCode(Over), "");
}

TEST(EndingDeathTest, TheCloseBoxEndsTheProgramWithAHiddenWindowLoaded) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(std::_Exit(Ending([](frmMain& main, Windows& windows) {
                    windows.Load(Family::frmPick3);
                    main.close();
                })),
                ::testing::ExitedWithCode(Over), "");
}

}  // namespace
}  // namespace sorvane::test

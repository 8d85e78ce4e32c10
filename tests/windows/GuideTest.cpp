// F1 and the player's guide.
#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QCalendarWidget>
#include <QComboBox>
#include <QDateEdit>
#include <QImage>
#include <QLabel>
#include <QListView>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextBrowser>
#include <fstream>
#include <map>

#include "forms/Look.h"
#include "shell/GuideFacts.h"
#include "shell/ui/frmGuide.h"
#include "support/Palettes.h"
#include "support/Stage.h"
#include "windows/EveryWindow.h"

namespace sorvane::test {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view FirstPage = "The player's guide";

class Guide : public MainWindow {
  public:
    Guide() {
        global.AppPath = (folder.Path() / "").string();
        Install();
    }

    void Install() const {
        fs::create_directories(folder / "share/doc/sorvane");
        fs::create_directory_symlink(SORVANE_SOURCE_FOLDER "/docs", folder / "share/doc/sorvane/docs");
    }
    void Uninstall() const { fs::remove_all(folder / "share"); }
    // A guide of the test's own.
    void Write(const std::string& text) const {
        Uninstall();
        fs::create_directories(folder / "share/doc/sorvane/docs");
        std::ofstream(folder / GuideFacts::File) << text;
    }

    // Presses F1, uses the guide that comes, and leaves it by Escape.
    void Help(const std::function<void()>& act) {
        bool came = false;
        person.ExpectWindow("frmGuide", [&](QWidget& guide) {
            came = true;
            act();
            if (guide.isVisible()) person.Key(Qt::Key_Escape);
        });
        person.Key(Qt::Key_F1);
        EXPECT_TRUE(came);
    }
    std::string ChapterByF1() {
        std::string chapter;
        Help([&] { chapter = AtTheTop(); });
        return chapter;
    }

    QTextBrowser& Page() const { return person.Find<QTextBrowser>("txtGuide"); }
    QListView& Contents() const { return person.Find<QListView>("lstContents"); }
    // The first line that can be read, which the list of contents agrees with.
    std::string AtTheTop() const {
        Person::Settle();
        const int below = forms::Look::Gap(Page());
        const std::string top = forms::ToUtf8(Page().cursorForPosition({below, below}).block().text());
        const std::string selected = forms::ToUtf8(Contents().currentIndex().data().toString());
        EXPECT_EQ(selected.substr(selected.find_first_not_of(' ')), top);
        return top;
    }
    int RowOf(std::string_view chapter) const {
        const Texts rows = ListOf("lstContents");
        const auto found = std::find_if(rows.begin(), rows.end(), [&](const std::string& row) {
            return row.substr(row.find_first_not_of(' ')) == chapter;
        });
        if (found == rows.end()) throw std::runtime_error("no chapter " + std::string(chapter));
        return static_cast<int>(found - rows.begin());
    }
    std::string Selected() const { return forms::ToUtf8(Page().textCursor().selectedText()); }
    // Where on the page a place of the document can be clicked.
    void ClickLink(std::string_view text) {
        QTextCursor at = Page().document()->find(forms::ToQt(text));
        ASSERT_FALSE(at.isNull()) << text;
        at.setPosition(at.selectionStart() + 1);
        person.Click(*Page().viewport(), Page().cursorRect(at).center());
    }
};

TEST_F(Guide, F1InTheMainWindowOpensItAtTheMenu) {
    Start();
    Help([&] {
        EXPECT_EQ(person.Front().windowTitle(), "The Player's Guide");
        EXPECT_TRUE(person.Front().isModal());
        EXPECT_EQ(AtTheTop(), "Finding your game");
        EXPECT_EQ(Focus(), "txtGuide");
    });
    EXPECT_EQ(&person.Front(), &frm);
    EXPECT_EQ(ended, 0);
}

TEST_F(Guide, EachTabHasItsChapter) {
    const std::map<std::string, std::string> slips = {
        {"mnuCANONTLotto649", "Your first sheet"},
        {"mnuCANATLSuper7", "Bonus tickets: Super 7 and Lottario"},
        {"mnuCANONTLOTTARIO", "Bonus tickets: Super 7 and Lottario"},
        {"mnuCANONTKENO", "Daily Keno"},
        {"mnuCANONTPICK3", "Digit games"}};
    for (const auto& [menu, slip] : slips) {
        SCOPED_TRACE(menu);
        GameWindow& window = Show(menu);
        const std::pair<int, std::string> chapters[] = {{Tab::Enter, slip},
                                                        {Tab::Check, "Checking your tickets"},
                                                        {Tab::Reports, "Charts and reports"},
                                                        {Tab::QuickPick, "Quick picks and wheels"}};
        for (const auto& [tab, chapter] : chapters) {
            window.SSTab1.SetTab(tab);
            EXPECT_EQ(ChapterByF1(), chapter);
            EXPECT_EQ(&person.Front(), &window);
        }
        window.Leave();
    }
}

TEST_F(Guide, TheOtherWindowsHaveTheirChapters) {
    const std::map<std::string, std::string_view> chapters = {
        {"frmMain", "Finding your game"},         {"frmAbout", FirstPage},
        {"frmComingSoon", "Finding your game"},   {"frmRequestNewLottery", "Finding your game"},
        {"frmReport", "Charts and reports"},      {"frmReportType", "Charts and reports"},
        {"frmHowManySheets", "Your first sheet"}, {"frmTicketsOnSheet", "Your first sheet"}};
    std::size_t seen = 0;
    SeeOtherWindows(*this, [&](forms::Window& window) {
        if (window.Name() == frmGuide::WindowName) return;
        EXPECT_EQ(ChapterByF1(), chapters.at(window.Name())) << window.Name();
        EXPECT_TRUE(window.IsShown());
        ++seen;
    });
    EXPECT_EQ(seen, chapters.size());
}

// Whatever has the focus; and it keeps it. Some fields object to being left, and are left aside then.
TEST_F(Guide, F1WorksFromEveryControl) {
    int guides = 0, tried = 0;
    person.MeetAll([&](QWidget& modal) {
        guides += modal.objectName() == "frmGuide";
        person.Key(Qt::Key_Escape);
    });
    const auto fromEach = [&](QWidget& window) {
        for (auto* widget : window.findChildren<QWidget*>()) {
            if (!dynamic_cast<forms::Control*>(widget) || !widget->isVisible() || !widget->isEnabled() ||
                !(widget->focusPolicy() & Qt::TabFocus))
                continue;
            widget->setFocus();
            Person::Settle();
            if (window.focusWidget() != widget) continue;
            const int before = guides;
            person.Key(Qt::Key_F1);
            EXPECT_EQ(guides, before + 1) << qPrintable(widget->objectName());
            EXPECT_EQ(window.focusWidget(), widget);
            ++tried;
        }
    };
    Write("# Short\n");
    for (const char* menu : {"mnuCANONTLotto649", "mnuCANONTKENO", "mnuCANONTPICK3"}) {
        GameWindow& window = Show(menu);
        for (const int tab : {Tab::Enter, Tab::Check, Tab::Reports, Tab::QuickPick}) {
            window.SSTab1.SetTab(tab);
            Person::Settle();
            fromEach(window);
        }
        window.Leave();
    }
    frmRequestNewLottery request(session);
    request.Show();
    Person::Await(request);
    fromEach(request);
    request.Unload();
    EXPECT_GT(tried, 60);
}

TEST_F(Guide, WithAltF1OrShiftF1NothingOpens) {
    Show("mnuCANONTLotto649");
    for (const auto modifier : {Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier})
        person.Key(Qt::Key_F1, modifier);
    EXPECT_EQ(person.Front().objectName(), "frm649");
}

TEST_F(Guide, AnEntryGoesOnAsIfItHadNotBeenOpened) {
    Show("mnuCANONTLotto649");
    Type("txtNoOfTickets(0)", "1");
    const auto file = [&] {
        std::ifstream bytes(folder / "data/sorvane.mdb", std::ios::binary);
        return std::string(std::istreambuf_iterator<char>(bytes), {});
    };
    const std::string before = file();
    EXPECT_FALSE(before.empty());
    // Leaving the count would open the slip.
    EXPECT_FALSE(IsEnabled("chkNumb(0)"));
    ChapterByF1();
    EXPECT_FALSE(IsEnabled("chkNumb(0)"));
    EXPECT_EQ(Focus(), "txtNoOfTickets(0)");
    EXPECT_EQ(TextOf("txtNoOfTickets(0)"), "1");
    EXPECT_EQ(global.NoOfTickets, 0);
    person.Tab();
    for (const char* ball : {"chkNumb(0)", "chkNumb(1)", "chkNumb(2)"}) Click(ball);
    ChapterByF1();
    EXPECT_EQ(Ticked(), (std::vector{1, 2, 3}));
    EXPECT_EQ(global.NumbersPicked, 3);
    EXPECT_EQ(file(), before);
    for (const char* ball : {"chkNumb(3)", "chkNumb(4)", "chkNumb(5)"}) Click(ball);
    ExpectSaveQuestion(Answer::Yes);
    person.Expect("CONFIRMED", "Tickets Saved");
    Click("cmdSave");
    EXPECT_EQ(Rows("SELECT Ball_1, Ball_6 FROM PlayedLotto649"), Texts{"1|6"});
}

TEST_F(Guide, IsReadWhenItIsOpened) {
    Uninstall();
    Start();
    GameWindow& window = Show("mnuCANONTLotto649");
    window.SSTab1.SetTab(Tab::Check);
    Write("# Mine\n\nFirst\n\n## Checking your tickets\n\nNow.\n");
    Help([&] { EXPECT_EQ(ListOf("lstContents"), (Texts{"Mine", "Checking your tickets"})); });
    Write("# Another\n");
    Help([&] { EXPECT_EQ(ListOf("lstContents"), Texts{"Another"}); });
}

TEST_F(Guide, WithoutTheFileItSaysWhereItShouldBe) {
    Uninstall();
    Start();
    Help([&] {
        EXPECT_EQ(forms::ToUtf8(Page().toPlainText()),
                  "The guide is not here. It should be in this file:\n\n" +
                      (folder / "share/doc/sorvane/docs/user-guide.md").string());
        EXPECT_TRUE(ListOf("lstContents").empty());
        Type("txtSearch", "lottery");
        person.Enter();
        Click("cmdFindNext");
        EXPECT_FALSE(IsEnabled("cmdBack"));
    });
}

TEST_F(Guide, ContentsAreItsHeadings) {
    Start();
    std::ifstream guide(SORVANE_SOURCE_FOLDER "/docs/user-guide.md");
    Texts headings;
    bool code = false;
    for (std::string line; std::getline(guide, line);) {
        if (line.starts_with("```")) code = !code;
        if (code) continue;
        if (line.starts_with("# ") || line.starts_with("## "))
            headings.push_back(line.substr(line.find(' ') + 1));
        if (line.starts_with("### ")) headings.push_back("    " + line.substr(4));
    }
    ASSERT_GT(headings.size(), 15U);
    Help([&] { EXPECT_EQ(ListOf("lstContents"), headings); });
}

TEST_F(Guide, AClickInTheContentsGoesThereAndBackComesBack) {
    Start();
    Help([&] {
        EXPECT_FALSE(IsEnabled("cmdBack"));
        person.ClickRow(Contents(), RowOf("What you won"));
        EXPECT_EQ(AtTheTop(), "What you won");
        EXPECT_TRUE(IsEnabled("cmdBack"));
        person.ClickRow(Contents(), RowOf("Printing"));
        EXPECT_EQ(AtTheTop(), "Printing");
        Click("cmdBack");
        EXPECT_EQ(AtTheTop(), "What you won");
        person.AccessKey('b');
        EXPECT_EQ(AtTheTop(), "Finding your game");
        EXPECT_FALSE(IsEnabled("cmdBack"));
        EXPECT_EQ(Focus(), "txtGuide");
    });
}

TEST_F(Guide, ArrowsInTheContentsGoThroughTheChapters) {
    Start();
    Help([&] {
        person.AccessKey('c');
        EXPECT_EQ(Focus(), "lstContents");
        person.Key(Qt::Key_Down);
        EXPECT_EQ(AtTheTop(), "Your first sheet");
        person.Key(Qt::Key_Up);
        person.Key(Qt::Key_Up);
        EXPECT_EQ(AtTheTop(), FirstPage);
        person.Enter();
        EXPECT_EQ(Focus(), "txtGuide");
    });
}

TEST_F(Guide, ContentsTellWhereOneReads) {
    Start();
    Help([&] {
        Page().verticalScrollBar()->setValue(Page().verticalScrollBar()->maximum());
        EXPECT_GE(Contents().currentIndex().row(), RowOf("Traps, and what to do instead"));
        Page().verticalScrollBar()->setValue(0);
        EXPECT_EQ(AtTheTop(), FirstPage);
    });
}

TEST_F(Guide, LinksLeadToTheirChapters) {
    Start();
    Help([&] {
        person.ClickRow(Contents(), 0);
        ClickLink("Add-on games");
        EXPECT_EQ(AtTheTop(), "Add-on games");
        Click("cmdBack");
        ClickLink("Digit games");
        EXPECT_EQ(AtTheTop(), "Digit games");
    });
}

// Each one, by the text that it leads to.
TEST_F(Guide, EveryLinkLeadsSomewhere) {
    Start();
    Help([&] {
        int links = 0;
        const auto* document = Page().document();
        const auto name = [](const QString& heading) {
            QString anchor = heading.toLower().replace(u' ', u'-');
            return anchor.remove(QRegularExpression("[^a-z0-9-]"));
        };
        QStringList anchors;
        for (auto block = document->begin(); block.isValid(); block = block.next())
            if (block.blockFormat().headingLevel() > 0) anchors << "#" + name(block.text());
        for (auto block = document->begin(); block.isValid(); block = block.next())
            for (auto piece = block.begin(); !piece.atEnd(); ++piece) {
                const QString link = piece.fragment().charFormat().anchorHref();
                if (link.isEmpty()) continue;
                ++links;
                if (link.startsWith('#')) EXPECT_TRUE(anchors.contains(link)) << qPrintable(link);
                else
                    EXPECT_TRUE(fs::exists(SORVANE_SOURCE_FOLDER "/docs/" + link.toStdString()))
                        << qPrintable(link);
            }
        EXPECT_GT(links, 20);
    });
}

TEST_F(Guide, ALinkToAnotherDocumentOpensItAndBackComesBack) {
    Start();
    Help([&] {
        Type("txtSearch", "described in database.md");
        person.Enter();
        ASSERT_EQ(Selected(), "described in database.md");
        const Texts contents = ListOf("lstContents");
        ClickLink("database.md");
        EXPECT_EQ(Page().source().fileName(), "database.md");
        EXPECT_NE(ListOf("lstContents"), contents);
        Click("cmdBack");
        EXPECT_EQ(Page().source().fileName(), "user-guide.md");
        EXPECT_EQ(ListOf("lstContents"), contents);
        EXPECT_FALSE(IsEnabled("cmdBack"));
    });
}

TEST_F(Guide, OtherTextsAreShownAsTheyStandAndTheNetworkNotAtAll) {
    Write("# Guide\n\n[data](some.json)\n\n[out](https://example.org/)\n\n[gone](gone.md)\n");
    std::ofstream(folder / "share/doc/sorvane/docs/some.json") << "{\n  \"a\": [1,\n  2]\n}\n";
    Start();
    Help([&] {
        for (const char* nowhere : {"out", "gone"}) {
            ClickLink(nowhere);
            EXPECT_EQ(Page().source().fileName(), "user-guide.md");
        }
        ClickLink("data");
        EXPECT_EQ(forms::ToUtf8(Page().toPlainText()), "{\n  \"a\": [1,\n  2]\n}");
        Click("cmdBack");
        EXPECT_EQ(AtTheTop(), "Guide");
    });
}

TEST_F(Guide, SearchGoesFromPlaceToPlaceAndRoundTheEnd) {
    Write("# Guide\n\nBall one.\n\n## Second\n\nA ball.\n\nNo more of them. A basketBALL.\n");
    Start();
    Help([&] {
        person.AccessKey('s');
        EXPECT_EQ(Focus(), "txtSearch");
        person.Type("ball");
        std::vector<int> places;
        for (int i = 0; i < 4; ++i) {
            if (i < 2) person.Enter();
            else person.AccessKey('n');
            EXPECT_EQ(forms::ToUtf8(Page().textCursor().selectedText().toLower()), "ball");
            places.push_back(Page().textCursor().selectionStart());
        }
        EXPECT_LT(places[0], places[1]);
        EXPECT_LT(places[1], places[2]);
        EXPECT_EQ(places[3], places[0]);
        EXPECT_EQ(CaptionOf("lblFound"), "");
        Type("txtSearch", "goal");
        Click("cmdFindNext");
        EXPECT_EQ(CaptionOf("lblFound"), "Not found.");
        EXPECT_EQ(Selected(), "Ball");
        Type("txtSearch", "second");
        EXPECT_EQ(CaptionOf("lblFound"), "");
        person.Enter();
        EXPECT_EQ(Selected(), "Second");
    });
}

TEST_F(Guide, WhatIsFoundComesIntoSight) {
    Start();
    Help([&] {
        Type("txtSearch", "renumber");
        for (int i = 0; i < 3; ++i) {
            person.Enter();
            EXPECT_EQ(Selected(), "renumber");
            EXPECT_TRUE(Page().viewport()->rect().contains(Page().cursorRect()));
        }
        // A chapter chosen now is where the search goes on from.
        person.ClickRow(Contents(), RowOf("Finding your game"));
        Type("txtSearch", "Super 7");
        person.Enter();
        EXPECT_LT(Page().textCursor().position(), Page().document()->find("Add-on games", 2000).position());
    });
}

TEST_F(Guide, EscapeTheButtonAndTheCloseBoxLeaveItFromEverywhere) {
    Start();
    const std::function<void()> ways[] = {[&] { person.Key(Qt::Key_Escape); },
                                          [&] {
                                              Click("txtSearch");
                                              person.Key(Qt::Key_Escape);
                                          },
                                          [&] {
                                              person.ClickRow(Contents(), 3);
                                              person.Key(Qt::Key_Escape);
                                          },
                                          [&] { Click("cmdExit"); },
                                          [&] { person.AccessKey('x'); },
                                          [&] { person.Close(person.Front()); }};
    for (const auto& leave : ways)
        Help([&] {
            leave();
            EXPECT_EQ(&person.Front(), &frm);
        });
}

TEST_F(Guide, F1InTheGuideOpensNoSecondOne) {
    Start();
    Help([&] {
        person.Key(Qt::Key_F1);
        Click("txtSearch");
        person.Key(Qt::Key_F1);
        EXPECT_EQ(AtTheTop(), "Finding your game");
    });
}

TEST_F(Guide, BoxesKeepTheKeyForThemselves) {
    Show("mnuCANONTLotto649");
    person.Expect("CONFIRM", "Are you sure you wish to start over?", Answer::No, BoxStyle::YesNo,
                  [&] { person.Key(Qt::Key_F1); });
    Click("cmdCancel");
    EXPECT_EQ(person.Front().objectName(), "frm649");
}

TEST_F(Guide, CalendarsListsAndMenusKeepTheKeyForThemselves) {
    Show("mnuCANONTKENO");
    auto& date = person.Find<QDateEdit>("dtpEnterTickets(0)");
    date.setFocus();
    person.Key(Qt::Key_Down, Qt::AltModifier);
    const auto pressF1 = [&] {
        Person::Settle();
        EXPECT_NE(QApplication::activePopupWidget(), nullptr);
        person.Key(Qt::Key_F1);
        for (int i = 0; i < 3 && QApplication::activePopupWidget(); ++i) person.Key(Qt::Key_Escape);
        EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    };
    person.Press(date, {date.width() - 8, date.height() / 2});
    person.Release();
    pressF1();
    EXPECT_EQ(person.Front().objectName(), "frmKeno70");
    person.Front().activateWindow();
    person.Find<QComboBox>("cboWager").showPopup();
    pressF1();
    person.Front().activateWindow();
    EXPECT_EQ(ChapterByF1(), "Daily Keno");
    Window().Leave();
    Start();
    person.AccessKey('c');
    pressF1();
    EXPECT_EQ(person.Front().objectName(), "frmMain");
}

TEST_F(Guide, PicturesAreShownAsWideAsThePageAtMost) {
    Start();
    Help([&] {
        const auto heights = [&] {
            std::vector<std::pair<double, double>> sizes;
            const auto* document = Page().document();
            for (auto block = document->begin(); block.isValid(); block = block.next())
                for (auto piece = block.begin(); !piece.atEnd(); ++piece)
                    if (piece.fragment().charFormat().isImageFormat()) {
                        const QTextLine line = block.layout()->lineForTextPosition(
                            piece.fragment().position() - block.position());
                        sizes.emplace_back(line.naturalTextWidth(), line.height());
                    }
            return sizes;
        };
        const auto wide = heights();
        EXPECT_EQ(wide.size(), std::distance(fs::directory_iterator(SORVANE_SOURCE_FOLDER "/docs/pictures"),
                                             fs::directory_iterator()));
        for (const auto& [width, height] : wide) {
            EXPECT_GT(width, 200);
            EXPECT_GT(height, 200);
        }
        EXPECT_EQ(Page().horizontalScrollBar()->maximum(), 0);
        person.ClickRow(Contents(), RowOf("Printing"));
        person.Front().resize(700, 500);
        Person::Settle();
        EXPECT_EQ(AtTheTop(), "Printing");
        person.ClickRow(Contents(), RowOf("Finding your game"));
        const auto narrow = heights();
        for (std::size_t i = 0; i < narrow.size(); ++i) {
            EXPECT_LE(narrow[i].first, Page().viewport()->width());
            EXPECT_NEAR(narrow[i].second / narrow[i].first, wide[i].second / wide[i].first, 0.05);
        }
        EXPECT_LT(narrow[0].first, wide[0].first);
        // What is painted is the picture.
        const QImage seen = Page().viewport()->grab().toImage();
        QSet<QRgb> colours;
        for (int y = 0; y < seen.height(); ++y)
            for (int x = 0; x < seen.width(); ++x) colours.insert(seen.pixel(x, y));
        EXPECT_GT(colours.size(), 300);
    });
}

TEST_F(Guide, AnotherPaletteMakesItReadableAndLeavesOneWhereOneReads) {
    struct Light {
        ~Light() { SetDesktopPalette(LightPalette()); }
    } after;
    Start();
    Help([&] {
        for (const QPalette& palette : {DarkPalette(), HighContrastPalette(), LightPalette()}) {
            SetDesktopPalette(palette);
            Person::Settle();
            EXPECT_EQ(AtTheTop(), "Finding your game");
            EXPECT_FALSE(IsEnabled("cmdBack"));
            const QColor paper = Page().palette().color(QPalette::Base);
            int links = 0;
            for (auto block = Page().document()->begin(); block.isValid(); block = block.next())
                for (auto piece = block.begin(); !piece.atEnd(); ++piece) {
                    const QTextCharFormat format = piece.fragment().charFormat();
                    if (!format.isAnchor()) continue;
                    ++links;
                    EXPECT_GE(forms::Look::Contrast(format.foreground().color(), paper), 4.5);
                }
            EXPECT_GT(links, 20);
        }
    });
}

TEST_F(Guide, OfTwoRegistriesTheNewerOneIsAskedUntilItGoes) {
    Start();
    {
        Global another;
        sorvane::Session other{another, services};
        Windows newer(other, Makers);
        another.AppPath = "nowhere/";
        Help([&] { EXPECT_TRUE(ListOf("lstContents").empty()); });
    }
    Help([&] { EXPECT_FALSE(ListOf("lstContents").empty()); });
}

}  // namespace
}  // namespace sorvane::test

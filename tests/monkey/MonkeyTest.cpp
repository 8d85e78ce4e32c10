// A monkey at the keyboard and the mouse: random events on all windows, boxes answered at random.
//     SORVANE_EVENTS  how many, 3000 when not told
//     SORVANE_SEED    where the first life begins; the next one begins one further
#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDialog>
#include <QMessageBox>
#include <QTabBar>
#include <QTest>
#include <QTimer>
#include <QWindow>
#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <map>
#include <thread>

#include "support/Heap.h"
#include "windows/MainWindow.h"

namespace sorvane::test {
namespace {

unsigned NumberOf(const char* name, unsigned otherwise) {
    const char* value = std::getenv(name);
    return value ? static_cast<unsigned>(std::stoul(value)) : otherwise;
}

// What was seen, over all lives.
struct Diary {
    unsigned events = 0;
    std::map<std::string, int> windows, boxes;
    std::string now;  // the last event, for who reads of a failure
};

// Ends a program that has come to no new event for too long, which no failure of a test could.
class Watch {
  public:
    explicit Watch(const Diary& diary) : diary_(diary), thread_([this] { Look(); }) {}
    Watch(const Watch&) = delete;
    Watch& operator=(const Watch&) = delete;
    ~Watch() {
        over_ = true;
        thread_.join();
    }
    void Tick() { ++ticks_; }

  private:
    void Look() {
        constexpr int Patience = 120;
        unsigned seen = 0;
        for (int seconds = 0; !over_; ++seconds) {
            for (int i = 0; i < 10 && !over_; ++i)
                std::this_thread::sleep_for(std::chrono::milliseconds(100));
            if (const unsigned ticks = ticks_; ticks != seen) {
                seen = ticks;
                seconds = 0;
            }
            if (seconds < Patience) continue;
            std::fprintf(stderr, "Hangs behind event %u: %s\n", diary_.events, diary_.now.c_str());
            std::abort();
        }
    }

    const Diary& diary_;
    std::atomic<unsigned> ticks_{0};
    std::atomic<bool> over_{false};
    std::thread thread_;
};

// One run of the program from its start, in a folder of its own.
class Life : public MainWindow {
  public:
    Life(std::uint64_t seed, unsigned events, Diary& diary, Watch& watch)
        : seed_(seed), mix_(seed), last_(diary.events + events), diary_(diary), watch_(watch) {
        random = testing::FixedRandom(seed);
        person.MeetAll([this](QWidget& modal) { Meet(modal); });
        // A menu that waits for its choice in a loop of its own, such as that of a bar too narrow for all of
        // it.
        QObject::connect(&boredom_, &QTimer::timeout, [this, seen = 0U]() mutable {
            if (std::exchange(seen, diary_.events) != diary_.events) return;
            if (QWidget* popup = QApplication::activePopupWidget()) popup->close();
        });
        boredom_.start(5000);
    }

    void Live() {
        const ::testing::ScopedTrace trace(__FILE__, __LINE__, "SORVANE_SEED=" + std::to_string(seed_));
        Start();
        while (!Over()) {
            RenewPrinter();
            ClosePopups();
            if (Chance(70)) OpenSomething();
            else if (Chance(10)) OpenKeno80();
            else Do(frm);
        }
        ClosePopups();
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr) << diary_.now;
        EXPECT_EQ(global.Open.DbOpen, Off);
        EXPECT_EQ(global.Open.RsOpen, Off);
        EXPECT_EQ(Rows("PRAGMA integrity_check"), Texts{"ok"});
    }

  private:
    void TestBody() override {}

    int Draw(int below) { return static_cast<int>(mix_.Unit() * below); }
    bool Chance(int percent) { return Draw(100) < percent; }
    template <class Items>
    const auto& OneOf(const Items& items) {
        return *(std::begin(items) + Draw(static_cast<int>(std::size(items))));
    }
    bool Over() const { return diary_.events >= last_ || ::testing::Test::HasFailure(); }
    void Note(const std::string& what) {
        ++diary_.events;
        diary_.now = what;
        watch_.Tick();
        if (std::getenv("SORVANE_TELL")) std::cerr << diary_.events << " " << what << std::endl;
    }

    // The main window.

    void OpenSomething() {
        std::vector<std::string_view> entries;
        for (const MenuEntry& entry : MenuTree())
            if (entry.action != MenuAction::Menu && entry.action != MenuAction::Dead &&
                (entry.action != MenuAction::Notice || Chance(10)))
                entries.push_back(entry.name);
        const std::string_view entry = OneOf(entries);
        Note("menu " + std::string(entry));
        Choose(entry);
    }
    // No entry of the menu leads there.
    void OpenKeno80() {
        Note("keno 80");
        forms::Runtime::Current().Handle([this] {
            Select(Family::frmKeno80, "BCClubKeno", "");
            windows.ShowModal(windows.Load(Family::frmKeno80));
        });
    }
    void RenewPrinter() {
        printer.documents.clear();
        printer.pending.clear();
        printer.calls.clear();
        tools.started.clear();
        using Verb = testing::RecordingPrinter::Verb;
        constexpr int Numbers[] = {482, 483, 484, 32755};
        for (const Verb verb : {Verb::ShowPrinter, Verb::Print, Verb::EndDoc})
            if (Chance(20)) printer.FailAt(verb, 1 + Draw(3), OneOf(Numbers));
    }

    // Boxes and windows.

    void Meet(QWidget& modal) {
        if (auto* box = qobject_cast<QMessageBox*>(&modal)) return Answer(*box);
        ++diary_.windows[forms::ToUtf8(modal.objectName())];
        const QPointer<QWidget> window(&modal);
        const auto isThere = [&] { return window && window->isVisible(); };
        const bool game = modal.objectName().startsWith("frm") && modal.findChild<QTabBar*>() != nullptr;
        for (int left = game ? Draw(300) : Draw(20); left > 0 && isThere() && !Over(); --left) Do(modal);
        // The way out leads out, whatever stands in the window.
        constexpr int MostTries = 3;
        for (int tries = 0; tries < MostTries && isThere(); ++tries) {
            ClosePopups();
            Note("leave " + forms::ToUtf8(modal.objectName()));
            if (isThere()) person.Close(modal);
        }
        if (!isThere()) return;
        ADD_FAILURE() << "no way out of " << forms::ToUtf8(modal.objectName());
        std::abort();
    }

    void Answer(QMessageBox& modal) {
        const std::string title = forms::ToUtf8(modal.windowTitle()), text = forms::ToUtf8(modal.text());
        const bool runTime = text.rfind("Run-time error", 0) == 0;
        ++diary_.boxes[runTime || text.rfind("ERROR #", 0) == 0 ? text.substr(0, 20) : title];
        // What is no error of the language is a mistake of ours.
        EXPECT_TRUE(!runTime || text.rfind("Run-time error '51'", 0) != 0) << diary_.now;
        const QPointer<QMessageBox> box(&modal);
        constexpr int MostTries = 30;
        for (int tries = 0; tries < MostTries && box && box->isVisible(); ++tries) {
            Note("answer \"" + text + "\"");
            const int way = Draw(10);
            if (way == 0) person.Close(*box);
            else if (way == 1) person.Key(Qt::Key_Escape);
            else if (way == 2) person.Key(OneOf(Keys));
            else person.Click(*OneOf(box->buttons()));
        }
        if (!box || !box->isVisible()) return;
        ADD_FAILURE() << "no way out of " << text;
        std::abort();
    }

    void ClosePopups() {
        constexpr int MostTries = 10;
        for (int tries = 0; tries < MostTries && QApplication::activePopupWidget(); ++tries)
            person.Key(Qt::Key_Escape);
        EXPECT_EQ(QApplication::activePopupWidget(), nullptr) << diary_.now;
        ComeBack();
    }
    // Without a screen the focus stays on a popup that is gone.
    void ComeBack() {
        const QWindow* focus = QGuiApplication::focusWindow();
        if (focus && focus->isVisible()) return;
        person.Front().activateWindow();
        Person::Settle();
    }

    // One event, or a few that belong together.
    void Do(QWidget& window) {
        for (int turn = 0; turn < 3; ++turn) Person::Settle();
        // A ledger with an amount too long for its column never comes to an end of its report.
        if (Plain().One("SELECT name FROM sqlite_schema WHERE name = 'Winnings'") == "Winnings")
            for (const std::string ledger : {"Spent", "Winnings"})
                WindowWorld::Do("DELETE FROM " + ledger + " WHERE abs(CAST(" + ledger + " AS REAL)) > 99999");
        const int way = Draw(100);
        if (QWidget* popup = QApplication::activePopupWidget()) return UsePopup(*popup);
        ComeBack();
        if (way < 35) return Play(window);
        if (way < 65) return ClickAnything(window);
        if (way < 85) return PressKey();
        if (way < 90) return TurnPage(window);
        if (way < 95) return PasteOrCompose(window);
        if (way < 98) return DragAcross(window);
        Note("resize");
        // Not smaller: who touches a thing scrolls to it first, and it may be too large to be seen then.
        window.resize(window.sizeHint() + QSize(Draw(400), Draw(300)));
    }

    static bool CanBeTouched(const QWidget& widget) {
        return widget.isVisible() && widget.isEnabled() &&
               widget.visibleRegion().contains(widget.rect().center());
    }
    // Waits until a page has stopped to lay itself out anew; who has moved out of sight by then is missed.
    bool Touch(QWidget& widget, bool twice = false) {
        const QPointer<QWidget> guard(&widget);
        constexpr int Turns = 3;
        for (int turn = 0; turn < Turns; ++turn) Person::Settle();
        if (!guard || !CanBeTouched(*guard)) return false;
        if (twice) person.DoubleClick(*guard);
        else person.Click(*guard);
        return true;
    }
    template <class Widget>
    static std::vector<Widget*> Touchable(QWidget& window, const QString& name = {}) {
        std::vector<Widget*> found;
        for (Widget* widget : window.findChildren<Widget*>()) {
            if (!name.isEmpty() && !widget->objectName().startsWith(name)) continue;
            if (CanBeTouched(*widget)) found.push_back(widget);
        }
        return found;
    }
    void ClickAnything(QWidget& window) {
        const auto buttons = Touchable<QAbstractButton>(window);
        const auto widgets = Touchable<QWidget>(window);
        if (widgets.empty()) return PressKey();
        QWidget& widget = Chance(60) && !buttons.empty() ? *OneOf(buttons) : *OneOf(widgets);
        Note("click " + NameOf(widget));
        Touch(widget, Chance(10));
    }
    static std::string NameOf(const QWidget& widget) {
        return widget.objectName().isEmpty() ? widget.metaObject()->className()
                                             : forms::ToUtf8(widget.objectName());
    }
    void PressKey() {
        if (Chance(40)) {
            const char letter = OneOf(std::string_view("0123456789.,-+ acenqrswx"));
            Note(std::string("type ") + letter);
            if (Chance(15)) person.AccessKey(letter);
            else person.Type(std::string(1, letter));
            return;
        }
        const Qt::Key key = OneOf(Keys);
        Note("key " + std::to_string(key));
        if (Chance(5)) person.Key(key, OneOf(Modifiers));
        else person.Key(key);
    }
    void TurnPage(QWidget& window) {
        const auto bars = Touchable<QTabBar>(window);
        if (bars.empty()) return PressKey();
        QTabBar& bar = *bars.front();
        const int page = Draw(bar.count());
        Note("page " + std::to_string(page));
        const QPoint at = bar.tabRect(page).center();
        if (bar.visibleRegion().contains(at)) person.Click(bar, at);
    }
    void PasteOrCompose(QWidget& window) {
        const std::string text = OneOf(Pasted);
        Note("paste " + text.substr(0, 20));
        const auto fields = Touchable<QLineEdit>(window);
        if (fields.empty()) return;
        if (!Touch(*OneOf(fields))) return;
        if (QApplication::activeModalWidget() != &window || QApplication::activePopupWidget()) return;
        if (Chance(30) && window.focusWidget()) return person.Commit(text);
        QApplication::clipboard()->setText(forms::ToQt(text));
        person.Key(Qt::Key_V, Qt::ControlModifier);
    }
    void DragAcross(QWidget& window) {
        const auto widgets = Touchable<QWidget>(window);
        if (widgets.empty()) return;
        QWidget& from = *OneOf(widgets);
        QWidget& to = *OneOf(widgets);
        Note("drag from " + NameOf(from) + " to " + NameOf(to));
        const QPointer<QWidget> target(&to);
        const int shown = forms::Runtime::Current().Shown();
        person.Press(from);
        if (target && CanBeTouched(*target) && shown == forms::Runtime::Current().Shown() &&
            !QApplication::activePopupWidget())
            person.MoveTo(*target, target->rect().center());
        person.Release();
    }
    void UsePopup(QWidget& popup) {
        const auto widgets = Touchable<QWidget>(popup);
        const int way = Draw(10);
        if (way < 4 && !widgets.empty()) {
            QWidget& widget = *OneOf(widgets);
            Note("click in popup " + NameOf(widget));
            person.Click(widget, QPoint(Draw(widget.width()), Draw(widget.height())));
        } else if (way < 8) {
            const Qt::Key key = OneOf(Keys);
            Note("key in popup " + std::to_string(key));
            person.Key(key);
        } else {
            Note("popup closed");
            ClosePopups();
        }
    }

    // What a player would do next, as far as it can be seen, so that events reach what lies behind it.
    void Play(QWidget& window) {
        if (Step(window, "cmdSave", 60) || Step(window, "cmdNext_Ticket", 70)) return;
        if (PutIfEmpty(window, "txtNoOf", std::to_string(1 + Draw(4)))) return;
        if (Fill(window, "txtWin", 49) || Fill(window, "txtFavs", 45) || Fill(window, "txtPlay4", 60)) return;
        if (Step(window, "cmdCheck", 50) || Step(window, "cmdEnterWinnings", 30)) return;
        if (PutIfEmpty(window, "txtEncore", std::to_string(1'000'000 + Draw(9'000'000)))) return;
        const auto balls = Touchable<QAbstractButton>(window, "chkNumb");
        if (!balls.empty()) {
            for (int i = 0; i < 4; ++i) {
                QAbstractButton& ball = *OneOf(balls);
                Note("tick " + NameOf(ball));
                if (!Touch(ball)) return;
            }
            return;
        }
        const auto lists = Touchable<QComboBox>(window);
        if (lists.empty()) return ClickAnything(window);
        QComboBox& list = *OneOf(lists);
        Note("choose in " + NameOf(list));
        if (!Touch(list)) return;
        for (int i = Draw(10); i > 0 && QApplication::activePopupWidget(); --i) person.Key(Qt::Key_Down);
        if (QApplication::activePopupWidget()) person.Enter();
    }
    bool Step(QWidget& window, const char* name, int percent) {
        const auto buttons = Touchable<QAbstractButton>(window, name);
        if (buttons.empty() || !Chance(percent)) return false;
        Note(std::string("step ") + name);
        Touch(*buttons.front());
        return true;
    }
    bool Put(QWidget& window, QLineEdit& field, const std::string& text) {
        const QPointer<QLineEdit> guard(&field);
        Note("put " + text + " into " + NameOf(field));
        if (!Touch(field)) return true;
        // The press may have brought something else to the front.
        if (!guard || !window.isVisible() || QApplication::focusWidget() != guard) return true;
        person.Key(Qt::Key_A, Qt::ControlModifier);
        person.Type(text);
        if (window.isVisible()) person.Tab();
        return true;
    }
    bool PutIfEmpty(QWidget& window, const char* name, const std::string& text) {
        for (QLineEdit* field : Touchable<QLineEdit>(window, name))
            if (field->text().isEmpty() || field->text() == "0") return Put(window, *field, text);
        return false;
    }
    // Several fields that belong together.
    bool Fill(QWidget& window, const char* name, int top) {
        bool any = false;
        for (int i = 0; i < 30; ++i) {
            const auto fields = Touchable<QLineEdit>(window, name);
            const auto empty = std::find_if(fields.begin(), fields.end(),
                                            [](const QLineEdit* field) { return field->text().isEmpty(); });
            if (empty == fields.end() || Chance(3)) return any;
            any = Put(window, **empty, std::to_string(1 + Draw(top)));
        }
        return any;
    }

    static constexpr Qt::Key Keys[] = {
        Qt::Key_Tab,    Qt::Key_Tab,    Qt::Key_Backtab, Qt::Key_Return,    Qt::Key_Enter, Qt::Key_Space,
        Qt::Key_Escape, Qt::Key_Delete, Qt::Key_Home,    Qt::Key_Backspace, Qt::Key_End,   Qt::Key_Left,
        Qt::Key_Right,  Qt::Key_Up,     Qt::Key_Down,    Qt::Key_PageUp,    Qt::Key_F4,    Qt::Key_PageDown,
        Qt::Key_F1,     Qt::Key_F10,    Qt::Key_Menu,    Qt::Key_Insert};
    static constexpr Qt::KeyboardModifier Modifiers[] = {Qt::ShiftModifier, Qt::ControlModifier,
                                                         Qt::AltModifier};
    static inline const std::string Pasted[] = {"7",
                                                "-1",
                                                "32768",
                                                "99999",
                                                "1e5",
                                                "4.5",
                                                "abc",
                                                " ",
                                                "123456",
                                                "\xC3\xA9\xE2\x82\xAC",
                                                "1\n2",
                                                "12,345.67",
                                                "99999999999999999999",
                                                std::string(300, '8')};

    const std::uint64_t seed_;
    SplitMix mix_;
    const unsigned last_;
    Diary& diary_;
    Watch& watch_;
    QTimer boredom_;
};

TEST(Monkey, FindsNoCrashNoHangNoLeakAndAlwaysTheWayOut) {
    constexpr unsigned EventsOfALife = 1500;
    const unsigned events = NumberOf("SORVANE_EVENTS", 3000);
    const unsigned seed = NumberOf("SORVANE_SEED", 1);
    std::cout << events << " events, seed " << seed << std::endl;
    Diary diary;
    std::vector<std::size_t> heap;
    {
        Watch watch(diary);
        for (unsigned life = 0; diary.events < events && !HasFailure(); ++life) {
            Life(seed + life, std::min(EventsOfALife, events - diary.events), diary, watch).Live();
            heap.push_back(HeapInUse());
        }
    }
    std::cout << diary.events << " events in " << heap.size() << " lives; in use after them:";
    for (const std::size_t bytes : heap) std::cout << " " << bytes / 1024;
    std::cout << " KiB" << std::endl;
    for (const auto* seen : {&diary.windows, &diary.boxes})
        for (const auto& [name, times] : *seen) std::cout << times << " x " << name << std::endl;
    // Qt keeps names of what it painted of the menus that were opened.
    constexpr std::size_t OfQt = 128 * 1024, Warm = 4;
    if (heap.size() > Warm) {
        EXPECT_LT(heap.back(), heap[Warm] + OfQt * (heap.size() - Warm));
    }
    EXPECT_GT(diary.windows.size(), events < 3000 ? 0U : 8U);
}

}  // namespace
}  // namespace sorvane::test

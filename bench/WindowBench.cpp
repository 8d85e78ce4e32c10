// Opening frm649 from the menu beside a bare Qt dialog that has as many controls of the same kinds on four
// tabs, in turns in one process: from the choice to the painted window that can take keys. The window's time
// holds its load event too, which looks for its tables in the file; a second figure leaves that aside.
//     bench_window [OPENINGS]
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QDialog>
#include <QElapsedTimer>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QLocale>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTimer>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "entry/ui/GameWindow.h"
#include "forms/Application.h"
#include "forms/MessageBoxes.h"
#include "forms/Utf8.h"
#include "reports/ui/frmReport.h"
#include "shell/ui/Windows.h"
#include "shell/ui/frmMain.h"
#include "support/Scripted.h"
#include "support/TempFolder.h"

namespace {

using namespace sorvane;

// What stands on one page, in its order.
using Page = std::vector<const QMetaObject*>;

const QMetaObject* KindOf(const QWidget& widget) {
    for (const QMetaObject* kind :
         {&QCheckBox::staticMetaObject, &QRadioButton::staticMetaObject, &QPushButton::staticMetaObject,
          &QComboBox::staticMetaObject, &QDateEdit::staticMetaObject, &QLineEdit::staticMetaObject,
          &QPlainTextEdit::staticMetaObject, &QListView::staticMetaObject, &QGroupBox::staticMetaObject,
          &QLabel::staticMetaObject})
        if (widget.metaObject()->inherits(kind)) return kind;
    return nullptr;
}

// The controls that a programmer puts on a page, and not those that Qt makes inside of them.
void Collect(const QWidget& parent, Page& page) {
    for (const QObject* child : parent.children()) {
        if (!child->isWidgetType()) continue;
        const auto& widget = static_cast<const QWidget&>(*child);
        const QMetaObject* kind = KindOf(widget);
        if (kind) page.push_back(kind);
        if (!kind || kind == &QGroupBox::staticMetaObject) Collect(widget, page);
    }
}

QWidget* Make(const QMetaObject* kind, int number) {
    const QString text = QString::number(number);
    if (kind == &QCheckBox::staticMetaObject) return new QCheckBox(text);
    if (kind == &QRadioButton::staticMetaObject) return new QRadioButton(text);
    if (kind == &QPushButton::staticMetaObject) return new QPushButton(text);
    if (kind == &QComboBox::staticMetaObject) return new QComboBox;
    if (kind == &QDateEdit::staticMetaObject) {
        auto* date = new QDateEdit;
        date->setCalendarPopup(true);
        return date;
    }
    if (kind == &QLineEdit::staticMetaObject) return new QLineEdit(text);
    if (kind == &QPlainTextEdit::staticMetaObject) return new QPlainTextEdit;
    if (kind == &QListView::staticMetaObject) return new QListView;
    if (kind == &QGroupBox::staticMetaObject) return new QGroupBox(text);
    return new QLabel(text);
}

class BareDialog : public QDialog {
  public:
    explicit BareDialog(const std::vector<Page>& pages) {
        auto* tabs = new QTabWidget;
        for (const Page& page : pages) {
            auto* sheet = new QWidget;
            auto* grid = new QGridLayout(sheet);
            int number = 0;
            for (const QMetaObject* kind : page) {
                grid->addWidget(Make(kind, number), number / 10, number % 10);
                ++number;
            }
            tabs->addTab(sheet, QString::number(tabs->count()));
        }
        (new QGridLayout(this))->addWidget(tabs, 0, 0);
    }
};

// Ends a measurement when the window is painted.
class Painted : public QObject {
  public:
    bool eventFilter(QObject* receiver, QEvent* event) override {
        if (event->type() == QEvent::Paint && !done && receiver->isWidgetType()) {
            auto* widget = static_cast<QWidget*>(receiver);
            if (widget->isWindow() && widget->isModal()) {
                done = true;
                // Behind the painting of everything in it.
                QTimer::singleShot(0, widget, [this, widget] {
                    milliseconds = static_cast<double>(timer.nsecsElapsed()) / 1e6;
                    leave(*widget);
                });
            }
        }
        return false;
    }
    // The time of what opens a window, until it is painted and left.
    double Time(const std::function<void()>& open, std::function<void(QWidget&)> toLeave) {
        done = false;
        leave = std::move(toLeave);
        timer.start();
        open();
        return milliseconds;
    }

  private:
    QElapsedTimer timer;
    std::function<void(QWidget&)> leave;
    double milliseconds = 0;
    bool done = false;
};

double Median(std::vector<double> times) {
    std::nth_element(times.begin(), times.begin() + static_cast<long>(times.size() / 2), times.end());
    return times[times.size() / 2];
}

struct Program {
    TempFolder folder;
    sorvane::testing::FixedClock clock{Date::FromYmd(2026, 3, 14)};
    sorvane::testing::FixedRandom random;
    sorvane::testing::RecordingPrinter printer;
    sorvane::testing::RecordingTools tools;
    forms::MessageBoxes boxes;
    Dao::Engine engine;
    Services services{boxes, printer, clock, random, tools, engine};
    Global global;
    Session session{global, services};
    Windows windows{session, {GameWindow::Make, frmReport::Make}};
    frmMain main{session, windows, folder.Path().string(), [] { QCoreApplication::quit(); }};
};

int Measure(int openings) {
    Program program;
    program.main.Load();
    program.main.Show();
    auto* entry = program.main.findChild<QAction*>("mnuCANBCBC49");
    Painted painted;
    qApp->installEventFilter(&painted);

    std::vector<Page> pages;
    const auto leave = [&](QWidget& widget) {
        auto& window = static_cast<GameWindow&>(widget);
        if (pages.empty())
            for (const QWidget& page : window.Pages) Collect(page, pages.emplace_back());
        window.Leave();
    };
    const auto open = [&] { entry->trigger(); };
    const auto openBare = [&] { BareDialog(pages).exec(); };
    const auto leaveBare = [](QWidget& widget) { static_cast<QDialog&>(widget).reject(); };
    const auto openAlone = [&] {
        GameWindow window(Family::frm649, program.session, program.windows);
        window.ShowModal();
    };

    painted.Time(open, leave);  // makes the tables
    painted.Time(openBare, leaveBare);
    std::vector<double> ours, bare, alone;
    for (int i = 0; i < openings; ++i) {
        ours.push_back(painted.Time(open, leave));
        bare.push_back(painted.Time(openBare, leaveBare));
        alone.push_back(painted.Time(openAlone, [](QWidget& w) { static_cast<GameWindow&>(w).Unload(); }));
    }
    std::map<std::string, int> kinds;
    std::size_t controls = 0;
    for (const Page& page : pages) {
        controls += page.size();
        for (const QMetaObject* kind : page) ++kinds[kind->className()];
    }
    std::printf("%d openings, %zu pages, %zu controls:", openings, pages.size(), controls);
    for (const auto& [kind, count] : kinds) std::printf(" %d %s", count, kind.c_str());
    const double floor = Median(bare);
    std::printf("\n%-30s %8.2f ms\n", "bare dialog", floor);
    std::printf("%-30s %8.2f ms %6.2f times\n", "frm649 from the menu", Median(ours), Median(ours) / floor);
    std::printf("%-30s %8.2f ms %6.2f times\n", "frm649 without its load event", Median(alone),
                Median(alone) / floor);
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    const int openings = argc > 1 ? std::atoi(argv[1]) : 41;
    if (openings < 1) return 2;
    QLocale::setDefault(QLocale::c());
    sorvane::forms::Application application(argc, argv);
    return Measure(openings);
}

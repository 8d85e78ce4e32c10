#include "tour/Evening.h"

#include <QApplication>
#include <QDateEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPrinter>
#include <exception>

#include "forms/Utf8.h"
#include "forms/Window.h"

namespace sorvane::tour {

namespace fs = std::filesystem;
using test::Person;

namespace {

// A folder of the program without records, with the guide.
std::string FreshRecords(const fs::path& folder) {
    const fs::path evening = fs::absolute(folder) / "evening", documents = evening / "share/doc/sorvane";
    fs::remove_all(evening);
    fs::create_directories(documents);
    fs::copy(SORVANE_SOURCE_FOLDER "/docs", documents / "docs", fs::copy_options::recursive);
    return evening.string();
}

// The names that lead to a menu entry, the entry last.
std::vector<std::string> WayTo(std::string_view entry) {
    std::vector<std::string> way;
    for (const MenuEntry& step : MenuTree()) {
        way.resize(static_cast<std::size_t>(step.level));
        way.emplace_back(step.name);
        if (step.name == entry) return way;
    }
    throw std::runtime_error("no menu entry " + std::string(entry));
}

}  // namespace

Evening::Evening(const fs::path& out)
    : album_(out),
      paper_([this](QPrinter& device) {
          device.setOutputFormat(QPrinter::PdfFormat);
          device.setOutputFileName(forms::ToQt(page_));
          return true;
      }),
      frmMain_(session_, windows_, FreshRecords(out), [this] { ended_ = true; }) {}

void Evening::Play() {
    MainWindow();
    EnterLotto649();
    EnterSuper7();
    EnterLottario();
    EnterKeno();
    EnterPick3();
    EnterDaily3();
    EnterCash3();
    EnterPlay4();
    EnterWestern649();
    EnterQuebec49();
    EnterAtlanticSuper7();
    LeaveHalfway();
    EnterBC49();
    CheckLotto649();
    CheckSuper7();
    CheckBC49();
    CheckAtlanticSuper7();
    CheckLottario();
    CheckKeno();
    CheckPick3();
    CheckPlay4();
    TypeEarlierDraws();
    ReportLottario();
    ReportDigits();
    ReportAll();
    PrintQuickPicks();
    Wheel();
    SmallWindows();
    Click("cmdExit");
    EXPECT_TRUE(ended_);
}

void Evening::ExpectBox(std::string_view title, std::string_view text, Answer answer, int style,
                        std::string_view picture) {
    std::function<void()> take;
    if (!picture.empty()) take = [this, name = std::string(picture)] { Picture(name); };
    person.Expect(title, text, answer, style, take);
}

void Evening::ClickMenu(std::string_view entry) {
    auto* action = frmMain_.findChild<QAction*>(forms::ToQt(entry));
    for (QObject* owner : action->associatedObjects()) {
        if (auto* bar = qobject_cast<QMenuBar*>(owner))
            return person.Click(*bar, bar->actionGeometry(action).center());
        if (auto* menu = qobject_cast<QMenu*>(owner))
            return person.Click(*menu, menu->actionGeometry(action).center());
    }
}

void Evening::OpenMenus(std::string_view entry) {
    std::vector<std::string> way = WayTo(entry);
    way.pop_back();
    for (const std::string& menu : way) ClickMenu(menu);
}

void Evening::Visit(std::string_view entry, std::string_view window, std::function<void()> act) {
    person.ExpectWindow(window, [act = std::move(act)](QWidget&) {
        try {
            act();
        } catch (const std::exception& failure) {  // must not pass through Qt
            ADD_FAILURE() << failure.what();
        }
    });
    if (!QApplication::activePopupWidget()) OpenMenus(entry);
    ClickMenu(entry);
}

void Evening::SetDate(Page page, std::string_view day) {
    const std::string name = "dtpEnterTickets(" + std::to_string(static_cast<int>(page)) + ")";
    auto& picker = person.Find<QDateEdit>(name);
    person.Click(picker, QPoint(picker.height() / 2, picker.height() / 2));
    person.Key(Qt::Key_Home);
    for (const std::string_view part : {day.substr(0, 4), day.substr(5, 2), day.substr(8, 2)})
        person.Type(part);
    person.Tab();
    EXPECT_EQ(TextOf(name), day);
}

void Evening::Answers(std::string_view dialog, std::string_view field, std::string_view number,
                      std::string_view picture) {
    person.ExpectWindow(dialog, [this, field = std::string(field), number = std::string(number),
                                 name = std::string(picture)](QWidget&) {
        Type(field, number);
        if (!name.empty()) Picture(name);
        Click("cmdOk");
    });
}

void Evening::TickBalls(const Numbers& numbers) {
    for (const int number : numbers) Click("chkNumb(" + std::to_string(number - 1) + ")");
}

// A list opens at the click; closed again it goes to its digit by the arrows.
void Evening::ChooseDigits(std::string_view lists, const Numbers& digits) {
    int i = 0;
    for (const int digit : digits) {
        Click(std::string(lists) + "(" + std::to_string(i++) + ")");
        if (QApplication::activePopupWidget()) person.Key(Qt::Key_Escape);
        person.Key(Qt::Key_Home);
        for (int below = 0; below < digit; ++below) person.Key(Qt::Key_Down);
    }
}

void Evening::SaveLastSheet(std::string_view question, std::string_view saved) {
    ExpectBox("CONFIRM", "Save this sheet of tickets?", Answer::Yes, BoxStyle::YesNo, question);
    ExpectBox("CONFIRMED", "Tickets Saved", Answer::Ok, BoxStyle::Ok, saved);
    Click("cmdSave");
}

}  // namespace sorvane::tour

#include "support/WindowWorld.h"

#include <QAbstractItemModel>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QGroupBox>
#include <QListView>
#include <algorithm>
#include <stdexcept>

#include "forms/Control.h"
#include "forms/Utf8.h"
#include "shell/Dressing.h"
#include "shell/SelectGame.h"
#include "shell/ui/Dress.h"
#include "store/StoreRoutine.h"

namespace sorvane::test {

using forms::ToQt;
using forms::ToUtf8;

WindowWorld::WindowWorld() {
    global.NL = "\r\n";
    global.AppPath = (folder.Path() / "").string();
}

const Game& WindowWorld::Select(std::string_view menu) {
    const Game* game = FindGame(menu);
    if (!game) throw std::runtime_error("no game behind " + std::string(menu));
    sorvane::Select(global, *game);
    return *game;
}

void WindowWorld::Select(Family family, std::string_view LottoFlag, std::string_view ExtraFlag) {
    sorvane::Select(global, {"", LottoFlag, ExtraFlag, family, ""});
}

GameWindow& WindowWorld::Load(Family family) { return static_cast<GameWindow&>(windows.Load(family)); }

// The steps of frmMain's menu.
GameWindow& WindowWorld::LoadDressed(const Game& game) {
    windows.Load(game.titleGoesTo.value_or(game.opens)).SetCaption(game.title);
    window_ = &Load(game.opens);
    Dress(*window_, DressingOf(game));
    return *window_;
}

GameWindow& WindowWorld::Front(GameWindow& window) {
    window_ = &window;
    window_->Show();
    Person::Await(*window_);
    Person::Settle();
    return *window_;
}

GameWindow& WindowWorld::Show(std::string_view menu) { return Front(LoadDressed(Select(menu))); }

GameWindow& WindowWorld::Show(Family family, std::string_view LottoFlag, std::string_view ExtraFlag) {
    Select(family, LottoFlag, ExtraFlag);
    return Front(Load(family));
}

void WindowWorld::ShowModal(std::string_view menu, const std::function<void(GameWindow&)>& act) {
    LoadDressed(Select(menu));
    person.ExpectWindow(window_->Name(), [&](QWidget&) {
        act(*window_);
        if (window_->IsShown()) window_->Leave();
    });
    windows.ShowModal(*window_);
    window_ = nullptr;
}

bool WindowWorld::Exists(std::string_view name) const {
    return person.Front().findChild<QWidget*>(ToQt(name)) != nullptr;
}

std::string WindowWorld::TextOf(std::string_view name) const {
    const QWidget& field = Find(name);
    if (const auto* combo = qobject_cast<const QComboBox*>(&field)) return ToUtf8(combo->currentText());
    return ToUtf8(field.property("text").toString());
}

std::string WindowWorld::CaptionOf(std::string_view name) const {
    const QWidget& control = Find(name);
    if (const auto* frame = qobject_cast<const QGroupBox*>(&control)) return ToUtf8(frame->title());
    return ToUtf8(control.property("text").toString());
}

Texts WindowWorld::ListOf(std::string_view name) const {
    const QWidget& list = Find(name);
    const QAbstractItemModel* model = nullptr;
    if (const auto* combo = qobject_cast<const QComboBox*>(&list)) model = combo->model();
    if (const auto* view = qobject_cast<const QAbstractItemView*>(&list)) model = view->model();
    Texts rows;
    for (int row = 0; model && row < model->rowCount(); ++row)
        rows.push_back(ToUtf8(model->index(row, 0).data().toString()));
    return rows;
}

std::string WindowWorld::Focus() const {
    const forms::Control* control = forms::Control::Of(person.Front().focusWidget());
    return control ? control->Name() : std::string();
}

std::vector<int> WindowWorld::Ticked() const {
    std::vector<int> numbers;
    for (int i = 0; Exists("chkNumb(" + std::to_string(i) + ")"); ++i)
        if (IsTicked("chkNumb(" + std::to_string(i) + ")")) numbers.push_back(i + 1);
    return numbers;
}

void WindowWorld::Type(std::string_view name, std::string_view text) {
    Click(name);
    person.Key(Qt::Key_A, Qt::ControlModifier);
    if (text.empty()) person.Key(Qt::Key_Delete);
    else person.Type(text);
}

void WindowWorld::Put(std::string_view name, std::string_view text) {
    Type(name, text);
    person.Tab();
}

void WindowWorld::Paste(std::string_view name, std::string_view text) {
    Click(name);
    person.Key(Qt::Key_A, Qt::ControlModifier);
    QApplication::clipboard()->setText(ToQt(text));
    person.Key(Qt::Key_V, Qt::ControlModifier);
}

void WindowWorld::Enter(std::string_view name) {
    Click(name);
    if (QApplication::activePopupWidget()) person.Key(Qt::Key_Escape);
}

void WindowWorld::Visit(std::string_view name) {
    Enter(name);
    person.Tab();
}

void WindowWorld::Choose(std::string_view name, std::string_view entry) {
    const Texts entries = ListOf(name);
    const auto at = std::find(entries.begin(), entries.end(), entry);
    if (at == entries.end()) ADD_FAILURE() << name << " has no entry " << entry;
    Enter(name);
    person.Key(Qt::Key_Home);
    for (auto row = entries.begin(); row != at; ++row) person.Key(Qt::Key_Down);
}

void WindowWorld::ExpectSaveQuestion(Answer answer) {
    person.Expect("CONFIRM", "Save this sheet of tickets?", answer, BoxStyle::YesNo);
    if (answer != Answer::Yes) person.Expect("CONFIRMED", "Tickets NOT Saved");
}

void WindowWorld::ExpectRunTimeError(int number) {
    person.Expect("Sorvane",
                  "Run-time error '" + std::to_string(number) + "':\n\n" + std::string(Sentence(number)),
                  Answer::Ok, BoxStyle::Stop);
}

void WindowWorld::ExpectRecheck(Answer answer) {
    person.Expect(
        "RECHECK?",
        "You have already performed a search on this Draw Date.\r\nWould you like to perform a re-check?",
        answer, BoxStyle::YesNo);
}

void WindowWorld::ExpectMissingTable(std::string_view table) {
    person.Expect("ERROR!",
                  "ERROR #3011\r\nUnable to open " + std::string(table) +
                      " table. Please advise error number to support.",
                  Answer::Ok, BoxStyle::Stop);
}

PlainFile WindowWorld::Plain() const { return PlainFile(DatabasePath(global.AppPath)); }

}  // namespace sorvane::test

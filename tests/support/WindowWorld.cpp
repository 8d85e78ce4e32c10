#include "support/WindowWorld.h"

#include <QAbstractItemModel>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QGroupBox>
#include <QListView>
#include <QTimer>
#include <exception>

#include "forms/Control.h"
#include "forms/Utf8.h"
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
    Select(game->opens, game->LottoFlag, game->ExtraFlag);
    if (game->MaxTicketsOnSheet) global.MaxTicketsOnSheet = *game->MaxTicketsOnSheet;
    if (game->TicketPriceCents)
        global.TicketPrice = Currency::FromTenThousandths(*game->TicketPriceCents * Currency::Scale / 100);
    if (game->FreePlays) global.FreePlays = *game->FreePlays;
    return *game;
}

void WindowWorld::Select(Family family, std::string_view LottoFlag, std::string_view ExtraFlag) {
    global.NoOfSheets = 0;
    global.LottoFlag = LottoFlag;
    global.ExtraFlag = ExtraFlag;
    global.GameForm = NameOf(family);
}

GameWindow& WindowWorld::Front(Family family) {
    window_ = &windows.Load(family);
    window_->Show();
    Person::Await(*window_);
    Person::Settle();
    return *window_;
}

GameWindow& WindowWorld::Show(std::string_view menu) { return Front(Select(menu).opens); }

GameWindow& WindowWorld::Show(Family family, std::string_view LottoFlag, std::string_view ExtraFlag) {
    Select(family, LottoFlag, ExtraFlag);
    return Front(family);
}

void WindowWorld::ShowModal(std::string_view menu, const std::function<void(GameWindow&)>& act) {
    window_ = &windows.Load(Select(menu).opens);
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

void WindowWorld::Visit(std::string_view name) {
    Click(name);
    person.Tab();
}

void WindowWorld::ExpectSaveQuestion(Answer answer) {
    person.Expect("CONFIRM", "Save this sheet of tickets?", answer, BoxStyle::YesNo);
    if (answer != Answer::Yes) person.Expect("CONFIRMED", "Tickets NOT Saved");
}

PlainFile WindowWorld::Plain() const { return PlainFile(DatabasePath(global.AppPath)); }

}  // namespace sorvane::test

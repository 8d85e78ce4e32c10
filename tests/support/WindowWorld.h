// A world with windows: state, services and a database of its own, and a person in front of it.
#pragma once

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QWidget>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "entry/ui/GameWindow.h"
#include "forms/MessageBoxes.h"
#include "reports/ui/frmReport.h"
#include "shell/Catalogue.h"
#include "shell/Global.h"
#include "shell/ui/Windows.h"
#include "store/dao/Dao.h"
#include "support/Person.h"
#include "support/Scripted.h"
#include "support/TempFolder.h"
#include "support/World.h"

namespace sorvane::test {

using testing::PlainFile;
using Texts = std::vector<std::string>;

// The windows of the program, as its main puts them together.
inline constexpr WindowMakers Makers{GameWindow::Make, frmReport::Make};

// The boxes are real and answered by `person`. Expect each before the action that brings it up:
//
//     Show("mnuCANONTKENO");
//     Put("txtNoOfTickets(0)", "1");
//     Click("chkNumb(4)");
//     person.Expect("CONFIRM", "Save this sheet of tickets?", Answer::Yes, BoxStyle::YesNo);
//     Click("cmdSave");
//     EXPECT_EQ(Rows("SELECT Ball_1 FROM PlayedONTKeno"), Texts{"5"});
class WindowWorld : public ::testing::Test {
  public:
    // The date of today in this world.
    static constexpr std::string_view Today = "2006-03-11";

    TempFolder folder;
    testing::FixedClock clock{Date::FromText(Today)};
    testing::FixedRandom random;
    testing::RecordingPrinter printer;
    testing::RecordingTools tools;
    forms::MessageBoxes boxes;
    Dao::Engine engine;
    Services services{boxes, printer, clock, random, tools, engine};
    Global global;
    sorvane::Session session{global, services};
    Windows windows{session, Makers};
    Person person;

    WindowWorld();

    // Selects a game as its menu entry does ("mnuCANONTKENO"), or by its keys where no entry offers it. Loads
    // no window.
    const Game& Select(std::string_view menu);
    void Select(Family family, std::string_view LottoFlag, std::string_view ExtraFlag);

    // Selects the game, loads its window, dresses it and shows it without a loop of its own, so that the test
    // goes on after the call. The window exists until the end of the test, even when it has been left.
    GameWindow& Show(std::string_view menu);
    GameWindow& Show(Family family, std::string_view LottoFlag, std::string_view ExtraFlag);
    // The same in the way of the menu: runs `act` inside the window's own loop, and returns when the window
    // has been left. If `act` does not leave the window, this does.
    void ShowModal(std::string_view menu, const std::function<void(GameWindow&)>& act);

    // The window last shown here.
    GameWindow& Window() const { return *window_; }

    // By name, in the window in front.
    QWidget& Find(std::string_view name) const { return person.Find<QWidget>(name); }
    bool Exists(std::string_view name) const;
    bool IsShown(std::string_view name) const { return Find(name).isVisible(); }
    bool IsEnabled(std::string_view name) const { return Find(name).isEnabled(); }
    bool IsTicked(std::string_view name) const { return Find(name).property("checked").toBool(); }
    // The text of a field or a combo box.
    std::string TextOf(std::string_view name) const;
    // The caption of a button, label or frame.
    std::string CaptionOf(std::string_view name) const;
    // All entries of a combo box or a list box.
    Texts ListOf(std::string_view name) const;
    // The name of the control that has the focus; empty when there is none.
    std::string Focus() const;

    // What the person does.
    void Click(std::string_view name) { person.Click(Find(name)); }
    // The balls that are ticked.
    std::vector<int> Ticked() const;
    // Clicks the field, replaces its text by typing, and stays in it.
    void Type(std::string_view name, std::string_view text);
    // The same, and leaves it with the Tab key.
    void Put(std::string_view name, std::string_view text);
    // Replaces the whole text of the field by pasting, which no filter of keys sees.
    void Paste(std::string_view name, std::string_view text);
    // Moves the focus into a control by a click (a list that opens is closed again), and out of it by Tab.
    void Enter(std::string_view name);
    void Visit(std::string_view name);
    // Chooses an entry of a list without a field by the arrow keys, and stays in the list.
    void Choose(std::string_view name, std::string_view entry);

    // Expects the boxes of "&Save Tickets"; after the answer No a second one comes.
    void ExpectSaveQuestion(Answer answer);
    // Expects the box of a run-time error that no handler catches.
    void ExpectRunTimeError(int number);
    // The question of a check whose date has its draw already, and the box of a table that is not there.
    void ExpectRecheck(Answer answer);
    void ExpectMissingTable(std::string_view table);

    // Plain SQL on the file; rows with their columns joined by '|', Null as "NULL".
    PlainFile Plain() const;
    Texts Rows(const std::string& sql) const { return Plain().Rows(sql); }
    void Do(const std::string& sql) const { Plain().Do(sql); }

  private:
    GameWindow& Load(Family family);
    GameWindow& LoadDressed(const Game& game);
    GameWindow& Front(GameWindow& window);

    GameWindow* window_ = nullptr;
};

}  // namespace sorvane::test

// From the open window to "Tickets Saved", by keys alone and by mouse alone: no step more than the numbers,
// the count and the buttons need.
#include <QAbstractButton>
#include <QAbstractItemView>
#include <QComboBox>

#include "windows/Slip.h"

namespace sorvane::test {
namespace {

// A game of the menu, as somebody who plays it would tell it.
struct Play {
    const char* menu;
    const char* played;  // the table of its tickets
    int numbers;         // of a ticket
    int tickets;         // that come with one bought, itself included
    bool counts;         // add-on tickets are counted in a field
};

constexpr Play Grids[] = {
    {"mnuCANBCLotto649", "PlayedLotto649", 6, 1, true},
    {"mnuCANBCSuper7", "PlayedSuper7", 7, 3, true},
    {"mnuCANBCBC49", "PlayedBC49", 6, 1, true},
    {"mnuCANWESTLotto649", "PlayedLotto649", 6, 1, false},
    {"mnuCANWESTSuper7", "PlayedSuper7", 7, 3, false},
    {"mnuCANWEST649", "PlayedWestern649", 6, 1, false},
    {"mnuCANONTLotto649", "PlayedLotto649", 6, 1, true},
    {"mnuCANONTSuper7", "PlayedSuper7", 7, 3, true},
    {"mnuCANONTLOTTARIO", "PlayedLottario", 6, 2, true},
    {"mnuCANONTONT49", "PlayedOntario49", 6, 1, true},
    {"mnuCANQCLotto649", "PlayedLotto649", 6, 1, false},
    {"mnuCANQCSuper7", "PlayedSuper7", 7, 3, false},
    {"mnuCANQCQuebec49", "PlayedQuebec49", 6, 1, false},
    {"mnuCANATLLotto649", "PlayedLotto649", 6, 1, false},
    {"mnuCANATLSuper7", "PlayedSuper7", 7, 3, false},
};
constexpr Play Digits[] = {
    {"mnuCANBCDAILY3", "PlayedBCDaily3", 3, 1, false}, {"mnuCANWESTPICK3", "PlayedWESTPick3", 3, 1, false},
    {"mnuCANONTPICK3", "PlayedONTPick3", 3, 1, true},  {"mnuCANQC3", "PlayedQuote3", 3, 1, false},
    {"mnuUSFLACash3", "PlayedFLACash3", 3, 1, false},  {"mnuUSFLAPlay4", "PlayedFLAPlay4", 4, 1, false},
};
constexpr Play Keno{"mnuCANONTKENO", "PlayedONTKeno", 3, 1, true};

void PrintTo(const Play& play, std::ostream* out) { *out << play.menu; }

class WayThrough : public SlipWorld {
  protected:
    void Open(const Play& play) {
        global.AddOnTickets.Redim(1);  // an add-on was entered before in this run
        Show(play.menu);
        ASSERT_EQ(Focus(), "txtNoOfTickets(0)");
    }
    // The keys of one hand, counted.
    void Press(Qt::Key key) {
        ++steps;
        person.Key(key);
    }
    void Type(char letter) {
        ++steps;
        person.Type(std::string(1, letter));
    }
    void ClickOn(const std::string& name) {
        ++steps;
        Click(name);
    }
    // What "&Save Tickets" brings up, answered by a key or a click each.
    void ExpectSaved(bool keys) {
        const auto answer = [this, keys](const char* title, const char* text, Answer by, int style) {
            if (!keys) return person.Expect(title, text, by, style);
            person.Expect(title, text, by, style, [this] { ++steps; });
        };
        answer("CONFIRM", "Save this sheet of tickets?", Answer::Yes, BoxStyle::YesNo);
        answer("CONFIRMED", "Tickets Saved", Answer::Ok, BoxStyle::Ok);
        if (!keys) steps += 2;
    }
    void ExpectTickets(const Play& play) {
        EXPECT_FALSE(Window().IsShown());
        EXPECT_EQ(CountOf(play.played), std::to_string(play.tickets));
        EXPECT_EQ(CountOf("Spent"), "1");
    }

    int steps = 0;
};

class GridWay : public WayThrough, public ::testing::WithParamInterface<Play> {};

TEST_P(GridWay, ByKeysNeedsTheNumbersTheCountAndTheButtonsAlone) {
    const Play& play = GetParam();
    Open(play);
    Type('1');
    Press(Qt::Key_Tab);
    if (play.counts) {
        EXPECT_EQ(Focus(), "txtNoOfExtra");
        Press(Qt::Key_Tab);
    }
    for (int ticket = 1; ticket <= play.tickets; ++ticket) {
        EXPECT_EQ(Focus(), "chkNumb(0)") << ticket;
        for (int number = 1; number <= play.numbers; ++number) {
            if (number > 1) Press(Qt::Key_Right);
            Press(Qt::Key_Space);
        }
        if (ticket < play.tickets) {
            EXPECT_EQ(Focus(), "cmdNext_Ticket");
            Press(Qt::Key_Return);
        }
    }
    EXPECT_EQ(Focus(), "cmdSave");
    ExpectSaved(true);
    Press(Qt::Key_Return);
    const int fields = play.counts ? 2 : 1, marks = 2 * play.numbers - 1;
    EXPECT_EQ(steps, 1 + fields + play.tickets * marks + (play.tickets - 1) + 3);
    ExpectTickets(play);
}

TEST_P(GridWay, ByMouseNeedsTheNumbersTheCountAndTheButtonsAlone) {
    const Play& play = GetParam();
    Open(play);
    person.Type("1");
    for (int ticket = 1; ticket <= play.tickets; ++ticket) {
        for (int number = 1; number <= play.numbers; ++number) ClickOn(Ball(2 * number));
        if (ticket < play.tickets) ClickOn("cmdNext_Ticket");
    }
    ExpectSaved(false);
    ClickOn("cmdSave");
    EXPECT_EQ(steps, play.tickets * play.numbers + (play.tickets - 1) + 3);
    ExpectTickets(play);
    EXPECT_EQ(Rows("SELECT Ball_1, Ball_2 FROM " + std::string(play.played) + " ORDER BY ID1").front(),
              "2|4");
}

TEST_P(GridWay, AFurtherSheetBeginsInTheCountOfAddOnsOrAtTheFirstBall) {
    const Play& play = GetParam();
    Open(play);
    SeveralSheets(2, 2);
    for (int ticket = 1; ticket <= play.tickets; ++ticket) {
        PickFrom(1, play.numbers);
        if (ticket < play.tickets) Click("cmdNext_Ticket");
    }
    SaveSheet(false);
    EXPECT_EQ(Focus(), play.counts ? "txtNoOfExtra" : "chkNumb(0)");
}

INSTANTIATE_TEST_SUITE_P(Games, GridWay, ::testing::ValuesIn(Grids),
                         [](const auto& play) { return std::string(play.param.menu); });

class DigitWay : public WayThrough, public ::testing::WithParamInterface<Play> {};

TEST_P(DigitWay, ByKeysNeedsTheNumbersTheCountAndTheButtonsAlone) {
    const Play& play = GetParam();
    Open(play);
    Type('1');
    Press(Qt::Key_Tab);
    if (play.counts) {
        EXPECT_EQ(Focus(), "txtNoOfExtra");
        Press(Qt::Key_Tab);
    }
    for (int digit = 0; digit < play.numbers; ++digit) {
        EXPECT_EQ(Focus(), "cboNumber(" + std::to_string(digit) + ")");
        Type(static_cast<char>('3' + digit));
        Press(Qt::Key_Tab);
    }
    EXPECT_EQ(Focus(), "cmdSave");
    ExpectSaved(true);
    Press(Qt::Key_Return);
    EXPECT_EQ(steps, 1 + (play.counts ? 2 : 1) + 2 * play.numbers + 3);
    ExpectTickets(play);
}

// Two clicks a digit, and one to leave the last list, which is what completes a ticket.
TEST_P(DigitWay, ByMouseNeedsTheNumbersTheCountAndTheButtonsAlone) {
    const Play& play = GetParam();
    Open(play);
    person.Type("1");
    for (int digit = 0; digit < play.numbers; ++digit) {
        auto& list = static_cast<QComboBox&>(Find("cboNumber(" + std::to_string(digit) + ")"));
        ++steps;
        person.Click(list);
        ++steps;
        person.ClickRow(*list.view(), 3 + digit);
    }
    ClickOn("txtDollars");
    ExpectSaved(false);
    ClickOn("cmdSave");
    EXPECT_EQ(steps, 2 * play.numbers + 1 + 3);
    ExpectTickets(play);
    EXPECT_EQ(Rows("SELECT Ball_1, Ball_2, Ball_3 FROM " + std::string(play.played)), Texts{"3|4|5"});
}

// Leaving the last list leads to a button, so that the mark and the money have to come before.
TEST_P(DigitWay, TheMarkAndTheMoneyAreReachedByTabForwardBeforeTheLists) {
    Open(GetParam());
    person.BackTab();
    EXPECT_EQ(Focus(), "txtDollars");
    person.BackTab();
    EXPECT_EQ(Focus(), "chkRegular");
    Click("dtpEnterTickets(0)");
    Texts passed;
    while (Focus() != "cboNumber(0)" && passed.size() < 20) {
        if (passed.empty() || passed.back() != Focus()) passed.push_back(Focus());
        person.Tab();
    }
    const auto at = [&](const char* name) {
        return std::find(passed.begin(), passed.end(), name) - passed.begin();
    };
    EXPECT_LT(at("chkRegular"), at("txtDollars"));
    EXPECT_LT(at("txtDollars"), static_cast<std::ptrdiff_t>(passed.size()));
}

TEST_P(DigitWay, AFurtherSheetBeginsAtTheFirstList) {
    const Play& play = GetParam();
    Open(play);
    SeveralSheets(2, 2);
    Click("cboNumber(0)");
    person.Key(Qt::Key_Escape);
    for (int digit = 0; digit < play.numbers; ++digit) person.Tab();
    SaveSheet(false);
    EXPECT_EQ(Focus(), "cboNumber(0)");
}

INSTANTIATE_TEST_SUITE_P(Games, DigitWay, ::testing::ValuesIn(Digits),
                         [](const auto& play) { return std::string(play.param.menu); });

class KenoWay : public WayThrough {};

TEST_F(KenoWay, ByKeysNeedsTheChoicesTheNumbersTheCountAndTheButtonsAlone) {
    Open(Keno);
    Type('1');
    Press(Qt::Key_Tab);
    EXPECT_EQ(Focus(), "txtNoOfExtra");
    Press(Qt::Key_Tab);
    EXPECT_EQ(Focus(), "cboNoOfBallsPerTicket");
    Type('3');
    Press(Qt::Key_Tab);
    EXPECT_EQ(Focus(), "cboWager");
    Type('2');
    Press(Qt::Key_Tab);
    EXPECT_EQ(Focus(), "chkNumb(0)");
    for (int number = 1; number <= 3; ++number) {
        if (number > 1) Press(Qt::Key_Right);
        Press(Qt::Key_Space);
    }
    EXPECT_EQ(Focus(), "cmdSave");
    ExpectSaved(true);
    Press(Qt::Key_Return);
    EXPECT_EQ(steps, 2 + 1 + 2 + 2 + 5 + 3);
    ExpectTickets(Keno);
}

TEST_F(KenoWay, ByMouseNeedsTheChoicesTheNumbersTheCountAndTheButtonsAlone) {
    Open(Keno);
    person.Type("1");
    const auto choose = [&](const char* name, int row) {
        auto& list = static_cast<QComboBox&>(Find(name));
        ++steps;
        person.Click(list, {list.width() - 8, list.height() / 2});
        ++steps;
        person.ClickRow(*list.view(), row);
    };
    choose("cboNoOfBallsPerTicket", 7);
    choose("cboWager", 2);
    for (int number = 1; number <= 3; ++number) ClickOn(Ball(2 * number));
    ExpectSaved(false);
    ClickOn("cmdSave");
    EXPECT_EQ(steps, 4 + 3 + 3);
    ExpectTickets(Keno);
    EXPECT_EQ(Rows("SELECT Ball_1, Ball_3, Wager, \"# of Balls\" FROM PlayedONTKeno"), Texts{"2|6|2|3"});
}

class SlipPress : public SlipWorld {};

TEST_F(SlipPress, BesideTheBallsLeavesTheCountToo) {
    Show("mnuCANATLLotto649");
    person.Type("1");
    QWidget& frame = Find("fraTicketNumber");
    person.Click(frame, {frame.width() / 2, frame.height() - 2});
    EXPECT_EQ(Focus(), "chkNumb(0)");
    EXPECT_TRUE(Ticked().empty());
    EXPECT_TRUE(IsEnabled("chkNumb(0)"));
}

TEST_F(SlipPress, BehindAQuestionMarksNothing) {
    Show("mnuCANATLLotto649");
    person.Type("2");
    ExpectSheets("1");
    Click("chkNumb(6)");
    EXPECT_TRUE(Ticked().empty());
    EXPECT_FALSE(person.Find<QAbstractButton>("chkNumb(6)").isDown());
    EXPECT_EQ(Focus(), "chkNumb(0)");
    EXPECT_EQ(global.NoOfSheets, 1);
    Click("chkNumb(6)");
    EXPECT_EQ(Ticked(), std::vector<int>{7});
}

TEST_F(SlipPress, OfAnEmptyCountAsksForIt) {
    Show("mnuCANATLLotto649");
    person.Key(Qt::Key_Delete);
    person.Expect("# of Tickets required", "# of Tickets required. Please enter a number.");
    Click("chkNumb(6)");
    EXPECT_EQ(Focus(), "txtNoOfTickets(0)");
    EXPECT_TRUE(Ticked().empty());
    EXPECT_FALSE(IsEnabled("chkNumb(6)"));
}

TEST_F(SlipPress, WhileAnotherFieldHasTheFocusDoesNothing) {
    Show("mnuCANATLLotto649");
    Click("txtDollars");
    Click("chkNumb(6)");
    EXPECT_EQ(Focus(), "txtDollars");
}

}  // namespace
}  // namespace sorvane::test

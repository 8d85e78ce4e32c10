#include "checking/ui/CheckTicketsTab.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "checking/CheckFacts.h"
#include "forms/Keys.h"
#include "forms/Look.h"
#include "platform/Text.h"
#include "shell/FamilyFacts.h"
#include "shell/ui/GameFrame.h"

namespace sorvane {

namespace {

using namespace CheckFacts;

constexpr int BoxesARow = 10;

// A value outside 1 to `top` shows `text`, empties the box and brings the focus back. An empty box passes.
void GuardRange(GameFrame& window, forms::TextBox& box, int top, std::string_view text) {
    if (text.empty() || box.Text().empty()) return;
    const double value = Val(box.Text());
    if (value >= 1 && value <= top) return;
    window.MsgBox(text, BoxStyle::Exclamation, RangeTitle);
    box.SetText("");
    box.SetFocus();
}

// Selects the row that a verdict belongs to. Nothing happens when the list lacks the row.
void Follow(forms::ListBox& to, int row, forms::ListBox& other) {
    if (row >= to.ListCount()) return;
    to.SetListIndex(row);
    other.ClearSelection();
}

bool IsWinner(std::string_view line) {
    return line.starts_with("Congratulations") || line.find(" won ") != std::string_view::npos;
}

// The last box of the lotto games, told from the others by a plus sign before it.
bool IsBonusBox(Family family, int index) {
    return !IsPick(family) && !IsKeno(family) && index == BoxCount[family] - 1;
}

}  // namespace

CheckTicketsTab::CheckTicketsTab(GameFrame& window)
    : txtWin(BoxStem[window.Which]), cboWin(BoxStem[window.Which]), window_(window), flow_(window, *this) {
    window.dtpEnterTickets.Load(2).SetAccessibleName("Draw Date");
    window.cmdExit.Load(2, "E&xit");
    MakeBoxes();
    constexpr std::string_view advice[] = {"Ensure correct Draw Date", "is selected prior to clicking",
                                           "on \"Enter Winnings\" button."};
    for (int i = 0; i < 3; ++i) lblEnsure.Load(i, advice[i]);
    lstNumbersPlayed.SetHint("The tickets of the draw date");
    lstMessage.SetHint("Enter the winning numbers and check");
    lstMessage.SetWinners([](int, std::string_view line) { return IsWinner(line); });
    AttachHandlers();
    LayOut();
}

void CheckTicketsTab::MakeBoxes() {
    const Family family = window_.Which;
    const int count = BoxCount[family];
    for (int i = 0; i < count; ++i) {
        if (IsPick(family)) {
            forms::ComboBox& box = cboWin.Load(i, forms::ComboBox::Style::ListOnly);
            for (int digit = 0; digit <= 9; ++digit) box.AddItem(Str(digit));
            box.SetText("");
            box.SetAccessibleName("Winning digit " + Str(i + 1));
        } else {
            txtWin.Load(i).SetAccessibleName(IsBonusBox(family, i) ? "Bonus number"
                                                                   : "Winning number " + Str(i + 1));
        }
    }
    if (HasFour[family]) {
        if (FourTested[family] == FourTest::Always)
            lblWinEarlybird.emplace("lblWinEarlybird", "Enter Earlybird Numbers:");
        for (int i = 0; i < FourBoxes; ++i)
            txtWin4.Load(i).SetAccessibleName((lblWinEarlybird ? "Earlybird number " : "Extra number ") +
                                              Str(i + 1));
    }
    if (HasEncoreBox[family]) {
        lblWinEncore.emplace("lblWinEncore", "Enter Encore Number:");
        txtWinEncore.emplace("txtWinEncore");
    }
    if (HasEncoreList[family]) {
        lblEncorePlayed.emplace("lblEncorePlayed", "Encore #'s:");
        lstEncorePlayed.emplace("lstEncorePlayed");
        // Play 4 shows the list, but it stays empty.
        if (HasEncoreBox[family]) lstEncorePlayed->SetHint("Their add-on numbers");
    }
}

void CheckTicketsTab::AttachHandlers() {
    const Family family = window_.Which;
    txtWin.OnKeyPress([this](int Index, forms::KeyPress& key) { txtWin_KeyPress(Index, key); });
    txtWin.OnLostFocus([this, family](int Index) {
        GuardRange(window_, txtWin(Index), FamilyFacts::HighestNumber[family], RangeText[family]);
    });
    txtWin4.OnKeyPress([this](int Index, forms::KeyPress& key) { txtWin4_KeyPress(Index, key); });
    txtWin4.OnLostFocus([this, family](int Index) {
        GuardRange(window_, txtWin4(Index), FourTop[family], FourRangeText[family]);
    });
    if (txtWinEncore && GuardsEncoreKeys[family])
        txtWinEncore->OnKeyPress([this](forms::KeyPress& key) { txtWinEncore_KeyPress(key); });
    if (txtWinEncore && GuardsEncoreExit[family])
        txtWinEncore->OnLostFocus([this] { txtWinEncore_LostFocus(); });
    if (WonFilter[family]) {
        txtDollarsWon.OnGotFocus([this] { txtDollarsWon.SelectAll(); });
        txtDollarsWon.OnKeyPress([this](forms::KeyPress& key) { txtDollarsWon_KeyPress(key); });
    }
    if (FollowsRows[family]) lstMessage.OnDblClick([this] { lstMessage_DblClick(); });
    if (ClickFollows[family]) lstNumbersPlayed.OnClick([this] { lstNumbersPlayed_Click(); });
    chkStatUpdate.OnClick([this] { flow_.chkStatUpdate_Click(); });
    cmdCheck.OnClick([this] { flow_.cmdCheck_Click(); });
    cmdEnterWinnings.OnClick([this] { flow_.cmdEnterWinnings_Click(); });
}

void CheckTicketsTab::LayOut() {
    QWidget& page = window_.Pages[Tab::Check];
    const int gap = forms::Look::Gap(page);
    auto* whole = new QVBoxLayout(&page);
    whole->setContentsMargins(gap, gap, gap, gap);
    whole->setSpacing(gap);
    whole->addLayout(WinnerRow());
    whole->addLayout(ListsRow(), 1);
    whole->addLayout(WinningsRow());
    OrderTabs();
}

QLayout* CheckTicketsTab::WinnerRow() {
    QWidget& page = window_.Pages[Tab::Check];
    const int space = forms::Look::Space(page);
    auto* date = new QVBoxLayout;
    date->setSpacing(space / 2);
    lblDrawDate.SetBuddy(window_.dtpEnterTickets(2));
    date->addWidget(&lblDrawDate);
    date->addWidget(&window_.dtpEnterTickets(2));
    date->addStretch();

    auto* numbers = new QGridLayout;
    numbers->setSpacing(space);
    const int width = forms::Look::DigitsWidth(page, 3);
    txtWin.ForEach([&](forms::TextBox& box, int i) {
        box.setFixedWidth(width);
        int column = i % BoxesARow;
        if (IsBonusBox(window_.Which, i)) {
            auto* plus = new QLabel(QStringLiteral("+"));
            numbers->addWidget(plus, i / BoxesARow, column++, Qt::AlignCenter);
        }
        numbers->addWidget(&box, i / BoxesARow, column);
    });
    cboWin.ForEach([&](forms::ComboBox& box, int i) { numbers->addWidget(&box, 0, i); });
    auto* four = new QHBoxLayout;
    if (lblWinEarlybird) four->addWidget(&*lblWinEarlybird);
    // Windows of two add-ons have one label for both the number and the four numbers.
    if (lblWinEncore && !lblWinEarlybird) four->addWidget(&*lblWinEncore);
    txtWin4.ForEach([&](forms::TextBox& box, int) {
        box.setFixedWidth(width);
        four->addWidget(&box);
    });
    four->addStretch();
    auto* encore = new QHBoxLayout;
    if (lblWinEarlybird) encore->addWidget(&*lblWinEncore);
    if (txtWinEncore) {
        txtWinEncore->setFixedWidth(forms::Look::DigitsWidth(page, 8));
        encore->addWidget(&*txtWinEncore);
        lblWinEncore->SetBuddy(*txtWinEncore);
    }
    encore->addStretch();
    auto* addOn = forms::Look::Row(page);
    addOn->setSpacing(space);
    addOn->addLayout(four);
    addOn->addLayout(encore, 1);
    auto* boxes = new QHBoxLayout;
    boxes->addLayout(numbers);
    boxes->addStretch(1);
    auto* winner = new QVBoxLayout(&frmWinner);
    winner->addLayout(boxes);
    winner->addLayout(addOn);

    auto* row = new QHBoxLayout;
    row->addLayout(date);
    row->addWidget(&frmWinner, 1);
    return row;
}

QLayout* CheckTicketsTab::ListsRow() {
    QWidget& page = window_.Pages[Tab::Check];
    auto* lists = new QGridLayout;
    lists->setVerticalSpacing(forms::Look::Space(page) / 2);
    int column = 0;
    const auto add = [&](forms::Label& label, forms::ListBox& list, int share) {
        label.SetBuddy(list);
        lists->addWidget(&label, 0, column);
        lists->addWidget(&list, 1, column++);
        // The stretch is the list's, not its column's, so that the others take its room when it is hidden.
        QSizePolicy policy = list.sizePolicy();
        policy.setHorizontalStretch(share);
        list.setSizePolicy(policy);
    };
    add(lblNumbersPlayed, lstNumbersPlayed, IsKeno(window_.Which) ? 4 : 3);  // ten numbers stand in a row
    if (lstEncorePlayed) add(*lblEncorePlayed, *lstEncorePlayed, 2);
    add(lblMessage, lstMessage, 5);
    return lists;
}

QLayout* CheckTicketsTab::WinningsRow() {
    QWidget& page = window_.Pages[Tab::Check];
    const int space = forms::Look::Space(page);
    auto* advice = new QVBoxLayout;
    advice->setSpacing(0);
    lblEnsure.ForEach([&](forms::Label& label, int) { advice->addWidget(&label); });
    auto* winnings = new QHBoxLayout(&Frame1);
    winnings->setSpacing(space);
    lblDollarsWon.SetBuddy(txtDollarsWon);
    txtDollarsWon.setFixedWidth(forms::Look::DigitsWidth(page, 10));
    winnings->addWidget(&lblDollarsWon);
    winnings->addWidget(&txtDollarsWon);
    winnings->addWidget(&cmdEnterWinnings);
    winnings->addSpacing(forms::Look::Gap(page));
    winnings->addStretch();
    winnings->addLayout(advice);

    auto* row = forms::Look::Row(page);
    row->setSpacing(space);
    row->addWidget(&Frame1);
    row->addStretch(1);
    auto* buttons = new QGridLayout;
    const bool narrow = forms::Look::IsNarrow(page);
    buttons->setRowStretch(0, 1);
    buttons->setColumnStretch(0, narrow ? 1 : 0);
    buttons->addWidget(&chkStatUpdate, narrow ? 2 : 1, 0, 1, narrow ? 1 : 2, Qt::AlignLeft);
    buttons->addWidget(&cmdCheck, 2, 1 - !narrow);
    buttons->addWidget(&window_.cmdExit(2), 2, 2 - !narrow);
    row->addLayout(buttons);
    return row;
}

void CheckTicketsTab::OrderTabs() {
    std::vector<QWidget*> order{&window_.dtpEnterTickets(2)};
    txtWin.ForEach([&](forms::TextBox& box, int) { order.push_back(&box); });
    cboWin.ForEach([&](forms::ComboBox& box, int) { order.push_back(&box); });
    txtWin4.ForEach([&](forms::TextBox& box, int) { order.push_back(&box); });
    if (txtWinEncore) order.push_back(&*txtWinEncore);
    order.insert(order.end(), {&chkStatUpdate, &cmdCheck, &lstNumbersPlayed});
    if (lstEncorePlayed) order.push_back(&*lstEncorePlayed);
    order.insert(order.end(), {&lstMessage, &txtDollarsWon, &cmdEnterWinnings, &window_.cmdExit(2)});
    forms::SetTabOrder(order);
}

std::string CheckTicketsTab::MainText(int index) const {
    return IsPick(window_.Which) ? cboWin(index).Text() : txtWin(index).Text();
}

forms::Control& CheckTicketsTab::MainBox(int index) {
    if (IsPick(window_.Which)) return cboWin(index);
    return txtWin(index);
}

WinningBoxes CheckTicketsTab::Boxes() const {
    WinningBoxes boxes;
    for (int i = 0; i < BoxCount[window_.Which]; ++i) boxes.Main.push_back(MainText(i));
    txtWin4.ForEach(
        [&](forms::TextBox& box, int i) { boxes.Four[static_cast<std::size_t>(i)] = box.Text(); });
    if (txtWinEncore) boxes.Encore = txtWinEncore->Text();
    boxes.DrawDate = window_.dtpEnterTickets(2).Value();
    return boxes;
}

void CheckTicketsTab::EmptyMainBoxes() {
    txtWin.ForEach([](forms::TextBox& box, int) { box.SetText(""); });
    cboWin.ForEach([](forms::ComboBox& box, int) { box.SetText(""); });
}

void CheckTicketsTab::ClearLists() {
    lstMessage.Clear();
    lstNumbersPlayed.Clear();
    if (lstEncorePlayed) lstEncorePlayed->Clear();
}

void CheckTicketsTab::ForgetResults() {
    EmptyMainBoxes();
    if (txtWinEncore) txtWinEncore->SetText("");
    if (DateEmptiesFour[window_.Which]) txtWin4.ForEach([](forms::TextBox& box, int) { box.SetText(""); });
    ClearLists();
}

void CheckTicketsTab::RefuseAndKeep(forms::KeyPress& key, int style) {
    window_.MsgBox(forms::NotANumber, style, forms::KeyErrorTitle);
    key.Swallow();
}

void CheckTicketsTab::txtWin_KeyPress(int Index, forms::KeyPress& key) {
    if (forms::IsDigitOrBackspace(key.KeyAscii)) return;
    if (key.KeyAscii != forms::EnterKey || !EnterMovesOn[window_.Which]) {
        forms::RefuseKey(window_.session.services.dialogs, txtWin(Index), key);
        return;
    }
    if (txtWin.IsLoaded(Index + 1)) txtWin(Index + 1).SetFocus();
    else txtWin4(0).SetFocus();
}

void CheckTicketsTab::txtWin4_KeyPress(int Index, forms::KeyPress& key) {
    if (forms::IsDigitOrBackspace(key.KeyAscii)) return;
    if (key.KeyAscii == forms::EnterKey && EnterMovesOn[window_.Which]) {
        if (Index + 1 < FourBoxes) txtWin4(Index + 1).SetFocus();
        else cmdCheck.SetFocus();
        return;
    }
    if (RefusalEmptiesFour[window_.Which])
        forms::RefuseKey(window_.session.services.dialogs, txtWin4(Index), key);
    else RefuseAndKeep(key, BoxStyle::Exclamation);
}

void CheckTicketsTab::txtWinEncore_KeyPress(forms::KeyPress& key) {
    // Backspace, too, moves on: meant.
    if (key.KeyAscii == forms::Backspace || key.KeyAscii == forms::EnterKey) cmdCheck.SetFocus();
    else if (!forms::IsDigit(key.KeyAscii)) RefuseAndKeep(key, BoxStyle::Exclamation);
}

void CheckTicketsTab::txtWinEncore_LostFocus() {
    const int length = Len(txtWinEncore->Text());
    if (length < 6) {
        window_.session.global.Msg = EncoreExitText;
        window_.MsgBox(window_.session.global.Msg, BoxStyle::Ok, EncoreExitTitle);
        txtWinEncore->SetFocus();
    } else if (length == 6) {
        cmdCheck.SetFocus();
    }
}

void CheckTicketsTab::txtDollarsWon_KeyPress(forms::KeyPress& key) {
    const int k = key.KeyAscii;
    if (!forms::IsDigitOrBackspace(k) && k != ',' && k != '.' && k != forms::EnterKey)
        RefuseAndKeep(key, BoxStyle::Ok);
}

void CheckTicketsTab::lstMessage_DblClick() {
    const int row = lstMessage.ListIndex();
    const int split = window_.State.TicketRows;
    if (row < split) Follow(lstNumbersPlayed, row, *lstEncorePlayed);
    else Follow(*lstEncorePlayed, row - split, lstNumbersPlayed);
}

void CheckTicketsTab::lstNumbersPlayed_Click() {
    // The first click after the window opened does nothing: meant.
    if (window_.State.ListArmed == On) lstMessage.SetListIndex(lstNumbersPlayed.ListIndex());
    else window_.State.ListArmed = On;
}

}  // namespace sorvane

#include "quickpick/ui/WheelControls.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>
#include <vector>

#include "forms/Keys.h"
#include "forms/Look.h"
#include "platform/Text.h"
#include "quickpick/QuickPickFacts.h"
#include "shell/FamilyFacts.h"
#include "shell/ui/GameFrame.h"

namespace sorvane {

using namespace QuickPickFacts;

namespace {

constexpr int FavouritesARow = 6;

// The options by index, and what each shows above the boxes in frm645.
struct WheelOption {
    std::string_view caption;
    std::string_view favourites;  // the label above the boxes
};
constexpr WheelOption Options[] = {
    {"Hot", "Hot Numbers"}, {"Cold", "Cold Numbers"}, {"Favourites", "Favourites"}, {"Quick Pick", ""}};

// An empty box counts as 0.
int NumberIn(const forms::TextBox& box) {
    const std::string text = box.Text();
    return text.empty() ? 0 : int{CInt(text)};
}

bool IsNumberKey(int key) { return forms::IsDigitOrBackspace(key) || key == forms::EnterKey; }

}  // namespace

WheelControls::WheelControls(GameFrame& window, forms::Control& generate)
    : window_(window), generate_(generate) {
    MakeControls();
    AttachHandlers();
    LayOut();
}

void WheelControls::MakeControls() {
    for (int i = 0; i < static_cast<int>(std::size(Options)); ++i) optWheelType.Load(i, Options[i].caption);
    txtHowMany.SetText("0");
    for (int i = 0; i < HighestHowMany; ++i) {
        txtFavs.Load(i).SetEnabled(false);
        txtFavs(i).SetAccessibleName("Wheel number " + Str(i + 1));
    }
}

void WheelControls::AttachHandlers() {
    if (WheelLive[window_.Which]) optWheelType.OnClick([this](int Index) { optWheelType_Click(Index); });
    txtHowMany.OnKeyPress([this](forms::KeyPress& key) { txtHowMany_KeyPress(key); });
    txtHowMany.OnGotFocus([this] { txtHowMany.SelectAll(); });
    txtHowMany.OnLostFocus([this] { txtHowMany_LostFocus(); });
    txtFavs.OnKeyPress([this](int Index, forms::KeyPress& key) { txtFavs_KeyPress(Index, key); });
    txtFavs.OnGotFocus([this](int Index) { txtFavs(Index).SelectAll(); });
    txtFavs.OnLostFocus([this](int Index) { txtFavs_LostFocus(Index); });
}

void WheelControls::LayOut() {
    const int gap = forms::Look::Gap(fraWheel), space = forms::Look::Space(fraWheel);
    auto* options = new QHBoxLayout;
    optWheelType.ForEach([&](forms::OptionButton& option, int) { options->addWidget(&option); });
    options->addStretch();

    lblHowMany.SetBuddy(txtHowMany);
    txtHowMany.setFixedWidth(forms::Look::DigitsWidth(fraWheel, 3));
    auto* howMany = new QHBoxLayout;
    howMany->setSpacing(space);
    howMany->addWidget(&lblHowMany);
    howMany->addWidget(&txtHowMany);
    howMany->addStretch();

    auto* favourites = new QGridLayout;
    favourites->setSpacing(space);
    txtFavs.ForEach([&](forms::TextBox& box, int i) {
        box.setFixedWidth(forms::Look::DigitsWidth(fraWheel, 3));
        favourites->addWidget(&box, i / FavouritesARow, i % FavouritesARow);
    });
    favourites->setColumnStretch(FavouritesARow, 1);

    auto* whole = new QVBoxLayout(&fraWheel);
    whole->setSpacing(gap);
    whole->addLayout(options);
    whole->addLayout(howMany);
    whole->addWidget(&txtEnterFavs);
    whole->addLayout(favourites);
    whole->addStretch();
}

void WheelControls::AddToTabOrder(std::vector<QWidget*>& order) {
    optWheelType.ForEach([&](forms::OptionButton& option, int) { order.push_back(&option); });
    order.push_back(&txtHowMany);
    txtFavs.ForEach([&](forms::TextBox& box, int) { order.push_back(&box); });
}

WheelType WheelControls::Chosen() const {
    WheelType chosen = WheelType::Hot;
    optWheelType.ForEach([&](const forms::OptionButton& option, int i) {
        if (option.Value()) chosen = static_cast<WheelType>(i);
    });
    return chosen;
}

void WheelControls::ShowFavourite(int i, const std::string& text) {
    txtFavs(i).SetEnabled(true);
    txtFavs(i).SetText(text);
}

void WheelControls::EmptyFavourites() {
    txtFavs.ForEach([](forms::TextBox& box, int) { box.SetText(""); });
}

void WheelControls::RefuseTicketCount() {
    window_.txtNoOfTickets(1).SetText("0");
    window_.txtNoOfTickets(1).SetFocus();
}

Integer& WheelControls::HowManyKept() {
    return WheelLive[window_.Which] ? window_.State.HowManyToWheel : window_.session.global.NoOfTickets;
}

void WheelControls::optWheelType_Click(int Index) {
    txtEnterFavs.SetCaption(Options[Index].favourites);
    EmptyFavourites();
    const bool wheels = static_cast<WheelType>(Index) != WheelType::QuickPick;
    txtHowMany.SetEnabled(wheels);
    lblHowMany.SetEnabled(wheels);
}

void WheelControls::txtHowMany_KeyPress(forms::KeyPress& key) {
    if (!IsNumberKey(key.KeyAscii)) {
        forms::RefuseKey(window_.session.services.dialogs, txtHowMany, key);
        txtHowMany.SetText("0");
        txtHowMany.SetCaret(0);
    } else if (key.KeyAscii == forms::EnterKey) {
        txtFavs(0).SetFocus();
    }
}

void WheelControls::txtHowMany_LostFocus() {
    TakeHowMany();
    // This comes in any case, also after a refusal.
    if (WheelSizes[window_.Which]) CompareWithWheelSize();
}

void WheelControls::TakeHowMany() {
    const int lowest = WheelLowest[window_.Which];
    if (txtHowMany.Text().empty())
        return RefuseHowMany("Please enter a value for how many Numbers you wish to Wheel.",
                             "Number of Quick Picks?", true);
    const int howMany = NumberIn(txtHowMany);
    if (howMany > HighestHowMany)
        return RefuseHowMany("Too many numbers to Wheel. Value cannot exceed 18. Please try again.",
                             "Too High", false);
    if (lowest > 0 && howMany < lowest)
        return RefuseHowMany("Value must be greater than " + Str(lowest - 1) + ". Please enter a new value.",
                             "Number too Low", true);
    window_.session.global.Favourites.Redim(howMany);
    HowManyKept() = howMany;
    if (!WheelLive[window_.Which] || optWheelType(static_cast<int>(WheelType::Favourites)).Value())
        OpenFavourites(howMany);
    else generate_.SetFocus();
}

void WheelControls::RefuseHowMany(std::string_view text, std::string_view title, bool toZero) {
    if (toZero) txtHowMany.SetText("0");
    window_.MsgBox(text, BoxStyle::Ok, title);
    txtHowMany.SelectAll();
    txtHowMany.SetFocus();
}

void WheelControls::OpenFavourites(int howMany) {
    for (int i = 0; i < howMany; ++i) txtFavs(i).SetEnabled(true);
    txtFavs(0).SetFocus();
}

void WheelControls::CompareWithWheelSize() {
    Global& g = window_.session.global;
    forms::TextBox& count = window_.txtNoOfTickets(1);
    g.WheelSize = WheelSizeOf(window_.Which, txtHowMany.Text());
    if (NumberIn(count) <= g.WheelSize) return;
    g.Msg =
        "Number of Tickets selected exceeds the number of possible combinations. Please either increase the" +
        g.NL + "number of numbers you wish to Wheel, or decrease the number of Tickets.";
    window_.MsgBox(g.Msg, BoxStyle::Ok, "Not Enough Combinations Available!");
    count.SelectAll();
    count.SetFocus();
}

void WheelControls::txtFavs_KeyPress(int Index, forms::KeyPress& key) {
    forms::TextBox& box = txtFavs(Index);
    if (!IsNumberKey(key.KeyAscii)) {
        forms::RefuseKey(window_.session.services.dialogs, box, key);
        box.SetText("0");
        box.SelectAll();
    }
    if (key.KeyAscii != forms::EnterKey) return;
    // The last box follows from NoOfTickets, also in frm645, which keeps the numbers to wheel elsewhere:
    // meant.
    const int last = window_.session.global.NoOfTickets - 1;
    if (Index < last && txtFavs.IsLoaded(Index + 1)) txtFavs(Index + 1).SetFocus();
    else if (Index == last) generate_.SetFocus();
}

void WheelControls::txtFavs_LostFocus(int Index) {
    const Family family = window_.Which;
    forms::TextBox& box = txtFavs(Index);
    const int number = NumberIn(box), limit = FamilyFacts::HighestNumber[family];
    if (number > limit) {
        window_.MsgBox("Number cannot be greater than " + Str(limit) +
                           ". Please enter a new number less than or equal to " + Str(limit) + ".",
                       BoxStyle::Ok, "Number Too High!");
        box.SelectAll();
        box.SetFocus();
        return;
    }
    if (box.Text().empty() && EmptyFavAsks[family]) {
        window_.MsgBox("Please enter a number.", BoxStyle::Ok, "Please Enter a Number");
        box.SetText("0");
        box.SelectAll();
        box.SetFocus();
        return;
    }
    window_.session.global.Favourites(Index) = number;
    if (Index == HowManyKept()) generate_.SetFocus();
}

}  // namespace sorvane

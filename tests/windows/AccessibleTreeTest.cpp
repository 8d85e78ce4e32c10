// What a screen reader is told: every window as a tree in which each control has its name, its role and its
// state.
#include <QAbstractButton>
#include <QAccessible>
#include <QGroupBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <algorithm>
#include <map>

#include "windows/EveryWindow.h"

namespace sorvane::test {
namespace {

using Node = QAccessibleInterface*;

// All that can be reached from the window, itself first; what is hidden is left out with all that it holds.
std::vector<Node> TreeOf(Node root) {
    std::vector<Node> nodes{root};
    for (int i = 0; i < root->childCount(); ++i) {
        Node child = root->child(i);
        if (!child || child->state().invisible) continue;
        EXPECT_EQ(child->parent(), root) << child->text(QAccessible::Name).toStdString();
        const std::vector<Node> below = TreeOf(child);
        nodes.insert(nodes.end(), below.begin(), below.end());
    }
    return nodes;
}

std::string Told(Node node, QAccessible::Text kind) { return forms::ToUtf8(node->text(kind)); }

// What a reader says before the control: the titles of the groups that it stands in.
std::string GroupOf(const QWidget& widget) {
    const QWidget* parent = widget.parentWidget();
    if (!parent) return {};
    const auto* group = qobject_cast<const QGroupBox*>(parent);
    return GroupOf(*parent) + (group ? forms::ToUtf8(group->title()) + ", " : "");
}

// The role that each class of control plays.
QAccessible::Role RoleOf(const QWidget& widget) {
    const std::pair<const char*, QAccessible::Role> roles[] = {
        {"QCheckBox", QAccessible::CheckBox},          {"QRadioButton", QAccessible::RadioButton},
        {"QPushButton", QAccessible::Button},          {"QComboBox", QAccessible::ComboBox},
        {"QDateEdit", QAccessible::SpinBox},           {"QLineEdit", QAccessible::EditableText},
        {"QPlainTextEdit", QAccessible::EditableText}, {"QListView", QAccessible::List},
        {"QGroupBox", QAccessible::Grouping},          {"QLabel", QAccessible::StaticText}};
    for (const auto& [name, role] : roles)
        if (widget.inherits(name)) return role;
    return QAccessible::NoRole;
}

bool IsOneOf(const QWidget& widget, std::initializer_list<const char*> classes) {
    return std::any_of(classes.begin(), classes.end(),
                       [&](const char* name) { return widget.inherits(name); });
}

// What the control is called. For a list that opens Qt may give its value as the name; then the label that it
// is related to, or its description, says what it is for.
std::string NameOf(const QWidget& widget, Node node) {
    if (node->role() != QAccessible::ComboBox) return Told(node, QAccessible::Name);
    if (!widget.accessibleDescription().isEmpty()) return Told(node, QAccessible::Description);
    for (const auto& [other, relation] : node->relations(QAccessible::Label))
        if (relation & QAccessible::Label) return Told(other, QAccessible::Name);
    return {};
}

class Tree {
  public:
    Tree(QWidget& window, std::string what)
        : what_(std::move(what)), nodes_(TreeOf(QAccessible::queryAccessibleInterface(&window))) {
        for (Node node : nodes_)
            if (node->object() && node->object()->isWidgetType())
                widgets_.emplace(static_cast<QWidget*>(node->object()), node);
        window_ = &window;
    }

    // Each control that is to be seen is in the tree, with the role of its class.
    void ExpectEveryControl() const {
        for (auto* widget : window_->findChildren<QWidget*>()) {
            if (!widget->isVisible() || !dynamic_cast<forms::Control*>(widget)) continue;
            const auto place = widgets_.find(widget);
            ASSERT_NE(place, widgets_.end()) << Where(*widget) << " is not in the tree";
            if (const auto role = RoleOf(*widget); role != QAccessible::NoRole) {
                EXPECT_EQ(place->second->role(), role) << Where(*widget);
            }
            EXPECT_NE(place->second->role(), QAccessible::NoRole) << Where(*widget);
            ExpectState(*widget, place->second);
        }
    }

    // What can have the focus, and each picture and chart, is called something; on one page no two alike.
    void ExpectNames() const {
        std::map<std::string, std::string> called;
        for (const auto& [widget, node] : widgets_) {
            const bool live = widget->focusPolicy() & Qt::TabFocus;
            auto* control = dynamic_cast<forms::Control*>(widget);
            if (!control || (!live && !IsOneOf(*widget, {"QGroupBox", "QAbstractButton"}))) continue;
            if (IsOneOf(*widget, {"QTabWidget"})) continue;  // its tabs are called
            const std::string name = NameOf(*widget, node);
            EXPECT_FALSE(name.empty()) << Where(*widget);
            if (const auto mark = name.find('&'); mark != std::string::npos) {
                EXPECT_EQ(name.substr(mark, 2), "& ") << Where(*widget) << ": " << name;
            }
            if (widget->inherits("QGroupBox")) continue;
            const auto [other, first] = called.emplace(GroupOf(*widget) + name, control->Name());
            EXPECT_TRUE(first) << Where(*widget) << " is called like " << other->second << ": " << name;
        }
    }

    // Tabs, entries of menus, rows and the window.
    void ExpectNamedParts() const {
        for (Node node : nodes_)
            for (const auto role : {QAccessible::PageTab, QAccessible::MenuItem, QAccessible::ListItem}) {
                if (node->role() != role || node->state().invisible) continue;
                EXPECT_FALSE(Told(node, QAccessible::Name).empty()) << what_ << ", role " << role;
            }
    }

    Node Of(QWidget& widget) const { return widgets_.at(&widget); }

  private:
    std::string Where(const QWidget& widget) const {
        return what_ + ": " + forms::ToUtf8(widget.objectName());
    }

    void ExpectState(const QWidget& widget, Node node) const {
        const QAccessible::State state = node->state();
        EXPECT_EQ(bool(state.disabled), !widget.isEnabled()) << Where(widget);
        if (widget.isEnabled() && (widget.focusPolicy() & Qt::TabFocus) && !widget.inherits("QTabWidget")) {
            EXPECT_TRUE(state.focusable) << Where(widget);
        }
        EXPECT_EQ(bool(state.focused), widget.hasFocus()) << Where(widget);
        if (const auto* button = qobject_cast<const QAbstractButton*>(&widget);
            button && button->isCheckable()) {
            EXPECT_TRUE(state.checkable) << Where(widget);
            EXPECT_EQ(bool(state.checked), button->isChecked()) << Where(widget);
        }
        if (const auto* lines = qobject_cast<const QPlainTextEdit*>(&widget)) {
            EXPECT_EQ(bool(state.readOnly), lines->isReadOnly()) << Where(widget);
        }
    }

    std::string what_;
    std::vector<Node> nodes_;
    std::map<QWidget*, Node> widgets_;
    QWidget* window_;
};

void ExpectTold(QWidget& window, const std::string& what) {
    const Tree tree(window, what);
    tree.ExpectEveryControl();
    tree.ExpectNames();
    tree.ExpectNamedParts();
}

class AccessibleGame : public WindowWorld, public ::testing::WithParamInterface<std::string_view> {};

TEST_P(AccessibleGame, TellsNameRoleAndStateOfEveryControl) {
    SeeTabsOf(*this, GetParam(),
              [](GameWindow& window, const std::string& what) { ExpectTold(window, what); });
}

INSTANTIATE_TEST_SUITE_P(AllGames, AccessibleGame, ::testing::ValuesIn(EveryGame()),
                         [](const auto& menu) { return std::string(menu.param); });

class AccessibleTree : public MainWindow {};

TEST_F(AccessibleTree, OfTheOtherWindows) {
    SeeOtherWindows(*this, [](forms::Window& window) { ExpectTold(window, window.Name()); });
}

TEST_F(AccessibleTree, WindowsAreWindowsOrDialogsUnderTheirTitles) {
    int seen = 0;
    SeeOtherWindows(*this, [&](forms::Window& window) {
        Node node = QAccessible::queryAccessibleInterface(&window);
        const bool main = window.Name() == "frmMain";
        EXPECT_EQ(node->role(), main ? QAccessible::Window : QAccessible::Dialog) << window.Name();
        EXPECT_EQ(Told(node, QAccessible::Name), window.Caption());
        ++seen;
    });
    EXPECT_EQ(seen, 9);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&Show("mnuCANQC3"))->role(), QAccessible::Dialog);
}

TEST_F(AccessibleTree, LowAndHighHaveNamesOfTheirOwn) {
    frmRequestNewLottery window(session);
    window.Show();
    Person::Settle();
    const Tree tree(window, "request");
    EXPECT_EQ(Told(tree.Of(Person::FindIn<QWidget>(window, "txtLow")), QAccessible::Name), "Low");
    EXPECT_EQ(Told(tree.Of(Person::FindIn<QWidget>(window, "txtHigh")), QAccessible::Name), "High");
    window.Unload();
}

class AccessibleState : public WindowWorld {};

TEST_F(AccessibleState, SaysWhichNumbersAreTicked) {
    GameWindow& window = Show("mnuCANATLSuper7");
    Put("txtNoOfTickets(0)", "1");
    Click("chkNumb(6)");
    const Tree tree(window, "slip");
    Node seven = tree.Of(Find("chkNumb(6)"));
    EXPECT_EQ(Told(seven, QAccessible::Name), "Number 7");
    EXPECT_TRUE(seven->state().checked);
    EXPECT_FALSE(tree.Of(Find("chkNumb(7)"))->state().checked);
}

TEST_F(AccessibleState, SaysWhichCaptionBelongsToAField) {
    GameWindow& window = Show("mnuCANONTLOTTARIO");
    EnterTicketsTab& enter = window.Enter;
    CheckTicketsTab& check = window.Check;
    QuickPickTab& picks = window.QuickPick;
    const std::pair<const forms::Label*, const QWidget*> pairs[] = {
        {&enter.lblDrawDate, &window.dtpEnterTickets(0)},
        {&enter.lblNoTickets, &window.txtNoOfTickets(0)},
        {&*enter.AddOns.lblNoOfExtra, &*enter.AddOns.txtNoOfExtra},
        {&enter.lblDollarsSpent, &enter.txtDollars},
        {&check.lblDrawDate, &window.dtpEnterTickets(2)},
        {&*check.lblWinEncore, &*check.txtWinEncore},
        {&check.lblNumbersPlayed, &check.lstNumbersPlayed},
        {&*check.lblEncorePlayed, &*check.lstEncorePlayed},
        {&check.lblMessage, &check.lstMessage},
        {&check.lblDollarsWon, &check.txtDollarsWon},
        {&picks.lblDrawDate, &window.dtpEnterTickets(1)},
        {&picks.lblNoOfTickets, &window.txtNoOfTickets(1)},
        {&picks.lblDisplay, &picks.lstDisplay},
        {&picks.Wheel->lblHowMany, &picks.Wheel->txtHowMany}};
    for (const auto& [label, field] : pairs) EXPECT_EQ(label->buddy(), field) << label->text().toStdString();
}

TEST_F(AccessibleState, SaysWhichCaptionBelongsToAListOfKeno) {
    GameWindow& window = Show("mnuCANONTKENO");
    EXPECT_EQ(person.Find<QLabel>("lblNoOfBalls").buddy(), &Find("cboNoOfBallsPerTicket"));
    EXPECT_EQ(person.Find<QLabel>("lblWager").buddy(), &Find("cboWager"));
    EXPECT_EQ(window.QuickPick.lblNumOfBalls->buddy(), &*window.QuickPick.cboNoOfQPs);
}

TEST_F(AccessibleState, SaysWhichLinesAreWinners) {
    GameWindow& window = Show("mnuCANONTLotto649");
    window.SSTab1.SetTab(Tab::Check);
    window.Check.lstMessage.AddItem("Congratulations! You matched 3 Numbers!");
    window.Check.lstMessage.AddItem("Sorry. This ticket is not a winner.");
    const Tree tree(window, "lines");
    Node list = tree.Of(window.Check.lstMessage);
    ASSERT_EQ(list->childCount(), 2);
    EXPECT_EQ(Told(list->child(0), QAccessible::Description), "Winner");
    EXPECT_EQ(Told(list->child(1), QAccessible::Description), "");
}

}  // namespace
}  // namespace sorvane::test

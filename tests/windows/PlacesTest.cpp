// Where every control of every window stands, how large it is, and the way of the Tab key, compared with
// what places.txt tells. That file is recorded: docs/building.md says how.
#include <QFontInfo>
#include <QFontMetrics>
#include <QLabel>
#include <QScreen>
#include <QScrollBar>
#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <map>
#include <ostream>
#include <set>
#include <sstream>
#include <tuple>
#include <utility>

#include "forms/Chart.h"
#include "forms/Look.h"
#include "forms/Utf8.h"
#include "reports/ui/ReportBox.h"
#include "windows/EveryWindow.h"

namespace sorvane::test {
namespace {

const char* const PlacesFile = SORVANE_SOURCE_FOLDER "/tests/windows/places.txt";
const char* const Recorded = "recorded; look at the difference";
bool IsRecording() { return std::getenv("SORVANE_RECORD_PLACES") != nullptr; }

std::string Told(QSize size) { return std::to_string(size.width()) + "x" + std::to_string(size.height()); }

// What the numbers hold for. Another Qt, font or screen has others.
std::string Machine() {
    const auto measures = [](const QFont& font) {
        const QFontMetrics metrics(font);
        return forms::ToUtf8(QFontInfo(font).family()) + " " +
               Told({metrics.horizontalAdvance('0'), metrics.height()}) + " " +
               std::to_string(metrics.horizontalAdvance("Sphinx of black quartz, judge my vow"));
    };
    const FontOf font(Small);
    return "Qt " + std::string(qVersion()) + ", " + measures(QApplication::font()) + ", " +
           measures(forms::Look::FixedFont()) + ", " + forms::ToUtf8(QGuiApplication::platformName()) + " " +
           Told(QGuiApplication::primaryScreen()->availableSize());
}

// What is told of one thing in a view: "700,550 80x30" of a control, its size of the window, and the names of
// what the Tab key reaches.
const char* const TheWindow = "window";
const char* const TheTabKey = "the Tab key";
struct Fact {
    std::string view, thing, told;
};
using Facts = std::vector<Fact>;

// What the Tab key reaches, in its order; what is disabled now stands in brackets.
std::string TabOrderOf(QWidget& window) {
    std::string order;
    std::set<std::string> passed;  // the parts of a control count as one
    for (QWidget* at = window.nextInFocusChain(); at != &window; at = at->nextInFocusChain()) {
        QWidget* widget = at;
        while (widget->focusProxy()) widget = widget->focusProxy();
        if (!widget->isVisible() || (widget->focusPolicy() & Qt::TabFocus) != Qt::TabFocus) continue;
        const forms::Control* control = forms::Control::Of(widget);
        std::string name = control ? control->Name() : widget->metaObject()->className();
        if (!widget->isEnabled()) name = "[" + name + "]";
        if (!passed.insert(name).second) continue;
        order += (order.empty() ? "" : " ") + name;
    }
    return order;
}

// Controls have names; the other labels are known by their texts.
std::string NameIn(const QWidget& widget) {
    if (const auto* control = dynamic_cast<const forms::Control*>(&widget)) return control->Name();
    const auto* label = qobject_cast<const QLabel*>(&widget);
    if (!label || label->text().isEmpty()) return {};
    return "\"" + forms::ToUtf8(label->text().replace(u'\n', u' ')) + "\"";
}

void Note(QWidget& window, const std::string& view, Facts& facts) {
    // Texts that are wrapped get their heights at the second time.
    for (int times = 0; times < 3; ++times) Person::Settle();
    std::vector<std::tuple<std::string, int, int, std::string>> places;
    for (const auto* widget : window.findChildren<QWidget*>()) {
        const std::string name = NameIn(*widget);
        if (!widget->isVisible() || name.empty()) continue;
        const QPoint at = widget->mapTo(&window, QPoint());
        places.emplace_back(
            name, at.x(), at.y(),
            std::to_string(at.x()) + "," + std::to_string(at.y()) + " " + Told(widget->size()));
    }
    std::sort(places.begin(), places.end());
    facts.push_back({view, TheWindow, Told(window.size())});
    for (const auto& place : places) facts.push_back({view, std::get<0>(place), std::get<3>(place)});
    facts.push_back({view, TheTabKey, TabOrderOf(window)});
}

// A section for each test: "[name]", below it for each view "view: size", and indented "thing: told".
struct Places {
    std::string machine;
    std::map<std::string, Facts> sections;
};

Places Read() {
    Places places;
    std::ifstream file(PlacesFile);
    std::getline(file, places.machine);
    std::string line, view;
    Facts* facts = nullptr;
    while (std::getline(file, line)) {
        if (line.starts_with('[')) {
            facts = &places.sections[line.substr(1, line.size() - 2)];
            continue;
        }
        const std::size_t colon = line.rfind(": ");
        if (!facts || colon == std::string::npos) throw std::runtime_error("can't read: " + line);
        const std::string told = line.substr(colon + 2);
        if (line.starts_with("  ")) {
            facts->push_back({view, line.substr(2, colon - 2), told});
        } else {
            view = line.substr(0, colon);
            facts->push_back({view, TheWindow, told});
        }
    }
    return places;
}

void Write(const Places& places) {
    std::ofstream file(PlacesFile);
    file << places.machine << "\n";
    for (const auto& [name, facts] : places.sections) {
        file << "[" << name << "]\n";
        for (const Fact& fact : facts)
            file << (fact.thing == TheWindow ? fact.view : "  " + fact.thing) << ": " << fact.told << "\n";
    }
}

// Several of one name in a view are told apart by their turn.
std::map<std::pair<std::string, std::string>, std::string> ByName(const Facts& facts) {
    std::map<std::pair<std::string, std::string>, std::string> byName;
    for (const Fact& fact : facts) {
        std::string thing = fact.thing;
        for (int turn = 2; byName.contains({fact.view, thing}); ++turn)
            thing = fact.thing + " #" + std::to_string(turn);
        byName[{fact.view, thing}] = fact.told;
    }
    return byName;
}

// Where two ways of the Tab key part.
std::string Parting(const std::string& recorded, const std::string& found) {
    std::istringstream one(recorded), other(found);
    std::string last = "the start", before, now;
    while (true) {
        before.clear(), now.clear();
        one >> before, other >> now;
        if (before != now || before.empty()) break;
        last = now;
    }
    return "behind " + last + " recorded " + (before.empty() ? "nothing" : before) + ", found " +
           (now.empty() ? "nothing" : now);
}

// On another Qt, font or screen all stands elsewhere. What has to be the same even there: the views, the
// controls in each of them, and the order of the Tab key.
std::vector<std::string> Differences(const Facts& recorded, const Facts& found, bool withNumbers) {
    const auto before = ByName(recorded), now = ByName(found);
    std::vector<std::string> differences;
    for (const auto& [key, told] : before) {
        const auto& [view, thing] = key;
        const auto at = now.find(key);
        const std::string what = view + ": " + thing + ": ";
        if (at == now.end()) differences.push_back(what + "recorded " + told + ", found nothing");
        else if (at->second == told) continue;
        else if (thing == TheTabKey) differences.push_back(what + Parting(told, at->second));
        else if (withNumbers) differences.push_back(what + "recorded " + told + ", found " + at->second);
    }
    for (const auto& [key, told] : now)
        if (!before.contains(key))
            differences.push_back(key.first + ": " + key.second + ": recorded nothing, found " + told);
    return differences;
}

void ExpectAsRecorded(const std::string& section, const Facts& found) {
    Places places = Read();
    const std::string machine = Machine();
    if (IsRecording()) {
        if (places.machine != machine) places = {machine, {}};
        places.sections[section] = found;
        Write(places);
        ADD_FAILURE() << Recorded;
        return;
    }
    const bool withNumbers = places.machine == machine;
    const std::vector<std::string> differences = Differences(places.sections[section], found, withNumbers);
    constexpr std::size_t MostLines = 18;
    std::string told;
    for (std::size_t i = 0; i < std::min(differences.size(), MostLines); ++i) told += differences[i] + "\n";
    EXPECT_TRUE(differences.empty()) << told << differences.size() << " differences in [" << section << "]";
}

// As it opens, half as wide and half as high again, and as it opens with large letters. The larger one has
// letters of a size between, since in the two others a spacing is, by chance, the style's own.
enum class Seen { AsItOpens, Larger, InLargeLetters };
constexpr Seen AllSeen[] = {Seen::AsItOpens, Seen::Larger, Seen::InLargeLetters};

std::string NameOf(Seen seen) {
    switch (seen) {
        case Seen::Larger:
            return "Larger";
        case Seen::InLargeLetters:
            return "InLargeLetters";
        default:
            return "AsItOpens";
    }
}

void PrintTo(Seen seen, std::ostream* out) { *out << NameOf(seen); }

int PointsOf(Seen seen) {
    constexpr int Between = 13;
    if (seen == Seen::Larger) return Between;
    return seen == Seen::InLargeLetters ? Large : Small;
}

void Stretch(QWidget& window, Seen seen) {
    if (seen == Seen::Larger) window.resize(window.size() * 1.5);
    Person::Settle();
}

// A window of each family, and each kind of add-on.
struct GameSeen {
    const char* name;
    const char* menu;
    bool inAllSizes;
};
// No menu entry opens keno of 80 numbers.
const char* const NoMenu = "";
const GameSeen GamesSeen[] = {
    {"Lotto649WithEncore", "mnuCANONTLotto649", true},
    {"Lotto649WithThePlus", "mnuCANWESTLotto649", false},
    {"Lotto649WithExtra", "mnuCANBCLotto649", false},
    {"Super7WithWESTExtra", "mnuCANWESTSuper7", true},
    {"Super7WithExtra", "mnuCANBCSuper7", false},
    {"Lottario", "mnuCANONTLOTTARIO", true},
    {"DailyKeno", "mnuCANONTKENO", true},
    {"PrairieKeno", NoMenu, true},
    {"Pick3WithEncore", "mnuCANONTPICK3", true},
    {"Daily3", "mnuCANBCDAILY3", false},
    {"Play4", "mnuUSFLAPlay4", true},
};

struct GameView {
    GameSeen game;
    Seen seen;
};

std::string NameOf(const GameView& view) { return std::string(view.game.name) + NameOf(view.seen); }
void PrintTo(const GameView& view, std::ostream* out) { *out << NameOf(view); }

std::vector<GameView> GameViews() {
    std::vector<GameView> views;
    for (const GameSeen& game : GamesSeen)
        for (const Seen seen : AllSeen)
            if (game.inAllSizes || seen == Seen::AsItOpens) views.push_back({game, seen});
    return views;
}

class PlacesInGames : public WindowWorld, public ::testing::WithParamInterface<GameView> {};

TEST_P(PlacesInGames, AreAsRecorded) {
    const auto& [game, seen] = GetParam();
    const FontOf font(PointsOf(seen));
    GameWindow& window = game.menu == NoMenu ? Show(Family::frmKeno80, game.name, "") : Show(game.menu);
    Stretch(window, seen);
    Facts found;
    SeeTabs(*this, window, game.name,
            [&](GameWindow& front, const std::string& view) { Note(front, view, found); });
    ExpectAsRecorded(NameOf(GetParam()), found);
}

INSTANTIATE_TEST_SUITE_P(Views, PlacesInGames, ::testing::ValuesIn(GameViews()),
                         [](const auto& view) { return NameOf(view.param); });

class PlacesInWindows : public MainWindow, public ::testing::WithParamInterface<Seen> {};

TEST_P(PlacesInWindows, AreAsRecorded) {
    const FontOf font(PointsOf(GetParam()));
    Facts found;
    SeeOtherWindows(*this, [&](forms::Window& window) {
        Stretch(window, GetParam());
        Note(window, window.Name(), found);
    });
    ExpectAsRecorded("Windows" + NameOf(GetParam()), found);
}

INSTANTIATE_TEST_SUITE_P(Views, PlacesInWindows, ::testing::ValuesIn(AllSeen),
                         [](const auto& seen) { return NameOf(seen.param); });

// Else a view that is gone would stand there for ever.
TEST(PlacesRecorded, AreThoseOfTheViewsAndNoOthers) {
    std::set<std::string> expected;
    for (const Seen seen : AllSeen) expected.insert("Windows" + NameOf(seen));
    for (const GameView& view : GameViews()) expected.insert(NameOf(view));
    Places places = Read();
    if (IsRecording()) {
        std::erase_if(places.sections,
                      [&](const auto& section) { return !expected.contains(section.first); });
        Write(places);
        ADD_FAILURE() << Recorded;
        return;
    }
    std::set<std::string> recorded;
    for (const auto& section : places.sections) recorded.insert(section.first);
    EXPECT_EQ(recorded, expected);
}

// Sizes that no window shows, because something beside them needs more room.
TEST(LeastSizes, AReportShowsItsHeadLineWholeAtItsNarrowest) {
    ReportBox box("txtReport");
    box.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    box.resize(1, 1);
    box.show();
    Person::Settle();
    const QFontMetrics metrics = box.fontMetrics();
    const int margins = 2 * static_cast<int>(box.document()->documentMargin());
    EXPECT_EQ(box.viewport()->width() - margins, metrics.horizontalAdvance(QString(32, '0')));
    EXPECT_EQ(box.viewport()->height() - margins, metrics.lineSpacing() * 8);
}

TEST(LeastSizes, AChartAsksForTwentyFourLinesAcrossAndTwelveDown) {
    const forms::Chart chart("mscNumberFrequency");
    const int line = chart.fontMetrics().height();
    EXPECT_EQ(chart.sizeHint(), QSize(24 * line, 12 * line));
}

}  // namespace
}  // namespace sorvane::test

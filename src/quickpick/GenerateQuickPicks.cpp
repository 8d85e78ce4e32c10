#include "quickpick/GenerateQuickPicks.h"

#include <algorithm>
#include <cmath>

#include "platform/Text.h"
#include "quickpick/GeneralFunctions.h"
#include "shell/Catalogue.h"
#include "shell/FamilyFacts.h"

namespace sorvane {

namespace {

constexpr int KenoShape = 20;
// Positions beyond these are never drawn.
constexpr int MostPositions = 20;

// One statement; when it fails the next one runs.
template <class Statement>
bool Try(Statement statement) {
    return ErrorOf(statement) == 0;
}

bool IsDigitShape(int numbersPerTicket) { return numbersPerTicket == 3 || numbersPerTicket == 4; }
bool IsLottoShape(int numbersPerTicket) { return numbersPerTicket == 6 || numbersPerTicket == 7; }

// Both 0 for a key that the generator does not know.
struct Range {
    int max = 0;
    int count = 0;
};

Range RangeOf(const Global& g) {
    for (const GameKey& key : GameKeys()) {
        const std::string_view compared = key.QuickPickKey.empty() ? key.LottoFlag : key.QuickPickKey;
        if (compared != g.LottoFlag) continue;
        // Digits are drawn below the highest one: no quick pick has a 9. Meant.
        return {FamilyFacts::HighestNumber[key.in],
                IsKeno(key.in) ? int{g.NoOfBallsPerTicket} : FamilyFacts::NumbersPerTicket[key.in]};
    }
    return {};
}

int DrawBelow(RandomSource& random, int max) { return static_cast<int>(std::floor(random.Rnd() * max)); }

bool StandsBefore(const Array<Integer>& numbers, int position) {
    for (int earlier = position - 1; earlier >= 0; --earlier)
        if (numbers(earlier) == numbers(position)) return true;
    return false;
}

void DrawDigits(Session& session, const Range& range) {
    for (int position = 0; position < std::min(range.count, MostPositions); ++position)
        session.global.Numbers(position) = DrawBelow(session.services.random, range.max);
}

void DrawNumbers(Session& session, const Range& range) {
    Array<Integer>& numbers = session.global.Numbers;
    // What the last ticket left in the positions that are never drawn would come first in this one's line.
    for (int position = MostPositions; position < range.count; ++position) numbers(position) = 0;
    for (int position = 0; position < std::min(range.count, MostPositions); ++position) {
        do numbers(position) = DrawBelow(session.services.random, range.max) + 1;
        while (StandsBefore(numbers, position));
    }
}

// The balls of the ticket, as far as Numbers holds them.
std::string KenoLine(const Global& g) {
    const int balls = g.NoOfBallsPerTicket;
    const int there = g.Numbers.Sized() ? g.Numbers.UBound() + 1 : 0;
    return JoinByPosition(g.Numbers, std::min(balls, there), balls - 1);
}

}  // namespace

void GenerateQuickPicks(Session& session, const Integer& numbersPerTicket, const Integer& ticketCount,
                        Array<std::string>& quickPicks, Lines& lstDisplay) {
    Global& g = session.global;
    const Range range = RangeOf(g);
    const int shape = numbersPerTicket;
    const bool keno = shape == KenoShape, lotto = IsLottoShape(shape), digits = IsDigitShape(shape);
    if (range.max > 0) Try([&] { g.Numbers.Redim(range.count); });
    Try([&] { quickPicks.Redim(ticketCount); });
    for (int t = 0; t < ticketCount; ++t) {
        Try([&] { session.services.random.Randomize(); });
        if (digits) Try([&] { DrawDigits(session, range); });
        if (lotto || keno) Try([&] { DrawNumbers(session, range); });
        if (!digits) Try([&] { SortNumbers(g, g.Numbers); });
        if (keno) Try([&] { lstDisplay.AddItem(KenoLine(g)); });
        if (!lotto && !digits) continue;
        std::string line;
        if (!Try([&] { line = JoinNumbers(shape, g.Numbers); })) continue;
        Try([&] { lstDisplay.AddItem(line); });
        Try([&] { quickPicks(t) = line; });
    }
}

}  // namespace sorvane

#include "checking/CheckForMatches.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <numeric>
#include <span>
#include <string>
#include <system_error>
#include <utility>

#include "checking/Ladders.h"
#include "checking/RowText.h"
#include "platform/Text.h"
#include "shell/Catalogue.h"

namespace sorvane {

namespace {

constexpr int SixNumbers = 6;
constexpr int SevenNumbers = 7;
constexpr int TwentyNumbers = 20;
constexpr int FourNumbers = 4;

void AddLine(Session& session, Lines& lstMessage, std::string line) {
    session.global.Msg = std::move(line);
    lstMessage.AddItem(session.global.Msg);
}

// Plain digits, which is what boxes hold, take the short way.
int BoxNumber(const std::string& text) {
    constexpr std::size_t FitsAnyway = 4;
    const char* const end = text.data() + text.size();
    int number = 0;
    const auto parsed = std::from_chars(text.data(), end, number);
    if (parsed.ec == std::errc() && parsed.ptr == end && text.size() <= FitsAnyway) return number;
    return CInt(text);
}

// The boxes as numbers; the conversion is made once a ticket, not once a comparison.
template <std::size_t Count, class Boxes>
std::array<int, Count> NumbersOf(const Boxes& boxes) {
    std::array<int, Count> numbers{};
    for (std::size_t i = 0; i < Count; ++i) numbers[i] = BoxNumber(boxes.at(i));
    return numbers;
}

// Pairs of equal numbers: one that stands in two boxes counts twice.
template <int N>
int Matches(const Slots<Integer, N>& ticket, int columns, std::span<const int> boxes) {
    int count = 0;
    for (int i = 0; i < columns; ++i)
        count += static_cast<int>(std::count(boxes.begin(), boxes.end(), int{ticket(i)}));
    return count;
}

std::string LottoLine(std::span<const Ladders::LottoTier> ladder, int count, bool bonus) {
    for (const Ladders::LottoTier& tier : ladder) {
        if (count < tier.fewest || count > tier.most || (tier.needsBonus && !bonus)) continue;
        std::string line(tier.text);
        if (!tier.behindCount.empty()) line.append(Str(count)).append(tier.behindCount);
        return line;
    }
    return std::string(Ladders::NotAWinner);
}

template <int Columns, class Row>
void CheckLotto(Session& session, const WinningBoxes& boxes, const Row& ticket,
                std::span<const Ladders::LottoTier> ladder, Lines& lstMessage) {
    Global& g = session.global;
    g.MatchCount = 0;
    const auto drawn = NumbersOf<Columns + 1>(boxes.Main);
    const std::span<const int> all(drawn);
    g.MatchCount = Matches(ticket.Numbers, Columns, all.first(Columns));
    const bool bonus = Matches(ticket.Numbers, Columns, all.last(1)) > 0;
    AddLine(session, lstMessage, LottoLine(ladder, g.MatchCount, bonus));
}

}  // namespace

void CheckLotto6(Session& session, const WinningBoxes& boxes, int Row, Lines& lstMessage) {
    CheckLotto<SixNumbers>(session, boxes, session.global.Lotto6Played(Row), Ladders::Lotto6, lstMessage);
}

void CheckLotto7(Session& session, const WinningBoxes& boxes, int Row, Lines& lstMessage) {
    CheckLotto<SevenNumbers>(session, boxes, session.global.Lotto7Played(Row), Ladders::Lotto7, lstMessage);
    session.global.MatchCount = 0;
}

namespace {

// Empty where the prize table has no such wager or number of balls: then there is no line at all.
std::string KenoLine(int balls, int wager, int matches) {
    const auto& wagers = Ladders::KenoWagers;
    const auto column = std::find(wagers.begin(), wagers.end(), wager);
    if (column == wagers.end() || balls < Ladders::FewestKenoBalls || balls > Ladders::MostKenoBalls)
        return {};
    for (const Ladders::KenoPrize& prize : Ladders::KenoPrizes) {
        if (prize.balls != balls || prize.matches != matches) continue;
        const auto at = static_cast<std::size_t>(column - wagers.begin());
        return std::string("Congratulations! You won ").append(prize.amounts[at]).append("!");
    }
    return std::string(Ladders::NotAWinner);
}

bool IsKenoKey(const std::string& LottoFlag) {
    return FindKey(Family::frmKeno70, LottoFlag) || FindKey(Family::frmKeno80, LottoFlag);
}

}  // namespace

void CheckKeno(Session& session, const WinningBoxes& boxes, int Row, Lines& lstMessage) {
    Global& g = session.global;
    g.Msg.clear();
    const KenoRow& ticket = g.KenoPlayed(Row);
    g.Wager = ticket.Wager;
    g.NoOfBallsPerTicket = ticket.NoOfBalls;
    g.MatchCount = 0;
    const bool paysPrizes = CellsOf(g.LottoFlag).PaysPrizes;
    if (!IsKenoKey(g.LottoFlag)) return;
    // The games without prizes are counted over all columns, not over the ticket's number of balls.
    const int columns = paysPrizes ? int{g.NoOfBallsPerTicket} : TwentyNumbers;
    g.MatchCount = Matches(ticket.Numbers, columns, NumbersOf<TwentyNumbers>(boxes.Main));
    if (!paysPrizes) return;
    std::string line = KenoLine(g.NoOfBallsPerTicket, g.Wager, g.MatchCount);
    if (!line.empty()) AddLine(session, lstMessage, std::move(line));
}

namespace {

// The digits at these places read as one number: 0, 1, 2 give 12.
template <std::size_t N>
Integer NumberOf(const std::array<Integer, N>& digits, const std::array<std::size_t, N>& places) {
    int number = 0;
    for (const std::size_t place : places) number = number * 10 + digits[place];
    return number;
}

template <std::size_t N>
constexpr std::array<std::size_t, N> PlacesInOrder() {
    std::array<std::size_t, N> places{};
    std::iota(places.begin(), places.end(), std::size_t{0});
    return places;
}

template <std::size_t N>
void BuildPerms(Array<Integer>& WinPerms, const std::array<Integer, N>& digits) {
    constexpr int orders = N == 3 ? 6 : 24;
    WinPerms.Redim(orders - 1);
    auto places = PlacesInOrder<N>();
    for (int i = 0; i < orders; ++i) {
        WinPerms(i) = NumberOf(digits, places);
        std::next_permutation(places.begin(), places.end());
    }
}

// Three names for one rule: a straight hit counts like one in any other order.
bool PaysAnyOrder(const std::string& PlayOption) {
    return PlayOption == "Box" || PlayOption == "StraightBox" || PlayOption == "Combo";
}

template <std::size_t N>
bool StandsInWinPerms(const Array<Integer>& WinPerms, const std::array<Integer, N>& ticket) {
    const Integer number = NumberOf(ticket, PlacesInOrder<N>());
    for (int i = 0; i <= WinPerms.UBound(); ++i)
        if (number == WinPerms(i)) return true;
    return false;
}

template <std::size_t N, class Row, class Build>
void CheckPick(Session& session, const WinningBoxes& boxes, const Row& ticket, Build build,
               Lines& lstMessage) {
    Global& g = session.global;
    constexpr auto All = static_cast<int>(N);
    std::array<Integer, N> digits;
    for (std::size_t i = 0; i < N; ++i) digits[i] = ticket.Numbers(static_cast<int>(i));
    g.MatchCount = 0;
    if (g.PlayOption == "Straight") {
        for (std::size_t i = 0; i < N; ++i)
            if (BoxNumber(boxes.Main.at(i)) == digits[i]) ++g.MatchCount;
    } else if (PaysAnyOrder(g.PlayOption)) {
        std::array<Integer, N> drawn;
        for (std::size_t i = 0; i < N; ++i) drawn[i] = BoxNumber(boxes.Main.at(i));
        build(session, drawn);
        if (StandsInWinPerms(g.WinPerms, digits)) g.MatchCount = All;
    }
    AddLine(session, lstMessage,
            std::string(g.MatchCount == All ? Ladders::PickWinner : Ladders::NotAWinner));
}

}  // namespace

void BuildPick3Perms(Session& session, const std::array<Integer, 3>& digits) {
    BuildPerms(session.global.WinPerms, digits);
}

void BuildPick4Perms(Session& session, const std::array<Integer, 4>& digits) {
    BuildPerms(session.global.WinPerms, digits);
}

void CheckPick3(Session& session, const WinningBoxes& boxes, int Row, Lines& lstMessage) {
    CheckPick<3>(session, boxes, session.global.Pick3Played(Row), BuildPick3Perms, lstMessage);
}

void CheckPick4(Session& session, const WinningBoxes& boxes, int Row, Lines& lstMessage) {
    CheckPick<4>(session, boxes, session.global.Pick4Played(Row), BuildPick4Perms, lstMessage);
}

namespace {

using Ladders::DigitLadder;
using Ladders::DigitTier;
using Ladders::Match;

// A played add-on number beside the drawn one. The values of the first and the last column are kept beside
// the text: a number that was not played is 99 in each column, which is two characters in the text.
struct DigitPair {
    std::string played;
    const std::string& drawn;
    int digits;
    int first;
    int last;

    bool PartEquals(int start, int length) const {
        return Mid(played, start, length) == Mid(drawn, start, length);
    }
    bool TailEquals(int length) const { return PartEquals(digits + 1 - length, length); }
    bool FirstEquals() const { return CInt(Mid(drawn, 1, 1)) == first; }
    bool LastEquals() const { return CInt(Mid(drawn, digits, 1)) == last; }
};

bool Meets(const DigitPair& pair, const DigitTier& tier) {
    switch (tier.match) {
        case Match::Whole:
            return pair.drawn == pair.played;
        case Match::Tail:
            return pair.TailEquals(tier.length);
        case Match::TailAndFirst:
            return pair.TailEquals(tier.length) && pair.FirstEquals();
        case Match::TailOrHead:
            return pair.TailEquals(tier.length) || pair.PartEquals(1, tier.length);
        case Match::FirstAndLast:
            return pair.FirstEquals() && pair.LastEquals();
        case Match::FirstOrLast:
            return pair.FirstEquals() || pair.LastEquals();
    }
    return false;
}

bool IsSentinel(const DigitPair& pair) {
    return pair.played == JoinNumbers(
                              pair.digits, [](int) { return NotPlayed; }, "");
}

std::string DigitLine(Global& g, const DigitLadder& ladder, const DigitPair& pair) {
    const std::string prefix(ladder.prefix);
    const auto met = std::find_if(ladder.tiers.begin(), ladder.tiers.end(),
                                  [&](const DigitTier& tier) { return Meets(pair, tier); });
    if (met != ladder.tiers.end()) {
        g.MatchCount = met->tier;
        return (prefix + " #" + pair.played).append(met->text);
    }
    if (IsSentinel(pair)) {
        g.MatchCount = NotPlayed;
        return prefix + " Not Played";
    }
    return "Sorry. " + prefix + " ticket #" + pair.played + " is not a winner.";
}

template <int N>
void CheckDigits(Session& session, const DigitLadder& ladder, const Slots<Integer, N>& row,
                 const WinningBoxes& boxes, Lines& lstMessage) {
    Global& g = session.global;
    g.MatchCount = 0;
    const int digits = AddOnDigits(ladder.ExtraFlag);
    const DigitPair pair{RowText(row, digits, ""), boxes.Encore, digits, row(0), row(digits - 1)};
    AddLine(session, lstMessage, DigitLine(g, ladder, pair));
    g.MatchCount = 0;
}

}  // namespace

void CheckEncore(Session& session, const WinningBoxes& boxes, int Row, Lines& lstMessage) {
    CheckDigits(session, Ladders::Encore, session.global.Lotto6Played(Row).Numbers, boxes, lstMessage);
}

void CheckWESTExtra(Session& session, const WinningBoxes& boxes, int Row, Lines& lstMessage) {
    CheckDigits(session, Ladders::WESTExtra, session.global.Lotto7Played(Row).Numbers, boxes, lstMessage);
}

void CheckQCExtra(Session& session, const WinningBoxes& boxes, int Row, Lines& lstMessage) {
    CheckDigits(session, Ladders::QCExtra, session.global.Lotto6Played(Row).Numbers, boxes, lstMessage);
}

void CheckTag(Session& session, const WinningBoxes& boxes, int Row, Lines& lstMessage) {
    CheckDigits(session, Ladders::Tag, session.global.Lotto6Played(Row).Numbers, boxes, lstMessage);
}

void CheckThePlus(Session& session, const WinningBoxes& boxes, int Row, Lines& lstMessage) {
    CheckDigits(session, Ladders::ThePlus, session.global.Lotto6Played(Row).Numbers, boxes, lstMessage);
}

namespace {

void CheckExtra(Session& session, const WinningBoxes& boxes, const Pick4Row& ticket, Lines& lstMessage) {
    Global& g = session.global;
    g.MatchCount = 0;
    const std::string name = "Extra # " + RowText(ticket.Numbers, FourNumbers);
    g.MatchCount = Matches(ticket.Numbers, FourNumbers, NumbersOf<FourNumbers>(boxes.Four));
    if (g.MatchCount == 0) g.Msg = "Sorry, " + name + " is not a winner.";
    else if (g.MatchCount <= FourNumbers)
        g.Msg = std::string(name).append(Ladders::ExtraWins[static_cast<std::size_t>(int{g.MatchCount})]);
    // With more than four matches the line added before is added again.
    lstMessage.AddItem(g.Msg);
    g.MatchCount = 0;
}

void CheckEarlyBird(Session& session, const WinningBoxes& boxes, const Lotto6Row& ticket, Lines& lstMessage) {
    Global& g = session.global;
    g.MatchCount = 0;
    const int matches = Matches(ticket.Numbers, SixNumbers, NumbersOf<FourNumbers>(boxes.Four));
    if (ticket.EarlyBird) g.MatchCount = matches;
    if (g.MatchCount == FourNumbers) AddLine(session, lstMessage, "Congratulations! You Won EARLYBIRD!");
    else if (ticket.EarlyBird) AddLine(session, lstMessage, "Sorry. You did not win EarlyBird.");
    else AddLine(session, lstMessage, "Earlybird NOT Played");
    g.MatchCount = 0;
}

}  // namespace

void CheckExtraEarlyBird(Session& session, const WinningBoxes& boxes, int Row, Lines& lstMessage) {
    const Global& g = session.global;
    if (CellsOf(g.LottoFlag).HasEarlyBird) CheckEarlyBird(session, boxes, g.Lotto6Played(Row), lstMessage);
    else if (AddOnOf(g.ExtraFlag).FourNumbers) CheckExtra(session, boxes, g.Pick4Played(Row), lstMessage);
}

void FindDrawEntry(Session& session, const StoreArgs& at) {
    Global& g = session.global;
    StoreRoutine(session, Tails::Open, at.TableName, [&] {
        Dao::Database Db = session.services.engine.OpenDatabase(at.DbName, g.Open);
        Dao::Recordset Rs = Db.OpenTable(at.TableName);
        if (Rs.RecordCount() <= 0) return;
        Rs.Index("Date");
        Rs.Seek(at.WindowDate);
        if (!Rs.NoMatch()) {
            g.WinningsDrawFound = On;
            return;
        }
        // The box looks like that of an error although none has happened: its number is 0.
        g.Msg = "ERROR #0" + g.NL + "No entry for this Draw Date. Please check the Draw Date" + g.NL +
                "and try again.";
        session.services.dialogs.MsgBox(g.Msg, BoxStyle::Ok, ErrorTitle);
        g.WinningsDrawFound = Off;
    });
}

}  // namespace sorvane

// The prize ladders and the keno prize table. Every tier is a literal line: no amount is computed, and like
// tiers of like games differ in their exclamation marks. A ladder is read from the top, the first tier that
// holds wins.
#pragma once

#include <array>
#include <limits>
#include <span>
#include <string_view>

namespace sorvane::Ladders {

inline constexpr std::string_view NotAWinner = "Sorry. This ticket is not a winner.";
inline constexpr std::string_view PickWinner = "Congratulations! This Ticket is a Winner! ";

// A tier of the number lotteries. With a `behindCount` the number of matches stands between the two texts.
struct LottoTier {
    int fewest;
    int most;
    bool needsBonus;
    std::string_view text;
    std::string_view behindCount = {};
};

inline constexpr int AnyMore = std::numeric_limits<int>::max();

// A number that stands in two boxes counts twice, so the count may exceed six: still a "matched" line.
inline constexpr auto Lotto6 = std::to_array<LottoTier>({
    {6, 6, false, "Congratulations! You've hit the JACKPOT!!!"},
    {5, 5, true, "Congratulations! You've won 2nd Prize!"},
    {3, AnyMore, false, "Congratulations! You matched ", " Numbers!"},
});

// A count of eight meets no tier here.
inline constexpr auto Lotto7 = std::to_array<LottoTier>({
    {7, 7, false, "Congratulations! You've hit the JACKPOT!!!"},
    {6, 6, true, "Congratulations! You've won 2nd Prize!"},
    {6, 6, false, "Congratulations! You've won 3rd Prize!"},
    {5, 5, false, "Congratulations! You matched ", " Numbers!"},
    {4, 4, false, "Congratulations! You've won $10.00!"},
    {3, 3, true, "Congratulations! You've won $10.00!"},
    {3, 3, false, "Congratulations! You've won a FREE Ticket!"},
});

// Which parts of an add-on number must equal the drawn one.
enum class Match {
    Whole,         // the whole text, so a longer drawn text never meets it
    Tail,          // the last `length` digits
    TailAndFirst,  // those, and the first digit
    TailOrHead,    // the last or the first `length` digits
    FirstAndLast,  // first and last digit; these two and `FirstOrLast` compare values, not characters
    FirstOrLast,   // first or last digit
};

struct DigitTier {
    int tier;
    Match match;
    int length;
    std::string_view text;  // behind the prefix and the ticket's number
};

// A ladder of a digit add-on. `prefix` begins every line of it.
struct DigitLadder {
    std::string_view ExtraFlag;
    std::string_view prefix;
    std::span<const DigitTier> tiers;
};

// The only ladder in which a digit at the left counts together with a tail.
inline constexpr auto EncoreTiers = std::to_array<DigitTier>({
    {10, Match::Whole, 6, " won $250,000.00!!!"},
    {9, Match::Tail, 5, " won $1,000.00!!"},
    {8, Match::TailAndFirst, 4, " won $100.00 & a free ticket!!"},
    {7, Match::Tail, 4, " won $100.00!!"},
    {6, Match::TailAndFirst, 3, " won $25.00 & a free ticket!!"},
    {5, Match::Tail, 3, " won $25.00!"},
    {4, Match::TailAndFirst, 2, " won $5.00 & a free ticket!!"},
    {3, Match::Tail, 2, " won $5.00!"},
    {2, Match::FirstAndLast, 1, " won 2 free tickets!"},
    {1, Match::FirstOrLast, 1, " won a free ticket!"},
});

inline constexpr auto WESTExtraTiers = std::to_array<DigitTier>({
    {7, Match::Whole, 7, " won $250,000.00!!!"},
    {6, Match::Tail, 6, " won $100,000.00!!!"},
    {5, Match::Tail, 5, " won $1,000.00!!"},
    {4, Match::Tail, 4, " won $100.00!!"},
    {3, Match::Tail, 3, " won $50.00!!"},
    {2, Match::Tail, 2, " won $10.00!!"},
    {1, Match::Tail, 1, " won $2.00!!"},
});

inline constexpr auto QCExtraTiers = std::to_array<DigitTier>({
    {6, Match::Whole, 6, " won $100,000.00!!!"},
    {5, Match::Tail, 5, " won $1,000.00!!"},
    {4, Match::Tail, 4, " won $250.00!!"},
    {3, Match::Tail, 3, " won $50.00!"},
    {2, Match::Tail, 2, " won $10.00!"},
    {1, Match::Tail, 1, " won $2.00!"},
});

inline constexpr auto TagTiers = std::to_array<DigitTier>({
    {6, Match::Whole, 6, " won $100,000.00!!!"},
    {5, Match::Tail, 5, " won $1,000.00!!"},
    {4, Match::Tail, 4, " won $100.00!!"},
    {3, Match::Tail, 3, " won $20.00!"},
    {2, Match::Tail, 2, " won $10.00!"},
    {1, Match::Tail, 1, " won $2.00!"},
});

inline constexpr auto ThePlusTiers = std::to_array<DigitTier>({
    {6, Match::Whole, 6, " won $100,000.00!!!"},
    {5, Match::Tail, 5, " won $1,000.00!!"},
    {4, Match::Tail, 4, " won $100.00!!"},
    {3, Match::Tail, 3, " won $50.00!!"},
    {2, Match::TailOrHead, 2, " won $10.00!"},
    {1, Match::FirstOrLast, 1, " won a Free Play!!"},
});

inline constexpr DigitLadder Encore{"Encore", "Encore", EncoreTiers};
inline constexpr DigitLadder WESTExtra{"WESTExtra", "Extra", WESTExtraTiers};
inline constexpr DigitLadder QCExtra{"QCExtra", "Extra", QCExtraTiers};
inline constexpr DigitLadder Tag{"Tag", "Tag", TagTiers};
inline constexpr DigitLadder ThePlus{"ThePlus", "The Plus", ThePlusTiers};

// What the four numbers of the Extra win, by the count of matches. The losing line stands apart: it begins
// otherwise.
inline constexpr std::array<std::string_view, 5> ExtraWins{"", " won $1.00!", " won $10.00!",
                                                           " won $1,000.00!!!", " won $500,000.00!!!"};

// Daily Keno: a line for each number of balls and of matches that wins, an amount for each wager.
inline constexpr std::array<int, 4> KenoWagers{1, 2, 5, 10};
inline constexpr int FewestKenoBalls = 2;
inline constexpr int MostKenoBalls = 10;

struct KenoPrize {
    int balls;
    int matches;
    std::array<std::string_view, 4> amounts;  // in the order of KenoWagers
};

inline constexpr auto KenoPrizes = std::to_array<KenoPrize>({
    {2, 2, {"$7.00", "$14.00", "$35.00", "$70.00"}},
    {3, 3, {"$25.00", "$50.00", "$125.00", "$250.00"}},
    {4, 4, {"$100.00", "$200.00", "$500.00", "$1,000.00"}},
    {5, 4, {"$5.00", "$10.00", "$25.00", "$50.00"}},
    {5, 5, {"$250.00", "$500.00", "$1,250.00", "$2,500.00"}},
    {6, 5, {"$25.00", "$50.00", "$125.00", "$250.00"}},
    {6, 6, {"$1,000.00", "$2,000.00", "$5,000.00", "$10,000.00"}},
    {7, 5, {"$5.00", "$10.00", "$25.00", "$50.00"}},
    {7, 6, {"$50.00", "$100.00", "$250.00", "$500.00"}},
    {7, 7, {"$5,000.00", "$10,000.00", "$25,000.00", "$50,000.00"}},
    {8, 6, {"$10.00", "$20.00", "$50.00", "$100.00"}},
    {8, 7, {"$200.00", "$400.00", "$1,000.00", "$2,000.00"}},
    {8, 8, {"$25,000.00", "$50,000.00", "$125,000.00", "$250,000.00"}},
    {9, 6, {"$5.00", "$10.00", "$25.00", "$50.00"}},
    {9, 7, {"$100.00", "$200.00", "$500.00", "$1,000.00"}},
    {9, 8, {"$1,000.00", "$2,000.00", "$5,000.00", "$10,000.00"}},
    {9, 9, {"$50,000.00", "$100,000.00", "$250,000.00", "$500,000.00"}},
    {10, 0, {"$2.00", "$4.00", "$10.00", "$20.00"}},
    {10, 7, {"$25.00", "$50.00", "$125.00", "$250.00"}},
    {10, 8, {"$200.00", "$400.00", "$1,000.00", "$2,000.00"}},
    {10, 9, {"$5,000.00", "$10,000.00", "$25,000.00", "$50,000.00"}},
    {10, 10, {"$250,000.00", "$500,000.00", "$1,250,000.00", "$2,500,000.00"}},
});

}  // namespace sorvane::Ladders

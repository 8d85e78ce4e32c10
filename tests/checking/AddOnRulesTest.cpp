#include <algorithm>
#include <array>
#include <ostream>

#include "checking/CheckWorld.h"

namespace sorvane::testing {

namespace {

// A ladder said once more: by how many characters agree from the right (and from the left), not by tests in
// an order. `tails` holds what 0, 1, 2... equal digits at the end win.
struct Rule {
    const char* name;
    JudgeWorld::Judge judge;
    std::size_t digits;
    std::string prefix;
    std::vector<std::string> tails;

    std::string Won(const std::string& ticket, const std::string& text) const {
        return prefix + " #" + ticket + text;
    }
    std::string Lost(const std::string& ticket) const {
        return "Sorry. " + prefix + " ticket #" + ticket + " is not a winner.";
    }
};
void PrintTo(const Rule& rule, std::ostream* out) { *out << rule.name; }

std::size_t EqualAtEnd(const std::string& a, const std::string& b) {
    std::size_t count = 0;
    while (count < a.size() && a[a.size() - 1 - count] == b[b.size() - 1 - count]) ++count;
    return count;
}

std::size_t EqualAtStart(const std::string& a, const std::string& b) {
    return static_cast<std::size_t>(std::mismatch(a.begin(), a.end(), b.begin()).first - a.begin());
}

const Rule West{"WESTExtra",
                CheckWESTExtra,
                7,
                "Extra",
                {"", " won $2.00!!", " won $10.00!!", " won $50.00!!", " won $100.00!!", " won $1,000.00!!",
                 " won $100,000.00!!!", " won $250,000.00!!!"}};
const Rule Quebec{"QCExtra",
                  CheckQCExtra,
                  6,
                  "Extra",
                  {"", " won $2.00!", " won $10.00!", " won $50.00!", " won $250.00!!", " won $1,000.00!!",
                   " won $100,000.00!!!"}};
const Rule Atlantic{"Tag",
                    CheckTag,
                    6,
                    "Tag",
                    {"", " won $2.00!", " won $10.00!", " won $20.00!", " won $100.00!!", " won $1,000.00!!",
                     " won $100,000.00!!!"}};
const Rule Plus{"ThePlus",
                CheckThePlus,
                6,
                "The Plus",
                {"", " won a Free Play!!", " won $10.00!", " won $50.00!!", " won $100.00!!",
                 " won $1,000.00!!", " won $100,000.00!!!"}};
const Rule Ontario{"Encore",
                   CheckEncore,
                   6,
                   "Encore",
                   {"", " won a free ticket!", " won $5.00!", " won $25.00!", " won $100.00!!",
                    " won $1,000.00!!", " won $250,000.00!!!"}};

std::string ByTail(const Rule& rule, const std::string& ticket, const std::string& drawn) {
    const std::size_t tail = EqualAtEnd(ticket, drawn);
    return tail == 0 ? rule.Lost(ticket) : rule.Won(ticket, rule.tails[tail]);
}

std::string ByPlus(const std::string& ticket, const std::string& drawn) {
    std::size_t tail = EqualAtEnd(ticket, drawn);
    const std::size_t head = EqualAtStart(ticket, drawn);
    if (tail < 2) tail = std::max(tail, std::min<std::size_t>(head, 2));
    return tail == 0 ? Plus.Lost(ticket) : Plus.Won(ticket, Plus.tails[tail]);
}

std::string ByEncore(const std::string& ticket, const std::string& drawn) {
    const std::size_t tail = EqualAtEnd(ticket, drawn);
    const bool first = ticket[0] == drawn[0];
    if (tail >= 5) return Ontario.Won(ticket, Ontario.tails[tail]);
    if (first && tail == 4) return Ontario.Won(ticket, " won $100.00 & a free ticket!!");
    if (first && tail == 3) return Ontario.Won(ticket, " won $25.00 & a free ticket!!");
    if (first && tail == 2) return Ontario.Won(ticket, " won $5.00 & a free ticket!!");
    if (first && tail == 1) return Ontario.Won(ticket, " won 2 free tickets!");
    if (first) return Ontario.Won(ticket, " won a free ticket!");
    return tail == 0 ? Ontario.Lost(ticket) : Ontario.Won(ticket, Ontario.tails[tail]);
}

std::string Expected(const Rule& rule, const std::string& ticket, const std::string& drawn) {
    if (rule.judge == CheckEncore) return ByEncore(ticket, drawn);
    if (rule.judge == CheckThePlus) return ByPlus(ticket, drawn);
    return ByTail(rule, ticket, drawn);
}

}  // namespace

struct DigitRules : JudgeWorld, ::testing::TestWithParam<Rule> {
    std::string Judge(const std::string& ticket, const std::string& drawn) {
        if (GetParam().digits == 7) Digits7(ticket);
        else Digits6(ticket);
        boxes.Encore = drawn;
        return Line(GetParam().judge);
    }
    void NotPlayedRow() {
        if (GetParam().digits == 7) Ticket7(Numbers(7, 99));
        else Ticket6(Numbers(6, 99));
    }
    // MatchCount at the moment at which the line is added.
    int WorkingCount() {
        struct Watch final : Lines {
            explicit Watch(Global& global) : g(global) {}
            void AddItem(std::string_view) override { count = g.MatchCount; }
            void Clear() override {}
            int ListCount() const override { return 0; }
            Global& g;
            int count = -1;
        } watch(global);
        GetParam().judge(session, boxes, 0, watch);
        return watch.count;
    }
    std::string Nines() const { return std::string(GetParam().digits * 2, '9'); }
};

// The digit `step` above, 9 followed by 0.
static char Other(char digit, int step = 1) { return static_cast<char>('0' + (digit - '0' + step) % 10); }

TEST_P(DigitRules, EveryTailMeetsItsTierAndMissesItByADigitFromBothEnds) {
    const std::string ticket = GetParam().digits == 7 ? "1234567" : "123456";
    for (std::size_t tail = 1; tail <= ticket.size(); ++tail) {
        std::string drawn = ticket;
        for (std::size_t i = 0; i + tail < drawn.size(); ++i) drawn[i] = Other(drawn[i], 5);
        EXPECT_EQ(Judge(ticket, drawn), GetParam().Won(ticket, GetParam().tails[tail])) << drawn;
        EXPECT_EQ(global.MatchCount, 0);
        std::string missedLeft = drawn;
        char& left = missedLeft[ticket.size() - tail];
        left = Other(left, 3);
        EXPECT_EQ(Judge(ticket, missedLeft), Expected(GetParam(), ticket, missedLeft)) << missedLeft;
        std::string missedRight = drawn;
        missedRight.back() = Other(missedRight.back());
        EXPECT_EQ(Judge(ticket, missedRight), Expected(GetParam(), ticket, missedRight)) << missedRight;
    }
}

TEST_P(DigitRules, TheWorkingTierStandsWhileTheLineIsAddedAndIsGoneAfterwards) {
    const auto tierOf = [&](const std::string& ticket, const std::string& drawn) {
        if (GetParam().digits == 7) Digits7(ticket);
        else Digits6(ticket);
        boxes.Encore = drawn;
        return WorkingCount();
    };
    const bool encore = GetParam().judge == CheckEncore, seven = GetParam().digits == 7;
    const std::string ticket = seven ? "1234567" : "123456";
    const std::vector<int> tails = encore ? Numbers{0, 1, 3, 5, 7, 9, 10} : Numbers{0, 1, 2, 3, 4, 5, 6, 7};
    for (std::size_t tail = 0; tail <= ticket.size(); ++tail) {
        std::string drawn = ticket;
        for (std::size_t i = 0; i + tail < drawn.size(); ++i) drawn[i] = Other(drawn[i], 5);
        EXPECT_EQ(tierOf(ticket, drawn), tails[tail]) << drawn;
        EXPECT_EQ(global.MatchCount, 0);
        if (!encore || tail == 0 || tail > 4) continue;
        drawn.front() = ticket.front();
        EXPECT_EQ(tierOf(ticket, drawn), Numbers({0, 2, 4, 6, 8})[tail]) << drawn;
    }
    if (GetParam().judge == CheckThePlus) {
        EXPECT_EQ(tierOf(ticket, "129999"), 2);
        EXPECT_EQ(tierOf(ticket, "199999"), 1);
    }
    NotPlayedRow();
    boxes.Encore = ticket;
    EXPECT_EQ(WorkingCount(), 99);
}

TEST_P(DigitRules, AgreesWithTheRuleOverSeededPairs) {
    SplitMix mix(99);
    for (int pair = 0; pair < 100'000; ++pair) {
        std::string ticket, drawn;
        for (std::size_t i = 0; i < GetParam().digits; ++i) {
            ticket += static_cast<char>('0' + Between(mix, 0, 9));
            drawn += Between(mix, 1, 10) <= 7 ? ticket.back() : static_cast<char>('0' + Between(mix, 0, 9));
        }
        ASSERT_EQ(Judge(ticket, drawn), Expected(GetParam(), ticket, drawn))
            << ticket << " against " << drawn << ", pair " << pair << " of seed 99";
    }
}

TEST_P(DigitRules, ARowOfNinetyNinesReadsNotPlayed) {
    NotPlayedRow();
    boxes.Encore = std::string("1234567").substr(0, GetParam().digits);
    EXPECT_EQ(Line(GetParam().judge), GetParam().prefix + " Not Played");
    EXPECT_EQ(global.MatchCount, 0);
    EXPECT_EQ(global.Msg, GetParam().prefix + " Not Played");
}

TEST_P(DigitRules, ATailOfNinesMeetsATierBeforeNotPlayed) {
    NotPlayedRow();
    boxes.Encore = std::string("1234599").substr(7 - GetParam().digits);
    EXPECT_EQ(Line(GetParam().judge), GetParam().Won(Nines(), GetParam().tails[2]));
}

TEST_P(DigitRules, ADrawnTextLongerThanTheNumberMissesTheTopTierOnly) {
    const std::string ticket = GetParam().digits == 7 ? "1234567" : "123456";
    EXPECT_EQ(Judge(ticket, ticket + "8"), GetParam().Won(ticket, GetParam().tails[ticket.size() - 1]));
    EXPECT_EQ(Judge(ticket, "99" + ticket.substr(2) + "8"),
              GetParam().Won(ticket, GetParam().tails[ticket.size() - 2]));
}

TEST_P(DigitRules, ADigitZeroIsWritten) {
    const std::string ticket(GetParam().digits, '0');
    EXPECT_EQ(Judge(ticket, std::string(GetParam().digits, '1')), GetParam().Lost(ticket));
    EXPECT_EQ(Judge(ticket, ticket), GetParam().Won(ticket, GetParam().tails.back()));
}

TEST_P(DigitRules, AMissingRowRaisesTheSubscriptError) {
    boxes.Encore = "1234567";
    LineList list;
    EXPECT_EQ(ErrorOf([&] { GetParam().judge(session, boxes, 0, list); }), ErrorNumber::SubscriptOutOfRange);
}

INSTANTIATE_TEST_SUITE_P(Ladders, DigitRules, ::testing::Values(Ontario, West, Quebec, Atlantic, Plus),
                         [](const auto& ladder) { return std::string(ladder.param.name); });

struct AddOnRules : JudgeTest {
    std::string Encore(const std::string& ticket, const std::string& drawn) {
        Digits6(ticket);
        boxes.Encore = drawn;
        return Line(CheckEncore);
    }
    std::string ThePlus(const std::string& ticket, const std::string& drawn) {
        Digits6(ticket);
        boxes.Encore = drawn;
        return Line(CheckThePlus);
    }
};

TEST_F(AddOnRules, EncoreLadderWhole) {
    const std::string won = "Encore #123456 won ";
    const std::string lost = "Sorry. Encore ticket #123456 is not a winner.";
    EXPECT_EQ(Encore("123456", "123456"), won + "$250,000.00!!!");
    EXPECT_EQ(Encore("123456", "923456"), won + "$1,000.00!!");
    EXPECT_EQ(Encore("123456", "193456"), won + "$100.00 & a free ticket!!");
    EXPECT_EQ(Encore("123456", "993456"), won + "$100.00!!");
    EXPECT_EQ(Encore("123456", "199456"), won + "$25.00 & a free ticket!!");
    EXPECT_EQ(Encore("123456", "999456"), won + "$25.00!");
    EXPECT_EQ(Encore("123456", "120056"), won + "$5.00 & a free ticket!!");
    EXPECT_EQ(Encore("123456", "990056"), won + "$5.00!");
    EXPECT_EQ(Encore("123456", "199996"), won + "2 free tickets!");
    EXPECT_EQ(Encore("123456", "999996"), won + "a free ticket!");
    EXPECT_EQ(Encore("123456", "199999"), won + "a free ticket!");
    EXPECT_EQ(Encore("123456", "123459"), won + "a free ticket!");
    EXPECT_EQ(Encore("123456", "923459"), lost);
}

TEST_F(AddOnRules, ThePlusAlsoReadsFromTheLeft) {
    const std::string won = "The Plus #123456 won ";
    EXPECT_EQ(ThePlus("123456", "129999"), won + "$10.00!");
    EXPECT_EQ(ThePlus("123456", "123459"), won + "$10.00!");
    EXPECT_EQ(ThePlus("123456", "999956"), won + "$10.00!");
    EXPECT_EQ(ThePlus("123456", "192999"), won + "a Free Play!!");
    EXPECT_EQ(ThePlus("123456", "929996"), won + "a Free Play!!");
    EXPECT_EQ(ThePlus("123456", "923459"), "Sorry. The Plus ticket #123456 is not a winner.");
}

TEST_F(AddOnRules, TheOthersGiveNothingForTheFirstDigits) {
    Digits6("123456");
    boxes.Encore = "123459";
    EXPECT_EQ(Line(CheckTag), "Sorry. Tag ticket #123456 is not a winner.");
    EXPECT_EQ(Line(CheckQCExtra), "Sorry. Extra ticket #123456 is not a winner.");
    Digits7("1234567");
    boxes.Encore = "1234560";
    EXPECT_EQ(Line(CheckWESTExtra), "Sorry. Extra ticket #1234567 is not a winner.");
}

TEST_F(AddOnRules, ANotPlayedRowAgainstATailOfNinetyNineWinsFiveDollars) {
    Ticket6(Numbers(6, 99));
    boxes.Encore = "123499";
    EXPECT_EQ(Line(CheckEncore), "Encore #999999999999 won $5.00!");
}

TEST_F(AddOnRules, ANotPlayedRowAgainstASingleLastNineWinsWhereCharactersAreCompared) {
    Ticket6(Numbers(6, 99));
    boxes.Encore = "123459";
    EXPECT_EQ(Line(CheckTag), "Tag #999999999999 won $2.00!");
    EXPECT_EQ(Line(CheckQCExtra), "Extra #999999999999 won $2.00!");
    EXPECT_EQ(Line(CheckEncore), "Encore Not Played");
    EXPECT_EQ(Line(CheckThePlus), "The Plus Not Played");
    Ticket7(Numbers(7, 99));
    boxes.Encore = "1234569";
    EXPECT_EQ(Line(CheckWESTExtra), "Extra #99999999999999 won $2.00!!");
}

TEST_F(AddOnRules, ANotPlayedRowAgainstAFirstNineDoesNotWin) {
    Ticket6(Numbers(6, 99));
    boxes.Encore = "912345";
    EXPECT_EQ(Line(CheckEncore), "Encore Not Played");
    EXPECT_EQ(Line(CheckThePlus), "The Plus Not Played");
    boxes.Encore = "991234";
    EXPECT_EQ(Line(CheckThePlus), "The Plus #999999999999 won $10.00!");
}

TEST_F(AddOnRules, LettersAtTheEndsOfTheDrawnNumberEndTheEncoreCheck) {
    Digits6("123456");
    LineList list;
    boxes.Encore = "a23457";
    EXPECT_EQ(ErrorOf([&] { CheckEncore(session, boxes, 0, list); }), ErrorNumber::TypeMismatch);
    boxes.Encore = "92345b";
    EXPECT_EQ(ErrorOf([&] { CheckThePlus(session, boxes, 0, list); }), ErrorNumber::TypeMismatch);
    CheckTag(session, boxes, 0, list);
    EXPECT_EQ(list.items, Texts{"Sorry. Tag ticket #123456 is not a winner."});
}

TEST_F(AddOnRules, EncorePaysAlikeForEveryGame) {
    for (const char* key : {"Lotto649", "ONTKeno", "ONTPick3", "Super 7", "Lottario"}) {
        global.LottoFlag = key;
        EXPECT_EQ(Encore("123456", "923456"), "Encore #123456 won $1,000.00!!") << key;
    }
}

struct ExtraRules : JudgeTest {
    ExtraRules() {
        global.LottoFlag = "BC49";
        global.ExtraFlag = "Extra";
        Pick4({5, 10, 15, 20});
    }
};

TEST_F(ExtraRules, EveryCountHasItsLine) {
    const std::string name = "Extra # 5, 10, 15, 20";
    DrawFour({96, 97, 98, 99});
    EXPECT_EQ(Line(CheckExtraEarlyBird), "Sorry, " + name + " is not a winner.");
    DrawFour({20, 97, 98, 99});
    EXPECT_EQ(Line(CheckExtraEarlyBird), name + " won $1.00!");
    DrawFour({20, 5, 99, 98});
    EXPECT_EQ(Line(CheckExtraEarlyBird), name + " won $10.00!");
    DrawFour({20, 5, 99, 15});
    EXPECT_EQ(Line(CheckExtraEarlyBird), name + " won $1,000.00!!!");
    DrawFour({20, 5, 10, 15});
    EXPECT_EQ(Line(CheckExtraEarlyBird), name + " won $500,000.00!!!");
    EXPECT_EQ(global.MatchCount, 0);
}

TEST_F(ExtraRules, MoreThanFourMatchesAddTheLineBeforeOnceMore) {
    DrawFour({20, 97, 98, 99});
    LineList list;
    CheckExtraEarlyBird(session, boxes, 0, list);
    Pick4({5, 5, 5, 20});
    DrawFour({5, 5, 98, 99});
    CheckExtraEarlyBird(session, boxes, 0, list);
    EXPECT_EQ(list.items, (Texts{"Extra # 5, 10, 15, 20 won $1.00!", "Extra # 5, 10, 15, 20 won $1.00!"}));
    EXPECT_EQ(global.MatchCount, 0);
}

TEST_F(ExtraRules, EverySmallTicketAgainstEverySmallDraw) {
    const std::array<std::string, 5> amounts{"", "$1.00!", "$10.00!", "$1,000.00!!!", "$500,000.00!!!"};
    for (int code = 0; code < 4 * 4 * 4 * 4 * 4; ++code) {
        const std::array<int, 4> drawn{code % 4 + 1, code / 4 % 4 + 1, code / 16 % 4 + 1, code / 64 % 4 + 1};
        const int extra = code / 256 + 1;
        Pick4({1, 2, 3, extra});
        DrawFour(drawn);
        std::size_t count = 0;
        for (const int number : drawn) count += std::size_t{number <= 3} + std::size_t{number == extra};
        const std::string name = "Extra # 1, 2, 3, " + std::to_string(extra);
        global.Msg = "the line before";
        const std::string expected = count == 0  ? "Sorry, " + name + " is not a winner."
                                     : count > 4 ? "the line before"
                                                 : name + " won " + amounts.at(count);
        ASSERT_EQ(Line(CheckExtraEarlyBird), expected);
    }
}

TEST_F(ExtraRules, AnyOtherAddOnIsLeftAlone) {
    for (const char* key : {"Encore", "ThePlus", "QCExtra", "Tag", "WESTExtra", ""}) {
        global.ExtraFlag = key;
        global.MatchCount = 7;
        EXPECT_TRUE(AllLines(CheckExtraEarlyBird).empty()) << key;
        EXPECT_EQ(global.MatchCount, 7);
    }
}

struct EarlyBirdRules : JudgeTest {
    EarlyBirdRules() {
        global.LottoFlag = "Lottario";
        global.ExtraFlag = "Encore";
        Ticket6({1, 2, 3, 4, 5, 6});
        global.Lotto6Played(0).EarlyBird = true;
    }
};

TEST_F(EarlyBirdRules, AllFourMustStandOnTheTicket) {
    DrawFour({6, 2, 4, 1});
    EXPECT_EQ(Line(CheckExtraEarlyBird), "Congratulations! You Won EARLYBIRD!");
    EXPECT_EQ(global.MatchCount, 0);
    DrawFour({6, 2, 4, 45});
    EXPECT_EQ(Line(CheckExtraEarlyBird), "Sorry. You did not win EarlyBird.");
}

TEST_F(EarlyBirdRules, EveryFourOfNine) {
    for (int a = 1; a <= 9; ++a) {
        for (int b = a + 1; b <= 9; ++b) {
            for (int c = b + 1; c <= 9; ++c) {
                for (int d = c + 1; d <= 9; ++d) {
                    DrawFour({c, a, d, b});
                    ASSERT_EQ(Line(CheckExtraEarlyBird), d <= 6 ? "Congratulations! You Won EARLYBIRD!"
                                                                : "Sorry. You did not win EarlyBird.");
                }
            }
        }
    }
}

TEST_F(EarlyBirdRules, ATicketWithoutItReadsNotPlayedWhateverWasDrawn) {
    global.Lotto6Played(0).EarlyBird = false;
    DrawFour({1, 2, 3, 4});
    EXPECT_EQ(Line(CheckExtraEarlyBird), "Earlybird NOT Played");
}

TEST_F(EarlyBirdRules, FiveMatchesByANumberTwiceDoNotWin) {
    Ticket6({1, 1, 2, 3, 4, 5});
    global.Lotto6Played(0).EarlyBird = true;
    DrawFour({1, 2, 3, 4});
    EXPECT_EQ(Line(CheckExtraEarlyBird), "Sorry. You did not win EarlyBird.");
}

TEST_F(EarlyBirdRules, LottarioGoesBeforeTheExtraKey) {
    global.ExtraFlag = "Extra";
    DrawFour({1, 2, 3, 4});
    EXPECT_EQ(Line(CheckExtraEarlyBird), "Congratulations! You Won EARLYBIRD!");
}

TEST_F(EarlyBirdRules, ALottarioTicketGetsTwoLines) {
    Draw({1, 2, 3, 4, 5, 6, 7});
    DrawFour({1, 2, 3, 4});
    LineList list;
    CheckLotto6(session, boxes, 0, list);
    CheckExtraEarlyBird(session, boxes, 0, list);
    EXPECT_EQ(list.items,
              (Texts{"Congratulations! You've hit the JACKPOT!!!", "Congratulations! You Won EARLYBIRD!"}));
}

}  // namespace sorvane::testing

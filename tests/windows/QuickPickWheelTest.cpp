#include "ReportsWorld.h"

namespace sorvane::test {
namespace {

constexpr std::string_view KeyText = "Please enter a valid number greater than or equal to 1.";
constexpr std::string_view TooFewDraws =
    "Not enough data to generate Hot Numbers. Please enter additional Winning Number history\nand try again";
constexpr std::string_view TooManyTickets =
    "You have entered a value for the Number of Tickets which exceeds\n"
    "the maximum possible combinations. Please reduce this number.";

constexpr int Hot = 0, Cold = 1, Favourites = 2, QuickPick = 3;

class QuickPickWheelTest : public ReportsWorld {
  public:
    Texts Display() const { return ListOf("lstDisplay"); }
    void Choose(int type) { Click("optWheelType(" + Number(type) + ")"); }
    std::string Favs(int i) const { return "txtFavs(" + Number(i) + ")"; }
    // How many of the boxes are enabled, counted from the first on.
    int OpenBoxes() const {
        int open = 0;
        while (open < 18 && IsEnabled(Favs(open))) ++open;
        return open;
    }
    void ExpectNotEnoughCombinations() {
        person.Expect("Not Enough Combinations Available!",
                      "Number of Tickets selected exceeds the number of possible combinations. Please "
                      "either increase the\nnumber of numbers you wish to Wheel, or decrease the number of "
                      "Tickets.");
    }
    // Lottario's window with draws of the numbers 1 to 7, ready for `tickets` out of `howMany` hot numbers.
    void OpenLottario(int draws, std::string_view tickets, std::string_view howMany) {
        OpenQuickPick(Lottario);
        AddDraws(Lottario, 1, draws);
        Put("txtNoOfTickets(1)", tickets);
        if (!howMany.empty()) Put("txtHowMany", howMany);
    }
    void TypeFavourites(const std::vector<std::string_view>& numbers) {
        for (std::size_t i = 0; i < numbers.size(); ++i) Put(Favs(static_cast<int>(i)), numbers[i]);
    }
    void ExpectTempEmpty() { EXPECT_EQ(Rows("SELECT COUNT(*) FROM Temp"), Texts{"0"}); }
};

class EveryWheel : public QuickPickWheelTest, public ::testing::WithParamInterface<GameCase> {
  public:
    Family Of() const { return GetParam().family; }
    bool IsLive() const { return Of() == Family::frm645; }
    int Lowest() const { return PerFamily<int>{{7, 8, 7, 0, 0, 0, 0}}[Of()]; }
    int Limit() const { return PerFamily<int>{{49, 49, 45, 70, 80, 0, 0}}[Of()]; }
    // The numbers to wheel as the window keeps them.
    int Kept() { return IsLive() ? Window().State.HowManyToWheel : global.NoOfTickets; }
    void OpenForFavourites(std::string_view howMany) {
        OpenQuickPick(GetParam());
        if (IsLive()) Choose(Favourites);
        Put("txtHowMany", howMany);
        EXPECT_EQ(Focus(), "txtFavs(0)");
        person.Type("1");  // an empty box would ask for its number whenever it is left
    }
};
INSTANTIATE_TEST_SUITE_P(Families, EveryWheel,
                         ::testing::Values(SixFortyNine, Super7, Lottario, DailyKeno, PrairieKeno),
                         NameOfCase);

class EveryLottoWheel : public EveryWheel {};
INSTANTIATE_TEST_SUITE_P(Families, EveryLottoWheel, ::testing::Values(SixFortyNine, Super7, Lottario),
                         NameOfCase);

TEST_P(EveryWheel, OpensOnHotWithItsBoxesClosed) {
    OpenQuickPick(GetParam());
    const std::string_view captions[] = {"Hot", "Cold", "Favourites", "Quick Pick"};
    for (int type = 0; type < 4; ++type) {
        EXPECT_EQ(CaptionOf("optWheelType(" + Number(type) + ")"), captions[type]);
        EXPECT_EQ(IsTicked("optWheelType(" + Number(type) + ")"), type == Hot);
    }
    EXPECT_EQ(CaptionOf("fraWheel"), "Wheeling");
    EXPECT_EQ(CaptionOf("lblHowMany"), "How Many Numbers:");
    EXPECT_EQ(TextOf("txtHowMany"), "0");
    // Choosing hot at load is a Click, and in frm645 it has a handler.
    EXPECT_EQ(CaptionOf("txtEnterFavs"), IsLive() ? "Hot Numbers" : "Favourites");
    for (int i = 0; i < 18; ++i) EXPECT_FALSE(IsEnabled(Favs(i)));
}

TEST_P(EveryWheel, CancelChoosesHotAgain) {
    OpenQuickPick(GetParam());
    Choose(Cold);
    person.ClickTab("&Enter");
    person.Expect("CONFIRM", "Are you sure you wish to start over?", Answer::Yes, BoxStyle::YesNo);
    Click("cmdCancel");
    person.ClickTab("&Quick");
    EXPECT_TRUE(IsTicked("optWheelType(0)"));
}

TEST_P(EveryWheel, OtherKeysThanDigitsPutTheNumberOfNumbersToZero) {
    OpenQuickPick(GetParam());
    Type("txtHowMany", "12");
    person.Expect("Error!", KeyText, Answer::Ok, BoxStyle::Exclamation);
    person.Type("x");
    EXPECT_EQ(TextOf("txtHowMany"), "0");
    EXPECT_EQ(Window().QuickPick.Wheel->txtHowMany.selectedText(), "");
    EXPECT_EQ(Focus(), "txtHowMany");
    person.Type("1");  // before the nought
    EXPECT_EQ(TextOf("txtHowMany"), "10");
}

TEST_P(EveryWheel, WhatStandsInAFieldIsSelectedWhenItIsReached) {
    OpenQuickPick(GetParam());
    Type("txtNoOfTickets(1)", "3");
    Click("dtpEnterTickets(1)");
    Click("txtNoOfTickets(1)");
    EXPECT_EQ(Window().txtNoOfTickets(1).selectedText().toStdString(), "3");
    Window().Leave();
    OpenForFavourites("9");
    Type(Favs(1), "5");
    Click(Favs(0));
    EXPECT_EQ(Window().QuickPick.Wheel->txtFavs(0).selectedText().toStdString(), "1");
    Click("txtHowMany");
    EXPECT_EQ(Window().QuickPick.Wheel->txtHowMany.selectedText().toStdString(), "9");
}

TEST_P(EveryWheel, AnEmptyNumberOfNumbersIsAskedFor) {
    OpenQuickPick(GetParam());
    Type("txtHowMany", "");
    person.Expect("Number of Quick Picks?", "Please enter a value for how many Numbers you wish to Wheel.");
    Click("cmdGenerate");
    EXPECT_EQ(TextOf("txtHowMany"), "0");
    EXPECT_EQ(Window().QuickPick.Wheel->txtHowMany.selectedText(), "0");
    EXPECT_EQ(Focus(), "txtHowMany");
    EXPECT_EQ(Display(), Texts{}) << "the click is dropped";
}

TEST_P(EveryWheel, EighteenNumbersAreTheMost) {
    OpenQuickPick(GetParam());
    Type("txtHowMany", "19");
    person.Expect("Too High", "Too many numbers to Wheel. Value cannot exceed 18. Please try again.");
    person.Tab();
    EXPECT_EQ(TextOf("txtHowMany"), "19");
    EXPECT_EQ(Window().QuickPick.Wheel->txtHowMany.selectedText(), "19");
    EXPECT_EQ(Focus(), "txtHowMany");
    Put("txtHowMany", "18");
    EXPECT_EQ(Kept(), 18);
}

TEST_P(EveryWheel, LottoWindowsHaveALowestNumberOfNumbers) {
    OpenQuickPick(GetParam());
    if (Lowest() == 0) {
        Put("txtHowMany", "0");
        EXPECT_NE(Focus(), "txtHowMany");
        EXPECT_EQ(OpenBoxes(), 0);
        return;
    }
    Type("txtHowMany", Number(Lowest() - 1));
    person.Expect("Number too Low",
                  "Value must be greater than " + Number(Lowest() - 1) + ". Please enter a new value.");
    person.Tab();
    EXPECT_EQ(TextOf("txtHowMany"), "0");
    EXPECT_EQ(Window().QuickPick.Wheel->txtHowMany.selectedText(), "0");
    EXPECT_EQ(Focus(), "txtHowMany");
    Put("txtHowMany", Number(Lowest()));
    EXPECT_EQ(Kept(), Lowest());
}

TEST_P(EveryWheel, LettersAndLargeNumbersByPasteAreRunTimeErrors) {
    OpenQuickPick(GetParam());
    Paste("txtHowMany", "seven");
    ExpectRunTimeError(ErrorNumber::TypeMismatch);
    person.Tab();
    Paste("txtHowMany", "40000");
    ExpectRunTimeError(ErrorNumber::Overflow);
    person.Tab();
    EXPECT_EQ(person.Awaited(), 0);
}

TEST_P(EveryWheel, AnAcceptedNumberOpensItsBoxesAndSizesTheFavourites) {
    OpenForFavourites("9");
    EXPECT_EQ(OpenBoxes(), 9);
    EXPECT_FALSE(IsEnabled(Favs(9)));
    EXPECT_EQ(Focus(), "txtFavs(0)");
    EXPECT_EQ(global.Favourites.UBound(), 9);
    EXPECT_EQ(Kept(), 9);
}

TEST_P(EveryWheel, EnterLeadsIntoTheFirstBoxOnceItIsOpen) {
    OpenForFavourites("9");
    Click("txtHowMany");
    person.Enter();
    EXPECT_EQ(Focus(), "txtFavs(0)");
}

TEST_P(EveryWheel, OtherKeysThanDigitsPutABoxToZeroAndSelectIt) {
    OpenForFavourites("9");
    Type(Favs(2), "12");
    person.Expect("Error!", KeyText, Answer::Ok, BoxStyle::Exclamation);
    person.Type("x");
    EXPECT_EQ(TextOf(Favs(2)), "0");
    EXPECT_EQ(Window().QuickPick.Wheel->txtFavs(2).selectedText(), "0");
    EXPECT_EQ(Focus(), Favs(2));
}

TEST_P(EveryWheel, ANumberBeyondTheGameIsRefused) {
    OpenForFavourites("9");
    Type(Favs(1), Number(Limit() + 1));
    person.Expect("Number Too High!", "Number cannot be greater than " + Number(Limit()) +
                                          ". Please enter a new number less than or equal to " +
                                          Number(Limit()) + ".");
    Click("cmdGenerate");
    EXPECT_EQ(Focus(), Favs(1));
    EXPECT_EQ(TextOf(Favs(1)), Number(Limit() + 1));
    EXPECT_EQ(global.Favourites(1), 0);
    Put(Favs(1), Number(Limit()));
    EXPECT_EQ(global.Favourites(1), Limit());
    EXPECT_EQ(Focus(), Favs(2));
}

TEST_P(EveryWheel, AnEmptyBoxIsAskedForButNotInLottariosWindow) {
    OpenForFavourites("9");
    Click(Favs(3));
    if (!IsLive()) person.Expect("Please Enter a Number", "Please enter a number.");
    person.Tab();
    EXPECT_EQ(TextOf(Favs(3)), IsLive() ? "" : "0");
    EXPECT_EQ(Focus(), IsLive() ? Favs(4) : Favs(3));
    if (IsLive()) return;
    EXPECT_EQ(Window().QuickPick.Wheel->txtFavs(3).selectedText(), "0");
    person.Tab();
    EXPECT_EQ(Focus(), Favs(4)) << "a zero passes";
}

TEST_P(EveryWheel, TwoEmptyBoxesBesideEachOtherDoNotPlayPingPong) {
    OpenForFavourites("9");
    Click(Favs(1));
    if (!IsLive()) person.Expect("Please Enter a Number", "Please enter a number.");
    Click(Favs(2));
    EXPECT_EQ(person.Awaited(), 0);
    EXPECT_EQ(Focus(), IsLive() ? Favs(2) : Favs(1));
}

TEST_P(EveryWheel, EnterGoesFromBoxToBoxByTheNumberOfTickets) {
    OpenForFavourites("9");
    global.NoOfTickets = 3;
    Type(Favs(0), "1");
    person.Enter();
    EXPECT_EQ(Focus(), Favs(1));
    person.Type("2");
    person.Enter();
    EXPECT_EQ(Focus(), Favs(2));
    person.Type("3");
    person.Enter();
    EXPECT_EQ(Focus(), "cmdGenerate");
    Type(Favs(3), "1");
    person.Enter();
    EXPECT_EQ(Focus(), Favs(3)) << "beyond the tickets Enter does nothing";
}

TEST_P(EveryWheel, EnterInTheLastBoxOfAllStaysWhereThereAreMoreTickets) {
    OpenForFavourites("18");
    global.NoOfTickets = 30;
    Type(Favs(17), "1");
    person.Enter();
    EXPECT_EQ(Focus(), Favs(17));
}

TEST_P(EveryWheel, TheBoxNumberedLikeTheNumbersToWheelLeadsToGenerate) {
    OpenForFavourites("12");
    if (IsLive()) Window().State.HowManyToWheel = 10;
    else global.NoOfTickets = 10;
    Put(Favs(10), "5");
    EXPECT_EQ(Focus(), "cmdGenerate");
    EXPECT_EQ(global.Favourites(10), 5);
}

TEST_P(EveryWheel, ABoxLeftOpenBehindASmallerNumberIsASubscriptFailure) {
    OpenForFavourites("12");
    Put("txtHowMany", "8");
    EXPECT_EQ(OpenBoxes(), 12) << "boxes are opened, never closed";
    Type(Favs(11), "5");
    ExpectRunTimeError(ErrorNumber::SubscriptOutOfRange);
    person.Tab();
    EXPECT_EQ(person.Awaited(), 0);
}

TEST_P(EveryWheel, TheSizeOfTheWheelGoesByTheTextAndKenoHasNone) {
    OpenQuickPick(GetParam());
    const bool seven = Of() == Family::frm749;
    const std::vector<std::pair<std::string_view, int>> sizes =
        seven ? std::vector<std::pair<std::string_view, int>>{{"8", 8}, {"9", 72}, {"10", 720}, {"11", 1000}}
              : std::vector<std::pair<std::string_view, int>>{{"7", 7}, {"8", 56}, {"9", 504}, {"10", 1000}};
    for (const auto& [text, size] : sizes) {
        if (IsEnabled(Favs(0)) && TextOf(Favs(0)).empty()) Type(Favs(0), "1");
        Put("txtHowMany", text);
        EXPECT_EQ(global.WheelSize, Lowest() == 0 ? 0 : size) << text;
    }
}

TEST_P(EveryWheel, MoreTicketsThanTheWheelHasAreWarnedOfInLottoWindows) {
    OpenQuickPick(GetParam());
    Put("txtNoOfTickets(1)", "9");
    Type("txtHowMany", Lowest() == 8 ? "8" : "7");
    if (Lowest() > 0) ExpectNotEnoughCombinations();
    person.Tab();
    EXPECT_EQ(person.Awaited(), 0);
    if (Lowest() > 0) {
        EXPECT_EQ(Focus(), "txtNoOfTickets(1)");
        EXPECT_EQ(Window().txtNoOfTickets(1).selectedText(), "9");
    }
    EXPECT_EQ(Kept(), Lowest() == 8 ? 8 : 7) << "the number was accepted before";
}

TEST_P(EveryLottoWheel, TheWarningComesBehindARefusalToo) {
    OpenQuickPick(GetParam());
    Put("txtNoOfTickets(1)", "1001");
    Type("txtHowMany", "3");
    person.Expect("Number too Low",
                  "Value must be greater than " + Number(Lowest() - 1) + ". Please enter a new value.");
    ExpectNotEnoughCombinations();
    person.Tab();
    EXPECT_EQ(Focus(), "txtNoOfTickets(1)");
    EXPECT_EQ(global.WheelSize, 1000);
}

TEST_P(EveryLottoWheel, NothingLeadsPastANumberOfNumbersThatIsTooLow) {
    OpenQuickPick(GetParam());
    Click("txtHowMany");
    for (const auto* name : {"cmdGenerate", "cmdExit(1)", "optWheelType(3)"}) {
        person.Expect("Number too Low",
                      "Value must be greater than " + Number(Lowest() - 1) + ". Please enter a new value.");
        Click(name);
        EXPECT_EQ(Focus(), "txtHowMany");
    }
    EXPECT_TRUE(Window().IsShown());
    EXPECT_TRUE(IsTicked("optWheelType(0)"));
}

TEST_F(QuickPickWheelTest, NineInTheNumberOfNumbersIsNineTicketsWhereTheWheelIsOnlyShown) {
    OpenQuickPick(SixFortyNine);
    Put("txtNoOfTickets(1)", "3");
    Put("txtHowMany", "9");
    EXPECT_EQ(global.NoOfTickets, 9);
    Type(Favs(0), "1");
    Click("cmdGenerate");
    EXPECT_EQ(Display().size(), 9u);
}

TEST_F(QuickPickWheelTest, InLottariosWindowTheNumberOfNumbersLeavesTheTicketsAndLeadsToGenerate) {
    OpenQuickPick(Lottario);
    Put("txtNoOfTickets(1)", "3");
    Put("txtHowMany", "9");
    EXPECT_EQ(global.NoOfTickets, 3);
    EXPECT_EQ(Window().State.HowManyToWheel, 9);
    EXPECT_EQ(OpenBoxes(), 0);
    EXPECT_EQ(Focus(), "cmdGenerate");
}

TEST_F(QuickPickWheelTest, EachTypeOfWheelNamesItsNumbersAndEmptiesTheBoxes) {
    OpenQuickPick(Lottario);
    Choose(Favourites);
    Put("txtHowMany", "7");
    const std::pair<int, std::string_view> types[] = {
        {Cold, "Cold Numbers"}, {Hot, "Hot Numbers"}, {Favourites, "Favourites"}, {QuickPick, ""}};
    for (const auto& [type, caption] : types) {
        Window().QuickPick.Wheel->txtFavs(5).SetText("5");
        Choose(type);
        EXPECT_EQ(CaptionOf("txtEnterFavs"), caption);
        EXPECT_EQ(TextOf(Favs(5)), "");
        EXPECT_EQ(IsEnabled("txtHowMany"), type != QuickPick);
        EXPECT_EQ(IsEnabled("lblHowMany"), type != QuickPick);
    }
    Choose(Hot);
    EXPECT_TRUE(IsEnabled("txtHowMany"));
}

TEST_F(QuickPickWheelTest, SevenHotNumbersMakeSevenTicketsEachWithoutAnotherOne) {
    OpenLottario(20, "7", "7");
    Click("cmdGenerate");
    EXPECT_EQ(Display(),
              (Texts{"1, 2, 3, 4, 5, 6", "2, 3, 4, 5, 6, 7", "1, 3, 4, 5, 6, 7", "1, 2, 4, 5, 6, 7",
                     "1, 2, 3, 5, 6, 7", "1, 2, 3, 4, 6, 7", "1, 2, 3, 4, 5, 7"}));
    for (int i = 0; i < 7; ++i) {
        EXPECT_EQ(TextOf(Favs(i)), Number(i + 1));
        EXPECT_TRUE(IsEnabled(Favs(i)));
    }
    EXPECT_FALSE(IsEnabled(Favs(7)));
    EXPECT_FALSE(global.Generating);
    EXPECT_EQ(Window().State.TableName, "Temp");
    ExpectTempEmpty();
    ExpectFileFree();
}

TEST_F(QuickPickWheelTest, ColdNumbersAreTheLeastDrawnOnes) {
    OpenLottario(20, "1", "7");
    AddDraws(Lottario, 39);
    Choose(Cold);
    Click("cmdGenerate");
    EXPECT_EQ(Display(), Texts{"8, 9, 10, 11, 12, 13"});
    ExpectTempEmpty();
}

TEST_F(QuickPickWheelTest, HotNumbersComeSorted) {
    OpenLottario(20, "1", "7");
    AddDraws(Lottario, 39, 21);
    Click("cmdGenerate");
    EXPECT_EQ(Display(), Texts{"39, 40, 41, 42, 43, 44"});
}

TEST_F(QuickPickWheelTest, NineteenDrawsAreTooFewForHotAndColdAndTwentyWillDo) {
    OpenLottario(19, "1", "7");
    for (const int type : {Cold, Hot}) {
        Choose(type);
        person.Expect("Not Enough Data", TooFewDraws);
        Click("cmdGenerate");
        EXPECT_TRUE(global.Generating);
        EXPECT_EQ(Display(), Texts{});
    }
    AddDraws(Lottario, 1);
    Click("cmdGenerate");
    EXPECT_EQ(Display().size(), 1u);
    EXPECT_FALSE(global.Generating);
}

TEST_F(QuickPickWheelTest, EightTicketsOfSevenNumbersAreWarnedOfAndThenRefused) {
    OpenQuickPick(Lottario);
    AddDraws(Lottario, 1, 20);
    Put("txtNoOfTickets(1)", "8");
    ExpectNotEnoughCombinations();
    Put("txtHowMany", "7");
    person.Expect("Error!", TooManyTickets);
    Click("cmdGenerate");
    EXPECT_EQ(Display(), Texts{});
    EXPECT_EQ(TextOf("txtNoOfTickets(1)"), "0");
    EXPECT_EQ(Focus(), "txtNoOfTickets(1)");
    EXPECT_FALSE(global.Generating);
}

TEST_F(QuickPickWheelTest, NineNumbersMakeOneTicketAndEmptyLines) {
    OpenLottario(20, "3", "9");
    Click("cmdGenerate");
    EXPECT_EQ(Display(), (Texts{"1, 2, 3, 4, 5, 6", "", ""}));
}

TEST_F(QuickPickWheelTest, EightNumbersCannotBeWheeledAndTheProgramGoesOn) {
    OpenLottario(20, "1", "8");
    ExpectRunTimeError(ErrorNumber::SubscriptOutOfRange);
    Click("cmdGenerate");
    EXPECT_EQ(Display(), Texts{});
    EXPECT_TRUE(global.Generating);
    ExpectTempEmpty();
    ExpectFileFree();
    Put("txtHowMany", "7");
    Click("cmdGenerate");
    EXPECT_EQ(Display().size(), 1u);
    EXPECT_FALSE(global.Generating);
}

TEST_F(QuickPickWheelTest, BeforeTheNumberOfNumbersWasVisitedTheWheelFails) {
    OpenLottario(20, "1", "");
    ExpectRunTimeError(ErrorNumber::SubscriptOutOfRange);
    Click("cmdGenerate");
    EXPECT_EQ(Display(), Texts{});
    ExpectTempEmpty();
    ExpectFileFree();
}

TEST_F(QuickPickWheelTest, WithoutTheTempTableTheWheelFailsAndTheFileIsFree) {
    OpenLottario(20, "1", "7");
    Do("DROP TABLE Temp");
    person.Expect("ERROR!", "ERROR #3011\nUnable to open Temp table. Please advise error number to support.",
                  Answer::Ok, BoxStyle::Stop);
    ExpectRunTimeError(ErrorNumber::SqlTableNotFound);
    Click("cmdGenerate");
    EXPECT_EQ(person.Awaited(), 0);
    ExpectFileFree();
}

TEST_F(QuickPickWheelTest, FavouritesComeFirstAsTypedAndThenSorted) {
    OpenLottario(0, "7", "");
    Choose(Favourites);
    Put("txtHowMany", "7");
    TypeFavourites({"45", "3", "30", "12", "7", "20", "1"});
    Click("cmdGenerate");
    EXPECT_EQ(Display(), (Texts{"45, 3, 30, 12, 7, 20", "1, 3, 7, 12, 20, 30", "1, 7, 12, 20, 30, 45",
                                "1, 3, 7, 12, 20, 45", "1, 3, 7, 20, 30, 45", "1, 3, 12, 20, 30, 45",
                                "1, 3, 7, 12, 30, 45"}));
    EXPECT_FALSE(global.Generating);
    EXPECT_EQ(TextOf(Favs(0)), "45");
}

TEST_F(QuickPickWheelTest, AMissingFavouriteIsAskedForAndLeavesGeneratingOn) {
    OpenLottario(0, "7", "");
    Choose(Favourites);
    Put("txtHowMany", "7");
    TypeFavourites({"1", "2"});
    person.Expect("Error!",
                  "Please enter your favourite Numbers prior to clicking on the\nGenerate Numbers button.");
    Click("cmdGenerate");
    EXPECT_EQ(Focus(), "txtFavs(2)");
    EXPECT_TRUE(global.Generating);
    EXPECT_EQ(Display(), Texts{});
}

TEST_F(QuickPickWheelTest, TheFourthTypeMakesRandomTicketsInLottariosWindow) {
    OpenLottario(0, "5", "");
    Choose(QuickPick);
    Click("cmdGenerate");
    EXPECT_EQ(Display().size(), 5u);
    EXPECT_FALSE(global.Generating);
    EXPECT_EQ(Window().State.mode, 1);
    EXPECT_EQ(Window().State.QuickPicks(4), Display().at(4));
}

TEST_F(QuickPickWheelTest, PrintingBehindAWheelPrintsTheQuickPicksOfBefore) {
    OpenLottario(20, "2", "");
    Choose(QuickPick);
    Click("cmdGenerate");
    const Texts quickPicks = Display();
    Choose(Hot);
    Put("txtHowMany", "7");
    Click("cmdGenerate");
    ASSERT_NE(Display(), quickPicks);
    Click("cmdPrint");
    ASSERT_EQ(printer.documents.size(), 1u);
    EXPECT_EQ(printer.documents[0].back().text, "      Ticket #2 - " + quickPicks[1]);
}

}  // namespace
}  // namespace sorvane::test

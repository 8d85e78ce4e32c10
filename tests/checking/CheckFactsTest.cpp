#include "checking/CheckFacts.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/Games.h"

namespace sorvane::testing {

namespace {

using namespace CheckFacts;
using Names = std::vector<std::string>;

Names KeysOf(Family family) {
    Names keys;
    for (const AddOnPass& pass : AddOnPasses[family]) keys.emplace_back(pass.ExtraFlag);
    return keys;
}

}  // namespace

TEST(CheckFactsTest, EachWindowTestsItsAddOnKeysInItsOrder) {
    EXPECT_EQ(KeysOf(Family::frm649), (Names{"Encore", "Extra", "ThePlus", "QCExtra", "Tag"}));
    EXPECT_EQ(KeysOf(Family::frm749), (Names{"Encore", "WESTExtra", "QCExtra", "Tag", "Extra"}));
    EXPECT_EQ(KeysOf(Family::frm645), Names{"Encore"});
    EXPECT_EQ(KeysOf(Family::frmKeno70), (Names{"Encore", "QCExtra", "Tag"}));
    EXPECT_EQ(KeysOf(Family::frmKeno80), Names{});
    EXPECT_EQ(KeysOf(Family::frmPick3), Names{"Encore"});
    EXPECT_EQ(KeysOf(Family::frmPick4), Names{"Encore"});
}

TEST(CheckFactsTest, EveryGameWithAnAddOnFindsItsPassAndTheOthersNone) {
    for (const test::GameTold& game : test::GamesTold) {
        const bool hasAddOn = test::AddOnOf(game.ExtraFlag) != nullptr;
        EXPECT_EQ(FindAddOnPass(game.opens, game.ExtraFlag) != nullptr, hasAddOn) << game.menu;
    }
}

TEST(CheckFactsTest, TheFourNumbersOfTheExtraHaveTheirOwnRoutines) {
    for (const Family family : {Family::frm649, Family::frm749}) {
        const AddOnPass* extra = FindAddOnPass(family, "Extra");
        ASSERT_NE(extra, nullptr);
        EXPECT_EQ(extra->Read, &ReadExtraPlayed);
        EXPECT_EQ(extra->Store, &StoreExtraWin);
        EXPECT_EQ(extra->Check, &CheckExtraEarlyBird);
    }
}

TEST(CheckFactsTest, EveryDigitAddOnIsJudgedByItsOwnLadder) {
    const std::vector<std::pair<std::string, Judge>> ladders{{"Encore", CheckEncore},
                                                             {"ThePlus", CheckThePlus},
                                                             {"QCExtra", CheckQCExtra},
                                                             {"Tag", CheckTag},
                                                             {"WESTExtra", CheckWESTExtra}};
    for (const Family family : AllFamilies) {
        for (const auto& [key, ladder] : ladders) {
            const AddOnPass* pass = FindAddOnPass(family, key);
            if (!pass) continue;
            EXPECT_EQ(pass->Check, ladder) << key;
            EXPECT_EQ(pass->Read, &ReadDigitAddOnPlayed) << key;
            EXPECT_EQ(pass->Store, &StoreAddOnWin) << key;
        }
    }
}

TEST(CheckFactsTest, TheShortAddOnTextBearsTheAddOnsName) {
    const std::string rest = " number is too short. Please check the number and try again.";
    EXPECT_EQ(TooShortText(Family::frm649, "Encore"), "Encore" + rest);
    EXPECT_EQ(TooShortText(Family::frm649, "Tag"), "Tag" + rest);
    EXPECT_EQ(TooShortText(Family::frm749, "QCExtra"), "Extra" + rest);
    EXPECT_EQ(TooShortText(Family::frm749, "WESTExtra"), "Extra" + rest);
    EXPECT_EQ(TooShortText(Family::frmKeno70, "Encore"), "Encore" + rest);
}

TEST(CheckFactsTest, TheShortTextOfThePlusBeginsWithABlank) {
    EXPECT_EQ(TooShortText(Family::frm649, "ThePlus"),
              " number is too short. Please check the number and try again.");
}

TEST(CheckFactsTest, LottarioAndPickSayTheEncoreNumber) {
    for (const Family family : {Family::frm645, Family::frmPick3}) {
        EXPECT_EQ(TooShortText(family, "Encore"),
                  "The Encore number is too short. Please check the number and try again.");
        EXPECT_EQ(TooShortTitle[family], "Encore Too Short");
    }
}

TEST(CheckFactsTest, WesternExtraNeedsSevenDigitsAndAnyOtherKeySix) {
    for (const std::string_view six : {"Encore", "ThePlus", "QCExtra", "Tag"})
        EXPECT_EQ(AddOnDigits(six), 6) << six;
    EXPECT_EQ(AddOnDigits("WESTExtra"), 7);
    EXPECT_EQ(AddOnDigits("any other"), 6);
}

TEST(CheckFactsTest, OnlyLottarioHasASecondDraw) {
    for (const Family family : AllFamilies) {
        const bool lottario = family == Family::frm645;
        EXPECT_EQ(AlsoWin[family], lottario ? "WinEarlyBird" : "");
        EXPECT_EQ(AlsoStore[family] == StoreExtraWin, lottario);
        EXPECT_EQ(AlsoCheck[family] == CheckExtraEarlyBird, lottario);
    }
}

}  // namespace sorvane::testing

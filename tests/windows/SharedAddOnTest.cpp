// Two games of a region that hold add-on tickets of one table on one date.
#include "windows/Slip.h"

namespace sorvane::test {
namespace {

class SharedAddOn : public SlipWorld {
  protected:
    // A ticket of the numbers from `first` on, with these add-on tickets, each typed into its fields.
    void Enter(std::string_view menu, int first, const std::vector<Texts>& addOns) {
        Show(menu);
        OneSheet(static_cast<int>(addOns.size()));
        Put("txtNoOfExtra", std::to_string(addOns.size()));
        for (std::size_t ticket = 0; ticket < addOns.size(); ++ticket) {
            PickFrom(first, 6);
            if (ticket + 1 < addOns.size()) Click("cmdNext_Ticket");
        }
        for (const Texts& addOn : addOns) {
            Click("cmdNext_Ticket");
            if (addOn.size() == 1) Put("txtEncore", addOn[0]);
            else TypeFour("txtPlay4", addOn);
        }
        SaveSheet(true);
    }
    void TypeFour(const std::string& stem, const Texts& numbers) {
        int i = 0;
        for (const std::string& number : numbers) Put(stem + "(" + std::to_string(i++) + ")", number);
    }
    // Checks the game against a draw of 1 to 7 and this add-on, and tells the lines of the add-on.
    Texts Check(std::string_view menu, const Texts& addOn) {
        Show(menu);
        person.ClickTab("&Check Tickets");
        for (int i = 0; i < 7; ++i) Type("txtWin6(" + std::to_string(i) + ")", std::to_string(i + 1));
        if (addOn.size() == 1) Type("txtWinEncore", addOn[0]);
        else TypeFour("txtWin4", addOn);
        Click("cmdCheck");
        Texts lines = ListOf("lstMessage");
        lines.erase(lines.begin(), lines.begin() + Window().State.TicketRows);
        return lines;
    }
};

TEST_F(SharedAddOn, TheFirstNumbersOfTheDateAreJudgedWhoeverOwnsThemAndTheLaterDrawReplacesTheOther) {
    Enter("mnuCANONTLotto649", 1, {{"123450"}});
    Enter("mnuCANONTONT49", 11, {{"987654"}, {"555555"}});
    EXPECT_EQ(Rows("SELECT Lottoflag, ID1 FROM PlayedEncore ORDER BY ID1"),
              (Texts{"Lotto649|1", "Ontario49|2", "Ontario49|3"}));

    EXPECT_EQ(Check("mnuCANONTONT49", {"987654"}),
              (Texts{"Sorry. Encore ticket #123450 is not a winner.", "Encore #987654 won $250,000.00!!!"}));
    EXPECT_EQ(ListOf("lstEncorePlayed"), (Texts{"1, 2, 3, 4, 5, 0", "9, 8, 7, 6, 5, 4"}));
    EXPECT_EQ(Rows("SELECT Lottoflag, [Number 1], [Number 6] FROM WinEncore"), Texts{"Ontario49|9|4"});

    EXPECT_EQ(Check("mnuCANONTLotto649", {"123450"}), Texts{"Encore #123450 won $250,000.00!!!"});
    EXPECT_EQ(Rows("SELECT Lottoflag, [Number 1], [Number 6] FROM WinEncore"), Texts{"Lotto649|1|0"});
}

TEST_F(SharedAddOn, ExtraKeepsADrawForEachGame) {
    Enter("mnuCANBCLotto649", 1, {{"10", "20", "30", "40"}});
    Enter("mnuCANBCBC49", 11, {{"1", "2", "3", "4"}, {"5", "6", "7", "8"}});

    EXPECT_EQ(
        Check("mnuCANBCBC49", {"1", "2", "3", "4"}),
        (Texts{"Sorry, Extra # 10, 20, 30, 40 is not a winner.", "Extra # 1, 2, 3, 4 won $500,000.00!!!"}));
    EXPECT_EQ(Check("mnuCANBCLotto649", {"10", "20", "3", "4"}), Texts{"Extra # 10, 20, 30, 40 won $10.00!"});
    EXPECT_EQ(Rows("SELECT Lottoflag, Ball_1, Ball_4 FROM WinExtra ORDER BY ID1"),
              (Texts{"BC49|1|4", "Lotto649|10|4"}));
}

}  // namespace
}  // namespace sorvane::test

// What leaving a field of the wheel does.
#include "windows/Slip.h"

namespace sorvane::test {
namespace {

class QuickPickPage : public SlipWorld {
  protected:
    void Open(std::string_view menu) {
        Show(menu);
        person.ClickTab("&Quick Pick");
    }
    static std::string Fav(int i) { return "txtFavs(" + std::to_string(i) + ")"; }
    std::string Selected(std::string_view name) {
        return person.Find<QLineEdit>(name).selectedText().toStdString();
    }
    // Clicks Generate, which leaves the field in hand first.
    Texts Generated() {
        Click("cmdGenerate");
        return ListOf("lstDisplay");
    }
};

TEST_F(QuickPickPage, WhicheverCountWasLeftLastDecides) {
    Open("mnuCANONTLotto649");
    Put("txtHowMany", "9");
    person.Type("5");
    Type("txtNoOfTickets(1)", "2");
    EXPECT_EQ(Generated().size(), 2u);
}

TEST_F(QuickPickPage, ANumberAboveTheLimitOfTheGameIsSelectedAgain) {
    const std::pair<const char*, std::string> games[] = {{"mnuCANONTLotto649", "49"},
                                                         {"mnuCANATLSuper7", "49"},
                                                         {"mnuCANONTLOTTARIO", "45"},
                                                         {"mnuCANONTKENO", "70"}};
    for (const auto& [menu, limit] : games) {
        SCOPED_TRACE(menu);
        Open(menu);
        Click("optWheelType(2)");
        Put("txtHowMany", "9");
        const std::string tooHigh = std::to_string(std::stoi(limit) + 1);
        person.Type(tooHigh);
        person.Expect("Number Too High!", "Number cannot be greater than " + limit +
                                              ". Please enter a new number less than or equal to " + limit +
                                              ".");
        person.Tab();
        EXPECT_EQ(Focus(), Fav(0));
        EXPECT_EQ(Selected(Fav(0)), tooHigh);
        person.Type(limit);
        person.Tab();
        EXPECT_EQ(global.Favourites(0), std::stoi(limit));
        person.Type("1");
        Window().Leave();
    }
}

}  // namespace
}  // namespace sorvane::test

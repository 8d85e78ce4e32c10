// The tickets are entered.
#include "tour/Evening.h"

namespace sorvane::tour {

namespace {

constexpr std::string_view CleanUpText =
    "Since you've already saved some tickets, your database will be incorrect.\r\n"
    "Would you like to clean up your database?\r\n"
    "(NOTE: This will delete ALL records with the same Draw Date as indicated\r\n"
    "in the Draw Date box above.)";

}  // namespace

void Evening::MainWindow() {
    frmMain_.Load();
    frmMain_.Show();
    test::Person::Await(frmMain_);
    test::Person::Settle();
    Picture("main-window");
    OpenMenus("mnuCANONTLotto649");
    Picture("menu");
}

// Five tickets on two sheets, with one Encore on the first.
void Evening::EnterLotto649() {
    Visit("mnuCANONTLotto649", "frm649", [this] {
        Picture("enter-tickets");
        Answers("frmHowManySheets", "txtNoOfSheets", "2", "how-many-sheets");
        Answers("frmTicketsOnSheet", "txtNoOfTicketsOnSheet", "3", "tickets-on-sheet");
        Put("txtNoOfTickets(0)", "5");
        Put("txtNoOfExtra", "1");
        TickBalls({3, 11, 17, 24});
        Picture("entry");
        TickBalls({38, 45});
        Picture("ticket-complete");
        Click("cmdNext_Ticket");
        Click("chkRegular");
        TickBalls({5, 9, 17, 22, 31, 40});
        Click("cmdNext_Ticket");
        TickBalls({2, 14, 17, 24, 38, 49});
        Picture("enter-encore");
        Click("cmdNext_Ticket");
        Type("txtEncore", "304517");
        Picture("encore-number");
        person.Tab();
        ExpectBox("CONFIRM", "Save this sheet of tickets?", Answer::Yes, BoxStyle::YesNo, "save-question");
        ExpectBox("CONFIRMED", "Tickets Saved - Enter Next Sheet", Answer::Ok, BoxStyle::Ok, "next-sheet");
        Click("cmdSave");
        Put("txtNoOfExtra", "0");
        TickBalls({1, 8, 19, 27, 33, 46});
        Click("cmdNext_Ticket");
        TickBalls({7, 12, 24, 30, 38, 44});
        SaveLastSheet({}, "tickets-saved");
    });
}

// One ticket and its two free ones.
void Evening::EnterSuper7() {
    Visit("mnuCANONTSuper7", "frm749", [this] {
        SetDate(Page::Enter, "2006-03-10");
        Put("txtNoOfTickets(0)", "1");
        Put("txtNoOfExtra", "0");
        TickBalls({4, 9, 13, 21, 28, 36, 47});
        Click("cmdNext_Ticket");
        TickBalls({1, 2, 10, 22});
        Picture("bonus-ticket");
        TickBalls({30, 41, 45});
        Click("cmdNext_Ticket");
        TickBalls({6, 15, 19, 23, 33, 39, 46});
        SaveLastSheet();
    });
}

void Evening::EnterLottario() {
    Visit("mnuCANONTLOTTARIO", "frm645", [this] {
        Put("txtNoOfTickets(0)", "1");
        Put("txtNoOfExtra", "0");
        Click("chkEarlybird");
        TickBalls({5, 12, 18, 27, 33, 41});
        Picture("lottario");
        Click("cmdNext_Ticket");
        TickBalls({2, 9, 16, 24, 36, 44});
        SaveLastSheet();
    });
}

// Two tickets of a different length.
void Evening::EnterKeno() {
    Visit("mnuCANONTKENO", "frmKeno70", [this] {
        Answers("frmHowManySheets", "txtNoOfSheets", "1");
        Put("txtNoOfTickets(0)", "2");
        Put("txtNoOfExtra", "0");
        Put("cboWager", "2.00");
        Put("cboNoOfBallsPerTicket", "5");
        TickBalls({7, 14, 23});
        Picture("keno");
        TickBalls({42, 61});
        Click("cmdNext_Ticket");
        Put("cboWager", "1.00");
        Put("cboNoOfBallsPerTicket", "10");
        TickBalls({2, 5, 9, 12, 16, 21, 26, 33, 39, 47});
        SaveLastSheet();
    });
}

void Evening::EnterPick3() {
    Visit("mnuCANONTPICK3", "frmPick3", [this] {
        Answers("frmHowManySheets", "txtNoOfSheets", "1");
        Put("txtNoOfTickets(0)", "2");
        Put("txtNoOfExtra", "0");
        Click("optPlayOpt(1)");
        Click("optOneDollar");
        ChooseDigits("cboNumber", {4, 0, 7});
        Picture("pick3");
        person.Tab();
        Click("cmdNext_Ticket");
        ChooseDigits("cboNumber", {1, 2, 2});
        person.Tab();
        SaveLastSheet();
    });
}

void Evening::EnterPlay4() {
    Visit("mnuUSFLAPlay4", "frmPick4", [this] {
        Put("txtNoOfTickets(0)", "1");
        Click("optPlayOpt(0)");
        Click("optTwoDollars");
        ChooseDigits("cboNumber", {1, 9, 5, 8});
        person.Tab();
        Picture("play4");
        SaveLastSheet();
    });
}

// Six numbers with one The Plus for the sheet.
void Evening::EnterWestern649() {
    Visit("mnuCANWEST649", "frm649", [this] {
        Put("txtNoOfTickets(0)", "1");
        Click("chkEncore");
        Type("txtEncore", "447190");
        TickBalls({8, 12, 25, 26, 37, 43});
        Picture("the-plus");
        SaveLastSheet();
    });
}

// The box of the add-on wakes up with the count.
void Evening::EnterQuebec49() {
    Visit("mnuCANQCQuebec49", "frm649", [this] {
        Put("txtNoOfTickets(0)", "1");
        Click("chkEncore");
        Put("txtEncore", "880312");
        TickBalls({10, 11, 21, 32, 40, 44});
        SaveLastSheet();
    });
}

// A Super 7 ticket with its free ones and a Tag number.
void Evening::EnterAtlanticSuper7() {
    Visit("mnuCANATLSuper7", "frm749", [this] {
        Put("txtNoOfTickets(0)", "1");
        Click("chkEncore");
        Type("txtEncore", "550917");
        TickBalls({2, 11, 19, 20, 34, 35, 46});
        Picture("tag");
        for (const Numbers& free : {Numbers{5, 8, 16, 24, 29, 37, 40}, Numbers{3, 12, 18, 27, 31, 42, 45}}) {
            Click("cmdNext_Ticket");
            TickBalls(free);
        }
        SaveLastSheet();
    });
}

void Evening::EnterCash3() {
    Visit("mnuUSFLACash3", "frmPick3", [this] {
        Put("txtNoOfTickets(0)", "1");
        Click("optPlayOpt(2)");
        Click("optTwoDollars");
        ChooseDigits("cboNumber", {6, 6, 1});
        Picture("cash3");
        person.Tab();
        SaveLastSheet();
    });
}

void Evening::EnterDaily3() {
    Visit("mnuCANBCDAILY3", "frmPick3", [this] {
        Put("txtNoOfTickets(0)", "1");
        Click("optPlayOpt(1)");
        Click("optOneDollar");
        ChooseDigits("cboNumber", {3, 0, 8});
        Picture("daily3");
        person.Tab();
        SaveLastSheet();
    });
}

// Two tickets with one Extra ticket of four numbers.
void Evening::EnterBC49() {
    Visit("mnuCANBCBC49", "frm649", [this] {
        Answers("frmHowManySheets", "txtNoOfSheets", "1");
        Put("txtNoOfTickets(0)", "2");
        Put("txtNoOfExtra", "1");
        TickBalls({6, 13, 20, 29, 35, 48});
        Click("cmdNext_Ticket");
        TickBalls({1, 9, 17, 22, 33, 41});
        Click("cmdNext_Ticket");
        for (const auto& [box, number] : {std::pair{0, "12"}, {1, "34"}, {2, "56"}})
            Put("txtPlay4(" + std::to_string(box) + ")", number);
        Type("txtPlay4(3)", "78");
        Picture("extra-numbers");
        person.Tab();
        SaveLastSheet();
    });
}

// The second sheet can't be found: the player leaves and takes the first one back.
void Evening::LeaveHalfway() {
    Visit("mnuCANBCBC49", "frm649", [this] {
        Answers("frmHowManySheets", "txtNoOfSheets", "2");
        Put("txtNoOfTickets(0)", "2");
        Put("txtNoOfExtra", "0");
        TickBalls({6, 13, 20, 29, 35, 48});
        ExpectBox("CONFIRM", "Save this sheet of tickets?", Answer::Yes, BoxStyle::YesNo);
        ExpectBox("CONFIRMED", "Tickets Saved - Enter Next Sheet");
        Click("cmdSave");
        ExpectBox("Exiting before completion...", CleanUpText, Answer::Yes, BoxStyle::YesNoCancel,
                  "leaving-question");
        ExpectBox("Database Cleaned", "Database cleaned!");
        Exit(Page::Enter);
    });
}

}  // namespace sorvane::tour

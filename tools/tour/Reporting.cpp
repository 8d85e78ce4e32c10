// History, reports, quick picks and the small windows.
#include <QPlainTextEdit>

#include "platform/Date.h"
#include "tour/Evening.h"

namespace sorvane::tour {

namespace {

constexpr int WeeksBefore = 19;  // with the draw checked tonight enough for a wheel
constexpr int LottarioTop = 45;
constexpr int LottarioDrawn = 7;

// Seven different numbers for a week, the same on every machine.
Numbers EarlierDraw(int week) {
    Numbers drawn;
    for (int number = week * 11; static_cast<int>(drawn.size()) < LottarioDrawn; number += week % 5 + 3) {
        const int ball = number % LottarioTop + 1;
        if (std::find(drawn.begin(), drawn.end(), ball) == drawn.end()) drawn.push_back(ball);
    }
    return drawn;
}

std::string SaturdayBefore(std::string_view today, int weeks) {
    return Date::FromDays(static_cast<double>(Date::FromText(today).Day() - 7 * weeks)).ToText();
}

}  // namespace

void Evening::TypeEarlierDraws() {
    Visit("mnuCANONTLOTTARIO", "frm645", [this] {
        person.ClickTab("&Check");
        Click("chkStatUpdate");
        for (int week = 1; week <= WeeksBefore; ++week) {
            SetDate(Page::Check, SaturdayBefore(Today, week));
            TypeDraw("txtWin6", {EarlierDraw(week), {}, {}});
            ExpectBox("Database Updated", "Database Updated.", Answer::Ok, BoxStyle::Ok,
                      week == 1 ? "stats-only" : "");
            Click("cmdCheck");
        }
        Exit(Page::Check);
    });
}

void Evening::ReportLottario() {
    Visit("mnuCANONTLOTTARIO", "frm645", [this] {
        person.ClickTab("&Reports");
        Picture("reports");
        Click("cmdNumberFrequency");
        Picture("number-frequency-chart");
        Click("cmdNFReport");
        Picture("number-frequency-report");
        page_ = album_.NextPage("number-frequency");
        Click("cmdPrintReport");
        Exit(Page::Reports);
    });
}

void Evening::ReportOf(int type, std::string_view picture, std::string_view dialogPicture) {
    person.ExpectWindow("frmReportType", [this, type, name = std::string(dialogPicture)](QWidget&) {
        Click("optReportType(" + std::to_string(type) + ")");
        if (!name.empty()) Picture(name);
        Click("cmdOK");
    });
    Click("cmdReport");
    Picture(picture);
}

void Evening::ReportDigits() {
    Visit("mnuCANONTPICK3", "frmPick3", [this] {
        person.ClickTab("&Check");
        Click("chkStatUpdate");
        for (const auto& [day, digits] : std::initializer_list<std::pair<const char*, Numbers>>{
                 {"2006-03-10", {2, 2, 9}}, {"2006-03-09", {7, 4, 1}}, {"2006-03-08", {0, 4, 6}}}) {
            SetDate(Page::Check, day);
            ChooseDigits("cboWin3", digits);
            ExpectBox("Database Updated", "Database Updated.");
            Click("cmdCheck");
        }
        person.ClickTab("&Reports");
        Click("cmdNumberFrequency");
        Picture("digit-chart");
        ReportOf(0, "digit-positions", "report-type");
        ReportOf(1, "digit-triples");
        ReportOf(2, "digit-pairs");
        Exit(Page::Reports);
    });
}

void Evening::ReportAll() {
    Visit("mnuReportsPL", "frmReport", [this] {
        Click("cmdProfitLoss");
        Picture("all-lotteries-chart");
        Click("cmdPLReport");
        Picture("all-lotteries-report");
        Click("cmdExit");
    });
}

void Evening::PrintQuickPicks() {
    Visit("mnuCANONTLotto649", "frm649", [this] {
        person.ClickTab("&Quick");
        Put("txtNoOfTickets(1)", "8");
        Click("cmdGenerate");
        Picture("quick-picks");
        page_ = album_.NextPage("quick-picks");
        Click("cmdPrint");
        Exit(Page::QuickPick);
    });
}

void Evening::Wheel() {
    Visit("mnuCANONTLOTTARIO", "frm645", [this] {
        person.ClickTab("&Quick");
        Put("txtNoOfTickets(1)", "7");
        Click("optWheelType(2)");
        Put("txtHowMany", "7");
        int i = 0;
        for (const auto* favourite : {"4", "9", "13", "22", "27", "31", "40"})
            Type("txtFavs(" + std::to_string(i++) + ")", favourite);
        Click("cmdGenerate");
        Picture("wheel-favourites");
        Click("optWheelType(0)");
        Put("txtHowMany", "7");
        Click("cmdGenerate");
        Picture("wheel-hot");
        Exit(Page::QuickPick);
    });
}

void Evening::SmallWindows() {
    Visit("mnuCANONTWINNERTAKEALL", "frmComingSoon", [this] {
        Picture("not-yet");
        Click("cmdOk");
    });
    Visit("mnuOTHERRequest", "frmRequestNewLottery", [this] {
        for (const auto& [field, text] :
             std::initializer_list<std::pair<const char*, const char*>>{{"txtNameOfLottery", "Viking Lotto"},
                                                                        {"txtCountry", "Norway"},
                                                                        {"txtNumberOfNumbers", "6"},
                                                                        {"txtLow", "1"},
                                                                        {"txtHigh", "48"},
                                                                        {"txtCostPerTicket", "5"}})
            Type(field, text);
        person.Type(*person.Find<QPlainTextEdit>("txtAdditionalInfo").viewport(),
                    "Drawn on Wednesdays, together with the neighbours.");
        Click("optYesBonusNumber");
        Click("optNoBonusTicket");
        Picture("request-form");
        page_ = album_.NextPage("request");
        Click("cmdPrint");
        Click("cmdExit");
    });
    Visit("mnuHelpAbout", "frmAbout", [this] {
        Picture("about");
        Click("cmdOK");
    });
    person.ExpectWindow("frmGuide", [this](QWidget&) {
        person.AccessKey('s');
        person.Type("large letters");
        person.Enter();
        Picture("guide");
        person.Key(Qt::Key_Escape);
    });
    person.Key(Qt::Key_F1);
}

}  // namespace sorvane::tour

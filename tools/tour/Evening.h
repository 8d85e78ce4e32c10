// One evening of a player: the tour's story, told by real events on the real windows.
#pragma once

#include <algorithm>
#include <array>
#include <filesystem>
#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "forms/PrinterDialog.h"
#include "shell/ui/Windows.h"
#include "shell/ui/frmMain.h"
#include "support/WindowWorld.h"
#include "tour/Album.h"

namespace sorvane::tour {

using Numbers = std::vector<int>;

// The tests' world with the program's own main window in front and a printer that makes PDFs.
class Evening : public test::WindowWorld {
  public:
    // Pictures and PDFs go to `out`. The player's records of this evening lie below it, in evening/data,
    // and begin empty.
    explicit Evening(const std::filesystem::path& out);

    // What did not come up as told, or came up untold, is a failure of the test framework.
    void Play();
    const Album& Pictures() const { return album_; }

  private:
    struct Draw {
        Numbers main, early;
        std::string_view addOn;
    };
    enum class Page { Enter, QuickPick, Check, Reports };

    void TestBody() override {}

    void MainWindow();
    void EnterLotto649();
    void EnterSuper7();
    void EnterLottario();
    void EnterKeno();
    void EnterPick3();
    void EnterPlay4();
    void EnterWestern649();
    void EnterQuebec49();
    void EnterAtlanticSuper7();
    void EnterCash3();
    void EnterDaily3();
    void LeaveHalfway();
    void EnterBC49();
    void CheckLotto649();
    void CheckSuper7();
    void CheckBC49();
    void CheckAtlanticSuper7();
    void CheckLottario();
    void CheckKeno();
    void CheckPick3();
    void CheckPlay4();
    void ReportDigits();
    void ReportAll();
    void TypeEarlierDraws();
    void ReportLottario();
    void Wheel();
    void PrintQuickPicks();
    void SmallWindows();

    // The picture of what is in front now.
    void Picture(std::string_view name) { album_.Take(person.Front(), name); }
    // A box with a picture of it before it is answered.
    void ExpectBox(std::string_view title, std::string_view text, Answer answer = Answer::Ok,
                   int style = BoxStyle::Ok, std::string_view picture = {});
    // Opens the menus as far as the entry.
    void OpenMenus(std::string_view entry);
    // Chooses the entry, uses the window it opens, which `act` has to leave, and comes back.
    void Visit(std::string_view entry, std::string_view window, std::function<void()> act);
    void ClickMenu(std::string_view entry);

    void SetDate(Page page, std::string_view day);
    // Answers a question for a number.
    void Answers(std::string_view dialog, std::string_view field, std::string_view number,
                 std::string_view picture = {});
    void TickBalls(const Numbers& numbers);
    void ChooseDigits(std::string_view lists, const Numbers& digits);
    // Presses "&Save Tickets" at the last sheet; the window goes.
    void SaveLastSheet(std::string_view question = {}, std::string_view saved = {});
    void TypeDraw(std::string_view stem, const Draw& draw);
    void EnterWinnings(std::string_view amount, std::string_view picture = {});
    // The report of digits of this kind.
    void ReportOf(int type, std::string_view picture, std::string_view dialogPicture = {});
    void Exit(Page page) { Click("cmdExit(" + std::to_string(static_cast<int>(page)) + ")"); }

    Album album_;
    std::string page_;  // the file that the printer writes next
    forms::PrinterDialog paper_;
    Services services_{boxes, paper_, clock, random, tools, engine};
    sorvane::Session session_{global, services_};
    Windows windows_{session_, test::Makers};
    frmMain frmMain_;
    bool ended_ = false;
};

}  // namespace sorvane::tour

#include "checking/ui/CheckFlow.h"

#include "checking/CheckFacts.h"
#include "checking/ui/CheckTicketsTab.h"
#include "forms/BusyPointer.h"
#include "platform/Text.h"
#include "shell/ui/GameFrame.h"
#include "store/CheckTB_DBExists.h"
#include "store/CreateTables.h"
#include "store/StoreLedger.h"

namespace sorvane {

namespace {

using namespace CheckFacts;

// What the readers count starts at nought and ends there on every way out of a check, by an error too: the
// next one would add to what was left.
class RowsOfThisCheck {
  public:
    explicit RowsOfThisCheck(Global& g) : g_(g) { Forget(); }
    ~RowsOfThisCheck() { Forget(); }
    RowsOfThisCheck(const RowsOfThisCheck&) = delete;
    RowsOfThisCheck& operator=(const RowsOfThisCheck&) = delete;

  private:
    void Forget() {
        g_.EntryCounter = 0;
        g_.NoRowForDate = Off;
    }
    Global& g_;
};

}  // namespace

void CheckFlow::cmdCheck_Click() {
    const RowsOfThisCheck rows(window_.session.global);
    const Family family = window_.Which;
    window_.session.global.EnteringWinnings = Off;
    window_.State.WindowDate = window_.dtpEnterTickets(2).Value();
    if (!DateHasCome()) return;
    if (ListsCleared[family] == Clearing::AfterDate) {
        page_.lstMessage.Clear();
        page_.lstNumbersPlayed.Clear();
    }
    if (AddOnTested[family] == AddOnTest::BeforeBoxes && !AddOnIsLongEnough()) return;
    if (!BoxesAreFilled()) return;
    if (ListsCleared[family] == Clearing::AfterBoxes) page_.ClearLists();
    if (!StatOnly()) {
        const AddOnTest when = AddOnTested[family];
        if ((when == AddOnTest::AfterBoxes || when == AddOnTest::AfterLists) && !AddOnIsLongEnough()) return;
        if (ListsCleared[family] == Clearing::AfterAddOn) page_.ClearLists();
        if (!ReadTickets()) return;
    }
    StoreDraw();
    if (!GoesOnToJudging()) return;
    const WinningBoxes boxes = page_.Boxes();
    JudgeTickets(boxes);
    CheckAddOn(boxes);
}

bool CheckFlow::StatOnly() const {
    return KnowsStatUpdate[window_.Which] && window_.session.global.StatUpdate == On;
}

bool CheckFlow::DateHasCome() {
    Session& session = window_.session;
    if (window_.State.WindowDate <= session.services.clock.Today()) return true;
    session.global.Msg = FutureText;
    window_.MsgBox(session.global.Msg, BoxStyle::Ok, CheckTitle);
    return false;
}

bool CheckFlow::Missing(std::string_view text, std::string_view title, forms::Control& box) {
    window_.session.global.Msg = text;
    window_.MsgBox(window_.session.global.Msg, BoxStyle::Ok, title);
    box.SetFocus();
    return false;
}

bool CheckFlow::BoxesAreFilled() {
    const Family family = window_.Which;
    if (!BoxesRequired[family]) return true;
    for (int i = 0; i < BoxCount[family]; ++i)
        if (page_.MainText(i).empty())
            return Missing(MissingText[family], MissingTitle[family], page_.MainBox(i));
    return FourTested[family] != FourTest::Always || StatOnly() || FourAreFilled();
}

bool CheckFlow::FourAreFilled() {
    for (int i = 0; i < CheckTicketsTab::FourBoxes; ++i)
        if (page_.txtWin4(i).Text().empty())
            return Missing(FourMissingText[window_.Which], CheckTitle, page_.txtWin4(i));
    return true;
}

bool CheckFlow::AddOnIsLongEnough() {
    const Family family = window_.Which;
    const Global& g = window_.session.global;
    if (StatOnly()) return true;
    if (!AddOnTestedFor[family].empty() && g.ExtraFlag != AddOnTestedFor[family]) return true;
    if (ClearsEncoreListAtTest[family]) page_.lstEncorePlayed->Clear();
    if (FourTested[family] == FourTest::UnderExtra && AddOnOf(g.ExtraFlag).FourNumbers)
        return FourAreFilled();
    if (Len(page_.txtWinEncore->Text()) >= AddOnDigits(g.ExtraFlag)) return true;
    return Missing(TooShortText(family, g.ExtraFlag), TooShortTitle[family], *page_.txtWinEncore);
}

bool CheckFlow::ReadTickets() {
    WindowState& state = window_.State;
    Session& session = window_.session;
    if (const auto table = CheckTable(window_.Which, session.global.LottoFlag)) state.TableName = *table;
    Read[window_.Which](session, window_.At(), page_.lstNumbersPlayed);
    return session.global.NoRowForDate != On;
}

void CheckFlow::StoreDraw() {
    WindowState& state = window_.State;
    Session& session = window_.session;
    if (const auto table = WinTable(window_.Which, session.global.LottoFlag)) state.TableName = *table;
    if (ProbesWin[window_.Which])
        MakeSureOf(session, state.Table(),
                   [&] { CreateWinKenoTable(session, state.Table(), PrimaryFieldName, DateFieldName); });
    Store[window_.Which](session, window_.At(), page_.Boxes());
}

bool CheckFlow::GoesOnToJudging() {
    Global& g = window_.session.global;
    if (RefusalStops[window_.Which] && g.RecheckRefused == True) {
        g.RecheckRefused = Off;
        g.RecheckAccepted = True;
        return false;
    }
    if (!StatOnly()) return true;
    if (g.RecheckAccepted != True) {
        g.RecheckAccepted = True;
        return false;
    }
    g.Msg = UpdatedText;
    window_.MsgBox(g.Msg, BoxStyle::Ok, UpdatedTitle);
    if (UpdateEmptiesBoxes[window_.Which]) page_.EmptyMainBoxes();
    return false;
}

void CheckFlow::JudgeTickets(const WinningBoxes& boxes) {
    const Family family = window_.Which;
    Session& session = window_.session;
    if (AlsoStore[family]) {
        window_.State.TableName = AlsoWin[family];
        AlsoStore[family](session, window_.At(), boxes);
    }
    forms::BusyPointer busy;
    const int rows = session.global.EntryCounter;
    for (int Row = 0; Row < rows; ++Row) {
        CheckFacts::Check[family](session, boxes, Row, page_.lstMessage);
        if (AlsoCheck[family]) AlsoCheck[family](session, boxes, Row, page_.lstMessage);
        busy.Tick();
    }
    window_.State.TicketRows = page_.lstNumbersPlayed.ListCount();
    session.global.EntryCounter = 0;
}

void CheckFlow::CheckAddOn(const WinningBoxes& boxes) {
    Session& session = window_.session;
    WindowState& state = window_.State;
    const AddOnPass* pass = FindAddOnPass(window_.Which, session.global.ExtraFlag);
    if (!pass) return;
    const AddOn& addOn = *FindAddOn(pass->ExtraFlag);
    state.TableName = addOn.Played;
    pass->Read(session, window_.At(), *page_.lstEncorePlayed);
    state.TableName = addOn.Win;
    pass->Store(session, window_.At(), boxes);
    forms::BusyPointer busy;
    const int rows = session.global.EntryCounter;
    for (int Row = 0; Row < rows; ++Row) {
        pass->Check(session, boxes, Row, page_.lstMessage);
        busy.Tick();
    }
}

void CheckFlow::chkStatUpdate_Click() {
    const bool on = page_.chkStatUpdate.Value() == 1;
    window_.session.global.StatUpdate = on ? On : Off;
    page_.cmdCheck.SetCaption(on ? "&Update" : "&Check");
    const unsigned disables = StatDisables[window_.Which];
    if (disables & StatControls::EarlyBird) page_.lblWinEarlybird->SetEnabled(!on);
    if (disables & StatControls::Four)
        page_.txtWin4.ForEach([on](forms::TextBox& box, int) { box.SetEnabled(!on); });
    if (disables & StatControls::Encore) {
        page_.lblWinEncore->SetEnabled(!on);
        page_.txtWinEncore->SetEnabled(!on);
    }
}

void CheckFlow::cmdEnterWinnings_Click() {
    Session& session = window_.session;
    WindowState& state = window_.State;
    const bool probes = ProbesForWinnings[window_.Which];
    session.global.EnteringWinnings = On;
    session.global.TableOpened = Off;
    state.WindowDate = window_.dtpEnterTickets(2).Value();
    if (const auto table = WinningsTable(window_.Which, session.global.LottoFlag)) state.TableName = *table;
    if (probes) MakeSureOfTable();
    FindDrawEntry(session, window_.At());
    if (session.global.WinningsDrawFound == Off) return;
    session.global.TableOpened = Off;
    state.TableName = "Winnings";
    if (probes) MakeSureOfTable();
    session.global.Dollars = page_.txtDollarsWon.Text();
    StoreLedgerAmount(session, window_.At());
    // The box comes in every case, also when nothing was stored: meant.
    session.global.Msg = SavedText;
    window_.MsgBox(session.global.Msg, BoxStyle::Ok, SavedTitle);
}

void CheckFlow::MakeSureOfTable() {
    Session& session = window_.session;
    WindowState& state = window_.State;
    const Creator& played = IsKeno(window_.Which) ? CreatePlayedKenoTable : CreatePlayed6Table;
    const Creator& creator = state.TableName == "Winnings" ? CreateWinningsTable : played;
    MakeSureOf(session, state.Table(),
               [&] { creator(session, state.Table(), PrimaryFieldName, DateFieldName); });
}

}  // namespace sorvane

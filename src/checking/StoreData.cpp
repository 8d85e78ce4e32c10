#include "checking/StoreData.h"

#include <optional>
#include <span>
#include <string>

#include "platform/Text.h"
#include "shell/Catalogue.h"

namespace sorvane {

namespace {

// How the rows of a Win table are laid out.
struct WinRow {
    int DateAt;
    std::optional<int> FlagAt;
    int FirstNumber;
    int Count;
    bool EndsTickets = false;  // a new row sets TotalTickets to 0
};

constexpr WinRow Lotto6Win{.DateAt = 1, .FlagAt = {}, .FirstNumber = 2, .Count = 7};
constexpr WinRow Lotto7Win{.DateAt = 1, .FlagAt = {}, .FirstNumber = 2, .Count = 8};
// Here the game key stands behind the date.
constexpr WinRow KenoWin{.DateAt = 1, .FlagAt = 2, .FirstNumber = 3, .Count = 20, .EndsTickets = true};
constexpr WinRow Pick3Win{.DateAt = 2, .FlagAt = 1, .FirstNumber = 3, .Count = 3};
constexpr WinRow Pick4Win{.DateAt = 2, .FlagAt = 1, .FirstNumber = 3, .Count = 4};

template <class Boxes>
void PutBoxes(Dao::Recordset& Rs, int at, const Boxes& boxes, int count) {
    for (int i = 0; i < count; ++i) Rs[at + i] = boxes.at(static_cast<std::size_t>(i));
}

// A Win table that was looked into for a date.
struct Draws {
    Draws(Dao::Database& Db, const StoreArgs& at)
        : Rs(Db.OpenTable(at.TableName)), count(Rs.RecordCount()), found(count > 0 && Find(at.WindowDate)) {}

    Dao::Recordset Rs;
    int count;
    bool found;  // the date has a row, which is the current one

  private:
    bool Find(Date date) {
        Rs.Index("Date");
        Rs.Seek(date);
        return !Rs.NoMatch();
    }
};

// Asks whether the row of the date is to be written anew, and keeps the answer.
bool RecheckWanted(Session& session) {
    Global& g = session.global;
    if (g.StatUpdate == On)
        g.Msg = "You have already entered a Winning Number on this Draw Date." + g.NL +
                "Would you like to correct this Winning Number?";
    else
        g.Msg = "You have already performed a search on this Draw Date." + g.NL +
                "Would you like to perform a re-check?";
    const Answer answer = session.services.dialogs.MsgBox(g.Msg, BoxStyle::YesNo, "RECHECK?");
    g.MsgResult = static_cast<int>(answer);
    const bool wanted = answer == Answer::Yes;
    g.RecheckAccepted = wanted ? True : Off;
    g.RecheckRefused = wanted ? Off : True;
    return wanted;
}

void StartRow(const Global& g, const StoreArgs& at, const WinRow& row, Draws& draws) {
    if (draws.found) return draws.Rs.Edit();
    draws.Rs.AddNew();
    draws.Rs[0] = draws.count + 1;
    draws.Rs[row.DateAt] = at.WindowDate;
    if (row.FlagAt) draws.Rs[*row.FlagAt] = g.LottoFlag;
}

void StoreWin(Session& session, const StoreArgs& at, const WinRow& row, const WinningBoxes& boxes) {
    bool added = false;
    const int error = WritingRoutine(session, Tails::Open, at.Table(), [&](OwnFile& file) {
        std::optional<Draws> draws(std::in_place, file.Db(), at);
        if (draws->found) {
            if (!file.Ask([&] { return RecheckWanted(session); })) return;
            draws.emplace(file.Db(), at);
        }
        StartRow(session.global, at, row, *draws);
        PutBoxes(draws->Rs, row.FirstNumber, boxes.Main, row.Count);
        draws->Rs.Update();
        added = !draws->found;
    });
    if (added && error == 0 && row.EndsTickets) session.global.TotalTickets = 0;
}

}  // namespace

void StoreLotto6Win(Session& session, const StoreArgs& at, const WinningBoxes& boxes) {
    StoreWin(session, at, Lotto6Win, boxes);
}
void StoreLotto7Win(Session& session, const StoreArgs& at, const WinningBoxes& boxes) {
    StoreWin(session, at, Lotto7Win, boxes);
}
void StoreKenoWin(Session& session, const StoreArgs& at, const WinningBoxes& boxes) {
    StoreWin(session, at, KenoWin, boxes);
}
void StorePick3Win(Session& session, const StoreArgs& at, const WinningBoxes& boxes) {
    StoreWin(session, at, Pick3Win, boxes);
}
void StorePick4Win(Session& session, const StoreArgs& at, const WinningBoxes& boxes) {
    StoreWin(session, at, Pick4Win, boxes);
}

namespace {

constexpr int FourCount = 4;
constexpr int ExtraFirst = 3;
// One lower than the table tells: the date goes, as text, where the game stands, and the first number goes
// where the date stands. Nothing reads this table.
constexpr int EarlyBirdFirst = 2;

// From the row found to the first one of the game, whatever its date.
bool WalkToGame(Dao::Recordset& Rs, const std::string& LottoFlag) {
    while (!Rs.AtEOF()) {
        const Dao::Value key = Rs[1];
        if (!key.IsNull() && key.ToText() == LottoFlag) return true;
        Rs.MoveNext();
    }
    return false;
}

}  // namespace

void StoreExtraWin(Session& session, const StoreArgs& at, const WinningBoxes& boxes) {
    const Global& g = session.global;
    WritingRoutine(session, Tails::Open, at.Table(), [&](OwnFile& file) {
        auto [Rs, count, found] = Draws(file.Db(), at);
        const bool earlyBird = CellsOf(g.LottoFlag).HasEarlyBird;
        if (found && !earlyBird && AddOnOf(g.ExtraFlag).FourNumbers) found = WalkToGame(Rs, g.LottoFlag);
        if (found) {
            Rs.Edit();
        } else {
            Rs.AddNew();
            Rs[0] = count + 1;
            if (!earlyBird) Rs[1] = g.LottoFlag;
            Rs[earlyBird ? 1 : 2] = at.WindowDate;
        }
        PutBoxes(Rs, earlyBird ? EarlyBirdFirst : ExtraFirst, boxes.Four, FourCount);
        Rs.Update();
    });
}

void StoreAddOnWin(Session& session, const StoreArgs& at, const WinningBoxes& boxes) {
    const Global& g = session.global;
    const int digits = AddOnDigits(g.ExtraFlag);
    WritingRoutine(session, Tails::Open, at.Table(), [&](OwnFile& file) {
        auto [Rs, count, found] = Draws(file.Db(), at);
        if (found) {
            Rs.Edit();
        } else {
            Rs.AddNew();
            Rs[0] = count + 1;
        }
        Rs[1] = g.LottoFlag;
        Rs[2] = boxes.DrawDate;
        for (int i = 0; i < digits; ++i) Rs[3 + i] = Mid(boxes.Encore, i + 1, 1);
        Rs.Update();
    });
}

}  // namespace sorvane

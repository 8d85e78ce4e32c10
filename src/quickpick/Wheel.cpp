#include "quickpick/Wheel.h"

#include <cmath>
#include <limits>

#include "platform/Text.h"
#include "quickpick/GeneralFunctions.h"
#include "quickpick/GenerateQuickPicks.h"
#include "reports/DisplayData.h"
#include "store/DeleteData.h"
#include "store/StoreRoutine.h"

namespace sorvane {

namespace {

constexpr std::string_view WinTableOfWheel = "WinLottario";
constexpr int WheelLength = 6;

// Rotates the pool's slots 0 to `last` one place to the left; the first goes to the end. `aside` must hold as
// many.
void Rotate(Array<Integer>& pool, Array<Integer>& aside, int last) {
    for (int j = 0; j <= last; ++j) aside(j) = pool(j);
    for (int j = 0; j < last; ++j) pool(j) = aside(j + 1);
    pool(last) = aside(0);
}

constexpr int LastOfSix = 5;

// The three wheels that have rows behind the first.
struct Wheel {
    int size;
    bool byWheelSize;  // rotates WheelSize slots, else as many as the pool has numbers
    int lastPosition;  // of a line
    bool sorted;       // the line shows the sorted ticket, else the pool as it was rotated
};
constexpr Wheel Wheels[] = {
    {7, false, LastOfSix, true},
    {8, false, LastOfSix + 1, false},
    // Rotates more slots than any pool has: eight numbers can't be wheeled. Meant.
    {56, true, LastOfSix, true},
};

std::string NextRow(Global& g, const Wheel& wheel, Array<Integer>& pool, Array<Integer>& aside,
                    Array<Integer>& ticket) {
    Rotate(pool, aside, (wheel.byWheelSize ? wheel.size : pool.UBound()) - 1);
    for (int i = 0; i <= wheel.lastPosition; ++i) ticket(i) = pool(i);
    SortNumbers(g, ticket);
    return JoinByPosition(wheel.sorted ? ticket : pool, wheel.lastPosition + 1, wheel.lastPosition);
}

void ShowTooManyTickets(Session& session) {
    Global& g = session.global;
    g.Msg = "You have entered a value for the Number of Tickets which exceeds" + g.NL +
            "the maximum possible combinations. Please reduce this number.";
    session.services.dialogs.MsgBox(g.Msg, BoxStyle::Ok, "Error!");
}

void ShowRows(Session& session, const WheelWindow& window, const Array<std::string>& rows) {
    const int tickets = session.global.NoOfTickets;
    if (tickets - 1 > rows.UBound()) {
        ShowTooManyTickets(session);
        window.face.RefuseTicketCount();
        return;
    }
    for (int x = 0; x < tickets; ++x) window.lstDisplay.AddItem(rows(x));
}

}  // namespace

void WheelTickets(Session& session, const WheelWindow& window, Array<Integer>& pool,
                  const Integer& numbersPerTicket) {
    Global& g = session.global;
    if (g.WheelSize < 1) Raise(ErrorNumber::SubscriptOutOfRange);
    const int last = g.WheelSize - 1;
    Array<std::string> WheelRows;
    Array<Integer> ticket, aside;
    WheelRows.Redim(last);
    ticket.Redim(last);
    aside.Redim(last);
    WheelRows(0) = JoinByPosition(pool, numbersPerTicket, LastOfSix);
    for (const Wheel& wheel : Wheels) {
        if (wheel.size != g.WheelSize) continue;
        for (int r = 1; r <= last; ++r) WheelRows(r) = NextRow(g, wheel, pool, aside, ticket);
    }
    ShowRows(session, window, WheelRows);
}

void BuildTempTable(Session& session, const std::string& DbName, std::string& TableName, int upperBound,
                    const Array<Integer>& frequencies) {
    TableName = "Temp";
    WritingRoutine(session, Tails::Open, {DbName, TableName}, [&](OwnFile& file) {
        Dao::Recordset Rs = file.Db().OpenTable(TableName);
        DeleteAllRows(Rs);
        for (int i = 0; i <= upperBound; ++i) {
            Rs.AddNew();
            Rs[0] = i + 1;
            Rs[1] = i + 1;
            Rs[2] = frequencies(i);
            Rs.Update();
        }
    });
}

namespace {

bool HasEnoughDraws(Session& session, const StoreTable& table) {
    constexpr int FewestDraws = 20;
    if (CountDrawRows(session, table) >= FewestDraws) return true;
    Global& g = session.global;
    g.Msg = "Not enough data to generate Hot Numbers. Please enter additional Winning Number history" + g.NL +
            "and try again";
    session.services.dialogs.MsgBox(g.Msg, BoxStyle::Ok, "Not Enough Data");
    return false;
}

// What differs between hot and cold.
constexpr std::string_view HotOrder = "SELECT * FROM [Temp] ORDER BY [Ball_Freq] DESC";
constexpr std::string_view ColdOrder = "SELECT * FROM [Temp] ORDER BY [Ball_Freq]";

void GenerateFrequencyWheel(Session& session, std::string_view order, const WheelRun& wheel,
                            const WheelWindow& window, const Integer& wheelLength) {
    Global& g = session.global;
    const Integer& howMany = wheel.HowManyToWheel;
    if (!HasEnoughDraws(session, wheel.Table())) return;
    TallyByGameShape(session, wheel.NumbersPerTicket, wheel.Table(), window.chart, wheel.mode);
    Array<Integer> pool;
    pool.Redim(howMany);
    BuildTempTable(session, wheel.DbName, wheel.TableName, g.BallFrequency.UBound(), g.BallFrequency);
    Dao::Database Db = session.services.engine.OpenDatabase(wheel.DbName, g.Open);
    Dao::Recordset Rs = Db.OpenSql(order);
    if (Rs.RecordCount() > 0) {
        Rs.MoveFirst();
        for (int i = 0; i < howMany; ++i) {
            pool(i) = Rs[1].ToInteger();
            Rs.MoveNext();
        }
    }
    DeleteAllRows(session, wheel.Table());
    SortNumbers(g, pool);
    for (int i = 0; i < howMany; ++i) window.face.ShowFavourite(i, Str(pool(i)));
    WheelTickets(session, window, pool, wheelLength);
    g.Generating = false;
}

}  // namespace

void GenerateHotWheel(Session& session, const WheelRun& wheel, const WheelWindow& window,
                      const Integer& wheelLength) {
    GenerateFrequencyWheel(session, HotOrder, wheel, window, wheelLength);
}

void GenerateColdWheel(Session& session, const WheelRun& wheel, const WheelWindow& window,
                       const Integer& wheelLength) {
    GenerateFrequencyWheel(session, ColdOrder, wheel, window, wheelLength);
}

namespace {

// The number of a favourite box, 0 where none is typed; beyond 16 bits an overflow.
Integer FavouriteNumber(const std::string& text) {
    const double value = std::nearbyint(Val(text));
    if (std::fabs(value) > std::numeric_limits<std::int16_t>::max()) Raise(ErrorNumber::Overflow);
    return static_cast<int>(value);
}

void WheelFavourites(Session& session, const WheelRun& wheel, const WheelWindow& window,
                     Array<Integer>& pool) {
    Global& g = session.global;
    for (int i = 0; i < wheel.HowManyToWheel; ++i) {
        const std::string text = window.face.Favourite(i);
        if (Val(text) == 0) {
            g.Msg = "Please enter your favourite Numbers prior to clicking on the" + g.NL +
                    "Generate Numbers button.";
            session.services.dialogs.MsgBox(g.Msg, BoxStyle::Ok, "Error!");
            window.face.AskForFavourite(i);
            return;
        }
        pool(i) = FavouriteNumber(text);
    }
    WheelTickets(session, window, pool, WheelLength);
    g.Generating = false;
}

}  // namespace

void GenerateByWheelType(Session& session, const WheelRun& wheel, const WheelWindow& window) {
    Global& g = session.global;
    Array<Integer> pool;
    pool.Redim(wheel.HowManyToWheel);
    window.lstDisplay.Clear();
    g.Generating = true;
    wheel.mode = ReportMode;
    switch (wheel.type) {
        case WheelType::QuickPick:
            GenerateQuickPicks(session, wheel.NumbersPerTicket, g.NoOfTickets, wheel.QuickPicks,
                               window.lstDisplay);
            g.Generating = false;
            return;
        case WheelType::Favourites:
            return WheelFavourites(session, wheel, window, pool);
        case WheelType::Hot:
        case WheelType::Cold: {
            window.face.EmptyFavourites();
            wheel.TableName = WinTableOfWheel;
            const auto generate = wheel.type == WheelType::Hot ? GenerateHotWheel : GenerateColdWheel;
            generate(session, wheel, window, WheelLength);
        }
    }
}

}  // namespace sorvane

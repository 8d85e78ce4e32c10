#include "reports/DisplayData.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/Text.h"
#include "reports/PadAmount.h"
#include "reports/ReportTypes.h"
#include "shell/Catalogue.h"
#include "shell/FamilyFacts.h"
#include "store/StoreRoutine.h"

namespace sorvane {

namespace {

// The fields of a win table that hold what was drawn.
struct DrawnFields {
    int first;
    int count;
};
constexpr DrawnFields SixNumbers{2, 7};  // with the bonus
constexpr DrawnFields SevenNumbers{2, 8};
constexpr DrawnFields KenoNumbers{3, 20};
constexpr int FirstDigitField = 3;

void ShowNoDraws(Session& session) {
    Global& g = session.global;
    g.Msg =
        "No Winning Numbers entered yet. Please enter Winning Number data" + g.NL + "and try again." + g.NL;
    session.services.dialogs.MsgBox(g.Msg, BoxStyle::Ok, ErrorTitle);
}

// Hands each row of the win table to `eachDraw`; `atEnd` follows when there was any.
template <class EachDraw, class AtEnd>
void ReadDraws(Session& session, const StoreTable& table, ChartFace& chart, EachDraw eachDraw, AtEnd atEnd) {
    StoreRoutine(session, Tails::Open, table.TableName, [&] {
        Dao::Database Db = session.services.engine.OpenDatabase(table.DbName, session.global.Open);
        Dao::Recordset Rs = Db.OpenTable(table.TableName);
        const int rows = Rs.RecordCount();
        chart.Found(rows > 0);
        if (rows < 1) return ShowNoDraws(session);
        Rs.MoveFirst();
        for (int row = 0; row < rows; ++row) {
            eachDraw(Rs);
            if (!Rs.AtEOF()) Rs.MoveNext();
        }
        atEnd();
    });
}

// Counts the numbers 0 to `top`; an unknown game has no tally, and its first number is outside it.
template <class AtEnd>
void TallyNumbers(Session& session, const StoreTable& table, ChartFace& chart, DrawnFields fields, int top,
                  AtEnd atEnd) {
    Array<Integer> tally;
    if (top > 0) tally.Redim(top);
    const auto count = [&](Dao::Recordset& Rs) {
        for (int i = 0; i < fields.count; ++i) ++tally(Rs[fields.first + i].ToInteger());
    };
    ReadDraws(session, table, chart, count, [&] { atEnd(tally); });
}

void DrawFrequencies(const Array<Integer>& tally, ChartFace& chart) {
    for (int n = 1; n <= tally.UBound(); ++n) {
        chart.Row(n);
        chart.Data(tally(n));
    }
}

// Slot i gets the count of the number i + 1.
void CopyShifted(const Array<Integer>& tally, Array<Integer>& to) {
    for (int n = 1; n <= tally.UBound(); ++n) to(n - 1) = tally(n);
}

// By the key, not by the window.
bool IsLottario(const Global& g) { return FindKey(Family::frm645, g.LottoFlag); }

void KeepSixNumberTally(Global& g, const Array<Integer>& tally, bool lottario) {
    const int upper = lottario ? 44 : 49;
    g.Numbers.Redim(upper);
    g.Favourites.Redim(upper);
    CopyShifted(tally, g.Numbers);
    CopyShifted(tally, g.Favourites);
    if (lottario && g.Generating) g.BallFrequency = g.Numbers;
}

int TopKenoNumber(const std::string& LottoFlag) {
    for (const Family family : {Family::frmKeno70, Family::frmKeno80})
        if (FindKey(family, LottoFlag)) return FamilyFacts::HighestNumber[family];
    return 0;
}

}  // namespace

void TallySixNumberFrequency(Session& session, const StoreTable& table, ChartFace& chart,
                             const Integer& mode) {
    Global& g = session.global;
    const bool lottario = IsLottario(g);
    const int top = FamilyFacts::HighestNumber[lottario ? Family::frm645 : Family::frm649];
    TallyNumbers(session, table, chart, SixNumbers, top, [&](const Array<Integer>& tally) {
        if (mode == ReportMode) KeepSixNumberTally(g, tally, lottario);
        if (mode == ChartMode && !g.Generating) DrawFrequencies(tally, chart);
    });
}

void TallySevenNumberFrequency(Session& session, const StoreTable& table, ChartFace& chart,
                               const Integer& mode) {
    Global& g = session.global;
    const int top = FamilyFacts::HighestNumber[Family::frm749];
    if (FindKey(Family::frm749, g.LottoFlag)) g.Numbers.Redim(top);
    TallyNumbers(session, table, chart, SevenNumbers, top, [&](const Array<Integer>& tally) {
        if (mode == ReportMode) CopyShifted(tally, g.Numbers);
        if (mode == ChartMode) DrawFrequencies(tally, chart);
    });
}

void TallyKenoFrequency(Session& session, const StoreTable& table, ChartFace& chart, const Integer& mode) {
    Global& g = session.global;
    const int top = TopKenoNumber(g.LottoFlag);
    TallyNumbers(session, table, chart, KenoNumbers, top, [&](const Array<Integer>& tally) {
        if (mode == ReportMode) CopyShifted(tally, g.Numbers);
        if (mode == ChartMode) DrawFrequencies(tally, chart);
    });
}

namespace {

// Digits that are counted together: the last `count` of them, or the first.
struct DigitGroup {
    std::string_view type;
    int count;
    bool atEnd;
    int width;  // characters that a count has at least
};
constexpr auto DigitGroups = std::to_array<DigitGroup>({
    {ReportTypes::TripleMatch, 3, false, 0},
    {ReportTypes::FrontPairs, 2, false, 2},
    {ReportTypes::BackPairs, 2, true, 2},
});

void CountPositions(Global& g, Dao::Recordset& Rs, int digits) {
    for (int position = 0; position < digits; ++position) {
        const int digit = Rs[FirstDigitField + position].ToInteger();
        if (digit >= 0 && digit <= 9) ++g.PositionCounts(digit)(position);
    }
}

void CountGroup(Global& g, Dao::Recordset& Rs, const DigitGroup& group, int digits) {
    const int first = FirstDigitField + (group.atEnd ? digits - group.count : 0);
    int slot = 0;
    for (int i = 0; i < group.count; ++i) slot = slot * 10 + Rs[first + i].ToInteger();
    std::string& count = g.ComboCounts(slot);
    count = PadLeft(Str(static_cast<long>(Val(count)) + 1), group.width);
}

void DrawPositions(const Global& g, ChartFace& chart, int digits) {
    for (int digit = 0; digit <= 9; ++digit) {
        for (int position = 0; position < digits; ++position) {
            chart.Row(digit + 1);
            chart.Column(position + 1);
            chart.Data(g.PositionCounts(digit)(position));
        }
    }
}

void StartCombos(Array<std::string>& counts) {
    constexpr int LastSlot = 999;
    counts.Redim(LastSlot);
    for (int slot = 0; slot <= LastSlot; ++slot) counts(slot) = "0";
}

void TallyDigits(Session& session, const StoreTable& table, ChartFace& chart, const Integer& mode,
                 int digits) {
    Global& g = session.global;
    const bool chartAsked = mode == ChartMode;
    const bool reportAsked = mode == ReportMode;
    const bool byPosition = chartAsked || (reportAsked && g.ReportType == ReportTypes::NumbersByPosition);
    StartCombos(g.ComboCounts);
    const auto countDraw = [&](Dao::Recordset& Rs) {
        if (byPosition) CountPositions(g, Rs, digits);
        if (!reportAsked) return;
        for (const DigitGroup& group : DigitGroups)
            if (g.ReportType == group.type) CountGroup(g, Rs, group, digits);
    };
    ReadDraws(session, table, chart, countDraw, [&] {
        if (chartAsked) DrawPositions(g, chart, digits);
    });
}

}  // namespace

void TallyPick3Digits(Session& session, const StoreTable& table, ChartFace& chart, const Integer& mode) {
    TallyDigits(session, table, chart, mode, 3);
}

void TallyPick4Digits(Session& session, const StoreTable& table, ChartFace& chart, const Integer& mode) {
    TallyDigits(session, table, chart, mode, 4);
}

void TallyByGameShape(Session& session, const Integer& NumbersPerTicket, const StoreTable& table,
                      ChartFace& chart, const Integer& mode) {
    switch (NumbersPerTicket) {
        case 5:
            return;
        case 6:
            return TallySixNumberFrequency(session, table, chart, mode);
        case 7:
            return TallySevenNumberFrequency(session, table, chart, mode);
        case 20:
            return TallyKenoFrequency(session, table, chart, mode);
        default:
            session.global.Msg =
                "An Unexpected Error Occured. The LottoFlag has not been set. Please try again";
            session.services.dialogs.MsgBox(session.global.Msg, BoxStyle::Ok, ErrorTitle);
    }
}

Integer CountDrawRows(Session& session, const StoreTable& table) {
    Integer rows;
    StoreRoutine(session, Tails::Open, table.TableName, [&] {
        Dao::Database Db = session.services.engine.OpenDatabase(table.DbName, session.global.Open);
        rows = Db.OpenTable(table.TableName).RecordCount();
    });
    return rows;
}

namespace {

// What differs between the two ledgers.
struct Ledger {
    std::string_view table;
    bool byDate;         // else in the order of entry
    bool wholeByName;    // all rows: the table of the caller's name
    bool saysWhenEmpty;  // shows its box without rows, and draws its zero in every mode
    std::string_view rowPicture;
    int column;
    std::string_view label;
    Integer Global::*rows;
    Array<std::string> Global::*lines;
    Array<std::string> Global::*allLines;
    Currency Global::*total;
};

constexpr std::string_view SumPicture = "###,###,##0.00";

// A win below a dollar has no leading zero, a ticket below a dollar has one: meant.
constexpr Ledger SpentLedger{"Spent",
                             true,
                             false,
                             true,
                             "###,###,##0.00;(###,###,##0.00)",
                             1,
                             "Spent - $",
                             &Global::SpentRows,
                             &Global::SpentLines,
                             &Global::AllSpentLines,
                             &Global::TotalSpent};
constexpr Ledger WonLedger{"Winnings",
                           false,
                           true,
                           false,
                           "###,###,###.00;(###,###,###.00)",
                           2,
                           "Won   - $",
                           &Global::WonRows,
                           &Global::WonLines,
                           &Global::AllWonLines,
                           &Global::TotalWon};

constexpr int KeyField = 1;
constexpr int DateField = 2;
constexpr int AmountField = 3;

// The games, and the one add-on that has a ledger key of its own.
bool HasLedgerRows(const std::string& LottoFlag) {
    const auto keys = GameKeys();
    return LottoFlag == "ATLTag" || std::any_of(keys.begin(), keys.end(), [&](const GameKey& key) {
               return key.LottoFlag == LottoFlag;
           });
}

Dao::Recordset OpenLedger(Dao::Database& Db, const Ledger& ledger, const std::string& LottoFlag,
                          const std::string& TableName) {
    const bool oneGame = HasLedgerRows(LottoFlag);
    if (!oneGame && ledger.wholeByName) return Db.OpenTable(TableName);
    std::string sql = std::string("SELECT * FROM [").append(ledger.table).append("]");
    if (oneGame) sql += " WHERE [Lottoflag] = ?";
    if (ledger.byDate) sql += " ORDER BY [Date]";
    return oneGame ? Db.OpenSql(sql, {LottoFlag}) : Db.OpenSql(sql);
}

void ShowNoTickets(Session& session) {
    Global& g = session.global;
    g.Msg = "No Tickets entered yet. Please enter some played tickets and" + g.NL + "try again." + g.NL;
    session.services.dialogs.MsgBox(g.Msg, BoxStyle::Ok, ErrorTitle);
}

void DrawSum(const Ledger& ledger, ChartFace& chart, Currency sum) {
    const std::string text = Format(sum, SumPicture);
    chart.Column(ledger.column);
    chart.Row(1);
    chart.Data(PadAmount(text));
    chart.ColumnLabel(std::string(ledger.label) + text);
}

template <class EachRow>
void ForEachRow(Dao::Recordset& Rs, int rows, EachRow eachRow) {
    Rs.MoveFirst();
    for (int i = 0; i < rows; ++i) {
        eachRow(i);
        if (!Rs.AtEOF()) Rs.MoveNext();
    }
}

// The rows are read first and padded when they are closed, because a walk holds a lock and a padding may
// never end. Of a row without a key only the line without it is kept.
void KeepLines(Global& g, const Ledger& ledger, Dao::Recordset& Rs, int rows) {
    constexpr int DateWidth = 8;
    constexpr std::size_t UsualLine = 64;
    struct Row {
        std::string date, amount;
        std::optional<std::string> key;
    };
    std::vector<Row> read;
    read.reserve(static_cast<std::size_t>(rows));
    Currency total;
    const int error = ErrorOf([&] {
        ForEachRow(Rs, rows, [&](int) {
            const Currency amount = Rs[AmountField].ToCurrency();
            std::string date = PadLeft(Rs[DateField].ToText(), DateWidth);
            read.push_back({std::move(date), Format(amount, ledger.rowPicture), {}});
            read.back().key = Rs[KeyField].ToText();
            total += amount;
        });
    });
    Rs.Close();
    Array<std::string>& lines = g.*ledger.lines;
    Array<std::string>& allLines = g.*ledger.allLines;
    lines.Redim(rows);
    allLines.Redim(rows);
    for (int i = 0; Row & row : read) {
        std::string line = std::move(row.date);
        line.reserve(UsualLine);
        line.append(14, ' ').append("$").append(PadAmount(std::move(row.amount)));
        lines(i) = line + g.NL;
        if (row.key) allLines(i++) = line.append("     ").append(*row.key).append(g.NL);
    }
    if (error != 0) Raise(error);
    g.*ledger.total = total;
}

Currency SumOf(Dao::Recordset& Rs, int rows) {
    Currency sum;
    ForEachRow(Rs, rows, [&](int) { sum += Rs[AmountField].ToCurrency(); });
    return sum;
}

void ReadLedger(Session& session, const Ledger& ledger, const StoreTable& table, ChartFace& chart,
                const Integer& mode) {
    Global& g = session.global;
    StoreRoutine(session, Tails::Open, table.TableName, [&] {
        Dao::Database Db = session.services.engine.OpenDatabase(table.DbName, g.Open);
        Dao::Recordset Rs = OpenLedger(Db, ledger, g.LottoFlag, table.TableName);
        const Integer rows = g.*ledger.rows = Rs.RecordCount();
        if (ledger.saysWhenEmpty) chart.Found(rows > 0);
        if (rows < 1) {
            if (ledger.saysWhenEmpty) ShowNoTickets(session);
            if (ledger.saysWhenEmpty || mode == ChartMode) DrawSum(ledger, chart, Currency());
        } else if (mode == ReportMode) {
            KeepLines(g, ledger, Rs, rows);
        } else if (mode == ChartMode) {
            DrawSum(ledger, chart, SumOf(Rs, rows));
        }
    });
}

}  // namespace

void SumSpent(Session& session, const StoreTable& table, ChartFace& chart, const Integer& mode) {
    ReadLedger(session, SpentLedger, table, chart, mode);
}

void SumWon(Session& session, const StoreTable& table, ChartFace& chart, const Integer& mode) {
    ReadLedger(session, WonLedger, table, chart, mode);
}

}  // namespace sorvane

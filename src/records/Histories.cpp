#include <algorithm>
#include <map>
#include <string>
#include <vector>

#include "entry/Amounts.h"
#include "platform/Text.h"
#include "records/Commands.h"
#include "records/GameFile.h"
#include "records/Intake.h"
#include "records/Tables.h"

namespace sorvane::Records {

namespace {

std::size_t Index(int at) { return static_cast<std::size_t>(at); }

// A row as the program's writers leave it: what they don't write is nothing, a mark false.
Row BlankRow(const Table& table, const GameKey& key, Date date) {
    Row row(table.fields.size());
    for (std::size_t i = 0; i < row.size(); ++i)
        if (table.fields[i].means == Means::Mark) row[i] = false;
    row[Index(table.DayAt())] = date;
    if (table.GameAt() >= 0) row[Index(table.GameAt())] = std::string(key.LottoFlag);
    return row;
}

void PutNumbers(Row& row, const Table& table, const std::string& first, const std::vector<int>& numbers) {
    const auto at = Index(table.At(first));
    for (std::size_t i = 0; i < numbers.size(); ++i) row[at + i] = numbers[i];
}

void PutAddOn(Row& row, const Table& table, const std::vector<int>& numbers) {
    PutNumbers(row, table, !table.addOn->FourNumbers ? "Number 1" : "Ball_1", numbers);
}

// One draw a day into a Win table.
class DrawSink {
  public:
    DrawSink(Intake& intake, const Table& table, bool replace)
        : table_(table), sink_(intake.Open(table)), replace_(replace) {}

    // False when this file has drawn the day already, and otherwise.
    bool Put(const Row& row) {
        const Date day = row[Index(table_.DayAt())].ToDate();
        const auto found = sink_.OfDay(day);
        const auto same = std::find_if(found.begin(), found.end(),
                                       [&](const TableSink::Found& one) { return BelongsTo(one.row, row); });
        if (same == found.end()) {
            ++added_;
            return sink_.Add(row) == TableSink::Outcome::Added;
        }
        Row wanted = row;
        wanted.front() = same->row.front();
        if (SameRow(wanted, same->row)) ++there_;
        else if (same->added) return false;
        else if (!replace_) ++leftAlone_;
        else {
            ++replaced_;
            sink_.Replace(same->number, wanted);
        }
        return true;
    }

    std::string Told() const {
        std::string told = table_.name + ": " + Counted(added_, "draw") + " added";
        if (there_ > 0) told += ", " + Str(there_) + " there already";
        if (replaced_ > 0) told += ", " + Str(replaced_) + " replaced";
        if (leftAlone_ > 0)
            told += ", " + Str(leftAlone_) + " with other numbers left alone (--replace takes the file's)";
        return told;
    }

  private:
    // One row serves a day, but in the table of the four Extra numbers, where each game has its own.
    bool BelongsTo(const Row& a, const Row& b) const {
        if (table_.addOn == nullptr || !table_.addOn->FourNumbers) return true;
        return a[Index(table_.GameAt())].Get() == b[Index(table_.GameAt())].Get();
    }
    // The game on the slip of which a digit add-on was checked says nothing of the draw.
    bool SameRow(const Row& a, const Row& b) const {
        for (std::size_t i = 0; i < a.size(); ++i)
            if (table_.fields[i].means != Means::Game && a[i].Get() != b[i].Get()) return false;
        return true;
    }

    const Table& table_;
    TableSink sink_;
    bool replace_;
    long added_ = 0, there_ = 0, replaced_ = 0, leftAlone_ = 0;
};

Row DrawRow(const Table& table, const GameKey& key, const Entry& entry) {
    Row row = BlankRow(table, key, entry.date);
    PutNumbers(row, table, "Ball_1", entry.numbers);
    if (entry.bonus) row[Index(table.At("Ball_B"))] = *entry.bonus;
    return row;
}

GameFileWish FileWishOf(const HistoryWish& wish, bool needsPrice) {
    return {wish.file, wish.columns, wish.dayFirst ? DateOrder::DayFirst : DateOrder::MonthFirst, needsPrice};
}

// Words that a run ends with: those of each table.
void TellResult(Outside& outside, const std::vector<std::string>& lines) {
    for (const std::string& line : lines)
        if (!line.empty()) outside.words << line << '\n';
}

}  // namespace

int ListGames(Outside& outside) {
    for (const ChosenGame& game : ChosenGames()) {
        outside.data << game.name << '\t' << game.key->LottoFlag;
        if (game.addOn != nullptr) outside.data << '\t' << game.addOn->ExtraFlag;
        outside.data << '\n';
    }
    return Done;
}

int Draws(Outside& outside, const Place& place, const HistoryWish& wish) {
    const ChosenGame game = FindChosenGame(wish.game);
    Progress progress(outside, "Importing");
    Findings findings(outside, progress);
    return Naming(wish.file, [&] {
        GameFile file(game, History::Draws, FileWishOf(wish, false), findings);
        return Naming(place.File(), [&] {
            Intake intake(outside, place, wish.dryRun);
            const Table& table = *FindTable(game.key->Win);
            const Table* addOnTable = game.addOn ? FindTable(game.addOn->Win) : nullptr;
            std::vector<std::string> told;
            {
                DrawSink draws(intake, table, wish.replace);
                std::optional<DrawSink> addOns;
                const Date today = outside.now().day;
                const auto put = [&](DrawSink& sink, const Row& row, const Entry& entry) {
                    if (!sink.Put(row))
                        findings.Tell(
                            wish.file, entry.spot,
                            entry.date.ToText() + " is drawn twice in this file, with other numbers");
                };
                for (Entry entry; file.Next(entry); progress.Tell(file.Done(), file.InAll())) {
                    if (entry.date > today) {
                        findings.Tell(wish.file, entry.spot,
                                      entry.date.ToText() + ": this draw hasn't taken place yet");
                        continue;
                    }
                    put(draws, DrawRow(table, *game.key, entry), entry);
                    if (entry.addOn.empty()) continue;
                    if (!addOns) addOns.emplace(intake, *addOnTable, wish.replace);
                    Row row = BlankRow(*addOnTable, *game.key, entry.date);
                    PutAddOn(row, *addOnTable, entry.addOn);
                    put(*addOns, row, entry);
                }
                told = {file.LeftAside(), draws.Told(), addOns ? addOns->Told() : ""};
            }
            progress.Wipe();
            const int status = Conclude(outside, intake, findings, wish.dryRun);
            if (status == Done) TellResult(outside, told);
            return status;
        });
    });
}

namespace {

// Tickets into a Played table.
class TicketSink {
  public:
    TicketSink(Intake& intake, const Table& table) : table_(table), sink_(intake.Open(table)) {}
    bool Put(const Row& row) {
        const bool added = sink_.Add(row) == TableSink::Outcome::Added;
        ++(added ? added_ : there_);
        return added;
    }
    std::string Told() const {
        return table_.name + ": " + Counted(added_, "ticket") + " added" +
               (there_ > 0 ? ", " + Str(there_) + " there already" : "");
    }

  private:
    const Table& table_;
    TableSink sink_;
    long added_ = 0, there_ = 0;
};

Row TicketRow(const Table& table, const GameKey& key, const Entry& entry) {
    Row row = BlankRow(table, key, entry.date);
    std::vector<int> numbers = entry.numbers;
    if (IsKeno(key.in)) {
        row[Index(table.At("# of Balls"))] = static_cast<int>(numbers.size());
        row[Index(table.At("Wager"))] =
            static_cast<int>(entry.wager.value_or(Currency()).TenThousandths() / Currency::Scale);
        numbers.resize(Index(Numbers(key.in).count), 0);
    }
    PutNumbers(row, table, "Ball_1", numbers);
    if (IsPick(key.in)) row[Index(table.At("Way Played"))] = entry.way;
    row[Index(table.At("Regular"))] = entry.regular;
    if (key.HasEarlyBird) row[Index(table.At("EarlyBird"))] = entry.earlyBird;
    return row;
}

// What was paid for the tickets of a day.
struct Paid {
    int tickets = 0;
    Currency told;   // by a price or a wager in their lines
    int untold = 0;  // tickets whose lines name neither
};

// The price of a line, or the wager where the game has one.
void Count(Paid& paid, const Entry& entry, const GameKey& key) {
    ++paid.tickets;
    const bool wagered = IsKeno(key.in) || IsPick(key.in);
    if (entry.price) paid.told += *entry.price;
    else if (wagered && entry.wager) paid.told += *entry.wager;
    else ++paid.untold;
}

// Tickets that came free with another cost nothing.
Currency AmountOf(const Paid& paid, const GameKey& key) {
    const int factor = SheetFactor(key.in, key.LottoFlag);
    const int bought = (paid.untold + factor - 1) / factor;
    return paid.told + Currency::FromText(DefaultAmount(key.in, key.LottoFlag, bought));
}

std::string Book(Intake& intake, const GameKey& key, const std::map<long, Paid>& days) {
    const Table& table = *FindTable("Spent");
    TableSink sink = intake.Open(table);
    Currency sum;
    for (const auto& [day, paid] : days) {
        Row row = BlankRow(table, key, Date::FromDays(static_cast<double>(day)));
        row[Index(table.At("Spent"))] = AmountOf(paid, key);
        sink.AddAlways(row);
        sum += AmountOf(paid, key);
    }
    return "Spent: " + Format(sum, "###,###,##0.00") + " booked for " +
           Counted(static_cast<long>(days.size()), "date");
}

// What is wrong with the money of a line; empty when nothing is.
std::string JudgeMoney(const Entry& entry, const GameKey& key, bool booked) {
    const std::int64_t wager = entry.wager.value_or(Currency()).TenThousandths();
    // It is stored with the ticket, as 16 bits.
    const bool whole = wager >= 0 && wager % Currency::Scale == 0 && wager / Currency::Scale <= 32'767;
    if (IsKeno(key.in) && !whole) return "a wager is in whole dollars";
    if (booked && key.HalfWagers && !entry.price && !entry.wager) return "what this ticket cost is missing";
    return {};
}

}  // namespace

int Tickets(Outside& outside, const Place& place, const HistoryWish& wish) {
    const ChosenGame game = FindChosenGame(wish.game);
    Progress progress(outside, "Importing");
    Findings findings(outside, progress);
    return Naming(wish.file, [&] {
        GameFile file(game, History::Tickets, FileWishOf(wish, wish.spent), findings);
        return Naming(place.File(), [&] {
            Intake intake(outside, place, wish.dryRun);
            const Table& table = *FindTable(game.key->Played);
            const Table* addOnTable = game.addOn ? FindTable(game.addOn->Played) : nullptr;
            std::vector<std::string> told;
            std::map<long, Paid> days;
            {
                TicketSink tickets(intake, table);
                std::optional<TicketSink> addOns;
                for (Entry entry; file.Next(entry); progress.Tell(file.Done(), file.InAll())) {
                    const std::string wrong = JudgeMoney(entry, *game.key, wish.spent);
                    if (!wrong.empty()) {
                        findings.Tell(wish.file, entry.spot, wrong);
                        continue;
                    }
                    if (tickets.Put(TicketRow(table, *game.key, entry)))
                        Count(days[entry.date.Day()], entry, *game.key);
                    if (entry.addOn.empty()) continue;
                    if (!addOns) addOns.emplace(intake, *addOnTable);
                    Row row = BlankRow(*addOnTable, *game.key, entry.date);
                    PutAddOn(row, *addOnTable, entry.addOn);
                    addOns->Put(row);
                }
                told = {file.LeftAside(), tickets.Told(), addOns ? addOns->Told() : ""};
            }
            if (wish.spent && !days.empty()) told.push_back(Book(intake, *game.key, days));
            progress.Wipe();
            const int status = Conclude(outside, intake, findings, wish.dryRun);
            if (status == Done) TellResult(outside, told);
            return status;
        });
    });
}

}  // namespace sorvane::Records

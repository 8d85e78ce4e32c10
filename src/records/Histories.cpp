#include <algorithm>
#include <map>
#include <optional>
#include <string>
#include <utility>
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

// Makes the rows of a table for one game as the program's writers leave them: what they don't write is
// nothing, a mark false. There is one row, which is filled again and again.
class RowMaker {
  public:
    RowMaker(const Table& table, const GameKey& key)
        : day_(Index(table.DayAt())),
          numbers_(Index(std::max(table.At("Ball_1"), table.At("Number 1")))),
          row_(table.fields.size()) {
        for (std::size_t i = 0; i < row_.size(); ++i)
            if (table.fields[i].means == Means::Mark) row_[i] = false;
        if (table.GameAt() >= 0) row_[Index(table.GameAt())] = std::string(key.LottoFlag);
    }

    // Without a key.
    Row& Of(Date date) {
        row_.front() = {};
        row_[day_] = date;
        return row_;
    }
    Row& Of(Date date, const std::vector<int>& numbers) {
        for (std::size_t i = 0; i < numbers.size(); ++i) row_[numbers_ + i] = numbers[i];
        return Of(date);
    }

  private:
    std::size_t day_;
    std::size_t numbers_;  // the first of them
    Row row_;
};

// One draw a day into a Win table.
class DrawSink {
  public:
    DrawSink(Intake& intake, const Table& table, const GameKey& key, bool replace)
        : table_(table), maker_(table, key), sink_(intake.Open(table)), replace_(replace) {}

    // False when this file has drawn the day already, with other numbers.
    bool Put(Date day, const std::vector<int>& numbers) {
        Row& row = maker_.Of(day, numbers);
        const auto found = sink_.OfDay(day);
        const auto same = std::find_if(found.begin(), found.end(),
                                       [&](const TableSink::Found& one) { return BelongsTo(one.row, row); });
        if (same == found.end()) {
            sink_.AddAlways(row);
            ++added_;
            return true;
        }
        row.front() = same->row.front();
        if (SameRow(row, same->row)) ++there_;
        else if (same->added) return false;
        else if (!replace_) ++leftAlone_;
        else {
            ++replaced_;
            sink_.Replace(same->number, row);
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
    // A day has one row. Only in the table of the four Extra numbers each game has a row of its own.
    bool BelongsTo(const Row& a, const Row& b) const {
        if (table_.addOn == nullptr || !table_.addOn->FourNumbers) return true;
        return a[Index(table_.GameAt())].Get() == b[Index(table_.GameAt())].Get();
    }
    // The number of a digit add-on is drawn for all games at once, so the game in its row does not matter.
    bool SameRow(const Row& a, const Row& b) const {
        for (std::size_t i = 0; i < a.size(); ++i)
            if (table_.fields[i].means != Means::Game && a[i].Get() != b[i].Get()) return false;
        return true;
    }

    const Table& table_;
    RowMaker maker_;
    TableSink sink_;
    bool replace_;
    long added_ = 0, there_ = 0, replaced_ = 0, leftAlone_ = 0;
};

// Tickets into a Played table.
class TicketSink {
  public:
    TicketSink(Intake& intake, const Table& table, const GameKey& key)
        : table_(table), maker_(table, key), sink_(intake.Open(table)) {}

    RowMaker& Rows() { return maker_; }
    // False when the ticket is there already.
    bool Put(Row& row) {
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
    RowMaker maker_;
    TableSink sink_;
    long added_ = 0, there_ = 0;
};

// What was paid for the tickets of a day.
struct Paid {
    Currency told;   // by a price or a wager in their lines
    int untold = 0;  // tickets whose lines name neither
};

// The price of a line, or the wager.
void Count(Paid& paid, const Entry& entry) {
    if (entry.price) paid.told += *entry.price;
    else if (entry.wager) paid.told += *entry.wager;
    else ++paid.untold;
}

// Tickets that came free with another cost nothing.
Currency AmountOf(const Paid& paid, const GameKey& key) {
    const int factor = SheetFactor(key.in, key.LottoFlag);
    const int bought = (paid.untold + factor - 1) / factor;
    return paid.told + Currency::FromText(DefaultAmount(key.in, key.LottoFlag, bought));
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

// Draws of a game, and of its add-on where the file has that.
class DrawHistory {
  public:
    static constexpr History Kind = History::Draws;

    DrawHistory(Intake& intake, const ChosenGame& game, const HistoryWish& wish, Date today)
        : intake_(intake),
          game_(game),
          replace_(wish.replace),
          today_(today),
          draws_(intake, *FindTable(game.key->Win), *game.key, replace_) {}

    // Gives what is wrong with the entry; empty when it has been taken.
    std::string Put(Entry& entry) {
        if (entry.date > today_) return entry.date.ToText() + ": this draw hasn't taken place yet";
        // In the row the bonus number stands behind the others.
        if (entry.bonus) entry.numbers.push_back(*entry.bonus);
        if (draws_.Put(entry.date, entry.numbers) && PutAddOn(entry)) return {};
        return entry.date.ToText() + " is drawn twice in this file, with other numbers";
    }
    std::vector<std::string> Told() const { return {draws_.Told(), addOns_ ? addOns_->Told() : ""}; }

  private:
    bool PutAddOn(const Entry& entry) {
        if (entry.addOn.empty()) return true;
        if (!addOns_) addOns_.emplace(intake_, *FindTable(game_.addOn->Win), *game_.key, replace_);
        return addOns_->Put(entry.date, entry.addOn);
    }

    Intake& intake_;
    const ChosenGame& game_;
    bool replace_;
    Date today_;
    DrawSink draws_;
    std::optional<DrawSink> addOns_;
};

// Tickets of a game, with their add-on, and what they cost.
class TicketHistory {
  public:
    static constexpr History Kind = History::Tickets;

    TicketHistory(Intake& intake, const ChosenGame& game, const HistoryWish& wish, Date)
        : intake_(intake),
          game_(game),
          table_(*FindTable(game.key->Played)),
          spent_(wish.spent),
          tickets_(intake, table_, *game.key) {}

    std::string Put(Entry& entry) {
        if (std::string wrong = JudgeMoney(entry, *game_.key, spent_); !wrong.empty()) return wrong;
        if (tickets_.Put(TicketRow(entry))) Count(days_[entry.date.Day()], entry);
        if (entry.addOn.empty()) return {};
        if (!addOns_) addOns_.emplace(intake_, *FindTable(game_.addOn->Played), *game_.key);
        addOns_->Put(addOns_->Rows().Of(entry.date, entry.addOn));
        return {};
    }
    // Books the money first.
    std::vector<std::string> Told() {
        return {tickets_.Told(), addOns_ ? addOns_->Told() : "", spent_ && !days_.empty() ? Book() : ""};
    }

  private:
    Row& TicketRow(const Entry& entry) {
        Row& row = tickets_.Rows().Of(entry.date, entry.numbers);
        const GameKey& key = *game_.key;
        if (IsKeno(key.in)) {
            for (std::size_t i = entry.numbers.size(); i < Index(Numbers(key.in).count); ++i)
                row[Index(table_.At("Ball_1")) + i] = 0;
            row[Index(table_.At("# of Balls"))] = static_cast<int>(entry.numbers.size());
            row[Index(table_.At("Wager"))] =
                static_cast<int>(entry.wager.value_or(Currency()).TenThousandths() / Currency::Scale);
        }
        if (IsPick(key.in)) row[Index(table_.At("Way Played"))] = entry.way;
        row[Index(table_.At("Regular"))] = entry.regular;
        if (key.HasEarlyBird) row[Index(table_.At("EarlyBird"))] = entry.earlyBird;
        return row;
    }

    std::string Book() {
        const Table& table = *FindTable("Spent");
        RowMaker rows(table, *game_.key);
        TableSink sink = intake_.Open(table);
        Currency sum;
        for (const auto& [day, paid] : days_) {
            const Currency amount = AmountOf(paid, *game_.key);
            Row& row = rows.Of(Date::FromDays(static_cast<double>(day)));
            row[Index(table.At("Spent"))] = amount;
            sink.AddAlways(row);
            sum += amount;
        }
        return "Spent: " + Format(sum, "###,###,##0.00") + " booked for " +
               Counted(static_cast<long>(days_.size()), "date");
    }

    Intake& intake_;
    const ChosenGame& game_;
    const Table& table_;
    bool spent_;
    TicketSink tickets_;
    std::optional<TicketSink> addOns_;
    std::map<long, Paid> days_;
};

template <class Into>
int TakeIn(Outside& outside, const Place& place, const HistoryWish& wish) {
    const ChosenGame game = FindChosenGame(wish.game);
    const DateOrder order = wish.dayFirst ? DateOrder::DayFirst : DateOrder::MonthFirst;
    Progress progress(outside, "Importing");
    Findings findings(outside, progress);
    return Naming(wish.file, [&] {
        GameFile file(game, Into::Kind, {wish.file, wish.columns, order, wish.spent}, findings);
        return Naming(place.File(), [&] {
            Intake intake(outside, place, wish.dryRun);
            std::vector<std::string> told;
            {
                Into into(intake, game, wish, outside.now().day);
                for (Entry entry; file.Next(entry); progress.Tell(file.Done(), file.InAll()))
                    if (const std::string wrong = into.Put(entry); !wrong.empty())
                        findings.Tell(wish.file, entry.spot, wrong);
                told = into.Told();
            }
            told.insert(told.begin(), file.LeftAside());
            progress.Wipe();
            return Conclude(outside, intake, findings, told, wish.dryRun);
        });
    });
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
    return TakeIn<DrawHistory>(outside, place, wish);
}

int Tickets(Outside& outside, const Place& place, const HistoryWish& wish) {
    return TakeIn<TicketHistory>(outside, place, wish);
}

}  // namespace sorvane::Records

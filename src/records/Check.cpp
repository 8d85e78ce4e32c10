#include "records/Check.h"

#include <map>
#include <optional>
#include <set>
#include <vector>

#include "platform/Text.h"
#include "records/Commands.h"
#include "records/Tables.h"

namespace sorvane::Records {

namespace {

using Days = std::set<long>;

// What the rows of a game say of its dates.
struct GameDays {
    Days tickets, spent, won;
};

class Examination {
  public:
    Examination(const Dao::RecordFile& file, Outside& outside,
                const std::function<void(const Finding&)>& tell)
        : file_(file), outside_(outside), tell_(tell) {}

    void Run() {
        for (const std::string& damage : file_.Damage(MostDamageTold)) Tell(Weight::Damage, damage);
        const Dao::Contents contents = file_.Read();
        for (const Dao::FileTable& table : contents.tables) rowsInAll_ += file_.CountRows(table);
        for (const Dao::FileTable& table : contents.tables) ExamineTable(table);
        for (const std::string& other : contents.others)
            Tell(Weight::Note, other + ": not made by Sorvane, which leaves it alone");
        for (const auto& [game, days] : days_) CompareDays(game, days);
    }

  private:
    void Tell(Weight weight, const std::string& text) {
        progress_.Wipe();
        tell_({weight, text});
    }

    void ExamineTable(const Dao::FileTable& found) {
        const Table* table = FindTable(found.name);
        if (table == nullptr)
            return Tell(Weight::Note, found.name + ": not made by Sorvane, which leaves it alone");
        if (!CompareFields(found, AsInFile(*table))) return;
        CompareIndexes(found, AsInFile(*table));
        ReadRows(*table, found);
    }

    bool CompareFields(const Dao::FileTable& found, const Dao::FileTable& due) {
        bool same = true;
        const auto wrong = [&](const std::string& what) {
            Tell(Weight::Damage, found.name + ": " + what);
            same = false;
        };
        for (std::size_t i = 0; i < due.fields.size(); ++i) {
            const Dao::FileField& field = due.fields[i];
            const std::string place = "field " + Str(static_cast<long>(i) + 1) + " ";
            if (i >= found.fields.size()) wrong("the field " + field.name + " is missing");
            else if (!SameWord(found.fields[i].name, field.name))
                wrong(place + "is " + found.fields[i].name + " instead of " + field.name);
            else if (found.fields[i].type != field.type)
                wrong(place + field.name + " is of the type " + found.fields[i].declared + " instead of " +
                      field.declared);
        }
        for (std::size_t i = due.fields.size(); i < found.fields.size(); ++i)
            wrong("the field " + found.fields[i].name + " is none of the program's");
        return same;
    }

    void CompareIndexes(const Dao::FileTable& found, const Dao::FileTable& due) {
        for (const Dao::FileIndex& index : due.indexes) {
            if (!HasIndex(found, index))
                Tell(Weight::Damage,
                     found.name + ": the index over " + index.field + " is missing or another");
        }
    }

    void ReadRows(const Table& table, const Dao::FileTable& found) {
        Dao::Rows rows = file_.AllRows(found, Dao::Order::ByKey);
        std::vector<Dao::Value> row(table.fields.size());
        Keys keys;
        rows.Restart();
        while (rows.Next()) {
            for (std::size_t i = 0; i < row.size(); ++i) row[i] = rows.At(static_cast<int>(i));
            JudgeOne(table, row, rows);
            if (table.creator->indexed) Count(table, row.front(), keys);
            Remember(table, row);
            progress_.Tell(++rowsRead_, rowsInAll_);
        }
        if (keys.holes) Tell(Weight::Fault, table.name + HolesTold(keys));
    }

    void JudgeOne(const Table& table, const std::vector<Dao::Value>& row, const Dao::Rows& rows) {
        const auto where = [&] {
            const auto* key = std::get_if<std::int64_t>(&row.front().Get());
            return table.name + (key != nullptr ? " ID1 " + Str(static_cast<long>(*key))
                                                : " row " + Str(static_cast<long>(rows.Number())));
        };
        JudgeRow(table, row, [&](const Field& field, const std::string& what) {
            Tell(Weight::Fault, where() + ": " + field.name + " " + what);
        });
        for (std::size_t i = 0; i < row.size(); ++i) {
            const Dao::Storage stored = rows.StoredAs(static_cast<int>(i));
            const bool flag = table.fields[i].type == Dao::FieldType::Boolean;
            if (stored == Dao::Storage::Bytes || (flag && stored != Dao::Storage::Whole))
                Tell(Weight::Fault, where() + ": " + table.fields[i].name + " is stored as another type");
        }
        NoteOddities(table, row, where);
    }

    template <class Where>
    void NoteOddities(const Table& table, const std::vector<Dao::Value>& row, Where where) {
        if (const int at = table.DayAt(); at >= 0)
            if (const auto* date = std::get_if<Date>(&row[static_cast<std::size_t>(at)].Get());
                date != nullptr && date->Days() != static_cast<double>(date->Day()))
                Tell(Weight::Note, where() + ": Date has a time of day");
        if (table.use != Use::Win || Numbers(table.game->in).digits) return;
        std::set<std::int64_t> seen;
        for (std::size_t i = 0; i < row.size(); ++i) {
            const auto* number = std::get_if<std::int64_t>(&row[i].Get());
            if (number != nullptr && table.fields[i].means == Means::Number && !seen.insert(*number).second)
                Tell(Weight::Note, where() + ": " + Str(static_cast<long>(*number)) + " is drawn twice");
        }
    }

    // The keys seen so far, which come in their order, and the holes among them.
    struct Keys {
        std::int64_t last = 0;
        bool holes = false;
        std::string told;
        int count = 0;
    };

    void Count(const Table& table, const Dao::Value& key, Keys& keys) {
        const auto* number = std::get_if<std::int64_t>(&key.Get());
        if (number == nullptr || *number < 1) return;  // told as no key
        if (*number == keys.last)
            Tell(Weight::Fault,
                 table.name + " ID1 " + Str(static_cast<long>(*number)) + ": two rows have it");
        if (*number > keys.last + 1) {
            constexpr int Most = 10;
            keys.holes = true;
            const long from = static_cast<long>(keys.last) + 1, to = static_cast<long>(*number) - 1;
            if (keys.count < Most) keys.told += (keys.count == 0 ? "" : ", ") + Range(from, to);
            if (keys.count++ == Most) keys.told += ", ...";
        }
        keys.last = *number;
    }

    static std::string Range(long from, long to) { return Str(from) + (from == to ? "" : " to " + Str(to)); }

    static std::string HolesTold(const Keys& keys) {
        return ": no row has the ID1 " + keys.told +
               ", so that rows to come may be refused (3022); \"sorvane-records renumber\" mends it";
    }

    void Remember(const Table& table, const std::vector<Dao::Value>& row) {
        const bool money = table.use == Use::Spent || table.use == Use::Winnings;
        if (!money && table.use != Use::Played) return;
        const auto* date = std::get_if<Date>(&row[static_cast<std::size_t>(table.DayAt())].Get());
        if (date == nullptr) return;
        if (!money) return void(days_[std::string(table.game->LottoFlag)].tickets.insert(date->Day()));
        const auto* game = std::get_if<std::string>(&row[static_cast<std::size_t>(table.GameAt())].Get());
        if (game == nullptr) return;
        GameDays& days = days_[*game];
        (table.use == Use::Spent ? days.spent : days.won).insert(date->Day());
    }

    void CompareDays(const std::string& game, const GameDays& days) {
        const auto missing = [&](const Days& have, const Days& lack, const std::string& what) {
            for (const long day : have)
                if (lack.count(day) == 0) {
                    const std::string date = Date::FromDays(static_cast<double>(day)).ToText();
                    Tell(Weight::Note, std::string(game).append(" ").append(date).append(": ").append(what));
                }
        };
        missing(days.tickets, days.spent, "tickets, but no row in Spent");
        missing(days.spent, days.tickets, "a row in Spent, but no tickets");
        missing(days.won, days.tickets, "a row in Winnings, but no tickets");
    }

    const Dao::RecordFile& file_;
    Outside& outside_;
    const std::function<void(const Finding&)>& tell_;
    Progress progress_{outside_, "Checking"};
    double rowsInAll_ = 0;
    double rowsRead_ = 0;
    std::map<std::string, GameDays> days_;
};

}  // namespace

void Examine(const Dao::RecordFile& file, Outside& outside, const std::function<void(const Finding&)>& tell) {
    Examination(file, outside, tell).Run();
}

int Check(Outside& outside, const fs::path& path) {
    long faults = 0, notes = 0;
    Naming(path, [&] {
        Dao::RecordFile file(path, outside.vfs);
        file.Begin(Dao::RecordFile::Hold::Read);
        Examine(file, outside, [&](const Finding& finding) {
            ++(finding.weight == Weight::Note ? notes : faults);
            outside.data << (finding.weight == Weight::Note ? "note: " : "") << finding.text << '\n';
        });
    });
    outside.words << path.string() << ": "
                  << (faults == 0 ? std::string("sound") : Counted(faults, "finding"))
                  << (notes == 0 ? "" : ", " + Counted(notes, "note")) << '\n';
    return faults == 0 ? Done : Refused;
}

}  // namespace sorvane::Records

#include <algorithm>
#include <array>
#include <map>
#include <nlohmann/json.hpp>
#include <optional>
#include <vector>

#include "platform/Text.h"
#include "records/Commands.h"
#include "records/Tables.h"
#include "store/dao/RecordFile.h"

namespace sorvane::Records {

namespace {

// What the file says of a game. An add-on game has no money of its own.
struct Summary {
    std::string key;
    std::string title;
    bool addOn = false;
    long tickets = 0;
    long draws = 0;
    std::optional<Date> first = {}, last = {};
    Currency spent = {}, won = {};

    bool Empty() const { return !first; }
    void Take(Date date) {
        if (!first || date < *first) first = date;
        if (!last || date > *last) last = date;
    }
};

class Survey {
  public:
    Survey() {
        for (const GameKey& key : GameKeys()) games_.push_back({std::string(key.LottoFlag), TitleOf(key)});
        for (const AddOn& addOn : AddOns()) {
            const std::string key(addOn.ExtraFlag);
            games_.push_back({key, key, true});
        }
    }

    void Read(const Dao::RecordFile& file, Progress& progress) {
        const Dao::Contents contents = file.Read();
        double done = 0, inAll = 0;
        for (const Dao::FileTable& found : contents.tables) inAll += file.CountRows(found);
        for (const Dao::FileTable& found : contents.tables) {
            const Table* table = FindTable(found.name);
            if (table == nullptr) continue;
            ReadTable(file, *table, found);
            progress.Tell(done += file.CountRows(found), inAll);
        }
    }

    std::vector<Summary> Games() const {
        std::vector<Summary> seen;
        std::copy_if(games_.begin(), games_.end(), std::back_inserter(seen),
                     [](const Summary& game) { return !game.Empty(); });
        return seen;
    }

  private:
    // Null for the tables that say nothing of games, and for a key that is no game's.
    Summary* GameOf(const Table& table, const Dao::Rows& row, int gameAt) {
        std::string_view key;
        std::string held;
        if (table.game != nullptr) key = table.game->LottoFlag;
        else if (table.addOn != nullptr) key = table.addOn->ExtraFlag;
        else if (table.use == Use::Spent || table.use == Use::Winnings) {
            ErrorOf([&] { held = row.At(gameAt).ToText(); });
            key = held;
        }
        const auto at =
            std::find_if(games_.begin(), games_.end(), [&](const Summary& game) { return game.key == key; });
        return at == games_.end() ? nullptr : &*at;
    }

    void ReadTable(const Dao::RecordFile& file, const Table& table, const Dao::FileTable& found) {
        const auto at = [&](std::string_view name) {
            for (std::size_t i = 0; i < found.fields.size(); ++i)
                if (SameWord(found.fields[i].name, name)) return static_cast<int>(i);
            return -1;
        };
        const int day = at("Date"), game = at("Lottoflag"), amount = at(table.name);
        const bool money = table.use == Use::Spent || table.use == Use::Winnings;
        if (day < 0 || (money && (game < 0 || amount < 0))) return;
        Dao::Rows rows = file.AllRows(found, Dao::Order::Inserted);
        rows.Restart();
        while (rows.Next()) {
            Summary* summary = GameOf(table, rows, game);
            const Dao::Value date = rows.At(day);
            if (summary == nullptr || !std::holds_alternative<Date>(date.Get())) continue;
            summary->Take(date.ToDate());
            if (money) {
                const Dao::Value value = rows.At(amount);
                if (const auto* sum = std::get_if<Currency>(&value.Get()))
                    (table.use == Use::Spent ? summary->spent : summary->won) += *sum;
            } else {
                const bool played = table.use == Use::Played || table.use == Use::AddOnPlayed;
                ++(played ? summary->tickets : summary->draws);
            }
        }
    }

    std::vector<Summary> games_;
};

std::string Money(Currency amount) { return Format(amount, "########0.00"); }

using Line = std::array<std::string, 8>;

void PrintLines(std::ostream& data, const std::vector<Line>& lines) {
    std::array<std::size_t, 8> widths{};
    for (const Line& line : lines)
        for (std::size_t i = 0; i < line.size(); ++i) widths[i] = std::max(widths[i], line[i].size());
    for (const Line& line : lines) {
        std::string text;
        for (std::size_t i = 0; i < line.size(); ++i) {
            const std::string fill(widths[i] - line[i].size(), ' ');
            text += (i == 0 ? "" : "  ") + (i == 0 ? line[i] + fill : fill + line[i]);
        }
        data << text.substr(0, text.find_last_not_of(' ') + 1) << '\n';
    }
}

Line LineOf(const Summary& game) {
    Line line{game.key, Str(game.tickets), Str(game.draws), game.first->ToText(), game.last->ToText()};
    if (game.addOn) return line;
    line[5] = Money(game.spent);
    line[6] = Money(game.won);
    line[7] = Money(game.won - game.spent);
    return line;
}

void PrintTable(std::ostream& data, const std::vector<Summary>& games) {
    std::vector<Line> lines{{"Game", "Tickets", "Draws", "First", "Last", "Spent", "Won", "Difference"}};
    Currency spent, won;
    for (const Summary& game : games) {
        lines.push_back(LineOf(game));
        spent += game.spent;
        won += game.won;
    }
    lines.push_back({"All", "", "", "", "", Money(spent), Money(won), Money(won - spent)});
    PrintLines(data, lines);
}

void PrintJson(std::ostream& data, const std::vector<Summary>& games) {
    nlohmann::ordered_json list = nlohmann::ordered_json::array();
    for (const Summary& game : games) {
        nlohmann::ordered_json one{
            {"game", game.key},    {"title", game.title},           {"tickets", game.tickets},
            {"draws", game.draws}, {"first", game.first->ToText()}, {"last", game.last->ToText()}};
        if (!game.addOn) {
            one["spent"] = Money(game.spent);
            one["won"] = Money(game.won);
            one["difference"] = Money(game.won - game.spent);
        }
        list.push_back(std::move(one));
    }
    data << list.dump(2) << '\n';
}

}  // namespace

int Show(Outside& outside, const Place& place, bool json) {
    Survey survey;
    Naming(place.File(), [&] {
        Dao::RecordFile file(place.File(), outside.vfs);
        file.Begin(Dao::RecordFile::Hold::Read);
        Progress progress(outside, "Reading");
        survey.Read(file, progress);
    });
    if (json) PrintJson(outside.data, survey.Games());
    else PrintTable(outside.data, survey.Games());
    return Done;
}

}  // namespace sorvane::Records

#include "records/CommandLine.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <functional>
#include <memory>
#include <utility>

#include "records/Commands.h"
#include "shell/Deployment.h"

namespace sorvane::Records {

namespace {

// Help tells what a value is called, and nothing of how it is read.
class HelpText : public CLI::Formatter {
  public:
    HelpText() {
        label("SUBCOMMAND", "COMMAND");
        label("Subcommands", "Commands");
        label("Positionals", "Arguments");
    }
    std::string make_option_opts(const CLI::Option* option) const override {
        const std::string& value = option->get_option_text();
        return value.empty() ? "" : " " + value;
    }
};

std::string WhatIsWrong(const CLI::App* app, const CLI::Error& error) {
    const bool noCommand = app->get_subcommands().empty() && error.get_name() == "RequiredError";
    const std::vector<std::string> unknown = app->remaining();
    std::string what = error.what();
    if (noCommand)
        what = unknown.empty() ? "a command is missing" : "\"" + unknown.front() + "\" is no command";
    return "sorvane-records: " + what + "\n\"sorvane-records --help\" tells more\n";
}

// The commands, and what is to be done once the arguments are read.
class CommandLine {
  public:
    explicit CommandLine(Outside& outside) : outside_(outside) {
        app_.formatter(std::make_shared<HelpText>());
        app_.failure_message(WhatIsWrong);
        app_.require_subcommand(1);
        AddData(app_);
        app_.set_version_flag("--version", std::string(Deployment::Version));
        AddShow();
        AddCheck();
        AddBackup();
        AddRestore();
        AddRenumber();
        AddExport();
        AddImport();
        AddDraws();
        AddTickets();
    }

    int Run(std::vector<std::string> arguments) {
        std::reverse(arguments.begin(), arguments.end());
        try {
            app_.parse(arguments);
        } catch (const CLI::ParseError& error) {
            return app_.exit(error, outside_.data, outside_.words) == 0 ? Done : WrongUse;
        }
        try {
            return chosen_();
        } catch (const std::exception& error) {
            outside_.words << "sorvane-records: " << error.what() << '\n';
            return Refused;
        }
    }

  private:
    Place Records() const { return {data_.empty() ? outside_.programFolder / "data" : Utf8Path(data_)}; }
    static fs::path Utf8Path(const std::string& text) { return std::u8string(text.begin(), text.end()); }

    void AddData(CLI::App& app) {
        app.add_option("--data", data_, "Folder of the records (default: \"data\" beside this program)")
            ->option_text("FOLDER");
    }

    CLI::App* Command(const std::string& name, const std::string& what, std::function<int()> work) {
        CLI::App* command = app_.add_subcommand(name, what);
        AddData(*command);
        command->callback([this, work = std::move(work)] { chosen_ = work; });
        return command;
    }

    void AddShow() {
        Command("show", "A line for each game: tickets, draws, dates, money", [this] {
            return Show(outside_, Records(), json_);
        })->add_flag("--json", json_, "As a JSON document");
    }

    void AddCheck() {
        Command("check", "Whether the file is whole and every row is one that the program can read",
                [this] { return Check(outside_, Records().File()); });
    }

    void AddBackup() {
        CLI::App* backup = Command("backup", "A copy that is known to be whole, also while the program runs",
                                   [this] { return Backup(outside_, Records(), BackupWished()); });
        CLI::Option* file = backup->add_option(
            "FILE", file_, "Where to (default: a name with date and time in \"backups\" beside the file)");
        backup
            ->add_option("--keep", keep_, "Of the copies in \"backups\" keep the newest N, remove the others")
            ->option_text("N")
            ->check(CLI::Range(1, 1'000'000))
            ->excludes(file);
        AddForce(*backup, "Write over FILE");
    }

    BackupWish BackupWished() const {
        BackupWish wish{{}, force_, keep_};
        if (!file_.empty()) wish.to = Utf8Path(file_);
        return wish;
    }

    void AddRestore() {
        CLI::App* restore =
            Command("restore", "Puts a copy back; the file that stands there is kept beside it",
                    [this] { return Restore(outside_, Records(), Utf8Path(file_), force_); });
        restore->add_option("FILE", file_, "The copy")->required();
        AddForce(*restore, "Take a copy with rows that check finds fault with");
    }

    void AddRenumber() {
        Command("renumber",
                "Counts the keys of every table from 1 again, so that saving works after a clean-up",
                [this] { return Renumber(outside_, Records()); });
    }

    void AddExport() {
        CLI::App* command =
            Command("export", "Every table as CSV, or all of them as one JSON document", [this] {
                return Export(outside_, Records(), {Utf8Path(json_ ? jsonFile_ : file_), json_, force_});
            });
        CLI::Option* folder =
            command->add_option("FOLDER", file_, "A CSV file for each table is written here");
        command->add_option("--json", jsonFile_, "One JSON document instead (-: standard output)")
            ->option_text("FILE")
            ->excludes(folder)
            ->each([this](const std::string&) { json_ = true; });
        command->parse_complete_callback([this] { Require("FOLDER or --json", file_ + jsonFile_); });
        AddForce(*command, "Write over files");
    }

    void AddImport() {
        CLI::App* command = Command(
            "import", "Rows from a folder of CSV files named like the tables, all of them or none", [this] {
                return Import(outside_, Records(), {Utf8Path(file_), dryRun_, newKeys_});
            });
        command->add_option("FOLDER", file_, "With PlayedBC49.csv and so on")->required();
        command->add_flag("--new-keys", newKeys_, "Leave the column ID1 aside and count the keys on");
        AddDryRun(*command);
    }

    void AddDraws() {
        CLI::App* command =
            Command("draws", "A history of draws, so that frequencies and wheels work from the first day",
                    [this] { return list_ ? ListGames(outside_) : Draws(outside_, Records(), Wished()); });
        const Wanted wanted =
            AddHistory(*command, "a date, the numbers, the bonus number, the add-on number");
        command->add_flag("--replace", replace_,
                          "Let the file's numbers take the place of those that are there");
        command->add_flag("--list", list_, "Name the games")->excludes(wanted.game);
        command->parse_complete_callback([this] {
            if (list_) return;
            Require("GAME", game_);
            Require("FILE", file_);
        });
    }

    void AddTickets() {
        CLI::App* command = Command("tickets", "Tickets that were played",
                                    [this] { return Tickets(outside_, Records(), Wished()); });
        const Wanted wanted = AddHistory(
            *command, "a date, the numbers, way, wager, regular, earlybird, the add-on number, price");
        wanted.game->required();
        wanted.file->required();
        command->add_flag("--spent", spent_, "Book what the tickets cost, a sum for each date");
    }

    static void Require(const std::string& name, const std::string& value) {
        if (value.empty()) throw CLI::RequiredError(name);
    }

    struct Wanted {
        CLI::Option* game;
        CLI::Option* file;
    };
    Wanted AddHistory(CLI::App& command, const std::string& columns) {
        const Wanted wanted{command.add_option("GAME", game_, "As \"draws --list\" names it, or its key"),
                            command.add_option("FILE", file_, "CSV with " + columns)};
        command
            .add_option("--columns", columns_,
                        "What the columns hold, parted by commas, in place of a first line")
            ->option_text("NAMES");
        command.add_flag("--day-first", dayFirst_, "04/07/2020 is the 4th of July");
        AddDryRun(command);
        return wanted;
    }

    HistoryWish Wished() const {
        return {game_, Utf8Path(file_), columns_, dayFirst_, replace_, spent_, dryRun_};
    }

    void AddDryRun(CLI::App& command) {
        command.add_flag("--dry-run", dryRun_, "Tell everything and change nothing");
    }

    void AddForce(CLI::App& command, const std::string& what) { command.add_flag("--force", force_, what); }

    Outside& outside_;
    CLI::App app_{"Brings the records of Sorvane in and out, and looks after their file.", "sorvane-records"};
    std::function<int()> chosen_;
    std::string data_;
    std::string file_;
    std::string jsonFile_;
    std::string game_;
    std::string columns_;
    bool dayFirst_ = false;
    bool replace_ = false;
    bool spent_ = false;
    bool list_ = false;
    bool json_ = false;
    bool force_ = false;
    bool dryRun_ = false;
    bool newKeys_ = false;
    int keep_ = 0;
};

}  // namespace

int RunCommand(Outside& outside, const std::vector<std::string>& arguments) {
    return CommandLine(outside).Run(arguments);
}

}  // namespace sorvane::Records

#include "records/CommandLine.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <functional>

#include "records/Commands.h"
#include "shell/Deployment.h"

namespace sorvane::Records {

namespace {

// The commands, and what is to be done once the arguments are read.
class CommandLine {
  public:
    explicit CommandLine(Outside& outside) : outside_(outside) {
        app_.require_subcommand(1);
        AddData(app_);
        AddShow();
        AddCheck();
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
            ->type_name("FOLDER");
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

    Outside& outside_;
    CLI::App app_{"Brings the records of Sorvane in and out, and looks after their file.", "sorvane-records"};
    std::function<int()> chosen_;
    std::string data_;
    bool json_ = false;
};

}  // namespace

int RunCommand(Outside& outside, const std::vector<std::string>& arguments) {
    return CommandLine(outside).Run(arguments);
}

}  // namespace sorvane::Records

// The document of the database, read and tried: its tables are those that the program makes, its questions
// run.
#include <gtest/gtest.h>
#include <sqlite3.h>

#include <fstream>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "store/CheckTB_DBExists.h"
#include "store/CreateTables.h"
#include "support/Scripted.h"

namespace sorvane {
namespace {

// The statements of the document's SQL blocks, comments left out and blanks made even.
std::vector<std::string> StatementsOf(const std::string& path) {
    std::ifstream file(path);
    std::string line, sql;
    bool inside = false;
    while (std::getline(file, line)) {
        if (line.rfind("```", 0) == 0) inside = line == "```sql";
        else if (inside) sql += line.substr(0, line.find(" -- ")) + " ";
    }
    std::vector<std::string> statements;
    std::istringstream all(sql);
    for (std::string one; std::getline(all, one, ';');) {
        std::string even, word;
        std::istringstream words(one);
        while (words >> word) {
            const bool tight = even.empty() || even.back() == '(' || word.front() == ')';
            even += (tight ? "" : " ") + word;
        }
        if (!even.empty()) statements.push_back(even);
    }
    return statements;
}

bool IsDefinition(const std::string& statement) { return statement.rfind("CREATE ", 0) == 0; }

using Rows = std::vector<std::vector<std::string>>;

class File {
  public:
    explicit File(const std::string& path) { sqlite3_open(path.c_str(), &handle_); }
    File(const File&) = delete;
    File& operator=(const File&) = delete;
    ~File() { sqlite3_close(handle_); }

    // The rows of all statements in the text; a failure fails the test.
    Rows Ask(const std::string& sql) {
        Rows rows;
        const auto keep = [](void* to, int count, char** values, char**) {
            std::vector<std::string> row;
            for (int i = 0; i < count; ++i) row.emplace_back(values[i] == nullptr ? "" : values[i]);
            static_cast<Rows*>(to)->push_back(row);
            return 0;
        };
        char* message = nullptr;
        sqlite3_exec(handle_, sql.c_str(), keep, &rows, &message);
        EXPECT_EQ(message, nullptr) << message << "\n" << sql;
        sqlite3_free(message);
        return rows;
    }

  private:
    sqlite3* handle_ = nullptr;
};

class DatabaseDocument : public ::testing::Test {
  protected:
    void SetUp() override {
        Services services{dialogs, printer, clock, random, tools, engine};
        sorvane::Session session{global, services};
        global.AppPath = folder.File("");
        CheckDatabaseExists(session, path());
        const std::vector<std::pair<std::string, const Creator*>> tables = {
            {"Spent", &CreateSpentTable},
            {"Winnings", &CreateWinningsTable},
            {"PlayedLotto649", &CreatePlayed6Table},
            {"WinLotto649", &CreateWin6Table},
            {"PlayedSuper7", &CreatePlayed7Table},
            {"WinSuper7", &CreateWin7Table},
            {"PlayedONTKeno", &CreatePlayedKenoTable},
            {"WinONTKeno", &CreateWinKenoTable},
            {"PlayedONTPick3", &CreatePlayedPick3Table},
            {"WinONTPick3", &CreateWinPick3Table},
            {"PlayedFLAPlay4", &CreatePlayedPick4Table},
            {"WinFLAPlay4", &CreateWinPick4Table},
            {"PlayedEncore", &CreatePlayedAddOnTable},
            {"WinEncore", &CreateWinAddOnTable},
            {"Temp", &CreateTempTable},
        };
        for (const auto& [name, create] : tables) (*create)(session, {path(), name}, "ID1", "Date");
    }
    std::string path() const { return DatabasePath(global.AppPath); }

    testing::TempFolder folder;
    testing::ScriptedDialogs dialogs;
    testing::RecordingPrinter printer;
    testing::FixedClock clock{Date::FromYmd(2026, 11, 21)};
    testing::FixedRandom random;
    testing::RecordingTools tools;
    Dao::Engine engine;
    Global global;
    std::vector<std::string> statements = StatementsOf(SORVANE_SOURCE_FOLDER "/docs/database.md");
};

TEST_F(DatabaseDocument, TellsEveryTableFieldTypeAndIndexAsTheProgramMakesThem) {
    std::map<std::string, int> told, made;
    for (const std::string& statement : statements)
        if (IsDefinition(statement)) ++told[statement];
    for (const auto& row : File(path()).Ask("SELECT sql FROM sqlite_schema")) ++made[row[0]];
    EXPECT_EQ(told, made);
}

TEST_F(DatabaseDocument, EveryQuestionRunsAndFindsItsRows) {
    File file(path());
    file.Ask(R"(
        INSERT INTO Spent VALUES (1, 'Lotto649', 46347, 4), (2, 'Super 7', 46000, 6.5);
        INSERT INTO Winnings VALUES (1, 'Lotto649', 46347, 10);
        INSERT INTO PlayedLotto649 VALUES (1, 46347, 3, 9, 17, 21, 33, 40, 1, 0), (2, 46347, 1, 2, 4, 5, 6, 8, 0, 0);
        INSERT INTO WinLotto649 VALUES (1, 46347, 3, 9, 17, 22, 34, 41, 49);
        INSERT INTO PlayedEncore VALUES (1, 'Lotto649', 46347, 0, 1, 2, 3, 4, 5, NULL),
                                        (2, 'Lotto649', 46347, 99, 99, 99, 99, 99, 99, NULL);
        INSERT INTO PlayedONTPick3 VALUES (1, 'ONTPick3', 46347, 0, 1, 2, 'Straight', 0);
        INSERT INTO WinONTPick3 VALUES (1, 'ONTPick3', 46347, 0, 1, 2);
        INSERT INTO PlayedONTKeno VALUES (1, 46347, 'ONTKeno', 7, 20, 44, 60, 0, 0, 0, 0, 0, 0, 2, 4, 0);
    )");
    std::vector<Rows> answers;
    for (const std::string& statement : statements)
        if (!IsDefinition(statement)) answers.push_back(file.Ask(statement));
    const std::vector<Rows> expected = {
        {{"Super 7", "2025", "6.50", "0.00", "-6.50"}, {"Lotto649", "2026", "4.00", "10.00", "6.00"}},
        {{"10.5", "10"}},
        {{"2026-11-21", "Lotto649", "4"}},
        {{"1", "3", "9", "17", "21", "33", "40", "1"}, {"2", "1", "2", "4", "5", "6", "8", "0"}},
        {{"2026-11-21", "2"}},
        {{"3", "1"}, {"9", "1"}, {"17", "1"}, {"22", "1"}, {"34", "1"}, {"41", "1"}, {"49", "1"}},
        {{"2026-11-21", "03 09 17 22 34 41 + 49"}},
        {{"2026-11-21", "1", "3"}},
        {{"Lotto649", "012345"}},
        {{"2026-11-21", "012", "Straight"}},
        {{"1", "4", "2", "7 20 44 60"}},
        {{"ok"}},
    };
    EXPECT_EQ(answers, expected);
}

}  // namespace
}  // namespace sorvane

// A player's folder, a file in it with rows of the program's own writers, and the command beside them.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <functional>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

#include "records/CommandLine.h"
#include "records/Tables.h"
#include "support/World.h"

namespace sorvane::testing {

namespace fs = std::filesystem;
using Texts = std::vector<std::string>;

inline std::string BytesOf(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

class RecordsWorld : public ::testing::Test {
  public:
    // What a command came back with.
    struct Answer {
        int status;
        std::string data;
        std::string words;
    };

    Answer Run(std::vector<std::string> arguments) {
        std::ostringstream data, words;
        Records::Outside outside{
            data, words, terminal, [this] { return now; }, [this] { return Clock(); }, world.folder.Path(),
            vfs};
        const int status = Records::RunCommand(outside, arguments);
        return {status, data.str(), words.str()};
    }
    // Expects that it was done.
    Answer Do(const std::vector<std::string>& arguments) {
        Answer answer = Run(arguments);
        EXPECT_EQ(answer.status, 0) << answer.words << answer.data;
        return answer;
    }

    fs::path File() const { return world.DbName(); }
    std::string Path(std::string_view name) const { return world.folder.File(name); }
    std::string Write(std::string_view name, const std::string& text) const {
        fs::create_directories(fs::path(Path(name)).parent_path());
        std::ofstream(Path(name), std::ios::binary) << text;
        return Path(name);
    }
    std::vector<std::string> Ask(const std::string& sql) const { return world.Plain().Rows(sql); }
    void Sql(const std::string& sql) const { world.Plain().Do(sql); }

    // The table by the program's own creator.
    void Make(const std::string& table) {
        if (!fs::exists(File())) world.WithDatabase();
        const Records::Table* known = Records::FindTable(table);
        ASSERT_NE(known, nullptr) << table;
        (*known->creator)(world.session, {world.DbName(), known->name}, PrimaryFieldName, DateFieldName);
    }
    // Every row of every table, as plain SQLite tells them.
    std::vector<std::string> AllRows() const {
        PlainFile file(world.DbName());
        std::vector<std::string> rows;
        for (const std::string& table : file.Tables())
            for (const std::string& row : file.Rows("SELECT * FROM \"" + table + "\" ORDER BY rowid"))
                rows.push_back(table + ": " + row);
        return rows;
    }

    std::chrono::milliseconds Clock() {
        if (meanwhile) meanwhile();
        return std::chrono::milliseconds(ticks += tick);
    }

    World world;
    std::string vfs;
    bool terminal = false;
    Records::Moment now{Date::FromYmd(2026, 11, 21), 20, 15, 0};
    long ticks = 0;
    long tick = 0;                    // how long each look at the clock takes
    std::function<void()> meanwhile;  // what somebody else does between two looks
};

inline std::vector<std::string> LinesOf(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream all(text);
    for (std::string line; std::getline(all, line);) lines.push_back(line);
    return lines;
}

// Whether the text holds that part.
inline bool Tells(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

}  // namespace sorvane::testing

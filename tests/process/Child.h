// Copies of the program in processes of their own.
#pragma once

#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "process/Session.h"

extern char** environ;

namespace sorvane::test {

// A process_player; see there for what it is told. Killed at the end.
class Child {
  public:
    struct Orders {
        std::string home;
        int day;
        std::string games;
        int sittings = 0;
        bool alone = true;
    };

    explicit Child(const Orders& orders) : log_(orders.home + "/log-" + std::to_string(orders.day)) {
        int ends[2];
        if (pipe2(ends, O_CLOEXEC) != 0) throw std::runtime_error("no pipe");
        told_ = ends[0];
        posix_spawn_file_actions_t files;
        posix_spawn_file_actions_init(&files);
        posix_spawn_file_actions_adddup2(&files, ends[1], TheirEnd);
        posix_spawn_file_actions_addopen(&files, 1, log_.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0666);
        posix_spawn_file_actions_adddup2(&files, 1, 2);
        std::vector<std::string> settings{
            "SORVANE_HOME=" + orders.home, "SORVANE_DAY=" + std::to_string(orders.day),
            "SORVANE_GAMES=" + orders.games, "SORVANE_SITTINGS=" + std::to_string(orders.sittings),
            std::string("SORVANE_ALONE=") + (orders.alone ? "1" : "0"),
            "SORVANE_TOLD=" + std::to_string(TheirEnd),
            // What it leaves behind when it is killed goes with the home.
            "SORVANE_TEST_PLACE=" + orders.home};
        std::vector<char*> environment;
        for (char** entry = environ; *entry != nullptr; ++entry)
            if (std::string(*entry).rfind("GTEST_", 0) != 0) environment.push_back(*entry);
        for (std::string& setting : settings) environment.push_back(setting.data());
        environment.push_back(nullptr);
        std::string program = SORVANE_PLAYER;
        char* arguments[] = {program.data(), nullptr};
        const int error =
            posix_spawn(&process_, program.c_str(), &files, nullptr, arguments, environment.data());
        posix_spawn_file_actions_destroy(&files);
        close(ends[1]);
        if (error != 0) throw std::runtime_error("cannot start " + program);
    }
    Child(const Child&) = delete;
    Child& operator=(const Child&) = delete;
    ~Child() {
        Kill();
        close(told_);
    }

    // Reads on for so many milliseconds, or until the child ends; with `untilTold`, until it first told of
    // something written. Returns whether it still runs.
    bool Listen(int milliseconds, bool untilTold = false) {
        const auto end = std::chrono::steady_clock::now() + std::chrono::milliseconds(milliseconds);
        while (!(untilTold && !promises.empty())) {
            const auto left =
                std::chrono::duration_cast<std::chrono::milliseconds>(end - std::chrono::steady_clock::now());
            if (left.count() <= 0) return true;
            pollfd pipe{told_, POLLIN, 0};
            if (poll(&pipe, 1, static_cast<int>(left.count())) > 0 && !Read()) return false;
        }
        return true;
    }

    // Kills it, and takes what it said before. Fails when it was dead already.
    void Kill() {
        if (process_ == 0) return;
        kill(process_, SIGKILL);
        EXPECT_TRUE(WIFSIGNALED(Wait())) << "ended by itself: " << Log();
        while (Read()) continue;
    }
    // Waits for its own end, and fails when it found something wrong.
    void AwaitEnd(int milliseconds) {
        if (Listen(milliseconds)) ADD_FAILURE() << "still running: " << Log();
        else EXPECT_EQ(Wait(), 0) << Log();
    }

    std::vector<Promise> promises;
    std::vector<int> refusals;  // numbers of the boxes it had to read

  private:
    static constexpr int TheirEnd = 9;

    int Wait() {
        int status = 0;
        waitpid(std::exchange(process_, 0), &status, 0);
        return status;
    }
    bool Read() {
        char bytes[4096];
        const ssize_t count = read(told_, bytes, sizeof bytes);
        if (count <= 0) return false;
        rest_.append(bytes, static_cast<std::size_t>(count));
        for (std::size_t end; (end = rest_.find('\n')) != std::string::npos; rest_.erase(0, end + 1)) {
            const std::string line = rest_.substr(0, end);
            const std::size_t tab = line.find('\t');
            if (tab == std::string::npos) refusals.push_back(std::stoi(line));
            else promises.push_back({line.substr(0, tab), line.substr(tab + 1)});
        }
        return true;
    }
    std::string Log() const {
        std::ostringstream text;
        text << std::ifstream(log_).rdbuf();
        return text.str();
    }

    std::string log_, rest_;
    int told_ = -1;
    pid_t process_ = 0;
};

// A program's folder on a real disk, and what must hold of the file in it.
class Home {
  public:
    std::string Path() const { return folder_.Path().string(); }
    std::string File() const { return DatabasePath(Path()); }

    void ExpectWhole() const { EXPECT_EQ(PlainFile(File()).One("PRAGMA integrity_check"), "ok"); }
    void ExpectKept(const std::vector<Promise>& promises) const {
        PlainFile file(File());
        sqlite3_busy_timeout(file.Handle(), OtherCopiesTake);
        for (const Promise& promise : promises)
            EXPECT_EQ(file.One(promise.query), promise.answer) << promise.query;
    }
    // No row seen at an earlier call is gone or changed.
    void ExpectNothingLost() {
        PlainFile file(File());
        for (const std::string& table : file.Tables()) {
            std::vector<std::string> now = file.Rows("SELECT * FROM [" + table + "] ORDER BY ID1");
            std::vector<std::string>& before = seen_[table];
            EXPECT_TRUE(before.size() <= now.size() && std::equal(before.begin(), before.end(), now.begin()))
                << table;
            before = std::move(now);
        }
    }

  private:
    static constexpr int OtherCopiesTake = 10000;  // milliseconds, at most, for a commit

    TempFolder folder_{SORVANE_BINARY_FOLDER};
    std::map<std::string, std::vector<std::string>> seen_;
};

}  // namespace sorvane::test

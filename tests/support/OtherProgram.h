// A second process at a database file.
#pragma once

#include <gtest/gtest.h>
#include <signal.h>
#include <sqlite3.h>
#include <sys/wait.h>
#include <unistd.h>

#include <string>

namespace sorvane {

// Another program that uses the same file. It is a process of its own, since locks belong to processes. Make
// it before the test opens anything, or its SQLite would take the test's locks for its own.
class OtherProgram {
  public:
    explicit OtherProgram(const std::string& path) {
        EXPECT_EQ(pipe(orders_), 0);
        EXPECT_EQ(pipe(answers_), 0);
        process_ = fork();
        if (process_ == 0) Obey(path);
        close(orders_[0]);
        close(answers_[1]);
    }
    OtherProgram(const OtherProgram&) = delete;
    OtherProgram& operator=(const OtherProgram&) = delete;
    ~OtherProgram() {
        Kill();
        close(orders_[1]);
        close(answers_[0]);
    }

    void Do(const std::string& sql) { EXPECT_TRUE(Try(sql)) << sql; }
    // Whether it could do it.
    bool Try(const std::string& sql) {
        EXPECT_EQ(write(orders_[1], sql.c_str(), sql.size() + 1), static_cast<ssize_t>(sql.size() + 1));
        char answer = 0;
        EXPECT_EQ(read(answers_[0], &answer, 1), 1);
        return answer == 'y';
    }
    void Kill() {
        if (process_ == 0) return;
        kill(process_, SIGKILL);
        waitpid(process_, nullptr, 0);
        process_ = 0;
    }

  private:
    [[noreturn]] void Obey(const std::string& path) {
        sqlite3* handle = nullptr;
        std::string sql;
        for (char letter = 0; read(orders_[0], &letter, 1) == 1;) {
            if (letter != 0) {
                sql += letter;
                continue;
            }
            if (handle == nullptr) sqlite3_open(path.c_str(), &handle);
            const bool done = sqlite3_exec(handle, sql.c_str(), nullptr, nullptr, nullptr) == SQLITE_OK;
            if (write(answers_[1], done ? "y" : "n", 1) != 1) break;
            sql.clear();
        }
        _exit(0);
    }

    int orders_[2] = {};
    int answers_[2] = {};
    pid_t process_ = 0;
};

}  // namespace sorvane

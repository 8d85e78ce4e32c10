// What a command has around it, so that tests can stand in for all of it.
#pragma once

#include <chrono>
#include <exception>
#include <filesystem>
#include <functional>
#include <ostream>
#include <string>
#include <string_view>
#include <utility>

#include "platform/Date.h"
#include "platform/RunTimeError.h"

namespace sorvane::Records {

namespace fs = std::filesystem;

struct Moment {
    Date day;
    int hour = 0, minute = 0, second = 0;
};

// "2026-11-21-201500", for the names of files.
std::string Stamp(const Moment& moment);

struct Outside {
    std::ostream& data;     // standard output
    std::ostream& words;    // standard error
    bool terminal = false;  // the words go to a person's terminal
    std::function<Moment()> now;
    std::function<std::chrono::milliseconds()> clock;  // for what lasts
    fs::path programFolder;
    std::string vfs = {};  // the engine's file layer

    // The system's own.
    static Outside OfTheSystem(const fs::path& calledAs);
};

// Ends a command: exit status 1, with the sentence on standard error.
class Refusal : public std::exception {
  public:
    explicit Refusal(std::string sentence) : sentence_(std::move(sentence)) {}
    const char* what() const noexcept override { return sentence_.c_str(); }

  private:
    std::string sentence_;
};

// What a store error means to somebody at a shell: "another program holds the file (3260)".
std::string WhatHappened(int number);
// Runs work; a run-time error of it becomes a refusal that names the file.
template <class Work>
auto Naming(const fs::path& file, Work work) {
    try {
        return work();
    } catch (const RunTimeError& error) {
        throw Refusal(file.string() + ": " + WhatHappened(error.Number()));
    }
}

// "1 row", "2 rows", "1 date", "4 dates".
std::string Counted(long count, std::string_view one);

// A bar for what lasts longer than a second; nothing where nobody looks. The bar is wiped away at the end.
class Progress {
  public:
    Progress(Outside& outside, std::string what)
        : outside_(outside), what_(std::move(what)), begun_(outside.terminal ? outside.clock() : Time{}) {}
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;
    ~Progress() { Wipe(); }
    void Tell(double done, double inAll);
    // Before other words are written.
    void Wipe();

  private:
    using Time = std::chrono::milliseconds;
    Outside& outside_;
    std::string what_;
    Time begun_;
    int shown_ = -1;
};

}  // namespace sorvane::Records

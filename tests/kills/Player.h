// A copy of the program in a process of its own that does one routine after another, without windows, until
// it is done or killed.
#pragma once

#include <gtest/gtest.h>
#include <poll.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <functional>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "checking/StoreData.h"
#include "entry/CreateAllTables.h"
#include "entry/SaveData.h"
#include "store/DeleteData.h"
#include "store/StoreLedger.h"
#include "support/Scripted.h"

namespace sorvane::test {

// The program in a folder. `told` hears of each box that is no question; questions are answered with Yes.
class Program final : public Dialogs {
  public:
    Program(const std::string& home, std::function<void(const std::string&)> told)
        : told_(std::move(told)), path_(DatabasePath(home)) {
        global.NL = "\r\n";
        global.AppPath = home + "/";
        global.LottoFlag = "Lotto649";
        global.ExtraFlag = "Encore";
        global.EnteringWinnings = On;
        global.Lotto6Tickets.Redim(MostTickets);
        global.AddOnTickets.Redim(MostTickets);
        for (int i = 1; i <= 7; ++i) boxes_.Main.push_back(std::to_string(i));
        boxes_.Encore = "123456";
    }
    static constexpr int MostTickets = 100;

    void Start() { CreateAllTables(session_, Family::frm649, state_); }
    void Sheet(int day, int tickets) {
        global.NoOfTicketsOnSheet = tickets;
        SaveLotto6Tickets(session_, At("PlayedLotto649", day));
    }
    void AddOns(int day, int tickets) {
        global.NoOfExtra = tickets;
        SaveAddOnTickets(session_, At("PlayedEncore", day));
    }
    void CleanUp(const char* table, int day) {
        const StoreArgs at = At(table, day);
        DeleteRowsForDate(session_, at.Table(), at.WindowDate);
    }
    // All seven numbers are `first` and the six behind it.
    void Check(int day, int first) {
        for (int i = 0; i < 7; ++i) boxes_.Main.at(static_cast<std::size_t>(i)) = std::to_string(first + i);
        StoreLotto6Win(session_, At("WinLotto649", day), boxes_);
    }
    void Winnings(int day, int dollars) {
        global.Dollars = std::to_string(dollars);
        StoreLedgerAmount(session_, At("Winnings", day));
    }

    Global global;

  private:
    Answer MsgBox(std::string_view text, int style, std::string_view) override {
        if (style == BoxStyle::YesNo) return Answer::Yes;
        told_(std::string(text));
        return Answer::Ok;
    }
    StoreArgs At(const char* table, int day) {
        table_ = table;
        return {path_, table_, Date::FromDays(day)};
    }

    std::function<void(const std::string&)> told_;
    testing::RecordingPrinter printer_;
    testing::FixedClock clock_{Date::FromDays(46000)};
    testing::FixedRandom random_;
    testing::RecordingTools tools_;
    Dao::Engine engine_;
    Services services_{*this, printer_, clock_, random_, tools_, engine_};
    WindowState state_;
    WinningBoxes boxes_;
    std::string table_;
    const std::string path_;
    Session session_{global, services_};
};

// A process of its own. It must come into being while this one has no database open, since locks belong to
// processes. It says line after line.
class Player {
  public:
    using Say = std::function<void(const std::string&)>;
    explicit Player(const std::function<void(const Say&)>& play) {
        std::array<int, 2> ends{};
        if (pipe(ends.data()) != 0) throw std::runtime_error("no pipe");
        process_ = fork();
        if (process_ == 0) {
            play([&](const std::string& line) {
                const std::string whole = line + "\n";
                if (write(ends[1], whole.data(), whole.size()) != static_cast<ssize_t>(whole.size()))
                    _exit(1);
            });
            _exit(0);
        }
        close(ends[1]);
        heard_ = ends[0];
    }
    Player(const Player&) = delete;
    Player& operator=(const Player&) = delete;
    ~Player() {
        Kill();
        close(heard_);
    }

    // Reads on for so long.
    void Listen(std::chrono::microseconds time) {
        const auto end = std::chrono::steady_clock::now() + time;
        for (;;) {
            const auto left =
                std::chrono::duration_cast<std::chrono::microseconds>(end - std::chrono::steady_clock::now());
            if (left.count() <= 0) return;
            const timespec most{left.count() / 1'000'000, left.count() % 1'000'000 * 1000};
            pollfd pipe{heard_, POLLIN, 0};
            if (ppoll(&pipe, 1, &most, nullptr) > 0 && !Read()) return;
        }
    }
    // Reads to its end.
    void AwaitEnd() {
        while (Read()) continue;
        waitpid(std::exchange(process_, 0), nullptr, 0);
    }
    // Kills it, and takes what it said before.
    void Kill() {
        if (process_ == 0) return;
        kill(process_, SIGKILL);
        AwaitEnd();
    }

    std::vector<std::string> lines;

  private:
    bool Read() {
        std::array<char, 4096> bytes{};
        const ssize_t count = read(heard_, bytes.data(), bytes.size());
        if (count <= 0) return false;
        rest_.append(bytes.data(), static_cast<std::size_t>(count));
        for (std::size_t end; (end = rest_.find('\n')) != std::string::npos; rest_.erase(0, end + 1))
            lines.push_back(rest_.substr(0, end));
        return true;
    }

    int heard_ = -1;
    pid_t process_ = 0;
    std::string rest_;
};

}  // namespace sorvane::test

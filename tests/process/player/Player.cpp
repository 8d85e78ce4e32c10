// The program with a person in front of it, as a process of its own that others may kill. Told by its
// environment:
//     SORVANE_HOME   folder of the program
//     SORVANE_DAY    the first day; each sitting has the next one
//     SORVANE_GAMES  menu entries, separated by blanks, played in turns
//     SORVANE_SITTINGS  how many; 0: without end
//     SORVANE_ALONE  0: another copy plays at the same file, so that refusals are borne and nothing is
//     checked SORVANE_TOLD   number of an open file: a line for each promise, "query<tab>answer", and a line
//     with the
//                    number of each refusal
#include <unistd.h>

#include <cstdlib>
#include <random>
#include <sstream>

#include "process/Session.h"

namespace sorvane::test {
namespace {

std::string Told(const char* name) {
    const char* value = std::getenv(name);
    if (!value) throw std::runtime_error(std::string("not told: ") + name);
    return value;
}

// Whole lines, also when the process ends in between: each is one write. A reader that is gone ends it.
void Report(const std::string& text) {
    static const int file = std::stoi(Told("SORVANE_TOLD"));
    const std::string line = text + "\n";
    if (write(file, line.data(), line.size()) != static_cast<ssize_t>(line.size())) std::abort();
}

TEST(Player, PlaysOnAndOn) {
    std::vector<std::string> games;
    std::istringstream names(Told("SORVANE_GAMES"));
    for (std::string name; names >> name;) games.push_back(name);
    const bool alone = Told("SORVANE_ALONE") != "0";
    const int sittings = std::stoi(Told("SORVANE_SITTINGS"));
    const int first = std::stoi(Told("SORVANE_DAY"));
    std::mt19937 random(static_cast<unsigned>(first));
    const Purchase purchases[] = {{2, 1, 2}, {2, 1, 0}, {4, 2, 2}, {6, 2, 1}};

    for (int i = 0; (sittings == 0 || i < sittings) && !HasFailure(); ++i) {
        Session session(games[static_cast<std::size_t>(i) % games.size()], Told("SORVANE_HOME"), first + i,
                        [](const Promise& promise) { Report(promise.query + "\t" + promise.answer); });
        if (!alone) session.BearOtherCopies([](int number) { Report(std::to_string(number)); });
        session.Start();
        // Many add-on tickets in one table are what two copies get into each other's way with.
        session.Buy(alone ? purchases[random() % std::size(purchases)] : Purchase{2, 1, 9});
        if (alone) session.CheckAndWin();
    }
}

}  // namespace
}  // namespace sorvane::test

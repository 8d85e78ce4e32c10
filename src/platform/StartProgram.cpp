#include "platform/StartProgram.h"

#ifdef _WIN32
#include <process.h>
#else
#include <fcntl.h>
#include <sys/types.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#endif

namespace sorvane {

#ifdef _WIN32

bool StartProgram(const std::string& path) {
    const std::string quoted = '"' + path + '"';
    return _spawnl(_P_DETACH, path.c_str(), quoted.c_str(), nullptr) != -1;
}

#else

namespace {

// Calls again while a signal interrupts.
template <class Call>
auto Uninterrupted(Call call) {
    auto result = call();
    while (result == -1 && errno == EINTR) result = call();
    return result;
}

// In the child: starts a grandchild, so that the system and not this program waits for its end. A byte in the
// pipe tells of failure; a program that starts closes the pipe without a word.
[[noreturn]] void StartDetached(char* path, int report) {
    std::array<char*, 2> arguments = {path, nullptr};
    setsid();
    const pid_t grandchild = fork();
    if (grandchild == 0) execv(path, arguments.data());
    if (grandchild <= 0) Uninterrupted([&] { return write(report, "", 1); });
    _exit(0);
}

}  // namespace

bool StartProgram(const std::string& path) {
    std::array<int, 2> report{};
    if (pipe(report.data()) != 0) return false;
    for (const int end : report) fcntl(end, F_SETFD, FD_CLOEXEC);
    std::string file = path;
    const pid_t child = fork();
    if (child == 0) StartDetached(file.data(), report[1]);
    close(report[1]);
    char failure = 0;
    const bool started = child > 0 && Uninterrupted([&] { return read(report[0], &failure, 1); }) == 0;
    close(report[0]);
    if (child > 0) Uninterrupted([&] { return waitpid(child, nullptr, 0); });
    return started;
}

#endif

}  // namespace sorvane

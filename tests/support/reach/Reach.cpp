#include "support/reach/Reach.h"

#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

// Nothing here may call code that is followed itself: the C library alone.
#define NOT_FOLLOWED __attribute__((no_sanitize("coverage")))

extern "C" char __executable_start;

namespace {

// All blocks of the program, in one order: their guards, and their addresses with a flag behind each.
std::uint32_t* guards = nullptr;
const std::uintptr_t* places = nullptr;
std::uint32_t blocks = 0;

// The blocks run since the last Flush.
constexpr std::size_t MostBlocks = 1 << 20;
std::uint32_t reached[MostBlocks];
std::size_t count = 0;

NOT_FOLLOWED void WriteHead(std::FILE* file) {
    char program[4096] = "";
    if (readlink("/proc/self/exe", program, sizeof program - 1) > 0) std::fprintf(file, "%s\n", program);
    const auto start = reinterpret_cast<std::uintptr_t>(&__executable_start);
    for (std::uint32_t i = 0; i < blocks; ++i)
        std::fprintf(file, "%llx ", static_cast<unsigned long long>(places[std::size_t{2} * i] - start));
    std::fputc('\n', file);
}

NOT_FOLLOWED std::FILE* Out() {
    static std::FILE* file = nullptr;
    const char* folder = std::getenv("SORVANE_REACH");
    if (file != nullptr || folder == nullptr) return file;
    char name[4096];
    std::snprintf(name, sizeof name, "%s/%ld", folder, static_cast<long>(getpid()));
    file = std::fopen(name, "w");
    if (file != nullptr) WriteHead(file);
    return file;
}

}  // namespace

// Called by each module for the same blocks, those of the whole program.
extern "C" NOT_FOLLOWED void __sanitizer_cov_trace_pc_guard_init(std::uint32_t* first, std::uint32_t* last) {
    if (first == last || *first != 0) return;
    guards = first;
    for (; first < last && blocks < MostBlocks; ++first) *first = ++blocks;
}

extern "C" NOT_FOLLOWED void __sanitizer_cov_pcs_init(const std::uintptr_t* first, const std::uintptr_t*) {
    places = first;
}

// A guard is zero from its first call until the next Flush, so a loop costs no more than a look at it.
extern "C" NOT_FOLLOWED void __sanitizer_cov_trace_pc_guard(std::uint32_t* guard) {
    if (*guard == 0) return;
    reached[count++] = *guard;
    *guard = 0;
}

namespace sorvane::test {

NOT_FOLLOWED void FlushReached(const char* test, long milliseconds) {
    std::FILE* out = Out();
    if (out != nullptr && count > 0) {
        std::fprintf(out, "%s %ld", test, milliseconds);
        for (std::size_t i = 0; i < count; ++i) std::fprintf(out, " %lu", reached[i] - 1UL);
        std::fputc('\n', out);
        std::fflush(out);
    }
    for (std::size_t i = 0; i < count; ++i) guards[reached[i] - 1] = reached[i];
    count = 0;
}

}  // namespace sorvane::test

namespace {

// What a test starts as a process of its own tells at its end what it has reached.
struct AtExit {
    NOT_FOLLOWED ~AtExit() {
        const char* test = std::getenv("SORVANE_REACH_TEST");
        sorvane::test::FlushReached(test != nullptr ? test : "-", 0);
    }
} atExit;

}  // namespace

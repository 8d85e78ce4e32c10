// A disk that fails on purpose: a file layer for SQLite over the system's own.
#pragma once

#include <array>
#include <chrono>
#include <cstdint>
#include <limits>
#include <string>

#include "support/FileLayer.h"

namespace sorvane {

// Nothing is really synced; the counts tell what would have been synced.
class FaultVfs : public FileLayer {
  public:
    // What can fail. A write that fails leaves its first half on the disk.
    enum class Operation { Open, Read, Write, Truncate, Sync, Lock, Delete };
    static constexpr std::array<Operation, 7> Operations = {
        Operation::Open, Operation::Read, Operation::Write, Operation::Truncate,
        Operation::Sync, Operation::Lock, Operation::Delete};
    enum class Lasting { Once, Always };

    explicit FaultVfs(std::string name);

    // From now on the n-th operation of this kind fails, counted from 1, or that one and all that follow it.
    void FailAt(Operation operation, int n, Lasting lasting);
    // From now on the disk has room for that many bytes.
    void FullAfter(std::int64_t bytes);
    // From now on the n-th change of the disk (of any kind, counted from 1) fails, and so does everything
    // after it. The disk is then as a process killed at that moment would have left it.
    void DieAt(int n);
    // From now on another program holds the n-th lock that is asked for, counted from 1, and all later ones.
    // Waiting for a lock takes no time.
    void HeldFrom(int n);
    // From now on nothing fails, and the counts start again at 0.
    void Heal();

    // Operations of this kind, and failures of any, since the last of the calls above.
    int Count(Operation operation) const { return counts_[static_cast<std::size_t>(operation)]; }
    int Failures() const { return failures_; }
    // How long was waited for locks that others hold; it takes no time.
    std::chrono::microseconds Waited() const { return waited_; }

    // For the file layer: counts, and tells whether this one fails.
    bool Fails(Operation operation);
    bool IsHeld();
    void Wait(std::chrono::microseconds time) { waited_ += time; }
    // How many of these bytes still fit.
    int Fitting(int bytes);

  private:
    std::array<int, Operations.size()> counts_{};
    int failures_ = 0;
    std::chrono::microseconds waited_{0};
    Operation failing_ = Operation::Open;
    int failAt_ = 0;
    int dieAt_ = 0;
    int heldFrom_ = 0;
    int locks_ = 0;
    int changes_ = 0;
    Lasting lasting_ = Lasting::Once;
    std::int64_t room_ = std::numeric_limits<std::int64_t>::max();
};

const char* NameOf(FaultVfs::Operation operation);

}  // namespace sorvane

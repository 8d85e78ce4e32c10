// The real services that need no window: clock, random numbers, programs of the desktop.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/Services.h"
#include "platform/SplitMix.h"

namespace sorvane {

class SystemClock final : public Clock {
  public:
    // The local date of the system.
    Date Today() const override;
};

class SystemRandom final : public RandomSource {
  public:
    SystemRandom();
    void Randomize() override;
    double Rnd() override { return mix_.Unit(); }

  private:
    SplitMix seeds_;
    SplitMix mix_{0};
};

class DesktopTools final : public SystemTools {
  public:
    // The folders to search, parted as in PATH.
    explicit DesktopTools(std::string searchPath = SystemSearchPath()) : searchPath_(std::move(searchPath)) {}

    // The first program with this plain name in the folders searched. Folders that aren't absolute are left
    // out, so that a program beside a document is never taken.
    std::optional<std::string> Find(std::string_view name) const override;
    void Start(const std::string& path) override;

    // PATH as it is set, else empty.
    static std::string SystemSearchPath();

  private:
    std::string searchPath_;
};

}  // namespace sorvane

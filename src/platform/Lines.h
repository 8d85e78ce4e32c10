// A list box as the rules see it. Each line is handed over as soon as it is made, so the lines that came
// before a failure stay on the screen.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace sorvane {

class Lines {
  public:
    virtual ~Lines() = default;
    virtual void AddItem(std::string_view text) = 0;
    virtual void Clear() = 0;
    virtual int ListCount() const = 0;
};

// Keeps the lines in memory.
class LineList final : public Lines {
  public:
    void AddItem(std::string_view text) override { items.emplace_back(text); }
    void Clear() override { items.clear(); }
    int ListCount() const override { return static_cast<int>(items.size()); }
    std::vector<std::string> items;
};

}  // namespace sorvane

// What a list box is to a rule: lines are handed over as they come, so that what was shown before a failure
// stays.
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

// Lines kept in memory.
class LineList final : public Lines {
  public:
    void AddItem(std::string_view text) override { items.emplace_back(text); }
    void Clear() override { items.clear(); }
    int ListCount() const override { return static_cast<int>(items.size()); }
    std::vector<std::string> items;
};

}  // namespace sorvane

// The box that a text report stands in.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "forms/MultiLineBox.h"

namespace sorvane {

// Read-only, in a fixed-pitch font, as wide as the longest line of any report where there is room; hidden
// until it is shown.
class ReportBox final : public forms::MultiLineBox {
  public:
    explicit ReportBox(std::string_view name);

    // Runs `write` on a copy of the text and shows what came of it, once; also when `write` raises, which
    // then goes on to the caller.
    void Write(const std::function<void(std::string& text)>& write);

    QSize sizeHint() const override;

  private:
    // The size that shows so many lines of so many characters.
    QSize SizeFor(int columns, int lines) const;
};

}  // namespace sorvane

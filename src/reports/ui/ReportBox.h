// The box that a text report stands in.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "forms/MultiLineBox.h"

namespace sorvane {

// Read-only, in a fixed-pitch font, wide enough for the longest line of any report; hidden until it is shown.
class ReportBox final : public forms::MultiLineBox {
  public:
    explicit ReportBox(std::string_view name);

    // Runs `write` on a copy of the text and shows what came of it, once; also when `write` raises, which
    // then goes on to the caller.
    void Write(const std::function<void(std::string& text)>& write);

    QSize sizeHint() const override;

  private:
    // Room for the longest line and so many lines.
    QSize SizeFor(int lines) const;
};

}  // namespace sorvane

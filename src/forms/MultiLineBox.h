// A field of several lines.
#pragma once

#include <QPlainTextEdit>

#include "forms/Control.h"
#include "forms/KeyFilter.h"

namespace sorvane::forms {

// Line breaks are carriage return and line feed in what goes in and comes out. Tab leaves the field.
class MultiLineBox : public KeyFilter<QPlainTextEdit>, public Control {
  public:
    explicit MultiLineBox(std::string_view name);

    std::string Text() const;
    void SetText(std::string_view text);
    void OnChange(std::function<void()> handler) { change_ = std::move(handler); }
    void SetReadOnly(bool readOnly);
    // A font whose characters are all of one width; lines are not wrapped then.
    void SetFixedPitch();

  private:
    std::function<void()> change_;
};

}  // namespace sorvane::forms

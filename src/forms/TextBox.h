// A field of one line.
#pragma once

#include "forms/Control.h"
#include "forms/KeyFilter.h"
#include "forms/SelectingEdit.h"

namespace sorvane::forms {

class TextBox : public KeyFilter<SelectingEdit>, public Control {
  public:
    explicit TextBox(std::string_view name);

    std::string Text() const;
    // Fires Change when the text becomes another one.
    void SetText(std::string_view text);
    // Change: the text has become another one, by the user or by the program.
    void OnChange(std::function<void()> handler) { change_ = std::move(handler); }

    // Selects the whole text, as the keys {Home}+{End} do; holds also when a mouse press brought the focus.
    void SelectAll();
    // Puts the caret before the character at `position` (0: before the first) and selects nothing.
    void SetCaret(int position);
    // The most characters that can be typed; 0: no limit.
    void SetMaxLength(int characters);
    int MaxLength() const;

  private:
    std::function<void()> change_;
};

}  // namespace sorvane::forms

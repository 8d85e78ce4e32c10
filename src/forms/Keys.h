// Keys as KeyPress knows them, and how a field refuses one.
#pragma once

#include <string_view>

#include "forms/TextBox.h"
#include "platform/Services.h"

namespace sorvane::forms {

inline constexpr int Backspace = 8;
inline constexpr int EnterKey = 13;
constexpr bool IsDigit(int key) { return key >= '0' && key <= '9'; }
// What a field of digits takes.
constexpr bool IsDigitOrBackspace(int key) { return IsDigit(key) || key == Backspace; }

// The box of a key that is refused in a field of digits; its icon is told where it is shown.
inline constexpr std::string_view NotANumber = "Please enter a valid number greater than or equal to 1.";
inline constexpr std::string_view KeyErrorTitle = "Error!";

// Shows that box with the exclamation icon, empties the field, swallows the key, and asks for the focus on
// the field.
void RefuseKey(Dialogs& dialogs, TextBox& field, KeyPress& key);

}  // namespace sorvane::forms

// Text: conversions and picture formats. Nothing here depends on the process's locale. Texts are UTF-8;
// positions and lengths count characters of the ASCII range (the program's own texts and the digits typed).
#pragma once

#include <string>
#include <string_view>

#include "platform/Currency.h"
#include "platform/Date.h"
#include "platform/Integer.h"

namespace sorvane {

// The number that the text begins with (blanks before it are passed over), 0 when there is none: Val("12abc")
// is 12. Never raises; beyond the range of a double it is the largest one.
double Val(std::string_view text);

// The text as a number: the whole text, as Currency::FromText reads it; else raises 13, too large 6.
double CDbl(std::string_view text);

// The same rounded half to even into 16 bits; text that is no number raises 13, too large 6.
Integer CInt(std::string_view text);

// The whole part of the text's number, downwards, in 16 bits; text that is no number raises 13, too large 6.
Integer IntegerPart(std::string_view text);

// Plain decimal text of a whole number, without blanks.
std::string Str(long number);

// Whether this byte of a text in UTF-8 is the first one of a character.
constexpr bool BeginsCharacter(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U; }

inline int Len(std::string_view text) { return static_cast<int>(text.size()); }
// `length` characters from the 1-based `start`; what lies behind the end is left out. start below 1 or length
// below 0 raises 5.
std::string Mid(std::string_view text, int start, int length);
// Without the blanks and tabs at both ends.
std::string_view TrimBlanks(std::string_view text);

// The amount through a picture of '#' (a digit where the amount has one), '0' (a digit in any case), ',' in
// the whole part (thousands are parted), '.', and literal signs before and behind them. A second section
// behind ';' is for negative amounts, which it shows without a sign; without one a negative amount gets a
// leading '-'. An amount that rounds to zero shows as zero, never negative. Rounds half away from zero to as
// many decimals as the picture has places. Anything else in a picture raises 5.
// Pictures in use: "###,###,##0.00", "###,###,##0.00;(###,###,##0.00)", "###,###,###.00;(###,###,###.00)",
// "##,###,##0.00", "##,###,##0.00;(##,###,##0.00)", "###.#0", "###.00".
std::string Format(Currency amount, std::string_view picture);

// The text behind blanks until it is at least `width` characters long ("@@@@@@@@" is width 8).
std::string PadLeft(std::string_view text, int width);

// The number behind what the line holds already, with the separator between.
void AppendNumber(std::string& line, int number, std::string_view separator = ", ");

// number(0) to number(count - 1), joined; no separator behind the last.
template <class Number>
std::string JoinNumbers(int count, const Number& number, std::string_view separator = ", ") {
    std::string line;
    for (int i = 0; i < count; ++i) AppendNumber(line, number(i), separator);
    return line;
}

}  // namespace sorvane

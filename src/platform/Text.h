// Text: conversions and picture formats. Nothing here depends on the process's locale. Texts are UTF-8;
// positions and lengths count characters of the ASCII range (the program's own texts and the digits typed).
#pragma once

#include <string>
#include <string_view>

#include "platform/Currency.h"
#include "platform/Date.h"
#include "platform/Integer.h"

namespace sorvane {

// The number at the beginning of the text (blanks before it are skipped), 0 when there is none: Val("12abc")
// is 12. Never raises; a number too large for a double gives the largest double.
double Val(std::string_view text);

// The whole text as a number, in the form that Currency::FromText reads. Raises 13 for any other text and 6
// for a number that is too large.
double CDbl(std::string_view text);

// The same, rounded half to even to 16 bits. Raises 13 and 6 as CDbl does.
Integer CInt(std::string_view text);

// The same, rounded down to 16 bits. Raises 13 and 6 as CDbl does.
Integer IntegerPart(std::string_view text);

// Plain decimal text of a whole number, without blanks.
std::string Str(long number);

// Whether this byte of a UTF-8 text is the first byte of a character.
constexpr bool BeginsCharacter(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U; }
// How many characters a UTF-8 text has, those beyond ASCII too.
int CharactersOf(std::string_view utf8);

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

// The text with as many blanks before it as make it `width` characters long ("@@@@@@@@" is width 8). A longer
// text is returned unchanged.
std::string PadLeft(std::string_view text, int width);

// Adds the number to the line, and the separator before it unless the line is empty.
void AppendNumber(std::string& line, int number, std::string_view separator = ", ");

// number(0) to number(count - 1), with the separator between them.
template <class Number>
std::string JoinNumbers(int count, const Number& number, std::string_view separator = ", ") {
    std::string line;
    for (int i = 0; i < count; ++i) AppendNumber(line, number(i), separator);
    return line;
}

}  // namespace sorvane

// A decimal number as a text states it: the one grammar behind all conversions of whole texts.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace sorvane {

// Digits of any count on both sides of the point; at least one digit in all.
struct Decimal {
    bool negative = false;
    std::string whole;
    std::string fraction;

    // The whole text: blanks around it, one sign, digits, a point. Commas may stand where thousands part: one
    // to three digits before the first, three behind each ("1,000.50", but neither "1,50" nor "1234,567").
    // Nothing when the text is anything else.
    static std::optional<Decimal> Read(std::string_view text);
    // The number that the text begins with, blanks before it passed over, without commas. Nothing when the
    // text begins with none.
    static std::optional<Decimal> ReadPrefix(std::string_view text);

    // The number times ten to the power `places`, rounded half to even. Raises 6 beyond 64 bits.
    std::int64_t Scaled(std::size_t places) const;
    // The nearest double; infinite beyond the largest.
    double ToDouble() const;
};

}  // namespace sorvane

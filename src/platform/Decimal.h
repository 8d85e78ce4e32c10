// Reads decimal numbers from texts. All conversions of texts to numbers use this one grammar.
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
    // The number at the beginning of the text; blanks before it are skipped, and it has no commas. Nothing
    // when the text does not begin with a number.
    static std::optional<Decimal> ReadPrefix(std::string_view text);

    // The number times ten to the power `places`, rounded half to even. Raises 6 beyond 64 bits.
    std::int64_t Scaled(std::size_t places) const;
    // The nearest double; infinity when the number is larger than any double.
    double ToDouble() const;
};

}  // namespace sorvane

// Money: fixed point with four decimals.
#pragma once

#include <compare>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace sorvane {

// An exact count of ten-thousandths in 64 bits. Arithmetic beyond the range raises error 6.
class Currency {
  public:
    static constexpr std::int64_t Scale = 10'000;
    static constexpr std::size_t Decimals = 4;

    constexpr Currency() = default;
    static constexpr Currency FromTenThousandths(std::int64_t count) {
        Currency amount;
        amount.count_ = count;
        return amount;
    }
    static Currency FromInt(std::int64_t whole);

    // The amount of a text: blanks around it, a sign, thousands commas (where thousands part, nowhere else)
    // and a decimal point convert; more than four decimals round half to even. Text that is no amount (empty,
    // ".", "12abc", "1,50") raises 13; too large is 6.
    static Currency FromText(std::string_view text);

    constexpr std::int64_t TenThousandths() const { return count_; }
    // The ten-thousandths without their sign.
    std::uint64_t Magnitude() const;

    // Plain decimal text without needless zeros: "5", "0.5", "-12.3456".
    std::string ToText() const;

    Currency operator+(Currency other) const;
    Currency operator-(Currency other) const;
    Currency operator*(int factor) const;
    Currency& operator+=(Currency other) { return *this = *this + other; }
    friend constexpr auto operator<=>(Currency, Currency) = default;

  private:
    std::int64_t count_ = 0;
};

}  // namespace sorvane

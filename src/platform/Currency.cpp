#include "platform/Currency.h"

#include <limits>
#include <optional>

#include "platform/Decimal.h"
#include "platform/RunTimeError.h"

namespace sorvane {

namespace {

constexpr std::int64_t Largest = std::numeric_limits<std::int64_t>::max();
constexpr std::int64_t Smallest = std::numeric_limits<std::int64_t>::min();

constexpr std::uint64_t MagnitudeOf(std::int64_t number) {
    const auto bits = static_cast<std::uint64_t>(number);
    return number < 0 ? 0 - bits : bits;
}

std::int64_t Product(std::int64_t a, std::int64_t b) {
    const bool negative = (a < 0) != (b < 0);
    const std::uint64_t limit = negative ? MagnitudeOf(Smallest) : MagnitudeOf(Largest);
    const std::uint64_t x = MagnitudeOf(a);
    const std::uint64_t y = MagnitudeOf(b);
    if (y != 0 && x > limit / y) Raise(ErrorNumber::Overflow);
    return static_cast<std::int64_t>(negative ? 0 - x * y : x * y);
}

}  // namespace

Currency Currency::FromInt(std::int64_t whole) { return FromTenThousandths(Product(whole, Scale)); }

Currency Currency::FromText(std::string_view text) {
    const std::optional<Decimal> number = Decimal::Read(text);
    if (!number) Raise(ErrorNumber::TypeMismatch);
    return FromTenThousandths(number->Scaled(Decimals));
}

std::uint64_t Currency::Magnitude() const { return MagnitudeOf(count_); }

std::string Currency::ToText() const {
    const auto scale = static_cast<std::uint64_t>(Scale);
    std::string text = count_ < 0 ? "-" : "";
    text += std::to_string(Magnitude() / scale);
    if (Magnitude() % scale == 0) return text;
    std::string fraction = std::to_string(scale + Magnitude() % scale);
    fraction.front() = '.';
    fraction.erase(fraction.find_last_not_of('0') + 1);
    return text + fraction;
}

Currency Currency::operator+(Currency other) const {
    const bool fits = other.count_ > 0 ? count_ <= Largest - other.count_ : count_ >= Smallest - other.count_;
    if (!fits) Raise(ErrorNumber::Overflow);
    return FromTenThousandths(count_ + other.count_);
}

Currency Currency::operator-(Currency other) const {
    const bool fits = other.count_ < 0 ? count_ <= Largest + other.count_ : count_ >= Smallest + other.count_;
    if (!fits) Raise(ErrorNumber::Overflow);
    return FromTenThousandths(count_ - other.count_);
}

Currency Currency::operator*(int factor) const { return FromTenThousandths(Product(count_, factor)); }

}  // namespace sorvane

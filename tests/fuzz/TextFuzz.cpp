// Every conversion of a text, with whatever text the fuzzer makes up: nothing but the errors 5, 6 and 13 may
// leave them, and what converts must convert back.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>

#include "platform/Currency.h"
#include "platform/Date.h"
#include "platform/RunTimeError.h"
#include "platform/Text.h"

namespace {

using namespace sorvane;

void Require(bool holds) {
    if (!holds) std::abort();
}

constexpr std::string_view Pictures[] = {"###,###,##0.00;(###,###,##0.00)", "###,###,###.00;(###,###,###.00)",
                                         "##,###,##0.00", "###.#0", "###.00"};

void Amounts(std::string_view text) {
    const Currency amount = Currency::FromText(text);
    Require(Currency::FromText(amount.ToText()) == amount);
    for (const std::string_view picture : Pictures) Require(!Format(amount, picture).empty());
}

void Dates(std::string_view text) { Require(Date::FromText(text).ToText() == text); }

void Integers(std::string_view text) {
    const Integer number = CInt(text);
    Require(CInt(Str(number)) == number);
}

// The first bytes choose an amount, the rest is its picture.
void AnyPicture(std::string_view text) {
    std::uint64_t bits = 0;
    for (const char byte : text.substr(0, sizeof bits)) bits = bits << 8 | static_cast<unsigned char>(byte);
    const auto amount = Currency::FromTenThousandths(static_cast<std::int64_t>(bits));
    Format(amount, text.substr(std::min(text.size(), sizeof bits)));
}

void Pieces(std::string_view text) {
    const int start = text.empty() ? 0 : static_cast<signed char>(text.front());
    const int length = text.empty() ? 0 : static_cast<signed char>(text.back());
    Require(PadLeft(text, length).size() >= text.size());
    Require(TrimBlanks(text).size() <= text.size());
    Require(Mid(text, start, length).size() <= text.size());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const double value = Val(text);
    Require(value - value == 0);
    for (const auto conversion : {Amounts, Dates, Integers, AnyPicture, Pieces})
        Ignoring({5, 6, 13}, [&] { conversion(text); });
    Ignoring({5, 6, 13}, [&] { CDbl(text); });
    return 0;
}

// From the text of a cell to a value, and back.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/Currency.h"
#include "platform/Date.h"
#include "records/Csv.h"
#include "records/Tables.h"

namespace sorvane::Records {

// In which order a date that is all digits names its parts, where it doesn't begin with the year.
enum class DateOrder { MonthFirst, DayFirst };

// 2026-11-21, 2026/11/21, 20261121; 11/21/2026, 11/21/26, 11-21-2026 (or the day first); 21.11.2026, where
// the day always comes first; 21 Nov 2026, Nov 21, 2026, 21-Nov-26. A name of the weekday and a time of day
// may stand beside it and are left aside. Two digits of a year mean 1930 to 2029.
std::optional<Date> ReadDate(std::string_view text, DateOrder order = DateOrder::MonthFirst);

// true, false, yes, no, on, off, y, n, t, f, x, 1, 0, -1, whatever the case.
std::optional<bool> ReadMark(std::string_view text);
// A whole number with nothing else beside it.
std::optional<long> ReadWhole(std::string_view text);
// "4", "4.50", "$1,250.00".
std::optional<Currency> ReadAmount(std::string_view text);

// The value that a cell states for a field. An empty cell is nothing (a mark: false), but an empty text in
// quotes. Nothing, with `wrong` told, when the text is nothing of the field's kind.
std::optional<Dao::Value> ReadCell(const Field& field, const CsvCell& cell, std::string& wrong);

// As an export writes it: dates as 2026-11-21, marks as true and false, amounts plain, nothing as nothing.
std::string WriteCell(const Dao::Value& value);

}  // namespace sorvane::Records

#include "store/dao/Column.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

#include "platform/RunTimeError.h"
#include "platform/Text.h"

namespace sorvane::Dao {

namespace {

struct TypeName {
    FieldType type;
    std::string_view name;
    int size;  // stands in brackets behind the name; -1 for the field's own
};
constexpr std::array<TypeName, 6> TypeNames = {{
    {FieldType::Boolean, "BOOLEAN", 0},
    {FieldType::Integer, "INTEGER", 16},
    {FieldType::Long, "LONG", 0},
    {FieldType::Currency, "CURRENCY", 0},
    {FieldType::Date, "DATETIME", 0},
    {FieldType::Text, "TEXT", -1},
}};

constexpr std::int64_t LargestAmount = std::numeric_limits<std::int64_t>::max() / Currency::Scale;

bool SameName(std::string_view a, std::string_view b) {
    return a.size() == b.size() && sqlite3_strnicmp(a.data(), b.data(), static_cast<int>(a.size())) == 0;
}

// A fraction is stored as the binary number nearest to it, which must lead back to the same amount.
Cell CellOf(Currency amount) {
    const std::int64_t count = amount.TenThousandths();
    const std::int64_t whole = count / Currency::Scale;
    if (whole * Currency::Scale == count) return whole;
    constexpr std::int64_t ExactInDouble = std::int64_t{1} << 53;
    if (count > -ExactInDouble && count < ExactInDouble)
        return static_cast<double>(count) / static_cast<double>(Currency::Scale);
    return static_cast<double>(whole) +
           static_cast<double>(count % Currency::Scale) / static_cast<double>(Currency::Scale);
}

bool IsStorable(Currency amount) {
    const Cell cell = CellOf(amount);
    const auto* number = std::get_if<double>(&cell);
    return number == nullptr || AmountOf(*number) == amount;
}

// Hands over what is stored for a value that has been converted: one kind of a cell, or a cell.
template <class Take>
void Store(const Value& value, Take take) {
    struct Storer {
        Take& take;
        void operator()(std::monostate null) const { take(null); }
        void operator()(bool flag) const { take(std::int64_t{flag}); }
        void operator()(std::int64_t number) const { take(number); }
        void operator()(double number) const { take(number); }
        void operator()(Currency amount) const { take(CellOf(amount)); }
        void operator()(Date date) const { take(date.Days()); }
        void operator()(const std::string& text) const { take(text); }
    };
    std::visit(Storer{take}, value.Get());
}

Value InOwnType(const Value& value, const Column& column) {
    if (value.IsNull()) return column.type == FieldType::Boolean ? Value(false) : Value();
    switch (column.type) {
        case FieldType::Boolean:
            return value.ToBool();
        case FieldType::Integer:
            return value.ToInteger();
        case FieldType::Long:
            return value.ToInt();
        case FieldType::Currency: {
            const Currency amount = value.ToCurrency();
            if (!IsStorable(amount)) Raise(ErrorNumber::Conversion);
            return amount;
        }
        case FieldType::Date: {
            const Date date = value.ToDate();
            if (!IsDate(date.Days())) Raise(ErrorNumber::Conversion);
            return date;
        }
        case FieldType::Text: {
            std::string text = value.ToText();
            if (column.size > 0 && CharactersOf(text) > column.size) Raise(ErrorNumber::TextTooLong);
            return text;
        }
        case FieldType::Other:
            break;
    }
    return value;
}

Value ReadInteger(std::int64_t number, FieldType type) {
    switch (type) {
        case FieldType::Boolean:
            return number != 0;
        case FieldType::Currency:
            if (number < -LargestAmount || number > LargestAmount) break;
            return Currency::FromTenThousandths(number * Currency::Scale);
        case FieldType::Date:
            if (!IsDate(static_cast<double>(number))) break;
            return Date::FromDays(static_cast<double>(number));
        default:
            break;
    }
    return number;
}

Value ReadDouble(double number, FieldType type) {
    if (type == FieldType::Boolean) return number != 0;
    if (type == FieldType::Date && IsDate(number)) return Date::FromDays(number);
    if (type == FieldType::Currency) {
        if (const auto amount = AmountOf(number)) return *amount;
    }
    return number;
}

}  // namespace

bool IsDate(double days) {
    constexpr double FirstDay = -657'434, LastDay = 2'958'465;
    return days >= FirstDay && days < LastDay + 1;
}

std::optional<Currency> AmountOf(double number) {
    if (!(std::fabs(number) < static_cast<double>(LargestAmount))) return std::nullopt;
    const double whole = std::trunc(number);
    const double rest = std::nearbyint((number - whole) * static_cast<double>(Currency::Scale));
    return Currency::FromTenThousandths(static_cast<std::int64_t>(whole) * Currency::Scale +
                                        static_cast<std::int64_t>(rest));
}

std::string DeclaredType(FieldType type, int size) {
    const auto* const entry = std::find_if(TypeNames.begin(), TypeNames.end(),
                                           [type](const TypeName& name) { return name.type == type; });
    std::string declared(entry->name);
    const int shown = entry->size < 0 ? size : entry->size;
    if (shown > 0) declared.append("(").append(std::to_string(shown)).append(")");
    return declared;
}

Column ColumnOf(std::string name, std::string_view declared) {
    const std::size_t bracket = declared.find('(');
    const std::string_view base = declared.substr(0, bracket);
    int size = 0;
    if (bracket != std::string_view::npos)
        std::from_chars(declared.data() + bracket + 1, declared.data() + declared.size(), size);
    for (const TypeName& entry : TypeNames) {
        if (SameName(base, entry.name) && (entry.size < 0 || entry.size == size))
            return {std::move(name), entry.type, size};
    }
    return {std::move(name), FieldType::Other, 0};
}

int OrdinalOf(const std::vector<Column>& columns, std::string_view name) {
    const auto found = std::find_if(columns.begin(), columns.end(),
                                    [name](const Column& column) { return SameName(column.name, name); });
    if (found == columns.end()) Raise(ErrorNumber::NoSuchField);
    return static_cast<int>(found - columns.begin());
}

Value Converted(const Value& value, const Column& column) {
    try {
        return InOwnType(value, column);
    } catch (const RunTimeError& error) {
        Raise(error.Number() == ErrorNumber::TextTooLong ? ErrorNumber::TextTooLong
                                                         : ErrorNumber::Conversion);
    }
}

Cell ToCell(const Value& value) {
    Cell cell;
    Store(value, [&cell](const auto& stored) { cell = stored; });
    return cell;
}

void Bind(Statement& statement, int parameter, const Value& value) {
    Store(value, [&](const auto& stored) { statement.Bind(parameter, stored); });
}

Value ReadValue(sqlite3_value* cell, FieldType type) {
    switch (sqlite3_value_type(cell)) {
        case SQLITE_INTEGER:
            return ReadInteger(sqlite3_value_int64(cell), type);
        case SQLITE_FLOAT:
            return ReadDouble(sqlite3_value_double(cell), type);
        case SQLITE_NULL:
            return type == FieldType::Boolean ? Value(false) : Value();
        default:
            return TextOf(cell);
    }
}

}  // namespace sorvane::Dao

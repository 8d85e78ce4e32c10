// The fields of a table as the file declares them, and the conversions between a value and what is stored.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "store/dao/Dao.h"
#include "store/dao/Sqlite.h"

namespace sorvane::Dao {

struct Column {
    std::string name;
    FieldType type = FieldType::Other;
    int size = 0;  // of a text, in characters; 0 for no limit
};

// Whether that many days are a date of the years 100 to 9999.
bool IsDate(double days);
// The amount nearest to a binary number, if it is within reach.
std::optional<Currency> AmountOf(double number);

// The type's name as it stands in the file: "INTEGER(16)", "TEXT(30)".
std::string DeclaredType(FieldType type, int size);
// The field that a declared type stands for; any that the program does not write is Other.
Column ColumnOf(std::string name, std::string_view declared);

// The ordinal of the name, whatever its case; raises 3265.
int OrdinalOf(const std::vector<Column>& columns, std::string_view name);

// The value in the field's own type, or Null. Raises 3421 and 3163.
Value Converted(const Value& value, const Column& column);
// What is stored for a value that has been converted; and the same bound to a parameter, from 1.
Cell ToCell(const Value& value);
void Bind(Statement& statement, int parameter, const Value& value);
// The value of a stored cell. What does not fit the field's type comes as it is stored.
Value ReadValue(sqlite3_value* cell, FieldType type);

}  // namespace sorvane::Dao

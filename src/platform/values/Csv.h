#pragma once

#include <string>
#include <string_view>

#include "platform/values/Value.h"

namespace platform {

// Adds a value to a line as a cell of RFC 4180 CSV, from which every value reads back the same:
// text always quoted, null as an empty unquoted field, money with four decimals, doubles in their
// shortest form, booleans True and False, dates mm/dd/yyyy.
void AppendCsvCell(std::string& line, const Value& value);
std::string CsvCell(const Value& value);

/// Returns a text or a column's name in quotes, with its own quotes doubled.
std::string CsvText(std::string_view text);

} // namespace platform

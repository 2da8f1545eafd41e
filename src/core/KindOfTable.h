#pragma once

#include <cstdint>
#include <string_view>

namespace core {

/// Returns the kind whose records are the rows of a table, by its name in any case; kNone for a
/// table whose rows are not records of a kind.
std::int16_t KindOfTable(std::string_view table);

} // namespace core

#pragma once

#include <cstdint>

namespace core {

/// Informs the user if a screen that looked for one record found none, or several of the same
/// number. `count` is the result of OpenRecordset. Returns true if there is a row to show.
bool OneRecordFound(std::int64_t count);

} // namespace core

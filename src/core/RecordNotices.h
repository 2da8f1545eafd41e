#pragma once

#include <cstdint>

namespace core {

/// Tells the person when a screen that looked for one record found none, or several of the same
/// number. `count` is what OpenRecordset answered; true when there is a row to show, the first.
bool OneRecordFound(std::int64_t count);

} // namespace core

#pragma once

#include <cstdint>

namespace core {

/// Returns the whole minutes from 1/1/2000 to now: the first record identifier of books that are
/// created now.
std::int32_t MinutesSince2000();

} // namespace core

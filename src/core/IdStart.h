#pragma once

#include <cstdint>

namespace core {

/// Whole minutes from 1/1/2000 to now: the first record identifier of books made now.
std::int32_t MinutesSince2000();

} // namespace core

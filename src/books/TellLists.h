#pragma once

#include <cstdint>
#include <initializer_list>

namespace books {

/// Broadcasts that records of these kinds changed; within a unit of work, once it is committed.
void TellLists(std::initializer_list<std::int16_t> kinds);

} // namespace books

#pragma once

#include <cstdint>
#include <initializer_list>

namespace books {

/// Tells the open screens that records of these kinds changed, unless a unit of work is open: what
/// isn't kept yet is told by the routine that keeps it.
void TellLists(std::initializer_list<std::int16_t> kinds);

} // namespace books

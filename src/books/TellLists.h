#pragma once

#include <cstdint>
#include <initializer_list>

namespace books {

/// Tells the open screens that records of these kinds changed; in a unit of work, once it is kept.
void TellLists(std::initializer_list<std::int16_t> kinds);

} // namespace books

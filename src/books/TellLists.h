#pragma once

#include <initializer_list>

#include "core/RecordKinds.h"

namespace books {

/// Broadcasts that records of these kinds changed; within a unit of work, once it is committed.
void TellLists(std::initializer_list<core::RecordKind> kinds);

} // namespace books

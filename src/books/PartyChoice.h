#pragma once

#include <cstdint>

#include "core/ChoiceList.h"

namespace books {

/// The id of the party that a From or To box names: that of the selected row. A typed name is only
/// a name (0), unless it is the first row's but for its case; one that is a later row's stays a
/// name, so that a person who types can say somebody new.
std::int32_t PartyIdOf(const core::ChoiceList& box);

} // namespace books

#pragma once

#include <cstdint>

#include "core/ChoiceList.h"

namespace books {

/// Returns the id of the party in a From or To box: the selected row's id. Typed text is a mere
/// name (0), unless it equals the first row's text, ignoring case. If it equals a later row's text
/// it is still a mere name, so that the user can type someone new of the same name.
std::int32_t PartyIdOf(const core::ChoiceList& box);

} // namespace books

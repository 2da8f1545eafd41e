#pragma once

#include <cstdint>
#include <string>

#include "core/RecordKinds.h"

namespace removal {

/// Returns the text by which a user knows a record, for the question before it is deleted; empty if
/// it has none.
std::string RecordTitle(core::RecordKind kind, std::int32_t id);

} // namespace removal

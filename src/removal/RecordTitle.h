#pragma once

#include <cstdint>
#include <string>

namespace removal {

/// Returns the text by which a user knows a record, for the question before it is deleted; empty if
/// it has none.
std::string RecordTitle(std::int16_t kind, std::int32_t id);

} // namespace removal

#pragma once

#include <string_view>

#include "core/RecordKinds.h"

namespace shell {

/// The colour of a status cell: yellow if it needs attention, red if it is worse.
enum class Mark { None, Yellow, Red };

/// Returns the column of a view whose cells are marked, counted from the id column; -1 if there is
/// none.
int MarkedColumn(core::RecordKind kind);

/// Returns the mark of a status in that column. A mortgage turns red when it is late, a lease only
/// with a warning or an eviction.
Mark MarkOf(core::RecordKind kind, std::string_view word);

} // namespace shell

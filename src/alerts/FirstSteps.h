#pragma once

#include <string_view>

#include "core/RecordKinds.h"

namespace alerts {

/// The next step in books that are still being set up.
struct FirstStep {
    std::string_view text;
    /// The text of the command that does this step, and the kind of record that it adds.
    std::string_view command;
    core::RecordKind kind = core::kNone;
};

/// Returns the next step in books without a lease and without a mortgage: a building, then a
/// tenant, then a lease. Returns null once there is a lease or a mortgage, and if the books can't
/// be read.
const FirstStep* NextFirstStep();

} // namespace alerts

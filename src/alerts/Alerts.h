#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/RecordKinds.h"

namespace alerts {

/// One line of what needs attention: its record (kind and id, 0 if there is no record), its text,
/// and the name of its picture.
struct AlertItem {
    core::RecordKind recordKind = core::kNone;
    std::int32_t recordId = 0;
    std::string text;
    std::string_view picture;
};

/// Returns what needs attention today, found in the records in a fixed order of causes, each only
/// if its preference is on. A cause whose query fails is left out. Messages of automated events
/// that have been kept for their days, or that have no valid date, are deleted after they are
/// listed. Throws Error, which names the record, if a due date is not a valid date.
std::vector<AlertItem> GetAlerts();

} // namespace alerts

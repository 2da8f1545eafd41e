#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace alerts {

/// One line of what needs attention: the record that it is about (kind and id, 0 for none), the
/// line, and the word of its picture.
struct AlertItem {
    std::int16_t recordKind = 0;
    std::int32_t recordId = 0;
    std::string text;
    std::string_view picture;
};

/// What needs attention today, worked out anew from the records in a fixed order of causes, each
/// only if its preference is on. A cause whose query fails is left out. Messages of automatic
/// events that have been kept for their days are removed after they are listed. A due date that is
/// no date is a ConversionError or FieldError.
std::vector<AlertItem> GetAlerts();

} // namespace alerts

#pragma once

#include <string_view>

#include "core/RecordKinds.h"
#include "platform/database/FieldReadings.h"

namespace core {

/// Returns the kind whose records are the rows of a table, by its name in any case; kNone for a
/// table whose rows are not records of a kind.
RecordKind KindOfTable(std::string_view table);

/// Returns the kind whose number a field holds; kNone if the field is unset. Throws FieldError if
/// it isn't a number.
inline RecordKind KindOf(const platform::Field& field) {
    return platform::AsOr0<RecordKind>(field);
}

} // namespace core

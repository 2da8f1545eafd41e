#pragma once

#include <cstdint>

#include "core/RecordKinds.h"
#include "platform/database/Recordset.h"

namespace documents {

/// Returns whether letters can be merged for records of this kind.
bool HasMergeSource(core::RecordKind kind);

/// Opens the row that templates of this kind are merged with: the record's fields, the fields of
/// the records it refers to, and for most kinds a `Description`. Buildings (28), units (29) and
/// both together (39) take a unit's id. There is no current row if the record doesn't exist;
/// `fields` stays closed for a kind without letters. Throws on failure.
void OpenMergeSource(platform::Recordset& fields, core::RecordKind kind, std::int32_t id);

} // namespace documents

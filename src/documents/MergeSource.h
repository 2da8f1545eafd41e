#pragma once

#include <cstdint>

#include "platform/database/Recordset.h"

namespace documents {

/// Whether letters can be merged for records of this kind.
bool HasMergeSource(std::int16_t kind);

/// Opens the row that a template of this kind is merged with: the record's fields, those of the
/// records that it names, and for most kinds a `Description`. Buildings (28), units (29) and both
/// together (39) take a unit's id. No current row if there is no such record; left closed for a
/// kind without letters. Throws on failure.
void OpenMergeSource(platform::Recordset& fields, std::int16_t kind, std::int32_t id);

} // namespace documents

#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "core/RecordKinds.h"

namespace core {

/// Returns a line of text that describes a record, cut to `maxLength` characters unless that is 0;
/// in the short form, a building has only its address. Empty for a kind without descriptions, if
/// there is no such record, if a part of the line is null, and on failure.
std::string GetDescription(RecordKind kind, std::int32_t id, std::size_t maxLength = 0,
                           bool shortForm = false);

/// Returns a text that always names the record, for a list that must show it: its description
/// without the parts that are null; "Tenant no. 31" if all of them are null, and "Tenant no. 31
/// (deleted)" if there is no such record. The kinds that filter a list (31 and up) name accounts
/// and buildings. Empty for id 0.
std::string NameOfRecord(RecordKind kind, std::int32_t id);

/// Returns whether the books hold a record of this id. If the lists of a kind offer records of
/// another kind (owners are accounts), it looks for those; a kind without records of its own has
/// none. Throws on failure.
bool RecordExists(RecordKind kind, std::int32_t id);

} // namespace core

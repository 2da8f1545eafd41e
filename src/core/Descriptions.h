#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace core {

/// A line of text for a record, cut to `maxLength` characters unless that is 0; a building's is its
/// address alone in the short form. Empty for a kind without descriptions, when there is no such
/// record, when a part of the line is null, and on failure.
std::string GetDescription(int kind, std::int32_t id, std::size_t maxLength = 0,
                           bool shortForm = false);

/// A text that names the record in any case, for a list that must show it: its description, with
/// what is null left out; "Tenant no. 31" if nothing of it is set, and "Tenant no. 31 (deleted)" if
/// there is no such record. The kinds that filter a list (31 and up) name accounts and buildings.
/// Empty for id 0.
std::string NameOfRecord(int kind, std::int32_t id);

/// Returns whether the books hold a record of this id. A kind whose lists offer the records of
/// another kind (owners are accounts) means those; a kind without records of its own has none.
/// Throws on failure.
bool RecordExists(int kind, std::int32_t id);

} // namespace core

#pragma once

#include <cstdint>
#include <vector>

#include "core/ChoiceList.h"
#include "core/Rows.h"
#include "records/RelatedLists.h"

namespace records {

// Contacts belong to a record of any kind that has an id. All of these throw on failure.

/// Returns the contacts of a record, sorted by description.
std::vector<core::Choice> ListContacts(const RelatedOwner& owner);

/// Adds a contact and returns its id.
std::int32_t AddContact(const RelatedOwner& owner);

/// Opens a contact's row for writing, or a new one's with id 0. A contact deleted in the meantime
/// is added again under its id.
core::RowToWrite OpenContact(std::int32_t idContact, const RelatedOwner& owner);

/// Deletes a contact after asking; returns false if the user declines.
bool DeleteContact(std::int32_t idContact);

} // namespace records

#pragma once

#include <cstdint>
#include <vector>

#include "core/ChoiceList.h"
#include "platform/database/Recordset.h"
#include "records/RelatedLists.h"

namespace records {

// Contacts hang from a record of any kind that has an id. Failures are thrown.

/// The contacts of a record in the order of their description.
std::vector<core::Choice> ListContacts(const RelatedOwner& owner);

/// Writes a new contact at once, and answers its id.
std::int32_t AddContact(const RelatedOwner& owner);

/// Opens a contact's row to write it; one that has gone comes back under its number.
void OpenContact(platform::Recordset& row, std::int32_t idContact, const RelatedOwner& owner);

/// Asks, and removes a contact; false when it stays.
bool DeleteContact(std::int32_t idContact);

} // namespace records

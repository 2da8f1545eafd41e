#pragma once

#include <cstdint>
#include <functional>
#include <string_view>

#include "core/RecordKinds.h"
#include "platform/values/Value.h"

namespace removal {

/// Whether the user is asked first. Never asks if the preference ConfirmDelete is off.
enum class Confirm { Ask, DontAsk };

/// Whether the open screens are notified of what was deleted.
enum class Tell { Screens, Nobody };

/// Asks, then removes the record together with the records that can't exist without it: the links
/// of an account to buildings, the leases of a tenant and of a unit, the units of a building, and
/// the building of its last unit. Returns true if it was removed, false if the user said No and for
/// id 0.
///
/// Throws on failure. What was removed before the failure stays removed; only if the machine stops
/// midway are the books as before.
bool DeleteRecord(core::RecordKind kind, std::int32_t id, Confirm confirm = Confirm::Ask,
                  Tell tell = Tell::Screens);

/// Called before a building is removed, after the user has agreed; false keeps the building.
using BeforeBuilding = std::function<bool()>;
/// Sets this step for the process; an empty one removes it.
void SetBeforeBuilding(BeforeBuilding step);

/// Asks as DeleteRecord does, for a routine that removes the record as a part of its own work;
/// returns true if the user agrees, or needn't be asked.
bool AgreedToDelete(core::RecordKind kind, std::int32_t id);
/// Asks the caller's question, with the record's name below it if there is one.
bool AgreedToDelete(std::string_view title, std::string_view question, const platform::Value& name);

/// Removes one record and the links of its attached files, and clears the references to it in other
/// rows; for a kind that isn't removed, only the links of files are removed. Does nothing for id 0.
/// Failures are the same as for DeleteRecord.
///
/// Nothing is asked, except for a payment: whether its charges are deleted too or are open again.
void RemoveRecord(core::RecordKind kind, std::int32_t id, Tell tell = Tell::Screens);

} // namespace removal

#pragma once

#include <cstdint>
#include <functional>
#include <string_view>

#include "platform/values/Value.h"

namespace removal {

/// Whether the user is asked first. Never asks if the preference ConfirmDelete is off.
enum class Confirm { Ask, DontAsk };

/// Whether the open screens are notified of what was deleted.
enum class Tell { Screens, Nobody };

/// Asks, then removes the record with the records that can't be without it: the links of an account
/// to buildings, the leases of a tenant and of a unit, the units of a building, and the building of
/// its last unit. Returns true if it was removed, false if the user said No and for id 0.
///
/// A failure is thrown. What was removed before it stays removed; only when the machine stops
/// midway are the books as before.
bool DeleteRecord(std::int16_t kind, std::int32_t id, Confirm confirm = Confirm::Ask,
                  Tell tell = Tell::Screens);

/// Called before a building is removed, after the user has agreed; false keeps the building.
using BeforeBuilding = std::function<bool()>;
/// Gives the process this step; an empty one takes it away.
void SetBeforeBuilding(BeforeBuilding step);

/// Asks as DeleteRecord does, for a routine that removes the record as a part of its own work; true
/// if the user agrees, or isn't to be asked.
bool AgreedToDelete(std::int16_t kind, std::int32_t id);
/// Asks a question of its own, with the record's name below it if there is one.
bool AgreedToDelete(std::string_view title, std::string_view question, const platform::Value& name);

/// Removes one record, its attached files' links, and what points to it elsewhere, which then
/// points to nothing; for a kind that isn't removed only the links of files go. Id 0 does nothing.
/// Failures as of DeleteRecord.
///
/// Nothing is asked, except of a payment: whether its charges go too or are open again.
void RemoveRecord(std::int16_t kind, std::int32_t id, Tell tell = Tell::Screens);

} // namespace removal

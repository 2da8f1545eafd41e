#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace records {

/// An owner of a building as entered on the owner screen.
struct OwnerEntry {
    std::int32_t idOwnerLink = 0; ///< 0 for a new one
    std::int32_t idBuilding = 0;
    std::int32_t idAccount = 0;
    std::string percent; ///< as it is typed
};

/// Returns the errors in the entries, a line each; empty if they can be saved.
std::vector<std::string> OwnerErrors(const OwnerEntry& entry);

/// Whether an owner is a building's primary one: as entered, or because no other is.
enum class PrimaryMark { No, Yes, ByDefault };

/// Leaves exactly one of the building's owners primary: the saved one if it is marked, or if no
/// other is. `idBuildingBefore` is the building that the owner was saved with before, 0 for a new
/// one; if it has lost its primary owner, its first becomes primary. Returns the saved one's mark.
/// Called within the unit of work that saves the owner.
PrimaryMark SettlePrimary(std::int32_t idBuilding, std::int32_t idBuildingBefore,
                          std::int32_t idOwnerLink, PrimaryMark entered);

/// Tells the user after the save if the building's owners don't add up to 100 %, or if the saved
/// one was made primary by default.
void TellOwnership(std::int32_t idBuilding, PrimaryMark mark);

} // namespace records

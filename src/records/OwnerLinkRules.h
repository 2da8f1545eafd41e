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

enum class PrimaryMark { No, Yes };

/// Called after an owner is saved. Warns if the building's owners don't add up to 100 %, and leaves
/// exactly one of them primary: the saved one if it is marked, or if no other owner is; the user is
/// told in the latter case. Throws on failure.
void CheckOwnership(std::int32_t idBuilding, std::int32_t idOwnerLink, PrimaryMark mark);

} // namespace records

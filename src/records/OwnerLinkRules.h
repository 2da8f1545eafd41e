#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace records {

/// What the owner screen holds of one owner of a building.
struct OwnerEntry {
    std::int32_t idOwnerLink = 0; ///< 0 for a new one
    std::int32_t idBuilding = 0;
    std::int32_t idAccount = 0;
    std::string percent; ///< as it is typed
};

/// What is wrong with it, a line each.
std::vector<std::string> OwnerErrors(const OwnerEntry& entry);

enum class PrimaryMark { No, Yes };

/// After an owner is saved: tells when the building's owners don't make 100 %, and sees to it that
/// exactly one of them is primary: the saved one if it is marked, or if no other is, which is told.
/// Failures are thrown.
void CheckOwnership(std::int32_t idBuilding, std::int32_t idOwnerLink, PrimaryMark mark);

} // namespace records

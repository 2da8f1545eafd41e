#include "records/ManagerLinkRules.h"

#include "core/Rows.h"

namespace records {

namespace {

bool HasOtherLink(const ManagerEntry& entry) {
    return core::Exists(
        "SELECT IdManagerLink FROM ManagerLink WHERE IdManagerLink <> ? "
        "AND (IdBuilding = ?) AND (IdAccount = ?)",
        {entry.idManagerLink, entry.idBuilding, entry.idAccount});
}

} // namespace

std::vector<std::string> ManagerErrors(const ManagerEntry& entry) {
    std::vector<std::string> lines;
    if (entry.idBuilding == 0) lines.emplace_back("A Building must be selected.");
    if (entry.idAccount == 0) lines.emplace_back("A Manager must be selected.");
    if (HasOtherLink(entry)) {
        lines.emplace_back("A duplicate record for this building and manager already exist.");
    }
    return lines;
}

} // namespace records

#include "core/RecordKinds.h"

namespace core {

std::string_view RecordKindName(int kind) {
    if (kind < 0 || kind >= static_cast<int>(RecordKinds.size())) return {};
    return RecordKinds.at(static_cast<std::size_t>(kind));
}

std::string_view AccountTypeOfKind(int kind) {
    switch (kind) {
        case kOwner:
        case kBuildingOwnerAccount:
            return "Building Owner";
        case kManager:
        case kBuildingManagerAccount:
            return "Building Manager";
        case kVendorAccount:
            return "Vendor";
        case kBankAccount:
            return "Bank";
        case kInsuranceAccount:
            return "Insurance";
        case kMortgageeAccount:
            return "Mortgagee";
        case kUtilityAccount:
            return "Utility";
        default:
            return {};
    }
}

} // namespace core

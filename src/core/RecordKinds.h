#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace core {

/// The number that travels with a record's identifier. The numbers are stored, and never change; 21
/// is free and stays free.
enum class RecordKind : std::int16_t {
    kNone = 0,
    kAccount = 1,
    kLease = 2,
    kMortgage = 3,
    kAlert = 4,
    kTenant = 5,
    kWorkOrder = 6,
    kIncident = 7,
    kAppliance = 8,
    kRoom = 9,
    kTransaction = 10,
    kUser = 11,
    kMileage = 12,
    kActivities = 13,
    kInvoices = 14,
    kOwner = 15,
    kDeposit = 16,
    kTransCategory = 17,
    kManager = 18,
    kAutoEvent = 19,
    kContent = 20,
    kSvcContract = 22,
    kMortgageLog = 23,
    kConfiguration = 24,
    kWorkOrderHistory = 25,
    kFileObject = 26,
    kDocument = 27,
    kBuilding = 28,
    kUnit = 29,
    kRentLog = 30,

    // Requests for a filtered list of accounts or buildings; as a kind to open, the type that a new
    // account starts with. They have no name and no table.
    kBuildingOwnerAccount = 31,
    kBuildingManagerAccount = 32,
    kVendorAccount = 33,
    kBankAccount = 34,
    kInsuranceAccount = 35,
    kMortgageeAccount = 36,
    kMultiUnitBuilding = 37,
    kSingleUnitBuilding = 38,
    /// A unit together with its building, for records that belong to both; it has no list.
    kUnitWithBuilding = 39,
    kUtilityAccount = 40,
};
using enum RecordKind;

/// The number by which a kind is stored and printed.
constexpr std::int16_t KindNumber(RecordKind kind) {
    return static_cast<std::int16_t>(kind);
}

/// Display names by kind, in messages and on the status line.
inline constexpr std::array<std::string_view, 31> RecordKinds = {"None",
                                                                 "Account",
                                                                 "Lease",
                                                                 "Mortgage",
                                                                 "Alert",
                                                                 "Tenant",
                                                                 "Work Order",
                                                                 "Incident",
                                                                 "Appliance",
                                                                 "Room",
                                                                 "Transaction",
                                                                 "User",
                                                                 "Mileage",
                                                                 "Activities",
                                                                 "Invoices",
                                                                 "Owner",
                                                                 "Deposit",
                                                                 "Transaction Category",
                                                                 "Manager",
                                                                 "Auto Event",
                                                                 "Content",
                                                                 "",
                                                                 "Service Contract",
                                                                 "Mortgage Log",
                                                                 "Configuration",
                                                                 "Work Order History",
                                                                 "File Object",
                                                                 "Document",
                                                                 "Building",
                                                                 "Unit",
                                                                 "Rent Log"};

/// Returns the display name of a kind; empty for a kind without a name.
std::string_view RecordKindName(RecordKind kind);

/// The account types that the program knows, in the order in which a list offers them; the user
/// may type others.
inline constexpr std::array<std::string_view, 10> AccountTypes = {
    "Retail", "Credit",    "Bank",      "Utility",          "Other",
    "Vendor", "Insurance", "Mortgagee", "Building Manager", "Building Owner"};

/// Returns the account type that a kind asks for (31 to 36 and 40, and the owner and manager
/// kinds); empty for other kinds.
std::string_view AccountTypeOfKind(RecordKind kind);

} // namespace core

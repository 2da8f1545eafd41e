#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace core {

// Record kinds: a number that travels with a record's identifier. They are stored, and never
// change; 21 is free and stays free.
inline constexpr std::int16_t kNone = 0;
inline constexpr std::int16_t kAccount = 1;
inline constexpr std::int16_t kLease = 2;
inline constexpr std::int16_t kMortgage = 3;
inline constexpr std::int16_t kAlert = 4;
inline constexpr std::int16_t kTenant = 5;
inline constexpr std::int16_t kWorkOrder = 6;
inline constexpr std::int16_t kIncident = 7;
inline constexpr std::int16_t kAppliance = 8;
inline constexpr std::int16_t kRoom = 9;
inline constexpr std::int16_t kTransaction = 10;
inline constexpr std::int16_t kUser = 11;
inline constexpr std::int16_t kMileage = 12;
inline constexpr std::int16_t kActivities = 13;
inline constexpr std::int16_t kInvoices = 14;
inline constexpr std::int16_t kOwner = 15;
inline constexpr std::int16_t kDeposit = 16;
inline constexpr std::int16_t kTransCategory = 17;
inline constexpr std::int16_t kManager = 18;
inline constexpr std::int16_t kAutoEvent = 19;
inline constexpr std::int16_t kContent = 20;
inline constexpr std::int16_t kSvcContract = 22;
inline constexpr std::int16_t kMortgageLog = 23;
inline constexpr std::int16_t kConfiguration = 24;
inline constexpr std::int16_t kWorkOrderHistory = 25;
inline constexpr std::int16_t kFileObject = 26;
inline constexpr std::int16_t kDocument = 27;
inline constexpr std::int16_t kBuilding = 28;
inline constexpr std::int16_t kUnit = 29;
inline constexpr std::int16_t kRentLog = 30;

// Requests for a filtered list of accounts or buildings; as a kind to open, the type that a new
// account starts with. They have no name and no table.
inline constexpr std::int16_t kBuildingOwnerAccount = 31;
inline constexpr std::int16_t kBuildingManagerAccount = 32;
inline constexpr std::int16_t kVendorAccount = 33;
inline constexpr std::int16_t kBankAccount = 34;
inline constexpr std::int16_t kInsuranceAccount = 35;
inline constexpr std::int16_t kMortgageeAccount = 36;
inline constexpr std::int16_t kMultiUnitBuilding = 37;
inline constexpr std::int16_t kSingleUnitBuilding = 38;
/// A unit together with its building, for records that belong to both; it has no list.
inline constexpr std::int16_t kUnitWithBuilding = 39;
inline constexpr std::int16_t kUtilityAccount = 40;

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
std::string_view RecordKindName(int kind);

/// The account types that the program knows, in the order in which a list offers them; the user
/// may type others.
inline constexpr std::array<std::string_view, 10> AccountTypes = {
    "Retail", "Credit",    "Bank",      "Utility",          "Other",
    "Vendor", "Insurance", "Mortgagee", "Building Manager", "Building Owner"};

/// Returns the account type that a kind asks for (31 to 36 and 40, and the owner and manager
/// kinds); empty for other kinds.
std::string_view AccountTypeOfKind(int kind);

} // namespace core

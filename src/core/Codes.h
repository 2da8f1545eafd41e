#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "platform/values/Date.h"

namespace core {

// The codes and statuses that the books store. They never change, misspellings included: rows,
// reports and statements compare with them.

/// The class of a transaction, and of a row of the rent log.
enum class TransactionClass : std::int16_t {
    Ordinary = 0,
    Rent = 1,
    Subsidy = 2,
    Deposit = 3,
    OptionCredit = 4,
    Mortgage = 5,
};

/// Flags of a row in the rent log; a deposit's transaction uses the last two.
enum class RentFlags : std::int16_t {
    Ordinary = 0,
    PeriodRent = 1, ///< the rent of one period: paying it moves the next due date on
    Payment = 2,
    DepositRefund = 3,
    DepositCharge = 4,
};

/// The unit of an automated event's interval.
enum class IntervalType : std::int16_t { Day = 1, Week = 2, Month = 3, DayOfMonth = 4, Year = 5 };

/// The ledger whose charges a payment settles.
enum class Ledger { None, Rent, Mortgage };

/// Returns the ledger that a transaction of this class settles charges of; any number is valid.
constexpr Ledger LedgerOf(TransactionClass transactionClass) {
    switch (transactionClass) {
        case TransactionClass::Rent:
        case TransactionClass::Subsidy:
        case TransactionClass::Deposit:
            return Ledger::Rent;
        case TransactionClass::Mortgage:
            return Ledger::Mortgage;
        case TransactionClass::Ordinary:
        case TransactionClass::OptionCredit:
            break;
    }
    return Ledger::None;
}

// Lease.Status
inline constexpr std::string_view kLeasePending = "Pending";
inline constexpr std::string_view kLeaseWeekToWeek = "WTW";
inline constexpr std::string_view kLeaseMonthToMonth = "MTM";
inline constexpr std::string_view kLeaseContracted = "Contracted";
inline constexpr std::string_view kLeaseNotice = "Notice";
inline constexpr std::string_view kLeaseExpired = "Expired";
inline constexpr std::string_view kLeaseBroken = "Broken";
inline constexpr std::array kLeaseStatuses = {
    kLeasePending, kLeaseWeekToWeek, kLeaseMonthToMonth, kLeaseContracted,
    kLeaseNotice,  kLeaseExpired,    kLeaseBroken};

// Lease.TermType, in the order in which lists offer them
inline constexpr std::string_view kTermWeeks = "Week(s)";
inline constexpr std::string_view kTermMonths = "Month(s)";
inline constexpr std::string_view kTermYears = "Year(s)";
inline constexpr std::array kLeaseTermTypes = {kLeaseWeekToWeek, kLeaseMonthToMonth, kTermWeeks,
                                               kTermMonths, kTermYears};

/// Returns whether a lease of this term type has an end; one that runs from week to week or month
/// to month has none.
constexpr bool HasEnd(std::string_view termType) {
    return termType != kLeaseMonthToMonth && termType != kLeaseWeekToWeek;
}

/// Returns the interval in which a term with an end is counted; a month for any other.
constexpr platform::Interval FixedTermInterval(std::string_view termType) {
    if (termType == "Weekly" || termType == kTermWeeks) return platform::Interval::Week;
    if (termType == "Yearly" || termType == kTermYears) return platform::Interval::Year;
    return platform::Interval::Month;
}

// Lease.ExpireOption, in the order in which lists offer them
inline constexpr std::string_view kExpireRenews = "Renew";
inline constexpr std::string_view kExpireEnds = "Expire";
inline constexpr std::array kExpireOptions = {kLeaseWeekToWeek, kLeaseMonthToMonth, kExpireRenews,
                                              kExpireEnds};

// Lease.RentStatus and Mortgage.PmtStatus
inline constexpr std::string_view kPaymentNone = "n/a";
inline constexpr std::string_view kPaymentOk = "OK";
inline constexpr std::string_view kPaymentDue = "Due";
inline constexpr std::string_view kPaymentLate = "Late";
inline constexpr std::string_view kRentWarning = "Warning";
inline constexpr std::string_view kRentEviction = "Eviction";

// Unit.Status
inline constexpr std::string_view kUnitHold = "Hold";
inline constexpr std::string_view kUnitAvailable = "Avaliable";
inline constexpr std::string_view kUnitLeased = "Leased";
inline constexpr std::array kUnitStatuses = {kUnitHold, kUnitAvailable, kUnitLeased};

// Tenant.Status
inline constexpr std::string_view kTenantCurrent = "Current";
inline constexpr std::string_view kTenantArchived = "Archived";
inline constexpr std::array<std::string_view, 5> kTenantStatuses = {
    "Pending", "Approved", "Rejected", kTenantCurrent, kTenantArchived};

// WorkOrder.Status
inline constexpr std::array<std::string_view, 4> kWorkOrderStatuses = {"Open", "Vendor",
                                                                       "Completed", "Closed"};

// Mortgage.Status; lists don't offer the first
inline constexpr std::string_view kMortgagePending = "Pending";
inline constexpr std::string_view kMortgageCurrent = "Current";
inline constexpr std::string_view kMortgageClosed = "Closed";
inline constexpr std::array kMortgageStatuses = {kMortgageCurrent, kMortgageClosed};

} // namespace core

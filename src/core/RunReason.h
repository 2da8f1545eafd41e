#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "core/Codes.h"
#include "platform/values/Date.h"

namespace core {

/// The rows that the daily run posts, by their kind. The numbers are stored and never change.
enum class Posting : std::int16_t {
    Unknown = 0,
    Rent = 1,
    Subsidy = 2,
    Discount = 3,
    OneTimeFee = 4,
    DailyFee = 5,
    FromCredit = 6, ///< settles charges, and posts none
    LoanPayment = 7,
    Escrow = 8,
    MortgageInsurance = 9,
    LoanLateFee = 10,
    EventTransaction = 11,
};

/// Why the run posted a row: its kind, and the figures that determine its day.
struct RunReason {
    Posting posting = Posting::Unknown;
    /// The due date that the row is for.
    platform::Date due{};
    /// Days since the due date (fees of a lease), days before it (discounts), days of grace (late
    /// fees of a loan), the number of the loan's payment, or how many intervals lie between two
    /// runs of an event.
    std::int32_t number = 0;
    /// The unit of an event's interval; unset if the event had never run before.
    std::optional<IntervalType> every{};

    friend bool operator==(const RunReason&, const RunReason&) = default;
};

/// Returns the reason in words: "Rent due 11/01/2026, unpaid for 5 days: the lease's one-time fee";
/// empty if its due date isn't known.
std::string ReasonText(const RunReason& reason);

} // namespace core

#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "leases/AmountPlan.h"
#include "leases/PreviewRow.h"
#include "leases/RentPayment.h"
#include "platform/values/Currency.h"

namespace leases {

/// If a period's rent is paid in part: which of the two parts stays the period's rent, so that
/// paying it moves the next due date.
enum class RentPart {
    Open, ///< the rent is paid once its rest is paid
    Paid, ///< the landlord accepts the part as the rent; the rest is owed separately
};

/// A new payment of an amount that came in, however much of the charges it covers.
struct AmountPayment {
    /// The charges that may be settled are selected, and in the order in which they are settled.
    RentPayment payment;
    platform::Currency received;
    RentPart rentPart = RentPart::Open;
};

/// Returns the errors in the entries, a line each.
std::vector<std::string> AmountErrors(const AmountPayment& amount);

/// Returns every row that SubmitAmount will write or change, in that order. Empty if there are
/// errors. Failures are thrown.
PreviewRows PreviewAmount(const AmountPayment& amount);

/// Describes in one line what submitting will do.
std::string DescribeAmount(const AmountPayment& amount);

/// Splits the charge or the credit that is used in part, writes the surplus as a credit of the
/// tenant, and submits the payment of the rest, all as one unit of work. Throws FieldError if there
/// are errors, and ConflictError if a charge was paid, changed or deleted since the payment was
/// read; nothing is changed then. Returns the transaction's id.
std::int32_t SubmitAmount(const AmountPayment& amount, LeaseUpdate update = LeaseUpdate::Yes);

/// Puts the charges of a payment in this order; charges that `order` doesn't name follow in their
/// present order.
void SortCharges(RentPayment& payment, std::span<const std::int32_t> order);

} // namespace leases

#pragma once

#include <string>

#include "leases/RentPayment.h"

namespace leases {

/// Describes in one line what submitting the payment will do: how many charges it settles, where
/// the next due date moves, the option credit that is earned, and whether no account of the books
/// receives the money. Of a lease that was deleted, only the charges. Failures are thrown.
std::string DescribeOutlook(const RentPayment& payment);

} // namespace leases

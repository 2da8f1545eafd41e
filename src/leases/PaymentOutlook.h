#pragma once

#include <string>

#include "leases/RentPayment.h"

namespace leases {

/// Returns a line about what submitting the payment will do: how many charges it settles, where the
/// next due date moves, the option credit earned, and whether the receiver is an account of the
/// books. For a deleted lease it has only the charges. Throws on failure.
std::string DescribeOutlook(const RentPayment& payment);

} // namespace leases

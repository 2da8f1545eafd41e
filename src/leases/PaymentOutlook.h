#pragma once

#include <string>

#include "leases/RentPayment.h"

namespace leases {

/// What submitting the payment will bring about, in one line for the person who is about to: how
/// many charges it settles, where the next due date goes, and the option credit that is earned.
/// Failures are thrown; of a lease that has gone only the charges are told.
std::string DescribeOutlook(const RentPayment& payment);

} // namespace leases

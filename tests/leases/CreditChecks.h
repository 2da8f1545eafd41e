#pragma once

#include <string>
#include <vector>

#include "leases/PreviewRow.h"

namespace tests {

// The ledger of the one lease, as text, while payments by amount, credits and returns are tried.

using Lines = std::vector<std::string>;

/// A row a line and sorted: day, category, description, amount.
Lines LedgerLines();
/// The lines of `a` that `b` doesn't have.
Lines Difference(const Lines& a, const Lines& b);
/// The lines that a preview says are written, and that it says are replaced.
Lines NewRows(const leases::PreviewRows& preview);
Lines RemovedRows(const leases::PreviewRows& preview);
/// The charges by day, without payment rows, option credits and what stayed open as it was:
/// category, amount, and + for a settled row, - for an open one.
Lines PaidCharges();

/// Every transaction is what its rows add up to, and the open rows are what was charged less the
/// money that came in.
void ExpectBalanced();

} // namespace tests

#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "leases/AmountPayment.h"
#include "leases/BooksTest.h"
#include "leases/PreviewRow.h"

namespace tests {

/// The books of one lease in which payments by amount, credits and returns are tried.
class CreditBooks : public BooksTest {
  protected:
    /// Empties the ledger and puts the lease back to where it began.
    static void Restart();
    static std::int32_t Id(std::string_view select);
    /// A payment of this many units for all that is open.
    static leases::AmountPayment Amount(
        int units, leases::TransactionClass rentClass = leases::TransactionClass::Rent);

    /// The ledger, a row a line and sorted: day, category, description, amount.
    static Lines LedgerLines();
    /// The lines of `a` that `b` doesn't have.
    static Lines Difference(const Lines& a, const Lines& b);
    /// The lines that a preview says are written, and that it says are replaced.
    static Lines NewRows(const leases::PreviewRows& preview);
    static Lines RemovedRows(const leases::PreviewRows& preview);
    /// The charges by day, without payment rows, option credits and what stayed open as it was:
    /// category, amount, and + for a settled row, - for an open one.
    static Lines Paid();

    /// Every transaction is what its rows add up to, and the open rows are what was charged less
    /// the money that came in.
    static void ExpectBalanced();
};

} // namespace tests

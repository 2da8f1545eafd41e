#pragma once

#include <filesystem>

namespace bench {

/// The reference of payments: the engine's own C calls, a write-ahead log, full durability,
/// and one transaction a payment. For each lease it takes new ids, adds the transaction and the
/// payment row, settles the open rent, and updates the lease with the sums of its ledger. Answers
/// the number of payments.
double RunPlainPayments(const std::filesystem::path& folder, int leases);

} // namespace bench

#pragma once

#include <filesystem>

namespace bench {

/// The reference of the lease run: the engine's own C calls, a write-ahead log, full durability
/// and one transaction around everything. For each lease it inserts `rowsPerLease` rows of the rent
/// log, sums the ledger and updates the lease. Answers the number of rows inserted.
double RunPlainEngine(const std::filesystem::path& folder, int leases, int rowsPerLease);

} // namespace bench

#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "core/Codes.h"

namespace core {

/// A ledger whose charges payments settle: its table, and the table of the records charged.
struct ChargeLedger {
    std::string_view name; ///< "rent", inside a sentence
    std::string_view table;
    std::string_view idField;
    std::string_view owner;
    std::string_view ownerIdField;
};

inline constexpr ChargeLedger kRentLedger = {"rent", "RentLog", "IdRentLog", "Lease", "IdLease"};
inline constexpr ChargeLedger kMortgageLedger = {"mortgage", "MortgageLog", "IdMortgageLog",
                                                 "Mortgage", "IdMortgage"};

/// Returns the ledger whose charges a stored transaction settles; null for one that settles none.
const ChargeLedger* LedgerOfTransaction(std::int32_t idTransaction);

/// Returns the transaction that settles a charge, 0 for an open one; nothing if it was deleted.
std::optional<std::int32_t> SettledBy(const ChargeLedger& ledger, std::int32_t idCharge);

/// Whether a payment settles a charge or leaves it open.
enum class Settled { No, Yes };

/// Settles an open charge by a transaction, or opens it again if that had settled it; a charge that
/// another transaction settled stays so. Failures are thrown.
void Settle(const ChargeLedger& ledger, std::int32_t idCharge, std::int32_t idTransaction,
            Settled settled);

} // namespace core

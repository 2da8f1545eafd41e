#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "books/PostTransaction.h"
#include "leases/RentCodes.h"
#include "platform/values/Currency.h"
#include "platform/values/Date.h"

namespace leases {

/// Which rows of a class a tab of the ledger shows.
enum class LedgerRows { Open, Settled, All };

struct LedgerTab {
    std::string_view name;
    TransactionClass rentClass = TransactionClass::Rent;
    LedgerRows rows = LedgerRows::All;
};

inline constexpr std::array<LedgerTab, 7> kLedgerTabs = {
    {{"Rent", TransactionClass::Rent, LedgerRows::Open},
     {"Rent History", TransactionClass::Rent, LedgerRows::Settled},
     {"Subsidy", TransactionClass::Subsidy, LedgerRows::Open},
     {"Subsidy History", TransactionClass::Subsidy, LedgerRows::Settled},
     {"Deposit", TransactionClass::Deposit, LedgerRows::Open},
     {"Deposit History", TransactionClass::Deposit, LedgerRows::Settled},
     {"Option Credits", TransactionClass::OptionCredit, LedgerRows::All}}};

struct LedgerRow {
    std::int32_t idRentLog = 0;
    RentFlags flags = RentFlags::Ordinary;
    platform::Date datePosted;
    std::string category;
    std::string description;
    platform::Currency amount;
    /// For open rows: the sum still open after this row, counted from the oldest.
    std::optional<platform::Currency> openTotal;
};

/// Returns a tab's rows of a lease, the latest first. Throws on failure.
std::vector<LedgerRow> ReadLedger(std::int32_t idLease, const LedgerTab& tab);

/// Return the transaction that takes a deposit out of a lease, for the transaction screen to
/// complete: a refund from the deposit account to the tenant, or a charge against the deposit to an
/// account still to be chosen. Both propose the deposit's balance. Throws DatabaseError if the
/// lease doesn't exist.
books::Transaction ProposeDepositRefund(std::int32_t idLease);
books::Transaction ProposeDepositCharge(std::int32_t idLease);

/// Writes the ledger row of such a transaction whenever it is saved, and the balances of its lease
/// (of both leases if it was moved to another); does nothing for other transactions. Throws on
/// failure.
void WriteDepositRow(std::int32_t idTransaction, const books::Transaction& transaction);

} // namespace leases

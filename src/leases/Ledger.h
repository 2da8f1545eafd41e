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
    RentClass rentClass = RentClass::Rent;
    LedgerRows rows = LedgerRows::All;
};

inline constexpr std::array<LedgerTab, 7> kLedgerTabs = {
    {{"Rent", RentClass::Rent, LedgerRows::Open},
     {"Rent History", RentClass::Rent, LedgerRows::Settled},
     {"Subsidy", RentClass::Subsidy, LedgerRows::Open},
     {"Subsidy History", RentClass::Subsidy, LedgerRows::Settled},
     {"Deposit", RentClass::Deposit, LedgerRows::Open},
     {"Deposit History", RentClass::Deposit, LedgerRows::Settled},
     {"Option Credits", RentClass::OptionCredit, LedgerRows::All}}};

struct LedgerRow {
    std::int32_t idRentLog = 0;
    RentFlags flags = RentFlags::Ordinary;
    platform::Date datePosted;
    std::string category;
    std::string description;
    platform::Currency amount;
    /// Of open rows: what was open after this one, counted from the oldest.
    std::optional<platform::Currency> openTotal;
};

/// A tab's rows of a lease, the latest first. Failures are thrown.
std::vector<LedgerRow> ReadLedger(std::int32_t idLease, const LedgerTab& tab);

/// What takes a deposit back out of a lease: the refund to its tenant, or what is charged against
/// it, for the transaction screen to finish. A refund goes from the deposit account to the tenant;
/// a charge goes to an account that is still to be chosen. Both propose the balance of the deposit.
/// A lease that isn't there is a DatabaseError.
books::Transaction ProposeDepositRefund(std::int32_t idLease);
books::Transaction ProposeDepositCharge(std::int32_t idLease);

/// Keeps the ledger row that belongs to such a transaction whenever it is saved, and the balances
/// of its lease (of both leases if it was moved to another); does nothing for other transactions.
/// Failures are thrown.
void WriteDepositRow(std::int32_t idTransaction, const books::Transaction& transaction);

} // namespace leases

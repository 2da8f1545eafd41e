#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "leases/RentPayment.h"
#include "platform/values/Currency.h"

namespace leases {

/// A charge that is open again, whole or in part, since the credit that settled it is withdrawn.
struct ReopenedCharge {
    PaymentCharge charge;
    /// The part that is open again; the rest stays settled.
    platform::Currency amount;

    bool IsPart() const { return amount != charge.amount; }
    friend bool operator==(const ReopenedCharge& a, const ReopenedCharge& b) {
        return IsSameCharge(a.charge, b.charge) && a.amount == b.amount;
    }
};

/// A row of the ledger by which credit was used; the amounts are positive.
struct SpentCredit {
    std::int32_t idRentLog = 0;
    std::int32_t idOrigin = 0;
    platform::Currency amount;
    /// The part that had paid for charges, and is withdrawn. The rest stays used: it was paid out
    /// to the tenant, or paid ahead once more.
    platform::Currency reopened;

    bool IsPart() const { return reopened != amount; }
    friend bool operator==(const SpentCredit&, const SpentCredit&) = default;
};

/// How a later payment, or the daily run, used the credit that a payment had brought.
struct CreditSpending {
    std::int32_t idTransaction = 0;
    /// The description of the transaction.
    std::string description;
    /// 0 if no money came in with it, as with the payments of the daily run.
    std::int32_t idPaymentRow = 0;
    std::vector<SpentCredit> credits;
    /// The charges that the credits paid for, the latest first, as much as is withdrawn of the
    /// credits. The other charges are paid for by the money of the later payment itself.
    std::vector<ReopenedCharge> charges;
    /// Whether the transaction settles nothing else, so that nothing is left of it.
    bool isAll = false;

    friend bool operator==(const CreditSpending&, const CreditSpending&) = default;
};

/// Returns how the credit of a payment was spent. Credit that paid for no charge, since it was paid
/// out to the tenant, is left out. Failures are thrown.
std::vector<CreditSpending> ReadSpendings(const RentPayment& payment);

/// Opens the charges and the credits again. A row that is open again only in part is split; the
/// open part of a period's rent stays the period's rent. Failures are thrown.
void UndoSpending(const CreditSpending& spending);

/// Returns how many rents of a period are open again, whole or in part.
int CountPeriodRents(const CreditSpending& spending);

} // namespace leases

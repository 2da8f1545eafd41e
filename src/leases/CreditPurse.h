#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "leases/RentCodes.h"
#include "platform/values/Currency.h"
#include "platform/values/Date.h"

namespace leases {

struct Charge;

/// A row of the ledger that is in the tenant's favor; the amount is positive.
struct OpenCredit {
    std::int32_t idRentLog = 0;
    platform::Date date;
    TransactionClass rentClass = TransactionClass::Rent;
    platform::Currency amount;
};

/// How much of a thing, by its place in a list, is used.
struct Use {
    std::size_t place = 0;
    platform::Currency amount;

    friend bool operator==(const Use&, const Use&) = default;
};

/// Charges of one day and class that are settled from credit. Both sides have the same sum.
struct CreditPayment {
    platform::Date day;
    TransactionClass rentClass = TransactionClass::Rent;
    /// Places in the charges of the walk. At most the last one is settled in part.
    std::vector<Use> charges;
    /// Places in the credits of the purse.
    std::vector<Use> credits;

    platform::Currency Total() const;
};

/// The credits of a lease while its days are walked. An empty purse settles nothing.
class CreditPurse {
  public:
    CreditPurse() = default;
    /// The credits in the order in which they are used.
    explicit CreditPurse(std::vector<OpenCredit> credits);

    /// Settles charges of one class and of `day` as far as the credits of that day and before go,
    /// in the order of the charges: those of `charges` from the place `first` on. Returns nothing
    /// if there is nothing to settle, or to settle it with.
    std::optional<CreditPayment> Settle(platform::Date day, TransactionClass rentClass,
                                        std::span<const Charge> charges, std::size_t first);

  private:
    platform::Currency Available(platform::Date day, TransactionClass rentClass) const;
    void Take(CreditPayment& payment, platform::Currency amount);

    std::vector<OpenCredit> credits_;
};

} // namespace leases

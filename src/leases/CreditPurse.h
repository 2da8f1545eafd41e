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

/// How much of an item of a list is used; the item is given by its place.
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

/// The credits of a lease while its days are walked. If it is empty, it settles nothing.
class CreditPurse {
  public:
    CreditPurse() = default;
    /// `credits` are in the order in which they are used.
    explicit CreditPurse(std::vector<OpenCredit> credits);

    /// Settles charges of one class and of `day`, as far as the credits of that day and before
    /// suffice: those of `charges` from the place `first` on, in their order. Returns nothing if
    /// there are no such charges or no such credits.
    std::optional<CreditPayment> Settle(platform::Date day, TransactionClass rentClass,
                                        std::span<const Charge> charges, std::size_t first);

  private:
    platform::Currency Available(platform::Date day, TransactionClass rentClass) const;
    void Take(CreditPayment& payment, platform::Currency amount);

    std::vector<OpenCredit> credits_;
};

} // namespace leases

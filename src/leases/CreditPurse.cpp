#include "leases/CreditPurse.h"

#include <algorithm>
#include <utility>

#include "leases/LeaseWalk.h"

namespace leases {

using platform::Currency;
using platform::Date;

namespace {

bool IsUsable(const OpenCredit& credit, Date day, TransactionClass rentClass) {
    return credit.rentClass == rentClass && credit.date <= day && credit.amount > Currency();
}

} // namespace

Currency CreditPayment::Total() const {
    Currency total;
    for (const Use& charge : charges)
        total += charge.amount;
    return total;
}

CreditPurse::CreditPurse(std::vector<OpenCredit> credits) : credits_(std::move(credits)) {}

std::optional<CreditPayment> CreditPurse::Settle(Date day, TransactionClass rentClass,
                                                 std::span<const Charge> charges,
                                                 std::size_t first) {
    CreditPayment payment{.day = day, .rentClass = rentClass, .charges = {}, .credits = {}};
    Currency available = Available(day, rentClass);
    for (std::size_t i = first; i < charges.size(); ++i) {
        if (ClassOf(charges[i].kind) != rentClass) continue;
        const Currency settled = std::min(available, charges[i].amount);
        if (settled <= Currency()) continue;
        payment.charges.push_back({i, settled});
        available -= settled;
    }
    if (payment.charges.empty()) return std::nullopt;
    Take(payment, payment.Total());
    return payment;
}

Currency CreditPurse::Available(Date day, TransactionClass rentClass) const {
    Currency available;
    for (const OpenCredit& credit : credits_) {
        if (IsUsable(credit, day, rentClass)) available += credit.amount;
    }
    return available;
}

void CreditPurse::Take(CreditPayment& payment, Currency amount) {
    for (std::size_t i = 0; i < credits_.size() && !amount.IsZero(); ++i) {
        OpenCredit& credit = credits_[i];
        if (!IsUsable(credit, payment.day, payment.rentClass)) continue;
        const Currency used = std::min(credit.amount, amount);
        payment.credits.push_back({i, used});
        credit.amount -= used;
        amount -= used;
    }
}

} // namespace leases

#include "leases/ChargeFrom.h"

#include <algorithm>
#include <utility>

#include "core/BooksSettings.h"
#include "leases/LeaseWalk.h"
#include "platform/system/Clock.h"

namespace leases {

using platform::Date;

Date ProposedChargeFrom(const LeaseTerms& terms) {
    const Date since = core::BooksKeptSince();
    if (!since.IsSet()) return {};
    try {
        if (terms.dateUpdated.Get().IsSet()) return {};
        const LeaseWalk walk = WalkLease(terms, WalkMode::CatchUp, platform::Today());
        const bool isBefore = std::ranges::any_of(
            walk.charges, [since](const Charge& charge) { return charge.date < since; });
        return isBefore ? since : Date();
    } catch (const platform::Error&) {
        return {}; // the run reports what is wrong with the lease
    }
}

Date FirstDueFrom(const LeaseTerms& terms, Date from) {
    Date due = terms.dateNextDue.Get();
    while (due < from)
        due = DateAdd(BillingInterval(terms.termType), 1, due);
    return due;
}

PreviewRows PreviewCharges(LeaseTerms terms, Date nextDue) {
    terms.dateNextDue = nextDue;
    PreviewRows rows;
    for (const Charge& charge :
         WalkLease(std::move(terms), WalkMode::CatchUp, platform::Today()).charges) {
        rows.push_back({.what = "Charge posted",
                        .date = charge.date,
                        .category = std::string(CategoryOf(charge.kind)),
                        .description = DescriptionOf(charge),
                        .amount = charge.amount});
    }
    return rows;
}

} // namespace leases

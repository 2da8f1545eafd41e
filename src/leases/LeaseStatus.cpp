#include "leases/LeaseStatus.h"

#include "leases/RentCodes.h"

namespace leases {

using platform::Date;

namespace {

std::string_view RunningStatus(std::string_view termType) {
    if (termType == status::kMonthToMonth) return status::kMonthToMonth;
    if (termType == status::kWeekToWeek) return status::kWeekToWeek;
    return status::kContracted;
}

bool IsRunning(std::string_view word) {
    return word == status::kContracted || word == status::kMonthToMonth ||
           word == status::kWeekToWeek;
}

} // namespace

StatusStep StepLeaseStatus(LeaseTerms& terms, Date onDate, bool force) {
    StatusStep step;
    std::string_view working = terms.status;
    if (working == status::kPending && terms.dateActive.Get() <= onDate) {
        working = RunningStatus(terms.termType);
    }
    if (IsRunning(working)) {
        const Date expiry =
            DateAdd(TermInterval(terms.termType), terms.term.Get(), terms.dateRenewed.Get());
        if (onDate <= expiry) {
            working = RunningStatus(terms.termType);
        } else if (terms.expireOption == status::kWeekToWeek) {
            working = status::kWeekToWeek;
        } else if (terms.expireOption == status::kMonthToMonth) {
            working = status::kMonthToMonth;
        } else if (terms.expireOption == kOptionRenew) {
            terms.dateRenewed = expiry;
            step.renewed = true;
        } else if (terms.expireOption == kOptionExpire) {
            working = status::kExpired;
        }
    }
    if (working == status::kNotice && terms.dateVacating.Get() < onDate) {
        working = status::kExpired;
    }
    if (working != terms.status || force) {
        step.statusSet = true;
        terms.status = std::string(working);
    }
    return step;
}

bool IsCharged(std::string_view word) {
    return IsRunning(word) || word == status::kNotice;
}

bool IsOver(std::string_view word) {
    return word == status::kExpired || word == status::kBroken;
}

} // namespace leases

#include "leases/LeaseStatus.h"

#include "core/Codes.h"
#include "leases/RentCodes.h"

namespace leases {

using platform::Date;

namespace {

std::string_view RunningStatus(std::string_view termType) {
    if (termType == core::kLeaseMonthToMonth) return core::kLeaseMonthToMonth;
    if (termType == core::kLeaseWeekToWeek) return core::kLeaseWeekToWeek;
    return core::kLeaseContracted;
}

bool IsRunning(std::string_view status) {
    return status == core::kLeaseContracted || status == core::kLeaseMonthToMonth ||
           status == core::kLeaseWeekToWeek;
}

} // namespace

StatusStep StepLeaseStatus(LeaseTerms& terms, Date onDate, bool force) {
    StatusStep step;
    std::string_view working = terms.status;
    if (working == core::kLeasePending && terms.dateActive.Get() <= onDate) {
        working = RunningStatus(terms.termType);
    }
    if (IsRunning(working)) {
        const Date expiry =
            DateAdd(TermInterval(terms.termType), terms.term.Get(), terms.dateRenewed.Get());
        if (onDate <= expiry) {
            working = RunningStatus(terms.termType);
        } else if (terms.expireOption == core::kLeaseWeekToWeek) {
            working = core::kLeaseWeekToWeek;
        } else if (terms.expireOption == core::kLeaseMonthToMonth) {
            working = core::kLeaseMonthToMonth;
        } else if (terms.expireOption == core::kExpireRenews) {
            terms.dateRenewed = expiry;
            step.renewed = true;
        } else if (terms.expireOption == core::kExpireEnds) {
            working = core::kLeaseExpired;
        }
    }
    if (working == core::kLeaseNotice && terms.dateVacating.Get() < onDate) {
        working = core::kLeaseExpired;
    }
    if (working != terms.status || force) {
        step.statusSet = true;
        terms.status = std::string(working);
    }
    return step;
}

bool IsCharged(std::string_view status) {
    return IsRunning(status) || status == core::kLeaseNotice;
}

bool IsOver(std::string_view status) {
    return status == core::kLeaseExpired || status == core::kLeaseBroken;
}

} // namespace leases

#include "shell/SampleTenant.h"

#include <algorithm>

#include "core/Codes.h"
#include "core/Lookups.h"
#include "core/Rows.h"
#include "leases/ChargeDeposits.h"
#include "leases/LeaseCommands.h"
#include "leases/LeaseStatus.h"
#include "leases/LeaseTerms.h"
#include "leases/RentCodes.h"
#include "leases/RentPayment.h"
#include "leases/mLease.h"
#include "platform/database/Recordset.h"

namespace shell {

using core::TransactionClass;
using leases::WalkMode;
using platform::Date;
using platform::DateAdd;
using platform::Interval;
using platform::Recordset;
using store::PayHabit;

namespace {

struct LeaseDates {
    bool over = false;
    Date nextDue;
    /// The first day on which the lease is over; unset if it doesn't end.
    Date ends;
    int oneTimeDays = 0;
    int discountDays = 0;
    int noticeDays = 0;
};

Date FirstDayOver(Recordset& lease) {
    Date last;
    if (lease["Status"].AsText() == core::kLeaseNotice) {
        last = lease["DateVacating"].AsDate();
    } else if (lease["ExpireOption"].AsText() == core::kExpireEnds) {
        last = DateAdd(leases::TermInterval(lease["TermType"].AsText()), lease["Term"].AsInteger(),
                       lease["DateRenewed"].AsDate());
    }
    return last.IsSet() ? DateAdd(Interval::Day, 1, last) : last;
}

LeaseDates ReadLease(std::int32_t idLease) {
    Recordset row = core::Read("SELECT * FROM Lease WHERE IdLease = ?", {idLease});
    return {leases::IsOver(row["Status"].AsText()),
            row["DateNextDue"].AsDate(),
            FirstDayOver(row),
            row["OneTimeDays"].AsInteger(),
            row["DiscountDays"].AsInteger(),
            row["NoticeDays"].AsInteger()};
}

/// Returns the days from the due day to the day on which this tenant pays.
int DaysAfterDue(const store::SampleHabit& habit, const LeaseDates& lease) {
    const int own = static_cast<int>(habit.idLease % 3);
    switch (habit.habit) {
        case PayHabit::OnTime:
        case PayHabit::StoppedPaying:
            break;
        case PayHabit::FewDaysLate:
            return std::clamp(own + 2, 0, std::max(0, lease.oneTimeDays - 1));
        case PayHabit::Chronic:
            return lease.oneTimeDays + 4 + own;
        case PayHabit::PaidAhead:
            return -lease.discountDays - 1 - own;
    }
    return 0;
}

void Pay(std::int32_t idLease, TransactionClass rentClass) {
    const leases::RentPayment payment = leases::ProposePayment(idLease, rentClass);
    if (payment.Total() > platform::Currency()) leases::SubmitPayment(payment);
}

} // namespace

SampleTenant::SampleTenant(const store::SampleHabit& habit) : habit_(habit) {}

void SampleTenant::LiveThrough(Date day) {
    if (day == habit_.created) {
        Begin();
        PlanNextPayment(day);
    }
    if (day == habit_.givesNotice) {
        const int noticeDays = ReadLease(habit_.idLease).noticeDays;
        leases::UpdateLeaseById(habit_.idLease, WalkMode::CatchUp);
        leases::ChangeStatus(habit_.idLease, core::kLeaseNotice,
                             DateAdd(Interval::Day, noticeDays, day));
        ends_ = ReadLease(habit_.idLease).ends;
    }
    if (day == ends_) leases::UpdateLeaseById(habit_.idLease, WalkMode::CatchUp);
    if (day == habit_.breaks) {
        leases::UpdateLeaseById(habit_.idLease, WalkMode::CatchUp);
        leases::ChangeStatus(habit_.idLease, core::kLeaseBroken, day);
    }
    if (day == nextPayment_) {
        PayOpenCharges();
        PlanNextPayment(day);
    }
}

void SampleTenant::Begin() {
    leases::ChargeDeposits(habit_.idLease, core::GetLeaseUnit(habit_.idLease));
}

void SampleTenant::PayOpenCharges() {
    leases::UpdateLeaseById(habit_.idLease, WalkMode::CatchUp);
    if (!depositPaid_) Pay(habit_.idLease, TransactionClass::Deposit);
    depositPaid_ = true;
    if (habit_.habit == PayHabit::PaidAhead && !ReadLease(habit_.idLease).over) {
        leases::UpdateLeaseById(habit_.idLease, WalkMode::RollForward);
    }
    Pay(habit_.idLease, TransactionClass::Rent);
    Pay(habit_.idLease, TransactionClass::Subsidy);
}

void SampleTenant::PlanNextPayment(Date day) {
    const LeaseDates lease = ReadLease(habit_.idLease);
    const Date wanted = DateAdd(Interval::Day, DaysAfterDue(habit_, lease), lease.nextDue);
    ends_ = lease.ends;
    nextPayment_ = std::max(wanted, DateAdd(Interval::Day, 1, day));
    const bool stops = habit_.stopsPaying.IsSet() && nextPayment_ >= habit_.stopsPaying;
    if (lease.over || stops) nextPayment_ = Date();
}

} // namespace shell

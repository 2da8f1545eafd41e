#include "leases/LeaseWalk.h"

#include "leases/LeaseStatus.h"

namespace leases {

using platform::Currency;
using platform::Date;
using platform::DateAdd;
using platform::Interval;

namespace {

/// The due date that the walk has reached, and the days counted from it. `DateNextDue` itself moves
/// only with a payment, so fee days count from the oldest unpaid due date.
class DueDates {
  public:
    explicit DueDates(const LeaseTerms& terms)
        : interval_(BillingInterval(terms.termType)),
          oneTimeDays_(terms.oneTimeDays.Get()),
          nextDue_(terms.dateNextDue.Get()),
          discountDate_(DateAdd(Interval::Day, -terms.discountDays.Get(), nextDue_)),
          oneTimeDue_(nextDue_),
          oneTimeDate_(DateAdd(Interval::Day, oneTimeDays_, nextDue_)),
          dailyDue_(nextDue_),
          dailyDate_(DateAdd(Interval::Day, terms.dailyDays.Get(), nextDue_)) {}

    void AdvanceTo(Date day) {
        while (day.Serial() - nextDue_.Serial() > 1)
            nextDue_ = DateAdd(interval_, 1, nextDue_);
    }

    Date NextDue() const { return nextDue_; }
    bool IsDiscountDay(Date day) const { return day == discountDate_; }
    bool IsOneTimeDay(Date day) const { return day == oneTimeDate_; }
    bool IsDailyFeeDay(Date day) const { return day > dailyDate_; }
    /// Return the due dates from which the days of the fees are counted.
    Date OneTimeDue() const { return oneTimeDue_; }
    Date DailyDue() const { return dailyDue_; }
    /// Lets the days of the next one-time fee count from the due date reached now.
    void MoveOneTimeDay() {
        oneTimeDue_ = nextDue_;
        oneTimeDate_ = DateAdd(Interval::Day, oneTimeDays_, nextDue_);
    }

  private:
    Interval interval_;
    int oneTimeDays_;
    Date nextDue_;
    Date discountDate_;
    Date oneTimeDue_;
    Date oneTimeDate_;
    Date dailyDue_;
    Date dailyDate_;
};

void ChargeDay(LeaseWalk& walk, DueDates& dates, Date day, WalkMode mode,
               const IsTakenBack& taken) {
    const LeaseTerms& terms = walk.terms;
    const auto add = [&](ChargeKind kind, Currency amount, Date due) {
        if (amount.IsZero() || (taken && taken(kind, day))) return;
        walk.charges.push_back({kind, day, amount, due});
    };
    dates.AdvanceTo(day);
    const Date due = dates.NextDue();
    if (day == due) {
        add(ChargeKind::Rent, terms.rent.Get(), due);
        if (terms.subsidised.Get()) add(ChargeKind::Subsidy, terms.subsidy.Get(), due);
    }
    if (mode == WalkMode::RollForward && dates.IsDiscountDay(day))
        add(ChargeKind::Discount, -terms.discount.Get(), due);
    if (dates.IsOneTimeDay(day)) {
        add(ChargeKind::OneTimeFee, terms.oneTimeFee.Get(), dates.OneTimeDue());
        dates.MoveOneTimeDay();
    }
    if (dates.IsDailyFeeDay(day)) add(ChargeKind::DailyFee, terms.dailyFee.Get(), dates.DailyDue());
}

/// Settles what the day has charged, the rent before the subsidy. Returns true if that moved the
/// next due date.
bool SettleDay(LeaseWalk& walk, CreditPurse& purse, Date day, std::size_t first) {
    if (first == walk.charges.size()) return false;
    const Date due = walk.terms.dateNextDue.Get();
    Date moved = due;
    for (const TransactionClass rentClass : {TransactionClass::Rent, TransactionClass::Subsidy}) {
        auto payment = purse.Settle(day, rentClass, walk.charges, first);
        if (!payment) continue;
        for (const Use& settled : payment->charges) {
            if (MovesNextDue(settled, walk.charges))
                moved = DateAdd(TermInterval(walk.terms.termType), 1, moved);
        }
        walk.payments.push_back(std::move(*payment));
    }
    if (moved == due) return false;
    walk.terms.dateNextDue = moved;
    return true;
}

Date StartOfWalk(const LeaseTerms& terms, WalkMode mode) {
    const Date updated = terms.dateUpdated.Get();
    if (!updated.IsSet()) return DateAdd(Interval::Month, -1, terms.dateActive.Get());
    if (mode == WalkMode::Reprocess) return DateAdd(Interval::Month, -1, terms.dateNextDue.Get());
    return updated;
}

} // namespace

bool MovesNextDue(const Use& settled, std::span<const Charge> charges) {
    const Charge& charge = charges[settled.place];
    return charge.kind == ChargeKind::Rent && settled.amount == charge.amount;
}

LeaseWalk WalkLease(LeaseTerms terms, WalkMode mode, Date today, CreditPurse purse,
                    const IsTakenBack& taken) {
    LeaseWalk walk;
    walk.terms = std::move(terms);
    const Date end = mode == WalkMode::RollForward ? walk.terms.dateNextDue.Get() : today;
    const Date start = StartOfWalk(walk.terms, mode);
    walk.terms.dateUpdated = start;
    DueDates dates(walk.terms);

    for (int serial = start.Serial() + 1; serial <= end.Serial(); ++serial) {
        const Date day = Date::FromSerial(serial);
        const StatusStep step = StepLeaseStatus(walk.terms, day, false);
        if (step.statusSet) walk.statuses.push_back(walk.terms.status);
        walk.renewed = walk.renewed || step.renewed;
        const std::size_t before = walk.charges.size();
        if (IsCharged(walk.terms.status)) ChargeDay(walk, dates, day, mode, taken);
        // The days of the fees start from the oldest unpaid due date, as they do in a run on the
        // next day.
        if (SettleDay(walk, purse, day, before)) dates = DueDates(walk.terms);
    }
    if (end > start) walk.terms.dateUpdated = end;
    return walk;
}

TransactionClass ClassOf(ChargeKind kind) {
    return kind == ChargeKind::Subsidy ? TransactionClass::Subsidy : TransactionClass::Rent;
}

RentFlags FlagsOf(ChargeKind kind) {
    return kind == ChargeKind::Rent ? RentFlags::PeriodRent : RentFlags::Ordinary;
}

std::string_view CategoryOf(ChargeKind kind) {
    switch (kind) {
        case ChargeKind::Rent:
            return kCategoryRent;
        case ChargeKind::Subsidy:
            return kCategorySubsidy;
        case ChargeKind::Discount:
            return kCategoryDiscount;
        case ChargeKind::OneTimeFee:
        case ChargeKind::DailyFee:
            break;
    }
    return kCategoryLateFee;
}

std::string DescriptionOf(const Charge& charge) {
    switch (charge.kind) {
        case ChargeKind::Rent:
            return "Rent due " + charge.date.ToText();
        case ChargeKind::Subsidy:
            return "Subsidy due " + charge.date.ToText();
        case ChargeKind::Discount:
            return "Discount for rent due " + charge.due.ToText();
        case ChargeKind::OneTimeFee:
        case ChargeKind::DailyFee:
            break;
    }
    return std::string(kCategoryLateFee);
}

core::Posting PostingOf(ChargeKind kind) {
    switch (kind) {
        case ChargeKind::Rent:
            return core::Posting::Rent;
        case ChargeKind::Subsidy:
            return core::Posting::Subsidy;
        case ChargeKind::Discount:
            return core::Posting::Discount;
        case ChargeKind::OneTimeFee:
            return core::Posting::OneTimeFee;
        case ChargeKind::DailyFee:
            break;
    }
    return core::Posting::DailyFee;
}

core::RunReason ReasonOf(const Charge& charge) {
    const int days = charge.date.Serial() - charge.due.Serial();
    return {.posting = PostingOf(charge.kind),
            .due = charge.due,
            .number = charge.kind == ChargeKind::Discount ? -days : days};
}

} // namespace leases

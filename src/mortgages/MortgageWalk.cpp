#include "mortgages/MortgageWalk.h"

#include <algorithm>

#include "core/Codes.h"
#include "platform/database/FieldReadings.h"
#include "platform/values/Errors.h"

namespace mortgages {

using platform::Currency;
using platform::Date;
using platform::DateAdd;
using platform::Interval;

namespace {

Date Needed(Date date, const char* field) {
    if (!date.IsSet()) throw platform::FieldError(std::string(field) + " is empty");
    return date;
}

/// The due date that the walk has reached, and the last day of grace. The day after a due date
/// still counts as that due date's.
class DueDays {
  public:
    DueDays(Date nextDue, int graceDays)
        : due_(nextDue.IsSet() ? nextDue : Date::FromSerial(0)),
          late_(nextDue.IsSet() ? DateAdd(Interval::Day, graceDays, due_) : due_),
          lateDue_(due_),
          graceDays_(std::max(graceDays, 0)) {}

    void AdvanceTo(Date day) {
        while (day.Serial() - due_.Serial() > 1)
            due_ = DateAdd(Interval::Month, 1, due_);
        if (day.Serial() - late_.Serial() <= 1) return;
        lateDue_ = due_;
        late_ = DateAdd(Interval::Day, graceDays_, due_);
    }

    bool IsDue(Date day) const { return day == due_; }
    bool IsLate(Date day) const { return day == late_; }
    /// Returns the due date whose days of grace are counted.
    Date LateDue() const { return lateDue_; }

  private:
    Date due_;
    Date late_;
    Date lateDue_;
    int graceDays_;
};

Charge OtherCharge(LogFlags flags, Date day, std::int16_t period, Currency amount, Date due) {
    Charge charge;
    charge.flags = flags;
    charge.date = day;
    charge.period = period;
    charge.other = amount;
    charge.due = due;
    return charge;
}

void ChargeDay(std::vector<Charge>& charges, const clsMortgage& mortgage, const RunTerms& terms,
               const DueDays& days, Date day) {
    const bool due = days.IsDue(day);
    const bool late = terms.graceDays > 0 && terms.lateFee > Currency() && days.IsLate(day);
    if (!due && !late) return;
    const int period = mortgage.GetPeriod(day);
    const auto number = static_cast<std::int16_t>(period);
    if (due) {
        charges.push_back({.flags = LogFlags::BasePayment,
                           .date = day,
                           .period = number,
                           .principal = mortgage.GetPPMT(period),
                           .payDown = Currency::FromDouble(mortgage.GetXPRI(period)),
                           .interest = mortgage.GetIPMT(period),
                           .other = {},
                           .due = day});
        if (!terms.escrow.IsZero())
            charges.push_back(OtherCharge(LogFlags::Escrow, day, number, terms.escrow, day));
        if (!terms.pmi.IsZero())
            charges.push_back(OtherCharge(LogFlags::Pmi, day, number, terms.pmi, day));
    }
    if (late)
        charges.push_back(
            OtherCharge(LogFlags::LateFee, day, number, terms.lateFee, days.LateDue()));
}

} // namespace

ChargeWords WordsOf(LogFlags flags) {
    switch (flags) {
        case LogFlags::Escrow:
            return {kCategoryEscrow, "Mortgage Escrow Payment"};
        case LogFlags::Pmi:
            return {kCategoryPmi, "Mortgage PMI Payment"};
        case LogFlags::LateFee:
            return {kCategoryLate, kCategoryLate};
        case LogFlags::BasePayment:
            return {kCategoryPayment, "Mortgage P & I Payment Due"};
        case LogFlags::Ordinary:
        case LogFlags::Payment:
            break;
    }
    return {kCategoryPayment, kCategoryPayment};
}

core::Posting PostingOf(LogFlags flags) {
    switch (flags) {
        case LogFlags::Escrow:
            return core::Posting::Escrow;
        case LogFlags::Pmi:
            return core::Posting::MortgageInsurance;
        case LogFlags::LateFee:
            return core::Posting::LoanLateFee;
        case LogFlags::BasePayment:
        case LogFlags::Ordinary:
        case LogFlags::Payment:
            break;
    }
    return core::Posting::LoanPayment;
}

core::RunReason ReasonOf(const Charge& charge) {
    const bool isLate = charge.flags == LogFlags::LateFee;
    return {.posting = PostingOf(charge.flags),
            .due = charge.due,
            .number = isLate ? charge.date.Serial() - charge.due.Serial() : charge.period};
}

RunTerms RunTerms::Read(platform::Recordset& row) {
    RunTerms terms;
    terms.firstDue = DateOf(row["FirstDue"]);
    terms.nextDue = DateOf(row["NextDue"]);
    terms.dateUpdated = DateOf(row["DateUpdated"]);
    terms.graceDays = ShortOf(row["GracePeriod"]);
    terms.escrow = MoneyOf(row["EscrowAmount"]);
    terms.pmi = MoneyOf(row["PMI"]);
    terms.lateFee = MoneyOf(row["LateFee"]);
    return terms;
}

Date RunTerms::Start(RunMode mode) const {
    if (!dateUpdated.IsSet()) return DateAdd(Interval::Month, -1, Needed(firstDue, "FirstDue"));
    if (mode == RunMode::Reprocess) return DateAdd(Interval::Month, -1, Needed(nextDue, "NextDue"));
    return dateUpdated;
}

Date RunTerms::Target(RunMode mode, Date today) const {
    return mode == RunMode::RollForward ? Needed(nextDue, "NextDue") : today;
}

std::vector<Charge> WalkMortgage(const clsMortgage& mortgage, const RunTerms& terms, Date from,
                                 Date to) {
    std::vector<Charge> charges;
    DueDays days(terms.nextDue, terms.graceDays);
    for (int serial = from.Serial() + 1; serial <= to.Serial(); ++serial) {
        const Date day = Date::FromSerial(serial);
        if (mortgage.GetStatus(day) != core::kMortgageCurrent) continue;
        days.AdvanceTo(day);
        ChargeDay(charges, mortgage, terms, days, day);
    }
    return charges;
}

} // namespace mortgages

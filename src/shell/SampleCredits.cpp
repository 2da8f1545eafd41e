#include "shell/SampleCredits.h"

#include <algorithm>

#include "core/Rows.h"
#include "leases/AmountPayment.h"
#include "leases/Credits.h"
#include "leases/LeaseStatus.h"
#include "leases/ReturnPayment.h"
#include "leases/mLease.h"
#include "platform/database/FieldReadings.h"
#include "platform/database/Recordset.h"

namespace shell {

using leases::TransactionClass;
using platform::Currency;
using platform::Date;
using store::PayHabit;
using store::SampleHabit;

namespace {

// Days before the last one of the sample.
constexpr int kPaysAhead = 70;
constexpr int kReturned = 24;
constexpr int kPaidAgain = 21;

constexpr int kPeriodsAhead = 4;
constexpr std::int64_t kBankFee = 25;
constexpr std::int64_t kTooMuch = 45;

bool StaysAndPays(const SampleHabit& habit) {
    return !habit.givesNotice.IsSet() && !habit.breaks.IsSet() && !habit.stopsPaying.IsSet();
}

/// Returns whether the lease runs by the month, without a subsidy.
bool IsPlain(std::int32_t idLease) {
    platform::Recordset lease =
        core::Read("SELECT Status, Subs, TermType FROM Lease WHERE IdLease = ?", {idLease});
    return !lease.Eof() && leases::IsCharged(TextOf(lease["Status"])) && !FlagOf(lease["Subs"]) &&
           TextOf(lease["TermType"]).starts_with("M");
}

Currency RentOf(std::int32_t idLease) {
    return platform::AsOr0<Currency>(
        core::ReadValue("SELECT Rent FROM Lease WHERE IdLease = ?", {idLease}));
}

void PayMore(std::int32_t idLease, Currency more) {
    leases::UpdateLeaseById(idLease, leases::WalkMode::CatchUp);
    const auto payment = leases::ProposePayment(idLease, TransactionClass::Rent);
    leases::SubmitAmount({payment, payment.Total() + more});
}

} // namespace

SampleCredits::SampleCredits(std::span<const SampleHabit> habits, Date today)
    : habits_(habits.begin(), habits.end()), today_(today) {}

void SampleCredits::LiveThrough(Date day) {
    switch (today_.Serial() - day.Serial()) {
        case kPaysAhead:
            return PayAhead();
        case kReturned:
            return ReturnLastPayment();
        case kPaidAgain:
            return PayAgain();
        case 0:
            return PayTooMuch();
        default:
            return;
    }
}

/// Chooses a lease to which nothing else happens; each is chosen once.
std::optional<std::int32_t> SampleCredits::Choose(PayHabit habit) {
    const auto chosen = std::ranges::find_if(habits_, [&](const SampleHabit& each) {
        return each.habit == habit && StaysAndPays(each) && IsPlain(each.idLease);
    });
    if (chosen == habits_.end()) return std::nullopt;
    const std::int32_t id = chosen->idLease;
    habits_.erase(chosen);
    return id;
}

void SampleCredits::PayAhead() {
    const auto lease = Choose(PayHabit::OnTime);
    if (!lease) return;
    leases::SetSettlesCharges(*lease, true);
    PayMore(*lease, RentOf(*lease) * kPeriodsAhead);
}

void SampleCredits::ReturnLastPayment() {
    const auto lease = Choose(PayHabit::FewDaysLate);
    if (!lease) return;
    const auto last = core::ReadValue(
        "SELECT Max(IdTransaction) FROM Transactions WHERE (IdLease = ?) AND (Class = 1) AND "
        "(Amount > 0)",
        {*lease});
    if (last.IsNull()) return;
    leases::PaymentReturn returned = leases::ProposeReturn(last.AsLong());
    returned.fee = Currency::FromUnits(kBankFee);
    leases::SubmitReturn(returned);
    returned_ = lease;
}

void SampleCredits::PayAgain() const {
    if (!returned_) return;
    leases::UpdateLeaseById(*returned_, leases::WalkMode::CatchUp);
    const auto payment = leases::ProposePayment(*returned_, TransactionClass::Rent);
    if (payment.Total() > Currency()) leases::SubmitPayment(payment);
}

void SampleCredits::PayTooMuch() {
    if (const auto lease = Choose(PayHabit::FewDaysLate))
        PayMore(*lease, Currency::FromUnits(kTooMuch));
}

} // namespace shell

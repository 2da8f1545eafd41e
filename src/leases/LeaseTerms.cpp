#include "leases/LeaseTerms.h"

#include "core/Codes.h"
#include "platform/database/FieldReadings.h"

namespace leases {

using platform::Currency;
using platform::Date;
using platform::Field;
using platform::Interval;

namespace {

template <class T>
Reading<T> TryRead(const Field& field, T (*read)(const Field&)) {
    try {
        return read(field);
    } catch (const platform::Error& error) {
        return Reading<T>::Fault(error.what());
    }
}

Reading<Date> RequiredDate(const Field& field) {
    if (field.IsBlank()) return Reading<Date>::Fault(field.Name() + " is empty");
    return TryRead(field, platform::DateOf);
}

Reading<Currency> Money(const Field& field) {
    return TryRead(field, platform::As<Currency, Field>);
}

Reading<std::int16_t> Count(const Field& field) {
    return TryRead(field, platform::As<std::int16_t, Field>);
}

} // namespace

LeaseTerms LeaseTerms::Read(platform::Recordset& row) {
    LeaseTerms terms;
    terms.status = TextOf(row["Status"]);
    terms.termType = TextOf(row["TermType"]);
    terms.expireOption = TextOf(row["ExpireOption"]);
    terms.dateActive = RequiredDate(row["DateActive"]);
    terms.dateRenewed = RequiredDate(row["DateRenewed"]);
    terms.dateVacating = RequiredDate(row["DateVacating"]);
    terms.dateNextDue = RequiredDate(row["DateNextDue"]);
    terms.dateUpdated = TryRead(row["DateUpdated"], platform::DateOf);
    terms.term = Count(row["Term"]);
    terms.discountDays = Count(row["DiscountDays"]);
    terms.oneTimeDays = Count(row["OneTimeDays"]);
    terms.dailyDays = Count(row["DailyDays"]);
    terms.rent = Money(row["Rent"]);
    terms.discount = Money(row["Discount"]);
    terms.oneTimeFee = Money(row["OneTimeFee"]);
    terms.dailyFee = Money(row["DailyFee"]);
    terms.subsidy = Money(row["SubsAmt"]);
    terms.subsidised = TryRead(row["Subs"], platform::FlagOf);
    return terms;
}

Interval TermInterval(std::string_view termType) {
    return termType == core::kLeaseWeekToWeek ? Interval::Week : core::FixedTermInterval(termType);
}

Interval BillingInterval(std::string_view termType) {
    if (termType == core::kTermYears) return Interval::Month;
    return termType == "Years(s)" ? Interval::Year : TermInterval(termType);
}

} // namespace leases

#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "leases/Reading.h"
#include "platform/database/Recordset.h"
#include "platform/values/Currency.h"
#include "platform/values/Date.h"

namespace leases {

/// What the calendar run knows of a lease: the fields of its row, read once.
struct LeaseTerms {
    /// Reads the current row; nothing fails until a value that can't be read is used.
    static LeaseTerms Read(platform::Recordset& row);

    std::string status;
    std::string termType;
    std::string expireOption;
    Reading<platform::Date> dateActive;
    Reading<platform::Date> dateRenewed;
    Reading<platform::Date> dateVacating;
    Reading<platform::Date> dateNextDue;
    /// Last day already charged; unset before the first run.
    Reading<platform::Date> dateUpdated;
    Reading<std::int16_t> term;
    Reading<std::int16_t> discountDays;
    Reading<std::int16_t> oneTimeDays;
    Reading<std::int16_t> dailyDays;
    Reading<platform::Currency> rent;
    Reading<platform::Currency> discount;
    Reading<platform::Currency> oneTimeFee;
    Reading<platform::Currency> dailyFee;
    Reading<platform::Currency> subsidy;
    Reading<bool> subsidised;
};

/// The interval that a term of this type is counted in.
platform::Interval TermInterval(std::string_view termType);

/// The interval at which the run charges rent. It knows the years by another word than TermInterval
/// ("Years(s)"), so a lease of "Year(s)" is charged monthly while its term runs in years; books
/// that were kept so depend on it.
platform::Interval BillingInterval(std::string_view termType);

} // namespace leases

#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "leases/Reading.h"
#include "platform/database/Recordset.h"
#include "platform/values/Currency.h"
#include "platform/values/Date.h"

namespace leases {

/// The fields of a lease's row that the daily run uses, read once.
struct LeaseTerms {
    /// Reads the current row; a value that can't be read throws only when it is used.
    static LeaseTerms Read(platform::Recordset& row);

    std::string status;
    std::string termType;
    std::string expireOption;
    Reading<platform::Date> dateActive;
    Reading<platform::Date> dateRenewed;
    Reading<platform::Date> dateVacating;
    Reading<platform::Date> dateNextDue;
    /// The last day already charged; unset before the first run.
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

/// Returns the interval in which terms of this type are counted: a week from week to week, a month
/// from month to month.
platform::Interval TermInterval(std::string_view termType);

/// Returns the interval at which rent is charged. It spells the years differently from TermInterval
/// ("Years(s)"), so a lease of "Year(s)" is charged monthly while its term runs in years; existing
/// books depend on that.
platform::Interval BillingInterval(std::string_view termType);

} // namespace leases

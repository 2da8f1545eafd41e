#include "core/RunReason.h"

#include <cstdlib>
#include <string_view>

#include <fmt/core.h>

namespace core {

namespace {

std::string Days(std::int32_t days) {
    return fmt::format("{} {}", days, days == 1 ? "day" : "days");
}

/// Returns the text for a fee. A lease may charge it on the due date itself, or even before it.
std::string FeeText(const RunReason& reason, std::string_view fee) {
    std::string since = "unpaid for " + Days(reason.number);
    if (reason.number == 0) since = "unpaid on that day";
    if (reason.number < 0) since = Days(std::abs(reason.number)) + " before that day";
    return fmt::format("Rent due {}, {}: the lease's {}", reason.due.ToText(), since, fee);
}

std::string PaymentText(const RunReason& reason, std::string_view part) {
    return fmt::format("Payment {} of the loan, due {}: {}", reason.number, reason.due.ToText(),
                       part);
}

std::string Interval(std::int32_t count, std::string_view unit) {
    return count == 1 ? fmt::format("every {}", unit) : fmt::format("every {} {}s", count, unit);
}

std::string EventText(const RunReason& reason) {
    if (!reason.every) return "The first run of the event, which had never run before";
    std::string when;
    switch (*reason.every) {
        case IntervalType::Day:
            when = Interval(reason.number, "day");
            break;
        case IntervalType::Week:
            when = Interval(reason.number, "week");
            break;
        case IntervalType::Month:
            when = Interval(reason.number, "month");
            break;
        case IntervalType::DayOfMonth:
            when = fmt::format("on day {} of each month", reason.number);
            break;
        case IntervalType::Year:
            when = Interval(reason.number, "year");
            break;
    }
    return fmt::format("Due {}: the event runs {}", reason.due.ToText(), when);
}

} // namespace

std::string ReasonText(const RunReason& reason) {
    if (!reason.due.IsSet()) return {};
    const std::string due = reason.due.ToText();
    switch (reason.posting) {
        case Posting::Unknown:
            break;
        case Posting::Rent:
            return fmt::format("Rent due {}: the lease's rent", due);
        case Posting::Subsidy:
            return fmt::format("Rent due {}: the lease's subsidy", due);
        case Posting::Discount:
            return fmt::format("Rent due {}, charged {} before: the lease's discount", due,
                               Days(reason.number));
        case Posting::OneTimeFee:
            return FeeText(reason, "one-time fee");
        case Posting::DailyFee:
            return FeeText(reason, "daily fee");
        case Posting::FromCredit:
            return fmt::format("Charges due {}: the lease settles them from the tenant's credit",
                               due);
        case Posting::LoanPayment:
            return PaymentText(reason, "principal and interest");
        case Posting::Escrow:
            return PaymentText(reason, "the mortgage's escrow amount");
        case Posting::MortgageInsurance:
            return PaymentText(reason, "the mortgage's insurance (PMI)");
        case Posting::LoanLateFee:
            return fmt::format("Payment of the loan due {}, {} of grace: the mortgage's late fee",
                               due, Days(reason.number));
        case Posting::EventTransaction:
            return EventText(reason);
    }
    return {};
}

} // namespace core

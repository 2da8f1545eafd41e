#include "leases/PaymentOutlook.h"

#include <algorithm>

#include <fmt/core.h>

#include "core/Rows.h"
#include "leases/LeaseTerms.h"
#include "platform/database/FieldReadings.h"
#include "platform/database/Recordset.h"
#include "platform/values/Format.h"

namespace leases {

using platform::Currency;
using platform::Date;

namespace {

std::string DescribeDueDate(platform::Recordset& lease, int periods) {
    const Date due = DateOf(lease["DateNextDue"]);
    if (!due.IsSet()) return "the lease has no next due date";
    if (periods == 0) return "next due date stays " + due.ToText();
    const auto interval = TermInterval(TextOf(lease["TermType"]));
    // Moved one period at a time, as the payment does: a shorter month on the way lowers the day.
    Date moved = due;
    for (int i = 0; i < periods; ++i)
        moved = DateAdd(interval, 1, moved);
    return fmt::format("next due date moves from {} to {}", due.ToText(), moved.ToText());
}

std::string DescribeCredit(platform::Recordset& lease, int periods) {
    if (periods == 0 || !FlagOf(lease["Option"])) return {};
    const Currency credit = MoneyOf(lease["OptionCredit"]) * periods;
    return credit.IsZero() ? "" : ", option credit " + platform::FormatMoney(credit);
}

bool IsStored(std::int32_t idTransaction) {
    return core::Exists("SELECT IdTransaction FROM Transactions WHERE IdTransaction = ?",
                        {idTransaction});
}

std::string DescribeReceiver(const RentPayment& payment) {
    if (payment.to.id != 0) return {};
    if (payment.to.description.empty()) return ". No account is chosen to receive it";
    return fmt::format(". \"{}\" receives it, which is not one of your accounts",
                       payment.to.description);
}

std::string DescribeCharges(const RentPayment& payment) {
    const auto count = std::ranges::count_if(payment.charges, &PaymentCharge::selected);
    if (count == 0) return "Nothing is ticked: a payment of 0.00 will be posted";
    std::string line = fmt::format("{} charge{}", count, count == 1 ? "" : "s");

    platform::Recordset lease = core::Read(
        "SELECT TermType, DateNextDue, Option, OptionCredit FROM Lease WHERE IdLease = ?",
        {payment.idLease});
    if (lease.Eof()) return line;
    const int periods = PeriodsPaid(payment);
    return line + ", " + DescribeDueDate(lease, periods) + DescribeCredit(lease, periods);
}

} // namespace

std::string DescribeOutlook(const RentPayment& payment) {
    if (payment.idTransaction != 0 && !IsStored(payment.idTransaction))
        return "This payment was deleted. Submit stores it again under its number";
    return DescribeCharges(payment) + DescribeReceiver(payment);
}

} // namespace leases

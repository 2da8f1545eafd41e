#include "leases/PaymentOutlook.h"

#include <algorithm>

#include <fmt/core.h>

#include "core/Descriptions.h"
#include "core/RecordKinds.h"
#include "leases/DueMove.h"
#include "platform/values/Format.h"

namespace leases {

using platform::Currency;

namespace {

std::string DescribeDueDate(const DueMove& move) {
    if (!move.from.IsSet()) return "the lease has no next due date";
    if (move.to == move.from) return "next due date stays " + move.from.ToText();
    return fmt::format("next due date moves from {} to {}", move.from.ToText(), move.to.ToText());
}

std::string DescribeCredit(const DueMove& move, int periods) {
    const Currency credit = move.optionCredit * periods;
    return credit.IsZero() ? "" : ", option credit " + platform::FormatMoney(credit);
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
    const int periods = PeriodsPaid(payment);
    const auto move = ReadDueMove(payment.idLease, periods);
    if (!move) return line;
    return line + ", " + DescribeDueDate(*move) + DescribeCredit(*move, periods);
}

} // namespace

std::string DescribeOutlook(const RentPayment& payment) {
    if (!payment.IsNew() && !core::RecordExists(core::kTransaction, payment.idTransaction))
        return "This payment was deleted. Submit stores it again under its number";
    return DescribeCharges(payment) + DescribeReceiver(payment);
}

} // namespace leases

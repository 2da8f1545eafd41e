#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "books/Payment.h"
#include "mortgages/MortgageCodes.h"
#include "platform/values/Currency.h"
#include "platform/values/Date.h"

namespace mortgages {

/// A charge of the log that a payment can settle.
struct PaymentCharge {
    std::int32_t idMortgageLog = 0;
    /// The transaction that settled it, 0 if it is open.
    std::int32_t idTransaction = 0;
    platform::Date datePosted;
    std::int16_t period = 0;
    std::string category;
    platform::Currency payDown;
    platform::Currency total;
    std::string description;
    bool selected = false;
    LogFlags flags = LogFlags::Ordinary;

    bool IsBasePayment() const { return flags == LogFlags::BasePayment; }
};

/// A payment of a mortgage before it is submitted, from one account to another; a party's id is 0
/// if only a name was typed.
struct MortgagePayment : books::Payment {
    std::int32_t idMortgage = 0;
    /// Ordered by the date they were posted.
    std::vector<PaymentCharge> charges;
    /// Principal paid by a new payment beyond the selected charges.
    platform::Currency extraPrincipal;

    /// Returns the sum of the selected charges and the extra principal.
    platform::Currency PaidAmount() const;
    /// Returns the lowest period among the listed base payments, 0 if there are none.
    std::int16_t FromPeriod() const;
};

/// Returns the payment proposed today: from the account that paid last to the lender, with all open
/// charges, none of them selected. Throws DatabaseError if there is no such mortgage.
MortgagePayment ProposeMortgagePayment(std::int32_t idMortgage);

/// Returns a stored payment with the charges it settled, which are selected, and the open ones.
/// Throws DatabaseError if there is no such transaction.
MortgagePayment ReadMortgagePayment(std::int32_t idTransaction);

/// Reads the charges and the payment's own row again; charges selected before stay selected.
void ReadCharges(MortgagePayment& payment);

/// Selects or deselects a charge. Base payments must be paid in the order of their due dates: a
/// change that would leave a gap isn't made, and the reason is returned; otherwise an empty string.
std::string_view Select(MortgagePayment& payment, std::size_t charge, bool selected);

enum class ChargeChoice { All, BasePayments };

/// Selects or deselects all charges, or only the base payments.
void SelectAll(MortgagePayment& payment, ChargeChoice choice, bool selected);

/// Returns the errors in a payment before it is submitted, a line each.
std::vector<std::string> PaymentErrors(const MortgagePayment& payment);

/// Posts a payment in one unit of work: the transaction and its log row; the selected charges are
/// settled by it, and those it settled before are open again. Each base payment that a new payment
/// settles moves the current period forward. Extra principal enters the schedule in the period of
/// the last base payment settled, or in the current one. The mortgage's stored figures are then
/// recalculated, and open screens refreshed.
///
/// Throws ConflictError and changes nothing if another program has in the meantime paid, changed or
/// deleted a selected charge, the payment or the mortgage. Throws Error if PaymentErrors finds an
/// error. Returns the transaction's id.
std::int32_t SubmitMortgagePayment(const MortgagePayment& payment);

} // namespace mortgages

#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "mortgages/MortgageCodes.h"
#include "platform/values/Currency.h"
#include "platform/values/Date.h"

namespace mortgages {

/// One charge of the log that a payment can settle.
struct PaymentCharge {
    std::int32_t idMortgageLog = 0;
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

/// A payment of a mortgage, as it stands before it is submitted.
struct MortgagePayment {
    std::int32_t idMortgage = 0;
    /// 0 for a new payment.
    std::int32_t idTransaction = 0;
    /// The log row that a stored payment left, 0 for none.
    std::int32_t idPaymentRow = 0;
    platform::Date dateEffective;
    /// The paying and the receiving account; a name alone has id 0.
    std::int32_t fromAccount = 0;
    std::string fromName;
    std::int32_t toAccount = 0;
    std::string toName;
    std::string checkNumber;
    /// The category that the transaction carries.
    std::string paymentType;
    std::string description;
    /// By the day they were posted on.
    std::vector<PaymentCharge> charges;

    /// The sum of the selected charges.
    platform::Currency PaidAmount() const;
    /// The lowest period among the base payments listed, 0 without one.
    std::int16_t FromPeriod() const;
};

/// The payment as it is proposed today, with all open charges and none of them selected: from the
/// account that paid last to the lender. A mortgage that isn't there is a DatabaseError.
MortgagePayment ProposeMortgagePayment(std::int32_t idMortgage);

/// A stored payment with the charges it settled, selected, and those still open. A DatabaseError
/// when it isn't there.
MortgagePayment ReadMortgagePayment(std::int32_t idTransaction);

/// Reads the charges again; what was selected by id stays so.
void ReadCharges(MortgagePayment& payment);

/// Selects a charge or takes it out. Base payments are paid in the order they fell due: one that
/// would leave a gap stays as it is, and the answer is what to tell the person; otherwise empty.
std::string_view Select(MortgagePayment& payment, std::size_t charge, bool selected);

enum class ChargeChoice { All, BasePayments };

/// The same for all charges, or for the base payments alone.
void SelectAll(MortgagePayment& payment, ChargeChoice choice, bool selected);

/// Where a payment was opened from. The mortgage's own screen reckons the mortgage anew when it is
/// closed; a payment made elsewhere does the same itself, once it has ended.
enum class OpenedFrom { MortgageScreen, Elsewhere };

/// Posts a payment: the transaction, its row in the log, the selected charges settled by it and the
/// others open; a new one moves the current period on by each base payment settled, whose extra
/// principal enters the schedule. The screens are told. One unit of work; failures are thrown, and
/// a selected charge that has gone meanwhile is one. Answers the transaction's id.
std::int32_t SubmitMortgagePayment(const MortgagePayment& payment, OpenedFrom from);

} // namespace mortgages

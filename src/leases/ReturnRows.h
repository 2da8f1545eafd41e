#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "books/PostTransaction.h"
#include "leases/CreditSpending.h"
#include "leases/PreviewRow.h"
#include "leases/RentLog.h"
#include "leases/ReturnPayment.h"
#include "removal/RentCredits.h"

namespace leases {

/// All that the return of a payment writes, worked out before anything is written.
struct ReturnPlan {
    /// The reversal: the payment's sides with the negative amount.
    books::Transaction reversal;
    /// Charges of the payment that are open again, and credits that it had taken in.
    std::vector<PaymentCharge> reopened;
    /// The uses of the payment's credit, whose charges are open again too.
    std::vector<CreditSpending> spendings;
    /// The credit that the payment had brought. The open part, counting what is open again, is
    /// withdrawn; the rest paid for no charge, and is owed again.
    std::vector<removal::CreditOrigin> credits;
    /// The row that the payment settles in the place of its charges.
    RentLogEntry returned;
    /// The rows that the reversal settles: the counterpart of that row, and its own payment row.
    RentLogEntry counterpart;
    RentLogEntry payment;
    /// The amount is zero if there is none.
    RentLogEntry fee;
    RentLogEntry optionCredit;
    /// The description of the payment from now on.
    std::string description;
    platform::Date dueNow;
    platform::Date dueAfter;
};

/// Works out the return of a payment. `credits` are the origins that the payment settles now.
ReturnPlan PlanReturn(const PaymentReturn& returned, std::vector<removal::CreditOrigin> credits);

PreviewRows RowsOf(const ReturnPlan& plan);

/// Returns the description of a payment that is marked as returned on a day.
std::string MarkedDescription(platform::Date day, const std::string& description);

} // namespace leases

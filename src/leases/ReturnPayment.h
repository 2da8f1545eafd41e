#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "leases/CreditSpending.h"
#include "leases/PreviewRow.h"
#include "leases/RentPayment.h"
#include "platform/values/Currency.h"
#include "platform/values/Date.h"

namespace leases {

/// A posted payment that the bank gives back: a check without cover, a direct debit called off.
struct PaymentReturn {
    RentPayment payment;
    platform::Currency amount;
    /// The day the bank gave it back.
    platform::Date date;
    /// The bank's fee for the return, charged to the tenant; zero charges nothing.
    platform::Currency fee;
    /// The lease's next due date as it was when this was read, and as it will be. Unset for a
    /// payment that settles no rent.
    platform::Date dueNow;
    platform::Date dueAfter;
    /// The option credit that the payment, or its credit, earned towards the purchase, and that is
    /// withdrawn.
    platform::Currency optionCredit;
    /// How the credit that the payment brought was spent since.
    std::vector<CreditSpending> spendings;
};

/// Proposes the return of a stored payment, dated today and without a fee: the next due date goes
/// back by the rents that it settles, and that its credit has settled. Throws Error with the reason
/// if it can't be returned: deleted, no payment of a lease, no money received, returned already,
/// its lease deleted.
PaymentReturn ProposeReturn(std::int32_t idTransaction);

/// Returns the errors in the entries, a line each.
std::vector<std::string> ReturnErrors(const PaymentReturn& returned);

/// Returns every row that SubmitReturn will write, change or delete. Empty if there are errors.
/// Failures are thrown.
PreviewRows PreviewReturn(const PaymentReturn& returned);

/// Brings the lease up to date, posts a transaction of the negative amount, opens the charges of
/// the payment again, withdraws the credit that it brought (the charges that it has settled are
/// open again; what was paid out of it is owed again) and the option credit, charges the fee, moves
/// the next due date, and marks the payment as returned, and the payments from its credit that
/// settle nothing any more: one unit of work that reads all of it again. Throws FieldError if there
/// are errors, and ConflictError, with nothing changed, if the payment or the next due date was
/// changed since the return was proposed. Returns the id of the new transaction.
std::int32_t SubmitReturn(const PaymentReturn& returned);

} // namespace leases

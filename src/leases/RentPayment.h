#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "books/Payment.h"
#include "leases/RentCodes.h"
#include "platform/values/Currency.h"
#include "platform/values/Date.h"

namespace leases {

/// A charge that a payment can settle.
struct PaymentCharge {
    std::int32_t idRentLog = 0;
    platform::Date datePosted;
    std::string category;
    platform::Currency amount;
    std::string description;
    RentFlags flags = RentFlags::Ordinary;
    bool selected = true;
    bool settled = false; ///< by this payment, when it was read
};

/// A payment of one class against a lease before it is submitted: from an account, a tenant, or a
/// mere name, to an account. The payment row stores its type too.
struct RentPayment : books::Payment {
    std::int32_t idLease = 0;
    TransactionClass rentClass = TransactionClass::Rent;
    /// In the order they are settled: by date, then by id.
    std::vector<PaymentCharge> charges;

    /// Returns the sum of the selected charges; credits lower it.
    platform::Currency Total() const;
};

/// Returns the categories for a payment of this class; the first is proposed.
std::vector<std::string> PaymentWords(TransactionClass rentClass);

/// Returns the proposed payment of all open charges of a class, dated today: from the tenant (a
/// subsidy from its payor) to the lease's rent account. Throws DatabaseError if the lease doesn't
/// exist.
RentPayment ProposePayment(std::int32_t idLease, TransactionClass rentClass);

/// Returns a stored payment with the charges that it settled. Throws DatabaseError if it doesn't
/// exist.
RentPayment ReadPayment(std::int32_t idTransaction);

enum class OpenCharges { Leave, Offer };

/// Reads the charges of a payment again: for a new payment all open ones, selected; for a stored
/// payment those it settled and, if `open` says so, the open ones, not selected.
void ReadCharges(RentPayment& payment, OpenCharges open = OpenCharges::Leave);

/// Returns whether a row of the ledger is the rent of a period, whose payment moves the next due
/// date.
bool IsPeriodRent(RentFlags flags);

/// Returns how many rents of a period a payment settles; 0 if it isn't a payment of rent.
int CountPeriodRents(const RentPayment& payment);

/// Returns by how many periods the payment moves the next due date: one for each period's rent that
/// a new payment of rent settles. A stored payment never moves it, in either direction.
int PeriodsPaid(const RentPayment& payment);

/// Returns whether two readings of a charge are of the same row and agree about what is owed.
bool IsSameCharge(const PaymentCharge& a, const PaymentCharge& b);

/// Returns the payment as the books have it now. Throws ConflictError if a charge that it settles
/// was paid, changed or deleted since it was read, or if the payment was edited or returned since.
RentPayment CheckUnchanged(const RentPayment& payment);

/// Returns the transaction that posts the payment.
books::Transaction TransactionOf(const RentPayment& payment);

enum class LeaseUpdate { No, Yes };

/// Posts a payment: the transaction, the payment row, the selected charges as settled by it and the
/// others as open; a new one moves the next due date by one period for each period's rent among
/// them. Then the lease is brought up to date and the changes are broadcast. One unit of work that
/// reads the charges again. Throws ConflictError, and changes nothing, if one of them was paid,
/// changed or deleted since the payment was read. Returns the transaction's id.
std::int32_t SubmitPayment(const RentPayment& payment, LeaseUpdate update = LeaseUpdate::Yes);

} // namespace leases

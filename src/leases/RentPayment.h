#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "books/Payment.h"
#include "leases/RentCodes.h"
#include "platform/values/Currency.h"
#include "platform/values/Date.h"

namespace leases {

/// One charge that a payment can settle.
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

/// A payment of one class against a lease before it is submitted: from an account or a tenant, or
/// somebody who is only a name, to an account. The payment row carries its type too.
struct RentPayment : books::Payment {
    std::int32_t idLease = 0;
    RentClass rentClass = RentClass::Rent;
    /// In the order they are settled: by day, then by id.
    std::vector<PaymentCharge> charges;

    /// The sum of the selected charges; a credit lowers it.
    platform::Currency Total() const;
};

/// The words that a payment of a class may carry; the first is proposed.
std::vector<std::string> PaymentWords(RentClass rentClass);

/// The payment of all open charges of a class as it is proposed today: from the tenant (a subsidy
/// from its payor) to the lease's rent account. A lease that isn't there is a DatabaseError.
RentPayment ProposePayment(std::int32_t idLease, RentClass rentClass);

/// A stored payment with the charges that it settled. A DatabaseError when it isn't there.
RentPayment ReadPayment(std::int32_t idTransaction);

enum class OpenCharges { Leave, Offer };

/// Reads the charges of a payment again: all open ones, selected, for a new payment; those it
/// settled for a stored one, and where `open` says so the open ones too, not selected.
void ReadCharges(RentPayment& payment, OpenCharges open = OpenCharges::Leave);

/// Whether a row of the ledger is the rent of a period, which moves the next due date when it is
/// paid.
bool IsPeriodRent(RentFlags flags);

/// By how many periods the payment moves the next due date: once for each period's rent that a new
/// payment of rent settles. A stored one never moves it, in either direction.
int PeriodsPaid(const RentPayment& payment);

enum class LeaseUpdate { No, Yes };

/// Posts a payment: the transaction, the payment row, the selected charges settled by it and the
/// others released; a new one moves the next due date once for each period's rent among them. Then
/// the lease is brought up to date, and the screens are told. One unit of work that reads the
/// charges again. Throws ConflictError, and changes nothing, if one of them was paid, changed or
/// deleted since the payment was read. Returns the transaction's id.
std::int32_t SubmitPayment(const RentPayment& payment, LeaseUpdate update = LeaseUpdate::Yes);

} // namespace leases
